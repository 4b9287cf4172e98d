#include "AAXPlugin/BufferText.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using MirelExt::AAXPlugin::CopyToBuffer;

std::string Copied(std::string_view text, std::int32_t capacity)
{
    std::string buffer(16, '#');
    EXPECT_TRUE(CopyToBuffer(text, buffer.data(), capacity));
    EXPECT_EQ(buffer[static_cast<std::size_t>(capacity)], '#');
    return buffer.substr(0, buffer.find('\0'));
}

TEST(CopyToBuffer, CopiesWhatFitsWithItsZero)
{
    EXPECT_EQ(Copied("abc", 8), "abc");
    EXPECT_EQ(Copied("abc", 4), "abc");
    EXPECT_EQ(Copied("abc", 3), "ab");
    EXPECT_EQ(Copied("abc", 1), "");
    EXPECT_EQ(Copied("", 1), "");
}

TEST(CopyToBuffer, NeverCutsACharacter)
{
    const std::string text = "a\xC3\xA9\xE2\x82\xAC"; // one, two and three bytes
    EXPECT_EQ(Copied(text, 7), text);
    EXPECT_EQ(Copied(text, 6), "a\xC3\xA9");
    EXPECT_EQ(Copied(text, 4), "a\xC3\xA9");
    EXPECT_EQ(Copied(text, 3), "a");
}

TEST(CopyToBuffer, NeedsABufferWithRoomForTheZero)
{
    char buffer = '#';
    EXPECT_FALSE(CopyToBuffer("a", nullptr, 8));
    EXPECT_FALSE(CopyToBuffer("a", &buffer, 0));
    EXPECT_FALSE(CopyToBuffer("a", &buffer, -1));
    EXPECT_EQ(buffer, '#');
}

} // namespace
