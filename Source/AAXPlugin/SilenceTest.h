#pragma once

#include "Mirel/Audio/DSP/IAudioStream.h"

namespace MirelExt::AAXPlugin
{

/// Whether the first so many samples of a stream are silence: not above 1e-10 on either side of 0. NaN is not
/// silent; a stream without data is. Looks no further than the first sample that is not. Any thread.
bool IsSilent(const Mirel::Audio::DSP::IAudioStream& stream, int count);

} // namespace MirelExt::AAXPlugin
