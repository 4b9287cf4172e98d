#pragma once

#include <atomic>
#include <chrono>
#include <thread>

namespace MirelExt::AAXPlugin
{

/// Keeps what the audio thread tells the host of a parameter apart from the beginnings and ends of gestures
/// that other threads tell it. The audio thread never waits: it gets no turn while another thread has one.
/// The others wait for the end of its turn, but not longer than `longestWait`, whatever the host does in it.
class CGestureTurns
{
public:
    /// More than a loaded machine keeps a thread from running; the turn itself takes microseconds.
    static constexpr std::chrono::milliseconds longestWait{250};

    /// Audio thread. True if it has its turn, until EndOfAudio.
    bool TryForAudio()
    {
        audio = true;
        if (others == 0)
        {
            return true;
        }
        audio = false;
        return false;
    }
    void EndOfAudio() { audio = false; }

    /// Any other thread. Turns of these may overlap.
    void Begin()
    {
        ++others;
        if (!audio)
        {
            return;
        }
        const auto end = std::chrono::steady_clock::now() + longestWait;
        while (audio && std::chrono::steady_clock::now() < end)
        {
            std::this_thread::yield();
        }
    }
    void End() { --others; }

private:
    // Each side says that it is there before it looks at the other: in sequential order one sees the other.
    std::atomic<bool> audio = false;
    std::atomic<int> others = 0;
};

} // namespace MirelExt::AAXPlugin
