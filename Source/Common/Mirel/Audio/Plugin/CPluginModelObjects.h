#pragma once

#include "Mirel/Audio/Plugin/CAudioPluginBindings.h"
#include "Mirel/Audio/Plugin/CTimedModelObjects.h"

#include <string>

namespace Mirel::Audio::Plugin
{

/// "dsp.input%d": the identifier of an input parameter in every model.
std::string GetInputId(int index);

/// Puts the objects of a plug-in instance into a model: "dsp.input%d", "dsp.output%d", "dsp.output_curve%d",
/// "dsp.output_string%d", "midi.*" and "preset.name", as far as they are wanted. They follow the instance by
/// timer, so that neither the audio thread nor the host's threads ever run what a skin makes of them.
///
/// Can be built again for more wants. Used by the thread that loads the model.
class CPluginModelObjects
{
public:
    /// What is bound must outlive the model, and so must the timers.
    CPluginModelObjects(const CAudioPluginBindings& bindings_, System::ITimerProvider& timers_)
        : bindings(bindings_),
          timers(timers_)
    {
    }

    /// Adds what is wanted and not there yet. False if an id is taken by another object.
    bool Build(SkinEngine::ISkinModel& model, const SkinEngine::ISkinModelExposure& wanted) const;

private:
    bool AddInputs(CTimedModelObjects& objects) const;
    bool AddOutputs(CTimedModelObjects& objects) const;
    bool AddCurves(CTimedModelObjects& objects, SkinEngine::ISkinModel& model) const;
    bool AddStrings(CTimedModelObjects& objects, SkinEngine::ISkinModel& model) const;
    bool AddPresetName(CTimedModelObjects& objects, SkinEngine::ISkinModel& model) const;

    CAudioPluginBindings bindings;
    System::ITimerProvider& timers;
};

} // namespace Mirel::Audio::Plugin
