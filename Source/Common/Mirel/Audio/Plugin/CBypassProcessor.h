#pragma once

#include "Mirel/Audio/DSP/CAudioStream.h"
#include "Mirel/Audio/DSP/CDynamicAudioStream.h"
#include "Mirel/Audio/DSP/IFilter.h"
#include "Mirel/Containers/TDynamicCollection.h"

#include <vector>

namespace Mirel::Audio::Plugin
{

/// Runs a filter or goes past it, with a crossfade between the two. The filter runs in bypass as well, into
/// buffers that nobody hears, so that its state keeps going.
///
/// Life: Init and SetFadeLength, which may be repeated while no audio runs; then, on the audio thread,
/// blocks.
class CBypassProcessor
{
public:
    CBypassProcessor() = default;
    CBypassProcessor(const CBypassProcessor&) = delete;
    CBypassProcessor& operator=(const CBypassProcessor&) = delete;

    /// Makes the buffers for a filter with so many outputs and for blocks of at most so many samples. For a
    /// longer block, or a filter with more outputs, they grow, which allocates: a host shell gives the
    /// largest block that its host may send. Without outputs there are no buffers, and any length will do.
    void Init(int outputCount, int maxBlockSize);

    /// The length of a whole crossfade, 0 or less for none. A fade under way goes on at the new speed.
    void SetFadeLength(int samples);

    /// Turns the bypass on or off. A fade that is under way turns around where it is.
    void SetBypass(bool on);

    /// Runs the filter and puts its output, the dry input or a mixture of the two out. An output without an
    /// input of the same index has silence for its dry signal.
    void Process(DSP::IFilter& filter, const DSP::CProcessBlock& block);

    /// The same for a block whose inputs are known to be silent. True if the output is not silent: the
    /// filter's tail still sounds.
    bool ProcessSilence(DSP::IFilter& filter, const DSP::CProcessBlock& block);

private:
    /// The ways through the bypass. run(block) runs the filter and says whether it sounds.
    template <class Run>
    bool Route(DSP::IFilter& filter, const DSP::CProcessBlock& block, const DSP::IAudioStreams* dry, Run run);
    void SizeBuffers(int count, int sampleCount);
    void Crossfade(DSP::IAudioStreams* outputs, const DSP::IAudioStreams* dry, int sampleCount);
    float NextGain(float gain) const;

    /// Each of the largest size; a block uses the beginning, through the views.
    Containers::TDynamicCollection<DSP::CDynamicAudioStream, DSP::IAudioStream> fadeBuffers;
    std::vector<DSP::CAudioStream> views;
    bool fading = false;
    float fadeGain = 1.0f; ///< Of the filter, 0 to 1; the dry signal has the rest.
    float fadeStep = 0.0f; ///< Added to the gain at each sample: above 0 towards the filter.
    bool active = true;    ///< The filter is to be heard.
};

} // namespace Mirel::Audio::Plugin
