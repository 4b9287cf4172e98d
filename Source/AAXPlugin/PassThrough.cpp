#include "AAXPlugin/PassThrough.h"

#include "AAXPlugin/ProcessFields.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace MirelExt::AAXPlugin
{

void PassThrough(AAX_InstanceRecord record, CChannelCounts channels) noexcept
{
    const auto* inputs = static_cast<const float* const*>(record[FieldAudioInputs]);
    const auto* outputs = static_cast<float* const*>(record[FieldAudioOutputs]);
    const auto* sampleCount = static_cast<const std::int32_t*>(record[FieldBufferLength]);
    if (outputs == nullptr || sampleCount == nullptr || *sampleCount <= 0)
    {
        return;
    }
    const auto samples = static_cast<std::size_t>(*sampleCount);
    for (int channel = 0; channel < channels.outputs; ++channel)
    {
        float* output = outputs[channel];
        const float* input = inputs != nullptr && channel < channels.inputs ? inputs[channel] : nullptr;
        if (output == nullptr || output == input)
        {
            continue;
        }
        if (input != nullptr)
        {
            std::memmove(output, input, samples * sizeof(float));
        }
        else
        {
            std::fill_n(output, samples, 0.0F);
        }
    }
}

} // namespace MirelExt::AAXPlugin
