#include "Common/Mirel/Graphics/Canvas.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageActionButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamDropDownList.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamKnob.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamLinearMeter.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamMeter.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamToggleSwitch.h"
#include "Mirel/DataModel/GUIWidgets/CGUIParamTextControl.h"
#include "Mirel/DataModel/GUIWidgets/CSkinLinearParamSlider.h"
#include "Mirel/DataModel/Objects/CAction.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CFontManager.h"
#include "PushRig.h"
#include "Support/DataFolder.h"

#include <array>
#include <cairo.h>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using Core::CSize;
using Graphics::CColor;
using Graphics::CImageCatalog;
using EOrientation = Graphics::CMultiFilmStripDrawer::EOrientation;

namespace
{

constexpr int statesCount = 5;
constexpr int columnWidth = 150;
constexpr int rowHeight = 70;

/// The tint of a widget by state.
CColor TintOf(int state)
{
    constexpr std::array<CColor, statesCount> tints = {
        CColor{150, 164, 178}, {70, 76, 84}, {200, 214, 228}, {240, 180, 60}, {90, 220, 120}};
    return tints[static_cast<std::size_t>(state)];
}

using Paint = std::function<void(cairo_t*, CSize frame, int frameIndex)>;

void SetTint(cairo_t* context, CColor tint)
{
    cairo_set_source_rgb(context, tint.r / 255.0, tint.g / 255.0, tint.b / 255.0);
}

/// A strip of frames on top of each other for each state, painted with the state's tint.
CImageCatalog* PaintCatalog(CSize frame, int framesCount, const Paint& paint)
{
    auto catalog = std::make_unique<CImageCatalog>();
    for (int state = 0; state < statesCount; ++state)
    {
        auto pixels = Graphics::CBitmapContext::Create({frame.width, frame.height * framesCount}, 32);
        cairo_t* const context = cairo_create(pixels->BeginDrawing());
        SetTint(context, TintOf(state));
        for (int i = 0; i < framesCount; ++i)
        {
            cairo_save(context);
            cairo_translate(context, 0, i * frame.height);
            paint(context, frame, i);
            cairo_restore(context);
        }
        cairo_destroy(context);
        pixels->EndDrawing();
        catalog->SetEntry(state, std::make_unique<Graphics::CNormalImageElement>(
                                     std::make_shared<Graphics::CImage>(std::move(pixels), true)));
    }
    return catalog.release();
}

Paint KnobOf(int framesCount)
{
    return [framesCount](cairo_t* context, CSize frame, int i)
    {
        const double middle = frame.width / 2.0;
        const double angle = M_PI * (0.75 + 1.5 * i / (framesCount - 1));
        cairo_set_line_width(context, 4);
        cairo_arc(context, middle, middle, middle - 3, M_PI * 0.75, angle + 0.01);
        cairo_stroke(context);
        cairo_set_line_width(context, 2);
        cairo_move_to(context, middle, middle);
        cairo_line_to(context, middle + std::cos(angle) * (middle - 9),
                      middle + std::sin(angle) * (middle - 9));
        cairo_stroke(context);
    };
}

void PaintBox(cairo_t* context, CSize frame, int i)
{
    cairo_set_line_width(context, 2);
    cairo_rectangle(context, 1, 1, frame.width - 2, frame.height - 2);
    cairo_stroke(context);
    cairo_rectangle(context, 6, 6, i * (frame.width - 12) / 2.0, frame.height - 12);
    cairo_fill(context);
}

void PaintBar(cairo_t* context, CSize frame, int /*i*/)
{
    cairo_rectangle(context, 0, 0, frame.width, frame.height);
    cairo_fill(context);
}

/// A row of the sheet: a widget made once for each state and put into it.
class CSheet
{
public:
    explicit CSheet(int rows) : canvas(columnWidth * statesCount, rowHeight * rows)
    {
        canvas->SetFillColor({16, 20, 26});
        canvas->FillRect({0, 0, columnWidth * statesCount, rowHeight * rows});
    }

    void Add(const std::function<void(int state, const std::function<void(GUI::CLightWidget&)>& show)>& make)
    {
        for (int state = 0; state < statesCount; ++state)
        {
            make(state,
                 [&](GUI::CLightWidget& widget)
                 {
                     canvas->SaveState();
                     canvas->Translate({columnWidth * state + 15, rowHeight * row + 10});
                     canvas->ClipToRect({Core::CPoint(), widget.GetSize()});
                     widget.GetGraphics()->Draw(*canvas, nullptr);
                     canvas->RestoreState();
                 });
        }
        ++row;
    }

