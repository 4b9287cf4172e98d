#include "Host/Audio/CSoundFileWriter.h"

namespace Host
{

bool CSoundFileWriter::Open(const std::string& path_, int sampleRate, int channelCount_, std::string& error)
{
    path = path_;
    channelCount = channelCount_;
    complete = true;
    if (!replacement.Open(path.c_str()))
    {
        error = "cannot write \"" + path + "\"";
        return false;
    }
    SF_INFO info = {};
    info.samplerate = sampleRate;
    info.channels = channelCount;
    info.format = SF_FORMAT_RF64 | SF_FORMAT_FLOAT;
    file.reset(sf_open_fd(replacement.GetDescriptor(), SFM_WRITE, &info, SF_FALSE));
    if (file == nullptr)
    {
        error = "cannot write \"" + path + "\": " + sf_strerror(nullptr);
        return false;
    }
    sf_command(file.get(), SFC_RF64_AUTO_DOWNGRADE, nullptr, SF_TRUE);
    // The peak chunk carries the time of day: the same audio would not give the same file twice.
    sf_command(file.get(), SFC_SET_ADD_PEAK_CHUNK, nullptr, SF_FALSE);
    return true;
}

void CSoundFileWriter::Write(const float* const* channels, int frames)
{
    const auto stride = static_cast<std::size_t>(channelCount);
    interleaved.resize(static_cast<std::size_t>(frames) * stride);
    for (std::size_t channel = 0; channel < stride; ++channel)
    {
        for (std::size_t i = 0; i < static_cast<std::size_t>(frames); ++i)
        {
            interleaved[i * stride + channel] = channels[channel][i];
        }
    }
    complete = sf_writef_float(file.get(), interleaved.data(), frames) == frames && complete;
}

bool CSoundFileWriter::Finish(std::string& error)
{
    const bool closed = sf_close(file.release()) == 0;
    if (!complete || !closed || !replacement.Commit())
    {
        error = "cannot write \"" + path + "\"";
        return false;
    }
    return true;
}

} // namespace Host
