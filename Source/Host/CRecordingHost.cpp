#include "Host/CRecordingHost.h"

namespace Host
{

std::int32_t CRecordingHost::CreateCollection(IAAXCollection** out)
{
    return collections.Create(out);
}

} // namespace Host
