#include "AAXPlugin/CAAXPluginParameters.h"

#include "AAXPlugin/CInProcessPlugin.h"
#include "AAXPlugin/CreationProcedures.h"
#include "AAXPlugin/Interface/AAX_IEffectGUI.h"
#include "AAXPlugin/Interface/IAAXHost.h"
#include "AAXPlugin/Interface/QueryFor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using namespace MirelExt::AAXPlugin;
using testing::ElementsAre;
using Tests::InternalsOf;

class PluginParameters : public testing::Test
{
protected:
    std::string NameOf(const char* id)
    {
        char name[64] = {};
        EXPECT_EQ(parameters.GetParameterName(id, name, sizeof(name)), 0);
        return name;
    }

    float ValueOf(int index) { return InternalsOf(*instance).GetInputValues()[index].GetValue(); }

    Tests::CInProcessPlugin plugin;
    std::unique_ptr<Host::CHostInstance> instance = plugin.Make();
    AAX_IEffectParameters& parameters = instance->GetParameters();
};

TEST_F(PluginParameters, AreListedAsHostsSeeThem)
{
    const struct
    {
        const char* id;
        const char* name;
        int steps;
        int continuous;
        double defaultValue;
    } rows[] = {{"MasterBypassID", "Bypass", 2, 0, 0.0},
                {"P1", "Stereo Mode", 2, 0, 0.0},
                {"P2", "View Mode", 3, 0, 0.0},
                {"P3", "Sync", 2, 0, 0.0},
                {"P4", "Delay", -1, 1, 0.0},
                {"P5", "Trigger Value", -1, 1, 0.5},
                {"P6", "Trigger Direction", -1, 1, 0.0}};
    std::int32_t count = 0;
    ASSERT_EQ(parameters.GetParameterCount(&count), 0);
    ASSERT_EQ(count, 7);
    for (int i = 0; i < count; ++i)
    {
        const auto& row = rows[i];
        const char* id = nullptr;
        ASSERT_EQ(parameters.GetParameterId(i, &id), 0);
        EXPECT_STREQ(id, row.id);
        EXPECT_EQ(NameOf(id), row.name);
        std::int32_t number = 0;
        EXPECT_EQ(parameters.GetParameterStepCount(id, &number), 0);
        EXPECT_EQ(number, row.steps) << id;
        EXPECT_EQ(parameters.IsParameterContinuous(id, &number), 0);
        EXPECT_EQ(number, row.continuous) << id;
        double value = -1.0;
        EXPECT_EQ(parameters.GetParameterDefault(id, &value), 0);
        EXPECT_EQ(value, row.defaultValue) << id;
        EXPECT_EQ(parameters.GetParameterValue(id, &value), 0);
        EXPECT_EQ(value, row.defaultValue) << id;
    }
    const char* bypass = nullptr;
    EXPECT_EQ(parameters.GetMasterBypassId(&bypass), 0);
    EXPECT_STREQ(bypass, "MasterBypassID");
}

TEST_F(PluginParameters, ShowTheFrameworksTexts)
{
    const struct
    {
        const char* id;
        double normalized;
        const char* text;
    } rows[] = {{"MasterBypassID", 1.0, "On"}, {"P1", 1.0, "Mid-Side"}, {"P2", 0.5, "Loop"},
                {"P4", 0.5, "150.0"},          {"P5", 0.0, "-1.00"},    {"P6", 1.0, "Down"}};
    for (const auto& row : rows)
    {
        char text[32] = {};
        EXPECT_EQ(parameters.GetParameterText(row.id, row.normalized, text, sizeof(text)), 0);
        EXPECT_STREQ(text, row.text) << row.id;
    }
}

TEST_F(PluginParameters, HostsValueReachesTheFramework)
{
    EXPECT_EQ(parameters.SetParameterValue("P4", 0.5), 0);
    EXPECT_EQ(ValueOf(4), 150.0F);
    EXPECT_EQ(parameters.SetParameterValue("MasterBypassID", 1.0), 0);
    EXPECT_EQ(ValueOf(0), 1.0F);
}

