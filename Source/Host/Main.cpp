#include "Host/CHostProgram.h"

#include <filesystem>
#include <iostream>
#include <system_error>

#include <unistd.h>

int main(int argc, char** argv)
{
    std::error_code failure;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", failure);
    const std::filesystem::path module = program.parent_path() / "Scope Bank.aaxplugin";
    const bool onTerminal = ::isatty(STDERR_FILENO) != 0;
    return Host::CHostProgram(std::cout, std::cerr, module.string(), onTerminal).Run(argc, argv);
}
