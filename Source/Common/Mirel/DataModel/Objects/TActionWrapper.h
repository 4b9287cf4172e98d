#pragma once

#include "Mirel/Core/TCommand.h"
#include "Mirel/DataModel/Objects/CAction.h"

namespace Mirel::DataModel::Objects
{

/// A member function of an object as an action. The object is not owned and must outlive the action. GUI
/// thread only.
template <class T>
class TActionWrapper : public CAction
{
public:
    using Method = typename Core::TCommand<T>::Method;

    TActionWrapper(const char* name_, const char* comment_, T* target_, Method method_)
        : CAction(name_, comment_, new Core::TCommand<T>(target_, method_), true)
    {
    }
};

} // namespace Mirel::DataModel::Objects
