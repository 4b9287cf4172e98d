#pragma once

#include "Mirel/Math/TFunctionHolder.h"

#include <utility>

namespace Mirel::Math
{

/// The common part of the proxies: the function that they stand for, saved under the key "value".
template <class I>
class TFunctionProxyBase : public I
{
public:
    explicit TFunctionProxyBase(TFunctionHolder<I> function_) : function(std::move(function_)) {}

    /// Null only until a function is set or read; a proxy is not evaluated before that.
    const I* GetFunction() const { return function.Get(); }

    /// Puts another function in the place of the present one, which is destroyed if it was owned. Not for an
    /// object that others may be evaluating at the time.
    void SetFunction(const I* newFunction, bool owned) { function.Set(newFunction, owned); }

    bool Serialize(Serialization::IWriteDataStream& stream) const override
    {
        return Serialization::WriteItem(stream, "value", function);
    }

    /// False if no function was read.
    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        return ReadNeededFunction(stream, "value", function);
    }

private:
    TFunctionHolder<I> function;
};

} // namespace Mirel::Math
