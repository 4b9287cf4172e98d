#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CCurveViewer.h"
#include "Mirel/DataModel/GUIWidgets/CExtraPixels.h"
#include "Mirel/DataModel/GUIWidgets/CPointsBuffers.h"
#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CColor.h"

#include <cstdint>

namespace Mirel::DataModel::GUIWidgets
{

struct CCurveSteps;

/// Draws a curve, as a line or as bars, from its state at that moment: every paint evaluates it again, once
/// for each sample. Samples that are no finite numbers leave a gap. A change of the curve or of an axis, and
/// of any property, raises the changed event for the whole area. Paints allocate nothing. GUI thread.
class CCurveGraphics : public Graphics::CBaseGraphics
{
public:
    enum EGraphStyle : std::uint32_t
    {
        GraphStyleCurve = 0,
        GraphStyleBargraph = 1
    };

    /// The viewer is not owned and must outlive the graphics.
    explicit CCurveGraphics(const Controls::CCurveViewer& viewer_);

    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* region) override;

    /// On the line, give or take two pixels, or on a bar.
    bool HitTest(Graphics::CPoint point) const override;

    void SetSize(Graphics::CSize newSize) override;

    Graphics::CColor GetColor() const { return color; }
    void SetColor(Graphics::CColor newColor);

    /// As CDrawSurface::SetPenStyle has it.
    std::uint32_t GetPenStyle() const { return penStyle; }
    void SetPenStyle(std::uint32_t newPenStyle);

    /// Bars for GraphStyleBargraph; a line for any other number.
    std::uint32_t GetGraphStyle() const { return graphStyle; }
    void SetGraphStyle(std::uint32_t newGraphStyle);

    /// Samples of a continuous curve for each pixel along the sweep; 1 at first. Nothing is drawn with 0 or
    /// less.
    float GetSampleRate() const { return sampleRate; }
    void SetSampleRate(float newSampleRate);

    /// Points between pixels, or on whole ones; true at first.
    bool GetAntiAlias() const { return antiAlias; }
    void SetAntiAlias(bool newAntiAlias);

    /// Whether values outside of the view are drawn at its edge. False at first.
    bool GetCurveAccessMode() const { return curveAccessMode; }
    void SetCurveAccessMode(bool newCurveAccessMode);

    /// Whether a line of more than two samples a pixel shows the lowest and highest of each column, which
    /// keeps peaks. False at first; vertical curves know no such form.
    bool GetMinMaxMode() const { return minMaxMode; }
    void SetMinMaxMode(bool newMinMaxMode);

    const CExtraPixels& GetExtraPixels() const { return extraPixels; }

private:
    class CSweep;

    template <class Form>
    void DrawForm(Graphics::CDrawSurface& surface, const CSweep& sweep);
    template <class Form>
    void DrawBars(Graphics::CDrawSurface& surface, const CSweep& sweep);
    template <class Form>
    void DrawCurve(Graphics::CDrawSurface& surface, const CSweep& sweep);
    template <class Form>
    void DrawMinMax(Graphics::CDrawSurface& surface, const CSweep& sweep);

    bool GetSteps(CCurveSteps& steps) const;
    bool DrawsMinMax(const CCurveSteps& steps) const;
    template <class T>
    void SetProperty(T& property, T value);
    void ReservePoints();
    void OnLayoutChanged();

    const Controls::CCurveViewer& viewer;
    Graphics::CColor color;
    std::uint32_t penStyle = 0;
    std::uint32_t graphStyle = GraphStyleCurve;
    float sampleRate = 1.0F;
    bool antiAlias = true;
    bool curveAccessMode = false;
    bool minMaxMode = false;
    CPointsBuffers points;
    CExtraPixels extraPixels;
    Core::TCommand<CCurveGraphics> layoutChanged{this, &CCurveGraphics::OnLayoutChanged};
    Core::TConstCommand<CCurveGraphics> curveChanged{this, &CCurveGraphics::RaiseChanged};
    CoreUtilities::CCallbackHelper layoutConnection;
    CoreUtilities::CCallbackHelper curveConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
