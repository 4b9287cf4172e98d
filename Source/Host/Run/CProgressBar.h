#pragma once

#include <chrono>
#include <cstdint>
#include <iosfwd>

namespace Host
{

/// A line on a terminal that tells how far a run has come and how fast it goes; drawn over itself a few times
/// a second. Writes nothing unless it is shown. One thread only.
class CProgressBar
{
public:
    /// `frames` in all at `sampleRate` hertz; none or less if that is not known.
    CProgressBar(std::ostream& out_, bool shown_, std::int64_t frames_, double sampleRate_);

    void Update(std::int64_t done);

    /// Draws the last state and ends the line.
    void Finish(std::int64_t done);

private:
    using CClock = std::chrono::steady_clock;

    void Draw(std::int64_t done, double elapsed);

    std::ostream& out;
    bool shown;
    std::int64_t frames;
    double sampleRate;
    CClock::time_point start = CClock::now();
    CClock::time_point drawn;
};

} // namespace Host
