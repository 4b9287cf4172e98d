#include "AAXPlugin/Identity.h"

#include "AAXPlugin/CChannelCounts.h"
#include "AAXPlugin/ModuleFile.h"
#include "AAXPlugin/StemFormats.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace
{

using namespace MirelExt::AAXPlugin;

TEST(Identity, IsWhatHostsKnowTheProductBy)
{
    EXPECT_STREQ(ProductName, "Tarnwell's Scope Bank");
    EXPECT_STREQ(ProductVersion, "1.7");
    EXPECT_STREQ(ManufacturerName, "Tarnwell");
    EXPECT_EQ(ManufacturerId, 0x746E776CU);
    EXPECT_EQ(ProductId, 0x35383436U);
    EXPECT_EQ(MainPluginId, 0U);
    EXPECT_EQ(MonoPluginId, 1U);
    EXPECT_EQ(DefaultRefreshRate, 50.0);
}

TEST(StemFormats, FollowTheChannelCount)
{
    const struct
    {
        int channels;
        std::uint32_t format;
    } rows[] = {{1, 0x00000001},       {2, 0x00010002},       {3, 0x00020003},       {4, 0x00040004},
                {5, 0x00050005},       {6, 0x00060006},       {7, 0x00070006},       {8, 0x00080007},
                {0, 0xFF9C0000},       {9, 0xFF9C0000},       {-1, 0xFF9C0000},      {100, 0xFF9C0000},
                {INT_MAX, 0xFF9C0000}, {INT_MIN, 0xFF9C0000}, {-INT_MAX, 0xFF9C0000}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(StemFormatOf(row.channels), row.format) << row.channels << " channels";
    }
}

TEST(CChannelCounts, OpenSideTakesTheOthersCount)
{
    const struct
    {
        CChannelCounts declared;
        CChannelCounts offered;
    } rows[] = {{{2, 0}, {2, 2}}, {{0, 2}, {2, 2}}, {{0, 1}, {1, 1}}, {{0, 6}, {6, 6}}, {{0, 0}, {2, 2}},
                {{1, 0}, {1, 1}}, {{1, 1}, {1, 1}}, {{1, 2}, {1, 2}}, {{3, 5}, {3, 5}}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(OfferedChannels(row.declared), row.offered)
            << row.declared.inputs << " in, " << row.declared.outputs << " out";
    }
}

TEST(ModuleFile, FileNameIsWhatFollowsTheLastSlash)
{
    EXPECT_EQ(FileNameOf("/opt/plug ins/Scope Bank.aaxplugin"), "Scope Bank.aaxplugin");
    EXPECT_EQ(FileNameOf("Scope.aaxplugin"), "Scope.aaxplugin");
    EXPECT_EQ(FileNameOf("./a/b"), "b");
    EXPECT_EQ(FileNameOf("a/"), "");
    EXPECT_EQ(FileNameOf(""), "");
}

TEST(ModuleFile, EffectIdentifierIsThePrefixAndTheFileName)
{
    EXPECT_EQ(MakeEffectIdentifier("/x/Scope Bank.aaxplugin"), "com.tarnwell.Scope Bank.aaxplugin");
}

TEST(ModuleFile, PathIsThatOfTheFileThatHoldsTheCode)
{
    const std::string name(FileNameOf(GetModulePath()));
    EXPECT_EQ(name, "aaxplugin_tests");
}

} // namespace
