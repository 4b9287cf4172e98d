#pragma once

#include "Mirel/GUI/Native/INativePlatform.h"
#include "Mirel/GUI/PointMath.h"

#include <memory>

namespace Mirel::GUI
{

/// The bottom of a window: its link to the platform, and the way between skin and device pixels. GUI thread
/// only.
class CWindowRoot
{
public:
    explicit CWindowRoot(INativePlatform& platform_);
    CWindowRoot(const CWindowRoot&) = delete;
    CWindowRoot& operator=(const CWindowRoot&) = delete;
    virtual ~CWindowRoot() = default;

    INativePlatform& GetPlatform() const { return platform; }

    /// Null if the platform refused to make it; operations do nothing then.
    INativeWindow* GetNativeWindow() const { return native.get(); }

    /// Device pixels per skin pixel, 1 to 4.
    int GetScale() const { return scale; }

    /// The skin pixel that a device pixel is in.
    CPoint ToSkin(CPoint devicePoint) const;
    CSize ToDevice(CSize skinSize) const;

    /// From the window's skin pixels to the device pixels of the screen.
    CPoint ToScreen(CPoint skinPoint) const;

protected:
    void SetNativeWindow(std::unique_ptr<INativeWindow> newNative);
    void SetScale(int newScale);

private:
    INativePlatform& platform;
    int scale;
    std::unique_ptr<INativeWindow> native;
};

} // namespace Mirel::GUI
