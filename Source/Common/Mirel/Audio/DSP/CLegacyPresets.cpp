#include "Mirel/Audio/DSP/CLegacyPresets.h"

namespace Mirel::Audio::DSP
{

namespace
{

bool IsComplete(const CLegacyPresetRecord& record)
{
    return record.name != nullptr && record.valueCount >= 0 &&
           (record.values != nullptr || record.valueCount == 0);
}

} // namespace

CLegacyPreset::CLegacyPreset(const CLegacyPresetRecord& record)
    : name(record.name),
      description(record.description == nullptr ? "" : record.description),
      storage(record.values, record.values + record.valueCount),
      values(storage.data(), record.valueCount)
{
}

CLegacyPresets::CLegacyPresets(int count, const CLegacyPresetRecord* records)
{
    for (int i = 0; i < count; ++i)
    {
        if (IsComplete(records[i]))
        {
            presets.push_back(std::make_unique<CLegacyPreset>(records[i]));
        }
    }
}

} // namespace Mirel::Audio::DSP
