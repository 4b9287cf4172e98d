#include "AAXPlugin/AAXExtChunkDataParser.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace MirelExt::AAXPlugin
{

namespace
{

constexpr std::uint32_t FormatMark = 0x01010101;
constexpr std::size_t MarkSize = sizeof(FormatMark);
constexpr std::size_t TagSize = 2;
constexpr std::size_t Alignment = 4;
constexpr std::size_t LongestText = 255;

static_assert(std::endian::native == std::endian::little, "the bytes of a number are turned round");

/// By the index of the value's type.
constexpr std::array<char, 4> TagLetters = {'f', 'l', 'd', 's'};

std::size_t Padded(std::size_t size)
{
    return (size + Alignment - 1) / Alignment * Alignment;
}

template <class T>
std::size_t SlotSize(T)
{
    return Padded(sizeof(T));
}

std::size_t SlotSizeOf(const AAXExtChunkDataParser::CValue& value)
{
    return std::visit([](auto number) { return SlotSize(number); }, value);
}

std::size_t TextSize(std::string_view name)
{
    return Padded(TagSize + name.size() + 1);
}

template <class T>
void WriteReversed(char* data, T number)
{
    const auto bytes = std::bit_cast<std::array<char, sizeof(T)>>(number);
    std::copy(bytes.rbegin(), bytes.rend(), data);
}

/// Reads the records one after the other.
class CRecordReader
{
public:
    CRecordReader(const char* data_, std::size_t size_) : data(data_), size(size_) {}

    bool IsAtEnd() const { return position >= size; }

    /// A text of at most 255 bytes with the zero behind it and its padding.
    std::string ReadText()
    {
        const std::size_t most = std::min(LongestText, size - position);
        std::string text(data + position, strnlen(data + position, most));
        position = Padded(position + text.size() + 1);
        return text;
    }

    /// False if the data ends before the number does.
    template <class T>
    bool ReadNumber(T& number)
    {
        std::array<char, sizeof(T)> bytes = {};
        const bool whole = position <= size && size - position >= sizeof(T);
        if (whole)
        {
            std::reverse_copy(data + position, data + position + sizeof(T), bytes.begin());
            number = std::bit_cast<T>(bytes);
        }
        position += Padded(sizeof(T));
        return whole;
    }

private:
    const char* data;
    std::size_t size;
    std::size_t position = MarkSize;
};

template <class T>
bool ReadAs(CRecordReader& reader, AAXExtChunkDataParser::CValue& value)
{
    T number = {};
    const bool whole = reader.ReadNumber(number);
    value = number;
    return whole;
}

bool ReadValue(CRecordReader& reader, char letter, AAXExtChunkDataParser::CValue& value)
{
    switch (letter)
    {
    case 'f':
        return ReadAs<float>(reader, value);
    case 'l':
        return ReadAs<std::int32_t>(reader, value);
    case 'd':
        return ReadAs<double>(reader, value);
    case 's':
        return ReadAs<std::int16_t>(reader, value);
    default:
        return false;
    }
}

bool HasMark(const char* data, std::size_t size)
{
    std::uint32_t mark = 0;
    if (size >= MarkSize)
    {
        std::memcpy(&mark, data, MarkSize);
    }
    return mark == FormatMark;
}

} // namespace

bool AAXExtChunkDataParser::FindNumber(std::string_view name, double& value) const
{
    const auto found = std::find_if(records.begin(), records.end(),
                                    [&](const CRecord& record) { return record.name == name; });
    if (found == records.end())
    {
        return false;
    }
    value = std::visit([](auto number) { return static_cast<double>(number); }, found->value);
    return true;
}

std::size_t AAXExtChunkDataParser::GetDataSize() const
{
    std::size_t size = MarkSize;
    for (const CRecord& record : records)
    {
        size += TextSize(record.name) + SlotSizeOf(record.value);
    }
    return size;
}

void AAXExtChunkDataParser::Write(char* data) const
{
    std::memset(data, 0, GetDataSize());
    std::memcpy(data, &FormatMark, MarkSize);
    char* at = data + MarkSize;
    for (const CRecord& record : records)
    {
        at[0] = TagLetters[record.value.index()];
        at[1] = '_';
        record.name.copy(at + TagSize, record.name.size());
        at += TextSize(record.name);
        std::visit([&](auto number) { WriteReversed(at, number); }, record.value);
        at += SlotSizeOf(record.value);
    }
}

void AAXExtChunkDataParser::Read(const char* data, std::size_t size, std::int32_t newVersion)
{
    Clear();
    version = newVersion;
    if (!HasMark(data, size))
    {
        return;
    }
    CRecordReader reader(data, size);
    while (!reader.IsAtEnd())
    {
        const std::string text = reader.ReadText();
        CValue value;
        if (text.size() >= TagSize && ReadValue(reader, text.front(), value))
        {
            records.push_back({text.substr(TagSize), value});
        }
    }
}

} // namespace MirelExt::AAXPlugin
