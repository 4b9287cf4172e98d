#pragma once

#include "Mirel/Math/IFunction.h"
#include "Mirel/Math/TConstantBase.h"

namespace Mirel::Math
{

/// A function of two variables with the same value everywhere.
class CConstantBinaryFunction : public TConstantBase<IBinaryFunction>
{
public:
    static constexpr const char* classKey = "{D21815E0-885C-4996-B493-90E08E953055}";

    explicit CConstantBinaryFunction(float value_ = 0.0F) : TConstantBase(value_) {}

    const char* GetTypeKey() const override { return classKey; }
    CConstantBinaryFunction* Clone() const override { return new CConstantBinaryFunction(*this); }
    float operator()(float, float) const override { return GetValue(); }
};

} // namespace Mirel::Math
