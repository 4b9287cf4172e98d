#pragma once

#include "Mirel/GUI/CLightWidgetAdapter.h"
#include "Mirel/GUI/CWindow.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenWindow.h"
#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace Tests
{

/// Fills its area with one colour, opaque or not, counts its draws and hits where it is told to.
class CFill : public Mirel::Graphics::CBaseGraphics
{
public:
    CFill(Mirel::Graphics::CSize size_, Mirel::Graphics::CColor color_, bool opaque_ = true)
        : CBaseGraphics(size_),
          color(color_),
          opaque(opaque_)
    {
    }

    void Draw(Mirel::Graphics::CDrawSurface& surface, const Mirel::Graphics::CSimple2DRegion* region) override
    {
        ++draws;
        lastBounds = GetBounds(region);
        surface.SetFillColor(color);
        surface.FillRect(lastBounds);
    }

    bool IsOpaque() const override { return opaque; }
    bool HitTest(Mirel::Graphics::CPoint point) const override
    {
        return hit && CBaseGraphics::HitTest(point);
    }

    void SetColor(Mirel::Graphics::CColor newColor)
    {
        color = newColor;
        RaiseChanged();
    }

    int TakeDraws() { return std::exchange(draws, 0); }

    Mirel::Graphics::CColor color;
    bool opaque;
    bool hit = true;
    int draws = 0;
    Mirel::Graphics::CRect lastBounds;
};

/// Notes every call in a script that several share: "name.call(x,y)".
class CNotingMouse : public Mirel::GUI::CMouseTarget
{
public:
    using Event = Mirel::GUI::COSXMouseEvent;

    CNotingMouse(std::string name_, std::string& script_) : name(std::move(name_)), script(script_) {}

    bool OnLeftDown(const Event& event) override { return Note("down", event); }
    bool OnLeftUp(const Event& event) override { return Note("up", event); }
    bool OnLeftClick(const Event& event) override { return Note("click", event); }
    bool OnLeftDoubleClick(const Event& event) override { return Note("double", event); }
    bool OnRightDown(const Event& event) override { return Note("rdown", event); }
    bool OnRightUp(const Event& event) override { return Note("rup", event); }
    bool OnRightClick(const Event& event) override { return Note("rclick", event); }
    bool OnRightDoubleClick(const Event& event) override { return Note("rdouble", event); }
    bool OnMouseEnter(const Event& event) override { return Note("enter", event); }
    bool OnMouseMove(const Event& event) override { return Note("move", event); }
    bool OnMouseLeave(const Event& event) override { return Note("leave", event); }
    bool OnMouseDrag(const Event& event) override { return Note("drag", event); }
    bool OnMouseWheel(const Mirel::GUI::COSXMouseWheelEvent& event) override
    {
        Event place;
        place.position = event.position;
        wheel += event.deltaY;
        return Note("wheel", place);
    }
    void OnCaptureLost() override { script.append(name).append(".lost "); }

    /// Runs in every call, with its name; the target may be gone afterwards.
    std::function<void(const std::string&)> onCall;
    bool handles = true;
    bool notesPositions = false;
    float wheel = 0.0F;
    std::uint32_t modifiers = 0;

private:
    bool Note(const std::string& call, const Event& event)
    {
        script.append(name).append(".").append(call);
        if (notesPositions)
        {
            script.append("(").append(std::to_string(event.position.x)).append(",");
            script.append(std::to_string(event.position.y)).append(")");
        }
        script += " ";
        modifiers = event.modifiers;
        const bool result = handles;
        if (onCall)
        {
            const auto body = onCall;
            body(call);
        }
        return result;
    }

    std::string name;
    std::string& script;
};

class CNotingKeys : public Mirel::GUI::CKeyboardTarget
{
public:
    CNotingKeys(std::string name_, std::string& script_) : name(std::move(name_)), script(script_) {}

    bool OnKeyDown(const Mirel::GUI::COSXKeyEvent& event) override
    {
        return Note(std::string("keydown:").append(event.text));
    }
    bool OnKeyUp(const Mirel::GUI::COSXKeyEvent& /*event*/) override { return Note("keyup"); }
    bool OnModifierChanged(const Mirel::GUI::COSXModifierKeyEvent& /*event*/) override
    {
        return Note("mods");
    }
    bool AcceptsKey(const Mirel::GUI::COSXKeyEvent& /*event*/) override
    {
        // The call may destroy this.
        const bool result = accepts;
        return Note("accepts") && result;
    }
    bool OnFocusGained() override { return Note("gained"); }
    bool OnFocusLost() override { return Note("lost"); }

    bool accepts = true;
    std::function<void(const std::string&)> onCall;

private:
    bool Note(const std::string& call)
    {
        script.append(name).append(".").append(call).append(" ");
        if (onCall)
        {
            const auto body = onCall;
            body(call);
        }
        return true;
    }

    std::string name;
    std::string& script;
};

/// A shown window without a display, and the user in front of it.
class CWindowRig
{
public:
    using CPoint = Mirel::GUI::CPoint;
    using CSize = Mirel::GUI::CSize;
    using CRect = Mirel::Graphics::CRect;
    using Button = Mirel::GUI::EMouseButton;

    explicit CWindowRig(CSize size = {100, 100}, int scale = 1) : platform(loop, scale)
    {
        Mirel::GUI::SNativeWindowOptions options;
        options.size = {size.width * scale, size.height * scale};
        window = std::make_unique<Mirel::GUI::CWindow>(platform, options);
        window->Show(true);
        platform.Pump();
    }

    Mirel::GUI::COffscreenWindow& Native() const
    {
        return static_cast<Mirel::GUI::COffscreenWindow&>(*window->GetNativeWindow());
    }

    /// In skin pixels.
    void Move(int x, int y) { platform.MovePointer({x * platform.GetScale(), y * platform.GetScale()}); }
    void Press(Button button = Button::Left) { platform.PressButton(button); }
    void Release(Button button = Button::Left) { platform.ReleaseButton(button); }

    void Click(int x, int y)
    {
        Move(x, y);
        Press();
        Release();
    }

    /// Long enough for the next press to count as a first one.
    void Rest() { platform.Wait(10000); }

    std::string TakeScript() { return std::exchange(script, std::string()); }

    /// 0xRRGGBB of a device pixel that a user sees.
    std::uint32_t PixelAt(int x, int y) const
    {
        const auto& picture = Native().GetPicture();
        const auto* row = reinterpret_cast<const std::uint32_t*>(picture.GetData()) +
                          std::ptrdiff_t{y} * picture.GetSize().width;
        return row[x] & 0xFFFFFFU;
    }

    Mirel::GUI::CNativeRunLoop loop;
    Mirel::GUI::COffscreenPlatform platform;
    std::unique_ptr<Mirel::GUI::CWindow> window;
    std::string script;
};

/// A window filled by an adapter with a root that has no picture.
class CLightRig : public CWindowRig
{
public:
    explicit CLightRig(CSize size = {100, 100}, int scale = 1) : CWindowRig(size, scale)
    {
        root = new Mirel::GUI::CLightWidget();
        background = new CFill({0, 0}, {0, 0, 0});
        root->SetGraphics(background, true);
        adapter = new Mirel::GUI::CLightWidgetAdapter(root, true);
        adapter->Show(true);
        window->SetContent(adapter, true);
        platform.Pump();
        Native().TakePresented();
        background->TakeDraws();
    }

    Mirel::GUI::CLightWidget* root;
    Mirel::GUI::CLightWidgetAdapter* adapter;
    CFill* background;
};

/// A light widget filled with a colour, noting its mouse.
class CNotingLight : public Mirel::GUI::CLightWidget
{
public:
    CNotingLight(Mirel::GUI::CLightWidget* parent_, const Mirel::Graphics::CRect& frame,
                 const std::string& name, std::string& script,
                 Mirel::Graphics::CColor color = {255, 255, 255})
        : fill(new CFill(frame.GetSize(), color)),
          mouse(name, script),
          keys(name, script)
    {
        SetGraphics(fill, true);
        Move(frame.GetOrigin());
        SetMouseTarget(&mouse, false);
        SetParent(parent_);
    }

    ~CNotingLight() override
    {
        SetMouseTarget(nullptr, false);
        SetKeyboardTarget(nullptr, false);
    }

    void TakeKeys() { SetKeyboardTarget(&keys, false); }

    CFill* fill;
    CNotingMouse mouse;
    CNotingKeys keys;
};

} // namespace Tests
