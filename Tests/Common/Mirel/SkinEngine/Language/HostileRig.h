#pragma once

#include "ParserRig.h"
#include "Support/Environment.h"
#include "Support/SmallStack.h"
#include "Support/ThreadTime.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include <malloc.h>
#include <sys/resource.h>

namespace Tests
{

/// Bytes that this process has allocated.
inline std::size_t AllocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// The most memory that the process ever used, in bytes.
inline std::size_t PeakBytes()
{
    struct rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

/// True where a sanitizer makes every frame several times as large.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

/// The stack of the smallest thread that a host may load a skin on.
constexpr std::size_t smallStackBytes = (isSanitized ? std::size_t{2048} : std::size_t{256}) << 10U;

/// For files that mean harm, or are broken in ways that look like it: each ends in a clear message within a
/// second of processor time, 256 MB and a small stack.
class CHostileRig : public ::testing::Test
{
protected:
    /// Parses on a small stack and checks what it cost.
    bool Parse(const std::string& xml)
    {
        rig.folder.Write("skin.xml", xml);
        return ParseExisting();
    }

    bool ParseExisting()
    {
        bool result = false;
        double seconds = 0;
        const std::size_t peakBefore = PeakBytes();
        // A sanitizer makes the same work several times as long and as large.
        const double mostSeconds = isSanitized ? 20.0 : 1.0;
        // Others at work on the machine can make one parse slow, but hardly each of three.
        for (int attempt = 0; attempt == 0 || (attempt < 3 && seconds >= mostSeconds); ++attempt)
        {
            stackBytes = RunOnStack(smallStackBytes,
                                    [&]
                                    {
                                        const double begin = ThreadSeconds();
                                        result = rig.ParseExisting("skin.xml");
                                        seconds = ThreadSeconds() - begin;
                                    });
        }
        EXPECT_LT(seconds, mostSeconds);
        EXPECT_LT(PeakBytes() - peakBefore, (isSanitized ? std::size_t{2048} : std::size_t{256}) << 20U);
        if (FindEnvironmentText("HOSTILE_FIGURES"))
        {
            std::printf("%.3f s, stack %zu KB, peak +%zu MB, kept %zu MB\n", seconds, stackBytes >> 10U,
                        (PeakBytes() - peakBefore) >> 20U, AllocatedBytes() >> 20U);
        }
        return result;
    }

    void ExpectMessage(const std::string& part)
    {
        bool found = false;
        for (const std::string& message : rig.GetMessages())
        {
            found = found || message.find(part) != std::string::npos;
        }
        EXPECT_TRUE(found) << part << "\n" << ::testing::PrintToString(LastMessages());
    }

    /// A few, none of them long.
    Messages LastMessages() const
    {
        Messages messages = rig.GetMessages();
        constexpr std::size_t few = 5;
        constexpr std::size_t shortText = 200;
        messages.erase(messages.begin(), messages.end() - static_cast<std::ptrdiff_t>(
                                                              std::min<std::size_t>(messages.size(), few)));
        for (std::string& message : messages)
        {
            message.resize(std::min(message.size(), shortText));
        }
        return messages;
    }

    CParserRig rig;
    std::size_t stackBytes = 0; ///< Of the last parse.
};

} // namespace Tests
