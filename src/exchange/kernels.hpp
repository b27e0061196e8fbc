// Row kernels that several families share: the library's one byte mover, and fills and copies of
// rows of pixels of any layout.
#pragma once

#include "frame/image.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSSE3__)
#include <tmmintrin.h>
#endif

namespace pxl {

// The single byte mover: non-overlapping source and destination.
inline void krnCopyBytes(const void* src, void* dst, std::size_t bytes) { std::memcpy(dst, src, bytes); }

// Fills `rows` rows of `rowBytes` bytes with a repeated pixel of `pixelBytes` bytes. Where every
// byte of the pixel is the same it is a plain byte fill. Otherwise the first stretch of the first
// row is built by doubling, and everything else is copied from it: the source of those copies
// stays in the nearest cache, and the copies store as fast as the byte mover can.
inline void krnFillPattern(const void* pixel, int pixelBytes, char* dst, int step, std::size_t rowBytes, int rows)
{
    const auto* px = static_cast<const unsigned char*>(pixel);
    if (std::all_of(px, px + pixelBytes, [px](unsigned char b) { return b == px[0]; })) {
        for (int y = 0; y < rows; ++y) std::memset(rowAt(dst, step, y), px[0], rowBytes);
        return;
    }
    // A whole number of pixels of every size up to 16 bytes (1, 2, 3, 4, 6, 8, 12, 16).
    constexpr std::size_t kStretch = 48 * 512;
    const std::size_t stretch = std::min(kStretch, rowBytes);
    const auto pb = static_cast<std::size_t>(pixelBytes);
    std::memcpy(dst, px, std::min(pb, stretch));
    for (std::size_t done = pb; done < stretch; done *= 2) krnCopyBytes(dst, dst + done, std::min(done, stretch - done));
    for (int y = 0; y < rows; ++y) {
        char* d = rowAt(dst, step, y);
        for (std::size_t off = y == 0 ? stretch : 0; off < rowBytes; off += stretch)
            krnCopyBytes(dst, d + off, std::min(stretch, rowBytes - off));
    }
}

// Copies a row of `width` pixels of layout L; AC4 moves the first three samples of each pixel
// and leaves the destination's fourth.
template <class S, class L>
inline void krnCopyPixels(const S* src, S* dst, int width)
{
    if constexpr (L::hasAlpha) {
        for (std::ptrdiff_t x = 0; x < width; ++x) {
            dst[4 * x + 0] = src[4 * x + 0];
            dst[4 * x + 1] = src[4 * x + 1];
            dst[4 * x + 2] = src[4 * x + 2];
        }
    } else {
        krnCopyBytes(src, dst, static_cast<std::size_t>(width) * L::mem * sizeof(S));
    }
}

// `count` copies of one pixel of layout L in a row, for short runs such as a border's sides: a
// byte fill where every byte of the pixel is the same, else a block of whole pixels built once and
// stored as often as it fits (AC4 leaves the fourth sample). The pixel may lie in the row that is
// written.
template <class S, class L>
inline void krnRepeatPixel(const S* pixel, S* dst, int count)
{
    if constexpr (L::hasAlpha) {
        const S v0 = pixel[0], v1 = pixel[1], v2 = pixel[2];
        for (std::ptrdiff_t x = 0; x < count; ++x) {
            dst[4 * x] = v0;
            dst[4 * x + 1] = v1;
            dst[4 * x + 2] = v2;
        }
    } else {
        constexpr std::size_t B = L::mem * sizeof(S), P = 16 % B == 0 ? 64 : 48;  // whole pixels
        const auto* px = reinterpret_cast<const unsigned char*>(pixel);
        if (std::all_of(px, px + B, [px](unsigned char b) { return b == px[0]; })) {
            std::memset(dst, px[0], static_cast<std::size_t>(count) * B);
            return;
        }
        unsigned char block[P];
        std::memcpy(block, pixel, B);
        for (std::size_t k = B; k < P; k += B) std::memcpy(block + k, block, B);
        auto* d = reinterpret_cast<unsigned char*>(dst);
        const std::size_t bytes = static_cast<std::size_t>(count) * B;
        std::size_t off = 0;
        for (; off + P <= bytes; off += P) std::memcpy(d + off, block, P);
        std::memcpy(d + off, block, bytes - off);
    }
}

// Fills `rows` rows of `width` pixels of layout L with one pixel; AC4 leaves the fourth sample.
template <class S, class L>
inline void krnFillPixels(const S* pixel, S* dst, int step, int width, int rows)
{
    if constexpr (L::hasAlpha) {
        const S v0 = pixel[0], v1 = pixel[1], v2 = pixel[2];
        for (int y = 0; y < rows; ++y) {
            S* d = rowAt(dst, step, y);
            for (std::ptrdiff_t x = 0; x < width; ++x) {
                d[4 * x] = v0;
                d[4 * x + 1] = v1;
                d[4 * x + 2] = v2;
            }
        }
    } else {
        krnFillPattern(pixel, L::mem * static_cast<int>(sizeof(S)), reinterpret_cast<char*>(dst), step,
                       static_cast<std::size_t>(width) * L::mem * sizeof(S), rows);
    }
}

#if defined(__SSSE3__)
namespace detail {
// 48 bytes of B-byte pixels in reverse pixel order: output chunk k (16 bytes) gathers from input
// chunk i the bytes that mask[k][i] names (-128: none of them), so three loads, seven byte
// shuffles and three stores reverse 48 / B pixels.
template <int B> struct ReverseMasks {
    alignas(16) int8_t mask[3][3][16];
    bool used[3][3];
    constexpr ReverseMasks() : mask{}, used{}
    {
        const int n = 48 / B;
        for (int k = 0; k < 48; ++k) {
            const int from = (n - 1 - k / B) * B + k % B;
            for (int i = 0; i < 3; ++i) mask[k / 16][i][k % 16] = static_cast<int8_t>(from / 16 == i ? from % 16 : -128);
            used[k / 16][from / 16] = true;
        }
    }
};
template <int B> inline constexpr ReverseMasks<B> kReverseMasks{};

// 16 bytes of B-byte pixels (B dividing 16) in reverse pixel order: one byte shuffle.
template <int B> struct ReverseMask16 {
    alignas(16) int8_t mask[16];
    constexpr ReverseMask16() : mask{}
    {
        for (int k = 0; k < 16; ++k) mask[k] = static_cast<int8_t>((16 / B - 1 - k / B) * B + k % B);
    }
};
template <int B> inline constexpr ReverseMask16<B> kReverseMask16{};

template <int B> inline void reverse16(const unsigned char* s, unsigned char* d)
{
    const __m128i m = _mm_load_si128(reinterpret_cast<const __m128i*>(kReverseMask16<B>.mask));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(d), _mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(s)), m));
}

