#pragma once

#include "AAXPlugin/CAudioThreadMark.h"
#include "AAXPlugin/CChannelCounts.h"
#include "AAXPlugin/CParamRamps.h"
#include "AAXPlugin/Interface/AAX_Procedures.h"
#include "AAXPlugin/ParamAdapters.h"
#include "Mirel/Audio/DSP/CAudioStream.h"

#include <atomic>
#include <cstdint>
#include <vector>

class IAAXMidiNode;

namespace MirelExt::AAXPlugin
{

/// What the process procedure needs of one instance: it finds this object by the pointer in the instance's
/// packet. Audio thread, but for Init and the channel counts, which come before the first block; Process
/// neither allocates nor waits.
class CAAXPluginProcessContext
{
public:
    /// Where the refreshes of an instance stand: how often output was due, the samples processed by the last
    /// time, and how often it was published.
    struct CRefreshes
    {
        std::int64_t count = 0;
        std::int64_t lastPosition = 0;
        std::int64_t published = 0;
    };

    /// All must outlive this object.
    CAAXPluginProcessContext(Mirel::Audio::Plugin::CAudioPluginInternalsBase& internals_,
                             const CInputAdapters& params_, CAudioThreadMark& audioThread_);

    /// Channels that the host offers.
    void SetHostChannels(CChannelCounts channels) { host = channels; }

    /// Sets the filter up for a sample rate in hertz, and the sizes here. False if the filter cannot run at
    /// that rate. While no audio runs.
    bool Init(double sampleRate);

    /// Processes one block of the instance.
    void Process(AAX_InstanceRecord record);

    /// Any thread; exact between blocks.
    CRefreshes GetRefreshes() const;

private:
    using CStreams = std::vector<Mirel::Audio::DSP::CAudioStream>;

    void ReadMidi(IAAXMidiNode* node);
    bool IsInputSilent(int sampleCount) const;
    void RunFilter(AAX_InstanceRecord record, int sampleCount);
    void RefreshOutputs(IAAXMidiNode* node);
    void PublishParams(IAAXMidiNode* node);

    Mirel::Audio::Plugin::CAudioPluginInternalsBase& internals;
    const CInputAdapters& params;
    CChannelCounts host = {0, 0};
    CStreams inputStreams;
    CStreams outputStreams;
    CParamRamps ramps;
    CAudioThreadMark& audioThread;
    float inputOfNone = 0.0F;        ///< What a channel that the host does not offer reads.
    float outputOfNone = 0.0F;       ///< What a channel that the host does not take is written to.
    bool areParamsPublished = false; ///< In the refresh that is due.
    std::int64_t processedSamples = 0;
    std::atomic<std::int64_t> refreshCount = 0;
    std::atomic<std::int64_t> lastRefresh = 0;
    std::atomic<std::int64_t> publicationCount = 0;
};

/// The process procedure of every variant: processes a block of each instance whose packet names its context;
/// a record without one is left out.
void ProcessInstances(const AAX_InstanceRecord* instances, std::int32_t count);

} // namespace MirelExt::AAXPlugin
