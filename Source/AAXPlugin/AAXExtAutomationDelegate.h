#pragma once

#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/Interface/IAAXAutomationDelegate.h"
#include "AAXPlugin/Interface/TACFReference.h"

#include <utility>

namespace MirelExt::AAXPlugin
{

/// The host's automation, or none, as an instance's parameters use it. Set and cleared while nobody posts;
/// otherwise any thread.
class AAXExtAutomationDelegate
{
public:
    void Set(TACFReference<IAAXAutomationDelegate> automation_) { automation = std::move(automation_); }
    void Clear() { automation = {}; }

    void Touch(const char* parameterId)
    {
        if (automation)
        {
            automation->PostTouch(parameterId);
        }
    }

    void Release(const char* parameterId)
    {
        if (automation)
        {
            automation->PostRelease(parameterId);
        }
    }

    /// False if the host takes no values: then there is nobody to record the change, and it has yet to be
    /// made.
    bool Post(const char* parameterId, double normalized)
    {
        return automation && automation->PostValue(parameterId, normalized) == AAXResult::Ok;
    }

private:
    TACFReference<IAAXAutomationDelegate> automation;
};

} // namespace MirelExt::AAXPlugin