TEST_F(PluginParameters, FrameworksValueGoesThroughTheHostsAutomation)
{
    instance->GetController().SetAnswersAtOnce(false);
    InternalsOf(*instance).SetInputValue(5, 1.0F);
    EXPECT_EQ(ValueOf(5), 0.0F) << "not before the host says so";
    instance->GetController().AnswerPosts();
    EXPECT_EQ(ValueOf(5), 1.0F);
    const auto posts = instance->GetController().TakePosts();
    ASSERT_EQ(posts.size(), 3U);
    EXPECT_EQ(posts[0].kind, Host::CAutomationPost::EKind::Touch);
    EXPECT_EQ(posts[1].kind, Host::CAutomationPost::EKind::Value);
    EXPECT_EQ(posts[1].parameter, 5);
    EXPECT_EQ(posts[1].normalized, 1.0);
    EXPECT_EQ(posts[2].kind, Host::CAutomationPost::EKind::Release);
}

TEST_F(PluginParameters, LatencyIsTold)
{
    EXPECT_EQ(instance->GetController().GetLatency(), InternalsOf(*instance).GetFilter().GetLatency());
}

TEST_F(PluginParameters, CustomDataIsThePointerToTheInternals)
{
    void* data = nullptr;
    std::uint32_t written = 0;
    EXPECT_EQ(parameters.GetCustomData(0x69677569, sizeof(void*), &data, &written), 0);
    EXPECT_EQ(written, sizeof(void*));
    EXPECT_NE(data, nullptr);
    for (const std::uint32_t size : {0U, 1U, static_cast<std::uint32_t>(sizeof(void*)) - 1U, 64U})
    {
        EXPECT_EQ(parameters.GetCustomData(0x69677569, size, &data, &written), -20004) << size;
    }
    EXPECT_EQ(parameters.GetCustomData(0x69677570, sizeof(void*), &data, &written), -20004);
    EXPECT_EQ(parameters.GetCustomData(0x69677569, sizeof(void*), nullptr, &written), -20004);
    EXPECT_EQ(parameters.GetCustomData(0x69677569, sizeof(void*), &data, nullptr), -20004);
}

TEST_F(PluginParameters, AreOneObjectUnderEveryInterface)
{
    const auto unknown = QueryFor<IACFUnknown>(&parameters);
    const auto curves = QueryFor<IPublishedCurves>(&parameters);
    ASSERT_TRUE(curves);
    EXPECT_EQ(QueryFor<IACFUnknown>(curves.Get()).Get(), unknown.Get());
    EXPECT_EQ(QueryFor<AAX_IEffectParameters>(curves.Get()).Get(), &parameters);
    void* out = this;
    EXPECT_EQ(parameters.QueryInterface(InterfaceIdOf<IAAXHost>, &out), -20009);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(parameters.QueryInterface(InterfaceIdOf<IPublishedCurves>, nullptr), -20004);
}

TEST_F(PluginParameters, PublishTheFourCurves)
{
    IPublishedCurves& curves = *instance->GetCurves();
    std::int32_t count = 0;
    EXPECT_EQ(curves.GetCurveCount(&count), 0);
    ASSERT_EQ(count, 4);
    const struct
    {
        const char* name;
        float range[4];
    } rows[] = {{"Waveform (1)", {-1.0F, 0.0F, -1.0F, 1.0F}},
                {"Histogram (1)", {-1.0F, 1.0F, 0.0F, 1.0F}},
                {"Waveform (2)", {-1.0F, 0.0F, -1.0F, 1.0F}},
                {"Histogram (2)", {-1.0F, 1.0F, 0.0F, 1.0F}}};
    for (int i = 0; i < count; ++i)
    {
        const char* name = nullptr;
        EXPECT_EQ(curves.GetCurveName(i, &name), 0);
        EXPECT_STREQ(name, rows[i].name);
        float range[4] = {};
        EXPECT_EQ(curves.GetCurveRange(i, &range[0], &range[1], &range[2], &range[3]), 0);
        EXPECT_THAT(range, testing::ElementsAreArray(rows[i].range)) << i;
        EXPECT_THAT(Tests::Evaluate(curves, i, {-0.5F, 0.0F}), ElementsAre(0.0F, 0.0F))
            << "nothing is published yet";
    }
}

