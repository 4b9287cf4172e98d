#pragma once

#include "Mirel/Containers/TStringMap.h"
#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/Runtime/IDynamicObject.h"

namespace Mirel::SkinEngine
{

/// Listens to the objects that make up a state and keeps the mark that one of them has changed. GUI thread
/// only.
class CStateTracker
{
public:
    CStateTracker() = default;
    CStateTracker(const CStateTracker&) = delete;
    CStateTracker& operator=(const CStateTracker&) = delete;

    /// The object must be forgotten before it is destroyed. Objects without a value or a count are ignored.
    void Track(const char* id, Runtime::IDynamicObject& object);
    void Forget(const char* id);

    bool IsModified() const { return modified; }
    void SetModified(bool newModified);

    /// Fires when the mark changes.
    Core::IEventProvider& GetModifiedEventProvider() const { return changed; }

private:
    void MarkModified() { SetModified(true); }

    bool modified = false;
    mutable Core::CEventProvider changed; ///< Listening changes nothing of the mark.
    Core::TCommand<CStateTracker> markModified{this, &CStateTracker::MarkModified};
    Containers::TStringMap<CoreUtilities::CCallbackHelper> tracked;
};

} // namespace Mirel::SkinEngine
