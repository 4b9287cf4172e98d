#include "Mirel/SkinEngine/UI/CGUISkinData.h"

namespace Mirel::SkinEngine
{

namespace
{

/// Calls call(T&) for the pieces of that kind.
template <class T, class F>
void ForEach(const CSkinPieces::CList& list, const F& call)
{
    for (const CSkinPieces::CPiece& piece : list)
    {
        if (T* const* found = std::get_if<T*>(&piece))
        {
            call(**found);
        }
    }
}

/// The groups around all that lay themselves out once, when all is gone.
void DetachCells(const CSkinPieces::CList& list)
{
    std::vector<Layout::CBaseGroupLayoutCell*> around;
    ForEach<Layout::CLayoutCell>(list,
                                 [&around](Layout::CLayoutCell& cell)
                                 {
                                     Layout::CBaseGroupLayoutCell* const group = cell.GetParent();
                                     if (group != nullptr && group->GetAutoUpdate())
                                     {
                                         group->SetAutoUpdate(false);
                                         around.push_back(group);
                                     }
                                     cell.Detach();
                                 });
    using CRow = Layout::CTableLayoutCell::CRow;
    ForEach<CRow>(list, [](CRow& row) { row.GetTable().RemoveRow(&row, false); });
    for (Layout::CBaseGroupLayoutCell* group : around)
    {
        group->SetAutoUpdate(true);
    }
}

} // namespace

CGUISkinData::CGUISkinData(ISkinModel& whole_) : whole(whole_)
{
    model.GetObjects().GetAddedEventProvider().Connect(added);
}

CGUISkinData::~CGUISkinData()
{
    Clear();
    model.GetObjects().GetAddedEventProvider().Disconnect(&added);
}

void CGUISkinData::Clear()
{
    // One that follows others would take the going of one of them for a larger count.
    ForEach<CSkinCollectionBase>(pieces.GetList(),
                                 [](CSkinCollectionBase& collection) { collection.StopGrowing(); });
    // Who listens to a property lets go of it before the cell or widget goes that has it. Collections let
    // their items go.
    RemoveFromWhole();
    model.Clear();
    Detach(pieces.Take());
    while (!objects.empty())
    {
        const std::unique_ptr<Core::IDestroy> last = std::move(objects.back());
        objects.pop_back();
    }
}

void CGUISkinData::Detach(const CSkinPieces::CList& list)
{
    ForEach<Layout::CLayoutCell>(list, [](Layout::CLayoutCell& cell) { cell.SetAutoUpdate(false); });
    DetachCells(list);
    ForEach<GUI::CLightWidget>(list, [](GUI::CLightWidget& widget) { widget.SetParent(nullptr); });
    ForEach<GUI::CWidget>(list,
                          [](GUI::CWidget& widget)
                          {
                              if (GUI::CWidget* parent = widget.GetParent())
                              {
                                  parent->RemoveChild(&widget);
                              }
                          });
}

void CGUISkinData::OnAdded(const CDictionaryEntry& entry)
{
    allAdded = whole.GetObjects().Add(entry.id, entry.object, false) && allAdded;
}

void CGUISkinData::RemoveFromWhole()
{
    const std::unique_ptr<ISkinDynamicObjectsIterator> entry(model.GetObjects().CreateIterator());
    for (; entry->IsValid(); entry->Next())
    {
        // The name may have been another's already.
        if (whole.GetObjects().Find(entry->GetId()) == &entry->GetObject())
        {
            whole.RemoveObject(entry->GetId());
        }
    }
}

} // namespace Mirel::SkinEngine
