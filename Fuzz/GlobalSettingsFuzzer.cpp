// The settings file of all instances.

#include "PluginInstance.h"

#include "Mirel/Serialization/CXmlDataObject.h"

#include <cstddef>
#include <cstdint>

namespace
{

std::string TextOf(const Fuzz::CAudioPluginDefaultSettings& settings)
{
    Mirel::Serialization::CXmlDataObject document("GlobalSettings");
    settings.Serialize(document);
    std::string text;
    Fuzz::Require(document.SaveToText(text));
    return text;
}

} // namespace

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const auto filter = PluginsFilters::CreateTopLevelFilter();
    Mirel::Serialization::CXmlDataObject file("Root");
    if (!file.LoadFromMemory(std::string(data, data + size).c_str(), size))
    {
        return 0;
    }
    const auto settings = Fuzz::MakeSettings(*filter);
    settings->Deserialize(file);
    Fuzz::CheckSettings(settings->GetInputMIDISettings());
    Fuzz::CheckSettings(settings->GetOutputMIDISettings());
    Fuzz::Require(std::isfinite(settings->GetOutputRefreshRate()) && settings->GetOutputRefreshRate() >= 0.0);

    // A file that was saved reads back as what was saved.
    const std::string saved = TextOf(*settings);
    Mirel::Serialization::CXmlDataObject again("Root");
    Fuzz::Require(again.LoadFromMemory(saved.data(), saved.size()));
    const auto loaded = Fuzz::MakeSettings(*filter);
    Fuzz::Require(loaded->Deserialize(again));
    Fuzz::Require(TextOf(*loaded) == saved);
    return 0;
}
