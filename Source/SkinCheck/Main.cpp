#include "SkinCheck/SkinCheckProgram.h"

#include <iostream>
#include <unistd.h>

int main(int argc, char** argv)
{
    return SkinCheck::RunProgram(argc, argv, std::cout, std::cerr, isatty(STDOUT_FILENO) != 0);
}
