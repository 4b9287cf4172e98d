#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CParamViewerConfig.h"
#include "Mirel/DataModel/GUIWidgets/CExtraPixels.h"
#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CColor.h"

#include <cstdint>

namespace Mirel::DataModel::GUIWidgets
{

struct CGridAxis;

/// How lines are drawn: their colour, and a style as CDrawSurface::SetPenStyle has it.
struct CPen
{
    Graphics::CColor color;
    std::uint32_t style = 0;
    bool operator==(const CPen&) const = default;
};

/// Draws lines at the stops of two axes: outward from where zero stands on each, with subdivisions between
/// them, and the line of zero on top. On an axis without stops each pixel is one. A change of an axis, and of
/// any property, raises the changed event for the whole area. GUI thread.
class CGridGraphics : public Graphics::CBaseGraphics
{
public:
    /// The axes are not owned and must outlive the graphics.
    CGridGraphics(const Controls::CParamViewerConfig& xAxis_, const Controls::CParamViewerConfig& yAxis_);

    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* region) override;
    void SetSize(Graphics::CSize newSize) override;

    /// Of the lines at the stops.
    const CPen& GetPen() const { return pen; }
    void SetPen(const CPen& newPen) { SetProperty(pen, newPen); }

    const CPen& GetSubdivisionPen() const { return subdivisionPen; }
    void SetSubdivisionPen(const CPen& newPen) { SetProperty(subdivisionPen, newPen); }

    const CPen& GetOriginPen() const { return originPen; }
    void SetOriginPen(const CPen& newPen) { SetProperty(originPen, newPen); }

    /// Lines between each two stops; 0 at first.
    int GetXSubdivisionsCount() const { return xSubdivisions; }
    void SetXSubdivisionsCount(int newCount) { SetProperty(xSubdivisions, newCount); }
    int GetYSubdivisionsCount() const { return ySubdivisions; }
    void SetYSubdivisionsCount(int newCount) { SetProperty(ySubdivisions, newCount); }

    /// Whether the axis has its lines, that of zero included; true at first.
    bool HasXLines() const { return xLines; }
    void SetXLines(bool newXLines) { SetProperty(xLines, newXLines); }
    bool HasYLines() const { return yLines; }
    void SetYLines(bool newYLines) { SetProperty(yLines, newYLines); }

    const CExtraPixels& GetExtraPixels() const { return extraPixels; }

private:
    template <class T>
    void SetProperty(T& property, const T& value)
    {
        if (property != value)
        {
            property = value;
            RaiseChanged();
        }
    }

    static CGridAxis MakeAxis(const Controls::CParamViewerConfig& viewer, int subdivisions, int length);
    template <class ToEnds>
    void DrawAxis(Graphics::CDrawSurface& surface, const CGridAxis& axis, ToEnds toEnds) const;

    const Controls::CParamViewerConfig& xAxis;
    const Controls::CParamViewerConfig& yAxis;
    CPen pen;
    CPen subdivisionPen;
    CPen originPen;
    int xSubdivisions = 0;
    int ySubdivisions = 0;
    bool xLines = true;
    bool yLines = true;
    CExtraPixels extraPixels;
    Core::TConstCommand<CGridGraphics> layoutChanged{this, &CGridGraphics::RaiseChanged};
    CoreUtilities::CCallbackHelper xConnection;
    CoreUtilities::CCallbackHelper yConnection;
};

} // namespace Mirel::DataModel::GUIWidgets
