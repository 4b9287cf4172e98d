#pragma once

#include "Mirel/Audio/Plugin/CAudioPluginBindings.h"

#include <map>
#include <string>

namespace Mirel::Audio::Plugin
{

/// What a skin or model file may ask of the plug-in that it is read for: the variables that are set for it.
/// What the plug-in cannot tell is not among them.
std::map<std::string, std::string> DescribePlugin(const CAudioPluginBindings& bindings);

/// The folder that the model files, the skins and the rest of the product's data stand below; empty if there
/// is none.
std::string FindDataFolder(const CAudioPluginBindings& bindings);

} // namespace Mirel::Audio::Plugin
