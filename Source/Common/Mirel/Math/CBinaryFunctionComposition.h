#pragma once

#include "Mirel/Math/TCompositionBase.h"

#include <utility>

namespace Mirel::Math
{

/// function(binaryFunction(x, y)). Any thread evaluates.
class CBinaryFunctionComposition : public TCompositionBase<IBinaryFunction>
{
public:
    static constexpr const char* classKey = "{D9BEEC6F-C530-46c7-A19C-FF009E5E2C26}";

    explicit CBinaryFunctionComposition(TFunctionHolder<IFunction> function_ = {},
                                        TFunctionHolder<IBinaryFunction> binaryFunction_ = {})
        : TCompositionBase(std::move(function_), std::move(binaryFunction_), "binaryFunction")
    {
    }

    const char* GetTypeKey() const override { return classKey; }
    CBinaryFunctionComposition* Clone() const override { return new CBinaryFunctionComposition(*this); }
    float operator()(float x, float y) const override { return Evaluate(x, y); }
};

} // namespace Mirel::Math
