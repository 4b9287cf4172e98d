#include "Mirel/GUI/Native/Dialogs/CDesktopDialogs.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace Mirel::GUI
{

namespace
{
std::string ReadEnvironment(const char* name)
{
    const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): nothing here sets any
    return value != nullptr ? value : "";
}

/// The desktop's own helper comes first.
std::array<std::pair<EDialogHelper, const char*>, 2> OrderOfHelpers()
{
    std::array<std::pair<EDialogHelper, const char*>, 2> order{
        {{EDialogHelper::Zenity, "zenity"}, {EDialogHelper::KDialog, "kdialog"}}};
    if (ReadEnvironment("XDG_CURRENT_DESKTOP").find("KDE") != std::string::npos)
    {
        std::swap(order[0], order[1]);
    }
    return order;
}
} // namespace

CDesktopDialogs::CDesktopDialogs(CNativeRunLoop& loop_, const SOptions& options)
    : loop(loop_),
      folders(options.folders.empty() ? ReadEnvironment("PATH") : options.folders),
      display(options.display),
      fallback(options.fallback)
{
    for (const auto& [kind, name] : OrderOfHelpers())
    {
        if (helperPath.empty())
        {
            helper = kind;
            helperPath = CChildProcess::Find(name, folders);
        }
    }
}

bool CDesktopDialogs::Ask(DialogId id, const std::vector<std::string>& arguments, Finished finished)
{
    auto process = std::make_unique<CChildProcess>(loop);
    const auto end = [this, id, finished = std::move(finished)](int exitCode, const std::string& output)
    {
        const auto ended = open.extract(id); // The next question may take its place.
        finished(exitCode, output);
    };
    if (helperPath.empty() || !process->Start(arguments, display, end))
    {
        return false;
    }
    open[id] = std::move(process);
    return true;
}

CDesktopDialogs::~CDesktopDialogs()
{
    for (const auto& [id, theirs] : passedOn)
    {
        fallback->Cancel(theirs);
    }
}

template <typename TRequest, typename TAnswer>
IDialogs::DialogId CDesktopDialogs::PassOn(DialogId id, TRequest ask, std::function<void(TAnswer)> receiver)
{
    if (fallback == nullptr)
    {
        return 0;
    }
    passedOn[id] = 0;
    const auto answered = [this, id, receiver = std::move(receiver)](TAnswer answer)
    {
        passedOn.erase(id);
        receiver(answer);
    };
    const DialogId theirs = ask(answered);
    const auto place = passedOn.find(id); // Gone if the answer came at once.
    if (place != passedOn.end() && theirs != 0)
    {
        place->second = theirs;
    }
    else
    {
        passedOn.erase(id);
    }
    return theirs != 0 ? id : 0;
}

IDialogs::DialogId CDesktopDialogs::ShowMessage(const SMessage& message, NativeWindowId owner,
                                                MessageReceiver receiver)
{
    const DialogId id = ++lastId;
    const auto finished =
        [kind = helper, buttons = message.buttons, receiver](int exitCode, const std::string& output)
    { receiver(AnswerOf(kind, buttons, exitCode, output)); };
    if (Ask(id, MessageArguments(helper, helperPath, message, owner), finished))
    {
        return id;
    }
    const auto ask = [&](MessageReceiver answered)
    { return fallback->ShowMessage(message, owner, std::move(answered)); };
    return PassOn(id, ask, std::move(receiver));
}

IDialogs::DialogId CDesktopDialogs::ChooseFile(const SFileRequest& request, NativeWindowId owner,
                                               FileReceiver receiver)
{
    const DialogId id = ++lastId;
    if (AskForFile(id, request, owner, receiver))
    {
        return id;
    }
    const auto ask = [&](FileReceiver answered)
    { return fallback->ChooseFile(request, owner, std::move(answered)); };
    return PassOn(id, ask, std::move(receiver));
}

bool CDesktopDialogs::AskForFile(DialogId id, const SFileRequest& request, NativeWindowId owner,
                                 FileReceiver receiver)
{
    const auto finished =
        [this, id, request, owner, receiver = std::move(receiver)](int exitCode, const std::string& output)
    { OnFile(id, request, owner, receiver, PathOf(exitCode, output)); };
    return Ask(id, FileArguments(helper, helperPath, request, owner), finished);
}

void CDesktopDialogs::OnFile(DialogId id, const SFileRequest& request, NativeWindowId owner,
                             const FileReceiver& receiver, const std::string& chosen)
{
    const bool isNamed = request.isSave && !chosen.empty();
    const std::string path = isNamed ? AddExtension(chosen, request.defaultExtension) : chosen;
    // The helper asked about the name that it knew.
    const bool isUnasked = path != chosen && access(path.c_str(), F_OK) == 0;
    if (isUnasked && ConfirmReplacing(id, request, owner, receiver, path))
    {
        return;
    }
    receiver(isUnasked ? std::string() : path);
}

bool CDesktopDialogs::ConfirmReplacing(DialogId id, const SFileRequest& request, NativeWindowId owner,
                                       const FileReceiver& receiver, const std::string& path)
{
    const std::size_t name = path.rfind('/') + 1;
    SMessage question;
    question.title = request.title;
    question.text = "A file named \"" + path.substr(name) + "\" already exists. Do you want to replace it?";
    question.kind = EMessageKind::Warning;
    question.buttons = EMessageButtons::YesNo;
    const auto finished =
        [this, id, request, owner, receiver, path, kind = helper](int exitCode, const std::string& output)
    {
        if (AnswerOf(kind, EMessageButtons::YesNo, exitCode, output) == EMessageAnswer::Yes)
        {
            receiver(path);
        }
        else if (!AskForFile(id, request, owner, receiver))
        {
            receiver({});
        }
    };
    return Ask(id, MessageArguments(helper, helperPath, question, owner), finished);
}

void CDesktopDialogs::Cancel(DialogId id)
{
    open.erase(id);
    const auto place = passedOn.find(id);
    if (place != passedOn.end())
    {
        const DialogId theirs = place->second;
        passedOn.erase(place);
        fallback->Cancel(theirs);
    }
}

bool CDesktopDialogs::OpenPage(const std::string& address)
{
    const auto isDone = [](const std::unique_ptr<CChildProcess>& page) { return page->GetId() == -1; };
    pages.erase(std::remove_if(pages.begin(), pages.end(), isDone), pages.end());
    const std::string opener = CChildProcess::Find("xdg-open", folders);
    const bool isOption = address.empty() || address.front() == '-';
    auto process = std::make_unique<CChildProcess>(loop);
    if (opener.empty() || isOption || !process->Start({opener, address}, display, nullptr))
    {
        return false;
    }
    process->LetGo();
    pages.push_back(std::move(process));
    return true;
}

} // namespace Mirel::GUI
