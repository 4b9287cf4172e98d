#pragma once

namespace Mirel::DataModel::GUIWidgets
{

/// Bounds on what one paint does, since skins come from strangers and a paint holds up the editor. No honest
/// skin comes near them.
struct CLimits
{
    /// Evaluations of a curve in one paint: a hundred for each pixel of a graph as wide as the largest
    /// screens. A single-precision sweep over a graph of any size still gets on with that many steps.
    static constexpr int maxSamples = 1 << 20;

    /// Lines of a grid along one axis, subdivisions included.
    static constexpr int maxGridLines = 1 << 14;

    /// Stops of a ruler that are looked at for a label; of more than these every second, third and so on is.
    static constexpr int maxRulerStops = 1 << 12;

    /// Items of a list of values: more fit on no screen, and no list opens for a parameter that has more.
    static constexpr int maxListItems = 1 << 10;

    /// Texts that are measured to find the longest one of a parameter. The names of a choice are fewer; of
    /// more whole numbers the ends and the default tell enough.
    static constexpr int maxMeasuredTexts = 1 << 6;
};

} // namespace Mirel::DataModel::GUIWidgets
