#include "Mirel/Audio/DSP/COutputDataSync.h"

#include "Common/Mirel/Audio/DSP/RecordingEffect.h"
#include "Mirel/Audio/DSP/COutputDataSyncMux.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Mirel::Audio::DSP;
using Tests::CRecordingEffect;

TEST(COutputDataSync, DueOnceAPeriodOfSamplesWentBy)
{
    COutputDataSync sync;
    sync.SetRefreshRate(50.0);
    sync.SetSampleRate(44100.0);
    sync.Reset();

    sync.AddSamples(881);
    EXPECT_FALSE(sync.IsOutputDue());
    sync.AddSamples(1);
    EXPECT_TRUE(sync.IsOutputDue());
    sync.Reset();
    EXPECT_FALSE(sync.IsOutputDue());
}

TEST(COutputDataSync, PeriodIsTruncated)
{
    COutputDataSync sync;
    sync.SetSampleRate(100.0);
    sync.SetRefreshRate(30.0); // 3.33 samples
    sync.Reset();
    sync.AddSamples(3);

    EXPECT_TRUE(sync.IsOutputDue());
    EXPECT_EQ(sync.GetRefreshRate(), 30.0);
}

TEST(COutputDataSync, FirstBlockAfterASampleRateIsDue)
{
    COutputDataSync sync;
    sync.SetRefreshRate(50.0);
    sync.SetSampleRate(48000.0);

    EXPECT_TRUE(sync.IsOutputDue());
}

TEST(COutputDataSync, WithoutARefreshRateOutputIsAlwaysDue)
{
    COutputDataSync sync;
    sync.AddSamples(-5);
    sync.SetSampleRate(48000.0);
    EXPECT_TRUE(sync.IsOutputDue());
    sync.Reset();
    EXPECT_TRUE(sync.IsOutputDue());
}

TEST(COutputDataSync, ANewRefreshRateKeepsTheCount)
{
    COutputDataSync sync;
    sync.SetSampleRate(1000.0);
    sync.SetRefreshRate(1.0);
    sync.Reset();
    sync.AddSamples(150);
    EXPECT_FALSE(sync.IsOutputDue());

    sync.SetRefreshRate(10.0);
    EXPECT_TRUE(sync.IsOutputDue());
}

TEST(COutputDataSync, CountStopsAtTheTop)
{
    COutputDataSync sync;
    sync.SetSampleRate(48000.0);
    sync.SetRefreshRate(50.0);
    for (int i = 0; i < 3; ++i)
    {
        sync.AddSamples(std::numeric_limits<int>::max());
        EXPECT_TRUE(sync.IsOutputDue());
    }
}

TEST(COutputDataSyncMux, DueIfEitherIsAndResetReachesBoth)
{
    CRecordingEffect first;
    CRecordingEffect second;
    first.hasClock = second.hasClock = true;
    COutputDataSyncMux mux(first, second);
    for (CRecordingEffect* effect : {&first, &second})
    {
        static_cast<COutputDataSync*>(effect->GetOutputDataSync())->SetSampleRate(1000.0);
    }
    mux.SetRefreshRate(10.0);
    mux.Reset();
    EXPECT_FALSE(mux.IsOutputDue());

    static_cast<COutputDataSync*>(second.GetOutputDataSync())->AddSamples(100);
    EXPECT_TRUE(mux.IsOutputDue());
    mux.Reset();
    EXPECT_FALSE(second.GetOutputDataSync()->IsOutputDue());
}

TEST(COutputDataSyncMux, RateIsTheLargerOfTheTwo)
{
    CRecordingEffect first;
    CRecordingEffect second;
    first.hasClock = second.hasClock = true;
    first.GetOutputDataSync()->SetRefreshRate(20.0);
    second.GetOutputDataSync()->SetRefreshRate(30.0);

    EXPECT_EQ(COutputDataSyncMux(first, second).GetRefreshRate(), 30.0);
}

TEST(COutputDataSyncMux, AFilterWithoutAClockIsPassedOver)
{
    CRecordingEffect without;
    CRecordingEffect with;
    with.hasClock = true;
    COutputDataSyncMux mux(without, with);
    static_cast<COutputDataSync*>(with.GetOutputDataSync())->SetSampleRate(1000.0);
    mux.SetRefreshRate(10.0);
    static_cast<COutputDataSync*>(with.GetOutputDataSync())->AddSamples(100);
    EXPECT_TRUE(mux.IsOutputDue());
    mux.Reset();
    EXPECT_FALSE(mux.IsOutputDue());
    EXPECT_TRUE(mux.HasClock());

    COutputDataSyncMux none(without, without);
    none.Reset();
    EXPECT_FALSE(none.IsOutputDue());
    EXPECT_EQ(none.GetRefreshRate(), 0.0);
    EXPECT_FALSE(none.HasClock());
}
