#pragma once

namespace Mirel::SkinEngine
{

/// While one lives, the XML library is initialised. Any thread may make one at any time: the library's own
/// count of its users has no lock, and two threads that start and stop it at once end the process. Once
/// started it stays up until this module is unloaded.
class CXercesSession
{
public:
    /// Passes on what the library throws when it cannot start.
    CXercesSession();
    CXercesSession(const CXercesSession&) = delete;
    CXercesSession& operator=(const CXercesSession&) = delete;
    ~CXercesSession();
};

} // namespace Mirel::SkinEngine
