#pragma once

#include "Mirel/Containers/TDynamicVector.h"
#include "Mirel/Core/Numeric.h"
#include "Mirel/Core/PowerOfTwo.h"
#include "Mirel/Serialization/Limits.h"
#include "Mirel/Serialization/TVectorSerializer.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace Mirel::Math
{

/// The history of a value of type V, a ring of the newest samples with their time stamps beside them. What
/// CSweptValues and CSweptCurvesFunction stand on. One thread.
///
/// The ring's size is a power of two, so that indices wrap with a mask.
template <class V>
class TSweptRing
{
public:
    /// Samples that a ring can have at most: as many as a saved list. It bounds what a duration from a
    /// document can reserve; at 20 samples a second it lasts for hours.
    static constexpr int maxCapacity = Serialization::CLimits::maxItems;

    /// Where a point of time lies in the history.
    struct CPlace
    {
        const V* older;    ///< Null where the ring has nothing.
        const V* newer;    ///< The same as older for the newest sample itself.
        float betweenThem; ///< 0 at the older sample to 1 at the newer one.
    };

    TSweptRing() { Clear(); }

    /// Room for at least that many samples, at most maxCapacity; keeps the newest that fit. Allocates.
    void SetCapacity(int wantedCapacity)
    {
        const int capacity = Core::RoundUpToPowerOfTwo(std::min(wantedCapacity, maxCapacity));
        if (capacity == GetCapacity())
        {
            return;
        }
        const int kept = std::min(pointsCount, capacity);
        Containers::TDynamicVector<V> keptValues(capacity);
        Containers::TDynamicVector<float> keptTimes(capacity);
        for (int i = 0; i < kept; ++i)
        {
            const int from = Index(Newest() + 1 - kept + i);
            keptValues[i] = std::move(values[from]);
            keptTimes[i] = times[from];
        }
        values = std::move(keptValues);
        times = std::move(keptTimes);
        mask = capacity - 1;
        pointsCount = kept;
        currentIndex = static_cast<std::uint32_t>(kept - 1);
        MeasureDensity();
    }

    int GetCapacity() const { return mask + 1; }
    int GetCount() const { return pointsCount; }

    /// In seconds.
    void SetDuration(float newDuration) { duration = newDuration; }
    float GetDuration() const { return duration; }

    /// Samples a second, as measured over the whole ring; 0 until there are two.
    float GetPointsPerSecond() const { return pointsPerSecond; }

    /// Forgets and destroys all samples. Capacity and duration stay.
    void Clear()
    {
        values = Containers::TDynamicVector<V>(GetCapacity());
        times = Containers::TDynamicVector<float>(GetCapacity());
        currentIndex = none;
        pointsCount = 0;
        pointsPerSecond = 0.0f;
    }

    /// Makes room for a sample at that time, in seconds, and gives the place for its value, which holds an
    /// old one. Null, with nothing changed, if the time is not later than that of the newest sample.
    /// Allocates nothing.
    V* Add(float time)
    {
        if (pointsCount > 0 && !(time > times[Index(Newest())]))
        {
            return nullptr;
        }
        currentIndex = (currentIndex + 1) & static_cast<std::uint32_t>(mask);
        pointsCount = std::min(pointsCount + 1, GetCapacity());
        const int newest = Index(Newest());
        times[newest] = time;
        MeasureDensity();
        return &values[newest];
    }

    /// Moves all samples in time, by seconds, which changes nothing of what is found where.
    void MoveTimes(float seconds)
    {
        for (int i = 0; i < GetCapacity(); ++i)
        {
            times[i] += seconds;
        }
    }

    /// Finds the samples around a point of time, in seconds relative to the newest sample: 0 is the newest,
    /// the past is negative. Up to and including the oldest sample's own time there is nothing; nor is there
    /// with only one sample, which says nothing about the past. Allocates nothing.
    CPlace Find(float offset) const
    {
        if (pointsCount == 0)
        {
            return {};
        }
        const std::int64_t newest = Newest();
        if (offset >= 0.0f)
        {
            const V* value = &values[Index(newest)];
            return {value, value, 0.0f};
        }
        if (pointsCount == 1)
        {
            return {};
        }
        const std::int64_t beforeOldest = newest - pointsCount;
        const float time = offset + times[Index(newest)];
        std::int64_t i = Guess(offset);
        while (i < newest - 1 && time > times[Index(i)])
        {
            ++i;
        }
        while (!(time > times[Index(i)]))
        {
            --i;
            if (i <= beforeOldest)
            {
                return {};
            }
        }
        const int older = Index(i);
        const int newer = Index(i + 1);
        return {&values[older], &values[newer], (time - times[older]) / (times[newer] - times[older])};
    }

    /// Writes values and times in the order in which they lie in the ring, then the scalars.
    bool Serialize(Serialization::IWriteDataStream& stream) const
    {
        bool ok = stream.Write("values", Serialization::TVectorSerializer(values, "value"));
        ok = stream.Write("times", Serialization::TVectorSerializer(times, "time")) && ok;
        ok = stream.Write("currentIndex", static_cast<int>(currentIndex)) && ok;
        ok = stream.Write("mask", mask) && ok;
        ok = stream.Write("pointsCount", pointsCount) && ok;
        ok = stream.Write("duration", duration) && ok;
        return stream.Write("pointsPerSecond", pointsPerSecond) && ok;
    }

    /// Forgets all samples and reads; what is missing stays as it is. False, with an empty ring, if what was
    /// found does not fit together.
    bool Deserialize(const Serialization::IReadDataStream& stream)
    {
        Clear();
        TSweptRing read;
        read.SetCapacity(GetCapacity());
        read.duration = duration;
        const bool ok = read.ReadFields(stream) && read.IsConsistent();
        if (ok)
        {
            *this = std::move(read);
        }
        return ok;
    }

private:
    static constexpr std::uint32_t none = ~std::uint32_t{0};

    /// The newest sample as an index that does not wrap: others count from here, also below 0.
    std::int64_t Newest() const { return currentIndex; }
    int Index(std::int64_t unwrapped) const { return static_cast<int>(unwrapped & mask); }

    void MeasureDensity()
    {
        pointsPerSecond = 0.0f;
        if (pointsCount >= 2)
        {
            const float newest = times[Index(Newest())];
            const float oldest = times[Index(Newest() + 1 - pointsCount)];
            pointsPerSecond = static_cast<float>(pointsCount - 1) / (newest - oldest);
        }
    }

    /// Where the search begins, by the density of the samples: a valid index, however odd the numbers.
    std::int64_t Guess(float offset) const
    {
        const double samples = static_cast<double>(offset) * static_cast<double>(pointsPerSecond);
        const std::int64_t guess = Core::TruncateToInt32(samples + 0.5) + Newest();
        return std::clamp(guess, Newest() + 1 - pointsCount, Newest());
    }

    bool ReadFields(const Serialization::IReadDataStream& stream)
    {
        Serialization::TVectorDeSerializer valuesReader(values, "value");
        Serialization::TVectorDeSerializer timesReader(times, "time");
        const bool listsFit =
            ReadList(stream, "values", valuesReader) && ReadList(stream, "times", timesReader);
        int index = static_cast<int>(currentIndex);
        stream.Read("currentIndex", index);
        currentIndex = static_cast<std::uint32_t>(index);
        stream.Read("mask", mask);
        stream.Read("pointsCount", pointsCount);
        stream.Read("duration", duration);
        stream.Read("pointsPerSecond", pointsPerSecond);
        return listsFit;
    }

    static bool ReadList(const Serialization::IReadDataStream& stream, const char* key,
                         Serialization::IDeSerialize& list)
    {
        return !stream.Exists(key) || stream.Read(key, list);
    }

    bool IsConsistent() const
    {
        const int size = values.GetCount();
        const bool sizesFit = size > 0 && Core::RoundUpToPowerOfTwo(size) == size &&
                              times.GetCount() == size && mask == size - 1;
        const bool isEmpty = pointsCount == 0 && currentIndex == none;
        return sizesFit && (isEmpty || (pointsCount > 0 && pointsCount <= size &&
                                        currentIndex < static_cast<std::uint32_t>(size)));
    }

    Containers::TDynamicVector<V> values;
    Containers::TDynamicVector<float> times;
    std::uint32_t currentIndex = none;
    int mask = 0;
    int pointsCount = 0;
    float duration = 0.0f;
    float pointsPerSecond = 0.0f;
};

} // namespace Mirel::Math
