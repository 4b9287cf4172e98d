#include "Mirel/DataModel/GUIWidgets/CGUIImageActionButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamDropDownList.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamToggleSwitch.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/SkinEngine/Language/Quoted.h"
#include "Mirel/SkinEngine/UI/AxisSettings.h"
#include "Mirel/SkinEngine/UI/ParamSettings.h"
#include "Mirel/SkinEngine/UI/UIElements.h"

namespace Mirel::SkinEngine
{

using namespace DataModel::GUIWidgets;
using namespace DataModel::Objects;
using Containers::CNamedAttributes;

namespace
{

constexpr SExposedProperty pushedProperty = {"Pushed", 0.0F, 1.0F, ValueKindInteger, "up;down", nullptr};

/// One frame for all positions, unless the skin says otherwise.
SPushImage ReadPushImage(CUIBuild& build, const CNamedAttributes& attributes)
{
    return {ReadStates(build, attributes, "image").release(), true, ReadImagesCount(attributes, 1),
            ReadImageOrientation(attributes)};
}

bool ExposePushed(CUIElement& element, CPushableImageWidgetGraphics& graphics)
{
    return element.GetProperties().ExposeSwitch(
        ".pushed", pushedProperty, [&graphics] { return graphics.IsPushed(); },
        [&graphics](bool on) { graphics.SetPushed(on); }, &graphics.GetPushedChangedEventProvider());
}

template <class Widget>
bool PlaceParamWidget(CUIElement& element, Widget& widget, const SParamName& param)
{
    widget.GetPushGraphics().SetLoop(IsTrue(element.GetAttributes(), "loop"));
    ReadControl(element, param, widget.GetControl());
    element.ReadSize(widget);
    bool exposed = ReadAxis(element, {param.prefix}, widget.GetControl());
    exposed = ExposePushed(element, widget.GetPushGraphics()) && exposed;
    return element.Place(widget, CUIElement::EInput::Natural) && exposed;
}

template <class Widget, class... Arguments>
bool BuildImageParamWidget(CUIBuild& build, const CNamedAttributes& attributes, Arguments... arguments)
{
    CUIElement element(build, attributes);
    const SParamName param = FindParam(element);
    auto& widget =
        element.Make<Widget>(build.GetParam(param.id), ReadPushImage(build, attributes), arguments...);
    return PlaceParamWidget(element, widget, param);
}

template <class Widget, class... Arguments>
bool BuildInvisibleParamWidget(CUIBuild& build, const CNamedAttributes& attributes, Arguments... arguments)
{
    CUIElement element(build, attributes);
    const SParamName param = FindParam(element);
    return PlaceParamWidget(element, element.Make<Widget>(build.GetParam(param.id), arguments...), param);
}

/// An action of the model, or one that the program has under a name.
const IConstAction& FindAction(CUIElement& element)
{
    CUIBuild& build = element.GetBuild();
    const char* name = FindText(element.GetAttributes(), "action");
    if (name == nullptr || FindText(element.GetAttributes(), "action_id") != nullptr)
    {
        return build.GetAction(GetText(element.GetAttributes(), "action_id"));
    }
    const auto& findAction = build.GetServices().findAction;
    const IConstAction* action = findAction == nullptr ? nullptr : findAction(name);
    if (action == nullptr)
    {
        build.Warn(build.GetElement() + ": unknown action " + Quoted(name) + ".");
        return build.GetData().GetWholeModel().GetActionNotFound();
    }
    return *action;
}

template <class Widget>
bool PlaceActionWidget(CUIElement& element, Widget& widget)
{
    element.ReadSize(widget);
    const bool exposed = ExposePushed(element, widget.GetPushGraphics());
    return element.Place(widget, CUIElement::EInput::Natural) && exposed;
}

} // namespace

bool BuildImageParamButton(CUIBuild& build, const CNamedAttributes& attributes)
{
    return BuildImageParamWidget<CGUIImageParamButton>(build, attributes);
}

bool BuildInvisibleParamButton(CUIBuild& build, const CNamedAttributes& attributes)
{
    return BuildInvisibleParamWidget<CGUIInvisibleParamButton>(build, attributes);
}

bool BuildImageParamToggleSwitch(CUIBuild& build, const CNamedAttributes& attributes)
{
    return BuildImageParamWidget<CGUIImageParamToggleSwitch>(build, attributes);
}

bool BuildInvisibleParamToggleSwitch(CUIBuild& build, const CNamedAttributes& attributes)
{
    return BuildInvisibleParamWidget<CGUIInvisibleParamToggleSwitch>(build, attributes);
}

bool BuildImageParamMenuButton(CUIBuild& build, const CNamedAttributes& attributes)
{
    return BuildImageParamWidget<CGUIImageParamDropDownList>(build, attributes, build.GetServices().menus);
}

bool BuildInvisibleParamMenuButton(CUIBuild& build, const CNamedAttributes& attributes)
{
    return BuildInvisibleParamWidget<CGUIInvisibleParamDropDownList>(build, attributes,
                                                                     build.GetServices().menus);
}

bool BuildImageActionButton(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    return PlaceActionWidget(
        element, element.Make<CGUIImageActionButton>(FindAction(element), ReadPushImage(build, attributes)));
}

bool BuildInvisibleActionButton(CUIBuild& build, const CNamedAttributes& attributes)
{
    CUIElement element(build, attributes);
    return PlaceActionWidget(element, element.Make<CGUIInvisibleActionButton>(FindAction(element)));
}

} // namespace Mirel::SkinEngine
