#include "Host/CHostProgram.h"

#include "Host/Audio/CSoundFileWriter.h"
#include "Host/TestFiles.h"
#include "Support/CTemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

struct CPixels
{
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels; ///< Blue in the lowest byte.

    std::uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
};

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

/// The amber of the first channel's trace.
bool IsAmber(std::uint32_t pixel)
{
    const unsigned red = (pixel >> 16U) & 0xFFU;
    const unsigned green = (pixel >> 8U) & 0xFFU;
    const unsigned blue = pixel & 0xFFU;
    return red > 200U && green > 120U && green < 210U && blue < 130U;
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
    void WriteConstant(float value)
    {
        const std::vector<float> samples(12'000, value);
        const float* channels[] = {samples.data(), samples.data()};
        CSoundFileWriter writer;
        std::string failure;
        ASSERT_TRUE(writer.Open(Path("in.wav"), 8000, 2, failure)) << failure;
        writer.Write(channels, static_cast<int>(samples.size()));
        ASSERT_TRUE(writer.Finish(failure)) << failure;
    }

    /// The row on which the first trace of a constant lies in the factory skin.
    int FindTraceRow(float value)
    {
        WriteConstant(value);
        EXPECT_EQ(Run({Path("in.wav"), "--snapshot", Path("p.png")}), 0) << error;
        const CPixels picture = ReadPng(Path("p.png"));
        int best = -1;
        int most = 0;
        for (int y = 0; y < picture.height; ++y)
        {
            int count = 0;
            for (int x = 0; x < picture.width; ++x)
            {
                count += IsAmber(picture.At(x, y)) ? 1 : 0;
            }
            if (count > most)
            {
                most = count;
                best = y;
            }
        }
        EXPECT_GT(most, picture.width / 2) << "no trace for " << value;
        return best;
    }

    Tests::CTemporaryFolder folder;
    std::string out;
    std::string error;
};

TEST_F(CSnapshotRun, TheFactorySkinShowsValuesWhereItsAmplitudeAxisHasThem)
{
    const int top = FindTraceRow(0.98F);
    const int bottom = FindTraceRow(-0.98F);
    ASSERT_GT(bottom, top + 100);
    const double pixelsPerUnit = (bottom - top) / (2.0 * 0.98);
    for (const float value : {0.5F, 0.25F, 0.0F, -0.75F})
    {
        const double expected = top + (0.98 - static_cast<double>(value)) * pixelsPerUnit;
        EXPECT_NEAR(FindTraceRow(value), expected, 1.0) << value;
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
