#include "Mirel/SkinEngine/Model/CSkinCollection.h"

#include <algorithm>
#include <utility>

namespace Mirel::SkinEngine
{

CSkinCollection::CSkinCollection(std::shared_ptr<CSkinCollectionContext> context_, const char* id_,
                                 const char* itemName_, int minCount_, int maxCount_)
    : CSkinCollectionBase(std::move(context_), id_, itemName_),
      minCount(minCount_),
      maxCount(maxCount_)
{
}

int CSkinCollection::ClampCount(int wanted) const
{
    return std::max(std::min(maxCount, std::max(wanted, minCount)), 0);
}

void CSkinCollection::SetCount(int newCount)
{
    const int wanted = ClampCount(newCount);
    if (GetContext().IsChanging())
    {
        GetContext().Request(*this, wanted);
    }
    else
    {
        ApplyCount(wanted);
    }
}

int CSkinCollection::GetAskedCount() const
{
    return GetContext().FindRequest(*this).value_or(GetTargetCount());
}

} // namespace Mirel::SkinEngine
