#include "Mirel/Audio/Plugin/CAudioPluginXMLPresets.h"

#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Serialization/CItemsBudget.h"
#include "Mirel/Serialization/IndexedKey.h"
#include "Mirel/Serialization/ReadText.h"

#include <algorithm>
#include <utility>

namespace Mirel::Audio::Plugin
{

namespace
{

std::string KeyOf(int index)
{
    return Serialization::IndexedKey("Preset", index);
}

/// Reads the name alone out of a preset.
class CNameReader : public Serialization::IDeSerialize
{
public:
    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        ReadText(stream, "progName", name);
        return true;
    }

    std::string name;
};

} // namespace

CAudioPluginXMLPreset::CAudioPluginXMLPreset(CAudioPluginInternalsBase* internals_, int index_,
                                             std::string name_)
    : internals(internals_),
      index(index_),
      name(std::move(name_))
{
}

bool CAudioPluginXMLPreset::Load()
{
    return internals->LoadFromPresetsData(KeyOf(index).c_str());
}

CAudioPluginXMLPresets::CAudioPluginXMLPresets(CAudioPluginInternalsBase* internals)
{
    const Serialization::IReadDataStream& data = internals->GetPresetsData();
    int count = 0;
    data.Read("PresetCount", count);
    count = std::min(count, Serialization::CLimits::maxItems);
    Serialization::CItemsBudget budget;
    for (int i = 0; i < count; ++i)
    {
        CNameReader reader;
        if (!budget.Note(data.Read(KeyOf(i).c_str(), static_cast<Serialization::IDeSerialize&>(reader))))
        {
            break;
        }
        presets.push_back(std::make_unique<CAudioPluginXMLPreset>(internals, i, std::move(reader.name)));
    }
}

} // namespace Mirel::Audio::Plugin
