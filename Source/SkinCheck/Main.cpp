#include "SkinCheck/CSkinCheckProgram.h"

#include <iostream>

int main(int argc, char** argv)
{
    return SkinCheck::CSkinCheckProgram(std::cout, std::cerr).Run(argc, argv);
}
