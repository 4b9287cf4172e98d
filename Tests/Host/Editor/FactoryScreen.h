#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Tests
{

/// What an editor shows: row by row, blue in the lowest byte.
struct CShownPicture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    std::uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
};

/// The screen of a channel in the factory skin, of 1000 by 600 pixels. The traces are amber and cyan; nothing
/// else between their first column and the trigger's marker is coloured.
struct CFactoryScreen
{
    static constexpr int width = 1000;
    static constexpr int height = 600;
    static constexpr int left = 56;
    static constexpr int columns = 811; ///< From a second ago to now.
    static constexpr int rows = 201;    ///< From 1 to -1.
    static constexpr int markerColumns = 16;

    /// 1 or 2.
    int channel = 1;

    int GetTop() const { return channel == 1 ? 61 : 303; }

    double RowOf(double value) const { return GetTop() + (1.0 - value) / 2.0 * (rows - 1); }

    bool IsTrace(std::uint32_t pixel) const
    {
        constexpr int leastDifference = 30;
        const int redness = static_cast<int>((pixel >> 16U) & 0xFFU) - static_cast<int>(pixel & 0xFFU);
        return (channel == 1 ? redness : -redness) > leastDifference;
    }

    /// The value that the trace has at a column, with fractions.
    using Values = std::function<double(double column)>;

    /// Says where the trace lies elsewhere than it must, in columns from the first to before the last; empty
    /// if nowhere. A line may be two pixels wide, and steep as the values are.
    std::string FindFaults(const CShownPicture& picture, int first, int last, const Values& values) const
    {
        constexpr double lineSlack = 1.5;
        constexpr int steps = 8;
        std::string faults;
        for (int column = first; column < last && faults.size() < 500; ++column)
        {
            double highest = -1e9;
            double lowest = 1e9;
            for (int step = -steps; step <= steps; ++step)
            {
                const double row = RowOf(values(column + step / static_cast<double>(steps)));
                highest = std::max(highest, row);
                lowest = std::min(lowest, row);
            }
            int found = 0;
            for (int row = GetTop(); row < GetTop() + rows; ++row)
            {
                if (IsTrace(picture.At(left + column, row)))
                {
                    ++found;
                    if (row < lowest - lineSlack || row > highest + lineSlack)
                    {
                        faults += "column " + std::to_string(column) + " has row " + std::to_string(row) +
                                  " not within " + std::to_string(lowest) + " to " + std::to_string(highest) +
                                  "\n";
                    }
                }
            }
            const bool isSeen = lowest >= GetTop() + lineSlack && highest <= GetTop() + rows - 1 - lineSlack;
            if (isSeen && found == 0)
            {
                faults += "column " + std::to_string(column) + " has no trace, expected at " +
                          std::to_string(lowest) + "\n";
            }
        }
        return faults;
    }
};

} // namespace Tests
