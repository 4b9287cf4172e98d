// Collections in a skin, nested and crossed, against the same skin with their items written out.

#include "ShownTree.h"
#include "UIRig.h"
#include "WrittenOut.h"

#include "rapidcheck/gtest.h"
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using Tests::CCounts;
using Tests::CUIRig;

// A collection in a collection, in a cell of the item and among the items themselves; followers of both, and
// of a follower; links between the items; rows and cells of a table; widgets that overlap.
constexpr const char* crossed =
    "<COLUMN><ROW width='400' height='150' spacing='1' internal_h_align='left'>"
    "<IMAGE image='red.png'/>"
    "<COLLECTION id='a' item_name='i' max_count='4'>"
    "<PARAM id='$i$.v' max='1' default='0.5'/>"
    "<COLUMN id='$i$'><TEXT id='$i$.t' value='$i$' width='24' height='12'/>"
    "<COLLECTION id='$i$.n' item_name='j' max_count='3'><PARAM id='$j$.w' max='1'/>"
    "<PARAM_LINK from='$i$.v' to='$j$.w' trigger_condition='always'/>"
    "<PARAM_TEXT id='$j$.t' param_id='$j$.w' width='20' height='10'/></COLLECTION>"
    "<IMAGE image='blue.png'/></COLUMN>"
    "<COLLECTION id='$i$.m' item_name='k' max_count='2'><IMAGE image='green.png'/>"
    "<COLLECTION id='$k$.o' item_name='l' max_count='2'><IMAGE image='red.png'/></COLLECTION></COLLECTION>"
    "</COLLECTION>"
    "<IMAGE image='blue.png'/>"
    "<COLLECTION id='b' item_name='i' max_count='4'><TEXT id='$i$.t' value='$i$' width='20' height='9'/>"
    "</COLLECTION>"
    "<FOREACH id='f' collection_id='a;b' item_name='i'>"
    "<TEXT id='$i$.t' value='$a_i$ $b_i$' width='30' height='9'/>"
    "<PARAM_LINK from='$a_i$.v' to='$i$.t.opacity' trigger_condition='always'/></FOREACH>"
    "<FOREACH id='g' collection_id='f' item_name='i'><COLUMN>"
    "<PARAM_TEXT id='$i$.t' param_id='$f_i$.t.opacity' width='30' height='9'/></COLUMN></FOREACH>"
    "</ROW>"
    "<LAYER_STACK width='400' height='50'><COLLECTION id='p' item_name='i' max_count='3'>"
    "<IMAGE image='green.png' h_position='3'/></COLLECTION><IMAGE image='blue.png' h_position='5'/>"
    "<COLLECTION id='q' item_name='i' max_count='2'><IMAGE image='red.png' h_position='8'/></COLLECTION>"
    "<FOREACH id='e' collection_id='q;p' item_name='i'><TEXT value='$p_i$' width='40' height='20' "
    "h_position='0'/></FOREACH></LAYER_STACK>"
    "<TABLE h_spacing='1' v_spacing='2'><TABLE_ROW><TEXT value='h' width='10' height='9'/></TABLE_ROW>"
    "<COLLECTION id='t' item_name='i' max_count='3'><TABLE_ROW><TEXT value='$i$' width='24' height='9'/>"
    "<COLLECTION id='$i$.c' item_name='k' max_count='3'><TEXT value='$k$' width='24' height='9'/>"
    "</COLLECTION></TABLE_ROW></COLLECTION>"
    "<COLLECTION id='u' item_name='i' max_count='2'><COLLECTION id='$i$.r' item_name='k' max_count='2'>"
    "<TABLE_ROW height='6'/></COLLECTION></COLLECTION>"
    "<TABLE_ROW><TEXT value='foot' width='24' height='9'/></TABLE_ROW></TABLE></COLUMN>";

// One count for two collections.
constexpr const char* shared =
    "<PARAM id='shared' max='9'/><PARAM_LINK from='shared' to='p.count' trigger_condition='always'/>"
    "<PARAM_LINK from='shared' to='q.count' trigger_condition='always'/>";

const std::map<std::string, int> largestCounts = {{"a", 4}, {"b", 4}, {"t", 3}, {"u", 2}, {"p", 3}, {"q", 2}};

/// What the collections in items may hold at most, by the end of their names.
const std::map<std::string, int> largestInnerCounts = {
    {"].n", 3}, {"].m", 2}, {"].o", 2}, {"].c", 3}, {"].r", 2}};

/// The counts that the collections must have, found from the moves alone.
class CExpectedCounts
{
public:
    CExpectedCounts()
    {
        for (const auto& [id, largest] : largestCounts)
        {
            counts[id] = 0;
        }
    }

    void Set(const std::string& id, float wanted)
    {
        const auto outer = largestCounts.find(id);
        const int largest =
            outer != largestCounts.end() ? outer->second : largestInnerCounts.at(id.substr(id.size() - 3));
        if (!(wanted < 0.0f || wanted >= 0.0f) || !IsThere(id))
        {
            return;
        }
        const int count = static_cast<int>(std::clamp(wanted, 0.0f, static_cast<float>(largest)));
        for (int i = count; i < counts[id]; ++i)
        {
            const std::string item = Tests::ItemName(id, i);
            std::erase_if(counts, [&](const auto& each) { return each.first.starts_with(item); });
        }
        counts[id] = count;
    }

