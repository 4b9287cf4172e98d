#pragma once

#include "AAXPlugin/Interface/IPublishedCurves.h"
#include "Host/CHostController.h"
#include "Host/CHostMidiNode.h"
#include "Host/CRecordingCollection.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Host
{

/// How an instance is to run.
struct CInstanceSetup
{
    int channels = 2; ///< On either side.
    double sampleRate = 48000.0;
};

/// One instance of a module's first effect: its parameters object with a controller of its own, and an
/// instance record on which the process procedure runs.
///
/// Process and the MIDI nodes belong to the audio thread; all else to any other thread, Make and the
/// destructor to a time without audio. The instance must be gone before its session is closed.
class CHostInstance
{
public:
    /// Null with one line in `error` if the module has no variant with so many channels, or makes no
    /// instance.
    static std::unique_ptr<CHostInstance> Make(const CRecordingCollection& collection,
                                               const CInstanceSetup& setup, std::string& error);
    CHostInstance(const CHostInstance&) = delete;
    CHostInstance& operator=(const CHostInstance&) = delete;
    ~CHostInstance();

    AAX_IEffectParameters& GetParameters() { return *parameters; }
    CHostController& GetController() { return *controller; }

    /// A new editor object; holds nothing if the module makes none.
    TACFReference<IACFUnknown> MakeGui() const;

    /// Null if the plug-in publishes no curves.
    IPublishedCurves* GetCurves() { return curves.Get(); }

    /// Runs the process procedure on one block: arrays of as many channels as the variant has. Takes the
    /// events of the MIDI input, and leaves those of the MIDI output until the next block.
    void Process(const float* const* inputs, float* const* outputs, std::int32_t sampleCount);

    /// Null if the variant declares none.
    CHostMidiNode* GetMidiInput() { return midiInput.Get(); }
    CHostMidiNode* GetMidiOutput() { return midiOutput.Get(); }

    /// Bytes of a whole chunk, head included. False with one line in `error` if the plug-in does not give it.
    bool SaveChunk(std::uint32_t chunkId, std::vector<char>& bytes, std::string& error);

    /// Gives the plug-in a chunk as SaveChunk made it. The result is the plug-in's; Failed for bytes that are
    /// not one whole chunk.
    std::int32_t LoadChunk(const std::vector<char>& bytes);

    /// Whether the plug-in says that the chunk holds its present state.
    bool IsActiveChunk(const std::vector<char>& bytes);

private:
    CHostInstance() = default;

    bool UseVariant(const CRecordingEffect& effect, int channels);
    void UseComponent(const CRecordingComponent& component);
    bool MakeParameters(const CRecordingEffect& effect, const CInstanceSetup& setup, std::string& error);
    void SetField(std::uint32_t field, void* value);

    TACFReference<CRecordingPropertyMap> properties;
    AAX_ProcessProcedure procedure = nullptr;
    AAX_CreationProcedure guiProcedure = nullptr;
    std::vector<CDataInPort> declaredPorts;
    std::vector<std::uint32_t> inputFields;
    std::vector<std::uint32_t> outputFields;
    std::vector<void*> fields;
    std::int32_t blockLength = 0;
    TACFReference<CHostMidiNode> midiInput;
    TACFReference<CHostMidiNode> midiOutput;
    TACFReference<CHostController> controller;
    TACFReference<AAX_IEffectParameters> parameters;
    TACFReference<IPublishedCurves> curves;
};

} // namespace Host
