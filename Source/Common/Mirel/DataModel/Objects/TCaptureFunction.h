#pragma once

#include "Mirel/DataModel/Objects/TConstCaptureFunction.h"

namespace Mirel::DataModel::Objects
{

/// An observable function that anyone may set. GUI thread only.
template <class F, class I, class C>
class TCaptureFunction : public virtual TICaptureObject<const F&, I>, public TConstCaptureFunction<F, I, C>
{
public:
    using TConstCaptureFunction<F, I, C>::TConstCaptureFunction;

    /// Holds a clone. Fires on every set: functions are not compared.
    void SetValue(const F& newFunction) override { this->SetFunction(newFunction.Clone(), true); }
};

} // namespace Mirel::DataModel::Objects
