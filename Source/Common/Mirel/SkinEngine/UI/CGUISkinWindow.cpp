#include "Mirel/SkinEngine/UI/CGUISkinWindow.h"

#include "Mirel/Runtime/CDynamicObject.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/MessagePresentation.h"
#include "Mirel/SkinEngine/UI/CExposedProperties.h"
#include "Mirel/SkinEngine/UI/CGUISkinData.h"
#include "Mirel/SkinEngine/UI/CSkinRoot.h"
#include "Mirel/SkinEngine/UI/CSkinUIElementsHandler.h"

#include <filesystem>
#include <utility>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using CoreUtilities::CMessageKind;

namespace
{

/// What a skin without a size gets, so that there is something to be seen.
constexpr int sizeOfNothing = 20;

// Alpha in parts of 255: even a window of opacity 0 can be found again.
constexpr float alphaRange = 220.0F;
constexpr float alphaFloor = 35.5F;
constexpr float alphaUnit = 0.003921569F;

} // namespace

/// What a load builds. What is made of the rest stands last, and goes first.
struct CGUISkinWindow::SLoad
{
    explicit SLoad(CGUISkinWindow& window)
        : model(&window.placedLog),
          fonts(Graphics::GetFontsFolder(window.services.dataFolder)),
          root(window, window.onRootResized)
    {
    }

    CSkinModel model; ///< All that the skin can name.
    Graphics::CGraphicResourcesManager images;
    Graphics::CFontManager fonts;
    CSkinRoot root;
    CGUISkinData data{model}; ///< The skin's own part of the model, its widgets and cells.
};

CGUISkinWindow::CGUISkinWindow(GUI::INativePlatform& platform_, const SSkinWindowServices& services_)
    : platform(platform_),
      services(services_),
      timers(platform_.GetRunLoop())
{
    AddEventsTarget(this);
}

CGUISkinWindow::~CGUISkinWindow()
{
    CloseSkin();
    RemoveEventsTarget(this);
}

void CGUISkinWindow::SetRefreshPriority(int priority)
{
    if (priority != refreshPriority)
    {
        refreshPriority = priority;
        timers.SetThreaded(priority == 1 || priority == 2);
    }
}

const ISkinDynamicObjectsDictionary& CGUISkinWindow::GetObjectsDictionary() const
{
    static const CDynamicObjectsDictionary empty;
    return load == nullptr ? empty : std::as_const(load->model).GetObjects();
}

void CGUISkinWindow::SetBackgroundGraphics(std::unique_ptr<Graphics::IGraphics> graphics)
{
    background = std::move(graphics);
    if (background != nullptr)
    {
        background->SetSize(GetSize());
    }
    Invalidate();
}

void CGUISkinWindow::SetOpacity(float newOpacity)
{
    if (!(newOpacity < windowOpacity) && !(newOpacity > windowOpacity))
    {
        return;
    }
    windowOpacity = newOpacity;
    if (GUI::CWindowBase* window = GetWindow(); window != nullptr && window->GetNativeWindow() != nullptr)
    {
        window->GetNativeWindow()->SetOpacity((alphaRange * windowOpacity + alphaFloor) * alphaUnit);
    }
    opacityChanged.Notify();
}

void CGUISkinWindow::SetSkinPath(const char* path)
{
    Store(skinPath, path);
    skinDirectory = std::filesystem::path(skinPath).parent_path().string();
}

bool CGUISkinWindow::OpenSkin(GUI::CWindow* around)
{
    CloseSkin();
    log.Clear();
    placedLog.Clear();
    windowOpacity = 1.0F;
    canBeTransparent = around != nullptr && around->CanBeTransparent();
    if (!Attach(around))
    {
        return false;
    }
    const bool parsed = Build();
    const bool isGood = parsed && !log.HasMessages(CMessageKind::Error);
    if (showParseMessages)
    {
        PresentParseMessages(log);
    }
    LayOut();
    log.Clear();
    if (isGood)
    {
        Start();
    }
    else
    {
        Drop();
    }
    return isGood;
}

