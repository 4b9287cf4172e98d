#include "Mirel/Serialization/Utf8.h"

#include <cstddef>

namespace Mirel::Serialization
{

namespace
{

struct CSequence
{
    std::size_t length; ///< 0 for a byte that begins none.
    unsigned char secondMin;
    unsigned char secondMax;
};

/// What may follow a first byte; the bounds of the second rule out overlong forms and surrogates.
CSequence SequenceOf(unsigned char first)
{
    if (first >= 0xC2 && first <= 0xDF)
    {
        return {2, 0x80, 0xBF};
    }
    if (first >= 0xE0 && first <= 0xEF)
    {
        const unsigned char min = first == 0xE0 ? 0xA0 : 0x80;
        const unsigned char max = first == 0xED ? 0x9F : 0xBF;
        return {3, min, max};
    }
    if (first >= 0xF0 && first <= 0xF4)
    {
        const unsigned char min = first == 0xF0 ? 0x90 : 0x80;
        const unsigned char max = first == 0xF4 ? 0x8F : 0xBF;
        return {4, min, max};
    }
    return {0, 0, 0};
}

bool IsSequence(std::string_view text, const CSequence& sequence)
{
    if (sequence.length == 0 || text.size() < sequence.length)
    {
        return false;
    }
    const auto second = static_cast<unsigned char>(text[1]);
    if (second < sequence.secondMin || second > sequence.secondMax)
    {
        return false;
    }
    for (std::size_t i = 2; i < sequence.length; ++i)
    {
        if (!IsUtf8Continuation(text[i]))
        {
            return false;
        }
    }
    return true;
}

} // namespace

bool IsUtf8(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();)
    {
        const auto first = static_cast<unsigned char>(text[at]);
        if (first < 0x80)
        {
            ++at;
            continue;
        }
        const CSequence sequence = SequenceOf(first);
        if (!IsSequence(text.substr(at), sequence))
        {
            return false;
        }
        at += sequence.length;
    }
    return true;
}

} // namespace Mirel::Serialization
