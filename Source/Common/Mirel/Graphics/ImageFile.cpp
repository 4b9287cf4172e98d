#include "Mirel/Graphics/ImageFile.h"

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/ImageReaders.h"
#include "Mirel/Graphics/Limits.h"
#include "Mirel/Serialization/WholeFile.h"

#include <algorithm>
#include <strings.h>
#include <utility>

namespace Mirel::Graphics
{

namespace
{

/// Without case, whatever the locale.
bool IsNamedPng(std::string_view path)
{
    constexpr std::string_view extension = ".png";
    return path.size() >= extension.size() &&
           strncasecmp(path.data() + path.size() - extension.size(), extension.data(), extension.size()) == 0;
}

CReadImage Read(std::string_view content, std::int64_t maxPixels, bool onlyPng)
{
    if (IsPng(content))
    {
        return ReadPng(content, maxPixels);
    }
    if (IsJpeg(content) && !onlyPng)
    {
        return ReadJpeg(content, maxPixels);
    }
    return {nullptr, false, onlyPng ? "is no PNG image" : "is neither a PNG nor a JPEG image"};
}

CSharedImage Finish(CReadImage read, std::string* reason)
{
    if (read.pixels == nullptr)
    {
        if (reason != nullptr)
        {
            *reason = std::move(read.reason);
        }
        return nullptr;
    }
    return std::make_shared<CImage>(std::move(read.pixels), read.hasAlpha);
}

} // namespace

CReadImage MakePixels(std::int64_t width, std::int64_t height, std::int64_t maxPixels)
{
    const std::int64_t allowed = std::min(maxPixels, CLimits::maxImagePixels);
    if (width > allowed / height)
    {
        return {nullptr, false,
                "has " + std::to_string(width) + " x " + std::to_string(height) + " pixels, of " +
                    std::to_string(std::max<std::int64_t>(allowed, 0)) + " that are left for it"};
    }
    auto pixels = CBitmapContext::Create({static_cast<int>(width), static_cast<int>(height)}, 32);
    return pixels == nullptr ? CReadImage{nullptr, false, "does not fit into the memory"}
                             : CReadImage{std::move(pixels), false, {}};
}

CSharedImage ReadImageFile(const char* path, std::int64_t maxPixels, std::string* reason)
{
    std::string content;
    if (!Serialization::ReadFileWhole(path, CLimits::maxImageBytes, content))
    {
        return Finish({nullptr, false, "cannot be read, or is too large"}, reason);
    }
    return Finish(Read(content, maxPixels, IsNamedPng(path)), reason);
}

CSharedImage ReadImage(std::string_view content, std::int64_t maxPixels, std::string* reason)
{
    return Finish(Read(content, maxPixels, false), reason);
}

} // namespace Mirel::Graphics
