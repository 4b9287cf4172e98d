#pragma once

#include "Mirel/Math/IFunction.h"
#include "Mirel/Math/TConstantBase.h"
#include "Mirel/Runtime/TClassRegistration.h"

namespace Mirel::Math
{

/// A number that can be saved by class key, which CConstant cannot: a leaf for trees of constants.
class CKeyedConstant : public TConstantBase<IConstant>
{
public:
    static constexpr const char* classKey = "{keyed constant}";

    explicit CKeyedConstant(float value_ = 0.0f) : TConstantBase(value_) {}

    const char* GetTypeKey() const override { return classKey; }
    CKeyedConstant* Clone() const override { return new CKeyedConstant(*this); }
    float operator()() const override { return GetValue(); }
};

inline const Runtime::TClassRegistration<CKeyedConstant, IConstant> keyedConstantRegistration;

} // namespace Mirel::Math
