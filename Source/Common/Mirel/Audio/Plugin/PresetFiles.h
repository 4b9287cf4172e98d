#pragma once

#include "Mirel/Serialization/DataStreams.h"

#include <cstddef>
#include <string>

namespace Mirel::Audio::Plugin
{

/// A state as the text of an XML document, which is what the host's chunk holds. A value that the form cannot
/// hold is left out: it must not cost the host the others. False if there is no text, because it is too long.
bool StateToText(const Serialization::ISerialize& state, std::string& text);

/// False, with the state unchanged, for a text that is not such a document, whatever its root is called.
/// Zeros that end the text may be counted.
bool StateFromText(const char* text, std::size_t length, Serialization::IDeSerialize& state);

/// Replaces the preset file whole. False, with an old file kept, on any failure.
bool SavePreset(const Serialization::ISerialize& state, const char* path);

/// False, with the state unchanged, if there is no such file or it is no XML document.
bool LoadPreset(const char* path, Serialization::IDeSerialize& state);

} // namespace Mirel::Audio::Plugin
