#include "Host/CHostProgram.h"

#include "Host/CDescriptionPrinter.h"
#include "Host/CPluginSession.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace Host
{

namespace
{

constexpr int Success = 0;
constexpr int Failure = 1;

} // namespace

CHostProgram::CHostProgram(std::ostream& out_, std::ostream& error_, std::string modulePath_)
    : out(out_),
      error(error_),
      modulePath(std::move(modulePath_))
{
}

int CHostProgram::Run(int argumentCount, const char* const* arguments)
{
    CLI::App app("A host for the plug-in module that stands beside it.", "scope-bank");
    bool describe = false;
    app.add_option("--module", modulePath, "The module to load instead")->type_name("PATH");
    app.add_flag("--describe", describe, "Print what the module declares, one declaration a line");
    try
    {
        app.parse(argumentCount, arguments);
    }
    catch (const CLI::Success&)
    {
        out << app.help();
        return Success;
    }
    catch (const CLI::ParseError& failure)
    {
        return Fail(failure.what());
    }
    if (describe)
    {
        return Describe();
    }
    out << app.help();
    return Success;
}

int CHostProgram::Describe()
{
    CPluginSession session;
    std::string message;
    if (!session.Open(modulePath, message))
    {
        return Fail(message);
    }
    CDescriptionPrinter(out).Print(*session.GetCollection());
    return session.Close(message) ? Success : Fail(message);
}

int CHostProgram::Fail(const std::string& message)
{
    error << "scope-bank: " << message << '\n';
    return Failure;
}

} // namespace Host
