#include "Mirel/SkinEngine/Model/CSkinModelCollectionItem.h"

#include <utility>

namespace Mirel::SkinEngine
{

CSkinModelCollectionItem::~CSkinModelCollectionItem()
{
    CSkinModelCollectionItem::Unload();
}

void CSkinModelCollectionItem::Unload()
{
    {
        const std::unique_ptr<ISkinDynamicObjectsIterator> entry(model.GetObjects().CreateIterator());
        for (; entry->IsValid(); entry->Next())
        {
            // The name may have been another's already.
            if (parent.GetObjects().Find(entry->GetId()) == &entry->GetObject())
            {
                parent.RemoveObject(entry->GetId());
            }
        }
    }
    model.Clear();
    context->ReleaseElements(std::exchange(elements, 0));
}

} // namespace Mirel::SkinEngine
