#pragma once

#include "AAXPlugin/Interface/AAX_CEffectGUI.h"
#include "AAXPlugin/Interface/IEditorTools.h"
#include "Mirel/Core/ICommand.h"

#include <string>

namespace Mirel::Audio::Plugin
{
class CAudioPluginInternalsBase;
class IAudioPluginEditor;
} // namespace Mirel::Audio::Plugin

namespace MirelExt::AAXPlugin
{

/// The editor of an instance, as its host makes it. It comes and goes while the audio runs, so it keeps
/// nothing of the instance: each operation finds the internals anew, through the parameters object, and does
/// nothing without them. GUI thread only.
class CAAXPluginGUI : public AAX_CEffectGUI, public IEditorTools
{
public:
    CAAXPluginGUI() = default;
    ~CAAXPluginGUI() override;

    std::int32_t QueryInterface(const ACFInterfaceId& id, void** out) override;
    std::uint32_t AddReference() override { return IncrementReferences(); }
    std::uint32_t Release() override { return DecrementReferences(); }

    std::int32_t SetViewContainer(IACFUnknown* container) override;
    std::int32_t Uninitialize() override;
    std::int32_t GetViewSize(SAAXViewSize* size) override;
    std::int32_t TimerWakeup() override;

    std::int32_t GetDescriptor(int* descriptor) override;
    std::int32_t SetViewSize(std::int32_t width, std::int32_t height) override;
    std::int32_t CopyPicture(std::uint32_t* pixels, std::int32_t width, std::int32_t height,
                             std::int32_t stride) override;
    std::int32_t LoadSkin(const char* path) override;
    std::int32_t GetSkinMessages(const char** messages) override;

protected:
    void CreateViewContents() override;
    void DeleteViewContents() override;

private:
    /// Null without internals; an editor is open or not.
    Mirel::Audio::Plugin::CAudioPluginInternalsBase* FindInternals() const;
    Mirel::Audio::Plugin::IAudioPluginEditor* FindEditor() const;
    void ForgetResizes(Mirel::Audio::Plugin::CAudioPluginInternalsBase& internals);
    void OnResized();
    void OnInputRightClick(int input);

    Mirel::Core::ICommand* resizeCommand = nullptr; ///< Owned; there while the editor is open.
    std::string skinMessages;
};

} // namespace MirelExt::AAXPlugin
