#include "Mirel/SkinEngine/Model/CModelImport.h"

#include <memory>

namespace Mirel::SkinEngine
{

CModelImport::CModelImport(ISkinModel& source_, ISkinModel& target_) : source(source_), target(target_)
{
    const std::unique_ptr<ISkinDynamicObjectsIterator> entry(source.GetObjects().CreateIterator());
    for (; entry->IsValid(); entry->Next())
    {
        OnAdded({entry->GetId(), &entry->GetObject(), false});
    }
    source.GetObjects().GetAddedEventProvider().Connect(added);
    source.GetObjects().GetRemovedEventProvider().Connect(removed);
}

CModelImport::~CModelImport()
{
    source.GetObjects().GetAddedEventProvider().Disconnect(&added);
    source.GetObjects().GetRemovedEventProvider().Disconnect(&removed);
}

void CModelImport::OnAdded(const CDictionaryEntry& entry)
{
    if (target.GetExposure().IsWanted(entry.id))
    {
        target.GetObjects().Add(entry.id, entry.object, false);
    }
}

void CModelImport::OnRemoved(const CDictionaryEntry& entry)
{
    if (target.GetObjects().Find(entry.id) == entry.object)
    {
        target.RemoveObject(entry.id);
    }
}

} // namespace Mirel::SkinEngine
