#include "Mirel/DataModel/Objects/CCurveInfo.h"

#include <utility>

namespace Mirel::DataModel::Objects
{

CCurveInfo::CCurveInfo() : CCurveInfo(CParamInfo(), CParamInfo(), "", "") {}

CCurveInfo::CCurveInfo(const IConstParamInfo& xInfo_, const IConstParamInfo& yInfo_, const char* name_,
                       const char* comment_, const Math::IFunction* defaultFunction_)
    : xInfo(xInfo_),
      yInfo(yInfo_),
      name(name_),
      comment(comment_)
{
    defaultFunction.SetExplicit(defaultFunction_);
    ConnectAxes();
}

CCurveInfo::CCurveInfo(const IConstCurveInfo& other)
    : CCurveInfo(other.GetXInfo(), other.GetYInfo(), other.GetName(), other.GetComment(),
                 other.GetExplicitDefaultFunction())
{
}

CCurveInfo::CCurveInfo(const CCurveInfo& other) : CCurveInfo(static_cast<const IConstCurveInfo&>(other)) {}

CCurveInfo& CCurveInfo::operator=(const CCurveInfo& other)
{
    if (this != &other)
    {
        CCurveInfo::CopyFrom(other);
    }
    return *this;
}

const Math::IFunction& CCurveInfo::GetDefaultFunction() const
{
    return defaultFunction.Get(yInfo.GetDefault());
}

void CCurveInfo::SetName(const char* newName)
{
    name.Assign(newName);
    changed.Notify();
}

void CCurveInfo::SetComment(const char* newComment)
{
    comment.Assign(newComment);
    changed.Notify();
}

void CCurveInfo::SetDefaultFunction(const Math::IFunction* function)
{
    defaultFunction.SetExplicit(function);
    changed.Notify();
}

void CCurveInfo::CopyFrom(const IConstCurveInfo& other)
{
    // The axes tell their own listeners; this description fires once, when all is taken over.
    const bool copyingOutside = std::exchange(copying, true);
    xInfo.CopyFrom(other.GetXInfo());
    yInfo.CopyFrom(other.GetYInfo());
    copying = copyingOutside;
    comment.Assign(other.GetComment());
    name.Assign(other.GetName());
    defaultFunction.SetExplicit(other.GetExplicitDefaultFunction());
    changed.Notify();
}

void CCurveInfo::ConnectAxes()
{
    xInfo.GetChangedEventProvider().Connect(axisChanged);
    yInfo.GetChangedEventProvider().Connect(axisChanged);
}

void CCurveInfo::OnAxisChanged()
{
    if (!copying)
    {
        defaultFunction.DropConstant();
        changed.Notify();
    }
}

} // namespace Mirel::DataModel::Objects
