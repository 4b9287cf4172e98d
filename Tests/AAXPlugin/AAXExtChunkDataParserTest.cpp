#include "AAXPlugin/AAXExtChunkDataParser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>

namespace
{

using MirelExt::AAXPlugin::AAXExtChunkDataParser;
using testing::ElementsAreArray;

using CBytes = std::vector<unsigned char>;

CBytes BytesOf(const AAXExtChunkDataParser& parser)
{
    std::vector<char> data(parser.GetDataSize(), 'x');
    parser.Write(data.data());
    return {data.begin(), data.end()};
}

void ReadBytes(AAXExtChunkDataParser& parser, const CBytes& bytes)
{
    const std::vector<char> data(bytes.begin(), bytes.end());
    parser.Read(data.data(), data.size(), 0);
}

double ValueOf(const AAXExtChunkDataParser& parser, std::string_view name)
{
    double value = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(parser.FindNumber(name, value)) << name;
    return value;
}

const CBytes Mark = {1, 1, 1, 1};

CBytes operator+(CBytes first, const CBytes& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TEST(AAXExtChunkDataParser, EmptyOneIsTheFormatMark)
{
    const AAXExtChunkDataParser parser;
    EXPECT_EQ(parser.GetDataSize(), 4U);
    EXPECT_THAT(BytesOf(parser), ElementsAreArray(Mark));
}

struct CRecordCase
{
    const char* name;
    void (*add)(AAXExtChunkDataParser&);
    CBytes record;
};

// Written out by hand: tag, name, zero, padding to 4 from the start of the data, high byte first.
const CRecordCase Cases[] = {{"float 1.5",
                              [](AAXExtChunkDataParser& parser) { parser.AddFloat("P1", 1.5F); },
                              {'f', '_', 'P', '1', 0, 0, 0, 0, 0x3F, 0xC0, 0, 0}},
                             {"integer -2",
                              [](AAXExtChunkDataParser& parser) { parser.AddInt32("abc", -2); },
                              {'l', '_', 'a', 'b', 'c', 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFE}},
                             {"double 2",
                              [](AAXExtChunkDataParser& parser) { parser.AddDouble("x", 2.0); },
                              {'d', '_', 'x', 0, 0x40, 0, 0, 0, 0, 0, 0, 0}},
                             {"short 0x1234",
                              [](AAXExtChunkDataParser& parser) { parser.AddInt16("", 0x1234); },
                              {'s', '_', 0, 0, 0x12, 0x34, 0, 0}},
                             {"master bypass",
                              [](AAXExtChunkDataParser& parser) { parser.AddFloat("MasterBypassID", 1.0F); },
                              {'f', '_', 'M', 'a', 's', 't', 'e', 'r', 'B',  'y',  'p', 'a',
                               's', 's', 'I', 'D', 0,   0,   0,   0,   0x3F, 0x80, 0,   0}}};

TEST(AAXExtChunkDataParser, WritesEachTypeByteForByte)
{
    for (const CRecordCase& row : Cases)
    {
        AAXExtChunkDataParser parser;
        row.add(parser);
        EXPECT_EQ(parser.GetDataSize(), 4 + row.record.size()) << row.name;
        EXPECT_THAT(BytesOf(parser), ElementsAreArray(Mark + row.record)) << row.name;
    }
}

TEST(AAXExtChunkDataParser, ReadsEachTypeBack)
{
    AAXExtChunkDataParser parser;
    ReadBytes(parser, Mark + Cases[0].record + Cases[1].record + Cases[2].record + Cases[3].record);
    EXPECT_EQ(ValueOf(parser, "P1"), 1.5);
    EXPECT_EQ(ValueOf(parser, "abc"), -2.0);
    EXPECT_EQ(ValueOf(parser, "x"), 2.0);
    EXPECT_EQ(ValueOf(parser, ""), 0x1234);
}

TEST(AAXExtChunkDataParser, DataWithoutTheMarkGiveNothing)
{
    AAXExtChunkDataParser parser;
    ReadBytes(parser, CBytes{1, 1, 1, 2} + Cases[0].record);
    EXPECT_TRUE(parser.IsEmpty());
    ReadBytes(parser, {1, 1, 1});
    EXPECT_TRUE(parser.IsEmpty());
    ReadBytes(parser, {});
    EXPECT_TRUE(parser.IsEmpty());
}

TEST(AAXExtChunkDataParser, ReadingForgetsWhatStoodThereAndTakesTheVersion)
{
    AAXExtChunkDataParser parser;
    EXPECT_EQ(parser.GetVersion(), 0);
    parser.AddFloat("old", 1.0F);
    parser.Read(nullptr, 0, 7);
    EXPECT_TRUE(parser.IsEmpty());
    EXPECT_EQ(parser.GetVersion(), 7);
    parser.Clear();
    EXPECT_EQ(parser.GetVersion(), 7);
}

TEST(AAXExtChunkDataParser, RecordThatIsCutOffIsLeftOut)
{
    const CBytes whole = Mark + Cases[1].record + Cases[2].record;
    for (std::size_t size = 0; size < whole.size(); ++size)
    {
        AAXExtChunkDataParser parser;
        ReadBytes(parser, {whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)});
        double value = 0.0;
        EXPECT_EQ(parser.FindNumber("abc", value), size >= 16) << size;
        EXPECT_FALSE(parser.FindNumber("x", value)) << size;
    }
}

TEST(AAXExtChunkDataParser, RecordOfAnUnknownTypeHasNoValueAndIsPassedOver)
{
    AAXExtChunkDataParser parser;
    ReadBytes(parser, Mark + CBytes{'q', '_', 'a', 0} + Cases[0].record);
    double value = 0.0;
    EXPECT_FALSE(parser.FindNumber("a", value));
    EXPECT_EQ(ValueOf(parser, "P1"), 1.5);
}

TEST(AAXExtChunkDataParser, ZerosBetweenRecordsArePassedOver)
{
    AAXExtChunkDataParser parser;
    ReadBytes(parser, Mark + CBytes{0, 0, 0, 0, 0, 0, 0, 0} + Cases[0].record);
    EXPECT_EQ(ValueOf(parser, "P1"), 1.5);
}

TEST(AAXExtChunkDataParser, TextEndsAfter255Bytes)
{
    // 255 bytes of tag and name, a zero and nothing to pad: the value stands at 256.
    AAXExtChunkDataParser parser;
    const std::string longest(253, 'n');
    parser.AddFloat(longest, 3.0F);
    const CBytes bytes = BytesOf(parser);
    EXPECT_EQ(bytes.size(), 4U + 256U + 4U);
    AAXExtChunkDataParser reader;
    ReadBytes(reader, bytes);
    EXPECT_EQ(ValueOf(reader, longest), 3.0);

    const CBytes endless = Mark + CBytes(1000, 'f');
    ReadBytes(reader, endless);
    double value = 0.0;
    EXPECT_FALSE(reader.FindNumber(longest, value));
}

TEST(AAXExtChunkDataParser, FirstOfSeveralRecordsOfANameCounts)
{
    AAXExtChunkDataParser parser;
    parser.AddInt32("a", 1);
    parser.AddFloat("a", 2.0F);
    EXPECT_EQ(ValueOf(parser, "a"), 1.0);
}

RC_GTEST_PROP(AAXExtChunkDataParser, ReadsBackWhatItWrote, (const std::vector<std::pair<int, int>>& numbers))
{
    AAXExtChunkDataParser parser;
    int index = 0;
    for (const auto& [type, number] : numbers)
    {
        const std::string name =
            std::string(static_cast<std::size_t>(index % 9), '-') + std::to_string(index);
        switch (type & 3)
        {
        case 0:
            parser.AddFloat(name, static_cast<float>(number));
            break;
        case 1:
            parser.AddInt32(name, number);
            break;
        case 2:
            parser.AddDouble(name, number);
            break;
        default:
            parser.AddInt16(name, static_cast<std::int16_t>(number));
            break;
        }
        ++index;
    }
    AAXExtChunkDataParser reader;
    ReadBytes(reader, BytesOf(parser));
    for (int i = 0; i < index; ++i)
    {
        const std::string name = std::string(static_cast<std::size_t>(i % 9), '-') + std::to_string(i);
        double written = 0.0;
        double read = 0.0;
        RC_ASSERT(parser.FindNumber(name, written));
        RC_ASSERT(reader.FindNumber(name, read));
        RC_ASSERT(written == read);
    }
    RC_ASSERT(BytesOf(reader) == BytesOf(parser));
}

RC_GTEST_PROP(AAXExtChunkDataParser, AnyBytesAreSafe, (const std::vector<unsigned char>& bytes))
{
    AAXExtChunkDataParser parser;
    ReadBytes(parser, bytes);
    ReadBytes(parser, Mark + bytes);
}

} // namespace
