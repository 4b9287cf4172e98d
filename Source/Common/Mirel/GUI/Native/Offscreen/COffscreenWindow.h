#pragma once

#include "Mirel/GUI/Native/INativePlatform.h"
#include "Mirel/Graphics/CDIBBitmap.h"

#include <string>

namespace Mirel::GUI
{

class COffscreenPlatform;

/// A window without a display: what is presented goes into a bitmap. Input comes from COffscreenPlatform.
/// GUI thread only.
class COffscreenWindow : public INativeWindow
{
public:
    COffscreenWindow(COffscreenPlatform& platform_, const SNativeWindowOptions& options,
                     INativeWindowSink& sink_);
    ~COffscreenWindow() override;

    NativeWindowId GetId() const override { return 0; }
    bool IsOpen() const override { return open; }
    void Show(bool show) override;
    bool IsShown() const override { return shown; }
    void Raise() override;
    void SetPosition(CPoint newPosition) override;
    CPoint GetPosition() const override { return position; }
    CPoint GetScreenPosition() const override { return position; }
    void SetSize(CSize newSize) override;
    CSize GetSize() const override { return size; }
    void SetSizeLimits(CSize newSmallest, CSize newLargest) override;
    void SetTitle(const std::string& newTitle) override { title = newTitle; }
    void SetOwner(const INativeWindow* newOwner) override { owner = newOwner; }
    void SetOpacity(float newOpacity) override { opacity = newOpacity; }
    bool CanBeTransparent() const override { return kind != ENativeWindowKind::Child; }
    void SetFocus() override;
    bool HasFocus() const override;
    bool CaptureMouse() override;
    void ReleaseMouse() override;
    void SetCursor(ECursorShape newShape) override;
    void SetCursor(const Graphics::CBitmap& picture_, CPoint hotSpot) override;
    void RequestPaint() override;
    void Present(const Graphics::CBitmap& bitmap, const Graphics::CSimple2DRegion& region) override;

    ENativeWindowKind GetKind() const { return kind; }
    INativeWindowSink& GetSink() const { return sink; }
    const std::string& GetTitle() const { return title; }
    float GetOpacity() const { return opacity; }
    const INativeWindow* GetOwner() const { return owner; }

    /// What a user would see: device pixels. Black where nothing was presented.
    const Graphics::CDIBBitmap& GetPicture() const { return picture; }

    /// The device pixels presented since the last call.
    Graphics::CSimple2DRegion TakePresented();

    ECursorShape GetCursorShape() const { return cursorShape; }
    bool HasCursorPicture() const { return hasCursorPicture; }

    /// What a user does to the frame: within the limits.
    void ResizeByUser(CSize newSize);

    /// The window is taken away, as when whoever embeds it goes.
    void CloseFromOutside();

    /// Forgets a part of what it shows, as a display does.
    void Lose(const Graphics::CRect& part);

    /// Lets the owner paint if that is due; false if it was not.
    bool PaintIfDue();

private:
    COffscreenPlatform& platform;
    INativeWindowSink& sink;
    ENativeWindowKind kind;
    CPoint position;
    CSize size;
    CSize smallest;
    CSize largest;
    std::string title;
    const INativeWindow* owner;
    float opacity = 1.0F;
    bool open = true;
    bool shown = false;
    bool paintRequested = false;
    ECursorShape cursorShape = ECursorShape::Normal;
    bool hasCursorPicture = false;
    Graphics::CDIBBitmap picture;
    Graphics::CSimple2DRegion lost;
    Graphics::CSimple2DRegion presented;
};

} // namespace Mirel::GUI
