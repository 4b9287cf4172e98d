#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/DataModel/TICaptureObject.h"

namespace Mirel::DataModel
{

/// Presents a value that has a change event, and no more, as an observable object that can only be read: T
/// and I are those of TICaptureObject, C is the class of the description. GUI thread only.
template <class T, class I, class C>
class TConstCaptureValueWrapper : public virtual TIConstCaptureObject<T, I>
{
public:
    /// V is a TIConstValue<T> and an IValueChangedEventProvider. With owned it is destroyed with the wrapper,
    /// otherwise it must outlive it. Copies the description.
    template <class V>
    TConstCaptureValueWrapper(V* value_, bool owned_, const I& info_)
        : owner(value_, owned_),
          value(*value_),
          changed(value_->GetValueChangedEventProvider()),
          info(info_)
    {
    }
    TConstCaptureValueWrapper(const TConstCaptureValueWrapper&) = delete;
    TConstCaptureValueWrapper& operator=(const TConstCaptureValueWrapper&) = delete;

    T GetValue() const override { return value.GetValue(); }
    Core::IEventProvider& GetValueChangedEventProvider() const override { return changed; }

    const C& GetInfo() const override { return info; }
    C& GetInfo() { return info; }

    Core::IEventProvider& GetBeginCaptureEventProvider() const override
    {
        return capture.GetBeginCaptureEventProvider();
    }
    Core::IEventProvider& GetEndCaptureEventProvider() const override
    {
        return capture.GetEndCaptureEventProvider();
    }
    bool IsCaptured() const override { return capture.IsCaptured(); }

protected:
    Core::CCapture& GetCapture() { return capture; }

private:
    Core::TOwnership<const Core::TIConstValue<T>> owner;
    const Core::TIConstValue<T>& value;
    Core::IEventProvider& changed;
    C info;
    Core::CCapture capture;
};

} // namespace Mirel::DataModel
