#include "Host/Run/CRunSummary.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <ostream>

#include <cstdio>

namespace Host
{

namespace
{

const char* ChannelName(const CRunSummary& summary, std::size_t channel)
{
    if (summary.channels.size() == 1)
    {
        return "mono";
    }
    return channel == 0 ? "left" : "right";
}

std::string Decibels(double level)
{
    if (!(level > 0.0))
    {
        return "silence";
    }
    char text[32];
    static_cast<void>(std::snprintf(text, sizeof(text), "%.2f dBFS", 20.0 * std::log10(level)));
    return text;
}

std::string JsonNumber(double number)
{
    if (!std::isfinite(number))
    {
        return "null";
    }
    char text[32];
    const std::to_chars_result result = std::to_chars(std::begin(text), std::end(text), number);
    return {text, result.ptr};
}

double SecondsOfAudio(const CRunSummary& summary)
{
    return summary.sampleRate > 0.0 ? static_cast<double>(summary.frames) / summary.sampleRate : 0.0;
}

/// Seconds in the plug-in for one second of audio; 0 without audio.
double ProcessShare(const CRunSummary& summary)
{
    const double seconds = SecondsOfAudio(summary);
    return seconds > 0.0 ? summary.processSeconds / seconds : 0.0;
}

} // namespace

void PrintSummary(const CRunSummary& summary, std::ostream& out)
{
    char line[160];
    static_cast<void>(std::snprintf(line, sizeof(line), "%.3f s, %lld frames at %.0f Hz\n",
                                    SecondsOfAudio(summary), static_cast<long long>(summary.frames),
                                    summary.sampleRate));
    out << line;
    for (std::size_t channel = 0; channel < summary.channels.size(); ++channel)
    {
        const CChannelLevels& levels = summary.channels[channel];
        static_cast<void>(std::snprintf(line, sizeof(line), "%-6s peak %.6f (%s), RMS %.6f (%s)\n",
                                        ChannelName(summary, channel), levels.GetPeak(),
                                        Decibels(levels.GetPeak()).c_str(), levels.GetRms(),
                                        Decibels(levels.GetRms()).c_str()));
        out << line;
    }
    static_cast<void>(std::snprintf(line, sizeof(line), "output was due %lld times, published %lld times\n",
                                    static_cast<long long>(summary.dueCount),
                                    static_cast<long long>(summary.published)));
    out << line;
    static_cast<void>(std::snprintf(line, sizeof(line), "processing took %.3f ms per second of audio\n",
                                    1000.0 * ProcessShare(summary)));
    out << line;
}

std::string SummaryJson(const CRunSummary& summary)
{
    std::string text = "{\n  \"sample_rate\": " + JsonNumber(summary.sampleRate) +
                       ",\n  \"frames\": " + std::to_string(summary.frames) + ",\n  \"channels\": [";
    for (std::size_t channel = 0; channel < summary.channels.size(); ++channel)
    {
        const CChannelLevels& levels = summary.channels[channel];
        text += std::string(channel == 0 ? "" : ", ") + "{\"name\": \"" + ChannelName(summary, channel) +
                "\", \"peak\": " + JsonNumber(levels.GetPeak()) +
                ", \"rms\": " + JsonNumber(levels.GetRms()) + "}";
    }
    text += "],\n  \"due_count\": " + std::to_string(summary.dueCount) +
            ",\n  \"published\": " + std::to_string(summary.published) + ",\n  \"due_positions\": [";
    for (std::size_t i = 0; i < summary.duePositions.size(); ++i)
    {
        text += (i == 0 ? "" : ", ") + std::to_string(summary.duePositions[i]);
    }
    return text + "],\n  \"process_seconds_per_second\": " + JsonNumber(ProcessShare(summary)) + "\n}\n";
}

} // namespace Host
