#pragma once

#include <list>

namespace Mirel::Layout
{

struct CLayoutItem;

/// Stands on the stack around everything in the layout that calls listeners. Cells that are removed meanwhile
/// are destroyed when the outermost scope ends: a listener may remove the very cell whose event it hears, or
/// a group around it, and the callers beneath still use them.
class CLayoutScope
{
public:
    CLayoutScope();
    CLayoutScope(const CLayoutScope&) = delete;
    CLayoutScope& operator=(const CLayoutScope&) = delete;
    ~CLayoutScope();

    /// Takes an item out of its list and destroys it: at once, or with the outermost scope of this thread.
    static void Bury(std::list<CLayoutItem>& items, std::list<CLayoutItem>::iterator item);

private:
    std::list<CLayoutItem> buried;
};

} // namespace Mirel::Layout
