#pragma once

#include "AAXPlugin/AAXExtAutomationDelegate.h"
#include "AAXPlugin/AAXExtChunkDataParser.h"
#include "AAXPlugin/CParameterManager.h"
#include "AAXPlugin/Interface/AAX_IEffectParameters.h"
#include "AAXPlugin/Interface/AAX_VController.h"
#include "AAXPlugin/Interface/CACFUnknown.h"

#include <cstddef>

namespace MirelExt::AAXPlugin
{

/// An effect parameters object without an effect: it answers the host for whatever parameters it is given,
/// and offers their values as one chunk that any host can read. A derived class makes the parameters in
/// EffectInit. Threads as in AAX_IEffectParameters; nothing is thrown at the host.
class AAXExtEffectParameters : public TACFObject<AAX_IEffectParameters>
{
public:
    /// Failed if the host's object is no controller, or if it has one already; otherwise EffectInit's result.
    std::int32_t Initialize(IACFUnknown* host) override;
    std::int32_t Uninitialize() override;

    std::int32_t GetParameterCount(std::int32_t* count) override;
    std::int32_t GetParameterId(std::int32_t index, const char** id) override;
    std::int32_t GetParameterIndex(const char* id, std::int32_t* index) override;
    std::int32_t GetMasterBypassId(const char** id) override;
    std::int32_t GetParameterName(const char* id, char* name, std::int32_t capacity) override;
    std::int32_t IsParameterContinuous(const char* id, std::int32_t* continuous) override;
    std::int32_t GetParameterStepCount(const char* id, std::int32_t* steps) override;
    std::int32_t GetParameterRange(const char* id, double* min, double* max) override;
    std::int32_t GetParameterDefault(const char* id, double* normalized) override;
    std::int32_t GetParameterValue(const char* id, double* normalized) override;
    std::int32_t SetParameterValue(const char* id, double normalized) override;
    std::int32_t GetParameterText(const char* id, double normalized, char* text,
                                  std::int32_t capacity) override;
    std::int32_t GetValueOfText(const char* id, const char* text, double* normalized) override;

    /// The controls chunk alone. A comparison with any other chunk gives equal.
    std::int32_t GetChunkCount(std::int32_t* count) override;
    std::int32_t GetChunkId(std::int32_t index, std::uint32_t* chunkId) override;
    std::int32_t GetChunkSize(std::uint32_t chunkId, std::uint32_t* size) override;
    std::int32_t GetChunk(std::uint32_t chunkId, SAAXChunk* chunk) override;
    std::int32_t SetChunk(std::uint32_t chunkId, const SAAXChunk* chunk) override;
    std::int32_t CompareActiveChunk(const SAAXChunk* chunk, std::int32_t* equal) override;

    /// None is known.
    std::int32_t GetCustomData(std::uint32_t dataId, std::uint32_t size, void* data,
                               std::uint32_t* written) override;

protected:
    AAXExtEffectParameters() = default;

    CParameterManager& GetParameters() { return parameters; }
    AAX_VController& GetController() { return controller; }

    /// Adds a parameter that posts its changes to the host's automation. In EffectInit only.
    void AddParameter(std::unique_ptr<CAAXPluginParameter> parameter);

    /// The identifier of the parameter that the host's bypass switch moves.
    virtual const char* GetMasterBypassIdentifier() const;

    /// Makes the parameters and whatever else the effect needs of the controller. A result other than Ok ends
    /// the instance.
    virtual std::int32_t EffectInit();

    /// Fills the empty parser with the controls.
    virtual void GatherControls(AAXExtChunkDataParser& parser) const;

    /// Sets the controls that the parser has; the others keep their values.
    virtual void ApplyControls(const AAXExtChunkDataParser& parser);

private:
    bool HasControls(const AAXExtChunkDataParser& parser) const;
    std::int32_t GetControlsChunk(SAAXChunk& chunk);

    AAX_VController controller;
    AAXExtAutomationDelegate automation;
    CParameterManager parameters;
    AAXExtChunkDataParser chunkParser;
    std::size_t announcedSize = 0; ///< Of the controls chunk, when the host last asked.
};

} // namespace MirelExt::AAXPlugin
