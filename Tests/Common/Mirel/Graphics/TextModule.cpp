// A module that draws a text, as the plug-in does in its host.

#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Graphics/CFontManager.h"

using namespace Mirel::Graphics;

/// The width of a text that it draws.
extern "C" __attribute__((visibility("default"))) int DrawLabel(const char* fontsFolder)
{
    CFontManager fonts(fontsFolder);
    CDIBBitmap bitmap(32, {100, 30});
    const auto surface = bitmap.CreateSurface();
    surface->SetFont(fonts.GetFont({}));
    surface->DrawText("Level", {1, 1});
    return surface->GetTextExtent("Level").width;
}
