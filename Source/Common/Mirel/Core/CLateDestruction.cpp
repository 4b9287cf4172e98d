#include "Mirel/Core/CLateDestruction.h"

#include <utility>
#include <vector>

namespace Mirel::Core
{

namespace
{

using CWaiting = std::vector<std::unique_ptr<IDestroy>>;

thread_local int scopes = 0;
/// Null without any: a thread that has nothing to destroy at its end does not keep the module loaded.
thread_local CWaiting* waiting = nullptr;

} // namespace

CLateDestruction::CLateDestruction()
{
    ++scopes;
}

/// What is destroyed may itself tell listeners, and have more destroyed.
CLateDestruction::~CLateDestruction()
{
    while (scopes == 1 && waiting != nullptr)
    {
        const std::unique_ptr<CWaiting> destroyed(std::exchange(waiting, nullptr));
    }
    --scopes;
}

void CLateDestruction::Destroy(std::unique_ptr<IDestroy> object)
{
    if (scopes > 0)
    {
        waiting = waiting == nullptr ? new CWaiting() : waiting;
        waiting->push_back(std::move(object));
    }
}

} // namespace Mirel::Core
