// The hand-over of the oscilloscope's curves: whatever happens to the filter, readers see a deep copy.

#include "Common/Mirel/Audio/Plugin/HandoverRig.h"
#include "Plugins/Oscilloscope/ScopeRig.h"
#include "Support/AllocationCounter.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <rapidcheck/gtest.h>
#include <utility>
#include <vector>

using Mirel::Math::IFunction;
using Tests::CHandoverRig;

namespace
{

constexpr int curveCount = 4;

using CPicture = std::vector<std::uint32_t>;

/// The bits of a curve's values: at the positions of a table of that size over -1 to 0 and between them, and
/// at the centres and edges of the histogram's bins.
CPicture Picture(const IFunction& function, int size)
{
    CPicture picture;
    for (int i = 0; i <= 3 * size; ++i)
    {
        const float x = -1.0f + static_cast<float>(i) / static_cast<float>(3 * size);
        picture.push_back(std::bit_cast<std::uint32_t>(function(x)));
    }
    for (int i = -150; i <= 150; ++i)
    {
        picture.push_back(std::bit_cast<std::uint32_t>(function(static_cast<float>(i) / 150.0f)));
    }
    return picture;
}

/// What a reader sees beside the deep copies that a plain implementation would have made.
class CTwin
{
public:
    explicit CTwin(int sampleRate) : rig(sampleRate), size(sampleRate)
    {
        rig.beforePublication = [this] { CloneDirty(); };
    }

    void Init(int sampleRate)
    {
        rig.Init(sampleRate);
        size = sampleRate;
    }

    /// run() runs a block on the rig and says whether something was published.
    template <class Run>
    bool Do(Run run)
    {
        const bool published = run();
        for (std::size_t i = 0; published && i < curveCount; ++i)
        {
            if (clones[i] != nullptr)
            {
                copies[i] = std::move(clones[i]);
                copiedSize = size;
            }
        }
        return published;
    }

    void ExpectSame()
    {
        for (std::size_t i = 0; i < curveCount; ++i)
        {
            CPicture read;
            const bool isThere = rig.captures.GetCurves()[static_cast<int>(i)].Read(
                [&](const IFunction& function) { read = Picture(function, copiedSize); });
            RC_ASSERT(isThere == (copies[i] != nullptr));
            RC_ASSERT(read == PictureOfCopy(i));
        }
    }

    void ExpectSameAfterUpdateOf(std::size_t curve)
    {
        const bool isThere =
            rig.captures.GetCurves()[static_cast<int>(curve)].UpdateCopy(readersCopies[curve]);
        RC_ASSERT(isThere == (copies[curve] != nullptr));
        const CPicture read = isThere ? Picture(*readersCopies[curve], copiedSize) : CPicture();
        RC_ASSERT(read == PictureOfCopy(curve));
    }

    CHandoverRig rig;

private:
    using CFunctions = std::array<std::unique_ptr<IFunction>, curveCount>;

    CPicture PictureOfCopy(std::size_t curve) const
    {
        return copies[curve] == nullptr ? CPicture() : Picture(*copies[curve], copiedSize);
    }

    void CloneDirty()
    {
        for (int i = 0; i < curveCount; ++i)
        {
            const bool isDirty = rig.filter->GetOutputCurvesDirty()[i].IsDirty();
            clones[static_cast<std::size_t>(i)].reset(isDirty ? rig.filter->GetOutputCurves()[i].Clone()
                                                              : nullptr);
        }
    }

