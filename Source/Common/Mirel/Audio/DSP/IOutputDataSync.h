#pragma once

namespace Mirel::Audio::DSP
{

/// Says when a filter's output data is due, at a refresh rate measured in audio time.
class IOutputDataSync
{
public:
    virtual bool IsOutputDue() const = 0;

    /// Starts a new period.
    virtual void Reset() = 0;

    /// In hertz. 0 makes output due after every block.
    virtual void SetRefreshRate(double hertz) = 0;
    virtual double GetRefreshRate() const = 0;

    virtual ~IOutputDataSync() = default;
};

} // namespace Mirel::Audio::DSP
