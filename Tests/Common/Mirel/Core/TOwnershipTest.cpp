#include "Mirel/Core/TOwnership.h"

#include <gtest/gtest.h>
#include <type_traits>
#include <utility>

using namespace Mirel::Core;

namespace
{

class CMortal
{
public:
    explicit CMortal(int& deaths_) : deaths(&deaths_) {}
    CMortal(const CMortal&) = default;
    CMortal& operator=(const CMortal&) = delete;
    virtual ~CMortal() { ++*deaths; }
    CMortal* Clone() const { return new CMortal(*this); }
    int value = 0;

private:
    int* deaths;
};

class CDerived : public CMortal
{
public:
    CDerived(int& deaths_, int& derivedDeaths_) : CMortal(deaths_), derivedDeaths(&derivedDeaths_) {}
    CDerived(const CDerived&) = delete;
    CDerived& operator=(const CDerived&) = delete;
    ~CDerived() override { ++*derivedDeaths; }

private:
    int* derivedDeaths;
};

} // namespace

TEST(TOwnership, DestroysAnOwnedObjectThroughItsVirtualDestructor)
{
    int deaths = 0;
    int derivedDeaths = 0;
    {
        const TOwnership<CMortal> holder(new CDerived(deaths, derivedDeaths), true);
    }
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(derivedDeaths, 1);
}

TEST(TOwnership, LeavesABorrowedObjectAlone)
{
    int deaths = 0;
    CMortal object(deaths);
    {
        const TOwnership<CMortal> holder(&object, false);
    }
    EXPECT_EQ(deaths, 0);
}

TEST(TOwnership, IsEmptyAndMarkedAsOwnerAfterRelease)
{
    int deaths = 0;
    CMortal object(deaths);
    TOwnership<CMortal> holder(&object, false);

    holder.Release();

    EXPECT_EQ(holder.Get(), nullptr);
    EXPECT_TRUE(holder.IsOwned());
    EXPECT_FALSE(static_cast<bool>(holder));
}

TEST(TOwnership, MoveHandsTheObjectOver)
{
    int deaths = 0;
    TOwnership<CMortal> first(new CMortal(deaths), true);
    TOwnership<CMortal> second(new CMortal(deaths), true);

    second = std::move(first);
    EXPECT_EQ(deaths, 1);
    const TOwnership<CMortal> third(std::move(second));
    EXPECT_EQ(deaths, 1);
    EXPECT_NE(third.Get(), nullptr);
}

TEST(TOwnership, CannotBeCopied)
{
    EXPECT_FALSE(std::is_copy_constructible_v<TOwnership<CMortal>>);
    EXPECT_FALSE(std::is_copy_assignable_v<TOwnership<CMortal>>);
}

TEST(TOwnershipWithClone, CopyOwnsACloneEvenOfABorrowedObject)
{
    int deaths = 0;
    CMortal object(deaths);
    object.value = 5;
    {
        const TOwnershipWithClone<CMortal> borrowed(&object, false);
        TOwnershipWithClone<CMortal> copy(borrowed); // NOLINT(performance-unnecessary-copy-initialization)
        EXPECT_NE(copy.Get(), &object);
        EXPECT_EQ(copy->value, 5);
        EXPECT_TRUE(copy.IsOwned());

        copy->value = 6;
        TOwnershipWithClone<CMortal> assigned;
        assigned = copy;
        EXPECT_EQ(assigned->value, 6);
    }
    EXPECT_EQ(deaths, 2);
    EXPECT_EQ(object.value, 5);
}

TEST(TOwnershipWithClone, CopyOfNothingIsNothing)
{
    const TOwnershipWithClone<CMortal> empty;
    const TOwnershipWithClone<CMortal> copy(empty); // NOLINT(performance-unnecessary-copy-initialization)

    EXPECT_EQ(copy.Get(), nullptr);
}
