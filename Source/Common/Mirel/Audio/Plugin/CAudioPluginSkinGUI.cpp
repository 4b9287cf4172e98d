#include "Mirel/Audio/Plugin/CAudioPluginSkinGUI.h"

#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Audio/Plugin/PluginVariables.h"
#include "Mirel/Core/CAutoLock.h"
#include "Mirel/GUI/Native/NativePlatformFactory.h"
#include "Mirel/Graphics/CBitmapContext.h"

#include <algorithm>
#include <cstring>

namespace Mirel::Audio::Plugin
{

using Core::CAutoLock;
using Core::CSize;
using CoreUtilities::CMessageKind;
using SkinEngine::CGUISkinWindow;

namespace
{

constexpr const char* useDefaultKey = "useDefault";
constexpr const char* skinFileKey = "skinFile";

constexpr std::uint32_t opaque = 0xFF000000U;

/// A message is one line of three fields.
std::string OneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    return text;
}

void CopyOpaque(const Graphics::CBitmap& picture, std::uint32_t* pixels, CSize size, int strideBytes)
{
    const CSize own = picture.GetSize();
    const auto* source = picture.GetData();
    const int sourceStride = picture.GetContext() == nullptr ? 0 : picture.GetContext()->GetStride();
    auto* target = reinterpret_cast<unsigned char*>(pixels);
    for (int y = 0; y < size.height; ++y)
    {
        for (int x = 0; x < size.width; ++x)
        {
            std::uint32_t pixel = 0;
            if (x < own.width && y < own.height)
            {
                std::memcpy(&pixel,
                            source + std::ptrdiff_t{y} * sourceStride +
                                std::ptrdiff_t{x} * static_cast<std::ptrdiff_t>(sizeof(pixel)),
                            sizeof(pixel));
            }
            pixel |= opaque;
            std::memcpy(target + std::ptrdiff_t{y} * strideBytes +
                            std::ptrdiff_t{x} * static_cast<std::ptrdiff_t>(sizeof(pixel)),
                        &pixel, sizeof(pixel));
        }
    }
}

} // namespace

CAudioPluginSkinGUI::CAudioPluginSkinGUI(CAudioPluginInternalsBase& internals_,
                                         const SSkinEditorOptions& options_)
    : internals(internals_),
      options(options_)
{
}

CAudioPluginSkinGUI::~CAudioPluginSkinGUI()
{
    CAudioPluginSkinGUI::Close();
}

bool CAudioPluginSkinGUI::Open(const SEditorPlace& place)
{
    Close();
    if (!MakeFrame(place))
    {
        Close();
        return false;
    }
    onInputRightClick = place.onInputRightClick;
    MakeWindow();
    internals.GetModel().WaitForLoad();
    modelLoaded.emplace(&internals.GetModel().GetLoadedEventProvider(), &onModelLoaded);
    EnterModel();
    internals.GetEditorState().Attach(*this);
    SetFollowsChoice(true);
    rateChanged.emplace(&internals.GetDefaultSettings().GetOutputRefreshRateChangedEventProvider(),
                        &onRateChanged);
    OnRateChanged();
    LoadSkinThatApplies();
    return true;
}

bool CAudioPluginSkinGUI::MakeFrame(const SEditorPlace& place)
{
    const bool isOffscreen = place.parentWindow == 0;
    loop = std::make_unique<GUI::CNativeRunLoop>();
    GUI::SNativePlatformOptions platformOptions;
    platformOptions.isOffscreen = isOffscreen;
    platformOptions.scale = place.scale;
    platform = GUI::CreateNativePlatform(*loop, platformOptions);
    if (!isOffscreen && !platform->HasDisplay())
    {
        return false;
    }
    GUI::SNativeWindowOptions windowOptions;
    windowOptions.kind = isOffscreen ? GUI::ENativeWindowKind::TopLevel : GUI::ENativeWindowKind::Child;
    windowOptions.foreignParent = place.parentWindow;
    windowOptions.title = options.productName;
    frame = std::make_unique<GUI::CWindow>(*platform, windowOptions);
    if (frame->GetNativeWindow() == nullptr)
    {
        return false;
    }
    popups = options.makePopups ? options.makePopups(*frame) : nullptr;
    dialogs = popups == nullptr ? nullptr : popups->GetDialogs();
    return true;
}

