#include "Mirel/Core/Interpolators.h"
#include "Mirel/Core/TLookupTable.h"
#include "Mirel/Math/CConstant.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CFunctionsComposition.h"
#include "Mirel/Math/CWriteCount.h"
#include "Mirel/Math/TCircularLUTFunction.h"
#include "Mirel/Math/TDeprecatedCircularLUTFunction.h"
#include "Mirel/Math/TFunctionsOperation.h"
#include "Mirel/Math/THistogram.h"
#include "Mirel/Math/TLUTFunction.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Support/AllocationCounter.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace Mirel::Core;
using namespace Mirel::Math;

namespace
{

using CSplineTable = TLookupTable<float, TConstrainedSplineInterpolator<float, float>>;
using CNearestTable = TLookupTable<float, TNearestInterpolator<float, float>>;
using CRing = TCircularLUTFunction<CSplineTable>;
using CProduct = TFunctionsOperation<&FunctionsLibrary::Product>;

/// The bits of the values over -2 to 2, ends and places between positions included.
std::vector<std::uint32_t> Picture(const IFunction& function)
{
    std::vector<std::uint32_t> picture;
    for (int i = -400; i <= 400; ++i)
    {
        picture.push_back(std::bit_cast<std::uint32_t>(function(static_cast<float>(i) / 200.0f)));
    }
    return picture;
}

std::unique_ptr<IFunction> CloneOf(const IFunction& function)
{
    return std::unique_ptr<IFunction>(function.Clone());
}

/// UpdateClone must give what Clone gives, without an allocation.
void ExpectUpdated(const IFunction& live, IFunction& older)
{
    const auto clone = CloneOf(live);
    const Tests::CAllocationCounter allocations;
    const bool ok = live.UpdateClone(older);
    EXPECT_EQ(allocations.GetCount(), 0U);
    EXPECT_TRUE(ok);
    EXPECT_EQ(Picture(older), Picture(*clone));
}

CRing MakeRing(int size)
{
    CRing ring(-1.0f, 1.0f);
    ring.SetSize(size);
    return ring;
}

std::vector<float> ArbitraryBlock(int maxLength)
{
    std::vector<float> block(static_cast<std::size_t>(*rc::gen::inRange(0, maxLength + 1)));
    for (float& value : block)
    {
        value = static_cast<float>(*rc::gen::inRange(-100, 101)) / 64.0f;
    }
    return block;
}

} // namespace

TEST(CWriteCount, TellsWhatWasWrittenSinceACopy)
{
    CWriteCount original;
    original.Add(3);
    const CWriteCount copy = original;
    EXPECT_EQ(original.GetWrittenSince(copy), 0U);
    original.Add(4);
    EXPECT_EQ(original.GetWrittenSince(copy), 4U);
}

TEST(CWriteCount, ALaterStateIsNoEarlierOne)
{
    CWriteCount original;
    const CWriteCount early = original;
    original.Add(1);
    EXPECT_EQ(early.GetWrittenSince(original), std::nullopt);
}

TEST(CWriteCount, OthersAndRestartedOnesAreNoEarlierState)
{
    CWriteCount original;
    CWriteCount copy = original;
    EXPECT_EQ(original.GetWrittenSince(CWriteCount()), std::nullopt);
    original.Restart();
    EXPECT_EQ(original.GetWrittenSince(copy), std::nullopt);
}

TEST(CWriteCount, ACopyThatIsWrittenToBreaksAway)
{
    CWriteCount original;
    CWriteCount copy = original;
    const CWriteCount before = copy;
    copy.Add(2);
    original.Add(2);
    EXPECT_EQ(original.GetWrittenSince(copy), std::nullopt);
    EXPECT_EQ(copy.GetWrittenSince(before), std::nullopt);

    const CWriteCount after = copy;
    copy.Add(5);
    EXPECT_EQ(copy.GetWrittenSince(after), 5U);
}

