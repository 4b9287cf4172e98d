#include "SkinCheck/CheckOptions.h"

#include <CLI/CLI.hpp>

#include <ostream>

namespace SkinCheck
{

namespace
{

constexpr const char* footer = R"text(Exit codes: 0 nothing found, 1 warnings, 2 errors.

Examples:
  skin-check --formula "2+3*4"
  skin-check --formula "gain * curve(x)" --x 0.5 --json
  skin-check --formula="-x ^ 2" --x=-3)text";

/// The first line: a message of the parser may go on with advice.
std::string FirstLine(const std::string& text)
{
    return text.substr(0, text.find('\n'));
}

} // namespace

EParsed ParseCommandLine(int argumentCount, const char* const* arguments, std::ostream& out,
                         CCheckOptions& options, std::string& error)
{
    CLI::App app("Checks what skins and models are made of.", "skin-check");
    app.footer(footer);
    CLI::Option* const formula =
        app.add_option("--formula", options.formula, "Check a formula and evaluate it")->type_name("TEXT");
    app.add_option("--x", options.x, "The variable x of the formula (0)")->type_name("V")->needs(formula);
    app.add_option("--y", options.y, "The variable y of the formula (0)")->type_name("V")->needs(formula);
    app.add_flag("--json", options.json, "Print the findings as JSON");
    try
    {
        app.parse(argumentCount, arguments);
    }
    catch (const CLI::Success&)
    {
        out << app.help();
        return EParsed::Done;
    }
    catch (const CLI::ParseError& failure)
    {
        error = FirstLine(failure.what());
        return EParsed::Failed;
    }
    if (!options.formula)
    {
        error = "nothing to check; --help lists the checks";
        return EParsed::Failed;
    }
    return EParsed::Run;
}

} // namespace SkinCheck
