#include "Mirel/Layout/CLayoutScope.h"

#include "Mirel/Layout/CLayoutItem.h"

namespace Mirel::Layout
{

namespace
{

// A plain pointer for each thread: editors of one process may be laid out on threads of their own, and a
// destructor per thread would keep an unloaded module in memory.
thread_local CLayoutScope* outermost = nullptr;

} // namespace

CLayoutScope::CLayoutScope()
{
    if (outermost == nullptr)
    {
        outermost = this;
    }
}

CLayoutScope::~CLayoutScope()
{
    if (outermost != this)
    {
        return;
    }
    // A group that is destroyed here buries its own cells behind it.
    while (!buried.empty())
    {
        std::list<CLayoutItem> next;
        next.splice(next.end(), buried, buried.begin());
    }
    outermost = nullptr;
}

void CLayoutScope::Bury(std::list<CLayoutItem>& items, std::list<CLayoutItem>::iterator item)
{
    std::list<CLayoutItem> alone;
    std::list<CLayoutItem>& grave = outermost == nullptr ? alone : outermost->buried;
    grave.splice(grave.end(), items, item);
}

} // namespace Mirel::Layout
