#pragma once

namespace Mirel::Core
{

/// A listener or a piece of work that takes one argument.
template <class A>
class TIArgCommand
{
public:
    using Argument = A;

    virtual void Execute(A argument) = 0;
    virtual ~TIArgCommand() = default;
};

} // namespace Mirel::Core
