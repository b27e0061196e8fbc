// Row kernels that several families share: the library's one byte mover, fills and the copy of
// the first three samples of four-sample pixels.
#pragma once

#include "frame/image.hpp"

#include <algorithm>
#include <cstring>

namespace pxl {

// The single byte mover: non-overlapping source and destination.
inline void krnCopyBytes(const void* src, void* dst, std::size_t bytes) { std::memcpy(dst, src, bytes); }

// Fills `rows` rows of `rowBytes` bytes with a repeated pixel of `pixelBytes` bytes. Where every
// byte of the pixel is the same it is a plain byte fill; otherwise a block of whole pixels is
// built once on the stack and copied along each row, which keeps the stores as wide as a copy's.
inline void krnFillPattern(const void* pixel, int pixelBytes, char* dst, int step, std::size_t rowBytes, int rows)
{
    const auto* px = static_cast<const unsigned char*>(pixel);
    if (std::all_of(px, px + pixelBytes, [px](unsigned char b) { return b == px[0]; })) {
        for (int y = 0; y < rows; ++y) std::memset(rowAt(dst, step, y), px[0], rowBytes);
        return;
    }
    // 3072 bytes hold whole pixels of every size up to 16 bytes (1, 2, 3, 4, 6, 8, 12, 16).
    constexpr std::size_t kBlock = 3072;
    alignas(64) unsigned char block[kBlock];
    const std::size_t used = std::min(kBlock, rowBytes);
    for (std::size_t i = 0; i < used; i += static_cast<std::size_t>(pixelBytes))
        std::memcpy(block + i, px, std::min<std::size_t>(static_cast<std::size_t>(pixelBytes), used - i));
    for (int y = 0; y < rows; ++y) {
        char* d = rowAt(dst, step, y);
        for (std::size_t off = 0; off < rowBytes; off += kBlock) krnCopyBytes(block, d + off, std::min(kBlock, rowBytes - off));
    }
}

// Moves the first three samples of each four-sample pixel; the destination's fourth stays.
template <class S>
inline void krnCopyAC4Row(const S* src, S* dst, int width)
{
    for (int x = 0; x < width; ++x) {
        dst[4 * x + 0] = src[4 * x + 0];
        dst[4 * x + 1] = src[4 * x + 1];
        dst[4 * x + 2] = src[4 * x + 2];
    }
}

}  // namespace pxl
