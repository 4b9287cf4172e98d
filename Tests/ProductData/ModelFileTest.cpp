#include "CProductInstance.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CManualTickSource.h"

#include <array>
#include <cmath>

namespace
{

using namespace Mirel::Audio::Plugin;
using namespace Mirel::DataModel::Objects;
using namespace Mirel::SkinEngine;

struct ModelFileTest : testing::Test
{
    ModelFileTest()
    {
        loaded = model.Load(instance->GetDefaultSettings().GetModelFile());
        model.AttachTimers(&timers);
    }
    ~ModelFileTest() override { model.AttachTimers(nullptr); }

    template <class I>
    I& Get(const char* id)
    {
        I* object = FindObject<I>(model.GetModel().GetObjects(), id);
        if (object == nullptr)
        {
            throw std::runtime_error(id);
        }
        return *object;
    }

    float ValueOf(const char* id) { return Get<IConstCaptureParam>(id).GetValue(); }
    std::string TextOf(const char* id) { return Get<IConstCaptureString>(id).GetValue(); }

    /// As a user does it. What a host says comes to the model with its timers.
    void Set(const char* id, float value) { Get<ICaptureParam>(id).SetValue(value); }

    Tests::CProductInstance instance;
    Tests::CFakeTimerProvider timers;
    Tests::CManualTickSource clock;
    CPluginSkinModel model{instance->GetBindings(), {nullptr, &clock, nullptr}};
    bool loaded = false;
};

} // namespace

TEST_F(ModelFileTest, LoadsWithoutAMessage)
{
    EXPECT_TRUE(loaded);
    EXPECT_FALSE(model.GetLog().HasMessages(Mirel::CoreUtilities::CMessageKind::Error));
    EXPECT_FALSE(model.GetLog().HasMessages(Mirel::CoreUtilities::CMessageKind::Warning));
}

TEST_F(ModelFileTest, TimeZoomIsInStepsOfOneTwoAndFive)
{
    const std::array<float, 7> zooms = {1.0F, 2.0F, 5.0F, 10.0F, 20.0F, 50.0F, 100.0F};
    for (std::size_t i = 0; i < zooms.size(); ++i)
    {
        Set("view.time_scale", static_cast<float>(i));
        EXPECT_FLOAT_EQ(ValueOf("view.time_zoom"), zooms[i]);
        EXPECT_FLOAT_EQ(ValueOf("view.time_span"), 1000.0F / zooms[i]);
    }
}

TEST_F(ModelFileTest, AmplitudeZoomBelongsToItsScale)
{
    const std::array<float, 4> zooms = {1.0F, 2.0F, 5.0F, 10.0F};
    for (std::size_t i = 0; i < zooms.size(); ++i)
    {
        Set("view.amplitude_scale", static_cast<float>(i));
        EXPECT_FLOAT_EQ(ValueOf("view.amplitude_zoom"), zooms[i]);
    }
}

TEST_F(ModelFileTest, NamesOfChannelsFollowTheStereoMode)
{
    EXPECT_EQ(TextOf("view.channel1_name"), "Left");
    EXPECT_EQ(TextOf("view.channel2_name"), "Right");
    Set("dsp.input1", 1.0F);
    EXPECT_EQ(TextOf("view.channel1_name"), "Mid");
    EXPECT_EQ(TextOf("view.channel2_name"), "Side");
}

TEST_F(ModelFileTest, LoopScrollsInAPlaceOfItsOwn)
{
    EXPECT_FLOAT_EQ(ValueOf("view.time_offset"), 1.0F);
    Set("view.scroll", 0.75F);
    EXPECT_FLOAT_EQ(ValueOf("view.time_offset"), 0.75F);
    Set("dsp.input2", 1.0F);
    EXPECT_FLOAT_EQ(ValueOf("view.time_offset"), 0.0F);
    Set("view.loop_scroll", 0.25F);
    EXPECT_FLOAT_EQ(ValueOf("view.time_offset"), 0.25F);
    Set("dsp.input2", 2.0F);
    EXPECT_FLOAT_EQ(ValueOf("view.time_offset"), 0.75F);
}

TEST_F(ModelFileTest, ConditionsTellTheMode)
{
    const auto conditions = [this]
    {
        return std::array<float, 3>{ValueOf("view.is_not_loop"), ValueOf("view.is_loop"),
                                    ValueOf("view.is_trigger")};
    };
    EXPECT_EQ(conditions(), (std::array<float, 3>{1.0F, 0.0F, 0.0F}));
    Set("dsp.input2", 1.0F);
    EXPECT_EQ(conditions(), (std::array<float, 3>{0.0F, 1.0F, 0.0F}));
    Set("dsp.input2", 2.0F);
    EXPECT_EQ(conditions(), (std::array<float, 3>{1.0F, 0.0F, 1.0F}));
}

TEST_F(ModelFileTest, TheTriggersLevelIsAFlatCurve)
{
    Set("dsp.input5", 0.25F);
    const auto& level = Get<IConstCaptureCurve>("view.trigger_level").GetValue();
    EXPECT_FLOAT_EQ(level(-1.0F), 0.25F);
    EXPECT_FLOAT_EQ(level(0.0F), 0.25F);
}

TEST_F(ModelFileTest, EveryMidiMessageLightsTheLampForAWhile)
{
    const auto wait = [this](int ticks)
    {
        for (; ticks > 0; --ticks)
        {
            clock.AdvanceMilliseconds(30);
            timers.Tick();
        }
    };
    wait(20);
    EXPECT_FLOAT_EQ(ValueOf("midi.lamp"), 0.0F);
    // The same controller again: only its value differs.
    for (const std::uint8_t value : {std::uint8_t{64}, std::uint8_t{65}})
    {
        instance->ProcessMIDI({0xB0, 20, value});
        wait(4);
        EXPECT_GT(ValueOf("midi.lamp"), 0.3F);
        wait(20);
        EXPECT_FLOAT_EQ(ValueOf("midi.lamp"), 0.0F);
    }
}

TEST_F(ModelFileTest, HelpTellsNameValueAndPurpose)
{
    Set("dsp.input4", 12.5F);
    const std::string help = TextOf("help.delay");
    EXPECT_EQ(help.substr(0, help.find('\n')), "Delay: 12.5 ms");
    EXPECT_NE(help.find("The audio is not delayed."), std::string::npos);
}
