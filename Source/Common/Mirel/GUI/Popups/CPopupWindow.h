#pragma once

#include "Mirel/GUI/Native/INativePlatform.h"
#include "Mirel/GUI/PointMath.h"
#include "Mirel/Graphics/CDIBBitmap.h"

#include <memory>

namespace Mirel::Graphics
{
class CDrawSurface;
} // namespace Mirel::Graphics

namespace Mirel::GUI
{

/// A window without a frame that paints itself as a whole: menus and tooltips. GUI thread only; it may be
/// destroyed in each of its handlers.
class CPopupWindow : protected INativeWindowSink
{
public:
    /// Hidden. The frame is in device pixels of the screen; the owner may be null.
    CPopupWindow(INativePlatform& platform_, ENativeWindowKind kind, const CRect& frame_,
                 const INativeWindow* owner);
    CPopupWindow(const CPopupWindow&) = delete;
    CPopupWindow& operator=(const CPopupWindow&) = delete;
    ~CPopupWindow() override;

    /// Null if the platform refused it.
    INativeWindow* GetNativeWindow() const { return window.get(); }

    /// False if there is nothing to show.
    bool Show();

    /// Device pixels of the screen.
    CRect GetFrame() const { return frame; }
    int GetScale() const { return scale; }

    /// Device pixels of the screen; to be painted anew.
    void SetFrame(const CRect& newFrame);

    /// To be painted anew.
    void Invalidate();

protected:
    /// Draws all of it, in skin pixels.
    virtual void Draw(Graphics::CDrawSurface& surface) = 0;

    CSize GetSkinSize() const;

    /// Skin pixels of the window.
    CPoint ToSkin(CPoint devicePoint) const;

private:
    void OnPaint(const Graphics::CSimple2DRegion& lost) override;

    CRect frame;
    int scale;
    Graphics::CDIBBitmap picture = Graphics::CDIBBitmap(32);
    bool isOutdated = true;
    std::unique_ptr<INativeWindow> window;
};

} // namespace Mirel::GUI
