#pragma once

#include "Host/CHostInstance.h"

#include <string>

namespace Host
{

/// The state of an instance in files: as the chunk that a host keeps (its head and data, byte for byte), or
/// as a preset (the document in it). Each returns false with one line in `error`; a file that is damaged
/// leaves the instance as it is, a file that cannot be written leaves the old one.
bool SaveState(CHostInstance& instance, const std::string& path, std::string& error);
bool LoadState(CHostInstance& instance, const std::string& path, std::string& error);
bool SavePreset(CHostInstance& instance, const std::string& path, std::string& error);
bool LoadPreset(CHostInstance& instance, const std::string& path, std::string& error);

} // namespace Host
