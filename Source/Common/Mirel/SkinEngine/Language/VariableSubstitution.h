#pragma once

#include "Mirel/Containers/CNamedAttributes.h"

#include <string>

namespace Mirel::SkinEngine
{

/// Puts the values of variables in the place of their names between two "$". A name that is not known stays
/// as it stands, and its closing "$" may open the next name; values are not looked at again. False, with the
/// text as it was, if it would become longer than CLimits::maxAttributeBytes.
bool SubstituteVariables(const Containers::CNamedAttributes& variables, std::string& text);

/// The same for all values. False if a value stayed as it was since it, or all values together, would have
/// become too long.
bool SubstituteVariables(const Containers::CNamedAttributes& variables,
                         Containers::CNamedAttributes& attributes);

} // namespace Mirel::SkinEngine
