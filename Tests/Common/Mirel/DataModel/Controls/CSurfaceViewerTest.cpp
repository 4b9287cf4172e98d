#include "Mirel/DataModel/Controls/CSurfaceViewer.h"

#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Mirel/DataModel/Objects/CCaptureSurface.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/TBinaryFunction.h"
#include "Support/AllocationCounter.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using Mirel::DataModel::Controls::CSurfaceViewer;
using Mirel::DataModel::Objects::CCaptureSurface;
using Mirel::DataModel::Objects::CSurfaceInfo;
using Mirel::Math::CConstantBinaryFunction;
using Tests::CEventCounter;
using Tests::Real;

namespace
{

/// x from 0 to 2, y from 0 to 8, z from -8 to 8; z = x - y.
class CDifferences : public CCaptureSurface
{
public:
    CDifferences()
        : CCaptureSurface(CSurfaceInfo(Real(0.0F, 2.0F), Real(0.0F, 8.0F), Real(-8.0F, 8.0F, 4.0F), "", ""))
    {
        SetValue(Mirel::Math::TBinaryFunction<&Mirel::Math::FunctionsLibrary::Difference>());
    }
};

} // namespace

TEST(CSurfaceViewer, GivesTheZPositionOfTheSurfaceAtTwoPositions)
{
    const CDifferences surface;
    CSurfaceViewer viewer(surface);
    EXPECT_EQ(&viewer.GetSurface(), &surface);
    EXPECT_EQ(&viewer.GetXViewer().GetInfo(), &surface.GetInfo().GetXInfo());
    EXPECT_EQ(&viewer.GetYViewer().GetInfo(), &surface.GetInfo().GetYInfo());
    EXPECT_EQ(&viewer.GetZViewer().GetInfo(), &surface.GetInfo().GetZInfo());

    EXPECT_EQ(viewer.GetValue(1.0F, 0.0F, false), 0.625F);  // 2 - 0
    EXPECT_EQ(viewer.GetValue(0.5F, 0.5F, false), 0.3125F); // 1 - 4
    viewer.GetZViewer().SetZoom(2.0F);
    EXPECT_EQ(viewer.GetValue(1.0F, 0.0F, false), 1.25F);
    EXPECT_EQ(viewer.GetValue(1.0F, 0.0F, true), 1.0F);
}

TEST(CSurfaceViewer, ChangesOfEachAxisFireTheLayoutEvent)
{
    const CDifferences surface;
    CSurfaceViewer viewer(surface);
    CEventCounter layouts(viewer.GetLayoutChangedEventProvider());
    CEventCounter changes(viewer.GetSurfaceChangedEventProvider());

    for (auto* axis : {&viewer.GetXViewer(), &viewer.GetYViewer(), &viewer.GetZViewer()})
    {
        axis->SetReverse(true);
        EXPECT_EQ(layouts.Take(), 1);
    }
    EXPECT_EQ(changes.Take(), 0);
}

TEST(CSurfaceViewer, ChangesOfTheSurfaceFireItsEventAndAreSeenInBothModes)
{
    CDifferences surface;
    CSurfaceViewer viewer(surface);
    CEventCounter changes(viewer.GetSurfaceChangedEventProvider());

    surface.SetValue(CConstantBinaryFunction(0.0F));
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(viewer.GetValue(0.1F, 0.9F, false), 0.5F);

    viewer.SetAccessMode(true);
    EXPECT_TRUE(viewer.GetAccessMode());
    EXPECT_EQ(changes.Take(), 1);
    surface.SetValue(CConstantBinaryFunction(4.0F));
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(viewer.GetValue(0.1F, 0.9F, false), 0.75F);
}

TEST(CSurfaceViewer, SurfaceWithoutAValueShowsItsDefault)
{
    const CCaptureSurface surface(
        CSurfaceInfo(Real(0.0F, 1.0F), Real(0.0F, 1.0F), Real(0.0F, 16.0F, 4.0F), "", ""));
    EXPECT_EQ(CSurfaceViewer(surface).GetValue(0.3F, 0.6F, false), 0.25F);
}

TEST(CSurfaceViewer, GetValueAllocatesNothing)
{
    const CDifferences surface;
    const CSurfaceViewer viewer(surface);

    const Tests::CAllocationCounter allocations;
    const float z = viewer.GetValue(1.0F, 0.0F, true);

    EXPECT_EQ(allocations.GetCount(), 0U);
    EXPECT_EQ(z, 0.625F);
}

TEST(CSurfaceViewer, ConnectionsEndWithTheViewer)
{
    CDifferences surface;
    {
        const CSurfaceViewer viewer(surface);
    }
    surface.SetValue(CConstantBinaryFunction(4.0F)); // these would reach freed memory
    surface.GetInfo().GetXInfo().SetMax(9.0F);
    surface.GetInfo().GetYInfo().SetMax(9.0F);
    surface.GetInfo().GetZInfo().SetMax(9.0F);
    EXPECT_EQ(surface.GetValue()(0.0F, 0.0F), 4.0F);
}
