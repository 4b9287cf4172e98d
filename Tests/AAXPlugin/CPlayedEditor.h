#pragma once

#include "AAXPlugin/CEditorPopups.h"
#include "AAXPlugin/CInProcessPlugin.h"
#include "Host/Editor/CHostEditor.h"
#include "Mirel/Audio/Plugin/CAudioPluginSkinGUI.h"
#include "Mirel/Audio/Plugin/PluginVariables.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenWindow.h"
#include "Support/CScriptedDialogs.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace Tests
{

/// The menus, tooltips and value dialogs of the product, though there is no screen; questions are answered by
/// a script, so that no program of the desktop is started.
class CPlayedPopups : public MirelExt::AAXPlugin::CEditorPopups
{
public:
    CPlayedPopups(Mirel::GUI::CWindow& place, const std::string& dataFolder, Mirel::GUI::IDialogs& dialogs_)
        : CEditorPopups(place, dataFolder),
          dialogs(dialogs_)
    {
    }

    Mirel::GUI::IDialogs* GetDialogs() override { return &dialogs; }

private:
    Mirel::GUI::IDialogs& dialogs;
};

/// Lets the editors of the instance open such popups. Before the first of them opens.
inline void UsePlayedPopups(Host::CHostInstance& instance, Mirel::GUI::IDialogs& dialogs)
{
    using namespace Mirel::Audio::Plugin;
    CAudioPluginInternalsBase& internals = InternalsOf(instance);
    SSkinEditorOptions options;
    options.productName = "Scope Bank";
    options.website = "https://scope.invalid/";
    options.makePopups =
        [&dialogs, folder = FindDataFolder(internals.GetBindings())](Mirel::GUI::CWindow& window)
    { return std::make_unique<CPlayedPopups>(window, folder, dialogs); };
    internals.GetEditor().SetFactory([&internals, options]
                                     { return std::make_unique<CAudioPluginSkinGUI>(internals, options); });
}

/// An editor off-screen, and the hands on it.
class CPlayedEditor
{
public:
    explicit CPlayedEditor(Host::CHostInstance& instance)
    {
        std::string error;
        editor = Host::CHostEditor::Make(instance, error);
        EXPECT_NE(editor, nullptr) << error;
        EXPECT_TRUE(editor->OpenOffscreen(1, error)) << error;
        gui =
            dynamic_cast<Mirel::Audio::Plugin::CAudioPluginSkinGUI*>(InternalsOf(instance).GetEditor().Get());
        platform =
            gui == nullptr ? nullptr : dynamic_cast<Mirel::GUI::COffscreenPlatform*>(gui->GetPlatform());
        EXPECT_NE(platform, nullptr);
    }

    Host::CHostEditor& Get() { return *editor; }
    Mirel::Audio::Plugin::CAudioPluginSkinGUI& GetGui() const { return *gui; }
    Mirel::GUI::COffscreenPlatform& GetPlatform() { return *platform; }

    void Click(Mirel::GUI::CPoint place, Mirel::GUI::EMouseButton button = Mirel::GUI::EMouseButton::Left)
    {
        platform->MovePointer(place);
        platform->PressButton(button);
        editor->Wake();
        platform->ReleaseButton(button);
        editor->Wake();
    }

    void Type(Mirel::GUI::ENativeKey key, const std::string& text = {})
    {
        Mirel::GUI::SNativeKeyEvent event;
        event.key = key;
        event.text = text;
        event.character = text.empty() ? U'\0' : static_cast<char32_t>(text.front());
        platform->PressKey(event);
        platform->ReleaseKey(event);
        editor->Wake();
    }

    /// The latest window over the editor that takes input; null for none.
    Mirel::GUI::COffscreenWindow* GetPopup() const
    {
        using Kind = Mirel::GUI::ENativeWindowKind;
        for (int i = platform->GetWindowCount() - 1; i > 0; --i)
        {
            Mirel::GUI::COffscreenWindow* window = platform->GetWindow(i);
            if (window->IsShown() && (window->GetKind() == Kind::Menu || window->GetKind() == Kind::Dialog))
            {
                return window;
            }
        }
        return nullptr;
    }

private:
    std::unique_ptr<Host::CHostEditor> editor;
    Mirel::Audio::Plugin::CAudioPluginSkinGUI* gui = nullptr;
    Mirel::GUI::COffscreenPlatform* platform = nullptr;
};

} // namespace Tests
