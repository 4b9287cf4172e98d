#include "Common/Mirel/Graphics/Changes.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamKnob.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamMeter.h"
#include "Mirel/DataModel/GUIWidgets/CParamKnobGraphics.h"
#include "Mirel/DataModel/GUIWidgets/CParamKnobKeyboardControl.h"
#include "Mirel/DataModel/GUIWidgets/CParamKnobMouseControl.h"
#include "Mirel/GUI/InputEvents.h"
#include "Mirel/GUI/Native/NativeEvents.h"
#include "PushRig.h"

#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <vector>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using DataModel::Controls::CParamControl;
using GUI::COSXKeyEvent;
using GUI::COSXMouseEvent;
using GUI::COSXMouseWheelEvent;
using GUI::ENativeKey;

namespace
{

class COpener : public IFineEditOpener
{
public:
    void OpenFineEdit(CParamControl& control, Core::CPoint position) override
    {
        opened = &control;
        place = position;
    }

    CParamControl* opened = nullptr;
    Core::CPoint place;
};

/// A knob over a real from 0 to 1 with the default 0.25, at 0.5.
struct CKnob
{
    explicit CKnob(const DataModel::Objects::CParamInfo& info = Tests::Real(0.0F, 1.0F, 0.25F))
        : param(info),
          control(param),
          mouse(control, &opener),
          keys(control, &opener,
               [] {
                   return Core::CPoint{7, 8};
               }),
          begun(control.GetEditCapture().GetBeginCaptureEventProvider()),
          ended(control.GetEditCapture().GetEndCaptureEventProvider())
    {
        param.SetValue(0.5F);
        mouse.SetPixelRange(100.0F);
        keys.SetPixelRange(100.0F);
        control.SetFineRatio(10);
    }

    bool Press(ENativeKey key, char32_t character = 0, int count = 1, std::uint32_t modifiers = 0)
    {
        COSXKeyEvent event;
        event.key = key;
        event.character = character;
        event.count = count;
        event.modifiers = modifiers;
        return keys.AcceptsKey(event) && keys.OnKeyDown(event);
    }

    COpener opener;
    DataModel::Objects::CCaptureParam param;
    CParamControl control;
    CParamKnobMouseControl mouse;
    CParamKnobKeyboardControl keys;
    Tests::CEventCounter begun;
    Tests::CEventCounter ended;
};

COSXMouseEvent At(int x, int y, std::uint32_t modifiers = 0)
{
    COSXMouseEvent event;
    event.position = {x, y};
    event.screenPosition = {x + 1000, y + 1000};
    event.modifiers = modifiers;
    return event;
}

COSXMouseWheelEvent Wheel(float delta, std::uint32_t modifiers = 0)
{
    COSXMouseWheelEvent event;
    event.deltaY = delta;
    event.modifiers = modifiers;
    return event;
}

constexpr std::uint32_t shift = GUI::ModifierFlags::shift;
constexpr std::uint32_t alternate = GUI::ModifierFlags::alternate;

} // namespace

TEST(CParamKnobMouseControl, DragUpwardRaisesTheValueInOneGesture)
{
    CKnob knob;
    EXPECT_TRUE(knob.mouse.OnLeftDown(At(10, 50)));
    EXPECT_EQ(knob.begun.Take(), 1);
    EXPECT_TRUE(knob.mouse.IsDragging());
    knob.mouse.OnMouseDrag(At(30, 40));
    EXPECT_NEAR(knob.param.GetValue(), 0.6F, 1e-6F);
    knob.mouse.OnMouseDrag(At(10, 70));
    EXPECT_NEAR(knob.param.GetValue(), 0.3F, 1e-6F);
    EXPECT_EQ(knob.ended.Take(), 0);
    EXPECT_TRUE(knob.mouse.OnLeftUp(At(10, 70)));
    EXPECT_EQ(knob.ended.Take(), 1);
    EXPECT_FALSE(knob.mouse.OnMouseDrag(At(10, 0)));
    EXPECT_NEAR(knob.param.GetValue(), 0.3F, 1e-6F);
}

TEST(CParamKnobMouseControl, HorizontalDragRaisesTheValueToTheRight)
{
    CKnob knob;
    knob.mouse.SetHorizontal(true);
    knob.mouse.OnLeftDown(At(10, 50));
    knob.mouse.OnMouseDrag(At(20, 0));
    EXPECT_NEAR(knob.param.GetValue(), 0.6F, 1e-6F);
}

