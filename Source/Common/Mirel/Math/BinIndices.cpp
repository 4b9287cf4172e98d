#include "Mirel/Math/BinIndices.h"

#include <algorithm>
#include <cstddef>
#include <immintrin.h>

namespace Mirel::Math
{

namespace
{

// Everywhere the same single-precision steps: the order of the comparisons sends NaN to the low end, and
// there is no fused multiply-add.

std::uint8_t FindBin(float value, const CBinRange& range)
{
    const float raised = value > range.low ? value : range.low;
    const float clamped = raised > range.high ? range.high : raised;
    return static_cast<std::uint8_t>(static_cast<int>((clamped - range.low) * range.binsPerUnit + 0.5f));
}

void FindBinsBaseline(std::span<const float> values, const CBinRange& range, std::uint8_t* indices)
{
    // A store through a byte pointer may change anything that is not local, for all that is known.
    const CBinRange local = range;
    for (const float value : values)
    {
        *indices++ = FindBin(value, local);
    }
}

constexpr std::size_t avx2Group = 32;

[[gnu::target("avx2")]] inline __m256i FindEightBins(const float* values, __m256 low, __m256 high,
                                                     __m256 binsPerUnit)
{
    const __m256 raised = _mm256_max_ps(_mm256_loadu_ps(values), low);
    const __m256 clamped = _mm256_min_ps(raised, high);
    const __m256 bins = _mm256_mul_ps(_mm256_sub_ps(clamped, low), binsPerUnit);
    return _mm256_cvttps_epi32(_mm256_add_ps(bins, _mm256_set1_ps(0.5f)));
}

[[gnu::target("avx2")]] void FindBinsAvx2(std::span<const float> values, const CBinRange& range,
                                          std::uint8_t* indices)
{
    const __m256 low = _mm256_set1_ps(range.low);
    const __m256 high = _mm256_set1_ps(range.high);
    const __m256 scale = _mm256_set1_ps(range.binsPerUnit);
    // Packing interleaves the halves of its operands.
    const __m256i order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
    const float* value = values.data();
    std::size_t left = values.size();
    for (; left >= avx2Group; left -= avx2Group, value += avx2Group, indices += avx2Group)
    {
        const __m256i first = _mm256_packs_epi32(FindEightBins(value, low, high, scale),
                                                 FindEightBins(value + 8, low, high, scale));
        const __m256i second = _mm256_packs_epi32(FindEightBins(value + 16, low, high, scale),
                                                  FindEightBins(value + 24, low, high, scale));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(indices),
                            _mm256_permutevar8x32_epi32(_mm256_packus_epi16(first, second), order));
    }
    FindBinsBaseline({value, left}, range, indices);
}

constexpr std::size_t avx512Group = 16;
/// Every step is masked: g++ 12 takes the plain intrinsics for reads of something uninitialised.
constexpr auto allLanes = static_cast<__mmask16>(0xFFFF);

[[gnu::target("avx512f")]] inline __m512i FindSixteenBins(const float* values, __mmask16 lanes, __m512 low,
                                                          __m512 high, __m512 binsPerUnit)
{
    const __m512 raised = _mm512_maskz_max_ps(lanes, _mm512_maskz_loadu_ps(lanes, values), low);
    const __m512 clamped = _mm512_maskz_min_ps(lanes, raised, high);
    const __m512 bins = _mm512_mul_ps(_mm512_sub_ps(clamped, low), binsPerUnit);
    return _mm512_maskz_cvttps_epi32(lanes, _mm512_add_ps(bins, _mm512_set1_ps(0.5f)));
}

[[gnu::target("avx512f")]] void FindBinsAvx512(std::span<const float> values, const CBinRange& range,
                                               std::uint8_t* indices)
{
    const __m512 low = _mm512_set1_ps(range.low);
    const __m512 high = _mm512_set1_ps(range.high);
    const __m512 scale = _mm512_set1_ps(range.binsPerUnit);
    const std::size_t whole = values.size() - values.size() % avx512Group;
    for (std::size_t done = 0; done < whole; done += avx512Group)
    {
        const __m512i bins = FindSixteenBins(values.data() + done, allLanes, low, high, scale);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(indices + done),
                         _mm512_maskz_cvtepi32_epi8(allLanes, bins));
    }
    if (whole < values.size())
    {
        const auto lanes = static_cast<__mmask16>((1U << (values.size() - whole)) - 1);
        const __m512i bins = FindSixteenBins(values.data() + whole, lanes, low, high, scale);
        _mm512_mask_cvtepi32_storeu_epi8(indices + whole, lanes, bins);
    }
}

CFindBins* const findBins = FindBinsVariants().front();

} // namespace

std::vector<CFindBins*> FindBinsVariants()
{
    __builtin_cpu_init();
    std::vector<CFindBins*> variants;
    if (__builtin_cpu_supports("avx512f") != 0)
    {
        variants.push_back(FindBinsAvx512);
    }
    if (__builtin_cpu_supports("avx2") != 0)
    {
        variants.push_back(FindBinsAvx2);
    }
    variants.push_back(FindBinsBaseline);
    return variants;
}

void FindBins(std::span<const float> values, const CBinRange& range, std::uint8_t* indices)
{
    findBins(values, range, indices);
}

} // namespace Mirel::Math
