#include "Host/Run/CurvesFile.h"

#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/TACFReference.h"
#include "Support/CTemporaryFolder.h"

#include <gtest/gtest.h>

#include <limits>

namespace Host
{
namespace
{

/// A line over -1 to 0 and a constant over 0 to 10 whose name needs quotes.
class CTwoCurves : public TACFObject<IPublishedCurves>
{
public:
    std::int32_t GetCurveCount(std::int32_t* count) override
    {
        *count = 2;
        return AAXResult::Ok;
    }
    std::int32_t GetCurveName(std::int32_t curve, const char** name) override
    {
        *name = curve == 0 ? "Line" : "A \"flat\", one";
        return AAXResult::Ok;
    }
    std::int32_t GetCurveRange(std::int32_t curve, float* minX, float* maxX, float* minY,
                               float* maxY) override
    {
        *minX = curve == 0 ? -1.0f : 0.0f;
        *maxX = curve == 0 ? 0.0f : 10.0f;
        *minY = 0.0f;
        *maxY = 1.0f;
        return AAXResult::Ok;
    }
    std::int32_t EvaluateCurve(std::int32_t curve, const float* x, std::int32_t count, float* y) override
    {
        for (std::int32_t i = 0; i < count; ++i)
        {
            y[i] = curve == 0 ? x[i] : x[i] + 1.0f / 3.0f;
        }
        return AAXResult::Ok;
    }
    std::int32_t GetRefreshes(std::int64_t*, std::int64_t*) override { return AAXResult::Failed; }
    std::int32_t GetPublications(std::int64_t*) override { return AAXResult::Failed; }
};

TEST(WriteCurves, WritesAColumnForEachCurveOverItsOwnRange)
{
    const Tests::CTemporaryFolder folder;
    const auto curves = TACFReference<CTwoCurves>::Adopt(new CTwoCurves);
    std::string error;
    ASSERT_TRUE(WriteCurves(*curves, 3, folder.GetPath("c.csv"), error)) << error;
    // 10 + 1/3 as a 32-bit float is 10.33333301544189453125.
    EXPECT_EQ(folder.Read("c.csv"), "x,Line,\"A \"\"flat\"\", one\"\n"
                                    "0,-1,0.333333343\n"
                                    "0.5,-0.5,5.33333349\n"
                                    "1,0,10.333333\n");
}

TEST(WriteCurves, SaysWhereItCannotWrite)
{
    const auto curves = TACFReference<CTwoCurves>::Adopt(new CTwoCurves);
    std::string error;
    EXPECT_FALSE(WriteCurves(*curves, 2, "/nowhere/c.csv", error));
    EXPECT_EQ(error, "cannot write \"/nowhere/c.csv\"");
}

} // namespace
} // namespace Host
