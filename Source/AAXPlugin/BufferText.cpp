#include "AAXPlugin/BufferText.h"

#include <cstring>

namespace MirelExt::AAXPlugin
{

namespace
{

bool IsContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

} // namespace

bool CopyToBuffer(std::string_view text, char* buffer, std::int32_t capacity)
{
    if (buffer == nullptr || capacity <= 0)
    {
        return false;
    }
    std::size_t size = text.size();
    const std::size_t room = static_cast<std::size_t>(capacity) - 1;
    if (size > room)
    {
        size = room;
        while (size > 0 && IsContinuation(text[size]))
        {
            --size;
        }
    }
    std::memcpy(buffer, text.data(), size);
    buffer[size] = '\0';
    return true;
}

} // namespace MirelExt::AAXPlugin
