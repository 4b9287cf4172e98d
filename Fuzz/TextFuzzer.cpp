// The first byte is a format, the second an escapement, the rest a text: it is measured and drawn, or
// refused.

#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CFontManager.h"
#include "Require.h"

#include <cairo.h>
#include <cstddef>
#include <cstdint>
#include <string>

using namespace Mirel::Graphics;

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
    {
        return 0;
    }
    static CFontManager fonts(GetFontsFolder(DATA_FOLDER));
    constexpr float degreesAStep = 1.5F;
    CFontDescription description;
    description.escapement = degreesAStep * static_cast<float>(data[1] & 0xf0U);
    const CTextFormat format = {data[0] & 31U, static_cast<ETextVAlign>(data[0] / 32U % 3U),
                                static_cast<ETextHAlign>(data[0] / 96U)};
    const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);

    CDIBBitmap bitmap(32, {120, 60});
    const auto surface = bitmap.CreateSurface();
    surface->SetFont(fonts.GetFont(description));
    const CSize extent = surface->GetTextExtent(text.c_str());
    Fuzz::Require(extent.width >= 0 && extent.height >= 0);
    surface->GetTextExtentInRect(text.c_str(), {0, 0, 100, 50}, format);
    surface->DrawTextInRect(text.c_str(), {10, 5, 100, 50}, format);
    surface->DrawText(text.c_str(), {0, 0});
    Fuzz::Require(cairo_status(surface->GetNativeContext()) == CAIRO_STATUS_SUCCESS);
    return 0;
}
