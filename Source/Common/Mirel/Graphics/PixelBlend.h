#pragma once

#include "Mirel/Graphics/CColor.h"

#include <cstdint>
#include <emmintrin.h>

namespace Mirel::Graphics
{

/// Puts an opaque colour over premultiplied 32-bit pixels, as far as each is covered: every component is
/// (colour * level + pixel * (255 - level)) / 255, rounded, the level from 0 to 255. Two pixels at a time cost
/// what one does.
class CPixelBlend
{
public:
    explicit CPixelBlend(CColor color)
        : packed(0xff000000U | color.Pack()),
          colorWords(_mm_unpacklo_epi8(_mm_set1_epi32(static_cast<int>(packed)), _mm_setzero_si128()))
    {
    }

    /// The pixel that full coverage leaves.
    std::uint32_t GetOpaque() const { return packed; }

    std::uint32_t BlendOne(std::uint32_t under, int level) const
    {
        const __m128i blended =
            Blend(_mm_cvtsi32_si128(static_cast<int>(under)), _mm_set1_epi16(static_cast<short>(level)));
        return static_cast<std::uint32_t>(_mm_cvtsi128_si32(blended));
    }

    /// At two neighbouring pixels of a row. levels: four 16-bit words for each pixel.
    void BlendTwo(std::uint8_t* pixels, __m128i levels) const
    {
        auto* const both = reinterpret_cast<__m128i*>(pixels);
        _mm_storel_epi64(both, Blend(_mm_loadl_epi64(both), levels));
    }

private:
    __m128i Blend(__m128i under, __m128i levels) const
    {
        const __m128i open = _mm_sub_epi16(_mm_set1_epi16(255), levels);
        const __m128i below = _mm_mullo_epi16(_mm_unpacklo_epi8(under, _mm_setzero_si128()), open);
        const __m128i sum = _mm_add_epi16(_mm_add_epi16(below, _mm_mullo_epi16(colorWords, levels)),
                                          _mm_set1_epi16(128));
        // The division by 255 of what is up to 255 * 255, exactly.
        const __m128i quotient = _mm_srli_epi16(_mm_add_epi16(sum, _mm_srli_epi16(sum, 8)), 8);
        return _mm_packus_epi16(quotient, quotient);
    }

    std::uint32_t packed;
    __m128i colorWords;
};

} // namespace Mirel::Graphics
