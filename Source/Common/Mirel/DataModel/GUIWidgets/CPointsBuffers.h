#pragma once

#include "Mirel/Graphics/Geometry.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace Mirel::DataModel::GUIWidgets
{

/// The points of a graph that is being drawn, in both forms. Sized when the graph is, so that paints do not
/// allocate.
struct CPointsBuffers
{
    std::vector<Graphics::CPoint> whole;
    std::vector<Graphics::CPointF> exact;

    std::vector<Graphics::CPoint>& Get(Graphics::CPoint*) { return whole; }
    std::vector<Graphics::CPointF>& Get(Graphics::CPointF*) { return exact; }

    /// Room for that many points, as far as it is worth it: beyond, a graph is drawn in pieces.
    void Reserve(int count)
    {
        constexpr int least = 64;
        constexpr int most = 1 << 14;
        const auto wanted = static_cast<std::size_t>(std::clamp(count, least, most) + 1) / 2 * 2;
        if (wanted > whole.size())
        {
            whole.resize(wanted);
            exact.resize(wanted);
        }
    }
};

} // namespace Mirel::DataModel::GUIWidgets
