#pragma once

#include "Mirel/SkinEngine/Model/CSkinCollectionContext.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/ISkinCollectionItem.h"

#include <memory>

namespace Mirel::SkinEngine
{

/// An item of a collection in a model file: a small model, whose objects stand in the model around it as
/// well. GUI thread only.
class CSkinModelCollectionItem : public ISkinCollectionItem
{
public:
    /// The parent is the model around all items; it is not owned and must outlive the item.
    CSkinModelCollectionItem(ISkinModel& parent_, std::shared_ptr<CSkinCollectionContext> context_)
        : parent(parent_),
          context(std::move(context_))
    {
    }
    CSkinModelCollectionItem(const CSkinModelCollectionItem&) = delete;
    CSkinModelCollectionItem& operator=(const CSkinModelCollectionItem&) = delete;
    ~CSkinModelCollectionItem() override;

    CSkinModel& GetModel() { return model; }

    /// Notes what the item holds, for as long as it is loaded.
    void SetElements(int count) { elements = count; }

    void Unload() override;

private:
    ISkinModel& parent;
    std::shared_ptr<CSkinCollectionContext> context;
    CSkinModel model;
    int elements = 0;
};

} // namespace Mirel::SkinEngine
