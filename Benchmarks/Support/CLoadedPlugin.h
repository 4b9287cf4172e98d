#pragma once

#include "AAXPlugin/ChunkIds.h"
#include "AAXPlugin/ProcessFields.h"
#include "Host/CHostInstance.h"
#include "Host/CPluginSession.h"
#include "Host/Editor/CHostEditor.h"
#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Audio/Plugin/CAudioPluginSkinGUI.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenWindow.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <thread>

namespace Benchmarks
{

/// One instance of the module for the whole process: a second one would find everything loaded.
class CLoadedPlugin
{
public:
    static constexpr int channels = 2;
    static constexpr double sampleRate = 48000.0;

    static CLoadedPlugin& GetInstance()
    {
        static CLoadedPlugin plugin;
        return plugin;
    }

    Host::CHostInstance* Get() const { return instance.get(); }

    /// Gives the benchmark up if there is no instance.
    bool IsReady(benchmark::State& state) const
    {
        if (instance == nullptr)
        {
            state.SkipWithError(error.c_str());
        }
        return instance != nullptr;
    }

    /// The editor that is open, from within. The module is of the same build as this program.
    Mirel::Audio::Plugin::CAudioPluginSkinGUI& GetEditor() const
    {
        Mirel::Audio::Plugin::CAudioPluginInternalsBase* internals = nullptr;
        std::uint32_t written = 0;
        instance->GetParameters().GetCustomData(MirelExt::AAXPlugin::InternalsDataId,
                                                MirelExt::AAXPlugin::PointerPacketSize, &internals, &written);
        return *static_cast<Mirel::Audio::Plugin::CAudioPluginSkinGUI*>(internals->GetEditor().Get());
    }

    Mirel::GUI::COffscreenPlatform& GetPlatform() const
    {
        return *static_cast<Mirel::GUI::COffscreenPlatform*>(GetEditor().GetPlatform());
    }

    Mirel::GUI::COffscreenWindow& GetWindow() const { return *GetPlatform().GetWindow(0); }

    /// Returns with the first picture painted; null if the editor does not open.
    std::unique_ptr<Host::CHostEditor> OpenToTheFirstPicture(std::string& message) const
    {
        auto editor = Host::CHostEditor::Make(*instance, message);
        if (editor == nullptr || !editor->OpenOffscreen(1, message))
        {
            return nullptr;
        }
        while (GetWindow().TakePresented().GetRectCount() == 0)
        {
            editor->Wake();
        }
        return editor;
    }

private:
    CLoadedPlugin()
    {
        if (session.Open(SCOPE_BANK_MODULE, error))
        {
            instance = Host::CHostInstance::Make(*session.GetCollection(), {channels, sampleRate}, error);
        }
        std::this_thread::sleep_for(std::chrono::seconds(1)); // its model is loaded in the background
    }
    ~CLoadedPlugin()
    {
        instance.reset();
        session.Close(error);
    }

    Host::CPluginSession session;
    std::unique_ptr<Host::CHostInstance> instance;
    std::string error;
};

} // namespace Benchmarks