TEST(UpdateClone, ARingCatchesUpWithWhatWasWritten)
{
    CRing ring = MakeRing(7);
    ring.Write(std::vector<float>{1, 2, 3, 4, 5});
    const auto older = CloneOf(ring);
    ring.Write(std::vector<float>{6, 7, 8, 9}); // wraps
    ring.WriteZeros(1);
    ring.SetWindow(3, 1);
    ExpectUpdated(ring, *older);
}

TEST(UpdateClone, ARingCatchesUpAfterMoreThanOneRound)
{
    CRing ring = MakeRing(7);
    const auto older = CloneOf(ring);
    ring.Write(std::vector<float>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17});
    ExpectUpdated(ring, *older);
}

TEST(UpdateClone, ARingCatchesUpAfterAReset)
{
    CRing ring = MakeRing(7);
    ring.Write(std::vector<float>{1, 2, 3});
    const auto older = CloneOf(ring);
    ring.Reset();
    ring.Write(std::vector<float>{4, 5, 6, 7});
    ExpectUpdated(ring, *older);
}

TEST(UpdateClone, TwoCopiesOfARingAreNotTakenForOneAnother)
{
    CRing ring = MakeRing(7);
    ring.Write(std::vector<float>{1, 2, 3});
    CRing other = ring;
    ring.Write(std::vector<float>{4, 5});
    other.Write(std::vector<float>{6, 7});
    const auto older = CloneOf(ring);
    other.Write(std::vector<float>{8});
    ExpectUpdated(other, *older);
}

TEST(UpdateClone, ACloneBringsAnotherUpToDate)
{
    CRing ring = MakeRing(7);
    const auto first = CloneOf(ring);
    const auto second = CloneOf(ring);
    ring.Write(std::vector<float>{1, 2, 3, 4, 5});
    ASSERT_TRUE(ring.UpdateClone(*first));
    ExpectUpdated(*first, *second);
}

TEST(UpdateClone, AnEarlierCloneTurnsALaterOneBack)
{
    CRing ring = MakeRing(7);
    ring.Write(std::vector<float>{1, 2});
    const auto early = CloneOf(ring);
    ring.Write(std::vector<float>{3, 4});
    const auto late = CloneOf(ring);
    ExpectUpdated(*early, *late);
}

TEST(UpdateClone, ARingOfAnotherSizeIsRefused)
{
    CRing ring = MakeRing(7);
    const auto older = CloneOf(ring);
    ring.SetSize(8);
    EXPECT_FALSE(ring.UpdateClone(*older));
}

TEST(UpdateClone, ARingReadFromADocumentTakesTheCloneAlong)
{
    CRing saved = MakeRing(5);
    saved.Write(std::vector<float>{5, 6, 7});
    Mirel::Serialization::CMemDataObject document;
    ASSERT_TRUE(saved.Serialize(document));

    CRing ring = MakeRing(5);
    ring.Write(std::vector<float>{1, 2, 3});
    const auto older = CloneOf(ring);
    ASSERT_TRUE(ring.Deserialize(document));
    ExpectUpdated(ring, *older);
}

TEST(UpdateClone, RingsOfNoneAndOnePosition)
{
    for (const int size : {0, 1, 2})
    {
        CRing ring = MakeRing(size);
        const auto older = CloneOf(ring);
        ring.Write(std::vector<float>{1, 2, 3});
        ExpectUpdated(ring, *older);
        ring.Write(std::vector<float>{4});
        ExpectUpdated(ring, *older);
    }
}

TEST(UpdateClone, TheEarlierFormOfTheRing)
{
    TDeprecatedCircularLUTFunction<CSplineTable> ring(-1.0f, 1.0f);
    ring.SetSize(6);
    const auto older = CloneOf(ring);
    ring.Write(std::vector<float>{1, 2, 3, 4});
    ExpectUpdated(ring, *older);
}

