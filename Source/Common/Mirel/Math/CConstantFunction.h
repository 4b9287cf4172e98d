#pragma once

#include "Mirel/Math/IFunction.h"
#include "Mirel/Math/TConstantBase.h"

namespace Mirel::Math
{

/// A function of one variable with the same value everywhere.
class CConstantFunction : public TConstantBase<IFunction>
{
public:
    static constexpr const char* classKey = "{72E2E475-5248-41cb-BBE2-9E1F1E4BAF30}";

    explicit CConstantFunction(float value_ = 0.0F) : TConstantBase(value_) {}

    const char* GetTypeKey() const override { return classKey; }
    CConstantFunction* Clone() const override { return new CConstantFunction(*this); }
    float operator()(float) const override { return GetValue(); }
};

} // namespace Mirel::Math
