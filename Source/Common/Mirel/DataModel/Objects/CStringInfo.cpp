#include "Mirel/DataModel/Objects/CStringInfo.h"

namespace Mirel::DataModel::Objects
{

CStringInfo::CStringInfo(const char* name_, const char* comment_, const char* defaultText_)
    : name(name_),
      comment(comment_),
      defaultText(defaultText_)
{
}

CStringInfo::CStringInfo(const IConstStringInfo& other)
    : CStringInfo(other.GetName(), other.GetComment(), other.GetDefault())
{
}

CStringInfo::CStringInfo(const CStringInfo& other) : CStringInfo(static_cast<const IConstStringInfo&>(other))
{
}

CStringInfo& CStringInfo::operator=(const CStringInfo& other)
{
    if (this != &other)
    {
        CStringInfo::CopyFrom(other);
    }
    return *this;
}

void CStringInfo::SetName(const char* newName)
{
    name.Assign(newName);
    changed.Notify();
}

void CStringInfo::SetComment(const char* newComment)
{
    comment.Assign(newComment);
    changed.Notify();
}

void CStringInfo::SetDefault(const char* newText)
{
    defaultText.Assign(newText);
    changed.Notify();
}

void CStringInfo::CopyFrom(const IConstStringInfo& other)
{
    name.Assign(other.GetName());
    comment.Assign(other.GetComment());
    defaultText.Assign(other.GetDefault());
    changed.Notify();
}

} // namespace Mirel::DataModel::Objects
