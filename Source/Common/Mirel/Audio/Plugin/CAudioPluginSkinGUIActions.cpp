#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Audio/Plugin/CAudioPluginSkinGUI.h"
#include "Mirel/Audio/Plugin/CPluginModelObjects.h"
#include "Mirel/Audio/Plugin/PresetFiles.h"
#include "Mirel/DataModel/Objects/TConstAsyncActionWrapper.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace Mirel::Audio::Plugin
{

using GUI::CMenu;
using GUI::EMessageKind;

namespace
{

constexpr const char* presetExtension = "preset";
constexpr const char* presetFilter = "Presets Files (*.preset)";
constexpr const char* presetPattern = "*.preset";

/// What is no letter, digit or one of "-._~" as "%XX".
std::string QueryText(const std::string& text)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
    std::string encoded;
    for (const char c : text)
    {
        const auto byte = static_cast<unsigned char>(c);
        if (plain.find(c) != std::string_view::npos)
        {
            encoded += c;
        }
        else
        {
            encoded.append({'%', digits[byte >> 4U], digits[byte & 0xFU]});
        }
    }
    return encoded;
}

/// Pages only: what a stranger's skin names must not start programs or open files.
bool MayBeOpened(const std::string& url)
{
    return std::ranges::any_of(std::array{"http://", "https://", "mailto:"},
                               [&url](const char* scheme) { return url.rfind(scheme, 0) == 0; });
}

} // namespace

void CAudioPluginSkinGUI::MakeActions()
{
    AddAction("OpenMenu", &CAudioPluginSkinGUI::OpenMenu);
    AddAction("OpenPresetMenu", &CAudioPluginSkinGUI::OpenPresetMenu);
    AddAction("LoadPreviousPreset", &CAudioPluginSkinGUI::LoadPreviousPreset);
    AddAction("LoadNextPreset", &CAudioPluginSkinGUI::LoadNextPreset);
    AddAction("DisplayAbout", &CAudioPluginSkinGUI::DisplayAbout);
    AddAction("OpenManual", &CAudioPluginSkinGUI::OpenManual);
    AddAction("OpenWebsite", &CAudioPluginSkinGUI::OpenWebsite);
    AddAction("Undo", &CAudioPluginSkinGUI::Undo);
    AddAction("Redo", &CAudioPluginSkinGUI::Redo);
    AddAction("LoadPreset", &CAudioPluginSkinGUI::LoadPreset);
    AddAction("SavePreset", &CAudioPluginSkinGUI::SavePreset);
    AddAction("ResetPresetMIDISettings", &CAudioPluginSkinGUI::ResetPresetMIDISettings);
}

/// Actions are posted: they may close the skin whose button triggers them.
void CAudioPluginSkinGUI::AddAction(const char* name, Method method)
{
    actions[name] = std::make_unique<DataModel::Objects::TConstAsyncActionWrapper<CAudioPluginSkinGUI>>(
        name, "", &window->GetTimers().GetInvoker(), this, method);
}

const DataModel::Objects::IConstAction* CAudioPluginSkinGUI::FindAction(const char* name) const
{
    const auto place = name == nullptr ? actions.end() : actions.find(name);
    return place == actions.end() ? nullptr : place->second.get();
}

void CAudioPluginSkinGUI::Post(Next action)
{
    loop->Post(std::move(action));
}

GUI::SMenuItem& CAudioPluginSkinGUI::AddItem(CMenu& menu, const std::string& text, Next action,
                                             bool isEnabled)
{
    GUI::SMenuItem& item = menu.AddItem(text, [this, action = std::move(action)] { Post(action); });
    item.isEnabled = isEnabled;
    return item;
}

