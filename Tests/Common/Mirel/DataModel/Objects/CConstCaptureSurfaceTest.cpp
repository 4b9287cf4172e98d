#include "Mirel/DataModel/Objects/CConstCaptureSurface.h"

#include "Common/Mirel/DataModel/Objects/CountedFunction.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <type_traits>

using namespace Mirel::DataModel::Objects;
using Mirel::Math::CConstantBinaryFunction;
using Tests::CCountedBinaryFunction;
using Tests::CEventCounter;

namespace
{

CSurfaceInfo Sample()
{
    return {CParamInfo(2, -2.0F, 0.0F, 0.0F, "x", "s", ""), CParamInfo(2, 0.0F, 1.0F, 0.0F, "y", "Hz", ""),
            CParamInfo(2, -1.0F, 1.0F, 0.5F, "z", "V", ""), "Surface", "A surface"};
}

} // namespace

TEST(CConstCaptureSurface, ShowsItselfForReadingAlone)
{
    CConstCaptureSurface surface(Sample());
    const IConstCaptureSurface& readable = surface;
    EXPECT_STREQ(readable.GetInfo().GetName(), "Surface");
    EXPECT_EQ(readable.GetValue()(0.25F, 1.0F), 0.5F);
    static_assert(!std::is_base_of_v<ICaptureSurface, CConstCaptureSurface>);
}

TEST(CConstCaptureSurface, HoldsTheVeryFunctionAndDestroysItOnlyIfOwned)
{
    int alive = 0;
    const CCountedBinaryFunction borrowed(alive, 1.0F);
    {
        CConstCaptureSurface surface;
        auto* owned = new CCountedBinaryFunction(alive, 2.0F);
        surface.SetFunction(owned, true);
        EXPECT_EQ(alive, 2);
        EXPECT_EQ(&surface.GetValue(), owned);
        surface.SetFunction(&borrowed, false);
        EXPECT_EQ(alive, 1);
        EXPECT_EQ(&surface.GetValue(), &borrowed);
    }
    EXPECT_EQ(alive, 1);
}

TEST(CConstCaptureSurface, EveryFunctionFiresAndNullBringsTheDefaultBack)
{
    const CConstantBinaryFunction function(2.0F);
    CConstCaptureSurface surface(Sample());
    CEventCounter changes(surface.GetValueChangedEventProvider());
    surface.SetFunction(&function, false);
    surface.SetFunction(&function, false);
    EXPECT_EQ(changes.Take(), 2);
    surface.SetFunction(nullptr, false);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(surface.GetValue()(0.0F, 1.0F), 0.5F);
}

TEST(CConstCaptureSurface, OwnerTellsThatTheFunctionEvaluatesDifferently)
{
    CConstantBinaryFunction function(2.0F);
    CConstCaptureSurface surface;
    surface.SetFunction(&function, false);
    CEventCounter changes(surface.GetValueChangedEventProvider());
    function.SetValue(3.0F);
    surface.NotifyChanged();
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(surface.GetValue()(0.0F, 1.0F), 3.0F);
}

TEST(CConstCaptureSurface, OwnerMayHoldItInCapture)
{
    CConstCaptureSurface surface;
    const IConstCaptureSurface& readable = surface;
    CEventCounter begins(readable.GetBeginCaptureEventProvider());
    CEventCounter ends(readable.GetEndCaptureEventProvider());
    surface.BeginCapture();
    EXPECT_TRUE(readable.IsCaptured());
    surface.EndCapture();
    EXPECT_FALSE(readable.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
    EXPECT_EQ(ends.Take(), 1);
}
