#pragma once

#include "Mirel/Graphics/CImage.h"

#include <cstdint>

namespace Mirel::Graphics
{

/// Reads an image file into 32-bit pixels, with its alpha if it has any. Whatever the name, the content has
/// to be PNG. None if it cannot be read, is damaged, or has more pixels than maxPixels or CLimits allow: the
/// header is asked before anything is decoded.
CSharedImage ReadImageFile(const char* path, std::int64_t maxPixels);

} // namespace Mirel::Graphics
