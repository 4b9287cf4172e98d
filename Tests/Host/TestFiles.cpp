#include "Host/TestFiles.h"

namespace Tests
{

std::string ScopeBankModule()
{
    return SCOPE_BANK_MODULE;
}

std::string TestModule(const std::string& name)
{
    return TEST_MODULE_FOLDER "/" + name + ".aaxplugin";
}

std::string NoModuleFile()
{
    return NO_MODULE_FILE;
}

std::string MissingExportsOfPartial()
{
    return std::string(1, '"')
        .append(TestModule("partial"))
        .append("\" is not a plug-in module: it does not export ACFRegisterComponent, ACFGetClassFactory, "
                "ACFCanUnloadNow");
}

} // namespace Tests
