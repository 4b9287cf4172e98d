#include "Mirel/DataModel/Controls/CBaseParamTextViewer.h"

#include "Mirel/DataModel/Objects/ValueToString.h"

#include <utility>

namespace Mirel::DataModel::Controls
{

CBaseParamTextViewer::CBaseParamTextViewer(const Objects::IConstCaptureParam& param_)
    : CForwardedCapture(param_),
      param(param_),
      text(CurrentText()),
      valueConnection(&param_.GetValueChangedEventProvider(), &updateText),
      infoConnection(&param_.GetInfo().GetChangedEventProvider(), &updateText)
{
}

std::string CBaseParamTextViewer::CurrentText() const
{
    return Objects::ValueToString(GetInfo().GetValueToText(), param.GetValue());
}

void CBaseParamTextViewer::UpdateText()
{
    // A listener that sets the value again does not reach this command, which is still running: hence the
    // second look.
    for (std::string current = CurrentText(); current != text; current = CurrentText())
    {
        text = std::move(current);
        textChanged.Notify();
    }
}

} // namespace Mirel::DataModel::Controls
