#include "Mirel/SkinEngine/Model/CSkinModel.h"

#include "Mirel/Core/CLateDestruction.h"
#include "Mirel/SkinEngine/Model/StateTransfer.h"

#include <utility>

namespace Mirel::SkinEngine
{

namespace
{

/// Destroys the items of a list, the latest first: later ones may stand on earlier ones.
template <class T>
void DestroyAll(std::vector<std::unique_ptr<T>>& list)
{
    while (!list.empty())
    {
        const std::unique_ptr<T> last = std::move(list.back());
        list.pop_back();
    }
}

} // namespace

/// What a cleared model has owned, which points to nothing outside any more.
class CSkinModel::CRemains : public Core::IDestroy
{
public:
    CRemains() = default;
    CRemains(const CRemains&) = delete;
    CRemains& operator=(const CRemains&) = delete;

    /// Objects that show a link's switches listen to the link.
    ~CRemains() override
    {
        DestroyAll(ownedObjects);
        DestroyAll(connections);
        DestroyAll(links);
    }

    std::vector<std::unique_ptr<Core::IDestroy>> ownedObjects;
    std::vector<std::unique_ptr<IModelConnection>> connections;
    std::vector<std::unique_ptr<Core::IEnable>> links;
};

CSkinModel::CSkinModel(CoreUtilities::IMessageLog* log) : objects(log)
{
    objects.GetRemovedEventProvider().Connect(removed);
    persistent.GetRemovedEventProvider().Connect(untracked);
}

CSkinModel::~CSkinModel()
{
    CSkinModel::Clear();
}

bool CSkinModel::AddObject(const char* objectId, Runtime::IDynamicObject* object, bool owned)
{
    if (objects.Add(objectId, object, owned))
    {
        return true;
    }
    if (owned)
    {
        delete object;
    }
    return false;
}

void CSkinModel::AddLink(Core::IEnable* link)
{
    links.emplace_back(link);
}

void CSkinModel::AddConnection(IModelConnection* connection)
{
    connections.emplace_back(connection);
}

void CSkinModel::AddOwned(Core::IDestroy* object)
{
    ownedObjects.emplace_back(object);
}

bool CSkinModel::MakePersistent(const char* objectId, bool linked)
{
    Runtime::IDynamicObject* object = objects.Find(objectId);
    if (object == nullptr || !persistent.Add(objectId, object, false))
    {
        return false;
    }
    if (linked)
    {
        tracker.Track(objectId, *object);
    }
    return true;
}

bool CSkinModel::Expose(const char* objectId)
{
    Runtime::IDynamicObject* object = objects.Find(objectId);
    return object != nullptr && exposed.Add(objectId, object, false);
}

bool CSkinModel::RemoveObject(const char* objectId)
{
    return objects.Remove(objectId);
}

void CSkinModel::TakeState(CState& state) const
{
    TakeValues(persistent, state);
}

void CSkinModel::RestoreState(const CState& state)
{
    RestoreValues(persistent, state);
    tracker.SetModified(false);
}

bool CSkinModel::Serialize(Serialization::IWriteDataStream& stream) const
{
    CState state;
    TakeState(state);
    return stream.Write("state", static_cast<const Serialization::ISerialize&>(state));
}

bool CSkinModel::Deserialize(const Serialization::IReadDataStream& stream)
{
    CState state;
    const bool read = stream.Read("state", static_cast<Serialization::IDeSerialize&>(state));
    RestoreState(state);
    return read;
}

void CSkinModel::SetId(const char* newId)
{
    id = newId == nullptr ? "" : newId;
}

void CSkinModel::Clear()
{
    alive.Enable(false);
    for (const auto& link : links)
    {
        link->Enable(false);
    }
    for (const auto& connection : connections)
    {
        connection->LetGo();
    }
    persistent.Clear();
    exposed.Clear();
    objects.Clear();
    // One of them may be telling its listeners at this moment, as an item's parameter that takes the item
    // away.
    auto remains = std::make_unique<CRemains>();
    std::swap(remains->links, links);
    std::swap(remains->connections, connections);
    std::swap(remains->ownedObjects, ownedObjects);
    Core::CLateDestruction::Destroy(std::move(remains));
}

void CSkinModel::OnRemoved(const CDictionaryEntry& entry)
{
    persistent.Remove(entry.id);
    exposed.Remove(entry.id);
}

void CSkinModel::OnNoLongerPersistent(const CDictionaryEntry& entry)
{
    tracker.Forget(entry.id);
}

} // namespace Mirel::SkinEngine
