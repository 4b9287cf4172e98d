#include "Host/Run/CRunSummary.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

namespace Host
{
namespace
{

CRunSummary MakeSummary()
{
    CRunSummary summary;
    summary.sampleRate = 8000.0;
    summary.frames = 4000;
    summary.channels.resize(2);
    const float samples[] = {0.5f, -0.5f};
    summary.channels[0].Add(samples, 2);
    summary.dueCount = 2;
    summary.published = 2;
    summary.duePositions = {512, 1024};
    summary.processSeconds = 0.25;
    return summary;
}

TEST(PrintSummary, TellsLevelsRefreshesAndTime)
{
    std::ostringstream out;
    PrintSummary(MakeSummary(), out);
    EXPECT_EQ(out.str(), "0.500 s, 4000 frames at 8000 Hz\n"
                         "left   peak 0.500000 (-6.02 dBFS), RMS 0.500000 (-6.02 dBFS)\n"
                         "right  peak 0.000000 (silence), RMS 0.000000 (silence)\n"
                         "output was due 2 times, published 2 times\n"
                         "processing took 500.000 ms per second of audio\n");
}

TEST(SummaryJson, HoldsTheSameAsNumbers)
{
    EXPECT_EQ(SummaryJson(MakeSummary()),
              "{\n  \"sample_rate\": 8000,\n  \"frames\": 4000,\n  \"channels\": [{\"name\": \"left\", "
              "\"peak\": 0.5, \"rms\": 0.5}, {\"name\": \"right\", \"peak\": 0, \"rms\": 0}],\n"
              "  \"due_count\": 2,\n  \"published\": 2,\n  \"due_positions\": [512, 1024],\n"
              "  \"process_seconds_per_second\": 0.5\n}\n");
}

TEST(SummaryJson, StandsARunWithoutAudioAndLevelsBeyondNumbers)
{
    CRunSummary summary;
    summary.channels.resize(1);
    const float samples[] = {std::numeric_limits<float>::infinity()};
    summary.channels[0].Add(samples, 1);
    EXPECT_EQ(
        SummaryJson(summary),
        "{\n  \"sample_rate\": 0,\n  \"frames\": 0,\n  \"channels\": [{\"name\": \"mono\", \"peak\": null, "
        "\"rms\": null}],\n  \"due_count\": 0,\n  \"published\": 0,\n  \"due_positions\": [],\n"
        "  \"process_seconds_per_second\": 0\n}\n");
}

} // namespace
} // namespace Host
