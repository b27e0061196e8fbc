// Rows of saturating sums and differences with no scale: the scale rule at f = 0 is exactly the
// processor's saturating add and subtract on 8- and 16-bit lanes, sixteen or eight samples at a
// time. The plain loop serves the tail and processors without them.
#pragma once

#include "arithmetic/scale.hpp"

#include <cstdint>
#include <cstring>
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

// 8u rows scaled down by 2^f (1 <= f <= kNarrowMaxShift) in 16-bit lanes. A sum, difference or
// product of two 8u samples plus its rounding term fits 16 bits there, so a vector holds twice as
// many results as in the 32-bit type of the general loop. The vectors are the compiler's generic
// ones, which it fits to each processor level.
enum class Narrow8u { Add, Sub, Mul };
template <Narrow8u K> inline constexpr int kNarrowMaxShift = K == Narrow8u::Mul ? 8 : 9;

template <Narrow8u K>
inline void krnScaledDownRow8u(const uint8_t* first, const uint8_t* second, uint8_t* d, int n, int f)
{
    using U8 = uint8_t __attribute__((vector_size(32)));
    using U16 = uint16_t __attribute__((vector_size(64)));
    using I16 = int16_t __attribute__((vector_size(64)));
    const auto bias = static_cast<int16_t>((1 << (f - 1)) - 1);
    const auto ubias = static_cast<uint16_t>(bias);
    int i = 0;
    for (; i + 32 <= n; i += 32) {
        U8 a, b, r;
        std::memcpy(&a, first + i, sizeof a);
        std::memcpy(&b, second + i, sizeof b);
        if constexpr (K == Narrow8u::Sub) {
            const I16 s = __builtin_convertvector(b, I16) - __builtin_convertvector(a, I16);
            I16 t = (s + bias + ((s >> f) & 1)) >> f;
            t &= ~(t >> 15);  // below zero saturates to 0; nothing exceeds 255
            r = __builtin_convertvector(t, U8);
        } else {
            const U16 ua = __builtin_convertvector(a, U16), ub = __builtin_convertvector(b, U16);
            const U16 s = K == Narrow8u::Add ? ua + ub : ua * ub;
            U16 t = (s + ubias + ((s >> f) & 1)) >> f;
            // A product may exceed 255: all ones there, whose low byte is 255. A sum never does.
            if constexpr (K == Narrow8u::Mul) t |= reinterpret_cast<U16>(t > 255);
            r = __builtin_convertvector(t, U8);
        }
        std::memcpy(d + i, &r, sizeof r);
    }
    const ScaleDown<int32_t> down(f);
    for (; i < n; ++i) {
        const int32_t x = first[i], y = second[i];
        d[i] = saturate<uint8_t>(down(K == Narrow8u::Add ? x + y : K == Narrow8u::Sub ? y - x : x * y));
    }
}

}  // namespace pxl
