// Collections of many items in a skin: time and memory.

#include "Support/ThreadTime.h"
#include "UIRig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <malloc.h>
#include <string>
#include <unistd.h>

namespace Mirel::SkinEngine
{
namespace
{

using Tests::CUIRig;
using Tests::ThreadSeconds;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSlow = true; // and keeps what is free
#else
constexpr bool isSlow = false;
#endif

constexpr int fewItems = isSlow ? 100 : 1000;
constexpr int manyItems = 8 * fewItems;

/// Far above linear growth, which is 8 with what a large heap costs on top, and far below quadratic, 64.
constexpr double mostTimes = 30.0;

/// A skin of one collection, "c", and a parameter, "p", that all its items may name.
struct CSkinOfMany
{
    explicit CSkinOfMany(const std::string& elements)
    {
        rig.AddParam("p", 0, 9);
        EXPECT_TRUE(rig.Build("<COLUMN><PARAM_TEXT param_id='c.count'/>" + elements + "</COLUMN>", false));
        widgets = rig.light.GetChildCount();
    }

    /// What it takes to make so many items and to make away with them.
    double SecondsFor(int items)
    {
        const double begin = ThreadSeconds();
        rig.Param("c.count").SetValue(static_cast<float>(items));
        EXPECT_EQ(rig.Value("c.count"), static_cast<float>(items));
        rig.Param("c.count").SetValue(0);
        const double taken = ThreadSeconds() - begin;
        EXPECT_EQ(rig.light.GetChildCount(), widgets);
        return taken;
    }

    CUIRig rig;
    int widgets = 0; ///< Without items.
};

struct SItems
{
    const char* name;
    const char* elements;
};

struct UICollectionSize : testing::TestWithParam<SItems>
{
};

TEST_P(UICollectionSize, TimeGrowsWithTheCountAndNotWithItsSquare)
{
    CSkinOfMany skin(GetParam().elements);
    skin.SecondsFor(fewItems);
    const double few = std::min(skin.SecondsFor(fewItems), skin.SecondsFor(fewItems));
    const double many = skin.SecondsFor(manyItems);
    EXPECT_LT(many, mostTimes * few);
    for (const auto& message : skin.rig.TakeMessages())
    {
        ADD_FAILURE() << message;
    }
}

INSTANTIATE_TEST_SUITE_P(
    , UICollectionSize,
    testing::Values(
        SItems{"Widgets", "<COLLECTION id='c'><TEXT value='$item_id$'/></COLLECTION><TEXT/>"},
        SItems{"OverlappingWidgets", "<LAYER_STACK width='400' height='300'><COLLECTION id='c'>"
                                     "<TEXT value='x' width='20' height='9'/></COLLECTION></LAYER_STACK>"},
        SItems{"ViewersOfOneParameter", "<COLLECTION id='c'><PARAM_TEXT param_id='p'/></COLLECTION>"},
        SItems{"LinksFromOneParameter", "<COLLECTION id='c'><TEXT id='$item_id$'/><PARAM_LINK from='p' "
                                        "to='$item_id$.opacity' trigger_condition='always'/></COLLECTION>"},
        SItems{"RowsOfATable", "<TABLE><COLLECTION id='c'><TABLE_ROW><TEXT/><TEXT/></TABLE_ROW>"
                               "</COLLECTION></TABLE>"},
        SItems{"InnerCollections", "<COLLECTION id='c'><COLLECTION id='$item_id$.n' count='1'>"
                                   "<TEXT/></COLLECTION></COLLECTION>"},
        SItems{"ItemsOfAFollower", "<COLLECTION id='c'/><FOREACH collection_id='c'><TEXT/></FOREACH>"},
        SItems{"NativeWidgets", "<COLLECTION id='c'><TEXT system_widget='true'/></COLLECTION>"}),
    [](const auto& each) { return std::string(each.param.name); });

/// Bytes in memory, after what is free has been handed back.
double ResidentBytes()
{
    malloc_trim(0);
    long pages = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

TEST(UICollectionMemory, TenThousandItemsLiveAndDieTwiceAndTheirMemoryComesBack)
{
    CSkinOfMany skin(
        "<COLLECTION id='c'><COLUMN><TEXT id='$item_id$' value='$item_id$'/><PARAM_TEXT param_id='p'/>"
        "</COLUMN></COLLECTION>");
    constexpr int items = 10000;
    const double before = ResidentBytes();
    skin.rig.Param("c.count").SetValue(items);
    const double taken = ResidentBytes() - before;
    EXPECT_TRUE(isSlow || taken > 0.0);
    skin.rig.Param("c.count").SetValue(0);
    skin.SecondsFor(items);
    const double left = ResidentBytes() - before;
    RecordProperty("taken", std::to_string(taken));
    RecordProperty("left", std::to_string(left));
    EXPECT_TRUE(isSlow || left < 0.1 * taken) << left << " of " << taken;
    EXPECT_TRUE(skin.rig.TakeMessages().empty());
}

} // namespace
} // namespace Mirel::SkinEngine
