#pragma once

#include "Mirel/Audio/Plugin/CPluginSkinModel.h"
#include "Mirel/Audio/Plugin/IAudioPluginEditor.h"
#include "Mirel/Audio/Plugin/IEditorPopups.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Objects/CAction.h"
#include "Mirel/GUI/CWindow.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/Dialogs/CMenu.h"
#include "Mirel/Serialization/DataStreams.h"
#include "Mirel/SkinEngine/Model/CModelImport.h"
#include "Mirel/SkinEngine/UI/CGUISkinWindow.h"
#include "Mirel/System/CCriticalSection.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace Mirel::Audio::Plugin
{

class CAudioPluginInternalsBase;

/// The settings of a product that its editor needs, and how it asks the user.
struct SSkinEditorOptions
{
    // What the about box tells. Empty texts are left out.
    std::string productName;
    std::string productVersion;
    std::string makerName;
    std::string legalLine;

    // Pages of the maker; empty for none. The query "plugin" is added.
    std::string website;
    std::string updatesPage;
    std::string skinsPage;

    /// Makes what opens over the window of an editor; empty for nothing.
    std::function<std::unique_ptr<IEditorPopups>(GUI::CWindow& window)> makePopups;
};

/// The editor of an instance: shows it by a skin, decides which, and offers the plug-in's menu. It neither
/// waits for the user nor for another thread: questions are answered from the run loop. GUI thread only, but
/// for the state, which any thread may save and load.
class CAudioPluginSkinGUI : public IAudioPluginEditor,
                            private Serialization::ISerializable,
                            private SkinEngine::IUrlOpener
{
public:
    /// The instance is not owned and outlives the editor.
    CAudioPluginSkinGUI(CAudioPluginInternalsBase& internals_, const SSkinEditorOptions& options_);
    CAudioPluginSkinGUI(const CAudioPluginSkinGUI&) = delete;
    CAudioPluginSkinGUI& operator=(const CAudioPluginSkinGUI&) = delete;

    /// Closes it.
    ~CAudioPluginSkinGUI() override;

    bool Open(const SEditorPlace& place) override;
    void Show() override;
    void Close() override;
    Core::CSize GetSize() const override;
    void SetSize(Core::CSize size) override;
    int GetDescriptor() const override;
    void Pump() override;
    bool LoadSkin(const char* path) override;
    std::string GetSkinMessages() const override;
    bool CopyPicture(std::uint32_t* pixels, Core::CSize size, int strideBytes) override;

    /// Null while closed.
    SkinEngine::CGUISkinWindow* GetSkinWindow() { return window.get(); }
    GUI::INativePlatform* GetPlatform() { return platform.get(); }

    /// The menu of the plug-in, as it is to be shown now. While it is open.
    void FillMenu(GUI::CMenu& menu);

    /// The text of the about box.
    std::string GetAboutText() const;

    /// Loads the skin that applies, and others in its place where that fails.
    void LoadSkinThatApplies();

private:
    using Next = std::function<void()>;
    using Chosen = std::function<void(bool tried, bool loaded)>;
    using Command = Core::TCommand<CAudioPluginSkinGUI>;
    using Method = Command::Method;

    /// The key "GUI" of the state.
    struct SChoice
    {
        bool useDefault = true;
        std::string skinFile; ///< The preset's own.

        bool IsPresets() const { return !useDefault && !skinFile.empty(); }
        bool operator==(const SChoice&) const = default;
    };

    // State.
    bool Serialize(Serialization::IWriteDataStream& stream) const override;
    bool Deserialize(const Serialization::IReadDataStream& stream) override;
    SChoice GetChoice() const;
    void SetChoice(const SChoice& newChoice);
    void SetFollowsChoice(bool follows);

    // Opening.
    bool MakeFrame(const SEditorPlace& place);
    void MakeWindow();
    void EnterModel();
    void LeaveModel();
    void FillModel(SkinEngine::ISkinModel& skinModel);
    void OnModelLoaded();
    void TakeNewModel();
    void OnContentResized();
    void OnRefresh();
    void OnRateChanged();
    void DeliverChanges();
    void FitFrame();

    // Loading.
    int BeginLoadRun();
    bool Load(const std::string& path);
    void LoadInPlaceOf(bool wasPresets);
    void LoadFactorySkin();
    void ChooseSkin(bool forPreset, const Chosen& chosen);
    void TakeChosen(bool forPreset, const std::string& path, const Chosen& chosen);
    void Tell(const std::string& title, const std::string& text, GUI::EMessageKind kind,
              const Next& next = {});
    GUI::NativeWindowId GetOwner() const;

    // Actions.
    void MakeActions();
    void AddAction(const char* name, Method method);
    const DataModel::Objects::IConstAction* FindAction(const char* name) const;
    GUI::SMenuItem& AddItem(GUI::CMenu& menu, const std::string& text, Next action, bool isEnabled = true);
    void AddSettingsMenu(GUI::CMenu& menu);
    void AddPresetsMenu(GUI::CMenu& menu);
    void Post(Next action);
    void Present(std::unique_ptr<GUI::CMenu> menu);
    void OpenMenu();
    void OpenPresetMenu();
    void LoadPreviousPreset() { StepPreset(-1); }
    void LoadNextPreset() { StepPreset(1); }
    void StepPreset(int step);
    void LoadFactoryPreset(int index);
    bool IsCurrentPreset(int index) const;
    void DisplayAbout();
    void OpenManual();
    void OpenWebsite() { OpenPage(options.website); }
    void Undo() {}
    void Redo() {}
    void LoadPreset();
    void SavePreset();
    void ResetPresetMIDISettings();
    void SetPresetSkin();
    void UseGlobalSkin();
    void OpenPage(const std::string& page);
    void OpenUrl(const char* url) override;
    void OnParamRightClick(const char* id);
    void RefreshAll();

    CAudioPluginInternalsBase& internals;
    SSkinEditorOptions options;

    mutable System::CCriticalSection choiceLock;
    SChoice choice;
    bool followsChoice = false; ///< From the open to the close.

    // From the open to the close, in this order.
    std::function<void(int)> onInputRightClick; ///< Of the place.
    std::unique_ptr<GUI::CNativeRunLoop> loop;
    std::unique_ptr<GUI::INativePlatform> platform;
    std::unique_ptr<GUI::CWindow> frame; ///< The child of the host's window.
    std::unique_ptr<GUI::CMenu> openMenu;
    std::unique_ptr<IEditorPopups> popups;
    GUI::IDialogs* dialogs = nullptr; ///< Of the popups; null for none.
    std::unique_ptr<SkinEngine::CGUISkinWindow> window;
    std::map<std::string, std::unique_ptr<DataModel::Objects::CAction>> actions;
    std::shared_ptr<CPluginSkinModel> model;
    std::optional<SkinEngine::CModelImport> import;
    std::optional<CoreUtilities::CCallbackHelper> modelLoaded;
    std::optional<CoreUtilities::CCallbackHelper> rateChanged;
    GUI::IDialogs::DialogId question = 0; ///< About a load, while the user has not answered it.
    int loadRun = 0;                      ///< Answers to questions of an earlier load count no more.

    Command onModelLoaded{this, &CAudioPluginSkinGUI::OnModelLoaded};
    Command onContentResized{this, &CAudioPluginSkinGUI::OnContentResized};
    Command onRefresh{this, &CAudioPluginSkinGUI::OnRefresh};
    Command onRateChanged{this, &CAudioPluginSkinGUI::OnRateChanged};
    Command deliverChanges{this, &CAudioPluginSkinGUI::DeliverChanges};
};

} // namespace Mirel::Audio::Plugin
