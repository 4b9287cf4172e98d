#include "Mirel/SkinEngine/Model/CSkinModelCollectionItemFactory.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"
#include "Mirel/SkinEngine/UI/CSkinUICollectionItemFactory.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;

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
        CSkinUICollectionItemFactory::SPlace{build.GetScope(),
                                             build.GetData().GetPieces().AddCollection(*collection)},
        build.GetContext()));
    return true;
}

} // namespace Mirel::SkinEngine