TEST(CParamKnobMouseControl, ShiftMakesTheMoveFineByTheRatio)
{
    CKnob fine;
    fine.mouse.OnLeftDown(At(0, 50, shift));
    fine.mouse.OnMouseDrag(At(0, 40, shift));
    EXPECT_NEAR(fine.param.GetValue(), 0.51F, 1e-6F);
    CKnob plain;
    plain.mouse.OnLeftDown(At(0, 50));
    plain.mouse.OnMouseDrag(At(0, 40));
    EXPECT_NEAR(plain.param.GetValue(), 0.6F, 1e-6F);
}

TEST(CParamKnobMouseControl, ShiftInTheMiddleOfADragDoesNotJump)
{
    CKnob knob;
    knob.mouse.OnLeftDown(At(0, 50));
    knob.mouse.OnMouseDrag(At(0, 40));
    knob.mouse.OnMouseDrag(At(0, 40, shift));
    EXPECT_NEAR(knob.param.GetValue(), 0.6F, 1e-6F);
    knob.mouse.OnMouseDrag(At(0, 30, shift));
    EXPECT_NEAR(knob.param.GetValue(), 0.61F, 1e-6F);
    knob.mouse.OnMouseDrag(At(0, 20));
    EXPECT_NEAR(knob.param.GetValue(), 0.71F, 1e-6F);
}

TEST(CParamKnobMouseControl, AlternateSetsTheDefaultAndStartsNoDrag)
{
    CKnob knob;
    EXPECT_TRUE(knob.mouse.OnLeftDown(At(0, 50, alternate)));
    EXPECT_EQ(knob.param.GetValue(), 0.25F);
    EXPECT_EQ(knob.begun.Take(), 1);
    EXPECT_EQ(knob.ended.Take(), 1);
    EXPECT_FALSE(knob.mouse.IsDragging());
    EXPECT_FALSE(knob.mouse.OnLeftUp(At(0, 50)));
    EXPECT_EQ(knob.ended.Take(), 0);
}

TEST(CParamKnobMouseControl, RangeOfNoneDoesNotMove)
{
    CKnob knob;
    knob.mouse.SetPixelRange(0.0F);
    knob.mouse.OnLeftDown(At(0, 50));
    knob.mouse.OnMouseDrag(At(0, 0));
    knob.mouse.OnMouseWheel(Wheel(3.0F));
    EXPECT_EQ(knob.param.GetValue(), 0.5F);
}

TEST(CParamKnobMouseControl, NegativeRangeTurnsTheOtherWay)
{
    CKnob knob;
    knob.mouse.SetPixelRange(-100.0F);
    knob.keys.SetPixelRange(-100.0F);
    knob.mouse.OnLeftDown(At(0, 50));
    knob.mouse.OnMouseDrag(At(0, 40));
    EXPECT_NEAR(knob.param.GetValue(), 0.4F, 1e-6F);
    knob.mouse.OnLeftUp(At(0, 40));
    knob.mouse.OnMouseWheel(Wheel(3.0F));
    EXPECT_NEAR(knob.param.GetValue(), 0.37F, 1e-6F);
    knob.Press(ENativeKey::Up);
    EXPECT_NEAR(knob.param.GetValue(), 0.36F, 1e-6F);
}

TEST(CParamKnobMouseControl, RangeThatIsNotGivenIsTheDefaultOne)
{
    for (const float range : {-1.0F, std::numeric_limits<float>::quiet_NaN()})
    {
        CKnob knob;
        knob.mouse.SetPixelRange(range);
        knob.keys.SetPixelRange(range);
        knob.mouse.OnLeftDown(At(0, 50));
        knob.mouse.OnMouseDrag(At(0, 50 - 20));
        EXPECT_NEAR(knob.param.GetValue(), 0.5F + 20.0F / defaultPixelRange, 1e-6F);
        knob.mouse.OnLeftUp(At(0, 50 - 20));
        knob.param.SetValue(0.5F);
        knob.Press(ENativeKey::Up, 0, 10);
        EXPECT_NEAR(knob.param.GetValue(), 0.5F + 10.0F / defaultPixelRange, 1e-6F);
    }
}

