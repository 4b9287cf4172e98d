#pragma once

#include "Mirel/Containers/CNamedAttributes.h"

namespace Mirel::SkinEngine
{

/// Takes the elements of a skin in document order: what a running template emits into. Belongs to the thread
/// that parses.
class IParserElementHandler
{
public:
    /// The attributes are the handler's to change; they need not live after the call. False if the element
    /// failed, which does not stop the walk.
    virtual bool StartElement(const char* name, Containers::CNamedAttributes& attributes) = 0;
    virtual bool EndElement(const char* name) = 0;

    /// Told before the start of an element whose attributes would have become longer than CLimits allows:
    /// some of its parameters are not put in.
    virtual void RefuseText(const char* /*name*/) {}

    virtual ~IParserElementHandler() = default;
};

} // namespace Mirel::SkinEngine
