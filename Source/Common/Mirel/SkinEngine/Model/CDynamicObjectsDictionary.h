#pragma once

#include "Mirel/Containers/TStringMap.h"
#include "Mirel/Core/TArgEventProvider.h"
#include "Mirel/SkinEngine/Model/ISkinDynamicObjectsDictionary.h"

namespace Mirel::SkinEngine
{

/// A hash map from identifier to object that keeps the order of addition, so that what is walked, as for a
/// state, comes in the order of the model's file. GUI thread only.
class CDynamicObjectsDictionary : public ISkinDynamicObjectsDictionary
{
public:
    /// The log is not owned and may be null.
    explicit CDynamicObjectsDictionary(CoreUtilities::IMessageLog* log_ = nullptr) : log(log_) {}
    CDynamicObjectsDictionary(const CDynamicObjectsDictionary&) = delete;
    CDynamicObjectsDictionary& operator=(const CDynamicObjectsDictionary&) = delete;

    /// Tells the listeners of each removal, as Clear does.
    ~CDynamicObjectsDictionary() override;

    void Clear() override;
    bool Add(const char* id, Runtime::IDynamicObject* object, bool owned) override;
    Runtime::IDynamicObject* Detach(const char* id, bool& owned) override;
    bool Remove(const char* id) override;
    Runtime::IDynamicObject* Find(const char* id) override;
    const Runtime::IDynamicObject* Find(const char* id) const override;
    ISkinDynamicObjectsIterator* CreateIterator() override;
    ISkinDynamicObjectsConstIterator* CreateIterator() const override;

    CoreUtilities::IMessageLog* GetLog() const override { return log; }
    void SetLog(CoreUtilities::IMessageLog* newLog) override { log = newLog; }
    int GetCount() const override { return static_cast<int>(entries.size()); }

    Core::TIArgEventProvider<const CDictionaryEntry&>& GetAddedEventProvider() const override
    {
        return added;
    }
    Core::TIArgEventProvider<const CDictionaryEntry&>& GetRemovedEventProvider() const override
    {
        return removed;
    }

private:
    /// What stands under an id, in a chain of all entries by age. The map's nodes stay where they are.
    struct CNode
    {
        CDictionaryEntry entry{};
        CNode* older = nullptr;
        CNode* newer = nullptr;
    };
    using CEntries = Containers::TStringMap<CNode>;
    class CIterator;

    /// The entry, out of the map and the chain but with its text alive; empty if there is none.
    CEntries::node_type TakeOut(const char* id);

    CEntries entries;
    CNode* oldest = nullptr;
    CNode* newest = nullptr;
    CoreUtilities::IMessageLog* log;
    // Listening changes nothing of the dictionary.
    mutable Core::TArgEventProvider<const CDictionaryEntry&> added;
    mutable Core::TArgEventProvider<const CDictionaryEntry&> removed;
};

} // namespace Mirel::SkinEngine
