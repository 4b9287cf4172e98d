#include "Mirel/Math/CSweptCurvesFunction.h"

#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CFunctionsCombination.h"
#include "Mirel/Math/CSweptValues.h"
#include "Mirel/Math/TBinaryFunction.h"
#include "Mirel/Math/TFunction.h"
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

/// slope * x: a curve that tells one from another.
CFunctionsCombination Line(float slope)
{
    return {{new CConstantFunction(slope), true},
            {&SharedFunction<&FunctionsLibrary::Identity>(), false},
            {&SharedBinaryFunction<&FunctionsLibrary::Product>(), false}};
}

struct CSample
{
    float time;
    float slope;
};

/// A history of lines; where it has nothing, the curve 1000 x.
CSweptCurvesFunction MakeHistory(int capacity, const std::vector<CSample>& samples)
{
    CSweptCurvesFunction history;
    history.SetCapacity(capacity);
    history.SetDefaultFunction(new CFunctionsCombination(Line(1000.0f)), true);
    for (const CSample& sample : samples)
    {
        history.Add(sample.time, Line(sample.slope));
    }
    return history;
}

} // namespace

TEST(CSweptCurvesFunction, EmptyIsTheDefaultFunctionEverywhere)
{
    const CSweptCurvesFunction history = MakeHistory(4, {});
    EXPECT_EQ(history(-1.0f, 2.0f), 2000.0f);
    EXPECT_EQ(history(0.0f, 3.0f), 3000.0f);
}

TEST(CSweptCurvesFunction, WithoutADefaultFunctionItIsZeroThere)
{
    const CSweptCurvesFunction history;
    EXPECT_EQ(history(0.0f, 5.0f), 0.0f);
    EXPECT_EQ(history.GetDefaultFunction(), nullptr);
}

TEST(CSweptCurvesFunction, RunsStraightBetweenTwoCurves)
{
    const CSweptCurvesFunction history = MakeHistory(4, {{0.0f, 0.0f}, {1.0f, 10.0f}});
    EXPECT_EQ(history(-0.5f, 1.0f), 5.0f);
    EXPECT_EQ(history(-0.5f, -2.0f), -10.0f);
    EXPECT_EQ(history(-0.75f, 4.0f), 10.0f);
}

TEST(CSweptCurvesFunction, IsTheNewestCurveFromZeroOn)
{
    const CSweptCurvesFunction history = MakeHistory(4, {{0.0f, 1.0f}, {1.0f, 3.0f}});
    EXPECT_EQ(history(0.0f, 0.1f), 3.0f * 0.1f);
    EXPECT_EQ(history(2.0f, 2.0f), 6.0f);
}

TEST(CSweptCurvesFunction, OneCurveSaysNothingAboutThePast)
{
    const CSweptCurvesFunction history = MakeHistory(4, {{3.0f, 5.0f}});
    EXPECT_EQ(history(-0.001f, 1.0f), 1000.0f);
    EXPECT_EQ(history(0.0f, 1.0f), 5.0f);
}

TEST(CSweptCurvesFunction, BeyondTheOldestCurveIsTheDefaultFunction)
{
    const CSweptCurvesFunction history = MakeHistory(4, {{0.0f, 1.0f}, {1.0f, 2.0f}});
    EXPECT_EQ(history(-1.5f, 1.0f), 1000.0f);
    EXPECT_EQ(history(-1.0f, 1.0f), 1000.0f);
    EXPECT_EQ(history(std::numeric_limits<float>::quiet_NaN(), 1.0f), 1000.0f);
}

TEST(CSweptCurvesFunction, WhatDoesNotMoveForwardInTimeIsDroppedUncloned)
{
    CSweptCurvesFunction history = MakeHistory(4, {{1.0f, 5.0f}});
    const CFunctionsCombination line = Line(7.0f);
    const Tests::CAllocationCounter counter;
    EXPECT_FALSE(history.Add(1.0f, line));
    EXPECT_FALSE(history.Add(0.0f, line));
    EXPECT_EQ(counter.GetCount(), 0U);
    EXPECT_EQ(history(0.0f, 1.0f), 5.0f);
}

