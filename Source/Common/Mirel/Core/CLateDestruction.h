#pragma once

#include "Mirel/Core/IDestroy.h"

#include <memory>

namespace Mirel::Core
{

/// Keeps objects alive for as long as something that could be one of them is on the stack: an observable
/// object stays in this scope while it tells its listeners, and a listener that makes away with whole groups
/// of objects, which may hold the very one that it was told by, hands them to Destroy.
///
/// Each thread has its own scopes. A scope allocates nothing.
class CLateDestruction
{
public:
    CLateDestruction();
    CLateDestruction(const CLateDestruction&) = delete;
    CLateDestruction& operator=(const CLateDestruction&) = delete;

    /// The outermost one destroys what has come in meanwhile.
    ~CLateDestruction();

    /// Destroys the object when the outermost scope of this thread ends, or at once outside any scope.
    static void Destroy(std::unique_ptr<IDestroy> object);
};

} // namespace Mirel::Core
