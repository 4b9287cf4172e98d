#include "AAXPlugin/Interface/TACFReference.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

namespace
{

struct CCounted
{
    void AddReference() { ++references; }

    void Release()
    {
        if (throws)
        {
            throw std::runtime_error("refused");
        }
        --references;
    }

    int references = 1;
    bool throws = false;
};

TEST(TACFReference, HoldsAReferenceOfItsOwn)
{
    CCounted object;
    {
        const TACFReference<CCounted> reference(&object);
        EXPECT_EQ(object.references, 2);
    }
    EXPECT_EQ(object.references, 1);
}

TEST(TACFReference, AdoptTakesTheGivenReferenceOver)
{
    CCounted object;
    {
        const auto reference = TACFReference<CCounted>::Adopt(&object);
        EXPECT_EQ(object.references, 1);
    }
    EXPECT_EQ(object.references, 0);
}

TEST(TACFReference, CopyAddsMoveDoesNot)
{
    CCounted object;
    TACFReference<CCounted> first(&object);
    TACFReference<CCounted> second(first);
    EXPECT_EQ(object.references, 3);
    const TACFReference<CCounted> third(std::move(second));
    EXPECT_EQ(object.references, 3);
    EXPECT_EQ(third.Get(), &object);
    first = {};
    EXPECT_EQ(object.references, 2);
    EXPECT_FALSE(first);
    first = third;
    EXPECT_EQ(object.references, 3);
}

TEST(TACFReference, NullIsHeldQuietly)
{
    const TACFReference<CCounted> none(nullptr);
    TACFReference<CCounted> copy(none);
    EXPECT_FALSE(copy);
    copy = none;
    EXPECT_EQ(copy.Get(), nullptr);
}

TEST(TACFReference, ThrowingReleaseIsContained)
{
    CCounted object;
    object.throws = true;
    {
        const TACFReference<CCounted> reference(&object);
    }
    EXPECT_EQ(object.references, 2);
}

} // namespace
