#pragma once

#include "Host/Audio/CChannelLevels.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace Host
{

/// What there is to say of a run.
struct CRunSummary
{
    double sampleRate = 0.0;
    std::int64_t frames = 0;
    std::vector<CChannelLevels> channels;   ///< Of what came out.
    std::int64_t dueCount = 0;              ///< How often output was due.
    std::int64_t published = 0;             ///< How often curves were handed over for it.
    std::vector<std::int64_t> duePositions; ///< Samples processed each time, the block that was due included.
    double processSeconds = 0.0;            ///< Time spent in the plug-in.
};

void PrintSummary(const CRunSummary& summary, std::ostream& out);

/// The same as one JSON object. Levels are numbers, and null where one is not finite.
std::string SummaryJson(const CRunSummary& summary);

} // namespace Host
