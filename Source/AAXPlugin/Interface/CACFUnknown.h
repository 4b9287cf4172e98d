#pragma once

#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/Interface/IACFUnknown.h"
#include "AAXPlugin/Interface/InterfaceIds.h"

#include <atomic>
#include <cstdint>
#include <tuple>

/// The references of one object, and the count of all such objects alive in this module or program. The count
/// tells whether the module may be unloaded.
class CACFUnknown
{
public:
    CACFUnknown();
    CACFUnknown(const CACFUnknown&) = delete;
    CACFUnknown& operator=(const CACFUnknown&) = delete;
    virtual ~CACFUnknown();

    /// Objects alive in the image (module or program) that this code is linked into. Any thread.
    static std::int32_t GetLiveCount();

protected:
    std::uint32_t IncrementReferences();

    /// Destroys the object with its last reference.
    std::uint32_t DecrementReferences();

private:
    std::atomic<std::uint32_t> references = 1;
};

/// An object that offers the given interfaces. It starts with one reference, its maker's, and is destroyed
/// with the last one; make it with `new` only.
template <class... TInterfaces>
class TACFObject : public CACFUnknown, public TInterfaces...
{
public:
    std::int32_t QueryInterface(const ACFInterfaceId& id, void** out) override
    {
        if (out == nullptr)
        {
            return AAXResult::Failed;
        }
        *out = nullptr;
        if (id == InterfaceIdOf<IACFUnknown>)
        {
            // The same pointer for every interface asked: it is the identity of the object.
            *out = static_cast<IACFUnknown*>(static_cast<CFirst*>(this));
        }
        ((id == InterfaceIdOf<TInterfaces> ? void(*out = static_cast<TInterfaces*>(this)) : void()), ...);
        if (*out == nullptr)
        {
            return AAXResult::Unsupported;
        }
        IncrementReferences();
        return AAXResult::Ok;
    }

    std::uint32_t AddReference() override { return IncrementReferences(); }
    std::uint32_t Release() override { return DecrementReferences(); }

private:
    using CFirst = std::tuple_element_t<0, std::tuple<TInterfaces...>>;
};
