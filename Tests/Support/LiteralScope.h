#pragma once

#include <cstddef>
#include <vector>

namespace Tests
{

/// The trigger search as a walk of one sample at a time: from the newest sample back, the newest crossing.
/// Gives the position behind it, or -1. down: a value below the level after one at or above it; otherwise the
/// mirror image.
inline int LiteralTrigger(const std::vector<float>& values, int writePos, float level, bool down)
{
    const int size = static_cast<int>(values.size());
    int i = writePos - 1;
    if (i < 0)
    {
        i = size - 1;
    }
    int k = 0;
    const auto at = [&] { return values[static_cast<std::size_t>(i)]; };
    const auto step = [&]
    {
        --i;
        if (i < 0)
        {
            i += size;
        }
        ++k;
    };
    const float last = at();
    if (!down && last > level)
    {
        while (!(at() <= level) && k <= size)
        {
            step();
        }
    }
    else if (!down && last < level)
    {
        while (!(at() > level) && k <= size)
        {
            step();
        }
        while (!(at() <= level) && k <= size)
        {
            step();
        }
    }
    else if (down && last < level)
    {
        while (!(at() >= level) && k <= size)
        {
            step();
        }
    }
    else if (down && last > level)
    {
        while (!(at() < level) && k <= size)
        {
            step();
        }
        while (!(at() >= level) && k <= size)
        {
            step();
        }
    }
    else
    {
        i = 0;
        k = 0;
    }
    return k >= size ? -1 : i + 1;
}

/// The oscilloscope's sample loop, one sample at a time with float bins: what the fast one must agree with,
/// bit for bit, and what it is measured against. No delay and no parameters.
class CLiteralScope
{
public:
    explicit CLiteralScope(double sampleRate, double delayMs = 0.0)
        : size(static_cast<int>(0.5 + sampleRate)),
          values(static_cast<std::size_t>(size) + 3),
          history(PowerOfTwo(size), -1),
          delayLine(PowerOfTwo(static_cast<int>(0.3 * sampleRate + 0.5) + 1)),
          bins(151),
          delaySamples(static_cast<int>(0.001 * sampleRate * delayMs))
    {
    }

    void Process(const float* samples, int count)
    {
        for (int s = 0; s < count; ++s)
        {
            const int delayMask = static_cast<int>(delayLine.size()) - 1;
            delayPos = (delayPos + 1) & delayMask;
            At(delayLine, delayPos) = samples[s];
            const float y = At(delayLine, (delayPos - delaySamples) & delayMask);

            const int p = writePos;
            At(values, p + 1) = y;
            if (p != 0 && p == size - 1)
            {
                At(values, size + 1) = y;
                At(values, size + 2) = y;
            }
            writePos = p + 1;
            if (writePos >= size)
            {
                writePos -= size;
            }

            float clamped = -1.0f;
            if (y > 1.0f)
            {
                clamped = 1.0f;
            }
            else if (y > -1.0f)
            {
                clamped = y;
            }
            const int bin = static_cast<int>((clamped - -1.0f) * 75.0f + 0.5f);
            At(bins, bin) += 1.0f;
            const int historyMask = static_cast<int>(history.size()) - 1;
            historyPos = (historyPos + 1) & historyMask;
            const int leaving = At(history, (historyPos - size) & historyMask);
            if (leaving != -1)
            {
                At(bins, leaving) -= 1.0f;
            }
            At(history, historyPos) = bin;
        }
    }

    int GetSize() const { return size; }
    int GetWritePos() const { return writePos; }
    const std::vector<float>& GetBins() const { return bins; }

    /// With the guards: position p stands at index p + 1.
    const std::vector<float>& GetValues() const { return values; }

private:
    template <class T>
    static T& At(std::vector<T>& list, int index)
    {
        return list[static_cast<std::size_t>(index)];
    }

    static std::size_t PowerOfTwo(int count)
    {
        std::size_t power = 1;
        while (power < static_cast<std::size_t>(count))
        {
            power *= 2;
        }
        return power;
    }

    int size;
    std::vector<float> values;
    std::vector<int> history;
    std::vector<float> delayLine;
    std::vector<float> bins;
    int delaySamples;
    int writePos = 0;
    int delayPos = 0;
    int historyPos = 0;
};

} // namespace Tests