RC_GTEST_PROP(UpdateClone, ARingIsCopiedToTheBitWhateverHappenedToIt, ())
{
    const int size = *rc::gen::inRange(0, 12);
    CRing ring = MakeRing(size);
    std::vector<std::unique_ptr<IFunction>> clones; // brought up to date at different times
    clones.push_back(CloneOf(ring));
    clones.push_back(CloneOf(ring));
    const int steps = *rc::gen::inRange(1, 30);
    for (int step = 0; step < steps; ++step)
    {
        switch (*rc::gen::inRange(0, 8))
        {
        case 0:
            ring.WriteZeros(static_cast<std::size_t>(*rc::gen::inRange(0, 30)));
            break;
        case 1:
            ring.SetWindow(*rc::gen::inRange(0, size + 1), *rc::gen::inRange(0, size + 1));
            break;
        case 2:
            ring.Reset();
            break;
        case 3:
            ring = CRing(ring);
            break;
        case 4:
        case 5:
        {
            IFunction& clone = *clones[static_cast<std::size_t>(*rc::gen::inRange(0, 2))];
            RC_ASSERT(ring.UpdateClone(clone));
            RC_ASSERT(Picture(clone) == Picture(ring));
            break;
        }
        default:
            ring.Write(ArbitraryBlock(30));
        }
    }
}

TEST(UpdateClone, AHistogramsCurveIsFrozenAnew)
{
    THistogram<CNearestTable> histogram(9, -1.0f, 1.0f);
    histogram.SetLength(4);
    const auto older = CloneOf(histogram.GetFunction());
    histogram.Add(std::vector<float>{0.0f, 0.1f, 1.0f, 1.0f, 1.0f});
    histogram.Normalise();
    ExpectUpdated(histogram.GetFunction(), *older);
    EXPECT_EQ((*older)(1.0f), 1.0f);

    histogram.Reset(); // without a new factor: empty bins
    ExpectUpdated(histogram.GetFunction(), *older);
    EXPECT_EQ((*older)(1.0f), 0.0f);
}

TEST(UpdateClone, AHistogramOfOtherBinsOrAnotherRangeIsRefused)
{
    const THistogram<CNearestTable> histogram(9, -1.0f, 1.0f);
    const THistogram<CNearestTable> finer(17, -1.0f, 1.0f);
    const THistogram<CNearestTable> wider(9, -2.0f, 2.0f);
    const auto older = CloneOf(histogram.GetFunction());
    EXPECT_FALSE(finer.GetFunction().UpdateClone(*older));
    EXPECT_FALSE(wider.GetFunction().UpdateClone(*older));
}

TEST(UpdateClone, Constants)
{
    CConstantFunction one(1.0f);
    ExpectUpdated(CConstantFunction(2.0f), one);

    CConstantBinaryFunction binary(1.0f);
    EXPECT_TRUE(CConstantBinaryFunction(2.0f).UpdateClone(binary));
    EXPECT_EQ(binary(0.0f, 0.0f), 2.0f);

    CConstant constant(1.0f);
    EXPECT_TRUE(CConstant(2.0f).UpdateClone(constant));
    EXPECT_EQ(constant(), 2.0f);
}

TEST(UpdateClone, Tables)
{
    CSplineTable values(-1.0f, 1.0f, 4);
    TLUTFunction<CSplineTable> table(values);
    const auto older = CloneOf(table);
    ASSERT_TRUE(table.SetValues(std::vector<float>{1, 3, 2, 5}));
    EXPECT_FALSE(table.SetValues(std::vector<float>{1}));
    ExpectUpdated(table, *older);
    EXPECT_EQ((*older)(1.0f), 5.0f);
    EXPECT_FALSE(TLUTFunction<CSplineTable>(CSplineTable(-1.0f, 1.0f, 5)).UpdateClone(*older));
}

