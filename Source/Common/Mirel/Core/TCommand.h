#pragma once

#include "Mirel/Core/ICommand.h"

namespace Mirel::Core
{

/// Calls a member function of an object that it does not own. The object must outlive every execution.
template <class T>
class TCommand : public ICommand
{
public:
    using Method = void (T::*)();

    TCommand(T* target_, Method method_) : method(method_), target(target_) {}

    void Execute() override { (target->*method)(); }

private:
    Method method;
    T* target;
};

/// The same over a const member function. Over INotify it chains one event provider to another.
template <class T>
class TConstCommand : public ICommand
{
public:
    using Method = void (T::*)() const;

    TConstCommand(const T* target_, Method method_) : method(method_), target(target_) {}

    void Execute() override { (target->*method)(); }

private:
    Method method;
    const T* target;
};

} // namespace Mirel::Core
