#pragma once

#include "Mirel/Containers/CNamedAttributes.h"

namespace Mirel::SkinEngine
{

/// Sees the elements as handlers receive them: after variables, definitions, templates and repeats, those
/// without a handler included and the language's own left out. Starts and ends come in pairs.
class IElementListener
{
public:
    virtual void OnElementStart(const char* name, const Containers::CNamedAttributes& attributes) = 0;
    virtual void OnElementEnd(const char* name) = 0;
    virtual ~IElementListener() = default;
};

} // namespace Mirel::SkinEngine
