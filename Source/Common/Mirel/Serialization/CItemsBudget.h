#pragma once

#include "Mirel/Serialization/Limits.h"

namespace Mirel::Serialization
{

/// Keeps the reading of a counted list in proportion to what is really there.
class CItemsBudget
{
public:
    /// Notes one item. False once too many are missing: the list is then given up.
    bool Note(bool found)
    {
        balance += found ? 1 : -1;
        return balance >= -CLimits::maxMissingItems;
    }

private:
    int balance = 0;
};

} // namespace Mirel::Serialization
