#include "AAXPlugin/AAXExtEffectParameters.h"

#include "AAXPlugin/ParamInfo.h"
#include "Host/CHostController.h"
#include "Mirel/Audio/Plugin/CParamValue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <stdexcept>

namespace
{

using namespace MirelExt::AAXPlugin;
using Mirel::Audio::Plugin::CParamValue;
using Mirel::DataModel::Objects::CEnumToText;
using Mirel::DataModel::Objects::CParamInfo;
using testing::ElementsAreArray;

constexpr std::uint32_t Controls = 0x656C636B; // 'elck'

/// An effect with a switch and a real from -1 to 3, whose default is 0.
class CTestEffect : public AAXExtEffectParameters
{
public:
    std::int32_t initResult = AAXResult::Ok;
    bool throws = false;
    CParamInfo bypassInfo = Tests::ParamInfo(0, 0.0F, 1.0F, 0.0F, "Bypass");
    CParamInfo depthInfo = {2, -1.0F, 3.0F, 0.0F, "D\xC3\xA9pth", "", ""};
    CParamValue bypass{bypassInfo};
    CParamValue depth{depthInfo};

protected:
    std::int32_t EffectInit() override
    {
        if (throws)
        {
            throw std::runtime_error("effect");
        }
        bypassInfo.SetValueToText(new CEnumToText({"Off", "On"}), true);
        AddParameter(
            std::make_unique<CAAXPluginParameter>(GetMasterBypassIdentifier(), bypassInfo, "", bypass));
        AddParameter(std::make_unique<CAAXPluginParameter>("P1", depthInfo, "", depth));
        const std::int32_t result = AAXExtEffectParameters::EffectInit();
        return initResult != AAXResult::Ok ? initResult : result;
    }
};

class EffectParameters : public testing::Test
{
protected:
    void SetUp() override { ASSERT_EQ(effect->Initialize(controllerUnknown()), 0); }
    void TearDown() override { EXPECT_EQ(effect->Uninitialize(), 0); }

    IACFUnknown* controllerUnknown() { return static_cast<IAAXController*>(controller.Get()); }

    double ValueOf(const char* id)
    {
        double normalized = -1.0;
        EXPECT_EQ(effect->GetParameterValue(id, &normalized), 0);
        return normalized;
    }