    CCounts counts;

private:
    /// Whether the item that the collection stands in is there; true for one that stands in none.
    bool IsThere(const std::string& id) const
    {
        const auto bracket = id.rfind('[');
        if (bracket == std::string::npos)
        {
            return true;
        }
        const auto outer = counts.find(id.substr(0, bracket));
        return outer != counts.end() && std::stoi(id.substr(bracket + 1)) < outer->second;
    }
};

struct CSkin
{
    /// Plain colours, so that it is seen what covers what.
    explicit CSkin(const std::string& body)
    {
        rig.WriteImage("red.png", 9, 20, 0xFFFF0000U);
        rig.WriteImage("green.png", 11, 16, 0xFF00FF00U);
        rig.WriteImage("blue.png", 7, 24, 0xFF0000FFU);
        rig.Build(body);
        RC_ASSERT(rig.TakeMessages() == std::vector<std::string>());
    }

    /// Does nothing if the collection is not there.
    void SetCount(const std::string& id, float count)
    {
        if (auto* param = rig.Find<CUIRig::ICaptureParam>(id + ".count"))
        {
            param->SetValue(count);
        }
    }

    CCounts GetCounts()
    {
        CCounts counts;
        for (const std::string& id : GetIds())
        {
            if (id.ends_with(".count"))
            {
                counts[id.substr(0, id.size() - 6)] = static_cast<int>(rig.Value(id));
            }
        }
        return counts;
    }

    std::vector<std::string> GetIds()
    {
        std::vector<std::string> ids;
        const std::unique_ptr<ISkinDynamicObjectsIterator> entry(rig.model.GetObjects().CreateIterator());
        for (; entry->IsValid(); entry->Next())
        {
            ids.emplace_back(entry->GetId());
        }
        std::sort(ids.begin(), ids.end());
        return ids;
    }

    /// All objects with what they hold, collections and their counts apart.
    std::vector<std::string> GetObjects()
    {
        const CCounts counts = GetCounts();
        std::vector<std::string> objects;
        for (const std::string& id : GetIds())
        {
            if (id.find(".count") == std::string::npos && !counts.contains(id) && !id.starts_with("shared"))
            {
                objects.push_back(id + " " + std::to_string(rig.Value(id)));
            }
        }
        return objects;
    }

    CUIRig rig;
};

/// A count that a link or a state may come with.
rc::Gen<float> AnyCount()
{
    return rc::gen::weightedOneOf<float>(
        {{12, rc::gen::map(rc::gen::inRange(0, 5), [](int count) { return static_cast<float>(count); })},
         {1, rc::gen::element(-1.0f, -1e30f, 1e10f, 1e30f, std::numeric_limits<float>::infinity(),
                              std::numeric_limits<float>::quiet_NaN())}});
}

rc::Gen<std::string> AnyCollection()
{
    return rc::gen::element<std::string>("a", "a", "b", "t", "u", "shared", "a[0].n", "a[1].n", "a[2].n",
                                         "a[0].m", "a[1].m", "a[3].m", "a[0].m[0].o", "a[0].m[1].o",
                                         "a[1].m[0].o", "t[0].c", "t[1].c", "t[2].c", "u[0].r", "u[1].r");
}

/// Moves the counts of the skin, and those that it must come to.
void Move(CSkin& skin, CExpectedCounts& expected)
{
    const auto moves = *rc::gen::container<std::vector<std::pair<std::string, float>>>(
        rc::gen::pair(AnyCollection(), AnyCount()));
    for (const auto& [id, count] : moves)
    {
        if (id == "shared")
        {
            skin.rig.Param(id).SetValue(count);
            expected.Set("p", count);
            expected.Set("q", count);
        }
        else
        {
            skin.SetCount(id, count);
            expected.Set(id, count);
        }
    }
}

RC_GTEST_PROP(UICollectionTrees, AreAsWithTheirItemsWrittenOutAfterAnySequenceOfCounts, ())
{
    CSkin skin(std::string(crossed) + shared);
    CExpectedCounts expected;
    Move(skin, expected);
    CSkin plain(Tests::WrittenOut(crossed, expected.counts));
    RC_ASSERT(Tests::DescribeTree(skin.rig.light) == Tests::DescribeTree(plain.rig.light));
    RC_ASSERT(Tests::PaintTree(skin.rig.light) == Tests::PaintTree(plain.rig.light));
    RC_ASSERT(skin.GetObjects() == plain.GetObjects());
    RC_ASSERT(skin.GetCounts() == expected.counts);
}

RC_GTEST_PROP(UICollectionTrees, AreAsFreshlyBuiltWithTheLastOfAnySequenceOfCounts, ())
{
    CSkin skin(std::string(crossed) + shared);
    CExpectedCounts expected;
    Move(skin, expected);
    std::string text = crossed;
    for (const auto& [id, largest] : largestCounts)
    {
        const std::string tag = std::string("<COLLECTION id='").append(id).append("' ");
        const std::string count = std::to_string(expected.counts[id]);
        text = Tests::Replaced(text, tag, std::string(tag).append("count='").append(count).append("' "));
    }
    CSkin fresh(text);
    // In the order of their names: outer collections come before inner ones.
    for (const auto& [id, count] : expected.counts)
    {
        fresh.SetCount(id, static_cast<float>(count));
    }
    RC_ASSERT(Tests::DescribeTree(skin.rig.light) == Tests::DescribeTree(fresh.rig.light));
    RC_ASSERT(Tests::PaintTree(skin.rig.light) == Tests::PaintTree(fresh.rig.light));
    RC_ASSERT(skin.GetObjects() == fresh.GetObjects());
    RC_ASSERT(skin.GetCounts() == fresh.GetCounts());
}

} // namespace
} // namespace Mirel::SkinEngine
