#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/GUI/CLightWidgetAdapter.h"
#include "Mirel/GUI/CWindow.h"
#include "Mirel/GUI/Popups/CPopupLook.h"

#include <memory>
#include <optional>
#include <string>

namespace Mirel::GUI
{

/// What a dialog stays in front of: a window of the toolkit, which gets no input meanwhile, or a window of
/// somebody else, or nothing.
struct SDialogOwner
{
    CWindowBase* window = nullptr; ///< must outlive the dialog
    NativeWindowId id = 0;         ///< without a window
};

/// A window with light widgets that has to be answered before its owner gets input again. GUI thread only.
class CDrawnDialog : public CWindow
{
public:
    /// Hidden; size in skin pixels. In the middle of its owner, or of the screen, unless a place, in device
    /// pixels of the screen, is given.
    CDrawnDialog(INativePlatform& platform_, const CPopupLook& look_, const std::string& title, CSize size,
                 const SDialogOwner& owner_, bool isResizable = false,
                 std::optional<CPoint> place = std::nullopt);

    /// The owner gets input again, and the keys if it had them.
    ~CDrawnDialog() override;

    /// Shows it and blocks the owner. False if the platform refused the window.
    bool Open();

protected:
    /// Escape was pressed, or the window asked to close or was lost. The dialog may be destroyed.
    virtual void OnGiveUp() = 0;

    /// A key that no widget had a use for.
    virtual bool OnSpareKey(const COSXKeyEvent& /*event*/) { return false; }

    /// The window has another size.
    virtual void OnLayout(CSize /*size*/) {}

    const CPopupLook& GetLook() const { return popupLook; }
    CLightWidget& GetRoot() const { return *root; }

    /// The widget gets the keys when the dialog opens, until when it must live.
    void SetFirstFocus(CLightWidget& widget) { firstFocus = &widget; }

private:
    class CKeys;

    bool OnUnusedKey(const COSXKeyEvent& event);
    void OnWindowCloseRequested() override { OnGiveUp(); }
    void OnWindowLost() override { OnGiveUp(); }
    void OnSizeChanged();
    void Block();

    CPopupLook popupLook;
    SDialogOwner owner;
    std::unique_ptr<Core::CLifeToken::CWatch> ownerWatch; ///< While it is blocked.
    bool hadKeys = false;                                 ///< The owner, before.
    CWidget* content;
    CLightWidgetAdapter* adapter;
    CLightWidget* root;
    CLightWidget* firstFocus = nullptr;
    Core::TCommand<CDrawnDialog> onResized;
};

} // namespace Mirel::GUI
