#pragma once

namespace Mirel::SkinEngine
{

/// A replay of a template that is suspended at its hole. Destroying it drops what has not been emitted.
class IParsedTemplateInstance
{
public:
    virtual ~IParsedTemplateInstance() = default;

    /// Emits what is left. True once it is finished, false if it is suspended again.
    virtual bool Continue() = 0;
};

} // namespace Mirel::SkinEngine