void CAudioPluginSkinGUI::FillMenu(CMenu& menu)
{
    constexpr bool comesLater = false; // the history of edits, and the dialog of the settings
    CAudioPluginDefaultSettings& settings = internals.GetDefaultSettings();
    AddItem(
        menu, "Undo", [this] { Undo(); }, comesLater);
    AddItem(
        menu, "Redo", [this] { Redo(); }, comesLater);
    menu.AddSeparator();
    AddItem(menu, "Load Preset...", [this] { LoadPreset(); });
    AddItem(menu, "Save Preset...", [this] { SavePreset(); });
    AddPresetsMenu(menu.AddSubMenu("Factory Presets"));
    menu.AddSeparator();
    AddSettingsMenu(menu.AddSubMenu("Current Preset Settings"));
    AddItem(menu, "Set Preset Skin...", [this] { SetPresetSkin(); });
    AddItem(
        menu, "Use Global Skin", [this] { UseGlobalSkin(); }, GetChoice().IsPresets());
    AddItem(
        menu, "Get More Skins", [this] { OpenPage(options.skinsPage); }, !options.skinsPage.empty());
    menu.AddSeparator();
    AddItem(
        menu, "Preset Settings...", [] {}, comesLater);
    AddItem(
        menu, "Global Settings...", [] {}, comesLater);
    menu.AddSeparator();
    AddItem(menu, "User Manual", [this] { OpenManual(); });
    AddItem(
        menu, "Check for Updates", [this] { OpenPage(options.updatesPage); }, !options.updatesPage.empty());
    AddItem(menu, "Legal Information",
            [this, &settings]
            {
                if (dialogs != nullptr)
                {
                    dialogs->OpenPage(settings.GetLegalFolder());
                }
            });
    AddItem(menu, "About", [this] { DisplayAbout(); });
}

void CAudioPluginSkinGUI::AddPresetsMenu(CMenu& menu)
{
    IPresets& presets = internals.GetPresets();
    for (int i = 0; i < presets.GetCount(); ++i)
    {
        AddItem(menu, presets.GetPreset(i).GetName(), [this, i] { LoadFactoryPreset(i); }).isChecked =
            IsCurrentPreset(i);
    }
}

void CAudioPluginSkinGUI::LoadFactoryPreset(int index)
{
    internals.GetPresets().GetPreset(index).Load();
    RefreshAll();
}

/// A state knows its preset by the name alone.
bool CAudioPluginSkinGUI::IsCurrentPreset(int index) const
{
    return internals.GetPresets().GetPreset(index).GetName() == internals.GetCurrentPresetName();
}

/// Round the list; into it at its near end from a state that is none of them.
void CAudioPluginSkinGUI::StepPreset(int step)
{
    const int count = internals.GetPresets().GetCount();
    int current = 0;
    while (current < count && !IsCurrentPreset(current))
    {
        ++current;
    }
    if (count > 0)
    {
        const bool isListed = current < count;
        LoadFactoryPreset(isListed ? (current + step + count) % count : step > 0 ? 0 : count - 1);
    }
}

void CAudioPluginSkinGUI::AddSettingsMenu(CMenu& menu)
{
    const auto addSwitch = [this, &menu](const char* text, CSharedFlag& flag)
    { AddItem(menu, text, [&flag] { flag.SetValue(!flag.GetValue()); }).isChecked = flag.GetValue(); };
    addSwitch("Use Global MIDI Input Settings", internals.GetUseDefaultInputMIDI());
    addSwitch("Use Global MIDI Output Settings", internals.GetUseDefaultOutputMIDI());
    addSwitch("Use Global Automation Settings", internals.GetUseDefaultOutputAutomation());
    menu.AddSeparator();
    AddItem(menu, "Reset MIDI Settings", [this] { ResetPresetMIDISettings(); });
}

void CAudioPluginSkinGUI::Present(std::unique_ptr<CMenu> menu)
{
    GUI::IMenuPresenter* menus = popups == nullptr ? nullptr : popups->GetMenus();
    if (menus != nullptr)
    {
        menus->Close();
        openMenu = std::move(menu);
        menus->Open(*openMenu, *frame->GetNativeWindow(), platform->GetPointerPosition(), [] {});
    }
}

void CAudioPluginSkinGUI::OpenMenu()
{
    auto menu = std::make_unique<CMenu>();
    FillMenu(*menu);
    Present(std::move(menu));
}

void CAudioPluginSkinGUI::OpenPresetMenu()
{
    auto menu = std::make_unique<CMenu>();
    AddPresetsMenu(*menu);
    Present(std::move(menu));
}

