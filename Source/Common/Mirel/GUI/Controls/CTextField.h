#pragma once

#include "Mirel/GUI/Controls/CDrawnControl.h"
#include "Mirel/GUI/Controls/CTextEditing.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace Mirel::GUI
{

class CNativeRunLoop;

/// A line of text to type in: with caret, selection, clipboard and mouse. UTF-8. Keys that it has no use for,
/// return and escape among them, are not handled. GUI thread only.
class CTextField : public CDrawnControl
{
public:
    CTextField(CLightWidget* parent_, const CPopupLook& look_);
    ~CTextField() override;

    const std::string& GetText() const { return editing.GetText(); }

    /// Does not call the change handler.
    void SetText(const std::string& text);
    void SelectAll();

    const CTextEditing& GetEditing() const { return editing; }

    /// Bytes that may be typed; 0 for any number.
    void SetMaxLength(std::size_t length) { editing.SetMaxLength(length); }

    /// Called after the user changed the text.
    void SetChangeHandler(std::function<void()> handler) { changed = std::move(handler); }

    /// Called by return; without it return is not handled.
    void SetConfirmHandler(std::function<void()> handler) { confirmed = std::move(handler); }

    /// Shown as one that cannot be understood, until it is changed.
    void SetWrong(bool newWrong);
    bool IsWrong() const { return isWrong; }

    /// The height that a line of text asks for.
    int GetNaturalHeight() const;

protected:
    void Paint(Graphics::CDrawSurface& surface, CSize size) override;
    bool OnLeftDown(const COSXMouseEvent& event) override;
    bool OnLeftDoubleClick(const COSXMouseEvent& event) override;
    bool OnMouseDrag(const COSXMouseEvent& event) override;
    bool AcceptsKey(const COSXKeyEvent& event) override;
    bool OnKeyDown(const COSXKeyEvent& event) override;
    bool OnFocusGained() override;
    bool OnFocusLost() override;

private:
    bool Edit(const COSXKeyEvent& event);
    bool MoveCaret(const COSXKeyEvent& event, CTextEditing::EUnit unit, bool isExtending);
    bool UseClipboard(const COSXKeyEvent& event);
    void Copy() const;
    void Paste();
    void AfterMove();
    void AfterChange();
    int GetX(std::size_t place) const;
    std::size_t FindPosition(int x) const;
    void ScrollToCaret();
    void StopBlinking();

    CTextEditing editing;
    std::function<void()> changed;
    std::function<void()> confirmed;
    int scroll = 0; ///< Pixels of the text that are left of the field.
    bool isWrong = false;
    bool isCaretSeen = true;
    CNativeRunLoop* loop = nullptr; ///< Of the timer.
    std::uint64_t timer = 0;
    std::shared_ptr<CTextField*> self; ///< For the clipboard, which answers late.
};

} // namespace Mirel::GUI
