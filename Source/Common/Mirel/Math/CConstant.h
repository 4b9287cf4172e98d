#pragma once

#include "Mirel/Math/IFunction.h"
#include "Mirel/Math/TConstantBase.h"

namespace Mirel::Math
{

/// A number. It has no class key: on its own it is not saved.
class CConstant : public TConstantBase<IConstant>
{
public:
    explicit CConstant(float value_ = 0.0F) : TConstantBase(value_) {}

    const char* GetTypeKey() const override { return nullptr; }
    CConstant* Clone() const override { return new CConstant(*this); }
    float operator()() const override { return GetValue(); }
};

} // namespace Mirel::Math
