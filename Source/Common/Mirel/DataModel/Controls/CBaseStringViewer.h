#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CForwardedCapture.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

namespace Mirel::DataModel::Controls
{

/// Shows a string. GUI thread only.
class CBaseStringViewer : public CForwardedCapture
{
public:
    /// The string is not owned and must outlive the viewer.
    explicit CBaseStringViewer(const Objects::IConstCaptureString& string_)
        : CForwardedCapture(string_),
          string(string_),
          valueConnection(&string_.GetValueChangedEventProvider(), &forwardChange)
    {
    }

    const Objects::IConstCaptureString& GetString() const { return string; }
    const Objects::IConstStringInfo& GetInfo() const { return string.GetInfo(); }

    /// Valid until the next change.
    const char* GetText() const { return string.GetValue(); }

    /// Fires when the text changes.
    Core::IEventProvider& GetTextChangedEventProvider() const { return textChanged; }

private:
    const Objects::IConstCaptureString& string;
    mutable Core::CEventProvider textChanged; ///< Listening to a viewer changes nothing of it.
    Core::TConstCommand<Core::INotify> forwardChange{&textChanged, &Core::INotify::Notify};
    CoreUtilities::CCallbackHelper valueConnection;
};

} // namespace Mirel::DataModel::Controls
