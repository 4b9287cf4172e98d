#pragma once

#include "AAXPlugin/Interface/AAXResults.h"

#include <cstdint>

namespace MirelExt::AAXPlugin
{

/// The boundary to the host: runs the body and turns whatever is thrown inside into a result.
template <class TBody>
std::int32_t Guarded(const TBody& body) noexcept
{
    try
    {
        return body();
    }
    catch (...)
    {
        return AAXResult::Unexpected;
    }
}

} // namespace MirelExt::AAXPlugin
