#include "Mirel/Serialization/ReadText.h"

#include <memory>

namespace Mirel::Serialization
{

bool ReadText(const IReadDataStream& stream, const char* key, std::string& text)
{
    char* read = nullptr;
    if (!stream.Read(key, read))
    {
        return false;
    }
    const std::unique_ptr<char[]> holder(read);
    text = read == nullptr ? "" : read;
    return true;
}

} // namespace Mirel::Serialization
