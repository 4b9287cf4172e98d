#pragma once

#include "Mirel/DataModel/Objects/TFunctionValueParam.h"

namespace Mirel::DataModel::Objects
{

/// The value of a curve where a parameter stands. GUI thread only.
class CCaptureCurveValueParam : public TFunctionValueParam<IConstCaptureCurve, 1>
{
public:
    const IConstCaptureCurve* GetCurve() const { return GetFunction(); }
    void SetCurve(const IConstCaptureCurve* curve) { SetFunction(curve); }

    const IConstCaptureParam* GetX() const { return GetArgument(0); }
    void SetX(const IConstCaptureParam* x) { SetArgument(0, x); }
};

} // namespace Mirel::DataModel::Objects
