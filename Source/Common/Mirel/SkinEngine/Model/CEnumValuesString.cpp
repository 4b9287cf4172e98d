#include "Mirel/SkinEngine/Model/CEnumValuesString.h"

#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/SkinEngine/Model/ModelAttributes.h"

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;

CEnumValuesString::CEnumValuesString(CParamInfo& info_)
    : CCaptureString(CStringInfo("Enum Values")),
      paramInfo(info_)
{
    SetNames("");
}

void CEnumValuesString::OnTextStored(const char* storedText)
{
    SetNames(storedText);
}

void CEnumValuesString::SetNames(const char* names)
{
    paramInfo.SetValueToText(new CEnumToText(SplitText(names), paramInfo.GetMin()), true);
}

} // namespace Mirel::SkinEngine
