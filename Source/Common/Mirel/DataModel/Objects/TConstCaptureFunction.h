#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/DataModel/TICaptureObject.h"

namespace Mirel::DataModel::Objects
{

/// What curves and surfaces have in common, written or only read: a function, its description, the events. F
/// is the function's interface, I the description's reading form and C its class. GUI thread only.
template <class F, class I, class C>
class TConstCaptureFunction : public virtual TIConstCaptureObject<const F&, I>, public Core::CCapture
{
public:
    TConstCaptureFunction() = default;

    /// Copies the description. Until there is a function it is the description's default function.
    explicit TConstCaptureFunction(const I& info_) : info(info_) {}
    TConstCaptureFunction(const TConstCaptureFunction&) = delete;
    TConstCaptureFunction& operator=(const TConstCaptureFunction&) = delete;

    Core::IEventProvider& GetValueChangedEventProvider() const override { return GetChangedEventProvider(); }

    /// Valid until the next function is set.
    const F& GetValue() const override { return function ? *function : info.GetDefaultFunction(); }

    const C& GetInfo() const override { return info; }
    C& GetInfo() { return info; }

protected:
    /// Holds the function itself, or with null the default one. Fires on every call: functions are not
    /// compared. With owned the function is destroyed on replacement and with this object.
    void SetFunction(const F* newFunction, bool owned)
    {
        function.Set(newFunction, owned);
        NotifyChanged();
    }

private:
    C info;
    Core::TOwnership<const F> function;
};

} // namespace Mirel::DataModel::Objects
