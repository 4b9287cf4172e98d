#pragma once

#include "Mirel/Core/CLateDestruction.h"
#include "Mirel/DataModel/TConstCaptureValueWrapper.h"

#include <concepts>
#include <functional>
#include <utility>

namespace Mirel::DataModel
{

/// The writing form: what is set is set in the other object, which may make something else of it.
template <class T, class I, class C>
class TCaptureValueWrapper : public TConstCaptureValueWrapper<T, I, C>, public virtual TICaptureObject<T, I>
{
public:
    using CGet = typename TConstCaptureValueWrapper<T, I, C>::CGet;
    using CSet = std::function<void(T)>;

    /// See TConstCaptureValueWrapper. Captures are passed on to the captured object, if there is one; it is
    /// not owned and must outlive this object.
    TCaptureValueWrapper(const I& info_, CGet get_, CSet set_, Core::IEventProvider* changed_,
                         Core::ICapture* captured_ = nullptr)
        : TConstCaptureValueWrapper<T, I, C>(info_, std::move(get_), changed_),
          set(std::move(set_)),
          captured(captured_)
    {
    }

    /// A number is first clamped to the range of the description, and ignored if it is none. If the other
    /// object has no event, this one fires in its place.
    void SetValue(T newValue) override
    {
        if constexpr (std::floating_point<T>)
        {
            const T atLeast = this->GetInfo().GetMin() > newValue ? this->GetInfo().GetMin() : newValue;
            const T clamped = atLeast > this->GetInfo().GetMax() ? this->GetInfo().GetMax() : atLeast;
            if (clamped < this->GetValue() || clamped > this->GetValue())
            {
                Forward(clamped);
            }
        }
        else
        {
            Forward(newValue);
        }
    }

    void BeginCapture() override
    {
        if (captured != nullptr)
        {
            captured->BeginCapture();
        }
        this->GetCapture().BeginCapture();
    }

    void EndCapture() override
    {
        if (captured != nullptr)
        {
            captured->EndCapture();
        }
        this->GetCapture().EndCapture();
    }

private:
    void Forward(T newValue)
    {
        const Core::CLateDestruction stayAlive;
        set(newValue);
        if (!this->HasEvent())
        {
            this->GetCapture().NotifyChanged();
        }
    }

    CSet set;
    Core::ICapture* captured;
};

} // namespace Mirel::DataModel
