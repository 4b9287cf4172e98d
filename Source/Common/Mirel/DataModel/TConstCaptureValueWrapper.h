#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/DataModel/TICaptureObject.h"

#include <functional>
#include <utility>

namespace Mirel::DataModel
{

/// Presents what another object holds, such as a switch or a count, as an observable object with a
/// description of its own. T and I are those of TICaptureObject, C is the class of the description. Nobody
/// captures it. The thread is that of the other object.
template <class T, class I, class C>
class TConstCaptureValueWrapper : public virtual TIConstCaptureObject<T, I>
{
public:
    using CGet = std::function<T()>;

    /// Copies the description. The event is the other object's, fires when `get` would give another value,
    /// and must outlive this object; null if there is none.
    TConstCaptureValueWrapper(const I& info_, CGet get_, Core::IEventProvider* changed_)
        : info(info_),
          get(std::move(get_)),
          changed(changed_)
    {
    }
    TConstCaptureValueWrapper(const TConstCaptureValueWrapper&) = delete;
    TConstCaptureValueWrapper& operator=(const TConstCaptureValueWrapper&) = delete;

    T GetValue() const override { return get(); }
    Core::IEventProvider& GetValueChangedEventProvider() const override
    {
        return changed == nullptr ? capture.GetChangedEventProvider() : *changed;
    }

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

    /// Whether the other object tells of changes by itself.
    bool HasEvent() const { return changed != nullptr; }

private:
    C info;
    CGet get;
    Core::IEventProvider* changed;
    Core::CCapture capture;
};

} // namespace Mirel::DataModel
