#include "Mirel/SkinEngine/Model/CSkinCollectionContext.h"

#include "Mirel/SkinEngine/Model/CSkinCollectionBase.h"
#include "Mirel/SkinEngine/Model/CollectionLimits.h"

#include <algorithm>

namespace Mirel::SkinEngine
{

CSkinCollectionContext::CChange::CChange(CSkinCollectionContext& context_) : context(context_)
{
    if (context.changes++ == 0)
    {
        context.itemsInChange = 0;
        context.elementsInChange = 0;
    }
}

CSkinCollectionContext::CChange::~CChange()
{
    if (context.changes == 1)
    {
        context.EndChange();
    }
    --context.changes;
}

void CSkinCollectionContext::Request(CSkinCollectionBase& collection, int count)
{
    const auto known = std::find_if(requests.begin(), requests.end(),
                                    [&](const CRequest& each) { return each.collection == &collection; });
    if (known == requests.end())
    {
        requests.push_back({&collection, count});
    }
    else
    {
        known->count = count;
    }
}

std::optional<int> CSkinCollectionContext::FindRequest(const CSkinCollectionBase& collection) const
{
    const auto found = std::find_if(requests.begin(), requests.end(),
                                    [&](const CRequest& each) { return each.collection == &collection; });
    return found == requests.end() ? std::nullopt : std::optional(found->count);
}

void CSkinCollectionContext::Forget(const CSkinCollectionBase& collection)
{
    for (CRequest& request : requests)
    {
        if (request.collection == &collection)
        {
            request.collection = nullptr;
        }
    }
}

void CSkinCollectionContext::Forget(IEndListener& listener)
{
    std::replace(endListeners.begin(), endListeners.end(), &listener, static_cast<IEndListener*>(nullptr));
}

/// Who is told of the end may ask for other counts in turn.
void CSkinCollectionContext::EndChange()
{
    RunRequests();
    for (std::size_t i = 0; i < endListeners.size(); ++i)
    {
        if (IEndListener* const listener = std::exchange(endListeners[i], nullptr))
        {
            listener->OnChangesEnded();
            RunRequests();
        }
    }
    endListeners.clear();
    Report();
}

/// Requests that the changes here bring about are carried out as well. The items that may be made in one
/// change bound them: a count cannot go to and fro without making any.
void CSkinCollectionContext::RunRequests()
{
    for (std::size_t i = 0; i < requests.size(); ++i)
    {
        const CRequest request = requests[i];
        requests[i].collection = nullptr;
        if (request.collection != nullptr)
        {
            request.collection->ApplyCount(request.count);
        }
    }
    requests.clear();
}

bool CSkinCollectionContext::TakeItem()
{
    if (IsExhausted())
    {
        refused = true;
        return false;
    }
    ++items;
    ++itemsInChange;
    return true;
}

bool CSkinCollectionContext::TakeElements(int count)
{
    if (count > maxCollectionElements - elements)
    {
        refused = true;
        return false;
    }
    AddElements(count);
    return true;
}

void CSkinCollectionContext::AddElements(int count)
{
    elements += count;
    elementsInChange += count;
}

bool CSkinCollectionContext::IsExhausted() const
{
    return items >= maxCollectionItems || elements >= maxCollectionElements ||
           changes > maxNestedCollections || itemsInChange >= maxItemsPerChange ||
           elementsInChange >= maxElementsPerChange;
}

void CSkinCollectionContext::Report()
{
    CoreUtilities::IMessageLog* log = refused && !reported ? findLog() : nullptr;
    if (log != nullptr)
    {
        reported = true;
        log->Post(CoreUtilities::CMessageKind::Error,
                  "The collections have too many items in all: some are left out or incomplete.", 0);
    }
}

} // namespace Mirel::SkinEngine
