#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/SkinEngine/Model/CSkinModelState.h"
#include "Mirel/SkinEngine/Model/CollectionLimits.h"
#include "Mirel/SkinEngine/Model/ICollection.h"
#include "ModelRig.h"
#include "Support/EventCounter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using testing::ElementsAre;
using testing::IsEmpty;
using Tests::CModelRig;

constexpr const char* limitMessage =
    "0: The collections have too many items in all: some are left out or incomplete.";

TEST(ModelCollection, StartsWithTheClampedCount)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' count='3' max_count='2'><PARAM id='$item_id$.v'/></COLLECTION>"
                          "<COLLECTION id='d' count='1' min_count='2'><PARAM id='$item_id$.v'/></COLLECTION>"
                          "<COLLECTION id='e'><PARAM id='$item_id$.v'/></COLLECTION>"));
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 2);
    EXPECT_TRUE(rig.Has("c[1].v"));
    EXPECT_FALSE(rig.Has("c[2].v"));
    EXPECT_FLOAT_EQ(rig.Value("d.count"), 2);
    EXPECT_FLOAT_EQ(rig.Value("e.count"), 0);
    EXPECT_FALSE(rig.Has("e[0].v"));
}

TEST(ModelCollection, ItemsComeAndGoWithTheCountParameter)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c'><PARAM id='$item_id$.v'/></COLLECTION>"));
    rig.Param("c.count").SetValue(2.6f);
    EXPECT_TRUE(rig.Has("c[2].v"));
    EXPECT_FALSE(rig.Has("c[3].v"));
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 3);
    rig.Param("c.count").SetValue(1);
    EXPECT_TRUE(rig.Has("c[0].v"));
    EXPECT_FALSE(rig.Has("c[1].v"));
    EXPECT_FALSE(rig.Has("c[1].v.min"));
}

TEST(ModelCollection, AnEmptyBodyMakesEmptyItems)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' count='2'/>"));
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 2);
}

TEST(ModelCollection, OneWithoutANameLivesNamelessly)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='' count='2'><PARAM id='v$item_id$'/></COLLECTION>"));
    EXPECT_TRUE(rig.Has("v[1]"));
    EXPECT_FALSE(rig.Has(""));
    EXPECT_FALSE(rig.Has(".count"));
}

TEST(ModelCollection, AFollowerHasTheSmallestCountAndLinksAcross)
{
    CModelRig rig;
    EXPECT_TRUE(
        rig.Build("<COLLECTION id='a' count='3'><PARAM id='$item_id$.v' max='9' default='4'/></COLLECTION>"
                  "<COLLECTION id='b' count='5'><PARAM id='$item_id$.v' max='9'/></COLLECTION>"
                  "<FOREACH id='f' collection_id='a;b'>"
                  "<PARAM_LINK from='$a_item_id$.v' to='$b_item_id$.v' trigger_condition='all'/>"
                  "<PARAM id='$item_id$.w'/></FOREACH>"));
    EXPECT_FLOAT_EQ(rig.Value("f.count"), 3);
    EXPECT_FLOAT_EQ(rig.Value("b[2].v"), 4);
    EXPECT_FLOAT_EQ(rig.Value("b[3].v"), 0);
    EXPECT_TRUE(rig.Has("f[2].w"));
    EXPECT_EQ(rig.Find<ICaptureParam>("f.count"), nullptr);
    rig.Param("b.count").SetValue(1);
    EXPECT_FLOAT_EQ(rig.Value("f.count"), 1);
    rig.Param("a[0].v").SetValue(7);
    EXPECT_FLOAT_EQ(rig.Value("b[0].v"), 7);
}

TEST(ModelCollection, AFollowerOfNothingStaysEmpty)
{
    CModelRig rig;
    EXPECT_FALSE(rig.Build("<FOREACH id='f' collection_id='x'><PARAM id='$item_id$.w'/></FOREACH>"));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("0: x: Unknown identifier (object does not exist).",
                                                "0: Fatal error: model parsing failed"));
    EXPECT_FLOAT_EQ(rig.Value("f.count"), 0);
}

