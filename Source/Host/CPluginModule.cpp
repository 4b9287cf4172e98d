#include "Host/CPluginModule.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>

namespace Host
{

CPluginModule::~CPluginModule()
{
    Unload();
}

bool CPluginModule::Load(const std::string& path, std::string& error)
{
    // Without a slash the loader would look in its own search path.
    std::error_code failure;
    const std::string absolute = std::filesystem::absolute(path, failure).string();
    if (failure || !std::filesystem::is_regular_file(absolute, failure))
    {
        error = "no module at \"" + path + "\"";
        return false;
    }
    handle = dlopen(absolute.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr)
    {
        // The C library keeps this text per thread. NOLINTNEXTLINE(concurrency-mt-unsafe)
        const char* reason = dlerror();
        error = "cannot load the module: " + std::string(reason != nullptr ? reason : absolute);
        return false;
    }
    loadedPath = absolute;

    std::string missing;
    Find("ACFStartup", startup, missing);
    Find("ACFRegisterPlugin", registerPlugin, missing);
    Find("ACFRegisterComponent", registerComponent, missing);
    Find("ACFGetClassFactory", getClassFactory, missing);
    Find("ACFCanUnloadNow", canUnloadNow, missing);
    Find("ACFShutdown", shutdown, missing);
    if (!missing.empty())
    {
        error = "\"" + path + "\" is not a plug-in module: it does not export " + missing;
        Unload();
        return false;
    }
    return true;
}

bool CPluginModule::Unload()
{
    if (handle == nullptr)
    {
        return true;
    }
    dlclose(handle);
    Abandon();
    void* still = dlopen(loadedPath.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NOLOAD);
    if (still != nullptr)
    {
        dlclose(still);
    }
    return still == nullptr;
}

void CPluginModule::Abandon()
{
    handle = nullptr;
    startup = nullptr;
    registerPlugin = nullptr;
    registerComponent = nullptr;
    getClassFactory = nullptr;
    canUnloadNow = nullptr;
    shutdown = nullptr;
}

template <class TFunction>
void CPluginModule::Find(const char* name, TFunction*& function, std::string& missing)
{
    function = reinterpret_cast<TFunction*>(dlsym(handle, name));
    if (function == nullptr)
    {
        missing += missing.empty() ? "" : ", ";
        missing += name;
    }
}

} // namespace Host
