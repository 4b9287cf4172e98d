#include "Mirel/Serialization/Base64.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace Mirel::Serialization
{
namespace
{

std::string Encode(const std::string& bytes)
{
    const std::unique_ptr<char[]> text(EncodeBase64(bytes.data(), static_cast<std::uint32_t>(bytes.size())));
    return text.get();
}

std::string Decode(const std::string& text)
{
    std::uint32_t size = 99;
    const std::unique_ptr<char[]> bytes(DecodeBase64(text.c_str(), size));
    return bytes == nullptr ? "(null " + std::to_string(size) + ")" : std::string(bytes.get(), size);
}

TEST(Base64, EncodesTheVectorsOfRfc4648)
{
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
        {std::string("\0\xFF\xFB", 3), "AP/7"},
        {"\xFB\xF0", "+/A="},
    };
    for (const auto& [bytes, text] : cases)
    {
        EXPECT_EQ(Encode(bytes), text);
        EXPECT_EQ(Decode(text), bytes);
    }
}

TEST(Base64, RefusesALengthThatIsNoMultipleOfFour)
{
    for (const char* text : {"Z", "Zg", "Zg=", "Zm9vY", "Zm9vYg="})
    {
        EXPECT_EQ(Decode(text), "(null 0)") << text;
    }
    std::uint32_t size = 5;
    EXPECT_EQ(DecodeBase64(nullptr, size), nullptr);
    EXPECT_EQ(size, 0U);
}

TEST(Base64, TheEmptyTextIsAnEmptyAllocation)
{
    std::uint32_t size = 5;
    const std::unique_ptr<char[]> bytes(DecodeBase64("", size));
    EXPECT_NE(bytes, nullptr);
    EXPECT_EQ(size, 0U);
}

TEST(Base64, TakesForeignCharactersForZeroBits)
{
    // Z = 25 gives 0x64, and six zero bits for each of the others.
    EXPECT_EQ(Decode("Z*\x80 "), std::string("\x64\0\0", 3));
    EXPECT_EQ(Decode("-_-_"), std::string(3, '\0'));
}

TEST(Base64, RecognisesPaddingByTheLastTwoCharacters)
{
    EXPECT_EQ(Decode("===="), std::string(1, '\0'));
    // A lone third "=" is a foreign character and takes nothing away.
    EXPECT_EQ(Decode("Zm=v").size(), 3U);
    // So are those of a group that is not the last.
    EXPECT_EQ(Decode("Zg==Zm9v"), std::string("f\0\0foo", 6));
}

TEST(Base64, EncodesNullAsNothing)
{
    const std::unique_ptr<char[]> text(EncodeBase64(nullptr, 7));
    EXPECT_STREQ(text.get(), "");
}

RC_GTEST_PROP(Base64, GivesAnyBytesBack, (const std::vector<char>& bytes))
{
    const std::string original(bytes.begin(), bytes.end());
    const std::string text = Encode(original);
    RC_ASSERT(text.size() == EncodedBase64Length(bytes.size()));
    RC_ASSERT(Decode(text) == original);
}

} // namespace
} // namespace Mirel::Serialization
