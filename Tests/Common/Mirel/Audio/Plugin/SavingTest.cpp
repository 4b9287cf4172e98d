// What is saved is there whole or not at all, also when the one who saves dies or is not alone.

#include "CTestInstance.h"

#include <array>
#include <atomic>
#include <csignal>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <thread>

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Mirel::Audio::Plugin;
using Tests::CTestFilter;
using Tests::CTestInstance;
using Tests::CTestPlaces;

namespace
{

/// Runs the work in a child process that is killed at its system call of that number, counted at entry and at
/// exit. False if the child came to its end before.
bool KillAtCall(int stop, const std::function<void()>& work)
{
    const pid_t child = fork();
    if (child == 0)
    {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        static_cast<void>(raise(SIGSTOP)); // here the parent begins to follow
        work();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSTOPPED(status));
    for (int i = 0; i < stop; ++i)
    {
        ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        waitpid(child, &status, 0);
        if (WIFEXITED(status))
        {
            return false;
        }
    }
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    return true;
}

/// Whether processes may follow their children here.
bool CanTrace()
{
    const pid_t child = fork();
    if (child == 0)
    {
        _exit(ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0 ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Kills the save at every stage; each time there is the old or the new text, and both come.
void ExpectWholeAtEveryStage(const CTestPlaces& places, const std::string& name, const std::string& oldText,
                             const std::string& newText, const std::function<void()>& save)
{
    if (!CanTrace())
    {
        GTEST_SKIP() << "processes may not follow their children here";
    }
    int oldOnes = 0;
    int newOnes = 0;
    for (int stop = 1;; ++stop)
    {
        places.folder.Write(name, oldText);
        const bool killed = KillAtCall(stop, save);
        const std::string found = places.folder.Read(name);
        ASSERT_TRUE(found == oldText || found == newText) << "at stop " << stop << ": " << found;
        (found == oldText ? oldOnes : newOnes) += 1;
        if (!killed)
        {
            break;
        }
    }
    EXPECT_GT(oldOnes, 3);
    EXPECT_GT(newOnes, 0);
}

TEST(Saving, AKilledWriterOfThePreferencesLeavesTheOldOrTheNewFile)
{
    const CTestPlaces places;
    const CTestFilter filter(3, 2);
    const auto settings = Tests::MakeSettings(places, filter);
    settings->Save();
    const std::string oldText = places.ReadSettings();
    settings->SetOutputRefreshRate(20.0);
    settings->Save();
    const std::string newText = places.ReadSettings();
    ASSERT_NE(oldText, newText);
    ExpectWholeAtEveryStage(places, "config/Tarnwell/Scope.module/global.pref", oldText, newText,
                            [&] { settings->Save(); });
}

TEST(Saving, AKilledWriterOfAPresetLeavesTheOldOrTheNewFile)
{
    const CTestPlaces places;
    CTestInstance instance(places);
    const std::string path = places.folder.GetPath("a.preset");
    const std::string oldText = instance.SaveText();
    instance.SetInput(1, -0.125f);
    const std::string newText = instance.SaveText();
    ExpectWholeAtEveryStage(places, "a.preset", oldText, newText,
                            [&] { SavePreset(instance.internals, path.c_str()); });
}

TEST(Saving, TwoInstancesThatSaveAtOnceLeaveOneOfTheTwo)
{
    const CTestPlaces places;
    const CTestFilter filter(3, 2);
    constexpr int rounds = 20;
    std::array<std::string, 2> texts;
    for (int i = 0; i < 2; ++i)
    {
        const auto settings = Tests::MakeSettings(places, filter);
        settings->SetOutputRefreshRate(10.0 + i);
        settings->Save();
        texts[static_cast<std::size_t>(i)] = places.ReadSettings();
    }
    for (int round = 0; round < rounds; ++round)
    {
        std::atomic<int> ready = 0;
        const auto save = [&](int index)
        {
            const auto settings = Tests::MakeSettings(places, filter);
            settings->SetOutputRefreshRate(10.0 + index);
            ++ready;
            while (ready < 2)
            {
            }
            settings->Save();
        };
        std::thread first(save, 0);
        std::thread second(save, 1);
        first.join();
        second.join();
        const std::string found = places.ReadSettings();
        ASSERT_TRUE(found == texts[0] || found == texts[1]) << found;
    }
    const auto folder = std::filesystem::path(places.SettingsPath()).parent_path();
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1); // no temporary is left
}

} // namespace
