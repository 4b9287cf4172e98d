#include "Host/Editor/CHostEditor.h"

#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/QueryFor.h"
#include "Host/CHostInstance.h"
#include "Host/CodeText.h"

#include <chrono>
#include <utility>

#include <poll.h>

namespace Host
{

/// The host's side of the editor's place.
class CHostEditor::CView : public TACFObject<IAAXViewContainer>
{
public:
    std::int32_t type = AAXViewType::None;
    std::uintptr_t view = 0;
    SizeListener listener;
    ParameterMenu parameterMenu;

    std::int32_t GetType(std::int32_t* out) override
    {
        *out = type;
        return AAXResult::Ok;
    }

    std::int32_t GetView(std::uintptr_t* out) override
    {
        *out = view;
        return AAXResult::Ok;
    }

    std::int32_t SetViewSize(const SAAXViewSize* size) override
    {
        if (listener)
        {
            listener(static_cast<int>(size->width), static_cast<int>(size->height));
        }
        return AAXResult::Ok;
    }

    std::int32_t HandleParameterRightClick(const char* parameterId) override
    {
        return parameterMenu && parameterMenu(parameterId) ? AAXResult::Ok : AAXResult::Unsupported;
    }
};

CHostEditor::CHostEditor() : container(TACFReference<CView>::Adopt(new CView)) {}

CHostEditor::~CHostEditor()
{
    if (gui)
    {
        container->listener = nullptr;
        container->parameterMenu = nullptr;
        gui->Uninitialize();
    }
}

std::unique_ptr<CHostEditor> CHostEditor::Make(CHostInstance& instance, std::string& error)
{
    std::unique_ptr<CHostEditor> editor(new CHostEditor);
    const TACFReference<IACFUnknown> made = instance.MakeGui();
    editor->tools = QueryFor<IEditorTools>(made.Get());
    const TACFReference<AAX_IEffectGUI> gui = QueryFor<AAX_IEffectGUI>(made.Get());
    if (!gui)
    {
        error = "the module makes no editor";
        return nullptr;
    }
    const std::int32_t result = gui->Initialize(&instance.GetParameters());
    if (result != AAXResult::Ok)
    {
        error = CodeText("the editor's initialisation", result);
        return nullptr;
    }
    editor->gui = gui;
    return editor;
}

void CHostEditor::SetSizeListener(SizeListener listener)
{
    container->listener = std::move(listener);
}

void CHostEditor::SetParameterMenu(ParameterMenu menu)
{
    container->parameterMenu = std::move(menu);
}

bool CHostEditor::OpenInWindow(std::uintptr_t window, std::string& error)
{
    return Open(AAXViewType::X11Window, window, error);
}

bool CHostEditor::OpenOffscreen(int scale, std::string& error)
{
    return Open(AAXViewType::Offscreen, static_cast<std::uintptr_t>(scale), error);
}

bool CHostEditor::Open(std::int32_t type, std::uintptr_t view, std::string& error)
{
    container->type = type;
    container->view = view;
    const std::int32_t result = gui->SetViewContainer(container.Get());
    const SAAXViewSize size = GetSize();
    if (result != AAXResult::Ok || size.width < 1.0F || size.height < 1.0F)
    {
        error = "the editor did not open";
        return false;
    }
    return true;
}

SAAXViewSize CHostEditor::GetSize() const
{
    SAAXViewSize size;
    gui->GetViewSize(&size);
    return size;
}

void CHostEditor::SetSize(int width, int height)
{
    if (tools)
    {
        tools->SetViewSize(width, height);
    }
}

int CHostEditor::GetDescriptor() const
{
    int descriptor = -1;
    return tools && tools->GetDescriptor(&descriptor) == AAXResult::Ok ? descriptor : -1;
}

void CHostEditor::WakeFor(int milliseconds)
{
    using CClock = std::chrono::steady_clock;
    const auto end = CClock::now() + std::chrono::milliseconds(milliseconds);
    for (;;)
    {
        Wake();
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - CClock::now()).count();
        if (left <= 0)
        {
            return;
        }
        pollfd descriptor = {GetDescriptor(), POLLIN, 0};
        ::poll(&descriptor, 1, static_cast<int>(left));
    }
}

bool CHostEditor::LoadSkin(const std::string& path)
{
    return tools && tools->LoadSkin(path.c_str()) == AAXResult::Ok;
}

std::string CHostEditor::GetSkinMessages() const
{
    const char* messages = nullptr;
    return tools && tools->GetSkinMessages(&messages) == AAXResult::Ok ? messages : std::string();
}

CPicture CHostEditor::TakePicture() const
{
    const SAAXViewSize size = GetSize();
    CPicture picture = {static_cast<int>(size.width), static_cast<int>(size.height), {}};
    if (!tools || picture.width < 1 || picture.height < 1)
    {
        return {};
    }
    picture.pixels.resize(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
    const std::int32_t result =
        tools->CopyPicture(picture.pixels.data(), picture.width, picture.height, picture.width * 4);
    return result == AAXResult::Ok ? picture : CPicture();
}

} // namespace Host
