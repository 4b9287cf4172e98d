#include "Mirel/DataModel/Objects/CProductInfo.h"

namespace Mirel::DataModel::Objects
{

CProductInfo::CProductInfo(const char* name_, const char* version_, const char* legal_,
                           const char* description_)
    : name(name_),
      version(version_),
      legal(legal_),
      description(description_)
{
}

CProductInfo::CProductInfo(const IConstProductInfo& other)
    : CProductInfo(other.GetName(), other.GetVersion(), other.GetLegal(), other.GetDescription())
{
}

CProductInfo::CProductInfo(const CProductInfo& other)
    : CProductInfo(static_cast<const IConstProductInfo&>(other))
{
}

CProductInfo& CProductInfo::operator=(const CProductInfo& other)
{
    if (this != &other)
    {
        CProductInfo::CopyFrom(other);
    }
    return *this;
}

void CProductInfo::CopyFrom(const IConstProductInfo& other)
{
    name.Assign(other.GetName());
    version.Assign(other.GetVersion());
    legal.Assign(other.GetLegal());
    description.Assign(other.GetDescription());
    changed.Notify();
}

} // namespace Mirel::DataModel::Objects
