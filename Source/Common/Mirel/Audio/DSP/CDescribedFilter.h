#pragma once

#include "Mirel/Audio/DSP/IFilter.h"
#include "Mirel/Containers/TDynamicCollection.h"
#include "Mirel/DataModel/Objects/CCurveInfo.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/CStringInfo.h"
#include "Mirel/DataModel/Objects/CSurfaceInfo.h"

namespace Mirel::Audio::DSP
{

using CParamsInfo =
    Containers::TDynamicCollection<DataModel::Objects::CParamInfo, DataModel::Objects::IParamInfo>;
using CStringsInfo =
    Containers::TDynamicCollection<DataModel::Objects::CStringInfo, DataModel::Objects::IStringInfo>;
using CCurvesInfo =
    Containers::TDynamicCollection<DataModel::Objects::CCurveInfo, DataModel::Objects::ICurveInfo>;
using CSurfacesInfo =
    Containers::TDynamicCollection<DataModel::Objects::CSurfaceInfo, DataModel::Objects::ISurfaceInfo>;

/// The part of a filter that is the same in every filter: its tables of descriptions, filled by the
/// constructor of the derived class, and the answers of one that puts nothing out.
class CDescribedFilter : public IFilter
{
public:
    void Uninit() override {}

    const IParamsInfo& GetInputParamsInfo() const override { return inputParamsInfo; }
    IParamsInfo& GetInputParamsInfo() override { return inputParamsInfo; }

    IOutputDataSync* GetOutputDataSync() override { return nullptr; }

    const IParamsInfo& GetOutputParamsInfo() const override { return outputParamsInfo; }
    IParamsInfo& GetOutputParamsInfo() override { return outputParamsInfo; }
    const IConstParamsValues& GetOutputParams() const override;

    const IStringsInfo& GetOutputStringsInfo() const override { return outputStringsInfo; }
    IStringsInfo& GetOutputStringsInfo() override { return outputStringsInfo; }
    IOutputStrings& GetOutputStrings() override;

    const ICurvesInfo& GetOutputCurvesInfo() const override { return outputCurvesInfo; }
    ICurvesInfo& GetOutputCurvesInfo() override { return outputCurvesInfo; }
    const ICurves& GetOutputCurves() const override;
    IDirtyMarks& GetOutputCurvesDirty() override;

    const ISurfacesInfo& GetOutputSurfacesInfo() const override { return outputSurfacesInfo; }
    ISurfacesInfo& GetOutputSurfacesInfo() override { return outputSurfacesInfo; }
    const ISurfaces& GetOutputSurfaces() const override;
    IDirtyMarks& GetOutputSurfacesDirty() override;

    const CLegacyPresets& GetFactoryPresets() const override;

protected:
    /// Hands the defaults of all input parameters to SetParams.
    void SetDefaultParams();

    CParamsInfo inputParamsInfo;
    CParamsInfo outputParamsInfo;
    CStringsInfo outputStringsInfo;
    CCurvesInfo outputCurvesInfo;
    CSurfacesInfo outputSurfacesInfo;
};

} // namespace Mirel::Audio::DSP