/// Posted: the host may close the editor, whose widget is just being handled. The model's other parameters
/// are none of the host's.
void CAudioPluginSkinGUI::OnParamRightClick(const char* id)
{
    const int count = onInputRightClick ? internals.GetInputParamsInfo().GetCount() : 0;
    for (int input = 0; input < count; ++input)
    {
        if (GetInputId(input) == id)
        {
            Post([this, input] { onInputRightClick(input); });
            return;
        }
    }
}

std::string CAudioPluginSkinGUI::GetAboutText() const
{
    std::string text = options.productName.empty() ? "This Plug-in" : options.productName;
    if (!options.productVersion.empty())
    {
        text += " (v" + options.productVersion + ")";
    }
    if (!options.makerName.empty())
    {
        text += "\nby " + options.makerName;
    }
    const auto addIfGiven = [&text](const char* label, const std::string& value)
    {
        if (!value.empty())
        {
            text += label + value;
        }
    };
    if (window != nullptr)
    {
        addIfGiven("\nSkin: ", window->GetSkinName());
        addIfGiven("\nSkin design: ", window->GetSkinAuthor());
        addIfGiven("\nSkin comment: ", window->GetSkinComment());
    }
    text +=
        std::string("\nSkinning engine version: ") +
        (window != nullptr ? window->GetEngineLanguageVersion() : SkinEngine::CGUISkinWindow::engineVersion);
    addIfGiven("\n", options.legalLine);
    return text;
}

void CAudioPluginSkinGUI::DisplayAbout()
{
    const std::string name = options.productName.empty() ? "This Plug-in" : options.productName;
    Tell("About " + name, GetAboutText(), EMessageKind::Information);
}

void CAudioPluginSkinGUI::OpenManual()
{
    if (dialogs != nullptr)
    {
        dialogs->OpenPage(internals.GetDefaultSettings().GetManualFile());
    }
}

void CAudioPluginSkinGUI::OpenPage(const std::string& page)
{
    if (dialogs != nullptr && !page.empty())
    {
        const char* separator = page.find('?') == std::string::npos ? "?" : "&";
        dialogs->OpenPage(page + separator + "plugin=" + QueryText(options.productName));
    }
}

void CAudioPluginSkinGUI::OpenUrl(const char* url)
{
    const std::string address = url == nullptr ? "" : url;
    if (dialogs != nullptr && MayBeOpened(address))
    {
        dialogs->OpenPage(address);
    }
}

void CAudioPluginSkinGUI::LoadPreset()
{
    if (dialogs == nullptr)
    {
        return;
    }
    GUI::SFileRequest request;
    request.title = "Load Preset";
    request.filters.push_back({presetFilter, {presetPattern}});
    dialogs->ChooseFile(request, GetOwner(),
                        [this](const std::string& path)
                        {
                            if (path.empty())
                            {
                                return;
                            }
                            if (!Plugin::LoadPreset(path.c_str(), internals))
                            {
                                Tell("Load Preset Error", "Could not load preset file. Invalid preset file.",
                                     EMessageKind::Error);
                            }
                            RefreshAll();
                        });
}

void CAudioPluginSkinGUI::SavePreset()
{
    if (dialogs == nullptr)
    {
        return;
    }
    GUI::SFileRequest request;
    request.title = "Save Preset As";
    request.isSave = true;
    request.defaultExtension = presetExtension;
    request.filters.push_back({presetFilter, {presetPattern}});
    dialogs->ChooseFile(request, GetOwner(),
                        [this](const std::string& path)
                        {
                            if (!path.empty() && !Plugin::SavePreset(internals, path.c_str()))
                            {
                                Tell("Save Preset Error", "Could not save preset file.", EMessageKind::Error);
                            }
                        });
}

void CAudioPluginSkinGUI::ResetPresetMIDISettings()
{
    internals.ResetPresetMIDISettings();
}

void CAudioPluginSkinGUI::SetPresetSkin()
{
    ChooseSkin(true,
               [this](bool tried, bool isLoaded)
               {
                   if (tried && !isLoaded)
                   {
                       LoadSkinThatApplies();
                   }
               });
}

void CAudioPluginSkinGUI::UseGlobalSkin()
{
    SetChoice({});
}

/// The objects follow the instance by their timers; what is drawn from elsewhere is drawn anew.
void CAudioPluginSkinGUI::RefreshAll()
{
    window->Invalidate();
}

} // namespace Mirel::Audio::Plugin
