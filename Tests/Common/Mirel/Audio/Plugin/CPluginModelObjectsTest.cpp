#include "Mirel/Audio/Plugin/CPluginModelObjects.h"

#include "Mirel/Audio/Plugin/CConstOutputCurveTimerProxy.h"
#include "Mirel/Audio/Plugin/CPresetName.h"
#include "Mirel/Audio/Plugin/MIDIModelObjects.h"
#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "PublishingEffect.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace Mirel::Audio::Plugin
{
namespace
{

using namespace DataModel::Objects;
using namespace SkinEngine;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Tests::CEventCounter;

/// A parameter of a host that knows when it is held.
struct CHeldParam : IInputParam, Core::CCapture
{
    float GetValue() const override { return value; }
    void SetValue(float newValue) override { value = newValue; }
    float value = 0.0f;
};

struct CPluginModelObjectsTest : testing::Test
{
    CPluginModelObjectsTest()
    {
        bool ok = false;
        effect.Init(44100.0, ok);
        captures.Prepare(effect);
        inputsInfo.Add(0, 0.0f, 1.0f, 0.0f, "Bypass", "", "");
        inputsInfo.Add(2, 0.0f, 10.0f, 3.0f, "Gain", "dB", "");
        for (int i = 0; i < inputsInfo.GetCount(); ++i)
        {
            inputs.Add();
            inputMIDI.Add(inputsInfo[i]);
        }
        outputMIDI.Add(effect.GetOutputParamsInfo()[0]);
        bindings.inputsInfo = &inputsInfo;
        bindings.inputs = &inputs;
        bindings.outputsInfo = &effect.GetOutputParamsInfo();
        bindings.inputMIDISettings = &inputMIDI;
        bindings.outputMIDISettings = &outputMIDI;
        bindings.lastMIDIMessage = &message;
        bindings.outputCaptures = &captures;
        bindings.presetName = &presetName;
        bindings.filter = &effect;
        model = std::make_unique<CSkinModel>(&log);
    }

    /// Builds what is marked.
    void Build(const std::vector<const char*>& marks)
    {
        for (const char* mark : marks)
        {
            model->GetExposure().Use(mark);
        }
        EXPECT_TRUE(CPluginModelObjects(bindings, timers).Build(*model, model->GetExposure()));
        EXPECT_FALSE(log.HasMessages());
    }

    template <class I>
    I& Get(const char* id)
    {
        I* found = ResolveObject<I>(model->GetObjects(), id);
        EXPECT_NE(found, nullptr) << id;
        return *found;
    }

    std::vector<std::string> Ids() const
    {
        std::vector<std::string> ids;
        const std::unique_ptr<ISkinDynamicObjectsConstIterator> entry(
            static_cast<const ISkinModel&>(*model).GetObjects().CreateIterator());
        for (; entry->IsValid(); entry->Next())
        {
            ids.emplace_back(entry->GetId());
        }
        return ids;
    }

    void Publish() { EXPECT_TRUE(captures.Publish(effect)); }

    Tests::CPublishingEffect effect;
    COutputCaptures captures{effect};
    DSP::CParamsInfo inputsInfo;
    Containers::TDynamicCollection<CHeldParam, IInputParam> inputs;
    CMIDICCSettings inputMIDI;
    CMIDICCSettings outputMIDI;
    CMIDICCMessage message;
    CPresetName presetName{"User"};
    CAudioPluginBindings bindings;
    CoreUtilities::CMemMessageLog log;
    Tests::CFakeTimerProvider timers;
    std::unique_ptr<CSkinModel> model;
};

TEST_F(CPluginModelObjectsTest, NothingIsBuiltThatNobodyWants)
{
    Build({});
    EXPECT_THAT(Ids(), IsEmpty());
    EXPECT_EQ(timers.trace, "");
}

TEST_F(CPluginModelObjectsTest, OnlyWantedObjectsAreBuilt)
{
    Build({"dsp.input1", "dsp.output_curve0", "midi.input0.cc"});
    EXPECT_THAT(Ids(), UnorderedElementsAre("dsp.input1", "dsp.output_curve0", "midi.input0.cc"));
    EXPECT_EQ(timers.periods.size(), 3U);
}

TEST_F(CPluginModelObjectsTest, AWantForEverythingBuildsEveryRow)
{
    Build({"*"});
    std::vector<std::string> expected = {"midi.last_message", "midi.last_message.paused"};
    const auto addParam = [&expected](const std::string& id)
    {
        for (const char* suffix : {"", ".info", ".default", ".min", ".max"})
        {
            expected.push_back(id + suffix);
        }
    };
    for (const char* id : {"dsp.input0", "dsp.input1", "dsp.output0"})
    {
        addParam(id);
        addParam(std::string(id) + ".paused");
    }
    expected.insert(expected.end(), {"dsp.output_curve0", "dsp.output_curve0.x_info",
                                     "dsp.output_curve0.y_info", "dsp.output_string0", "preset.name"});
    addParam("dsp.output_curve0.paused");
    addParam("dsp.output_string0.paused");
    addParam("preset.name.paused");
    addParam("midi.last_message.channel");
    addParam("midi.last_message.cc");
    for (const char* suffix : {".info", ".default", ".min", ".max"})
    {
        expected.push_back(std::string("midi.last_message.paused") + suffix);
    }
    for (const char* id : {"midi.input0", "midi.input1", "midi.output0"})
    {
        for (const char* field : {".channel", ".cc", ".min", ".max", ".enabled"})
        {
            addParam(std::string(id) + field);
            addParam(std::string(id) + field + ".paused");
        }
    }
    EXPECT_THAT(Ids(), testing::UnorderedElementsAreArray(expected));
}

TEST_F(CPluginModelObjectsTest, AnInputIsTheHostsParameterWithItsDescription)
{
    Build({"dsp.input0", "dsp.input1"});
    EXPECT_STREQ(Get<ICaptureParam>("dsp.input0").GetInfo().GetName(), "Bypass");
    auto& gain = Get<ICaptureParam>("dsp.input1");
    EXPECT_STREQ(gain.GetInfo().GetName(), "Gain");
    EXPECT_EQ(gain.GetInfo().GetMax(), 10.0f);
    CEventCounter changes(gain.GetValueChangedEventProvider());
    gain.SetValue(4.0f);
    EXPECT_EQ(inputs[1].GetValue(), 4.0f);
    EXPECT_EQ(gain.GetValue(), 4.0f);
    EXPECT_EQ(changes.Take(), 1);
    // The host moves it on a thread of its own.
    inputs[1].SetValue(5.0f);
    EXPECT_EQ(changes.Take(), 0);
    timers.Tick();
    EXPECT_EQ(gain.GetValue(), 5.0f);
    EXPECT_EQ(changes.Take(), 1);
}

TEST_F(CPluginModelObjectsTest, TheHostLearnsWhenAUserHoldsAnInput)
{
    Build({"dsp.input1"});
    auto& gain = Get<ICaptureParam>("dsp.input1");
    gain.BeginCapture();
    EXPECT_TRUE(dynamic_cast<CHeldParam&>(inputs[1]).IsCaptured());
    EXPECT_TRUE(gain.IsCaptured());
    gain.EndCapture();
    EXPECT_FALSE(dynamic_cast<CHeldParam&>(inputs[1]).IsCaptured());
}

TEST_F(CPluginModelObjectsTest, AnOutputFollowsAtTheTick)
{
    Build({"dsp.output0"});
    auto& level = Get<IConstCaptureParam>("dsp.output0");
    EXPECT_EQ(FindObject<ICaptureParam>(model->GetObjects(), "dsp.output0"), nullptr);
    EXPECT_STREQ(level.GetInfo().GetName(), "Level");
    CEventCounter changes(level.GetValueChangedEventProvider());
    effect.SetLevel(0.75f);
    Publish();
    EXPECT_EQ(level.GetValue(), 0.0f);
    timers.Tick(2);
    EXPECT_EQ(level.GetValue(), 0.75f);
    EXPECT_EQ(changes.Take(), 1);
}

TEST_F(CPluginModelObjectsTest, ACurveFollowsAtTheTickAndFiresForPublicationsAlone)
{
    Build({"dsp.output_curve0"});
    auto& curve = Get<IConstCaptureCurve>("dsp.output_curve0");
    EXPECT_STREQ(curve.GetInfo().GetName(), "Curve");
    CEventCounter changes(curve.GetValueChangedEventProvider());
    timers.Tick();
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_EQ(curve.GetValue()(0.5f), 0.0f);
    effect.ChangeCurve(0.75f);
    Publish();
    EXPECT_EQ(curve.GetValue()(0.5f), 0.0f);
    timers.Tick(3);
    EXPECT_EQ(curve.GetValue()(0.5f), 0.75f);
    EXPECT_EQ(changes.Take(), 1);
}

TEST_F(CPluginModelObjectsTest, ACurvePublishedBeforeTheModelIsThereAtTheFirstTick)
{
    effect.ChangeCurve(0.75f);
    Publish();
    captures.DeliverChanges();
    Build({"dsp.output_curve0"});
    timers.Tick();
    EXPECT_EQ(Get<IConstCaptureCurve>("dsp.output_curve0").GetValue()(0.5f), 0.75f);
}

TEST_F(CPluginModelObjectsTest, TheDeliveryOfAnotherReaderIsNotMissed)
{
    Build({"dsp.output_curve0", "dsp.output_string0"});
    timers.Tick();
    effect.ChangeCurve(0.5f);
    effect.GetString().Set("loud");
    Publish();
    captures.DeliverChanges();
    timers.Tick();
    EXPECT_EQ(Get<IConstCaptureCurve>("dsp.output_curve0").GetValue()(0.5f), 0.5f);
    EXPECT_STREQ(Get<IConstCaptureString>("dsp.output_string0").GetValue(), "loud");
}

TEST_F(CPluginModelObjectsTest, ListenersRunWithoutTheLockOfTheCaptures)
{
    struct CPublisher : Core::ICommand
    {
        explicit CPublisher(CPluginModelObjectsTest& test_) : test(test_) {}
        void Execute() override
        {
            // As the audio thread would do at this moment.
            EXPECT_TRUE(test.captures.Publish(test.effect));
            ++runs;
        }
        CPluginModelObjectsTest& test;
        int runs = 0;
    };
    Build({"dsp.output_curve0"});
    CPublisher publisher(*this);
    auto& changed = Get<IConstCaptureCurve>("dsp.output_curve0").GetValueChangedEventProvider();
    changed.Connect(publisher);
    effect.ChangeCurve(0.5f);
    Publish();
    timers.Tick();
    changed.Disconnect(&publisher);
    EXPECT_EQ(publisher.runs, 1);
}

TEST_F(CPluginModelObjectsTest, AStringFollowsAtTheTick)
{
    Build({"dsp.output_string0"});
    auto& note = Get<IConstCaptureString>("dsp.output_string0");
    EXPECT_STREQ(note.GetInfo().GetName(), "Note");
    EXPECT_STREQ(note.GetValue(), "none yet");
    CEventCounter changes(note.GetValueChangedEventProvider());
    effect.GetString().Set("clipped");
    Publish();
    timers.Tick(2);
    EXPECT_STREQ(note.GetValue(), "clipped");
    EXPECT_EQ(changes.Take(), 1);
    effect.GetString().Set("clipped");
    Publish();
    timers.Tick();
    EXPECT_EQ(changes.Take(), 0);
}

TEST_F(CPluginModelObjectsTest, ThePresetsNameFollowsAtTheTick)
{
    Build({"preset.name"});
    auto& name = Get<IConstCaptureString>("preset.name");
    EXPECT_STREQ(name.GetInfo().GetName(), "Preset");
    EXPECT_STREQ(name.GetValue(), "User");
    EXPECT_EQ(FindObject<ICaptureString>(model->GetObjects(), "preset.name"), nullptr) << "is read only";
    CEventCounter changes(name.GetValueChangedEventProvider());
    std::thread([this] { presetName.SetText("Drums"); }).join();
    EXPECT_STREQ(name.GetValue(), "User") << "the text of the last tick";
    timers.Tick(2);
    EXPECT_STREQ(name.GetValue(), "Drums");
    EXPECT_EQ(changes.Take(), 1);
    presetName.SetText("Drums");
    timers.Tick();
    EXPECT_EQ(changes.Take(), 0);
}

TEST_F(CPluginModelObjectsTest, PausedStopsThePolling)
{
    for (const char* id :
         {"dsp.input1", "dsp.output0", "dsp.output_curve0", "dsp.output_string0", "preset.name"})
    {
        SCOPED_TRACE(id);
        timers.trace.clear();
        model = std::make_unique<CSkinModel>(&log);
        const std::string pausedId = std::string(id) + ".paused";
        Build({id, pausedId.c_str()});
        ASSERT_EQ(timers.periods.size(), 1U);
        auto& paused = Get<ICaptureParam>(pausedId.c_str());
        EXPECT_EQ(paused.GetValue(), 0.0f);
        EXPECT_EQ(paused.GetInfo().GetMin(), 0.0f);
        EXPECT_EQ(paused.GetInfo().GetMax(), 1.0f);
        paused.SetValue(1.0f);
        EXPECT_EQ(timers.periods.size(), 0U);
        EXPECT_EQ(paused.GetValue(), 1.0f);
        paused.SetValue(0.0f);
        EXPECT_EQ(timers.periods.size(), 1U);
    }
}

TEST_F(CPluginModelObjectsTest, AnObjectMayBePausedByWhatItSetsOff)
{
    Build({"dsp.output0", "dsp.output0.paused"});
    auto& level = Get<IConstCaptureParam>("dsp.output0");
    Tests::CFunctionCommand pause([this] { Get<ICaptureParam>("dsp.output0.paused").SetValue(1.0f); });
    level.GetValueChangedEventProvider().Connect(pause);
    effect.SetLevel(0.5f);
    Publish();
    timers.Tick();
    effect.SetLevel(0.75f);
    Publish();
    timers.Tick();
    EXPECT_EQ(level.GetValue(), 0.5f);
    level.GetValueChangedEventProvider().Disconnect(&pause);
}

TEST_F(CPluginModelObjectsTest, AWantForTheSwitchAloneBringsItsObject)
{
    Build({"dsp.output_curve0.paused"});
    EXPECT_THAT(Ids(), UnorderedElementsAre("dsp.output_curve0", "dsp.output_curve0.paused"));
}

TEST_F(CPluginModelObjectsTest, AWantForTheMaximumAloneNamesNothingElse)
{
    Build({"dsp.input1.max"});
    EXPECT_THAT(Ids(), UnorderedElementsAre("dsp.input1.max"));
    EXPECT_EQ(Get<IConstCaptureParam>("dsp.input1.max").GetValue(), 10.0f);
}

TEST_F(CPluginModelObjectsTest, WhatIsWantedLaterIsAddedToWhatIsThere)
{
    Build({"dsp.output0", "midi.last_message.cc"});
    auto& output = Get<IConstCaptureParam>("dsp.output0");
    Build({"dsp.output0.paused", "dsp.output0.max", "midi.last_message.channel"});
    EXPECT_THAT(Ids(), UnorderedElementsAre("dsp.output0", "dsp.output0.paused", "dsp.output0.max",
                                            "midi.last_message", "midi.last_message.cc",
                                            "midi.last_message.channel"));
    EXPECT_EQ(&Get<IConstCaptureParam>("dsp.output0"), &output);
    const auto timersBefore = timers.periods.size();
    Get<ICaptureParam>("dsp.output0.paused").SetValue(1.0f);
    EXPECT_EQ(timers.periods.size(), timersBefore - 1);
    effect.SetLevel(0.5f);
    Publish();
    timers.Tick();
    EXPECT_EQ(output.GetValue(), 0.0f);
}

TEST_F(CPluginModelObjectsTest, ObjectsHaveARefreshTime)
{
    Build({"dsp.output0", "dsp.output_curve0", "midi.last_message", "midi.input0.cc"});
    for (const char* id : {"dsp.output0", "dsp.output_curve0", "midi.last_message", "midi.input0.cc"})
    {
        auto& refresh = Get<Core::IRefreshTime>(id);
        EXPECT_EQ(refresh.GetRefreshTime(), 50) << id;
        refresh.SetRefreshTime(20);
        EXPECT_EQ(refresh.GetRefreshTime(), 20) << id;
    }
}

TEST_F(CPluginModelObjectsTest, TheLastMessageShowsChannelAndController)
{
    Build({"midi.last_message", "midi.last_message.channel", "midi.last_message.cc"});
    auto& channel = Get<IConstCaptureParam>("midi.last_message.channel");
    auto& number = Get<IConstCaptureParam>("midi.last_message.cc");
    EXPECT_STREQ(channel.GetInfo().GetName(), "Channel");
    EXPECT_EQ(channel.GetInfo().GetMin(), 1.0f);
    EXPECT_EQ(channel.GetInfo().GetMax(), 16.0f);
    EXPECT_EQ(channel.GetInfo().GetDefault(), 1.0f);
    EXPECT_STREQ(number.GetInfo().GetName(), "CC");
    EXPECT_EQ(number.GetInfo().GetMin(), 0.0f);
    EXPECT_EQ(number.GetInfo().GetMax(), 127.0f);
    EXPECT_EQ(number.GetInfo().GetDefault(), 0.0f);
    EXPECT_EQ(FindObject<ICaptureParam>(model->GetObjects(), "midi.last_message.cc"), nullptr);
    CEventCounter changes(number.GetValueChangedEventProvider());
    message.Set({9, 64, 100});
    timers.Tick();
    EXPECT_EQ(channel.GetValue(), 9.0f);
    EXPECT_EQ(number.GetValue(), 64.0f);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(Get<IConstMIDICCMessage>("midi.last_message").GetValue(), 100);
}

TEST_F(CPluginModelObjectsTest, MIDISettingsOfInputsAndOutputsHaveTheirNamesAndRanges)
{
    Build({"midi.*"});
    struct CCase
    {
        const char* id;
        const char* name;
        float min;
        float max;
        float defaultValue;
    };
    for (const CCase& row : {CCase{"midi.input1.channel", "Gain Channel", 0.0f, 16.0f, 0.0f},
                             CCase{"midi.input1.cc", "Gain CC", 0.0f, 127.0f, 65.0f},
                             CCase{"midi.input1.min", "Gain min", 0.0f, 10.0f, 0.0f},
                             CCase{"midi.input1.max", "Gain max", 0.0f, 10.0f, 10.0f},
                             CCase{"midi.input1.enabled", "Gain Enabled", 0.0f, 1.0f, 0.0f},
                             CCase{"midi.output0.channel", "Level Channel", 0.0f, 16.0f, 0.0f},
                             CCase{"midi.output0.cc", "Level CC", 0.0f, 127.0f, 65.0f},
                             CCase{"midi.output0.min", "Level min", 0.0f, 1.0f, 0.0f},
                             CCase{"midi.output0.max", "Level max", 0.0f, 1.0f, 1.0f},
                             CCase{"midi.output0.enabled", "Level Enabled", 0.0f, 1.0f, 0.0f}})
    {
        const auto& info = Get<ICaptureParam>(row.id).GetInfo();
        EXPECT_STREQ(info.GetName(), row.name);
        EXPECT_EQ(info.GetMin(), row.min) << row.id;
        EXPECT_EQ(info.GetMax(), row.max) << row.id;
        EXPECT_EQ(info.GetDefault(), row.defaultValue) << row.id;
        EXPECT_EQ(Get<ICaptureParam>(row.id).GetValue(), row.defaultValue) << row.id;
    }
    const auto textOf = [this](const char* id, float value)
    {
        char* text = nullptr;
        Get<ICaptureParam>(id).GetInfo().GetValueToText().ToText(value, text);
        const std::unique_ptr<char[]> holder(text);
        return std::string(text);
    };
    EXPECT_EQ(textOf("midi.input1.enabled", 0.0f), "Off");
    EXPECT_EQ(textOf("midi.output0.enabled", 1.0f), "On");
    EXPECT_EQ(textOf("midi.input1.channel", 3.0f), "3");
    EXPECT_EQ(textOf("midi.input1.cc", 64.0f), "64");
}

TEST_F(CPluginModelObjectsTest, MIDISettingsAreWrittenAtOnceAndFollowAtTheTick)
{
    Build({"midi.input1.*"});
    Get<ICaptureParam>("midi.input1.channel").SetValue(5.0f);
    Get<ICaptureParam>("midi.input1.cc").SetValue(7.0f);
    Get<ICaptureParam>("midi.input1.min").SetValue(8.0f);
    Get<ICaptureParam>("midi.input1.max").SetValue(2.0f);
    Get<ICaptureParam>("midi.input1.enabled").SetValue(1.0f);
    EXPECT_EQ(inputMIDI[1].GetChannel(), 5);
    EXPECT_EQ(inputMIDI[1].GetNumber(), 7);
    EXPECT_EQ(inputMIDI[1].GetMin(), 8.0f);
    EXPECT_EQ(inputMIDI[1].GetMax(), 2.0f);
    EXPECT_TRUE(inputMIDI[1].IsEnabled());
    EXPECT_EQ(inputMIDI[0].GetNumber(), 65);
    CEventCounter changes(Get<ICaptureParam>("midi.input1.cc").GetValueChangedEventProvider());
    inputMIDI[1].SetNumber(20);
    EXPECT_EQ(changes.Take(), 0);
    timers.Tick();
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(Get<ICaptureParam>("midi.input1.cc").GetValue(), 20.0f);
}

TEST_F(CPluginModelObjectsTest, WithoutBindingsThereAreNoObjects)
{
    bindings = {};
    Build({"*"});
    EXPECT_THAT(Ids(), IsEmpty());
}

TEST_F(CPluginModelObjectsTest, ATakenIdIsReported)
{
    model->AddParam("dsp.output_curve0", new CCaptureParam, objectItself, true);
    model->GetExposure().Use("dsp.output_curve0");
    // What is there stays; nothing is added, nothing fails.
    EXPECT_TRUE(CPluginModelObjects(bindings, timers).Build(*model, model->GetExposure()));
    EXPECT_NE(FindObject<ICaptureParam>(model->GetObjects(), "dsp.output_curve0"), nullptr);
}

TEST_F(CPluginModelObjectsTest, TheEndOfTheModelEndsItsTimers)
{
    Build({"*"});
    EXPECT_FALSE(timers.periods.empty());
    model.reset();
    EXPECT_TRUE(timers.periods.empty());
    inputMIDI[0].SetNumber(3);
    effect.ChangeCurve(1.0f);
    Publish();
    captures.DeliverChanges();
}

} // namespace
} // namespace Mirel::Audio::Plugin
