#pragma once

#include "Mirel/DataModel/TConstCaptureObjectTimerProxy.h"

namespace Mirel::DataModel
{

/// The writing form of a timer proxy: what is written goes to the other object at once, and the copy shows
/// what the other has made of it. GUI thread only.
template <class T, class I, class C>
class TCaptureObjectTimerProxy : public TConstCaptureObjectTimerProxy<T, I, C>,
                                 public virtual TICaptureObject<T, I>
{
public:
    /// See TConstCaptureObjectTimerProxy.
    TCaptureObjectTimerProxy(TICaptureObject<T, I>& object_, System::ITimerProvider* timerProvider)
        : TConstCaptureObjectTimerProxy<T, I, C>(object_, timerProvider),
          object(object_)
    {
    }

    void SetValue(T newValue) override
    {
        object.SetValue(newValue);
        this->Refresh();
    }

    void BeginCapture() override
    {
        object.BeginCapture();
        this->Refresh();
    }

    void EndCapture() override
    {
        object.EndCapture();
        this->Refresh();
    }

private:
    TICaptureObject<T, I>& object;
};

} // namespace Mirel::DataModel
