#pragma once

#include <ostream>
#include <string>

namespace Host
{

/// The command line of the host program.
class CHostProgram
{
public:
    /// Results go to `out`, errors to `error`, one line each. `modulePath` is the module used unless the
    /// command line names another.
    CHostProgram(std::ostream& out_, std::ostream& error_, std::string modulePath_);

    /// The exit code: 0, or 1 after an error.
    int Run(int argumentCount, const char* const* arguments);

private:
    int Describe();
    int Fail(const std::string& message);

    std::ostream& out;
    std::ostream& error;
    std::string modulePath;
};

} // namespace Host
