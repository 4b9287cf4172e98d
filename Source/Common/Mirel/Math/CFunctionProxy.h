#pragma once

#include "Mirel/Math/TFunctionProxyBase.h"

#include <utility>

namespace Mirel::Math
{

/// A place in a tree of functions for a function of one variable that may be replaced. Any thread
/// evaluates.
class CFunctionProxy : public TFunctionProxyBase<IFunction>
{
public:
    static constexpr const char* classKey = "{709DCE8B-8C2B-44c4-AF00-EF02D7F53121}";

    explicit CFunctionProxy(TFunctionHolder<IFunction> function_ = {})
        : TFunctionProxyBase(std::move(function_))
    {
    }

    const char* GetTypeKey() const override { return classKey; }
    CFunctionProxy* Clone() const override { return new CFunctionProxy(*this); }
    float operator()(float x) const override { return (*GetFunction())(x); }
};

} // namespace Mirel::Math
