#pragma once

#include "Host/Audio/IAudioSource.h"

#include <memory>
#include <string>
#include <vector>

#include <sndfile.h>

namespace Host
{

/// A sound file, in any format that libsndfile reads. Of more than two channels the first two are played.
class CSoundFileSource : public IAudioSource
{
public:
    /// False with one line in `error` for a file that cannot be read or played.
    bool Open(const std::string& path, std::string& error);

    /// Channels in the file, those that are not played included.
    int GetFileChannelCount() const { return info.channels; }

    double GetSampleRate() const override { return info.samplerate; }
    int GetChannelCount() const override { return info.channels == 1 ? 1 : 2; }
    std::int64_t GetFrameCount() const override { return info.frames; }
    void Skip(std::int64_t frames) override;
    bool Rewind() override;
    int Read(float* const* channels, int frames) override;

private:
    struct CCloser
    {
        void operator()(SNDFILE* opened) const { sf_close(opened); }
    };

    SF_INFO info = {};
    std::unique_ptr<SNDFILE, CCloser> file;
    std::vector<float> interleaved;
};

} // namespace Host
