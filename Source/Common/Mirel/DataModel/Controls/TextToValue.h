#pragma once

#include "Mirel/DataModel/Objects/IConstParamInfo.h"

#include <string_view>

namespace Mirel::DataModel::Controls
{

/// Reads a text that a user typed for a described value; the way back from the description's converter.
///
/// A number, with a point whatever the locale, may be followed by a metric prefix and by the unit in any
/// case, or by what the converter itself prints after a number. A whole kind also takes the text of one of
/// its values, such as the name of an enumeration, which goes before the number where a name is one. Blanks
/// around the parts do not count. The value is of the description's kind, but not clamped to its range.
/// False, and the value left alone, for any other text.
bool TextToValue(const Objects::IConstParamInfo& info, std::string_view text, float& value);

} // namespace Mirel::DataModel::Controls
