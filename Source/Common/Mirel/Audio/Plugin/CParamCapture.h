#pragma once

#include "Mirel/Audio/Plugin/COutputCapture.h"

#include <atomic>

namespace Mirel::Audio::Plugin
{

/// The last published value of an output parameter.
class CParamCapture : public COutputCapture
{
public:
    explicit CParamCapture(float value_) : value(value_) {}

    /// Any thread; never waits.
    float GetValue() const { return value.load(std::memory_order_relaxed); }

    /// Marks a change; NaN is none. Audio thread.
    void Publish(float newValue)
    {
        const float old = GetValue();
        if (newValue < old || old < newValue)
        {
            value.store(newValue, std::memory_order_relaxed);
            MarkChanged();
        }
    }

private:
    std::atomic<float> value;
};

} // namespace Mirel::Audio::Plugin
