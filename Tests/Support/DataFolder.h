#pragma once

#include <string>

namespace Tests
{

/// The data folder of the build, as it stands beside the module: with the product's own fonts.
std::string GetDataFolder();

} // namespace Tests
