#pragma once

#include "Mirel/Math/BinIndices.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CSlidingCounts.h"
#include "Mirel/Math/CWriteCount.h"
#include "Mirel/Math/FunctionsLibrary.h"
#include "Mirel/Math/TFunctionsOperation.h"
#include "Mirel/Math/TLUTFunction.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace Mirel::Math
{

/// Counts how often values fell into each of the bins of a range, over exactly the last so many values.
/// A value outside the range counts in the first or the last bin; NaN counts in the first.
///
/// L is a Core::TLookupTable with the nearest neighbour. One thread; Add allocates nothing.
template <class L>
class THistogram
{
public:
    static constexpr int maxBins = CSlidingCounts::maxNumbers;

    /// 2 to maxBins bins, whose centres lie evenly from xMin to xMax.
    THistogram(int binCount_, float xMin_, float xMax_) : bins(binCount_, xMin_, xMax_) { Connect(); }

    THistogram(const THistogram& other) : bins(other.bins), normalisation(other.normalisation) { Connect(); }
    THistogram& operator=(const THistogram&) = delete;
    ~THistogram() = default;

    /// Counts over the last `length` values, 0 for none; forgets all. Allocates.
    void SetLength(int length) { bins.SetLength(length); }
    int GetLength() const { return bins.GetCounts().GetLength(); }

    void Reset() { bins.Reset(); }

    void Add(std::span<const float> values) { bins.Add(values); }

    /// Sets the factor that makes the fullest bin read 1; 0 while all bins are empty.
    void Normalise()
    {
        const auto values = bins.KeepValues();
        const float fullest = *std::max_element(values.begin(), values.end());
        normalisation.SetValue(fullest != 0.0f ? 1.0f / fullest : 0.0f);
    }

    int GetBinCount() const { return bins.GetBinCount(); }

    /// The number of values in a bin, always current.
    float GetBin(int index) const { return bins.GetBin(static_cast<std::uint8_t>(index)); }

    /// The share of each bin in the fullest, as of the last Normalise, as a function of the value. It is part
    /// of the histogram; a clone stands alone and is a plain table.
    const IFunction& GetFunction() const { return product; }

private:
    /// The live bins. A clone is a frozen table of them.
    class CBins : public IFunction
    {
    public:
        CBins(int binCount_, float xMin_, float xMax_)
            : binCount(std::clamp(binCount_, 2, maxBins)),
              range{xMin_, xMax_, static_cast<float>(binCount - 1) / (xMax_ - xMin_)},
              counts(binCount)
        {
        }

        const CSlidingCounts& GetCounts() const { return counts; }
        int GetBinCount() const { return binCount; }

        void SetLength(int length)
        {
            counts.SetLength(length);
            writes.Restart();
        }

        void Reset()
        {
            counts.Reset();
            writes.Restart();
        }

        void Add(std::span<const float> values)
        {
            writes.Add(values.size());
            counts.Add(values.size(),
                       [this, &values](std::span<std::uint8_t> indices)
                       {
                           FindBins(values.first(indices.size()), range, indices.data());
                           values = values.subspan(indices.size());
                       });
        }

        /// The bins as they are now. They are kept for the clones that are wanted of the same state: to count
        /// what is in no table takes longer than all else in bringing a clone up to date.
        std::span<const float> KeepValues()
        {
            ComputeValues(kept.data());
            keptAt = writes;
            return {kept.data(), static_cast<std::size_t>(binCount)};
        }
        float GetBin(std::uint8_t index) const { return static_cast<float>(counts.GetCount(index)); }

        float operator()(float x) const override
        {
            std::uint8_t index = 0;
            FindBins({&x, 1}, range, &index);
            return GetBin(index);
        }

        const char* GetTypeKey() const override { return nullptr; }
        bool Serialize(Serialization::IWriteDataStream&) const override { return true; }
        bool Deserialize(const Serialization::IReadDataStream&) override { return true; }

        IFunction* Clone() const override
        {
            auto* const frozen = new TLUTFunction<L>(L(range.low, range.high, binCount));
            Freeze(*frozen);
            return frozen;
        }

        bool UpdateClone(IFunction& older) const override
        {
            auto* const frozen = dynamic_cast<TLUTFunction<L>*>(&older);
            return frozen != nullptr && HasSameRange(frozen->GetTable()) && Freeze(*frozen);
        }

    private:
        bool HasSameRange(const L& table) const
        {
            return table.GetXMin() == range.low && table.GetXMax() == range.high;
        }

        void ComputeValues(float* values) const
        {
            const auto current = counts.GetCounts();
            std::transform(current.begin(), current.begin() + binCount, values,
                           [](std::uint32_t count) { return static_cast<float>(count); });
        }

        /// False for a table of another size.
        bool Freeze(TLUTFunction<L>& frozen) const
        {
            const auto size = static_cast<std::size_t>(binCount);
            if (writes.GetWrittenSince(keptAt) == 0U)
            {
                return frozen.SetValues({kept.data(), size});
            }
            std::array<float, maxBins> values;
            ComputeValues(values.data());
            return frozen.SetValues({values.data(), size});
        }

        int binCount;
        CBinRange range;
        CSlidingCounts counts;
        CWriteCount writes;
        std::array<float, maxBins> kept{}; ///< The bins at the last KeepValues,
        CWriteCount keptAt;                ///< which was here.
    };

    void Connect()
    {
        product.Clear();
        product.Add(&bins, false);
        product.Add(&normalisation, false);
    }

    CBins bins;
    CConstantFunction normalisation{0.0f};
    TFunctionsOperation<&FunctionsLibrary::Product> product;
};

} // namespace Mirel::Math
