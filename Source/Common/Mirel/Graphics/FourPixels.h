#pragma once

#include "Mirel/Graphics/CColor.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <emmintrin.h>

namespace Mirel::Graphics
{

/// One opaque colour, laid over four 32-bit pixels at a time. All of the colour is just the colour, and
/// nothing of it leaves a pixel alone.
class CFourPixelBlender
{
public:
    explicit CFourPixelBlender(CColor color)
        : wanted(_mm_unpacklo_epi8(_mm_set1_epi32(static_cast<int>(0xff000000U | color.Pack())),
                                   _mm_setzero_si128()))
    {
    }

    /// Up to four neighbouring pixels, each with its coverage from 0 to 1; what lies outside counts as the
    /// end.
    void BlendRow(std::uint8_t* pixels, __m128 coverage, int count) const
    {
        const __m128 bounded = _mm_min_ps(_mm_max_ps(coverage, _mm_setzero_ps()), _mm_set1_ps(1.0F));
        const __m128i levels =
            _mm_cvttps_epi32(_mm_add_ps(_mm_mul_ps(bounded, _mm_set1_ps(fullCoverage)), _mm_set1_ps(0.5F)));
        const __m128i packed = _mm_packs_epi32(levels, levels);
        const __m128i pairs = _mm_unpacklo_epi16(packed, packed);
        const __m128i low = _mm_unpacklo_epi32(pairs, pairs);
        const __m128i high = _mm_unpackhi_epi32(pairs, pairs);
        if (count >= 4)
        {
            auto* place = reinterpret_cast<__m128i*>(pixels);
            _mm_storeu_si128(place, Blend(_mm_loadu_si128(place), low, high));
            return;
        }
        __m128i some = _mm_setzero_si128();
        const std::size_t bytes = static_cast<std::size_t>(count) * 4;
        std::memcpy(&some, pixels, bytes);
        some = Blend(some, low, high);
        std::memcpy(pixels, &some, bytes);
    }

private:
    /// Two pixels each of the low and the high half; coverage from 0 to 256 in eight 16-bit lanes, four for
    /// each pixel.
    __m128i Blend(__m128i under, __m128i lowCoverage, __m128i highCoverage) const
    {
        return _mm_packus_epi16(Mix(_mm_unpacklo_epi8(under, _mm_setzero_si128()),
                                    _mm_unpacklo_epi8(rounding, under), lowCoverage),
                                Mix(_mm_unpackhi_epi8(under, _mm_setzero_si128()),
                                    _mm_unpackhi_epi8(rounding, under), highCoverage));
    }

    /// (under * (256 - coverage) + wanted * coverage + 128) / 256; the shifted sum is under * 256 + 128. What
    /// wraps round on the way is right again at the end.
    __m128i Mix(__m128i under, __m128i shifted, __m128i coverage) const
    {
        const __m128i change = _mm_mullo_epi16(_mm_sub_epi16(wanted, under), coverage);
        return _mm_srli_epi16(_mm_add_epi16(shifted, change), 8);
    }

    static constexpr float fullCoverage = 256.0F;

    __m128i wanted;
    __m128i rounding = _mm_set1_epi8(static_cast<char>(128));
};

} // namespace Mirel::Graphics
