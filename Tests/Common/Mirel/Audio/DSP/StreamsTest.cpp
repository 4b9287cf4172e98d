#include "Mirel/Audio/DSP/AudioStreams.h"
#include "Mirel/Audio/DSP/CDynamicAudioStream.h"
#include "Mirel/Audio/DSP/StreamOperations.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace Mirel::Audio::DSP;

TEST(CAudioStream, DataBeginsAtTheOffsetAndTheCountIsTheSizeByStrides)
{
    std::vector<float> floats{0, 1, 2, 3, 4, 5, 6};
    const CAudioStream stream(floats.data(), 1, 6, 2);

    EXPECT_EQ(stream.GetData(), floats.data() + 1);
    EXPECT_EQ(stream.GetSampleCount(), 3);
    EXPECT_EQ(stream.GetStride(), 2);
}

TEST(CAudioStream, StrideOfZeroCountsTheWholeSize)
{
    float one = 1.0f;
    EXPECT_EQ(CAudioStream(&one, 0, 64, 0).GetSampleCount(), 64);
}

TEST(CAudioStream, WithoutDataTheOffsetDoesNotMakeAPointer)
{
    EXPECT_EQ(CAudioStream(nullptr, 5, 64, 1).GetData(), nullptr);
}

TEST(CAudioStream, OwnedDataGoesWithTheStreamAndMovesWithIt)
{
    // Freed once, or the address sanitizer reports it.
    CAudioStream first(new float[4], 0, 4, 1, true);
    CAudioStream second(std::move(first));
    EXPECT_NE(second.GetData(), nullptr);
}

TEST(CDynamicAudioStream, CopyHasSamplesOfItsOwn)
{
    CDynamicAudioStream stream(3);
    stream.GetData()[2] = 5.0f;
    const CDynamicAudioStream copy(stream);
    stream.GetData()[2] = 6.0f;

    EXPECT_EQ(copy.GetSampleCount(), 3);
    EXPECT_EQ(copy.GetData()[2], 5.0f);
    EXPECT_EQ(copy.GetStride(), 1);
}

TEST(CAudioStreams, NullArrayHasNoChannels)
{
    EXPECT_EQ(CAudioStreams(nullptr, 7).GetCount(), 0);
}

TEST(CAudioStreams, ShowsTheArrayAndFreesAnOwnedOne)
{
    auto* array = new CAudioStream[2];
    array[1] = CAudioStream(nullptr, 0, 9, 1);
    const CAudioStreams streams(array, 2, true);

    EXPECT_EQ(streams.GetCount(), 2);
    EXPECT_EQ(streams[1].GetSampleCount(), 9);
}

TEST(CAudioStreamToStreams, OneStreamIsAListOfOneAndNoneIsEmpty)
{
    CAudioStream stream(nullptr, 0, 3, 1);
    CAudioStreamToStreams one(&stream);

    EXPECT_EQ(one.GetCount(), 1);
    EXPECT_EQ(&one[0], &stream);
    EXPECT_EQ(CAudioStreamToStreams(nullptr).GetCount(), 0);
}

TEST(CEmptyStreams, EveryChannelIsWithoutDataAndOfTheGivenLength)
{
    const CEmptyStreams streams(3, 64);

    EXPECT_EQ(streams.GetCount(), 3);
    EXPECT_EQ(streams[2].GetData(), nullptr);
    EXPECT_EQ(streams[2].GetSampleCount(), 64);
}

TEST(CopyStream, FollowsBothStrides)
{
    std::vector<float> from{1, 0, 2, 0, 3, 0};
    std::vector<float> to(9, -1.0f);
    const CAudioStream source(from.data(), 0, 6, 2);
    CAudioStream target(to.data(), 0, 9, 3);

    CopyStream(target, source, 3);

    EXPECT_EQ(to, (std::vector<float>{1, -1, -1, 2, -1, -1, 3, -1, -1}));
}

TEST(CopyStream, SourceWithoutDataReadsAsZeros)
{
    std::vector<float> to(4, 1.0f);
    CAudioStream target(to.data(), 0, 4, 1);
    CopyStream(target, CAudioStream(nullptr, 0, 4, 1), 3);
    EXPECT_EQ(to, (std::vector<float>{0, 0, 0, 1}));

    std::vector<float> strided(4, 1.0f);
    CAudioStream stridedTarget(strided.data(), 0, 4, 2);
    CopyStream(stridedTarget, CAudioStream(nullptr, 0, 4, 1), 2);
    EXPECT_EQ(strided, (std::vector<float>{0, 1, 0, 1}));
}

TEST(CopyStream, TargetWithoutDataAndTheSourceItselfAreLeftAlone)
{
    std::vector<float> samples{1, 2};
    CAudioStream stream(samples.data(), 0, 2, 1);
    CAudioStream none(nullptr, 0, 2, 1);
    CopyStream(none, stream, 2);
    CopyStream(stream, CAudioStream(samples.data(), 0, 2, 1), 2);
    CopyStream(stream, CAudioStream(samples.data(), 1, 1, 1), -3);

    EXPECT_EQ(samples, (std::vector<float>{1, 2}));
}

TEST(CopyStreams, CopiesAsManyChannelsAsBothHave)
{
    std::vector<float> from{1, 2, 3};
    CAudioStream sources[3]{CAudioStream(from.data(), 0, 1, 1), CAudioStream(from.data(), 1, 1, 1),
                            CAudioStream(from.data(), 2, 1, 1)};
    std::vector<float> to(2);
    CAudioStream targets[2]{CAudioStream(to.data(), 0, 1, 1), CAudioStream(to.data(), 1, 1, 1)};
    CAudioStreams target(targets, 2);

    CopyStreams(target, CAudioStreams(sources, 3), 1);

    EXPECT_EQ(to, (std::vector<float>{1, 2}));
}

TEST(ClearStreams, WritesZerosInTheSamplesOfEveryChannelAndNowhereElse)
{
    std::vector<float> samples(6, 1.0f);
    CAudioStream channels[3]{CAudioStream(samples.data(), 0, 4, 2), CAudioStream(nullptr, 0, 4, 1),
                             CAudioStream(samples.data(), 5, 1, 1)};
    CAudioStreams streams(channels, 3);

    ClearStreams(streams);

    EXPECT_EQ(samples, (std::vector<float>{0, 1, 0, 1, 1, 0}));
}
