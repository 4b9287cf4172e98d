#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace
{

/// Instances read and write the user's preferences: those of a test run are a folder of their own.
class CTestPreferences : public testing::Environment
{
public:
    void SetUp() override
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "aaxplugin-tests-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        folder = pattern;
        // Before any thread. NOLINTNEXTLINE(concurrency-mt-unsafe)
        setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
    }

    void TearDown() override { std::filesystem::remove_all(folder); }

private:
    std::string folder;
};

const testing::Environment* const Environment = testing::AddGlobalTestEnvironment(new CTestPreferences);

} // namespace
