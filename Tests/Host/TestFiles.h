#pragma once

#include <string>

namespace Tests
{

/// The module of the product.
std::string ScopeBankModule();

/// The test module of that name, built from TestModule.cpp.
std::string TestModule(const std::string& name);

/// A file that no loader takes for a library.
std::string NoModuleFile();

/// What the loader says of the test module "partial".
std::string MissingExportsOfPartial();

} // namespace Tests
