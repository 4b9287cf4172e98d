#pragma once

namespace Host
{

/// Has blocks processed in real time for as long as it lives.
class IAudioDriver
{
public:
    virtual ~IAudioDriver() = default;
};

} // namespace Host
