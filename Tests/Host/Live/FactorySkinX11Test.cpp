#include "Host/Audio/CBuffers.h"
#include "Host/Audio/CSoundFileSource.h"
#include "Host/Audio/CSoundFileWriter.h"
#include "Host/Live/CEditorOnDisplay.h"
#include "Support/CTemporaryFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>

namespace Host
{
namespace
{

using Tests::CFactoryScreen;
using Tests::CShownPicture;

constexpr int Rate = Tests::CEditorOnDisplay::Rate;
constexpr int Frames = 72'000;
constexpr int Block = 960; // output is due after each
constexpr double TwoPi = 6.283185307179586;
constexpr int AllColumns = CFactoryScreen::columns;
constexpr int UpToTheMarker = AllColumns - CFactoryScreen::markerColumns;
constexpr int LeftButton = 1;
constexpr int RightButton = 3;

/// A sample of a file by its number.
using Signal = std::function<double(double sample)>;

Signal Sine(double amplitude, double frequency)
{
    return [=](double sample) { return amplitude * std::sin(TwoPi * frequency * sample / Rate); };
}

/// The sample at a column of a screen that shows the whole table, which begins with that sample.
double SampleAt(double first, double column)
{
    return first + column / (AllColumns - 1) * (Rate - 1);
}

CFactoryScreen::Values InFlow(const Signal& signal)
{
    return [=](double column) { return signal(SampleAt(Frames - Rate, column)); };
}

/// Plays a sound file through the module, and looks at its editor.
class FactorySkinOnADisplay : public Tests::CEditorOnDisplay
{
protected:
    void Play(const Signal& first, const Signal& second)
    {
        const std::string path = folder.GetPath("in.wav");
        Write(path, first, second);
        CSoundFileSource source;
        std::string error;
        ASSERT_TRUE(source.Open(path, error)) << error;
        CBuffers inputs(2, Block);
        CBuffers outputs(2, Block);
        while (source.Read(inputs.Get(), Block) == Block)
        {
            instance->Process(inputs.Get(), outputs.Get(), Block);
        }
    }

    /// Looks until nothing is wrong with what is seen, for as long as a loaded machine may need.
    std::string LookUntilRight(const std::function<std::string(const CShownPicture&)>& findFaults)
    {
        std::string faults;
        TurnUntil(
            [&]
            {
                faults = findFaults(Look());
                return faults.empty();
            });
        return faults;
    }

    void ExpectTrace(int channel, int first, int last, const CFactoryScreen::Values& values)
    {
        EXPECT_EQ(
            LookUntilRight([&](const CShownPicture& picture)
                           { return CFactoryScreen{channel}.FindFaults(picture, first, last, values); }),
            "")
            << "channel " << channel;
    }

private:
    static void Write(const std::string& path, const Signal& first, const Signal& second)
    {
        CBuffers samples(2, Frames);
        for (int i = 0; i < Frames; ++i)
        {
            samples.Get()[0][i] = static_cast<float>(first(i));
            samples.Get()[1][i] = static_cast<float>(second(i));
        }
        CSoundFileWriter writer;
        std::string error;
        ASSERT_TRUE(writer.Open(path, Rate, 2, error)) << error;
        writer.Write(samples.Get(), Frames);
        ASSERT_TRUE(writer.Finish(error)) << error;
    }

