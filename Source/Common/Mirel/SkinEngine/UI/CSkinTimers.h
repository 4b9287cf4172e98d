#pragma once

#include "Mirel/GUI/Native/COSXThreadInvoker.h"
#include "Mirel/GUI/Native/COSXTimerProvider.h"
#include "Mirel/System/CAttachableTimerProvider.h"
#include "Mirel/System/CThreadedTimer.h"
#include "Mirel/System/CTimerSerializer.h"

namespace Mirel::SkinEngine
{

/// The clocks of a skin's window. All commands run on the GUI thread; with a thread of its own the ticking
/// does not depend on how busy the run loop is. GUI thread only.
class CSkinTimers
{
public:
    /// The loop must outlive this object.
    explicit CSkinTimers(GUI::CNativeRunLoop& loop);
    CSkinTimers(const CSkinTimers&) = delete;
    CSkinTimers& operator=(const CSkinTimers&) = delete;
    ~CSkinTimers();

    /// Whether a thread of its own drives the serialiser, or the run loop.
    void SetThreaded(bool newThreaded);
    bool IsThreaded() const { return isThreaded; }

    /// Off at first: then nothing of the serialiser ticks, and there is no thread.
    void Run(bool newRunning);
    bool IsRunning() const { return isRunning; }
    bool HasThread() const { return threaded.IsEnabled(); }

    /// For the objects of models: one timer for all of them.
    System::CTimerSerializer& GetSerializer() { return serializer; }

    /// The run loop's own timers, which run always.
    System::ITimerProvider& GetStandard() { return standard; }

    /// Brings calls to the GUI thread.
    System::IThreadInvoker& GetInvoker() { return invoker; }

private:
    void UpdateThread() { threaded.Enable(isRunning && isThreaded); }

    GUI::COSXTimerProvider standard;
    GUI::COSXThreadInvoker invoker;
    System::CThreadedTimer threaded;
    System::CAttachableTimerProvider driver;
    System::CTimerSerializer serializer;
    bool isThreaded = false;
    bool isRunning = false;
};

} // namespace Mirel::SkinEngine