    TACFReference<Host::CHostController> controller =
        TACFReference<Host::CHostController>::Adopt(new Host::CHostController(2, 2, 48000.0));
    TACFReference<CTestEffect> effect = TACFReference<CTestEffect>::Adopt(new CTestEffect);
    std::array<char, 200> memory = {};
    SAAXChunk* chunk = reinterpret_cast<SAAXChunk*>(memory.data());
};

TEST_F(EffectParameters, ListsItsParametersInTheOrderAdded)
{
    std::int32_t count = 0;
    EXPECT_EQ(effect->GetParameterCount(&count), 0);
    EXPECT_EQ(count, 2);
    const char* id = nullptr;
    EXPECT_EQ(effect->GetParameterId(0, &id), 0);
    EXPECT_STREQ(id, "MasterBypassID");
    EXPECT_EQ(effect->GetMasterBypassId(&id), 0);
    EXPECT_STREQ(id, "MasterBypassID");
    EXPECT_EQ(effect->GetParameterId(1, &id), 0);
    EXPECT_STREQ(id, "P1");
    std::int32_t index = -1;
    EXPECT_EQ(effect->GetParameterIndex("P1", &index), 0);
    EXPECT_EQ(index, 1);
}

TEST_F(EffectParameters, DescribesAParameter)
{
    std::array<char, 8> name = {};
    EXPECT_EQ(effect->GetParameterName("P1", name.data(), 8), 0);
    EXPECT_STREQ(name.data(), "D\xC3\xA9pth");
    EXPECT_EQ(effect->GetParameterName("P1", name.data(), 3), 0);
    EXPECT_STREQ(name.data(), "D") << "no half of a character";
    std::int32_t number = -7;
    EXPECT_EQ(effect->IsParameterContinuous("P1", &number), 0);
    EXPECT_EQ(number, 1);
    EXPECT_EQ(effect->GetParameterStepCount("P1", &number), 0);
    EXPECT_EQ(number, -1);
    EXPECT_EQ(effect->IsParameterContinuous("MasterBypassID", &number), 0);
    EXPECT_EQ(number, 0);
    EXPECT_EQ(effect->GetParameterStepCount("MasterBypassID", &number), 0);
    EXPECT_EQ(number, 2);
    double normalized = 0.0;
    EXPECT_EQ(effect->GetParameterDefault("P1", &normalized), 0);
    EXPECT_EQ(normalized, 0.25);
}

TEST_F(EffectParameters, ValuesGoInAndOutNormalized)
{
    EXPECT_EQ(ValueOf("P1"), 0.25);
    EXPECT_EQ(effect->SetParameterValue("P1", 0.75), 0);
    EXPECT_EQ(effect->depth.GetValue(), 2.0F);
    EXPECT_EQ(ValueOf("P1"), 0.75);
    EXPECT_EQ(effect->SetParameterValue("P1", 9.0), 0);
    EXPECT_EQ(effect->depth.GetValue(), 3.0F);
    EXPECT_EQ(effect->SetParameterValue("P1", std::nan("")), -20004);
    EXPECT_EQ(effect->depth.GetValue(), 3.0F);
}

TEST_F(EffectParameters, ValuesHaveTexts)
{
    std::array<char, 8> text = {};
    EXPECT_EQ(effect->GetParameterText("MasterBypassID", 1.0, text.data(), 8), 0);
    EXPECT_STREQ(text.data(), "On");
    EXPECT_EQ(effect->GetParameterText("P1", 0.5, text.data(), 8), 0);
    EXPECT_STREQ(text.data(), "1.00");
    double normalized = -1.0;
    EXPECT_EQ(effect->GetValueOfText("P1", "2.0", &normalized), 0);
    EXPECT_EQ(normalized, 0.75);
    EXPECT_EQ(effect->GetValueOfText("P1", "100", &normalized), 0);
    EXPECT_EQ(normalized, 1.0);
    EXPECT_EQ(effect->GetValueOfText("P1", "deep", &normalized), -20004);
    EXPECT_EQ(normalized, 1.0);
}

TEST_F(EffectParameters, UnknownParameterOrNullGivesFailed)
{
    std::int32_t number = 0;
    double normalized = 0.0;
    char text = '#';
    const char* id = nullptr;
    for (const char* unknown : {"P0", "P2", "", "masterbypassid", static_cast<const char*>(nullptr)})
    {
        EXPECT_EQ(effect->GetParameterIndex(unknown, &number), -20004);
        EXPECT_EQ(effect->GetParameterName(unknown, &text, 1), -20004);
        EXPECT_EQ(effect->IsParameterContinuous(unknown, &number), -20004);
        EXPECT_EQ(effect->GetParameterStepCount(unknown, &number), -20004);
        EXPECT_EQ(effect->GetParameterDefault(unknown, &normalized), -20004);
        EXPECT_EQ(effect->GetParameterValue(unknown, &normalized), -20004);
        EXPECT_EQ(effect->SetParameterValue(unknown, 0.5), -20004);
        EXPECT_EQ(effect->GetParameterText(unknown, 0.5, &text, 1), -20004);
        EXPECT_EQ(effect->GetValueOfText(unknown, "1", &normalized), -20004);
    }
    EXPECT_EQ(effect->GetParameterId(-1, &id), -20004);
    EXPECT_EQ(effect->GetParameterId(2, &id), -20004);
    EXPECT_EQ(effect->GetParameterCount(nullptr), -20004);
    EXPECT_EQ(effect->GetParameterId(0, nullptr), -20004);
    EXPECT_EQ(effect->GetMasterBypassId(nullptr), -20004);
    EXPECT_EQ(effect->GetParameterIndex("P1", nullptr), -20004);
    EXPECT_EQ(effect->GetParameterName("P1", nullptr, 8), -20004);
    EXPECT_EQ(effect->GetParameterName("P1", &text, 0), -20004);
    EXPECT_EQ(effect->IsParameterContinuous("P1", nullptr), -20004);
    EXPECT_EQ(effect->GetParameterStepCount("P1", nullptr), -20004);
    EXPECT_EQ(effect->GetParameterDefault("P1", nullptr), -20004);
    EXPECT_EQ(effect->GetParameterValue("P1", nullptr), -20004);
    EXPECT_EQ(effect->GetParameterText("P1", 0.5, nullptr, 8), -20004);
    EXPECT_EQ(effect->GetValueOfText("P1", nullptr, &normalized), -20004);
    EXPECT_EQ(effect->GetValueOfText("P1", "1", nullptr), -20004);
    EXPECT_EQ(effect->GetChunkCount(nullptr), -20004);
    EXPECT_EQ(effect->GetChunkId(0, nullptr), -20004);
    EXPECT_EQ(effect->GetChunkId(1, nullptr), -20004);
    EXPECT_EQ(effect->GetChunkSize(Controls, nullptr), -20004);
    EXPECT_EQ(effect->GetChunk(Controls, nullptr), -20004);
    EXPECT_EQ(effect->SetChunk(Controls, nullptr), -20004);
    EXPECT_EQ(effect->CompareActiveChunk(nullptr, &number), -20004);
    EXPECT_EQ(effect->CompareActiveChunk(chunk, nullptr), -20004);
    EXPECT_EQ(effect->GetCustomData(0x69677569, 8, &text, nullptr), -20004);
}

TEST_F(EffectParameters, OffersTheControlsChunkAlone)
{
    std::int32_t count = 0;
    std::uint32_t id = 0;
    EXPECT_EQ(effect->GetChunkCount(&count), 0);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(effect->GetChunkId(0, &id), 0);
    EXPECT_EQ(id, Controls);
    EXPECT_EQ(effect->GetChunkId(1, &id), -20004);
    std::uint32_t size = 5;
    EXPECT_EQ(effect->GetChunkSize(0x12345678, &size), -20007);
    EXPECT_EQ(size, 0U);
    EXPECT_EQ(effect->GetChunk(0x12345678, chunk), -20007);
    EXPECT_EQ(effect->SetChunk(0x12345678, chunk), -20007);
}

TEST_F(EffectParameters, ControlsChunkIsAsWrittenDownHere)
{
    effect->SetParameterValue("MasterBypassID", 1.0);
    effect->SetParameterValue("P1", 0.625); // 1.5
    std::uint32_t size = 0;
    ASSERT_EQ(effect->GetChunkSize(Controls, &size), 0);
    // The mark, 20 + 4 for the bypass and 8 + 4 for the other: names of 14 and 2 with 3 more, to multiples
    // of 4.
    ASSERT_EQ(size, 40U);
    memory.fill('#');
    chunk->manufacturerId = 0x0A0B0C0D;
    ASSERT_EQ(effect->GetChunk(Controls, chunk), 0);

    const std::string manufacturer = {0x0D, 0x0C, 0x0B, 0x0A};
    std::string expected =
        std::string{40, 0, 0, 0, 0, 0, 0, 0} + manufacturer + "########" + "kcle" + "Complete Controls State";
    expected.resize(56);
    expected += std::string{1, 1, 1, 1} + "f_MasterBypassID" + std::string{0, 0, 0, 0, 0x3F, '\x80', 0, 0};
    expected += "f_P1" + std::string{0, 0, 0, 0, 0x3F, '\xC0', 0, 0};
    expected += '#';
    EXPECT_THAT(std::string(memory.begin(), memory.begin() + 97), ElementsAreArray(expected));
}

TEST_F(EffectParameters, ControlsChunkNeedsItsSizeAskedForFirst)
{
    memory.fill('#');
    EXPECT_EQ(effect->GetChunk(Controls, chunk), -20008);
    EXPECT_EQ(memory[56], '#') << "nothing is written";
    std::uint32_t size = 0;
    EXPECT_EQ(effect->GetChunkSize(Controls, &size), 0);
    EXPECT_EQ(effect->GetChunk(Controls, chunk), 0);
    EXPECT_EQ(effect->GetChunk(Controls, chunk), 0);
}

TEST_F(EffectParameters, ControlsChunkSetsWhatItHasAndLeavesTheRest)
{
    effect->SetParameterValue("MasterBypassID", 1.0);
    AAXExtChunkDataParser parser;
    parser.AddInt32("P1", 2);
    parser.AddFloat("P99", 1.0F);
    chunk->size = static_cast<std::uint32_t>(parser.GetDataSize());
    parser.Write(ChunkData(chunk));
    EXPECT_EQ(effect->SetChunk(Controls, chunk), 0);
    EXPECT_EQ(effect->depth.GetValue(), 2.0F);
    EXPECT_EQ(effect->bypass.GetValue(), 1.0F);
}

TEST_F(EffectParameters, EveryTypeOfRecordSetsAControl)
{
    const auto load = [this](const AAXExtChunkDataParser& parser)
    {
        chunk->size = static_cast<std::uint32_t>(parser.GetDataSize());
        parser.Write(ChunkData(chunk));
        EXPECT_EQ(effect->SetChunk(Controls, chunk), 0);
        return effect->depth.GetValue();
    };
    AAXExtChunkDataParser floats;
    floats.AddFloat("P1", 0.5F);
    EXPECT_EQ(load(floats), 0.5F);
    AAXExtChunkDataParser doubles;
    doubles.AddDouble("P1", 1.5);
    EXPECT_EQ(load(doubles), 1.5F);
    AAXExtChunkDataParser integers;
    integers.AddInt32("P1", 3);
    EXPECT_EQ(load(integers), 3.0F);
    AAXExtChunkDataParser shorts;
    shorts.AddInt16("P1", -1);
    EXPECT_EQ(load(shorts), -1.0F);
    AAXExtChunkDataParser huge;
    huge.AddDouble("P1", 1e300);
    EXPECT_EQ(load(huge), 3.0F);
    AAXExtChunkDataParser none;
    none.AddFloat("P1", std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(load(none), 3.0F);
}

TEST_F(EffectParameters, VersionOfAChunkIsHandedThrough)
{
    std::uint32_t size = 0;
    ASSERT_EQ(effect->GetChunkSize(Controls, &size), 0);
    chunk->version = 99;
    ASSERT_EQ(effect->GetChunk(Controls, chunk), 0);
    EXPECT_EQ(chunk->version, 0);
    chunk->version = 7;
    ASSERT_EQ(effect->SetChunk(Controls, chunk), 0);
    chunk->version = 99;
    ASSERT_EQ(effect->GetChunkSize(Controls, &size), 0);
    ASSERT_EQ(effect->GetChunk(Controls, chunk), 0);
    EXPECT_EQ(chunk->version, 7);
}

TEST_F(EffectParameters, ChunkIsActiveWhileAllItsControlsAreAsTheyAre)
{
    std::uint32_t size = 0;
    ASSERT_EQ(effect->GetChunkSize(Controls, &size), 0);
    ASSERT_EQ(effect->GetChunk(Controls, chunk), 0);
    std::int32_t equal = -1;
    EXPECT_EQ(effect->CompareActiveChunk(chunk, &equal), 0);
    EXPECT_EQ(equal, 1);
    effect->SetParameterValue("P1", 0.9);
    EXPECT_EQ(effect->CompareActiveChunk(chunk, &equal), 0);
    EXPECT_EQ(equal, 0);
    effect->SetParameterValue("P1", 0.25);
    EXPECT_EQ(effect->CompareActiveChunk(chunk, &equal), 0);
    EXPECT_EQ(equal, 1);
    chunk->size = 4;
    EXPECT_EQ(effect->CompareActiveChunk(chunk, &equal), 0);
    EXPECT_EQ(equal, 0) << "a chunk without the controls is another state";
    chunk->chunkId = 0x12345678;
    EXPECT_EQ(effect->CompareActiveChunk(chunk, &equal), 0);
    EXPECT_EQ(equal, 1) << "nothing is known of another chunk";
}

TEST(AAXExtEffectParameters, NeedsAController)
{
    const auto effect = TACFReference<CTestEffect>::Adopt(new CTestEffect);
    EXPECT_EQ(effect->Initialize(nullptr), -20004);
    EXPECT_EQ(effect->Initialize(effect.Get()), -20004);
    EXPECT_EQ(effect->Uninitialize(), 0);
}

TEST(AAXExtEffectParameters, IsInitialisedOnce)
{
    const auto controller =
        TACFReference<Host::CHostController>::Adopt(new Host::CHostController(2, 2, 48000.0));
    const auto effect = TACFReference<CTestEffect>::Adopt(new CTestEffect);
    IACFUnknown* unknown = static_cast<IAAXController*>(controller.Get());
    EXPECT_EQ(effect->Initialize(unknown), 0);
    EXPECT_EQ(effect->Initialize(unknown), -20004);
    EXPECT_EQ(effect->Uninitialize(), 0);
    EXPECT_EQ(controller->AddReference(), 2U) << "the host is let go";
    controller->Release();
}

TEST(AAXExtEffectParameters, ResultOrExceptionOfTheEffectReachesTheHost)
{
    const auto controller =
        TACFReference<Host::CHostController>::Adopt(new Host::CHostController(2, 2, 48000.0));
    const auto failing = TACFReference<CTestEffect>::Adopt(new CTestEffect);
    failing->initResult = -7;
    EXPECT_EQ(failing->Initialize(static_cast<IAAXController*>(controller.Get())), -7);
    const auto throwing = TACFReference<CTestEffect>::Adopt(new CTestEffect);
    throwing->throws = true;
    EXPECT_EQ(throwing->Initialize(static_cast<IAAXController*>(controller.Get())),
              static_cast<std::int32_t>(0x8000FFFF));
}

} // namespace
