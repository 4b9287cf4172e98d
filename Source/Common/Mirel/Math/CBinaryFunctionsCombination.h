#pragma once

#include "Mirel/Math/TCombinationBase.h"

#include <utility>

namespace Mirel::Math
{

/// combine(func1(x, y), func2(x, y)). Any thread evaluates.
class CBinaryFunctionsCombination : public TCombinationBase<IBinaryFunction>
{
public:
    static constexpr const char* classKey = "{A8FBFEF4-0FFE-41a6-83AC-D8B94B84AABF}";

    /// Empty, to be read.
    CBinaryFunctionsCombination() : TCombinationBase({}, {}, {}) {}

    CBinaryFunctionsCombination(TFunctionHolder<IBinaryFunction> func1_,
                                TFunctionHolder<IBinaryFunction> func2_,
                                TFunctionHolder<IBinaryFunction> combine_)
        : TCombinationBase(std::move(func1_), std::move(func2_), std::move(combine_))
    {
    }

    const char* GetTypeKey() const override { return classKey; }
    CBinaryFunctionsCombination* Clone() const override { return new CBinaryFunctionsCombination(*this); }
    float operator()(float x, float y) const override { return Evaluate(x, y); }
};

} // namespace Mirel::Math
