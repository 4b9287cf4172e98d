#include "Mirel/Math/CSweptValues.h"

#include "SavedFunctions.h"
#include "Steps.h"
#include "Support/AllocationCounter.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace Mirel::Math
{
namespace
{

using Serialization::CMemDataObject;

struct CSample
{
    float time;
    float value;
};

CSweptValues MakeHistory(int capacity, const std::vector<CSample>& samples)
{
    CSweptValues history;
    history.SetCapacity(capacity);
    history.SetDefaultValue(-100.0f);
    for (const CSample& sample : samples)
    {
        history.Add(sample.time, sample.value);
    }
    return history;
}

/// What the history of all those samples is, by looking at every pair of neighbours.
float BruteForce(const std::vector<CSample>& samples, float offset, float defaultValue)
{
    if (samples.empty())
    {
        return defaultValue;
    }
    if (offset >= 0.0f)
    {
        return samples.back().value;
    }
    const float time = offset + samples.back().time;
    for (std::size_t i = 0; i + 1 < samples.size(); ++i)
    {
        const CSample& a = samples[i];
        const CSample& b = samples[i + 1];
        if (time > a.time && time <= b.time)
        {
            const double share = (static_cast<double>(time) - static_cast<double>(a.time)) /
                                 (static_cast<double>(b.time) - static_cast<double>(a.time));
            return static_cast<float>(static_cast<double>(a.value) +
                                      share * (static_cast<double>(b.value) - static_cast<double>(a.value)));
        }
    }
    return defaultValue;
}

} // namespace

TEST(CSweptValues, EmptyIsTheDefaultValueEverywhere)
{
    CSweptValues history;
    history.SetDefaultValue(7.0f);
    for (const float offset : {-1e30f, -1.0f, 0.0f, 1.0f})
    {
        EXPECT_EQ(history(offset), 7.0f);
    }
    EXPECT_EQ(history.GetPointsCount(), 0);
}

TEST(CSweptValues, OfTwoSamplesWithTheSameTimeTheFirstIsKept)
{
    CSweptValues history = MakeHistory(4, {});
    EXPECT_TRUE(history.Add(1.0f, 10.0f));
    EXPECT_FALSE(history.Add(1.0f, 20.0f));
    EXPECT_FALSE(history.Add(0.5f, 30.0f));
    EXPECT_FALSE(history.Add(std::numeric_limits<float>::quiet_NaN(), 40.0f));
    EXPECT_EQ(history.GetPointsCount(), 1);
    EXPECT_EQ(history(0.0f), 10.0f);
}

TEST(CSweptValues, RunsStraightBetweenSamples)
{
    const CSweptValues history = MakeHistory(4, {{0.0f, 0.0f}, {1.0f, 10.0f}});
    EXPECT_EQ(history(-0.5f), 5.0f);
    EXPECT_EQ(history(-0.25f), 7.5f);
}

TEST(CSweptValues, IsTheNewestValueFromZeroOn)
{
    const CSweptValues history = MakeHistory(4, {{0.0f, 0.1f}, {1.0f, 0.3f}});
    EXPECT_EQ(history(0.0f), 0.3f);
    EXPECT_EQ(history(-0.0f), 0.3f);
    EXPECT_EQ(history(5.0f), 0.3f);
}

TEST(CSweptValues, ANewestInfinityIsReadAsItStands)
{
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(MakeHistory(4, {{0.0f, 0.0f}, {1.0f, infinity}})(0.0f), infinity);
}

TEST(CSweptValues, OneSampleSaysNothingAboutThePast)
{
    const CSweptValues history = MakeHistory(4, {{3.0f, 5.0f}});
    EXPECT_EQ(history(-0.001f), -100.0f);
    EXPECT_EQ(history(0.0f), 5.0f);
}

TEST(CSweptValues, BeyondTheOldestSampleIsTheDefaultValue)
{
    const CSweptValues history = MakeHistory(4, {{0.0f, 1.0f}, {1.0f, 2.0f}, {3.0f, 4.0f}});
    EXPECT_EQ(history(-3.5f), -100.0f);
    EXPECT_EQ(history(-3.0f), -100.0f); // the oldest sample's own time
    EXPECT_EQ(history(-2.0f), 2.0f);
    EXPECT_EQ(history(-std::numeric_limits<float>::infinity()), -100.0f);
    EXPECT_EQ(history(std::numeric_limits<float>::quiet_NaN()), -100.0f);
}

TEST(CSweptValues, AFullRingKeepsItsCapacityAndLosesTheOldest)
{
    CSweptValues history = MakeHistory(4, {});
    for (int i = 0; i < 11; ++i)
    {
        EXPECT_TRUE(history.Add(static_cast<float>(i), static_cast<float>(10 * i)));
    }
    EXPECT_EQ(history.GetPointsCount(), 4);
    EXPECT_EQ(history(0.0f), 100.0f);
    EXPECT_EQ(history(-2.0f), 80.0f);
    EXPECT_EQ(history(-2.5f), 75.0f);
    EXPECT_EQ(history(-3.5f), -100.0f);
}

TEST(CSweptValues, CapacityIsRaisedToAPowerOfTwo)
{
    CSweptValues history;
    EXPECT_EQ(history.GetCapacity(), 1);
    for (const auto& [wanted, capacity] :
         std::vector<std::pair<int, int>>{{40, 64}, {64, 64}, {65, 128}, {1, 1}, {0, 1}, {-5, 1}})
    {
        history.SetCapacity(wanted);
        EXPECT_EQ(history.GetCapacity(), capacity) << wanted;
    }
}

TEST(CSweptValues, CapacityIsBounded)
{
    CSweptValues history;
    history.SetCapacity(std::numeric_limits<int>::max());
    EXPECT_EQ(history.GetCapacity(), 1 << 18);
}

TEST(CSweptValues, MeasuresItsDensity)
{
    CSweptValues history = MakeHistory(4, {{0.0f, 0.0f}});
    EXPECT_EQ(history.GetPointsPerSecond(), 0.0f);
    history.Add(2.0f, 0.0f);
    EXPECT_EQ(history.GetPointsPerSecond(), 0.5f);
    history.Add(2.5f, 0.0f);
    EXPECT_EQ(history.GetPointsPerSecond(), 0.8f); // two intervals in 2.5 s
    history.Add(3.0f, 0.0f);
    history.Add(4.0f, 0.0f);
    EXPECT_EQ(history.GetPointsPerSecond(), 1.5f); // from 2 to 4 s, the first is gone
}

TEST(CSweptValues, AnotherCapacityKeepsTheNewestSamplesThatFit)
{
    CSweptValues history = MakeHistory(8, {});
    for (int i = 0; i < 11; ++i)
    {
        history.Add(static_cast<float>(i), static_cast<float>(i * i));
    }
    history.SetCapacity(4);
    EXPECT_EQ(history.GetPointsCount(), 4);
    EXPECT_EQ(history(0.0f), 100.0f);
    EXPECT_EQ(history(-2.0f), 64.0f);
    EXPECT_EQ(history(-3.5f), -100.0f);

    history.SetCapacity(16);
    EXPECT_EQ(history.GetPointsCount(), 4);
    EXPECT_EQ(history(-2.0f), 64.0f);
    EXPECT_TRUE(history.Add(11.0f, 121.0f));
    EXPECT_EQ(history(-1.0f), 100.0f);
    EXPECT_EQ(history(-3.0f), 64.0f);
}

TEST(CSweptValues, AnEmptyHistoryOfAnotherCapacityStaysEmpty)
{
    CSweptValues history = MakeHistory(8, {});
    history.SetCapacity(32);
    EXPECT_EQ(history(0.0f), -100.0f);
    history.Add(5.0f, 1.0f);
    EXPECT_EQ(history(0.0f), 1.0f);
    EXPECT_EQ(history.GetPointsCount(), 1);
}

TEST(CSweptValues, ClearForgetsSamplesOnly)
{
    CSweptValues history = MakeHistory(8, {{1.0f, 1.0f}, {2.0f, 2.0f}});
    history.SetDuration(2.5f);
    history.Clear();
    EXPECT_EQ(history.GetPointsCount(), 0);
    EXPECT_EQ(history.GetPointsPerSecond(), 0.0f);
    EXPECT_EQ(history.GetCapacity(), 8);
    EXPECT_EQ(history.GetDuration(), 2.5f);
    EXPECT_EQ(history(0.0f), -100.0f);
    EXPECT_TRUE(history.Add(0.5f, 3.0f)); // time may begin anew
}

TEST(CSweptValues, AddingAndEvaluatingAllocateNothing)
{
    CSweptValues history = MakeHistory(64, {});
    const Tests::CAllocationCounter counter;
    float sum = 0.0f;
    for (int i = 0; i < 1000; ++i)
    {
        history.Add(static_cast<float>(i) * 0.05f, 1.0f);
        sum += history(-1.0f) + history(0.0f);
    }
    EXPECT_EQ(counter.GetCount(), 0U);
    EXPECT_NE(sum, 0.0f);
}

TEST(CSweptValues, ClonesAreIndependent)
{
    CSweptValues history = MakeHistory(4, {{0.0f, 0.0f}, {1.0f, 10.0f}});
    const std::unique_ptr<IFunction> clone(history.Clone());
    history.Add(2.0f, 20.0f);
    EXPECT_EQ((*clone)(0.0f), 10.0f);
    EXPECT_EQ((*clone)(-0.5f), 5.0f);
}

TEST(CSweptValues, ComesBackFromEveryForm)
{
    CSweptValues history = MakeHistory(4, {});
    history.SetDuration(1.5f);
    for (int i = 0; i < 7; ++i)
    {
        history.Add(static_cast<float>(i) * 0.3f, std::sqrt(static_cast<float>(i)));
    }
    EXPECT_STREQ(history.GetTypeKey(), "{852FDB81-5DDA-4440-9598-AF98A8CFBC3D}");
    ThroughEveryForm<IFunction>(history,
                                [&history](std::unique_ptr<IFunction> function)
                                {
                                    auto* read = dynamic_cast<CSweptValues*>(function.get());
                                    ASSERT_NE(read, nullptr);
                                    for (const float offset : Steps(-2.0f, 0.5f, 0.07f))
                                    {
                                        EXPECT_EQ((*read)(offset), history(offset)) << offset;
                                    }
                                    EXPECT_EQ(read->GetCapacity(), 4);
                                    EXPECT_EQ(read->GetDuration(), 1.5f);
                                    EXPECT_TRUE(read->Add(7.0f, 1.0f));
                                });
    ThroughEveryForm<IFunction>(MakeHistory(8, {}),
                                [](std::unique_ptr<IFunction> read)
                                {
                                    ASSERT_NE(read, nullptr);
                                    EXPECT_EQ((*read)(0.0f), -100.0f);
                                });
}

TEST(CSweptValues, SavesItsRingAsItLies)
{
    CMemDataObject saved;
    ASSERT_TRUE(MakeHistory(2, {{1.0f, 10.0f}, {2.0f, 20.0f}, {3.0f, 30.0f}}).Serialize(saved));

    const auto readInt = [&saved](const char* key)
    {
        int value = 12345;
        EXPECT_TRUE(saved.Read(key, value)) << key;
        return value;
    };
    EXPECT_EQ(readInt("version"), 1);
    EXPECT_EQ(readInt("currentIndex"), 0);
    EXPECT_EQ(readInt("mask"), 1);
    EXPECT_EQ(readInt("pointsCount"), 2);
    for (const char* key : {"defaultValue", "duration", "pointsPerSecond"})
    {
        float number = 0.0f;
        EXPECT_TRUE(saved.Read(key, number)) << key;
    }
    CMemDataObject values;
    CMemDataObject times;
    ASSERT_TRUE(saved.Find("values") != nullptr && saved.Find("times") != nullptr);
    Containers::TDynamicVector<float> list;
    Serialization::TVectorDeSerializer valuesReader(list, "value");
    ASSERT_TRUE(saved.Read("values", static_cast<Serialization::IDeSerialize&>(valuesReader)));
    EXPECT_EQ(list[0], 30.0f);
    EXPECT_EQ(list[1], 20.0f);
    Serialization::TVectorDeSerializer timesReader(list, "time");
    ASSERT_TRUE(saved.Read("times", static_cast<Serialization::IDeSerialize&>(timesReader)));
    EXPECT_EQ(list[0], 3.0f);
    EXPECT_EQ(list[1], 2.0f);
}

TEST(CSweptValues, AnEmptyRingIsSavedWithAllOnes)
{
    CMemDataObject saved;
    ASSERT_TRUE(MakeHistory(4, {}).Serialize(saved));
    int index = 0;
    ASSERT_TRUE(saved.Read("currentIndex", index));
    EXPECT_EQ(index, -1);
}

TEST(CSweptValues, MissingKeysKeepWhatIsThere)
{
    CSweptValues history = MakeHistory(4, {{0.0f, 0.0f}, {1.0f, 10.0f}});
    history.SetDuration(3.0f);
    CMemDataObject saved;
    saved.Write("defaultValue", 8.0f);

    EXPECT_TRUE(history.Deserialize(saved));

    EXPECT_EQ(history(0.0f), 8.0f); // the samples go first
    EXPECT_EQ(history.GetDuration(), 3.0f);
    EXPECT_EQ(history.GetCapacity(), 4);
}

TEST(CSweptValues, DamagedRingsAreRefused)
{
    const CSweptValues whole = MakeHistory(4, {{0.0f, 0.0f}, {1.0f, 10.0f}});
    struct CDamage
    {
        const char* key;
        int value;
    };
    for (const CDamage& damage :
         {CDamage{"mask", 7}, CDamage{"mask", -1}, CDamage{"mask", 2}, CDamage{"pointsCount", 5},
          CDamage{"pointsCount", -1}, CDamage{"currentIndex", 4}, CDamage{"currentIndex", -2},
          CDamage{"currentIndex", -1}, CDamage{"pointsCount", 0}})
    {
        SCOPED_TRACE(testing::Message() << damage.key << " " << damage.value);
        CMemDataObject saved;
        ASSERT_TRUE(whole.Serialize(saved));
        saved.Write(damage.key, damage.value);
        CSweptValues read = MakeHistory(4, {{0.0f, 1.0f}});
        EXPECT_FALSE(read.Deserialize(saved));
        EXPECT_EQ(read.GetPointsCount(), 0);
        EXPECT_EQ(read.GetCapacity(), 4);
        EXPECT_TRUE(read.Add(0.0f, 1.0f));
    }
}

TEST(CSweptValues, MovedInTimeIsTheSameFunctionAndGoesOnThere)
{
    CSweptValues history = MakeHistory(4, {{512.0f, 0.0f}, {513.0f, 10.0f}, {514.0f, 30.0f}});
    history.MoveTimes(-514.5f);
    EXPECT_EQ(history(0.0f), 30.0f);
    EXPECT_EQ(history(-0.5f), 20.0f);
    EXPECT_EQ(history(-1.5f), 5.0f);
    EXPECT_EQ(history.GetPointsPerSecond(), 1.0f);
    EXPECT_FALSE(history.Add(-0.5f, 1.0f));
    EXPECT_TRUE(history.Add(0.0f, 40.0f));
    EXPECT_EQ(history(-0.25f), 35.0f);
}

TEST(CSweptValues, OddDensitiesAndTimesStayInsideTheRing)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    const CSweptValues whole = MakeHistory(4, {{0.0f, 0.0f}, {1.0f, 10.0f}, {2.0f, 20.0f}, {3.0f, 30.0f}});
    for (const float density : {-1e9f, 0.0f, 1e30f, nan, infinity, -infinity})
    {
        CMemDataObject saved;
        ASSERT_TRUE(whole.Serialize(saved));
        saved.Write("pointsPerSecond", density);
        CSweptValues read;
        ASSERT_TRUE(read.Deserialize(saved));
        EXPECT_EQ(read(-0.5f), 25.0f) << density;
        EXPECT_EQ(read(-2.5f), 5.0f) << density;
    }
    const CSweptValues odd = MakeHistory(4, {{-infinity, 1.0f}, {0.0f, 2.0f}, {infinity, 3.0f}});
    EXPECT_EQ(odd(0.0f), 3.0f);
    odd(-1.0f); // some value, from inside the ring
}

