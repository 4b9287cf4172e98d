// What a paint costs between the painted bitmap and the screen: through memory shared with the X server
// beside the same pixels sent in the requests, both until the server has them, on an X server of this
// program's own.

#include "Mirel/GUI/Native/X11/CX11Connection.h"
#include "Mirel/GUI/Native/X11/CX11Presenter.h"
#include "Mirel/GUI/Native/X11/X11Memory.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Support/CVirtualDisplay.h"
#include "Support/Contest.h"

#include <array>
#include <benchmark/benchmark.h>
#include <cstring>
#include <memory>

using namespace Mirel::GUI;
using Mirel::Graphics::CDIBBitmap;
using Mirel::Graphics::CRect;
using Mirel::Graphics::CSimple2DRegion;
using Mirel::Graphics::CSize;

namespace
{

constexpr CSize windowSize{1200, 700};

/// A window of its own on the display, with or without shared memory.
class CScreen
{
public:
    CScreen(const Tests::CVirtualDisplay& display, bool isShared)
        : connection(CX11Connection::Open(display.GetName()))
    {
        if (!isShared)
        {
            connection->GiveUpSharedMemory();
        }
        window = xcb_generate_id(connection->Get());
        const std::array<std::uint32_t, 2> values = {0, 1};
        xcb_create_window(connection->Get(), connection->GetDepth(), window, connection->GetRoot(), 0, 0,
                          windowSize.width, windowSize.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          connection->GetVisual(), XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT,
                          values.data());
        xcb_map_window(connection->Get(), window);
        presenter = std::make_unique<CX11Presenter>(*connection, window, windowSize);
    }

    void Present(const CDIBBitmap& bitmap, const CSimple2DRegion& region)
    {
        presenter->Present(bitmap, region);
        const TX11Pointer<xcb_get_input_focus_reply_t> done(
            xcb_get_input_focus_reply(connection->Get(), xcb_get_input_focus(connection->Get()), nullptr));
        while (const CX11Event event = connection->NextEvent())
        {
            if ((event->response_type & 0x7F) == connection->GetCompletionType())
            {
                const void* record = event.get();
                presenter->OnTaken(static_cast<const xcb_shm_completion_event_t*>(record)->shmseg);
            }
        }
    }

private:
    std::unique_ptr<CX11Connection> connection;
    xcb_window_t window = 0;
    std::unique_ptr<CX11Presenter> presenter;
};

void Present(benchmark::State& state)
{
    const int width = static_cast<int>(state.range(0));
    const int height = static_cast<int>(state.range(1));
    const Tests::CVirtualDisplay display;
    if (display.GetName().empty())
    {
        state.SkipWithError("Xvfb could not be started");
        return;
    }
    CScreen shared(display, true);
    CScreen plain(display, false);
    const CDIBBitmap bitmap(32, windowSize);
    CDIBBitmap copy(32, windowSize);
    const CSimple2DRegion region(CRect(0, 0, width, height));

    Benchmarks::CContest contest(state, static_cast<double>(width) * height);
    contest.Add("shared", [&] { shared.Present(bitmap, region); });
    contest.Add("put", [&] { plain.Present(bitmap, region); });
    contest.Add("copy",
                [&]
                {
                    for (std::size_t y = 0; y < static_cast<std::size_t>(height); ++y)
                    {
                        const std::size_t row = y * static_cast<std::size_t>(windowSize.width) * 4;
                        std::memcpy(copy.GetData() + row, bitmap.GetData() + row,
                                    static_cast<std::size_t>(width) * 4);
                    }
                });
    contest.Run();
}

BENCHMARK(Present)
    ->Args({40, 40})
    ->Args({400, 100})
    ->Args({800, 300})
    ->Args({1200, 700})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
