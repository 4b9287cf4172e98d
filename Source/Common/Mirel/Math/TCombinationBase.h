#pragma once

#include "Mirel/Math/TFunctionHolder.h"

#include <utility>

namespace Mirel::Math
{

/// The common part of the combinations: two functions of interface I and what makes one value of theirs,
/// saved under "func1", "func2" and "combineFunction". None may be null when it is evaluated.
template <class I>
class TCombinationBase : public I
{
public:
    TCombinationBase(TFunctionHolder<I> func1_, TFunctionHolder<I> func2_,
                     TFunctionHolder<IBinaryFunction> combine_)
        : func1(std::move(func1_)),
          func2(std::move(func2_)),
          combine(std::move(combine_))
    {
    }

    bool Serialize(Serialization::IWriteDataStream& stream) const override
    {
        bool ok = Serialization::WriteItem(stream, "func1", func1);
        ok = Serialization::WriteItem(stream, "func2", func2) && ok;
        return Serialization::WriteItem(stream, "combineFunction", combine) && ok;
    }

    /// False if any of the three was not read.
    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        bool ok = ReadNeededFunction(stream, "func1", func1);
        ok = ReadNeededFunction(stream, "func2", func2) && ok;
        return ReadNeededFunction(stream, "combineFunction", combine) && ok;
    }

protected:
    template <class... Arguments>
    float Evaluate(Arguments... arguments) const
    {
        return (*combine)((*func1)(arguments...), (*func2)(arguments...));
    }

private:
    TFunctionHolder<I> func1;
    TFunctionHolder<I> func2;
    TFunctionHolder<IBinaryFunction> combine;
};

} // namespace Mirel::Math
