#pragma once

#include "Mirel/Audio/Plugin/IPresets.h"

#include <memory>
#include <string>
#include <vector>

namespace Mirel::Audio::Plugin
{

class CAudioPluginInternalsBase;

/// One state of a factory preset file.
class CAudioPluginXMLPreset : public virtual IPreset
{
public:
    /// The instance is not owned and outlives the preset.
    CAudioPluginXMLPreset(CAudioPluginInternalsBase* internals_, int index_, std::string name_);

    const char* GetName() const override { return name.c_str(); }

    /// False if the file has no object for the index.
    bool Load() override;

private:
    CAudioPluginInternalsBase* internals;
    int index;
    std::string name;
};

/// The presets of the factory preset file that the instance has read. The count is the file's; a preset whose
/// object is missing has an empty name.
class CAudioPluginXMLPresets : public virtual IPresets
{
public:
    explicit CAudioPluginXMLPresets(CAudioPluginInternalsBase* internals);

    int GetCount() const override { return static_cast<int>(presets.size()); }
    IPreset& GetPreset(int index) override { return *presets[static_cast<std::size_t>(index)]; }

private:
    std::vector<std::unique_ptr<CAudioPluginXMLPreset>> presets;
};

} // namespace Mirel::Audio::Plugin
