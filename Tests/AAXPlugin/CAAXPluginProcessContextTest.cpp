#include "AAXPlugin/CAAXPluginProcessContext.h"

#include "AAXPlugin/CContextRig.h"
#include "Mirel/Core/CAutoLock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <thread>
#include <utility>

namespace
{

using namespace MirelExt::AAXPlugin;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using Tests::CChannels;
using Tests::CContextRig;
using Tests::CListeningFilter;

using CRows = std::vector<std::vector<float>>;

TEST(ProcessContext, RestingParametersReachTheFilterAsNoMovement)
{
    CContextRig rig(2, 0, {2, 2});
    EXPECT_THAT(rig.RunValue(0.5F).variations, IsEmpty());
}

TEST(ProcessContext, ChangeIsARampThenItsEndThenNothing)
{
    CContextRig rig(2, 0, {2, 2});
    rig.Set(2, 4.0F);
    EXPECT_EQ(rig.RunValue(0.5F, 8).variations, (CRows{{0.0F, 0.0F}, {0.0F, 0.5F}}));
    EXPECT_EQ(rig.RunValue(0.5F, 8).variations, (CRows{{0.0F, 4.0F}}));
    EXPECT_THAT(rig.RunValue(0.5F, 8).variations, IsEmpty());
}

TEST(ProcessContext, ValuesBeforeInitAreNoMovementAfterIt)
{
    CContextRig rig(2, 0, {2, 2});
    rig.Set(1, 7.0F);
    rig.context.Init(44100.0);
    EXPECT_THAT(rig.RunValue(0.5F).variations, IsEmpty());
}

TEST(ProcessContext, BypassIsNoParameterOfTheFilter)
{
    CContextRig rig(2, 0, {2, 2});
    rig.Set(0, 1.0F);
    EXPECT_THAT(rig.RunValue(0.5F).variations, IsEmpty());
}

TEST(ProcessContext, StreamsAreViewsOfTheHostsChannels)
{
    CContextRig rig(2, 0, {2, 2});
    CChannels inputs(2, 3);
    CChannels outputs(2, 3);
    inputs[0] = {1.0F, 2.0F, 3.0F};
    inputs[1] = {4.0F, 5.0F, 6.0F};
    rig.Run(inputs, outputs, 3);
    const CListeningFilter::CBlock& block = rig.filter.blocks.back();
    EXPECT_EQ(block.sampleCount, 3);
    EXPECT_EQ(block.inputs, (CRows{{1.0F, 2.0F, 3.0F}, {4.0F, 5.0F, 6.0F}}));
    EXPECT_THAT(block.inputStrides, ElementsAre(1, 1));
    EXPECT_THAT(block.outputStrides, IsEmpty());
}

TEST(ProcessContext, ChannelThatAMonoHostLacksReadsZeroFromOneFloat)
{
    CContextRig rig(2, 0, {1, 1});
    const CListeningFilter::CBlock& block = rig.RunValue(0.5F, 4);
    EXPECT_EQ(block.inputs, (CRows{{0.5F, 0.5F, 0.5F, 0.5F}, {0.0F, 0.0F, 0.0F, 0.0F}}));
    EXPECT_THAT(block.inputStrides, ElementsAre(1, 0));
}

TEST(ProcessContext, ChannelsThatTheFilterDoesNotDeclareAreNotHanded)
{
    CContextRig rig(1, 0, {2, 2});
    EXPECT_EQ(rig.RunValue(0.5F, 2).inputs.size(), 1U);
}

TEST(ProcessContext, OutputThatTheHostLacksIsWrittenToOneFloat)
{
    CContextRig rig(2, 3, {2, 2});
    CChannels inputs(2, 2);
    CChannels outputs(2, 2);
    inputs[0] = {1.0F, 2.0F};
    inputs[1] = {3.0F, 4.0F};
    rig.Run(inputs, outputs, 2);
    EXPECT_THAT(rig.filter.blocks.back().outputStrides, ElementsAre(1, 1, 0));
    EXPECT_THAT(outputs[0], ElementsAre(2.0F, 4.0F)) << "the filter's own output";
    EXPECT_THAT(outputs[1], ElementsAre(6.0F, 8.0F));
    rig.Run(inputs, outputs, 2);
    EXPECT_THAT(rig.filter.blocks.back().inputs[1], ElementsAre(3.0F, 4.0F));
}

TEST(ProcessContext, BlockIsSilentUpToTheThreshold)
{
    const struct
    {
        float sample;
        bool silent;
    } rows[] = {{0.0F, true},    {1e-10F, true},
                {-1e-10F, true}, {std::nextafter(1e-10F, 1.0F), false},
                {-1.0F, false},  {std::numeric_limits<float>::quiet_NaN(), false}};
    for (const auto& row : rows)
    {
        CContextRig rig(2, 0, {2, 2});
        EXPECT_EQ(rig.RunValue(row.sample).silent, row.silent) << row.sample;
    }
}

TEST(ProcessContext, OneSoundingSampleInAnyUsedChannelIsNoSilence)
{
    CContextRig rig(2, 0, {3, 3});
    CChannels inputs(3, 4);
    CChannels outputs(3, 4);
    inputs[2][0] = 1.0F;
    rig.Run(inputs, outputs, 4);
    EXPECT_TRUE(rig.filter.blocks.back().silent) << "the filter does not hear the third channel";
    inputs[1][3] = 1.0F;
    rig.Run(inputs, outputs, 4);
    EXPECT_FALSE(rig.filter.blocks.back().silent);
}

TEST(ProcessContext, SilenceHandsTheSameBlockWithItsMovement)
{
    CContextRig rig(2, 0, {2, 2});
    rig.Set(1, 8.0F);
    const CListeningFilter::CBlock& block = rig.RunValue(0.0F, 8);
    EXPECT_TRUE(block.silent);
    EXPECT_EQ(block.variations, (CRows{{0.0F, 0.0F}, {1.0F, 0.0F}}));
    EXPECT_EQ(block.sampleCount, 8);
}

TEST(ProcessContext, FilterWithoutInputsIsNeverSilent)
{
    CContextRig rig(0, 0, {2, 2});
    EXPECT_FALSE(rig.RunValue(0.0F).silent);
}

TEST(ProcessContext, AudioPassesUnchangedToAnOutputOfTheSameIndexAndSilenceToTheRest)
{
    CContextRig rig(2, 0, {2, 4});
    CChannels inputs(2, 3);
    CChannels outputs(4, 3);
    inputs[0] = {1.0F, -0.0F, 3.0F};
    inputs[1] = {0.25F, 1e-30F, -7.0F};
    outputs.Fill(77.0F);
    rig.Run(inputs, outputs, 3);
    EXPECT_EQ(outputs[0], inputs[0]);
    EXPECT_TRUE(std::signbit(outputs[0][1]));
    EXPECT_EQ(outputs[1], inputs[1]);
    EXPECT_THAT(outputs[2], Each(0.0F));
    EXPECT_THAT(outputs[3], Each(0.0F));
}

TEST(ProcessContext, FilterWithOutputsWritesThemItself)
{
    CContextRig rig(2, 2, {2, 2});
    CChannels inputs(2, 2);
    CChannels outputs(2, 2);
    inputs.Fill(1.0F);
    rig.Run(inputs, outputs, 2);
    EXPECT_THAT(outputs[0], Each(2.0F));
}

TEST(ProcessContext, BypassAboveAHalfLetsTheDryInputThrough)
{
    CContextRig rig(1, 1, {1, 1});
    CChannels inputs(1, 4096);
    CChannels outputs(1, 4096);
    inputs.Fill(1.0F);
    rig.Set(0, 0.5F);
    rig.Run(inputs, outputs, 4096);
    EXPECT_THAT(outputs[0], Each(2.0F)) << "a half is not on";
    rig.Set(0, 0.75F);
    rig.Run(inputs, outputs, 4096);
    EXPECT_EQ(outputs[0].back(), 1.0F);
    EXPECT_EQ(rig.filter.blocks.size(), 2U) << "the filter runs on";
    rig.Set(0, 0.0F);
    rig.Run(inputs, outputs, 4096);
    EXPECT_EQ(outputs[0].back(), 2.0F);
}

TEST(ProcessContext, BlockWithoutSamplesMovesNothingAndIsSilent)
{
    CContextRig rig(2, 0, {2, 2});
    rig.Set(1, 8.0F);
    for (const std::int32_t samples : {0, -1})
    {
        CChannels inputs(2, 1);
        CChannels outputs(2, 1);
        inputs.Fill(1.0F);
        outputs.Fill(77.0F);
        rig.Run(inputs, outputs, samples);
        const CListeningFilter::CBlock& block = rig.filter.blocks.back();
        EXPECT_EQ(block.sampleCount, 0);
        EXPECT_TRUE(block.silent);
        EXPECT_THAT(block.variations, IsEmpty());
        EXPECT_THAT(outputs[0], Each(77.0F));
    }
    EXPECT_EQ(rig.RunValue(1.0F, 8).variations, (CRows{{0.0F, 0.0F}, {1.0F, 0.0F}}))
        << "the change is still due";
}

TEST(ProcessContext, RecordWithoutItsContextIsLeftOut)
{
    CContextRig first(1, 0, {1, 1});
    CContextRig last(1, 0, {1, 1});
    CChannels inputs(1, 2);
    CChannels outputs(1, 2);
    std::array<void*, 7> noPacket = {};
    std::array<void*, 7> nullInPacket = {};
    const CAAXPluginProcessContext* none = nullptr;
    nullInPacket[FieldProcessContext] = &none;
    for (CContextRig* rig : {&first, &last})
    {
        rig->sampleCount = 2;
        rig->fields[FieldAudioInputs] = const_cast<float**>(inputs.Get());
        rig->fields[FieldAudioOutputs] = const_cast<float**>(outputs.Get());
    }
    const std::array<AAX_InstanceRecord, 5> records = {first.fields.data(), nullptr, noPacket.data(),
                                                       nullInPacket.data(), last.fields.data()};
    ProcessInstances(records.data(), 5);
    EXPECT_EQ(first.filter.blocks.size(), 1U);
    EXPECT_EQ(last.filter.blocks.size(), 1U);
    ProcessInstances(records.data(), 0);
    ProcessInstances(records.data(), -1);
    ProcessInstances(nullptr, 5);
    EXPECT_EQ(first.filter.blocks.size(), 1U);
}

TEST(ProcessContext, MissingBuffersNodesAndCountsAreStood)
{
    CContextRig rig(2, 0, {2, 2});
    CChannels inputs(2, 2);
    CChannels outputs(2, 2);
    inputs.Fill(1.0F);
    const AAX_InstanceRecord record = rig.fields.data();
    for (const EProcessField missing :
         {FieldAudioInputs, FieldAudioOutputs, FieldBufferLength, FieldMidiInput, FieldMidiOutput})
    {
        rig.sampleCount = 2;
        rig.fields[FieldAudioInputs] = const_cast<float**>(inputs.Get());
        rig.fields[FieldAudioOutputs] = const_cast<float**>(outputs.Get());
        void* const present = std::exchange(rig.fields[missing], nullptr);
        const std::size_t before = rig.filter.blocks.size();
        ProcessInstances(&record, 1);
        EXPECT_EQ(rig.filter.blocks.size(), before + 1) << missing;
        rig.fields[missing] = present;
    }
}

TEST(ProcessContext, ControllerInTheBlockMovesTheParameterInTheSameBlock)
{
    CContextRig rig(2, 0, {2, 2});
    auto& setting = rig.internals.GetDefaultSettings().GetInputMIDISettings()[1];
    setting.SetEnabled(true);
    setting.SetChannel(0);
    setting.SetNumber(20);
    setting.SetMin(0.0F);
    setting.SetMax(8.0F);
    rig.midiInput->Add(MakeMidiEvent(0, 0x90, 20, 127)); // a note
    rig.midiInput->Add(MakeMidiEvent(0, 0xB4, 21, 127)); // another controller
    EXPECT_THAT(rig.RunValue(0.5F, 8).variations, IsEmpty());
    rig.midiInput->Clear();
    rig.midiInput->Add(MakeMidiEvent(3, 0xB4, 20, 127));
    EXPECT_EQ(rig.RunValue(0.5F, 8).variations, (CRows{{0.0F, 0.0F}, {1.0F, 0.0F}}));
    EXPECT_EQ(rig.internals.GetLastMIDIMessage().GetChannel(), 5);
    EXPECT_EQ(rig.internals.GetLastMIDIMessage().GetNumber(), 20);
}

TEST(ProcessContext, RefreshPublishesOutputsAtItsRate)
{
    CContextRig rig(2, 0, {2, 2});
    // 48000 / 50: the filter has no clock of its own, so the instance's counts; its first block is due.
    constexpr int period = 960;
    rig.filter.levelValue = 0.25F;
    rig.RunValue(0.5F, 100);
    EXPECT_EQ(rig.context.GetRefreshes().count, 1);
    EXPECT_EQ(rig.context.GetRefreshes().lastPosition, 100);
    EXPECT_EQ(rig.outputAdapters[0].GetValue(), 0.25F);
    rig.filter.levelValue = 0.5F;
    rig.RunValue(0.5F, period - 1);
    EXPECT_EQ(rig.context.GetRefreshes().count, 1);
    EXPECT_EQ(rig.outputAdapters[0].GetValue(), 0.25F);
    rig.RunValue(0.5F, 1);
    EXPECT_EQ(rig.context.GetRefreshes().count, 2);
    EXPECT_EQ(rig.context.GetRefreshes().lastPosition, 100 + period);
    EXPECT_EQ(rig.outputAdapters[0].GetValue(), 0.5F);
    rig.RunValue(0.5F, 5 * period);
    EXPECT_EQ(rig.context.GetRefreshes().count, 3) << "a long block is one refresh";
}

TEST(ProcessContext, RefreshSendsBoundOutputsToTheMidiNode)
{
    CContextRig rig(2, 0, {2, 2});
    auto& setting = rig.internals.GetDefaultSettings().GetOutputMIDISettings()[0];
    setting.SetEnabled(true);
    setting.SetChannel(3);
    setting.SetNumber(74);
    rig.filter.levelValue = 1.0F;
    rig.RunValue(0.5F, 10);
    ASSERT_EQ(rig.midiOutput->GetAll().size(), 1U);
    const SMidiEvent event = rig.midiOutput->GetAll().front();
    const SMidiEvent expected = MakeMidiEvent(0, 0xB2, 74, 127);
    EXPECT_EQ(std::memcmp(&event, &expected, sizeof(event)), 0);
}

TEST(ProcessContext, ReaderAtTheCapturesPutsThePublicationOffToTheNextBlock)
{
    CContextRig rig(2, 0, {2, 2});
    auto& setting = rig.internals.GetDefaultSettings().GetOutputMIDISettings()[0];
    setting.SetEnabled(true);
    // The lock is recursive: only another thread's hold counts.
    std::thread audio;
    {
        const Mirel::Core::CAutoLock reading(rig.internals.GetOutputCaptures().GetLock());
        audio = std::thread(
            [&]
            {
                rig.RunValue(0.5F, 10);
                rig.RunValue(0.5F, 10);
            });
        audio.join();
    }
    EXPECT_EQ(rig.context.GetRefreshes().count, 1);
    EXPECT_EQ(rig.context.GetRefreshes().lastPosition, 10);
    EXPECT_EQ(rig.context.GetRefreshes().published, 0);
    EXPECT_EQ(rig.midiOutput->GetAll().size(), 1U) << "parameters go out once for each refresh";
    rig.RunValue(0.5F, 10);
    EXPECT_EQ(rig.context.GetRefreshes().count, 1);
    EXPECT_EQ(rig.context.GetRefreshes().published, 1);
    EXPECT_EQ(rig.midiOutput->GetAll().size(), 1U);
    rig.RunValue(0.5F, 10);
    EXPECT_EQ(rig.context.GetRefreshes().count, 1);
    EXPECT_EQ(rig.context.GetRefreshes().published, 1);
}

TEST(ProcessContext, SampleRateThatTheFilterCannotRunAtIsRefused)
{
    CContextRig rig(2, 0, {2, 2});
    rig.filter.runs = false;
    EXPECT_FALSE(rig.context.Init(48000.0));
}

} // namespace
