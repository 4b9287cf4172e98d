#include "Mirel/Runtime/CDynamicObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Mirel::Runtime
{
namespace
{

using testing::ElementsAre;

struct ILeft
{
    virtual int GetLeft() const = 0;
    virtual ~ILeft() = default;
};

struct IRight
{
    virtual int GetRight() const = 0;
    virtual ~IRight() = default;
};

struct CBoth : ILeft, IRight
{
    CBoth(std::string name_, std::vector<std::string>& deaths_) : name(std::move(name_)), deaths(deaths_) {}
    ~CBoth() override { deaths.push_back(name); }
    int GetLeft() const override { return 1; }
    int GetRight() const override { return 2; }
    std::string name;
    std::vector<std::string>& deaths;
};

TEST(CDynamicObject, AnswersItsClassName)
{
    const CDynamicObject first;
    const CDynamicObject second;
    EXPECT_STREQ(first.GetTypeInfo().GetClassName(), "CDynamicObject");
    EXPECT_EQ(first.GetTypeInfo().GetClassKey(), nullptr);
    EXPECT_EQ(&first.GetTypeInfo(), &second.GetTypeInfo());
}

TEST(CDynamicObject, HandsOutInterfacesByName)
{
    std::vector<std::string> deaths;
    CBoth both("both", deaths);
    CDynamicObject object;
    object.AddInterface<ILeft>("left", &both, false);
    object.AddInterface<IRight>("right", &both, false);
    EXPECT_EQ(static_cast<ILeft*>(object.GetInterface("left"))->GetLeft(), 1);
    EXPECT_EQ(static_cast<IRight*>(object.GetInterface("right"))->GetRight(), 2);
    const IDynamicObject& readOnly = object;
    EXPECT_EQ(static_cast<const IRight*>(readOnly.GetInterface("right"))->GetRight(), 2);
}

TEST(CDynamicObject, GivesNullForAnAbilityItHasNot)
{
    CDynamicObject object;
    EXPECT_EQ(object.GetInterface("left"), nullptr);
    EXPECT_EQ(object.GetInterface(nullptr), nullptr);
    const IDynamicObject& readOnly = object;
    EXPECT_EQ(readOnly.GetInterface("left"), nullptr);
}

TEST(CDynamicObject, DestroysWhatItOwnsAndLeavesTheRest)
{
    std::vector<std::string> deaths;
    CBoth borrowed("borrowed", deaths);
    {
        CDynamicObject object;
        object.AddInterface<ILeft>("a", new CBoth("first", deaths), true);
        object.AddInterface<IRight>("b", new CBoth("second", deaths), true);
        object.AddInterface<ILeft>("c", &borrowed, false);
    }
    EXPECT_THAT(deaths, ElementsAre("second", "first"));
}

TEST(CDynamicObject, OwnsAnObjectWithTwoInterfacesOnce)
{
    std::vector<std::string> deaths;
    CDynamicObject object;
    auto* both = new CBoth("both", deaths);
    object.AddInterface<ILeft>("left", both, true);
    object.AddInterface<IRight>("right", both, true);
    object.Clear();
    EXPECT_THAT(deaths, ElementsAre("both"));
    EXPECT_EQ(object.GetInterface("left"), nullptr);
}

TEST(CDynamicObject, ALaterInterfaceReplacesTheOneOfItsName)
{
    std::vector<std::string> deaths;
    CBoth borrowed("borrowed", deaths);
    CDynamicObject object;
    object.AddInterface<ILeft>("left", new CBoth("old", deaths), true);
    object.AddInterface<ILeft>("left", &borrowed, false);
    EXPECT_EQ(object.GetInterface("left"), static_cast<ILeft*>(&borrowed));
    // Somebody may still hold the replaced one.
    EXPECT_THAT(deaths, ElementsAre());
    object.Clear();
    EXPECT_THAT(deaths, ElementsAre("old"));
}

TEST(CDynamicObject, TakesOverAnObjectWithoutAName)
{
    std::vector<std::string> deaths;
    CDynamicObject object;
    object.AddInterface<ILeft>(nullptr, new CBoth("nameless", deaths), true);
    object.Clear();
    EXPECT_THAT(deaths, ElementsAre("nameless"));
}

TEST(CDynamicObject, HoldsPlainDataToo)
{
    CDynamicObject object;
    object.AddInterface("number", new int(5), true);
    EXPECT_EQ(*static_cast<int*>(object.GetInterface("number")), 5);
}

} // namespace
} // namespace Mirel::Runtime
