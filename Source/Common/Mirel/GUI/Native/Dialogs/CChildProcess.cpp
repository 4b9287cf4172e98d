#include "Mirel/GUI/Native/Dialogs/CChildProcess.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <mutex>
#include <spawn.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace Mirel::GUI
{

namespace
{
using FileStatus = struct stat;

constexpr std::size_t longestOutput = 65536;

/// How soon after its end a program is noticed. The loop has no other way that works below a host which may
/// handle the end of children itself.
constexpr int reapPeriodMs = 50;

/// Programs that go on by themselves and have to be waited for some time, so that they do not stay as dead
/// entries of the system.
class COrphans
{
public:
    void Add(pid_t process)
    {
        const std::lock_guard guard(mutex);
        processes.push_back(process);
        ReapLocked();
    }

    void Reap()
    {
        const std::lock_guard guard(mutex);
        ReapLocked();
    }

private:
    void ReapLocked()
    {
        const auto isGone = [](pid_t process) { return waitpid(process, nullptr, WNOHANG) != 0; };
        processes.erase(std::remove_if(processes.begin(), processes.end(), isGone), processes.end());
    }

    std::mutex mutex;
    std::vector<pid_t> processes;
};

COrphans& GetOrphans()
{
    static COrphans orphans;
    return orphans;
}

/// What the program gets: nothing to read, its output to the given end, no messages, no other files.
class CFileActions
{
public:
    explicit CFileActions(int output)
    {
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    }
    CFileActions(const CFileActions&) = delete;
    CFileActions& operator=(const CFileActions&) = delete;
    ~CFileActions() { posix_spawn_file_actions_destroy(&actions); }

    const posix_spawn_file_actions_t* Get() const { return &actions; }

private:
    posix_spawn_file_actions_t actions{};
};

/// Signals as a program expects them, whatever the host has done to its own.
class CSpawnAttributes
{
public:
    CSpawnAttributes()
    {
        sigset_t signals{};
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes, &signals);
        sigaddset(&signals, SIGPIPE);
        posix_spawnattr_setsigdefault(&attributes, &signals);
    }
    CSpawnAttributes(const CSpawnAttributes&) = delete;
    CSpawnAttributes& operator=(const CSpawnAttributes&) = delete;
    ~CSpawnAttributes() { posix_spawnattr_destroy(&attributes); }

    const posix_spawnattr_t* Get() const { return &attributes; }

private:
    posix_spawnattr_t attributes{};
};

std::vector<char*> MakePointers(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts)
    {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> MakeEnvironment(const std::string& display)
{
    constexpr std::string_view name = "DISPLAY=";
    std::vector<std::string> variables;
    for (char** place = environ; *place != nullptr; ++place)
    {
        const std::string_view variable = *place;
        if (display.empty() || variable.substr(0, name.size()) != name)
        {
            variables.emplace_back(variable);
        }
    }
    if (!display.empty())
    {
        variables.push_back(std::string(name) + display);
    }
    return variables;
}
} // namespace

CChildProcess::~CChildProcess()
{
    StopWatching();
    if (process <= 0)
    {
        return;
    }
    if (isLetGo)
    {
        GetOrphans().Add(process);
        return;
    }
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

std::string CChildProcess::Find(const std::string& program, const std::string& folders)
{
    std::size_t begin = 0;
    while (begin <= folders.size())
    {
        const std::size_t end = std::min(folders.find(':', begin), folders.size());
        std::string path = folders.substr(begin, end - begin) + "/" + program;
        FileStatus found{};
        const bool isFile = end != begin && stat(path.c_str(), &found) == 0 && S_ISREG(found.st_mode);
        if (isFile && access(path.c_str(), X_OK) == 0)
        {
            return path;
        }
        begin = end + 1;
    }
    return {};
}

bool CChildProcess::Start(const std::vector<std::string>& arguments, const std::string& display,
                          Receiver receiver_)
{
    GetOrphans().Reap();
    std::array<int, 2> ends{-1, -1};
    if (process > 0 || arguments.empty() || pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
    {
        return false;
    }
    // The program's end blocks, as programs expect.
    fcntl(ends[1], F_SETFL, 0);
    std::vector<std::string> texts = arguments;
    std::vector<std::string> variables = MakeEnvironment(display);
    const CFileActions actions(ends[1]);
    const CSpawnAttributes attributes;
    const int failure = posix_spawn(&process, texts[0].c_str(), actions.Get(), attributes.Get(),
                                    MakePointers(texts).data(), MakePointers(variables).data());
    close(ends[1]);
    if (failure != 0)
    {
        close(ends[0]);
        process = -1;
        return false;
    }
    receiver = std::move(receiver_);
    output = ends[0];
    loop.AddDescriptor(output, [this] { ReadOutput(); });
    timer = loop.AddTimer(reapPeriodMs, [this] { Reap(); });
    return true;
}

void CChildProcess::ReadOutput()
{
    std::array<char, 4096> bytes{};
    ssize_t count = 0;
    while ((count = read(output, bytes.data(), bytes.size())) > 0)
    {
        const std::size_t room = longestOutput - std::min(text.size(), longestOutput);
        text.append(bytes.data(), std::min(static_cast<std::size_t>(count), room));
    }
    const bool isEnd = count == 0 || (errno != EAGAIN && errno != EINTR);
    if (isEnd)
    {
        CloseOutput();
    }
}

void CChildProcess::CloseOutput()
{
    if (output != -1)
    {
        loop.RemoveDescriptor(output);
        close(output);
        output = -1;
    }
}

void CChildProcess::StopWatching()
{
    CloseOutput();
    if (timer != 0)
    {
        loop.RemoveTimer(timer);
        timer = 0;
    }
}

void CChildProcess::Reap()
{
    int status = 0;
    const pid_t ended = waitpid(process, &status, WNOHANG);
    if (ended == 0)
    {
        return;
    }
    if (output != -1)
    {
        ReadOutput(); // A program of its own making may still hold the other end.
    }
    // A host that waits for all children has taken the code.
    const int code = ended > 0 && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    process = -1;
    StopWatching();
    const Receiver finished = std::move(receiver);
    const std::string written = std::move(text);
    if (finished)
    {
        finished(code, written); // It may destroy this object.
    }
}

} // namespace Mirel::GUI
