#pragma once

#include "Mirel/SkinEngine/Model/CSkinCollectionContext.h"
#include "Mirel/SkinEngine/Model/ISkinCollectionItem.h"
#include "Mirel/SkinEngine/UI/CGUISkinData.h"
#include "Mirel/SkinEngine/UI/CLayoutPause.h"

#include <memory>
#include <utility>

namespace Mirel::SkinEngine
{

/// An item of a collection in a skin: a group of widgets, which stand among those of the skin. GUI thread
/// only.
class CSkinUICollectionItem : public ISkinCollectionItem
{
public:
    /// The model around the skin, and the pause of the group that the item stands in; not owned, both must
    /// outlive the item.
    CSkinUICollectionItem(ISkinModel& whole, std::shared_ptr<CSkinCollectionContext> context_,
                          CLayoutPause& pause_)
        : data(whole),
          context(std::move(context_)),
          pause(pause_)
    {
    }
    CSkinUICollectionItem(const CSkinUICollectionItem&) = delete;
    CSkinUICollectionItem& operator=(const CSkinUICollectionItem&) = delete;
    ~CSkinUICollectionItem() override { CSkinUICollectionItem::Unload(); }

    CGUISkinData& GetData() { return data; }
    const CGUISkinData& GetData() const { return data; }

    /// Notes what the item holds, for as long as it is loaded.
    void SetElements(int count) { elements = count; }

    void Unload() override
    {
        pause.Begin();
        data.Clear();
        context->ReleaseElements(std::exchange(elements, 0));
    }

private:
    CGUISkinData data;
    std::shared_ptr<CSkinCollectionContext> context;
    CLayoutPause& pause;
    int elements = 0;
};

} // namespace Mirel::SkinEngine
