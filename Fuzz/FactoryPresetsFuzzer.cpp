// A factory preset file, listed by an instance that then loads its presets one after the other.

#include "PluginInstance.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <fstream>

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string folder = Fuzz::Folder() + "/Scope data/Presets";
    std::filesystem::create_directories(folder);
    std::ofstream(folder + "/factory.presets", std::ios::binary) << std::string(data, data + size);

    const auto instance = Fuzz::MakeInstance();
    auto& presets = instance->GetPresets();
    constexpr int enough = 8;
    for (int i = 0; i < std::min(presets.GetCount(), enough); ++i)
    {
        const std::string name = presets.GetPreset(i).GetName();
        const bool loaded = presets.GetPreset(i).Load();
        Fuzz::Require(loaded || name.empty());
        Fuzz::CheckInstance(*instance);
    }
    std::string text;
    Fuzz::Require(Mirel::Audio::Plugin::StateToText(*instance, text));
    return 0;
}
