#pragma once

#include "Common/Mirel/GUI/GUIRig.h"
#include "Mirel/GUI/CCustomWidget.h"
#include "Mirel/GUI/CInputManager.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

namespace Tests
{

/// Plays a user and a program without a plan on a small window: events come in any order, and handlers
/// change, remove and destroy widgets, their own included. What it does follows from the bytes it is given.
class CWidgetMonkey
{
public:
    using Source = std::function<std::uint8_t()>;

    explicit CWidgetMonkey(Source source_) : next(std::move(source_)), rig({side, side})
    {
        rig.root->SetMouseTarget(nullptr, false);
        rig.window->SetContent(nullptr, false);
        content.Show(true);
        rig.window->SetContent(&content, false);
        adapter = std::make_unique<Mirel::GUI::CLightWidgetAdapter>();
        root = std::make_unique<CMonkeyWidget>(*this);
        root->SetSize({side, side});
        adapter->SetLightRoot(root.get(), false);
        adapter->Show(true);
        content.AddChild(adapter.get(), false);
        content.AddChild(&native, false);
        native.SetSize({20, 20});
        native.SetPosition({30, 0});
        native.SetMouseTarget(&nativeMouse, false);
        native.SetKeyboardTarget(&nativeKeys, false);
    }

    CWidgetMonkey(const CWidgetMonkey&) = delete;
    CWidgetMonkey& operator=(const CWidgetMonkey&) = delete;

    ~CWidgetMonkey()
    {
        quiet = true;
        rig.window.reset();
    }

    /// One event or change. False if something is not as it must be.
    bool Step()
    {
        Act(Next() % 32);
        script.clear();
        return CheckInput();
    }

    /// Whether what was repainted piece by piece is what painting all at once gives.
    bool CheckPicture()
    {
        quiet = true;
        rig.window->Show(true);
        rig.platform.Pump();
        auto& seen = rig.Native();
        const auto bytes = static_cast<std::size_t>(seen.GetSize().width * seen.GetSize().height) * 4;
        const std::vector<std::uint8_t> piecewise(seen.GetPicture().GetData(),
                                                  seen.GetPicture().GetData() + bytes);
        content.Invalidate();
        rig.platform.Pump();
        quiet = false;
        return std::memcmp(piecewise.data(), seen.GetPicture().GetData(), bytes) == 0;
    }

private:
    static constexpr int side = 64;
    static constexpr std::size_t maxWidgets = 24;
    static constexpr int maxDepth = 3;

    class CMonkeyWidget : public Mirel::GUI::CLightWidget
    {
    public:
        explicit CMonkeyWidget(CWidgetMonkey& monkey)
            : fill(new CFill({10, 10}, {20, 20, 20})),
              mouse("", monkey.script),
              keys("", monkey.script)
        {
            SetGraphics(fill, true);
            const auto meddle = [&monkey](const std::string& /*call*/) { monkey.Meddle(); };
            mouse.onCall = meddle;
            keys.onCall = meddle;
            SetMouseTarget(&mouse, false);
            SetKeyboardTarget(&keys, false);
        }

        ~CMonkeyWidget() override
        {
            SetMouseTarget(nullptr, false);
            SetKeyboardTarget(nullptr, false);
        }

        CFill* fill;
        CNotingMouse mouse;
        CNotingKeys keys;
    };

    std::uint8_t Next() { return next(); }
    int Coordinate() { return static_cast<int>(Next() % (side + 16)) - 8; }

    CMonkeyWidget* Pick()
    {
        const std::size_t index = Next() % (widgets.size() + 1);
        return index == widgets.size() ? root.get() : widgets[index].get();
    }

    /// From inside of a handler.
    void Meddle()
    {
        if (quiet || depth >= maxDepth || Next() % 4 != 0)
        {
            return;
        }
        ++depth;
        Act(Next() % 32);
        --depth;
    }

    void Act(int action)
    {
        switch (action)
        {
        case 0:
            rig.platform.PressButton(Mirel::GUI::EMouseButton::Left);
            break;
        case 1:
            rig.platform.ReleaseButton(Mirel::GUI::EMouseButton::Left);
            break;
        case 2:
            rig.platform.PressButton(Mirel::GUI::EMouseButton::Right);
            break;
        case 3:
            rig.platform.ReleaseButton(Mirel::GUI::EMouseButton::Right);
            break;
        case 4:
            rig.platform.TurnWheel(1.0);
            break;
        case 5:
            rig.platform.PressKey({});
            break;
        case 6:
            rig.platform.ReleaseKey({});
            break;
        case 7:
            rig.platform.SetModifiers((Next() & 1U) != 0 ? Mirel::GUI::ModifierFlags::alternate : 0U);
            break;
        case 8:
            rig.platform.Wait(std::uint64_t{Next()} * 10U);
            break;
        case 9:
            rig.platform.LoseCapture();
            break;
        default:
            ChangeTree(action);
            break;
        }
    }