TEST(CParamKnobMouseControl, EndlessRangeDoesNotMove)
{
    CKnob knob;
    knob.mouse.SetPixelRange(std::numeric_limits<float>::infinity());
    knob.mouse.OnLeftDown(At(0, 50));
    knob.mouse.OnMouseDrag(At(0, -2000000000));
    EXPECT_EQ(knob.param.GetValue(), 0.5F);
}

TEST(CParamKnobMouseControl, OneStopReadsTheMinimumWhateverMoves)
{
    CKnob knob;
    knob.control.SetPositionsCount(1);
    knob.mouse.OnLeftDown(At(0, 50));
    knob.mouse.OnMouseDrag(At(0, 0));
    EXPECT_EQ(knob.param.GetValue(), 0.0F);
    knob.mouse.OnLeftUp(At(0, 0));
    knob.mouse.OnMouseWheel(Wheel(3.0F));
    knob.Press(ENativeKey::Up);
    EXPECT_EQ(knob.param.GetValue(), 0.0F);
}

TEST(CParamKnobMouseControl, SteppedDragStandsOnItsStops)
{
    CKnob knob;
    knob.control.SetPositionsCount(5);
    knob.mouse.OnLeftDown(At(0, 50));
    knob.mouse.OnMouseDrag(At(0, 40)); // 0.6 lies next to 0.5
    EXPECT_EQ(knob.param.GetValue(), 0.5F);
    knob.mouse.OnMouseDrag(At(0, 37)); // and 0.63 to 0.75
    EXPECT_EQ(knob.param.GetValue(), 0.75F);
}

TEST(CParamKnobMouseControl, ReversedParameterIsDraggedDown)
{
    CKnob knob;
    knob.control.SetReverse(true);
    knob.mouse.OnLeftDown(At(0, 50));
    knob.mouse.OnMouseDrag(At(0, 40));
    EXPECT_NEAR(knob.param.GetValue(), 0.4F, 1e-6F);
}

TEST(CParamKnobMouseControl, RightButtonTellsTheControlDownAndUp)
{
    CKnob knob;
    Tests::CEventCounter told(knob.control.GetRightClickEventProvider());
    EXPECT_TRUE(knob.mouse.OnRightDown(At(1, 1)));
    EXPECT_EQ(told.Take(), 1);
    EXPECT_TRUE(knob.mouse.OnRightUp(At(1, 1)));
    EXPECT_EQ(told.Take(), 1);
    EXPECT_EQ(knob.begun.Take(), 0);
}

TEST(CParamKnobMouseControl, EveryEventReadsTheFineModeFromShift)
{
    const std::vector<std::function<void(CKnob&, std::uint32_t)>> events = {
        [](CKnob& knob, std::uint32_t flags) { knob.mouse.OnLeftDown(At(0, 0, flags)); },
        [](CKnob& knob, std::uint32_t flags) { knob.mouse.OnLeftUp(At(0, 0, flags)); },
        [](CKnob& knob, std::uint32_t flags) { knob.mouse.OnMouseDrag(At(0, 0, flags)); },
        [](CKnob& knob, std::uint32_t flags) { knob.mouse.OnLeftDoubleClick(At(0, 0, flags)); },
        [](CKnob& knob, std::uint32_t flags) { knob.mouse.OnRightDown(At(0, 0, flags)); },
        [](CKnob& knob, std::uint32_t flags) { knob.mouse.OnRightUp(At(0, 0, flags)); },
        [](CKnob& knob, std::uint32_t flags) { knob.Press(ENativeKey::Up, 0, 1, flags); },
    };
    for (std::size_t i = 0; i < events.size(); ++i)
    {
        CKnob knob;
        events[i](knob, shift);
        EXPECT_TRUE(knob.control.IsFineMode()) << i;
        events[i](knob, 0);
        EXPECT_FALSE(knob.control.IsFineMode()) << i;
    }
}

TEST(CParamKnobMouseControl, ValueStaysInItsRange)
{
    CKnob knob;
    knob.mouse.OnLeftDown(At(0, 50));
    knob.mouse.OnMouseDrag(At(0, -2000000000));
    EXPECT_EQ(knob.param.GetValue(), 1.0F);
    knob.mouse.OnMouseDrag(At(0, 2000000000));
    EXPECT_EQ(knob.param.GetValue(), 0.0F);
}

