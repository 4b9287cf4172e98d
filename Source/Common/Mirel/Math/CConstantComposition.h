#pragma once

#include "Mirel/Math/TCompositionBase.h"

#include <utility>

namespace Mirel::Math
{

/// function(constant), a number made of another. Any thread evaluates.
class CConstantComposition : public TCompositionBase<IConstant>
{
public:
    static constexpr const char* classKey = "{83F37E7C-0ABF-4083-9F35-DD6310CC0951}";

    explicit CConstantComposition(TFunctionHolder<IFunction> function_ = {},
                                  TFunctionHolder<IConstant> constant_ = {})
        : TCompositionBase(std::move(function_), std::move(constant_), "constFunction")
    {
    }

    const char* GetTypeKey() const override { return classKey; }
    CConstantComposition* Clone() const override { return new CConstantComposition(*this); }
    float operator()() const override { return Evaluate(); }
};

} // namespace Mirel::Math
