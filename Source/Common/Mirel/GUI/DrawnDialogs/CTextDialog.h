#pragma once

#include "Mirel/GUI/Controls/CTextField.h"
#include "Mirel/GUI/DrawnDialogs/CDrawnDialog.h"

#include <functional>
#include <memory>
#include <string>

namespace Mirel::GUI
{

/// A small window in which a line of text is typed: it shows one, selected. Return hands the text over and
/// closes it, unless that means nothing; escape closes it. GUI thread only.
class CTextDialog : public CDrawnDialog
{
public:
    /// False for a text that means nothing: it stays for another try. May destroy the dialog.
    using Taker = std::function<bool(const std::string& text)>;

    /// place: device pixels of the screen. closed is called once, when the user is done; it may destroy the
    /// dialog.
    CTextDialog(INativePlatform& platform_, const CPopupLook& look_, const std::string& title,
                const std::string& text, CPoint place, const SDialogOwner& owner_, Taker take_,
                std::function<void()> closed_);

    CTextField& GetField() const { return *field; }

protected:
    void OnGiveUp() override { Close(); }
    void OnLayout(CSize size) override;

private:
    void Confirm();
    void Close();

    Taker take;
    std::function<void()> closed;
    std::unique_ptr<CTextField> field;
};

} // namespace Mirel::GUI
