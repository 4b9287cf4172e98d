#include "Mirel/SkinEngine/Model/CForEachSkinCollection.h"

#include <algorithm>
#include <utility>

namespace Mirel::SkinEngine
{

CForEachSkinCollection::CForEachSkinCollection(std::shared_ptr<CSkinCollectionContext> context_,
                                               const char* id_, const char* itemName_)
    : CSkinCollectionBase(std::move(context_), id_, itemName_)
{
}

CForEachSkinCollection::~CForEachSkinCollection()
{
    for (const CSource& source : sources)
    {
        Listen(*source.collection, false);
    }
}

void CForEachSkinCollection::Connect(IConstCollection& source, const char* sourceId)
{
    if (!IsSource(source))
    {
        Listen(source, true);
    }
    sources.push_back({sourceId, &source});
    Recompute();
}

void CForEachSkinCollection::Disconnect(IConstCollection& source, const char* sourceId)
{
    std::erase_if(sources,
                  [&](const CSource& each) { return each.collection == &source && each.id == sourceId; });
    if (!IsSource(source))
    {
        Listen(source, false);
    }
    Recompute();
}

void CForEachSkinCollection::FillItemAttributes(Containers::CNamedAttributes& attributes, int index) const
{
    for (const CSource& source : sources)
    {
        attributes.Set(GetSourceItemName(source.id.c_str(), GetItemName()).c_str(),
                       GetItemText(source.id.c_str(), index).c_str());
    }
}

bool CForEachSkinCollection::IsSource(const IConstCollection& collection) const
{
    return std::any_of(sources.begin(), sources.end(),
                       [&](const CSource& each) { return each.collection == &collection; });
}

void CForEachSkinCollection::Listen(const IConstCollection& source, bool listen)
{
    if (listen)
    {
        source.GetBeforeCountChangeEventProvider().Connect(beforeChange);
        source.GetCountChangedEventProvider().Connect(changed);
    }
    else
    {
        source.GetBeforeCountChangeEventProvider().Disconnect(&beforeChange);
        source.GetCountChangedEventProvider().Disconnect(&changed);
    }
}

void CForEachSkinCollection::Recompute()
{
    int smallest = 0;
    for (std::size_t i = 0; i < sources.size(); ++i)
    {
        const int sourceCount = sources[i].collection->GetCount();
        smallest = i == 0 ? sourceCount : std::min(smallest, sourceCount);
    }
    ApplyCount(smallest);
}

std::string GetSourceItemName(const char* sourceId, const char* itemName)
{
    return std::string(sourceId) + "_" + itemName;
}

} // namespace Mirel::SkinEngine
