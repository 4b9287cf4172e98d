#include "Mirel/GUI/DrawnDialogs/CDrawnFileDialog.h"

#include "Mirel/GUI/Native/Dialogs/DialogArguments.h"

#include <algorithm>
#include <utility>

namespace Mirel::GUI
{

namespace
{

constexpr CSize firstSize = {540, 400};
constexpr CSize smallestSize = {360, 240};
constexpr int margin = 12;
constexpr int spacing = 8;
constexpr int labelWidth = 48;

/// Shows another filter.
class CFilterCommand : public Core::ICommand
{
public:
    explicit CFilterCommand(std::function<void()> body_) : body(std::move(body_)) {}
    void Execute() override { body(); }

private:
    std::function<void()> body;
};

} // namespace

CDrawnFileDialog::CDrawnFileDialog(INativePlatform& platform_, const CPopupLook& look_,
                                   const SFileRequest& request_, const SDialogOwner& owner_,
                                   IDialogs::FileReceiver answered_)
    : CDrawnDialog(platform_, look_, request_.title, firstSize, owner_, true),
      request(request_),
      answered(std::move(answered_)),
      menus(platform_, look_)
{
    if (GetNativeWindow() != nullptr)
    {
        GetNativeWindow()->SetSizeLimits(ToDevice(smallestSize), {});
    }
    MakeWidgets();
    EnterFolder(IsFolder(request.folder) ? request.folder : GetHomeFolder());
    name->SetText(request.fileName);
    name->SelectAll();
}

void CDrawnFileDialog::MakeWidgets()
{
    CLightWidget* const parent = &GetRoot();
    const CPopupLook& look = GetLook();
    folderLabel = MakeLabel("");
    nameLabel = MakeLabel("Name:");
    upButton = std::make_unique<CPushButton>(parent, look, "Up", [this] { GoUp(); });
    list = std::make_unique<CListBox>(parent, look);
    list->SetSelectHandler([this] { OnSelected(); });
    list->SetActivateHandler([this] { OnActivated(); });
    name = std::make_unique<CTextField>(parent, look);
    name->SetConfirmHandler([this] { Accept(); });
    filterButton = std::make_unique<CPushButton>(parent, look, "", [this] { OpenFilterMenu(); });
    filterButton->SetHasMenu(true);
    filterButton->Show(!request.filters.empty());
    cancelButton = std::make_unique<CPushButton>(parent, look, "Cancel", [this] { OnGiveUp(); });
    acceptButton =
        std::make_unique<CPushButton>(parent, look, request.isSave ? "Save" : "Open", [this] { Accept(); });
    acceptButton->SetDefault(true);
    SetFirstFocus(*name);
    if (!request.filters.empty())
    {
        filterButton->SetText(request.filters.front().name);
    }
}

std::unique_ptr<CTextLightWidget> CDrawnFileDialog::MakeLabel(const char* text)
{
    auto label = std::make_unique<CTextLightWidget>(&GetRoot());
    Graphics::CTextFormat format;
    format.flags |= Graphics::CTextFormat::ellipsis;
    format.vAlign = Graphics::ETextVAlign::Center;
    label->GetTextDrawer().SetFont(GetLook().font);
    label->GetTextDrawer().SetColor(GetLook().text);
    label->GetTextDrawer().SetFormat(format);
    label->SetText(text);
    return label;
}

void CDrawnFileDialog::OnLayout(CSize size)
{
    const int row = acceptButton->GetNaturalSize().height;
    const int inner = std::max(size.width - 2 * margin, 1);
    const CSize button = acceptButton->GetNaturalSize();
    upButton->SetSize({button.width, row});
    upButton->Move({size.width - margin - button.width, margin});
    folderLabel->SetSize({inner - button.width - spacing, row});
    folderLabel->Move({margin, margin});
    const int buttonsY = size.height - margin - row;
    const int nameY = buttonsY - spacing - row;
    const int listY = margin + row + spacing;
    list->SetSize({inner, std::max(nameY - spacing - listY, 1)});
    list->Move({margin, listY});
    nameLabel->SetSize({labelWidth, row});
    nameLabel->Move({margin, nameY});
    name->SetSize({inner - labelWidth, row});
    name->Move({margin + labelWidth, nameY});
    acceptButton->Move({size.width - margin - button.width, buttonsY});
    const CSize cancel = cancelButton->GetNaturalSize();
    const int cancelX = size.width - margin - button.width - spacing - cancel.width;
    cancelButton->Move({cancelX, buttonsY});
    filterButton->SetSize({std::max(cancelX - 2 * spacing - margin, 1), row});
    filterButton->Move({margin, buttonsY});
}

void CDrawnFileDialog::EnterFolder(const std::string& path)
{
    folder = ResolveTyped(path, "");
    ShowFolder();
}

void CDrawnFileDialog::GoUp()
{
    const std::string from = folder;
    EnterFolder(GetParentFolder(folder));
    const auto place =
        std::find_if(entries.begin(), entries.end(),
                     [&](const SFolderEntry& entry) { return ResolveTyped(folder, entry.name) == from; });
    if (place != entries.end())
    {
        list->Select(static_cast<int>(place - entries.begin()));
    }
}

void CDrawnFileDialog::ShowFolder()
{
    entries = ListFolder(folder, request.filters.empty() ? std::vector<std::string>()
                                                         : request.filters[filter].patterns);
    std::vector<CListBox::SItem> items;
    items.reserve(entries.size());
    for (const SFolderEntry& entry : entries)
    {
        items.push_back({ToShownName(entry.name), entry.isFolder});
    }
    list->SetItems(std::move(items));
    folderLabel->SetText(ToShownName(folder).c_str());
}

void CDrawnFileDialog::OnSelected()
{
    const SFolderEntry& entry = entries[static_cast<std::size_t>(list->GetSelected())];
    if (!entry.isFolder)
    {
        takenName = entry.name;
        takenShown = ToShownName(entry.name);
        name->SetText(takenShown);
    }
}

void CDrawnFileDialog::OnActivated()
{
    const SFolderEntry& entry = entries[static_cast<std::size_t>(list->GetSelected())];
    if (entry.isFolder)
    {
        const std::string path = ResolveTyped(folder, entry.name);
        EnterFolder(path);
        list->Select(0);
    }
    else
    {
        OnSelected();
        Accept();
    }
}

bool CDrawnFileDialog::OnSpareKey(const COSXKeyEvent& event)
{
    if (event.key == ENativeKey::Backspace)
    {
        GoUp();
        return true;
    }
    return false;
}

void CDrawnFileDialog::OpenFilterMenu()
{
    filterMenu = std::make_unique<CMenu>();
    for (std::size_t i = 0; i < request.filters.size(); ++i)
    {
        filterMenu->AddItem(request.filters[i].name, new CFilterCommand([this, i] { SetFilter(i); }), true)
            .isChecked = i == filter;
    }
    const CPoint below = Plus(filterButton->GetAbsolutePosition(), {0, filterButton->GetSize().height});
    menus.Open(*filterMenu, *GetNativeWindow(), ToScreen(below), nullptr);
}

void CDrawnFileDialog::SetFilter(std::size_t index)
{
    filter = index;
    filterButton->SetText(request.filters[index].name);
    ShowFolder();
}

/// What was taken from the list may have a name that the field cannot hold.
std::string CDrawnFileDialog::GetTypedPath() const
{
    const std::string& typed = name->GetText();
    return ResolveTyped(folder, typed == takenShown ? takenName : typed);
}

void CDrawnFileDialog::Accept()
{
    if (name->GetText().empty())
    {
        const int selected = list->GetSelected();
        if (selected != CListBox::none && entries[static_cast<std::size_t>(selected)].isFolder)
        {
            OnActivated();
        }
        return;
    }
    const std::string path = GetTypedPath();
    if (IsFolder(path))
    {
        name->SetText("");
        EnterFolder(path);
    }
    else if (request.isSave)
    {
        Save(path);
    }
    else if (const std::string existing = FindExisting(path); !existing.empty())
    {
        Answer(existing);
    }
    else
    {
        name->SetWrong(true);
    }
}

std::string CDrawnFileDialog::FindExisting(const std::string& path) const
{
    const std::string extended = AddExtension(path, request.defaultExtension);
    if (IsFile(path))
    {
        return path;
    }
    return IsFile(extended) ? extended : std::string();
}

void CDrawnFileDialog::Save(const std::string& path)
{
    const std::string extended = AddExtension(path, request.defaultExtension);
    if (!IsFolder(GetParentFolder(extended)) || IsFolder(extended))
    {
        name->SetWrong(true);
    }
    else if (IsFile(extended))
    {
        AskToReplace(extended);
    }
    else
    {
        Answer(extended);
    }
}

void CDrawnFileDialog::AskToReplace(const std::string& path)
{
    SMessage message;
    message.title = request.title;
    message.text = "A file named \"" + ToShownName(path.substr(path.rfind('/') + 1)) +
                   "\" already exists. Do you want to replace it?";
    message.kind = EMessageKind::Warning;
    message.buttons = EMessageButtons::YesNo;
    SDialogOwner self;
    self.window = this;
    const auto replied = [this, path](EMessageAnswer answer)
    {
        const auto ending = std::move(question);
        if (answer == EMessageAnswer::Yes)
        {
            Answer(path);
        }
    };
    question = std::make_unique<CAlertDialog>(GetPlatform(), GetLook(), message, self, replied);
    if (!question->Open())
    {
        question.reset();
    }
}

void CDrawnFileDialog::Answer(const std::string& path)
{
    if (const auto call = std::exchange(answered, nullptr); call)
    {
        call(std::string(path)); // what the path stands in may go with the dialog
    }
}

} // namespace Mirel::GUI
