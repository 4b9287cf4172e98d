#pragma once

#include <string>

namespace Mirel::Core
{

/// Whether a text is a printf format that takes exactly one double and nothing else: any text with one
/// conversion of e, E, f, F, g, G, a or A, with flags, a width and a precision of up to 512 each; "%%" stands
/// for a percent sign. Null is not.
bool IsNumberFormat(const char* format);

/// What keeps a text from being such a format, as the end of a sentence for the log: "it prints no number".
/// Null if it is one.
const char* FindNumberFormatFault(const char* format);

/// Prints a number with such a format, with a point whatever the locale. A format that could read or write
/// anything but the number is not used: "%.2f" takes its place.
std::string FormatNumber(const char* format, double value);

} // namespace Mirel::Core
