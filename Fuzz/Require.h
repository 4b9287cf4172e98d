#pragma once

#include <cstdlib>

namespace Fuzz
{

/// A property that held for no input is a crash to the fuzzer.
inline void Require(bool holds)
{
    if (!holds)
    {
        std::abort();
    }
}

} // namespace Fuzz
