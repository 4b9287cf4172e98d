#include "Host/CPluginModule.h"

#include "Host/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using Host::CPluginModule;
using testing::HasSubstr;
using testing::Not;

TEST(CPluginModule, FindsAllExportsOfTheModule)
{
    CPluginModule module;
    std::string error;
    ASSERT_TRUE(module.Load(Tests::ScopeBankModule(), error)) << error;
    EXPECT_TRUE(module.IsLoaded());
    EXPECT_NE(module.startup, nullptr);
    EXPECT_NE(module.registerPlugin, nullptr);
    EXPECT_NE(module.registerComponent, nullptr);
    EXPECT_NE(module.getClassFactory, nullptr);
    EXPECT_NE(module.canUnloadNow, nullptr);
    EXPECT_NE(module.shutdown, nullptr);
    EXPECT_TRUE(module.Unload());
    EXPECT_FALSE(module.IsLoaded());
    EXPECT_EQ(module.startup, nullptr);
    EXPECT_TRUE(module.Unload()) << "nothing loaded is nothing to unload";
}

TEST(CPluginModule, MissingFileIsNamed)
{
    CPluginModule module;
    std::string error;
    EXPECT_FALSE(module.Load("/nowhere/at all.aaxplugin", error));
    EXPECT_EQ(error, "no module at \"/nowhere/at all.aaxplugin\"");
    EXPECT_FALSE(module.Load("", error));
    EXPECT_EQ(error, "no module at \"\"");
    EXPECT_FALSE(module.Load("/", error));
    EXPECT_EQ(error, "no module at \"/\"");
    EXPECT_FALSE(module.IsLoaded());
}

TEST(CPluginModule, BareNameIsNotLookedForOnTheSystem)
{
    CPluginModule module;
    std::string error;
    EXPECT_FALSE(module.Load("libm.so.6", error));
    EXPECT_EQ(error, "no module at \"libm.so.6\"");
}

TEST(CPluginModule, FileThatIsNoLibraryIsAnErrorInOneLine)
{
    CPluginModule module;
    std::string error;
    EXPECT_FALSE(module.Load(Tests::NoModuleFile(), error));
    EXPECT_THAT(error, testing::StartsWith("cannot load the module: "));
    EXPECT_THAT(error, Not(HasSubstr("\n")));
}

TEST(CPluginModule, MissingExportsAreNamed)
{
    CPluginModule module;
    std::string error;
    EXPECT_FALSE(module.Load(Tests::TestModule("partial"), error));
    EXPECT_EQ(error, Tests::MissingExportsOfPartial());
    EXPECT_FALSE(module.IsLoaded());
    EXPECT_EQ(module.startup, nullptr);
}

} // namespace
