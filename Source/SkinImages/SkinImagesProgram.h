#pragma once

#include <iosfwd>

namespace SkinImages
{

/// The program skin-images: draws all images of the factory skins into a folder, plain and at twice the size.
/// The result is the exit code: 0, or 1 if something could not be written, or 2 for a wrong command line.
int RunProgram(int argc, const char* const* argv, std::ostream& out, std::ostream& errors);

} // namespace SkinImages
