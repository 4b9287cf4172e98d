#include "Mirel/SkinEngine/UI/CUIElement.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

#include <string_view>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;
using Layout::CGroupLayoutCell;
using Layout::CTableLayoutCell;
using Layout::ELayoutType;

namespace
{

bool BuildGroup(CUIBuild& build, const CNamedAttributes& attributes, ELayoutType type)
{
    CUIElement element(build, attributes);
    int spacing = 0;
    ReadNumber(attributes, "spacing", spacing);
    return element.Place(element.Make<CGroupLayoutCell>(type, spacing));
}

} // namespace

bool BuildColumn(CUIBuild& build, const CNamedAttributes& attributes)
{
    return BuildGroup(build, attributes, ELayoutType::Column);
}

bool BuildRow(CUIBuild& build, const CNamedAttributes& attributes)
{
    return BuildGroup(build, attributes, ELayoutType::Row);
}

bool BuildLayerStack(CUIBuild& build, const CNamedAttributes& attributes)
{
    return BuildGroup(build, attributes, ELayoutType::LayerStack);
}

bool BuildCell(CUIBuild& build, const CNamedAttributes& attributes)
{
    const std::string_view type = GetText(attributes, "layout_type");
    return BuildGroup(build, attributes,
                      type == "row"           ? ELayoutType::Row
                      : type == "layer_stack" ? ELayoutType::LayerStack
                                              : ELayoutType::Column);
}

bool BuildTable(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    const SAxisPair spacing = ReadAxisPair(attributes, "spacing");
    return element.Place(element.Make<CTableLayoutCell>(spacing.horizontal, spacing.vertical));
}

bool BuildTableRow(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    CTableLayoutCell* const table = build.GetScope().table;
    if (table == nullptr)
    {
        build.Fail("Cannot TABLE_ROW element outside a TABLE element.");
        element.PlaceNothing();
        return true;
    }
    float ratio = Layout::CLayoutOptions::noRatio;
    int height = CTableLayoutCell::noHeight;
    const std::string_view text = GetText(attributes, "height");
    if (text.ends_with('%'))
    {
        float percents = 0.0F;
        ratio = ReadNumber(attributes, "height", percents) ? FromPercent(percents) : ratio;
    }
    else
    {
        ReadNumber(attributes, "height", height);
    }
    CTableLayoutCell::CRow* const row = table->AddRow(ratio, height);
    if (row != nullptr)
    {
        build.GetData().GetPieces().Add(row);
    }
    element.PlaceInRow(*table, row);
    return true;
}

bool BuildNothing(CUIBuild& build, const CNamedAttributes& attributes)
{
    build.Warn(build.GetElement() + ": this element is not supported yet.");
    CUIElement(build, attributes).PlaceNothing();
    return true;
}

bool Build3DObject(CUIBuild& build, const CNamedAttributes& attributes)
{
    if (build.GetScope().element != "VIEW_3D")
    {
        build.Fail("Cannot create 3D Object outside of a 3D Viewer");
        CUIElement(build, attributes).PlaceNothing();
        return true;
    }
    return BuildNothing(build, attributes);
}

bool Build3DView(CUIBuild& build, const CNamedAttributes& attributes)
{
    if (build.IsInside("VIEW_3D"))
    {
        build.Fail("Cannot instantiate a 3D viewer within another");
        CUIElement(build, attributes).PlaceNothing();
        return true;
    }
    return BuildNothing(build, attributes);
}

} // namespace Mirel::SkinEngine
