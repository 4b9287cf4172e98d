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
/// CLimits; it is tried again the next time. What is wrong is told to reason, if that is given: a text for
/// the log, with the name of the file; it is left alone if all is well. GUI thread.
///
/// With a device scale, "knob@2x.png" stands in for "knob.png" where it is there and has twice its width and
/// height: the image has the size that it has without, and is drawn from more pixels.
class CGraphicResourcesManager
{
public:
    CGraphicResourcesManager() = default;
    CGraphicResourcesManager(const CGraphicResourcesManager&) = delete;
    CGraphicResourcesManager& operator=(const CGraphicResourcesManager&) = delete;

    /// hasAlpha is told whether the image has any transparency of its own; left alone if there is none.
    CSharedImage GetImage(const char* path, bool& hasAlpha, std::string* reason = nullptr);

    /// The image with the grey values of the mask as its opacity; as it is if the sizes differ or the mask
    /// cannot be read, which reason is told.
    CSharedImage GetImageWithMask(const char* path, const char* maskPath, bool& hasAlpha,
                                  std::string* reason = nullptr);

    /// The grey values of the image, as a mask; never of its sibling for a device scale, since the mouse
    /// knows the pixels of the skin only.
    CSharedImage GetAlphaImage(const char* path, std::string* reason = nullptr);

    /// 1 at first, to 4. A change forgets the images that were loaded; those that are handed out stay.
    void SetDeviceScale(int newScale);
    int GetDeviceScale() const { return deviceScale; }

    /// Images kept.
    std::size_t GetCount() const { return images.size(); }

private:
    CSharedImage Find(const std::string& key, bool& hasAlpha) const;
    CSharedImage Load(const char* path, std::string* reason) const;
    CSharedImage LoadScaled(const char* path, std::string* reason) const;
    CSharedImage LoadMasked(const char* path, const char* maskPath, std::string* reason) const;
    CSharedImage Keep(const std::string& key, CSharedImage image, bool& hasAlpha, std::string* reason);

    Containers::TStringMap<CSharedImage> images;
    std::int64_t pixelsKept = 0;
    int deviceScale = 1;
};

} // namespace Mirel::Graphics