void CAudioPluginSkinGUI::MakeWindow()
{
    const CAudioPluginBindings bindings = internals.GetBindings();
    SkinEngine::SSkinWindowServices services;
    services.dataFolder = FindDataFolder(bindings);
    services.dialogs = dialogs;
    if (popups != nullptr)
    {
        services.fineEdit = popups->GetFineEdit();
        services.menus = popups->GetMenus();
        services.tooltips = popups->GetTooltips();
        services.closePopups = [this] { popups->CloseAll(); };
    }
    services.urlOpener = this;
    services.findAction = [this](const char* name) { return FindAction(name); };
    services.onParamRightClick = [this](const char* id) { OnParamRightClick(id); };
    services.fillModel = [this](SkinEngine::ISkinModel& skinModel) { FillModel(skinModel); };
    services.leaveModel = [this] { import.reset(); };
    window = std::make_unique<CGUISkinWindow>(*platform, services);
    for (const auto& [name, value] : DescribePlugin(bindings))
    {
        window->SetVariable(name, value);
    }
    window->GetContentResizedEvent().Connect(onContentResized);
    window->GetRefreshEvent().Connect(onRefresh);
    window->Show(true);
    MakeActions();
}

/// An instance without a model file is shown by the objects of the plug-in alone.
void CAudioPluginSkinGUI::EnterModel()
{
    model = std::dynamic_pointer_cast<CPluginSkinModel>(internals.GetModel().ShareSkinModel());
    if (model == nullptr)
    {
        model = std::make_shared<CPluginSkinModel>(internals.GetBindings(), SkinEngine::SSkinModelServices());
    }
    model->GetThreadBoundState().Bind(window->GetTimers().GetInvoker());
    model->AttachUrlOpener(this);
    model->AttachTimers(&window->GetTimers().GetSerializer());
}

void CAudioPluginSkinGUI::LeaveModel()
{
    if (model != nullptr)
    {
        model->AttachTimers(nullptr);
        model->AttachUrlOpener(nullptr);
        model->GetThreadBoundState().Unbind();
        model.reset();
    }
}

void CAudioPluginSkinGUI::FillModel(SkinEngine::ISkinModel& skinModel)
{
    model->AddPluginObjects(skinModel.GetExposure());
    import.emplace(model->GetModel(), skinModel);
    for (const auto& [name, action] : actions)
    {
        const int flags = skinModel.GetExposure().GetStringOrActionFlags(name.c_str());
        if (flags != 0)
        {
            skinModel.AddAction(name.c_str(), action.get(), flags, false);
        }
    }
}

/// On the background loop.
void CAudioPluginSkinGUI::OnModelLoaded()
{
    loop->Post([this] { TakeNewModel(); });
}

void CAudioPluginSkinGUI::TakeNewModel()
{
    if (internals.GetModel().ShareSkinModel() != model)
    {
        window->CloseSkin();
        LeaveModel();
        EnterModel();
        LoadSkinThatApplies();
    }
}

void CAudioPluginSkinGUI::Show()
{
    if (frame != nullptr)
    {
        frame->Show(true);
    }
}

void CAudioPluginSkinGUI::Close()
{
    ++loadRun;
    SetFollowsChoice(false);
    // Whatever other threads may still ask for comes to an end first.
    if (modelLoaded)
    {
        modelLoaded.reset();
        internals.GetEditorState().Detach();
    }
    rateChanged.reset();
    if (window != nullptr)
    {
        Core::ICommand* delivery = &deliverChanges;
        window->GetTimers().GetSerializer().RemoveTimer(delivery, false);
        window->CloseSkin();
        LeaveModel();
    }
    dialogs = nullptr;
    question = 0;
    popups.reset();
    openMenu.reset();
    import.reset();
    window.reset();
    actions.clear();
    frame.reset();
    platform.reset();
    loop.reset();
}

