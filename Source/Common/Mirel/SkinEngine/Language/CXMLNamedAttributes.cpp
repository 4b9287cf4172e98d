#include "Mirel/SkinEngine/Language/CXMLNamedAttributes.h"

#include "Mirel/SkinEngine/Language/Utf16.h"

#include <utility>

namespace Mirel::SkinEngine
{

void CXMLNamedAttributes::Add(const char16_t* name, const char16_t* value)
{
    AssignUtf8(name, narrowName);
    std::string narrowValue;
    AssignUtf8(value, narrowValue);
    Assign(narrowName, std::move(narrowValue));
}

} // namespace Mirel::SkinEngine
