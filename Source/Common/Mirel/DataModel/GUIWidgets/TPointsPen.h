#pragma once

#include <algorithm>
#include <cstddef>
#include <span>

namespace Mirel::DataModel::GUIWidgets
{

/// Hands points on to a drawing operation in as few pieces as a buffer of fixed size allows, so that no paint
/// allocates. GUI thread.
///
/// `draw(points, count)` takes a piece. Of each full piece the last `overlap` points begin the next: 1 for
/// the corners of a line, 0 for dots and for pairs of ends.
template <class Point, class Draw>
class TPointsPen
{
public:
    /// The buffer holds more than `overlap_` points, an even number where pairs are to stay together.
    TPointsPen(std::span<Point> buffer_, std::size_t overlap_, Draw draw_)
        : buffer(buffer_),
          overlap(overlap_),
          draw(draw_)
    {
    }

    void Add(Point point)
    {
        if (count == buffer.size())
        {
            draw(buffer.data(), static_cast<int>(count));
            std::copy(buffer.end() - static_cast<std::ptrdiff_t>(overlap), buffer.end(), buffer.begin());
            count = overlap;
        }
        buffer[count++] = point;
    }

    /// Draws what there is; the next point begins anew.
    void Break()
    {
        if (count > 0)
        {
            draw(buffer.data(), static_cast<int>(count));
            count = 0;
        }
    }

private:
    std::span<Point> buffer;
    std::size_t overlap;
    Draw draw;
    std::size_t count = 0;
};

} // namespace Mirel::DataModel::GUIWidgets
