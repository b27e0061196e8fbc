// Transpose, mirror and channel swaps: samples change places, never values, so each body works on
// the bits of the sample and a pixel of N samples moves as one unit.
#include "exchange/exchange.hpp"
#include "exchange/kernels.hpp"
#include "frame/bind.hpp"

#include <utility>

namespace pxl::exch {

namespace {

template <class S, int N> struct Pixel { S s[N]; };
template <class S, int N> using Px = std::conditional_t<N == 1, S, Pixel<S, N>>;

// Moves or swaps the processed samples of one pixel; a four-sample pixel with alpha keeps the
// destination's fourth sample.
template <class S, class L> inline void movePixel(S* d, const S* s)
{
    for (int c = 0; c < L::proc; ++c) d[c] = s[c];
}
template <class S, class L> inline void swapPixel(S* a, S* b)
{
    for (int c = 0; c < L::proc; ++c) std::swap(a[c], b[c]);
}

// Destination row x, column y gets source row y, column x, for a source of w columns and h rows;
// with Anti, destination row w-1-x, column h-1-y. Square tiles of up to 64 walk down the source,
// then across; each source column of a tile becomes a destination row.
template <class P, bool Anti>
void transposeTiles(const P* src, int srcStep, P* dst, int dstStep, int w, int h)
{
    const int t = std::min({w, h, 64});
    for (int x0 = 0; x0 < w; x0 += t) {
        const int x1 = std::min(w, x0 + t);
        for (int y0 = 0; y0 < h; y0 += t) {
            const int y1 = std::min(h, y0 + t);
            for (int x = x0; x < x1; ++x) {
                if constexpr (Anti) {
                    P* d = rowAt(dst, dstStep, w - 1 - x) + (h - 1);
                    for (int y = y0; y < y1; ++y) *(d - y) = rowAt(src, srcStep, y)[x];
                } else {
                    P* d = rowAt(dst, dstStep, x);
                    for (int y = y0; y < y1; ++y) d[y] = rowAt(src, srcStep, y)[x];
                }
            }
        }
    }
}

// Whether any corner of region b lies within a row of region a (rows of `cols` elements).
struct Span {
    uintptr_t base;
    int step, rows, cols;
    std::size_t elem;
};
bool cornerInRows(const Span& a, const Span& b)
{
    const uintptr_t lastCol = static_cast<uintptr_t>(b.cols - 1) * b.elem;
    const uintptr_t lastRow = b.base + static_cast<uintptr_t>(static_cast<std::ptrdiff_t>(b.rows - 1) * b.step);
    const uintptr_t corners[4] = {b.base, b.base + lastCol, lastRow, lastRow + lastCol};
    for (int r = 0; r < a.rows; ++r) {
        const uintptr_t lo = a.base + static_cast<uintptr_t>(static_cast<std::ptrdiff_t>(r) * a.step);
        const uintptr_t hi = lo + static_cast<uintptr_t>(a.cols) * a.elem;
        for (uintptr_t c : corners)
            if (c >= lo && c < hi) return true;
    }
    return false;
}

}  // namespace

// ---- Transpose ---------------------------------------------------------------------------------

template <class S, int N>
PxlStatus transposeInPlace(S* pSrcDst, int step, PxliSize roi)
{
    if (!pSrcDst) return pxlStatusNullPointer;
    if (badSize(roi) || roi.width != roi.height) return pxlStatusBadSize;
    using P = Px<S, N>;
    P* a = reinterpret_cast<P*>(pSrcDst);
    const int n = roi.width, t = std::min(n, 32);
    // A tile on the diagonal swaps its upper part with its lower; a tile above it swaps with its
    // mirror tile below.
    for (int by = 0; by < n; by += t) {
        const int y1 = std::min(n, by + t);
        for (int bx = by; bx < n; bx += t) {
            const int x1 = std::min(n, bx + t);
            for (int y = by; y < y1; ++y) {
                P* row = rowAt(a, step, y);
                for (int x = bx == by ? y + 1 : bx; x < x1; ++x) std::swap(row[x], rowAt(a, step, x)[y]);
            }
        }
    }
    return pxlStatusOk;
}

template <class S, int N>
PxlStatus transpose(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi)
{
    if (pSrc == pDst && srcStep == dstStep) return transposeInPlace<S, N>(pDst, dstStep, roi);
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    using P = Px<S, N>;
    transposeTiles<P, false>(reinterpret_cast<const P*>(pSrc), srcStep, reinterpret_cast<P*>(pDst), dstStep,
                             roi.width, roi.height);
    return pxlStatusOk;
}

// ---- Mirror ------------------------------------------------------------------------------------

template <class S, class L>
PxlStatus mirrorInPlace(S* p, int step, PxliSize roi, PxlAxis flip)
{
    if (!p) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (flip < pxlAxisHorizontal || flip > pxlAxisBoth) return pxlStatusBadAxis;
    const int w = roi.width, h = roi.height, m = L::mem;
    if (flip == pxlAxisHorizontal) {
        for (int y = 0; y < h / 2; ++y) {
            S* a = rowAt(p, step, y);
            S* b = rowAt(p, step, h - 1 - y);
            for (int x = 0; x < w; ++x) swapPixel<S, L>(a + m * x, b + m * x);
        }
    } else if (flip == pxlAxisVertical) {
        for (int y = 0; y < h; ++y) {
            S* a = rowAt(p, step, y);
            for (int x = 0; x < w / 2; ++x) swapPixel<S, L>(a + m * x, a + m * (w - 1 - x));
        }
    } else {
        for (int y = 0; y < h / 2; ++y) {
            S* a = rowAt(p, step, y);
            S* b = rowAt(p, step, h - 1 - y);
            for (int x = 0; x < w; ++x) swapPixel<S, L>(a + m * x, b + m * (w - 1 - x));
        }
        if (h % 2) {
            S* a = rowAt(p, step, h / 2);
            for (int x = 0; x < w / 2; ++x) swapPixel<S, L>(a + m * x, a + m * (w - 1 - x));
        }
    }
    return pxlStatusOk;
}

// Axes 3 and 4 of the one-channel forms: the size is the destination's, so the source is read as
// width rows of height columns. The images must not overlap.
template <class S>
PxlStatus mirrorDiagonal(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi, PxlAxis flip)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (badSize(roi)) return pxlStatusBadSize;
    const Span src{reinterpret_cast<uintptr_t>(pSrc), srcStep, roi.width, roi.height, sizeof(S)};
    const Span dst{reinterpret_cast<uintptr_t>(pDst), dstStep, roi.height, roi.width, sizeof(S)};
    if (cornerInRows(src, dst) || cornerInRows(dst, src)) return pxlStatusUnsupportedMode;
    if (flip == pxlAxisDiagonal) transposeTiles<S, false>(pSrc, srcStep, pDst, dstStep, roi.height, roi.width);
    else transposeTiles<S, true>(pSrc, srcStep, pDst, dstStep, roi.height, roi.width);
    return pxlStatusOk;
}

