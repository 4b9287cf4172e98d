#pragma once

#include "Mirel/Math/TFunctionProxyBase.h"

#include <utility>

namespace Mirel::Math
{

/// A place in a tree of functions for a function of two variables that may be replaced. Any thread
/// evaluates.
class CBinaryFunctionProxy : public TFunctionProxyBase<IBinaryFunction>
{
public:
    static constexpr const char* classKey = "{3F409A8F-20F5-4531-80DA-99441215C125}";

    explicit CBinaryFunctionProxy(TFunctionHolder<IBinaryFunction> function_ = {})
        : TFunctionProxyBase(std::move(function_))
    {
    }

    const char* GetTypeKey() const override { return classKey; }
    CBinaryFunctionProxy* Clone() const override { return new CBinaryFunctionProxy(*this); }
    float operator()(float x, float y) const override { return (*GetFunction())(x, y); }
};

} // namespace Mirel::Math
