#include "Mirel/SkinEngine/Language/CExpansion.h"

#include <algorithm>

namespace Mirel::SkinEngine
{

bool CRepeatPasses::TakeNext(std::string& index)
{
    if (!byList)
    {
        if (passed >= registers.count)
        {
            return false;
        }
        index = std::to_string(registers.start + passed);
        ++passed;
        return true;
    }
    const std::string& list = registers.indexList;
    if (listPosition > list.size())
    {
        return false;
    }
    const std::size_t end = std::min(list.find(';', listPosition), list.size());
    index.assign(list, listPosition, end - listPosition);
    listPosition = end + 1;
    return true;
}

} // namespace Mirel::SkinEngine
