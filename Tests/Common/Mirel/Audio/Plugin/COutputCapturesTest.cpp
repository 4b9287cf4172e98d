#include "Mirel/Audio/Plugin/COutputCaptures.h"

#include "Common/Mirel/Audio/Plugin/PublishingEffect.h"
#include "Mirel/Core/CAutoLock.h"
#include "Support/AllocationCounter.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace Mirel;
using Audio::Plugin::COutputCaptures;
using Tests::CEventCounter;
using Tests::CPublishingEffect;

namespace
{

float CurveValue(const COutputCaptures& captures)
{
    float value = -1.0f;
    captures.GetCurves()[0].Read([&value](const Math::IFunction& curve) { value = curve(0.0f); });
    return value;
}

float SurfaceValue(const COutputCaptures& captures)
{
    float value = -1.0f;
    captures.GetSurfaces()[0].Read([&value](const Math::IBinaryFunction& surface)
                                   { value = surface(0.0f, 0.0f); });
    return value;
}

/// Publishes while another thread holds the lock.
bool PublishAgainstAReader(COutputCaptures& captures, CPublishingEffect& effect)
{
    const Core::CAutoLock reader(captures.GetLock());
    bool published = true;
    std::thread audio([&] { published = captures.Publish(effect); });
    audio.join();
    return published;
}

} // namespace

TEST(COutputCaptures, OneForEachOutputOfTheFilter)
{
    const CPublishingEffect effect;
    const COutputCaptures captures(effect);
    EXPECT_EQ(captures.GetParams().GetCount(), 1);
    EXPECT_EQ(captures.GetStrings().GetCount(), 1);
    EXPECT_EQ(captures.GetCurves().GetCount(), 1);
    EXPECT_EQ(captures.GetSurfaces().GetCount(), 1);
    EXPECT_EQ(captures.GetParams()[0].GetValue(), 0.0f);
    EXPECT_EQ(captures.GetStrings()[0].GetText(), "none yet");
}

TEST(COutputCaptures, PublishesWhatIsDirtyAndCleansTheMarks)
{
    CPublishingEffect effect;
    COutputCaptures captures(effect);
    effect.SetLevel(0.5f);
    effect.GetString().Set("C#4");
    effect.ChangeCurve(2.0f);
    effect.ChangeSurface(3.0f);
    EXPECT_TRUE(captures.Publish(effect));

    EXPECT_EQ(captures.GetParams()[0].GetValue(), 0.5f);
    EXPECT_EQ(captures.GetStrings()[0].GetText(), "C#4");
    EXPECT_EQ(CurveValue(captures), 2.0f);
    EXPECT_EQ(SurfaceValue(captures), 3.0f);
    EXPECT_FALSE(effect.GetString().GetDirty().IsDirty());
    EXPECT_FALSE(effect.GetOutputCurvesDirty()[0].IsDirty());
    EXPECT_FALSE(effect.GetOutputSurfacesDirty()[0].IsDirty());
}

TEST(COutputCaptures, WhatIsCleanKeepsItsLastPicture)
{
    CPublishingEffect effect;
    COutputCaptures captures(effect);
    effect.GetString().Set("C#4");
    effect.ChangeCurve(2.0f);
    effect.ChangeSurface(3.0f);
    EXPECT_TRUE(captures.Publish(effect));
    captures.DeliverChanges();

    effect.ChangeCurve(4.0f);
    effect.GetOutputCurvesDirty()[0].SetDirty(false);
    effect.ChangeSurface(5.0f);
    effect.GetOutputSurfacesDirty()[0].SetDirty(false);
    effect.GetString().Set("D4");
    effect.GetString().GetDirty().SetDirty(false);
    EXPECT_TRUE(captures.Publish(effect));
    EXPECT_EQ(CurveValue(captures), 2.0f);
    EXPECT_EQ(SurfaceValue(captures), 3.0f);
    EXPECT_EQ(captures.GetStrings()[0].GetText(), "C#4");
    EXPECT_FALSE(captures.GetCurves()[0].IsChanged());
    EXPECT_FALSE(captures.GetSurfaces()[0].IsChanged());
    EXPECT_FALSE(captures.GetStrings()[0].IsChanged());
}

TEST(COutputCaptures, WhileAReaderHoldsTheLockNothingIsPublishedAndNothingIsLost)
{
    CPublishingEffect effect;
    COutputCaptures captures(effect);
    effect.ChangeCurve(1.0f);
    EXPECT_TRUE(captures.Publish(effect));
    captures.DeliverChanges();

    effect.SetLevel(0.5f);
    effect.GetString().Set("C#4");
    effect.ChangeCurve(2.0f);
    EXPECT_FALSE(PublishAgainstAReader(captures, effect));
    EXPECT_EQ(captures.GetParams()[0].GetValue(), 0.0f);
    EXPECT_EQ(captures.GetStrings()[0].GetText(), "none yet");
    EXPECT_EQ(CurveValue(captures), 1.0f);
    EXPECT_TRUE(effect.GetOutputCurvesDirty()[0].IsDirty());
    EXPECT_FALSE(captures.GetCurves()[0].IsChanged());

    effect.ChangeCurve(3.0f);
    EXPECT_TRUE(captures.Publish(effect));
    EXPECT_EQ(captures.GetParams()[0].GetValue(), 0.5f);
    EXPECT_EQ(captures.GetStrings()[0].GetText(), "C#4");
    EXPECT_EQ(CurveValue(captures), 3.0f);
    EXPECT_TRUE(captures.GetCurves()[0].IsChanged());
}

