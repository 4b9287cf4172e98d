#include "Host/Run/CProgressBar.h"

#include <algorithm>
#include <ostream>
#include <string>

#include <cstdio>

namespace Host
{

namespace
{

constexpr int Width = 30;

std::string Bar(double share)
{
    const int filled = static_cast<int>(share * Width + 0.5);
    std::string bar;
    for (int i = 0; i < Width; ++i)
    {
        bar += i < filled ? '#' : '.';
    }
    return bar;
}

} // namespace

CProgressBar::CProgressBar(std::ostream& out_, bool shown_, std::int64_t frames_, double sampleRate_)
    : out(out_),
      shown(shown_),
      frames(frames_),
      sampleRate(sampleRate_)
{
}

void CProgressBar::Update(std::int64_t done)
{
    constexpr std::chrono::milliseconds interval(100);
    if (!shown)
    {
        return;
    }
    const CClock::time_point now = CClock::now();
    if (now - drawn >= interval)
    {
        drawn = now;
        Draw(done, std::chrono::duration<double>(now - start).count());
    }
}

void CProgressBar::Finish(std::int64_t done)
{
    if (shown)
    {
        Draw(done, std::chrono::duration<double>(CClock::now() - start).count());
        out << '\n' << std::flush;
    }
}

void CProgressBar::Draw(std::int64_t done, double elapsed)
{
    const double seconds = static_cast<double>(done) / sampleRate;
    const double total = static_cast<double>(std::max(frames, done)) / sampleRate;
    const double share = total > 0.0 ? seconds / total : 1.0;
    const double speed = elapsed > 0.0 ? seconds / elapsed : 0.0;
    char line[128];
    static_cast<void>(std::snprintf(line, sizeof(line), "\r[%s] %7.1f of %.1f s, %.0f times real time ",
                                    Bar(share).c_str(), seconds, total, speed));
    out << line << std::flush;
}

} // namespace Host
