#pragma once

namespace Mirel::Core
{

/// Something that can be executed and gives a result.
template <class R>
class TIReturnCommand
{
public:
    virtual R Execute() = 0;
    virtual ~TIReturnCommand() = default;
};

/// Calls a member function with a result on an object that it does not own.
template <class T, class R>
class TReturnCommand : public TIReturnCommand<R>
{
public:
    using Method = R (T::*)();

    TReturnCommand(T* target_, Method method_) : method(method_), target(target_) {}

    R Execute() override { return (target->*method)(); }

private:
    Method method;
    T* target;
};

} // namespace Mirel::Core
