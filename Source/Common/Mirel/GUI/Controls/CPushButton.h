#pragma once

#include "Mirel/GUI/Controls/CDrawnControl.h"

#include <functional>
#include <string>

namespace Mirel::GUI
{

/// A button with a text, pushed by a click, or by return or the space bar while it has the focus. GUI thread
/// only.
class CPushButton : public CDrawnControl
{
public:
    CPushButton(CLightWidget* parent_, const CPopupLook& look_, std::string text_,
                std::function<void()> pushed_);

    const std::string& GetText() const { return text; }
    void SetText(const std::string& newText);

    /// Drawn as the one that return pushes.
    void SetDefault(bool newDefault);

    /// With an arrow that tells of a menu.
    void SetHasMenu(bool newHasMenu);

    /// The size that the text asks for.
    CSize GetNaturalSize() const;

    /// As a click does.
    void Push();

protected:
    void Paint(Graphics::CDrawSurface& surface, CSize size) override;
    bool OnLeftDown(const COSXMouseEvent& event) override;
    bool OnLeftUp(const COSXMouseEvent& event) override;
    bool OnLeftClick(const COSXMouseEvent& event) override;
    bool OnLeftDoubleClick(const COSXMouseEvent& event) override { return OnLeftClick(event); }
    void OnCaptureLost() override;
    bool AcceptsKey(const COSXKeyEvent& event) override;
    bool OnKeyDown(const COSXKeyEvent& event) override;

private:
    std::string text;
    std::function<void()> pushed;
    bool isDefault = false;
    bool hasMenu = false;
    bool isDown = false;
};

} // namespace Mirel::GUI
