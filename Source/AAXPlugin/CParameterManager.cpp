#include "AAXPlugin/CParameterManager.h"

namespace MirelExt::AAXPlugin
{

void CParameterManager::BuildTable()
{
    table.clear();
    for (int i = 0; i < GetCount(); ++i)
    {
        table.try_emplace((*this)[i].GetIdentifier(), i);
    }
}

void CParameterManager::Clear()
{
    table.clear();
    parameters.clear();
}

int CParameterManager::FindIndex(const char* identifier) const
{
    const auto found = identifier != nullptr ? table.find(identifier) : table.end();
    return found != table.end() ? found->second : -1;
}

CAAXPluginParameter* CParameterManager::Find(const char* identifier) const
{
    const int index = FindIndex(identifier);
    return index >= 0 ? &(*this)[index] : nullptr;
}

} // namespace MirelExt::AAXPlugin
