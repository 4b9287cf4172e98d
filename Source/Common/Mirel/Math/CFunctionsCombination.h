#pragma once

#include "Mirel/Math/TCombinationBase.h"

#include <utility>

namespace Mirel::Math
{

/// combine(func1(x), func2(x)). Any thread evaluates.
class CFunctionsCombination : public TCombinationBase<IFunction>
{
public:
    static constexpr const char* classKey = "{FA439331-DF20-4e00-8922-1FEEE83F9B39}";

    /// Empty, to be read.
    CFunctionsCombination() : TCombinationBase({}, {}, {}) {}

    CFunctionsCombination(TFunctionHolder<IFunction> func1_, TFunctionHolder<IFunction> func2_,
                          TFunctionHolder<IBinaryFunction> combine_)
        : TCombinationBase(std::move(func1_), std::move(func2_), std::move(combine_))
    {
    }

    const char* GetTypeKey() const override { return classKey; }
    CFunctionsCombination* Clone() const override { return new CFunctionsCombination(*this); }
    float operator()(float x) const override { return Evaluate(x); }
};

} // namespace Mirel::Math
