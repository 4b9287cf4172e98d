#include "Mirel/DataModel/Controls/CCurveViewer.h"

#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Support/AllocationCounter.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using Mirel::DataModel::Controls::CCurveViewer;
using Mirel::DataModel::Objects::CCaptureCurve;
using Mirel::DataModel::Objects::CCurveInfo;
using Mirel::Math::CConstantFunction;
using Mirel::Math::SharedFunction;
using Tests::CEventCounter;
using Tests::Real;

namespace Library = Mirel::Math::FunctionsLibrary;

namespace
{

/// x from 0 to 4, y from 0 to 16; the square of x.
class CSquares : public CCaptureCurve
{
public:
    CSquares() : CCaptureCurve(CCurveInfo(Real(0.0F, 4.0F), Real(0.0F, 16.0F, 4.0F), "", ""))
    {
        SetValue(SharedFunction<&Library::Square>());
    }
};

/// A curve whose function can be replaced without a word.
class CSilentCurve : public CCaptureCurve
{
public:
    CSilentCurve() : CCaptureCurve(CCurveInfo(Real(0.0F, 1.0F), Real(0.0F, 1.0F), "", "")) {}
    void NotifyChanged() const override
    {
        if (!silent)
        {
            CCaptureCurve::NotifyChanged();
        }
    }
    bool silent = false;
};

} // namespace

TEST(CCurveViewer, GivesTheYPositionOfTheCurveAtAnXPosition)
{
    const CSquares curve;
    const CCurveViewer viewer(curve);

    EXPECT_EQ(&viewer.GetCurve(), &curve);
    EXPECT_EQ(viewer.GetValue(0.0F, false), 0.0F);
    EXPECT_EQ(viewer.GetValue(0.5F, false), 0.25F);
    EXPECT_EQ(viewer.GetValue(1.0F, false), 1.0F);
}

TEST(CCurveViewer, AxesAreThoseOfTheDescription)
{
    CSquares curve;
    CCurveViewer viewer(curve);
    EXPECT_EQ(&viewer.GetXViewer().GetInfo(), &curve.GetInfo().GetXInfo());
    EXPECT_EQ(&viewer.GetYViewer().GetInfo(), &curve.GetInfo().GetYInfo());

    // The window shows x from 2 to 4, and y runs down from 16.
    viewer.GetXViewer().SetZoom(2.0F);
    viewer.GetXViewer().SetOffset(1.0F);
    viewer.GetYViewer().SetReverse(true);
    EXPECT_EQ(viewer.GetValue(0.0F, false), 0.75F);
    EXPECT_EQ(viewer.GetValue(1.0F, false), 0.0F);
}

TEST(CCurveViewer, ClampKeepsTheCurveWithinTheView)
{
    const CSquares curve;
    CCurveViewer viewer(curve);
    viewer.GetYViewer().SetZoom(4.0F);

    EXPECT_EQ(viewer.GetValue(1.0F, false), 4.0F);
    EXPECT_EQ(viewer.GetValue(1.0F, true), 1.0F);
}

TEST(CCurveViewer, ChangesOfEitherAxisFireTheLayoutEventAlone)
{
    CSquares curve;
    CCurveViewer viewer(curve);
    CEventCounter layouts(viewer.GetLayoutChangedEventProvider());
    CEventCounter changes(viewer.GetCurveChangedEventProvider());

    viewer.GetXViewer().SetReverse(true);
    EXPECT_EQ(layouts.Take(), 1);
    viewer.GetYViewer().SetZoom(2.0F);
    EXPECT_EQ(layouts.Take(), 1);
    curve.GetInfo().GetYInfo().SetMax(32.0F);
    EXPECT_EQ(layouts.Take(), 1);
    EXPECT_EQ(changes.Take(), 0);
}

TEST(CCurveViewer, OrientationFiresTheLayoutEventAndLeavesThePositions)
{
    const CSquares curve;
    CCurveViewer viewer(curve);
    CEventCounter layouts(viewer.GetLayoutChangedEventProvider());
    EXPECT_FALSE(viewer.IsVertical());

    viewer.SetVertical(true);
    viewer.SetVertical(true);

    EXPECT_TRUE(viewer.IsVertical());
    EXPECT_EQ(layouts.Take(), 1);
    EXPECT_EQ(viewer.GetValue(0.5F, false), 0.25F);
}

TEST(CCurveViewer, ChangesOfTheCurveFireTheCurveEventAlone)
{
    CSquares curve;
    const CCurveViewer viewer(curve);
    CEventCounter layouts(viewer.GetLayoutChangedEventProvider());
    CEventCounter changes(viewer.GetCurveChangedEventProvider());

    curve.SetValue(CConstantFunction(8.0F));

    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(layouts.Take(), 0);
    EXPECT_EQ(viewer.GetValue(0.1F, false), 0.5F);
}

