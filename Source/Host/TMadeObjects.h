#pragma once

#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/Interface/TACFReference.h"

#include <cstdint>
#include <vector>

namespace Host
{

/// The objects that one recorder has made for the module. It is what tells a pointer that comes back from the
/// module as one of ours from any other.
template <class TRecorder>
class TMadeObjects
{
public:
    /// A new recorder in `out`, with one reference for the caller.
    template <class TInterface>
    std::int32_t Create(TInterface** out)
    {
        if (out == nullptr)
        {
            return AAXResult::Failed;
        }
        objects.push_back(TACFReference<TRecorder>::Adopt(new TRecorder));
        objects.back()->AddReference();
        *out = objects.back().Get();
        return AAXResult::Ok;
    }

    /// Holds nothing if the pointer is not one of ours.
    template <class TInterface>
    TACFReference<TRecorder> Find(const TInterface* pointer) const
    {
        for (const TACFReference<TRecorder>& object : objects)
        {
            if (static_cast<const TInterface*>(object.Get()) == pointer)
            {
                return object;
            }
        }
        return {};
    }

    const std::vector<TACFReference<TRecorder>>& GetAll() const { return objects; }

private:
    std::vector<TACFReference<TRecorder>> objects;
};

} // namespace Host
