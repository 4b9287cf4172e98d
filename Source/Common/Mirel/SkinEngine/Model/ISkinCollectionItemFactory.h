#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/SkinEngine/Model/ISkinCollectionItem.h"

namespace Mirel::SkinEngine
{

/// Makes the items of one collection and owns them. Each dialect of the skin language has its own. A change
/// of the count is framed by Prepare and Commit. GUI thread only.
class ISkinCollectionItemFactory
{
public:
    /// The items that are there, unloaded ones included.
    virtual int GetCount() const = 0;

    virtual ~ISkinCollectionItemFactory() = default;

    /// delta is the wanted count minus the old one: it can be far more than will be made.
    virtual void Prepare(int delta) = 0;

    /// The index is the present count. The attributes are the parameters of the recorded body.
    virtual void CreateItem(int index, const Containers::CNamedAttributes& attributes) = 0;

    /// Items go from a lower index to a higher one, so that there are gaps until Commit.
    virtual void DestroyItem(int index) = 0;

    /// Null where there is none.
    virtual ISkinCollectionItem* GetItem(int index) const = 0;

    /// delta is that of the items that were made or destroyed: a limit may have cut the growth short.
    virtual void Commit(int delta) = 0;
};

} // namespace Mirel::SkinEngine
