#pragma once

#include "Mirel/Core/TIArgCommand.h"

namespace Mirel::Core
{

/// Calls a member function with one argument on an object that it does not own. The object must outlive every
/// execution.
template <class T, class A>
class TArgCommand : public TIArgCommand<A>
{
public:
    using Method = void (T::*)(A);

    TArgCommand(T* target_, Method method_) : method(method_), target(target_) {}

    void Execute(A argument) override { (target->*method)(argument); }

private:
    Method method;
    T* target;
};

/// The same over a const member function.
template <class T, class A>
class TConstArgCommand : public TIArgCommand<A>
{
public:
    using Method = void (T::*)(A) const;

    TConstArgCommand(const T* target_, Method method_) : method(method_), target(target_) {}

    void Execute(A argument) override { (target->*method)(argument); }

private:
    Method method;
    const T* target;
};

} // namespace Mirel::Core
