#include "Mirel/SkinEngine/Model/CSkinCollectionBase.h"

#include <algorithm>
#include <utility>

namespace Mirel::SkinEngine
{

CSkinCollectionBase::CSkinCollectionBase(std::shared_ptr<CSkinCollectionContext> context_, const char* id_,
                                         const char* itemName_)
    : context(std::move(context_)),
      id(id_ == nullptr ? "" : id_),
      itemName(itemName_ == nullptr ? defaultItemName : itemName_)
{
}

CSkinCollectionBase::~CSkinCollectionBase()
{
    DestroyItems();
    context->Forget(*this);
}

void CSkinCollectionBase::SetItemFactory(std::unique_ptr<ISkinCollectionItemFactory> newFactory)
{
    DestroyItems();
    factory = std::move(newFactory);
}

ISkinCollectionItem* CSkinCollectionBase::GetItem(int index) const
{
    return factory == nullptr ? nullptr : factory->GetItem(index);
}

void CSkinCollectionBase::FillItemAttributes(Containers::CNamedAttributes&, int) const {}

void CSkinCollectionBase::ApplyCount(int newCount)
{
    newCount = std::max(newCount, 0);
    if (factory == nullptr || factory->GetCount() == newCount || (!growing && newCount > count))
    {
        return;
    }
    if (changing)
    {
        // One that follows a collection of its own items comes here.
        context->Request(*this, newCount);
        return;
    }
    const Core::CLifeToken::CWatch watch(life);
    const std::shared_ptr<CSkinCollectionContext> keptContext = context;
    const CSkinCollectionContext::CChange change(*keptContext);
    const int before = count;
    targetCount = newCount;
    changing = true;
    beforeChange.Notify(newCount);
    // One that follows this may have let the very item go in which this stands.
    if (!watch.IsAlive())
    {
        return;
    }
    if (factory != nullptr)
    {
        newCount < before ? Shrink(newCount) : Grow(newCount);
    }
    changing = false;
    targetCount = count;
    if (count != before)
    {
        changed.Notify();
    }
}

void CSkinCollectionBase::UnloadItemsFrom(int first)
{
    for (int i = std::max(first, 0); factory != nullptr && i < factory->GetCount(); ++i)
    {
        if (ISkinCollectionItem* item = factory->GetItem(i))
        {
            item->Unload();
        }
    }
}

/// All items are unloaded before the first is destroyed: they may hold something of one another.
void CSkinCollectionBase::Shrink(int newCount)
{
    const int oldCount = factory->GetCount();
    factory->Prepare(newCount - oldCount);
    UnloadItemsFrom(newCount);
    for (int i = newCount; i < oldCount; ++i)
    {
        factory->DestroyItem(i);
        context->ReleaseItem();
    }
    factory->Commit(newCount - oldCount);
    count = newCount;
}

void CSkinCollectionBase::Grow(int newCount)
{
    const int oldCount = factory->GetCount();
    factory->Prepare(newCount - oldCount);
    int next = oldCount;
    for (; next < newCount && context->TakeItem(); ++next)
    {
        Containers::CNamedAttributes attributes;
        attributes.Set(GetItemName(), GetItemText(GetId(), next).c_str());
        FillItemAttributes(attributes, next);
        factory->CreateItem(next, attributes);
    }
    factory->Commit(next - oldCount);
    count = next;
}

void CSkinCollectionBase::DestroyItems()
{
    if (factory != nullptr && factory->GetCount() > 0)
    {
        const bool grows = std::exchange(growing, false);
        {
            const CSkinCollectionContext::CChange change(*context);
            targetCount = 0;
            changing = true;
            beforeChange.Notify(0);
            if (factory != nullptr)
            {
                Shrink(0);
            }
            changing = false;
            changed.Notify();
        }
        growing = grows;
    }
}

std::string GetItemText(const char* collectionId, int index)
{
    return std::string(collectionId) + "[" + (index < 0 ? "*" : std::to_string(index)) + "]";
}

} // namespace Mirel::SkinEngine
