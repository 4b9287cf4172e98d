#pragma once

#include "Mirel/Containers/TStringMap.h"
#include "Mirel/Core/TArgCommand.h"
#include "Mirel/SkinEngine/Model/ISkinDynamicObjectsDictionary.h"

#include <list>
#include <string>

namespace Mirel::SkinEngine
{

/// One who holds an object of a dictionary directly and has to know when it goes and whether it comes back.
class IObjectWatcher
{
public:
    /// The object is in the dictionary now.
    virtual void OnObjectAdded(Runtime::IDynamicObject& object) = 0;

    /// The object is no longer there, and is about to be destroyed.
    virtual void OnObjectRemoved() = 0;
    virtual ~IObjectWatcher() = default;
};

/// Tells the watchers of an identifier when its object comes and goes, as those in items of collections do.
/// The dictionary must outlive the last watcher. GUI thread only.
class CObjectWatch
{
public:
    explicit CObjectWatch(ISkinDynamicObjectsDictionary& dictionary_) : dictionary(dictionary_) {}
    CObjectWatch(const CObjectWatch&) = delete;
    CObjectWatch& operator=(const CObjectWatch&) = delete;
    ~CObjectWatch() { Listen(false); }

    ISkinDynamicObjectsDictionary& GetDictionary() const { return dictionary; }

    using CPlace = std::list<IObjectWatcher*>::iterator;

    /// The watcher is not owned and must be removed before it goes away, which it may do at any time: the
    /// place that comes back is for that.
    CPlace Add(const std::string& id, IObjectWatcher& watcher);
    void Remove(const std::string& id, CPlace place);

private:
    struct CWatchers
    {
        std::list<IObjectWatcher*> list; ///< Null for one who was removed during a delivery.
        int deliveries = 0;
    };
    using CMap = Containers::TStringMap<CWatchers>;

    void Listen(bool listen);
    void OnAdded(const CDictionaryEntry& entry);
    void OnRemoved(const CDictionaryEntry& entry);
    template <class F>
    void Deliver(const char* id, const F& call);
    void TidyUp(CMap::iterator watchers);

    ISkinDynamicObjectsDictionary& dictionary;
    CMap watched;
    bool listening = false;
    Core::TArgCommand<CObjectWatch, const CDictionaryEntry&> added{this, &CObjectWatch::OnAdded};
    Core::TArgCommand<CObjectWatch, const CDictionaryEntry&> removed{this, &CObjectWatch::OnRemoved};
};

} // namespace Mirel::SkinEngine
