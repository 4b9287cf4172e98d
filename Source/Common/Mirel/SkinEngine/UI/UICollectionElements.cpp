#include "Mirel/Layout/CGroupLayoutCell.h"
#include "Mirel/SkinEngine/Model/CSkinCollectionBase.h"
#include "Mirel/SkinEngine/Model/CSkinModelCollectionItemFactory.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"
#include "Mirel/SkinEngine/UI/CSkinUICollectionItemFactory.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;

namespace
{

/// A cell without room, which keeps the place of the items among those around them. None where no cell can
/// stand.
Layout::CLayoutCell* AddMarker(CUIBuild& build)
{
    const SUIScope& scope = build.GetScope();
    if (scope.group == nullptr || scope.table != nullptr)
    {
        return nullptr;
    }
    auto& marker = build.GetData().Own(std::make_unique<Layout::CGroupLayoutCell>());
    marker.SetDisplayed(false);
    scope.group->AddCell(&marker, {}, false);
    build.GetData().AddCell(marker);
    return &marker;
}

} // namespace

bool BuildUICollectionStart(CUIBuild& build, const CNamedAttributes& attributes)
{
    const bool added = BuildCollectionStart(build, attributes);
    return build.GetData().TakeAllAdded() && added;
}

bool BuildUIForEachStart(CUIBuild& build, const CNamedAttributes& attributes)
{
    const bool added = BuildForEachStart(build, attributes);
    return build.GetData().TakeAllAdded() && added;
}

bool BuildUICollectionEnd(CUIBuild& build)
{
    std::unique_ptr<IParsedTemplate> body;
    CSkinCollectionBase* const collection = CloseCollection(build, body);
    if (collection == nullptr)
    {
        return true;
    }
    // A body inside an item is kept for each item.
    if (build.GetRoot() == nullptr && !build.TakeElements(CountElements(*body)))
    {
        return false;
    }
    collection->SetItemFactory(std::make_unique<CSkinUICollectionItemFactory>(
        std::move(body), build.GetParser(), build.GetData().GetWholeModel(), build.GetServices(),
        CSkinUICollectionItemFactory::SPlace{build.GetScope(), AddMarker(build)}, build.GetContext()));
    return true;
}

} // namespace Mirel::SkinEngine
