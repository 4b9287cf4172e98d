#include "Mirel/DataModel/GUIWidgets/CGUIImageParamKnob.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamLinearMeter.h"
#include "Mirel/DataModel/GUIWidgets/CSkinLinearParamSlider.h"
#include "PushRig.h"

#include <gtest/gtest.h>
#include <memory>
#include <rapidcheck/gtest.h>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using GUI::EMouseButton;
using GUI::ENativeKey;
using Tests::CControlRig;
using Tests::CNotedParam;

namespace
{

constexpr std::uint32_t thumbColor = 0xF00000;

Graphics::CImageCatalog* MakeThumb(Core::CSize size)
{
    auto catalog = std::make_unique<Graphics::CImageCatalog>();
    for (int state = 0; state < 5; ++state)
    {
        catalog->SetEntry(
            state, std::make_unique<Graphics::CNormalImageElement>(Tests::MakeFilled(size, {{0xF0, 0, 0}})));
    }
    return catalog.release();
}

/// A horizontal slider at 10, 10: a track of 120 by 20 pixels, with margins of 6 at both ends, and a thumb
/// of 8 by 12, whose middle has a way of 100 pixels; over a real from 0 to 1 with the default 0.25, at 0.5.
/// The middle stands at 70 in the window.
struct CSlider : public CControlRig
{
    explicit CSlider(const DataModel::Objects::CParamInfo& info = Tests::Real(0.0F, 1.0F, 0.25F),
                     bool withTrack = true)
        : CControlRig({200, 200}),
          noted(info)
    {
        noted.param.SetValue(0.5F);
        widget = std::make_unique<CSkinLinearParamSlider>(
            noted.param,
            SLinearImages{withTrack ? Tests::MakeCatalog({120, 20}) : nullptr, MakeThumb({8, 12}), true},
            nullptr, root);
        widget->SetTrack({true, 6, 6});
        widget->SetSize({120, 20});
        widget->Move({10, 10});
        platform.Pump();
        noted.Take();
    }

    float Value() const { return noted.param.GetValue(); }

    CNotedParam noted;
    std::unique_ptr<CSkinLinearParamSlider> widget;
};

} // namespace

TEST(CLinearTrack, RunsBetweenItsMargins)
{
    const CLinearTrack track{true, 10, 30};
    const Core::CSize size = {140, 20};
    EXPECT_EQ(track.GetLength(size, 0), 100);
    EXPECT_EQ(track.GetPixel(size, 0, 0.0F), 10);
    EXPECT_EQ(track.GetPixel(size, 0, 0.254F), 35);
    EXPECT_EQ(track.GetPixel(size, 0, 0.2551F), 36);
    EXPECT_EQ(track.GetPixel(size, 0, 1.0F), 110);
    EXPECT_EQ(track.GetPosition(size, 0, {35, 0}), 0.25F);
    EXPECT_EQ(track.GetPosition(size, 0, {0, 0}), 0.0F);
    EXPECT_EQ(track.GetPosition(size, 0, {139, 0}), 1.0F);
}

TEST(CLinearTrack, KeepsAllOfTheThumbBetweenItsMargins)
{
    const CLinearTrack track{true, 10, 30};
    const Core::CSize size = {140, 20};
    EXPECT_EQ(track.GetLength(size, 20), 80);
    EXPECT_EQ(track.GetPixel(size, 20, 0.0F), 10);
    EXPECT_EQ(track.GetPixel(size, 20, 1.0F), 90);
    EXPECT_EQ(track.GetPosition(size, 20, {60, 0}), 0.5F);
}

TEST(CLinearTrack, RunsUpwardWhenVertical)
{
    const CLinearTrack track{false, 10, 30};
    const Core::CSize size = {20, 140};
    EXPECT_EQ(track.GetPixel(size, 0, 0.0F), 110);
    EXPECT_EQ(track.GetPixel(size, 0, 1.0F), 10);
    EXPECT_EQ(track.GetPosition(size, 0, {0, 35}), 0.75F);
}

