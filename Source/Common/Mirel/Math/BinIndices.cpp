#include "Mirel/Math/BinIndices.h"

#include <cstddef>

namespace Mirel::Math
{

namespace
{

[[gnu::always_inline]] inline std::uint8_t FindBin(float value, const CBinRange& range)
{
    // The order of the comparisons sends NaN to the low end.
    const float raised = value > range.low ? value : range.low;
    const float clamped = raised > range.high ? range.high : raised;
    return static_cast<std::uint8_t>(static_cast<int>((clamped - range.low) * range.binsPerUnit + 0.5f));
}

[[gnu::always_inline]] inline void FindBinsIn(std::span<const float> values, const CBinRange& range,
                                              std::uint8_t* __restrict indices)
{
    // Groups of a fixed size become straight vector code, without which a short block spends its time on
    // set-up.
    constexpr std::size_t group = 32;
    const CBinRange local =
        range; // a store through a byte pointer may change anything else, for all that is known
    const float* value = values.data();
    std::size_t left = values.size();
    for (; left >= group; left -= group, value += group, indices += group)
    {
        for (std::size_t i = 0; i < group; ++i)
        {
            indices[i] = FindBin(value[i], local);
        }
    }
    for (std::size_t i = 0; i < left; ++i)
    {
        indices[i] = FindBin(value[i], local);
    }
}

[[gnu::target("avx2")]] void FindBinsAvx2(std::span<const float> values, const CBinRange& range,
                                          std::uint8_t* indices)
{
    FindBinsIn(values, range, indices);
}

void FindBinsBaseline(std::span<const float> values, const CBinRange& range, std::uint8_t* indices)
{
    FindBinsIn(values, range, indices);
}

using CFindBins = void(std::span<const float>, const CBinRange&, std::uint8_t*);

CFindBins* ChooseFindBins()
{
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2") != 0 ? FindBinsAvx2 : FindBinsBaseline;
}

CFindBins* const findBins = ChooseFindBins();

} // namespace

void FindBins(std::span<const float> values, const CBinRange& range, std::uint8_t* indices)
{
    findBins(values, range, indices);
}

} // namespace Mirel::Math
