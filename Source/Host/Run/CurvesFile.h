#pragma once

#include "AAXPlugin/Interface/IPublishedCurves.h"

#include <string>

namespace Host
{

/// Writes the curves published last as comma-separated values: a head line, then `points` (2 or more) rows of
/// x, from 0 to 1 as the share of each curve's own range of x, and the value of each curve there, in the
/// order of the filter, with 9 significant digits, which give a float back exactly. False with one line in
/// `error`.
bool WriteCurves(IPublishedCurves& curves, int points, const std::string& path, std::string& error);

} // namespace Host