TEST(CLinearTrack, WithoutLengthStandsStill)
{
    const CLinearTrack track{true, 10, 30};
    EXPECT_EQ(track.GetLength({20, 20}, 4), 0);
    EXPECT_EQ(track.GetPixel({20, 20}, 4, 0.7F), 10);
    EXPECT_EQ(track.GetPosition({20, 20}, 4, {15, 0}), 0.0F);
}

/// As a graph of the same height does, whose first and last rows are the ends of its axis.
TEST(CLinearTrack, MiddleOfAMarkerStandsWhereAGraphHasTheValue)
{
    constexpr int graphHeight = 201;
    constexpr int markerHeight = 11;
    const CLinearTrack track;
    for (int i = 0; i <= 1000; ++i)
    {
        const float position = static_cast<float>(i) / 1000.0F;
        const int top = track.GetPixel({14, graphHeight + markerHeight - 1}, markerHeight, position);
        const int row = graphHeight - 1 - static_cast<int>(static_cast<double>(position) * 200.0 + 0.5);
        EXPECT_EQ(top + markerHeight / 2, markerHeight / 2 + row) << position;
    }
}

RC_GTEST_PROP(CLinearTrack, MiddleOfTheThumbReadsItsPositionBackWithinHalfAPixel, ())
{
    const CLinearTrack track{*rc::gen::arbitrary<bool>(), *rc::gen::inRange(0, 40), *rc::gen::inRange(0, 40)};
    const int side = *rc::gen::inRange(150, 2000);
    const int thumb = *rc::gen::inRange(0, 40);
    const Core::CSize size = {side, side};
    const float position = static_cast<float>(*rc::gen::inRange(0, 1001)) / 1000.0F;
    const int middle = track.GetPixel(size, thumb, position) + thumb / 2;
    const float back = track.GetPosition(size, thumb, {middle, middle});
    RC_ASSERT(std::abs(back - position) * static_cast<float>(track.GetLength(size, thumb)) <= 0.501F);
}

TEST(CSkinLinearParamSlider, DragOfTheThumbMovesByTheTracksLength)
{
    CSlider rig;
    rig.Move(71, 20);
    rig.Press();
    EXPECT_EQ(rig.noted.Take(), "["); // no jump to the point
    rig.Move(81, 40);
    EXPECT_NEAR(rig.Value(), 0.6F, 1e-6F);
    rig.Move(61, 20);
    EXPECT_NEAR(rig.Value(), 0.4F, 1e-6F);
    rig.noted.Take();
    rig.Release();
    EXPECT_EQ(rig.noted.Take(), "]");
}

TEST(CSkinLinearParamSlider, PressOnTheTrackBringsTheThumbThereAndDragsOn)
{
    CSlider rig;
    rig.Move(40, 20);
    rig.Press();
    EXPECT_EQ(rig.noted.Take(), "[0.20 ");
    EXPECT_EQ(rig.Seen(40, 20), thumbColor);
    rig.Move(50, 20);
    EXPECT_NEAR(rig.Value(), 0.3F, 1e-6F);
    rig.noted.Take();
    rig.Release();
    EXPECT_EQ(rig.noted.Take(), "]");
}

TEST(CSkinLinearParamSlider, PressInAMarginGoesToTheEnd)
{
    CSlider rig;
    rig.Move(13, 20);
    rig.Press();
    EXPECT_EQ(rig.noted.Take(), "[0.00 ");
    rig.Release();
    rig.Rest();
    rig.Move(128, 20);
    rig.Press();
    EXPECT_EQ(rig.noted.Take(), "][1.00 ");
}

TEST(CSkinLinearParamSlider, PixelRangeReplacesTheTracksLength)
{
    CSlider rig;
    rig.widget->SetPixelRange(1000.0F);
    rig.Move(70, 20);
    rig.Press();
    rig.Move(80, 20);
    EXPECT_NEAR(rig.Value(), 0.51F, 1e-6F);
    rig.Release();
    rig.widget->SetPixelRange(0.0F);
    rig.noted.Take();
    rig.Rest();
    rig.Move(30, 20);
    rig.Press();
    rig.Move(60, 20);
    rig.Release();
    EXPECT_EQ(rig.noted.Take(), "[]");
}

