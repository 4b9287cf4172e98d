#include "Host/Live/CLiveRun.h"

#include "Host/Editor/CSnapshots.h"
#include "Host/Live/CClockDriver.h"
#include "Host/Live/CJackDriver.h"
#include "Mirel/GUI/Native/NativePlatformFactory.h"

#include <algorithm>
#include <filesystem>
#include <ostream>

namespace Host
{

namespace
{

constexpr const char* Title = "Tarnwell's Scope Bank";
constexpr int LongestBlock = 8192;
constexpr int TickMilliseconds = 20;
constexpr int WatchMilliseconds = 300;

} // namespace

CLiveRun::CLiveRun(CHostInstance& instance_, const CRunOptions& options_, std::ostream& messages_)
    : instance(instance_),
      options(options_),
      messages(messages_),
      platform(Mirel::GUI::CreateNativePlatform(loop))
{
}

bool CLiveRun::Run(IAudioSource& source, std::int64_t frames, std::string& error)
{
    CEventSchedule schedule(instance, options);
    if (!schedule.Prepare(error) || !ShowEditor(error))
    {
        return false;
    }
    CReadAhead input(source, frames, options.loops);
    const int blockFrames = std::clamp(options.blockSizes.front(), 1, LongestBlock);
    CLivePlayer player(instance, input, schedule, source.GetChannelCount(), source.GetSampleRate(),
                       LongestBlock);
    std::unique_ptr<IAudioDriver> driver;
    if (options.isHeard)
    {
        driver = CJackDriver::Start(player, error);
        if (driver == nullptr)
        {
            messages << "scope-bank: " << error << "; the audio is not heard\n";
        }
    }
    if (driver == nullptr)
    {
        driver = std::make_unique<CClockDriver>(player, blockFrames);
    }
    window->onSpace = [&] { player.SetPaused(!player.IsPaused()); };
    const auto tick = loop.AddTimer(TickMilliseconds, [&] { Tick(schedule, player); });
    const auto look = loop.AddTimer(WatchMilliseconds, [this] { LookAtSkin(); });
    loop.RunUntil([this] { return window->IsClosed(); });
    loop.RemoveTimer(look);
    loop.RemoveTimer(tick);
    loop.RemoveDescriptor(editor->GetDescriptor());
    return true;
}

bool CLiveRun::ShowEditor(std::string& error)
{
    editor = CHostEditor::Make(instance, error);
    if (editor == nullptr)
    {
        return false;
    }
    window = std::make_unique<CEditorWindow>(*platform, *editor);
    if (!window->Open(Title, error) || !LoadSkin(error))
    {
        return false;
    }
    OfferMenus();
    if (options.pictureSize)
    {
        window->SetSize(options.pictureSize->width, options.pictureSize->height);
    }
    loop.AddDescriptor(editor->GetDescriptor(), [this] { editor->Wake(); });
    return true;
}

void CLiveRun::OfferMenus()
{
    const std::filesystem::path module = options.modulePath;
    const std::string dataFolder = (module.parent_path() / module.stem()).string() + " data";
    fonts.emplace(Mirel::Graphics::GetFontsFolder(dataFolder));
    parameterMenu.emplace(instance.GetParameters(), *platform, Mirel::GUI::MakePopupLook(*fonts));
    window->onRightClick = [this](const char* parameterId, const Mirel::GUI::INativeWindow& owner)
    { return parameterMenu->Open(parameterId, owner); };
}

bool CLiveRun::LoadSkin(std::string& error)
{
    const bool loaded = options.skinFile.empty() || editor->LoadSkin(options.skinFile);
    PrintSkinMessages(*editor, messages);
    if (options.watchesSkin)
    {
        watch.emplace(std::filesystem::absolute(options.skinFile).parent_path());
        return true; // the author is at work on what is wrong
    }
    if (!loaded)
    {
        error = "cannot load the skin \"" + options.skinFile + '"';
    }
    return loaded;
}

void CLiveRun::Tick(CEventSchedule& schedule, CLivePlayer& player)
{
    schedule.ApplyChanges(player.GetSeconds());
    const char* state = player.IsFinished() ? " (end)" : player.IsPaused() ? " (paused)" : "";
    window->SetTitle(std::string(Title) + state);
}

void CLiveRun::LookAtSkin()
{
    if (watch && watch->HasChanged())
    {
        messages << "skin: loaded again\n";
        editor->LoadSkin(options.skinFile);
        PrintSkinMessages(*editor, messages);
        messages.flush();
    }
}

} // namespace Host
