#include "Mirel/Audio/DSP/COutputDataSync.h"

#include "Mirel/Core/Numeric.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace Mirel::Audio::DSP
{

namespace
{

// The values cross threads alone, not together: a comparison with the period of a moment ago is harmless.
constexpr auto relaxed = std::memory_order_relaxed;

int PeriodOf(double sampleRate, double refreshRate)
{
    return refreshRate == 0.0 ? 0 : Core::TruncateToInt32(sampleRate / refreshRate);
}

} // namespace

COutputDataSync::COutputDataSync(const COutputDataSync& other)
{
    *this = other;
}

COutputDataSync& COutputDataSync::operator=(const COutputDataSync& other)
{
    sampleCounter = other.sampleCounter;
    period.store(other.period.load(relaxed), relaxed);
    refreshRate.store(other.refreshRate.load(relaxed), relaxed);
    sampleRate.store(other.sampleRate.load(relaxed), relaxed);
    return *this;
}

bool COutputDataSync::IsOutputDue() const
{
    return sampleCounter >= period.load(relaxed);
}

void COutputDataSync::Reset()
{
    sampleCounter = 0;
}

void COutputDataSync::SetRefreshRate(double hertz)
{
    refreshRate.store(hertz, relaxed);
    period.store(PeriodOf(sampleRate.load(relaxed), hertz), relaxed);
}

double COutputDataSync::GetRefreshRate() const
{
    return refreshRate.load(relaxed);
}

void COutputDataSync::AddSamples(int count)
{
    const std::int64_t sum = std::int64_t{sampleCounter} + count;
    sampleCounter = static_cast<int>(
        std::clamp<std::int64_t>(sum, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

void COutputDataSync::SetSampleRate(double hertz)
{
    sampleRate.store(hertz, relaxed);
    const int samples = PeriodOf(hertz, refreshRate.load(relaxed));
    period.store(samples, relaxed);
    sampleCounter = samples;
}

} // namespace Mirel::Audio::DSP
