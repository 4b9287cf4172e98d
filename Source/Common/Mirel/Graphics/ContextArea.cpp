#include "Mirel/Graphics/ContextArea.h"

#include <cairo.h>
#include <cmath>

namespace Mirel::Graphics
{

CRect GetOuterClip(cairo_t* context)
{
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;
    cairo_clip_extents(context, &left, &top, &right, &bottom);
    const int x = Core::TruncateToInt32(std::floor(left));
    const int y = Core::TruncateToInt32(std::floor(top));
    return {x, y, Core::TruncateToInt32(std::ceil(right) - x), Core::TruncateToInt32(std::ceil(bottom) - y)};
}

void AddRect(cairo_t* context, const CRect& rect)
{
    cairo_rectangle(context, rect.x, rect.y, rect.width, rect.height);
}

} // namespace Mirel::Graphics
