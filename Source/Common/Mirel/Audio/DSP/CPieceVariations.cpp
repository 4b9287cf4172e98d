#include "Mirel/Audio/DSP/CPieceVariations.h"

#include <algorithm>

namespace Mirel::Audio::DSP
{

void CPieceVariations::Begin(const IConstParamsVariations* source)
{
    const int orders = source == nullptr ? 0 : std::min(source->GetCount(), maxVariationOrders);
    variations.Resize(orders);
    for (int k = 0; k < orders; ++k)
    {
        for (int i = 0; i < variations[k].GetCount(); ++i)
        {
            variations[k].SetValue(i, (*source)[k].GetValue(i));
        }
    }
}

void CPieceVariations::Advance(int samples)
{
    const int orders = variations.GetCount();
    if (orders < 2)
    {
        return;
    }
    for (int i = 0; i < variations[0].GetCount(); ++i)
    {
        // Each step takes up the second order before it moves the value, so n steps hold n(n + 1) / 2 of it.
        const double n = samples;
        const double slope = static_cast<double>(variations[1].GetValue(i));
        const double bend = orders > 2 ? static_cast<double>(variations[2].GetValue(i)) : 0.0;
        const double value = static_cast<double>(variations[0].GetValue(i));
        variations[0].SetValue(i, static_cast<float>(value + n * slope + 0.5 * n * (n + 1.0) * bend));
        variations[1].SetValue(i, static_cast<float>(slope + n * bend));
    }
}

} // namespace Mirel::Audio::DSP
