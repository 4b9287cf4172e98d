#include "Mirel/SkinEngine/UI/CGUISkinData.h"

namespace Mirel::SkinEngine
{

CGUISkinData::CGUISkinData(ISkinModel& whole_) : whole(whole_)
{
    model.GetObjects().GetAddedEventProvider().Connect(added);
}

CGUISkinData::~CGUISkinData()
{
    Clear();
    model.GetObjects().GetAddedEventProvider().Disconnect(&added);
}

Layout::CLayoutCell* CGUISkinData::FindLastCell(const Layout::CBaseGroupLayoutCell& group) const
{
    for (auto cell = cells.rbegin(); cell != cells.rend(); ++cell)
    {
        if ((*cell)->GetParent() == &group)
        {
            return *cell;
        }
    }
    return nullptr;
}

void CGUISkinData::Clear()
{
    // Who listens to a property lets go of it before the cell or widget goes that has it. Collections let
    // their items go.
    RemoveFromWhole();
    model.Clear();
    for (Layout::CLayoutCell* cell : cells)
    {
        cell->SetAutoUpdate(false);
    }
    DetachCells();
    for (GUI::CLightWidget* widget : std::exchange(lightWidgets, {}))
    {
        widget->SetParent(nullptr);
    }
    for (GUI::CWidget* widget : std::exchange(nativeWidgets, {}))
    {
        if (GUI::CWidget* parent = widget->GetParent())
        {
            parent->RemoveChild(widget);
        }
    }
    while (!objects.empty())
    {
        const std::unique_ptr<Core::IDestroy> last = std::move(objects.back());
        objects.pop_back();
    }
}

/// The groups around all that lay themselves out once, when all is gone.
void CGUISkinData::DetachCells()
{
    std::vector<Layout::CBaseGroupLayoutCell*> around;
    for (Layout::CLayoutCell* cell : std::exchange(cells, {}))
    {
        Layout::CBaseGroupLayoutCell* const group = cell->GetParent();
        if (group != nullptr && group->GetAutoUpdate())
        {
            group->SetAutoUpdate(false);
            around.push_back(group);
        }
        cell->Detach();
    }
    for (Layout::CTableLayoutCell::CRow* row : std::exchange(rows, {}))
    {
        row->GetTable().RemoveRow(row, false);
    }
    for (Layout::CBaseGroupLayoutCell* group : around)
    {
        group->SetAutoUpdate(true);
    }
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