TEST(COutputCaptures, OnlyChangesOfAParameterAreMarked)
{
    CPublishingEffect effect;
    COutputCaptures captures(effect);
    const auto isChanged = [&](float level)
    {
        effect.SetLevel(level);
        EXPECT_TRUE(captures.Publish(effect));
        const bool changed = captures.GetParams()[0].IsChanged();
        captures.DeliverChanges();
        return changed;
    };
    EXPECT_TRUE(isChanged(0.5f));
    EXPECT_FALSE(isChanged(0.5f));
    EXPECT_FALSE(isChanged(std::numeric_limits<float>::quiet_NaN()));
    EXPECT_EQ(captures.GetParams()[0].GetValue(), 0.5f);
    EXPECT_TRUE(isChanged(0.25f));
}

TEST(COutputCaptures, DeliveryFiresForWhatWasPublishedOnTheDeliverersThread)
{
    CPublishingEffect effect;
    COutputCaptures captures(effect);
    CEventCounter curve(captures.GetCurves()[0].GetChangedEventProvider());
    CEventCounter surface(captures.GetSurfaces()[0].GetChangedEventProvider());
    CEventCounter text(captures.GetStrings()[0].GetChangedEventProvider());
    CEventCounter level(captures.GetParams()[0].GetChangedEventProvider());
    std::thread::id listener;
    Tests::CFunctionCommand note([&] { listener = std::this_thread::get_id(); });
    captures.GetCurves()[0].GetChangedEventProvider().Connect(note);

    effect.ChangeCurve(2.0f);
    effect.SetLevel(0.5f);
    std::thread audio([&] { EXPECT_TRUE(captures.Publish(effect)); });
    audio.join();
    EXPECT_EQ(listener, std::thread::id());
    captures.DeliverChanges();
    EXPECT_EQ(listener, std::this_thread::get_id());
    EXPECT_EQ(curve.Take(), 1);
    EXPECT_EQ(level.Take(), 1);
    EXPECT_EQ(surface.Take(), 0);
    EXPECT_EQ(text.Take(), 0);

    effect.ChangeSurface(2.0f);
    effect.GetString().Set("C#4");
    EXPECT_TRUE(captures.Publish(effect));
    captures.DeliverChanges();
    captures.DeliverChanges();
    EXPECT_EQ(curve.Take(), 0);
    EXPECT_EQ(surface.Take(), 1);
    EXPECT_EQ(text.Take(), 1);
    EXPECT_EQ(level.Take(), 0);
}

TEST(COutputCaptures, APublicationDuringADeliveryIsDeliveredNext)
{
    CPublishingEffect effect;
    COutputCaptures captures(effect);
    int deliveries = 0;
    Tests::CFunctionCommand publishAgain(
        [&]
        {
            if (++deliveries == 1)
            {
                effect.ChangeCurve(3.0f);
                EXPECT_TRUE(captures.Publish(effect));
            }
        });
    captures.GetCurves()[0].GetChangedEventProvider().Connect(publishAgain);
    effect.ChangeCurve(2.0f);
    EXPECT_TRUE(captures.Publish(effect));
    captures.DeliverChanges();
    EXPECT_EQ(deliveries, 1);
    captures.DeliverChanges();
    EXPECT_EQ(deliveries, 2);
}

TEST(COutputCaptures, OncePreparedNothingIsAllocatedForAnyKindOfOutput)
{
    CPublishingEffect effect;
    COutputCaptures captures(effect);
    captures.Prepare(effect);
    const std::string text(100, 'x');
    effect.GetString().Set(text);
    const Tests::CAllocationCounter allocations;
    for (int i = 1; i < 4; ++i)
    {
        effect.ChangeCurve(static_cast<float>(i));
        effect.ChangeSurface(static_cast<float>(i));
        effect.GetString().GetDirty().SetDirty(true);
        effect.SetLevel(static_cast<float>(i));
        EXPECT_TRUE(captures.Publish(effect));
        EXPECT_EQ(CurveValue(captures), static_cast<float>(i));
        EXPECT_EQ(SurfaceValue(captures), static_cast<float>(i));
    }
    EXPECT_EQ(allocations.GetCount(), 0U);
}

TEST(COutputCaptures, AFilterWithoutOutputsPublishesNothing)
{
    Tests::CRecordingEffect described; // describes a parameter, but hands no value out
    COutputCaptures captures(described);
    captures.Prepare(described);
    EXPECT_TRUE(captures.Publish(described));
    EXPECT_FALSE(captures.GetParams()[0].IsChanged());
    EXPECT_FALSE(captures.GetCurves()[0].IsChanged());
    captures.DeliverChanges();
}
