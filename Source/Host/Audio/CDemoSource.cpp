#include "Host/Audio/CDemoSource.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Host
{

namespace
{

constexpr double Rate = 48000.0;
constexpr std::int64_t BeatFrames = 24000;
constexpr std::int64_t OffBeatFrames = 12000;
constexpr std::int64_t Beats = 8;
constexpr double Turn = 2.0 * std::numbers::pi;

/// A sine whose pitch falls from 190 to 50 hertz while it dies away. The phase is the integral of the pitch.
double Kick(double seconds)
{
    constexpr double lowest = 50.0;
    constexpr double fall = 140.0;
    constexpr double fallSeconds = 0.03;
    constexpr double decaySeconds = 0.12;
    const double phase = lowest * seconds + fall * fallSeconds * (1.0 - std::exp(-seconds / fallSeconds));
    return 0.7 * std::exp(-seconds / decaySeconds) * std::sin(Turn * phase);
}

double Bass(double seconds, std::int64_t beat)
{
    constexpr double pitches[] = {55.0, 55.0, 65.41, 49.0};
    const double pitch = pitches[(beat / 2) % 4];
    const double swell = std::min(1.0, seconds / 0.02) * std::exp(-seconds / 0.35);
    return 0.25 * swell * std::sin(Turn * pitch * seconds);
}

/// White noise from the frame's number alone, so that every part of the piece can be made by itself.
double Noise(std::int64_t frame)
{
    auto bits = static_cast<std::uint64_t>(frame) * 0x9E3779B97F4A7C15U;
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    bits ^= bits >> 31U;
    return static_cast<double>(bits >> 11U) * 0x1p-52 - 1.0;
}

/// From 220 to 1760 hertz over the whole piece, evenly in octaves.
double Sweep(double seconds)
{
    constexpr double start = 220.0;
    constexpr double octaves = 3.0;
    constexpr double length = static_cast<double>(Beats * BeatFrames) / Rate;
    constexpr double rate = octaves * std::numbers::ln2 / length;
    return 0.12 * std::sin(Turn * start * (std::exp(rate * seconds) - 1.0) / rate);
}

} // namespace

double CDemoSource::GetSampleRate() const
{
    return Rate;
}

std::int64_t CDemoSource::GetFrameCount() const
{
    return Beats * BeatFrames;
}

void CDemoSource::Skip(std::int64_t frames)
{
    position = std::min(position + frames, GetFrameCount());
}

bool CDemoSource::Rewind()
{
    position = 0;
    return true;
}

int CDemoSource::Read(float* const* channels, int frames)
{
    const int count = static_cast<int>(std::min<std::int64_t>(frames, GetFrameCount() - position));
    for (int i = 0; i < count; ++i, ++position)
    {
        const std::int64_t beat = position / BeatFrames;
        const std::int64_t inBeat = position % BeatFrames;
        const double seconds = static_cast<double>(inBeat) / Rate;
        const double both = Kick(seconds) + Bass(seconds, beat);
        const double offBeat = static_cast<double>(inBeat - OffBeatFrames) / Rate;
        const double hat = offBeat < 0.0 ? 0.0 : 0.3 * std::exp(-offBeat / 0.025) * Noise(position);
        channels[0][i] = static_cast<float>(both + Sweep(static_cast<double>(position) / Rate) + 0.3 * hat);
        channels[1][i] = static_cast<float>(both + hat);
    }
    return count;
}

} // namespace Host
