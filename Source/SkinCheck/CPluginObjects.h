#pragma once

#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/SkinEngine/Model/ISkinModel.h"
#include "Mirel/System/CAttachableTimerProvider.h"

namespace SkinCheck
{

/// An instance of the plug-in that hears nothing, for models that are linked to its objects. One thread.
class CPluginObjects
{
public:
    CPluginObjects();

    Mirel::Audio::Plugin::CAudioPluginBindings GetBindings() { return internals.GetBindings(); }

    /// Adds what the model wants. The model must not outlive this object.
    bool AddTo(Mirel::SkinEngine::ISkinModel& model);

private:
    Mirel::System::CAttachableTimerProvider timers; ///< With nothing attached: nothing moves by itself.
    Mirel::Audio::Plugin::CAudioPluginInternalsBase internals;
};

} // namespace SkinCheck
