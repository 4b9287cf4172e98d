#include "Mirel/Containers/TPointersValueVector.h"

#include <gtest/gtest.h>
#include <string>

namespace Mirel::Containers
{
namespace
{

struct IShape
{
    virtual std::string GetName() const = 0;
    virtual ~IShape() = default;
};

struct CSquare : IShape
{
    std::string GetName() const override { return "square"; }
};

struct CCircle : IShape
{
    explicit CCircle(int* destroyed_) : destroyed(destroyed_) {}
    CCircle(const CCircle&) = delete;
    CCircle& operator=(const CCircle&) = delete;
    ~CCircle() override { ++*destroyed; }
    std::string GetName() const override { return "circle"; }
    int* destroyed;
};

TEST(TPointersValueVector, IsEmptyWithoutPointers)
{
    EXPECT_EQ(TPointersValueVector<IShape>().GetCount(), 0);
}

TEST(TPointersValueVector, ShowsTheObjectsThemselvesInTheirOrder)
{
    int destroyed = 0;
    const CSquare square;
    const CCircle circle(&destroyed);
    const TPointersValueVector<IShape> shapes{&circle, &square, &circle};

    ASSERT_EQ(shapes.GetCount(), 3);
    EXPECT_EQ(shapes[0].GetName(), "circle");
    EXPECT_EQ(&shapes[1], &square);
    EXPECT_EQ(&shapes[2], &circle);
}

TEST(TPointersValueVector, LeavesTheObjectsToTheirOwner)
{
    int destroyed = 0;
    {
        const CCircle circle(&destroyed);
        {
            TPointersValueVector<IShape> shapes{&circle};
            const TPointersValueVector<IShape> copy(shapes);
            shapes = {};
            EXPECT_EQ(&copy[0], &circle);
        }
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST(TPointersValueVector, AssignmentReplacesThePointers)
{
    const CSquare first;
    const CSquare second;
    TPointersValueVector<IShape> shapes{&first};

    shapes = {&second, &first};

    ASSERT_EQ(shapes.GetCount(), 2);
    EXPECT_EQ(&shapes[0], &second);
    EXPECT_EQ(&shapes[1], &first);
}

} // namespace
} // namespace Mirel::Containers
