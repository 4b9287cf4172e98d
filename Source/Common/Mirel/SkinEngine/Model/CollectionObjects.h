#pragma once

#include "Mirel/SkinEngine/Model/CForEachSkinCollection.h"
#include "Mirel/SkinEngine/Model/CSkinCollection.h"
#include "Mirel/SkinEngine/Model/ConnectCommands.h"

namespace Mirel::SkinEngine
{

// What collections show of themselves in a model, in either dialect.

/// Gives a collection its first count. At once, also where a change of counts is under way, as it is inside
/// an item: what the item links may be in these items.
class CCountCommand : public CModelCommand
{
public:
    CCountCommand(CSkinCollection& collection_, int count_) : collection(collection_), count(count_) {}

    bool Execute() override
    {
        collection.ApplyCount(collection.ClampCount(count));
        return true;
    }

private:
    CSkinCollection& collection;
    int count;
};

// Enter a collection under its id, if it has one, and its count as a parameter, if anybody wants that. The
// collection must live as long as the model. False if an identifier is taken.
bool AddCollection(ISkinModel& model, const ISkinModelExposure& exposure, CSkinCollection& collection,
                   int count);
bool AddFollower(ISkinModel& model, const ISkinModelExposure& exposure, CForEachSkinCollection& collection);

} // namespace Mirel::SkinEngine
