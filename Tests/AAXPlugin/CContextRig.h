#pragma once

#include "AAXPlugin/CAAXPluginProcessContext.h"
#include "AAXPlugin/CInProcessPlugin.h"
#include "AAXPlugin/CListeningFilter.h"
#include "AAXPlugin/ParamAdapters.h"
#include "AAXPlugin/ProcessFields.h"
#include "Host/CHostMidiNode.h"
#include "Support/CTemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <memory>

namespace Tests
{

/// A context over a filter that listens, with the record of one instance.
class CContextRig
{
public:
    CContextRig(int filterInputs, int filterOutputs, MirelExt::AAXPlugin::CChannelCounts host)
        : CContextRig(std::make_unique<CListeningFilter>(filterInputs, filterOutputs), host)
    {
    }
    CContextRig(const CContextRig&) = delete;
    CContextRig& operator=(const CContextRig&) = delete;

    /// Runs one block through the process procedure.
    void Run(CChannels& inputs, CChannels& outputs, std::int32_t samples)
    {
        sampleCount = samples;
        fields[MirelExt::AAXPlugin::FieldAudioInputs] = const_cast<float**>(inputs.Get());
        fields[MirelExt::AAXPlugin::FieldAudioOutputs] = const_cast<float**>(outputs.Get());
        const AAX_InstanceRecord record = fields.data();
        MirelExt::AAXPlugin::ProcessInstances(&record, 1);
    }

    /// The same with a block of one value everywhere; the outputs are not looked at.
    const CListeningFilter::CBlock& RunValue(float value, std::int32_t samples = 8)
    {
        CChannels inputs(8, static_cast<std::size_t>(samples));
        CChannels outputs(8, static_cast<std::size_t>(samples));
        inputs.Fill(value);
        Run(inputs, outputs, samples);
        return filter.blocks.back();
    }

    void Set(int index, float value) { internals.GetInputValues()[index].SetValue(value); }

private:
    CContextRig(std::unique_ptr<CListeningFilter> filter_, MirelExt::AAXPlugin::CChannelCounts host)
        : filter(*filter_),
          internals(std::move(filter_), MakeSettings(), 0)
    {
        MirelExt::AAXPlugin::MakeAdapters(internals, audioThread, inputAdapters, outputAdapters);
        context.SetHostChannels(host);
        EXPECT_TRUE(context.Init(48000.0));
        internals.Init(inputAdapters, outputAdapters);
        fields[MirelExt::AAXPlugin::FieldProcessContext] = &packet;
        fields[MirelExt::AAXPlugin::FieldBufferLength] = &sampleCount;
        fields[MirelExt::AAXPlugin::FieldMidiInput] = static_cast<IAAXMidiNode*>(midiInput.Get());
        fields[MirelExt::AAXPlugin::FieldMidiOutput] = static_cast<IAAXMidiNode*>(midiOutput.Get());
    }

    std::unique_ptr<Mirel::Audio::Plugin::CAudioPluginDefaultSettings> MakeSettings()
    {
        const Mirel::Audio::DSP::IFilter& described = filter;
        return std::make_unique<Mirel::Audio::Plugin::CAudioPluginDefaultSettings>(
            folder.GetPath("Scope.module"), described.GetInputParamsInfo(), described.GetOutputParamsInfo(),
            folder.GetPath("config"));
    }

    CTemporaryFolder folder;

public:
    CListeningFilter& filter;
    MirelExt::AAXPlugin::CAudioThreadMark audioThread;
    MirelExt::AAXPlugin::CInputAdapters inputAdapters;
    MirelExt::AAXPlugin::COutputAdapters outputAdapters;
    Mirel::Audio::Plugin::CAudioPluginInternalsBase internals;
    MirelExt::AAXPlugin::CAAXPluginProcessContext context{internals, inputAdapters, audioThread};
    TACFReference<Host::CHostMidiNode> midiInput =
        TACFReference<Host::CHostMidiNode>::Adopt(new Host::CHostMidiNode(true, 16));
    TACFReference<Host::CHostMidiNode> midiOutput =
        TACFReference<Host::CHostMidiNode>::Adopt(new Host::CHostMidiNode(false, 16));
    std::int32_t sampleCount = 0;
    const MirelExt::AAXPlugin::CAAXPluginProcessContext* packet = &context;
    std::array<void*, 7> fields = {};
};

} // namespace Tests
