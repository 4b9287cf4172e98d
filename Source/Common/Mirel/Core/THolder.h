#pragma once

#include <memory>

namespace Mirel::Core
{

/// A member that is owned and lives on the heap, so that its class need not be known to the owner's header.
template <class T>
using THolder = std::unique_ptr<T>;

} // namespace Mirel::Core