TEST(ModelCollection, LinksOfTheModelReachItems)
{
    CModelRig rig;
    EXPECT_TRUE(
        rig.Build("<PARAM id='all' max='9' default='5'/>"
                  "<COLLECTION id='c' count='2'><PARAM id='$item_id$.v' max='9'/>"
                  "<PARAM_LINK from='all' to='$item_id$.v' trigger_condition='all'/></COLLECTION>"
                  "<PARAM id='last' max='9'/><PARAM_LINK from='c[1].v' to='last' trigger_condition='all'/>"));
    EXPECT_FLOAT_EQ(rig.Value("last"), 5);
    // Its source goes and comes back: the link is there again.
    rig.Param("c.count").SetValue(1);
    rig.Param("all").SetValue(6);
    EXPECT_FLOAT_EQ(rig.Value("last"), 5);
    rig.Param("c.count").SetValue(2);
    EXPECT_FLOAT_EQ(rig.Value("last"), 6);
    rig.Param("c[1].v").SetValue(2);
    EXPECT_FLOAT_EQ(rig.Value("last"), 2);
}

TEST(ModelCollection, EveryHolderOfAnItemsObjectLetsItGo)
{
    CModelRig rig;
    EXPECT_TRUE(
        rig.Build(
            "<COLLECTION id='c' count='2'><PARAM id='$item_id$.v' max='9' default='3'/><STRING "
            "id='$item_id$.s'/>"
            "<CURVE id='$item_id$.k' x_max='1' y_max='9' y_default='2'/></COLLECTION>"
            "<PARAM id='x' max='1'/><PARAM id='t' max='99'/><STRING id='u'/><CURVE id='k'/>"
            "<CURVE_VALUE_PARAM id='cv' curve_id='c[1].k' x_param_id='c[1].v'/>"
            "<CURVE_FROM_PARAM_OVER_TIME id='h' param_id='c[1].v'/>"
            "<SURFACE_FROM_CURVE_OVER_TIME id='l' curve_id='c[1].k'/>"
            "<PARAM_ANIMATOR id='n' param_id='c[1].v' duration_ms='100'/>"
            "<PARAM_MULTI_LINK from='c[0].v;c[1].v;x' to='t;c[1].v' mux_function='max' "
            "trigger_condition='all'/>"
            "<PARAM_CONNECTION id1='c[1].v' id2='t'/><PARAM_ANIMATED_LINK from='c[1].v' to='t' "
            "duration_ms='50'/>"
            "<PARAM_TO_STRING_LINK from='c[1].v' to='c[1].s'/><STRING_LINK from='c[1].s' to='u'/>"
            "<STRING_MULTI_LINK from='c[0].s;c[1].s' to='u' separator=','/><CURVE_LINK from='c[1].k' to='k'/>"
            "<CURVE_MULTI_LINK from='c[0].k;c[1].k' to='k' mux_function='+'/>"
            "<FUNCTION_INVOKE_ACTION id='o' function='OpenUrl' arg_url='c[1].s'/>") ||
        !rig.TakeMessages().empty());
    for (const float count : {0.0f, 2.0f, 1.0f, 2.0f, 0.0f})
    {
        rig.Param("c.count").SetValue(count);
        rig.clock.AdvanceMilliseconds(60);
        rig.timer.Tick();
        rig.Param("x").SetValue(1);
        rig.Param("x").SetValue(0);
        rig.Param("t").SetValue(50);
    }
    EXPECT_FALSE(rig.Has("c[0].v"));
}

TEST(ModelCollection, SourcesThatComeBackKeepTheirPlaces)
{
    CModelRig rig;
    EXPECT_TRUE(
        rig.Build("<COLLECTION id='a' count='1'><STRING id='$item_id$' default='A'/></COLLECTION>"
                  "<COLLECTION id='b' count='1'><STRING id='$item_id$' default='B'/></COLLECTION>"
                  "<STRING id='t'/><STRING id='e' default='E'/>"
                  "<STRING_MULTI_LINK from='a[0];b[0];e' to='t' separator='-' trigger_condition='all'/>"));
    EXPECT_EQ(rig.Text("t"), "A-B-E");
    rig.Param("a.count").SetValue(0);
    EXPECT_EQ(rig.Text("t"), "A-B-E");
    rig.Param("a.count").SetValue(1);
    rig.Param("b.count").SetValue(0);
    rig.Param("b.count").SetValue(1);
    EXPECT_EQ(rig.Text("t"), "A-B-E");
}

