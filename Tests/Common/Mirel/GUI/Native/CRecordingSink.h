#pragma once

#include "Mirel/GUI/Native/INativeWindow.h"
#include "Mirel/GUI/Native/INativeWindowSink.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CSimple2DRegion.h"

#include <cstdint>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace Tests
{

/// Keeps what a window tells, and paints like the toolkit: what was lost and what is marked dirty, out of a
/// picture that it keeps.
class CRecordingSink : public Mirel::GUI::INativeWindowSink
{
public:
    using CPoint = Mirel::GUI::CPoint;
    using CSize = Mirel::GUI::CSize;
    using CRect = Mirel::Graphics::CRect;
    using CRegion = Mirel::Graphics::CSimple2DRegion;

    /// Whom to present to; none only records.
    Mirel::GUI::INativeWindow* window = nullptr;
    Mirel::Graphics::CDIBBitmap picture{32};
    CRegion dirty;

    /// In the order in which they came, by name.
    std::vector<std::string> log;
    std::vector<CRegion> lost;
    std::vector<CSize> sizes;
    std::vector<CPoint> places;
    std::vector<Mirel::GUI::SNativeMouseEvent> mouse;
    std::vector<Mirel::GUI::SNativeWheelEvent> wheels;
    std::vector<Mirel::GUI::SNativeKeyEvent> keys;
    std::vector<int> scales;
    bool wantsKeys = true;

    /// Runs in every call, with its name.
    std::function<void(const std::string&)> onCall;

    /// A picture of one colour, with every pixel's place mixed in so that a shifted one is noticed.
    static std::uint32_t ColourAt(std::uint32_t colour, int x, int y)
    {
        return colour ^ (static_cast<std::uint32_t>(x) * 3U & 0xFFU) ^
               ((static_cast<std::uint32_t>(y) * 5U & 0xFFU) << 8U);
    }

    void Paint(std::uint32_t colour, CSize size)
    {
        picture.SetSize(size);
        std::uint8_t* data = picture.GetData();
        for (int y = 0; y < size.height; ++y)
        {
            for (int x = 0; x < size.width; ++x, data += 4)
            {
                const std::uint32_t pixel = ColourAt(colour, x, y) | 0xFF000000U;
                std::memcpy(data, &pixel, 4);
            }
        }
    }

    void Mark(const CRect& rect)
    {
        dirty.Union(rect);
        window->RequestPaint();
    }

    int Count(const std::string& name) const
    {
        int count = 0;
        for (const std::string& entry : log)
        {
            count += entry == name ? 1 : 0;
        }
        return count;
    }

    void Clear()
    {
        log.clear();
        lost.clear();
        sizes.clear();
        places.clear();
        mouse.clear();
        wheels.clear();
        keys.clear();
    }

    void OnPaint(const CRegion& lost_) override
    {
        lost.push_back(lost_);
        if (window != nullptr)
        {
            CRegion region = std::exchange(dirty, CRegion());
            region.Union(lost_);
            window->Present(picture, region);
        }
        Note("paint");
    }
    void OnResized(CSize size) override
    {
        sizes.push_back(size);
        Note("resized");
    }
    void OnMoved(CPoint position) override
    {
        places.push_back(position);
        Note("moved");
    }
    void OnCloseRequested() override { Note("close requested"); }
    void OnClosed() override { Note("closed"); }
    void OnShown() override { Note("shown"); }
    void OnHidden() override { Note("hidden"); }
    void OnFocusIn() override { Note("focus in"); }
    void OnFocusOut() override { Note("focus out"); }
    void OnPointerEnter(const Mirel::GUI::SNativeMouseEvent& event) override { Note("enter", event); }
    void OnPointerLeave(const Mirel::GUI::SNativeMouseEvent& event) override { Note("leave", event); }
    void OnPointerMove(const Mirel::GUI::SNativeMouseEvent& event) override { Note("move", event); }
    void OnButtonDown(const Mirel::GUI::SNativeMouseEvent& event) override { Note("down", event); }
    void OnButtonUp(const Mirel::GUI::SNativeMouseEvent& event) override { Note("up", event); }
    void OnWheel(const Mirel::GUI::SNativeWheelEvent& event) override
    {
        wheels.push_back(event);
        Note("wheel");
    }
    bool OnKeyDown(const Mirel::GUI::SNativeKeyEvent& event) override
    {
        keys.push_back(event);
        Note("key down");
        return wantsKeys;
    }
    void OnKeyUp(const Mirel::GUI::SNativeKeyEvent& event) override
    {
        keys.push_back(event);
        Note("key up");
    }
    void OnCaptureLost() override { Note("capture lost"); }
    void OnScaleChanged(int scale) override
    {
        scales.push_back(scale);
        Note("scale");
    }

private:
    void Note(const std::string& name, const Mirel::GUI::SNativeMouseEvent& event)
    {
        mouse.push_back(event);
        Note(name);
    }

    void Note(const std::string& name)
    {
        log.push_back(name);
        if (onCall)
        {
            onCall(name);
        }
    }
};

} // namespace Tests
