#pragma once

#include <cstddef>

namespace Mirel::Audio::Plugin
{

/// Bounds on what is read, since presets and states come from strangers. Each lies far above what honest
/// files need; what goes beyond counts as missing.
struct CLimits
{
    /// Bytes of a path: the system takes no longer ones.
    static constexpr std::size_t maxPathBytes = 4096;

    /// Bytes of a preset's name, which is shown on a line and written into every state.
    static constexpr std::size_t maxNameBytes = 4096;
};

} // namespace Mirel::Audio::Plugin