    Tests::CTemporaryFolder folder;
};

TEST_F(FactorySkinOnADisplay, FlowEndsWithTheNewestSampleOfBothChannels)
{
    const Signal left = Sine(0.75, 3.3);
    const Signal right = Sine(0.4, 7.1);
    Play(left, right);
    ExpectTrace(1, 0, AllColumns, InFlow(left));
    ExpectTrace(2, 0, AllColumns, InFlow(right));
}

TEST_F(FactorySkinOnADisplay, MidAndSideAreTheMeanAndHalfTheDifference)
{
    const Signal left = Sine(0.75, 3.3);
    const Signal right = Sine(0.4, 7.1);
    Set("P1", 1.0);
    Play(left, right);
    ExpectTrace(1, 0, AllColumns,
                InFlow([&](double sample) { return (left(sample) + right(sample)) / 2.0; }));
    ExpectTrace(2, 0, AllColumns,
                InFlow([&](double sample) { return (right(sample) - left(sample)) / 2.0; }));
}

TEST_F(FactorySkinOnADisplay, LoopSweepsOverTheSecondBefore)
{
    const Signal left = Sine(0.75, 3.3);
    Set("P2", 0.5);
    Play(left, left);
    // After one second and a half the head stands in the middle, with the newest half to its left.
    constexpr int head = AllColumns / 2;
    constexpr int edge = 3;
    for (const int channel : {1, 2})
    {
        ExpectTrace(channel, 0, head - edge, [&](double column) { return left(SampleAt(Rate, column)); });
        ExpectTrace(channel, head + edge, AllColumns,
                    [&](double column) { return left(SampleAt(0, column)); });
    }
}

TEST_F(FactorySkinOnADisplay, TriggerHoldsASineOfAKilohertzAtTheCrossing)
{
    constexpr double level = 0.25;
    constexpr double frequency = 1000.0;
    constexpr int zoom = 100;
    const Signal sine = Sine(0.5, frequency);
    Set("P2", 1.0);
    Set("P5", (level + 1.0) / 2.0);
    Play(sine, sine);

    // The user drags the time scale to one millisecond a division.
    constexpr int sliderRow = 571;
    Turn();
    probe->Move(599, sliderRow);
    Turn();
    probe->Press(LeftButton);
    for (int x = 600; x <= 730; x += 10)
    {
        probe->Move(x, sliderRow);
        Turn();
    }
    probe->Release(LeftButton);

    // The trace ends with the last sample that is not above the level before one that is.
    int crossing = Frames - 1;
    while (!(sine(crossing) > level && sine(crossing - 1) <= level))
    {
        --crossing;
    }
    for (const int channel : {1, 2})
    {
        ExpectTrace(channel, 0, UpToTheMarker,
                    [&](double column)
                    {
                        const double seconds = (column / (AllColumns - 1) - 1.0) / zoom;
                        return sine(crossing - 1 + seconds * (Rate - 1));
                    });
    }
}

TEST_F(FactorySkinOnADisplay, SilenceIsALineInTheMiddle)
{
    const auto before = [](double sample) { return sample < Frames - Rate ? 0.5 : 0.0; };
    Play(before, before);
    ExpectTrace(1, 3, AllColumns, [](double) { return 0.0; });
    ExpectTrace(2, 3, AllColumns, [](double) { return 0.0; });
}

TEST_F(FactorySkinOnADisplay, ClippingLightsTheLampOfItsChannelOnly)
{
    const auto isLit = [](const CShownPicture& picture, int channel)
    {
        constexpr int lampColumn = 859;
        const std::uint32_t pixel = picture.At(lampColumn, channel == 1 ? 49 : 291);
        return (pixel >> 16U & 0xFFU) > 2 * (pixel & 0xFFU);
    };
    const Signal loud = Sine(1.5, 3.3);
    const Signal whole = Sine(0.9, 3.3);
    Play(loud, whole);
    ExpectTrace(1, 0, AllColumns, InFlow(loud));
    ExpectTrace(2, 0, AllColumns, InFlow(whole));
    EXPECT_EQ(LookUntilRight([&](const CShownPicture& picture)
                             { return isLit(picture, 1) && !isLit(picture, 2) ? "" : "another lamp"; }),
              "");
}

TEST_F(FactorySkinOnADisplay, ARightClickOnAControlOpensTheHostsMenuOfItsParameter)
{
    // The knob of the delay.
    constexpr int knobX = 314;
    constexpr int knobY = 571;
    Turn();
    probe->Move(knobX, knobY);
    Turn();
    probe->Click(RightButton);
    ASSERT_TRUE(TurnUntil([this] { return menu->GetMenus().IsOpen(); }));
    EXPECT_EQ(menu->GetMenu().GetItems().front().text.rfind("Delay: ", 0), 0U);

    // A press anywhere else closes it, though the click that opened it was the editor's.
    probe->Move(knobX, 300);
    Turn();
    probe->Click(LeftButton);
    EXPECT_TRUE(TurnUntil([this] { return !menu->GetMenus().IsOpen(); }));
    EXPECT_EQ(Get("P4"), 0.0);

    // The list of the view mode, moved on by the host.
    constexpr int viewModeX = 170;
    constexpr int downKey = 116;
    constexpr int returnKey = 36;
    probe->Move(viewModeX, knobY);
    Turn();
    probe->Click(RightButton);
    ASSERT_TRUE(TurnUntil([this] { return menu->GetMenus().IsOpen(); }));
    Turn();
    probe->Type(downKey);
    probe->Type(downKey);
    probe->Type(returnKey);
    EXPECT_TRUE(TurnUntil([this] { return Get("P2") == 0.5; }));
    EXPECT_FALSE(menu->GetMenus().IsOpen());
}

// The second of the factory presets is in Loop, the first in Flow.
constexpr int headerY = 20;

TEST_F(FactorySkinOnADisplay, TheArrowsOfTheHeaderGoThroughTheFactoryPresets)
{
    const auto click = [this](int x)
    {
        Turn();
        probe->Move(x, headerY);
        Turn();
        probe->Click(LeftButton);
        Turn();
    };
    constexpr int previousX = 361;
    constexpr int nextX = 533;
    click(nextX);
    click(nextX);
    EXPECT_TRUE(TurnUntil([this] { return Get("P2") == 0.5; }));
    click(previousX);
    EXPECT_TRUE(TurnUntil([this] { return Get("P2") == 0.0; }));
}

TEST_F(FactorySkinOnADisplay, ThePresetsNameInTheHeaderOpensTheirList)
{
    constexpr int nameX = 447;
    constexpr int downKey = 116;
    constexpr int returnKey = 36;
    Turn();
    const int before = probe->CountWindows();
    probe->Move(nameX, headerY);
    Turn();
    probe->Click(LeftButton);
    ASSERT_TRUE(TurnUntil([&] { return probe->CountWindows() > before; }));
    Turn();
    probe->Type(downKey);
    probe->Type(downKey);
    probe->Type(returnKey);
    EXPECT_TRUE(TurnUntil([this] { return Get("P2") == 0.5; }));
}

} // namespace
} // namespace Host
