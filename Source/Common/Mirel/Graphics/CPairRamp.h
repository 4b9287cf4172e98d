#pragma once

#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/Premultiply.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <emmintrin.h>

namespace Mirel::Graphics
{

/// One opaque colour, laid in each of some rows over two 32-bit pixels and whatever is between them. How far
/// each of the two is covered changes evenly from row to row; what is between is wholly covered.
class CPairRamp
{
public:
    /// From 0 to 1.
    struct CCoverage
    {
        float left;
        float right;
    };

    CPairRamp(CColor color, CCoverage first, CCoverage last, int rows_)
        : rows(rows_),
          opaque(0xff000000U | color.Pack())
    {
        const __m128i pixel = _mm_cvtsi32_si128(static_cast<int>(opaque));
        const __m128i channels = _mm_unpacklo_epi8(pixel, _mm_setzero_si128());
        const __m128 wanted = _mm_cvtepi32_ps(_mm_unpacklo_epi16(channels, _mm_setzero_si128()));
        // Steps are rounded towards 0, so that the last row does not go beyond its coverage.
        const float perStep = 1.0F / static_cast<float>(std::max(rows - 1, 1));
        const float leftStep = (last.left - first.left) * perStep;
        const float rightStep = (last.right - first.right) * perStep;
        share = _mm_add_epi16(Scale(wanted, first.left * unit, first.right * unit), _mm_set1_epi16(unit / 2));
        shareStep = Scale(wanted, leftStep * unit, rightStep * unit);
        const __m128 ones = _mm_set1_ps(1.0F);
        rest = Scale(ones, (1.0F - first.left) * whole, (1.0F - first.right) * whole);
        restStep = Scale(ones, -leftStep * whole, -rightStep * whole);
    }

    /// The first row's left pixel, the bytes from row to row, and how far apart the two pixels are, 1 or
    /// more.
    void Draw(std::uint8_t* pixels, std::ptrdiff_t stride, int distance)
    {
        for (int row = 0; row < rows && distance == 1; ++row, pixels += stride)
        {
            // The next line of a trace needs the pixels beside these soon, in rows that lie too far apart for
            // the processor to foresee it.
            _mm_prefetch(reinterpret_cast<const char*>(pixels) + cacheLine, _MM_HINT_T0);
            auto* place = reinterpret_cast<__m128i*>(pixels);
            _mm_storel_epi64(place, Blend(_mm_loadl_epi64(place)));
        }
        for (int row = 0; row < rows && distance > 1; ++row, pixels += stride)
        {
            const auto load = [&](int x)
            { return _mm_cvtsi32_si128(static_cast<int>(LoadPixel(pixels, x))); };
            const auto store = [&](int x, __m128i pixel)
            { StorePixel(pixels, x, static_cast<std::uint32_t>(_mm_cvtsi128_si32(pixel))); };
            const __m128i blended = Blend(_mm_unpacklo_epi32(load(0), load(distance)));
            store(0, blended);
            for (int x = 1; x < distance; ++x)
            {
                StorePixel(pixels, x, opaque);
            }
            store(distance, _mm_srli_epi64(blended, 32));
        }
    }

private:
    static constexpr std::ptrdiff_t cacheLine = 64;
    static constexpr int unit = 256;         ///< Of share: a level of a channel.
    static constexpr float whole = 65535.0F; ///< Of rest.

    /// The four channels times the one, then times the other, in 16 bits that wrap round.
    static __m128i Scale(__m128 channels, float left, float right)
    {
        const auto wrap = [](__m128 values)
        { return _mm_srai_epi32(_mm_slli_epi32(_mm_cvttps_epi32(values), 16), 16); };
        return _mm_packs_epi32(wrap(_mm_mul_ps(channels, _mm_set1_ps(left))),
                               wrap(_mm_mul_ps(channels, _mm_set1_ps(right))));
    }

    /// The two pixels of one row after another.
    __m128i Blend(__m128i under)
    {
        const __m128i sum =
            _mm_adds_epu16(_mm_mulhi_epu16(_mm_unpacklo_epi8(_mm_setzero_si128(), under), rest), share);
        share = _mm_add_epi16(share, shareStep);
        rest = _mm_add_epi16(rest, restStep);
        return _mm_packus_epi16(_mm_srli_epi16(sum, 8), _mm_setzero_si128());
    }

    int rows;
    std::uint32_t opaque;
    __m128i share; ///< Of the colour in each channel, rounding included.
    __m128i shareStep;
    __m128i rest; ///< What is left of the pixels under it.
    __m128i restStep;
};

} // namespace Mirel::Graphics
