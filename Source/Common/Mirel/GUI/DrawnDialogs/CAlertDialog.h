#pragma once

#include "Mirel/GUI/CTextLightWidget.h"
#include "Mirel/GUI/Controls/CPushButton.h"
#include "Mirel/GUI/DrawnDialogs/CDrawnDialog.h"
#include "Mirel/GUI/Native/Dialogs/IDialogs.h"

#include <functional>
#include <memory>
#include <vector>

namespace Mirel::GUI
{

/// A message with one to three buttons. GUI thread only.
class CAlertDialog : public CDrawnDialog
{
public:
    /// answered is called once; it may destroy the dialog.
    CAlertDialog(INativePlatform& platform_, const CPopupLook& look_, const SMessage& message,
                 const SDialogOwner& owner_, IDialogs::MessageReceiver answered_);

    /// From the left; null out of range.
    CPushButton* GetButton(int index) const;

protected:
    void OnGiveUp() override;
    bool OnSpareKey(const COSXKeyEvent& event) override;

private:
    void AddButton(const char* shown, EMessageAnswer answer);
    void Answer(EMessageAnswer answer);
    void MoveFocus(int step);

    EMessageButtons kind;
    IDialogs::MessageReceiver answered;
    std::unique_ptr<CLightWidget> icon;
    std::unique_ptr<CTextLightWidget> text;
    std::vector<std::unique_ptr<CPushButton>> buttons;
};

} // namespace Mirel::GUI
