#pragma once

#include "AAXPlugin/CPlayedEditor.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace Tests
{

/// Somebody who tries out whatever the editor shows, always in the same way for the same seed.
class CRandomHands
{
public:
    enum class EGesture
    {
        Click,
        DoubleClick,
        RightClick,
        Drag,
        FineDrag,
        LostDrag,
        Wheel,
        Keys,
        Walk,
        Hover
    };
    static constexpr int GestureCount = 10;

    struct SGesture
    {
        EGesture kind;
        Mirel::GUI::CPoint from;
        std::string text; ///< for the messages of a test
        int mostTouches;  ///< of one parameter that the gesture can mean
        int moves = 0;    ///< with a button held
    };

    explicit CRandomHands(unsigned seed) : random(seed) {}

    int Pick(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random); }
    bool Chance(int percent) { return Pick(100) < percent; }

    /// Something happened there: a good place to come back to.
    void Remember(Mirel::GUI::CPoint place) { known.push_back(place); }

    /// Makes one gesture, and ends what it opened.
    SGesture Play(CPlayedEditor& editor)
    {
        SGesture gesture = Begin(editor);
        Make(editor, gesture);
        gesture.mostTouches += AnswerPopups(editor);
        return gesture;
    }

    /// Controls stand at the top and at the bottom; the rest is looked at.
    Mirel::GUI::CPoint PickPlace(CPlayedEditor& editor)
    {
        if (!known.empty() && Chance(30))
        {
            return known[static_cast<std::size_t>(Pick(static_cast<int>(known.size())))];
        }
        constexpr int top = 40;
        constexpr int bottom = 76;
        const SAAXViewSize size = editor.Get().GetSize();
        const int width = std::max(static_cast<int>(size.width), 1);
        const int height = std::max(static_cast<int>(size.height), 1);
        const int band = Pick(10);
        const int y = band < 2   ? Pick(std::min(top, height))
                      : band < 7 ? height - 1 - Pick(std::min(bottom, height))
                                 : Pick(height);
        return {Pick(width), y};
    }

private:
    using EMouseButton = Mirel::GUI::EMouseButton;

    SGesture Begin(CPlayedEditor& editor)
    {
        static constexpr const char* names[] = {"click", "double click", "right click",
                                                "drag",  "fine drag",    "drag with the mouse taken away",
                                                "wheel", "keys",         "walk by the Tab key",
                                                "hover"};
        const int kind = Pick(GestureCount);
        const Mirel::GUI::CPoint from = PickPlace(editor);
        return {static_cast<EGesture>(kind), from,
                std::string(names[kind]) + " at " + std::to_string(from.x) + ", " + std::to_string(from.y), 1,
                0};
    }

    void Make(CPlayedEditor& editor, SGesture& gesture)
    {
        Mirel::GUI::COffscreenPlatform& platform = editor.GetPlatform();
        platform.Wait(1000);
        switch (gesture.kind)
        {
        case EGesture::Click:
            editor.Click(gesture.from);
            break;
        case EGesture::DoubleClick:
            editor.Click(gesture.from);
            editor.Click(gesture.from);
            gesture.mostTouches = 2;
            break;
        case EGesture::RightClick:
            editor.Click(gesture.from, EMouseButton::Right);
            break;
        case EGesture::Drag:
        case EGesture::FineDrag:
        case EGesture::LostDrag:
            Drag(editor, gesture);
            break;
        case EGesture::Wheel:
            platform.MovePointer(gesture.from);
            platform.TurnWheel(Pick(7) - 3);
            break;
        case EGesture::Keys:
            gesture.mostTouches = TypeKeys(editor);
            break;
        case EGesture::Walk:
            Walk(editor);
            gesture.mostTouches = TypeKeys(editor) + LeaveWithAKeyHeld(editor);
            break;
        case EGesture::Hover:
            platform.MovePointer(gesture.from);
            break;
        }
        editor.Get().Wake();
    }

    void Drag(CPlayedEditor& editor, SGesture& gesture)
    {
        Mirel::GUI::COffscreenPlatform& platform = editor.GetPlatform();
        platform.MovePointer(gesture.from);
        platform.PressButton(EMouseButton::Left);
        const int steps = 1 + Pick(6);
        gesture.moves = steps;
        for (int step = 0; step < steps; ++step)
        {
            if (gesture.kind == EGesture::FineDrag && step == steps / 2)
            {
                platform.SetModifiers(Mirel::GUI::ModifierFlags::shift);
            }
            const Mirel::GUI::CPoint at = platform.GetPointerPosition();
            platform.MovePointer({at.x + Pick(61) - 30, at.y + Pick(61) - 30});
            if (Chance(50))
            {
                editor.Get().Wake();
            }
        }
        if (gesture.kind == EGesture::LostDrag)
        {
            platform.LoseCapture();
        }
        platform.ReleaseButton(EMouseButton::Left);
        platform.SetModifiers(0);
    }

    /// Each press is a gesture of its own.
    int TypeKeys(CPlayedEditor& editor)
    {
        using Mirel::GUI::ENativeKey;
        static constexpr ENativeKey keys[] = {ENativeKey::Up,     ENativeKey::Down,     ENativeKey::Left,
                                              ENativeKey::Right,  ENativeKey::PageUp,   ENativeKey::PageDown,
                                              ENativeKey::Home,   ENativeKey::End,      ENativeKey::Tab,
                                              ENativeKey::Return, ENativeKey::Escape,   ENativeKey::Delete,
                                              ENativeKey::Menu,   ENativeKey::Character};
        const int count = 1 + Pick(3);
        for (int i = 0; i < count; ++i)
        {
            const ENativeKey key = keys[Pick(static_cast<int>(std::size(keys)))];
            editor.Type(key,
                        key == ENativeKey::Character ? std::string(1, "5 .-+dex"[Pick(8)]) : std::string());
        }
        return count;
    }

    /// To another control, or round all of them.
    void Walk(CPlayedEditor& editor)
    {
        editor.GetPlatform().SetModifiers(Chance(30) ? Mirel::GUI::ModifierFlags::shift : 0U);
        for (int steps = 1 + Pick(9); steps > 0; --steps)
        {
            editor.Type(Mirel::GUI::ENativeKey::Tab);
        }
        editor.GetPlatform().SetModifiers(0);
    }

    /// The release of the key comes to another control, if at all. The number of its presses.
    int LeaveWithAKeyHeld(CPlayedEditor& editor)
    {
        if (!Chance(30) || editor.GetPopup() != nullptr)
        {
            return 0;
        }
        Mirel::GUI::SNativeKeyEvent event;
        event.key = Chance(50) ? Mirel::GUI::ENativeKey::Return : Mirel::GUI::ENativeKey::Down;
        editor.GetPlatform().PressKey(event);
        editor.Get().Wake();
        editor.Type(Mirel::GUI::ENativeKey::Tab);
        editor.GetPlatform().ReleaseKey(event);
        editor.Get().Wake();
        return 1;
    }

    /// Chooses from what is open, or leaves it, until nothing is; the number of its answers.
    int AnswerPopups(CPlayedEditor& editor)
    {
        constexpr int patience = 12;
        int answers = 0;
        for (int i = 0; i < patience && editor.GetPopup() != nullptr; ++i)
        {
            const bool isMenu = editor.GetPopup()->GetKind() == Mirel::GUI::ENativeWindowKind::Menu;
            ++answers;
            if (i >= patience / 2 || Chance(25))
            {
                editor.Type(Mirel::GUI::ENativeKey::Escape);
            }
            else if (isMenu)
            {
                ChooseFromMenu(editor, *editor.GetPopup());
            }
            else
            {
                editor.Type(Mirel::GUI::ENativeKey::Character, std::string(1, "0123456789.-"[Pick(12)]));
                editor.Type(Mirel::GUI::ENativeKey::Return);
            }
        }
        EXPECT_EQ(editor.GetPopup(), nullptr);
        return answers;
    }

    void ChooseFromMenu(CPlayedEditor& editor, const Mirel::GUI::COffscreenWindow& menu)
    {
        using Mirel::GUI::ENativeKey;
        if (Chance(30))
        {
            editor.Type(Chance(50) ? ENativeKey::Down : ENativeKey::Up);
            editor.Type(ENativeKey::Return);
            return;
        }
        const Mirel::GUI::CPoint origin = menu.GetPosition();
        const Mirel::GUI::CSize size = menu.GetSize();
        editor.Click({origin.x + Pick(std::max(size.width, 1)), origin.y + Pick(std::max(size.height, 1))});
    }

    std::mt19937 random;
    std::vector<Mirel::GUI::CPoint> known;
};

} // namespace Tests
