#include "Mirel/DataModel/Objects/CCaptureSurfaceValueParam.h"

#include "Mirel/DataModel/Objects/CCaptureSurface.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/FunctionsLibrary.h"
#include "Mirel/Math/TBinaryFunction.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

using namespace Mirel::DataModel::Objects;
using Mirel::Math::CConstantBinaryFunction;
using Tests::CEventCounter;

namespace
{

using CDifference = Mirel::Math::TBinaryFunction<Mirel::Math::FunctionsLibrary::Difference>;

class CCaptureSurfaceValueParamTest : public testing::Test
{
protected:
    CCaptureSurfaceValueParamTest()
    {
        surface.SetValue(CDifference());
        x.SetValue(8.0F);
        y.SetValue(3.0F);
        value.SetSurface(&surface);
        value.SetX(&x);
        value.SetY(&y);
    }

    CCaptureSurface surface{CSurfaceInfo(CParamInfo(2, 0.0F, 10.0F, 0.0F, "x", "s", ""),
                                         CParamInfo(2, 0.0F, 10.0F, 0.0F, "y", "Hz", ""),
                                         CParamInfo(2, -6.0F, 6.0F, 0.0F, "z", "V", ""), "Surface", "")};
    CCaptureParam x{CParamInfo(2, 0.0F, 10.0F, 0.0F, "X", "s", "")};
    CCaptureParam y{CParamInfo(2, 0.0F, 10.0F, 0.0F, "Y", "Hz", "")};
    CCaptureSurfaceValueParam value;
};

} // namespace

TEST_F(CCaptureSurfaceValueParamTest, IsTheSurfaceWhereTheParametersStand)
{
    EXPECT_EQ(value.GetValue(), 5.0F);
    EXPECT_EQ(value.GetSurface(), &surface);
    EXPECT_EQ(value.GetX(), &x);
    EXPECT_EQ(value.GetY(), &y);
}

TEST_F(CCaptureSurfaceValueParamTest, FollowsBothParametersAndTheSurface)
{
    CEventCounter changes(value.GetValueChangedEventProvider());
    x.SetValue(4.0F);
    EXPECT_EQ(value.GetValue(), 1.0F);
    y.SetValue(2.0F);
    EXPECT_EQ(value.GetValue(), 2.0F);
    surface.SetValue(CConstantBinaryFunction(-1.0F));
    EXPECT_EQ(value.GetValue(), -1.0F);
    EXPECT_EQ(changes.Take(), 3);
}

TEST_F(CCaptureSurfaceValueParamTest, DescriptionAndClampAreThoseOfTheSurfacesValues)
{
    EXPECT_STREQ(value.GetInfo().GetName(), "z");
    y.SetValue(0.0F);
    EXPECT_EQ(value.GetValue(), 6.0F);
    surface.GetInfo().GetZInfo().SetMax(7.0F);
    EXPECT_EQ(value.GetInfo().GetMax(), 7.0F);
    EXPECT_EQ(value.GetValue(), 7.0F);
}

TEST_F(CCaptureSurfaceValueParamTest, KeepsItsValueWhileAnInputIsMissing)
{
    value.SetY(nullptr);
    x.SetValue(4.0F);
    EXPECT_EQ(value.GetValue(), 5.0F);
    value.SetY(&y);
    EXPECT_EQ(value.GetValue(), 1.0F);
}

TEST_F(CCaptureSurfaceValueParamTest, OneParameterMayStandForBothArguments)
{
    surface.SetValue(Mirel::Math::TBinaryFunction<Mirel::Math::FunctionsLibrary::Sum>());
    value.SetY(&x);
    CEventCounter sets(value.GetSetEventProvider());
    x.SetValue(1.0F);
    EXPECT_EQ(value.GetValue(), 2.0F);
    EXPECT_EQ(sets.Take(), 1);

    value.SetX(&y);
    EXPECT_EQ(value.GetValue(), 4.0F);
    x.SetValue(2.0F);
    EXPECT_EQ(value.GetValue(), 5.0F);
}

// Each stands on the two before it: without a limit the updates of the last grow as the numbers of Fibonacci.
TEST(CCaptureSurfaceValueParam, AChainThatMultipliesUpdatesComesToAnEnd)
{
    CCaptureSurface sum{
        CSurfaceInfo(CParamInfo(), CParamInfo(), CParamInfo(2, -1e9F, 1e9F, 0.0F, "", "", ""), "", "")};
    sum.SetValue(Mirel::Math::TBinaryFunction<Mirel::Math::FunctionsLibrary::Sum>());
    CCaptureParam first{CParamInfo(2, 0.0F, 10.0F, 0.0F, "", "", "")};
    std::vector<std::unique_ptr<CCaptureSurfaceValueParam>> chain;
    const IConstCaptureParam* last = &first;
    const IConstCaptureParam* beforeLast = &first;
    for (int i = 0; i < 60; ++i)
    {
        chain.push_back(std::make_unique<CCaptureSurfaceValueParam>());
        chain.back()->SetSurface(&sum);
        chain.back()->SetX(last);
        chain.back()->SetY(beforeLast);
        beforeLast = std::exchange(last, chain.back().get());
    }
    first.SetValue(1.0F);
    EXPECT_EQ(chain[2]->GetValue(), 5.0F);
    while (!chain.empty())
    {
        chain.pop_back(); // Each listens to those before it.
    }
}
