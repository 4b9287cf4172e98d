#include "Host/Audio/CSoundFileSource.h"
#include "Host/Audio/CSoundFileWriter.h"

#include "Support/CTemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <vector>

namespace Host
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;

/// Writes interleaved samples with the library itself.
void WriteFile(const std::string& path, int format, int sampleRate, int channelCount,
               const std::vector<float>& samples)
{
    SF_INFO info = {};
    info.samplerate = sampleRate;
    info.channels = channelCount;
    info.format = format;
    SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
    ASSERT_NE(file, nullptr) << sf_strerror(nullptr);
    sf_write_float(file, samples.data(), static_cast<sf_count_t>(samples.size()));
    sf_close(file);
}

TEST(CSoundFileSource, ReadsChannelsRateAndSamples)
{
    const Tests::CTemporaryFolder folder;
    const std::string path = folder.GetPath("a.wav");
    WriteFile(path, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 44100, 2, {0.1f, -0.1f, 0.2f, -0.2f, 0.3f, -0.3f});
    CSoundFileSource source;
    std::string error;
    ASSERT_TRUE(source.Open(path, error)) << error;
    EXPECT_EQ(source.GetSampleRate(), 44100.0);
    EXPECT_EQ(source.GetChannelCount(), 2);
    EXPECT_EQ(source.GetFrameCount(), 3);
    float left[4] = {};
    float right[4] = {};
    float* const channels[] = {left, right};
    EXPECT_EQ(source.Read(channels, 2), 2);
    EXPECT_EQ(source.Read(channels, 4), 1);
    EXPECT_THAT(left, ElementsAre(0.3f, 0.2f, 0.0f, 0.0f)); // The second read begins at the front again.
    EXPECT_THAT(right, ElementsAre(-0.3f, -0.2f, 0.0f, 0.0f));
    EXPECT_EQ(source.Read(channels, 4), 0);
}

TEST(CSoundFileSource, SkipsFrames)
{
    const Tests::CTemporaryFolder folder;
    const std::string path = folder.GetPath("a.wav");
    WriteFile(path, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 8000, 1, {0.1f, 0.2f, 0.3f});
    CSoundFileSource source;
    std::string error;
    ASSERT_TRUE(source.Open(path, error)) << error;
    source.Skip(2);
    float samples[2] = {};
    float* const channels[] = {samples};
    EXPECT_EQ(source.Read(channels, 2), 1);
    EXPECT_EQ(samples[0], 0.3f);
    source.Skip(10);
    EXPECT_EQ(source.Read(channels, 2), 0);
}

TEST(CSoundFileSource, PlaysTheFirstTwoOfMoreChannels)
{
    const Tests::CTemporaryFolder folder;
    const std::string path = folder.GetPath("a.wav");
    WriteFile(path, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 8000, 3, {0.1f, 0.2f, 0.3f, 0.4f, 0.5f, 0.6f});
    CSoundFileSource source;
    std::string error;
    ASSERT_TRUE(source.Open(path, error)) << error;
    EXPECT_EQ(source.GetFileChannelCount(), 3);
    EXPECT_EQ(source.GetChannelCount(), 2);
    float left[2] = {};
    float right[2] = {};
    float* const channels[] = {left, right};
    EXPECT_EQ(source.Read(channels, 2), 2);
    EXPECT_THAT(left, ElementsAre(0.1f, 0.4f));
    EXPECT_THAT(right, ElementsAre(0.2f, 0.5f));
}