TEST(CSkinLinearParamSlider, AlternateSetsTheDefaultAndDoesNotDrag)
{
    CSlider rig;
    rig.platform.SetModifiers(CControlRig::alternate);
    rig.Move(30, 20);
    rig.Press();
    EXPECT_EQ(rig.noted.Take(), "[0.25 ]");
    rig.Move(90, 20);
    rig.Release();
    EXPECT_EQ(rig.noted.Take(), "");
}

TEST(CSkinLinearParamSlider, ShiftIsFine)
{
    CSlider rig;
    rig.widget->GetControl().SetFineRatio(10);
    rig.platform.SetModifiers(CControlRig::shift);
    rig.Move(70, 20);
    rig.Press();
    rig.Move(80, 20);
    EXPECT_NEAR(rig.Value(), 0.51F, 1e-6F);
    rig.Release();
}

TEST(CSkinLinearParamSlider, WheelAndKeysMoveByAPixelOfTheTrack)
{
    CSlider rig;
    rig.Move(40, 20);
    rig.platform.TurnWheel(2.0);
    EXPECT_EQ(rig.noted.Take(), "[0.52 ]");
    rig.widget->SetFocus();
    rig.Type(ENativeKey::Down);
    EXPECT_EQ(rig.noted.Take(), "[0.51 ]");
}

TEST(CSkinLinearParamSlider, StoppedThumbStandsOnItsStops)
{
    CSlider rig;
    rig.widget->GetControl().SetPositionsCount(5);
    rig.Move(44, 20); // 0.24 along the track
    rig.Press();
    EXPECT_EQ(rig.Value(), 0.25F);
    rig.Move(58, 20); // 0.38
    EXPECT_EQ(rig.Value(), 0.5F);
    rig.Release();
}

TEST(CSkinLinearParamSlider, VerticalSliderRisesUpward)
{
    CControlRig rig({200, 200});
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CSkinLinearParamSlider widget(noted.param, {Tests::MakeCatalog({20, 120}), MakeThumb({12, 8}), true},
                                  nullptr, rig.root);
    widget.SetTrack({false, 6, 6});
    rig.Move(10, 40);
    rig.Press();
    EXPECT_NEAR(noted.param.GetValue(), 0.7F, 1e-6F);
    rig.Move(10, 30);
    EXPECT_NEAR(noted.param.GetValue(), 0.8F, 1e-6F);
    rig.Release();
    EXPECT_EQ(widget.GetSliderGraphics().GetThumbArea(), Graphics::CRect(4, 26, 12, 8));
}

TEST(CSkinLinearParamSlider, ReversedVerticalSliderFallsUpward)
{
    CControlRig rig({200, 200});
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CSkinLinearParamSlider widget(noted.param, {Tests::MakeCatalog({20, 120}), MakeThumb({12, 8}), true},
                                  nullptr, rig.root);
    widget.SetTrack({false, 6, 6});
    widget.GetControl().SetReverse(true);
    EXPECT_EQ(widget.GetSliderGraphics().GetThumbArea(), Graphics::CRect(4, 6, 12, 8)); // 0 is at the top
    rig.Move(10, 40);
    rig.Press();
    EXPECT_NEAR(noted.param.GetValue(), 0.3F, 1e-6F);
    rig.Move(10, 30);
    EXPECT_NEAR(noted.param.GetValue(), 0.2F, 1e-6F);
    rig.Release();
    rig.Type(ENativeKey::Down); // a pixel downward
    EXPECT_NEAR(noted.param.GetValue(), 0.21F, 1e-6F);
    rig.Type(ENativeKey::Character, U'+');
    EXPECT_NEAR(noted.param.GetValue(), 0.22F, 1e-6F);
}

TEST(CSkinLinearParamSlider, ReversedSliderRunsFromTheRight)
{
    CSlider rig;
    rig.widget->GetControl().SetReverse(true);
    rig.Move(36, 20); // 0.16 from the left
    rig.Press();
    EXPECT_NEAR(rig.Value(), 0.84F, 1e-6F);
    rig.Move(46, 20);
    EXPECT_NEAR(rig.Value(), 0.74F, 1e-6F);
    rig.Release();
}

