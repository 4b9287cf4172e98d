#pragma once

#include "Mirel/Audio/DSP/ParamsVariations.h"

namespace Mirel::Audio::DSP
{

/// The variations of a block that is processed in several pieces: what holds at the start of each piece.
/// Allocates in SetValueCount alone.
class CPieceVariations
{
public:
    void SetValueCount(int count)
    {
        variations.SetValueCount(count);
        variations.Resize(maxVariationOrders);
        variations.Resize(0);
    }

    /// Starts at the start of the block. At most maxVariationOrders are taken; null has none.
    void Begin(const IConstParamsVariations* source);

    /// Moves on by a number of samples.
    void Advance(int samples);

    const IConstParamsVariations* Get() const { return variations.GetCount() > 0 ? &variations : nullptr; }

private:
    CDynamicParamsVariations variations;
};

} // namespace Mirel::Audio::DSP