TEST(CSweptCurvesFunction, AFullRingKeepsItsCapacityAndLosesTheOldest)
{
    CSweptCurvesFunction history = MakeHistory(4, {});
    for (int i = 0; i < 11; ++i)
    {
        EXPECT_TRUE(history.Add(static_cast<float>(i), Line(static_cast<float>(i))));
    }
    EXPECT_EQ(history.GetPointsCount(), 4);
    EXPECT_EQ(history(-2.5f, 2.0f), 15.0f);
    EXPECT_EQ(history(-3.5f, 2.0f), 2000.0f);
}

TEST(CSweptCurvesFunction, MovedInTimeIsTheSameFunction)
{
    CSweptCurvesFunction history = MakeHistory(4, {{512.0f, 0.0f}, {513.0f, 10.0f}, {514.0f, 30.0f}});
    const float before = history(-1.5f, 2.0f);
    history.MoveTimes(-514.5f);
    EXPECT_EQ(history(-1.5f, 2.0f), before);
    EXPECT_TRUE(history.Add(0.0f, CConstantFunction(1.0f)));
    EXPECT_FALSE(history.Add(-0.25f, CConstantFunction(1.0f)));
}

TEST(CSweptCurvesFunction, AnotherCapacityKeepsTheNewestCurvesThatFit)
{
    CSweptCurvesFunction history = MakeHistory(8, {});
    for (int i = 0; i < 11; ++i)
    {
        history.Add(static_cast<float>(i), Line(static_cast<float>(i)));
    }
    history.SetCapacity(3);
    EXPECT_EQ(history.GetCapacity(), 4);
    EXPECT_EQ(history(-2.5f, 1.0f), 7.5f);
    EXPECT_EQ(history(-3.5f, 1.0f), 1000.0f);
}

TEST(CSweptCurvesFunction, HoldsTheCurveAsItWasAtTheTime)
{
    CSweptCurvesFunction history = MakeHistory(4, {});
    CConstantFunction curve(1.0f);
    history.Add(0.0f, curve);
    curve.SetValue(2.0f);
    EXPECT_EQ(history(0.0f, 0.0f), 1.0f);
}

TEST(CSweptCurvesFunction, ClearForgetsCurvesOnly)
{
    CSweptCurvesFunction history = MakeHistory(8, {{0.0f, 1.0f}, {1.0f, 2.0f}});
    history.SetDuration(4.0f);
    EXPECT_EQ(history.GetPointsPerSecond(), 1.0f);
    history.Clear();
    EXPECT_EQ(history.GetPointsCount(), 0);
    EXPECT_EQ(history(0.0f, 1.0f), 1000.0f);
    EXPECT_EQ(history.GetDuration(), 4.0f);
    EXPECT_EQ(history.GetCapacity(), 8);
}

TEST(CSweptCurvesFunction, ClonesAreIndependent)
{
    CSweptCurvesFunction history = MakeHistory(4, {{0.0f, 0.0f}, {1.0f, 10.0f}});
    const std::unique_ptr<IBinaryFunction> clone(history.Clone());
    history.Clear();
    history.SetDefaultFunction(nullptr, false);
    EXPECT_EQ((*clone)(-0.5f, 1.0f), 5.0f);
    EXPECT_EQ((*clone)(-5.0f, 1.0f), 1000.0f);
}

TEST(CSweptCurvesFunction, EvaluationAllocatesNothing)
{
    const CSweptCurvesFunction history = MakeHistory(8, {{0.0f, 0.0f}, {1.0f, 10.0f}, {2.0f, 5.0f}});
    const std::vector<float> steps = Steps(-3.0f, 1.0f, 0.01f);
    const Tests::CAllocationCounter counter;
    float sum = 0.0f;
    for (const float offset : steps)
    {
        sum += history(offset, 0.5f);
    }
    EXPECT_EQ(counter.GetCount(), 0U);
    EXPECT_NE(sum, 0.0f);
}

TEST(CSweptCurvesFunction, ComesBackFromEveryForm)
{
    CSweptCurvesFunction history = MakeHistory(4, {});
    history.SetDuration(1.5f);
    for (int i = 0; i < 7; ++i)
    {
        history.Add(static_cast<float>(i) * 0.3f, Line(std::sqrt(static_cast<float>(i))));
    }
    EXPECT_STREQ(history.GetTypeKey(), "{D4E5AB2C-72BD-446e-BC18-BA7745DCA94A}");
    ThroughEveryForm<IBinaryFunction>(history,
                                      [&history](std::unique_ptr<IBinaryFunction> function)
                                      {
                                          auto* read = dynamic_cast<CSweptCurvesFunction*>(function.get());
                                          ASSERT_NE(read, nullptr);
                                          for (const float offset : Steps(-2.0f, 0.5f, 0.07f))
                                          {
                                              EXPECT_EQ((*read)(offset, 2.0f), history(offset, 2.0f))
                                                  << offset;
                                          }
                                          EXPECT_EQ(read->GetCapacity(), 4);
                                          EXPECT_EQ(read->GetDuration(), 1.5f);
                                      });
    ThroughEveryForm<IBinaryFunction>(CSweptCurvesFunction(),
                                      [](std::unique_ptr<IBinaryFunction> read)
                                      {
                                          ASSERT_NE(read, nullptr);
                                          EXPECT_EQ((*read)(0.0f, 1.0f), 0.0f);
                                      });
}

