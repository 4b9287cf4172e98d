#pragma once

#include "AAXPlugin/Interface/AAXResults.h"

#include <cstdint>

namespace MirelExt::AAXPlugin
{

/// Runs calls to the host one after the other until one fails, and keeps that one's result.
class CFirstFailure
{
public:
    template <class TCall>
    CFirstFailure& Then(const TCall& call)
    {
        if (result == AAXResult::Ok)
        {
            result = call();
        }
        return *this;
    }

    std::int32_t GetResult() const { return result; }

private:
    std::int32_t result = AAXResult::Ok;
};

} // namespace MirelExt::AAXPlugin
