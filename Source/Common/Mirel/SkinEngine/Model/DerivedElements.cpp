#include "Mirel/DataModel/Objects/CCaptureCurveValueParam.h"
#include "Mirel/DataModel/Objects/CCaptureParamAnimation.h"
#include "Mirel/DataModel/Objects/CCaptureSurfaceFromCurveOverTime.h"
#include "Mirel/DataModel/Objects/CCaptureSurfaceValueParam.h"
#include "Mirel/DataModel/Objects/CCurveFromParamOverTime.h"
#include "Mirel/Runtime/CDynamicObject.h"
#include "Mirel/SkinEngine/Model/ModelDescription.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"

#include <initializer_list>
#include <string_view>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;

namespace
{

bool HasAll(const CNamedAttributes& attributes, std::initializer_list<const char*> names)
{
    for (const char* name : names)
    {
        if (*GetText(attributes, name) == '\0')
        {
            return false;
        }
    }
    return true;
}

/// What histories have in common. False if the name of a switch is taken.
template <class T>
bool ReadHistory(CModelBuild& build, const CNamedAttributes& attributes, T& history)
{
    ReadNameAndComment(attributes, history.GetInfo());
    ReadRefreshTime(attributes, history);
    float duration = DataModel::defaultHistoryMs;
    ReadNumber(attributes, "duration_ms", duration);
    history.SetDuration(duration);
    history.Enable(std::string_view(GetText(attributes, "paused")) != "true");
    const char* id = GetText(attributes, "id");
    build.Note(id, attributes);
    return build.AddPausedSwitch(id, history) && build.AddRefreshTime(id, history);
}

} // namespace

bool BuildCurveFromParamOverTime(CModelBuild& build, const CNamedAttributes& attributes)
{
    if (!HasAll(attributes, {"id", "param_id"}))
    {
        return build.Fail("Cannot create curve, an id field is missing.");
    }
    const char* id = GetText(attributes, "id");
    const int flags = build.GetExposure().GetCurveFlags(id);
    if (flags == 0)
    {
        return true;
    }
    auto curve =
        std::make_unique<CCurveFromParamOverTime>(build.GetServices().timerProvider, build.GetTickSource());
    auto& added = *curve;
    if (!build.GetModel().AddConstCurve(id, curve.release(), flags, true))
    {
        return false;
    }
    build.Connect<const IConstCaptureParam, CCurveFromParamOverTime>(
        added, &CCurveFromParamOverTime::SetSource, GetText(attributes, "param_id"));
    return ReadHistory(build, attributes, added);
}

bool BuildSurfaceFromCurveOverTime(CModelBuild& build, const CNamedAttributes& attributes)
{
    if (!HasAll(attributes, {"id", "curve_id"}))
    {
        return build.Fail("Cannot create surface, an id field is missing.");
    }
    const char* id = GetText(attributes, "id");
    const int flags = build.GetExposure().GetSurfaceFlags(id);
    if (flags == 0)
    {
        return true;
    }
    auto surface = std::make_unique<CCaptureSurfaceFromCurveOverTime>(build.GetServices().timerProvider,
                                                                      build.GetTickSource());
    auto& added = *surface;
    if (!build.GetModel().AddConstSurface(id, surface.release(), flags, true))
    {
        return false;
    }
    build.Connect<const IConstCaptureCurve, CCaptureSurfaceFromCurveOverTime>(
        added, &CCaptureSurfaceFromCurveOverTime::SetSource, GetText(attributes, "curve_id"));
    return ReadHistory(build, attributes, added);
}

bool BuildCurveValueParam(CModelBuild& build, const CNamedAttributes& attributes)
{
    if (!HasAll(attributes, {"id", "curve_id", "x_param_id"}))
    {
        return build.Fail("Cannot create param, id field is empty.");
    }
    const char* id = GetText(attributes, "id");
    const int flags = build.GetExposure().GetParamFlags(id);
    if (flags == 0)
    {
        return true;
    }
    auto* param = new CCaptureCurveValueParam();
    build.Note(id, attributes);
    if (!build.GetModel().AddConstParam(id, param, flags, true))
    {
        return false;
    }
    build.Connect<const IConstCaptureCurve>(*param, &CCaptureCurveValueParam::SetCurve,
                                            GetText(attributes, "curve_id"));
    build.Connect<const IConstCaptureParam>(*param, &CCaptureCurveValueParam::SetX,
                                            GetText(attributes, "x_param_id"));
    return true;
}

bool BuildSurfaceValueParam(CModelBuild& build, const CNamedAttributes& attributes)
{
    if (!HasAll(attributes, {"id", "surface_id", "x_param_id", "y_param_id"}))
    {
        return build.Fail("Cannot create param, id field is empty.");
    }
    const char* id = GetText(attributes, "id");
    const int flags = build.GetExposure().GetParamFlags(id);
    if (flags == 0)
    {
        return true;
    }
    auto* param = new CCaptureSurfaceValueParam();
    build.Note(id, attributes);
    if (!build.GetModel().AddConstParam(id, param, flags, true))
    {
        return false;
    }
    build.Connect<const IConstCaptureSurface>(*param, &CCaptureSurfaceValueParam::SetSurface,
                                              GetText(attributes, "surface_id"));
    build.Connect<const IConstCaptureParam>(*param, &CCaptureSurfaceValueParam::SetX,
                                            GetText(attributes, "x_param_id"));
    build.Connect<const IConstCaptureParam>(*param, &CCaptureSurfaceValueParam::SetY,
                                            GetText(attributes, "y_param_id"));
    return true;
}

/// Like a link it is there for what it does, whether or not anybody wants it by name.
bool BuildParamAnimator(CModelBuild& build, const CNamedAttributes& attributes)
{
    if (!HasAll(attributes, {"id", "param_id"}))
    {
        return build.Fail("Cannot create parameter animator, id field is empty.");
    }
    const char* id = GetText(attributes, "id");
    auto& animation = build.OwnLink(
        std::make_unique<CCaptureParamAnimation>(build.GetServices().timerProvider, build.GetTickSource()));
    ReadRefreshTime(attributes, animation);
    double duration = 0.0;
    if (ReadNumber(attributes, "duration_ms", duration))
    {
        animation.SetDuration(duration);
    }
    animation.Enable(IsNotFalse(attributes, "enabled"));
    build.Note(id, attributes);
    build.Connect<ICaptureParam>(animation, &CCaptureParamAnimation::SetParam,
                                 GetText(attributes, "param_id"));
    bool added = true;
    if (build.GetExposure().IsWanted(id))
    {
        auto object = std::make_unique<Runtime::CDynamicObject>();
        object->AddInterface<Core::IEnable>(TObjectInterface<Core::IEnable>::name, &animation, false);
        object->AddInterface<Core::IRefreshTime>(TObjectInterface<Core::IRefreshTime>::name, &animation,
                                                 false);
        added = build.GetModel().AddObject(id, object.release(), true);
    }
    added = build.AddEnabledSwitch(id, animation) && added;
    return build.AddRefreshTime(id, animation) && added;
}

} // namespace Mirel::SkinEngine
