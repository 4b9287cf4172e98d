#include "Mirel/DataModel/Objects/CSurfaceInfo.h"

#include <utility>

namespace Mirel::DataModel::Objects
{

CSurfaceInfo::CSurfaceInfo() : CSurfaceInfo(CParamInfo(), CParamInfo(), CParamInfo(), "", "") {}

CSurfaceInfo::CSurfaceInfo(const IConstParamInfo& xInfo_, const IConstParamInfo& yInfo_,
                           const IConstParamInfo& zInfo_, const char* name_, const char* comment_,
                           const Math::IBinaryFunction* defaultFunction_)
    : xInfo(xInfo_),
      yInfo(yInfo_),
      zInfo(zInfo_),
      name(name_),
      comment(comment_)
{
    defaultFunction.SetExplicit(defaultFunction_);
    ConnectAxes();
}

CSurfaceInfo::CSurfaceInfo(const IConstSurfaceInfo& other)
    : CSurfaceInfo(other.GetXInfo(), other.GetYInfo(), other.GetZInfo(), other.GetName(), other.GetComment(),
                   other.GetExplicitDefaultFunction())
{
}

CSurfaceInfo::CSurfaceInfo(const CSurfaceInfo& other)
    : CSurfaceInfo(static_cast<const IConstSurfaceInfo&>(other))
{
}

CSurfaceInfo& CSurfaceInfo::operator=(const CSurfaceInfo& other)
{
    if (this != &other)
    {
        CSurfaceInfo::CopyFrom(other);
    }
    return *this;
}

const Math::IBinaryFunction& CSurfaceInfo::GetDefaultFunction() const
{
    return defaultFunction.Get(zInfo.GetDefault());
}

void CSurfaceInfo::SetName(const char* newName)
{
    name.Assign(newName);
    changed.Notify();
}

void CSurfaceInfo::SetComment(const char* newComment)
{
    comment.Assign(newComment);
    changed.Notify();
}

void CSurfaceInfo::SetDefaultFunction(const Math::IBinaryFunction* function)
{
    defaultFunction.SetExplicit(function);
    changed.Notify();
}

void CSurfaceInfo::CopyFrom(const IConstSurfaceInfo& other)
{
    // The axes tell their own listeners; this description fires once, when all is taken over.
    const bool copyingOutside = std::exchange(copying, true);
    xInfo.CopyFrom(other.GetXInfo());
    yInfo.CopyFrom(other.GetYInfo());
    zInfo.CopyFrom(other.GetZInfo());
    copying = copyingOutside;
    comment.Assign(other.GetComment());
    name.Assign(other.GetName());
    defaultFunction.SetExplicit(other.GetExplicitDefaultFunction());
    changed.Notify();
}

void CSurfaceInfo::ConnectAxes()
{
    xInfo.GetChangedEventProvider().Connect(axisChanged);
    yInfo.GetChangedEventProvider().Connect(axisChanged);
    zInfo.GetChangedEventProvider().Connect(axisChanged);
}

void CSurfaceInfo::OnAxisChanged()
{
    if (!copying)
    {
        defaultFunction.DropConstant();
        changed.Notify();
    }
}

} // namespace Mirel::DataModel::Objects
