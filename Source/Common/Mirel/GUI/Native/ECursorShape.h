#pragma once

namespace Mirel::GUI
{

/// The standard cursors. A platform that lacks one shows the nearest that it has.
enum class ECursorShape
{
    Normal,
    Hand,
    Cross,
    Size,
    SizeHorizontal,
    SizeVertical,
    SizeUpLeft,
    SizeUpRight,
    Wait,
    No,
    IBeam,
    Working,
    Up,
    OpenHand
};

} // namespace Mirel::GUI