template <class S, class L>
PxlStatus mirror(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi, PxlAxis flip)
{
    const bool diagonal = flip == pxlAxisDiagonal || flip == pxlAxisAntiDiagonal;
    if (!diagonal && pSrc == pDst && srcStep == dstStep) return mirrorInPlace<S, L>(pDst, dstStep, roi, flip);
    if constexpr (std::is_same_v<L, C1>) {
        if (diagonal) return mirrorDiagonal<S>(pSrc, srcStep, pDst, dstStep, roi, flip);
    }
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (flip < pxlAxisHorizontal || flip > pxlAxisBoth) return pxlStatusBadAxis;
    const int w = roi.width, h = roi.height, m = L::mem;
    const std::size_t rowBytes = static_cast<std::size_t>(w) * m * sizeof(S);
    for (int y = 0; y < h; ++y) {
        const S* s = rowAt(pSrc, srcStep, y);
        S* d = rowAt(pDst, dstStep, flip == pxlAxisVertical ? y : h - 1 - y);
        if (flip == pxlAxisHorizontal) {
            if constexpr (L::hasAlpha) krnCopyAC4Row(s, d, w);
            else krnCopyBytes(s, d, rowBytes);
        } else {
            for (int x = 0; x < w; ++x) movePixel<S, L>(d + m * (w - 1 - x), s + m * x);
        }
    }
    return pxlStatusOk;
}

