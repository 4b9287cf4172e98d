#include "Support/CTemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

namespace
{

/// Instances read the user's preferences: those of a test run are a folder of their own.
class CTestPreferences : public testing::Environment
{
public:
    void SetUp() override
    {
        folder.emplace();
        // Before any thread. NOLINTNEXTLINE(concurrency-mt-unsafe)
        setenv("XDG_CONFIG_HOME", folder->GetPath("").c_str(), 1);
    }

    void TearDown() override { folder.reset(); }

private:
    std::optional<Tests::CTemporaryFolder> folder;
};

const testing::Environment* const Environment = testing::AddGlobalTestEnvironment(new CTestPreferences);

} // namespace
