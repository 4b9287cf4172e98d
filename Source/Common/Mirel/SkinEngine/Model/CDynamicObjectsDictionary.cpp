#include "Mirel/SkinEngine/Model/CDynamicObjectsDictionary.h"

#include <string>
#include <utility>

namespace Mirel::SkinEngine
{

class CDynamicObjectsDictionary::CIterator : public ISkinDynamicObjectsIterator
{
public:
    explicit CIterator(const CNode* first) : node(first) {}

    bool IsValid() const override { return node != nullptr; }
    void Next() override { node = node->newer; }
    const char* GetId() const override { return node->entry.id; }
    const Runtime::IDynamicObject& GetObject() const override { return *node->entry.object; }
    Runtime::IDynamicObject& GetObject() override { return *node->entry.object; }

private:
    const CNode* node;
};

CDynamicObjectsDictionary::~CDynamicObjectsDictionary()
{
    CDynamicObjectsDictionary::Clear();
}

void CDynamicObjectsDictionary::Clear()
{
    while (newest != nullptr)
    {
        CDynamicObjectsDictionary::Remove(newest->entry.id);
    }
}

bool CDynamicObjectsDictionary::Add(const char* id, Runtime::IDynamicObject* object, bool owned)
{
    if (id == nullptr || object == nullptr)
    {
        return false;
    }
    const auto [position, inserted] = entries.try_emplace(id);
    if (!inserted)
    {
        if (log != nullptr)
        {
            const std::string message =
                "'" + position->first + "' : this object identifier already exists, use another identifier.";
            log->Post(CoreUtilities::CMessageKind::Error, message.c_str(), 0);
        }
        return false;
    }
    CNode& node = position->second;
    node.entry = {position->first.c_str(), object, owned};
    node.older = newest;
    (newest == nullptr ? oldest : newest->newer) = &node;
    newest = &node;
    // A copy: a listener may take the entry out again.
    const CDictionaryEntry entry = node.entry;
    added.Notify(entry);
    return true;
}

CDynamicObjectsDictionary::CEntries::node_type CDynamicObjectsDictionary::TakeOut(const char* id)
{
    const auto position = id == nullptr ? entries.end() : entries.find(id);
    if (position == entries.end())
    {
        return {};
    }
    const CNode& node = position->second;
    (node.older == nullptr ? oldest : node.older->newer) = node.newer;
    (node.newer == nullptr ? newest : node.newer->older) = node.older;
    return entries.extract(position);
}

Runtime::IDynamicObject* CDynamicObjectsDictionary::Detach(const char* id, bool& owned)
{
    const CEntries::node_type taken = TakeOut(id);
    if (taken.empty())
    {
        return nullptr;
    }
    const CDictionaryEntry& entry = taken.mapped().entry;
    removed.Notify(entry);
    owned = entry.owned;
    return entry.object;
}

bool CDynamicObjectsDictionary::Remove(const char* id)
{
    const CEntries::node_type taken = TakeOut(id);
    if (taken.empty())
    {
        return false;
    }
    const CDictionaryEntry& entry = taken.mapped().entry;
    removed.Notify(entry);
    if (entry.owned)
    {
        delete entry.object;
    }
    return true;
}

Runtime::IDynamicObject* CDynamicObjectsDictionary::Find(const char* id)
{
    return const_cast<Runtime::IDynamicObject*>(std::as_const(*this).Find(id));
}

const Runtime::IDynamicObject* CDynamicObjectsDictionary::Find(const char* id) const
{
    const auto position = id == nullptr ? entries.end() : entries.find(id);
    return position == entries.end() ? nullptr : position->second.entry.object;
}

ISkinDynamicObjectsIterator* CDynamicObjectsDictionary::CreateIterator()
{
    return new CIterator(oldest);
}

ISkinDynamicObjectsConstIterator* CDynamicObjectsDictionary::CreateIterator() const
{
    return new CIterator(oldest);
}

} // namespace Mirel::SkinEngine
