#include "Mirel/SkinEngine/UI/CGUISkinWindow.h"

#include "Mirel/GUI/CLightWidgetAdapter.h"
#include "Mirel/GUI/CLightWidgetLayoutCell.h"
#include "Mirel/GUI/CWidgetLayoutCell.h"
#include "Mirel/Runtime/CDynamicObject.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/MessagePresentation.h"
#include "Mirel/SkinEngine/UI/CGUISkinData.h"
#include "Mirel/SkinEngine/UI/CSkinUIElementsHandler.h"
#include "Mirel/SkinEngine/UI/ExposedObjects.h"

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
    SLoad(CoreUtilities::IMessageLog& log, const std::string& dataFolder)
        : model(&log),
          fonts(Graphics::GetFontsFolder(dataFolder))
    {
    }

    CSkinModel model; ///< All that the skin can name.
    Graphics::CGraphicResourcesManager images;
    Graphics::CFontManager fonts;
    std::unique_ptr<GUI::CLightWidget> lightRoot;
    std::unique_ptr<GUI::CLightWidgetAdapter> adapter; ///< Shows the light root.
    Layout::CGroupLayoutCell* group = nullptr;         ///< The root's area.
    bool hasFixedWidth = false;
    bool hasFixedHeight = false;
    Core::CSize fixedSize;
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
    load = std::make_unique<SLoad>(placedLog, services.dataFolder);
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

    ExposeWindowProperties(
        load->data, [this] { return GetOpacity(); }, [this](float value) { SetOpacity(value); },
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
    const Core::CSize imageSize =
        attributes.background != nullptr && attributes.backgroundIsImage && !attributes.backgroundRepeats
            ? attributes.background->GetSize()
            : Core::CSize();
    // A colour alone needs no graphics: the widget fills itself with it.
    SetBackgroundGraphics(attributes.backgroundIsImage ? std::move(attributes.background) : nullptr);

    SSkinPlace place;
    place.native = this;
    if (attributes.lightMode && !attributes.systemWidget)
    {
        load->lightRoot = std::make_unique<GUI::CLightWidget>();
        load->adapter = std::make_unique<GUI::CLightWidgetAdapter>(load->lightRoot.get(), false);
        load->lightRoot->GetSizeChangedEvent().Connect(onRootResized);
        AddChild(load->adapter.get(), false);
        load->adapter->Show(true);
        place.light = load->lightRoot.get();
        load->group = &load->lightRoot->GetCell();
    }
    else
    {
        load->group = &GetCell();
    }
    place.group = load->group;
    SizeRoot(attributes, imageSize);
    return place;
}

void CGUISkinWindow::SizeRoot(const SSkinRootAttributes& attributes, Core::CSize imageSize)
{
    constexpr int ofContent = SSkinRootAttributes::sizeOfContent;
    const auto fixed = [](int stated, int ofImage) {
        return stated != ofContent ? stated : ofImage > 0 ? ofImage : ofContent;
    };
    const int width = fixed(attributes.width, imageSize.width);
    const int height = fixed(attributes.height, imageSize.height);
    load->group->SetAutoWidth(width == ofContent);
    load->group->SetAutoHeight(height == ofContent);
    load->group->SetFixedSize({width == ofContent ? 0 : width, height == ofContent ? 0 : height});
}

void CGUISkinWindow::LayOut()
{
    if (load != nullptr && load->group != nullptr)
    {
        load->group->SetAutoUpdate(true);
        load->group->SetPosition({0, 0});
        OnRootResized();
    }
    const Core::CSize found = GetSize();
    if (found.IsEmpty())
    {
        const Core::CSize seen = {found.width > 0 ? found.width : sizeOfNothing,
                                  found.height > 0 ? found.height : sizeOfNothing};
        // The layout of a window that is itself the root would take the size back.
        SetViewSize(load != nullptr && load->lightRoot == nullptr ? seen : Core::CSize());
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
    if (!statePath.empty() && statePath != skinPath)
    {
        state.Clear(); // of another skin
    }
    load->model.RestoreState(state);
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
    KeepState();
    laidOut = false;
    if (loaded)
    {
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
    if (load->lightRoot != nullptr)
    {
        load->lightRoot->GetSizeChangedEvent().Disconnect(&onRootResized);
    }
    SetBackgroundGraphics(nullptr);
    SetBackgroundColor({});
    SetRefreshPriority(0);
    load.reset();
}

void CGUISkinWindow::OnRootResized()
{
    if (load != nullptr && load->lightRoot != nullptr)
    {
        const Core::CSize rootSize = load->lightRoot->GetSize();
        if (laidOut && rootSize != GetSize())
        {
            SetSize(rootSize);
            contentResized.Notify();
        }
        else
        {
            SetSize(rootSize);
        }
    }
}

void CGUISkinWindow::OnResized()
{
    if (background != nullptr)
    {
        background->SetSize(GetSize());
    }
    if (load != nullptr && load->lightRoot == nullptr)
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
    if (load == nullptr || load->group == nullptr || viewSize.IsEmpty())
    {
        return;
    }
    const bool wasLaidOut = std::exchange(laidOut, false);
    load->group->SetAutoUpdate(false);
    load->group->SetAutoSize(false);
    load->group->SetFixedSize(viewSize);
    load->group->SetAutoUpdate(true);
    load->group->SetPosition({0, 0});
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

void CGUISkinWindow::KeepState()
{
    if (loaded)
    {
        load->model.TakeState(state);
        statePath = skinPath;
    }
}

bool CGUISkinWindow::SaveState(Serialization::IWriteDataStream& stream) const
{
    const bool hasVersion = stream.Write("version", stateVersion);
    if (!loaded)
    {
        return stream.Write("state", static_cast<const Serialization::ISerialize&>(state)) && hasVersion;
    }
    CSkinModelState present;
    load->model.TakeState(present);
    return stream.Write("state", static_cast<const Serialization::ISerialize&>(present)) && hasVersion;
}

bool CGUISkinWindow::LoadState(const Serialization::IReadDataStream& stream)
{
    int version = 0;
    stream.Read("version", version);
    bool read = false;
    if (version < stateVersion)
    {
        read = state.Deserialize(stream); // its fields stand side by side with the version
    }
    else
    {
        state.Clear();
        read = stream.Read("state", static_cast<Serialization::IDeSerialize&>(state));
    }
    statePath.clear();
    if (loaded)
    {
        load->model.RestoreState(state);
    }
    return read;
}

} // namespace Mirel::SkinEngine
