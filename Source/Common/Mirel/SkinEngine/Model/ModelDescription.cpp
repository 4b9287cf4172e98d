#include "Mirel/SkinEngine/Model/ModelDescription.h"

#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/SkinEngine/Model/CEnumValuesString.h"

#include <algorithm>
#include <string_view>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;

namespace
{

void ReadRange(const CNamedAttributes& attributes, const std::string& prefix, CParamInfo& info)
{
    if (info.GetType() == ValueKindBoolean || info.GetType() == ValueKindSwitch)
    {
        info.SetMin(0.0F);
        info.SetMax(1.0F);
    }
    float number = 0.0F;
    if (ReadNumber(attributes, prefix + "max", number))
    {
        info.SetMax(number);
    }
    if (ReadNumber(attributes, prefix + "min", number))
    {
        info.SetMin(number);
    }
    if (ReadNumber(attributes, prefix + "default", number))
    {
        info.SetDefault(number);
    }
}

void ReadTexts(const CNamedAttributes& attributes, const std::string& prefix, CParamInfo& info)
{
    if (const char* unit = FindText(attributes, prefix + "unit"))
    {
        info.SetUnit(unit);
    }
    if (const char* name = FindText(attributes, prefix + "name"))
    {
        info.SetName(name);
    }
    if (const char* comment = FindText(attributes, prefix + "comment"))
    {
        info.SetComment(comment);
    }
}

bool ReadEnumeration(CModelBuild& build, const CNamedAttributes& attributes, const std::string& prefix,
                     const std::string& values, CParamInfo& info)
{
    const auto separators = static_cast<float>(std::count(values.begin(), values.end(), ';'));
    const float range = info.GetMax() - info.GetMin();
    if (FindText(attributes, prefix + "max") != nullptr && (range < separators || range > separators))
    {
        build.Warn("the number of values in the enumeration list is different from specified min/max range");
    }
    info.SetMax(info.GetMin() + separators);
    auto names = std::make_unique<CEnumValuesString>(info);
    names->SetValue(values.c_str());
    const char* id = GetText(attributes, "id");
    return *id == '\0' || build.GetModel().AddString((id + prefix + ".enum_values").c_str(), names.release(),
                                                     allObjectFlags, true);
}

} // namespace

bool ReadDescription(CModelBuild& build, const CNamedAttributes& attributes, const char* prefix,
                     CParamInfo& info)
{
    const std::string start = prefix;
    const char* type = FindText(attributes, start + "type");
    info.SetType(ValueKindFromName(type));
    info.SetValueToText(nullptr, true); // The plain converter of the type that it has now.
    ReadRange(attributes, start, info);
    ReadTexts(attributes, start, info);
    const char* values = FindText(attributes, start + "enum_values");
    const bool isEnumeration = type != nullptr && std::string_view(type) == "enumeration";
    return !isEnumeration || values == nullptr || ReadEnumeration(build, attributes, start, values, info);
}

} // namespace Mirel::SkinEngine