TEST(CSweptCurvesFunction, HistoriesOfCurvesThatAreHistoriesComeBack)
{
    CSweptValues inner;
    inner.SetCapacity(4);
    inner.Add(0.0f, 1.0f);
    inner.Add(1.0f, 3.0f);
    CSweptCurvesFunction history = MakeHistory(2, {{0.0f, 1.0f}});
    history.Add(1.0f, inner);
    ThroughEveryForm<IBinaryFunction>(history,
                                      [](std::unique_ptr<IBinaryFunction> read)
                                      {
                                          ASSERT_NE(read, nullptr);
                                          EXPECT_EQ((*read)(0.0f, -0.5f), 2.0f);
                                      });
}

TEST(CSweptCurvesFunction, ACurveThatCannotBeReadGivesWayToTheDefaultFunction)
{
    class CNameless : public CConstantFunction
    {
    public:
        using CConstantFunction::CConstantFunction;
        const char* GetTypeKey() const override { return nullptr; }
        CNameless* Clone() const override { return new CNameless(*this); }
    };
    CSweptCurvesFunction history = MakeHistory(2, {{0.0f, 1.0f}});
    history.Add(1.0f, CNameless(3.0f));
    const auto read = ThroughMemory<IBinaryFunction>(history);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ((*read)(0.0f, 1.0f), 1000.0f);
    EXPECT_EQ((*read)(-0.5f, 1.0f), 500.5f); // half way from 1 to 1000
}

TEST(CSweptCurvesFunction, DamagedRingsAreRefused)
{
    CMemDataObject saved;
    ASSERT_TRUE(MakeHistory(4, {{0.0f, 0.0f}, {1.0f, 10.0f}}).Serialize(saved));
    saved.Write("mask", 1023);
    CSweptCurvesFunction read;
    EXPECT_FALSE(read.Deserialize(saved));
    EXPECT_EQ(read.GetPointsCount(), 0);
    EXPECT_EQ(read(0.0f, 1.0f), 1000.0f); // the default function is none of the ring's
}

RC_GTEST_PROP(CSweptCurvesFunction, EqualsTheHistoryOfEachOfItsPoints, ())
{
    const int capacity = *rc::gen::inRange(1, 20);
    const int count = *rc::gen::inRange(0, 50);
    std::vector<CSample> samples;
    float time = 0.0f;
    for (int i = 0; i < count; ++i)
    {
        time += static_cast<float>(*rc::gen::inRange(1, 200)) / 64.0f;
        samples.push_back({time, static_cast<float>(*rc::gen::inRange(-100, 100))});
    }
    const CSweptCurvesFunction history = MakeHistory(capacity, samples);
    const int kept = std::min(count, history.GetCapacity());
    const std::size_t first = samples.size() - static_cast<std::size_t>(kept);
    for (const float offset : Steps(-20.0f, -0.1f, 0.3f))
    {
        for (const float x : {-1.0f, 0.5f, 2.0f})
        {
            double wanted = 1000.0 * static_cast<double>(x);
            for (std::size_t i = first; i + 1 < samples.size(); ++i)
            {
                const float at = offset + samples.back().time;
                if (at > samples[i].time && at <= samples[i + 1].time)
                {
                    const double share = static_cast<double>(at - samples[i].time) /
                                         static_cast<double>(samples[i + 1].time - samples[i].time);
                    wanted = static_cast<double>(x) * (static_cast<double>(samples[i].slope) * (1.0 - share) +
                                                       static_cast<double>(samples[i + 1].slope) * share);
                }
            }
            RC_ASSERT(std::abs(static_cast<double>(history(offset, x)) - wanted) <= 1e-3);
        }
    }
}

} // namespace Mirel::Math
