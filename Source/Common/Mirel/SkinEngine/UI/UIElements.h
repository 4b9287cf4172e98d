#pragma once

#include "Mirel/SkinEngine/UI/CUIBuild.h"

namespace Mirel::SkinEngine
{

// The elements of the skin dialect: for each a function that builds what it stands for. Its end leaves what
// it stands in. False if an object that it exposes could not be entered; all other failures are in the log,
// and the widget stays as far as it goes.

using CUIElementBuilder = bool (*)(CUIBuild& build, const Containers::CNamedAttributes& attributes);

struct SUIElement
{
    const char* name;
    CUIElementBuilder build;
};

// Cells.
bool BuildColumn(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildRow(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildLayerStack(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildCell(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildTable(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildTableRow(CUIBuild& build, const Containers::CNamedAttributes& attributes);

// Texts and images.
bool BuildLoadFont(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildText(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildTextField(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildImage(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildImageGroupBox(CUIBuild& build, const Containers::CNamedAttributes& attributes);

// Curves.
bool BuildCurveGraph(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildXYCurvesGraph(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildGrid(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildCurveGrid(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildRuler(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildCurveXScale(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildCurveYScale(CUIBuild& build, const Containers::CNamedAttributes& attributes);

// Parameters.
bool BuildImageParamKnob(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildImageParamMeter(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildImageParamSlider(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildImageParamLinearMeter(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildParamText(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildParamTextControl(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildTooltip(CUIBuild& build, const Containers::CNamedAttributes& attributes);

// What is pressed.
bool BuildImageParamButton(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildInvisibleParamButton(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildImageParamToggleSwitch(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildInvisibleParamToggleSwitch(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildImageParamMenuButton(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildInvisibleParamMenuButton(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildImageActionButton(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildInvisibleActionButton(CUIBuild& build, const Containers::CNamedAttributes& attributes);

/// For an element whose widget does not exist yet: says so. What stands in it is built around it.
bool BuildNothing(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool Build3DObject(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool Build3DView(CUIBuild& build, const Containers::CNamedAttributes& attributes);

// What has an end of its own.
bool BuildSkinRoot(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildUICollectionStart(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildUIForEachStart(CUIBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildUICollectionEnd(CUIBuild& build);

/// All elements whose end does no more than to leave them.
inline constexpr SUIElement uiElements[] = {
    {"LOAD_FONT", BuildLoadFont},
    {"COLUMN", BuildColumn},
    {"ROW", BuildRow},
    {"LAYER_STACK", BuildLayerStack},
    {"CELL", BuildCell},
    {"TABLE", BuildTable},
    {"TABLE_ROW", BuildTableRow},
    {"IMAGE_GROUP_BOX", BuildImageGroupBox},
    {"TEXT", BuildText},
    {"TEXT_FIELD", BuildTextField},
    {"TEXT_EDIT_BOX", BuildNothing},
    {"IMAGE", BuildImage},
    {"IMAGE_PARAM_BUTTON", BuildImageParamButton},
    {"IMAGE_PARAM_TOGGLE_SWITCH", BuildImageParamToggleSwitch},
    {"INVISIBLE_PARAM_TOGGLE_SWITCH", BuildInvisibleParamToggleSwitch},
    {"IMAGE_PARAM_SLIDER", BuildImageParamSlider},
    {"IMAGE_PARAM_METER", BuildImageParamMeter},
    {"IMAGE_PARAM_LINEAR_METER", BuildImageParamLinearMeter},
    {"IMAGE_PARAM_KNOB", BuildImageParamKnob},
    {"IMAGE_PARAM_MENU_BUTTON", BuildImageParamMenuButton},
    {"INVISIBLE_PARAM_MENU_BUTTON", BuildInvisibleParamMenuButton},
    {"INVISIBLE_PARAM_BUTTON", BuildInvisibleParamButton},
    {"XYZ_PARAM_SCRATCH_PAD", BuildNothing},
    {"XYZ_IMAGE_PARAM_JOYSTICK", BuildNothing},
    {"XY_PARAM_PAD", BuildNothing},
    {"XY_ZOOM_SELECT_PAD", BuildNothing},
    {"PARAM_TEXT", BuildParamText},
    {"PARAM_TEXT_EDIT_BOX", BuildNothing},
    {"PARAM_TEXT_CONTROL", BuildParamTextControl},
    {"PARAM_TOOLTIP", BuildTooltip},
    {"TOOLTIP", BuildTooltip},
    {"RULER", BuildRuler},
    {"COLOR_SCALE", BuildNothing},
    {"GRID", BuildGrid},
    {"CURVE_GRAPH", BuildCurveGraph},
    {"XY_CURVES_GRAPH", BuildXYCurvesGraph},
    {"CURVE_GRID", BuildCurveGrid},
    {"CURVE_XSCALE", BuildCurveXScale},
    {"CURVE_YSCALE", BuildCurveYScale},
    {"SURFACE_COLORMAP_2DPLOT", BuildNothing},
    {"COLOR_SURFACE_3D", Build3DObject},
    {"XY_CURVES_3D", Build3DObject},
    {"GRID_3D", Build3DObject},
    {"VIEW_3D", Build3DView},
    {"IMAGE_ACTION_BUTTON", BuildImageActionButton},
    {"INVISIBLE_ACTION_BUTTON", BuildInvisibleActionButton},
};

} // namespace Mirel::SkinEngine
