#include "Mirel/Graphics/CGraphicResourcesManager.h"

#include "Mirel/Graphics/ImageFile.h"
#include "Mirel/Graphics/ImageMask.h"
#include "Mirel/Graphics/Limits.h"

#include <utility>

namespace Mirel::Graphics
{

namespace
{

std::int64_t CountPixels(const CImage& image)
{
    return std::int64_t{image.GetSize().width} * image.GetSize().height;
}

std::string MaskKey(const char* path)
{
    return std::string(path) + ":alpha";
}

} // namespace

CSharedImage CGraphicResourcesManager::GetImage(const char* path, bool& hasAlpha)
{
    if (auto found = Find(path, hasAlpha))
    {
        return found;
    }
    return Keep(path, Load(path), hasAlpha);
}

CSharedImage CGraphicResourcesManager::GetImageWithMask(const char* path, const char* maskPath,
                                                        bool& hasAlpha)
{
    const std::string key = std::string(path) + "<+>" + maskPath;
    if (auto found = Find(key, hasAlpha))
    {
        return found;
    }
    // Neither part is kept for its own sake.
    bool partAlpha = false;
    CSharedImage colors = Find(path, partAlpha);
    if (colors == nullptr)
    {
        colors = Load(path);
    }
    CSharedImage mask = colors == nullptr ? nullptr : Find(MaskKey(maskPath), partAlpha);
    if (colors != nullptr && mask == nullptr)
    {
        mask = Load(maskPath);
    }
    CSharedImage composed = mask == nullptr ? nullptr : ComposeWithMask(*colors, *mask);
    return Keep(key, composed == nullptr ? std::move(colors) : std::move(composed), hasAlpha);
}

CSharedImage CGraphicResourcesManager::GetAlphaImage(const char* path)
{
    const std::string key = MaskKey(path);
    bool hasAlpha = false;
    if (auto found = Find(key, hasAlpha))
    {
        return found;
    }
    const CSharedImage image = Load(path);
    return Keep(key, image == nullptr ? nullptr : MakeMask(*image), hasAlpha);
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

CSharedImage CGraphicResourcesManager::Load(const char* path) const
{
    return ReadImageFile(path, CLimits::maxSkinPixels - pixelsKept);
}

CSharedImage CGraphicResourcesManager::Keep(const std::string& key, CSharedImage image, bool& hasAlpha)
{
    if (image == nullptr || CountPixels(*image) > CLimits::maxSkinPixels - pixelsKept)
    {
        return nullptr;
    }
    pixelsKept += CountPixels(*image);
    hasAlpha = image->HasAlpha();
    images.emplace(key, image);
    return image;
}

} // namespace Mirel::Graphics
