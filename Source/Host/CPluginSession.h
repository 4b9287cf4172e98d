#pragma once

#include "AAXPlugin/Interface/IAAXPluginDefinition.h"
#include "Host/CPluginModule.h"
#include "Host/CRecordingHost.h"

#include <string>

namespace Host
{

/// A module in use: loaded, started, registered; later asked whether it may go, shut down, unloaded.
/// What it declared stays readable for as long as the session lives; its procedures only while it is open.
class CPluginSession
{
public:
    CPluginSession();
    CPluginSession(const CPluginSession&) = delete;
    CPluginSession& operator=(const CPluginSession&) = delete;
    ~CPluginSession();

    /// False with one line in `error`; nothing stays loaded then.
    bool Open(const std::string& path, std::string& error);

    /// False with one line in `error` if the module does not let go or reports a failure. True if not open.
    bool Close(std::string& error);

    /// What the module declared; null before a successful Open. Owned by the session.
    const CRecordingCollection* GetCollection() const { return collection.Get(); }

private:
    bool Register(std::string& error);
    bool FindCollection(std::string& error);

    TACFReference<CRecordingHost> host;
    TACFReference<CRecordingCollection> collection;
    TACFReference<IAAXPluginDefinition> definition;
    CPluginModule module;
};

} // namespace Host
