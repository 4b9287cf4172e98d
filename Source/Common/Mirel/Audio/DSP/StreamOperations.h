#pragma once

#include "Mirel/Audio/DSP/IAudioStream.h"

namespace Mirel::Audio::DSP
{

/// Copies count samples, whatever the strides. A source without data is read as zeros; a target without data
/// is left alone, and so is one that is the source itself. Both must hold count samples. Any thread; no
/// allocation.
void CopyStream(IAudioStream& target, const IAudioStream& source, int count);

/// Copies as many channels as both lists have.
void CopyStreams(IAudioStreams& target, const IAudioStreams& source, int count);

/// Writes zeros in every sample of every channel.
void ClearStreams(IAudioStreams& target);

} // namespace Mirel::Audio::DSP