CSize CAudioPluginSkinGUI::GetSize() const
{
    return frame == nullptr || frame->GetNativeWindow() == nullptr ? CSize()
                                                                   : frame->GetNativeWindow()->GetSize();
}

void CAudioPluginSkinGUI::SetSize(CSize size)
{
    if (frame != nullptr && !size.IsEmpty() && size != GetSize())
    {
        const int scale = frame->GetScale();
        window->SetViewSize({std::max(size.width / scale, 1), std::max(size.height / scale, 1)});
        frame->GetNativeWindow()->SetSize(size);
    }
}

void CAudioPluginSkinGUI::FitFrame()
{
    if (window->GetSize() != frame->GetSize())
    {
        frame->SetSize(window->GetSize());
        internals.GetEditor().NotifyResized();
    }
}

void CAudioPluginSkinGUI::OnContentResized()
{
    FitFrame();
}

void CAudioPluginSkinGUI::OnRefresh()
{
    model->GetThreadBoundState().Publish();
}

void CAudioPluginSkinGUI::OnRateChanged()
{
    Core::ICommand* delivery = &deliverChanges;
    System::ITimerProvider& timers = window->GetTimers().GetSerializer();
    timers.RemoveTimer(delivery, false);
    timers.AddTimer(internals.GetDefaultSettings().GetOutputRefreshTime(), delivery);
}

void CAudioPluginSkinGUI::DeliverChanges()
{
    internals.GetOutputCaptures().DeliverChanges();
}

int CAudioPluginSkinGUI::GetDescriptor() const
{
    return loop == nullptr ? -1 : loop->GetDescriptor();
}

void CAudioPluginSkinGUI::Pump()
{
    if (loop != nullptr)
    {
        loop->OnIdle();
    }
}

bool CAudioPluginSkinGUI::LoadSkin(const char* path)
{
    BeginLoadRun();
    return window != nullptr && path != nullptr && Load(path);
}

std::string CAudioPluginSkinGUI::GetSkinMessages() const
{
    std::string lines;
    if (window != nullptr)
    {
        for (const SkinEngine::SSkinMessage& message : window->GetMessages())
        {
            lines.append(CMessageKind::GetName(message.kind)).append("\t");
            lines.append(OneLine(message.place)).append("\t");
            lines.append(OneLine(message.text)).append("\n");
        }
    }
    return lines;
}

bool CAudioPluginSkinGUI::CopyPicture(std::uint32_t* pixels, CSize size, int strideBytes)
{
    if (frame == nullptr || pixels == nullptr)
    {
        return false;
    }
    CopyOpaque(frame->PaintPicture(), pixels, size, strideBytes);
    return true;
}

bool CAudioPluginSkinGUI::Serialize(Serialization::IWriteDataStream& stream) const
{
    const SChoice present = GetChoice();
    const bool written = stream.Write(useDefaultKey, present.useDefault);
    return (present.useDefault || stream.Write(skinFileKey, present.skinFile.c_str())) && written;
}

bool CAudioPluginSkinGUI::Deserialize(const Serialization::IReadDataStream& stream)
{
    SChoice read;
    const bool isThere = stream.Read(useDefaultKey, read.useDefault);
    char* text = nullptr;
    if (!read.useDefault && stream.Read(skinFileKey, text))
    {
        const std::unique_ptr<char[]> owned(text);
        read.skinFile = text == nullptr ? "" : text;
    }
    SetChoice(read);
    return isThere;
}

CAudioPluginSkinGUI::SChoice CAudioPluginSkinGUI::GetChoice() const
{
    const CAutoLock guard(choiceLock);
    return choice;
}

/// Another choice is loaded by the GUI thread, once it has nothing else at hand.
void CAudioPluginSkinGUI::SetChoice(const SChoice& newChoice)
{
    const CAutoLock guard(choiceLock);
    if (newChoice == choice)
    {
        return;
    }
    choice = newChoice;
    if (followsChoice)
    {
        loop->Post([this] { LoadSkinThatApplies(); });
    }
}

void CAudioPluginSkinGUI::SetFollowsChoice(bool follows)
{
    const CAutoLock guard(choiceLock);
    followsChoice = follows;
}

} // namespace Mirel::Audio::Plugin
