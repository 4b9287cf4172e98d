#pragma once

#include "Mirel/Containers/TDynamicVector.h"
#include "Mirel/Math/TFunctionHolder.h"
#include "Mirel/Serialization/TVectorSerializer.h"

#include <utility>

namespace Mirel::Math
{

/// The common part of the functions that are made of a list of any number of functions, each owned or
/// borrowed. The list is saved in the form of TVectorSerializer with the item name "value".
template <class I>
class TNFunctionsAggregate : public I
{
public:
    /// Appends a function; with owned it is destroyed with the list, otherwise it must outlive it. Not for an
    /// object that others may be evaluating at the time.
    void Add(const I* function, bool owned) { functions.Add({function, owned}); }

    void Clear() { functions.Clear(); }

    int GetCount() const { return functions.GetCount(); }

    /// index: 0 to GetCount() - 1. Null for an empty entry.
    const I* GetFunction(int index) const { return functions[index].Get(); }

    bool Serialize(Serialization::IWriteDataStream& stream) const override
    {
        return Serialization::TVectorSerializer(functions, "value").Serialize(stream);
    }

    /// Replaces the list; what could not be created is an empty entry. False if no list was found.
    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        CFunctions read;
        if (!Serialization::TVectorDeSerializer(read, "value").Deserialize(stream))
        {
            return false;
        }
        functions = std::move(read);
        return true;
    }

private:
    using CFunctions = Containers::TDynamicVector<TFunctionHolder<I>>;

    CFunctions functions;
};

} // namespace Mirel::Math
