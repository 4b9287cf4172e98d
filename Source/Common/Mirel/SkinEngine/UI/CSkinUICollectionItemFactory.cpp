#include "Mirel/SkinEngine/UI/CSkinUICollectionItemFactory.h"

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/IParsedTemplateInstance.h"
#include "Mirel/SkinEngine/Model/CElementCharge.h"
#include "Mirel/SkinEngine/UI/CSkinUIElementsHandler.h"

#include <utility>

namespace Mirel::SkinEngine
{

using Layout::CLayoutCell;
using Layout::CTableLayoutCell;

namespace
{

/// Whether the piece is that very cell: nothing in front of it stands in it.
bool IsCell(const CSkinPieces::CPiece& piece, const CLayoutCell& cell)
{
    CLayoutCell* const* found = std::get_if<CLayoutCell*>(&piece);
    return found != nullptr && *found == &cell;
}

} // namespace

CSkinUICollectionItemFactory::CSkinUICollectionItemFactory(std::unique_ptr<IParsedTemplate> body_,
                                                           const CSkinParser& parser, ISkinModel& whole_,
                                                           const SSkinUIServices& services_, SPlace place_,
                                                           std::shared_ptr<CSkinModelContext> context_)
    : body(std::move(body_)),
      dataFolder(parser.GetDataFolder() == nullptr ? "" : parser.GetDataFolder()),
      whole(whole_),
      services(services_),
      place(std::move(place_)),
      context(std::move(context_)),
      pause(context->GetCollections(), place.scope.group)
{
    parser.GetPublicState().Serialize(parserState);
}

void CSkinUICollectionItemFactory::Prepare(int)
{
    pause.Begin();
}

void CSkinUICollectionItemFactory::CreateItem(int index, const Containers::CNamedAttributes& attributes)
{
    items.push_back(std::make_unique<CSkinUICollectionItem>(whole, context->GetCollections(), pause));
    CSkinUICollectionItem& item = *items.back();
    item.GetData().GetPieces().SetPlace(place.order, index);
    SetInsertionPoints(item.GetData().GetPieces());
    Fill(item, attributes);
    if (place.scope.light != nullptr)
    {
        place.scope.light->MoveInsertionPointToEnd();
    }
}

void CSkinUICollectionItemFactory::DestroyItem(int index)
{
    items[static_cast<std::size_t>(index)].reset();
}

ISkinCollectionItem* CSkinUICollectionItemFactory::GetItem(int index) const
{
    return index >= 0 && index < GetCount() ? items[static_cast<std::size_t>(index)].get() : nullptr;
}

void CSkinUICollectionItemFactory::Commit(int delta)
{
    if (delta < 0)
    {
        items.resize(items.size() - static_cast<std::size_t>(-delta));
    }
}

/// In whatever the items stand directly.
void CSkinUICollectionItemFactory::SetInsertionPoints(const CSkinPieces& item) const
{
    if (place.scope.table != nullptr)
    {
        SetRow(item);
    }
    else if (place.scope.group != nullptr)
    {
        SetCell(item);
    }
    if (place.scope.light != nullptr)
    {
        SetWidget(item);
    }
}

void CSkinUICollectionItemFactory::SetRow(const CSkinPieces& item) const
{
    using CRow = CTableLayoutCell::CRow;
    CTableLayoutCell* const table = place.scope.table;
    const CSkinPieces::CPiece* before = item.FindBefore<CRow>(
        [table](const CSkinPieces::CPiece& piece)
        {
            CRow* const* row = std::get_if<CRow*>(&piece);
            return IsCell(piece, *table) || (row != nullptr && &(*row)->GetTable() == table);
        });
    CRow* const* row = before == nullptr ? nullptr : std::get_if<CRow*>(before);
    table->SetCurrentRow(row == nullptr ? nullptr : *row);
}

void CSkinUICollectionItemFactory::SetCell(const CSkinPieces& item) const
{
    using CRow = CTableLayoutCell::CRow;
    Layout::CBaseGroupLayoutCell* const group = place.scope.group;
    CRow* const row = place.scope.row;
    const CSkinPieces::CPiece* before = item.FindBefore<CLayoutCell>(
        [group, row](const CSkinPieces::CPiece& piece)
        {
            CRow* const* found = std::get_if<CRow*>(&piece);
            CLayoutCell* const* cell = std::get_if<CLayoutCell*>(&piece);
            return IsCell(piece, *group) || (found != nullptr && *found == row) ||
                   (cell != nullptr && (*cell)->GetParent() == group);
        });
    if (row != nullptr)
    {
        row->GetTable().SetCurrentRow(row);
    }
    CLayoutCell* const* cell = before == nullptr ? nullptr : std::get_if<CLayoutCell*>(before);
    if (cell != nullptr && *cell != group)
    {
        group->SetInsertionPoint(*cell);
    }
    else if (row == nullptr)
    {
        group->SetInsertionPoint(nullptr);
    }
}

void CSkinUICollectionItemFactory::SetWidget(const CSkinPieces& item) const
{
    GUI::CLightWidget* const parent = place.scope.light;
    const CSkinPieces::CPiece* before = item.FindBefore<GUI::CLightWidget>(
        [parent](const CSkinPieces::CPiece& piece)
        {
            GUI::CLightWidget* const* widget = std::get_if<GUI::CLightWidget*>(&piece);
            return widget != nullptr && (*widget == parent || (*widget)->GetParent() == parent);
        });
    GUI::CLightWidget* const widget = before == nullptr ? nullptr : std::get<GUI::CLightWidget*>(*before);
    parent->SetInsertionPoint(widget == parent ? nullptr : widget);
}

void CSkinUICollectionItemFactory::Fill(CSkinUICollectionItem& item,
                                        const Containers::CNamedAttributes& attributes)
{
    CoreUtilities::CMemMessageLog log;
    CSkinParser parser(log);
    parser.GetPublicState().Deserialize(parserState);
    parser.SetDataFolder(dataFolder.c_str());
    CElementCharge charge(*context->GetCollections());
    parser.SetElementListener(&charge);
    CSkinUIElementsHandler handler(parser, log, item.GetData(), services, place.scope, context);
    delete body->Instantiate(attributes, parser);
    handler.EndItem();
    const int objects = item.GetData().GetModel().GetObjects().GetCount();
    context->GetCollections()->AddElements(objects);
    item.SetElements(charge.GetCount() + handler.GetElements() + objects);
    if (services.showItemMessages != nullptr && log.HasMessages(CoreUtilities::CMessageKind::Error))
    {
        services.showItemMessages(log);
    }
}

} // namespace Mirel::SkinEngine
