#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/GUI/CCustomWidget.h"
#include "Mirel/GUI/CWindow.h"
#include "Mirel/SkinEngine/UI/CPlacedLog.h"
#include "Mirel/SkinEngine/UI/CSkinStateKeeper.h"
#include "Mirel/SkinEngine/UI/CSkinTimers.h"
#include "Mirel/SkinEngine/UI/ISkinRoot.h"
#include "Mirel/SkinEngine/UI/SSkinWindowServices.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

/// A widget that loads a skin into itself and holds what that built. It is empty, loading or loaded; one that
/// failed to load is empty and can load again.
///
/// GUI thread only. A skin must not be closed or replaced from within a handler of one of its own widgets:
/// that is posted.
class CGUISkinWindow : public GUI::CCustomWidget, private GUI::CWidgetEventsTarget, private ISkinRoot
{
public:
    static constexpr const char* engineVersion = "1.8";

    /// Milliseconds between two refresh events.
    static constexpr int refreshPeriodMs = 50;

    /// The platform must outlive the window, and it is that of the window that the skin opens in.
    CGUISkinWindow(GUI::INativePlatform& platform_, const SSkinWindowServices& services_);

    /// Closes the skin.
    ~CGUISkinWindow() override;

    /// The values of the skin's persistent objects.
    bool SaveState(Serialization::IWriteDataStream& stream) const;

    /// The same, for the skin that is loaded or the next one. Without a state in the stream none is kept.
    bool LoadState(const Serialization::IReadDataStream& stream);

    // Identity, as the skin gives it. Null counts as empty; never null in return.
    void SetSkinAuthor(const char* text) { Store(author, text); }
    void SetSkinComment(const char* text) { Store(comment, text); }
    void SetSkinName(const char* text) { Store(name, text); }
    void SetSkinLanguageVersion(const char* text) { Store(languageVersion, text); }
    void SetEngineLanguageVersion(const char* text) { Store(engineLanguageVersion, text); }
    const char* GetSkinAuthor() const { return author.c_str(); }
    const char* GetSkinComment() const { return comment.c_str(); }
    const char* GetSkinName() const { return name.c_str(); }
    const char* GetSkinLanguageVersion() const { return languageVersion.c_str(); }
    const char* GetEngineLanguageVersion() const { return engineLanguageVersion.c_str(); }

    /// 1 normal and 2 high: a thread of its own clocks the model's objects; 0: the run loop does.
    void SetRefreshPriority(int priority);
    int GetRefreshPriority() const { return refreshPriority; }

    /// All that the skin can name: its own objects and those of the program. Empty without a skin.
    const ISkinDynamicObjectsDictionary& GetObjectsDictionary() const;

    // Which messages of a parse are shown beside its errors.
    void SetShowInfo(bool newShowInfo) { showInfo = newShowInfo; }
    bool GetShowInfo() const { return showInfo; }
    void SetShowWarnings(bool newShowWarnings) { showWarnings = newShowWarnings; }
    bool GetShowWarnings() const { return showWarnings; }

    /// Whether the messages of a parse are shown at all. False at first.
    void SetShowParsingFailure(bool newShow) { showParseMessages = newShow; }

    /// Drawn over the background colour, beneath all widgets, in the size of the window. Null for none.
    void SetBackgroundGraphics(std::unique_ptr<Graphics::IGraphics> graphics);

    /// Of the top-level window, from 0.0, which can still be seen, to 1.0.
    void SetOpacity(float newOpacity);

    /// 1.0 where the window system cannot show it.
    float GetOpacity() const { return canBeTransparent ? windowOpacity : 1.0F; }
    Core::IEventProvider& GetOpacityChangedEvent() const { return opacityChanged; }

    bool IsLoaded() const { return loaded; }
    Core::IEventProvider& GetLoadedEvent() const { return loadedChanged; }

    /// The file to open. Its folder is the skin directory, unless that is set afterwards.
    void SetSkinPath(const char* path);
    const char* GetSkinPath() const { return skinPath.c_str(); }
    void SetSkinDirectory(const char* path) { Store(skinDirectory, path); }
    const char* GetSkinDirectory() const { return skinDirectory.c_str(); }

    /// A variable for the skin, kept for all loads.
    void SetVariable(const std::string& variable, const std::string& value) { variables[variable] = value; }

    /// Loads the skin of the path, and stands in the parent from then on as its content. The size is then the
    /// skin's. False, with an empty window, if the parent cannot take the window or the skin has errors.
    bool OpenSkin(GUI::CWindow* around);
    void CloseSkin();

    /// Lays the skin out anew in that size, which it keeps until the next load.
    void SetViewSize(Core::CSize viewSize);

    /// Fires when a loaded skin has taken another size by itself.
    Core::IEventProvider& GetContentResizedEvent() const { return contentResized; }

    /// Fires every 50 ms while a skin is loaded.
    Core::IEventProvider& GetRefreshEvent() const { return refreshed; }

    /// What the last load had to say, and what came since.
    const std::vector<SSkinMessage>& GetMessages() const { return placedLog.GetMessages(); }

    /// For what follows the program while the skin is loaded; the timers stand still otherwise.
    CSkinTimers& GetTimers() { return timers; }

protected:
    void OnResized() override;

private:
    struct SLoad;

    SSkinPlace OpenRoot(SSkinRootAttributes attributes) override;
    void OnDraw(const GUI::COSXNativeDrawEvent& event) override;

    static void Store(std::string& field, const char* text) { field = text == nullptr ? "" : text; }
    bool Attach(GUI::CWindow* around);
    bool Build();
    bool Parse();
    void ExposeWindow();
    void LayOut();
    void PresentParseMessages(CoreUtilities::CMemMessageLog& messages);
    void Start();
    void Drop();
    void OnRootResized();
    void Refresh() { refreshed.Notify(); }

    using Command = Core::TCommand<CGUISkinWindow>;

    GUI::INativePlatform& platform;
    SSkinWindowServices services;
    CSkinTimers timers;

    std::string name;
    std::string author;
    std::string comment;
    std::string languageVersion;
    std::string engineLanguageVersion = engineVersion;
    std::string skinPath;
    std::string skinDirectory;
    std::map<std::string, std::string> variables;

    bool showInfo = true;
    bool showWarnings = true;
    bool showParseMessages = false;
    int refreshPriority = 0;

    bool loaded = false;
    float windowOpacity = 1.0F;
    bool canBeTransparent = false;
    bool laidOut = false; ///< From then on changes of size are the skin's own doing.
    mutable Core::CEventProvider loadedChanged;
    mutable Core::CEventProvider opacityChanged;
    mutable Core::CEventProvider contentResized;
    mutable Core::CEventProvider refreshed;

    CoreUtilities::CMemMessageLog log;
    CPlacedLog placedLog{log};
    std::unique_ptr<Graphics::IGraphics> background;
    CSkinStateKeeper state;
    Command onRootResized{this, &CGUISkinWindow::OnRootResized};
    Command onRefresh{this, &CGUISkinWindow::Refresh};
    std::unique_ptr<SLoad> load;
};

} // namespace Mirel::SkinEngine