TEST(CSkinLinearParamSlider, PixelRangeOfNoneDoesNotMoveAndANegativeOneMovesBack)
{
    CSlider rig;
    rig.widget->SetPixelRange(0.0F);
    rig.Move(36, 20);
    rig.Press();
    rig.Move(46, 20);
    rig.Release();
    EXPECT_EQ(rig.Value(), 0.5F);
    rig.widget->SetPixelRange(-200.0F);
    rig.Move(70, 20);
    rig.Press();
    rig.Move(90, 20);
    rig.Release();
    EXPECT_NEAR(rig.Value(), 0.4F, 1e-6F);
}

TEST(CSkinLinearParamSlider, MarkerFollowsTheZoomOfItsAxis)
{
    CSlider rig;
    rig.widget->GetControl().SetZoom(2.0F);
    rig.widget->GetControl().SetOffset(1.0F); // from 0.5 to 1
    EXPECT_EQ(rig.widget->GetSliderGraphics().GetThumbArea().x, 10 - 4);
    rig.noted.param.SetValue(0.75F);
    EXPECT_EQ(rig.widget->GetSliderGraphics().GetThumbArea().x, 60 - 4);
    rig.Move(70, 20);
    rig.Press();
    rig.Move(90, 20);
    EXPECT_NEAR(rig.Value(), 0.85F, 1e-6F); // it stays under the pointer
    EXPECT_EQ(rig.Seen(90, 20), thumbColor);
    rig.Release();
}

TEST(CSkinLinearParamSlider, WithoutATrackOnlyTheThumbIsHit)
{
    CSlider rig(Tests::Real(0.0F, 1.0F, 0.25F), false);
    rig.Move(40, 20);
    rig.Press();
    rig.Release();
    EXPECT_EQ(rig.noted.Take(), "");
    EXPECT_TRUE(rig.widget->IsTransparent());
    rig.Rest();
    rig.Move(70, 20);
    rig.Press();
    rig.Move(90, 60);
    EXPECT_NEAR(rig.Value(), 0.7F, 1e-6F);
    rig.Release();
}

TEST(CSkinLinearParamSlider, AlignsItsTrackAndThumb)
{
    CSlider rig;
    rig.widget->SetSize({140, 40});
    rig.noted.param.SetValue(0.0F);
    CLinearParamGraphics& graphics = rig.widget->GetSliderGraphics();
    EXPECT_EQ(graphics.GetThumbArea(), Graphics::CRect(6, 14, 8, 12));
    graphics.SetThumbAlignment({false, false});
    EXPECT_EQ(graphics.GetThumbArea(), Graphics::CRect(6, 0, 8, 12));
    EXPECT_EQ(rig.Seen(11 + 10, 20 + 10), Tests::ColorOf(0).Pack()); // the track stands in the middle
    EXPECT_EQ(rig.Seen(10 + 9, 20 + 10), 0U);
    graphics.SetTrackAlignment({false, false});
    EXPECT_EQ(rig.Seen(10 + 2, 10 + 15), Tests::ColorOf(0).Pack());
    EXPECT_EQ(rig.Seen(10 + 2, 10 + 25), 0U);
}

TEST(CSkinLinearParamSlider, ShowsItsStateAndTheHeldThumbWhereThereIsOne)
{
    CSlider rig;
    EXPECT_EQ(rig.Seen(20, 15), Tests::ColorOf(0).Pack());
    rig.Move(70, 20);
    EXPECT_EQ(rig.Seen(20, 15), Tests::ColorOf(2).Pack());
    rig.Press();
    EXPECT_EQ(rig.Seen(20, 15), Tests::ColorOf(4).Pack());
    EXPECT_EQ(rig.widget->GetSliderGraphics().GetThumbState(), 4);
    rig.Release();
    auto* thumb = MakeThumb({8, 12});
    thumb->SetEntry(
        5, std::make_unique<Graphics::CNormalImageElement>(Tests::MakeFilled({8, 12}, {{0, 0xF0, 0}})));
    rig.widget = std::make_unique<CSkinLinearParamSlider>(
        rig.noted.param, SLinearImages{Tests::MakeCatalog({120, 20}), thumb, true}, nullptr, rig.root);
    rig.widget->SetTrack({true, 6, 6});
    rig.widget->Move({10, 10});
    rig.Rest();
    rig.Move(70, 20);
    rig.Press();
    EXPECT_EQ(rig.widget->GetSliderGraphics().GetThumbState(), 5);
    EXPECT_EQ(rig.Seen(70, 20), 0x00F000U);
    EXPECT_EQ(rig.Seen(20, 15), Tests::ColorOf(4).Pack());
}

