#include "SkinCheck/CSkinCheckProgram.h"

#include "SkinCheck/CCheckReport.h"
#include "SkinCheck/CheckOptions.h"
#include "SkinCheck/FormulaCheck.h"

#include <ostream>
#include <string>

namespace SkinCheck
{

namespace
{

constexpr int success = 0;
constexpr int failure = 2;

/// One branch for each check; the command line asks for one of them.
CCheckReport RunCheck(const CCheckOptions& options)
{
    CCheckReport report;
    if (options.formula)
    {
        CheckFormula(options.formula->c_str(), options.x, options.y, report);
    }
    return report;
}

} // namespace

int CSkinCheckProgram::Run(int argumentCount, const char* const* arguments)
{
    CCheckOptions options;
    std::string message;
    switch (ParseCommandLine(argumentCount, arguments, out, options, message))
    {
    case EParsed::Done:
        return success;
    case EParsed::Failed:
        error << "skin-check: " << message << '\n';
        return failure;
    case EParsed::Run:
        break;
    }
    const CCheckReport report = RunCheck(options);
    if (options.json)
    {
        report.PrintJson(out);
    }
    else
    {
        report.Print(out);
    }
    return report.GetExitCode();
}

} // namespace SkinCheck
