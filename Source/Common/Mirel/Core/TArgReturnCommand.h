#pragma once

namespace Mirel::Core
{

/// Something that can be executed with one argument and gives a result.
template <class R, class A>
class TIArgReturnCommand
{
public:
    virtual R Execute(A argument) = 0;
    virtual ~TIArgReturnCommand() = default;
};

/// Calls a member function with one argument and a result on an object that it does not own.
template <class T, class R, class A>
class TArgReturnCommand : public TIArgReturnCommand<R, A>
{
public:
    using Method = R (T::*)(A);

    TArgReturnCommand(T* target_, Method method_) : method(method_), target(target_) {}

    R Execute(A argument) override { return (target->*method)(argument); }

private:
    Method method;
    T* target;
};

} // namespace Mirel::Core
