#pragma once

#include "Mirel/DataModel/Objects/ResponseCurves.h"
#include "Mirel/SkinEngine/Model/CModelBuild.h"

#include <string_view>

namespace Mirel::SkinEngine
{

// Attributes that several kinds of link have, each with the switch that shows it. False if a switch could not
// be added: its identifier is taken.

/// `trigger_condition`: "modify", as a missing one, or anything else for every change of the link as well.
template <class Link>
void ReadTriggerCondition(const Containers::CNamedAttributes& attributes, Link& link)
{
    link.SetOnModifyOnly(std::string_view(GetText(attributes, "trigger_condition", "modify")) == "modify");
}

/// `enabled`.
template <class Link>
bool ReadEnabled(CModelBuild& build, const Containers::CNamedAttributes& attributes, Link& link)
{
    link.Enable(IsNotFalse(attributes, "enabled"));
    return build.AddEnabledSwitch(GetText(attributes, "id"), link);
}

/// `reverse`.
template <class Link>
bool ReadReverse(CModelBuild& build, const Containers::CNamedAttributes& attributes, Link& link)
{
    link.SetReverse(IsTrue(attributes, "reverse"));
    return build.AddSwitch(
        GetText(attributes, "id"), {".reverse", "normal;reverse", "Reverse"},
        [&link] { return link.IsReverse(); }, [&link](bool on) { link.SetReverse(on); },
        link.GetChangedEventProvider());
}

/// `mode`, for which not every kind has a switch.
template <class Link>
void ReadMode(const Containers::CNamedAttributes& attributes, Link& link)
{
    link.SetDiff(std::string_view(GetText(attributes, "mode")) == "diff");
}

/// `response_curve`.
inline DataModel::Objects::SResponsePair ReadResponse(const Containers::CNamedAttributes& attributes)
{
    return DataModel::Objects::GetResponsePair(
        DataModel::Objects::ResponseCodeFromModelName(FindText(attributes, "response_curve")));
}

} // namespace Mirel::SkinEngine
