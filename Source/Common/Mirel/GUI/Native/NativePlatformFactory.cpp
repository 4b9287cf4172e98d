#include "Mirel/GUI/Native/NativePlatformFactory.h"

#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"
#include "Mirel/GUI/Native/X11/CX11Platform.h"

namespace Mirel::GUI
{

std::unique_ptr<INativePlatform> CreateNativePlatform(CNativeRunLoop& loop,
                                                      const SNativePlatformOptions& options)
{
    if (!options.isOffscreen)
    {
        if (auto platform = CX11Platform::Open(loop, options.display, options.scale); platform != nullptr)
        {
            return platform;
        }
    }
    return std::make_unique<COffscreenPlatform>(loop, options.scale);
}

} // namespace Mirel::GUI
