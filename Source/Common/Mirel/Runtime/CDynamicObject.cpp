#include "Mirel/Runtime/CDynamicObject.h"

#include "Mirel/Runtime/TTypeInfo.h"

#include <algorithm>

namespace Mirel::Runtime
{

CDynamicObject::~CDynamicObject()
{
    Clear();
}

const IRTTypeInfo& CDynamicObject::GetTypeInfo() const
{
    static const TTypeInfo<CDynamicObject> info;
    return info;
}

const void* CDynamicObject::GetInterface(const char* name) const
{
    if (name == nullptr)
    {
        return nullptr;
    }
    const auto entry = interfaces.find(name);
    return entry == interfaces.end() ? nullptr : entry->second;
}

void* CDynamicObject::GetInterface(const char* name)
{
    return const_cast<void*>(static_cast<const CDynamicObject*>(this)->GetInterface(name));
}

void CDynamicObject::Clear()
{
    interfaces.clear();
    // Later objects may stand on earlier ones.
    while (!objects.empty())
    {
        objects.pop_back();
    }
}

bool CDynamicObject::IsOwned(const void* identity) const
{
    return std::any_of(objects.begin(), objects.end(),
                       [identity](const COwned& item) { return item.identity == identity; });
}

void CDynamicObject::Enter(const char* name, void* pointer)
{
    if (name != nullptr)
    {
        interfaces.insert_or_assign(name, pointer);
    }
}

} // namespace Mirel::Runtime
