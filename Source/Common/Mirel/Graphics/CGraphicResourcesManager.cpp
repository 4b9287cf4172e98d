#include "Mirel/Graphics/CGraphicResourcesManager.h"

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/ImageFile.h"
#include "Mirel/Graphics/ImageMask.h"
#include "Mirel/Graphics/Limits.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace Mirel::Graphics
{

namespace
{

/// Pixels each way of a sibling for each of the image that it stands in for.
constexpr int siblingScale = 2;

std::int64_t CountPixels(const CImage& image)
{
    const CSize size = image.GetContext()->GetSize();
    return std::int64_t{size.width} * size.height;
}

std::string MaskKey(const char* path)
{
    return std::string(path) + ":alpha";
}

/// "folder/knob.png" to "folder/knob@2x.png".
std::string GetSibling(const char* path)
{
    const std::filesystem::path whole(path);
    return (whole.parent_path() / whole.stem()).string() + "@2x" + whole.extension().string();
}

void Tell(std::string* reason, const std::string& text)
{
    if (reason != nullptr)
    {
        *reason = text;
    }
}

std::string Quote(const char* path)
{
    return "Image \"" + std::string(path) + "\" ";
}

} // namespace

CSharedImage CGraphicResourcesManager::GetImage(const char* path, bool& hasAlpha, std::string* reason)
{
    if (auto found = Find(path, hasAlpha))
    {
        return found;
    }
    CSharedImage image = LoadScaled(path, reason);
    return Keep(path, image == nullptr ? Load(path, reason) : std::move(image), hasAlpha, reason);
}

CSharedImage CGraphicResourcesManager::GetImageWithMask(const char* path, const char* maskPath,
                                                        bool& hasAlpha, std::string* reason)
{
    const std::string key = std::string(path) + "<+>" + maskPath;
    if (auto found = Find(key, hasAlpha))
    {
        return found;
    }
    return Keep(key, LoadMasked(path, maskPath, reason), hasAlpha, reason);
}

CSharedImage CGraphicResourcesManager::GetAlphaImage(const char* path, std::string* reason)
{
    const std::string key = MaskKey(path);
    bool hasAlpha = false;
    if (auto found = Find(key, hasAlpha))
    {
        return found;
    }
    const CSharedImage image = Load(path, reason);
    return Keep(key, image == nullptr ? nullptr : MakeMask(*image), hasAlpha, reason);
}

void CGraphicResourcesManager::SetDeviceScale(int newScale)
{
    const int bounded = std::clamp(newScale, 1, CLimits::maxDeviceScale);
    if (bounded != deviceScale)
    {
        deviceScale = bounded;
        images.clear();
        pixelsKept = 0;
    }
}

CSharedImage CGraphicResourcesManager::Find(const std::string& key, bool& hasAlpha) const
{
    const auto found = images.find(key);
    if (found == images.end())
    {
        return nullptr;
    }
    hasAlpha = found->second->HasAlpha();
    return found->second;
}

CSharedImage CGraphicResourcesManager::Load(const char* path, std::string* reason) const
{
    std::string why;
    CSharedImage image = ReadImageFile(path, CLimits::maxSkinPixels - pixelsKept, &why);
    if (image == nullptr)
    {
        Tell(reason, Quote(path) + why);
    }
    return image;
}

/// The sibling for the device scale. None without one, and for one that does not go with the image.
CSharedImage CGraphicResourcesManager::LoadScaled(const char* path, std::string* reason) const
{
    const std::string sibling = GetSibling(path);
    std::error_code error;
    if (deviceScale == 1 || !std::filesystem::exists(sibling, error))
    {
        return nullptr;
    }
    const CSharedImage plain = Load(path, reason);
    const CSharedImage scaled = plain == nullptr ? nullptr : Load(sibling.c_str(), reason);
    if (scaled == nullptr)
    {
        return nullptr;
    }
    const CSize size = plain->GetSize();
    if (scaled->GetSize() != CSize{size.width * siblingScale, size.height * siblingScale})
    {
        Tell(reason, Quote(sibling.c_str()) + "is not twice as wide and high as \"" + path + "\"");
        return nullptr;
    }
    return MakeScaled(*scaled, siblingScale);
}

CSharedImage CGraphicResourcesManager::LoadMasked(const char* path, const char* maskPath,
                                                  std::string* reason) const
{
    // Neither part is kept for its own sake.
    if (const CSharedImage colors = LoadScaled(path, reason))
    {
        const CSharedImage mask = LoadScaled(maskPath, reason);
        if (CSharedImage composed = mask == nullptr ? nullptr : ComposeWithMask(*colors, *mask))
        {
            return composed;
        }
    }
    bool partAlpha = false;
    CSharedImage colors = Find(path, partAlpha);
    if (colors == nullptr || colors->GetContext()->GetScale() > 1)
    {
        colors = Load(path, reason);
    }
    CSharedImage mask = colors == nullptr ? nullptr : Find(MaskKey(maskPath), partAlpha);
    if (colors != nullptr && mask == nullptr)
    {
        mask = Load(maskPath, reason);
    }
    CSharedImage composed = mask == nullptr ? nullptr : ComposeWithMask(*colors, *mask);
    if (composed == nullptr && mask != nullptr)
    {
        Tell(reason, Quote(maskPath) + "has another size than \"" + path + "\", whose mask it is");
    }
    return composed == nullptr ? colors : composed;
}

CSharedImage CGraphicResourcesManager::Keep(const std::string& key, CSharedImage image, bool& hasAlpha,
                                            std::string* reason)
{
    if (image == nullptr)
    {
        return nullptr;
    }
    if (CountPixels(*image) > CLimits::maxSkinPixels - pixelsKept)
    {
        Tell(reason, Quote(key.c_str()) + "has more pixels than are left for it");
        return nullptr;
    }
    pixelsKept += CountPixels(*image);
    hasAlpha = image->HasAlpha();
    images.emplace(key, image);
    return image;
}

} // namespace Mirel::Graphics
