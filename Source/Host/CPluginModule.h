#pragma once

#include "AAXPlugin/Interface/ACFExports.h"

#include <string>

namespace Host
{

/// A plug-in module, loaded for as long as this object lives or until Unload.
class CPluginModule
{
public:
    CPluginModule() = default;
    CPluginModule(const CPluginModule&) = delete;
    CPluginModule& operator=(const CPluginModule&) = delete;
    ~CPluginModule();

    /// Loads the file and finds all exports. False with one line in `error` if the file is not there, cannot
    /// be loaded, or lacks exports, all of which are named. Only once per object, until Unload.
    bool Load(const std::string& path, std::string& error);

    /// False if the system keeps the module in memory all the same. True without a module.
    bool Unload();

    /// Forgets the module without unloading it.
    void Abandon();

    bool IsLoaded() const { return handle != nullptr; }

    /// Null until Load succeeds.
    ACFStartupFunction* startup = nullptr;
    ACFRegisterPluginFunction* registerPlugin = nullptr;
    ACFRegisterComponentFunction* registerComponent = nullptr;
    ACFGetClassFactoryFunction* getClassFactory = nullptr;
    ACFCanUnloadNowFunction* canUnloadNow = nullptr;
    ACFShutdownFunction* shutdown = nullptr;

private:
    template <class TFunction>
    void Find(const char* name, TFunction*& function, std::string& missing);

    void* handle = nullptr;
    std::string loadedPath;
};

} // namespace Host
