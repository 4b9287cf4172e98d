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
}

void CEnumValuesString::OnTextStored(const char* storedText)
{
    paramInfo.SetValueToText(new CEnumToText(SplitText(storedText), paramInfo.GetMin()), true);
}

} // namespace Mirel::SkinEngine
