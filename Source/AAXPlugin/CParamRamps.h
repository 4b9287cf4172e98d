#pragma once

#include "Mirel/Audio/DSP/ParamsVariations.h"

namespace MirelExt::AAXPlugin
{

/// Turns the values that parameters have at the start of each block into straight ramps from the values of
/// the block before. Audio thread, but for Init; Update neither locks nor allocates.
class CParamRamps
{
public:
    /// Sets how many parameters there are, all at rest at the given values. Allocates.
    void Init(const Mirel::Audio::DSP::IConstParamsValues& values);

    /// The movement in a block of so many samples towards the given values, valid until the next call: two
    /// orders while a parameter moves, one in the block after, so that the filter gets the values that were
    /// arrived at, and none while all rest. A block without samples moves nothing.
    const Mirel::Audio::DSP::IConstParamsVariations&
    Update(const Mirel::Audio::DSP::IConstParamsValues& values, int sampleCount);

private:
    Mirel::Audio::DSP::CDynamicParamsVariations variations;
    Mirel::Audio::DSP::CDynamicParamsValues previousValues;
    bool hadRamp = false;
};

} // namespace MirelExt::AAXPlugin
