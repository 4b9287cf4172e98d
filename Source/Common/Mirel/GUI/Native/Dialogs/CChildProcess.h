#pragma once

#include "Mirel/GUI/Native/CNativeRunLoop.h"

#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace Mirel::GUI
{

/// Another program, whose output is read by the run loop. It gets the given arguments as they are, nothing to
/// read, and none of this process's files. GUI thread only.
class CChildProcess
{
public:
    /// exitCode is -1 if the program was killed or its end could not be learned. output is what it wrote to
    /// its standard output, up to 64 KiB.
    using Receiver = std::function<void(int exitCode, const std::string& output)>;

    /// The loop must outlive the object.
    explicit CChildProcess(CNativeRunLoop& loop_) : loop(loop_) {}
    CChildProcess(const CChildProcess&) = delete;
    CChildProcess& operator=(const CChildProcess&) = delete;

    /// Kills the program if it still runs, unless it was let go.
    ~CChildProcess();

    /// arguments[0] is the program's path. The receiver is called once, from the loop, and may destroy this
    /// object; not at all if it is destroyed before. A name of a display replaces the environment's. False if
    /// the program cannot be started.
    bool Start(const std::vector<std::string>& arguments, const std::string& display, Receiver receiver_);

    /// The program goes on when this object ends.
    void LetGo() { isLetGo = true; }

    pid_t GetId() const { return process; }

    /// The path of an executable file with that name in a list of folders divided by colons; empty if there
    /// is none.
    static std::string Find(const std::string& program, const std::string& folders);

private:
    void ReadOutput();
    void CloseOutput();
    void Reap();
    void StopWatching();

    CNativeRunLoop& loop;
    pid_t process = -1;
    int output = -1;
    CNativeRunLoop::TimerId timer = 0;
    bool isLetGo = false;
    std::string text;
    Receiver receiver;
};

} // namespace Mirel::GUI
