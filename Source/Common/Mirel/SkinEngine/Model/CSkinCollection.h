#pragma once

#include "Mirel/SkinEngine/Model/CSkinCollectionBase.h"

namespace Mirel::SkinEngine
{

/// A collection whose count is set from outside: by its file, a parameter or a saved state. GUI thread only.
class CSkinCollection : public CSkinCollectionBase, public virtual ICount
{
public:
    /// The count is held between both ends. A null item name gives the default one.
    CSkinCollection(std::shared_ptr<CSkinCollectionContext> context_, const char* id_, const char* itemName_,
                    int minCount_, int maxCount_);

    int GetMinCount() const { return minCount; }
    int GetMaxCount() const { return maxCount; }

    /// The smaller of the maximum and the greater of count and minimum, and 0 at least.
    int ClampCount(int wanted) const;

    void SetCount(int newCount) override;

    /// What the count was last set to, where a change under way still has to come to it; else the count.
    int GetAskedCount() const;

private:
    int minCount;
    int maxCount;
};

} // namespace Mirel::SkinEngine
