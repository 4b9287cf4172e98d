#include "Host/Live/CReadAhead.h"

#include "Host/Audio/CBuffers.h"

#include <algorithm>
#include <bit>
#include <chrono>

namespace Host
{

namespace
{

constexpr int FramesAtOnce = 4096;
constexpr double SecondsAhead = 2.0;
constexpr auto Nap = std::chrono::milliseconds(20);

} // namespace

CReadAhead::CReadAhead(IAudioSource& source_, std::int64_t frames, bool loops_)
    : source(source_),
      loops(loops_),
      left(frames),
      capacity(
          std::bit_ceil(static_cast<std::uint64_t>(SecondsAhead * source.GetSampleRate()) + FramesAtOnce)),
      ring(static_cast<std::size_t>(source.GetChannelCount()), std::vector<float>(capacity)),
      thread([this] { Read(); })
{
}

CReadAhead::~CReadAhead()
{
    stops.store(true, std::memory_order_relaxed);
    thread.join();
}

int CReadAhead::Take(float* const* channels, int frames)
{
    const std::uint64_t from = taken.load(std::memory_order_relaxed);
    const std::uint64_t ready = written.load(std::memory_order_acquire) - from;
    const int count = static_cast<int>(std::min<std::uint64_t>(ready, static_cast<std::uint64_t>(frames)));
    for (std::size_t channel = 0; channel < ring.size(); ++channel)
    {
        for (int i = 0; i < count; ++i)
        {
            channels[channel][i] = ring[channel][(from + static_cast<std::uint64_t>(i)) & (capacity - 1)];
        }
    }
    taken.store(from + static_cast<std::uint64_t>(count), std::memory_order_release);
    return count;
}

bool CReadAhead::IsFinished() const
{
    return ended.load(std::memory_order_acquire) &&
           written.load(std::memory_order_acquire) == taken.load(std::memory_order_relaxed);
}

void CReadAhead::Read()
{
    const CBuffers buffers(source.GetChannelCount(), FramesAtOnce);
    while (!stops.load(std::memory_order_relaxed))
    {
        const std::uint64_t waiting =
            written.load(std::memory_order_relaxed) - taken.load(std::memory_order_acquire);
        if (capacity - waiting < FramesAtOnce)
        {
            std::this_thread::sleep_for(Nap);
        }
        else if (!ReadOnce(buffers.Get()))
        {
            break;
        }
    }
    ended.store(true, std::memory_order_release);
}

bool CReadAhead::ReadOnce(float* const* channels)
{
    const int wanted = static_cast<int>(std::min<std::int64_t>(left, FramesAtOnce));
    int count = source.Read(channels, wanted);
    left -= count;
    if (count == 0 && loops && source.Rewind())
    {
        left = source.GetFrameCount();
        count = source.Read(channels, FramesAtOnce); // none in an empty source, which ends here
        left -= count;
    }
    const std::uint64_t to = written.load(std::memory_order_relaxed);
    for (std::size_t channel = 0; channel < ring.size(); ++channel)
    {
        for (int i = 0; i < count; ++i)
        {
            ring[channel][(to + static_cast<std::uint64_t>(i)) & (capacity - 1)] = channels[channel][i];
        }
    }
    written.store(to + static_cast<std::uint64_t>(count), std::memory_order_release);
    return count > 0;
}

} // namespace Host
