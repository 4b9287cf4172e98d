#pragma once

#include "Mirel/Audio/DSP/CLegacyPresets.h"
#include "Mirel/Audio/DSP/CProcessInfo.h"
#include "Mirel/Audio/DSP/IAudioStream.h"
#include "Mirel/Audio/DSP/IOutputDataSync.h"
#include "Mirel/Audio/DSP/ParamsValues.h"
#include "Mirel/Audio/DSP/ParamsVariations.h"
#include "Mirel/Containers/TIVector.h"
#include "Mirel/Core/IDirty.h"
#include "Mirel/DataModel/Objects/IConstProductInfo.h"
#include "Mirel/DataModel/Objects/ICurveInfo.h"
#include "Mirel/DataModel/Objects/IParamInfo.h"
#include "Mirel/DataModel/Objects/IStringInfo.h"
#include "Mirel/DataModel/Objects/ISurfaceInfo.h"
#include "Mirel/Math/IFunction.h"

namespace Mirel::Audio::DSP
{

/// One block of audio with all that belongs to it. Valid for the time of the call.
struct CProcessBlock
{
    IAudioStreams* inputs = nullptr;
    IAudioStreams* outputs = nullptr;
    int sampleCount = 0;
    const IConstParamsVariations* variations = nullptr; ///< Null or empty: no parameter changed.
    void* user = nullptr;                               ///< Handed through as it is.
};

/// A text that a filter puts out, with the mark that it changed since it was last published.
class IOutputString
{
public:
    virtual const char* GetText() const = 0;
    virtual Core::IDirty& GetDirty() = 0;
    virtual ~IOutputString() = default;
};

using IParamsInfo = Containers::TIVector<DataModel::Objects::IParamInfo>;
using IStringsInfo = Containers::TIVector<DataModel::Objects::IStringInfo>;
using ICurvesInfo = Containers::TIVector<DataModel::Objects::ICurveInfo>;
using ISurfacesInfo = Containers::TIVector<DataModel::Objects::ISurfaceInfo>;
using IOutputStrings = Containers::TIVector<IOutputString>;
using ICurves = Containers::TIConstVector<Math::IFunction>;
using ISurfaces = Containers::TIConstVector<Math::IBinaryFunction>;
using IDirtyMarks = Containers::TIVector<Core::IDirty>;

/// Between the plug-in framework and any effect.
///
/// Life: construction, then Init, which may be repeated and is the one place that allocates; then blocks.
/// Process, ProcessSilence and SetParams are valid after Init only. Threads: the Get...Info operations,
/// GetProductInfo and GetProcessInfo are immutable after construction and may be called from any thread; all
/// else runs on the audio thread, or elsewhere while audio is stopped.
class IFilter
{
public:
    /// A new copy with all its state, owned by the caller.
    virtual IFilter* Clone() const = 0;

    virtual const DataModel::Objects::IConstProductInfo& GetProductInfo() const = 0;

    /// Sets the sizes for a sample rate in hertz, and the parameters to their defaults. ok tells whether the
    /// filter can run at that rate; if not, its parameters stay as they were.
    virtual void Init(double sampleRate, bool& ok) = 0;
    virtual void Uninit() = 0;

    virtual const IParamsInfo& GetInputParamsInfo() const = 0;
    virtual IParamsInfo& GetInputParamsInfo() = 0;

    /// Values in the order of GetInputParamsInfo.
    virtual void SetParams(const IConstParamsValues& values) = 0;

    virtual const CProcessInfo& GetProcessInfo() const = 0;

    /// Samples that the filter keeps sounding after its input fell silent.
    virtual int GetTailLength() const = 0;

    /// In samples.
    virtual int GetLatency() const = 0;

    virtual void Process(const CProcessBlock& block) = 0;

    /// A block whose inputs are known to be silent. True if the output is not silent: the tail still sounds.
    virtual bool ProcessSilence(const CProcessBlock& block) = 0;

    /// The filter's refresh clock, or null.
    virtual IOutputDataSync* GetOutputDataSync() = 0;

    /// Turns what the filter has gathered into the values that the getters below hand out.
    virtual void UpdateOutputs() = 0;

    virtual const IParamsInfo& GetOutputParamsInfo() const = 0;
    virtual IParamsInfo& GetOutputParamsInfo() = 0;
    virtual const IConstParamsValues& GetOutputParams() const = 0;

    virtual const IStringsInfo& GetOutputStringsInfo() const = 0;
    virtual IStringsInfo& GetOutputStringsInfo() = 0;
    virtual IOutputStrings& GetOutputStrings() = 0;

    virtual const ICurvesInfo& GetOutputCurvesInfo() const = 0;
    virtual ICurvesInfo& GetOutputCurvesInfo() = 0;
    virtual const ICurves& GetOutputCurves() const = 0;
    virtual IDirtyMarks& GetOutputCurvesDirty() = 0;

    virtual const ISurfacesInfo& GetOutputSurfacesInfo() const = 0;
    virtual ISurfacesInfo& GetOutputSurfacesInfo() = 0;
    virtual const ISurfaces& GetOutputSurfaces() const = 0;
    virtual IDirtyMarks& GetOutputSurfacesDirty() = 0;

    virtual const CLegacyPresets& GetFactoryPresets() const = 0;

    virtual ~IFilter() = default;
};

} // namespace Mirel::Audio::DSP
