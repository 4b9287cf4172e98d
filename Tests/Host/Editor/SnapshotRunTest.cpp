#include "Host/CHostProgram.h"

#include "Host/Audio/CSoundFileWriter.h"
#include "Host/Editor/FactoryScreen.h"
#include "Host/TestFiles.h"
#include "Support/CTemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include <png.h>

namespace Host
{
namespace
{

using testing::HasSubstr;

using CPixels = Tests::CShownPicture;

CPixels ReadPng(const std::string& path)
{
    png_image head = {};
    head.version = PNG_IMAGE_VERSION;
    EXPECT_NE(png_image_begin_read_from_file(&head, path.c_str()), 0) << path;
    head.format = PNG_FORMAT_BGRA;
    CPixels picture = {static_cast<int>(head.width), static_cast<int>(head.height), {}};
    picture.pixels.resize(std::size_t{head.width} * head.height);
    EXPECT_NE(png_image_finish_read(&head, nullptr, picture.pixels.data(), 0, nullptr), 0);
    return picture;
}

/// How much amber, the first channel's colour, a pixel has: the trace's line may share two rows.
int AmberOf(std::uint32_t pixel)
{
    constexpr int leastOfAll = 30;
    const int amber = static_cast<int>((pixel >> 16U) & 0xFFU) - static_cast<int>(pixel & 0xFFU);
    return std::max(0, amber - leastOfAll);
}

class CSnapshotRun : public testing::Test
{
protected:
    /// The exit code; what was printed goes to `out` and `error`.
    int Run(const std::vector<std::string>& options)
    {
        std::vector<const char*> arguments = {"scope-bank"};
        for (const std::string& option : options)
        {
            arguments.push_back(option.c_str());
        }
        std::ostringstream printed;
        std::ostringstream failed;
        const int code = CHostProgram(printed, failed, Tests::ScopeBankModule())
                             .Run(static_cast<int>(arguments.size()), arguments.data());
        out = printed.str();
        error = failed.str();
        return code;
    }

    std::string Path(const std::string& name) const { return folder.GetPath(name); }