TEST(UpdateClone, AListUpdatesWhatItsCloneOwns)
{
    CConstantFunction live(2.0f);
    CProduct product;
    product.Add(&live, false);
    product.Add(new CConstantFunction(3.0f), true);
    product.Add(nullptr, false);
    CProduct withoutNull;
    withoutNull.Add(&live, false);
    withoutNull.Add(new CConstantFunction(3.0f), true);

    const auto older = CloneOf(withoutNull);
    live.SetValue(5.0f);
    ExpectUpdated(withoutNull, *older);
    EXPECT_EQ((*older)(0.0f), 15.0f);
    EXPECT_FALSE(product.UpdateClone(*older)) << "other functions";
}

TEST(UpdateClone, AListLeavesAloneWhatItsTargetOnlyBorrows)
{
    CConstantFunction live(2.0f);
    CConstantFunction lent(1.0f);
    CProduct product;
    product.Add(&live, false);
    CProduct borrower;
    borrower.Add(&lent, false);
    EXPECT_FALSE(product.UpdateClone(borrower));
    EXPECT_EQ(lent.GetValue(), 1.0f);
}

TEST(UpdateClone, AnotherClassIsRefused)
{
    CConstantFunction constant(1.0f);
    CRing ring = MakeRing(3);
    TLUTFunction<CSplineTable> table(CSplineTable(-1.0f, 1.0f, 3));
    CProduct product;
    const THistogram<CNearestTable> histogram(9, -1.0f, 1.0f);
    EXPECT_FALSE(ring.UpdateClone(constant));
    EXPECT_FALSE(constant.UpdateClone(ring));
    EXPECT_FALSE(table.UpdateClone(ring));
    EXPECT_FALSE(product.UpdateClone(ring));
    EXPECT_FALSE(histogram.GetFunction().UpdateClone(table));
}

TEST(UpdateClone, AFunctionWithoutAWayOfItsOwnIsCloned)
{
    const CFunctionsComposition identity;
    const auto clone = CloneOf(identity);
    EXPECT_FALSE(identity.UpdateClone(*clone));
}

RC_GTEST_PROP(UpdateClone, AHistogramIsFrozenToTheBitWhateverHappenedToIt, ())
{
    const int length = *rc::gen::inRange(0, 40);
    auto histogram = std::make_unique<THistogram<CNearestTable>>(9, -1.0f, 1.0f);
    histogram->SetLength(length);
    const auto older = CloneOf(histogram->GetFunction());
    std::vector<float> history; // the second computation: what is in the window, and the last factor
    float factor = 0.0f;
    const auto countIn = [&](int bin)
    {
        const auto inWindow = std::min(history.size(), static_cast<std::size_t>(length));
        return std::count_if(history.end() - static_cast<std::ptrdiff_t>(inWindow), history.end(),
                             [bin](float value)
                             {
                                 const float clamped = std::clamp(value, -1.0f, 1.0f);
                                 return static_cast<int>((clamped + 1.0f) * 4.0f + 0.5f) == bin;
                             });
    };
    const int steps = *rc::gen::inRange(1, 30);
    for (int step = 0; step < steps; ++step)
    {
        switch (*rc::gen::inRange(0, 6))
        {
        case 0:
            histogram->Reset();
            history.clear();
            break;
        case 1:
            histogram = std::make_unique<THistogram<CNearestTable>>(*histogram);
            break;
        case 2:
        {
            histogram->Normalise();
            std::ptrdiff_t fullest = 0;
            for (int bin = 0; bin < 9; ++bin)
            {
                fullest = std::max(fullest, countIn(bin));
            }
            factor = fullest > 0 ? 1.0f / static_cast<float>(fullest) : 0.0f;
            break;
        }
        default:
        {
            const std::vector<float> block = ArbitraryBlock(60);
            histogram->Add(block);
            history.insert(history.end(), block.begin(), block.end());
        }
        }
        RC_ASSERT(histogram->GetFunction().UpdateClone(*older));
        RC_ASSERT(Picture(*older) == Picture(*CloneOf(histogram->GetFunction())));
        for (int bin = 0; bin < 9; ++bin)
        {
            RC_ASSERT((*older)(static_cast<float>(bin - 4) / 4.0f) ==
                      static_cast<float>(countIn(bin)) * factor);
        }
    }
}
