#include "AAXPlugin/StateChunk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

namespace
{

using namespace MirelExt::AAXPlugin;
using testing::ElementsAreArray;

TEST(StateChunk, IsAsWrittenDownHere)
{
    std::array<char, 56 + 61 + 1> memory = {};
    memory.fill('#');
    auto* chunk = reinterpret_cast<SAAXChunk*>(memory.data());
    ASSERT_EQ(StateChunkSize("abc"), 61U);
    WriteStateChunk("abc", *chunk);

    const std::string untouched(16, '#');
    std::string expected = std::string{61, 0, 0, 0} + untouched + "lwnt" + "Tarnwell Plugin State";
    expected.resize(56);
    expected += "abc";
    expected.resize(56 + 61);
    expected += '#';
    EXPECT_THAT(std::string(memory.begin(), memory.end()), ElementsAreArray(expected));
    EXPECT_EQ(StateTextOf(*chunk), "abc");
}

TEST(StateChunk, OfSize57OrLessHasNoText)
{
    std::array<char, 56 + 64> memory = {};
    auto* chunk = reinterpret_cast<SAAXChunk*>(memory.data());
    memory[56] = 'a';
    for (const std::uint32_t size : {0U, 1U, 56U, 57U})
    {
        chunk->size = size;
        EXPECT_EQ(StateTextOf(*chunk), "") << size;
    }
    chunk->size = 58;
    EXPECT_EQ(StateTextOf(*chunk), "a");
}

TEST(StateChunk, TextWithoutAZeroEndsWhereTheSizeSays)
{
    std::array<char, 56 + 64> memory = {};
    memory.fill('a');
    auto* chunk = reinterpret_cast<SAAXChunk*>(memory.data());
    chunk->size = 57 + 5;
    EXPECT_EQ(StateTextOf(*chunk), "aaaaa");
}

} // namespace
