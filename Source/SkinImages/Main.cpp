#include "SkinImages/SkinImagesProgram.h"

#include <iostream>

int main(int argc, char** argv)
{
    return SkinImages::RunProgram(argc, argv, std::cout, std::cerr);
}
