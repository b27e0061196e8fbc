// Windows over a ring of extended rows: the rows under the current output row's windows are kept,
// made whole by the border rule (replicated, mirrored or constant, with the memory flags), in a
// ring in the work buffer. Each output row is made from the
// ring alone, so the driver serves filters in place too (an image row is copied before the output
// row that replaces it is written), and it needs kh rows of buffer whatever the region's size.
#pragma once

#include "exchange/border.hpp"
#include "exchange/kernels.hpp"
#include "frame/image.hpp"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace pxl::filt {

// Samples in the work buffer, which may start at any address, are read and written as samples of
// alignment 1.
template <class T> struct Unaligned {
    typedef T type __attribute__((aligned(1)));
};
template <class T> using Loose = typename Unaligned<T>::type;

// Index i brought into the real pixels [lo, hi) by the border kind: the nearest edge pixel
// (replicated) or the reflection about the edge pixels (mirrored).
inline int foldIndex(int i, int lo, int hi, int kind)
{
    return kind == pxlBorderReplicate ? std::clamp(i, lo, hi - 1) : lo + mirrorIndex(i - lo, hi - lo);
}

// The extended samples of a row (`row` points at the region's first pixel in it; null: a row of
// the constant) from pixel p0 on, count pixels: the pixels in [lo, hi) as they are (the region,
// and the caller's memory beyond a flagged side), the others by the border kind.
template <class T, int N>
void extendRow(const T* row, int lo, int hi, int p0, int count, int kind, const T* value, Loose<T>* dst)
{
    for (int k = 0; k < count;) {
        const int p = p0 + k;
        if (row && p >= lo && p < hi) {
            const int end = std::min(p0 + count, hi);  // the run of real pixels
            std::memcpy(dst + std::ptrdiff_t{N} * k, row + std::ptrdiff_t{N} * p, sizeof(T) * N * static_cast<std::size_t>(end - p));
            k += end - p;
            continue;
        }
        const T* px = !row || kind == pxlBorderConstant ? value : row + std::ptrdiff_t{N} * foldIndex(p, lo, hi, kind);
        std::memcpy(dst + std::ptrdiff_t{N} * k, px, sizeof(T) * N);
        ++k;
    }
}

// Where the windows come from: the source region and its border word (kind and memory flags),
// and the mask, anchored at its centre (kw >> 1, kh >> 1).
template <class T> struct RingSource {
    const T* src;
    int srcStep;
    PxliSize roi;
    int kw, kh, kind, flags;
    const T* value;  // one pixel, for the constant kind
    // The real columns and rows: the region, and as far as the mask reaches beyond a flagged side.
    int left() const { return flags & pxlBorderMemLeft ? -(kw >> 1) : 0; }
    int right() const { return flags & pxlBorderMemRight ? roi.width + (kw - 1 - (kw >> 1)) : roi.width; }
    int top() const { return flags & pxlBorderMemTop ? -(kh >> 1) : 0; }
    int bottom() const { return flags & pxlBorderMemBottom ? roi.height + (kh - 1 - (kh >> 1)) : roi.height; }
};

// For output rows 0 to H - 1 of the columns x0 to x0 + width - 1: enter(row) for each extended row
// as it comes into the ring, leave(row) as it goes, and out(y, rows) with rows(i) the first sample
// of window row i of the first output pixel. The ring holds kh rows of width + kw - 1 pixels.
template <class T, int N, class Enter, class Leave, class Out>
void slideRows(const RingSource<T>& s, int x0, int width, Loose<T>* ring, Enter enter, Leave leave, Out out)
{
    const int H = s.roi.height, kh = s.kh, ay = kh >> 1, span = width + s.kw - 1;
    auto slot = [&](int r) { return ring + std::ptrdiff_t{((r % kh) + kh) % kh} * span * N; };
    const int top = s.top(), bottom = s.bottom(), lo = s.left(), hi = s.right();
    auto load = [&](int r) {
        const bool real = r >= top && r < bottom;
        const T* row = real || s.kind != pxlBorderConstant ? rowAt(s.src, s.srcStep, real ? r : foldIndex(r, top, bottom, s.kind)) : nullptr;
        extendRow<T, N>(row, lo, hi, x0 - (s.kw >> 1), span, s.kind, s.value, slot(r));
        enter(static_cast<const Loose<T>*>(slot(r)));
    };
    for (int r = -ay; r < ay; ++r) load(r);
    for (int y = 0; y < H; ++y) {
        if (y > 0) leave(static_cast<const Loose<T>*>(slot(y - ay - 1)));
        load(y + ay);
        const int first = (((y - ay) % kh) + kh) % kh;  // the slot of the windows' top row
        // The declared type keeps the samples' alignment of 1 for the kernels that read through it.
        out(y, [&](int i) -> const Loose<T>* {
            const int k = first + i < kh ? first + i : first + i - kh;
            return static_cast<const Loose<T>*>(ring + std::ptrdiff_t{k} * span * N);
        });
    }
}

template <class T, int N, class Out> void slideRows(const RingSource<T>& s, Loose<T>* ring, Out out)
{
    auto none = [](const Loose<T>*) {};
    slideRows<T, N>(s, 0, s.roi.width, ring, none, none, out);
}

// One output row of layout L from its window rows: kernel(rows, out, width) writes every sample of
// each pixel, straight into the row where every sample is filtered, else (AC4) into a stretch of
// whole pixels of which the first three samples are kept.
template <class T, class L, class Kernel, class Rows> void layoutRow(const Kernel& kernel, const Rows& rows, T* out, int width)
{
    constexpr int N = L::mem, kStretch = 256;
    if constexpr (N == L::proc) {
        kernel(rows, out, width);
    } else {
        T stretch[kStretch * N];
        for (int x0 = 0; x0 < width; x0 += kStretch) {
            const int len = std::min(kStretch, width - x0);
            kernel([&](int i) -> decltype(rows(0)) { return rows(i) + x0 * N; }, stretch, len);
            krnCopyPixels<T, L>(stretch, out + x0 * N, len);
        }
    }
}

}  // namespace pxl::filt
