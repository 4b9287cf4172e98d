#pragma once

namespace Mirel::Core
{

/// A listener or a piece of work: something that can be executed, without argument or result.
class ICommand
{
public:
    virtual void Execute() = 0;
    virtual ~ICommand() = default;
};

} // namespace Mirel::Core
