#include "Mirel/SkinEngine/UI/CSkinUICollectionItemFactory.h"

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/IParsedTemplateInstance.h"
#include "Mirel/SkinEngine/Model/CElementCharge.h"
#include "Mirel/SkinEngine/UI/CSkinUIElementsHandler.h"

#include <utility>

namespace Mirel::SkinEngine
{

CSkinUICollectionItemFactory::CSkinUICollectionItemFactory(std::unique_ptr<IParsedTemplate> body_,
                                                           const CSkinParser& parser, ISkinModel& whole_,
                                                           const SSkinUIServices& services_, SPlace place_,
                                                           std::shared_ptr<CSkinModelContext> context_)
    : body(std::move(body_)),
      dataFolder(parser.GetDataFolder() == nullptr ? "" : parser.GetDataFolder()),
      whole(whole_),
      services(services_),
      place(std::move(place_)),
      context(std::move(context_))
{
    parser.GetPublicState().Serialize(parserState);
}

void CSkinUICollectionItemFactory::Prepare(int)
{
    laysOut = place.scope.group != nullptr && place.scope.group->GetAutoUpdate();
    if (laysOut)
    {
        place.scope.group->SetAutoUpdate(false);
    }
}

void CSkinUICollectionItemFactory::CreateItem(int index, const Containers::CNamedAttributes& attributes)
{
    SetInsertionPoint(index);
    items.push_back(std::make_unique<CSkinUICollectionItem>(whole, context->GetCollections()));
    Fill(*items.back(), attributes);
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
    if (std::exchange(laysOut, false))
    {
        place.scope.group->SetAutoUpdate(true);
    }
}

/// Behind the item before, or the nearest one that has a cell there.
void CSkinUICollectionItemFactory::SetInsertionPoint(int index)
{
    if (place.scope.group == nullptr)
    {
        return;
    }
    Layout::CLayoutCell* before = nullptr;
    for (int i = index - 1; i >= 0 && before == nullptr; --i)
    {
        before = items[static_cast<std::size_t>(i)]->GetData().FindLastCell(*place.scope.group);
    }
    before = before == nullptr ? place.marker : before;
    if (before != nullptr)
    {
        place.scope.group->SetInsertionPoint(before);
    }
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
