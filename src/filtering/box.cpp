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

// Samples of a row whose window sums are made at a time: whole pixels and whole vectors.
template <int N> constexpr int kSumChunk = 256 * (N == 1 ? 4 : N);

// Window sums along a row of column sums whose pixels are N samples apart, exact:
// sums[j] = col[j] + col[j + N] + ... + col[j + (KW - 1) N], for len samples (at most kSumChunk<N>).
// Narrow windows add their columns; a wider one is cut into B groups of G columns and R columns
// left over: the group sums are made once, and each window adds B of them and the R columns
// (15 columns: 4 + 4 additions a sample instead of 14).
template <int KW> constexpr int groupWidth()
{
    int best = 1, cost = KW;
    for (int g = 2; g <= 8; ++g)
        if (g + KW / g + KW % g < cost) best = g, cost = g + KW / g + KW % g;
    return best;
}
template <int KW, int N, class A> inline void windowSumsFixed(const A* col, A* sums, int len)
{
    constexpr int G = groupWidth<KW>(), B = KW / G, R = KW % G;
    if constexpr (G == 1 || KW <= 6) {
        for (int j = 0; j < len; ++j) {
            A s = 0;
            for (int k = 0; k < KW; ++k) s = static_cast<A>(s + col[j + k * N]);
            sums[j] = s;
        }
    } else {
        A groups[kSumChunk<N> + 16 * N];
        const int count = len + (B - 1) * G * N;
        for (int i = 0; i < count; ++i) {
            A s = 0;
            for (int k = 0; k < G; ++k) s = static_cast<A>(s + col[i + k * N]);
            groups[i] = s;
        }
        for (int j = 0; j < len; ++j) {
            A s = 0;
            for (int m = 0; m < B; ++m) s = static_cast<A>(s + groups[j + m * G * N]);
            for (int k = 0; k < R; ++k) s = static_cast<A>(s + col[j + (B * G + k) * N]);
            sums[j] = s;
        }
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
    constexpr int kChunk = kSumChunk<N>;
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

// Floating-point means, whose sums depend on the order of their additions. Along each window row
// a running sum: the first kw - 1 samples added in order, then for each pixel plus the incoming
// sample (the window's row sum) and minus the outgoing one. Down the rows the same: the vertical
// sum starts as the first kh row sums added in order, and for each further output row it loses
// the row sum that leaves and gains the one that enters. The mean is 1 / (kw * kh) times the sum.
//
// Where to keep the row sums: `vertical` is one row for the vertical sums (null: they are carried
// in the output rows, which then must be plain rows of N == P samples a pixel); the rows of the
// two spans, where there are at least kh + 1 of them, hold the row sums of the window rows still
// needed, made a few window rows at a time; with fewer, each row sum is made again for its second
// use, and no memory but the vertical row is needed.
template <class T> struct FloatWork {
    T* vertical = nullptr;
    T* spans[2] = {};
    int64_t bytes[2] = {};
};

// Running row sums of R rows at once, which the processor can overlap, P channels each of N
// samples to a pixel: sums go out P samples a pixel, packed. The state carries from call to call.
template <class T, int N, int P, int R> struct RowRuns {
    const T* src[R];
    T sum[R][P];
    RowRuns(const T* const* rows, int kw)
    {
        for (int r = 0; r < R; ++r) {
            src[r] = rows[r];
            for (int c = 0; c < P; ++c) sum[r][c] = 0;
        }
        for (int k = 0; k < kw - 1; ++k)
            for (int r = 0; r < R; ++r)
                for (int c = 0; c < P; ++c) sum[r][c] += src[r][k * N + c];
    }
    void next(T* const* out, int len, int kw)
    {
        const std::ptrdiff_t ahead = std::ptrdiff_t{kw - 1} * N;
        const T* s[R];
        T* o[R];
        T acc[R][P];
        for (int r = 0; r < R; ++r) {
            s[r] = src[r];
            o[r] = out[r];
            for (int c = 0; c < P; ++c) acc[r][c] = sum[r][c];
        }
        for (int x = 0; x < len; ++x) {
            for (int r = 0; r < R; ++r) {
                for (int c = 0; c < P; ++c) {
                    acc[r][c] += s[r][ahead + c];
                    o[r][x * P + c] = acc[r][c];
                    acc[r][c] -= s[r][c];
                }
                s[r] += N;
            }
        }
        for (int r = 0; r < R; ++r) {
            src[r] = s[r];
            for (int c = 0; c < P; ++c) sum[r][c] = acc[r][c];
        }
    }
};

// Enough rows at once to keep the adder busy: about eight running sums in flight.
template <int P> constexpr int kRowsAtOnce = P == 1 ? 8 : P == 3 ? 4 : 2;

// The whole row sums of `count` rows.
template <class T, int N, int P> void rowSums(const T* const* src, T* const* out, int count, int width, int kw)
{
    constexpr int R = kRowsAtOnce<P>;
    int r = 0;
    for (; r + R <= count; r += R) RowRuns<T, N, P, R>(src + r, kw).next(out + r, width, kw);
    if constexpr (R >= 4) {
        if (r + 4 <= count) {
            RowRuns<T, N, P, 4>(src + r, kw).next(out + r, width, kw);
            r += 4;
        }
    }
    if (r + 2 <= count) {
        RowRuns<T, N, P, 2>(src + r, kw).next(out + r, width, kw);
        r += 2;
    }
    if (r < count) RowRuns<T, N, P, 1>(src + r, kw).next(out + r, width, kw);
}

// out = inv * v, pixel by pixel: v has P samples a pixel, out N.
template <class T, int N, int P> void scaleOut(const T* v, T* out, int width, T inv)
{
    if constexpr (N == P) {
        for (int j = 0; j < width * P; ++j) out[j] = inv * v[j];
    } else {
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < P; ++c) out[x * N + c] = inv * v[x * P + c];
    }
}

// The vertical sum of the next row: the row sum `leaving` out, `entering` in.
template <class T> void slide(const T* prev, T* next, const T* leaving, const T* entering, int n)
{
    for (int j = 0; j < n; ++j) next[j] = (prev[j] - leaving[j]) + entering[j];
}

template <class T> void accumulate(T* v, const T* h, int n)
{
    for (int j = 0; j < n; ++j) v[j] += h[j];
}

// One piece of floating-point means; emit(y) gives where output row y goes, and is asked only
// once the window rows above row y + 1's window have been read.
template <class T, int N, int P, class Emit>
void boxFloat(const T* win, int winStep, int width, int height, int kw, int kh, T inv, const FloatWork<T>& work, Emit emit)
{
    const int n = width * P;
    auto src = [&](int r) { return rowAt(win, winStep, r); };
    const int64_t rowBytes = int64_t{n} * static_cast<int64_t>(sizeof(T));
    const int spare0 = static_cast<int>(work.bytes[0] / rowBytes), spare = spare0 + static_cast<int>(work.bytes[1] / rowBytes);
    auto spareRow = [&](int i) { return i < spare0 ? work.spans[0] + std::ptrdiff_t{i} * n : work.spans[1] + std::ptrdiff_t{i - spare0} * n; };

    if (kh == 1) {
        // One row high: the row sums alone, several rows at a time where there is room for them.
        const int room = std::min(kRowsAtOnce<P>, spare + (work.vertical ? 1 : 0));
        for (int y = 0; y < height;) {
            const int count = std::max(1, std::min(room, height - y));
            const T* rows[8];
            T* sums[8];
            for (int i = 0; i < count; ++i) {
                rows[i] = src(y + i);
                sums[i] = room == 0 ? emit(y + i) : i < spare ? spareRow(i) : work.vertical;
            }
            rowSums<T, N, P>(rows, sums, count, width, kw);
            for (int i = 0; i < count; ++i) {
                T* out = room == 0 ? sums[i] : emit(y + i);
                scaleOut<T, N, P>(sums[i], out, width, inv);
            }
            y += count;
        }
        return;
    }

    if (work.vertical && spare >= kh + 1) {
        // Row sums kept in the spare rows, sum r in row r % spare, made ahead a few at a time.
        const int total = height + kh - 1;
        int ready = 0;
        auto makeUpTo = [&](int upto, int oldest) {
            while (ready < upto) {
                const int count = std::min({8, spare - (ready - oldest), total - ready});
                const T* rows[8];
                T* sums[8];
                for (int i = 0; i < count; ++i) {
                    rows[i] = src(ready + i);
                    sums[i] = spareRow((ready + i) % spare);
                }
                rowSums<T, N, P>(rows, sums, count, width, kw);
                ready += count;
            }
        };
        auto sumOf = [&](int r) { return spareRow(r % spare); };
        T* v = work.vertical;
        makeUpTo(kh, 0);
        std::fill_n(v, n, T{0});
        for (int i = 0; i < kh; ++i) accumulate(v, sumOf(i), n);
        scaleOut<T, N, P>(v, emit(0), width, inv);
        for (int y = 1; y < height; ++y) {
            makeUpTo(y + kh, y - 1);
            slide(v, v, sumOf(y - 1), sumOf(y - 1 + kh), n);
            scaleOut<T, N, P>(v, emit(y), width, inv);
        }
        return;
    }

    // Each row sum made twice, a stretch of columns at a time, two rows at once.
    constexpr int kStretch = 256;
    T made[2][kStretch * P];
    T* const pair[2] = {made[0], made[1]};
    auto vertical = [&](int y) { return work.vertical ? work.vertical : emit(y); };
    T* v = vertical(0);
    std::fill_n(v, n, T{0});
    for (int i = 0; i < kh; i += 2) {
        const T* rows[2] = {src(i), src(std::min(i + 1, kh - 1))};
        RowRuns<T, N, P, 2> run(rows, kw);
        for (int x0 = 0; x0 < width; x0 += kStretch) {
            const int len = std::min(kStretch, width - x0);
            run.next(pair, len, kw);
            accumulate(v + x0 * P, made[0], len * P);
            if (i + 1 < kh) accumulate(v + x0 * P, made[1], len * P);
        }
    }
    if (work.vertical) scaleOut<T, N, P>(v, emit(0), width, inv);
    for (int y = 1; y < height; ++y) {
        const T* rows[2] = {src(y - 1), src(y - 1 + kh)};
        RowRuns<T, N, P, 2> run(rows, kw);
        T* prev = vertical(y - 1);
        T* next = vertical(y);
        for (int x0 = 0; x0 < width; x0 += kStretch) {
            const int len = std::min(kStretch, width - x0);
            run.next(pair, len, kw);
            slide(prev + x0 * P, next + x0 * P, made[0], made[1], len * P);
        }
        if (work.vertical) scaleOut<T, N, P>(v, emit(y), width, inv);
        else scaleOut<T, N, P>(prev, prev, width, inv);
    }
    if (!work.vertical) {
        T* last = emit(height - 1);
        scaleOut<T, N, P>(last, last, width, inv);
    }
}

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

    // The kernel of one piece, writing output row y where emit(y) says.
    FloatWork<T> work;
    const float invFloat = 1.0f / (static_cast<float>(kh) * static_cast<float>(kw));
    const bool exact = largestMagnitude<T>() * kw * kh < 0x1p24;
    const bool narrow = std::is_same_v<T, Pxl8u> && 255 * kw * kh <= 65535;
    auto piece = [&](const T* win, int winStep, int width, int height, auto emit) {
        if constexpr (std::is_floating_point_v<T>) boxFloat<T, N, P>(win, winStep, width, height, kw, kh, invFloat, work, emit);
        else if (narrow) boxExact<T, N, P>(win, winStep, width, height, kw, kh, inv, reinterpret_cast<uint16_t*>(columns), emit);
        else if (exact) boxExact<T, N, P>(win, winStep, width, height, kw, kh, inv, columns, emit);
        else boxInOrder<T, N, P>(win, winStep, width, height, kw, kh, inv, reinterpret_cast<float*>(columns), emit);
    };
    auto rows = [&](const T* win, int winStep, T* out, int outStep, int width, int height) {
        piece(win, winStep, width, height, [&](int y) { return rowAt(out, outStep, y); });
    };
    // Frames carry whole pixels; the fourth sample of AC4 is copied along and never written.
    using Frames = std::conditional_t<L::hasAlpha, C4, L>;
    const bool floating = std::is_floating_point_v<T>;
    const Sides sides = floating ? Sides::Apart : Sides::Merged;
    if constexpr (std::is_floating_point_v<T>) {
        // A 1x1 mask copies; other float means keep their vertical sums in the column area and
        // their row sums in whatever the frames leave free.
        if (kw == 1 && kh == 1) {
            if (pSrc != pDst)
                for (int y = 0; y < roi.height; ++y) krnCopyPixels<T, L>(rowAt(pSrc, srcStep, y), rowAt(pDst, dstStep, y), roi.width);
            return pxlStatusOk;
        }
        const int64_t framed = frameRoom<T, Frames>(roi, w, border, sides, pSrc == pDst);
        work.vertical = reinterpret_cast<T*>(columns);
        work.spans[0] = reinterpret_cast<T*>(strips + framed);
        work.bytes[0] = areas.strips - framed;
        if (pSrc != pDst && framed > 0) {
            work.spans[1] = reinterpret_cast<T*>(slots);
            work.bytes[1] = areas.slots;
        }
    }
    // The constant as whole pixels: AC4 gives three samples, the frames' fourth is never written.
    const BorderPixel<T> border4(pBorderValue, P);
    const T* value = border4.v;
    if (pSrc != pDst) {
        filterStrips<T, Frames>(pSrc, srcStep, pDst, dstStep, roi, w, border, value, strips, slots, rows, sides);
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
    filterStripsInPlace<T, Frames>(pDst, dstStep, roi, w, border, value, strips, slots, rows, inPlace, sides);
    return pxlStatusOk;
}

// The 64f mean with no border: the caller's buffer holds the window's pixels around the region.
// With no work buffer, each window sum is made again where it is needed a second time, and the
// vertical sums are carried in the destination rows.
PxlStatus filterBox64f(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliSize roi, PxliSize mask, PxliPoint anchor)
{
    // Checks: pointers, sizes, steps.
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi) || badSize(mask)) return pxlStatusBadSize;
    const int W = roi.width, H = roi.height, kw = mask.width, kh = mask.height;
    if (srcStep < (int64_t{W} + kw - 1) * 8 || dstStep < int64_t{W} * 8) return pxlStatusBadStep;

    const double inv = 1.0 / (static_cast<double>(kw) * kh);
    const Pxl64f* win = rowAt(pSrc, srcStep, -anchor.y) - anchor.x;
    boxFloat<Pxl64f, 1, 1>(win, srcStep, W, H, kw, kh, inv, FloatWork<Pxl64f>{}, [&](int y) { return rowAt(pDst, dstStep, y); });
    return pxlStatusOk;
}

}  // namespace pxl::filt

#include "inst/filtering/box.inc"
