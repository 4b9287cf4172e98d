#include "Plugins/Oscilloscope/COscilloscope.h"

#include "Plugins/Oscilloscope/ScopeRig.h"
#include "Support/LiteralScope.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

using namespace PluginsFilters;
using Tests::CScopeRig;
using Tests::Noise;

namespace
{

using EParam = COscilloscope::EParam;

/// The last second of the delayed signal, counted from scratch in double precision.
std::vector<float> ExpectedShares(const std::vector<float>& signal, std::size_t processed, double sampleRate,
                                  double delayMs)
{
    const auto window = static_cast<std::size_t>(sampleRate + 0.5);
    const auto delay = static_cast<std::size_t>(0.001 * sampleRate * delayMs);
    std::vector<int> counts(151, 0);
    for (std::size_t i = processed - std::min(processed, window); i < processed; ++i)
    {
        const float sample = i < delay ? 0.0f : signal[i - delay];
        const float clamped = std::clamp(sample, -1.0f, 1.0f);
        ++counts[static_cast<std::size_t>((clamped + 1.0f) * 75.0f + 0.5f)];
    }
    const float factor = 1.0f / static_cast<float>(*std::max_element(counts.begin(), counts.end()));
    std::vector<float> shares(counts.size());
    std::transform(counts.begin(), counts.end(), shares.begin(),
                   [factor](int count) { return static_cast<float>(count) * factor; });
    return shares;
}

std::vector<float> Shares(const CScopeRig& rig)
{
    std::vector<float> shares(151);
    std::generate(shares.begin(), shares.end(), [&rig, bin = 0]() mutable { return rig.Bin(bin++); });
    return shares;
}

std::vector<float> WaveformAt(const CScopeRig& rig, int points)
{
    std::vector<float> values(static_cast<std::size_t>(points));
    std::generate(values.begin(), values.end(),
                  [&rig, points, i = 0]() mutable
                  { return rig.Waveform(-1.0f + static_cast<float>(i++) / static_cast<float>(points - 1)); });
    return values;
}

} // namespace

TEST(COscilloscope, SilenceFillsTheBinOfZero)
{
    CScopeRig rig(100.0);
    rig.Process(std::vector<float>(100, 0.0f));
    rig.scope.UpdateOutputs();

    for (int bin = 0; bin < 151; ++bin)
    {
        EXPECT_EQ(rig.Bin(bin), bin == 75 ? 1.0f : 0.0f) << bin;
    }
}

TEST(COscilloscope, WithoutDataTheHistogramReadsZero)
{
    CScopeRig rig(100.0);
    rig.scope.UpdateOutputs();

    EXPECT_EQ(rig.Histogram(0.0f), 0.0f);
}

class COscilloscopeAtRate : public testing::TestWithParam<double>
{
};

TEST_P(COscilloscopeAtRate, BinsEqualARecountAtAnyMomentForAnyCutAndDelay)
{
    const double rate = GetParam();
    const auto signal = Noise(static_cast<std::size_t>(rate * 1.3) + 50, 1.3f);
    const std::vector<std::vector<int>> cuts{
        {1}, {2}, {63}, {64}, {882}, {4096}, {1, 4096, 0, 64, 2, 882, 63}};
    for (const double delay : {0.0, 7.3, 300.0})
    {
        std::vector<float> firstWaveform;
        for (const auto& cut : cuts)
        {
            SCOPED_TRACE("delay " + std::to_string(delay) + ", first block " + std::to_string(cut[0]));
            CScopeRig rig(rate);
            rig.Set(EParam::Delay, static_cast<float>(delay));
            std::size_t done = 0;
            std::size_t nextLook = signal.size() / 3;
            std::size_t looks = 0;
            for (std::size_t block = 0; done < signal.size(); ++block)
            {
                const auto count =
                    std::min(static_cast<std::size_t>(cut[block % cut.size()]), signal.size() - done);
                rig.Process(signal.data() + done, static_cast<int>(count));
                done += count;
                if (done >= nextLook && looks < 3)
                {
                    nextLook = ++looks == 1 ? signal.size() * 9 / 10 : signal.size();
                    rig.scope.UpdateOutputs();
                    ASSERT_EQ(Shares(rig), ExpectedShares(signal, done, rate, delay)) << done;
                }
            }
            rig.Process({0.5f});
            rig.scope.UpdateOutputs();
            const auto waveform = WaveformAt(rig, 500);
            firstWaveform = firstWaveform.empty() ? waveform : firstWaveform;
            ASSERT_EQ(waveform, firstWaveform);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Rates, COscilloscopeAtRate,
                         testing::Values(8.0, 44100.0, 48000.0, 96000.0, 192000.0),
                         [](const auto& rate) { return std::to_string(static_cast<int>(rate.param)); });

TEST(COscilloscope, WindowOfAPowerOfTwoHoldsExactlyThatMany)
{
    CScopeRig rig(8.0);
    rig.Process({0.5f, 0.5f, 0, 0, 0, 0, 0, 0, 0, 0});
    rig.scope.UpdateOutputs();
    EXPECT_EQ(rig.Histogram(0.5f), 0.0f);

    CScopeRig full(8.0);
    full.Process({0.5f, 0.5f, 0.5f, 0.5f, 0.5f, 0.5f, 0.5f, 0, 0});
    full.scope.UpdateOutputs();
    EXPECT_EQ(full.Histogram(0.0f), 2.0f / 6.0f);
}

RC_GTEST_PROP(COscilloscope, AgreesBitForBitWithALoopOfOneSampleAtATime, ())
{
    const double rate = *rc::gen::inRange(2, 700);
    const double delay = *rc::gen::inRange(0, 301);
    CScopeRig rig(rate);
    rig.Set(EParam::Delay, static_cast<float>(delay));
    Tests::CLiteralScope literal(rate, static_cast<double>(static_cast<float>(delay)));
    std::vector<float> signal;

    for (int block = 0; block < 8; ++block)
    {
        signal = Noise(static_cast<std::size_t>(*rc::gen::inRange(0, 900)), 1.2f,
                       *rc::gen::arbitrary<std::uint32_t>());
        rig.Process(signal);
        literal.Process(signal.data(), static_cast<int>(signal.size()));
        rig.Process({0.25f});
        const float quarter = 0.25f;
        literal.Process(&quarter, 1);
        rig.scope.UpdateOutputs();

        const auto& bins = literal.GetBins();
        const float factor = 1.0f / *std::max_element(bins.begin(), bins.end());
        for (int bin = 0; bin < 151; ++bin)
        {
            RC_ASSERT(rig.Bin(bin) == bins[static_cast<std::size_t>(bin)] * factor);
        }
        // In Flow the trace begins at the head: the oldest sample first, the newest last.
        const auto at = [&](int position)
        { return literal.GetValues()[static_cast<std::size_t>(position % literal.GetSize()) + 1]; };
        RC_ASSERT(rig.Waveform(-1.0f) == at(literal.GetWritePos()));
        RC_ASSERT(rig.Waveform(0.0f) == at(literal.GetWritePos() + literal.GetSize() - 1));
    }
}
