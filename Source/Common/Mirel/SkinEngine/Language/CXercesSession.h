#pragma once

namespace Mirel::SkinEngine
{

/// While one lives, the XML library is up. Any thread may make one at any time: the library's own count of
/// its users has no lock, and two threads that start and stop it at once end the process. So the first
/// session starts it, under a lock, and it stays up until this module is unloaded; the others cost nothing.
class CXercesSession
{
public:
    /// Passes on what the library throws when it cannot start; the next session tries again.
    CXercesSession();
    CXercesSession(const CXercesSession&) = delete;
    CXercesSession& operator=(const CXercesSession&) = delete;
    ~CXercesSession() = default;
};

} // namespace Mirel::SkinEngine
