#pragma once

#include "Mirel/Core/TCircularBuffer.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/FunctionsLibrary.h"
#include "Mirel/Math/TFunctionsOperation.h"
#include "Mirel/Math/TLUTFunction.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace Mirel::Math
{

/// Counts how often values fell into each of the bins of a range, over exactly the last so many values.
///
/// A value outside the range counts in the first or the last bin; NaN counts in the first. The count is a
/// sliding one: each value adds to its bin and takes the one that leaves the window out of its own. To keep a
/// run of equal values from waiting on one counter, values take turns among several tables of counters, which
/// are summed when a bin is read; the sums are exact, whatever the order.
///
/// L is a Core::TLookupTable with the nearest neighbour. One thread; Add allocates nothing.
template <class L>
class THistogram
{
public:
    /// At most maxBins bins, whose centres lie evenly from xMin to xMax.
    static constexpr int maxBins = 255;

    THistogram(int binCount_, float xMin_, float xMax_) : bins(binCount_, xMin_, xMax_) { Connect(); }

    THistogram(const THistogram& other)
        : bins(other.bins),
          normalisation(other.normalisation),
          history(other.history),
          length(other.length)
    {
        Connect();
    }

    THistogram& operator=(const THistogram&) = delete;
    ~THistogram() = default;

    /// Counts over the last `newLength` values, 0 for none; forgets all. Allocates.
    void SetLength(int newLength)
    {
        length = newLength;
        history.SetSize(newLength);
        Reset();
    }

    int GetLength() const { return length; }

    void Reset()
    {
        bins.Clear();
        history.Fill(emptySlot);
    }

    void Add(std::span<const float> values)
    {
        const auto most = std::min(static_cast<std::size_t>(length), pieceSize);
        while (length > 0 && !values.empty())
        {
            const auto piece = values.first(std::min(values.size(), most));
            AddPiece(piece);
            values = values.subspan(piece.size());
        }
    }

    /// Sets the factor that makes the fullest bin read 1; 0 while all bins are empty.
    void Normalise()
    {
        float fullest = 0.0f;
        for (int i = 0; i < bins.GetCount(); ++i)
        {
            fullest = std::max(fullest, bins.GetBin(i));
        }
        normalisation.SetValue(fullest != 0.0f ? 1.0f / fullest : 0.0f);
    }

    int GetBinCount() const { return bins.GetCount(); }

    /// The number of values in a bin, always current.
    float GetBin(int index) const { return bins.GetBin(index); }

    /// The share of each bin in the fullest, as of the last Normalise, as a function of the value. It is part
    /// of the histogram; a clone stands alone and is a plain table.
    const IFunction& GetFunction() const { return product; }

private:
    static constexpr std::size_t pieceSize = 1024;
    static constexpr std::uint8_t emptySlot = maxBins;

    /// The live bins. A clone is a frozen table of them.
    class CBins : public IFunction
    {
    public:
        CBins(int count_, float xMin_, float xMax_)
            : count(std::clamp(count_, 1, maxBins)),
              xMin(xMin_),
              xMax(xMax_),
              scale(static_cast<float>(count - 1) / (xMax_ - xMin_))
        {
        }

        int GetCount() const { return count; }
        void Clear() { counters = {}; }

        float GetBin(int index) const
        {
            std::uint32_t sum = 0;
            for (const auto& table : counters)
            {
                sum += table[static_cast<std::size_t>(index)];
            }
            return static_cast<float>(sum);
        }

        /// The bin of each value.
        void Find(std::span<const float> values, std::uint8_t* indices) const
        {
            for (std::size_t i = 0; i < values.size(); ++i)
            {
                // The order of the comparisons sends NaN to xMin.
                const float high = values[i] > xMin ? values[i] : xMin;
                const float clamped = high > xMax ? xMax : high;
                indices[i] = static_cast<std::uint8_t>(static_cast<int>((clamped - xMin) * scale + 0.5f));
            }
        }

        /// Counts values in and others out.
        void Count(const std::uint8_t* entering, const std::uint8_t* leaving, std::size_t number)
        {
            std::size_t i = 0;
            for (; i + turns <= number; i += turns)
            {
                for (std::size_t turn = 0; turn < turns; ++turn)
                {
                    ++counters[turn][entering[i + turn]];
                    --counters[turns + turn][leaving[i + turn]];
                }
            }
            for (; i < number; ++i)
            {
                ++counters[0][entering[i]];
                --counters[turns][leaving[i]];
            }
        }

        float operator()(float x) const override
        {
            std::uint8_t index = 0;
            Find({&x, 1}, &index);
            return GetBin(index);
        }

        const char* GetTypeKey() const override { return nullptr; }
        bool Serialize(Serialization::IWriteDataStream&) const override { return true; }
        bool Deserialize(const Serialization::IReadDataStream&) override { return true; }

        IFunction* Clone() const override
        {
            L table(xMin, xMax, count);
            for (int i = 0; i < count; ++i)
            {
                table.GetPositions()[i] = GetBin(i);
            }
            return new TLUTFunction<L>(std::move(table));
        }

    private:
        static constexpr std::size_t turns = 4;

        int count;
        float xMin;
        float xMax;
        float scale;
        /// Values that came in, then values that left, as negative counts: unsigned sums come out right
        /// modulo 2^32. The last entry of a table takes the empty slots.
        std::array<std::array<std::uint32_t, maxBins + 1>, 2 * turns> counters{};
    };

    /// At most `length` values, so that all that leave were there before.
    void AddPiece(std::span<const float> values)
    {
        std::array<std::uint8_t, pieceSize> entering;
        bins.Find(values, entering.data());
        for (std::size_t done = 0; done < values.size();)
        {
            const auto age = static_cast<std::size_t>(length) - done;
            const auto leaving = history.GetPiece(age, values.size() - done);
            bins.Count(entering.data() + done, leaving.data(), leaving.size());
            done += leaving.size();
        }
        history.Write({entering.data(), values.size()});
    }

    void Connect()
    {
        product.Clear();
        product.Add(&bins, false);
        product.Add(&normalisation, false);
    }

    CBins bins;
    CConstantFunction normalisation{0.0f};
    TFunctionsOperation<&FunctionsLibrary::Product> product;
    Core::TCircularBuffer<std::uint8_t> history;
    int length = 0;
};

} // namespace Mirel::Math