    int size;
    int copiedSize = 1;
    CFunctions clones; ///< Of the curves that are dirty now.
    CFunctions copies; ///< Of those that were published.
    CFunctions readersCopies;
};

std::vector<float> ArbitrarySignal(int length)
{
    const int kind = *rc::gen::inRange(0, 3);
    if (kind == 0)
    {
        return std::vector<float>(static_cast<std::size_t>(length),
                                  static_cast<float>(*rc::gen::inRange(-3, 4)) / 2.0f);
    }
    return Tests::Noise(static_cast<std::size_t>(length), kind == 1 ? 1.0f : 1.5f,
                        *rc::gen::arbitrary<std::uint32_t>());
}

void SetArbitraryParam(CHandoverRig& rig)
{
    const auto param = static_cast<CHandoverRig::EParam>(*rc::gen::inRange(0, 6));
    switch (param)
    {
    case CHandoverRig::ViewMode:
        rig.Set(param, static_cast<float>(*rc::gen::inRange(0, 3)));
        break;
    case CHandoverRig::Delay:
        rig.Set(param, static_cast<float>(*rc::gen::inRange(0, 301)));
        break;
    case CHandoverRig::TriggerValue:
        rig.Set(param, static_cast<float>(*rc::gen::inRange(-4, 5)) / 4.0f);
        break;
    default:
        rig.Set(param, static_cast<float>(*rc::gen::inRange(0, 2)));
    }
}

} // namespace

RC_GTEST_PROP(OscilloscopeHandover, ReadersSeeADeepCopyToTheBitWhateverHappens, ())
{
    const int firstRate = *rc::gen::inRange(1, 60);
    CTwin twin(firstRate);
    CHandoverRig& rig = twin.rig;
    const int steps = *rc::gen::inRange(1, 25);
    for (int step = 0; step < steps; ++step)
    {
        switch (*rc::gen::weightedElement<int>({{8, 0}, {3, 1}, {4, 2}, {1, 3}, {1, 4}, {2, 5}, {4, 6}}))
        {
        case 0:
        {
            const std::vector<float> left = ArbitrarySignal(*rc::gen::inRange(0, 100));
            std::vector<float> right = ArbitrarySignal(static_cast<int>(left.size()));
            twin.Do(
                [&]
                {
                    std::vector<float> sameLeft = left;
                    return rig.Process(sameLeft, right);
                });
            break;
        }
        case 1:
        {
            const int count = *rc::gen::inRange(0, 100);
            twin.Do([&] { return rig.Silence(count); });
            break;
        }
        case 2:
            SetArbitraryParam(rig);
            break;
        case 3:
            twin.Init(*rc::gen::inRange(1, 60));
            break;
        case 4:
            rig.filter->GetOutputDataSync()->SetRefreshRate(*rc::gen::element<double>(0.0, 1.0, 10.0, 50.0));
            break;
        case 5:
        {
            const Tests::CLockHolder reader(rig.captures.GetLock());
            const auto signal = ArbitrarySignal(*rc::gen::inRange(0, 100));
            RC_ASSERT(!twin.Do([&] { return rig.Process(signal); }));
            break;
        }
        default:
            twin.ExpectSameAfterUpdateOf(static_cast<std::size_t>(*rc::gen::inRange(0, curveCount)));
        }
        twin.ExpectSame();
    }
}

TEST(OscilloscopeHandover, TheFirstBlockAfterAnInitIsPublished)
{
    CHandoverRig rig(1000.0, 50.0);
    EXPECT_TRUE(rig.Process({0.5f}));
    EXPECT_EQ(rig.Read(0, 0.0f), 0.5f);
    EXPECT_FALSE(rig.Process({0.25f}));
    EXPECT_EQ(rig.Read(0, 0.0f), 0.5f);

    rig.Init(2000.0);
    EXPECT_EQ(rig.Read(0, 0.0f), 0.5f) << "the last picture stands until then";
    EXPECT_TRUE(rig.Process({0.75f}));
    EXPECT_EQ(rig.Read(0, 0.0f), 0.75f);
}

TEST(OscilloscopeHandover, ABlockLongerThanThePeriodIsPublishedOnceAndStartsAnew)
{
    CHandoverRig rig(1000.0, 50.0); // 20 samples
    rig.Process({0.0f});
    EXPECT_TRUE(rig.Process(std::vector<float>(70)));
    EXPECT_FALSE(rig.Process(std::vector<float>(19)));
    EXPECT_TRUE(rig.Process(std::vector<float>(1)));
}

