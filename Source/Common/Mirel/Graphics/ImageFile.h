#pragma once

#include "Mirel/Graphics/CImage.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Mirel::Graphics
{

/// Reads an image file into 32-bit pixels, with its alpha if it has any: what is named ".png" has to be PNG,
/// anything else may be PNG or JPEG. None if it cannot be read, is damaged, or has more pixels than maxPixels
/// or CLimits allow: the header is asked before anything is decoded. reason, if given, is then told why, as
/// the end of a sentence about the file: "is damaged: ..."; otherwise it is left alone.
CSharedImage ReadImageFile(const char* path, std::int64_t maxPixels, std::string* reason = nullptr);

/// The same for the content of such a file without a name.
CSharedImage ReadImage(std::string_view content, std::int64_t maxPixels, std::string* reason = nullptr);

} // namespace Mirel::Graphics
