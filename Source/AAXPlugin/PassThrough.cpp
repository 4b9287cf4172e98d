#include "AAXPlugin/PassThrough.h"

#include "AAXPlugin/ProcessFields.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <utility>

namespace MirelExt::AAXPlugin
{

namespace
{

constexpr std::size_t MostChannels = 8;

void PassInstance(AAX_InstanceRecord record, CChannelCounts channels) noexcept
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

/// The host tells a process procedure no channel counts, so there is one procedure for each pair.
template <int inputs, int outputs>
void PassThroughOf(const AAX_InstanceRecord* instances, std::int32_t count)
{
    PassThrough(instances, count, {inputs, outputs});
}

template <std::size_t... pairs>
constexpr auto MakeProcedures(std::index_sequence<pairs...>)
{
    return std::array<AAX_ProcessProcedure, sizeof...(pairs)>{
        &PassThroughOf<static_cast<int>(pairs / MostChannels + 1),
                       static_cast<int>(pairs % MostChannels + 1)>...};
}

constexpr auto Procedures = MakeProcedures(std::make_index_sequence<MostChannels * MostChannels>());

std::size_t IndexOf(int channels)
{
    return static_cast<std::size_t>(std::clamp(channels, 1, static_cast<int>(MostChannels)) - 1);
}

} // namespace

void PassThrough(const AAX_InstanceRecord* instances, std::int32_t count, CChannelCounts channels) noexcept
{
    if (instances == nullptr)
    {
        return;
    }
    for (std::int32_t i = 0; i < count; ++i)
    {
        if (instances[i] != nullptr)
        {
            PassInstance(instances[i], channels);
        }
    }
}

AAX_ProcessProcedure GetPassThroughProcedure(CChannelCounts channels)
{
    return Procedures[IndexOf(channels.inputs) * MostChannels + IndexOf(channels.outputs)];
}

} // namespace MirelExt::AAXPlugin
