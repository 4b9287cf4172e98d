#include "Mirel/DataModel/Objects/CCaptureCurveLink.h"

#include "Common/Mirel/DataModel/Objects/CountedFunction.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/DataModel/Objects/CCaptureSurface.h"
#include "Mirel/DataModel/Objects/CCaptureSurfaceLink.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using namespace Mirel::DataModel::Objects;
using Tests::CCountedBinaryFunction;
using Tests::CCountedFunction;
using Tests::CEventCounter;

TEST(CCaptureCurveLink, TargetHoldsACloneOfTheSourcesFunction)
{
    int alive = 0;
    CCaptureCurve source;
    CCaptureCurve target;
    CCaptureCurveLink link;
    link.SetSource(&source);
    link.SetTarget(&target);
    link.Enable(true);

    source.SetValue(CCountedFunction(alive, 2.0F));

    EXPECT_EQ(alive, 2);
    EXPECT_NE(&target.GetValue(), &source.GetValue());
    EXPECT_EQ(target.GetValue()(5.0F), 2.0F);
}

TEST(CCaptureCurveLink, EverySetOfTheSourceIsHandedOnAndSoAreItsCaptures)
{
    CCaptureCurve source;
    CCaptureCurve target;
    CCaptureCurveLink link;
    link.SetSource(&source);
    link.SetTarget(&target);
    link.Enable(true);
    CEventCounter changes(target.GetValueChangedEventProvider());

    source.SetValue(source.GetValue());
    source.SetValue(source.GetValue());
    EXPECT_EQ(changes.Take(), 2);
    source.BeginCapture();
    EXPECT_TRUE(target.IsCaptured());
    source.EndCapture();
    EXPECT_FALSE(target.IsCaptured());
}

TEST(CCaptureCurveLink, OutlivedByItsObjectsLeavesNoConnection)
{
    CCaptureCurve source;
    CCaptureCurve target;
    CEventCounter changes(target.GetValueChangedEventProvider());
    {
        CCaptureCurveLink link;
        link.SetSource(&source);
        link.SetTarget(&target);
        link.Enable(true);
        EXPECT_EQ(changes.Take(), 1);
    }
    source.SetValue(source.GetValue());
    EXPECT_EQ(changes.Take(), 0);
}

TEST(CCaptureSurfaceLink, TargetHoldsACloneOfTheSourcesFunction)
{
    int alive = 0;
    CCaptureSurface source;
    CCaptureSurface target;
    CCaptureSurfaceLink link;
    link.SetSource(&source);
    link.SetTarget(&target);
    link.Enable(true);

    source.SetValue(CCountedBinaryFunction(alive, 2.0F));

    EXPECT_EQ(alive, 2);
    EXPECT_EQ(target.GetValue()(5.0F, 6.0F), 2.0F);
}
