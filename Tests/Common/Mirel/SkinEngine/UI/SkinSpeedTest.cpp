#include "UIRig.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace Mirel::SkinEngine
{
namespace
{

/// An editor has to open at once. The bound is far above what it takes (some 15 ms), so that only another
/// order of growth fails here.
TEST(SkinSpeed, ASkinOfAThousandWidgetsIsBuiltAtOnce)
{
    Tests::CUIRig rig;
    rig.AddCurve("c");
    rig.WriteImage("k.png", 40, 400);
    std::string skin = "<TEMPLATE id='STRIP'><COLUMN id='s$i$' spacing='2'><TEXT value='Gain $i$'/>"
                       "<IMAGE_PARAM_KNOB id='k$i$' param_id='p$i$' image='k.png' images_count='10'/>"
                       "<PARAM_TEXT param_id='p$i$' width='40' height='12'/>"
                       "<CURVE_GRAPH curve_id='c' width='40' height='20'/></COLUMN></TEMPLATE>";
    for (int i = 0; i < 250; ++i)
    {
        rig.AddParam(std::string(1, 'p').append(std::to_string(i)));
    }
    skin += "<ROW><REPEAT count='250' index_name='n'><STRIP i='$n$'/></REPEAT></ROW>";
    EXPECT_TRUE(rig.Build(skin, false));
    rig.Close();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_TRUE(rig.Build(skin, false));
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(rig.light.GetChildCount(), 1000);
    RecordProperty("milliseconds", std::to_string(taken.count()));
    EXPECT_LT(taken.count(), 1000.0);
    for (const auto& message : rig.TakeMessages())
    {
        ADD_FAILURE() << message;
    }
}

} // namespace
} // namespace Mirel::SkinEngine
