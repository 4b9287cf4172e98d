#pragma once

namespace Mirel::DataModel
{

// Limits on what the links of a skin or model file can set off. No honest file comes near them.

/// Link updates that one update sets off. Where paths part and meet again their number doubles each time, and
/// among links in a ring every path counts on which rounding still moves a value: without a limit a file of a
/// few dozen links could keep the GUI thread busy for ever.
constexpr int maxCascadeUpdates = 20000;

/// Updates that each link still has when a cascade is beyond that limit, so that those get a value whose turn
/// comes last.
constexpr int maxLateUpdates = 8;

/// Link updates inside one another: each takes a few hundred bytes of the stack.
constexpr int maxNestedUpdates = 1000;

} // namespace Mirel::DataModel
