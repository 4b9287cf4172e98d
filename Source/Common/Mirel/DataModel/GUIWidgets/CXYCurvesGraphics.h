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

/// Draws one curve against another, x to the right and y upward, over a parameter that runs from 0 to 1: a
/// Lissajous figure. Otherwise like CCurveGraphics. GUI thread.
class CXYCurvesGraphics : public Graphics::CBaseGraphics
{
public:
    enum EGraphStyle : std::uint32_t
    {
        GraphStyleDots = 0,
        GraphStyleCurve = 1
    };

    /// The viewers are not owned and must outlive the graphics.
    CXYCurvesGraphics(const Controls::CCurveViewer& xViewer_, const Controls::CCurveViewer& yViewer_);

    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* region) override;
    void SetSize(Graphics::CSize newSize) override;

    Graphics::CColor GetColor() const { return color; }
    void SetColor(Graphics::CColor newColor);

    /// As CDrawSurface::SetPenStyle has it.
    std::uint32_t GetPenStyle() const { return penStyle; }
    void SetPenStyle(std::uint32_t newPenStyle);

    /// A line for GraphStyleCurve; dots for any other number.
    std::uint32_t GetGraphStyle() const { return graphStyle; }
    void SetGraphStyle(std::uint32_t newGraphStyle);

    /// Points between pixels, or on whole ones; true at first.
    bool GetAntiAlias() const { return antiAlias; }
    void SetAntiAlias(bool newAntiAlias);

    /// Whether values outside of the view are drawn at its edge. False at first.
    bool GetCurveAccessMode() const { return curveAccessMode; }
    void SetCurveAccessMode(bool newCurveAccessMode);

    /// How many points are drawn, 1024 at first; nothing for 1 or less.
    float GetPositionsCount() const { return positionsCount; }
    void SetPositionsCount(float newPositionsCount);

    /// Of the values of both curves.
    const CExtraPixels& GetExtraPixels() const { return extraPixels; }

private:
    template <class Form>
    void DrawForm(Graphics::CDrawSurface& surface);
    template <class Form, class Pen>
    void AddPoints(Pen pen) const;
    int CountPoints() const;
    void ReservePoints();

    static constexpr float defaultPositionsCount = 1024.0F;

    const Controls::CCurveViewer& xViewer;
    const Controls::CCurveViewer& yViewer;
    Graphics::CColor color;
    std::uint32_t penStyle = 0;
    std::uint32_t graphStyle = GraphStyleDots;
    bool antiAlias = true;
    bool curveAccessMode = false;
    float positionsCount = defaultPositionsCount;
    CPointsBuffers points;
    CExtraPixels extraPixels;
    Core::TConstCommand<CXYCurvesGraphics> curvesChanged{this, &CXYCurvesGraphics::RaiseChanged};
    CoreUtilities::CCallbackHelper xLayoutConnection;
    CoreUtilities::CCallbackHelper xCurveConnection;
    CoreUtilities::CCallbackHelper yLayoutConnection;
    CoreUtilities::CCallbackHelper yCurveConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
