#pragma once

#include "Mirel/Core/PowerOfTwo.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace Mirel::Core
{

/// A ring of the newest entries, of a power-of-two size, so that every index is a mask operation. Blocks go
/// in and come out as at most two contiguous pieces. Allocates in SetSize alone.
template <class T>
class TCircularBuffer
{
public:
    TCircularBuffer() : items(1) {}

    /// Raises the size to a power of two; a new array, of value-initialised entries, only if that is another
    /// size.
    void SetSize(int size)
    {
        const auto wanted = static_cast<std::size_t>(RoundUpToPowerOfTwo(size));
        if (wanted != items.size())
        {
            items.assign(wanted, T());
            items.shrink_to_fit();
            position = 0;
        }
    }

    int GetSize() const { return static_cast<int>(items.size()); }

    void Fill(T value) { std::fill(items.begin(), items.end(), value); }

    /// Appends a block of at most GetSize() entries.
    void Write(std::span<const T> block)
    {
        const std::size_t begin = (position + 1) & Mask();
        const std::size_t first = std::min(block.size(), items.size() - begin);
        std::copy_n(block.begin(), first, items.begin() + static_cast<std::ptrdiff_t>(begin));
        std::copy(block.begin() + static_cast<std::ptrdiff_t>(first), block.end(), items.begin());
        position = (position + block.size()) & Mask();
    }

    /// The contiguous piece that begins with the entry written `age` entries before the next one to be
    /// written (1 is the newest; an age of GetSize() is the oldest), at most `count` entries long. Ages wrap.
    std::span<const T> GetPiece(std::size_t age, std::size_t count) const
    {
        const std::size_t begin = (position + 1 - age) & Mask();
        return std::span<const T>(items).subspan(begin, std::min(count, items.size() - begin));
    }

    std::size_t Mask() const { return items.size() - 1; }

private:
    std::vector<T> items;
    std::size_t position = 0; ///< Of the newest entry.
};

} // namespace Mirel::Core
