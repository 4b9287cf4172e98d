#include "Host/Live/CEditorOnDisplay.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <vector>

namespace Host
{
namespace
{

using Mirel::GUI::CPoint;
using Tests::CFactoryScreen;

constexpr int leftButton = 1;
constexpr int wheelUp = 4;
constexpr int wheelDown = 5;

/// Of the keyboard that the display has.
namespace Keys
{
constexpr int one = 10;
constexpr int zero = 19;
constexpr int tab = 23;
constexpr int e = 26;
constexpr int enter = 36;
constexpr int d = 40;
constexpr int shift = 50;
constexpr int alternate = 64;
constexpr int space = 65;
constexpr int up = 111;
constexpr int pageUp = 112;
constexpr int down = 116;
} // namespace Keys

// Where the controls of the factory skin stand. The knobs have a range of 200 pixels, and shift makes a tenth
// of that.
constexpr CPoint bypass = {884, 20};
constexpr CPoint stereoMode = {67, 570};
constexpr CPoint viewMode = {171, 570};
constexpr CPoint sync = {251, 570};
constexpr CPoint delayKnob = {314, 570};
constexpr CPoint triggerKnob = {439, 570};
constexpr CPoint direction = {543, 570};
constexpr double pixelRange = 200.0;
constexpr double fineRatio = 10.0;

enum Parameter
{
    Bypass,
    StereoMode,
    ViewMode,
    Sync,
    Delay,
    TriggerValue,
    Direction
};

/// The hands of a user on the mouse and the keys of a display, and what the host hears of it.
class HandsOnADisplay : public Tests::CEditorOnDisplay
{
protected:
    void SetUp() override
    {
        CEditorOnDisplay::SetUp();
        window->onSpace = [this] { ++spaces; };
        // The last of all that the skin paints.
        constexpr std::uint32_t strip = 0x1B1F24;
        ASSERT_TRUE(TurnUntil([this] { return (probe->ReadPixel(4, 590) & 0xFFFFFFU) == strip; }));
        Turn();
        TakePosts();
    }

    void Point(CPoint place)
    {
        probe->Move(place.x, place.y);
        Turn();
    }

    void Press()
    {
        probe->Press(leftButton);
        Turn();
    }

    void Release()
    {
        probe->Release(leftButton);
        Turn();
    }

    void Click(CPoint place)
    {
        Point(place);
        Press();
        Release();
    }

    /// Until the host has the value.
    void DragTo(CPoint place, int parameter, double normalized)
    {
        Point(place);
        EXPECT_TRUE(TurnUntil([=, this] { return std::abs(Get(parameter) - normalized) < slack; }))
            << Get(parameter) << " instead of " << normalized;
    }

    void Type(int key)
    {
        probe->Type(key);
        Turn();
    }

    double Get(int parameter)
    {
        double normalized = -1.0;
        const std::string id = std::string("P").append(std::to_string(parameter));
        instance->GetParameters().GetParameterValue(id.c_str(), &normalized);
        return normalized;
    }

    void TakePosts()
    {
        const std::vector<CAutomationPost> taken = instance->GetController().TakePosts();
        posts.insert(posts.end(), taken.begin(), taken.end());
    }

    /// Since the last time: one touch, the values, one release, and nothing else.
    void ExpectGesture(int parameter, const std::vector<double>& values)
    {
        using EKind = CAutomationPost::EKind;
        TurnUntil(
            [this]
            {
                TakePosts();
                return !posts.empty() && posts.back().kind == EKind::Release;
            });
        Turn();
        TakePosts();
        ASSERT_EQ(posts.size(), values.size() + 2) << "of parameter " << parameter;
        EXPECT_EQ(posts.front().kind, EKind::Touch);
        EXPECT_EQ(posts.back().kind, EKind::Release);
        for (std::size_t i = 0; i < values.size(); ++i)
        {
            EXPECT_EQ(posts[i + 1].kind, EKind::Value);
            EXPECT_NEAR(posts[i + 1].normalized, values[i], slack);
        }
        for (const CAutomationPost& post : posts)
        {
            EXPECT_EQ(post.parameter, parameter);
        }
        posts.clear();
    }

