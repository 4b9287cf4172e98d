#pragma once

#include "Mirel/Core/TArgCommand.h"
#include "Mirel/Core/TDestroyAdapter.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/UI/CSkinPieces.h"

#include <memory>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{

/// What a skin has built, or one item of a collection in it: widgets, layout cells, the objects that they
/// expose and those that they stand on. The exposed objects stand in the model around the skin as well, from
/// which they go with this object. GUI thread only.
class CGUISkinData
{
public:
    /// The model that the skin shows; not owned, it must outlive this object.
    explicit CGUISkinData(ISkinModel& whole_);
    CGUISkinData(const CGUISkinData&) = delete;
    CGUISkinData& operator=(const CGUISkinData&) = delete;

    /// As Clear does.
    ~CGUISkinData();

    /// The objects of this skin or item alone: what is added here enters the whole model too.
    CSkinModel& GetModel() { return model; }
    ISkinModel& GetWholeModel() const { return whole; }

    /// False, until it is asked again, if an identifier was taken in the whole model.
    bool TakeAllAdded() { return std::exchange(allAdded, true); }

    /// Takes an object over. Objects go in the reverse order of their coming: one that stands on others comes
    /// after them.
    template <class T>
    T& Own(std::unique_ptr<T> object)
    {
        T& owned = *object;
        objects.push_back(std::make_unique<Core::TDestroyAdapter<std::unique_ptr<T>>>(std::move(object)));
        return owned;
    }

    /// What has to leave its place before it is destroyed, in the order of the file.
    CSkinPieces& GetPieces() { return pieces; }
    const CSkinPieces& GetPieces() const { return pieces; }

    /// Takes all widgets and cells out of what they stand in, and the objects out of the model, and destroys
    /// what is owned.
    void Clear();

private:
    void OnAdded(const CDictionaryEntry& entry);
    void RemoveFromWhole();
    static void Detach(const CSkinPieces::CList& list);

    ISkinModel& whole;
    CSkinPieces pieces;
    std::vector<std::unique_ptr<Core::IDestroy>> objects;
    CSkinModel model;
    bool allAdded = true;
    Core::TArgCommand<CGUISkinData, const CDictionaryEntry&> added{this, &CGUISkinData::OnAdded};
};

} // namespace Mirel::SkinEngine
