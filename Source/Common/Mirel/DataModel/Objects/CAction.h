#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/Core/CLifeToken.h"
#include "Mirel/DataModel/Objects/CActionInfo.h"
#include "Mirel/DataModel/Objects/IConstAction.h"

namespace Mirel::DataModel::Objects
{

/// An action that runs the command of its description, and without one does nothing. GUI thread only.
class CAction : public virtual IConstAction
{
public:
    /// With owned the action destroys the command in the end, otherwise the command must outlive it.
    explicit CAction(const char* name_ = "", const char* comment_ = "", Core::ICommand* command_ = nullptr,
                     bool owned_ = true)
        : info(name_, comment_, command_, owned_)
    {
    }
    CAction(const CAction&) = delete;
    CAction& operator=(const CAction&) = delete;

    const CActionInfo& GetInfo() const override { return info; }
    CActionInfo& GetInfo() { return info; }

    /// Runs at once. The command may destroy the action if it needs nothing of itself afterwards, as TCommand
    /// does not. What closes the window that it is triggered from is posted (TConstAsyncActionWrapper).
    void Execute() const override
    {
        const bool outermost = !running.IsCaptured();
        const Core::CLifeToken::CWatch watch(life);
        running.BeginCapture();
        if (Core::ICommand* command = info.GetAction())
        {
            command->Execute();
        }
        if (outermost && watch.IsAlive())
        {
            running.EndCapture();
        }
    }

    Core::IEventProvider& GetBeginCaptureEventProvider() const override
    {
        return running.GetBeginCaptureEventProvider();
    }
    Core::IEventProvider& GetEndCaptureEventProvider() const override
    {
        return running.GetEndCaptureEventProvider();
    }
    bool IsCaptured() const override { return running.IsCaptured(); }

private:
    CActionInfo info;
    mutable Core::CCapture running; ///< To run changes nothing of the action itself.
    Core::CLifeToken life;
};

} // namespace Mirel::DataModel::Objects
