#include "Mirel/Core/CLifeToken.h"

namespace Mirel::Core
{

void CLifeToken::Drop(SState* dropped)
{
    if (--dropped->references == 0)
    {
        delete dropped;
    }
}

} // namespace Mirel::Core
