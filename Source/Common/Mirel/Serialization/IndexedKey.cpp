#include "Mirel/Serialization/IndexedKey.h"

namespace Mirel::Serialization
{

std::string IndexedKey(std::string_view name, int index)
{
    std::string key(name);
    key += std::to_string(index);
    return key;
}

} // namespace Mirel::Serialization
