#include "Host/CPluginSession.h"

#include "Host/CodeText.h"

namespace Host
{

CPluginSession::CPluginSession() : host(TACFReference<CRecordingHost>::Adopt(new CRecordingHost)) {}

CPluginSession::~CPluginSession()
{
    std::string ignored;
    Close(ignored);
}

bool CPluginSession::Open(const std::string& path, std::string& error)
{
    if (!module.Load(path, error))
    {
        return false;
    }
    if (!Register(error))
    {
        std::string ignored;
        Close(ignored);
        return false;
    }
    return true;
}

bool CPluginSession::Close(std::string& error)
{
    if (!module.IsLoaded())
    {
        return true;
    }
    definition = {};
    const bool canUnload = module.canUnloadNow(host.Get()) == AAXResult::Ok;
    const std::int32_t shutdownResult = module.shutdown(host.Get());
    if (!canUnload)
    {
        // Its objects may still be called; unloading would pull the code away under them.
        error = "the module still holds objects and stays loaded";
        module.Abandon();
        return false;
    }
    const bool unloaded = module.Unload();
    if (shutdownResult != AAXResult::Ok)
    {
        error = CodeText("ACFShutdown", shutdownResult);
        return false;
    }
    if (!unloaded)
    {
        error = "the system keeps the module loaded";
        return false;
    }
    return true;
}

bool CPluginSession::Register(std::string& error)
{
    std::int32_t result = module.startup(host.Get());
    if (result != AAXResult::Ok)
    {
        error = CodeText("ACFStartup", result);
        return false;
    }
    void* registered = nullptr;
    result = module.registerPlugin(host.Get(), &registered);
    if (result != AAXResult::Ok)
    {
        error = CodeText("ACFRegisterPlugin", result);
        return false;
    }
    definition = TACFReference<IAAXPluginDefinition>::Adopt(static_cast<IAAXPluginDefinition*>(registered));
    return FindCollection(error);
}

bool CPluginSession::FindCollection(std::string& error)
{
    for (const TACFReference<CRecordingCollection>& made : host->GetCollections())
    {
        if (static_cast<IAAXPluginDefinition*>(made.Get()) == definition.Get())
        {
            collection = made;
        }
    }
    if (!collection || definition->GetEffectCount() == 0)
    {
        error = "the module registered no effect";
        collection = {};
        return false;
    }
    return true;
}

} // namespace Host
