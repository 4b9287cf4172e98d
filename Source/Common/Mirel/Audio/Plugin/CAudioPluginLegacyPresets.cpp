#include "Mirel/Audio/Plugin/CAudioPluginLegacyPresets.h"

#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"

namespace Mirel::Audio::Plugin
{

const DSP::CLegacyPreset& CAudioPluginLegacyPreset::GetPreset() const
{
    return internals->GetFilter().GetFactoryPresets()[index];
}

const char* CAudioPluginLegacyPreset::GetName() const
{
    return GetPreset().GetName().c_str();
}

bool CAudioPluginLegacyPreset::Load()
{
    const DSP::IConstParamsValues& values = GetPreset().GetValues();
    for (int i = 0; i < values.GetCount(); ++i)
    {
        internals->SetInputValue(i + 1, values.GetValue(i));
    }
    internals->SetCurrentPresetName(GetName());
    return true;
}

CAudioPluginLegacyPresets::CAudioPluginLegacyPresets(CAudioPluginInternalsBase* internals)
{
    const int count = internals->GetFilter().GetFactoryPresets().GetCount();
    for (int i = 0; i < count; ++i)
    {
        presets.push_back(std::make_unique<CAudioPluginLegacyPreset>(internals, i));
    }
}

} // namespace Mirel::Audio::Plugin
