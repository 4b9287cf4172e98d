#include "AAXPlugin/CScriptedHost.h"
#include "Host/CPluginModule.h"
#include "Host/CRecordingHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <dlfcn.h>

#include <filesystem>
#include <optional>
#include <stdexcept>

namespace
{

using namespace Host;
using testing::ElementsAre;
using Tests::CScriptedHost;

constexpr auto UnexpectedCode = static_cast<std::int32_t>(0x8000FFFF);
const std::string ModulePath = SCOPE_BANK_MODULE;

class Module : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string error;
        ASSERT_TRUE(module.Load(ModulePath, error)) << error;
    }

    CPluginModule module;
    TACFReference<CRecordingHost> host = TACFReference<CRecordingHost>::Adopt(new CRecordingHost);
    void* out = nullptr;
};

std::vector<std::string> PackageNames(const CRecordingCollection& collection)
{
    std::vector<std::string> names;
    for (const CPackageName* name : RecordsOf<CPackageName>(collection.GetDeclarations()))
    {
        names.push_back(name->text);
    }
    return names;
}

TEST_F(Module, DeclaresItselfToARealHost)
{
    ASSERT_EQ(module.startup(host.Get()), 0);
    ASSERT_EQ(module.registerPlugin(host.Get(), &out), 0);
    const auto definition =
        TACFReference<IAAXPluginDefinition>::Adopt(static_cast<IAAXPluginDefinition*>(out));
    EXPECT_EQ(definition->GetEffectCount(), 1);
    ASSERT_EQ(host->GetCollections().size(), 1U);

    const CRecordingCollection& collection = *host->GetCollections().front();
    const auto effects = RecordsOf<CAddedEffect>(collection.GetDeclarations());
    ASSERT_EQ(effects.size(), 1U);
    EXPECT_EQ(effects[0]->identifier, "com.tarnwell.Scope Bank.aaxplugin");
    EXPECT_THAT(PackageNames(collection), ElementsAre("Tarnwell's Scope Bank", "TW Scope Bank", "TW Scope"));
    EXPECT_EQ(module.shutdown(host.Get()), 0);
}

TEST_F(Module, OffersStereoAndMonoVariants)
{
    ASSERT_EQ(module.registerPlugin(host.Get(), &out), 0);
    const auto definition =
        TACFReference<IAAXPluginDefinition>::Adopt(static_cast<IAAXPluginDefinition*>(out));
    const auto effects = RecordsOf<CAddedEffect>(host->GetCollections().front()->GetDeclarations());
    const auto components = RecordsOf<CAddedComponent>(effects.at(0)->effect->GetDeclarations());
    ASSERT_EQ(components.size(), 2U);

    const struct
    {
        std::uint32_t stemFormat;
        std::uint32_t pluginId;
    } variants[] = {{0x00010002, 0}, {0x00000001, 1}};
    for (std::size_t i = 0; i < 2; ++i)
    {
        const auto processes = RecordsOf<CProcessProcedure>(components[i]->component->GetDeclarations());
        ASSERT_EQ(processes.size(), 1U);
        EXPECT_EQ(processes[0]->properties->Find(51), variants[i].stemFormat);
        EXPECT_EQ(processes[0]->properties->Find(52), variants[i].stemFormat);
        EXPECT_EQ(processes[0]->properties->Find(13), variants[i].pluginId);
        EXPECT_EQ(processes[0]->properties->Find(99), std::nullopt);
    }
}

TEST_F(Module, ClassFactoryAndComponentsHaveNothingToGive)
{
    out = &module;
    EXPECT_EQ(module.getClassFactory(host.Get(), &InterfaceIdOf<IAAXHost>, &InterfaceIdOf<IACFUnknown>, &out),
              -20009);
    EXPECT_EQ(out, nullptr);
    out = &module;
    EXPECT_EQ(module.registerComponent(host.Get(), 0, &out), 0);
    EXPECT_EQ(out, nullptr);
}

TEST_F(Module, ExceptionOfTheHostAtAnyCallBecomesACode)
{
    const auto counting = TACFReference<CScriptedHost>::Adopt(new CScriptedHost);
    ASSERT_EQ(module.registerPlugin(static_cast<IAAXHost*>(counting.Get()), &out), 0);
    static_cast<IAAXPluginDefinition*>(out)->Release();
    const int count = static_cast<int>(counting->calls.size());
    ASSERT_GT(count, 40);
    for (int throwing = 0; throwing < count; ++throwing)
    {
        const auto scripted = TACFReference<CScriptedHost>::Adopt(new CScriptedHost);
        scripted->actionAt = throwing;
        scripted->action = [throwing]() -> std::int32_t
        {
            if (throwing % 2 == 0)
            {
                throw std::runtime_error("host");
            }
            throw std::string("host");
        };
        out = &module;
        EXPECT_EQ(module.registerPlugin(static_cast<IAAXHost*>(scripted.Get()), &out), UnexpectedCode)
            << throwing;
        EXPECT_EQ(out, nullptr) << throwing;
        EXPECT_EQ(scripted->AddReference(), 2U) << "a reference is left after call " << throwing;
        scripted->Release();
    }
}

TEST_F(Module, MayBeUnloadedOnceAllIsReleased)
{
    ASSERT_EQ(module.startup(host.Get()), 0);
    ASSERT_EQ(module.registerPlugin(host.Get(), &out), 0);
    static_cast<IAAXPluginDefinition*>(out)->Release();
    EXPECT_EQ(module.canUnloadNow(host.Get()), 0);
    EXPECT_EQ(module.shutdown(host.Get()), 0);
    EXPECT_TRUE(module.Unload());
    EXPECT_EQ(host->AddReference(), 2U) << "the module kept a reference to the host";
    host->Release();
}

TEST_F(Module, LoadsAgainAfterUnloading)
{
    ASSERT_TRUE(module.Unload());
    std::string error;
    ASSERT_TRUE(module.Load(ModulePath, error)) << error;
    ASSERT_EQ(module.startup(host.Get()), 0);
    ASSERT_EQ(module.registerPlugin(host.Get(), &out), 0);
    static_cast<IAAXPluginDefinition*>(out)->Release();
    EXPECT_EQ(module.shutdown(host.Get()), 0);
}

TEST_F(Module, LoadedTwiceStaysUntilBothLetGo)
{
    CPluginModule again;
    std::string error;
    ASSERT_TRUE(again.Load(ModulePath, error)) << error;
    EXPECT_FALSE(again.Unload()) << "the other still holds it";
    ASSERT_EQ(module.registerPlugin(host.Get(), &out), 0);
    static_cast<IAAXPluginDefinition*>(out)->Release();
    EXPECT_TRUE(module.Unload());
}

TEST_F(Module, KeepsItsNamesToItself)
{
    // Loaded without sharing: a program and its plug-ins do not see each other's symbols.
    EXPECT_EQ(dlsym(RTLD_DEFAULT, "ACFRegisterComponent"), nullptr);
}

TEST_F(Module, StandsBesideItsData)
{
    const std::filesystem::path data = std::filesystem::path(ModulePath).parent_path() / "Scope Bank data";
    EXPECT_TRUE(std::filesystem::is_regular_file(data / "Legal" / "Libraries.txt"));
}

} // namespace
