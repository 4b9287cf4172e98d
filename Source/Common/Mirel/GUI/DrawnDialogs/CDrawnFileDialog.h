#pragma once

#include "Mirel/GUI/CTextLightWidget.h"
#include "Mirel/GUI/Controls/CListBox.h"
#include "Mirel/GUI/Controls/CPushButton.h"
#include "Mirel/GUI/Controls/CTextField.h"
#include "Mirel/GUI/DrawnDialogs/CAlertDialog.h"
#include "Mirel/GUI/DrawnDialogs/CDrawnDialog.h"
#include "Mirel/GUI/DrawnDialogs/FolderList.h"
#include "Mirel/GUI/Native/Dialogs/IDialogs.h"
#include "Mirel/GUI/Popups/CDrawnMenus.h"

#include <memory>
#include <string>
#include <vector>

namespace Mirel::GUI
{

/// The plain choice of a file: a folder's list, the way up, a name, a filter. GUI thread only.
class CDrawnFileDialog : public CDrawnDialog
{
public:
    /// answered is called once, with an empty path if the user gave up; it may destroy the dialog.
    CDrawnFileDialog(INativePlatform& platform_, const CPopupLook& look_, const SFileRequest& request_,
                     const SDialogOwner& owner_, IDialogs::FileReceiver answered_);

    const std::string& GetFolder() const { return folder; }
    void EnterFolder(const std::string& path);
    void GoUp();

    /// Takes what is typed: goes into a folder, or answers with the file.
    void Accept();

    CListBox& GetList() const { return *list; }
    CTextField& GetNameField() const { return *name; }
    CPushButton& GetAcceptButton() const { return *acceptButton; }
    CPushButton& GetFilterButton() const { return *filterButton; }

    /// The question whether a file is to be replaced; null while there is none.
    CAlertDialog* GetQuestion() const { return question.get(); }

protected:
    void OnGiveUp() override { Answer({}); }
    bool OnSpareKey(const COSXKeyEvent& event) override;
    void OnLayout(CSize size) override;

private:
    void MakeWidgets();
    std::unique_ptr<CTextLightWidget> MakeLabel(const char* text);
    void ShowFolder();
    void OnSelected();
    void OnActivated();
    void OpenFilterMenu();
    void SetFilter(std::size_t index);
    std::string GetTypedPath() const;
    std::string FindExisting(const std::string& path) const;
    void Save(const std::string& path);
    void AskToReplace(const std::string& path);
    void Answer(const std::string& path);

    SFileRequest request;
    IDialogs::FileReceiver answered;
    std::string folder;
    std::vector<SFolderEntry> entries;
    std::size_t filter = 0;
    std::string takenName;  ///< What was selected last, as the file system has it.
    std::string takenShown; ///< The same as it stands in the field.
    std::unique_ptr<CTextLightWidget> folderLabel;
    std::unique_ptr<CTextLightWidget> nameLabel;
    std::unique_ptr<CPushButton> upButton;
    std::unique_ptr<CListBox> list;
    std::unique_ptr<CTextField> name;
    std::unique_ptr<CPushButton> filterButton;
    std::unique_ptr<CPushButton> cancelButton;
    std::unique_ptr<CPushButton> acceptButton;
    std::unique_ptr<CMenu> filterMenu;
    CDrawnMenus menus;
    std::unique_ptr<CAlertDialog> question;
};

} // namespace Mirel::GUI
