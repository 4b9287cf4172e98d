#pragma once

#include "Mirel/SkinEngine/Model/ISkinModel.h"

#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

/// An object of a model in words: what kind it is and what it holds at the moment.
struct SObjectDescription
{
    std::string id;
    std::string kind; ///< "param", "curve", "surface", "string", "action", "collection", "info" or "object".
    bool writable = false;
    std::string value; ///< The value as the object's description prints it; samples of a function.
    std::string info;  ///< The description: name, range, unit.
};

/// In the order of addition. GUI thread only.
std::vector<SObjectDescription> DescribeObjects(const ISkinModel& model);

/// One line of text for an object.
std::string ToLine(const SObjectDescription& object);

} // namespace Mirel::SkinEngine
