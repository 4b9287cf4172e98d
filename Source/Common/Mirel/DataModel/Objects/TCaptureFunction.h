#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/DataModel/TICaptureObject.h"

namespace Mirel::DataModel::Objects
{

/// An observable function with its description: what curves and surfaces have in common. F is the function's
/// interface, I the description's reading form and C its class. GUI thread only.
template <class F, class I, class C>
class TCaptureFunction : public virtual TICaptureObject<const F&, I>, public Core::CCapture
{
public:
    TCaptureFunction() = default;

    /// Copies the description. Until a value is set it is the description's default function.
    explicit TCaptureFunction(const I& info_) : info(info_) {}
    TCaptureFunction(const TCaptureFunction&) = delete;
    TCaptureFunction& operator=(const TCaptureFunction&) = delete;

    Core::IEventProvider& GetValueChangedEventProvider() const override { return GetChangedEventProvider(); }

    /// Valid until the next SetValue.
    const F& GetValue() const override { return function ? *function : info.GetDefaultFunction(); }

    /// Holds a clone. Fires on every set: functions are not compared.
    void SetValue(const F& newFunction) override
    {
        function.Set(newFunction.Clone(), true);
        NotifyChanged();
    }

    const C& GetInfo() const override { return info; }
    C& GetInfo() { return info; }

private:
    C info;
    Core::TOwnership<const F> function;
};

} // namespace Mirel::DataModel::Objects
