#include "Host/CPluginSession.h"

#include "Host/TestFiles.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace
{

using namespace Host;

bool IsInMemory(const std::string& path)
{
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NOLOAD);
    if (handle != nullptr)
    {
        dlclose(handle);
    }
    return handle != nullptr;
}

TEST(CPluginSession, OpensTheModuleAndLetsItGoAgain)
{
    CPluginSession session;
    std::string error;
    EXPECT_EQ(session.GetCollection(), nullptr);
    ASSERT_TRUE(session.Open(Tests::ScopeBankModule(), error)) << error;
    EXPECT_TRUE(IsInMemory(Tests::ScopeBankModule()));
    EXPECT_TRUE(session.Close(error)) << error;
    EXPECT_FALSE(IsInMemory(Tests::ScopeBankModule()));
    ASSERT_NE(session.GetCollection(), nullptr);
    EXPECT_EQ(RecordsOf<CAddedEffect>(session.GetCollection()->GetDeclarations()).size(), 1U)
        << "what was declared stays readable";
    EXPECT_TRUE(session.Close(error)) << "closing twice is nothing to do";
}

TEST(CPluginSession, ClosesItselfAtItsEnd)
{
    {
        CPluginSession session;
        std::string error;
        ASSERT_TRUE(session.Open(Tests::ScopeBankModule(), error)) << error;
    }
    EXPECT_FALSE(IsInMemory(Tests::ScopeBankModule()));
}

TEST(CPluginSession, FailedOpenNamesTheCallAndItsCodeAndLeavesNothingLoaded)
{
    const struct
    {
        const char* module;
        const char* error;
    } rows[] = {{"refuses_startup", "ACFStartup failed with code -3"},
                {"refuses_registration", "ACFRegisterPlugin failed with code -20004"},
                {"catches_exception", "ACFRegisterPlugin failed with code -2147418113"},
                {"registers_null", "the module registered no effect"},
                {"empty", "the module registered no effect"}};
    for (const auto& row : rows)
    {
        CPluginSession session;
        std::string error;
        EXPECT_FALSE(session.Open(Tests::TestModule(row.module), error)) << row.module;
        EXPECT_EQ(error, row.error) << row.module;
        EXPECT_EQ(session.GetCollection(), nullptr) << row.module;
        EXPECT_FALSE(IsInMemory(Tests::TestModule(row.module))) << row.module;
    }
}

TEST(CPluginSession, OpensAfterAFailedOpen)
{
    CPluginSession session;
    std::string error;
    EXPECT_FALSE(session.Open(Tests::TestModule("refuses_registration"), error));
    EXPECT_TRUE(session.Open(Tests::ScopeBankModule(), error)) << error;
    EXPECT_TRUE(session.Close(error)) << error;
}

TEST(CPluginSession, ModuleThatStillHoldsObjectsStaysLoaded)
{
    CPluginSession session;
    std::string error;
    ASSERT_TRUE(session.Open(Tests::TestModule("holds_objects"), error)) << error;
    EXPECT_FALSE(session.Close(error));
    EXPECT_EQ(error, "the module still holds objects and stays loaded");
    EXPECT_TRUE(IsInMemory(Tests::TestModule("holds_objects")));
}

TEST(CPluginSession, FailedShutdownIsReported)
{
    CPluginSession session;
    std::string error;
    ASSERT_TRUE(session.Open(Tests::TestModule("refuses_shutdown"), error)) << error;
    EXPECT_FALSE(session.Close(error));
    EXPECT_EQ(error, "ACFShutdown failed with code -5");
    EXPECT_FALSE(IsInMemory(Tests::TestModule("refuses_shutdown")));
}

} // namespace
