#pragma once

#include "Mirel/Containers/CNamedAttributes.h"

namespace Mirel::SkinEngine
{

class IParsedTemplateInstance;
class IParserElementHandler;

/// A recorded tree of elements with parameters, which can be replayed any number of times. Holds copies of
/// all its texts, so that it outlives the parser that recorded it. Belongs to one thread at a time.
class IParsedTemplate
{
public:
    virtual ~IParsedTemplate() = default;

    /// Replays the tree into the handler. The parameters are the defaults of the template, overwritten by the
    /// attributes given. Null once the tree ran to its end. A tree with a hole stops there: the caller then
    /// owns the instance that comes back, and continues it behind the hole, while handler and template live.
    virtual IParsedTemplateInstance* Instantiate(const Containers::CNamedAttributes& attributes,
                                                 IParserElementHandler& handler) = 0;

    /// Replays that are running at this moment; one that is suspended at its hole does not count.
    virtual int GetInstanceCount() const = 0;
};

} // namespace Mirel::SkinEngine
