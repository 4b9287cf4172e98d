#pragma once

namespace MirelExt::AAXPlugin
{

/// Numbers of audio channels.
struct CChannelCounts
{
    int inputs;
    int outputs;

    friend constexpr bool operator==(const CChannelCounts&, const CChannelCounts&) = default;
};

/// What a filter that declares the given counts is offered to the host with. A side that it leaves open takes
/// the other's count; a filter that declares nothing is offered as stereo.
constexpr CChannelCounts OfferedChannels(CChannelCounts declared)
{
    CChannelCounts offered = declared;
    if (offered.inputs == 0)
    {
        offered.inputs = offered.outputs;
    }
    if (offered.outputs == 0)
    {
        offered.outputs = offered.inputs;
    }
    if (offered.inputs == 0 && offered.outputs == 0)
    {
        offered = {2, 2};
    }
    return offered;
}

} // namespace MirelExt::AAXPlugin