TEST(CSoundFileSource, ReadsTheCommonFormats)
{
    const Tests::CTemporaryFolder folder;
    const std::vector<float> samples(2000, 0.25f);
    for (const int format : {SF_FORMAT_WAV | SF_FORMAT_PCM_24, SF_FORMAT_AIFF | SF_FORMAT_PCM_16,
                             SF_FORMAT_FLAC | SF_FORMAT_PCM_16, SF_FORMAT_OGG | SF_FORMAT_VORBIS})
    {
        const std::string path = folder.GetPath("a");
        WriteFile(path, format, 48000, 2, samples);
        CSoundFileSource source;
        std::string error;
        ASSERT_TRUE(source.Open(path, error)) << error;
        EXPECT_EQ(source.GetFrameCount(), 1000);
        float left[1000];
        float right[1000];
        float* const channels[] = {left, right};
        EXPECT_EQ(source.Read(channels, 1000), 1000);
        EXPECT_NEAR(left[500], 0.25f, 0.01f);
    }
}

TEST(CSoundFileSource, SaysInOneLineWhyAFileCannotBeRead)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("text", "no audio at all, but long enough to be looked at by every format that there is");
    CSoundFileSource source;
    std::string error;
    EXPECT_FALSE(source.Open(folder.GetPath("missing"), error));
    EXPECT_THAT(error, HasSubstr("No such file or directory"));
    EXPECT_FALSE(source.Open(folder.GetPath("."), error));
    EXPECT_THAT(error, HasSubstr("it is a folder"));
    EXPECT_FALSE(source.Open(folder.GetPath("text"), error));
    EXPECT_THAT(error, HasSubstr("/text\": "));
    EXPECT_EQ(error.find('\n'), std::string::npos);
}

TEST(CSoundFileWriter, KeepsEveryBitOfTheSamples)
{
    const Tests::CTemporaryFolder folder;
    const std::string path = folder.GetPath("out.wav");
    const float left[] = {1.5f, -0.0f, std::numeric_limits<float>::denorm_min()};
    const float right[] = {std::numeric_limits<float>::infinity(), 1e-10f,
                           std::numeric_limits<float>::quiet_NaN()};
    const float* const channels[] = {left, right};
    std::string error;
    CSoundFileWriter writer;
    ASSERT_TRUE(writer.Open(path, 96000, 2, error)) << error;
    writer.Write(channels, 3);
    writer.Write(channels, 0);
    ASSERT_TRUE(writer.Finish(error)) << error;

    EXPECT_EQ(folder.Read("out.wav").substr(0, 4), "RIFF");
    CSoundFileSource source;
    ASSERT_TRUE(source.Open(path, error)) << error;
    EXPECT_EQ(source.GetSampleRate(), 96000.0);
    float readLeft[3];
    float readRight[3];
    float* const read[] = {readLeft, readRight};
    ASSERT_EQ(source.Read(read, 3), 3);
    for (std::size_t i = 0; i < 3; ++i)
    {
        EXPECT_EQ(std::bit_cast<std::uint32_t>(readLeft[i]), std::bit_cast<std::uint32_t>(left[i]));
        EXPECT_EQ(std::bit_cast<std::uint32_t>(readRight[i]), std::bit_cast<std::uint32_t>(right[i]));
    }
}

TEST(CSoundFileWriter, LeavesTheOldFileUntilItIsFinished)
{
    const Tests::CTemporaryFolder folder;
    folder.Write("out.wav", "old");
    const float samples[] = {0.5f};
    const float* const channels[] = {samples};
    std::string error;
    {
        CSoundFileWriter writer;
        ASSERT_TRUE(writer.Open(folder.GetPath("out.wav"), 48000, 1, error)) << error;
        writer.Write(channels, 1);
        EXPECT_EQ(folder.Read("out.wav"), "old");
    }
    EXPECT_EQ(folder.Read("out.wav"), "old");
    EXPECT_THAT(folder.List(), ElementsAre("out.wav"));
}

TEST(CSoundFileWriter, SaysWhereItCannotWrite)
{
    CSoundFileWriter writer;
    std::string error;
    EXPECT_FALSE(writer.Open("/nowhere/at/all.wav", 48000, 1, error));
    EXPECT_EQ(error, "cannot write \"/nowhere/at/all.wav\"");
}

} // namespace
} // namespace Host
