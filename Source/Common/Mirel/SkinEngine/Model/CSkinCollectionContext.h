#pragma once

#include "Mirel/CoreUtilities/IMessageLog.h"

#include <cstddef>
#include <vector>

namespace Mirel::SkinEngine
{

class CSkinCollectionBase;

/// What all collections of one model, or of one skin, have in common: how much they may make in all, and the
/// order in which their counts change. Lives as long as the last of them. GUI thread only.
///
/// While items are made or unloaded, their links may ask for other counts, and even for one that takes the
/// very item away whose link asks. Such requests wait until the change under way is over.
class CSkinCollectionContext
{
public:
    CSkinCollectionContext() = default;
    CSkinCollectionContext(const CSkinCollectionContext&) = delete;
    CSkinCollectionContext& operator=(const CSkinCollectionContext&) = delete;

    /// Where a limit that was met is reported, once for all collections; not owned, null for nowhere.
    void SetLog(CoreUtilities::IMessageLog* newLog) { log = newLog; }
    CoreUtilities::IMessageLog* GetLog() const { return log; }

    /// A change of a count and all that it sets off. The outermost one carries out the requests that have
    /// come in meanwhile when it ends.
    class CChange
    {
    public:
        explicit CChange(CSkinCollectionContext& context_);
        CChange(const CChange&) = delete;
        CChange& operator=(const CChange&) = delete;
        ~CChange();

    private:
        CSkinCollectionContext& context;
    };

    bool IsChanging() const { return changes > 0; }

    /// Notes a count for when the present change is over. The latest request of a collection counts.
    void Request(CSkinCollectionBase& collection, int count);

    /// For a collection that goes away.
    void Forget(const CSkinCollectionBase& collection);

    /// One more item. False, with a report, where there may be none.
    bool TakeItem();
    void ReleaseItem() { --items; }

    /// One more element inside an item. False, with a report, where there may be none.
    bool TakeElement();
    void ReleaseElements(int count) { elements -= count; }

    /// Whether no item can be made that would hold anything.
    bool IsExhausted() const;

    int GetItems() const { return items; }
    int GetElements() const { return elements; }

private:
    struct CRequest
    {
        CSkinCollectionBase* collection; ///< Null once it has gone.
        int count;
    };

    void RunRequests();
    void Report();

    CoreUtilities::IMessageLog* log = nullptr;
    std::vector<CRequest> requests;
    int changes = 0; ///< Under way, one inside the other.
    int items = 0;
    int elements = 0;
    int itemsInChange = 0; ///< Made since the outermost change began.
    bool reported = false;
};

} // namespace Mirel::SkinEngine
