#include "Host/CHostProgram.h"

#include "Host/Audio/CSoundFileSource.h"
#include "Host/Audio/CSoundFileWriter.h"
#include "Host/TestFiles.h"
#include "Support/CTemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <sstream>
#include <vector>

namespace Host
{
namespace
{

using testing::HasSubstr;
using testing::StartsWith;
using CChannels = std::vector<std::vector<float>>;

struct CResult
{
    int code;
    std::string out;
    std::string error;
};

/// Every bit of the numbers is looked at: NaN and the zeros of both signs included.
std::vector<std::uint32_t> Bits(const std::vector<float>& samples)
{
    std::vector<std::uint32_t> bits;
    bits.reserve(samples.size());
    for (const float sample : samples)
    {
        bits.push_back(std::bit_cast<std::uint32_t>(sample));
    }
    return bits;
}

class CHostProgramRun : public testing::Test
{
protected:
    CResult Run(const std::vector<std::string>& options)
    {
        std::vector<const char*> arguments = {"scope-bank"};
        for (const std::string& option : options)
        {
            arguments.push_back(option.c_str());
        }
        std::ostringstream out;
        std::ostringstream error;
        const int code = CHostProgram(out, error, Tests::ScopeBankModule())
                             .Run(static_cast<int>(arguments.size()), arguments.data());
        return {code, out.str(), error.str()};
    }

    std::string Path(const std::string& name) const { return folder.GetPath(name); }

    void WriteAudio(const std::string& name, int sampleRate, const CChannels& channels)
    {
        std::vector<const float*> pointers;
        for (const std::vector<float>& channel : channels)
        {
            pointers.push_back(channel.data());
        }
        CSoundFileWriter writer;
        std::string error;
        ASSERT_TRUE(writer.Open(Path(name), sampleRate, static_cast<int>(channels.size()), error)) << error;
        writer.Write(pointers.data(), static_cast<int>(channels[0].size()));
        ASSERT_TRUE(writer.Finish(error)) << error;
    }

    CChannels ReadAudio(const std::string& name)
    {
        CSoundFileSource source;
        std::string error;
        EXPECT_TRUE(source.Open(Path(name), error)) << error;
        const auto frames = static_cast<std::size_t>(source.GetFrameCount());
        CChannels channels(static_cast<std::size_t>(source.GetChannelCount()), std::vector<float>(frames));
        std::vector<float*> pointers;
        for (std::vector<float>& channel : channels)
        {
            pointers.push_back(channel.data());
        }
        EXPECT_EQ(source.Read(pointers.data(), static_cast<int>(frames)), static_cast<int>(frames));
        return channels;
    }

    static std::vector<float> Noise(std::size_t count, unsigned seed)
    {
        std::vector<float> samples(count);
        for (float& sample : samples)
        {
            seed = seed * 1664525U + 1013904223U;
            sample = static_cast<float>(seed) / 2147483648.0f - 1.0f;
        }
        return samples;
    }

