#pragma once

#include <cstddef>
#include <vector>

namespace Mirel::DataModel::GUIWidgets
{

/// The pixels along a ruler that a label would take.
struct CLabelExtent
{
    int begin = 0;
    int end = 0; ///< The first pixel behind it.
};

/// No index, for no label at zero.
inline constexpr std::size_t noLabel = static_cast<std::size_t>(-1);

/// The labels that stay so that there are at least four pixels between each two: the first, then the last,
/// then the one at zero, then those between in their order. One flag for each.
std::vector<bool> ChooseLabels(const std::vector<CLabelExtent>& labels, std::size_t zero);

} // namespace Mirel::DataModel::GUIWidgets
