#include "Mirel/System/ITickSource.h"

namespace Mirel::System
{

namespace
{
constexpr double nanosecondsPerMillisecond = 1000000.0;
} // namespace

std::uint64_t STickRate::GetTicks(int milliseconds) const
{
    if (milliseconds <= 0)
    {
        return 0;
    }
    return static_cast<std::uint64_t>(static_cast<double>(denominator) / static_cast<double>(numerator) *
                                      nanosecondsPerMillisecond * static_cast<double>(milliseconds));
}

double STickRate::GetMilliseconds(std::uint64_t ticks) const
{
    return static_cast<double>(ticks) * static_cast<double>(numerator) /
           (nanosecondsPerMillisecond * static_cast<double>(denominator));
}

} // namespace Mirel::System
