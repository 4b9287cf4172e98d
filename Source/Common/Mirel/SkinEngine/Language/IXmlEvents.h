#pragma once

#include <cstddef>
#include <string>

namespace Mirel::SkinEngine
{

class CXMLNamedAttributes;

/// What a file's reader meets, in order. Belongs to the thread that reads.
class IXmlEvents
{
public:
    enum class EFault
    {
        Warning,
        Error,
        FatalError
    };

    /// The rest of the file is not read after a false from one of the two.
    virtual bool OnStartTag(const std::string& name, CXMLNamedAttributes& attributes) = 0;
    virtual bool OnEndTag(const std::string& name) = 0;

    virtual void OnFault(EFault fault, std::size_t line, const std::string& message) = 0;

    virtual ~IXmlEvents() = default;
};

} // namespace Mirel::SkinEngine
