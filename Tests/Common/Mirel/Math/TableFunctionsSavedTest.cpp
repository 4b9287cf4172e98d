#include "Mirel/Core/Interpolators.h"
#include "Mirel/Core/TLookupTable.h"
#include "Mirel/Math/TCircularLUTFunction.h"
#include "Mirel/Math/TLUTFunction.h"
#include "Mirel/Serialization/CMemDataObject.h"

#include <gtest/gtest.h>
#include <vector>

using namespace Mirel::Core;
using namespace Mirel::Math;
using Mirel::Serialization::CMemDataObject;

namespace
{

using CNearest = TLookupTable<float, TNearestInterpolator<float, float>>;
using CSpline = TLookupTable<float, TConstrainedSplineInterpolator<float, float>>;

} // namespace

TEST(TLUTFunction, ClassKeyNamesTheInterpolator)
{
    EXPECT_STREQ(TLUTFunction<CNearest>(CNearest(0.0f, 1.0f)).GetTypeKey(),
                 "{231C870E-FE12-41c6-8C0D-922CA68AD4F4}");
    EXPECT_STREQ(TLUTFunction<CSpline>(CSpline(0.0f, 1.0f)).GetTypeKey(),
                 "{CBE364D9-829B-4dd4-91B0-69DE39D28923}");
    EXPECT_STREQ(TCircularLUTFunction<CSpline>(0.0f, 1.0f).GetTypeKey(),
                 "{AAC13163-0B6E-4a60-A1BE-257878A0B336}");
}

TEST(TLUTFunction, SavedTableReadsBackWithItsRange)
{
    CNearest table(-2.0f, 2.0f, 3);
    table.GetPositions()[0] = 7.0f;
    table.GetPositions()[2] = 9.0f;
    CMemDataObject saved;
    ASSERT_TRUE(TLUTFunction<CNearest>(table).Serialize(saved));

    TLUTFunction<CNearest> read(CNearest(0.0f, 1.0f));
    ASSERT_TRUE(read.Deserialize(saved));

    EXPECT_EQ(read(-2.0f), 7.0f);
    EXPECT_EQ(read(0.0f), 0.0f);
    EXPECT_EQ(read(2.0f), 9.0f);
}

TEST(TLUTFunction, MissingFieldLeavesTheTableAsItWas)
{
    CNearest table(0.0f, 1.0f, 1);
    table.GetPositions()[0] = 5.0f;
    TLUTFunction<CNearest> function(table);

    EXPECT_FALSE(function.Deserialize(CMemDataObject()));
    EXPECT_EQ(function(0.0f), 5.0f);
}

TEST(TCircularLUTFunction, SavedRingReadsBackWithItsWindowAndGuards)
{
    TCircularLUTFunction<CSpline> ring(0.0f, 4.0f);
    ring.SetSize(5);
    ring.Write(std::vector<float>{1, 2, 4, 7, 3, 9, 8});
    ring.SetWindow(3, 2);
    CMemDataObject saved;
    ASSERT_TRUE(ring.Serialize(saved));

    TCircularLUTFunction<CSpline> read(0.0f, 4.0f);
    ASSERT_TRUE(read.Deserialize(saved));

    for (float x = 0.0f; x <= 4.0f; x += 0.125f)
    {
        EXPECT_EQ(read(x), ring(x)) << x;
    }
    EXPECT_EQ(read.GetWritePos(), 2);
}

TEST(TCircularLUTFunction, DamagedPositionsAreRefused)
{
    TCircularLUTFunction<CSpline> ring(0.0f, 4.0f);
    ring.SetSize(5);
    ring.Write(std::vector<float>{1, 2, 3});
    for (const char* key : {"start", "writePos", "stop"})
    {
        SCOPED_TRACE(key);
        for (const int position : {-1, 6, 2000000000})
        {
            CMemDataObject saved;
            ASSERT_TRUE(ring.Serialize(saved));
            saved.Write(key, position);
            TCircularLUTFunction<CSpline> read(0.0f, 4.0f);
            EXPECT_FALSE(read.Deserialize(saved));
            EXPECT_EQ(read.GetSize(), 0);
        }
    }
}
