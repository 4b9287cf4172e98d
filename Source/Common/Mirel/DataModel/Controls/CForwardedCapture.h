#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/ICapture.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"

namespace Mirel::DataModel::Controls
{

/// Shows the capture of the object that a viewer looks at as the viewer's own, so that a widget needs to know
/// the viewer alone. GUI thread only.
class CForwardedCapture : public virtual Core::IConstCapture
{
public:
    /// The source is not owned and must outlive this object.
    explicit CForwardedCapture(const Core::IConstCapture& source_)
        : source(source_),
          beginConnection(&source_.GetBeginCaptureEventProvider(), &forwardBegin),
          endConnection(&source_.GetEndCaptureEventProvider(), &forwardEnd)
    {
    }
    CForwardedCapture(const CForwardedCapture&) = delete;
    CForwardedCapture& operator=(const CForwardedCapture&) = delete;
    ~CForwardedCapture() override = default;

    Core::IEventProvider& GetBeginCaptureEventProvider() const override { return begin; }
    Core::IEventProvider& GetEndCaptureEventProvider() const override { return end; }
    bool IsCaptured() const override { return source.IsCaptured(); }

private:
    const Core::IConstCapture& source;
    mutable Core::CEventProvider begin;
    mutable Core::CEventProvider end;
    Core::TConstCommand<Core::INotify> forwardBegin{&begin, &Core::INotify::Notify};
    Core::TConstCommand<Core::INotify> forwardEnd{&end, &Core::INotify::Notify};
    CoreUtilities::CCallbackHelper beginConnection;
    CoreUtilities::CCallbackHelper endConnection;
};

} // namespace Mirel::DataModel::Controls
