#include "Mirel/DataModel/Objects/CMultipleCaptureCurveLink.h"
#include "Mirel/DataModel/Objects/CMultipleCaptureParamLink.h"
#include "Mirel/DataModel/Objects/CMultipleCaptureStringLink.h"
#include "Mirel/DataModel/Objects/MuxFunction.h"
#include "Mirel/Math/TFunctionsOperation.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/LinkAttributes.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"
#include "Mirel/SkinEngine/Model/TModelMultiLink.h"

#include <optional>
#include <string_view>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;

namespace
{

/// Switches a link on when all its objects are there, so that it does not write what the first few make.
class CEnableCommand : public CModelCommand
{
public:
    CEnableCommand(Core::IEnable& link_, bool enabled_) : link(link_), enabled(enabled_) {}

    bool Execute() override
    {
        link.Enable(enabled);
        return true;
    }

private:
    Core::IEnable& link;
    bool enabled;
};

/// `from` and `to`. False, with a message, for a list that is too long.
template <class Source, class Target, class Link>
bool ConnectLists(CModelBuild& build, const CNamedAttributes& attributes, Link& link)
{
    const auto from = SplitIdentifiers(GetText(attributes, "from"));
    const auto to = SplitIdentifiers(GetText(attributes, "to"));
    if (from.size() > maxLinkEnds || to.size() > maxLinkEnds)
    {
        return build.Fail("Cannot create link, too many identifiers in a list.");
    }
    for (const std::string& id : from)
    {
        build.Connect<const Source>(link.AddPlace(), &Link::CPlace::Set, id.c_str());
    }
    for (const std::string& id : to)
    {
        build.ConnectByRef<Target>(link, &Link::ConnectTarget, &Link::DisconnectTarget, id.c_str());
    }
    return true;
}

void QueueEnable(CModelBuild& build, const CNamedAttributes& attributes, Core::IEnable& link)
{
    build.QueueLink(std::make_unique<CEnableCommand>(link, IsNotFalse(attributes, "enabled")));
}

std::optional<float> ReadTrigger(const CNamedAttributes& attributes, const char* name)
{
    if (FindText(attributes, name) == nullptr)
    {
        return std::nullopt;
    }
    float value = 0.0F;
    ReadNumber(attributes, name, value);
    return value;
}

/// Null for a name that is none.
CMultipleCaptureCurveLink::Operation* CreateOperation(std::string_view name)
{
    using namespace Math::FunctionsLibrary;
    if (name == "+")
    {
        return new Math::TFunctionsOperation<Sum>();
    }
    if (name == "-")
    {
        return new Math::TFunctionsOperation<Difference>();
    }
    if (name == "/")
    {
        return new Math::TFunctionsOperation<Division>();
    }
    return name == "*" ? new Math::TFunctionsOperation<Product>() : nullptr;
}

} // namespace

bool BuildParamMultiLink(CModelBuild& build, const CNamedAttributes& attributes)
{
    auto& link = build.OwnLink(std::make_unique<TModelMultiLink<CMultipleCaptureParamLink>>());
    ReadTriggerCondition(attributes, link);
    link.SetFunction(MuxFunctionFromName(FindText(attributes, "mux_function")));
    link.SetNormalized(IsTrue(attributes, "normalized"));
    link.SetTriggerMin(ReadTrigger(attributes, "trigger_min"));
    link.SetTriggerMax(ReadTrigger(attributes, "trigger_max"));
    const bool reversible = ReadReverse(build, attributes, link);
    // The switch is made while the link is in the state that it will have.
    const bool switchable = ReadEnabled(build, attributes, link);
    link.Enable(false);
    const bool connected = ConnectLists<IConstCaptureParam, ICaptureParam>(build, attributes, link);
    QueueEnable(build, attributes, link);
    return connected && reversible && switchable;
}

bool BuildCurveMultiLink(CModelBuild& build, const CNamedAttributes& attributes)
{
    auto& link = build.OwnLink(std::make_unique<TModelMultiLink<CMultipleCaptureCurveLink>>());
    ReadTriggerCondition(attributes, link);
    link.SetOperation(CreateOperation(GetText(attributes, "mux_function")), true);
    const bool connected = ConnectLists<IConstCaptureCurve, ICaptureCurve>(build, attributes, link);
    QueueEnable(build, {}, link);
    return connected;
}

bool BuildStringMultiLink(CModelBuild& build, const CNamedAttributes& attributes)
{
    auto& link = build.OwnLink(std::make_unique<TModelMultiLink<CMultipleCaptureStringLink>>());
    ReadTriggerCondition(attributes, link);
    link.SetSeparator(FindText(attributes, "separator"));
    const bool connected = ConnectLists<IConstCaptureString, ICaptureString>(build, attributes, link);
    QueueEnable(build, {}, link);
    return connected;
}

} // namespace Mirel::SkinEngine