// ---- SwapChannels ------------------------------------------------------------------------------

namespace {
// Destination channel c of each pixel gets source channel order[c], for c below Count. All the
// pixel's samples are read before any is written, so source and destination may be one image.
template <class S, int SrcN, int DstN, int Count>
void swapRows(const S* src, int srcStep, S* dst, int dstStep, PxliSize roi, const int* order)
{
    int o[Count];
    for (int c = 0; c < Count; ++c) o[c] = order[c];
    for (int y = 0; y < roi.height; ++y) {
        const S* s = rowAt(src, srcStep, y);
        S* d = rowAt(dst, dstStep, y);
        for (int x = 0; x < roi.width; ++x) {
            S t[Count];
            for (int c = 0; c < Count; ++c) t[c] = s[SrcN * x + o[c]];
            for (int c = 0; c < Count; ++c) d[DstN * x + c] = t[c];
        }
    }
}

template <int Count, int MaxIndex> bool badOrder(const int* order)
{
    for (int c = 0; c < Count; ++c)
        if (static_cast<unsigned>(order[c]) > static_cast<unsigned>(MaxIndex)) return true;
    return false;
}
}  // namespace

// Most forms check the images, the steps (only a zero step is refused), the size, and then the
// order array; 8u C3R and C4C3R take the array with the pointers and the size before the steps.
template <class S, int SrcN, int DstN, int Count, int MaxIndex, bool ArrayFirst>
PxlStatus swapChannels(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi, const int* order)
{
    if constexpr (ArrayFirst) {
        if (!pSrc || !pDst || !order) return pxlStatusNullPointer;
        if (badSize(roi)) return pxlStatusBadSize;
        if (srcStep == 0 || dstStep == 0) return pxlStatusBadStep;
    } else {
        if (!pSrc || !pDst) return pxlStatusNullPointer;
        if (srcStep == 0 || dstStep == 0) return pxlStatusBadStep;
        if (badSize(roi)) return pxlStatusBadSize;
        if (!order) return pxlStatusNullPointer;
    }
    if (badOrder<Count, MaxIndex>(order)) return pxlStatusBadChannelOrder;
    swapRows<S, SrcN, DstN, Count>(pSrc, srcStep, pDst, dstStep, roi, order);
    return pxlStatusOk;
}

template <class S, int N>
PxlStatus swapChannelsInPlace(S* p, int step, PxliSize roi, const int* order)
{
    if (!p) return pxlStatusNullPointer;
    if (step == 0) return pxlStatusBadStep;
    if (badSize(roi)) return pxlStatusBadSize;
    if (!order) return pxlStatusNullPointer;
    if (badOrder<N, N - 1>(order)) return pxlStatusBadChannelOrder;
    swapRows<S, N, N, N>(p, step, p, step, roi, order);
    return pxlStatusOk;
}

// Three channels into four: an index below 3 reads that source channel, 3 writes `val`, and an
// index above 3 leaves the destination channel as it was. Each destination channel is one pass
// over the row with its source fixed, so no test remains inside the loops.
template <class T>
PxlStatus swapChannelsC3C4(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const int* order, T val)
{
    if (!pSrc || !pDst || !order) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep == 0 || dstStep == 0) return pxlStatusBadStep;
    for (int c = 0; c < 4; ++c)
        if (order[c] < 0) return pxlStatusBadChannelOrder;
    const Bits<T> v = toBits(val);
    int o[4];
    for (int c = 0; c < 4; ++c) o[c] = order[c];
    for (int y = 0; y < roi.height; ++y) {
        const Bits<T>* s = rowAt(asBits(pSrc), srcStep, y);
        Bits<T>* d = rowAt(asBits(pDst), dstStep, y);
        for (int c = 0; c < 4; ++c) {
            if (o[c] < 3) {
                const Bits<T>* sc = s + o[c];
                for (int x = 0; x < roi.width; ++x) d[4 * x + c] = sc[3 * x];
            } else if (o[c] == 3) {
                for (int x = 0; x < roi.width; ++x) d[4 * x + c] = v;
            }
        }
    }
    return pxlStatusOk;
}

}  // namespace pxl::exch

#include "inst/exchange/rearrange.inc"
