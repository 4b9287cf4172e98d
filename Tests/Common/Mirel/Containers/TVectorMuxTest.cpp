#include "Mirel/Containers/TVectorMux.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace Mirel::Containers
{
namespace
{

/// A list over plain storage.
class CNumbers : public TIVector<int>
{
public:
    explicit CNumbers(std::vector<int> numbers_ = {}) : numbers(std::move(numbers_)) {}

    int GetCount() const override { return static_cast<int>(numbers.size()); }
    const int& operator[](int index) const override { return numbers[static_cast<std::size_t>(index)]; }
    int& operator[](int index) override { return numbers[static_cast<std::size_t>(index)]; }

    std::vector<int> numbers;
};

std::vector<int> Elements(const TIConstVector<int>& list)
{
    std::vector<int> elements(static_cast<std::size_t>(list.GetCount()));
    for (int i = 0; i < list.GetCount(); ++i)
    {
        elements[static_cast<std::size_t>(i)] = list[i];
    }
    return elements;
}

TEST(TVectorMux, IndexRunsThroughTheFirstListThenTheSecond)
{
    CNumbers first({1, 2});
    CNumbers second({3, 4, 5});

    EXPECT_EQ(Elements(TVectorMux<int>(first, second)), (std::vector<int>{1, 2, 3, 4, 5}));
    EXPECT_EQ(Elements(TConstVectorMux<int>(first, second)), (std::vector<int>{1, 2, 3, 4, 5}));
}

TEST(TVectorMux, EmptyListsOnEitherSideTakeNoIndex)
{
    CNumbers none;
    CNumbers some({7, 8});

    EXPECT_EQ(Elements(TVectorMux<int>(none, some)), (std::vector<int>{7, 8}));
    EXPECT_EQ(Elements(TVectorMux<int>(some, none)), (std::vector<int>{7, 8}));
    EXPECT_EQ(TVectorMux<int>(none, none).GetCount(), 0);
    EXPECT_EQ(Elements(TConstVectorMux<int>(none, some)), (std::vector<int>{7, 8}));
    EXPECT_EQ(Elements(TConstVectorMux<int>(some, none)), (std::vector<int>{7, 8}));
    EXPECT_EQ(TConstVectorMux<int>(none, none).GetCount(), 0);
}

TEST(TVectorMux, ShowsTheElementsThemselvesAndWritesThroughToThem)
{
    CNumbers first({1});
    CNumbers second({2});
    TVectorMux<int> mux(first, second);

    mux[0] = 10;
    mux[1] = 20;

    EXPECT_EQ(first.numbers, std::vector<int>{10});
    EXPECT_EQ(second.numbers, std::vector<int>{20});
    EXPECT_EQ(&static_cast<const TIVector<int>&>(mux)[1], &second.numbers[0]);
    EXPECT_EQ(&TConstVectorMux<int>(first, second)[0], &first.numbers[0]);
}

TEST(TVectorMux, FollowsListsThatGrowAndShrink)
{
    CNumbers first({1});
    CNumbers second({2});
    const TVectorMux<int> mux(first, second);
    const TConstVectorMux<int> constMux(first, second);

    first.numbers = {5, 6, 7};
    EXPECT_EQ(Elements(mux), (std::vector<int>{5, 6, 7, 2}));
    EXPECT_EQ(Elements(constMux), (std::vector<int>{5, 6, 7, 2}));

    first.numbers.clear();
    EXPECT_EQ(Elements(mux), std::vector<int>{2});
    EXPECT_EQ(Elements(constMux), std::vector<int>{2});
}

TEST(TVectorMux, MuxesNest)
{
    CNumbers first({1});
    CNumbers second({2, 3});
    CNumbers third({4});
    TVectorMux<int> inner(first, second);
    const TVectorMux<int> outer(inner, third);

    EXPECT_EQ(Elements(outer), (std::vector<int>{1, 2, 3, 4}));
}

} // namespace
} // namespace Mirel::Containers
