#pragma once

#include <cstdint>

/// Names an interface across the boundary: 16 bytes, compared as they stand.
struct ACFInterfaceId
{
    std::uint8_t bytes[16];

    friend constexpr bool operator==(const ACFInterfaceId&, const ACFInterfaceId&) = default;
};
