#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/Core/CDirty.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/CTimedCopy.h"
#include "Mirel/DataModel/TICaptureObject.h"

namespace Mirel::Audio::Plugin
{

/// An output of the filter as an observable object: at each tick of its timer it takes over what was
/// published since the one before, and fires if that was anything. The lock of the captures, behind which the
/// audio thread cannot publish, is held for that alone; what listeners do holds it no longer. T and I are
/// those of TICaptureObject, C is the class of the description.
///
/// Disabled it stands still, which spares an unseen output its cost. The thread of the timer only.
template <class T, class I, class C, class Capture>
class TConstOutputTimerProxy : public virtual DataModel::TIConstCaptureObject<T, I>,
                               public DataModel::CTimedCopy
{
public:
    Core::IEventProvider& GetValueChangedEventProvider() const override
    {
        return events.GetChangedEventProvider();
    }
    const C& GetInfo() const override { return info; }

    // Nobody captures it.
    Core::IEventProvider& GetBeginCaptureEventProvider() const override
    {
        return events.GetBeginCaptureEventProvider();
    }
    Core::IEventProvider& GetEndCaptureEventProvider() const override
    {
        return events.GetEndCaptureEventProvider();
    }
    bool IsCaptured() const override { return false; }

protected:
    /// All must outlive this object.
    TConstOutputTimerProxy(const Capture& capture_, const I& info_, System::ITimerProvider& timerProvider)
        : capture(capture_),
          info(info_),
          published(&capture_.GetChangedEventProvider(), &markPublished)
    {
        StartTimer(&timerProvider);
    }

    /// Takes over what was published. False if there is nothing to tell.
    virtual bool TakeOver(const Capture& source) = 0;

private:
    void Refresh() override
    {
        capture.DeliverChange();
        if (isPublished.IsDirty())
        {
            isPublished.SetDirty(false);
            if (TakeOver(capture))
            {
                events.NotifyChanged();
            }
        }
    }

    void MarkPublished() { isPublished.SetDirty(true); }

    using Command = Core::TCommand<TConstOutputTimerProxy>;

    const Capture& capture;
    C info;
    Core::CCapture events;
    Core::CDirty isPublished{true}; ///< The event may fire on the thread of another reader.
    Command markPublished{this, &TConstOutputTimerProxy::MarkPublished};
    CoreUtilities::CCallbackHelper published;
};

} // namespace Mirel::Audio::Plugin
