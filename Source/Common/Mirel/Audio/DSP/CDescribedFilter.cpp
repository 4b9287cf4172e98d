#include "Mirel/Audio/DSP/CDescribedFilter.h"

#include "Mirel/Containers/TPointersValueVector.h"

#include <vector>

namespace Mirel::Audio::DSP
{

namespace
{

// Shared by all instances: there is nothing in them to change.
template <class T>
T& Empty()
{
    static T empty;
    return empty;
}

} // namespace

const IConstParamsValues& CDescribedFilter::GetOutputParams() const
{
    return Empty<CParamsValues>();
}

IOutputStrings& CDescribedFilter::GetOutputStrings()
{
    return Empty<Containers::TDynamicCollection<IOutputString>>();
}

const ICurves& CDescribedFilter::GetOutputCurves() const
{
    return Empty<Containers::TPointersValueVector<Math::IFunction>>();
}

IDirtyMarks& CDescribedFilter::GetOutputCurvesDirty()
{
    return Empty<Containers::TDynamicCollection<Core::IDirty>>();
}

const ISurfaces& CDescribedFilter::GetOutputSurfaces() const
{
    return Empty<Containers::TPointersValueVector<Math::IBinaryFunction>>();
}

IDirtyMarks& CDescribedFilter::GetOutputSurfacesDirty()
{
    return Empty<Containers::TDynamicCollection<Core::IDirty>>();
}

const CLegacyPresets& CDescribedFilter::GetFactoryPresets() const
{
    return Empty<CLegacyPresets>();
}

void CDescribedFilter::SetDefaultParams()
{
    const int count = inputParamsInfo.GetCount();
    std::vector<float> values;
    values.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
    {
        values.push_back(inputParamsInfo[i].GetDefault());
    }
    SetParams(CParamsValues(values.data(), count));
}

} // namespace Mirel::Audio::DSP
