#pragma once

#include "Mirel/SkinEngine/Model/CModelBuild.h"

#include <memory>
#include <string>

namespace Mirel::SkinEngine
{

class IParsedTemplate;

// The elements of the model dialect. For each a function that builds what it stands for, and one that marks
// what it refers to as wanted. False for a failed element, with a message in the log.

using CElementBuilder = bool (*)(CModelBuild& build, const Containers::CNamedAttributes& attributes);

/// What marks are made with: the exposure, and where to report.
struct SModelMarks
{
    ISkinModelExposure& exposure;
    CoreUtilities::IMessageLog& log;
    std::string element; ///< The name of the element in its file, for messages.
};

using CElementMarker = bool (*)(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);

struct SModelElement
{
    const char* name;
    CElementBuilder build;
    CElementMarker mark;
};

// What stands by itself.
bool BuildParam(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildCurve(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildString(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildInvokeAction(CModelBuild& build, const Containers::CNamedAttributes& attributes);

// What is made of others.
bool BuildFormulaParam(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildFormulaCurve(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildFormulaSurface(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildCurveFromParamOverTime(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildSurfaceFromCurveOverTime(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildCurveValueParam(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildSurfaceValueParam(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildParamAnimator(CModelBuild& build, const Containers::CNamedAttributes& attributes);

// Links.
bool BuildParamLink(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildParamToStringLink(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildParamConnection(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildParamAnimatedLink(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildCurveLink(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildStringLink(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildParamMultiLink(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildCurveMultiLink(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildStringMultiLink(CModelBuild& build, const Containers::CNamedAttributes& attributes);

// Lists of identifiers.
bool BuildPersistentObjects(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildExposedObjects(CModelBuild& build, const Containers::CNamedAttributes& attributes);

// What has an end as well.
bool BuildModelStart(CModelBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildCollectionStart(CElementBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildForEachStart(CElementBuild& build, const Containers::CNamedAttributes& attributes);
bool BuildCollectionEnd(CModelBuild& build);

/// At the end of a collection's element in either dialect: the collection, and what its items are made of.
/// Null if the element was refused.
CSkinCollectionBase* CloseCollection(CElementBuild& build, std::unique_ptr<IParsedTemplate>& body);

// Marks.
bool MarkObject(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkInvokeAction(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkFormulaParam(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkFormulaCurve(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkFormulaSurface(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkObjectOfParam(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkObjectOfCurve(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkCurveValueParam(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkSurfaceValueParam(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkLink(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkMultiLink(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkConnection(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkPersistentObjects(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);
bool MarkExposedObjects(const SModelMarks& marks, const Containers::CNamedAttributes& attributes);

/// All elements that have no more than a start; the model itself and collections have an end, too.
inline constexpr SModelElement modelElements[] = {
    {"PARAM", BuildParam, MarkObject},
    {"CURVE", BuildCurve, MarkObject},
    {"STRING", BuildString, MarkObject},
    {"FORMULA_PARAM", BuildFormulaParam, MarkFormulaParam},
    {"FORMULA_CURVE", BuildFormulaCurve, MarkFormulaCurve},
    {"FORMULA_SURFACE", BuildFormulaSurface, MarkFormulaSurface},
    {"CURVE_FROM_PARAM_OVER_TIME", BuildCurveFromParamOverTime, MarkObjectOfParam},
    {"SURFACE_FROM_CURVE_OVER_TIME", BuildSurfaceFromCurveOverTime, MarkObjectOfCurve},
    {"CURVE_VALUE_PARAM", BuildCurveValueParam, MarkCurveValueParam},
    {"SURFACE_VALUE_PARAM", BuildSurfaceValueParam, MarkSurfaceValueParam},
    {"PARAM_ANIMATOR", BuildParamAnimator, MarkObjectOfParam},
    {"PARAM_LINK", BuildParamLink, MarkLink},
    {"PARAM_TO_STRING_LINK", BuildParamToStringLink, MarkLink},
    {"PARAM_MULTI_LINK", BuildParamMultiLink, MarkMultiLink},
    {"PARAM_CONNECTION", BuildParamConnection, MarkConnection},
    {"PARAM_ANIMATED_LINK", BuildParamAnimatedLink, MarkLink},
    {"CURVE_LINK", BuildCurveLink, MarkLink},
    {"CURVE_MULTI_LINK", BuildCurveMultiLink, MarkMultiLink},
    {"STRING_LINK", BuildStringLink, MarkLink},
    {"STRING_MULTI_LINK", BuildStringMultiLink, MarkMultiLink},
    {"FUNCTION_INVOKE_ACTION", BuildInvokeAction, MarkInvokeAction},
    {"PERSISTENT_PARAMS", BuildPersistentObjects, MarkPersistentObjects},
    {"PERSISTENT_OBJECTS", BuildPersistentObjects, MarkPersistentObjects},
    {"EXPOSED_OBJECTS", BuildExposedObjects, MarkExposedObjects},
};

/// For the pass of either dialect that builds nothing: has the parser mark what the elements of models refer
/// to, those in the bodies of collections included. Nothing is owned; all must outlive the pass.
void RegisterModelMarks(CSkinParser& parser, ISkinModelExposure& exposure, CoreUtilities::IMessageLog& log);

} // namespace Mirel::SkinEngine
