#include "Mirel/DataModel/Objects/CParamDataToText.h"

#include <memory>

namespace Mirel::DataModel::Objects
{

namespace
{

std::string ToString(const IParamValueToText& converter, float value)
{
    char* text = nullptr;
    converter.ToText(value, text);
    const std::unique_ptr<char[]> owner(text);
    return text == nullptr ? "" : text;
}

void AppendText(const char* text, std::string& result)
{
    if (text != nullptr)
    {
        result += text;
    }
}

} // namespace

CParamDataToText::CParamDataToText(const char* format_, bool metric_, const char* pattern_)
    : CParamValueToText(format_, metric_, pattern_)
{
}

CParamDataToText::CParamDataToText(const char* format_, bool metric_, const char* pattern_,
                                   const IConstParamInfo& paramInfo_)
    : CParamValueToText(format_, metric_, pattern_),
      paramInfo(paramInfo_)
{
}

void CParamDataToText::SetParamInfo(const IConstParamInfo& newParamInfo)
{
    paramInfo.CopyFrom(newParamInfo);
    NotifyChanged();
}

void CParamDataToText::AppendPlaceholder(std::string_view placeholder, float value, std::string& result) const
{
    if (placeholder == "{unit}")
    {
        AppendText(paramInfo.GetUnit(), result);
    }
    else if (placeholder == "{min}")
    {
        result += NumberToText(paramInfo.GetMin());
    }
    else if (placeholder == "{max}")
    {
        result += NumberToText(paramInfo.GetMax());
    }
    else if (placeholder == "{default}")
    {
        result += NumberToText(paramInfo.GetDefault());
    }
    else if (placeholder == "{comment}")
    {
        AppendText(paramInfo.GetComment(), result);
    }
    else if (placeholder == "{name}")
    {
        AppendText(paramInfo.GetName(), result);
    }
    else if (placeholder == "{text_value}")
    {
        result += ToString(paramInfo.GetValueToText(), value);
    }
    else
    {
        CParamValueToText::AppendPlaceholder(placeholder, value, result);
    }
}

} // namespace Mirel::DataModel::Objects