TEST(CParamKnobMouseControl, SecondPressAndLostCaptureKeepTheGesturePaired)
{
    CKnob knob;
    Tests::CEventCounter drags(knob.mouse.GetDraggingChangedEventProvider());
    knob.mouse.OnLeftDown(At(0, 50));
    knob.mouse.OnLeftDown(At(0, 10));
    EXPECT_EQ(knob.begun.Take(), 1);
    knob.mouse.OnMouseWheel(Wheel(1.0F));
    EXPECT_EQ(knob.ended.Take(), 0);
    knob.mouse.OnCaptureLost();
    knob.mouse.OnCaptureLost();
    EXPECT_EQ(knob.ended.Take(), 1);
    EXPECT_EQ(drags.Take(), 2);
}

TEST(CParamKnobMouseControl, WheelMovesByPixelsOrStopsAndLeavesFineMode)
{
    CKnob knob;
    EXPECT_TRUE(knob.mouse.OnMouseWheel(Wheel(3.0F)));
    EXPECT_NEAR(knob.param.GetValue(), 0.53F, 1e-6F);
    knob.mouse.OnMouseWheel(Wheel(-3.0F, shift));
    EXPECT_NEAR(knob.param.GetValue(), 0.527F, 1e-6F);
    EXPECT_FALSE(knob.control.IsFineMode());
    EXPECT_EQ(knob.begun.Take(), 2);
    EXPECT_EQ(knob.ended.Take(), 2);

    CKnob stepped;
    stepped.control.SetPositionsCount(5);
    stepped.mouse.OnMouseWheel(Wheel(1.0F));
    EXPECT_EQ(stepped.param.GetValue(), 0.75F);
}

TEST(CParamKnobMouseControl, DoubleClickOpensTheWindowAtThePointer)
{
    CKnob knob;
    EXPECT_TRUE(knob.mouse.OnLeftDoubleClick(At(3, 4)));
    EXPECT_EQ(knob.opener.opened, &knob.control);
    EXPECT_EQ(knob.opener.place, (Core::CPoint{1003, 1004}));
    CParamKnobMouseControl without(knob.control);
    EXPECT_FALSE(without.OnLeftDoubleClick(At(3, 4)));
}

TEST(CParamKnobKeyboardControl, KeysMoveBySteps)
{
    const struct
    {
        ENativeKey key;
        char32_t character;
        float change;
    } rows[] = {{ENativeKey::Character, U'+', 0.02F}, {ENativeKey::Character, U'-', -0.02F},
                {ENativeKey::Up, 0, 0.02F},           {ENativeKey::Right, 0, 0.02F},
                {ENativeKey::Down, 0, -0.02F},        {ENativeKey::Left, 0, -0.02F},
                {ENativeKey::PageUp, 0, 0.2F},        {ENativeKey::PageDown, 0, -0.2F}};
    for (const auto& row : rows)
    {
        CKnob knob;
        EXPECT_TRUE(knob.Press(row.key, row.character, 2));
        EXPECT_NEAR(knob.param.GetValue(), 0.5F + row.change, 1e-6F) << static_cast<int>(row.key);
        EXPECT_EQ(knob.begun.Take(), 1);
        EXPECT_EQ(knob.ended.Take(), 1);
    }
}

TEST(CParamKnobKeyboardControl, PlusOnAReversedParameterLowersThePosition)
{
    CKnob knob;
    knob.control.SetReverse(true);
    EXPECT_TRUE(knob.Press(ENativeKey::Character, U'+'));
    EXPECT_NEAR(knob.param.GetValue(), 0.51F, 1e-6F);
    EXPECT_TRUE(knob.Press(ENativeKey::Up));
    EXPECT_NEAR(knob.param.GetValue(), 0.5F, 1e-6F);
}

TEST(CParamKnobKeyboardControl, ShiftMakesStepsFine)
{
    CKnob knob;
    knob.Press(ENativeKey::Up, 0, 1, shift);
    EXPECT_NEAR(knob.param.GetValue(), 0.501F, 1e-6F);
}