template <int B> inline void reverse48(const unsigned char* s, unsigned char* d)
{
    __m128i in[3];
    for (int i = 0; i < 3; ++i) in[i] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + 16 * i));
    for (int k = 0; k < 3; ++k) {
        __m128i out = _mm_setzero_si128();
        for (int i = 0; i < 3; ++i)
            if (kReverseMasks<B>.used[k][i])
                out = _mm_or_si128(out, _mm_shuffle_epi8(in[i], _mm_load_si128(reinterpret_cast<const __m128i*>(
                                                                 kReverseMasks<B>.mask[k][i]))));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d + 16 * k), out);
    }
}
}  // namespace detail
#endif

// Destination pixel x gets source pixel width-1-x, for a row of `width` pixels of layout L (AC4
// leaves the destination's fourth sample); the rows must not overlap. Pixels of 1, 2, 4, 8 or 16
// bytes: the compiler vectorises the plain loop of a long row; a short one (a border's side) goes
// 16 bytes at a time through byte shuffles. Three-sample pixels go 48 bytes at a time through byte
// shuffles where the processor has them. Otherwise a
// three-sample pixel moves as one wider word, walking the destination forwards so that the word's
// extra bytes land on the pixel written next; the first and last pixels, whose extra bytes would
// leave a row, move exactly.
template <class S, class L>
inline void krnReversePixels(const S* src, S* dst, int width)
{
    constexpr int N = L::mem, B = N * static_cast<int>(sizeof(S));
    const auto* s = reinterpret_cast<const unsigned char*>(src);
    auto* d = reinterpret_cast<unsigned char*>(dst);
    std::ptrdiff_t x = 0;
#if defined(__SSSE3__)
    if constexpr (!L::hasAlpha && 16 % B == 0) {
        if (width * std::ptrdiff_t{B} < 64)
            for (constexpr int n = 16 / B; x + n <= width; x += n) detail::reverse16<B>(s + (width - x - n) * B, d + x * B);
    } else if constexpr (!L::hasAlpha) {
        for (constexpr int n = 48 / B; x + n <= width; x += n) detail::reverse48<B>(s + (width - x - n) * B, d + x * B);
    }
#else
    if constexpr (N == 3) {
        constexpr int wide = B == 3 ? 4 : B == 6 ? 8 : 16;
        if (x < width - 1) {
            std::memcpy(d, s + (width - 1) * std::ptrdiff_t{B}, B);
            for (x = 1; x < width - 1; ++x) std::memcpy(d + x * B, s + (width - 1 - x) * B, wide);
        }
    }
#endif
    for (; x < width; ++x)
        for (int c = 0; c < L::proc; ++c) dst[N * x + c] = src[N * (width - 1 - x) + c];
}

}  // namespace pxl
