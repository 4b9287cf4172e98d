#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CCurveViewer.h"
#include "Mirel/DataModel/GUIWidgets/CBaseCurveGraphics.h"

#include <cstdint>

namespace Mirel::DataModel::GUIWidgets
{

/// Draws one curve against another, x to the right and y upward, over a parameter that runs from 0 to 1: a
/// Lissajous figure. Otherwise like CCurveGraphics; extra pixels are those of the values of both. GUI thread.
class CXYCurvesGraphics : public CBaseCurveGraphics
{
public:
    /// Any other number is dots too.
    enum EGraphStyle : std::uint32_t
    {
        GraphStyleDots = 0,
        GraphStyleCurve = 1
    };

    /// The viewers are not owned and must outlive the graphics.
    CXYCurvesGraphics(const Controls::CCurveViewer& xViewer_, const Controls::CCurveViewer& yViewer_);

    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* region) override;

    /// How many points are drawn, 1024 at first; nothing for 1 or less.
    float GetPositionsCount() const { return positionsCount; }
    void SetPositionsCount(float newPositionsCount) { SetProperty(positionsCount, newPositionsCount); }

protected:
    int CountPoints() const override;

private:
    template <class Form>
    void DrawForm(Graphics::CDrawSurface& surface);
    template <class Form, class Pen>
    void AddPoints(Pen pen) const;

    static constexpr float defaultPositionsCount = 1024.0F;

    const Controls::CCurveViewer& xViewer;
    const Controls::CCurveViewer& yViewer;
    float positionsCount = defaultPositionsCount;
    Core::TConstCommand<CXYCurvesGraphics> curvesChanged{this, &CXYCurvesGraphics::RaiseChanged};
    CoreUtilities::CCallbackHelper xLayoutConnection;
    CoreUtilities::CCallbackHelper xCurveConnection;
    CoreUtilities::CCallbackHelper yLayoutConnection;
    CoreUtilities::CCallbackHelper yCurveConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