TEST_F(PluginParameters, CurveThatIsNotThereOrNullGivesFailed)
{
    IPublishedCurves& curves = *instance->GetCurves();
    float x = 0.0F;
    float y = 0.0F;
    const char* name = nullptr;
    std::int64_t number = 0;
    for (const int curve : {-1, 4})
    {
        EXPECT_EQ(curves.GetCurveName(curve, &name), -20004);
        EXPECT_EQ(curves.GetCurveRange(curve, &x, &x, &x, &x), -20004);
        EXPECT_EQ(curves.EvaluateCurve(curve, &x, 1, &y), -20004);
    }
    EXPECT_EQ(curves.GetCurveCount(nullptr), -20004);
    EXPECT_EQ(curves.GetCurveName(0, nullptr), -20004);
    EXPECT_EQ(curves.GetCurveRange(0, nullptr, &x, &x, &x), -20004);
    EXPECT_EQ(curves.GetCurveRange(0, &x, nullptr, &x, &x), -20004);
    EXPECT_EQ(curves.GetCurveRange(0, &x, &x, nullptr, &x), -20004);
    EXPECT_EQ(curves.GetCurveRange(0, &x, &x, &x, nullptr), -20004);
    EXPECT_EQ(curves.EvaluateCurve(0, nullptr, 1, &y), -20004);
    EXPECT_EQ(curves.EvaluateCurve(0, &x, 1, nullptr), -20004);
    EXPECT_EQ(curves.EvaluateCurve(0, &x, -1, &y), -20004);
    EXPECT_EQ(curves.GetRefreshes(nullptr, &number), -20004);
    EXPECT_EQ(curves.GetRefreshes(&number, nullptr), -20004);
}

/// A controller that refuses one of its operations.
class CRefusingController : public TACFObject<IAAXController>
{
public:
    int refused = -1;
    std::vector<std::string> calls;

    std::int32_t GetInputStemFormat(std::uint32_t* format) override
    {
        *format = 0x00010002;
        return Call(0, "input");
    }
    std::int32_t GetOutputStemFormat(std::uint32_t* format) override
    {
        *format = 0x00010002;
        return Call(1, "output");
    }
    std::int32_t GetSampleRate(double* rate) override
    {
        *rate = 48000.0;
        return Call(2, "rate");
    }
    std::int32_t PostPacket(std::uint32_t field, const void*, std::uint32_t size) override
    {
        return Call(3, "packet " + std::to_string(field) + " " + std::to_string(size));
    }
    std::int32_t SetSignalLatency(std::int32_t samples) override
    {
        return Call(4, "latency " + std::to_string(samples));
    }

private:
    std::int32_t Call(int index, const std::string& text)
    {
        calls.push_back(text);
        return index == refused ? -7 : AAXResult::Ok;
    }
};

TEST(CAAXPluginParameters, InitialisationAsksTheControllerInOrder)
{
    const auto host = TACFReference<CRefusingController>::Adopt(new CRefusingController);
    const auto made = TACFReference<IACFUnknown>::Adopt(CreateEffectParameters());
    const auto parameters = QueryFor<AAX_IEffectParameters>(made.Get());
    EXPECT_EQ(parameters->Initialize(host.Get()), 0);
    EXPECT_THAT(host->calls, ElementsAre("input", "output", "rate",
                                         "packet 1 " + std::to_string(sizeof(void*)), "latency 0"));
    parameters->Uninitialize();
}

TEST(CAAXPluginParameters, RefusalOfTheControllerIsTheResult)
{
    for (int refused = 0; refused < 5; ++refused)
    {
        const auto host = TACFReference<CRefusingController>::Adopt(new CRefusingController);
        host->refused = refused;
        const auto made = TACFReference<IACFUnknown>::Adopt(CreateEffectParameters());
        const auto parameters = QueryFor<AAX_IEffectParameters>(made.Get());
        EXPECT_EQ(parameters->Initialize(host.Get()), -7) << refused;
        EXPECT_EQ(host->calls.size(), static_cast<std::size_t>(refused) + 1);
        parameters->Uninitialize();
    }
}

TEST(CreationProcedures, MakeParametersAndEditors)
{
    const auto made = TACFReference<IACFUnknown>::Adopt(CreateEffectParameters());
    EXPECT_TRUE(QueryFor<AAX_IEffectParameters>(made.Get()));
    const auto gui = TACFReference<IACFUnknown>::Adopt(CreateGui());
    EXPECT_TRUE(QueryFor<AAX_IEffectGUI>(gui.Get()));
}

TEST(CAAXPluginParameters, InstanceIsALiveObjectUntilItsLastReference)
{
    const std::int32_t before = CACFUnknown::GetLiveCount();
    {
        const auto made = TACFReference<IACFUnknown>::Adopt(CreateEffectParameters());
        EXPECT_EQ(CACFUnknown::GetLiveCount(), before + 1);
    }
    EXPECT_EQ(CACFUnknown::GetLiveCount(), before);
}

} // namespace
