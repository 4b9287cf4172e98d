#include "Mirel/Graphics/CDIBBitmap.h"

#include "Mirel/Graphics/CBitmapContext.h"

namespace Mirel::Graphics
{

CDIBBitmap::CDIBBitmap(int depth_, CSize size) : depth(depth_)
{
    Attach(CBitmapContext::Create(size, depth));
}

} // namespace Mirel::Graphics