    Tests::CTemporaryFolder folder;
};

TEST_F(CHostProgramRun, PassesEveryBitThroughWhateverTheBlocks)
{
    CChannels audio = {Noise(10007, 1), Noise(10007, 2)};
    audio[0][100] = std::numeric_limits<float>::quiet_NaN();
    audio[1][200] = -0.0f;
    audio[1][300] = std::numeric_limits<float>::infinity();
    audio[0][400] = std::numeric_limits<float>::denorm_min();
    WriteAudio("in.wav", 44100, audio);
    for (const char* blocks : {"1", "64,0,511", "8192"})
    {
        const CResult result =
            Run({Path("in.wav"), "--output", Path("out.wav"), "--block", blocks, "--at", "0.05:Bypass=On",
                 "--at", "0.1:Bypass=Off", "--at", "0.02:Delay=200", "--param", "Stereo Mode=1"});
        ASSERT_EQ(result.code, 0) << result.error;
        const CChannels out = ReadAudio("out.wav");
        ASSERT_EQ(out.size(), 2U);
        EXPECT_EQ(Bits(out[0]), Bits(audio[0])) << blocks;
        EXPECT_EQ(Bits(out[1]), Bits(audio[1])) << blocks;
    }
}

TEST_F(CHostProgramRun, PlaysMonoThroughTheMonoVariant)
{
    const CChannels audio = {Noise(999, 3)};
    WriteAudio("in.wav", 8000, audio);
    const CResult result = Run({Path("in.wav"), "--output", Path("out.wav"), "--summary"});
    ASSERT_EQ(result.code, 0) << result.error;
    EXPECT_EQ(ReadAudio("out.wav"), audio);
    EXPECT_THAT(result.out, StartsWith("0.125 s, 999 frames at 8000 Hz\nmono   peak "));
}

TEST_F(CHostProgramRun, PlaysThePartAskedFor)
{
    WriteAudio("in.wav", 1000, {Noise(1000, 4)});
    const std::vector<float> all = ReadAudio("in.wav")[0];
    ASSERT_EQ(Run({Path("in.wav"), "--output", Path("out.wav"), "--offset", "0.25", "--seconds", "0.1"}).code,
              0);
    EXPECT_EQ(ReadAudio("out.wav")[0], std::vector<float>(all.begin() + 250, all.begin() + 350));
    ASSERT_EQ(Run({Path("in.wav"), "--output", Path("out.wav"), "--offset", "0.9", "--seconds", "9"}).code,
              0);
    EXPECT_EQ(ReadAudio("out.wav")[0], std::vector<float>(all.begin() + 900, all.end()));
    ASSERT_EQ(Run({Path("in.wav"), "--output", Path("out.wav"), "--offset", "77"}).code, 0);
    EXPECT_TRUE(ReadAudio("out.wav")[0].empty());
}

TEST_F(CHostProgramRun, SaysThatMoreThanTwoChannelsAreLeftOut)
{
    WriteAudio("in.wav", 8000, {Noise(10, 1), Noise(10, 2), Noise(10, 3)});
    const CResult result = Run({Path("in.wav"), "--output", Path("out.wav")});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.error,
              "scope-bank: \"" + Path("in.wav") + "\" has 3 channels; the first two are played\n");
    EXPECT_EQ(ReadAudio("out.wav").size(), 2U);
}

TEST_F(CHostProgramRun, WithoutAFileOrAResultTellsOfTheDemoSignal)
{
    const CResult result = Run({"--offline"});
    EXPECT_EQ(result.code, 0) << result.error;
    EXPECT_THAT(result.out, StartsWith("4.000 s, 192000 frames at 48000 Hz\nleft   peak "));
    EXPECT_EQ(result.error, "");
}

TEST_F(CHostProgramRun, ResultsInFilesLeaveTheOutputQuiet)
{
    EXPECT_EQ(Run({"--seconds", "0.1", "--curves", Path("c.csv")}).out, "");
    EXPECT_THAT(folder.Read("c.csv"),
                StartsWith("x,Waveform (1),Histogram (1),Waveform (2),Histogram (2)\n0,"));
}

TEST_F(CHostProgramRun, CurvesShowTheSignalOfTheLastSecond)
{
    // A constant of 0.5 for two seconds: the trace is flat, and all of the histogram is one bin.
    WriteAudio("in.wav", 48000, {std::vector<float>(96000, 0.5f), std::vector<float>(96000, -0.25f)});
    ASSERT_EQ(Run({Path("in.wav"), "--curves", Path("c.csv"), "--points", "5"}).code, 0);
    std::istringstream rows(folder.Read("c.csv"));
    std::string row;
    std::getline(rows, row);
    for (int i = 0; i < 5; ++i)
    {
        std::getline(rows, row);
        char comma = 0;
        double x = 0.0;
        double values[4] = {};
        std::istringstream cells(row);
        cells >> x >> comma >> values[0] >> comma >> values[1] >> comma >> values[2] >> comma >> values[3];
        EXPECT_EQ(x, i * 0.25);
        EXPECT_EQ(values[0], 0.5);
        EXPECT_EQ(values[2], -0.25);
    }
}

TEST_F(CHostProgramRun, OutputIsDueAtTheRefreshRateInAudioTime)
{
    // 50 hertz at 44100 are 882 samples: due after the first block, then whenever 882 have come since.
    WriteAudio("in.wav", 44100, {Noise(44100, 5)});
    ASSERT_EQ(Run({Path("in.wav"), "--block", "441", "--summary-json", Path("s.json")}).code, 0);
    std::string positions = "441";
    for (int position = 441 + 882; position <= 44100; position += 882)
    {
        positions += ", " + std::to_string(position);
    }
    EXPECT_THAT(folder.Read("s.json"), HasSubstr("\"due_count\": 50,\n  \"published\": 50,\n"));
    EXPECT_THAT(folder.Read("s.json"), HasSubstr("\"due_positions\": [" + positions + "],"));
}

TEST_F(CHostProgramRun, ListsParametersAsTheyWouldStart)
{
    const CResult result = Run({"--list-params", "--param", "View Mode=Trigger", "--at", "1:Delay=3"});
    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.out, HasSubstr("0        2      Trigger\n"));
    EXPECT_THAT(result.out, HasSubstr("0 to 300  0        0      0.0\n"));
}

