#pragma once

#include "Mirel/Audio/DSP/IOutputDataSync.h"

#include <atomic>

namespace Mirel::Audio::DSP
{

/// Counts samples and calls output due once a refresh period has passed in audio time. A block longer than
/// the period makes output due once, and the next period starts from 0: the real rate may fall below the
/// nominal one, never rise above it. Audio thread, but for SetRefreshRate, which any thread may call.
class COutputDataSync : public IOutputDataSync
{
public:
    COutputDataSync() = default;
    COutputDataSync(const COutputDataSync& other);
    COutputDataSync& operator=(const COutputDataSync& other);

    bool IsOutputDue() const override;
    void Reset() override;
    void SetRefreshRate(double hertz) override;
    double GetRefreshRate() const override;

    /// Stays at the largest count instead of wrapping: with nobody asking, a counter runs full in half a day.
    void AddSamples(int count);

    /// In hertz. Without a refresh rate the counter starts at 0; otherwise at a full period, so that the
    /// first block after an initialisation is due.
    void SetSampleRate(double hertz);

private:
    int sampleCounter = 0;
    std::atomic<int> period{0}; ///< Samples between two outputs.
    std::atomic<double> refreshRate{0.0};
    std::atomic<double> sampleRate{0.0};
};

} // namespace Mirel::Audio::DSP
