#include "Mirel/DataModel/Controls/CParamTextControl.h"

#include "Mirel/DataModel/Controls/TextToValue.h"

namespace Mirel::DataModel::Controls
{

CParamTextControl::CParamTextControl(Objects::ICaptureParam& param_)
    : CBaseParamTextViewer(param_),
      param(param_),
      edit(param_)
{
}

bool CParamTextControl::SetText(const char* newText)
{
    float value = 0.0F;
    if (!IsEditable() || newText == nullptr || !TextToValue(GetInfo(), newText, value))
    {
        return false;
    }
    param.SetValue(value);
    return true;
}

void CParamTextControl::SetDefault()
{
    if (IsEditable())
    {
        param.SetValue(GetInfo().GetDefault());
    }
}

} // namespace Mirel::DataModel::Controls
