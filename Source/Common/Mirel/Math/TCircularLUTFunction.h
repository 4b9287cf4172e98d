#pragma once

#include "Mirel/Math/CWriteCount.h"
#include "Mirel/Math/IFunction.h"
#include "Mirel/Math/TableRange.h"
#include "Mirel/Serialization/TLookupTableSerializer.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace Mirel::Math
{

/// A table that is written round and round and read as a function whose left end may lie at any position of
/// it.
///
/// x = xMin is read at position `start`, larger x at the positions that follow, wrapping once at the end.
/// Between the position that is written next (`writePos`) and `stop` lies what was written too long ago to be
/// shown: there the function is flat, at the value that is about to be overwritten. With stop at writePos
/// nothing is hidden.
///
/// L is a Core::TLookupTable. Whatever L is, the class key is the same, and what is created by it is the form
/// with the constrained spline. One writer, on one thread; everyone else evaluates clones.
template <class L>
class TCircularLUTFunction : public IFunction
{
public:
    static constexpr const char* classKey = "{AAC13163-0B6E-4a60-A1BE-257878A0B336}";

    explicit TCircularLUTFunction(float xMin = 0.0f, float xMax = 1.0f) : table(xMin, xMax) {}

    /// Allocates; the whole table becomes 0 and is read and written from position 0. stop is kept.
    void SetSize(int size)
    {
        table.SetSize(size);
        writes.Restart();
        writePos = 0;
        start = 0;
    }

    /// Zeros everywhere, guards included; read and written from position 0. stop is kept.
    void Reset()
    {
        table.Fill(0.0f);
        writes.Restart();
        writePos = 0;
        start = 0;
    }

    int GetSize() const { return table.GetSize(); }
    int GetWritePos() const { return writePos; }
    int GetStart() const { return start; }
    int GetStop() const { return stop; }

    /// start and stop: 0 to the size, inclusive.
    void SetWindow(int newStart, int newStop)
    {
        start = newStart;
        stop = newStop;
    }

    /// The values by position, GetSize() of them.
    std::span<const float> GetValues() const
    {
        return {table.GetPositions(), static_cast<std::size_t>(table.GetSize())};
    }

    /// Writes a block of any length. The last position of the table also fills the guards behind it.
    void Write(std::span<const float> block)
    {
        ForEachPiece(block.size(), [&](float* to, std::size_t offset, std::size_t count)
                     { std::copy_n(block.data() + offset, count, to); });
    }

    /// Writes count zeros.
    void WriteZeros(std::size_t count)
    {
        ForEachPiece(count, [](float* to, std::size_t, std::size_t pieceCount)
                     { std::fill_n(to, pieceCount, 0.0f); });
    }

    float operator()(float x) const override
    {
        const auto size = static_cast<float>(table.GetSize());
        float position = table.GetPosition(x) + static_cast<float>(start);
        if (position >= size)
        {
            position -= size;
        }
        return IsStale(position) ? table.GetPositions()[writePos] : table.At(position);
    }

    const char* GetTypeKey() const override { return classKey; }

    bool Serialize(Serialization::IWriteDataStream& stream) const override
    {
        bool ok = WriteTableRange(stream, table.GetXMin(), table.GetXMax());
        ok = stream.Write("start", start) && ok;
        ok = stream.Write("writePos", writePos) && ok;
        ok = stream.Write("stop", stop) && ok;
        return stream.Write("values", Serialization::TLookupTableSerializer(table, "value")) && ok;
    }

    /// Without a range in the stream the object keeps its own. On false all is as it was.
    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        float xMin = table.GetXMin();
        float xMax = table.GetXMax();
        if (stream.Exists("xMin") && !ReadTableRange(stream, xMin, xMax))
        {
            return false;
        }
        TCircularLUTFunction read(xMin, xMax);
        Serialization::TLookupTableDeSerializer reader(read.table, "value");
        if (!stream.Read("start", read.start) || !stream.Read("writePos", read.writePos) ||
            !stream.Read("stop", read.stop) || !stream.Read("values", reader) || !read.IsConsistent())
        {
            return false;
        }
        read.FillGuards();
        *this = std::move(read);
        return true;
    }

    TCircularLUTFunction* Clone() const override { return new TCircularLUTFunction(*this); }

    /// Copies what was written since `older` was a clone of this, or all if it never was. False if it has
    /// another size.
    bool UpdateClone(IFunction& older) const override
    {
        TCircularLUTFunction* const clone = AsClassOf(*this, older);
        if (clone == nullptr || clone->GetSize() != GetSize())
        {
            return false;
        }
        const auto missing = writes.GetWrittenSince(clone->writes);
        if (missing && *missing < static_cast<std::uint64_t>(GetSize()))
        {
            CopyWritten(static_cast<std::size_t>(*missing), *clone);
        }
        else
        {
            clone->table = table;
        }
        clone->writes = writes;
        clone->start = start;
        clone->writePos = writePos;
        clone->stop = stop;
        return true;
    }

private:
    /// Copies the `count` positions that were written last, which begin where the clone would write next.
    void CopyWritten(std::size_t count, TCircularLUTFunction& clone) const
    {
        const auto begin = static_cast<std::size_t>(clone.writePos);
        const std::size_t upToEnd = std::min(count, static_cast<std::size_t>(GetSize()) - begin);
        const float* const from = table.GetPositions();
        float* const to = clone.table.GetPositions();
        std::copy_n(from + begin, upToEnd, to + begin);
        std::copy_n(from, count - upToEnd, to);
        std::copy_n(from + GetSize(), L::guardsAfter, to + GetSize());
    }

    bool IsConsistent() const
    {
        const int size = table.GetSize();
        return start >= 0 && start <= size && stop >= 0 && stop <= size && writePos >= 0 &&
               (writePos < size || size == 0);
    }

    bool IsStale(float position) const
    {
        const auto write = static_cast<float>(writePos);
        const auto end = static_cast<float>(stop);
        if (writePos < stop)
        {
            return position >= end || position < write;
        }
        return stop < writePos && position >= end && position < write;
    }

    /// Calls action(target, offset in the block, count) for each contiguous piece of the table that a block
    /// of that length ends up in, and moves the write position on. What the block itself overwrites is
    /// skipped.
    template <class Action>
    void ForEachPiece(std::size_t length, Action action)
    {
        const auto size = static_cast<std::size_t>(table.GetSize());
        if (size == 0)
        {
            return;
        }
        writes.Add(length);
        auto position = static_cast<std::size_t>(writePos);
        if (length < size - position)
        {
            action(table.GetPositions() + position, 0, length);
            writePos = static_cast<int>(position + length);
            return;
        }
        std::size_t offset = 0;
        if (length > size)
        {
            offset = length - size;
            position = (position + offset) % size;
        }
        while (offset < length)
        {
            const std::size_t count = std::min(length - offset, size - position);
            action(table.GetPositions() + position, offset, count);
            offset += count;
            position += count;
            if (position == size)
            {
                FillGuards();
                position = 0;
            }
        }
        writePos = static_cast<int>(position);
    }

    /// A table of one position has no end to guard.
    void FillGuards()
    {
        const int size = table.GetSize();
        float* positions = table.GetPositions();
        if (size > 1)
        {
            std::fill_n(positions + size, L::guardsAfter, positions[size - 1]);
        }
    }

    L table;
    CWriteCount writes;
    int start = 0;
    int writePos = 0;
    int stop = 0;
};

} // namespace Mirel::Math
