#include "Mirel/SkinEngine/Model/CStateTracker.h"

#include "Mirel/SkinEngine/Model/ObjectInterfaces.h"

namespace Mirel::SkinEngine
{

namespace
{

using namespace DataModel::Objects;

template <class I>
Core::IEventProvider* ValueChangedOf(Runtime::IDynamicObject& object)
{
    const I* found = FindInterface<I>(object);
    return found == nullptr ? nullptr : &found->GetValueChangedEventProvider();
}

/// The event by which an object tells that its part of the state has changed; null if it has none.
Core::IEventProvider* ChangedOf(Runtime::IDynamicObject& object)
{
    if (Core::IEventProvider* provider = ValueChangedOf<IConstCaptureParam>(object))
    {
        return provider;
    }
    if (Core::IEventProvider* provider = ValueChangedOf<IConstCaptureCurve>(object))
    {
        return provider;
    }
    if (Core::IEventProvider* provider = ValueChangedOf<IConstCaptureSurface>(object))
    {
        return provider;
    }
    if (Core::IEventProvider* provider = ValueChangedOf<IConstCaptureString>(object))
    {
        return provider;
    }
    const auto* count = FindInterface<IConstCount>(object);
    return count == nullptr ? nullptr : &count->GetCountChangedEventProvider();
}

} // namespace

void CStateTracker::Track(const char* id, Runtime::IDynamicObject& object)
{
    if (Core::IEventProvider* provider = ChangedOf(object))
    {
        tracked.insert_or_assign(id, CoreUtilities::CCallbackHelper(provider, &markModified));
    }
}

void CStateTracker::Forget(const char* id)
{
    const auto position = tracked.find(id);
    if (position != tracked.end())
    {
        tracked.erase(position);
    }
}

void CStateTracker::SetModified(bool newModified)
{
    if (modified != newModified)
    {
        modified = newModified;
        changed.Notify();
    }
}

} // namespace Mirel::SkinEngine
