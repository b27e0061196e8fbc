// Rounding of floating-point values to integers by the library's rounding codes, exactly and
// whatever the caller's floating-point environment: 0 toward zero, 1 to nearest with ties to
// even, any other code to nearest with ties away from zero. Every step is exact (truncation, the
// difference of a value and its truncation, halving an integer), so no rounding mode takes part,
// and every choice is a select between two values, so loops over them vectorise.
#pragma once

#include <cfenv>

#include "frame/simd.hpp"
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#if defined(__SSE2__)
#include <immintrin.h>
#endif

namespace pxl {

enum RoundCode { kTowardZero = 0, kNearestEven = 1, kNearestAway = 2 };

// The integral value nearest to v by the code; v is finite.
template <int Code, class F> inline F roundIntegral(F v)
{
    const F t = std::trunc(v);
    if constexpr (Code == kTowardZero) {
        return t;
    } else {
        const F r = std::fabs(v - t);
        const F one = std::copysign(F(1), v);
        if constexpr (Code == kNearestEven) {
            const F half = t * F(0.5);
            const F towardEven = half != std::trunc(half) ? one : F(0);  // one step where t is odd
            const F step = r > F(0.5) ? one : towardEven;
            return r >= F(0.5) ? t + step : t;
        } else {
            return r >= F(0.5) ? t + one : t;
        }
    }
}

// A float or double to the integer type D: NaN gives 0, values at or beyond D's range give its
// ends, everything else is rounded by the code.
template <class D, int Code, class F> inline D roundToInt(F x)
{
    using L = std::numeric_limits<D>;
    constexpr F lo = F(L::min()), hi = F(L::max());
    x = x == x ? x : F(0);
    x = x > lo ? x : lo;
    x = x < hi ? x : hi;
    const F r = roundIntegral<Code>(x);
    if constexpr (sizeof(D) < 4) {
        return static_cast<D>(static_cast<int32_t>(r));
    } else {
        // hi may have rounded up to 2^31 or 2^32 in float: clamp once more as an integer.
        const int64_t n = static_cast<int64_t>(r);
        return static_cast<D>(n < int64_t(L::min()) ? int64_t(L::min()) : n > int64_t(L::max()) ? int64_t(L::max()) : n);
    }
}

// Calls body(std::integral_constant<int, Code>) for a run-time code; every code other than 0
// and 1 rounds ties away from zero.
template <class Body> inline void withRoundCode(int code, Body&& body)
{
    if (code == kTowardZero) body(std::integral_constant<int, kTowardZero>{});
    else if (code == kNearestEven) body(std::integral_constant<int, kNearestEven>{});
    else body(std::integral_constant<int, kNearestAway>{});
}

// The rounding mode set to nearest for the length of a call, and the caller's restored after.
class NearestRounding {
public:
    NearestRounding() : saved_(std::fegetround())
    {
        if (saved_ != FE_TONEAREST) std::fesetround(FE_TONEAREST);
    }
    ~NearestRounding()
    {
        if (saved_ != FE_TONEAREST) std::fesetround(saved_);
    }
    NearestRounding(const NearestRounding&) = delete;
    NearestRounding& operator=(const NearestRounding&) = delete;

private:
    int saved_;
};

// A row of floats to 8- or 16-bit integers by the code: roundToInt for every sample. The vector
// body converts four samples at a time with the processor's float-to-integer conversion under a
// rounding field set for the call (to nearest for code 1; toward zero around the added half of
// code 2, so that the sum itself cannot round up), and restores the caller's control register
// before it returns. NaN is zeroed and the range clamped before the conversion.
template <class D, int Code>
inline void krnRoundRow(const float* s, D* d, int n)
{
    int i = 0;
#if defined(__SSE2__)
    constexpr bool packable = sizeof(D) == 1 || std::is_same_v<D, int16_t>
#if defined(__SSE4_1__)
                              || std::is_same_v<D, uint16_t>
#endif
        ;
#if defined(__AVX512F__) && defined(__AVX512BW__)
    // Sixteen at a time with the rounding written into each instruction, so no control register
    // takes part: both ends clamped in float (NaN zeroed by the mask of the conversion), the half
    // of code 2 added toward zero, converted, and narrowed with no saturation left to do.
    PXL_AVX512_KERNEL_BEGIN
    if constexpr (sizeof(D) <= 2) {
        using L = std::numeric_limits<D>;
        const __m512 lo = _mm512_set1_ps(float(L::min())), hi = _mm512_set1_ps(float(L::max()));
        const __m512 half = _mm512_set1_ps(0.5f), sign = _mm512_set1_ps(-0.0f);
        for (; i + 16 <= n; i += 16) {
            const __m512 v = _mm512_loadu_ps(s + i);
            const __mmask16 ordered = _mm512_cmp_ps_mask(v, v, _CMP_ORD_Q);
            __m512 x = _mm512_max_ps(_mm512_min_ps(v, hi), lo);
            __m512i k;
            if constexpr (Code == kTowardZero) {
                k = _mm512_maskz_cvtt_roundps_epi32(ordered, x, _MM_FROUND_NO_EXC);
            } else if constexpr (Code == kNearestEven) {
                k = _mm512_maskz_cvt_roundps_epi32(ordered, x, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
            } else {
                x = _mm512_add_round_ps(x, _mm512_or_ps(half, _mm512_and_ps(x, sign)), _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
                k = _mm512_maskz_cvtt_roundps_epi32(ordered, x, _MM_FROUND_NO_EXC);
            }
            if constexpr (sizeof(D) == 1) _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), _mm512_cvtepi32_epi8(k));
            else _mm256_storeu_si256(reinterpret_cast<__m256i*>(d + i), _mm512_cvtepi32_epi16(k));
        }
    }
    PXL_AVX512_KERNEL_END
#endif
    if constexpr (packable) {
        const unsigned saved = _mm_getcsr();
        constexpr unsigned kRoundingField = 0x6000, kFieldNearest = 0x0000, kFieldTruncate = 0x6000;
        if constexpr (Code != kTowardZero)
            _mm_setcsr((saved & ~kRoundingField) | (Code == kNearestEven ? kFieldNearest : kFieldTruncate));
        const __m128 hi = _mm_set1_ps(float(std::numeric_limits<D>::max()));
        const __m128 half = _mm_set1_ps(0.5f), sign = _mm_set1_ps(-0.0f);
        // Below the range the conversion gives INT32_MIN or a value the packs saturate; above it
        // the minimum with hi (taken with x second, so that NaN stays NaN) is needed. NaN
        // converts to INT32_MIN, which the unsigned packs turn into 0; signed targets zero it.
        auto four = [&](const float* p) {
            __m128 x = _mm_min_ps(hi, _mm_loadu_ps(p));
            if constexpr (std::is_signed_v<D>) x = _mm_and_ps(x, _mm_cmpord_ps(x, x));
            if constexpr (Code == kTowardZero) return _mm_cvttps_epi32(x);
            if constexpr (Code != kNearestEven) x = _mm_add_ps(x, _mm_or_ps(half, _mm_and_ps(x, sign)));
            return Code == kNearestEven ? _mm_cvtps_epi32(x) : _mm_cvttps_epi32(x);
        };
#if defined(__AVX2__)
        const __m256 hi8 = _mm256_set1_ps(float(std::numeric_limits<D>::max()));
        const __m256 half8 = _mm256_set1_ps(0.5f), sign8 = _mm256_set1_ps(-0.0f);
        auto eight = [&](const float* p) {
            __m256 x = _mm256_min_ps(hi8, _mm256_loadu_ps(p));
            if constexpr (std::is_signed_v<D>) x = _mm256_and_ps(x, _mm256_cmp_ps(x, x, _CMP_ORD_Q));
            if constexpr (Code == kTowardZero) return _mm256_cvttps_epi32(x);
            if constexpr (Code != kNearestEven) x = _mm256_add_ps(x, _mm256_or_ps(half8, _mm256_and_ps(x, sign8)));
            return Code == kNearestEven ? _mm256_cvtps_epi32(x) : _mm256_cvttps_epi32(x);
        };
        // The packs work within 128-bit halves; a permute puts the quarters back in order.
        auto words = [&](const float* p) {
            const __m256i a = eight(p), b = eight(p + 8);
            constexpr bool isUnsigned = std::is_same_v<D, uint16_t>;
            const __m256i w = isUnsigned ? _mm256_packus_epi32(a, b) : _mm256_packs_epi32(a, b);
            return _mm256_permute4x64_epi64(w, 0xD8);
        };
        constexpr int wide = sizeof(D) == 1 ? 32 : 16;
        for (; i + wide <= n; i += wide) {
            __m256i w = words(s + i);
            if constexpr (sizeof(D) == 1) {
                const __m256i w2 = words(s + i + 16);
                constexpr bool isUnsigned = std::is_same_v<D, uint8_t>;
                const __m256i bytes = isUnsigned ? _mm256_packus_epi16(w, w2) : _mm256_packs_epi16(w, w2);
                w = _mm256_permute4x64_epi64(bytes, 0xD8);
            }
            _mm256_storeu_si256(reinterpret_cast<__m256i*>(d + i), w);
        }
#endif
        constexpr int step = sizeof(D) == 1 ? 16 : 8;
        for (; i + step <= n; i += step) {
            const __m128i a = four(s + i), b = four(s + i + 4);
            __m128i w;
            if constexpr (std::is_same_v<D, uint16_t>) w = _mm_packus_epi32(a, b);
            else w = _mm_packs_epi32(a, b);
            if constexpr (sizeof(D) == 1) {
                const __m128i w2 = _mm_packs_epi32(four(s + i + 8), four(s + i + 12));
                w = std::is_same_v<D, uint8_t> ? _mm_packus_epi16(w, w2) : _mm_packs_epi16(w, w2);
                _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), w);
            } else {
                _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), w);
            }
        }
        _mm_setcsr(saved);
    }
#endif
    for (; i < n; ++i) d[i] = roundToInt<D, Code>(s[i]);
}

}  // namespace pxl
