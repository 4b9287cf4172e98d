#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"
#include "Mirel/SkinEngine/Model/ModelDescription.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"
#include "Mirel/SkinEngine/Model/TParametrizedCaptureObject.h"

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;

namespace
{

/// Has the formula given the objects that it names.
template <class I>
void ConnectFormula(CModelBuild& build, TParametrizedCaptureObject<I>& object)
{
    using T = TParametrizedCaptureObject<I>;
    const CFormulaParameters& parameters = object.GetFormula().GetParameters();
    for (const std::string& name : parameters.GetConstantNames())
    {
        build.ConnectByRefWithId<const IConstCaptureParam>(object, &T::SetParam, &T::ClearParam,
                                                           name.c_str());
    }
    for (const std::string& name : parameters.GetFunctionNames())
    {
        build.ConnectByRefWithId<const IConstCaptureCurve>(object, &T::SetCurve, &T::ClearCurve,
                                                           name.c_str());
    }
    for (const std::string& name : parameters.GetBinaryFunctionNames())
    {
        build.ConnectByRefWithId<const IConstCaptureSurface>(object, &T::SetSurface, &T::ClearSurface,
                                                             name.c_str());
    }
}

} // namespace

bool BuildFormulaParam(CModelBuild& build, const CNamedAttributes& attributes)
{
    const char* id = GetText(attributes, "id");
    if (*id == '\0')
    {
        return build.Fail("Cannot create param, id field is empty.");
    }
    auto formula = CompileParametrizedConstant(FindText(attributes, "formula"));
    if (formula == nullptr)
    {
        return build.Fail("Cannot create param, invalid formula.");
    }
    const int flags = build.GetExposure().GetParamFlags(id);
    if (flags == 0)
    {
        return true;
    }
    auto param =
        std::make_unique<TParametrizedCaptureObject<Math::IConstant>>(std::move(formula), CParamInfo());
    const bool described = ReadDescription(build, attributes, "", param->GetInfo());
    build.Note(id, attributes);
    auto& added = *param;
    if (!build.GetModel().AddConstParam(id, param.release(), flags, true))
    {
        return false;
    }
    ConnectFormula(build, added);
    return described;
}

bool BuildFormulaCurve(CModelBuild& build, const CNamedAttributes& attributes)
{
    const char* id = GetText(attributes, "id");
    if (*id == '\0')
    {
        return build.Fail("Cannot create curve, id field is empty.");
    }
    auto formula =
        CompileParametrizedFunction(FindText(attributes, "formula"), GetText(attributes, "variable", "x"));
    if (formula == nullptr)
    {
        return build.Fail("Cannot create curve, invalid formula.");
    }
    const int flags = build.GetExposure().GetCurveFlags(id);
    if (flags == 0)
    {
        return true;
    }
    auto curve =
        std::make_unique<TParametrizedCaptureObject<Math::IFunction>>(std::move(formula), CCurveInfo());
    CCurveInfo& info = curve->GetInfo();
    ReadNameAndComment(attributes, info);
    bool described = ReadDescription(build, attributes, "x_", info.GetXInfo());
    described = ReadDescription(build, attributes, "y_", info.GetYInfo()) && described;
    build.Note(id, attributes);
    auto& added = *curve;
    if (!build.GetModel().AddConstCurve(id, curve.release(), flags, true))
    {
        return false;
    }
    ConnectFormula(build, added);
    return described;
}

bool BuildFormulaSurface(CModelBuild& build, const CNamedAttributes& attributes)
{
    const char* id = GetText(attributes, "id");
    if (*id == '\0')
    {
        return build.Fail("Cannot create surface, id field is empty.");
    }
    auto formula = CompileParametrizedBinaryFunction(FindText(attributes, "formula"),
                                                     GetText(attributes, "x_variable", "x"),
                                                     GetText(attributes, "y_variable", "y"));
    if (formula == nullptr)
    {
        return build.Fail("Cannot create surface, invalid formula.");
    }
    const int flags = build.GetExposure().GetSurfaceFlags(id);
    if (flags == 0)
    {
        return true;
    }
    auto surface = std::make_unique<TParametrizedCaptureObject<Math::IBinaryFunction>>(std::move(formula),
                                                                                       CSurfaceInfo());
    CSurfaceInfo& info = surface->GetInfo();
    ReadNameAndComment(attributes, info);
    bool described = ReadDescription(build, attributes, "x_", info.GetXInfo());
    described = ReadDescription(build, attributes, "y_", info.GetYInfo()) && described;
    described = ReadDescription(build, attributes, "z_", info.GetZInfo()) && described;
    build.Note(id, attributes);
    auto& added = *surface;
    if (!build.GetModel().AddConstSurface(id, surface.release(), flags, true))
    {
        return false;
    }
    ConnectFormula(build, added);
    return described;
}

} // namespace Mirel::SkinEngine
