#pragma once

#include "Host/CHostInstance.h"
#include "Host/CPluginSession.h"
#include "Host/Editor/FactoryScreen.h"
#include "Host/Live/CEditorWindow.h"
#include "Host/Live/CParameterMenu.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/NativePlatformFactory.h"
#include "Mirel/Graphics/CFontManager.h"
#include "Support/CVirtualDisplay.h"
#include "Support/CX11Probe.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace Tests
{

/// The module as it ships, with its editor in a window of a host at the top left of a display, and the host's
/// menu of a parameter.
class CEditorOnDisplay : public testing::Test
{
public:
    static constexpr int Rate = 48000;

protected:
    void SetUp() override
    {
        ASSERT_FALSE(display.GetName().empty());
        // Before any thread. NOLINTNEXTLINE(concurrency-mt-unsafe)
        setenv("DISPLAY", display.GetName().c_str(), 1);
        probe.emplace(display.GetName());
        loop.emplace();
        platform = Mirel::GUI::CreateNativePlatform(*loop);
        std::string error;
        ASSERT_TRUE(session.Open(SCOPE_BANK_MODULE, error)) << error;
        instance = Host::CHostInstance::Make(*session.GetCollection(), {2, Rate}, error);
        ASSERT_NE(instance, nullptr) << error;
        editor = Host::CHostEditor::Make(*instance, error);
        ASSERT_NE(editor, nullptr) << error;
        window = std::make_unique<Host::CEditorWindow>(*platform, *editor);
        fonts.emplace("");
        menu.emplace(instance->GetParameters(), *platform, Mirel::GUI::MakePopupLook(*fonts));
        window->onRightClick = [this](const char* id, const Mirel::GUI::INativeWindow& owner)
        { return menu->Open(id, owner); };
        ASSERT_TRUE(window->Open("Scope", error)) << error;
    }

    void TearDown() override
    {
        window.reset();
        menu.reset();
        editor.reset();
        platform.reset();
        instance.reset();
        std::string error;
        EXPECT_TRUE(session.Close(error)) << error;
        // NOLINTNEXTLINE(concurrency-mt-unsafe)
        unsetenv("DISPLAY");
    }

    void Set(const char* parameter, double normalized)
    {
        instance->GetParameters().SetParameterValue(parameter, normalized);
    }

    double Get(const char* parameter)
    {
        double normalized = -1.0;
        instance->GetParameters().GetParameterValue(parameter, &normalized);
        return normalized;
    }

    /// The host's and the editor's loops go on.
    void Turn()
    {
        loop->Pump(0);
        editor->WakeFor(20);
        loop->Pump(0);
        probe->Sync();
    }

    /// Until the claim holds; false after as long as a loaded machine may need.
    bool TurnUntil(const std::function<bool()>& holds)
    {
        constexpr auto patience = std::chrono::seconds(10);
        const auto end = std::chrono::steady_clock::now() + patience;
        while (!holds() && std::chrono::steady_clock::now() < end)
        {
            Turn();
        }
        return holds();
    }

    CShownPicture Look() const
    {
        return {CFactoryScreen::width, CFactoryScreen::height,
                probe->ReadScreen(0, 0, CFactoryScreen::width, CFactoryScreen::height)};
    }

    std::optional<CX11Probe> probe;
    std::unique_ptr<Host::CHostInstance> instance;
    std::unique_ptr<Host::CHostEditor> editor;
    std::unique_ptr<Host::CEditorWindow> window;
    std::optional<Host::CParameterMenu> menu;

private:
    CVirtualDisplay display;
    std::optional<Mirel::GUI::CNativeRunLoop> loop;
    std::unique_ptr<Mirel::GUI::INativePlatform> platform;
    std::optional<Mirel::Graphics::CFontManager> fonts;
    Host::CPluginSession session;
};

} // namespace Tests
