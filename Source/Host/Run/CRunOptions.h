#pragma once

#include "Host/Run/TimedEvents.h"

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace Host
{

/// In pixels of the screen.
struct CPictureSize
{
    int width = 0;
    int height = 0;
};

/// What the command line asks for.
struct CRunOptions
{
    std::string modulePath;
    bool describe = false;
    bool listParams = false;

    std::string inputFile; ///< Empty: the demo signal.
    double offset = 0.0;   ///< Seconds of the input that are passed over.
    std::optional<double> seconds;
    std::vector<int> blockSizes = {512}; ///< Used over and over; some may be 0, not all.

    std::vector<CParamChange> changes; ///< In the order given, those without a time at 0 s.
    std::vector<CMidiMessage> midi;    ///< In the order given.
    bool bypass = false;

    std::string loadState;
    std::string loadPreset;
    std::string saveState;
    std::string savePreset;

    std::string outputFile;
    std::string curvesFile;
    int curvePoints = 1025;
    bool summary = false;
    std::string summaryFile;

    bool offline = false;
    bool loops = false;
    bool isHeard = false;
    bool watchesSkin = false;
    std::string skinFile;
    std::string snapshotFile;
    std::vector<double> snapshotSeconds; ///< In rising order.
    std::optional<CPictureSize> pictureSize;

    /// Whether a result is asked for, so that nothing is shown in a window.
    bool IsOffline() const;
};

enum class EParsed
{
    Run,
    Done,  ///< The help was asked for and printed.
    Failed ///< `error` holds one line.
};

/// Fills `options` from the command line; help goes to `out`. Values that make no sense fail here, before
/// anything is loaded or written.
EParsed ParseCommandLine(int argumentCount, const char* const* arguments, std::ostream& out,
                         CRunOptions& options, std::string& error);

} // namespace Host
