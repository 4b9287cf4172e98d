#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/TICaptureObject.h"

#include <memory>

namespace Mirel::DataModel::Controls
{

/// The function that a viewer evaluates, read through its capture: F is the function's interface, I its
/// description. Not for use by itself: see CCurveViewer and CSurfaceViewer. GUI thread only.
template <class F, class I>
class TFunctionSource
{
public:
    using Capture = TIConstCaptureObject<const F&, I>;

    explicit TFunctionSource(const Capture& capture_)
        : capture(capture_),
          value(capture_),
          connection(&capture_.GetValueChangedEventProvider(), &update)
    {
    }
    TFunctionSource(const TFunctionSource&) = delete;
    TFunctionSource& operator=(const TFunctionSource&) = delete;

    const Capture& GetCapture() const { return capture; }

    const F& GetFunction() const { return held ? *held : value.GetValue(); }

    /// Fires after a change of the function; GetFunction gives the new one.
    Core::IEventProvider& GetChangedEventProvider() const { return changed; }

    void SetAccessMode(bool newAccessMode)
    {
        if (newAccessMode != GetAccessMode())
        {
            held.reset(newAccessMode ? value.GetValue().Clone() : nullptr);
            changed.Notify();
        }
    }

    bool GetAccessMode() const { return held != nullptr; }

private:
    void Update()
    {
        if (held)
        {
            held.reset(value.GetValue().Clone());
        }
        changed.Notify();
    }

    const Capture& capture;
    const Core::TIConstValue<const F&>& value; ///< The capture; found once, for the sake of a call per pixel.
    std::unique_ptr<const F> held;
    mutable Core::CEventProvider changed; ///< Listening changes nothing of the function.
    Core::TCommand<TFunctionSource> update{this, &TFunctionSource::Update};
    CoreUtilities::CCallbackHelper connection;
};

} // namespace Mirel::DataModel::Controls
