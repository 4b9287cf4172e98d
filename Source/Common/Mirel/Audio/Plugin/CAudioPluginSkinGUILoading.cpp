#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Audio/Plugin/CAudioPluginSkinGUI.h"

#include <memory>
#include <utility>

namespace Mirel::Audio::Plugin
{

using GUI::EMessageKind;

namespace
{

constexpr const char* errorTitle = "Error";
constexpr const char* informationTitle = "Information";
constexpr const char* couldNotLoadSkin = "Could not load skin. Please choose a valid skin file.";

} // namespace

void CAudioPluginSkinGUI::LoadSkinThatApplies()
{
    const int run = BeginLoadRun();
    const SChoice present = GetChoice();
    const bool isPresets = present.IsPresets();
    if (Load(isPresets ? present.skinFile : internals.GetDefaultSettings().GetSkinFile()))
    {
        return;
    }
    const auto fallBack = [this, run, isPresets](bool, bool isLoaded)
    {
        if (!isLoaded && run == loadRun)
        {
            LoadInPlaceOf(isPresets);
        }
    };
    Tell(errorTitle, couldNotLoadSkin, EMessageKind::Error,
         [this, run, isPresets, fallBack]
         {
             if (run == loadRun)
             {
                 ChooseSkin(isPresets, fallBack);
             }
         });
}

/// What the user is still asked about an earlier load is of no interest any more.
int CAudioPluginSkinGUI::BeginLoadRun()
{
    if (dialogs != nullptr && question != 0)
    {
        dialogs->Cancel(std::exchange(question, 0));
    }
    return ++loadRun;
}

bool CAudioPluginSkinGUI::Load(const std::string& path)
{
    if (path.empty())
    {
        return false;
    }
    window->SetSkinPath(path.c_str());
    const bool isLoaded = window->OpenSkin(frame.get());
    FitFrame();
    return isLoaded;
}

void CAudioPluginSkinGUI::LoadInPlaceOf(bool wasPresets)
{
    if (!wasPresets)
    {
        LoadFactorySkin();
        return;
    }
    const int run = loadRun;
    Tell(informationTitle, "Loading global skin.", EMessageKind::Information,
         [this, run]
         {
             if (run == loadRun && !Load(internals.GetDefaultSettings().GetSkinFile()))
             {
                 Tell(errorTitle, "Could not load global skin. Loading factory default skin instead.",
                      EMessageKind::Error,
                      [this, run]
                      {
                          if (run == loadRun)
                          {
                              LoadFactorySkin();
                          }
                      });
             }
         });
}

void CAudioPluginSkinGUI::LoadFactorySkin()
{
    if (!Load(internals.GetDefaultSettings().GetDefaultSkinFile()))
    {
        Tell(errorTitle, "Could not load factory default skin. Please reinstall the software.",
             EMessageKind::Error, [] {});
    }
}

void CAudioPluginSkinGUI::ChooseSkin(bool forPreset, const Chosen& chosen)
{
    GUI::SFileRequest request;
    request.title = forPreset ? "Choose skin for current preset" : "Choose global skin";
    request.defaultExtension = "xml";
    request.filters.push_back({"Skin Files (*.xml)", {"*.xml"}});
    const auto isAnswered = std::make_shared<bool>(false);
    const auto take = [this, forPreset, chosen, isAnswered](const std::string& path)
    {
        *isAnswered = true;
        question = 0;
        TakeChosen(forPreset, path, chosen);
    };
    const GUI::IDialogs::DialogId id =
        dialogs == nullptr ? 0 : dialogs->ChooseFile(request, GetOwner(), take);
    if (id == 0)
    {
        chosen(false, false);
    }
    else if (!*isAnswered)
    {
        question = id;
    }
}

void CAudioPluginSkinGUI::TakeChosen(bool forPreset, const std::string& path, const Chosen& chosen)
{
    if (path.empty())
    {
        chosen(false, false);
        return;
    }
    if (!Load(path))
    {
        Tell(errorTitle, couldNotLoadSkin, EMessageKind::Error, [chosen] { chosen(true, false); });
        return;
    }
    if (forPreset)
    {
        const Core::CAutoLock guard(choiceLock);
        choice = {false, path}; // is loaded already
    }
    else
    {
        internals.GetDefaultSettings().SetSkinFile(path);
        internals.GetDefaultSettings().Save();
    }
    chosen(true, true);
}

/// What follows comes once the user has read it, and at once if nobody can be told.
void CAudioPluginSkinGUI::Tell(const std::string& title, const std::string& text, EMessageKind kind,
                               const Next& next)
{
    const auto isAnswered = std::make_shared<bool>(false);
    const auto goOn = [this, next, isAnswered](GUI::EMessageAnswer)
    {
        *isAnswered = true;
        if (next)
        {
            question = 0;
            next();
        }
    };
    const GUI::SMessage message{title, text, kind, GUI::EMessageButtons::Ok};
    const GUI::IDialogs::DialogId id =
        dialogs == nullptr ? 0 : dialogs->ShowMessage(message, GetOwner(), goOn);
    if (id == 0)
    {
        goOn(GUI::EMessageAnswer::Yes);
    }
    else if (next && !*isAnswered)
    {
        question = id;
    }
}

GUI::NativeWindowId CAudioPluginSkinGUI::GetOwner() const
{
    return frame->GetNativeWindow()->GetTopLevelId();
}

} // namespace Mirel::Audio::Plugin
