// A preset file or a host's chunk, loaded by an instance.

#include "PluginInstance.h"

#include <cstddef>
#include <cstdint>

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(data, data + size);
    static const auto instance = Fuzz::MakeInstance();
    static const std::string before = Fuzz::SavedState(*instance);
    Fuzz::Require(Mirel::Audio::Plugin::StateFromText(before.data(), before.size(), *instance));
    const bool loaded = Mirel::Audio::Plugin::StateFromText(text.data(), text.size(), *instance);
    Fuzz::CheckInstance(*instance);
    const std::string after = Fuzz::SavedState(*instance);
    Fuzz::Require(loaded || after == before);
    return 0;
}
