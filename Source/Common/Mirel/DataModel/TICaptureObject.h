#pragma once

#include "Mirel/Core/ICapture.h"
#include "Mirel/Core/IValueChangedEventProvider.h"
#include "Mirel/Core/TIValue.h"

namespace Mirel::DataModel
{

/// The reading form of an observable object: a value, its change event, its capture and its description.
/// T is what the value is handed out as (float, const char*, const IFunction&), I its description.
/// GUI thread only.
template <class T, class I>
class TIConstCaptureObject : public virtual Core::TIConstValue<T>,
                             public virtual Core::IValueChangedEventProvider,
                             public virtual Core::IConstCapture
{
public:
    using Value = T;
    using Info = I;

    /// Valid as long as the object.
    virtual const I& GetInfo() const = 0;
};

/// The writing form.
template <class T, class I>
class TICaptureObject : public virtual TIConstCaptureObject<T, I>,
                        public virtual Core::TIValue<T>,
                        public virtual Core::ICapture
{
};

} // namespace Mirel::DataModel