    void ChangeTree(int action)
    {
        CMonkeyWidget* const widget = Pick();
        switch (action)
        {
        case 10:
        case 11:
            Grow();
            break;
        case 12:
            Destroy(widget);
            break;
        case 13:
            widget->SetParent(nullptr);
            break;
        case 14:
            Pick()->AddChild(widget, (Next() & 1U) != 0);
            break;
        case 15:
            widget->Show((Next() & 3U) != 0);
            break;
        case 16:
            widget->Move({Coordinate(), Coordinate()});
            break;
        case 17:
            widget->SetSize(widget == root.get() ? Mirel::GUI::CSize{side, side}
                                                 : Mirel::GUI::CSize{Next() % 40, Next() % 40});
            break;
        case 18:
            widget->SetOpacity(static_cast<float>(Next() % 5) / 4.0F);
            break;
        case 19:
            widget->SetBuffered((Next() & 1U) != 0);
            break;
        case 20:
            widget->Enable((Next() & 3U) != 0);
            break;
        case 21:
            widget->SetFocus();
            break;
        case 22:
            widget->CaptureMouse();
            break;
        case 23:
            widget->ReleaseMouse();
            break;
        case 24:
            widget->fill->SetColor({Next(), Next(), Next()});
            break;
        case 25:
            widget->fill->opaque = (Next() & 1U) != 0;
            widget->fill->opaque = true;
            widget->Invalidate();
            break;
        case 26:
            adapter->Show((Next() & 3U) != 0);
            break;
        case 27:
            native.Show((Next() & 1U) != 0);
            break;
        case 28:
            adapter->SetLightRoot((Next() & 7U) != 0 ? root.get() : nullptr, false);
            break;
        case 29:
            rig.window->Show((Next() & 3U) != 0);
            break;
        default:
            rig.platform.MovePointer({Coordinate(), Coordinate()});
            break;
        }
    }

    void Grow()
    {
        if (widgets.size() >= maxWidgets)
        {
            return;
        }
        auto grown = std::make_unique<CMonkeyWidget>(*this);
        grown->fill->SetColor({Next(), Next(), Next()});
        grown->SetSize({Next() % 40, Next() % 40});
        grown->Move({Coordinate(), Coordinate()});
        CMonkeyWidget* const widget = grown.get();
        widgets.push_back(std::move(grown));
        Pick()->AddChild(widget, (Next() & 1U) != 0);
    }

    void Destroy(const CMonkeyWidget* widget)
    {
        const auto place = std::find_if(widgets.begin(), widgets.end(),
                                        [widget](const auto& other) { return other.get() == widget; });
        if (place != widgets.end())
        {
            const auto doomed = std::move(*place);
            widgets.erase(place);
        }
    }

    bool IsInTree(const Mirel::GUI::CLightWidget* widget) const
    {
        const bool lives = widget == root.get() ||
                           std::any_of(widgets.begin(), widgets.end(),
                                       [widget](const auto& other) { return other.get() == widget; });
        return widget == nullptr || (lives && adapter->GetLightRoot() != nullptr && widget->StandsIn(*root));
    }

    /// Who holds what lives and stands in the tree, and only the hovered widget thinks that it is hovered.
    bool CheckInput() const
    {
        const auto& input = adapter->GetInputManager();
        const auto isOver = [&input](const CMonkeyWidget& widget)
        { return widget.IsMouseOver() == (&widget == input.GetHover()); };
        return IsInTree(input.GetCaptured()) && IsInTree(input.GetHover()) && IsInTree(input.GetFocus()) &&
               isOver(*root) &&
               std::all_of(widgets.begin(), widgets.end(),
                           [&isOver](const auto& widget) { return isOver(*widget); });
    }

    Source next;
    bool quiet = false;
    int depth = 0;
    std::string script;
    CNotingMouse nativeMouse{"n", script};
    CNotingKeys nativeKeys{"n", script};
    Mirel::GUI::CCustomWidget content;
    Mirel::GUI::CCustomWidget native;
    std::unique_ptr<CMonkeyWidget> root;
    std::unique_ptr<Mirel::GUI::CLightWidgetAdapter> adapter;
    std::vector<std::unique_ptr<CMonkeyWidget>> widgets;
    CLightRig rig;
};

} // namespace Tests
