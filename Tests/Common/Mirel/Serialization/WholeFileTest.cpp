#include "Mirel/Serialization/WholeFile.h"

#include "Support/CTemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace Mirel::Serialization
{
namespace
{

using testing::UnorderedElementsAre;
namespace fs = std::filesystem;

TEST(WriteFileWhole, MakesAndReplacesAFileAndLeavesNoTemporary)
{
    const Tests::CTemporaryFolder folder;
    const std::string path = folder.GetPath("a");
    EXPECT_TRUE(WriteFileWhole(path.c_str(), "first and longer"));
    EXPECT_EQ(folder.Read("a"), "first and longer");
    EXPECT_TRUE(WriteFileWhole(path.c_str(), std::string("new\0", 4)));
    EXPECT_EQ(folder.Read("a"), std::string("new\0", 4));
    EXPECT_THAT(folder.List(), UnorderedElementsAre("a"));
}

TEST(WriteFileWhole, ReplacesTheFileAndDoesNotWriteIntoIt)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("a", "old");
    fs::create_hard_link(folder.GetPath("a"), folder.GetPath("link"));
    EXPECT_TRUE(WriteFileWhole(folder.GetPath("a").c_str(), "new"));
    EXPECT_EQ(folder.Read("a"), "new");
    EXPECT_EQ(folder.Read("link"), "old");
}

TEST(WriteFileWhole, KeepsTheOldFileWhenTheDiskTakesNoMore)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("a", "old");
    // A limit on the size of files stands for the full disk.
    rlimit before = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = before;
    small.rlim_cur = 1000;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool written = WriteFileWhole(folder.GetPath("a").c_str(), std::string(5000, 'x'));
    setrlimit(RLIMIT_FSIZE, &before);
    static_cast<void>(std::signal(SIGXFSZ, handler));
    EXPECT_FALSE(written);
    EXPECT_EQ(folder.Read("a"), "old");
    EXPECT_THAT(folder.List(), UnorderedElementsAre("a"));
}

TEST(WriteFileWhole, FailsWhereNoFileCanStand)
{
    const Tests::CTemporaryFolder folder;
    fs::create_directory(folder.GetPath("folder"));
    EXPECT_FALSE(WriteFileWhole(folder.GetPath("folder").c_str(), "x"));
    EXPECT_FALSE(WriteFileWhole(folder.GetPath("none/a").c_str(), "x"));
    EXPECT_FALSE(WriteFileWhole(folder.GetPath(std::string(300, 'n')).c_str(), "x"));
    EXPECT_FALSE(WriteFileWhole("", "x"));
    EXPECT_FALSE(WriteFileWhole(nullptr, "x"));
    EXPECT_THAT(folder.List(), UnorderedElementsAre("folder"));
    EXPECT_TRUE(fs::is_empty(folder.GetPath("folder")));
}

TEST(WriteFileWhole, KeepsPermissions)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("a", "old");
    fs::permissions(folder.GetPath("a"), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_TRUE(WriteFileWhole(folder.GetPath("a").c_str(), "new"));
    EXPECT_EQ(fs::status(folder.GetPath("a")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(WriteFileWhole, WritesThroughASymbolicLink)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("real", "old");
    fs::create_symlink("real", folder.GetPath("link"));
    EXPECT_TRUE(WriteFileWhole(folder.GetPath("link").c_str(), "new"));
    EXPECT_EQ(folder.Read("real"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.GetPath("link")));
}

TEST(WriteFileWhole, TakesANameAsLongAsNamesCanBe)
{
    const Tests::CTemporaryFolder folder;
    const std::string name(255, 'n');
    EXPECT_TRUE(WriteFileWhole(folder.GetPath(name).c_str(), "x"));
    EXPECT_EQ(folder.Read(name), "x");
}

TEST(ReadFileWhole, ReadsUpToTheLimit)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("a", "12345");
    folder.Write("empty", "");
    std::string content = "kept";
    EXPECT_FALSE(ReadFileWhole(folder.GetPath("a").c_str(), 4, content));
    EXPECT_EQ(content, "kept");
    EXPECT_TRUE(ReadFileWhole(folder.GetPath("a").c_str(), 5, content));
    EXPECT_EQ(content, "12345");
    EXPECT_TRUE(ReadFileWhole(folder.GetPath("empty").c_str(), 5, content));
    EXPECT_EQ(content, "");
}

TEST(ReadFileWhole, RefusesWhatIsNoFile)
{
    const Tests::CTemporaryFolder folder;
    ASSERT_EQ(mkfifo(folder.GetPath("pipe").c_str(), 0600), 0);
    std::string content = "kept";
    for (const std::string& path :
         {folder.GetPath(""), folder.GetPath("none"), folder.GetPath("pipe"), std::string("/dev/zero")})
    {
        EXPECT_FALSE(ReadFileWhole(path.c_str(), 100, content)) << path;
    }
    EXPECT_FALSE(ReadFileWhole(nullptr, 100, content));
    EXPECT_EQ(content, "kept");
}

} // namespace
} // namespace Mirel::Serialization
