#pragma once

#include "Common/Mirel/GUI/Native/CRecordingSink.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/X11/CX11Platform.h"
#include "Support/CVirtualDisplay.h"
#include "Support/CX11Probe.h"

#include <chrono>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace Tests
{

/// A platform on a display of its own, and somebody who uses the display.
class CX11Test : public testing::Test
{
public:
    using CPoint = Mirel::GUI::CPoint;
    using CSize = Mirel::GUI::CSize;
    using CRect = Mirel::Graphics::CRect;
    using CRegion = Mirel::Graphics::CSimple2DRegion;

    static void SetUpTestSuite()
    {
        display = std::make_unique<CVirtualDisplay>();
        ASSERT_NE(display->GetName(), "") << "Xvfb could not be started";
    }
    static void TearDownTestSuite() { display.reset(); }

    void SetUp() override
    {
        platform = Mirel::GUI::CX11Platform::Open(loop, display->GetName(), 1);
        ASSERT_NE(platform, nullptr);
        probe = std::make_unique<CX11Probe>(display->GetName());
        probe->Move(1270, 790);
        probe->Focus(probe->GetRoot());
    }

    /// Runs the loop until the claim holds; false after ten seconds without it.
    bool PumpUntil(const std::function<bool()>& holds)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!holds() && std::chrono::steady_clock::now() < end)
        {
            loop.Pump(20);
        }
        return holds();
    }

    bool PumpUntil(const CRecordingSink& sink, const std::string& name, int count = 1)
    {
        return PumpUntil([&] { return sink.Count(name) >= count; });
    }

    /// All that the server has to tell by now is told.
    void Settle()
    {
        probe->Sync();
        platform->GetPointerPosition();
        while (loop.Pump(30))
        {
        }
    }

    static Mirel::GUI::SNativeWindowOptions Options(Mirel::GUI::ENativeWindowKind kind, const CRect& frame)
    {
        Mirel::GUI::SNativeWindowOptions options;
        options.kind = kind;
        options.position = frame.GetOrigin();
        options.isPlaced = true;
        options.size = frame.GetSize();
        return options;
    }

    static Mirel::GUI::SNativeWindowOptions ChildOptions(xcb_window_t parent, const CRect& frame)
    {
        Mirel::GUI::SNativeWindowOptions options = Options(Mirel::GUI::ENativeWindowKind::Child, frame);
        options.foreignParent = parent;
        return options;
    }

    /// The numbers of a property with 32-bit items.
    std::vector<std::uint32_t> ReadNumbers(const Mirel::GUI::INativeWindow& window,
                                           const std::string& name) const
    {
        const std::string bytes = probe->ReadProperty(static_cast<xcb_window_t>(window.GetId()), name);
        std::vector<std::uint32_t> numbers(bytes.size() / 4);
        if (!numbers.empty())
        {
            std::memcpy(numbers.data(), bytes.data(), numbers.size() * 4);
        }
        return numbers;
    }

    /// A window that is shown and has painted itself in the colour.
    std::unique_ptr<Mirel::GUI::INativeWindow> Open(const Mirel::GUI::SNativeWindowOptions& options,
                                                    CRecordingSink& sink, std::uint32_t colour)
    {
        auto window = platform->CreateNativeWindow(options, sink);
        if (window != nullptr)
        {
            sink.window = window.get();
            sink.Paint(colour, options.size);
            window->Show(true);
            EXPECT_TRUE(PumpUntil(sink, "paint"));
            Settle();
            sink.Clear();
        }
        return window;
    }

    /// The part of the screen shows the part of the sink's picture that begins at origin.
    void ExpectShown(std::uint32_t colour, const CRect& place, CPoint origin = {}) const
    {
        platform->GetPointerPosition(); // after everything asked for so far
        const std::vector<std::uint32_t> pixels =
            probe->ReadScreen(place.x, place.y, place.width, place.height);
        ASSERT_EQ(pixels.size(),
                  static_cast<std::size_t>(place.width) * static_cast<std::size_t>(place.height));
        int wrong = 0;
        for (int y = 0; y < place.height; ++y)
        {
            for (int x = 0; x < place.width; ++x)
            {
                const std::uint32_t pixel = pixels[static_cast<std::size_t>(y * place.width + x)];
                const std::uint32_t wanted = CRecordingSink::ColourAt(colour, origin.x + x, origin.y + y);
                wrong += pixel == (wanted & 0xFFFFFFU) ? 0 : 1;
            }
        }
        EXPECT_EQ(wrong, 0);
    }

    static inline std::unique_ptr<CVirtualDisplay> display;
    Mirel::GUI::CNativeRunLoop loop;
    std::unique_ptr<Mirel::GUI::CX11Platform> platform;
    std::unique_ptr<CX11Probe> probe;
};

} // namespace Tests
