#pragma once

#include <iosfwd>
#include <optional>
#include <string>

namespace SkinCheck
{

/// What the command line asks for: one of the checks below, and in which form its findings are told.
struct CCheckOptions
{
    std::optional<std::string> formula;
    float x = 0.0f;
    float y = 0.0f;

    bool json = false;
};

enum class EParsed
{
    Run,
    Done,  ///< The help was asked for and printed.
    Failed ///< `error` holds one line.
};

/// Fills `options` from the command line; help goes to `out`. Fails for a line that asks for no check.
EParsed ParseCommandLine(int argumentCount, const char* const* arguments, std::ostream& out,
                         CCheckOptions& options, std::string& error);

} // namespace SkinCheck
