#pragma once

#include "Mirel/Runtime/CObjectsFactory.h"
#include "Mirel/Serialization/DataStreams.h"

#include <memory>

namespace Mirel::Serialization
{

/// Reads what CTypeSerializer wrote: creates an object of the class that the stream names, as an I, and has
/// it read its content. I is an IDeSerialize and gives its interface key as I::classKey.
template <class I>
class TRuntimeDeSerializer : public IDeSerialize
{
public:
    /// True with a null result for a saved null. False, with a null result, if the class is not registered as
    /// an I, or if it cannot read the content.
    bool Deserialize(const IReadDataStream& stream) override
    {
        result.reset();
        bool isNull = false;
        if (!stream.Read("isNull", isNull))
        {
            return false;
        }
        if (isNull)
        {
            return true;
        }
        char* text = nullptr;
        if (!stream.Read("type", text))
        {
            return false;
        }
        const std::unique_ptr<char[]> key(text);
        std::unique_ptr<I> created(
            static_cast<I*>(Runtime::CObjectsFactory::Instance().Create(key.get(), I::classKey)));
        if (created == nullptr)
        {
            return false;
        }
        IDeSerialize& content = *created;
        if (!stream.Read("content", content))
        {
            return false;
        }
        result = std::move(created);
        return true;
    }

    /// Owned by this object until it is detached; null until one was read.
    I* Get() const { return result.get(); }

    /// Hands the result over to the caller.
    I* Detach() { return result.release(); }

private:
    std::unique_ptr<I> result;
};

} // namespace Mirel::Serialization
