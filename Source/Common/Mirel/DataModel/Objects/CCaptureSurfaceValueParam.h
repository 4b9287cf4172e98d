#pragma once

#include "Mirel/DataModel/Objects/TFunctionValueParam.h"

namespace Mirel::DataModel::Objects
{

/// The value of a surface where two parameters stand. GUI thread only.
class CCaptureSurfaceValueParam : public TFunctionValueParam<IConstCaptureSurface, 2>
{
public:
    const IConstCaptureSurface* GetSurface() const { return GetFunction(); }
    void SetSurface(const IConstCaptureSurface* surface) { SetFunction(surface); }

    const IConstCaptureParam* GetX() const { return GetArgument(0); }
    void SetX(const IConstCaptureParam* x) { SetArgument(0, x); }

    const IConstCaptureParam* GetY() const { return GetArgument(1); }
    void SetY(const IConstCaptureParam* y) { SetArgument(1, y); }
};

} // namespace Mirel::DataModel::Objects