    /// Whether the state's tint is seen in its cell of the last row.
    bool ShowsTint(int state) const
    {
        for (int y = 0; y < rowHeight; ++y)
        {
            for (int x = 0; x < columnWidth; ++x)
            {
                const auto pixel = canvas.At(columnWidth * state + x, rowHeight * (row - 1) + y);
                if ((pixel & 0xFFFFFFU) == TintOf(state).Pack())
                {
                    return true;
                }
            }
        }
        return false;
    }

    Tests::CCanvas canvas;

private:
    int row = 0;
};

} // namespace

/// A picture for the eye, left in the build folder: each row a widget, each column a state.
TEST(Pictures, OfControlsInAllStates)
{
    Graphics::CFontManager fonts(Graphics::GetFontsFolder(Tests::GetDataFolder()));
    const auto font = fonts.GetFont({.face = "", .height = 20});
    DataModel::Objects::CCaptureParam param(Tests::Real(0.0F, 1.0F));
    param.SetValue(0.62F);
    DataModel::Objects::CCaptureParam mode(Tests::Integer(0.0F, 2.0F));
    mode.SetValue(1.0F);
    DataModel::Objects::CAction action;
    CSheet sheet(9);
    const auto check = [&sheet]
    {
        for (int state = 0; state < statesCount; ++state)
        {
            EXPECT_TRUE(sheet.ShowsTint(state)) << state;
        }
    };

    constexpr int frames = 31;
    sheet.Add(
        [&](int state, const auto& show)
        {
            CGUIImageParamKnob knob(param, PaintCatalog({50, 50}, frames, KnobOf(frames)), true, frames,
                                    EOrientation::Vertical);
            knob.GetKnobGraphics().SetState(state);
            show(knob);
        });
    check();
    sheet.Add(
        [&](int state, const auto& show)
        {
            CGUIImageParamMeter meter(param, PaintCatalog({50, 50}, frames, KnobOf(frames)), true, frames,
                                      EOrientation::Vertical);
            meter.GetMeterGraphics().SetState(state);
            show(meter);
        });
    const auto box = [](int count) {
        return SPushImage{PaintCatalog({60, 40}, count, PaintBox), true, count};
    };
    sheet.Add(
        [&](int state, const auto& show)
        {
            CGUIImageParamButton button(mode, box(3));
            button.GetPushGraphics().SetState(state);
            show(button);
        });
    check();
    sheet.Add(
        [&](int state, const auto& show)
        {
            CGUIImageParamToggleSwitch toggle(mode, box(1));
            toggle.GetPushGraphics().SetState(state);
            show(toggle);
        });
    sheet.Add(
        [&](int state, const auto& show)
        {
            CGUIImageActionButton button(action, box(1));
            button.GetPushGraphics().SetState(state);
            show(button);
        });
    const auto thumb = [](CSize size) { return PaintCatalog(size, 1, PaintBar); };
    sheet.Add(
        [&](int state, const auto& show)
        {
            CSkinLinearParamSlider slider(param,
                                          {PaintCatalog({120, 6}, 1, PaintBar), thumb({10, 26}), true});
            slider.SetTrack({true, 0, 0});
            slider.SetSize({120, 40});
            slider.GetSliderGraphics().SetState(static_cast<EWidgetState>(state));
            show(slider);
        });
    check();
    sheet.Add(
        [&](int state, const auto& show)
        {
            CSkinLinearParamSlider slider(param, {PaintCatalog({6, 50}, 1, PaintBar), thumb({26, 8}), true});
            slider.SetTrack({false, 0, 0});
            slider.SetSize({40, 50});
            slider.GetSliderGraphics().SetState(static_cast<EWidgetState>(state));
            show(slider);
        });
    sheet.Add(
        [&](int state, const auto& show)
        {
            CGUIImageParamLinearMeter meter(param,
                                            {PaintCatalog({120, 12}, 1, PaintBar), thumb({3, 20}), true});
            meter.SetTrack({true, 0, 0});
            meter.SetSize({120, 24});
            meter.GetMeterGraphics().SetState(static_cast<EWidgetState>(state));
            show(meter);
        });
    check();
    sheet.Add(
        [&](int state, const auto& show)
        {
            CGUIParamTextControl text(param);
            text.SetSize({120, 40});
            text.GetTextDrawer().SetFont(font);
            text.SetColors({TintOf(state), {}, {}, {}, {}});
            show(text);
        });
    check();

    cairo_surface_t* const target = cairo_get_target(sheet.canvas->GetNativeContext());
    cairo_surface_flush(target);
    ASSERT_EQ(cairo_surface_write_to_png(target, PICTURES "/controls.png"), CAIRO_STATUS_SUCCESS);
}
