#pragma once

#include "AAXPlugin/Interface/IACFUnknown.h"

/// What an instance may ask and tell its host. The host's object; it outlives the instance's parameters
/// object and may also offer IAAXAutomationDelegate.
class IAAXController : public IACFUnknown
{
public:
    /// The lowest 12 bits of a stem format are its channel count.
    virtual std::int32_t GetInputStemFormat(std::uint32_t* format) = 0;
    virtual std::int32_t GetOutputStemFormat(std::uint32_t* format) = 0;

    /// In hertz; does not change while the instance lives.
    virtual std::int32_t GetSampleRate(double* sampleRate) = 0;

    /// Tells by how many samples the instance delays its audio.
    virtual std::int32_t SetSignalLatency(std::int32_t samples) = 0;

    /// Gives the data-in port of a field its next packet. The bytes are copied, and instance records from the
    /// next block on point to the copy. Failed if the port was declared with another size.
    virtual std::int32_t PostPacket(std::uint32_t field, const void* payload, std::uint32_t size) = 0;

protected:
    ~IAAXController() = default;
};
