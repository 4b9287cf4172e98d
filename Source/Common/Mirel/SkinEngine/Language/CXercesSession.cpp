#include "Mirel/SkinEngine/Language/CXercesSession.h"

#include <mutex>

#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLNetAccessor.hpp>

namespace Mirel::SkinEngine
{

namespace
{

using xercesc::XMLPlatformUtils;

void Start()
{
    XMLPlatformUtils::Initialize("en_US");
    // No skin is read from a network: without this object the library has no way to one.
    delete XMLPlatformUtils::fgNetAccessor;
    XMLPlatformUtils::fgNetAccessor = nullptr;
}

/// Keeps the library up between the sessions, which saves each parse a millisecond.
class CKeptLibrary
{
public:
    CKeptLibrary() { Start(); }
    CKeptLibrary(const CKeptLibrary&) = delete;
    CKeptLibrary& operator=(const CKeptLibrary&) = delete;
    ~CKeptLibrary() { XMLPlatformUtils::Terminate(); }
};

std::mutex& Lock()
{
    static std::mutex lock;
    return lock;
}

} // namespace

CXercesSession::CXercesSession()
{
    const std::lock_guard guard(Lock());
    static const CKeptLibrary kept;
    Start();
}

CXercesSession::~CXercesSession()
{
    const std::lock_guard guard(Lock());
    XMLPlatformUtils::Terminate();
}

} // namespace Mirel::SkinEngine