    /// The window that opened over the editor, in pixels of the screen.
    Mirel::Graphics::CRect FindPopup() const
    {
        xcb_connection_t* const server = probe->Get();
        xcb_query_tree_reply_t* tree =
            xcb_query_tree_reply(server, xcb_query_tree(server, probe->GetRoot()), nullptr);
        Mirel::Graphics::CRect frame;
        const int count = xcb_query_tree_children_length(tree);
        xcb_get_geometry_reply_t* shape =
            count == 0
                ? nullptr
                : xcb_get_geometry_reply(
                      server, xcb_get_geometry(server, xcb_query_tree_children(tree)[count - 1]), nullptr);
        if (shape != nullptr)
        {
            frame = {shape->x, shape->y, shape->width, shape->height};
        }
        std::free(shape); // NOLINT: allocated by the library
        std::free(tree);  // NOLINT
        return frame;
    }

    /// Opens the list of a menu button, and gives the middle of one of its items.
    CPoint OpenList(CPoint button, int item, int count)
    {
        const int before = probe->CountWindows();
        Click(button);
        EXPECT_TRUE(TurnUntil([=, this] { return probe->CountWindows() > before; }));
        Turn();
        const Mirel::Graphics::CRect frame = FindPopup();
        return {frame.x + frame.width / 2, frame.y + (2 * item + 1) * frame.height / (2 * count)};
    }