TEST(OscilloscopeHandover, WithARefreshRateOf0EveryBlockIsPublished)
{
    CHandoverRig rig(1000.0, 0.0);
    for (const float value : {0.25f, 0.5f, 0.75f})
    {
        EXPECT_TRUE(rig.Process({value}));
        EXPECT_EQ(rig.Read(0, 0.0f), value);
    }
}

TEST(OscilloscopeHandover, OutputStaysDueWhileAReaderHoldsTheLock)
{
    CHandoverRig rig(1000.0, 50.0);
    rig.Process({0.5f});
    {
        const Tests::CLockHolder reader(rig.captures.GetLock());
        EXPECT_FALSE(rig.Process(std::vector<float>(20, 0.25f)));
        EXPECT_TRUE(rig.filter->GetOutputDataSync()->IsOutputDue());
    }
    EXPECT_EQ(rig.Read(0, 0.0f), 0.5f);
    EXPECT_TRUE(rig.Process({0.75f})) << "the next block publishes, not the next period";
    EXPECT_EQ(rig.Read(0, 0.0f), 0.75f);
    EXPECT_FALSE(rig.Process({0.0f}));
}

TEST(OscilloscopeHandover, SilencePastTheTailKeepsTheLastPicture)
{
    CHandoverRig rig(100.0);
    rig.Process({0.5f});
    rig.captures.DeliverChanges();
    EXPECT_TRUE(rig.Silence(100)); // the tail
    EXPECT_TRUE(rig.captures.GetCurves()[0].IsChanged());
    rig.captures.DeliverChanges();
    EXPECT_TRUE(rig.Silence(100)); // past it: due, but nothing is dirty
    EXPECT_FALSE(rig.captures.GetCurves()[0].IsChanged());
    EXPECT_EQ(rig.Read(1, 0.0f), 1.0f) << "the histogram of the tail's zeros";
}

TEST(OscilloscopeHandover, BothChannelsHaveCurvesOfTheirOwn)
{
    CHandoverRig rig(100.0);
    std::vector<float> left{0.5f};
    std::vector<float> right{-0.25f};
    rig.Process(left, right);
    EXPECT_EQ(rig.Read(0, 0.0f), 0.5f);
    EXPECT_EQ(rig.Read(1, 0.5f), 1.0f);
    EXPECT_EQ(rig.Read(2, 0.0f), -0.25f);
    EXPECT_EQ(rig.Read(3, -0.25f), 1.0f);
}

TEST(OscilloscopeHandover, NothingIsAllocatedOnceTheFilterIsInitialised)
{
    CHandoverRig rig(48000.0, 50.0);
    std::vector<float> left = Tests::Noise(700, 1.0f, 1);
    std::vector<float> right = Tests::Noise(700, 1.0f, 2);
    std::vector<float> longLeft = Tests::Noise(60000, 1.0f, 3);
    std::vector<float> longRight = Tests::Noise(60000, 1.0f, 4);
    for (const double rate : {48000.0, 192000.0, 44100.0})
    {
        rig.Init(rate);
        const Tests::CAllocationCounter allocations;
        for (int round = 0; round < 40; ++round)
        {
            rig.Set(CHandoverRig::ViewMode, static_cast<float>(round % 3));
            rig.Set(CHandoverRig::StereoMode, static_cast<float>(round / 3 % 2));
            rig.Set(CHandoverRig::Sync, static_cast<float>(round / 10 % 2));
            rig.Process(left, right);
            rig.Process(left, right);
            rig.Silence(1000);
        }
        rig.Process(longLeft, longRight);
        rig.Silence(200000);
        rig.Process(left, right);
        EXPECT_EQ(allocations.GetCount(), 0U) << rate;
    }
}
