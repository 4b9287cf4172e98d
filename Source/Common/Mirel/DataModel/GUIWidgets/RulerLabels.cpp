#include "Mirel/DataModel/GUIWidgets/RulerLabels.h"

#include <algorithm>

namespace Mirel::DataModel::GUIWidgets
{

namespace
{

constexpr int leastGap = 4; ///< Pixels; less reads as one text.

bool AreApart(const CLabelExtent& a, const CLabelExtent& b)
{
    return a.end + leastGap <= b.begin || b.end + leastGap <= a.begin;
}

} // namespace

std::vector<bool> ChooseLabels(const std::vector<CLabelExtent>& labels, std::size_t zero)
{
    std::vector<bool> kept(labels.size(), false);
    if (labels.empty())
    {
        return kept;
    }
    std::vector<CLabelExtent> taken;
    const auto keep = [&](std::size_t i)
    {
        if (i < labels.size() && !kept[i] &&
            std::all_of(taken.begin(), taken.end(),
                        [&](const CLabelExtent& other) { return AreApart(labels[i], other); }))
        {
            kept[i] = true;
            taken.push_back(labels[i]);
        }
    };
    keep(0);
    keep(labels.size() - 1);
    keep(zero);
    for (std::size_t i = 0; i < labels.size(); ++i)
    {
        keep(i);
    }
    return kept;
}

} // namespace Mirel::DataModel::GUIWidgets
