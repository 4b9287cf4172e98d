#include "ManualPdf/ManualPdfProgram.h"

#include <iostream>

int main(int argc, char** argv)
{
    return ManualPdf::RunProgram(argc, argv, std::cout, std::cerr);
}
