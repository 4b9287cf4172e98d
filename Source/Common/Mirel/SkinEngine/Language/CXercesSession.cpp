#include "Mirel/SkinEngine/Language/CXercesSession.h"

#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLNetAccessor.hpp>

namespace Mirel::SkinEngine
{

namespace
{

using xercesc::XMLPlatformUtils;

/// The library between its start and its end.
class CRunningLibrary
{
public:
    CRunningLibrary()
    {
        XMLPlatformUtils::Initialize("en_US");
        // No skin is read from a network: without this object the library has no way to one.
        delete XMLPlatformUtils::fgNetAccessor;
        XMLPlatformUtils::fgNetAccessor = nullptr;
    }
    CRunningLibrary(const CRunningLibrary&) = delete;
    CRunningLibrary& operator=(const CRunningLibrary&) = delete;
    ~CRunningLibrary() { XMLPlatformUtils::Terminate(); }
};

} // namespace

CXercesSession::CXercesSession()
{
    // The language makes threads wait for each other here, once.
    static const CRunningLibrary library;
}

} // namespace Mirel::SkinEngine
