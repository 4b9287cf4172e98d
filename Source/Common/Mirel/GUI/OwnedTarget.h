#pragma once

#include <memory>

namespace Mirel::GUI
{

/// A pointer that destroys the target only if it was handed over. A copy held during a call keeps an owned
/// target alive that is replaced from within.
template <class Target>
std::shared_ptr<Target> HoldTarget(Target* target, bool owned)
{
    return owned ? std::shared_ptr<Target>(target) : std::shared_ptr<Target>(std::shared_ptr<void>(), target);
}

} // namespace Mirel::GUI
