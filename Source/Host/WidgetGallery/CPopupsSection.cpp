#include "Host/WidgetGallery/CPopupsSection.h"

#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Mirel/GUI/Controls/CListBox.h"
#include "Mirel/GUI/Controls/CPushButton.h"
#include "Mirel/GUI/Controls/CTextField.h"

#include <utility>

namespace WidgetGallery
{

namespace
{

DataModel::Objects::CParamInfo MakeInfo()
{
    return {2,  0.0F, 1000.0F, 250.0F,
            "", "ms", "",      new DataModel::Objects::CParamValueToText("%.1f", false, "{value} ms")};
}

} // namespace

CPopupsSection::CPopupsSection(const STools& tools_) : tools(tools_), param(MakeInfo()), control(param)
{
    constexpr float shown = 125.5F;
    param.SetValue(shown);
    FillMenu();
}

void CPopupsSection::FillMenu()
{
    menu.AddItem("Undo", nullptr, false).shortcut = "Ctrl+Z";
    GUI::SMenuItem& redo = menu.AddItem("Redo", nullptr, false);
    redo.shortcut = "Ctrl+Y";
    redo.isEnabled = false;
    menu.AddSeparator();
    menu.AddItem("Load Preset...", nullptr, false);
    menu.AddItem("Save Preset...", nullptr, false);
    GUI::CMenu& presets = menu.AddSubMenu("Factory Presets");
    for (const char* name : {"Default", "Drum Transients", "Slow Sweep"})
    {
        presets.AddItem(name, nullptr, false).isChecked = std::string(name) == "Drum Transients";
    }
    menu.AddSeparator();
    menu.AddItem("Use Global Skin", nullptr, false).isChecked = true;
    menu.AddItem("About", nullptr, false);
}

void CPopupsSection::Fill(CGalleryPage& page)
{
    page.BeginSection("Controls of dialogs");
    AddControls(page);
    page.BeginSection("Menus, tooltips and dialogs");
    const auto pointer = [this] { return tools.window.GetPlatform().GetPointerPosition(); };
    AddOpener(page, "Menu", [this, pointer] { OpenMenu(pointer()); });
    AddOpener(page, "Tooltip", [this, pointer] { ShowTooltip(pointer(), false); });
    AddOpener(page, "Balloon", [this, pointer] { ShowTooltip(pointer(), true); });
    AddOpener(page, "Information",
              [this] { ShowAlert(GUI::EMessageKind::Information, GUI::EMessageButtons::Ok); });
    AddOpener(page, "Warning",
              [this] { ShowAlert(GUI::EMessageKind::Warning, GUI::EMessageButtons::YesNoCancel); });
    AddOpener(page, "Error", [this] { ShowAlert(GUI::EMessageKind::Error, GUI::EMessageButtons::OkCancel); });
    AddOpener(page, "Open file", [this] { ChooseFile("", false); });
    AddOpener(page, "Save file", [this] { ChooseFile("", true); });
    AddOpener(page, "Fine edit", [this, pointer] { OpenFineEdit(pointer()); });
}

void CPopupsSection::AddControls(CGalleryPage& page)
{
    const GUI::CPopupLook& look = page.GetLook();
    auto button = std::make_unique<GUI::CPushButton>(nullptr, look, "Push", nullptr);
    const Core::CSize size = button->GetNaturalSize();
    page.Add(std::move(button), size, "Push button");
    page.Add(std::make_unique<GUI::CPushButton>(nullptr, look, "Open", nullptr), size, "Default")
        .SetDefault(true);
    page.Add(std::make_unique<GUI::CPushButton>(nullptr, look, "Push", nullptr), size, "Disabled")
        .Enable(false);
    page.Add(std::make_unique<GUI::CPushButton>(nullptr, look, "All Files", nullptr), {110, size.height},
             "With a menu")
        .SetHasMenu(true);
    auto& field =
        page.Add(std::make_unique<GUI::CTextField>(nullptr, look), {180, size.height}, "Text field");
    field.SetText("Drum Transients.preset");
    auto& wrong =
        page.Add(std::make_unique<GUI::CTextField>(nullptr, look), {120, size.height}, "Not understood");
    wrong.SetText("loud");
    wrong.SetWrong(true);
    auto& list = page.Add(std::make_unique<GUI::CListBox>(nullptr, look), {200, 110}, "List box");
    std::vector<GUI::CListBox::SItem> items = {{"Bench", true}, {"Lissajous", true}};
    for (int i = 1; i < 9; ++i)
    {
        items.push_back({"skin " + std::to_string(i) + ".xml", false});
    }
    list.SetItems(std::move(items));
    list.Select(2);
}

void CPopupsSection::AddOpener(CGalleryPage& page, const std::string& text, std::function<void()> open)
{
    auto button = std::make_unique<GUI::CPushButton>(nullptr, page.GetLook(), text, std::move(open));
    const Core::CSize size = button->GetNaturalSize();
    page.Add(std::move(button), size, "");
}

void CPopupsSection::OpenMenu(Core::CPoint place)
{
    if (tools.window.GetNativeWindow() != nullptr)
    {
        tools.menus.Open(menu, *tools.window.GetNativeWindow(), place, nullptr);
    }
}

void CPopupsSection::ShowTooltip(Core::CPoint place, bool isBalloon)
{
    GUI::STooltip tip;
    tip.text =
        isBalloon ? "Trigger Value\nThe level at which the trace begins." : "Time per division: 125.5 ms";
    tip.delayMs = 0;
    tip.isBalloon = isBalloon;
    if (isBalloon)
    {
        tip.background = Graphics::CColor{0x3A, 0x2E, 0x14};
        tip.textColor = Graphics::CColor{0xFF, 0xD8, 0x90};
    }
    if (tools.window.GetNativeWindow() != nullptr)
    {
        tools.tooltips.ShowTip(tip, *tools.window.GetNativeWindow(), place);
    }
}

GUI::IDialogs::DialogId CPopupsSection::ShowAlert(GUI::EMessageKind kind, GUI::EMessageButtons buttons)
{
    GUI::SMessage message;
    message.kind = kind;
    message.buttons = buttons;
    switch (kind)
    {
    case GUI::EMessageKind::Information:
        message.title = "Information";
        message.text = "Loading global skin.";
        break;
    case GUI::EMessageKind::Warning:
        message.title = "Save Preset";
        message.text = "A file named \"Slow Sweep.preset\" already exists. Do you want to replace it?";
        break;
    default:
        message.title = "Error";
        message.text = "Could not load skin. Please choose a valid skin file.";
    }
    return tools.dialogs.ShowMessage(message, 0, nullptr);
}

GUI::IDialogs::DialogId CPopupsSection::ChooseFile(const std::string& folder, bool isSave)
{
    GUI::SFileRequest request;
    request.title = isSave ? "Save Preset" : "Choose global skin";
    request.isSave = isSave;
    request.folder = folder;
    request.fileName = isSave ? "Slow Sweep.preset" : "";
    request.defaultExtension = isSave ? "preset" : "xml";
    if (!isSave)
    {
        request.filters.push_back({"Skin Files (*.xml)", {"*.xml"}});
    }
    request.filters.push_back({"All Files", {"*"}});
    return tools.dialogs.ChooseFile(request, 0, nullptr);
}

void CPopupsSection::OpenFineEdit(Core::CPoint place)
{
    tools.opener.OpenFineEdit(control, place);
}

} // namespace WidgetGallery
