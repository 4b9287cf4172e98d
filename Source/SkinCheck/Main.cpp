#include "SkinCheck/SkinCheckProgram.h"

#include <filesystem>
#include <iostream>
#include <system_error>

#include <unistd.h>

int main(int argc, char** argv)
{
    std::error_code failure;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", failure);
    const std::filesystem::path data = program.parent_path() / "Scope Bank data";
    const bool isThere = std::filesystem::is_directory(data, failure);
    return SkinCheck::RunProgram(argc, argv, std::cout, std::cerr, isatty(STDOUT_FILENO) != 0,
                                 isThere ? data.string() : std::string());
}
