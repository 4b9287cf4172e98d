#include "Host/Live/CFolderWatch.h"

#include "Support/CTemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>

namespace Host
{
namespace
{

TEST(CFolderWatch, TellsWrittenAddedAndRemovedFilesOnce)
{
    namespace fs = std::filesystem;
    const Tests::CTemporaryFolder folder;
    folder.Write("skin.xml", "<SKIN/>");
    CFolderWatch watch(fs::path(folder.GetPath("skin.xml")).parent_path());
    EXPECT_FALSE(watch.HasChanged());

    // The clock of files may be coarse: the new time is set.
    fs::last_write_time(folder.GetPath("skin.xml"),
                        fs::file_time_type::clock::now() + std::chrono::seconds(1));
    EXPECT_TRUE(watch.HasChanged());
    EXPECT_FALSE(watch.HasChanged());

    fs::create_directory(folder.GetPath("images"));
    EXPECT_TRUE(watch.HasChanged());
    folder.Write("images/a.png", "");
    EXPECT_TRUE(watch.HasChanged());
    fs::remove(folder.GetPath("images/a.png"));
    EXPECT_TRUE(watch.HasChanged());
    EXPECT_FALSE(watch.HasChanged());
}

TEST(CFolderWatch, AFolderThatIsNotThereNeverChanges)
{
    CFolderWatch watch("/nowhere/at/all");
    EXPECT_FALSE(watch.HasChanged());
}

} // namespace
} // namespace Host
