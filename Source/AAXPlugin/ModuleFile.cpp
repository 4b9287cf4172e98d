#include "AAXPlugin/ModuleFile.h"

#include "AAXPlugin/Identity.h"

#include <dlfcn.h>

namespace MirelExt::AAXPlugin
{

namespace
{

/// Its address lies in the module.
const char anchor = 0;

} // namespace

std::string_view FileNameOf(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string GetModulePath()
{
    Dl_info info = {};
    if (dladdr(&anchor, &info) == 0 || info.dli_fname == nullptr)
    {
        return {};
    }
    return info.dli_fname;
}

std::string MakeEffectIdentifier(std::string_view modulePath)
{
    return std::string(IdentifierPrefix).append(FileNameOf(modulePath));
}

} // namespace MirelExt::AAXPlugin
