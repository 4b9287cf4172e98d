#pragma once

#include <iosfwd>
#include <string>

namespace SkinCheck
{

/// The program skin-check: reads a skin or model file as the product would and shows what came of it. Colours
/// are for a terminal. The result is the exit code: 0 for a clean file, 1 with warnings, 2 with errors.
int RunProgram(int argc, const char* const* argv, std::ostream& out, std::ostream& errors, bool colours,
               const std::string& dataFolder = "");

} // namespace SkinCheck