RC_GTEST_PROP(CSweptValues, EqualsInterpolationOverAllItsSamples, ())
{
    const int capacity = *rc::gen::inRange(1, 40);
    const int count = *rc::gen::inRange(0, 120);
    // Irregular steps: dense runs and long gaps make the guess from the mean density a bad one.
    std::vector<CSample> samples;
    float time = static_cast<float>(*rc::gen::inRange(-1000, 1000));
    for (int i = 0; i < count; ++i)
    {
        const bool gap = *rc::gen::inRange(0, 8) == 0;
        time += static_cast<float>(*rc::gen::inRange(1, gap ? 4000 : 20)) / 64.0f;
        samples.push_back({time, static_cast<float>(*rc::gen::inRange(-1000, 1000)) / 8.0f});
    }
    const CSweptValues history = MakeHistory(capacity, samples);
    const auto room = static_cast<std::size_t>(history.GetCapacity());
    if (samples.size() > room)
    {
        samples.erase(samples.begin(), samples.end() - static_cast<std::ptrdiff_t>(room));
    }
    const float span = samples.size() < 2 ? 1.0f : samples.back().time - samples.front().time;
    for (int i = 0; i < 50; ++i)
    {
        const float offset = -span * 1.2f * static_cast<float>(i) / 50.0f;
        const float wanted = BruteForce(samples, offset, -100.0f);
        RC_ASSERT(std::abs(history(offset) - wanted) <= 1e-3f);
    }
    for (const CSample& sample : samples)
    {
        const float offset = sample.time - samples.back().time;
        const float wanted = BruteForce(samples, offset, -100.0f);
        RC_ASSERT(std::abs(history(offset) - wanted) <= 1e-3f);
    }
}

} // namespace Mirel::Math