    /// A second and a half of one value on both sides.
    void WriteConstant(float value) { WriteSamples(std::vector<float>(12'000, value)); }

    /// At 8 kHz.
    void WriteSamples(const std::vector<float>& samples)
    {
        const float* channels[] = {samples.data(), samples.data()};
        CSoundFileWriter writer;
        std::string failure;
        ASSERT_TRUE(writer.Open(Path("in.wav"), 8000, 2, failure)) << failure;
        writer.Write(channels, static_cast<int>(samples.size()));
        ASSERT_TRUE(writer.Finish(failure)) << failure;
    }

    /// The row on which the first trace of a constant lies in the factory skin, with fractions.
    double FindTraceRow(float value)
    {
        WriteConstant(value);
        EXPECT_EQ(Run({Path("in.wav"), "--snapshot", Path("p.png")}), 0) << error;
        const CPixels picture = ReadPng(Path("p.png"));
        const int right = picture.width * 4 / 5; // left of the histogram
        std::vector<int> rows;
        for (int y = 0; y < picture.height; ++y)
        {
            int amber = 0;
            for (int x = 0; x < right; ++x)
            {
                amber += AmberOf(picture.At(x, y));
            }
            rows.push_back(amber);
        }
        const auto strongest = std::max_element(rows.begin() + 1, rows.end() - 1);
        EXPECT_GT(*strongest, picture.width * 10) << "no trace for " << value;
        const double sum = strongest[-1] + strongest[0] + strongest[1];
        return static_cast<double>(strongest - rows.begin()) + (strongest[1] - strongest[-1]) / sum;
    }

    Tests::CTemporaryFolder folder;
    std::string out;
    std::string error;
};

TEST_F(CSnapshotRun, TheFactorySkinShowsValuesWhereItsAmplitudeAxisHasThem)
{
    const double top = FindTraceRow(0.98F);
    const double bottom = FindTraceRow(-0.98F);
    ASSERT_GT(bottom, top + 100.0);
    const double pixelsPerUnit = (bottom - top) / (2.0 * 0.98);
    for (const float value : {0.5F, 0.25F, 0.0F, -0.75F})
    {
        const double expected = top + (0.98 - static_cast<double>(value)) * pixelsPerUnit;
        EXPECT_NEAR(FindTraceRow(value), expected, 0.5) << value;
    }
}

TEST_F(CSnapshotRun, TriggerModeEndsTheTraceAtTheNewestCrossing)
{
    constexpr double rate = 8000.0;
    constexpr double frequency = 5.0;
    constexpr double level = 0.25;
    constexpr double twoPi = 6.283185307179586;
    const auto sine = [](double seconds) { return 0.5 * std::sin(twoPi * frequency * seconds); };
    std::vector<float> samples;
    for (int i = 0; i < 12'000; ++i)
    {
        samples.push_back(static_cast<float>(sine(i / rate)));
    }
    WriteSamples(samples);
    for (const bool isUp : {true, false})
    {
        ASSERT_EQ(
            Run({Path("in.wav"), "--snapshot", Path("p.png"), "--param", "View Mode=Trigger", "--param",
                 "Trigger Value=0.25", "--param", isUp ? "Trigger Direction=Up" : "Trigger Direction=Down"}),
            0)
            << error;
        // The sine crosses the level at this time of each period.
        const double rising = std::asin(level / 0.5) / (twoPi * frequency);
        const double crossing = isUp ? rising : 0.5 / frequency - rising;
        const auto valueAt = [&](double column)
        { return sine(crossing - 1.0 + column / (Tests::CFactoryScreen::columns - 1)); };
        // What came in since the crossing, a period at most, hides the oldest part of the trace.
        const int first = static_cast<int>(Tests::CFactoryScreen::columns / frequency) + 3;
        const int last = Tests::CFactoryScreen::columns - Tests::CFactoryScreen::markerColumns;
        for (const int channel : {1, 2})
        {
            EXPECT_EQ(Tests::CFactoryScreen{channel}.FindFaults(ReadPng(Path("p.png")), first, last, valueAt),
                      "")
                << channel << (isUp ? " up" : " down");
        }
    }
}

TEST_F(CSnapshotRun, PaintsAtTheTimesAskedForAndAtTheEnd)
{
    WriteConstant(0.5F);
    ASSERT_EQ(Run({Path("in.wav"), "--snapshot", Path("p.png"), "--snapshot-at", "0.25", "--snapshot-at", "1",
                   "--size", "1100x650"}),
              0)
        << error;
    for (const char* name : {"p.png", "p-0.25s.png", "p-1s.png"})
    {
        const CPixels picture = ReadPng(Path(name));
        EXPECT_EQ(picture.width, 1100);
        EXPECT_EQ(picture.height, 650);
        EXPECT_THAT(out, HasSubstr("painted " + Path(name) + "\n"));
    }
    // A quarter of a second fills a quarter of the trace; the rest is still silent.
    EXPECT_NE(ReadPng(Path("p-0.25s.png")).pixels, ReadPng(Path("p.png")).pixels);
}

TEST_F(CSnapshotRun, PaintsAnotherSkinAndTellsWhatItHasToSay)
{
    folder.Write("skin.xml", "<SKIN width='123' height='45' background_color='#102030'><NOTHING/></SKIN>");
    ASSERT_EQ(Run({"--seconds", "0.1", "--snapshot", Path("p.png"), "--skin", Path("skin.xml")}), 0) << error;
    const CPixels picture = ReadPng(Path("p.png"));
    EXPECT_EQ(picture.width, 123);
    EXPECT_EQ(picture.height, 45);
    EXPECT_EQ(picture.At(60, 20), 0xFF102030U);

    folder.Write("broken.xml", "<SKIN>\n<ROW></SKIN>");
    EXPECT_EQ(Run({"--seconds", "0.1", "--snapshot", Path("q.png"), "--skin", Path("broken.xml")}), 1);
    EXPECT_THAT(error, HasSubstr("skin: error: broken.xml:2: "));
    EXPECT_THAT(error, HasSubstr("scope-bank: cannot load the skin \"" + Path("broken.xml") + "\"\n"));
}

} // namespace
} // namespace Host
