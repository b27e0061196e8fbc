// Row kernels that several families share: the library's one byte mover, and fills and copies of
// rows of pixels of any layout.
#pragma once

#include "frame/image.hpp"

#include <algorithm>
#include <cstddef>
#include <cstring>

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

}  // namespace pxl
