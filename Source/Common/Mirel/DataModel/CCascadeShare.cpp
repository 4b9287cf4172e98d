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
    SCascade& cascade = current;
    if (cascade.nested == 0)
    {
        ++cascade.number;
        cascade.updates = 0;
    }
    if (share.cascade != cascade.number)
    {
        share.cascade = cascade.number;
        share.updates = 0;
    }
    allowed = cascade.nested < maxNestedUpdates &&
              (cascade.updates < maxCascadeUpdates || share.updates < maxLateUpdates);
    if (allowed)
    {
        ++cascade.nested;
        ++cascade.updates;
        ++share.updates;
    }
    else
    {
        cascade.refused = true;
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