TEST(ModelCollection, NestedCollectionsHaveItemsOfTheirOwn)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build(
        "<PARAM id='g' max='9' default='8'/>"
        "<COLLECTION id='c' item_name='i' count='2'>"
        "<COLLECTION id='$i$.d' item_name='j' count='2'><PARAM id='$j$.v' max='9' persistent='true'/>"
        "<PARAM_LINK from='g' to='$j$.v' trigger_condition='all'/></COLLECTION>"
        "</COLLECTION>"));
    EXPECT_FLOAT_EQ(rig.Value("c[1].d[1].v"), 8);
    EXPECT_FLOAT_EQ(rig.Value("c[1].d.count"), 2);
    rig.Param("c[0].d.count").SetValue(3);
    EXPECT_TRUE(rig.Has("c[0].d[2].v"));
    rig.Param("c.count").SetValue(1);
    EXPECT_FALSE(rig.Has("c[1].d[0].v"));
    EXPECT_TRUE(rig.Has("c[0].d[2].v"));
    rig.Param("c.count").SetValue(0);
    EXPECT_FALSE(rig.Has("c[0].d[2].v"));
    EXPECT_EQ(rig.model.GetPersistentObjects().GetCount(), 0);
}

TEST(ModelCollection, CountsAreKeptInTheState)
{
    const char* body = "<COLLECTION id='c' persistent='true'>"
                       "<PARAM id='$item_id$.v' max='9' persistent='true'/></COLLECTION>";
    CModelRig rig;
    EXPECT_TRUE(rig.Build(body));
    rig.Param("c.count").SetValue(3);
    rig.Param("c[2].v").SetValue(7);
    CSkinModelState state;
    rig.model.TakeState(state);

    CModelRig restored;
    EXPECT_TRUE(restored.Build(body));
    restored.model.RestoreState(state);
    EXPECT_FLOAT_EQ(restored.Value("c.count"), 3);
    EXPECT_FLOAT_EQ(restored.Value("c[2].v"), 7);
}

TEST(ModelCollection, AnItemMayTakeItselfAway)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build(
        "<COLLECTION id='c' count='2'><PARAM id='$item_id$.close' max='1'/><PARAM id='$item_id$.n'/>"
        "<PARAM_LINK from='$item_id$.close' to='$item_id$.n' trigger_condition='all'/>"
        "<PARAM_LINK from='$item_id$.close' to='c.count' formula='2-2*x'/>"
        "<PARAM_LINK from='$item_id$.close' to='$item_id$.n' trigger_condition='all'/>"
        "</COLLECTION>"));
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 2);
    rig.Param("c[1].close").SetValue(1);
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 0);
    rig.Param("c.count").SetValue(2);
    EXPECT_TRUE(rig.Has("c[1].close"));
}

TEST(ModelCollection, AnInnerCountMayTakeTheOuterItemAway)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' count='2' item_name='i'><COLLECTION id='$i$.d' item_name='j'>"
                          "<PARAM id='$j$.zero'/>"
                          "<PARAM_LINK from='$j$.zero' to='c.count' trigger_condition='all'/>"
                          "</COLLECTION></COLLECTION>"));
    rig.Param("c[1].d.count").SetValue(3);
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 0);
}

TEST(ModelCollection, AnItemsMessagesAreItsOwn)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c' count='1'><PARAM/><PARAM_LINK from='x' to='y'/><PARAM id='a'/>"
                          "<PARAM id='a'/></COLLECTION>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    EXPECT_TRUE(rig.Has("a"));
    EXPECT_EQ(rig.model.GetObjects().GetLog(), &rig.log);
}

TEST(ModelCollection, NamesThatAreTakenStayTheirOwners)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<PARAM id='a' max='9' default='5'/>"
                          "<COLLECTION id='c' count='1'><PARAM id='a'/></COLLECTION>"));
    EXPECT_FLOAT_EQ(rig.Value("a"), 5);
    rig.Param("c.count").SetValue(0);
    EXPECT_FLOAT_EQ(rig.Value("a"), 5);
}