bool CGUISkinWindow::Attach(GUI::CWindow* around)
{
    if (around == nullptr || around->GetNativeWindow() == nullptr || &around->GetPlatform() != &platform)
    {
        return false;
    }
    if (around->GetContent() != this)
    {
        if (GUI::CWindowBase* former = GetWindow())
        {
            former->SetContent(nullptr, false);
        }
        around->SetContent(this, false);
    }
    return GetWindow() == around;
}

bool CGUISkinWindow::Build()
{
    load = std::make_unique<SLoad>(*this);
    load->images.SetDeviceScale(platform.GetScale());
    if (!load->fonts.GetProblem().empty())
    {
        placedLog.Post(CMessageKind::Warning, load->fonts.GetProblem().c_str(), 0);
    }
    return Parse();
}

bool CGUISkinWindow::Parse()
{
    SSkinUIServices uiServices{load->images, load->fonts};
    uiServices.model.timerProvider = &timers.GetSerializer();
    uiServices.model.tickSource = services.tickSource;
    uiServices.model.urlOpener = services.urlOpener;
    uiServices.findAction = services.findAction;
    uiServices.onParamRightClick = services.onParamRightClick;
    uiServices.fineEdit = services.fineEdit;
    uiServices.menus = services.menus;
    uiServices.tooltips = services.tooltips;
    uiServices.showItemMessages = [this](CoreUtilities::CMemMessageLog& messages)
    { PresentParseMessages(messages); };

    CSkinParser parser(placedLog);
    parser.SetDataFolder(services.dataFolder.c_str());
    placedLog.SetParser(&parser);
    CSkinUIElementsHandler handler(parser, placedLog, load->data, uiServices, *this);
    for (const auto& [variable, value] : variables)
    {
        handler.SetVariable(variable.c_str(), value.c_str());
    }
    placedLog.Post(CMessageKind::Info, "Pre-Parsing the model...", 0);
    bool parsed = handler.PreParse(skinPath.c_str());
    if (!parsed)
    {
        placedLog.Post(CMessageKind::Error, "Fatal error: skin parsing failed", 0);
    }
    else
    {
        if (services.fillModel)
        {
            services.fillModel(load->model);
        }
        ExposeWindow();
        parsed = handler.Parse(skinPath.c_str(), true);
    }
    placedLog.SetParser(nullptr);
    return parsed;
}

/// The thread that the model lives on, and the window's own switches.
void CGUISkinWindow::ExposeWindow()
{
    CSkinModel& model = load->data.GetModel();
    auto thread = std::make_unique<Runtime::CDynamicObject>();
    thread->AddInterface<System::IThreadInvoker>("IThreadInvoker", &timers.GetInvoker(), false);
    model.AddObject("model_thread", thread.release(), true);

    CExposedProperties(load->data, "window")
        .ExposeWindow([this] { return GetOpacity(); }, [this](float value) { SetOpacity(value); },
                      &opacityChanged, [this] { return loaded; }, &loadedChanged);
}

SSkinPlace CGUISkinWindow::OpenRoot(SSkinRootAttributes attributes)
{
    SetSkinName(attributes.name.c_str());
    SetSkinAuthor(attributes.author.c_str());
    SetSkinComment(attributes.comment.c_str());
    SetSkinLanguageVersion(attributes.languageVersion.c_str());
    SetShowInfo(attributes.showInfo);
    SetShowWarnings(attributes.showWarnings);
    SetRefreshPriority(attributes.refreshPriority);
    SetBackgroundColor(attributes.backgroundColor.value_or(Graphics::CColor()));
    const Core::CSize imageSize = attributes.background != nullptr && !attributes.backgroundRepeats
                                      ? attributes.background->GetSize()
                                      : Core::CSize();
    SetBackgroundGraphics(std::move(attributes.background));
    return load->root.Open(attributes, imageSize);
}

