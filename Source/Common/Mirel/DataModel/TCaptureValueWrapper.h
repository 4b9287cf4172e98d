#pragma once

#include "Mirel/DataModel/TConstCaptureValueWrapper.h"

#include <type_traits>

namespace Mirel::DataModel
{

/// The writing form: a number is clamped to the range of the description before it is handed on. GUI thread
/// only.
template <class T, class I, class C>
class TCaptureValueWrapper : public TConstCaptureValueWrapper<T, I, C>, public virtual TICaptureObject<T, I>
{
public:
    /// V is a TIValue<T> and an IValueChangedEventProvider. See TConstCaptureValueWrapper.
    template <class V>
    TCaptureValueWrapper(V* value_, bool owned_, const I& info_)
        : TConstCaptureValueWrapper<T, I, C>(value_, owned_, info_),
          value(*value_)
    {
    }

    /// What the value behind makes of it is what shows. The wrapper may be gone afterwards. NaN is no change.
    void SetValue(T newValue) override
    {
        if constexpr (std::is_floating_point_v<T>)
        {
            const I& range = this->GetInfo();
            newValue = range.GetMin() > newValue ? range.GetMin() : newValue;
            newValue = newValue > range.GetMax() ? range.GetMax() : newValue;
            if (!(newValue < value.GetValue() || newValue > value.GetValue()))
            {
                return;
            }
        }
        value.SetValue(newValue);
    }

    void BeginCapture() override { this->GetCapture().BeginCapture(); }
    void EndCapture() override { this->GetCapture().EndCapture(); }

private:
    Core::TIValue<T>& value;
};

} // namespace Mirel::DataModel
