// The box filter of integer samples: the mean of the mask around each pixel, with borders, in
// time that does not grow with the mask.
//
// The rule keeps a 32f running sum per column of the window (plus the difference of the row coming
// in and the row going out, taken in integers) and a 32f running sum along each row. While no sum
// can reach 2^24 every one of those is an exact integer, so the sums are taken in 32-bit integers
// in whatever order is fastest, with the same results; beyond that (16u with masks over 256
// samples, say) the rule's own order of 32f additions runs, piece by piece.
#include "filtering/filtering.hpp"
#include "filtering/rows.hpp"
#include "filtering/strips.hpp"

#include "exchange/border.hpp"
#include "exchange/kernels.hpp"
#include "frame/bind.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace pxl::filt {

namespace {

// The four areas of the work buffer, in bytes: the strips (each with a room of its own, for
// filtering in place), the column sums, the row slots (or the whole extended region when the mask
// is not smaller than it), one word per slot.
struct BoxAreas {
    int64_t strips, columns, slots, words;
    int64_t total() const { return strips + columns + slots + words; }
};

BoxAreas boxAreas(PxliSize roi, PxliSize mask, int channels, int sampleBytes)
{
    const int64_t W = roi.width, H = roi.height, kw = mask.width, kh = mask.height, c = channels;
    const int64_t ax = (kw - 1) >> 1, ay = (kh - 1) >> 1, rx = kw - ax - 1, ry = kh - ay - 1;
    const int64_t A = (W + kw - 1) * (kh + ry - 1), B = (H + kh - 1) * (kw + rx - 1);
    const int64_t A2 = kh == 2 ? A + W + kw - 2 : A, B2 = kw == 2 ? B + H + kh - 2 : B;
    const int64_t S = A + B + A2 + B2;
    BoxAreas a;
    a.strips = std::max(S * 4 * c, S);
    a.columns = (W + kw + 3) * (c == 1 ? 4 : 16);
    a.slots = W * c * (ay + 1) * sampleBytes + 64;
    if (!(kw < W - ax - rx && kh < H - ay - ry)) a.slots = std::max(a.slots, (W + kw - 1) * (H + kh - 1) * c * sampleBytes);
    a.words = 4 * (ay + 1);
    return a;
}

// The mean of a sum s of kw * kh samples: inv * s rounded half up, halves away from zero for 16s.
template <class T> inline T boxMean(float s, float inv)
{
    if constexpr (std::is_signed_v<T>) return static_cast<T>(static_cast<int32_t>(s >= 0 ? inv * s + 0.5f : inv * s - 0.5f));
    else return static_cast<T>(static_cast<int32_t>(inv * s + 0.5f));
}

// Window sums along a row of column sums whose pixels are N samples apart, exact:
// sums[j] = col[j] + col[j + N] + ... + col[j + (kw - 1) N], for len samples.
template <int KW, int N, class A> inline void windowSumsFixed(const A* col, A* sums, int len)
{
    for (int j = 0; j < len; ++j) {
        A s = 0;
        for (int k = 0; k < KW; ++k) s = static_cast<A>(s + col[j + k * N]);
        sums[j] = s;
    }
}
template <int N, class A> void windowSums(const A* col, A* sums, int len, int kw)
{
    // Up to 16 columns the compiler keeps the window in registers; beyond, a running sum for each
    // channel, two operations a sample whatever the width.
    if (!withFixedWidth<16>(kw, [&](auto width) { windowSumsFixed<decltype(width)::value, N>(col, sums, len); })) {
        for (int c = 0; c < N && c < len; ++c) {
            A sum = 0;
            for (int k = 0; k < kw - 1; ++k) sum = static_cast<A>(sum + col[c + k * N]);
            for (int j = c; j < len; j += N) {
                sum = static_cast<A>(sum + col[j + (kw - 1) * N]);
                sums[j] = sum;
                sum = static_cast<A>(sum - col[j]);
            }
        }
    }
}

// One piece, exact: emit(y) gives where output row y goes; T's samples are N apart in memory and
// the first P of each pixel are filtered. `col` holds the column sums, interleaved as the pixels,
// in A: 32-bit, or 16-bit lanes (twice as many to a register) where every sum fits them.
template <class T, int N, int P, class A, class Emit>
void boxExact(const T* win, int winStep, int width, int height, int kw, int kh, float inv, A* col, Emit emit)
{
    constexpr int kChunk = 256 / N * N;  // whole pixels
    const int span = (width + kw - 1) * N, samples = width * N;
    A sums[kChunk];
    std::fill_n(col, span, 0);
    for (int i = 0; i < kh; ++i) {
        const T* row = rowAt(win, winStep, i);
        for (int j = 0; j < span; ++j) col[j] = static_cast<A>(col[j] + row[j]);
    }
    for (int y = 0; y < height; ++y) {
        if (y > 0) {
            const T* in = rowAt(win, winStep, y + kh - 1);
            const T* out = rowAt(win, winStep, y - 1);
            for (int j = 0; j < span; ++j) col[j] = static_cast<A>(col[j] + (int32_t{in[j]} - int32_t{out[j]}));
        }
        T* o = emit(y);
        for (int j0 = 0; j0 < samples; j0 += kChunk) {
            const int len = std::min(kChunk, samples - j0);
            windowSums<N>(col + j0, sums, len, kw);
            if constexpr (N == P) {
                for (int j = 0; j < len; ++j) o[j0 + j] = boxMean<T>(static_cast<float>(sums[j]), inv);
            } else {
                for (int j = 0; j < len; j += N)
                    for (int c = 0; c < P; ++c) o[j0 + j + c] = boxMean<T>(static_cast<float>(sums[j + c]), inv);
            }
        }
    }
}

// One piece by the rule's own order of 32f additions, for sums that may pass 2^24.
template <class T, int N, int P, class Emit>
void boxInOrder(const T* win, int winStep, int width, int height, int kw, int kh, float inv, float* col, Emit emit)
{
    const int span = width + kw - 1;
    std::fill_n(col, std::ptrdiff_t{P} * span, 0.0f);
    for (int i = 0; i < kh; ++i) {
        const T* row = rowAt(win, winStep, i);
        for (int c = 0; c < P; ++c)
            for (int x = 0; x < span; ++x) col[c * span + x] += static_cast<float>(row[x * N + c]);
    }
    for (int y = 0; y < height; ++y) {
        if (y > 0) {
            const T* in = rowAt(win, winStep, y + kh - 1);
            const T* out = rowAt(win, winStep, y - 1);
            for (int c = 0; c < P; ++c)
                for (int x = 0; x < span; ++x) col[c * span + x] += static_cast<float>(int32_t{in[x * N + c]} - int32_t{out[x * N + c]});
        }
        T* o = emit(y);
        for (int c = 0; c < P; ++c) {
            const float* cc = col + c * span;
            float s = 0;
            for (int k = 0; k < kw - 1; ++k) s += cc[k];
            for (int x = 0; x < width; ++x) {
                s += cc[x + kw - 1];
                o[x * N + c] = boxMean<T>(s, inv);
                s -= cc[x];
            }
        }
    }
}

}  // namespace

