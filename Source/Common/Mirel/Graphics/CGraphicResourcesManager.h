#pragma once

#include "Mirel/Containers/TStringMap.h"
#include "Mirel/Graphics/CImage.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace Mirel::Graphics
{

/// The images of a skin, loaded once each and kept by name until the manager goes; images that are handed out
/// live on with whoever holds them. Every operation gives none if a file cannot be read or goes beyond
/// CLimits; it is tried again the next time. GUI thread.
class CGraphicResourcesManager
{
public:
    CGraphicResourcesManager() = default;
    CGraphicResourcesManager(const CGraphicResourcesManager&) = delete;
    CGraphicResourcesManager& operator=(const CGraphicResourcesManager&) = delete;

    /// hasAlpha is told whether the image has any transparency of its own; left alone if there is none.
    CSharedImage GetImage(const char* path, bool& hasAlpha);

    /// The image with the grey values of the mask as its opacity; as it is if the sizes differ or the mask
    /// cannot be read.
    CSharedImage GetImageWithMask(const char* path, const char* maskPath, bool& hasAlpha);

    /// The grey values of the image, as a mask.
    CSharedImage GetAlphaImage(const char* path);

    /// Images kept.
    std::size_t GetCount() const { return images.size(); }

private:
    CSharedImage Find(const std::string& key, bool& hasAlpha) const;
    CSharedImage Load(const char* path) const;
    CSharedImage Keep(const std::string& key, CSharedImage image, bool& hasAlpha);

    Containers::TStringMap<CSharedImage> images;
    std::int64_t pixelsKept = 0;
};

} // namespace Mirel::Graphics
