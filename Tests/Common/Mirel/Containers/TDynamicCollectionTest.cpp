#include "Mirel/Containers/TDynamicCollection.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace Mirel::Containers
{
namespace
{

struct IItem
{
    virtual std::string GetText() const = 0;
    virtual ~IItem() = default;
};

struct CItem : IItem
{
    CItem(std::string text_, std::shared_ptr<int> life_) : text(std::move(text_)), life(std::move(life_)) {}
    std::string GetText() const override { return text; }
    std::string text;
    std::shared_ptr<int> life;
};

using CItems = TDynamicCollection<CItem, IItem>;

TEST(TDynamicCollection, MakesItsObjectsAndShowsThemAsTheInterface)
{
    CItems items;
    items.Add("first", nullptr);
    items.Add("second", nullptr);
    TIVector<IItem>& view = items;
    EXPECT_EQ(view.GetCount(), 2);
    EXPECT_EQ(view[1].GetText(), "second");
}

TEST(TDynamicCollection, KeepsTheAddressesOfItsObjects)
{
    CItems items;
    const CItem* first = &items.Add("first", nullptr);
    for (int i = 0; i < 100; ++i)
    {
        items.Add("more", nullptr);
    }
    EXPECT_EQ(&items[0], first);
}

TEST(TDynamicCollection, CopiesItsObjectsWithItself)
{
    CItems items;
    items.Add("one", nullptr);
    CItems copy(items);
    copy[0].text = "changed";
    EXPECT_EQ(items[0].text, "one");
    items = copy;
    EXPECT_EQ(items[0].text, "changed");
    EXPECT_NE(&items[0], &copy[0]);
}

TEST(TDynamicCollection, DestroysItsObjects)
{
    const auto life = std::make_shared<int>(0);
    {
        CItems items;
        items.Add("a", life);
        items.Add("b", life);
        EXPECT_EQ(life.use_count(), 3);
        items.Clear();
        EXPECT_EQ(life.use_count(), 1);
        items.Add("c", life);
    }
    EXPECT_EQ(life.use_count(), 1);
}

} // namespace
} // namespace Mirel::Containers
