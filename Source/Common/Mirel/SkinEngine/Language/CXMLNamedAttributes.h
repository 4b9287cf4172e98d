#pragma once

#include "Mirel/Containers/CNamedAttributes.h"

#include <string>

namespace Mirel::SkinEngine
{

/// Attributes as the XML library delivers them. Belongs to the thread that parses.
class CXMLNamedAttributes : public Containers::CNamedAttributes
{
public:
    /// Stores both, zero-terminated UTF-16, as UTF-8. Null counts as the empty text.
    void Add(const char16_t* name, const char16_t* value);

private:
    std::string narrowName; ///< Kept for its memory.
};

} // namespace Mirel::SkinEngine