TEST(ModelCollection, ACountBeyondAllMeasureIsCutWithOneMessage)
{
    CModelRig rig;
    rig.Build("<COLLECTION id='c' count='2147483647'><PARAM id='$item_id$.v'/></COLLECTION>"
              "<COLLECTION id='d' count='2147483647'><PARAM id='$item_id$.v'/></COLLECTION>");
    EXPECT_THAT(rig.TakeMessages(), ElementsAre(limitMessage));
    EXPECT_LE(rig.Value("c.count"), static_cast<float>(maxCollectionItems));
    EXPECT_GT(rig.Value("c.count"), 1000);
}

TEST(ModelCollection, ACountOfAParameterBeyondAllMeasureIsCutWithOneMessage)
{
    CModelRig rig;
    EXPECT_TRUE(rig.Build("<COLLECTION id='c'><PARAM id='$item_id$.v' exposed='true'/></COLLECTION>"
                          "<EXPOSED_OBJECTS object_ids='c.count'/>",
                          false));
    for (int i = 0; i < 3; ++i)
    {
        rig.Param("c.count").SetValue(2147483648.0f);
        EXPECT_GT(rig.Value("c.count"), 10000);
        rig.Param("c.count").SetValue(0);
    }
    EXPECT_THAT(rig.TakeMessages(), ElementsAre(limitMessage));
}

TEST(ModelCollection, NestedCountsAreLimitedInAll)
{
    CModelRig rig;
    rig.Build(
        "<COLLECTION id='a' item_name='i' count='2000'><COLLECTION id='$i$.b' item_name='j' count='2000'>"
        "<COLLECTION id='$j$.c' item_name='k' count='2000'><PARAM id='$k$.v' exposed='true'/></COLLECTION>"
        "</COLLECTION></COLLECTION>",
        false);
    EXPECT_THAT(rig.TakeMessages(), ElementsAre(limitMessage));
    EXPECT_LE(rig.model.GetObjects().GetCount(), maxCollectionElements);
}

TEST(ModelCollection, BodiesOfManyElementsCountAsSuch)
{
    CModelRig rig;
    rig.Build(
        "<COLLECTION id='a' item_name='i' count='10000'><COLLECTION id='$i$.b'>"
        "<REPEAT count='1000'><STRING id='s'/></REPEAT></COLLECTION>"
        "<REPEAT count='1000' index_name='n'><STRING id='$i$.$n$' exposed='true'/></REPEAT></COLLECTION>",
        false);
    EXPECT_THAT(rig.TakeMessages(), ElementsAre(limitMessage));
    EXPECT_LE(rig.model.GetObjects().GetCount(), maxCollectionElements + 2000);
}

TEST(ModelCollection, CountsThatMoveOneAnotherComeToRest)
{
    CModelRig rig;
    rig.Build("<COLLECTION id='a' count='1' item_name='i'><PARAM id='$i$.n' max='9' default='9'/>"
              "<PARAM_LINK from='$i$.n' to='b.count' trigger_condition='all'/></COLLECTION>"
              "<COLLECTION id='b' item_name='i'><PARAM id='$i$.n'/>"
              "<PARAM_LINK from='$i$.n' to='a.count' trigger_condition='all'/></COLLECTION>");
    rig.Param("a.count").SetValue(5);
    rig.Param("b.count").SetValue(5);
    EXPECT_LE(rig.Value("a.count"), 5);
}

TEST(ModelCollection, AFollowerOfACollectionOfItsOwnItemsComesToRest)
{
    CModelRig rig;
    rig.Build("<COLLECTION id='a' count='3'/><FOREACH id='f' collection_id='a;x'>"
              "<COLLECTION id='x' count='1'/></FOREACH>");
    for (const float count : {2.0f, 0.0f, 5.0f, 1.0f})
    {
        if (auto* param = rig.Find<ICaptureParam>("x.count"))
        {
            param->SetValue(count);
        }
        EXPECT_LE(rig.Value("f.count"), rig.Value("a.count")) << count;
        rig.Param("a.count").SetValue(count);
        EXPECT_LE(rig.Value("f.count"), count);
    }
}