TEST(CParamKnobKeyboardControl, StepsOfASteppedParameterAreItsStops)
{
    CKnob knob;
    knob.control.SetPositionsCount(5);
    knob.Press(ENativeKey::Up);
    EXPECT_EQ(knob.param.GetValue(), 0.75F);
    knob.Press(ENativeKey::Character, U'-', 2);
    EXPECT_EQ(knob.param.GetValue(), 0.25F);
    knob.Press(ENativeKey::PageUp);
    EXPECT_EQ(knob.param.GetValue(), 1.0F);
}

TEST(CParamKnobKeyboardControl, PageIsAsManyStepsAsItsSize)
{
    CKnob knob;
    knob.keys.SetPageSize(7);
    knob.Press(ENativeKey::PageUp, 0, 2);
    EXPECT_NEAR(knob.param.GetValue(), 0.64F, 1e-6F);
    knob.Press(ENativeKey::PageDown);
    EXPECT_NEAR(knob.param.GetValue(), 0.57F, 1e-6F);
}

TEST(CParamKnobKeyboardControl, DSetsTheDefaultAndEOpensTheWindow)
{
    for (const char32_t key : {U'd', U'D'})
    {
        CKnob knob;
        EXPECT_TRUE(knob.Press(ENativeKey::Character, key));
        EXPECT_EQ(knob.param.GetValue(), 0.25F);
    }
    for (const char32_t key : {U'e', U'E'})
    {
        CKnob knob;
        EXPECT_TRUE(knob.Press(ENativeKey::Character, key));
        EXPECT_EQ(knob.opener.opened, &knob.control);
        EXPECT_EQ(knob.opener.place, (Core::CPoint{7, 8}));
        EXPECT_EQ(knob.param.GetValue(), 0.5F);
    }
}

TEST(CParamKnobKeyboardControl, OtherKeysAreNotTaken)
{
    CKnob knob;
    EXPECT_FALSE(knob.Press(ENativeKey::Character, U'x'));
    EXPECT_FALSE(knob.Press(ENativeKey::Tab));
    COSXKeyEvent escape;
    escape.key = ENativeKey::Escape;
    EXPECT_TRUE(knob.keys.AcceptsKey(escape));
    EXPECT_FALSE(knob.keys.OnKeyDown(escape));
    EXPECT_EQ(knob.param.GetValue(), 0.5F);
}

TEST(CParamKnobKeyboardControl, LeavesShortcutsToTheHost)
{
    CKnob knob;
    for (const std::uint32_t modifier :
         {GUI::ModifierFlags::control, GUI::ModifierFlags::alternate, GUI::ModifierFlags::command})
    {
        COSXKeyEvent event;
        event.modifiers = modifier;
        for (const char32_t character : {U'd', U'E', U'+', U'-'})
        {
            event.character = character;
            EXPECT_FALSE(knob.keys.AcceptsKey(event));
        }
        event.character = 0;
        event.key = ENativeKey::Up;
        EXPECT_FALSE(knob.keys.AcceptsKey(event));
        event.key = ENativeKey::Escape;
        EXPECT_TRUE(knob.keys.AcceptsKey(event));
    }
}

TEST(CParamKnobGraphics, HalfOf128FramesIsFrame64)
{
    EXPECT_EQ(CParamKnobGraphics::GetFrameOf(0.5F, 128), 64);
    EXPECT_EQ(CParamKnobGraphics::GetFrameOf(0.0F, 128), 0);
    EXPECT_EQ(CParamKnobGraphics::GetFrameOf(1.0F, 128), 127);
    EXPECT_EQ(CParamKnobGraphics::GetFrameOf(0.7F, 1), 0);
}

TEST(CParamKnobGraphics, CountBelowOneShowsNoFrame)
{
    for (const int count : {0, -1, -128})
    {
        CKnob knob;
        auto catalog = std::make_unique<Graphics::CImageCatalog>();
        catalog->SetEntry(
            0, std::make_unique<Graphics::CNormalImageElement>(Tests::MakeFilled({10, 20}, {{1, 2, 3}})));
        CParamKnobGraphics graphics(catalog.release(), true, count,
                                    Graphics::CMultiFilmStripDrawer::EOrientation::Vertical, knob.control);
        knob.param.SetValue(1.0F);
        EXPECT_EQ(graphics.GetFrame(), 0);
        EXPECT_EQ(graphics.GetSize(), Core::CSize());
        graphics.SetSize({10, 20});
        EXPECT_FALSE(graphics.HitTest({5, 5})) << count;
    }
}

