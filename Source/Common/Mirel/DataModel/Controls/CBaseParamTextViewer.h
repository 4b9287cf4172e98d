#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Controls/CForwardedCapture.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

#include <string>

namespace Mirel::DataModel::Controls
{

/// Shows a parameter as the text that the converter of its description gives. GUI thread only.
class CBaseParamTextViewer : public CForwardedCapture
{
public:
    /// The parameter is not owned and must outlive the viewer.
    explicit CBaseParamTextViewer(const Objects::IConstCaptureParam& param_);

    const Objects::IConstCaptureParam& GetParam() const { return param; }
    const Objects::IConstParamInfo& GetInfo() const { return param.GetInfo(); }

    /// Never null; valid until the next change.
    const char* GetText() const { return text.c_str(); }

    /// Fires when the text changes, be it by the value or by the description.
    Core::IEventProvider& GetTextChangedEventProvider() const { return textChanged; }

private:
    std::string CurrentText() const;
    void UpdateText();

    const Objects::IConstCaptureParam& param;
    std::string text;
    mutable Core::CEventProvider textChanged; ///< Listening to a viewer changes nothing of it.
    Core::TCommand<CBaseParamTextViewer> updateText{this, &CBaseParamTextViewer::UpdateText};
    CoreUtilities::CCallbackHelper valueConnection;
    CoreUtilities::CCallbackHelper infoConnection;
};

} // namespace Mirel::DataModel::Controls