PxlStatus filterBoxBorderGetBufferSize(PxliSize roi, PxliSize mask, PxlDataType dataType, int numChannels, int* pBufferSize)
{
    // Checks: the result pointer, the region, the mask, the type, the channels, a size beyond 32 bits.
    if (!pBufferSize) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (badSize(mask)) return pxlStatusBadMaskSize;
    if (!knownDataType(dataType)) return pxlStatusBadDataType;
    if (numChannels != 1 && numChannels != 3 && numChannels != 4) return pxlStatusBadChannelCount;
    const int64_t total = boxAreas(roi, mask, numChannels, dataTypeBytes(dataType)).total();
    if (total > INT32_MAX) return pxlStatusSizeOverflow;
    *pBufferSize = static_cast<int>(total);
    return pxlStatusOk;
}

template <class T, class L>
PxlStatus filterBoxBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, PxliSize mask, PxliBorderMode border,
                          const T* pBorderValue, Pxl8u* pBuffer)
{
    // Checks: pointers; steps; width, then height; the mask; a word above 255; the constant kind's
    // value; the kind.
    if (!pSrc || !pDst || !pBuffer) return pxlStatusNullPointer;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (roi.width < 1 || roi.height < 1) return pxlStatusBadSize;
    if (badSize(mask)) return pxlStatusBadMaskSize;
    if (static_cast<uint32_t>(border) > 255) return pxlStatusBadBorder;
    if ((border & 15) == pxlBorderConstant && !pBorderValue) return pxlStatusNullPointer;
    if (checkBorderWord(border, kFilterBorderKinds) != pxlStatusOk) return pxlStatusBadBorder;

    constexpr int N = L::mem, P = L::proc;
    const int kw = mask.width, kh = mask.height;
    const float inv = 1.0f / static_cast<float>(kw * kh);
    const Window w = centredWindow(mask);
    const BoxAreas areas = boxAreas(roi, mask, N, static_cast<int>(sizeof(T)));
    Pxl8u* base = reinterpret_cast<Pxl8u*>((reinterpret_cast<uintptr_t>(pBuffer) + 3) & ~uintptr_t{3});
    Pxl8u* strips = base;
    auto* columns = reinterpret_cast<int32_t*>(base + areas.strips);
    Pxl8u* slots = base + areas.strips + areas.columns;

    const bool exact = largestMagnitude<T>() * kw * kh < 0x1p24;
    // The kernel of one piece, writing output row y where emit(y) says.
    const bool narrow = std::is_same_v<T, Pxl8u> && 255 * kw * kh <= 65535;
    auto piece = [&](const T* win, int winStep, int width, int height, auto emit) {
        if (narrow) boxExact<T, N, P>(win, winStep, width, height, kw, kh, inv, reinterpret_cast<uint16_t*>(columns), emit);
        else if (exact) boxExact<T, N, P>(win, winStep, width, height, kw, kh, inv, columns, emit);
        else boxInOrder<T, N, P>(win, winStep, width, height, kw, kh, inv, reinterpret_cast<float*>(columns), emit);
    };
    auto rows = [&](const T* win, int winStep, T* out, int outStep, int width, int height) {
        piece(win, winStep, width, height, [&](int y) { return rowAt(out, outStep, y); });
    };
    // Frames carry whole pixels; the fourth sample of AC4 is copied along and never written.
    using Frames = std::conditional_t<L::hasAlpha, C4, L>;
    if (pSrc != pDst) {
        filterStrips<T, Frames>(pSrc, srcStep, pDst, dstStep, roi, w, border, pBorderValue, strips, slots, rows);
        return pxlStatusOk;
    }
    // In place: each output row waits in one of ay + 1 slots until no later row reads the image row
    // it replaces.
    const int count = w.top + 1;
    auto inPlace = [&](const T* win, int winStep, int x0, int y0, int width, int height) {
        const int bytes = width * N * static_cast<int>(sizeof(T));
        auto slot = [&](int y) { return reinterpret_cast<T*>(slots + std::ptrdiff_t{y % count} * bytes); };
        auto flush = [&](int y) { krnCopyPixels<T, L>(slot(y), rowAt(pDst, dstStep, y0 + y) + std::ptrdiff_t{N} * x0, width); };
        piece(win, winStep, width, height, [&](int y) {
            if (y >= count) flush(y - count);
            return slot(y);
        });
        for (int y = std::max(0, height - count); y < height; ++y) flush(y);
    };
    filterStripsInPlace<T, Frames>(pDst, dstStep, roi, w, border, pBorderValue, strips, slots, rows, inPlace);
    return pxlStatusOk;
}