TEST_F(CHostProgramRun, StateAndPresetCarryWhatWasSet)
{
    ASSERT_EQ(Run({"--seconds", "0", "--param", "Delay=30", "--bypass", "--save-state", Path("s"),
                   "--save-preset", Path("p.preset")})
                  .code,
              0);
    for (const std::vector<std::string>& load : std::vector<std::vector<std::string>>{
             {"--load-state", Path("s")}, {"--load-preset", Path("p.preset")}})
    {
        const CResult result = Run({"--list-params", load[0], load[1]});
        EXPECT_THAT(result.out, HasSubstr("0        30     30.0\n"));
        EXPECT_THAT(result.out, HasSubstr("0        1      On\n"));
    }
}

TEST_F(CHostProgramRun, MidiMovesABoundParameterInTheBlockItComesIn)
{
    // A preset that binds the delay, input 4 with the bypass, to controller 7 of channel 2 over 0 to 300.
    std::string settings = "<MIDIInputDefault>0</MIDIInputDefault><MIDIInputSettings>"
                           "<settingCount>7</settingCount>";
    for (int i = 0; i < 7; ++i)
    {
        const std::string element = "setting" + std::to_string(i) + ">";
        settings.append("<").append(element);
        settings.append("<channel>2</channel><version>1</version>");
        settings.append(i == 4 ? "<number>7</number><enabled>1</enabled>"
                               : "<number>9</number><enabled>0</enabled>");
        settings.append("<curve>Linear</curve><min>0</min><max>300</max></").append(element);
    }
    folder.Write("p.preset", "<?xml version=\"1.0\"?><Preset><version>2</version>" + settings +
                                 "</MIDIInputSettings></Preset>");
    const auto delayAfter = [&](const std::string& midi)
    {
        EXPECT_EQ(Run({"--load-preset", Path("p.preset"), "--seconds", "0.1", "--midi", midi, "--save-state",
                       Path("s")})
                      .code,
                  0);
        return Run({"--list-params", "--load-state", Path("s")}).out;
    };
    EXPECT_THAT(delayAfter("0.05:0xB1,7,127"), HasSubstr("0        300    300.0\n"));
    EXPECT_THAT(delayAfter("0.05:0xB0,7,127"), HasSubstr("0        0      0.0\n")); // Another channel.
    EXPECT_THAT(delayAfter("0.5:0xB1,7,127"), HasSubstr("0        0      0.0\n"));  // After the end.
}

TEST_F(CHostProgramRun, FailuresAreOneLineAndAnExitCode)
{
    folder.Write("text", "this is no audio, and never was");
    const struct
    {
        std::vector<std::string> options;
        std::string error;
    } rows[] = {
        {{Path("missing.wav")}, "cannot read \"" + Path("missing.wav") + "\": No such file or directory"},
        {{Path("text")}, "cannot read \"" + Path("text") + "\": "},
        {{"--param", "Dealy=1"}, "no parameter is called \"Dealy\"; the nearest is \"Delay\""},
        {{"--at", "9:Delay=301"}, "301 is outside the range of \"Delay\", 0 to 300"},
        {{"--load-state", Path("text")}, "damaged state in \"" + Path("text") + '"'},
        {{"--output", "/nowhere/out.wav"}, "cannot write \"/nowhere/out.wav\""},
        {{"--summary-json", "/nowhere/s"}, "cannot write \"/nowhere/s\""},
        {{"--curves", "/nowhere/c"}, "cannot write \"/nowhere/c\""},
    };
    for (const auto& row : rows)
    {
        const CResult result = Run(row.options);
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.error, StartsWith("scope-bank: " + row.error));
        EXPECT_EQ(result.error.find('\n'), result.error.size() - 1);
    }
}

TEST_F(CHostProgramRun, AFailureLeavesTheOldOutputInPlace)
{
    folder.Write("out.wav", "old");
    EXPECT_EQ(Run({"--param", "Delay=x", "--output", Path("out.wav")}).code, 1);
    EXPECT_EQ(folder.Read("out.wav"), "old");
}

} // namespace
} // namespace Host
