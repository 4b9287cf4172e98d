#pragma once

#include "Mirel/Math/TCombinationBase.h"

#include <utility>

namespace Mirel::Math
{

/// combine(func1, func2), a number made of two. Any thread evaluates.
class CConstantsCombination : public TCombinationBase<IConstant>
{
public:
    static constexpr const char* classKey = "{5145420A-1DCF-449e-8AC4-0006CF96D0F2}";

    /// Empty, to be read.
    CConstantsCombination() : TCombinationBase({}, {}, {}) {}

    CConstantsCombination(TFunctionHolder<IConstant> func1_, TFunctionHolder<IConstant> func2_,
                          TFunctionHolder<IBinaryFunction> combine_)
        : TCombinationBase(std::move(func1_), std::move(func2_), std::move(combine_))
    {
    }

    const char* GetTypeKey() const override { return classKey; }
    CConstantsCombination* Clone() const override { return new CConstantsCombination(*this); }
    float operator()() const override { return Evaluate(); }
};

} // namespace Mirel::Math
