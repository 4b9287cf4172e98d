#pragma once

#include "Host/Audio/IAudioSource.h"
#include "Host/CHostInstance.h"
#include "Host/Live/CEditorWindow.h"
#include "Host/Live/CFolderWatch.h"
#include "Host/Live/CLivePlayer.h"
#include "Host/Live/CParameterMenu.h"
#include "Host/Run/CRunOptions.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/Graphics/CFontManager.h"

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>

namespace Host
{

/// Shows the editor of an instance in a window and plays a source through the instance in real time, until
/// the window is closed. The space bar pauses, a right click on a parameter opens a menu. GUI thread only.
class CLiveRun
{
public:
    /// What a skin has to say goes to `messages`.
    CLiveRun(CHostInstance& instance_, const CRunOptions& options_, std::ostream& messages_);

    /// The windowing system of the run; without a display there is nothing to be seen.
    Mirel::GUI::INativePlatform& GetPlatform() { return *platform; }

    /// False with one line in `error`.
    bool Run(IAudioSource& source, std::int64_t frames, std::string& error);

private:
    bool ShowEditor(std::string& error);
    void OfferMenus();
    bool LoadSkin(std::string& error);
    void Tick(CEventSchedule& schedule, CLivePlayer& player);
    void LookAtSkin();

    CHostInstance& instance;
    const CRunOptions& options;
    std::ostream& messages;
    Mirel::GUI::CNativeRunLoop loop;
    std::unique_ptr<Mirel::GUI::INativePlatform> platform;
    std::unique_ptr<CHostEditor> editor;
    std::unique_ptr<CEditorWindow> window;
    std::optional<Mirel::Graphics::CFontManager> fonts;
    std::optional<CParameterMenu> parameterMenu;
    std::optional<CFolderWatch> watch;
};

} // namespace Host
