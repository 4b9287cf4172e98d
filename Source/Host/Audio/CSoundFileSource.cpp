#include "Host/Audio/CSoundFileSource.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include <cerrno>
#include <unistd.h>

namespace Host
{

namespace
{

constexpr int LowestSampleRate = 1000;
constexpr int HighestSampleRate = 768000; ///< A second of this is the largest trace that is kept.
constexpr int FramesAtOnce = 4096;

/// Why the file could not be opened: the system's reason where it has one, since the library's own text for
/// that is no more than "System error.".
std::string WhyNotOpened(const std::string& path)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
    {
        return "it is a folder";
    }
    if (::access(path.c_str(), R_OK) != 0)
    {
        return std::generic_category().message(errno);
    }
    return sf_strerror(nullptr);
}

} // namespace

bool CSoundFileSource::Open(const std::string& path, std::string& error)
{
    info = {};
    file.reset(sf_open(path.c_str(), SFM_READ, &info));
    if (file == nullptr)
    {
        error = "cannot read \"" + path + "\": " + WhyNotOpened(path);
        return false;
    }
    if (info.samplerate < LowestSampleRate || info.samplerate > HighestSampleRate)
    {
        error = "cannot play \"" + path + "\": its sample rate is " + std::to_string(info.samplerate) + " Hz";
        return false;
    }
    interleaved.resize(static_cast<std::size_t>(info.channels) * FramesAtOnce);
    return true;
}

void CSoundFileSource::Skip(std::int64_t frames)
{
    if (info.seekable != 0)
    {
        sf_seek(file.get(), std::min<std::int64_t>(frames, info.frames), SF_SEEK_CUR);
        return;
    }
    while (frames > 0)
    {
        const std::int64_t count = std::min<std::int64_t>(frames, FramesAtOnce);
        if (sf_readf_float(file.get(), interleaved.data(), count) < count)
        {
            return;
        }
        frames -= count;
    }
}

bool CSoundFileSource::Rewind()
{
    return info.seekable != 0 && sf_seek(file.get(), 0, SF_SEEK_SET) == 0;
}

int CSoundFileSource::Read(float* const* channels, int frames)
{
    const auto stride = static_cast<std::size_t>(info.channels);
    int filled = 0;
    while (filled < frames)
    {
        const int wanted = std::min(frames - filled, FramesAtOnce);
        const int count = static_cast<int>(sf_readf_float(file.get(), interleaved.data(), wanted));
        for (int channel = 0; channel < GetChannelCount(); ++channel)
        {
            const float* sample = interleaved.data() + channel;
            for (int i = 0; i < count; ++i, sample += stride)
            {
                channels[channel][filled + i] = *sample;
            }
        }
        filled += count;
        if (count < wanted)
        {
            break;
        }
    }
    return filled;
}

} // namespace Host
