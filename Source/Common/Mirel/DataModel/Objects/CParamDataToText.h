#pragma once

#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"

namespace Mirel::DataModel::Objects
{

/// A CParamValueToText whose pattern may also name the parts of a parameter's description, of which it holds
/// a copy: "{unit}", "{min}", "{max}", "{default}", "{comment}", "{name}", and "{text_value}", the value as
/// the description's own converter prints it. "{text_value} {unit}" shows a value with its unit.
class CParamDataToText : public CParamValueToText
{
public:
    /// Begins with an empty description.
    CParamDataToText(const char* format_, bool metric_, const char* pattern_);

    CParamDataToText(const char* format_, bool metric_, const char* pattern_,
                     const IConstParamInfo& paramInfo_);

    CParamDataToText* Clone() const override { return new CParamDataToText(*this); }

    const IConstParamInfo& GetParamInfo() const { return paramInfo; }

    /// Takes a copy of the description and fires.
    void SetParamInfo(const IConstParamInfo& newParamInfo);

protected:
    void AppendPlaceholder(std::string_view placeholder, float value, std::string& result) const override;

private:
    CParamInfo paramInfo;
};

} // namespace Mirel::DataModel::Objects
