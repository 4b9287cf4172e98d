#pragma once

#include "Mirel/Audio/DSP/ParamsValues.h"

#include <memory>
#include <string>
#include <vector>

namespace Mirel::Audio::DSP
{

/// One preset as it stands in a table that is compiled into a filter.
struct CLegacyPresetRecord
{
    const char* name;
    const char* description; ///< May be null.
    const float* values;
    int valueCount;
};

/// A named block of parameter values with a description.
class CLegacyPreset
{
public:
    /// Copies everything out of the record, which must be complete.
    explicit CLegacyPreset(const CLegacyPresetRecord& record);
    CLegacyPreset(const CLegacyPreset&) = delete;
    CLegacyPreset& operator=(const CLegacyPreset&) = delete;

    const std::string& GetName() const { return name; }
    const std::string& GetDescription() const { return description; }
    const IConstParamsValues& GetValues() const { return values; }

private:
    std::string name;
    std::string description;
    std::vector<float> storage;
    CParamsValues values;
};

/// The presets of a filter that brings them along. Immutable.
class CLegacyPresets
{
public:
    CLegacyPresets() = default;

    /// Records without a name or without their values are left out and lower the count.
    CLegacyPresets(int count, const CLegacyPresetRecord* records);

    int GetCount() const { return static_cast<int>(presets.size()); }
    const CLegacyPreset& operator[](int index) const { return *presets[static_cast<std::size_t>(index)]; }

private:
    std::vector<std::unique_ptr<CLegacyPreset>> presets;
};

} // namespace Mirel::Audio::DSP
