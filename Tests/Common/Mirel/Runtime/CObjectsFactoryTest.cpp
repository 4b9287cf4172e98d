#include "Mirel/Runtime/CObjectsFactory.h"

#include "Mirel/Runtime/TClassRegistration.h"

#include <gtest/gtest.h>

#include <memory>

namespace Mirel::Runtime
{
namespace
{

struct INumber
{
    static constexpr const char* classKey = "{number}";
    virtual int GetNumber() const = 0;
    virtual ~INumber() = default;
};

struct IOther
{
    virtual int GetOther() const = 0;
    virtual ~IOther() = default;
};

struct CSeven : IOther, INumber
{
    static constexpr const char* classKey = "{seven}";
    int GetNumber() const override { return 7; }
    int GetOther() const override { return 8; }
};

const TClassRegistration<CSeven, INumber> sevenRegistration;

TEST(CObjectsFactory, MakesARegisteredClassAsTheInterfaceAskedFor)
{
    const std::unique_ptr<INumber> number(
        static_cast<INumber*>(CObjectsFactory::Instance().Create("{seven}", "{number}")));
    ASSERT_NE(number, nullptr);
    EXPECT_EQ(number->GetNumber(), 7);
}

TEST(CObjectsFactory, MakesARegisteredClassAsItself)
{
    const std::unique_ptr<CSeven> seven(
        static_cast<CSeven*>(CObjectsFactory::Instance().Create("{seven}", "{seven}")));
    ASSERT_NE(seven, nullptr);
    EXPECT_EQ(seven->GetOther(), 8);
}

TEST(CObjectsFactory, GivesNullForAPairThatWasNotRegistered)
{
    const CObjectsFactory& factory = CObjectsFactory::Instance();
    EXPECT_EQ(factory.Create("{seven}", "{other}"), nullptr);
    EXPECT_EQ(factory.Create("{unknown}", "{number}"), nullptr);
    EXPECT_EQ(factory.Create("{number}", "{seven}"), nullptr);
    EXPECT_EQ(factory.Create(nullptr, "{number}"), nullptr);
    EXPECT_EQ(factory.Create("{seven}", nullptr), nullptr);
    EXPECT_EQ(factory.Find("{seven}", "{other}"), nullptr);
    EXPECT_NE(factory.Find("{seven}", "{number}"), nullptr);
}

TEST(CObjectsFactory, MakesANewObjectEachTime)
{
    const std::unique_ptr<INumber> first(
        static_cast<INumber*>(CObjectsFactory::Instance().Create("{seven}", "{number}")));
    const std::unique_ptr<INumber> second(
        static_cast<INumber*>(CObjectsFactory::Instance().Create("{seven}", "{number}")));
    EXPECT_NE(first, second);
}

TEST(CObjectsFactory, KeepsTheFirstRegistrationOfAPair)
{
    CObjectsFactory factory;
    const TObjectFactory<CSeven, INumber> first;
    const TObjectFactory<CSeven, INumber> second;
    EXPECT_TRUE(factory.Register("a", "b", first));
    EXPECT_FALSE(factory.Register("a", "b", second));
    EXPECT_FALSE(factory.Register(nullptr, "b", second));
    EXPECT_FALSE(factory.Register("a", nullptr, second));
    EXPECT_EQ(factory.Find("a", "b"), &first);
}

TEST(CObjectsFactory, IsOneForTheProcess)
{
    EXPECT_EQ(&CObjectsFactory::Instance(), &CObjectsFactory::Instance());
}

} // namespace
} // namespace Mirel::Runtime