void CGUISkinWindow::LayOut()
{
    if (load != nullptr && load->root.IsOpen())
    {
        load->root.LayOut();
        OnRootResized();
    }
    const Core::CSize found = GetSize();
    if (found.IsEmpty())
    {
        const Core::CSize seen = {found.width > 0 ? found.width : sizeOfNothing,
                                  found.height > 0 ? found.height : sizeOfNothing};
        if (load != nullptr && load->root.GetLight() == nullptr)
        {
            SetViewSize(seen); // the layout of a window that is itself the root would take the size back
        }
        SetSize(seen);
    }
}

void CGUISkinWindow::PresentParseMessages(CoreUtilities::CMemMessageLog& messages)
{
    const CMessagePresentation presented = PresentMessages(messages, showInfo, showWarnings);
    if (presented.text.empty() || services.dialogs == nullptr)
    {
        return;
    }
    const bool isError = messages.HasMessages(CMessageKind::Error);
    const GUI::EMessageKind kind = isError ? GUI::EMessageKind::Error : GUI::EMessageKind::Information;
    const GUI::CWindowBase* window = GetWindow();
    const GUI::NativeWindowId owner = window != nullptr && window->GetNativeWindow() != nullptr
                                          ? window->GetNativeWindow()->GetTopLevelId()
                                          : 0;
    services.dialogs->ShowMessage({presented.title, presented.text, kind, GUI::EMessageButtons::Ok}, owner,
                                  [](GUI::EMessageAnswer) {});
}

void CGUISkinWindow::Start()
{
    state.Restore(load->model, skinPath);
    load->model.GetEnable().Enable(true);
    timers.GetStandard().AddTimer(refreshPeriodMs, &onRefresh);
    timers.Run(true);
    loaded = true;
    laidOut = true;
    loadedChanged.Notify();
}

void CGUISkinWindow::CloseSkin()
{
    if (load == nullptr)
    {
        return;
    }
    laidOut = false;
    if (loaded)
    {
        state.Keep(load->model, skinPath);
        loaded = false;
        loadedChanged.Notify();
    }
    Core::ICommand* refresh = &onRefresh;
    timers.GetStandard().RemoveTimer(refresh, false);
    timers.Run(false);
    Drop();
}

void CGUISkinWindow::Drop()
{
    laidOut = false;
    if (load == nullptr)
    {
        return;
    }
    if (services.closePopups)
    {
        services.closePopups();
    }
    load->data.Clear();
    if (services.leaveModel)
    {
        services.leaveModel();
    }
    SetBackgroundGraphics(nullptr);
    SetBackgroundColor({});
    SetRefreshPriority(0);
    load.reset();
}

void CGUISkinWindow::OnRootResized()
{
    if (load == nullptr || load->root.GetLight() == nullptr)
    {
        return;
    }
    const Core::CSize rootSize = load->root.GetLight()->GetSize();
    const bool isNew = laidOut && rootSize != GetSize();
    SetSize(rootSize);
    if (isNew)
    {
        contentResized.Notify();
    }
}

void CGUISkinWindow::OnResized()
{
    if (background != nullptr)
    {
        background->SetSize(GetSize());
    }
    if (load != nullptr && load->root.GetLight() == nullptr)
    {
        CCustomWidget::OnResized();
        if (laidOut)
        {
            contentResized.Notify();
        }
    }
}

void CGUISkinWindow::SetViewSize(Core::CSize viewSize)
{
    if (load == nullptr || !load->root.IsOpen() || viewSize.IsEmpty())
    {
        return;
    }
    const bool wasLaidOut = std::exchange(laidOut, false);
    load->root.LayOutIn(viewSize);
    SetSize(viewSize);
    laidOut = wasLaidOut;
}

void CGUISkinWindow::OnDraw(const GUI::COSXNativeDrawEvent& event)
{
    if (background != nullptr)
    {
        background->Draw(event.surface, &event.region);
    }
}

bool CGUISkinWindow::SaveState(Serialization::IWriteDataStream& stream) const
{
    return state.Save(stream, loaded ? &load->model : nullptr);
}

bool CGUISkinWindow::LoadState(const Serialization::IReadDataStream& stream)
{
    const bool read = state.Load(stream);
    if (loaded)
    {
        state.Restore(load->model, skinPath);
    }
    return read;
}

} // namespace Mirel::SkinEngine
