#pragma once

#include "Mirel/CoreUtilities/IMessageLog.h"

#include <functional>
#include <optional>
#include <utility>
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
    /// Finds where a limit that was met is reported, which happens once for all collections; null for
    /// nowhere.
    using CFindLog = std::function<CoreUtilities::IMessageLog*()>;

    explicit CSkinCollectionContext(CFindLog findLog_) : findLog(std::move(findLog_)) {}
    CSkinCollectionContext(const CSkinCollectionContext&) = delete;
    CSkinCollectionContext& operator=(const CSkinCollectionContext&) = delete;

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

    /// Who puts something off until the change under way is over.
    class IEndListener
    {
    public:
        IEndListener() = default;
        IEndListener(const IEndListener&) = delete;
        IEndListener& operator=(const IEndListener&) = delete;
        virtual ~IEndListener() = default;

        virtual void OnChangesEnded() = 0;
    };

    /// Told once, when the outermost change and all requests are through. Not owned.
    void CallAtEnd(IEndListener& listener) { endListeners.push_back(&listener); }
    void Forget(IEndListener& listener);

    /// Notes a count for when the present change is over. The latest request of a collection counts.
    void Request(CSkinCollectionBase& collection, int count);

    /// The count that a collection waits for; none if it waits for none.
    std::optional<int> FindRequest(const CSkinCollectionBase& collection) const;

    /// For a collection that goes away.
    void Forget(const CSkinCollectionBase& collection);

    /// One more item. False where there may be none; that is reported when the change is over.
    bool TakeItem();
    void ReleaseItem() { --items; }

    /// More elements inside an item. False where there may not be so many; that is reported.
    bool TakeElements(int count);
    void AddElements(int count); ///< Whatever they come to.
    void ReleaseElements(int count) { elements -= count; }

    int GetItems() const { return items; }
    int GetElements() const { return elements; }

private:
    struct CRequest
    {
        CSkinCollectionBase* collection; ///< Null once it has gone.
        int count;
    };

    void EndChange();
    void RunRequests();
    void Report();
    bool IsExhausted() const;

    CFindLog findLog;
    std::vector<CRequest> requests;
    std::vector<IEndListener*> endListeners; ///< Null for who has gone.
    int changes = 0;                         ///< Under way, one inside the other.
    int items = 0;
    int elements = 0;
    int itemsInChange = 0; ///< Made since the outermost change began, like the next.
    int elementsInChange = 0;
    bool refused = false;
    bool reported = false;
};

} // namespace Mirel::SkinEngine
