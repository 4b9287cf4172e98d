#pragma once

#include "Mirel/Core/PowerOfTwo.h"
#include "Mirel/Core/TAlignedVector.h"

#include <algorithm>
#include <cstddef>
#include <span>

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
            mask = wanted - 1;
            next = 0;
        }
    }

    int GetSize() const { return static_cast<int>(items.size()); }

    void Fill(T value) { std::fill(items.begin(), items.end(), value); }

    /// Appends a block of any length; of a longer one than GetSize() only the end is kept.
    void Write(std::span<const T> block)
    {
        if (block.size() <= mask - next)
        {
            std::copy_n(block.data(), block.size(), items.data() + next);
            next += block.size();
            return;
        }
        WriteAroundTheEnd(block);
    }

    /// Contiguous room for the next entries, at most `count`, to be filled in place and then taken with
    /// Advance.
    std::span<T> GetRoom(std::size_t count)
    {
        return {items.data() + next, std::min(count, mask + 1 - next)};
    }

    void Advance(std::size_t count) { next = (next + count) & Mask(); }

    /// The contiguous piece that begins with the entry written `age` entries before the next one to be
    /// written (1 is the newest; an age of GetSize() is the oldest), at most `count` entries long. Ages wrap.
    std::span<const T> GetPiece(std::size_t age, std::size_t count) const
    {
        const std::size_t begin = (next - age) & Mask();
        return {items.data() + begin, std::min(count, mask + 1 - begin)};
    }

    std::size_t Mask() const { return mask; }

private:
    void WriteAroundTheEnd(std::span<const T> block)
    {
        const std::size_t skipped = block.size() - std::min(block.size(), mask + 1);
        Advance(skipped);
        const auto kept = block.subspan(skipped);
        const std::size_t first = std::min(kept.size(), mask + 1 - next);
        std::copy_n(kept.data(), first, items.data() + next);
        std::copy_n(kept.data() + first, kept.size() - first, items.data());
        Advance(kept.size());
    }

    TAlignedVector<T> items; ///< mask + 1 of them.
    std::size_t mask = 0;
    std::size_t next = 0; ///< Index that is written next.
};

} // namespace Mirel::Core
