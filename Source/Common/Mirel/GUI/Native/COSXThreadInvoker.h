#pragma once

#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/System/IThreadInvoker.h"

#include <memory>

namespace Mirel::System
{
class CEvent;
}

namespace Mirel::GUI
{

/// Runs commands on the GUI thread, through its run loop. Calls that have not run when the invoker dies are
/// dropped; those who wait for them go on. An invoker may be destroyed by a command that it runs.
class COSXThreadInvoker : public virtual System::IThreadInvoker
{
public:
    /// The loop is not owned and must outlive this object. Without one no command is taken.
    explicit COSXThreadInvoker(CNativeRunLoop* loop_);
    COSXThreadInvoker(const COSXThreadInvoker&) = delete;
    COSXThreadInvoker& operator=(const COSXThreadInvoker&) = delete;
    ~COSXThreadInvoker() override;

    /// On the GUI thread itself the command runs at once.
    bool Invoke(Core::ICommand* command, bool owned) override;
    bool InvokeAsync(Core::ICommand* command, bool owned) override;

private:
    class CCalls;

    bool IsTaken(Core::ICommand* command, bool owned) const;
    void Post(Core::ICommand* command, bool owned, System::CEvent* done);

    CNativeRunLoop* loop;
    std::shared_ptr<CCalls> calls;
};

} // namespace Mirel::GUI
