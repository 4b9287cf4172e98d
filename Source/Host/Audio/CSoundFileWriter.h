#pragma once

#include "Mirel/Serialization/CFileReplacement.h"

#include <memory>
#include <string>
#include <vector>

#include <sndfile.h>

namespace Host
{

/// Writes a WAV file of 32-bit floats, in place only once it is finished. Above 4 GiB it becomes RF64. One
/// thread only.
class CSoundFileWriter
{
public:
    /// False with one line in `error`.
    bool Open(const std::string& path, int sampleRate, int channelCount, std::string& error);

    /// One buffer per channel. A failure is reported by Finish.
    void Write(const float* const* channels, int frames);

    /// Puts the file in its place. False with one line in `error` if anything of it could not be written.
    bool Finish(std::string& error);

private:
    struct CCloser
    {
        void operator()(SNDFILE* opened) const { sf_close(opened); }
    };

    std::string path;
    Mirel::Serialization::CFileReplacement replacement;
    std::unique_ptr<SNDFILE, CCloser> file; ///< Writes to the replacement, so it goes first.
    std::vector<float> interleaved;
    int channelCount = 0;
    bool complete = true;
};

} // namespace Host
