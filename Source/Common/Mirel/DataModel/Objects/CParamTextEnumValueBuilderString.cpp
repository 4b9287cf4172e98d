#include "Mirel/DataModel/Objects/CParamTextEnumValueBuilderString.h"

#include "Mirel/Core/Numeric.h"

namespace Mirel::DataModel::Objects
{

CParamTextEnumValueBuilderString::~CParamTextEnumValueBuilderString()
{
    if (IsConverterInUse())
    {
        param->GetInfo().SetValueToText(names.Clone(), true);
    }
}

void CParamTextEnumValueBuilderString::OnTextStored(const char* storedText)
{
    if (param == nullptr)
    {
        return;
    }
    const int index = Core::TruncateToInt32(static_cast<double>(param->GetValue()) + 0.5);
    if (names.SetName(index, storedText))
    {
        param->GetInfo().SetValueToText(&names, false);
    }
}

bool CParamTextEnumValueBuilderString::IsConverterInUse() const
{
    return param != nullptr && &param->GetInfo().GetValueToText() == &names;
}

} // namespace Mirel::DataModel::Objects
