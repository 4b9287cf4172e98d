#pragma once

#include "Mirel/Math/TFunctionHolder.h"

#include <utility>

namespace Mirel::Math
{

/// The common part of the compositions of two: a function of one variable, saved under "function", applied to
/// the value of an object of interface I. Neither may be null when it is evaluated.
template <class I>
class TCompositionBase : public I
{
public:
    /// The key under which the inner object is saved: a static text.
    TCompositionBase(TFunctionHolder<IFunction> function_, TFunctionHolder<I> inner_, const char* innerKey_)
        : function(std::move(function_)),
          inner(std::move(inner_)),
          innerKey(innerKey_)
    {
    }

    bool Serialize(Serialization::IWriteDataStream& stream) const override
    {
        const bool ok = Serialization::WriteItem(stream, "function", function);
        return Serialization::WriteItem(stream, innerKey, inner) && ok;
    }

    /// False if either was not read.
    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        const bool ok = ReadNeededFunction(stream, "function", function);
        return ReadNeededFunction(stream, innerKey, inner) && ok;
    }

protected:
    template <class... Arguments>
    float Evaluate(Arguments... arguments) const
    {
        return (*function)((*inner)(arguments...));
    }

private:
    TFunctionHolder<IFunction> function;
    TFunctionHolder<I> inner;
    const char* innerKey;
};

} // namespace Mirel::Math
