#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CCurveViewer.h"
#include "Mirel/DataModel/GUIWidgets/CBaseCurveGraphics.h"

#include <cstdint>

namespace Mirel::DataModel::GUIWidgets
{

struct CCurveSteps;

/// Draws a curve, as a line or as bars, from its state at that moment: every paint evaluates it again, once
/// for each sample. Samples that are no finite numbers leave a gap. A change of the curve or of an axis
/// raises the changed event for the whole area. GUI thread.
class CCurveGraphics : public CBaseCurveGraphics
{
public:
    /// Any other number is a line too.
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

    /// Samples of a continuous curve for each pixel along the sweep; 1 at first. Nothing is drawn with 0 or
    /// less.
    float GetSampleRate() const { return sampleRate; }
    void SetSampleRate(float newSampleRate) { SetProperty(sampleRate, newSampleRate); }

    /// Whether a line of more than two samples a pixel shows the lowest and highest of each column, which
    /// keeps peaks. False at first; vertical curves know no such form.
    bool GetMinMaxMode() const { return minMaxMode; }
    void SetMinMaxMode(bool newMinMaxMode) { SetProperty(minMaxMode, newMinMaxMode); }

protected:
    int CountPoints() const override;

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

    const Controls::CCurveViewer& viewer;
    float sampleRate = 1.0F;
    bool minMaxMode = false;
    Core::TCommand<CCurveGraphics> layoutChanged{this, &CCurveGraphics::OnLayoutChanged};
    Core::TConstCommand<CCurveGraphics> curveChanged{this, &CCurveGraphics::RaiseChanged};
    CoreUtilities::CCallbackHelper layoutConnection;
    CoreUtilities::CCallbackHelper curveConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
