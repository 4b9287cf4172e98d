#include "Mirel/Audio/Plugin/COutputCaptures.h"

#include "Mirel/System/CAutoTryLock.h"

#include <algorithm>

namespace Mirel::Audio::Plugin
{

namespace
{

template <class F>
using CFunctionCaptures = Containers::TDynamicCollection<TFunctionCapture<F>>;

template <class F>
void PrepareFunctions(CFunctionCaptures<F>& captures, const Containers::TIConstVector<F>& functions)
{
    const int count = std::min(captures.GetCount(), functions.GetCount());
    for (int i = 0; i < count; ++i)
    {
        captures[i].Prepare(functions[i]);
    }
}

template <class F>
void PublishFunctions(CFunctionCaptures<F>& captures, const Containers::TIConstVector<F>& functions,
                      DSP::IDirtyMarks& dirty)
{
    const int count = std::min({captures.GetCount(), functions.GetCount(), dirty.GetCount()});
    for (int i = 0; i < count; ++i)
    {
        if (dirty[i].IsDirty())
        {
            dirty[i].SetDirty(false);
            captures[i].Publish(functions[i]);
        }
    }
}

void PublishStrings(Containers::TDynamicCollection<CStringCapture>& captures, DSP::IOutputStrings& strings)
{
    const int count = std::min(captures.GetCount(), strings.GetCount());
    for (int i = 0; i < count; ++i)
    {
        if (strings[i].GetDirty().IsDirty())
        {
            strings[i].GetDirty().SetDirty(false);
            captures[i].Publish(strings[i].GetText());
        }
    }
}

void PublishParams(Containers::TDynamicCollection<CParamCapture>& captures,
                   const DSP::IConstParamsValues& values)
{
    const int count = std::min(captures.GetCount(), values.GetCount());
    for (int i = 0; i < count; ++i)
    {
        captures[i].Publish(values.GetValue(i));
    }
}

template <class Captures>
void Deliver(const Captures& captures)
{
    for (int i = 0; i < captures.GetCount(); ++i)
    {
        captures[i].DeliverChange();
    }
}

} // namespace

COutputCaptures::COutputCaptures(const DSP::IFilter& filter)
{
    const DSP::IParamsInfo& params = filter.GetOutputParamsInfo();
    for (int i = 0; i < params.GetCount(); ++i)
    {
        outputParamCaptures.Add(params[i].GetDefault());
    }
    const DSP::IStringsInfo& strings = filter.GetOutputStringsInfo();
    for (int i = 0; i < strings.GetCount(); ++i)
    {
        outputStringCaptures.Add(captureLock, strings[i].GetDefault());
    }
    for (int i = 0; i < filter.GetOutputCurvesInfo().GetCount(); ++i)
    {
        outputCurveCaptures.Add(captureLock);
    }
    for (int i = 0; i < filter.GetOutputSurfacesInfo().GetCount(); ++i)
    {
        outputSurfaceCaptures.Add(captureLock);
    }
}

void COutputCaptures::Prepare(const DSP::IFilter& filter)
{
    PrepareFunctions(outputCurveCaptures, filter.GetOutputCurves());
    PrepareFunctions(outputSurfaceCaptures, filter.GetOutputSurfaces());
}

bool COutputCaptures::Publish(DSP::IFilter& filter)
{
    const System::CAutoTryLock guard(captureLock);
    if (!guard.IsLocked())
    {
        return false;
    }
    PublishParams(outputParamCaptures, filter.GetOutputParams());
    PublishFunctions(outputCurveCaptures, filter.GetOutputCurves(), filter.GetOutputCurvesDirty());
    PublishFunctions(outputSurfaceCaptures, filter.GetOutputSurfaces(), filter.GetOutputSurfacesDirty());
    PublishStrings(outputStringCaptures, filter.GetOutputStrings());
    return true;
}

void COutputCaptures::DeliverChanges() const
{
    Deliver(outputParamCaptures);
    Deliver(outputCurveCaptures);
    Deliver(outputSurfaceCaptures);
    Deliver(outputStringCaptures);
}

} // namespace Mirel::Audio::Plugin