// The 64f mean with no border: the caller's buffer holds the window's pixels around the region.
// Horizontal window sums run along each source row: the first kw - 1 samples summed in order,
// then for each pixel plus the incoming sample (the window's sum) and minus the outgoing one. The
// vertical sums run down the rows the same way, carried in the destination itself: row y + 1
// starts as row y's sum minus the leaving row's window sums plus the entering row's, and row y is
// then scaled by 1 / (kw * kh). A window sum is made again where it is needed a second time, by
// the same additions, so no buffer is needed.
PxlStatus filterBox64f(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliSize roi, PxliSize mask, PxliPoint anchor)
{
    // Checks: pointers, sizes, steps.
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi) || badSize(mask)) return pxlStatusBadSize;
    const int W = roi.width, H = roi.height, kw = mask.width, kh = mask.height;
    if (srcStep < (int64_t{W} + kw - 1) * 8 || dstStep < int64_t{W} * 8) return pxlStatusBadStep;

    const double inv = 1.0 / (static_cast<double>(kw) * kh);
    const Pxl64f* win = rowAt(pSrc, srcStep, -anchor.y) - anchor.x;
    // Applies the window sums of source row r to destination row d: apply(d[x], sum).
    auto rowSums = [&](int r, Pxl64f* d, auto apply) {
        const Pxl64f* s = rowAt(win, srcStep, r);
        double sum = 0;
        for (int k = 0; k < kw - 1; ++k) sum += s[k];
        for (int x = 0; x < W; ++x) {
            sum += s[x + kw - 1];
            apply(d[x], sum);
            sum -= s[x];
        }
    };
    auto add = [](double& v, double h) { v += h; };
    auto subtract = [](double& v, double h) { v -= h; };
    if (kh == 1) {
        // One row high: the horizontal window alone.
        for (int y = 0; y < H; ++y) {
            Pxl64f* d = rowAt(pDst, dstStep, y);
            rowSums(y, d, [inv](double& v, double h) { v = inv * h; });
        }
        return pxlStatusOk;
    }
    std::fill_n(pDst, W, 0.0);
    for (int i = 0; i < kh; ++i) rowSums(i, pDst, add);
    for (int y = 0; y < H; ++y) {
        Pxl64f* d = rowAt(pDst, dstStep, y);
        if (y + 1 < H) {
            Pxl64f* next = rowAt(pDst, dstStep, y + 1);
            std::copy_n(d, W, next);
            rowSums(y, next, subtract);
            rowSums(y + kh, next, add);
        }
        for (int x = 0; x < W; ++x) d[x] *= inv;
    }
    return pxlStatusOk;
}

}  // namespace pxl::filt

#include "inst/filtering/box.inc"