    static constexpr double slack = 1e-6;
    std::vector<CAutomationPost> posts;
    int spaces = 0; ///< Presses of the space bar that the host got.
};

TEST_F(HandsOnADisplay, DragTurnsAKnobByItsPixelRange)
{
    Point(delayKnob);
    Press();
    std::vector<double> expected;
    for (const int pixels : {10, 20, 50, 30})
    {
        expected.push_back(pixels / pixelRange);
        DragTo({delayKnob.x, delayKnob.y - pixels}, Delay, expected.back());
    }
    Release();
    ExpectGesture(Delay, expected);
}

TEST_F(HandsOnADisplay, ShiftMakesADragFinerWithoutAJump)
{
    Point(delayKnob);
    Press();
    constexpr double before = 40 / pixelRange;
    DragTo({delayKnob.x, delayKnob.y - 40}, Delay, before);
    probe->KeyDown(Keys::shift);
    constexpr double after = before + 30 / (fineRatio * pixelRange);
    DragTo({delayKnob.x, delayKnob.y - 70}, Delay, after);
    probe->KeyUp(Keys::shift);
    Release();
    ExpectGesture(Delay, {before, after});
}

TEST_F(HandsOnADisplay, WheelIsAGestureANotch)
{
    Point(delayKnob);
    for (int notch = 1; notch <= 3; ++notch)
    {
        probe->Click(wheelUp);
        ExpectGesture(Delay, {notch / pixelRange});
    }
    probe->Click(wheelDown);
    ExpectGesture(Delay, {2 / pixelRange});
}

TEST_F(HandsOnADisplay, AlternateClickGoesBackToTheDefault)
{
    Point(delayKnob);
    Press();
    DragTo({delayKnob.x, delayKnob.y - 50}, Delay, 50 / pixelRange);
    Release();
    ExpectGesture(Delay, {50 / pixelRange});
    Point(delayKnob);
    probe->KeyDown(Keys::alternate);
    Press();
    Point({delayKnob.x, delayKnob.y - 30}); // no drag
    Release();
    probe->KeyUp(Keys::alternate);
    ExpectGesture(Delay, {0.0});
}

TEST_F(HandsOnADisplay, ClickTurnsASwitchOver)
{
    for (const auto& [place, parameter] :
         {std::pair(bypass, Bypass), std::pair(sync, Sync), std::pair(direction, Direction)})
    {
        for (const double value : {1.0, 0.0})
        {
            Click(place);
            ExpectGesture(parameter, {value});
        }
    }
}

TEST_F(HandsOnADisplay, ReleaseOutsideOfASwitchChangesNothing)
{
    Point(sync);
    Press();
    Point({sync.x, sync.y - 60});
    Release();
    ExpectGesture(Sync, {});
    EXPECT_EQ(Get(Sync), 0.0);
}

TEST_F(HandsOnADisplay, ItemOfAListIsChosenByTheMouse)
{
    Click(OpenList(stereoMode, 1, 2));
    ExpectGesture(StereoMode, {1.0});
    Click(OpenList(viewMode, 1, 3));
    ExpectGesture(ViewMode, {0.5});
    Click(OpenList(viewMode, 2, 3));
    ExpectGesture(ViewMode, {1.0});
}

TEST_F(HandsOnADisplay, MarkerStaysUnderThePointerAlongTheScreen)
{
    Set("P2", 1.0);
    constexpr CFactoryScreen screen{1};
    constexpr int column = CFactoryScreen::left + CFactoryScreen::columns - 7; // of the marker
    const auto isMarker = [](std::uint32_t pixel) { return (pixel >> 8U & 0xFFU) > 0x80U; };
    const auto hasMarker = [&](double value)
    {
        // It is 11 pixels high, with a dark edge.
        const int row = static_cast<int>(screen.RowOf(value));
        const auto isThere = [&](int away) { return isMarker(probe->ReadPixel(column, row + away)); };
        return isThere(-3) && isThere(3) && !isThere(-7) && !isThere(7);
    };
    ASSERT_TRUE(TurnUntil([&] { return hasMarker(0.0); }));
    Point({column, static_cast<int>(screen.RowOf(0.0))});
    Press();
    std::vector<double> expected;
    for (const double value : {0.25, 1.0, -0.5, -1.0})
    {
        expected.push_back((value + 1.0) / 2.0);
        DragTo({column, static_cast<int>(screen.RowOf(value))}, TriggerValue, expected.back());
        EXPECT_TRUE(TurnUntil([&] { return hasMarker(value); })) << value;
    }
    Release();
    ExpectGesture(TriggerValue, expected);
}

TEST_F(HandsOnADisplay, KeysStepTheKnobThatWasClicked)
{
    Click(triggerKnob);
    ExpectGesture(TriggerValue, {});
    Type(Keys::up);
    ExpectGesture(TriggerValue, {0.5 + 1 / pixelRange});
    Type(Keys::pageUp);
    ExpectGesture(TriggerValue, {0.5 + 11 / pixelRange});
    probe->KeyDown(Keys::shift);
    Type(Keys::up);
    probe->KeyUp(Keys::shift);
    ExpectGesture(TriggerValue, {0.5 + 11.1 / pixelRange});
    Type(Keys::d);
    ExpectGesture(TriggerValue, {0.5});
}

TEST_F(HandsOnADisplay, TabLeadsToAControlWithoutTheMouse)
{
    Point({1100, 700});
    constexpr int stopsToSync = 10;
    for (int i = 0; i < stopsToSync; ++i)
    {
        Type(Keys::tab);
    }
    Type(Keys::enter);
    ExpectGesture(Sync, {1.0});
    Type(Keys::tab);
    Type(Keys::up);
    ExpectGesture(Delay, {1 / pixelRange});
    probe->KeyDown(Keys::shift);
    for (int i = 0; i < 3; ++i)
    {
        Type(Keys::tab);
    }
    probe->KeyUp(Keys::shift);
    const int before = probe->CountWindows();
    Type(Keys::space);
    EXPECT_TRUE(TurnUntil([=, this] { return probe->CountWindows() > before; })) << "the list of Stereo Mode";
    Type(Keys::down);
    Type(Keys::enter);
    ExpectGesture(StereoMode, {1.0});
    EXPECT_EQ(spaces, 0);
}

TEST_F(HandsOnADisplay, ValueIsTypedAndTheKeysComeBackToTheKnob)
{
    Click(delayKnob);
    ExpectGesture(Delay, {});
    Point({1100, 700});
    const int before = probe->CountWindows();
    Type(Keys::e);
    ASSERT_TRUE(TurnUntil([=, this] { return probe->CountWindows() > before; }));
    Turn();
    for (const int key : {Keys::one, Keys::zero, Keys::zero, Keys::enter})
    {
        Type(key);
    }
    ExpectGesture(Delay, {100.0 / 300.0});
    EXPECT_TRUE(TurnUntil([=, this] { return probe->CountWindows() == before; }));
    Turn();
    Type(Keys::up);
    ExpectGesture(Delay, {100.0 / 300.0 + 1 / pixelRange});
}

TEST_F(HandsOnADisplay, KeysThatNoControlWantsReachTheHost)
{
    Click(delayKnob);
    ExpectGesture(Delay, {});
    Type(Keys::space);
    EXPECT_TRUE(TurnUntil([this] { return spaces == 1; }));
    Type(Keys::up);
    ExpectGesture(Delay, {1 / pixelRange});
    EXPECT_EQ(spaces, 1);
}

} // namespace
} // namespace Host
