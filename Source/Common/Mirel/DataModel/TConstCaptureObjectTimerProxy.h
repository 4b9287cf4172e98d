#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/Core/CDirty.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/Core/TStoredValue.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/CTimedCopy.h"
#include "Mirel/DataModel/TICaptureObject.h"

#include <type_traits>

namespace Mirel::DataModel
{

/// A copy of another object, its description and its capture that is brought up to date by a timer and not by
/// the other's events: listeners of the copy run on the timer's thread, and no more often than it ticks.
/// T and I are those of TICaptureObject, C is the class of the description.
///
/// Disabled it stands still, which spares an unseen display its cost. Numbers and texts are compared at each
/// tick; a function is taken anew only if the source has fired since, which it may do on another thread if
/// its event provider allows that. GUI thread only.
template <class T, class I, class C>
class TConstCaptureObjectTimerProxy : public virtual TIConstCaptureObject<T, I>, public CTimedCopy
{
public:
    /// Neither is owned, both must outlive the proxy; the provider may be null. Enabled, and up to date.
    TConstCaptureObjectTimerProxy(const TIConstCaptureObject<T, I>& source_,
                                  System::ITimerProvider* timerProvider)
        : source(source_),
          value(source_.GetValue()),
          info(source_.GetInfo()),
          valueChanged(&source_.GetValueChangedEventProvider(), &markValue),
          infoChanged(&source_.GetInfo().GetChangedEventProvider(), &markInfo)
    {
        if (source.IsCaptured())
        {
            capture.BeginCapture();
        }
        StartTimer(timerProvider);
    }

    T GetValue() const override { return value.Get(); }
    Core::IEventProvider& GetValueChangedEventProvider() const override
    {
        return capture.GetChangedEventProvider();
    }
    const C& GetInfo() const override { return info; }

    Core::IEventProvider& GetBeginCaptureEventProvider() const override
    {
        return capture.GetBeginCaptureEventProvider();
    }
    Core::IEventProvider& GetEndCaptureEventProvider() const override
    {
        return capture.GetEndCaptureEventProvider();
    }
    bool IsCaptured() const override { return capture.IsCaptured(); }

    void Refresh() override
    {
        if (infoMark.IsDirty())
        {
            infoMark.SetDirty(false);
            info.CopyFrom(source.GetInfo());
        }
        if (source.IsCaptured())
        {
            capture.BeginCapture();
        }
        if (TakeValue())
        {
            capture.NotifyChanged();
        }
        if (!source.IsCaptured())
        {
            capture.EndCapture();
        }
    }

private:
    bool TakeValue()
    {
        if constexpr (std::is_reference_v<T>)
        {
            if (!valueMark.IsDirty())
            {
                return false;
            }
            valueMark.SetDirty(false);
        }
        return value.Set(source.GetValue());
    }

    void MarkValue() { valueMark.SetDirty(true); }
    void MarkInfo() { infoMark.SetDirty(true); }

    using Command = Core::TCommand<TConstCaptureObjectTimerProxy>;

    const TIConstCaptureObject<T, I>& source;
    Core::TStoredValue<T> value;
    C info;
    Core::CCapture capture;
    Core::CDirty valueMark;
    Core::CDirty infoMark;
    Command markValue{this, &TConstCaptureObjectTimerProxy::MarkValue};
    Command markInfo{this, &TConstCaptureObjectTimerProxy::MarkInfo};
    CoreUtilities::CCallbackHelper valueChanged;
    CoreUtilities::CCallbackHelper infoChanged;
};

} // namespace Mirel::DataModel
