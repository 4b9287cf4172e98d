#include "Mirel/Audio/Plugin/CPluginModelObjects.h"

#include "Mirel/Audio/Plugin/CAudioPluginDefaultSettings.h"
#include "Mirel/Audio/Plugin/CConstOutputCurveTimerProxy.h"
#include "Mirel/Audio/Plugin/COutputCaptures.h"
#include "Mirel/Audio/Plugin/CPresetName.h"
#include "Mirel/Audio/Plugin/MIDIModelObjects.h"
#include "Mirel/Audio/Plugin/TConstStringTimerProxy.h"
#include "Mirel/DataModel/CRefreshTimer.h"

#include <algorithm>

namespace Mirel::Audio::Plugin
{

using namespace DataModel::Objects;

namespace
{

template <class Capture>
bool AddString(CTimedModelObjects& objects, SkinEngine::ISkinModel& model, const std::string& id,
               const Capture& capture, const IConstStringInfo& info)
{
    bool added = true;
    const int flags = objects.WithPaused(id, objects.GetStringFlags(id));
    if (flags != 0)
    {
        auto& string = objects.Keep(
            std::make_unique<TConstStringTimerProxy<Capture>>(capture, info, objects.GetTimers()));
        string.SetRefreshTime(objects.GetRefreshTime());
        added = model.AddConstString(id.c_str(), &string, flags, false);
    }
    return objects.AddPaused(id) && added;
}

} // namespace

std::string GetInputId(int index)
{
    return "dsp.input" + std::to_string(index);
}

bool CPluginModelObjects::Build(SkinEngine::ISkinModel& model,
                                const SkinEngine::ISkinModelExposure& wanted) const
{
    // What is polled is as new as the outputs are.
    const int refreshTimeMs = bindings.defaultSettings == nullptr
                                  ? DataModel::defaultRefreshTimeMs
                                  : bindings.defaultSettings->GetOutputRefreshTime();
    CTimedModelObjects objects(model, wanted, timers, refreshTimeMs);
    bool added = AddInputs(objects);
    added = AddOutputs(objects) && added;
    added = AddCurves(objects, model) && added;
    added = AddStrings(objects, model) && added;
    added = AddPresetName(objects, model) && added;
    if (bindings.lastMIDIMessage != nullptr)
    {
        added = AddLastMIDIMessage(objects, model, *bindings.lastMIDIMessage) && added;
    }
    if (bindings.inputMIDISettings != nullptr && bindings.inputsInfo != nullptr)
    {
        added = AddMIDISettings(objects, "midi.input", *bindings.inputMIDISettings, *bindings.inputsInfo) &&
                added;
    }
    if (bindings.outputMIDISettings != nullptr && bindings.outputsInfo != nullptr)
    {
        added =
            AddMIDISettings(objects, "midi.output", *bindings.outputMIDISettings, *bindings.outputsInfo) &&
            added;
    }
    return added;
}

bool CPluginModelObjects::AddInputs(CTimedModelObjects& objects) const
{
    if (bindings.inputs == nullptr || bindings.inputsInfo == nullptr)
    {
        return true;
    }
    bool added = true;
    const int count = std::min(bindings.inputs->GetCount(), bindings.inputsInfo->GetCount());
    for (int i = 0; i < count; ++i)
    {
        IInputParam& input = (*bindings.inputs)[i];
        const IConstParamInfo& info = (*bindings.inputsInfo)[i];
        const auto make = [&input, &info]
        {
            // A parameter of a host also wants to know when a user holds it.
            return std::make_unique<CCaptureParamWrapper>(
                info, [&input] { return input.GetValue(); }, [&input](float value) { input.SetValue(value); },
                nullptr, dynamic_cast<Core::ICapture*>(&input));
        };
        added = objects.AddParam(GetInputId(i), make) && added;
    }
    return added;
}

bool CPluginModelObjects::AddOutputs(CTimedModelObjects& objects) const
{
    if (bindings.outputCaptures == nullptr || bindings.outputsInfo == nullptr)
    {
        return true;
    }
    bool added = true;
    const auto& captures = bindings.outputCaptures->GetParams();
    const int count = std::min(captures.GetCount(), bindings.outputsInfo->GetCount());
    for (int i = 0; i < count; ++i)
    {
        const CParamCapture& capture = captures[i];
        const IConstParamInfo& info = (*bindings.outputsInfo)[i];
        const auto make = [&capture, &info]
        {
            return std::make_unique<CConstCaptureParamWrapper>(
                info, [&capture] { return capture.GetValue(); }, &capture.GetChangedEventProvider());
        };
        added = objects.AddConstParam("dsp.output" + std::to_string(i), make) && added;
    }
    return added;
}

bool CPluginModelObjects::AddCurves(CTimedModelObjects& objects, SkinEngine::ISkinModel& model) const
{
    if (bindings.outputCaptures == nullptr || bindings.filter == nullptr)
    {
        return true;
    }
    bool added = true;
    const auto& captures = bindings.outputCaptures->GetCurves();
    const DSP::ICurvesInfo& infos = bindings.filter->GetOutputCurvesInfo();
    const int count = std::min(captures.GetCount(), infos.GetCount());
    for (int i = 0; i < count; ++i)
    {
        const std::string id = "dsp.output_curve" + std::to_string(i);
        const int flags = objects.WithPaused(id, objects.GetCurveFlags(id));
        if (flags != 0)
        {
            auto& curve = objects.Keep(
                std::make_unique<CConstOutputCurveTimerProxy>(captures[i], infos[i], objects.GetTimers()));
            curve.SetRefreshTime(objects.GetRefreshTime());
            added = model.AddConstCurve(id.c_str(), &curve, flags, false) && added;
        }
        added = objects.AddPaused(id) && added;
    }
    return added;
}

bool CPluginModelObjects::AddStrings(CTimedModelObjects& objects, SkinEngine::ISkinModel& model) const
{
    if (bindings.outputCaptures == nullptr || bindings.filter == nullptr)
    {
        return true;
    }
    bool added = true;
    const auto& captures = bindings.outputCaptures->GetStrings();
    const DSP::IStringsInfo& infos = bindings.filter->GetOutputStringsInfo();
    const int count = std::min(captures.GetCount(), infos.GetCount());
    for (int i = 0; i < count; ++i)
    {
        const std::string id = "dsp.output_string" + std::to_string(i);
        added = AddString(objects, model, id, captures[i], infos[i]) && added;
    }
    return added;
}

bool CPluginModelObjects::AddPresetName(CTimedModelObjects& objects, SkinEngine::ISkinModel& model) const
{
    return bindings.presetName == nullptr ||
           AddString(objects, model, "preset.name", *bindings.presetName, CStringInfo("Preset"));
}

} // namespace Mirel::Audio::Plugin
