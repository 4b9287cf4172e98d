#include "AAXPlugin/CHostHolder.h"

#include "AAXPlugin/Interface/IACFUnknown.h"

#include <mutex>

namespace MirelExt::AAXPlugin
{

namespace
{

std::mutex holderMutex;

} // namespace

CHostHolder& CHostHolder::GetInstance()
{
    static CHostHolder holder;
    return holder;
}

void CHostHolder::Set(IACFUnknown* newHost)
{
    const std::lock_guard lock(holderMutex);
    if (host == nullptr && newHost != nullptr)
    {
        newHost->AddReference();
        host = newHost;
    }
}

void CHostHolder::Clear()
{
    IACFUnknown* old = nullptr;
    {
        const std::lock_guard lock(holderMutex);
        old = std::exchange(host, nullptr);
    }
    if (old != nullptr)
    {
        old->Release();
    }
}

TACFReference<IACFUnknown> CHostHolder::Get() const
{
    const std::lock_guard lock(holderMutex);
    return TACFReference<IACFUnknown>(host);
}

} // namespace MirelExt::AAXPlugin
