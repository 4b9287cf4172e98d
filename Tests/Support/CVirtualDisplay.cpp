#include "Support/CVirtualDisplay.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <signal.h> // NOLINT: kill is not in the C++ header
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Tests
{

namespace
{
constexpr int longestStartMs = 20000;

/// What the server writes once it takes connections: its number and a newline.
std::string ReadNumber(int descriptor)
{
    std::string number;
    pollfd entry{descriptor, POLLIN, 0};
    char byte = 0;
    while (poll(&entry, 1, longestStartMs) == 1 && read(descriptor, &byte, 1) == 1)
    {
        if (byte == '\n')
        {
            return number;
        }
        number.push_back(byte);
    }
    return {};
}

[[noreturn]] void RunServer(int descriptor, std::vector<std::string> arguments)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int silence = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(silence, STDOUT_FILENO);
    dup2(silence, STDERR_FILENO);
    fcntl(descriptor, F_SETFD, 0);
    std::vector<char*> texts;
    texts.reserve(arguments.size() + 1);
    for (std::string& argument : arguments)
    {
        texts.push_back(argument.data());
    }
    texts.push_back(nullptr);
    execvp(texts[0], texts.data());
    _exit(EXIT_FAILURE);
}
} // namespace

CVirtualDisplay::CVirtualDisplay(const std::vector<std::string>& arguments)
{
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
    {
        return;
    }
    std::vector<std::string> all = {"Xvfb",      "-displayfd", std::to_string(ends[1]),
                                    "-screen",   "0",          "1280x800x24",
                                    "-nolisten", "tcp",        "-noreset"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    process = fork();
    if (process == 0)
    {
        RunServer(ends[1], all);
    }
    close(ends[1]);
    const std::string number = ReadNumber(ends[0]);
    close(ends[0]);
    name = number.empty() ? std::string() : ":" + number;
}

void CVirtualDisplay::Stop()
{
    if (process > 0)
    {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
        process = -1;
        // It could not clean up.
        const std::string number = name.empty() ? std::string() : name.substr(1);
        unlink(("/tmp/.X" + number + "-lock").c_str());
        unlink(("/tmp/.X11-unix/X" + number).c_str());
    }
}

} // namespace Tests
