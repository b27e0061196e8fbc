// Rows of saturating sums and differences with no scale: the scale rule at f = 0 is exactly the
// processor's saturating add and subtract on 8- and 16-bit lanes, sixteen or eight samples at a
// time. The plain loop serves the tail and processors without them.
#pragma once

#include "arithmetic/scale.hpp"

#include <cstdint>
#include <type_traits>

#if defined(__SSE2__)
#include <immintrin.h>
#endif

namespace pxl {

// d = first + second (Add) or second - first (Sub), saturated, for n samples.
template <class T, bool Add>
inline void krnSaturatingRow(const T* first, const T* second, T* d, int n)
{
    int i = 0;
#if defined(__AVX2__)
    constexpr int wide = 32 / static_cast<int>(sizeof(T));
    for (; i + wide <= n; i += wide) {
        const __m256i a = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(first + i));
        const __m256i b = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(second + i));
        __m256i r;
        if constexpr (std::is_same_v<T, uint8_t>) r = Add ? _mm256_adds_epu8(a, b) : _mm256_subs_epu8(b, a);
        else if constexpr (std::is_same_v<T, uint16_t>) r = Add ? _mm256_adds_epu16(a, b) : _mm256_subs_epu16(b, a);
        else r = Add ? _mm256_adds_epi16(a, b) : _mm256_subs_epi16(b, a);
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(d + i), r);
    }
#endif
#if defined(__SSE2__)
    constexpr int lanes = 16 / static_cast<int>(sizeof(T));
    for (; i + lanes <= n; i += lanes) {
        const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(first + i));
        const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(second + i));
        __m128i r;
        if constexpr (std::is_same_v<T, uint8_t>) r = Add ? _mm_adds_epu8(a, b) : _mm_subs_epu8(b, a);
        else if constexpr (std::is_same_v<T, uint16_t>) r = Add ? _mm_adds_epu16(a, b) : _mm_subs_epu16(b, a);
        else r = Add ? _mm_adds_epi16(a, b) : _mm_subs_epi16(b, a);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), r);
    }
#endif
    for (; i < n; ++i) {
        const int32_t s = Add ? int32_t{first[i]} + second[i] : int32_t{second[i]} - first[i];
        d[i] = saturate<T>(s);
    }
}

}  // namespace pxl
