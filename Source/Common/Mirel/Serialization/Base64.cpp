#include "Mirel/Serialization/Base64.h"

#include <array>
#include <climits>
#include <cstring>

namespace Mirel::Serialization
{

namespace
{

constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::size_t bytesInGroup = 3;
constexpr std::size_t charactersInGroup = 4;

constexpr std::array<std::uint8_t, UCHAR_MAX + 1> MakeValues()
{
    std::array<std::uint8_t, UCHAR_MAX + 1> values{};
    for (std::uint8_t i = 0; alphabet[i] != '\0'; ++i)
    {
        values[static_cast<unsigned char>(alphabet[i])] = i;
    }
    return values;
}

constexpr std::array<std::uint8_t, UCHAR_MAX + 1> valueOf = MakeValues();

/// Encodes one group of 1 to 3 bytes.
void EncodeGroup(const unsigned char* bytes, std::size_t count, char* text)
{
    const unsigned second = count > 1 ? bytes[1] : 0U;
    const unsigned third = count > 2 ? bytes[2] : 0U;
    const unsigned bits = (static_cast<unsigned>(bytes[0]) << 16U) | (second << 8U) | third;
    text[0] = alphabet[bits >> 18U];
    text[1] = alphabet[(bits >> 12U) & 63U];
    text[2] = count > 1 ? alphabet[(bits >> 6U) & 63U] : '=';
    text[3] = count > 2 ? alphabet[bits & 63U] : '=';
}

/// Decodes one group of 4 characters into 3 bytes.
void DecodeGroup(const char* text, char* bytes)
{
    unsigned bits = 0;
    for (std::size_t i = 0; i < charactersInGroup; ++i)
    {
        bits = (bits << 6U) | valueOf[static_cast<unsigned char>(text[i])];
    }
    bytes[0] = static_cast<char>(bits >> 16U);
    bytes[1] = static_cast<char>((bits >> 8U) & 255U);
    bytes[2] = static_cast<char>(bits & 255U);
}

/// How many bytes the padding of a text's last group takes away.
std::size_t PaddedBytes(const char* group)
{
    if (group[3] != '=')
    {
        return 0;
    }
    return group[2] == '=' ? 2 : 1;
}

} // namespace

char* EncodeBase64(const void* data, std::uint32_t size)
{
    const auto* bytes = static_cast<const unsigned char*>(data);
    const std::size_t count = bytes == nullptr ? 0 : size;
    char* text = new char[EncodedBase64Length(count) + 1];
    char* out = text;
    for (std::size_t at = 0; at < count; at += bytesInGroup, out += charactersInGroup)
    {
        const std::size_t left = count - at;
        EncodeGroup(bytes + at, left < bytesInGroup ? left : bytesInGroup, out);
    }
    *out = '\0';
    return text;
}

char* DecodeBase64(const char* text, std::uint32_t& size)
{
    size = 0;
    const std::size_t length = text == nullptr ? 0 : std::strlen(text);
    if (text == nullptr || length % charactersInGroup != 0 ||
        length / charactersInGroup > UINT32_MAX / bytesInGroup)
    {
        return nullptr;
    }
    const std::size_t groups = length / charactersInGroup;
    auto* bytes = new char[groups * bytesInGroup];
    for (std::size_t group = 0; group < groups; ++group)
    {
        DecodeGroup(text + group * charactersInGroup, bytes + group * bytesInGroup);
    }
    const std::size_t padded = groups == 0 ? 0 : PaddedBytes(text + length - charactersInGroup);
    size = static_cast<std::uint32_t>(groups * bytesInGroup - padded);
    return bytes;
}

} // namespace Mirel::Serialization
