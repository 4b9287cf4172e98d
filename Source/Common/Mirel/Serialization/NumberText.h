#pragma once

#include <string>

namespace Mirel::Serialization
{

/// Numbers as text, the same for all text forms and independent of any locale: bool as "0" or "1", int in
/// decimal, float with up to 11 and double with up to 20 significant digits, both of which give the exact
/// value back. Infinity and NaN become "inf", "-inf", "nan" and do not read back. False if no text could be
/// made.
bool FormatNumber(bool value, std::string& text);
bool FormatNumber(int value, std::string& text);
bool FormatNumber(float value, std::string& text);
bool FormatNumber(double value, std::string& text);

/// Reads the number at the start of the text, after blanks. A text that holds none, or one that the type does
/// not, leaves the value as it is and gives false. What follows the number is not looked at.
bool ParseNumber(const char* text, bool& value);
bool ParseNumber(const char* text, int& value);
bool ParseNumber(const char* text, float& value);
bool ParseNumber(const char* text, double& value);

} // namespace Mirel::Serialization
