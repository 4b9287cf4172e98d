#pragma once

#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/SkinEngine/Model/CModelBuild.h"

namespace Mirel::SkinEngine
{

/// Reads the attributes of one description, each with the prefix before its name ("" or "x_", "y_", "z_"):
/// `type`, `max`, `min`, `default`, `unit`, `name`, `comment`, and `enum_values` of an enumeration. What is
/// missing stays as it is. The names of an enumeration become an object of the model as well, which writes to
/// this very description: it must live as long as the model. False if the identifier of that is taken.
bool ReadDescription(CModelBuild& build, const Containers::CNamedAttributes& attributes, const char* prefix,
                     DataModel::Objects::CParamInfo& info);

/// The name and comment of a description that has no more to it, such as a curve's.
template <class Info>
void ReadNameAndComment(const Containers::CNamedAttributes& attributes, Info& info)
{
    if (const char* name = FindText(attributes, "name"))
    {
        info.SetName(name);
    }
    if (const char* comment = FindText(attributes, "comment"))
    {
        info.SetComment(comment);
    }
}

} // namespace Mirel::SkinEngine
