#include "Mirel/DataModel/CCascadeShare.h"

#include "Mirel/DataModel/Limits.h"

#include <utility>

namespace Mirel::DataModel
{

namespace
{

struct SCascade
{
    std::uint64_t number = 0;
    int nested = 0;
    int updates = 0;
    bool refused = false;
};

thread_local SCascade current;

} // namespace

CCascadeShare::CUpdate::CUpdate(CCascadeShare& share)
{
    SCascade& running = current;
    if (running.nested == 0)
    {
        ++running.number;
        running.updates = 0;
    }
    if (share.cascade != running.number)
    {
        share.cascade = running.number;
        share.updates = 0;
    }
    allowed = running.nested < maxNestedUpdates &&
              (running.updates < maxCascadeUpdates || share.updates < maxLateUpdates);
    if (allowed)
    {
        ++running.nested;
        ++running.updates;
        ++share.updates;
    }
    else
    {
        running.refused = true;
    }
}

CCascadeShare::CUpdate::~CUpdate()
{
    if (allowed)
    {
        --current.nested;
    }
}

bool CCascadeShare::TakeRefusal()
{
    return std::exchange(current.refused, false);
}

} // namespace Mirel::DataModel
