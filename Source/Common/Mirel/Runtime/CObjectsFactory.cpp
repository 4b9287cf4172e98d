#include "Mirel/Runtime/CObjectsFactory.h"

#include <string>

namespace Mirel::Runtime
{

namespace
{

std::string PairKey(const char* classKey, const char* interfaceKey)
{
    std::string key = classKey;
    key += '-';
    key += interfaceKey;
    return key;
}

} // namespace

CObjectsFactory& CObjectsFactory::Instance()
{
    static CObjectsFactory instance;
    return instance;
}

void* CObjectsFactory::Create(const char* classKey, const char* interfaceKey) const
{
    const IObjectFactory* factory = Find(classKey, interfaceKey);
    return factory == nullptr ? nullptr : factory->Create();
}

const IObjectFactory* CObjectsFactory::Find(const char* classKey, const char* interfaceKey) const
{
    if (classKey == nullptr || interfaceKey == nullptr)
    {
        return nullptr;
    }
    const auto entry = factories.find(PairKey(classKey, interfaceKey));
    return entry == factories.end() ? nullptr : entry->second;
}

bool CObjectsFactory::Register(const char* classKey, const char* interfaceKey, const IObjectFactory& factory)
{
    if (classKey == nullptr || interfaceKey == nullptr)
    {
        return false;
    }
    return factories.try_emplace(PairKey(classKey, interfaceKey), &factory).second;
}

} // namespace Mirel::Runtime
