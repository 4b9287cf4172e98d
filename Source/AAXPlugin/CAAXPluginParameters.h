#pragma once

#include "AAXPlugin/AAXExtEffectParameters.h"
#include "AAXPlugin/CAAXPluginProcessContext.h"
#include "AAXPlugin/CAudioThreadMark.h"
#include "AAXPlugin/Interface/IPublishedCurves.h"
#include "AAXPlugin/ParamAdapters.h"
#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Audio/Plugin/CPluginSkinModelFactory.h"

#include <memory>
#include <string>

namespace MirelExt::AAXPlugin
{

/// One instance of the plug-in, as its host makes it: the internals, the host's view of their parameters, and
/// the context that the process procedure runs on. Beside the controls chunk it offers the whole state as the
/// text of an XML document.
class CAAXPluginParameters : public AAXExtEffectParameters, public IPublishedCurves
{
public:
    /// The path of the module, beside which the data stand.
    explicit CAAXPluginParameters(const std::string& modulePath);
    ~CAAXPluginParameters() override;

    std::int32_t QueryInterface(const ACFInterfaceId& id, void** out) override;
    std::uint32_t AddReference() override { return IncrementReferences(); }
    std::uint32_t Release() override { return DecrementReferences(); }

    std::int32_t GetChunkCount(std::int32_t* count) override;
    std::int32_t GetChunkId(std::int32_t index, std::uint32_t* chunkId) override;
    std::int32_t GetChunkSize(std::uint32_t chunkId, std::uint32_t* size) override;
    std::int32_t GetChunk(std::uint32_t chunkId, SAAXChunk* chunk) override;

    /// A state chunk is taken over if it can be read, and in any case answered with UnknownChunk: the result
    /// speaks for chunks that hosts interpret.
    std::int32_t SetChunk(std::uint32_t chunkId, const SAAXChunk* chunk) override;
    std::int32_t CompareActiveChunk(const SAAXChunk* chunk, std::int32_t* equal) override;

    /// The pointer to the internals, for the editor of the instance.
    std::int32_t GetCustomData(std::uint32_t dataId, std::uint32_t size, void* data,
                               std::uint32_t* written) override;

    std::int32_t GetCurveCount(std::int32_t* count) override;
    std::int32_t GetCurveName(std::int32_t curve, const char** name) override;
    std::int32_t GetCurveRange(std::int32_t curve, float* minX, float* maxX, float* minY,
                               float* maxY) override;
    std::int32_t EvaluateCurve(std::int32_t curve, const float* x, std::int32_t count, float* y) override;
    std::int32_t GetRefreshes(std::int64_t* count, std::int64_t* lastPosition) override;
    std::int32_t GetPublications(std::int64_t* count) override;

protected:
    std::int32_t EffectInit() override;

private:
    void MakeParameters();
    std::int32_t InitProcessing();
    std::int32_t GetStateChunk(SAAXChunk& chunk);
    const Mirel::DataModel::Objects::ICurveInfo* FindCurve(std::int32_t curve) const;

    CAudioThreadMark audioThread;
    Mirel::Audio::Plugin::CPluginSkinModelFactory modelFactory;
    std::unique_ptr<Mirel::Audio::Plugin::CAudioPluginInternalsBase> internals;
    CInputAdapters inputAdapters;
    COutputAdapters outputAdapters;
    CAAXPluginProcessContext processContext;
    std::size_t announcedStateSize = 0; ///< Bytes of data, when the host last asked.
};

} // namespace MirelExt::AAXPlugin
