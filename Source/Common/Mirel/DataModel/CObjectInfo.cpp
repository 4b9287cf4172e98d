#include "Mirel/DataModel/CObjectInfo.h"

namespace Mirel::DataModel
{

CObjectInfo::CObjectInfo(const char* name_, const char* comment_) : name(name_), comment(comment_) {}

CObjectInfo::CObjectInfo(const IConstObjectInfo& other) : CObjectInfo(other.GetName(), other.GetComment()) {}

CObjectInfo::CObjectInfo(const CObjectInfo& other)
    : IConstObjectInfo(),
      IObjectInfo(),
      name(other.name),
      comment(other.comment)
{
}

CObjectInfo& CObjectInfo::operator=(const CObjectInfo& other)
{
    if (this != &other)
    {
        CObjectInfo::CopyFrom(other);
    }
    return *this;
}

void CObjectInfo::SetName(const char* newName)
{
    name.Assign(newName);
    changed.Notify();
}

void CObjectInfo::SetComment(const char* newComment)
{
    comment.Assign(newComment);
    changed.Notify();
}

void CObjectInfo::CopyFrom(const IConstObjectInfo& other)
{
    name.Assign(other.GetName());
    comment.Assign(other.GetComment());
    changed.Notify();
}

} // namespace Mirel::DataModel
