#include "Mirel/DataModel/Objects/CCaptureCurveLink.h"
#include "Mirel/DataModel/Objects/CCaptureParamConnection.h"
#include "Mirel/DataModel/Objects/CCaptureParamLink.h"
#include "Mirel/DataModel/Objects/CCaptureParamTimeLink.h"
#include "Mirel/DataModel/Objects/CCaptureParamToStringLink.h"
#include "Mirel/DataModel/Objects/CCaptureStringLink.h"
#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/LinkAttributes.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"

#include <string>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;

namespace
{

/// `from` and `to`.
template <class Source, class Target, class Link>
void ConnectEnds(CModelBuild& build, const CNamedAttributes& attributes, Link& link)
{
    build.Connect<const Source>(link, &Link::SetSource, GetText(attributes, "from"));
    build.Connect<Target>(link, &Link::SetTarget, GetText(attributes, "to"));
}

/// `formula`, or else `response_curve`. False for a formula that is none, with a message.
bool ReadLinkResponse(CModelBuild& build, const CNamedAttributes& attributes, CCaptureParamLink& link)
{
    const char* formula = FindText(attributes, "formula");
    if (formula == nullptr)
    {
        link.SetResponse(ReadResponse(attributes).function, false);
        return true;
    }
    auto function = CompileFunction(formula, GetText(attributes, "variable", "x"));
    if (function == nullptr)
    {
        return build.Fail("Cannot create curve for link, invalid formula.");
    }
    link.SetResponse(function.release(), true);
    return true;
}

void ReadValueFormat(const CModelBuild& build, const CNamedAttributes& attributes,
                     CParamDataToText& converter)
{
    const char* text = FindText(attributes, "value_format");
    if (text == nullptr)
    {
        return;
    }
    if (std::string_view(text).find_first_not_of(".+- 0123456789") != std::string_view::npos)
    {
        const char* element = build.GetParser().GetCurrentElementName();
        build.Warn(std::string(element == nullptr ? "" : element) + ", '" + text +
                   "' : Invalid value format. Using default.");
        return;
    }
    const std::string format = std::string("%") + text + "f";
    const std::string fault = CParamDataToText::DescribeFormatFault(format.c_str());
    if (!fault.empty())
    {
        build.Warn(fault);
    }
    converter.SetFormat(format.c_str());
}

/// A link to hand values on as they are.
template <class Link, class Source, class Target>
bool BuildPlainLink(CModelBuild& build, const CNamedAttributes& attributes)
{
    Link& link = build.OwnLink(std::make_unique<Link>());
    ReadTriggerCondition(attributes, link);
    ConnectEnds<Source, Target>(build, attributes, link);
    return ReadEnabled(build, attributes, link);
}

} // namespace

bool BuildParamLink(CModelBuild& build, const CNamedAttributes& attributes)
{
    auto& link = build.OwnLink(std::make_unique<CCaptureParamLink>());
    ReadTriggerCondition(attributes, link);
    ReadMode(attributes, link);
    link.SetNormalized(IsTrue(attributes, "normalized"));
    bool succeeded = ReadLinkResponse(build, attributes, link);
    ConnectEnds<IConstCaptureParam, ICaptureParam>(build, attributes, link);
    succeeded = ReadReverse(build, attributes, link) && succeeded;
    succeeded =
        build.AddSwitch(
            GetText(attributes, "id"), {".mode", "normal;diff", "Mode"}, [&link] { return link.IsDiff(); },
            [&link](bool on) { link.SetDiff(on); }, link.GetChangedEventProvider()) &&
        succeeded;
    return ReadEnabled(build, attributes, link) && succeeded;
}

bool BuildParamToStringLink(CModelBuild& build, const CNamedAttributes& attributes)
{
    auto& link = build.OwnLink(std::make_unique<CCaptureParamToStringLink>());
    ReadTriggerCondition(attributes, link);
    CParamDataToText& converter = link.GetConverter();
    ReadValueFormat(build, attributes, converter);
    if (const char* content = FindText(attributes, "content"))
    {
        converter.SetPattern(content);
    }
    converter.SetMetric(IsTrue(attributes, "value_suffix"));
    int digits = -1;
    ReadNumber(attributes, "significant_digits", digits);
    converter.SetSignificantDigits(digits);
    ConnectEnds<IConstCaptureParam, ICaptureString>(build, attributes, link);
    return ReadEnabled(build, attributes, link);
}

bool BuildParamConnection(CModelBuild& build, const CNamedAttributes& attributes)
{
    auto& connection = build.OwnLink(std::make_unique<CCaptureParamConnection>());
    ReadMode(attributes, connection);
    connection.SetNormalized(IsTrue(attributes, "normalized"));
    connection.SetResponse(ReadResponse(attributes));
    connection.SetAllowsFeedback(IsNotFalse(attributes, "constraint"));
    build.Connect<ICaptureParam>(connection, &CCaptureParamConnection::SetFirst, GetText(attributes, "id1"));
    build.Connect<ICaptureParam>(connection, &CCaptureParamConnection::SetSecond, GetText(attributes, "id2"));
    const bool reversible = ReadReverse(build, attributes, connection);
    return ReadEnabled(build, attributes, connection) && reversible;
}

bool BuildParamAnimatedLink(CModelBuild& build, const CNamedAttributes& attributes)
{
    auto& link = build.OwnLink(
        std::make_unique<CCaptureParamTimeLink>(build.GetServices().timerProvider, build.GetTickSource()));
    ReadTriggerCondition(attributes, link);
    double duration = 0.0;
    ReadNumber(attributes, "duration_ms", duration);
    link.SetDuration(duration);
    ReadRefreshTime(attributes, link);
    ConnectEnds<IConstCaptureParam, ICaptureParam>(build, attributes, link);
    const bool timed = build.AddRefreshTime(GetText(attributes, "id"), link);
    return ReadEnabled(build, attributes, link) && timed;
}

bool BuildCurveLink(CModelBuild& build, const CNamedAttributes& attributes)
{
    return BuildPlainLink<CCaptureCurveLink, IConstCaptureCurve, ICaptureCurve>(build, attributes);
}

bool BuildStringLink(CModelBuild& build, const CNamedAttributes& attributes)
{
    return BuildPlainLink<CCaptureStringLink, IConstCaptureString, ICaptureString>(build, attributes);
}

} // namespace Mirel::SkinEngine
