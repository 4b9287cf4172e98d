#include "Mirel/SkinEngine/Model/CForEachSkinCollection.h"
#include "Mirel/SkinEngine/Model/CSkinCollection.h"
#include "Mirel/SkinEngine/Model/CollectionLimits.h"
#include "Support/EventCounter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using CTrace = std::vector<std::string>;

/// Writes down what is asked of it.
class CTracedItemFactory : public ISkinCollectionItemFactory
{
public:
    explicit CTracedItemFactory(CTrace& trace_) : trace(trace_) {}

    int GetCount() const override { return static_cast<int>(items.size()); }
    void Prepare(int delta) override { trace.push_back("prepare " + std::to_string(delta)); }

    void CreateItem(int index, const Containers::CNamedAttributes& attributes) override
    {
        std::string text = "create " + std::to_string(index);
        for (const char* name : {"item_id", "i", "a_i", "b_i"})
        {
            if (const char* value = attributes.Get(name))
            {
                text += std::string(" ") + name + "=" + value;
            }
        }
        trace.push_back(text);
        items.push_back(std::make_unique<CItem>(trace, index));
    }

    void DestroyItem(int index) override
    {
        trace.push_back("destroy " + std::to_string(index));
        items[static_cast<std::size_t>(index)].reset();
    }

    ISkinCollectionItem* GetItem(int index) const override
    {
        return index < GetCount() ? items[static_cast<std::size_t>(index)].get() : nullptr;
    }

    void Commit(int delta) override
    {
        trace.push_back("commit " + std::to_string(delta));
        if (delta < 0)
        {
            items.resize(items.size() - static_cast<std::size_t>(-delta));
        }
    }

private:
    class CItem : public ISkinCollectionItem
    {
    public:
        CItem(CTrace& trace_, int index_) : trace(trace_), index(index_) {}
        void Unload() override { trace.push_back("unload " + std::to_string(index)); }

    private:
        CTrace& trace;
        int index;
    };

    CTrace& trace;
    std::vector<std::unique_ptr<CItem>> items;
};

class SkinCollection : public testing::Test
{
protected:
    CTrace Take() { return std::exchange(trace, {}); }

    template <class C>
    void Load(C& collection)
    {
        collection.SetItemFactory(std::make_unique<CTracedItemFactory>(trace));
    }

    CTrace trace;
    std::shared_ptr<CSkinCollectionContext> context =
        std::make_shared<CSkinCollectionContext>([] { return nullptr; });
};

TEST_F(SkinCollection, ItemsAreMadeInRisingOrderAndToldTheirNames)
{
    CSkinCollection collection(context, "c", nullptr, 0, 10);
    Load(collection);
    Tests::CEventCounter changes(collection.GetCountChangedEventProvider());
    collection.SetCount(2);
    EXPECT_THAT(Take(),
                ElementsAre("prepare 2", "create 0 item_id=c[0]", "create 1 item_id=c[1]", "commit 2"));
    EXPECT_EQ(collection.GetCount(), 2);
    EXPECT_EQ(changes.Take(), 1);
    collection.SetCount(0);
}

TEST_F(SkinCollection, AllItemsThatGoAreUnloadedBeforeTheFirstIsDestroyed)
{
    CSkinCollection collection(context, "c", "i", 0, 10);
    Load(collection);
    collection.SetCount(4);
    Take();
    collection.SetCount(1);
    EXPECT_THAT(Take(), ElementsAre("prepare -3", "unload 1", "unload 2", "unload 3", "destroy 1",
                                    "destroy 2", "destroy 3", "commit -3"));
}

TEST_F(SkinCollection, TheCountIsToldBeforeAndAfter)
{
    class CBefore : public Core::TIArgCommand<int>
    {
    public:
        explicit CBefore(CTrace& trace_) : trace(trace_) {}
        void Execute(int count) override { trace.push_back("before " + std::to_string(count)); }
        CTrace& trace;
    };
    CSkinCollection collection(context, "c", nullptr, 0, 10);
    Load(collection);
    CBefore before(trace);
    collection.GetBeforeCountChangeEventProvider().Connect(before);
    collection.SetCount(1);
    EXPECT_THAT(Take(), ElementsAre("before 1", "prepare 1", "create 0 item_id=c[0]", "commit 1"));
    collection.GetBeforeCountChangeEventProvider().Disconnect(&before);
}

TEST_F(SkinCollection, ThePresentCountDoesNothing)
{
    CSkinCollection collection(context, "c", nullptr, 0, 10);
    Load(collection);
    collection.SetCount(2);
    Take();
    Tests::CEventCounter changes(collection.GetCountChangedEventProvider());
    collection.SetCount(2);
    EXPECT_THAT(Take(), IsEmpty());
    EXPECT_EQ(changes.Take(), 0);
}

