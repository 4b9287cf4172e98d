#include "Host/Run/CProgressBar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace Host
{
namespace
{

using testing::HasSubstr;

TEST(CProgressBar, WritesNothingInAPipe)
{
    std::ostringstream out;
    CProgressBar bar(out, false, 48000, 48000.0);
    bar.Update(100);
    bar.Finish(48000);
    EXPECT_EQ(out.str(), "");
}

TEST(CProgressBar, ShowsTimeAndEndsItsLine)
{
    std::ostringstream out;
    CProgressBar bar(out, true, 96000, 48000.0);
    bar.Update(48000);
    EXPECT_THAT(out.str(), HasSubstr("\r[###############...............]     1.0 of 2.0 s, "));
    bar.Finish(96000);
    EXPECT_THAT(out.str(), HasSubstr("\r[##############################]     2.0 of 2.0 s, "));
    EXPECT_EQ(out.str().back(), '\n');
}

TEST(CProgressBar, StandsAnUnknownLength)
{
    std::ostringstream out;
    CProgressBar bar(out, true, 0, 48000.0);
    bar.Finish(0);
    EXPECT_THAT(out.str(), HasSubstr("0.0 of 0.0 s"));
}

} // namespace
} // namespace Host
