#pragma once

#include <iosfwd>

namespace SkinCheck
{

/// The program: reads the command line, runs the check that it asks for and prints what was found. Its exit
/// code is 0 if nothing was found, 1 for warnings and 2 for errors, a wrong command line among them; of such
/// a line the error stream says what is wrong with it.
class CSkinCheckProgram
{
public:
    CSkinCheckProgram(std::ostream& out_, std::ostream& error_) : out(out_), error(error_) {}

    int Run(int argumentCount, const char* const* arguments);

private:
    std::ostream& out;
    std::ostream& error;
};

} // namespace SkinCheck
