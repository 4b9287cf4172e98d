#include "Mirel/DataModel/Controls/CForwardedCapture.h"

#include "Mirel/Core/CCapture.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using Mirel::Core::CCapture;
using Mirel::DataModel::Controls::CForwardedCapture;
using Tests::CEventCounter;

TEST(CForwardedCapture, ShowsStateAndEventsOfItsSource)
{
    CCapture source;
    const CForwardedCapture forwarded(source);
    CEventCounter begins(forwarded.GetBeginCaptureEventProvider());
    CEventCounter ends(forwarded.GetEndCaptureEventProvider());

    source.BeginCapture();
    EXPECT_TRUE(forwarded.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
    EXPECT_EQ(ends.Take(), 0);

    source.BeginCapture();
    source.EndCapture();
    EXPECT_FALSE(forwarded.IsCaptured());
    EXPECT_EQ(begins.Take(), 0);
    EXPECT_EQ(ends.Take(), 1);
}

TEST(CForwardedCapture, SourceHeldFromBeforeIsHeld)
{
    CCapture source;
    source.BeginCapture();
    EXPECT_TRUE(CForwardedCapture(source).IsCaptured());
}

TEST(CForwardedCapture, ConnectionsEndWithIt)
{
    CCapture source;
    {
        const CForwardedCapture forwarded(source);
    }
    source.BeginCapture(); // would reach freed memory
    source.EndCapture();
    EXPECT_FALSE(source.IsCaptured());
}
