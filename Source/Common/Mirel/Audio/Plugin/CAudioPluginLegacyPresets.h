#pragma once

#include "Mirel/Audio/DSP/CLegacyPresets.h"
#include "Mirel/Audio/Plugin/IPresets.h"

#include <memory>
#include <vector>

namespace Mirel::Audio::Plugin
{

class CAudioPluginInternalsBase;

/// One preset of a table that is compiled into the filter.
class CAudioPluginLegacyPreset : public virtual IPreset
{
public:
    /// The instance, whose filter has the table, is not owned and outlives the preset.
    CAudioPluginLegacyPreset(CAudioPluginInternalsBase* internals_, int index_)
        : internals(internals_),
          index(index_)
    {
    }

    const char* GetName() const override;

    /// Sets the parameters behind the bypass, as many as the preset has values, and the preset's name.
    bool Load() override;

private:
    const DSP::CLegacyPreset& GetPreset() const;

    CAudioPluginInternalsBase* internals;
    int index;
};

/// The presets that the filter of an instance brings along.
class CAudioPluginLegacyPresets : public virtual IPresets
{
public:
    explicit CAudioPluginLegacyPresets(CAudioPluginInternalsBase* internals);

    int GetCount() const override { return static_cast<int>(presets.size()); }
    IPreset& GetPreset(int index) override { return *presets[static_cast<std::size_t>(index)]; }

private:
    std::vector<std::unique_ptr<CAudioPluginLegacyPreset>> presets;
};

} // namespace Mirel::Audio::Plugin
