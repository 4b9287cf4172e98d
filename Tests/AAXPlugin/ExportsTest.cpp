#include "AAXPlugin/CHostHolder.h"
#include "AAXPlugin/CScriptedHost.h"
#include "AAXPlugin/Interface/ACFExports.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

using MirelExt::AAXPlugin::CHostHolder;
using Tests::CScriptedHost;

constexpr auto UnexpectedCode = static_cast<std::int32_t>(0x8000FFFF);

TACFReference<CScriptedHost> MakeHost()
{
    return TACFReference<CScriptedHost>::Adopt(new CScriptedHost);
}

IACFUnknown* UnknownOf(const TACFReference<CScriptedHost>& host)
{
    return static_cast<IAAXHost*>(host.Get());
}

class CThrowingUnknown : public IACFUnknown
{
public:
    virtual ~CThrowingUnknown() = default;

    std::int32_t QueryInterface(const ACFInterfaceId&, void**) override { throw std::runtime_error("query"); }

    std::uint32_t AddReference() override
    {
        if (throwsOnAdd)
        {
            throw 1;
        }
        return 2;
    }

    std::uint32_t Release() override { throw 2; }

    bool throwsOnAdd = false;
};

TEST(Exports, StartupKeepsTheFirstHostUntilShutdown)
{
    const auto first = MakeHost();
    const auto second = MakeHost();
    EXPECT_EQ(ACFStartup(UnknownOf(first)), 0);
    EXPECT_EQ(ACFStartup(UnknownOf(second)), 0);
    EXPECT_EQ(CHostHolder::GetInstance().Get().Get(), UnknownOf(first));
    EXPECT_EQ(ACFShutdown(UnknownOf(second)), 0);
    EXPECT_FALSE(CHostHolder::GetInstance().Get());
    EXPECT_EQ(ACFShutdown(UnknownOf(second)), 0);
}

TEST(Exports, CanUnloadFollowsTheLiveObjects)
{
    EXPECT_EQ(ACFCanUnloadNow(nullptr), 0);
    auto* object = new CScriptedHost;
    EXPECT_EQ(ACFCanUnloadNow(nullptr), 1);
    object->AddReference();
    object->Release();
    EXPECT_EQ(ACFCanUnloadNow(nullptr), 1);
    object->Release();
    EXPECT_EQ(ACFCanUnloadNow(nullptr), 0);
}

TEST(Exports, ClassFactoryIsUnsupported)
{
    int something = 0;
    void* factory = &something;
    EXPECT_EQ(ACFGetClassFactory(nullptr, &InterfaceIdOf<IAAXHost>, &InterfaceIdOf<IACFUnknown>, &factory),
              -20009);
    EXPECT_EQ(factory, nullptr);
    EXPECT_EQ(ACFGetClassFactory(nullptr, nullptr, nullptr, nullptr), -20009);
}

TEST(Exports, RegisterComponentHasNoneToGive)
{
    for (const std::uint32_t index : {0U, 1U, 0xFFFFFFFFU})
    {
        int something = 0;
        void* component = &something;
        EXPECT_EQ(ACFRegisterComponent(nullptr, index, &component), 0);
        EXPECT_EQ(component, nullptr);
        EXPECT_EQ(ACFRegisterComponent(nullptr, index, nullptr), 0);
    }
}

TEST(Exports, RegisterPluginGivesTheCollectionsDefinition)
{
    const auto host = MakeHost();
    void* definition = nullptr;
    ASSERT_EQ(ACFRegisterPlugin(UnknownOf(host), &definition), 0);
    EXPECT_EQ(definition, static_cast<IAAXPluginDefinition*>(host.Get()));
    EXPECT_EQ(host->AddReference(), 3U) << "ours, the one given out, the one just added";
    host->Release();
    static_cast<IAAXPluginDefinition*>(definition)->Release();
}

TEST(Exports, RegisterPluginFailsWithoutADefinition)
{
    const auto host = MakeHost();
    host->offersDefinition = false;
    int something = 0;
    void* definition = &something;
    EXPECT_EQ(ACFRegisterPlugin(UnknownOf(host), &definition), -20004);
    EXPECT_EQ(definition, nullptr);
}

TEST(Exports, RegisterPluginFailsWithoutAHostOrAPlaceForTheResult)
{
    int something = 0;
    void* definition = &something;
    EXPECT_EQ(ACFRegisterPlugin(nullptr, &definition), -20004);
    EXPECT_EQ(definition, nullptr);
    const auto host = MakeHost();
    EXPECT_EQ(ACFRegisterPlugin(UnknownOf(host), nullptr), -20004);
    EXPECT_EQ(host->AddReference(), 2U);
    host->Release();
}

TEST(Exports, RegisterPluginReportsAnyFailedDescriptionWithItsOneCode)
{
    const auto counting = MakeHost();
    void* definition = nullptr;
    ACFRegisterPlugin(UnknownOf(counting), &definition);
    static_cast<IAAXPluginDefinition*>(definition)->Release();

    // The five calls at the end describe the package, and are not asked how they went.
    const int count = static_cast<int>(counting->calls.size()) - 5;
    ASSERT_THAT(counting->calls[static_cast<std::size_t>(count) - 1], testing::StartsWith("AddEffect"));
    for (int failing = 0; failing < count; ++failing)
    {
        const auto host = MakeHost();
        host->actionAt = failing;
        host->action = [] { return -7; };
        EXPECT_EQ(ACFRegisterPlugin(UnknownOf(host), &definition), -20004) << failing;
        EXPECT_EQ(definition, nullptr) << failing;
        EXPECT_EQ(host->AddReference(), 2U) << failing;
        host->Release();
    }
}

TEST(Exports, ExceptionsBecomeACode)
{
    CThrowingUnknown host;
    int something = 0;
    void* definition = &something;
    EXPECT_EQ(ACFRegisterPlugin(&host, &definition), UnexpectedCode);
    EXPECT_EQ(definition, nullptr);

    EXPECT_EQ(ACFStartup(&host), 0);
    EXPECT_EQ(ACFShutdown(&host), UnexpectedCode);
    EXPECT_FALSE(CHostHolder::GetInstance().Get());

    host.throwsOnAdd = true;
    EXPECT_EQ(ACFStartup(&host), UnexpectedCode);
    EXPECT_FALSE(CHostHolder::GetInstance().Get());
}

} // namespace
