#pragma once

#include "Mirel/Core/ICommand.h"
#include "Mirel/Core/TStoredValue.h"

#include <utility>

namespace Mirel::Core
{

/// Binds an argument to a command of class C that takes one, so that a value travels through a queue of plain
/// commands. Keeps copies of both.
template <class C>
class TArgCommandWrapper : public ICommand
{
public:
    using Argument = typename C::Argument;

    TArgCommandWrapper(C command_, Argument argument_)
        : command(std::move(command_)),
          argument(std::forward<Argument>(argument_))
    {
    }

    void Execute() override { command.Execute(argument.Get()); }

private:
    C command;
    TStoredValue<Argument> argument;
};

} // namespace Mirel::Core
