#pragma once

#include "Mirel/SkinEngine/Limits.h"

#include <algorithm>
#include <cstddef>

namespace Mirel::SkinEngine
{

/// What one parse may still spend. Belongs to the thread that parses.
class CParseBudget
{
public:
    void Reset() { *this = CParseBudget(); }

    /// False once what was charged is more than CLimits::maxExpansionBytes.
    bool ChargeExpansion(std::size_t bytes) { return Charge(expansionLeft, bytes); }

    /// False if the files read would come to more than CLimits::maxReadBytes.
    bool ChargeFile(std::size_t bytes) { return Charge(readLeft, std::max(bytes, CLimits::minFileCharge)); }

private:
    static bool Charge(std::size_t& left, std::size_t bytes)
    {
        const bool enough = bytes <= left;
        left -= std::min(left, bytes);
        return enough;
    }

    std::size_t expansionLeft = CLimits::maxExpansionBytes;
    std::size_t readLeft = CLimits::maxReadBytes;
};

} // namespace Mirel::SkinEngine
