#include "AAXPlugin/CAAXPluginGUI.h"

#include "AAXPlugin/ChunkIds.h"
#include "AAXPlugin/Guarded.h"
#include "AAXPlugin/ProcessFields.h"
#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Core/TCommand.h"

namespace MirelExt::AAXPlugin
{

using Mirel::Audio::Plugin::CAudioPluginInternalsBase;
using Mirel::Audio::Plugin::IAudioPluginEditor;
using Mirel::Audio::Plugin::SEditorPlace;

namespace
{

SEditorPlace PlaceOf(const AAX_VViewContainer& container)
{
    SEditorPlace place;
    if (container.GetType() == AAXViewType::Offscreen)
    {
        place.scale = static_cast<int>(container.GetView());
    }
    else
    {
        place.parentWindow = container.GetView();
    }
    return place;
}

SAAXViewSize ViewSizeOf(Mirel::Core::CSize size)
{
    return {static_cast<float>(size.height), static_cast<float>(size.width)};
}

} // namespace

CAAXPluginGUI::~CAAXPluginGUI()
{
    // A host that forgot Uninitialize; virtual calls end here.
    CAAXPluginGUI::Uninitialize();
    delete resizeCommand; // left if the instance went first, and its event with it
}

std::int32_t CAAXPluginGUI::QueryInterface(const ACFInterfaceId& id, void** out)
{
    if (out != nullptr && id == InterfaceIdOf<IEditorTools>)
    {
        *out = static_cast<IEditorTools*>(this);
        IncrementReferences();
        return AAXResult::Ok;
    }
    return AAX_CEffectGUI::QueryInterface(id, out);
}

std::int32_t CAAXPluginGUI::SetViewContainer(IACFUnknown* container)
{
    return Guarded([&] { return AAX_CEffectGUI::SetViewContainer(container); });
}

std::int32_t CAAXPluginGUI::Uninitialize()
{
    return Guarded([&] { return AAX_CEffectGUI::Uninitialize(); });
}

std::int32_t CAAXPluginGUI::GetViewSize(SAAXViewSize* size)
{
    return Guarded(
        [&]
        {
            const std::int32_t result = AAX_CEffectGUI::GetViewSize(size);
            CAudioPluginInternalsBase* internals = FindInternals();
            if (result == AAXResult::Ok && internals != nullptr)
            {
                *size = ViewSizeOf(internals->GetEditor().GetSize());
            }
            return result;
        });
}

std::int32_t CAAXPluginGUI::TimerWakeup()
{
    return Guarded(
        [&]
        {
            if (IAudioPluginEditor* editor = FindEditor())
            {
                editor->Pump();
            }
            return AAXResult::Ok;
        });
}

void CAAXPluginGUI::CreateViewContents()
{
    CAudioPluginInternalsBase* internals = FindInternals();
    if (internals == nullptr)
    {
        return;
    }
    ForgetResizes(*internals); // of a host that creates twice
    resizeCommand = new Mirel::Core::TCommand<CAAXPluginGUI>(this, &CAAXPluginGUI::OnResized);
    internals->GetEditor().GetResizedEvent().Connect(resizeCommand);
    SEditorPlace place = PlaceOf(GetViewContainer());
    place.onInputRightClick = [this](int input) { OnInputRightClick(input); };
    internals->GetEditor().Open(place);
    internals->GetEditor().Show();
}

void CAAXPluginGUI::DeleteViewContents()
{
    if (CAudioPluginInternalsBase* internals = FindInternals())
    {
        ForgetResizes(*internals);
        internals->GetEditor().Close();
    }
}

std::int32_t CAAXPluginGUI::GetDescriptor(int* descriptor)
{
    return Guarded(
        [&]
        {
            IAudioPluginEditor* editor = FindEditor();
            if (editor == nullptr || descriptor == nullptr)
            {
                return AAXResult::Failed;
            }
            *descriptor = editor->GetDescriptor();
            return AAXResult::Ok;
        });
}

std::int32_t CAAXPluginGUI::SetViewSize(std::int32_t width, std::int32_t height)
{
    return Guarded(
        [&]
        {
            IAudioPluginEditor* editor = FindEditor();
            if (editor == nullptr || width < 1 || height < 1)
            {
                return AAXResult::Failed;
            }
            editor->SetSize({width, height});
            return AAXResult::Ok;
        });
}

std::int32_t CAAXPluginGUI::CopyPicture(std::uint32_t* pixels, std::int32_t width, std::int32_t height,
                                        std::int32_t stride)
{
    return Guarded(
        [&]
        {
            IAudioPluginEditor* editor = FindEditor();
            const bool copied = editor != nullptr && pixels != nullptr &&
                                editor->CopyPicture(pixels, {width, height}, stride);
            return copied ? AAXResult::Ok : AAXResult::Failed;
        });
}

std::int32_t CAAXPluginGUI::LoadSkin(const char* path)
{
    return Guarded(
        [&]
        {
            IAudioPluginEditor* editor = FindEditor();
            const bool loaded = editor != nullptr && path != nullptr && editor->LoadSkin(path);
            return loaded ? AAXResult::Ok : AAXResult::Failed;
        });
}

std::int32_t CAAXPluginGUI::GetSkinMessages(const char** messages)
{
    return Guarded(
        [&]
        {
            IAudioPluginEditor* editor = FindEditor();
            if (editor == nullptr || messages == nullptr)
            {
                return AAXResult::Failed;
            }
            skinMessages = editor->GetSkinMessages();
            *messages = skinMessages.c_str();
            return AAXResult::Ok;
        });
}

CAudioPluginInternalsBase* CAAXPluginGUI::FindInternals() const
{
    CAudioPluginInternalsBase* internals = nullptr;
    std::uint32_t written = 0;
    AAX_IEffectParameters* instance = GetEffectParameters();
    const bool found =
        instance != nullptr &&
        instance->GetCustomData(InternalsDataId, PointerPacketSize, &internals, &written) == AAXResult::Ok &&
        written == PointerPacketSize;
    return found ? internals : nullptr;
}

IAudioPluginEditor* CAAXPluginGUI::FindEditor() const
{
    CAudioPluginInternalsBase* internals = FindInternals();
    return internals != nullptr ? internals->GetEditor().Get() : nullptr;
}

void CAAXPluginGUI::ForgetResizes(CAudioPluginInternalsBase& internals)
{
    internals.GetEditor().GetResizedEvent().Disconnect(resizeCommand, true);
}

void CAAXPluginGUI::OnResized()
{
    if (CAudioPluginInternalsBase* internals = FindInternals())
    {
        GetViewContainer().SetViewSize(ViewSizeOf(internals->GetEditor().GetSize()));
    }
}

/// The host's list of parameters begins with the inputs.
void CAAXPluginGUI::OnInputRightClick(int input)
{
    const char* id = nullptr;
    AAX_IEffectParameters* instance = GetEffectParameters();
    if (instance != nullptr && instance->GetParameterId(input, &id) == AAXResult::Ok)
    {
        GetViewContainer().HandleParameterRightClick(id);
    }
}

} // namespace MirelExt::AAXPlugin
