#include "Mirel/SkinEngine/Model/CObjectWatch.h"

namespace Mirel::SkinEngine
{

CObjectWatch::CPlace CObjectWatch::Add(const std::string& id, IObjectWatcher& watcher)
{
    Listen(true);
    std::list<IObjectWatcher*>& list = watched[id].list;
    return list.insert(list.end(), &watcher);
}

void CObjectWatch::Remove(const std::string& id, CPlace place)
{
    const auto found = watched.find(id);
    if (found->second.deliveries > 0)
    {
        *place = nullptr;
        return;
    }
    found->second.list.erase(place);
    TidyUp(found);
}

void CObjectWatch::Listen(bool listen)
{
    if (listening == listen)
    {
        return;
    }
    listening = listen;
    if (listen)
    {
        dictionary.GetAddedEventProvider().Connect(added);
        dictionary.GetRemovedEventProvider().Connect(removed);
    }
    else
    {
        dictionary.GetAddedEventProvider().Disconnect(&added);
        dictionary.GetRemovedEventProvider().Disconnect(&removed);
    }
}

void CObjectWatch::OnAdded(const CDictionaryEntry& entry)
{
    Deliver(entry.id, [&entry](IObjectWatcher& watcher) { watcher.OnObjectAdded(*entry.object); });
}

void CObjectWatch::OnRemoved(const CDictionaryEntry& entry)
{
    Deliver(entry.id, [](IObjectWatcher& watcher) { watcher.OnObjectRemoved(); });
}

/// Those that come during a delivery have looked for themselves, and need not be told.
template <class F>
void CObjectWatch::Deliver(const char* id, const F& call)
{
    const auto found = watched.find(std::string_view(id));
    if (found == watched.end())
    {
        return;
    }
    CWatchers& watchers = found->second;
    ++watchers.deliveries;
    for (IObjectWatcher* watcher : watchers.list)
    {
        if (watcher != nullptr)
        {
            call(*watcher);
        }
    }
    if (--watchers.deliveries == 0)
    {
        watchers.list.remove(nullptr);
        TidyUp(found);
    }
}

void CObjectWatch::TidyUp(CMap::iterator watchers)
{
    if (watchers->second.list.empty())
    {
        watched.erase(watchers);
        if (watched.empty())
        {
            Listen(false);
        }
    }
}

} // namespace Mirel::SkinEngine
