#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/SkinEngine/Model/ModelDescription.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;

bool BuildParam(CModelBuild& build, const CNamedAttributes& attributes)
{
    const char* id = GetText(attributes, "id");
    if (*id == '\0')
    {
        return build.Fail("Cannot create parameter, id field is empty.");
    }
    const int flags = build.GetExposure().GetParamFlags(id);
    if (flags == 0)
    {
        return true;
    }
    auto param = std::make_unique<CCaptureParam>();
    const bool described = ReadDescription(build, attributes, "", param->GetInfo());
    param->SetValue(param->GetInfo().GetDefault());
    build.Note(id, attributes);
    return build.GetModel().AddParam(id, param.release(), flags, true) && described;
}

bool BuildCurve(CModelBuild& build, const CNamedAttributes& attributes)
{
    const char* id = GetText(attributes, "id");
    if (*id == '\0')
    {
        return build.Fail("Cannot create curve, id field is empty.");
    }
    const int flags = build.GetExposure().GetCurveFlags(id);
    if (flags == 0)
    {
        return true;
    }
    auto curve = std::make_unique<CCaptureCurve>();
    CCurveInfo& info = curve->GetInfo();
    ReadNameAndComment(attributes, info);
    bool described = ReadDescription(build, attributes, "x_", info.GetXInfo());
    described = ReadDescription(build, attributes, "y_", info.GetYInfo()) && described;
    curve->SetValue(Math::CConstantFunction(info.GetYInfo().GetDefault()));
    build.Note(id, attributes);
    return build.GetModel().AddCurve(id, curve.release(), flags, true) && described;
}

bool BuildString(CModelBuild& build, const CNamedAttributes& attributes)
{
    const char* id = GetText(attributes, "id");
    if (*id == '\0')
    {
        return build.Fail("Cannot create string, id field is empty.");
    }
    const int flags = build.GetExposure().GetStringOrActionFlags(id);
    if (flags == 0)
    {
        return true;
    }
    auto string = std::make_unique<CCaptureString>(CStringInfo(
        GetText(attributes, "name"), GetText(attributes, "comment"), GetText(attributes, "default")));
    string->SetValue(GetText(attributes, "default"));
    build.Note(id, attributes);
    return build.GetModel().AddString(id, string.release(), flags, true);
}

bool BuildPersistentObjects(CModelBuild& build, const CNamedAttributes& attributes)
{
    build.NotePersistent(GetText(attributes, "param_ids", GetText(attributes, "object_ids")));
    return true;
}

bool BuildExposedObjects(CModelBuild& build, const CNamedAttributes& attributes)
{
    build.NoteExposed(GetText(attributes, "object_ids"));
    return true;
}

} // namespace Mirel::SkinEngine
