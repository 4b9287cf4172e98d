#include "Mirel/DataModel/Objects/CCaptureSurface.h"

#include "Common/Mirel/DataModel/Objects/CountedFunction.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>

using namespace Mirel::DataModel::Objects;
using Mirel::Math::CConstantBinaryFunction;
using Tests::CCountedBinaryFunction;
using Tests::CEventCounter;
using Tests::CFunctionCommand;

namespace
{

CSurfaceInfo Sample()
{
    return {CParamInfo(2, -2.0F, 0.0F, 0.0F, "x", "s", ""), CParamInfo(2, 0.0F, 1.0F, 0.0F, "y", "Hz", ""),
            CParamInfo(2, -1.0F, 1.0F, 0.5F, "z", "V", ""), "Surface", "A surface"};
}

} // namespace

TEST(CCaptureSurface, TakesACopyOfTheDescription)
{
    CSurfaceInfo info = Sample();
    const CCaptureSurface surface(info);
    info.SetName("other");

    const IConstCaptureSurface& readable = surface;
    EXPECT_STREQ(readable.GetInfo().GetName(), "Surface");
    EXPECT_STREQ(readable.GetInfo().GetXInfo().GetName(), "x");
    EXPECT_STREQ(readable.GetInfo().GetYInfo().GetUnit(), "Hz");
    EXPECT_STREQ(readable.GetInfo().GetZInfo().GetUnit(), "V");
}

TEST(CCaptureSurface, BeginsWithTheDefaultFunctionOfTheDescription)
{
    CCaptureSurface surface(Sample());
    EXPECT_EQ(surface.GetValue()(0.25F, 1.0F), 0.5F);
    surface.GetInfo().GetZInfo().SetDefault(-1.0F);
    EXPECT_EQ(surface.GetValue()(0.25F, 1.0F), -1.0F);
    EXPECT_EQ(CCaptureSurface().GetValue()(3.0F, 1.0F), 0.0F);
    EXPECT_FALSE(surface.IsCaptured());
}

TEST(CCaptureSurface, HoldsACloneAndDestroysItInTheEnd)
{
    int alive = 0;
    {
        CCaptureSurface surface;
        {
            const CCountedBinaryFunction function(alive, 2.0F);
            surface.SetValue(function);
            EXPECT_EQ(alive, 2);
            EXPECT_NE(&surface.GetValue(), &function);
        }
        EXPECT_EQ(alive, 1);
        EXPECT_EQ(surface.GetValue()(7.0F, 1.0F), 2.0F);

        surface.SetValue(CConstantBinaryFunction(3.0F));
        EXPECT_EQ(alive, 0);
        EXPECT_EQ(surface.GetValue()(7.0F, 1.0F), 3.0F);
        surface.SetValue(CCountedBinaryFunction(alive, 4.0F));
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST(CCaptureSurface, SetOfTheSameFunctionFiresAllTheSame)
{
    const CConstantBinaryFunction function(2.0F);
    CCaptureSurface surface;
    CEventCounter changes(surface.GetValueChangedEventProvider());
    surface.SetValue(function);
    EXPECT_EQ(changes.Take(), 1);
    surface.SetValue(function);
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CCaptureSurface, CanBeSetToItsOwnFunction)
{
    CCaptureSurface surface(Sample());
    surface.SetValue(surface.GetValue());
    surface.GetInfo().GetZInfo().SetDefault(-1.0F);
    EXPECT_EQ(surface.GetValue()(0.0F, 1.0F), 0.5F);
    surface.SetValue(surface.GetValue());
    EXPECT_EQ(surface.GetValue()(0.0F, 1.0F), 0.5F);
}

TEST(CCaptureSurface, ListenerReadsTheNewFunctionAndMaySetAnother)
{
    CCaptureSurface surface;
    float seen = 0.0F;
    CFunctionCommand listener(
        [&]
        {
            seen = surface.GetValue()(0.0F, 1.0F);
            surface.SetValue(CConstantBinaryFunction(5.0F));
        });
    surface.GetValueChangedEventProvider().Connect(listener);

    surface.SetValue(CConstantBinaryFunction(2.0F));

    EXPECT_EQ(seen, 2.0F);
    EXPECT_EQ(surface.GetValue()(0.0F, 1.0F), 5.0F);
}

TEST(CCaptureSurface, CapturesBeginAndEndOnce)
{
    CCaptureSurface surface;
    ICaptureSurface& writable = surface;
    CEventCounter begins(writable.GetBeginCaptureEventProvider());
    CEventCounter ends(writable.GetEndCaptureEventProvider());
    CEventCounter changes(writable.GetValueChangedEventProvider());

    writable.EndCapture();
    EXPECT_EQ(ends.Take(), 0);
    writable.BeginCapture();
    writable.BeginCapture();
    EXPECT_TRUE(writable.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
    writable.EndCapture();
    EXPECT_FALSE(writable.IsCaptured());
    EXPECT_EQ(ends.Take(), 1);
    EXPECT_EQ(changes.Take(), 0);
}
