#include "AAXPlugin/Description.h"

#include "AAXPlugin/CAAXPluginProcessContext.h"
#include "AAXPlugin/CScriptedHost.h"
#include "AAXPlugin/ComponentDescription.h"
#include "AAXPlugin/Interface/AAX_VCollection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace
{

using namespace MirelExt::AAXPlugin;
using testing::ElementsAre;
using testing::ElementsAreArray;
using Tests::CScriptedHost;

constexpr std::int32_t HostCode = -7;
using CLines = std::vector<std::string>;

CLines ExpectedComponent(std::uint32_t inputFormat, std::uint32_t outputFormat, int pluginId)
{
    return {"CreateComponentDescriptor",
            "AddDataInPort 0 4 1",
            "AddDataInPort 1 " + std::to_string(sizeof(void*)) + " 1",
            "AddAudioInput 2",
            "AddAudioOutput 3",
            "AddAudioBufferLength 4",
            "AddMidiNode 5 input Tarnwell's Scope Bank 65535",
            "AddMidiNode 6 output Tarnwell's Scope Bank Out 65535",
            "CreatePropertyMap",
            "SetProperty 11 " + std::to_string(0x746E776C),
            "SetProperty 12 " + std::to_string(0x35383436),
            "SetProperty 60 1",
            "SetProperty 51 " + std::to_string(inputFormat),
            "SetProperty 52 " + std::to_string(outputFormat),
            "SetProperty 13 " + std::to_string(pluginId),
            "AddProcessProcedure",
            "AddComponent"};
}

CLines operator+(CLines first, const CLines& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

const CLines NamesAndProcedures = {"AddName Tarnwell's Scope Bank", "AddName TW Scope Bank",
                                   "AddName TW Scope", "AddCreationProcedure 0", "AddCreationProcedure 1"};

const CLines Package = {"SetManufacturerName Tarnwell", "AddPackageName Tarnwell's Scope Bank",
                        "AddPackageName TW Scope Bank", "AddPackageName TW Scope", "SetPackageVersion 1"};

/// The program that holds these tests stands for the module.
const CLines Added = {"AddEffect com.tarnwell.aaxplugin_tests"};

const CLines WholeStereo = CLines{"CreateEffectDescriptor"} + NamesAndProcedures +
                           ExpectedComponent(0x00010002, 0x00010002, 0) + ExpectedComponent(1, 1, 1) + Added +
                           Package;

TACFReference<CScriptedHost> MakeHost()
{
    return TACFReference<CScriptedHost>::Adopt(new CScriptedHost);
}

/// Describes to the host; the calls written down start after the making of the collection.
std::int32_t Describe(CScriptedHost& host, CChannelCounts declared)
{
    AAX_VCollection collection(static_cast<IAAXHost*>(&host));
    host.calls.clear();
    return DescribeModule(collection, [declared] { return declared; });
}

CLines DescribeEffectOf(CChannelCounts declared)
{
    const auto host = MakeHost();
    AAX_VPlugInDescriptor effect{TACFReference<IAAXEffectDescriptor>(host.Get())};
    EXPECT_EQ(DescribeEffect(effect, declared), 0);
    return host->calls;
}

TEST(DescribeModule, MakesAllCallsInOrder)
{
    const auto host = MakeHost();
    EXPECT_EQ(Describe(*host, {2, 0}), 0);
    EXPECT_THAT(host->calls, ElementsAreArray(WholeStereo));
}

TEST(DescribeModule, RegistersWorkingProcedures)
{
    const auto host = MakeHost();
    Describe(*host, {2, 0});
    EXPECT_THAT(host->procedures, ElementsAre(&ProcessInstances, &ProcessInstances));
}

TEST(DescribeModule, AsksForTheFilterOnceAndAfterTheDescriptor)
{
    const auto host = MakeHost();
    AAX_VCollection collection(static_cast<IAAXHost*>(host.Get()));
    CLines callsBefore;
    int asked = 0;
    DescribeModule(collection,
                   [&]
                   {
                       ++asked;
                       callsBefore = host->calls;
                       return CChannelCounts{2, 0};
                   });
    EXPECT_EQ(asked, 1);
    EXPECT_THAT(callsBefore, ElementsAre("CreateCollection", "CreateEffectDescriptor"));
}

TEST(DescribeModule, WithoutACollectionFailsAndMakesNoFilter)
{
    AAX_VCollection collection(nullptr);
    bool asked = false;
    EXPECT_EQ(DescribeModule(collection,
                             [&]
                             {
                                 asked = true;
                                 return CChannelCounts{2, 0};
                             }),
              -20004);
    EXPECT_FALSE(asked);
}

TEST(DescribeModule, EndsAtTheFirstCallThatFailsUntilTheEffectIsAdded)
{
    const auto added = static_cast<int>(std::find(WholeStereo.begin(), WholeStereo.end(), Added.front()) -
                                        WholeStereo.begin());
    for (int failing = 0; failing < added; ++failing)
    {
        const auto host = MakeHost();
        AAX_VCollection collection(static_cast<IAAXHost*>(host.Get()));
        host->calls.clear();
        host->actionAt = failing;
        host->action = [] { return HostCode; };
        const std::string& call = WholeStereo[static_cast<std::size_t>(failing)];
        // An object that was not made is the shell's own failure; any other result is the host's.
        const std::int32_t expected = call.starts_with("Create") ? -20004 : HostCode;
        EXPECT_EQ(DescribeModule(collection, [] { return CChannelCounts{2, 0}; }), expected) << call;
        EXPECT_EQ(host->calls.size(), static_cast<std::size_t>(failing) + 1) << call;
    }
}

TEST(DescribeModule, ResultIsThatOfAddingTheEffectAndThePackageIsDescribedAllTheSame)
{
    const auto host = MakeHost();
    AAX_VCollection collection(static_cast<IAAXHost*>(host.Get()));
    host->calls.clear();
    host->actionAt = static_cast<int>(WholeStereo.size() - Package.size()) - 1;
    host->action = [] { return HostCode; };
    EXPECT_EQ(DescribeModule(collection, [] { return CChannelCounts{2, 0}; }), HostCode);
    EXPECT_THAT(host->calls, ElementsAreArray(WholeStereo));
}

TEST(DescribeModule, PackageCallsThatFailDoNotCount)
{
    for (std::size_t back = 1; back <= Package.size(); ++back)
    {
        const auto host = MakeHost();
        AAX_VCollection collection(static_cast<IAAXHost*>(host.Get()));
        host->calls.clear();
        host->actionAt = static_cast<int>(WholeStereo.size() - back);
        host->action = [] { return HostCode; };
        EXPECT_EQ(DescribeModule(collection, [] { return CChannelCounts{2, 0}; }), 0);
        EXPECT_THAT(host->calls, ElementsAreArray(WholeStereo));
    }
}

TEST(DescribeModule, LeavesNoReferenceBehind)
{
    const auto host = MakeHost();
    Describe(*host, {2, 0});
    EXPECT_EQ(host->AddReference(), 2U);
    host->Release();
}

TEST(DescribeEffect, MonoFilterRegistersOneComponentOnly)
{
    EXPECT_THAT(DescribeEffectOf({1, 1}), ElementsAreArray(NamesAndProcedures + ExpectedComponent(1, 1, 0)));
    EXPECT_THAT(DescribeEffectOf({1, 0}), ElementsAreArray(NamesAndProcedures + ExpectedComponent(1, 1, 0)));
}

TEST(DescribeEffect, FilterWithOutputsOnlyIsOfferedWithAsManyInputs)
{
    EXPECT_THAT(DescribeEffectOf({0, 6}),
                ElementsAreArray(NamesAndProcedures + ExpectedComponent(0x00060006, 0x00060006, 0) +
                                 ExpectedComponent(1, 1, 1)));
}

TEST(DescribeEffect, FilterWithoutChannelsIsOfferedAsStereo)
{
    EXPECT_THAT(DescribeEffectOf({0, 0}),
                ElementsAreArray(NamesAndProcedures + ExpectedComponent(0x00010002, 0x00010002, 0) +
                                 ExpectedComponent(1, 1, 1)));
}

TEST(DescribeEffect, SidesThatDifferKeepTheirOwnFormats)
{
    EXPECT_THAT(DescribeEffectOf({1, 2}),
                ElementsAreArray(NamesAndProcedures + ExpectedComponent(1, 0x00010002, 0) +
                                 ExpectedComponent(1, 1, 1)));
    EXPECT_THAT(DescribeEffectOf({9, 8}),
                ElementsAreArray(NamesAndProcedures + ExpectedComponent(0xFF9C0000, 0x00080007, 0) +
                                 ExpectedComponent(1, 1, 1)));
}

TEST(DescribeComponent, MonoVariantIsMonoWhateverTheFilterHas)
{
    const auto host = MakeHost();
    AAX_VComponentDescriptor component{TACFReference<IAAXComponentDescriptor>(host.Get())};
    EXPECT_EQ(DescribeComponent(component, {4, 4}, 1, true), 0);
    EXPECT_THAT(host->calls, testing::Contains("SetProperty 51 1"));
    EXPECT_THAT(host->calls, testing::Contains("SetProperty 52 1"));
}

} // namespace
