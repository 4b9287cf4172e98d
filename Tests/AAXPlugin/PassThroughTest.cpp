#include "AAXPlugin/PassThrough.h"

#include "Support/AllocationCounter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace
{

using namespace MirelExt::AAXPlugin;
using testing::Each;
using testing::ElementsAre;

constexpr float Untouched = 77.0F;

/// One instance with its buffers: input channel c holds c + 1, c + 1.25, ..., outputs are untouched.
class CInstance
{
public:
    CInstance(int inputCount, int outputCount, int samples)
        : inputs(static_cast<std::size_t>(inputCount)),
          outputs(static_cast<std::size_t>(outputCount),
                  std::vector<float>(static_cast<std::size_t>(samples), Untouched)),
          sampleCount(samples)
    {
        for (std::size_t channel = 0; channel < inputs.size(); ++channel)
        {
            for (int i = 0; i < samples; ++i)
            {
                inputs[channel].push_back(static_cast<float>(channel + 1) + 0.25F * static_cast<float>(i));
            }
            inputPointers.push_back(inputs[channel].data());
        }
        for (std::vector<float>& output : outputs)
        {
            outputPointers.push_back(output.data());
        }
        fields[2] = inputPointers.data();
        fields[3] = outputPointers.data();
        fields[4] = &sampleCount;
    }

    CInstance(const CInstance&) = delete;
    CInstance& operator=(const CInstance&) = delete;

    void Run(CChannelCounts channels) { PassThrough(fields.data(), channels); }

    std::vector<std::vector<float>> inputs;
    std::vector<std::vector<float>> outputs;
    std::vector<const float*> inputPointers;
    std::vector<float*> outputPointers;
    std::int32_t sampleCount;
    std::array<void*, 7> fields = {};
};

TEST(PassThrough, CopiesEachChannelOfAStereoInstance)
{
    CInstance instance(2, 2, 3);
    instance.Run({2, 2});
    EXPECT_THAT(instance.outputs[0], ElementsAre(1.0F, 1.25F, 1.5F));
    EXPECT_THAT(instance.outputs[1], ElementsAre(2.0F, 2.25F, 2.5F));
}

TEST(PassThrough, LeavesChannelsBeyondItsCountAlone)
{
    CInstance instance(2, 2, 3);
    instance.Run({1, 1});
    EXPECT_THAT(instance.outputs[0], ElementsAre(1.0F, 1.25F, 1.5F));
    EXPECT_THAT(instance.outputs[1], Each(Untouched));
}

TEST(PassThrough, OutputsWithoutInputAreSilent)
{
    CInstance instance(1, 3, 2);
    instance.Run({1, 3});
    EXPECT_THAT(instance.outputs[0], ElementsAre(1.0F, 1.25F));
    EXPECT_THAT(instance.outputs[1], ElementsAre(0.0F, 0.0F));
    EXPECT_THAT(instance.outputs[2], ElementsAre(0.0F, 0.0F));
}

TEST(PassThrough, InputsWithoutOutputAreNotRead)
{
    CInstance instance(2, 1, 2);
    instance.inputPointers[1] = nullptr;
    instance.Run({2, 1});
    EXPECT_THAT(instance.outputs[0], ElementsAre(1.0F, 1.25F));
}

TEST(PassThrough, BlockWithoutSamplesTouchesNothing)
{
    for (const std::int32_t count : {0, -1})
    {
        CInstance instance(2, 2, 2);
        instance.sampleCount = count;
        instance.Run({2, 2});
        EXPECT_THAT(instance.outputs[0], Each(Untouched));
        EXPECT_THAT(instance.outputs[1], Each(Untouched));
    }
}

TEST(PassThrough, MissingInputBufferIsSilence)
{
    CInstance instance(2, 2, 2);
    instance.inputPointers[0] = nullptr;
    instance.Run({2, 2});
    EXPECT_THAT(instance.outputs[0], ElementsAre(0.0F, 0.0F));
    EXPECT_THAT(instance.outputs[1], ElementsAre(2.0F, 2.25F));
}

TEST(PassThrough, MissingInputArrayIsSilenceEverywhere)
{
    CInstance instance(2, 2, 2);
    instance.fields[2] = nullptr;
    instance.Run({2, 2});
    EXPECT_THAT(instance.outputs[0], Each(0.0F));
    EXPECT_THAT(instance.outputs[1], Each(0.0F));
}

TEST(PassThrough, MissingOutputBufferIsLeftOut)
{
    CInstance instance(2, 2, 2);
    instance.outputPointers[0] = nullptr;
    instance.Run({2, 2});
    EXPECT_THAT(instance.outputs[0], Each(Untouched));
    EXPECT_THAT(instance.outputs[1], ElementsAre(2.0F, 2.25F));
}

TEST(PassThrough, RecordWithoutOutputsOrSampleCountIsLeftOut)
{
    CInstance withoutOutputs(1, 1, 2);
    withoutOutputs.fields[3] = nullptr;
    withoutOutputs.Run({1, 1});
    EXPECT_THAT(withoutOutputs.outputs[0], Each(Untouched));

    CInstance withoutCount(1, 1, 2);
    withoutCount.fields[4] = nullptr;
    withoutCount.Run({1, 1});
    EXPECT_THAT(withoutCount.outputs[0], Each(Untouched));
}

TEST(PassThrough, InPlaceAndOverlappingBuffersKeepTheirSamples)
{
    std::vector<float> buffer = {1.0F, 2.0F, 3.0F, 4.0F};
    CInstance instance(2, 2, 3);
    instance.inputPointers[0] = buffer.data();
    instance.outputPointers[0] = buffer.data();
    instance.Run({2, 2});
    EXPECT_THAT(buffer, ElementsAre(1.0F, 2.0F, 3.0F, 4.0F));
    instance.outputPointers[0] = buffer.data() + 1;
    instance.Run({2, 2});
    EXPECT_THAT(buffer, ElementsAre(1.0F, 1.0F, 2.0F, 3.0F));
}

TEST(PassThrough, EveryValueComesThroughBitForBit)
{
    CInstance instance(1, 1, 4);
    instance.inputs[0] = {std::numeric_limits<float>::denorm_min(), -0.0F,
                          -std::numeric_limits<float>::infinity(), std::nanf("")};
    instance.inputPointers[0] = instance.inputs[0].data();
    instance.Run({1, 1});
    EXPECT_EQ(instance.outputs[0][0], std::numeric_limits<float>::denorm_min());
    EXPECT_TRUE(std::signbit(instance.outputs[0][1]));
    EXPECT_EQ(instance.outputs[0][2], -std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(instance.outputs[0][3]));
}

TEST(PassThrough, AllocatesNothing)
{
    CInstance instance(2, 3, 64);
    const Tests::CAllocationCounter allocations;
    instance.Run({2, 3});
    EXPECT_EQ(allocations.GetCount(), 0U);
}

} // namespace
