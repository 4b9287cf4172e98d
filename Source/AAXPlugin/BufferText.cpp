#include "AAXPlugin/BufferText.h"

#include "Mirel/DataModel/Objects/PatternExpansion.h"

#include <cstring>

namespace MirelExt::AAXPlugin
{

bool CopyToBuffer(std::string_view text, char* buffer, std::int32_t capacity)
{
    if (buffer == nullptr || capacity <= 0)
    {
        return false;
    }
    const std::size_t room = static_cast<std::size_t>(capacity) - 1;
    const std::size_t size = Mirel::DataModel::Objects::LengthInWholeCharacters(text, room);
    std::memcpy(buffer, text.data(), size);
    buffer[size] = '\0';
    return true;
}

} // namespace MirelExt::AAXPlugin
