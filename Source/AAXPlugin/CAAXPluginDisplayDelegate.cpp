#include "AAXPlugin/CAAXPluginDisplayDelegate.h"

#include "Mirel/Serialization/NumberText.h"

#include <cmath>
#include <limits>

namespace MirelExt::AAXPlugin
{

using Mirel::DataModel::Objects::IParamValueToText;

CAAXPluginDisplayDelegate::CAAXPluginDisplayDelegate(const IParamValueToText* valueToText_)
    : valueToText(valueToText_ != nullptr ? valueToText_->Clone() : nullptr)
{
}

CAAXPluginDisplayDelegate* CAAXPluginDisplayDelegate::Clone() const
{
    return new CAAXPluginDisplayDelegate(valueToText.get());
}

bool CAAXPluginDisplayDelegate::ValueToString(float value, AAX_CString* text) const
{
    if (valueToText != nullptr && text != nullptr)
    {
        char* made = nullptr;
        valueToText->ToText(value, made);
        const std::unique_ptr<char[]> holder(made);
        text->Set(made != nullptr ? made : "");
    }
    return true;
}

bool CAAXPluginDisplayDelegate::StringToValue(const AAX_CString& text, float* value) const
{
    float number = std::numeric_limits<float>::quiet_NaN();
    Mirel::Serialization::ParseNumber(text.Get(), number);
    if (value == nullptr || !std::isfinite(number))
    {
        return false;
    }
    *value = number;
    return true;
}

} // namespace MirelExt::AAXPlugin