TEST(CSkinLinearParamSlider, ShowsTheHeldTrackWhereThereIsOne)
{
    CSlider rig;
    auto* track = Tests::MakeCatalog({120, 20});
    track->SetEntry(
        5, std::make_unique<Graphics::CNormalImageElement>(Tests::MakeFilled({120, 20}, {{0, 0xE0, 0}})));
    rig.widget = std::make_unique<CSkinLinearParamSlider>(
        rig.noted.param, SLinearImages{track, MakeThumb({8, 12}), true}, nullptr, rig.root);
    rig.widget->SetTrack({true, 6, 6});
    rig.widget->Move({10, 10});
    rig.Move(70, 20);
    rig.Press();
    EXPECT_EQ(rig.Seen(20, 15), 0x00E000U);
    rig.Release();
    EXPECT_EQ(rig.Seen(20, 15), Tests::ColorOf(StateFocus).Pack());
}

TEST(CSkinLinearParamSlider, DragThatCannotEndEndsOnce)
{
    for (const int way : {0, 1, 2, 3})
    {
        CSlider rig;
        rig.Move(70, 20);
        rig.Press();
        rig.noted.Take();
        switch (way)
        {
        case 0:
            rig.widget->Show(false);
            break;
        case 1:
            rig.widget->Enable(false);
            break;
        case 2:
            rig.platform.LoseCapture();
            break;
        default:
            rig.widget.reset();
        }
        rig.Move(90, 20);
        rig.Release();
        EXPECT_EQ(rig.noted.Take(), "]") << way;
    }
}

TEST(CGUIImageParamKnob, DisabledInADragItEndsTheGesture)
{
    CControlRig rig;
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUIImageParamKnob knob(noted.param, Tests::MakeCatalog({20, 20}, 2), true, 2,
                            Graphics::CMultiFilmStripDrawer::EOrientation::Vertical, nullptr, rig.root);
    rig.Move(10, 10);
    rig.Press();
    knob.Enable(false);
    rig.Move(10, 5);
    rig.Release();
    EXPECT_EQ(noted.Take(), "[]");
}

TEST(CGUIImageParamKnob, RightButtonTellsTheControlDownAndUp)
{
    CControlRig rig;
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUIImageParamKnob knob(noted.param, Tests::MakeCatalog({20, 20}, 2), true, 2,
                            Graphics::CMultiFilmStripDrawer::EOrientation::Vertical, nullptr, rig.root);
    Tests::CEventCounter notices(knob.GetControl().GetRightClickEventProvider());
    rig.Move(10, 10);
    rig.Press(EMouseButton::Right);
    EXPECT_EQ(notices.Take(), 1);
    rig.Release(EMouseButton::Right);
    EXPECT_EQ(notices.Take(), 1);
    EXPECT_EQ(noted.Take(), "");
}

TEST(CSkinLinearParamSlider, ListenerMayDestroyIt)
{
    const auto expectEnded = [](const std::function<void(CSlider&)>& change)
    {
        CSlider rig;
        rig.widget->SetFocus();
        rig.Move(40, 20);
        Tests::CFunctionCommand destroy([&rig] { rig.widget.reset(); });
        rig.noted.param.GetValueChangedEventProvider().Connect(&destroy);
        change(rig);
        EXPECT_EQ(rig.widget, nullptr);
        const std::string script = rig.noted.Take();
        EXPECT_EQ(script.front(), '[') << script;
        EXPECT_EQ(script.back(), ']') << script;
        rig.noted.param.GetValueChangedEventProvider().Disconnect(&destroy);
    };
    expectEnded([](CSlider& rig) { rig.platform.TurnWheel(1.0); });
    expectEnded([](CSlider& rig) { rig.Type(ENativeKey::Up); });
    expectEnded([](CSlider& rig) { rig.Type(ENativeKey::Character, U'd'); });
    expectEnded([](CSlider& rig) { rig.Press(); });
    expectEnded(
        [](CSlider& rig)
        {
            rig.Move(70, 20);
            rig.Press();
            rig.Move(80, 20);
        });
    expectEnded(
        [](CSlider& rig)
        {
            rig.platform.SetModifiers(CControlRig::alternate);
            rig.Press();
        });
}

