#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/System/IThreadInvoker.h"

namespace Mirel::System
{

/// Has a member function called on the invoker's thread once the caller's stack has unwound: the means to end
/// one's own connection or timer. Target and invoker are not owned.
template <class T>
class TAsyncCommand : public Core::ICommand
{
public:
    using Method = typename Core::TCommand<T>::Method;

    TAsyncCommand(IThreadInvoker* invoker_, T* target_, Method method_)
        : invoker(invoker_),
          target(target_),
          method(method_)
    {
    }

    void Execute() override { invoker->InvokeAsync(new Core::TCommand<T>(target, method), true); }

private:
    IThreadInvoker* invoker;
    T* target;
    Method method;
};

} // namespace Mirel::System
