#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/Core/IRefreshTime.h"

#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

// How the attributes of model elements are read. Any thread.

/// The attribute's text; null if it is missing.
const char* FindText(const Containers::CNamedAttributes& attributes, const std::string& name);

/// The same with a text of its own for a missing one.
const char* GetText(const Containers::CNamedAttributes& attributes, const std::string& name,
                    const char* missing = "");

/// True only for the text "true".
bool IsTrue(const Containers::CNamedAttributes& attributes, const std::string& name);

/// True for any text but "false", and if the attribute is missing.
bool IsNotFalse(const Containers::CNamedAttributes& attributes, const std::string& name);

/// The number at the start of the text, with a point whatever the locale. False, with the value left alone,
/// for a missing attribute and a text that holds none. Whole numbers are cut towards zero, and end where an
/// int does.
bool ReadNumber(const Containers::CNamedAttributes& attributes, const std::string& name, float& value);
bool ReadNumber(const Containers::CNamedAttributes& attributes, const std::string& name, double& value);
bool ReadNumber(const Containers::CNamedAttributes& attributes, const std::string& name, int& value);

/// `refresh_time_ms`: the period of an object, unless it is none that a timer could keep.
void ReadRefreshTime(const Containers::CNamedAttributes& attributes, Core::IRefreshTime& object);

/// The parts between the semicolons, empty ones included.
std::vector<std::string> SplitText(const std::string& text);

/// The identifiers of a list, which has none where nothing stands between two semicolons.
std::vector<std::string> SplitIdentifiers(const std::string& text);

} // namespace Mirel::SkinEngine