TEST(CGUIImageParamLinearMeter, ShowsItsImageUpToThePosition)
{
    CControlRig rig({200, 200});
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUIImageParamLinearMeter meter(noted.param, {Tests::MakeCatalog({120, 20}), nullptr, true}, rig.root);
    meter.SetTrack({true, 10, 10});
    noted.param.SetValue(0.3F);
    EXPECT_EQ(rig.Seen(39, 10), Tests::ColorOf(0).Pack());
    EXPECT_EQ(rig.Seen(40, 10), 0U);
    noted.param.SetValue(1.0F);
    EXPECT_EQ(rig.Seen(109, 10), Tests::ColorOf(0).Pack());
    EXPECT_EQ(rig.Seen(110, 10), 0U);
    EXPECT_EQ(meter.GetMouseTarget(), nullptr);
    EXPECT_EQ(meter.GetKeyboardTarget(), nullptr);
    EXPECT_TRUE(meter.IsTransparent());
}

TEST(CGUIImageParamLinearMeter, RisesFromTheBottomWithItsThumbAtThePosition)
{
    CControlRig rig({200, 200});
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUIImageParamLinearMeter meter(noted.param, {Tests::MakeCatalog({20, 100}), MakeThumb({20, 2}), true},
                                    rig.root);
    noted.param.SetValue(0.5F);
    EXPECT_EQ(rig.Seen(10, 48), 0U);
    EXPECT_EQ(rig.Seen(10, 49), thumbColor);
    EXPECT_EQ(rig.Seen(10, 50), thumbColor);
    EXPECT_EQ(rig.Seen(10, 51), Tests::ColorOf(0).Pack());
    EXPECT_EQ(rig.Seen(10, 99), Tests::ColorOf(0).Pack());
}

TEST(CGUIImageParamLinearMeter, PositionLiesBetweenItsMargins)
{
    CControlRig rig({200, 200});
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUIImageParamLinearMeter meter(noted.param, {Tests::MakeCatalog({20, 100}), nullptr, true}, rig.root);
    meter.SetTrack({false, 10, 30}); // a way of 60 pixels, from 70 up to 10
    EXPECT_EQ(rig.Seen(10, 69), 0U);
    EXPECT_EQ(rig.Seen(10, 70), Tests::ColorOf(0).Pack());
    noted.param.SetValue(0.5F);
    EXPECT_EQ(rig.Seen(10, 39), 0U);
    EXPECT_EQ(rig.Seen(10, 40), Tests::ColorOf(0).Pack());
    noted.param.SetValue(1.0F);
    EXPECT_EQ(rig.Seen(10, 9), 0U);
    EXPECT_EQ(rig.Seen(10, 10), Tests::ColorOf(0).Pack());
}

TEST(CGUIImageParamLinearMeter, ShowsItsState)
{
    CControlRig rig({200, 200});
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUIImageParamLinearMeter meter(noted.param, {Tests::MakeCatalog({120, 20}), nullptr, true}, rig.root);
    meter.SetTrack({true, 0, 0});
    noted.param.SetValue(1.0F);
    EXPECT_EQ(rig.Seen(39, 10), Tests::ColorOf(0).Pack());
    meter.Enable(false);
    EXPECT_EQ(rig.Seen(39, 10), Tests::ColorOf(1).Pack());
}

TEST(CGUIImageParamLinearMeter, OnlyAnotherPixelIsPainted)
{
    CControlRig rig({200, 200});
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUIImageParamLinearMeter meter(noted.param, {Tests::MakeCatalog({20, 100}), nullptr, true}, rig.root);
    noted.param.SetValue(0.25F);
    rig.platform.Pump();
    rig.Native().TakePresented();
    noted.param.SetValue(0.2501F);
    EXPECT_FALSE(rig.platform.Pump());
    noted.param.SetValue(0.27F);
    EXPECT_TRUE(rig.platform.Pump());
}
