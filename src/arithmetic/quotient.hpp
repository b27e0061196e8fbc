// Rows of rounded quotients of 8u and 16s samples, b * 2^-f / a, sixteen, eight or four at a
// time in float; 16s for f >= 0 only. Float is exact here: b * 2^-f and a are exact, and the
// division is rounded once, to within |q| * 2^-24 of the true quotient q = b / (a 2^f). A
// quotient that is not a tie lies at least 1 / (2 |a| 2^f) from the nearest half, while
// |q| * 2^-24 is at most 2^15 * 2^-24 / (|a| 2^f), far less; a tie is a multiple of a half below
// 2^23, so float holds it exactly. Hence rounding the float quotient to nearest (ties to even)
// rounds the true one. For 8u and f < 0, dividends beyond 2^16 * 2^f are cut to that: their
// quotients pass 2^16 / 255 > 255 either way, and every quotient that does not saturate is
// below 256 with a = 1..255, where the same argument holds.
//
// A zero divisor is divided as one, and its lane then takes b * 2^16, which the saturating
// narrowing turns into the end of the range b's sign points to (0 for b = 0). The caller holds
// the rounding mode at nearest for the conversions.
#pragma once

#include <cmath>

#include "frame/simd.hpp"
#include <cstdint>
#include <type_traits>

#if defined(__SSE4_1__)
#include <immintrin.h>
#endif

namespace pxl {

// The factors of one call's rows: 2^-f, and the cut of 8u dividends. 2^-40 makes every quotient
// 0, and from 2^16 on every non-zero 8u dividend is cut to 2^16, so the factor is held within
// those (16s comes here with f >= 0 only).
struct QuotientScale {
    explicit QuotientScale(int f)
    {
        const int e = f < -16 ? -16 : f > 40 ? 40 : f;
        scale = std::ldexp(1.0f, -e);
        cut = e < 0 ? int32_t{1} << (16 + e) : int32_t{1} << 16;
    }
    float scale;
    int32_t cut;
};

// Does the leading samples of a row, as many as whole vectors cover, and returns their count;
// `zero` is set when a divisor among them was zero. The rest is the caller's.
template <class T>
inline int krnQuotientRow([[maybe_unused]] const T* a, [[maybe_unused]] const T* b, [[maybe_unused]] T* d,
                          [[maybe_unused]] int n, [[maybe_unused]] const QuotientScale& factors, [[maybe_unused]] bool& zero)
{
    static_assert(std::is_same_v<T, uint8_t> || std::is_same_v<T, int16_t>);
    int i = 0;
#if defined(__SSE4_1__)
    constexpr bool kBytes = sizeof(T) == 1;
    const float scale = factors.scale;
    const int32_t cut = factors.cut;
#if defined(__AVX512F__)
    PXL_AVX512_KERNEL_BEGIN
    {
        const __m512 m = _mm512_set1_ps(scale);
        const __m512i one = _mm512_set1_epi32(1), cut16 = _mm512_set1_epi32(cut);
        __mmask16 seen = 0;
        for (; i + 16 <= n; i += 16) {
            __m512i x, y;
            if constexpr (kBytes) {
                x = _mm512_cvtepu8_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(a + i)));
                y = _mm512_min_epi32(_mm512_cvtepu8_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(b + i))), cut16);
            } else {
                x = _mm512_cvtepi16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(a + i)));
                y = _mm512_cvtepi16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(b + i)));
            }
            const __mmask16 z = _mm512_cmpeq_epi32_mask(x, _mm512_setzero_si512());
            seen |= z;
            const __m512 q = _mm512_div_ps(_mm512_mul_ps(_mm512_cvtepi32_ps(y), m), _mm512_cvtepi32_ps(_mm512_mask_mov_epi32(x, z, one)));
            const __m512i r = _mm512_mask_mov_epi32(_mm512_cvtps_epi32(q), z, _mm512_slli_epi32(y, 16));
            if constexpr (kBytes) _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), _mm512_cvtusepi32_epi8(r));
            else _mm256_storeu_si256(reinterpret_cast<__m256i*>(d + i), _mm512_cvtsepi32_epi16(r));
        }
        zero |= seen != 0;
    }
    PXL_AVX512_KERNEL_END
#endif
#if defined(__AVX2__)
    {
        const __m256 m = _mm256_set1_ps(scale);
        const __m256i cut8 = _mm256_set1_epi32(cut);
        __m256i seen = _mm256_setzero_si256();
        for (; i + 8 <= n; i += 8) {
            __m256i x, y;
            if constexpr (kBytes) {
                x = _mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(a + i)));
                y = _mm256_min_epi32(_mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(b + i))), cut8);
            } else {
                x = _mm256_cvtepi16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(a + i)));
                y = _mm256_cvtepi16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(b + i)));
            }
            const __m256i z = _mm256_cmpeq_epi32(x, _mm256_setzero_si256());
            seen = _mm256_or_si256(seen, z);
            const __m256 q = _mm256_div_ps(_mm256_mul_ps(_mm256_cvtepi32_ps(y), m), _mm256_cvtepi32_ps(_mm256_sub_epi32(x, z)));
            const __m256i r = _mm256_blendv_epi8(_mm256_cvtps_epi32(q), _mm256_slli_epi32(y, 16), z);
            // The packs work within 128-bit halves: gather the two halves' results.
            const __m256i w = _mm256_packs_epi32(r, r);
            if constexpr (kBytes) {
                const __m256i bytes = _mm256_packus_epi16(w, w);
                const __m128i lo = _mm256_castsi256_si128(bytes), hi = _mm256_extracti128_si256(bytes, 1);
                _mm_storel_epi64(reinterpret_cast<__m128i*>(d + i), _mm_unpacklo_epi32(lo, hi));
            } else {
                _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), _mm256_castsi256_si128(_mm256_permute4x64_epi64(w, 0x08)));
            }
        }
        zero |= !_mm256_testz_si256(seen, seen);
    }
#endif
    {
        const __m128 m = _mm_set1_ps(scale);
        const __m128i cut4 = _mm_set1_epi32(cut);
        __m128i seen = _mm_setzero_si128();
        for (; i + 4 <= n; i += 4) {
            __m128i x, y;
            if constexpr (kBytes) {
                int32_t xa, yb;
                __builtin_memcpy(&xa, a + i, 4);
                __builtin_memcpy(&yb, b + i, 4);
                x = _mm_cvtepu8_epi32(_mm_cvtsi32_si128(xa));
                y = _mm_min_epi32(_mm_cvtepu8_epi32(_mm_cvtsi32_si128(yb)), cut4);
            } else {
                x = _mm_cvtepi16_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(a + i)));
                y = _mm_cvtepi16_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(b + i)));
            }
            const __m128i z = _mm_cmpeq_epi32(x, _mm_setzero_si128());
            seen = _mm_or_si128(seen, z);
            const __m128 q = _mm_div_ps(_mm_mul_ps(_mm_cvtepi32_ps(y), m), _mm_cvtepi32_ps(_mm_sub_epi32(x, z)));
            const __m128i r = _mm_blendv_epi8(_mm_cvtps_epi32(q), _mm_slli_epi32(y, 16), z);
            const __m128i w = _mm_packs_epi32(r, r);
            if constexpr (kBytes) {
                const int32_t bytes = _mm_cvtsi128_si32(_mm_packus_epi16(w, w));
                __builtin_memcpy(d + i, &bytes, 4);
            } else {
                _mm_storel_epi64(reinterpret_cast<__m128i*>(d + i), w);
            }
        }
        zero |= !_mm_testz_si128(seen, seen);
    }
#endif
    return i;
}

}  // namespace pxl
