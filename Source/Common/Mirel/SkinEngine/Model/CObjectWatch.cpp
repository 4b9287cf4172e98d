#include "Mirel/SkinEngine/Model/CObjectWatch.h"

#include <algorithm>

namespace Mirel::SkinEngine
{

void CObjectWatch::Add(const std::string& id, IObjectWatcher& watcher)
{
    Listen(true);
    watched[id].list.push_back(&watcher);
}

void CObjectWatch::Remove(const std::string& id, const IObjectWatcher& watcher)
{
    const auto found = watched.find(id);
    if (found == watched.end())
    {
        return;
    }
    std::replace(found->second.list.begin(), found->second.list.end(), const_cast<IObjectWatcher*>(&watcher),
                 static_cast<IObjectWatcher*>(nullptr));
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

/// Those that come during a delivery have looked for themselves.
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
    const std::size_t count = watchers.list.size();
    for (std::size_t i = 0; i < count; ++i)
    {
        if (IObjectWatcher* watcher = watchers.list[i])
        {
            call(*watcher);
        }
    }
    --watchers.deliveries;
    TidyUp(found);
}

void CObjectWatch::TidyUp(CMap::iterator watchers)
{
    if (watchers->second.deliveries > 0)
    {
        return;
    }
    std::erase(watchers->second.list, nullptr);
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