TEST(CParamKnobGraphics, OnlyAnotherFrameIsTold)
{
    CKnob knob;
    CParamKnobGraphics graphics(new Graphics::CImageCatalog(), true, 11,
                                Graphics::CMultiFilmStripDrawer::EOrientation::Vertical, knob.control);
    EXPECT_EQ(graphics.GetFrame(), 5);
    const Tests::CChanges changes(graphics);
    knob.param.SetValue(0.52F);
    EXPECT_TRUE(changes.areas.empty());
    knob.param.SetValue(0.56F);
    EXPECT_EQ(changes.areas.size(), 1U);
    EXPECT_EQ(graphics.GetFrame(), 6);
}

TEST(CGUIImageParamKnob, StateOfThePictureFollowsTheWidget)
{
    CKnob knob;
    CGUIImageParamKnob widget(knob.param, new Graphics::CImageCatalog(), true, 11,
                              Graphics::CMultiFilmStripDrawer::EOrientation::Vertical);
    EXPECT_EQ(widget.GetKnobGraphics().GetState(), 0);
    widget.Enable(false);
    EXPECT_EQ(widget.GetKnobGraphics().GetState(), 1);
    widget.Enable(true);
    widget.GetInnerMouseTarget().OnMouseEnter(At(1, 1));
    EXPECT_EQ(widget.GetKnobGraphics().GetState(), 2);
    widget.GetMouseControl().OnLeftDown(At(1, 1));
    EXPECT_EQ(widget.GetKnobGraphics().GetState(), 4);
    widget.GetMouseControl().OnLeftUp(At(1, 1));
    EXPECT_EQ(widget.GetKnobGraphics().GetState(), 2);
    widget.GetInnerMouseTarget().OnMouseLeave(At(1, 1));
    EXPECT_EQ(widget.GetKnobGraphics().GetState(), 0);
}

TEST(CGUIImageParamKnob, KnobThatGoesWhileItIsTurnedEndsTheGesture)
{
    CKnob knob;
    Tests::CEventCounter released(knob.param.GetEndCaptureEventProvider());
    {
        CGUIImageParamKnob widget(knob.param, new Graphics::CImageCatalog(), true, 11,
                                  Graphics::CMultiFilmStripDrawer::EOrientation::Vertical);
        widget.SetPixelRange(50.0F);
        widget.GetMouseControl().OnLeftDown(At(0, 10));
        widget.GetMouseControl().OnMouseDrag(At(0, 5));
        EXPECT_NEAR(knob.param.GetValue(), 0.6F, 1e-6F);
        EXPECT_EQ(released.Take(), 0);
    }
    EXPECT_EQ(released.Take(), 1);
    knob.param.SetValue(0.1F); // this would reach freed memory
}

TEST(CGUIImageParamMeter, FollowsTheParameterAndTakesNoInput)
{
    CKnob knob;
    CGUIImageParamMeter widget(knob.param, new Graphics::CImageCatalog(), true, 101,
                               Graphics::CMultiFilmStripDrawer::EOrientation::Horizontal);
    knob.param.SetValue(0.73F);
    EXPECT_EQ(widget.GetMeterGraphics().GetFrame(), 73);
    EXPECT_EQ(widget.GetMouseTarget(), nullptr);
    EXPECT_EQ(widget.GetKeyboardTarget(), nullptr);
}

TEST(CGUIImageParamMeter, StateOfThePictureFollowsTheWidget)
{
    CKnob knob;
    CGUIImageParamMeter widget(knob.param, new Graphics::CImageCatalog(), true, 11,
                               Graphics::CMultiFilmStripDrawer::EOrientation::Vertical);
    EXPECT_EQ(widget.GetMeterGraphics().GetState(), 0);
    widget.Enable(false);
    EXPECT_EQ(widget.GetMeterGraphics().GetState(), 1);
    widget.Enable(true);
    widget.GetInnerMouseTarget().OnMouseEnter(At(1, 1));
    EXPECT_EQ(widget.GetMeterGraphics().GetState(), 2);
    widget.GetInnerMouseTarget().OnMouseLeave(At(1, 1));
    EXPECT_EQ(widget.GetMeterGraphics().GetState(), 0);
}
