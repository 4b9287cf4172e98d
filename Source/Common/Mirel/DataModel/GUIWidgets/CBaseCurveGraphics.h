#pragma once

#include "Mirel/DataModel/GUIWidgets/CExtraPixels.h"
#include "Mirel/DataModel/GUIWidgets/CPointsBuffers.h"
#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/CDrawSurface.h"

#include <cstdint>
#include <type_traits>

namespace Mirel::DataModel::GUIWidgets
{

/// What graphs of curves have in common: pen, form and edge, and room for their points, so that paints
/// allocate nothing. A change of any property raises the changed event for the whole area. GUI thread.
class CBaseCurveGraphics : public Graphics::CBaseGraphics
{
public:
    void SetSize(Graphics::CSize newSize) override;

    Graphics::CColor GetColor() const { return color; }
    void SetColor(Graphics::CColor newColor) { SetProperty(color, newColor); }

    /// As CDrawSurface::SetPenStyle has it.
    std::uint32_t GetPenStyle() const { return penStyle; }
    void SetPenStyle(std::uint32_t newPenStyle) { SetProperty(penStyle, newPenStyle); }

    /// One of the class's own.
    std::uint32_t GetGraphStyle() const { return graphStyle; }
    void SetGraphStyle(std::uint32_t newGraphStyle) { SetProperty(graphStyle, newGraphStyle); }

    /// Points between pixels, or on whole ones; true at first.
    bool GetAntiAlias() const { return antiAlias; }
    void SetAntiAlias(bool newAntiAlias) { SetProperty(antiAlias, newAntiAlias); }

    /// Whether values outside of the view are drawn at its edge. False at first.
    bool GetCurveAccessMode() const { return curveAccessMode; }
    void SetCurveAccessMode(bool newCurveAccessMode) { SetProperty(curveAccessMode, newCurveAccessMode); }

    const CExtraPixels& GetExtraPixels() const { return extraPixels; }

protected:
    /// The axes are those whose zoom makes extra pixels; they must outlive the graphics.
    CBaseCurveGraphics(std::uint32_t graphStyle_, const Controls::CParamViewerConfig& xAxis,
                       const Controls::CParamViewerConfig& yAxis)
        : graphStyle(graphStyle_),
          extraPixels(xAxis, yAxis)
    {
    }

    /// How many points a paint takes, as things stand.
    virtual int CountPoints() const = 0;

    /// Stores and tells a value that differs.
    template <class T>
    void SetProperty(T& property, T value);

    void OnLayoutChanged();
    void TakeUpPen(Graphics::CDrawSurface& surface) const;

    CPointsBuffers points;

private:
    Graphics::CColor color;
    std::uint32_t penStyle = 0;
    std::uint32_t graphStyle;
    bool antiAlias = true;
    bool curveAccessMode = false;
    CExtraPixels extraPixels;
};

// Detail.

template <class T>
void CBaseCurveGraphics::SetProperty(T& property, T value)
{
    bool differs = false;
    if constexpr (std::is_floating_point_v<T>)
    {
        differs = property < value || property > value;
    }
    else
    {
        differs = property != value;
    }
    if (differs)
    {
        property = value;
        OnLayoutChanged();
    }
}

} // namespace Mirel::DataModel::GUIWidgets
