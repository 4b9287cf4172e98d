#pragma once

#include "Mirel/DataModel/Objects/CAction.h"
#include "Mirel/System/TAsyncCommand.h"

namespace Mirel::DataModel::Objects
{

/// A member function of an object as an action that posts the call: it runs after the one who triggered it
/// has returned, and so may close that one's window. The capture holds for the posting alone. Object and
/// invoker are not owned; the object must outlive the posted calls. GUI thread only.
template <class T>
class TConstAsyncActionWrapper : public CAction
{
public:
    using Method = typename System::TAsyncCommand<T>::Method;

    TConstAsyncActionWrapper(const char* name_, const char* comment_, System::IThreadInvoker* invoker_,
                             T* target_, Method method_)
        : CAction(name_, comment_, new System::TAsyncCommand<T>(invoker_, target_, method_), true)
    {
    }
};

} // namespace Mirel::DataModel::Objects
