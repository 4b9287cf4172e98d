#include "Mirel/Audio/Plugin/PresetFiles.h"

#include "Mirel/Serialization/CXmlDataObject.h"

namespace Mirel::Audio::Plugin
{

namespace
{

constexpr const char* RootName = "Preset";

} // namespace

bool StateToText(const Serialization::ISerialize& state, std::string& text)
{
    Serialization::CXmlDataObject document(RootName);
    static_cast<void>(state.Serialize(document));
    return document.SaveToText(text);
}

bool StateFromText(const char* text, std::size_t length, Serialization::IDeSerialize& state)
{
    Serialization::CXmlDataObject document(RootName);
    return document.LoadFromMemory(text, length) && state.Deserialize(document);
}

bool SavePreset(const Serialization::ISerialize& state, const char* path)
{
    Serialization::CXmlDataObject document(RootName);
    return state.Serialize(document) && document.SaveToFile(path);
}

bool LoadPreset(const char* path, Serialization::IDeSerialize& state)
{
    Serialization::CXmlDataObject document(RootName);
    return document.LoadFromFile(path) && state.Deserialize(document);
}

} // namespace Mirel::Audio::Plugin
