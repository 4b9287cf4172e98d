#pragma once

#include "Mirel/Containers/CNamedAttributes.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

class IElementListener;

/// Tells a listener of the elements of a walk, and remembers which of them are open, so that starts and ends
/// come in pairs whatever breaks off. Elements of the language itself and refused ones are open, but untold.
class CListenedElements
{
public:
    /// Not owned; null for none. Elements that start without a listener are not remembered.
    void SetListener(IElementListener* newListener) { listener = newListener; }

    void Start(const char* name, const Containers::CNamedAttributes& attributes);

    /// Its end comes all the same.
    void StartRefused(const char* name) { Remember(name, false); }

    bool IsInnermost(const char* name) const { return !open.empty() && open.back().name == name; }

    /// Ends the innermost; there must be one.
    void End();

    std::size_t GetDepth() const { return open.size(); }

    /// Ends what has started since there were so many.
    void EndDownTo(std::size_t depth);

    /// Forgets what is open, without an end.
    void Clear() { open.clear(); }

private:
    struct CElement
    {
        std::string name;
        bool told;
    };

    void Remember(const char* name, bool told);

    IElementListener* listener = nullptr;
    std::vector<CElement> open;
};

} // namespace Mirel::SkinEngine
