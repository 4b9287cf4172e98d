#include "AAXPlugin/CParamRamps.h"

namespace MirelExt::AAXPlugin
{

using namespace Mirel::Audio::DSP;

namespace
{

constexpr int Values = 0;
constexpr int Increments = 1;
constexpr int Orders = 2;

} // namespace

void CParamRamps::Init(const IConstParamsValues& values)
{
    const int count = values.GetCount();
    previousValues.Resize(count);
    for (int i = 0; i < count; ++i)
    {
        previousValues.SetValue(i, values.GetValue(i));
    }
    variations.SetValueCount(count);
    variations.Resize(Orders);
    variations.Resize(0);
    hadRamp = false;
}

const IConstParamsVariations& CParamRamps::Update(const IConstParamsValues& values, int sampleCount)
{
    variations.Resize(Orders);
    for (int i = 0; i < previousValues.GetCount(); ++i)
    {
        const float value = values.GetValue(i);
        const float previous = previousValues.GetValue(i);
        variations[Values].SetValue(i, value);
        variations[Increments].SetValue(i, 0.0F);
        const bool moves = value < previous || value > previous;
        if (!moves || sampleCount == 0)
        {
            continue;
        }
        const double way = static_cast<double>(value) - static_cast<double>(previous);
        variations[Values].SetValue(i, previous);
        variations[Increments].SetValue(i, static_cast<float>(way / sampleCount));
        previousValues.SetValue(i, value);
    }
    variations.Optimize();
    const bool hasRamp = variations.GetCount() >= Orders;
    if (!hasRamp)
    {
        variations.Resize(hadRamp ? 1 : 0);
    }
    hadRamp = hasRamp;
    return variations;
}

} // namespace MirelExt::AAXPlugin
