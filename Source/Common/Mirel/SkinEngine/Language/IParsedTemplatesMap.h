#pragma once

namespace Mirel::SkinEngine
{

class IParsedTemplate;

/// The templates of a parser by their id.
class IParsedTemplatesMap
{
public:
    virtual ~IParsedTemplatesMap() = default;

    /// Owned by the map; null for an unknown id.
    virtual IParsedTemplate* Find(const char* id) const = 0;

    /// Takes the template out; the caller owns it. Null for an unknown id.
    virtual IParsedTemplate* Detach(const char* id) = 0;

    virtual void Clear() = 0;
};

} // namespace Mirel::SkinEngine
