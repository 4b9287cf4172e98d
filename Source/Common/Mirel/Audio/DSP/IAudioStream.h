#pragma once

#include "Mirel/Containers/TIVector.h"

namespace Mirel::Audio::DSP
{

/// A view of one channel of samples. Belongs to the thread that made it.
class IAudioStream
{
public:
    /// The first sample, or null for a stream without data, which reads as silence.
    virtual const float* GetData() const = 0;
    virtual float* GetData() = 0;

    virtual int GetSampleCount() const = 0;

    /// The distance between two samples, in floats. With 0 all samples are the same float.
    virtual int GetStride() const = 0;

    virtual ~IAudioStream() = default;
};

/// A list of channels.
using IAudioStreams = Containers::TIVector<IAudioStream>;

} // namespace Mirel::Audio::DSP