TEST_F(SkinCollection, TheCountIsHeldBetweenItsEnds)
{
    const CSkinCollection collection(context, "c", nullptr, 2, 5);
    EXPECT_EQ(collection.ClampCount(0), 2);
    EXPECT_EQ(collection.ClampCount(3), 3);
    EXPECT_EQ(collection.ClampCount(9), 5);
    // The smaller of the maximum and the greater of count and minimum.
    EXPECT_EQ(CSkinCollection(context, "c", nullptr, 3, 2).ClampCount(0), 2);
    EXPECT_EQ(CSkinCollection(context, "c", nullptr, -9, -3).ClampCount(1), 0);
}

TEST_F(SkinCollection, WithoutAFactoryThereIsNothing)
{
    CSkinCollection collection(context, "c", nullptr, 0, 10);
    collection.SetCount(3);
    EXPECT_EQ(collection.GetCount(), 0);
    EXPECT_EQ(collection.GetItem(0), nullptr);
}

TEST_F(SkinCollection, UnloadedItemsStay)
{
    CSkinCollection collection(context, "c", nullptr, 0, 10);
    Load(collection);
    collection.SetCount(2);
    Take();
    collection.UnloadAllItems();
    EXPECT_THAT(Take(), ElementsAre("unload 0", "unload 1"));
    EXPECT_NE(collection.GetItem(1), nullptr);
}

TEST_F(SkinCollection, ItemsGoInOrderWithTheCollection)
{
    {
        CSkinCollection collection(context, "c", nullptr, 0, 10);
        Load(collection);
        collection.SetCount(2);
        Take();
    }
    EXPECT_THAT(Take(),
                ElementsAre("prepare -2", "unload 0", "unload 1", "destroy 0", "destroy 1", "commit -2"));
    EXPECT_EQ(context->GetItems(), 0);
}

TEST_F(SkinCollection, FollowersHaveTheSmallestCount)
{
    CTrace ignored;
    CSkinCollection a(context, "a", nullptr, 0, 10);
    CSkinCollection b(context, "b", nullptr, 0, 10);
    a.SetItemFactory(std::make_unique<CTracedItemFactory>(ignored));
    b.SetItemFactory(std::make_unique<CTracedItemFactory>(ignored));
    a.SetCount(3);
    b.SetCount(1);
    CForEachSkinCollection follower(context, "f", "i");
    Load(follower);
    EXPECT_EQ(follower.GetCount(), 0);
    follower.Connect(a, "a");
    EXPECT_EQ(follower.GetCount(), 3);
    follower.Connect(b, "b");
    EXPECT_EQ(follower.GetCount(), 1);
    Take();
    b.SetCount(2);
    EXPECT_THAT(Take(), ElementsAre("prepare 1", "create 1 i=f[1] a_i=a[1] b_i=b[1]", "commit 1"));
    // Unloaded once before the source's items go, and once as every item that goes.
    a.SetCount(0);
    EXPECT_THAT(Take(), ElementsAre("unload 0", "unload 1", "prepare -2", "unload 0", "unload 1", "destroy 0",
                                    "destroy 1", "commit -2"));
    a.SetCount(9);
    EXPECT_EQ(follower.GetCount(), 2);
    follower.Disconnect(b, "b");
    EXPECT_EQ(follower.GetCount(), 9);
    follower.Disconnect(a, "a");
    EXPECT_EQ(follower.GetCount(), 0);
}

TEST_F(SkinCollection, ACountThatIsAskedForMeanwhileWaits)
{
    CTrace ignored;
    CSkinCollection a(context, "a", nullptr, 0, 10);
    CSkinCollection b(context, "b", nullptr, 0, 10);
    a.SetItemFactory(std::make_unique<CTracedItemFactory>(ignored));
    Load(b);
    {
        const CSkinCollectionContext::CChange change(*context);
        b.SetCount(5);
        b.SetCount(2);
        a.SetCount(1);
        EXPECT_EQ(b.GetCount(), 0);
    }
    EXPECT_EQ(b.GetCount(), 2);
    EXPECT_EQ(a.GetCount(), 1);
    EXPECT_THAT(Take().front(), "prepare 2");
}

TEST_F(SkinCollection, ACollectionThatHasGoneIsNotAsked)
{
    {
        const CSkinCollectionContext::CChange change(*context);
        CSkinCollection collection(context, "c", nullptr, 0, 10);
        Load(collection);
        collection.SetCount(5);
    }
    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(SkinCollection, ItemsOfAllCollectionsAreLimited)
{
    CSkinCollection a(context, "a", nullptr, 0, 2147483647);
    CSkinCollection b(context, "b", nullptr, 0, 2147483647);
    Load(a);
    Load(b);
    a.SetCount(maxCollectionItems - 3);
    b.SetCount(2147483647);
    EXPECT_EQ(b.GetCount(), 3);
    a.SetCount(0);
    b.SetCount(10);
    EXPECT_EQ(b.GetCount(), 10);
    b.SetCount(0);
    EXPECT_EQ(context->GetItems(), 0);
}

} // namespace
} // namespace Mirel::SkinEngine
