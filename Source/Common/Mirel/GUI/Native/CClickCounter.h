#pragma once

#include "Mirel/GUI/Native/NativeEvents.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Mirel::GUI
{

/// Counts presses of one button in quick succession at one place. GUI thread only.
class CClickCounter
{
public:
    /// What lies further apart begins anew: in time, and in device pixels to each side.
    static constexpr std::uint64_t longestGapMs = 400;
    static constexpr int furthest = 4;

    /// The count of this press, at least 1. Times may wrap as a display's 32-bit milliseconds do.
    int CountPress(EMouseButton button, CPoint screenPosition, std::uint32_t timeMs);

    /// Of the button's last press; 0 if there was none. After a release far from that the next press begins
    /// anew: what was between was a drag.
    int CountRelease(EMouseButton button, CPoint screenPosition);

    /// The next press begins anew.
    void Reset() { lastButton = EMouseButton::None; }

private:
    bool IsNear(CPoint screenPosition) const;

    EMouseButton lastButton = EMouseButton::None;
    CPoint lastPosition;
    std::uint32_t lastTimeMs = 0;
    std::array<int, static_cast<std::size_t>(EMouseButton::Other) + 1> counts{}; ///< by button
};

} // namespace Mirel::GUI
