#include "Mirel/Audio/DSP/CMidSideMatrix.h"

#include <algorithm>
#include <cstddef>

namespace Mirel::Audio::DSP
{

void CMidSideMatrix::SetMode(const IConstParamsVariations* variations, int index)
{
    const int count = variations == nullptr ? 0 : std::min(variations->GetCount(), maxVariationOrders);
    orders = std::max(count, 1);
    for (int k = 0; k < count; ++k)
    {
        const float term = (*variations)[k].GetValue(index);
        terms[static_cast<std::size_t>(k)] = k == 0 ? term - 1.0f : term;
    }
}

void CMidSideMatrix::SetMode(float parameter)
{
    terms[0] = parameter - 1.0f;
    orders = 1;
}

bool CMidSideMatrix::IsIdentity() const
{
    return terms[0] == -1.0f &&
           std::all_of(terms.begin() + 1, terms.begin() + orders, [](float term) { return term == 0.0f; });
}

void CMidSideMatrix::Encode(const IAudioStream& left, const IAudioStream& right, int first, int count,
                            float* channel1, float* channel2)
{
    // A stream without data reads as zeros: one zero, over and over.
    const float zero = 0.0f;
    const float* leftData = left.GetData() == nullptr ? &zero : left.GetData();
    const float* rightData = right.GetData() == nullptr ? &zero : right.GetData();
    const std::ptrdiff_t leftStride = left.GetData() == nullptr ? 0 : left.GetStride();
    const std::ptrdiff_t rightStride = right.GetData() == nullptr ? 0 : right.GetStride();
    for (std::ptrdiff_t i = first; i < std::ptrdiff_t{first} + count; ++i)
    {
        const float l = leftData[i * leftStride];
        const float r = rightData[i * rightStride];
        const float s = terms[0];
        *channel1++ = ((s + 1.0f) * r + (1.0f - s) * l) * 0.5f;
        *channel2++ = ((1.0f - s) * r - (s + 1.0f) * l) * 0.5f;
        StepVariation(terms.data(), orders);
    }
}

void CMidSideMatrix::Decode(IAudioStream& channel1, IAudioStream& channel2, int first, int count)
{
    float* data1 = channel1.GetData();
    float* data2 = channel2.GetData();
    if (data1 == nullptr || data2 == nullptr)
    {
        Skip(count);
        return;
    }
    for (std::ptrdiff_t i = first; i < std::ptrdiff_t{first} + count; ++i)
    {
        float& out1 = data1[i * channel1.GetStride()];
        float& out2 = data2[i * channel2.GetStride()];
        const float in1 = out1;
        const float in2 = out2;
        const float s = terms[0];
        const float k = 1.0f / (s * s + 1.0f);
        out1 = ((1.0f - s) * in1 - (1.0f + s) * in2) * k;
        out2 = ((1.0f - s) * in2 + (1.0f + s) * in1) * k;
        StepVariation(terms.data(), orders);
    }
}

void CMidSideMatrix::Skip(int count)
{
    for (int i = 0; orders > 1 && i < count; ++i)
    {
        StepVariation(terms.data(), orders);
    }
}

} // namespace Mirel::Audio::DSP