TEST(CCurveViewer, CurveWithoutAValueShowsItsDefault)
{
    const CCaptureCurve curve(CCurveInfo(Real(0.0F, 4.0F), Real(0.0F, 16.0F, 4.0F), "", ""));
    const CCurveViewer viewer(curve);

    EXPECT_EQ(viewer.GetValue(0.7F, false), 0.25F);
}

TEST(CCurveViewer, WithoutAccessModeTheCaptureIsReadAtEachCall)
{
    CSilentCurve curve;
    curve.SetValue(CConstantFunction(0.25F));
    const CCurveViewer viewer(curve);
    EXPECT_FALSE(viewer.GetAccessMode());

    curve.silent = true;
    curve.SetValue(CConstantFunction(0.5F));

    EXPECT_EQ(viewer.GetValue(0.0F, false), 0.5F);
}

TEST(CCurveViewer, WithAccessModeTheCurveOfTheLastEventIsHeld)
{
    CSilentCurve curve;
    curve.SetValue(CConstantFunction(0.25F));
    CCurveViewer viewer(curve);
    CEventCounter changes(viewer.GetCurveChangedEventProvider());
    viewer.SetAccessMode(true);
    viewer.SetAccessMode(true);
    EXPECT_TRUE(viewer.GetAccessMode());
    EXPECT_EQ(changes.Take(), 1);

    curve.silent = true;
    curve.SetValue(CConstantFunction(0.5F));
    EXPECT_EQ(viewer.GetValue(0.0F, false), 0.25F);

    curve.silent = false;
    float seen = 0.0F;
    Tests::CFunctionCommand look([&] { seen = viewer.GetValue(0.0F, false); });
    viewer.GetCurveChangedEventProvider().Connect(look);
    curve.SetValue(CConstantFunction(0.75F));
    EXPECT_EQ(seen, 0.75F);

    curve.silent = true;
    curve.SetValue(CConstantFunction(1.0F));
    viewer.SetAccessMode(false);
    EXPECT_EQ(viewer.GetValue(0.0F, false), 1.0F);
}

TEST(CCurveViewer, ListenerOfTheCurveBeforeTheViewerMayAlreadyAskIt)
{
    CSquares curve;
    const CCurveViewer* asked = nullptr;
    float seen = 0.0F;
    Tests::CFunctionCommand ask([&] { seen = asked->GetValue(0.0F, false); });
    curve.GetValueChangedEventProvider().Connect(ask);
    const CCurveViewer viewer(curve);
    asked = &viewer;

    curve.SetValue(CConstantFunction(8.0F));

    EXPECT_EQ(seen, 0.5F);
}

TEST(CCurveViewer, ConnectionsEndWithTheViewer)
{
    CSquares curve;
    {
        const CCurveViewer viewer(curve);
    }
    curve.SetValue(CConstantFunction(8.0F)); // these would reach freed memory
    curve.GetInfo().GetXInfo().SetMax(8.0F);
    curve.GetInfo().GetYInfo().SetMax(8.0F);
    EXPECT_EQ(curve.GetValue()(0.0F), 8.0F);
}

TEST(CCurveViewer, GetValueAllocatesNothing)
{
    const CSquares curve;
    CCurveViewer viewer(curve);
    viewer.GetXViewer().SetPositionsCount(9);
    viewer.GetYViewer().SetResponseCurve(&SharedFunction<&Library::NormExp>(),
                                         &SharedFunction<&Library::NormLog>(), false);
    for (const bool mode : {false, true})
    {
        viewer.SetAccessMode(mode);
        const Tests::CAllocationCounter allocations;
        const float y = viewer.GetValue(0.5F, true);
        EXPECT_EQ(allocations.GetCount(), 0U);
        EXPECT_FLOAT_EQ(y, std::log2(1.25F));
    }
}

RC_GTEST_PROP(CCurveViewer, GetValueIsTheTwoMappingsAroundTheCurve, ())
{
    CSquares curve;
    CCurveViewer viewer(curve);
    for (auto* axis : {&viewer.GetXViewer(), &viewer.GetYViewer()})
    {
        axis->SetZoom(static_cast<float>(*rc::gen::inRange(1, 10)));
        axis->SetOffset(0.1F * static_cast<float>(*rc::gen::inRange(0, 11)));
        axis->SetReverse(*rc::gen::arbitrary<bool>());
        axis->SetPositionsCount(*rc::gen::element(-1, 5, 100));
    }
    viewer.SetAccessMode(*rc::gen::arbitrary<bool>());
    const float x = 0.001F * static_cast<float>(*rc::gen::inRange(0, 1001));
    const bool clamp = *rc::gen::arbitrary<bool>();

    const float value = viewer.GetXViewer().PositionToValue(x);
    RC_ASSERT(viewer.GetValue(x, clamp) == viewer.GetYViewer().ValueToPosition(value * value, clamp));
}
