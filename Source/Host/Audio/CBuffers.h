#pragma once

#include <cstddef>
#include <vector>

namespace Host
{

/// One buffer per channel, and the pointers to them.
class CBuffers
{
public:
    CBuffers(int channels, int frames)
        : samples(static_cast<std::size_t>(channels), std::vector<float>(static_cast<std::size_t>(frames)))
    {
        for (std::vector<float>& channel : samples)
        {
            pointers.push_back(channel.data());
        }
    }
    CBuffers(const CBuffers&) = delete;
    CBuffers& operator=(const CBuffers&) = delete;

    float* const* Get() const { return pointers.data(); }

private:
    std::vector<std::vector<float>> samples;
    std::vector<float*> pointers;
};

} // namespace Host
