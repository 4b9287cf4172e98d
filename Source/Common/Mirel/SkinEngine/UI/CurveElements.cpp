#include "Mirel/DataModel/GUIWidgets/CGUICurveGridViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUICurveViewer.h"
#include "Mirel/DataModel/GUIWidgets/CGUIXCurveRuler.h"
#include "Mirel/DataModel/GUIWidgets/CGUIYCurveRuler.h"
#include "Mirel/DataModel/GUIWidgets/CXYCurvesViewer.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/SkinEngine/UI/AxisSettings.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

#include <string_view>

namespace Mirel::SkinEngine
{

using namespace DataModel::GUIWidgets;
using namespace DataModel::Objects;
using Containers::CNamedAttributes;

namespace
{

/// 2147483647 as the nearest float.
constexpr float largestCount = 2147483648.0F;

constexpr SExposedProperty pixelsProperty = {nullptr, 0.0F, largestCount, ValueKindInteger, nullptr, nullptr};
constexpr SExposedProperty antiAliasProperty = {nullptr, 0.0F, 1.0F, ValueKindInteger, "Off;On", nullptr};
constexpr SExposedProperty styleProperty = {nullptr, 0.0F, 1.0F, ValueKindInteger, "Dots;Curve", nullptr};

bool ExposeExtraPixels(CUIElement& element, const CExtraPixels& pixels)
{
    Core::IEventProvider* const changed = &pixels.GetChangedEventProvider();
    const bool exposed = element.GetProperties().Expose(
        ".x_extra_pixels", pixelsProperty, [&pixels] { return static_cast<float>(pixels.GetX()); }, nullptr,
        changed);
    return element.GetProperties().Expose(
               ".y_extra_pixels", pixelsProperty, [&pixels] { return static_cast<float>(pixels.GetY()); },
               nullptr, changed) &&
           exposed;
}

bool ExposeAntiAlias(CUIElement& element, CBaseCurveGraphics& graph)
{
    return element.GetProperties().ExposeSwitch(
        ".anti_alias", antiAliasProperty, [&graph] { return graph.GetAntiAlias(); },
        [&graph](bool on) { graph.SetAntiAlias(on); }, nullptr);
}

void ReadGraph(CUIElement& element, CBaseCurveGraphics& graph)
{
    const CNamedAttributes& attributes = element.GetAttributes();
    graph.SetColor(element.ReadColor("color", element.GetTextColor()));
    graph.SetPenStyle(ReadPenStyle(attributes, "pen_style"));
    graph.SetAntiAlias(IsNotFalse(attributes, "anti_alias"));
}

CPen ReadPen(CUIElement& element, const std::string& prefix)
{
    return {element.ReadColor(prefix + "color", element.GetTextColor()),
            ReadPenStyle(element.GetAttributes(), prefix + "pen_style")};
}

bool ReadGrid(CUIElement& element, CGUIGrid& widget)
{
    CGridGraphics& grid = widget.GetGridGraphics();
    grid.SetPen(ReadPen(element, ""));
    grid.SetSubdivisionPen(ReadPen(element, "subdiv_"));
    grid.SetOriginPen(ReadPen(element, "origin_"));
    int count = 0;
    ReadNumber(element.GetAttributes(), "x_subdiv_count", count);
    grid.SetXSubdivisionsCount(count);
    count = 0;
    ReadNumber(element.GetAttributes(), "y_subdiv_count", count);
    grid.SetYSubdivisionsCount(count);
    element.ReadSize(widget);
    bool exposed = ReadAxis(element, {"x_"}, widget.GetXViewer());
    exposed = ReadAxis(element, {"y_"}, widget.GetYViewer()) && exposed;
    exposed = ExposeExtraPixels(element, grid.GetExtraPixels()) && exposed;
    return element.Place(widget, CUIElement::EInput::None) && exposed;
}

bool ReadRuler(CUIElement& element, CGUIRuler& widget, bool vertical, const std::string& prefix)
{
    const CNamedAttributes& attributes = element.GetAttributes();
    CGUIRulerGraphics& ruler = widget.GetRulerGraphics();
    ruler.SetVertical(vertical);
    ruler.SetColor(element.ReadColor("color", element.GetTextColor()));
    ruler.SetFont(element.GetFont());
    ruler.SetHAlign(ReadTextHAlign(attributes));
    ruler.SetVAlign(ReadTextVAlign(attributes));
    const SAxisPair margins = ReadAxisPair(attributes, "margin");
    ruler.SetHMargin(margins.horizontal);
    ruler.SetVMargin(margins.vertical);
    element.ReadSize(widget);
    const bool exposed = ReadAxis(element, {prefix}, widget.GetViewer());
    return element.Place(widget, CUIElement::EInput::None) && exposed;
}

/// The settings of one axis of a curve, as a ruler beside it has them: with the prefix of the axis if that is
/// what the skin wrote.
std::string FindPrefix(const CNamedAttributes& attributes, const char* prefix)
{
    for (const char* name : {"positions_count", "response_curve", "zoom", "offset", "scale", "max_zoom"})
    {
        if (FindText(attributes, std::string(prefix) + name) != nullptr)
        {
            return prefix;
        }
    }
    return "";
}

/// `x_curve.curve_id`, or shorter.
const char* FindCurveId(const CNamedAttributes& attributes, const std::string& curve)
{
    for (const char* suffix : {"curve.curve_id", "curve_id"})
    {
        if (const char* id = FindText(attributes, curve + suffix))
        {
            return id;
        }
    }
    return "";
}

bool ReadCurveOfTwo(CUIElement& element, const std::string& prefix, DataModel::Controls::CCurveViewer& viewer)
{
    viewer.SetVertical(std::string_view(GetText(element.GetAttributes(), prefix + "orientation")) ==
                       "vertical");
    const bool exposed = ReadAxis(element, {prefix + "x_"}, viewer.GetXViewer());
    return ReadAxis(element, {prefix + "y_"}, viewer.GetYViewer()) && exposed;
}

bool ExposeCurvesGraph(CUIElement& element, CXYCurvesGraphics& graph)
{
    bool exposed = ExposeExtraPixels(element, graph.GetExtraPixels());
    exposed = ExposeAntiAlias(element, graph) && exposed;
    exposed =
        element.GetProperties().Expose(
            ".graph_style", styleProperty, [&graph] { return static_cast<float>(graph.GetGraphStyle()); },
            [&graph](float value) { graph.SetGraphStyle(value >= 0.5F ? 1 : 0); }, nullptr) &&
        exposed;
    return element.GetProperties().Expose(
               ".positions_count", pixelsProperty, [&graph] { return graph.GetPositionsCount(); },
               [&graph](float value) { graph.SetPositionsCount(value); }, nullptr) &&
           exposed;
}

} // namespace

bool BuildCurveGraph(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    auto& widget = element.Make<CGUICurveViewer>(build.GetCurve(GetText(attributes, "curve_id")));
    CCurveGraphics& graph = widget.GetCurveGraphics();
    ReadGraph(element, graph);
    graph.SetGraphStyle(std::string_view(GetText(attributes, "graph_style")) == "bargraph"
                            ? CCurveGraphics::GraphStyleBargraph
                            : CCurveGraphics::GraphStyleCurve);
    float sampleRate = 1.0F;
    ReadNumber(attributes, "sample_rate", sampleRate);
    graph.SetSampleRate(sampleRate);
    widget.GetViewer().SetVertical(ReadVertical(attributes, false));
    element.ReadSize(widget);
    bool exposed = ReadAxis(element, {"x_"}, widget.GetViewer().GetXViewer());
    exposed = ReadAxis(element, {"y_"}, widget.GetViewer().GetYViewer()) && exposed;
    exposed = ExposeExtraPixels(element, graph.GetExtraPixels()) && exposed;
    exposed = ExposeAntiAlias(element, graph) && exposed;
    return element.Place(widget, CUIElement::EInput::None) && exposed;
}

bool BuildXYCurvesGraph(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    auto& widget = element.Make<CXYCurvesViewer>(build.GetCurve(FindCurveId(attributes, "x_")),
                                                 build.GetCurve(FindCurveId(attributes, "y_")));
    CXYCurvesGraphics& graph = widget.GetCurvesGraphics();
    ReadGraph(element, graph);
    graph.SetGraphStyle(std::string_view(GetText(attributes, "graph_style")) == "curve"
                            ? CXYCurvesGraphics::GraphStyleCurve
                            : CXYCurvesGraphics::GraphStyleDots);
    float count = graph.GetPositionsCount();
    ReadNumber(attributes, "positions_count", count);
    graph.SetPositionsCount(count);
    element.ReadSize(widget);
    bool exposed = ReadCurveOfTwo(element, "x_curve.", widget.GetXViewer());
    exposed = ReadCurveOfTwo(element, "y_curve.", widget.GetYViewer()) && exposed;
    exposed = ExposeCurvesGraph(element, graph) && exposed;
    return element.Place(widget, CUIElement::EInput::None) && exposed;
}

bool BuildGrid(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    const char* const xId = FindText(attributes, "x_param_info_id");
    const char* const yId = FindText(attributes, "y_param_info_id");
    if (xId == nullptr && yId == nullptr)
    {
        build.Warn(build.GetElement() + ", not connected to any parameter information (x or y)");
    }
    // One axis alone stands for both: the other has no lines then.
    const IConstParamInfo& notFound = build.GetData().GetWholeModel().GetParamNotFound().GetInfo();
    const IConstParamInfo& xInfo = xId == nullptr ? notFound : build.GetParamInfo(xId);
    const IConstParamInfo& yInfo = yId == nullptr ? notFound : build.GetParamInfo(yId);
    auto& widget = element.Make<CGUIGrid>(xInfo, yInfo);
    widget.GetGridGraphics().SetXLines(xId != nullptr);
    widget.GetGridGraphics().SetYLines(yId != nullptr);
    return ReadGrid(element, widget);
}

bool BuildCurveGrid(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    return ReadGrid(element,
                    element.Make<CGUICurveGridViewer>(build.GetCurve(GetText(attributes, "curve_id"))));
}

bool BuildRuler(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    for (const char* prefix : {"", "x_", "y_"})
    {
        if (const char* id = FindText(attributes, std::string(prefix) + "param_info_id"))
        {
            return ReadRuler(element, element.Make<CGUIRuler>(build.GetParamInfo(id)),
                             ReadVertical(attributes, std::string_view(prefix) == "y_"), prefix);
        }
    }
    build.Warn(build.GetElement() + ", not connected to any parameter information (x or y)");
    const IConstParamInfo& notFound = build.GetData().GetWholeModel().GetParamNotFound().GetInfo();
    return ReadRuler(element, element.Make<CGUIRuler>(notFound), ReadVertical(attributes, false), "");
}

bool BuildCurveXScale(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    return ReadRuler(element, element.Make<CGUIXCurveRuler>(build.GetCurve(GetText(attributes, "curve_id"))),
                     false, FindPrefix(attributes, "x_"));
}

bool BuildCurveYScale(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    return ReadRuler(element, element.Make<CGUIYCurveRuler>(build.GetCurve(GetText(attributes, "curve_id"))),
                     true, FindPrefix(attributes, "y_"));
}

} // namespace Mirel::SkinEngine
