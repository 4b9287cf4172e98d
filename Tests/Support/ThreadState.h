#pragma once

#include <atomic>
#include <chrono>
#include <fstream>
#include <functional>
#include <string>
#include <sys/types.h>
#include <thread>
#include <unistd.h>

namespace Tests
{

/// Waits until the condition holds, for ten seconds at most; returns whether it does.
inline bool WaitUntil(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!condition())
    {
        if (std::chrono::steady_clock::now() > end)
        {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return true;
}

/// Says where a thread is: lets a test go on when another thread has come to its wait.
class CThreadState
{
public:
    /// Called by the thread itself, just before it waits.
    void AboutToWait() { id = gettid(); }

    bool IsAsleep() const
    {
        const pid_t known = id;
        if (known == 0)
        {
            return false;
        }
        std::ifstream file("/proc/self/task/" + std::to_string(known) + "/stat");
        std::string line;
        std::getline(file, line);
        const auto name = line.rfind(')'); // "id (name) state ..."
        return name != std::string::npos && name + 2 < line.size() && line[name + 2] == 'S';
    }

    bool WaitUntilAsleep() const
    {
        return WaitUntil([this] { return IsAsleep(); });
    }

private:
    std::atomic<pid_t> id = 0;
};

} // namespace Tests
