#pragma once

#include <iosfwd>

namespace ManualPdf
{

/// The program manual-pdf: sets a text in a small part of Markdown as a PDF document. The result is the exit
/// code: 0, or 1 if a file cannot be read or written, or 2 for a wrong command line.
int RunProgram(int argc, const char* const* argv, std::ostream& out, std::ostream& errors);

} // namespace ManualPdf