// A model of nested and crossed collections, whose counts are set in any order.

constexpr const char* crossed =
    "<COLLECTION id='a' max_count='4' item_name='i'><PARAM id='$i$.v' max='9' default='3' persistent='true'/>"
    "<COLLECTION id='$i$.n' max_count='3' item_name='j'><PARAM id='$j$.w' max='9' default='1' "
    "exposed='true'/>"
    "<PARAM_LINK from='$i$.v' to='$j$.w' trigger_condition='all'/></COLLECTION></COLLECTION>"
    "<COLLECTION id='b' max_count='4' item_name='i'><PARAM id='$i$.v' max='9' default='2' persistent='true'/>"
    "</COLLECTION>"
    "<FOREACH id='f' collection_id='a;b' item_name='i'><PARAM id='$i$.s' max='99'/>"
    "<PARAM_MULTI_LINK from='$a_i$.v;$b_i$.v' to='$i$.s' mux_function='max' "
    "trigger_condition='all'/></FOREACH>"
    "<FOREACH id='g' collection_id='f' item_name='i'><PARAM id='$i$.d' max='99'/>"
    "<PARAM_LINK from='$f_i$.s' to='$i$.d' formula='2*x' trigger_condition='all'/></FOREACH>"
    "<PARAM id='top' max='99'/><PARAM_LINK from='g[1].d' to='top' trigger_condition='all'/>"
    "<PARAM id='deep' max='99'/>"
    "<PARAM_MULTI_LINK from='a[0].n[1].w;b[2].v' to='deep' mux_function='min' trigger_condition='all'/>";

void SetCount(CModelRig& rig, const std::string& id, int count)
{
    if (auto* param = rig.Find<ICaptureParam>(id + ".count"))
    {
        param->SetValue(static_cast<float>(count));
    }
}

std::vector<std::string> SortedLines(const CModelRig& rig)
{
    auto lines = rig.Lines();
    // What was linked to something that has gone keeps its last value.
    std::erase_if(lines, [](const std::string& line)
                  { return line.starts_with("top:") || line.starts_with("deep:"); });
    std::sort(lines.begin(), lines.end());
    return lines;
}

RC_GTEST_PROP(ModelCollection, AnySequenceOfCountsEndsAsAFreshBuildWithTheLastOnes,
              (const std::vector<std::pair<unsigned char, unsigned char>>& moves))
{
    const std::vector<std::string> ids = {"a", "b", "a[0].n", "a[1].n", "a[2].n"};
    CModelRig rig;
    rig.Build(crossed);
    for (const auto& [which, count] : moves)
    {
        SetCount(rig, ids[which % ids.size()], count % 5);
    }
    CModelRig fresh;
    fresh.Build(crossed);
    for (const std::string& id : ids)
    {
        if (rig.Has(id))
        {
            SetCount(fresh, id, static_cast<int>(rig.Value(id + ".count")));
        }
    }
    RC_ASSERT(SortedLines(rig) == SortedLines(fresh));
    RC_ASSERT(rig.model.GetPersistentObjects().GetCount() == fresh.model.GetPersistentObjects().GetCount());
    RC_ASSERT(rig.model.GetExposedObjects().GetCount() == fresh.model.GetExposedObjects().GetCount());
}

TEST(ModelCollection, TenThousandItemsLiveAndDie)
{
    CModelRig rig;
    EXPECT_TRUE(
        rig.Build("<COLLECTION id='c'><PARAM id='$item_id$.v' max='9' default='8'/>"
                  "<PARAM id='$item_id$.w' max='9'/>"
                  "<PARAM_LINK from='$item_id$.v' to='$item_id$.w' trigger_condition='all'/></COLLECTION>"
                  "<EXPOSED_OBJECTS object_ids='c.count'/>",
                  false));
    rig.Param("c.count").SetValue(10000);
    EXPECT_FLOAT_EQ(rig.Value("c.count"), 10000);
    EXPECT_FLOAT_EQ(rig.Value("c[9999].w"), 8);
    rig.Param("c.count").SetValue(0);
    EXPECT_EQ(rig.model.GetObjects().GetCount(), 2);
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
}

} // namespace
} // namespace Mirel::SkinEngine
