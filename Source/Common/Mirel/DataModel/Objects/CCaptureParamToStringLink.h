#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/Objects/CParamDataToText.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/TBaseCaptureObjectLink.h"

#include <optional>

namespace Mirel::DataModel::Objects
{

/// Keeps a string at the text of a parameter's value: what a value display of a skin shows. At first the text
/// is that of the parameter's own converter, a blank and the unit; a change of the parameter's description
/// updates it. A capture of the parameter stays on the parameter. GUI thread only.
class CCaptureParamToStringLink : public TBaseCaptureObjectLink<IConstCaptureParam, ICaptureString>
{
public:
    CCaptureParamToStringLink() : TBaseCaptureObjectLink(false) {}

    /// How the value becomes text: format, pattern and what else is set here shows at once. Its description
    /// is the parameter's.
    CParamDataToText& GetConverter() { return converter; }
    const CParamDataToText& GetConverter() const { return converter; }

    /// Without a source or a target does nothing.
    void Update() override;

protected:
    void OnConnected() override;
    void OnDisconnected() override { sourceInfo.reset(); }

private:
    void OnSourceInfoChanged();
    void OnConverterChanged();
    void TakeSourceInfo();

    CParamDataToText converter{"%.1f", false, "{text_value} {unit}"};
    bool takingSourceInfo = false;
    Core::TCommand<CCaptureParamToStringLink> converterChanged{
        this, &CCaptureParamToStringLink::OnConverterChanged};
    Core::TCommand<CCaptureParamToStringLink> sourceInfoChanged{
        this, &CCaptureParamToStringLink::OnSourceInfoChanged};
    CoreUtilities::CCallbackHelper converterConnection{&converter.GetChangedEventProvider(),
                                                       &converterChanged};
    std::optional<CoreUtilities::CCallbackHelper> sourceInfo;
};

} // namespace Mirel::DataModel::Objects
