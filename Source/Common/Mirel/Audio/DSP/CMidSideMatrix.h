#pragma once

#include "Mirel/Audio/DSP/IAudioStream.h"
#include "Mirel/Audio/DSP/ParamsVariations.h"

#include <array>

namespace Mirel::Audio::DSP
{

/// Turns left and right into mid and side and back, or anything between, by a value s that may move inside a
/// block: s = -1 leaves left and right as they are, s = 0 gives the mean (L + R) / 2 and the half difference
/// (R - L) / 2. A value, so that the way back can run over the same movement as the way there. Audio thread;
/// no allocation.
class CMidSideMatrix
{
public:
    /// Takes the mode parameter (0 left and right, 1 mid and side) from a block of variations. Without any
    /// the value rests where it is.
    void SetMode(const IConstParamsVariations* variations, int index);
    void SetMode(float parameter);

    /// Left and right pass through unchanged, whatever they hold.
    bool IsIdentity() const;

    /// Encodes `count` samples of two streams from index `first` on into two arrays, and moves on.
    void Encode(const IAudioStream& left, const IAudioStream& right, int first, int count, float* channel1,
                float* channel2);

    /// Decodes `count` samples of two streams from index `first` on, in place, and moves on.
    void Decode(IAudioStream& channel1, IAudioStream& channel2, int first, int count);

    /// Moves on without signal.
    void Skip(int count);

    /// Ends the movement: the value rests where it is.
    void Rest() { orders = 1; }

private:
    std::array<float, maxVariationOrders> terms{-1.0f, 0.0f, 0.0f}; ///< s, its step, the step of the step.
    int orders = 1;
};

} // namespace Mirel::Audio::DSP
