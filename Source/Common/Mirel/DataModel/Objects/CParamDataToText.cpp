#include "Mirel/DataModel/Objects/CParamDataToText.h"

#include "Mirel/DataModel/Objects/ValueToString.h"

namespace Mirel::DataModel::Objects
{

namespace
{

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
        result += ValueToString(paramInfo.GetValueToText(), value);
    }
    else
    {
        CParamValueToText::AppendPlaceholder(placeholder, value, result);
    }
}

} // namespace Mirel::DataModel::Objects
