// Median filters over odd masks: with borders, each output row made from a ring of the rows of its
// windows extended by the border rule (which also lets a call filter in place), and the float
// forms whose caller places the window.
//
// The method depends on the mask's shape: a median of three for 1x3 and 3x1, a network of five for
// 1x5 and 5x1, sorted columns for 3x3 and 5x5 (the 5x5 kernel sorts each column once for the
// five windows over it), and for any other shape a histogram sliding along the row (8u; tall masks
// out of place run in bands of column histograms instead), an exact selection (16u, 16s) or the
// partial bubble selection (float, which fixes where a NaN goes).
#include "filtering/filtering.hpp"
#include "filtering/median_networks.hpp"
#include "filtering/ring.hpp"
#include "filtering/rows.hpp"

#include "exchange/border.hpp"
#include "exchange/kernels.hpp"
#include "frame/bind.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace pxl::filt {

// What a row kernel needs besides its rows: the mask, and room for one window's samples.
template <class T> struct MedianWindow {
    int kw, kh;
    Loose<T>* scratch;
};

namespace {

enum class Shape { Copy, Column3, Column5, Row3, Row5, Square3, Square5, Any };

Shape shapeOf(PxliSize mask)
{
    const int kw = mask.width, kh = mask.height;
    if (kw == 1) return kh == 1 ? Shape::Copy : kh == 3 ? Shape::Column3 : kh == 5 ? Shape::Column5 : Shape::Any;
    if (kh == 1) return kw == 3 ? Shape::Row3 : kw == 5 ? Shape::Row5 : Shape::Any;
    return kw == 3 && kh == 3 ? Shape::Square3 : kw == 5 && kh == 5 ? Shape::Square5 : Shape::Any;
}

bool badMedianMask(PxliSize mask) { return mask.width < 1 || mask.height < 1 || mask.width % 2 == 0 || mask.height % 2 == 0; }

constexpr int64_t roundUp32(int64_t n) { return (n + 31) & ~int64_t{31}; }

// Row kernels. rows(i) gives the first sample of window row i for the first output pixel; N
// samples to a pixel, every one filtered; `width` pixels go to out.
constexpr int kMedianChunk = 256;  // pixels whose column sorts are kept at a time

template <class T, int N, class Rows> void medianColumn3(const Rows& rows, T* out, int width, const MedianWindow<T>&)
{
    decltype(rows(0)) a = rows(0), b = rows(1), c = rows(2);
    for (int j = 0; j < width * N; ++j) out[j] = medianOf3<T>(a[j], b[j], c[j]);
}

template <class T, int N, class Rows> void medianRow3(const Rows& rows, T* out, int width, const MedianWindow<T>&)
{
    decltype(rows(0)) r = rows(0);
    for (int j = 0; j < width * N; ++j) out[j] = medianOf3<T>(r[j], r[j + N], r[j + 2 * N]);
}

template <class T, int N, class Rows> void medianColumn5(const Rows& rows, T* out, int width, const MedianWindow<T>&)
{
    decltype(rows(0)) r0 = rows(0), r1 = rows(1), r2 = rows(2), r3 = rows(3), r4 = rows(4);
    for (int j = 0; j < width * N; ++j) {
        T v[5] = {r0[j], r1[j], r2[j], r3[j], r4[j]};
        applyNetwork<kMedianOf5>(v);
        out[j] = v[2];
    }
}

template <class T, int N, class Rows> void medianRow5(const Rows& rows, T* out, int width, const MedianWindow<T>&)
{
    decltype(rows(0)) r = rows(0);
    for (int j = 0; j < width * N; ++j) {
        T v[5] = {r[j], r[j + N], r[j + 2 * N], r[j + 3 * N], r[j + 4 * N]};
        applyNetwork<kMedianOf5>(v);
        out[j] = v[2];
    }
}

// 3x3: with each column of three sorted, the median of nine is the median of the largest of the
// three smallest, the middle of the three middles and the smallest of the three largest. The
// column sorts are made again for each window, which costs less than keeping them.
template <class T, int N, class Rows> void medianSquare3(const Rows& rows, T* out, int width, const MedianWindow<T>&)
{
    decltype(rows(0)) a = rows(0), b = rows(1), c = rows(2);
    for (int j = 0; j < width * N; ++j) {
        T v[9] = {a[j], b[j], c[j], a[j + N], b[j + N], c[j + N], a[j + 2 * N], b[j + 2 * N], c[j + 2 * N]};
        applyNetwork<kSortOf3>(v);
        applyNetwork<kSortOf3>(v + 3);
        applyNetwork<kSortOf3>(v + 6);
        const T top = upperOf(upperOf(v[0], v[3]), v[6]), bottom = lowerOf(lowerOf(v[2], v[5]), v[8]);
        out[j] = medianOf3(top, medianOf3(v[1], v[4], v[7]), bottom);
    }
}

// 5x5: each column of five sorted once; the network of sorted columns gives the middle of 25.
template <class T, int N, class Rows> void medianSquare5(const Rows& rows, T* out, int width, const MedianWindow<T>&)
{
    constexpr int kChunk = N == 1 ? 4 * kMedianChunk : kMedianChunk;
    T col[5][(kChunk + 4) * N];
    for (int x0 = 0; x0 < width; x0 += kChunk) {
        const int n = std::min(kChunk, width - x0) * N;
        decltype(rows(0)) r[5];
        for (int i = 0; i < 5; ++i) r[i] = rows(i) + x0 * N;
        for (int i = 0; i < n + 4 * N; ++i) {
            T v[5] = {r[0][i], r[1][i], r[2][i], r[3][i], r[4][i]};
            applyNetwork<kSortOf5>(v);
            for (int k = 0; k < 5; ++k) col[k][i] = v[k];
        }
        T* o = out + x0 * N;
        for (int j = 0; j < n; ++j) {
            T v[25];
            for (int c = 0; c < 5; ++c)
                for (int k = 0; k < 5; ++k) v[c * 5 + k] = col[k][j + c * N];
            applyNetwork<kMedianOf25SortedColumns>(v);
            o[j] = v[12];
        }
    }
}

// Any other shape, float: the window copied row by row, then the partial bubble selection: passes
// from the front that exchange neighbours whose first is smaller, each sinking the smallest left to
// the end, n - m of them; entry m is the result. An unordered pair stays as it is.
template <class T> T bubbleMiddle(Loose<T>* s, int n)
{
    const int m = n >> 1;
    for (int pass = 0; pass < n - m; ++pass)
        for (int i = 0; i + 1 < n - pass; ++i)
            if (s[i] < s[i + 1]) {
                const T t = s[i];
                s[i] = s[i + 1];
                s[i + 1] = t;
            }
    return s[m];
}

// The middle of n integer samples, by partitioning around a pivot (the samples may lie at any
// alignment, so no standard algorithm touches them).
template <class T> T selectMiddle(Loose<T>* s, int n)
{
    const int k = n >> 1;
    int lo = 0, hi = n - 1;
    while (lo < hi) {
        const T pivot = s[(lo + hi) >> 1];
        int i = lo, j = hi;
        while (i <= j) {
            while (s[i] < pivot) ++i;
            while (pivot < s[j]) --j;
            if (i <= j) {
                const T t = s[i];
                s[i] = s[j];
                s[j] = t;
                ++i;
                --j;
            }
        }
        if (k <= j) hi = j;
        else if (k >= i) lo = i;
        else break;
    }
    return s[k];
}

template <class T, int N, class Rows> void medianAny(const Rows& rows, T* out, int width, const MedianWindow<T>& w)
{
    const int n = w.kw * w.kh;
    for (int x = 0; x < width; ++x)
        for (int c = 0; c < N; ++c) {
            Loose<T>* s = w.scratch;
            for (int i = 0; i < w.kh; ++i) {
                decltype(rows(0)) r = rows(i) + x * N + c;
                for (int k = 0; k < w.kw; ++k) *s++ = r[k * N];
            }
            if constexpr (std::is_floating_point_v<T>) {
                out[x * N + c] = bubbleMiddle<T>(w.scratch, n);
            } else {
                out[x * N + c] = selectMiddle<T>(w.scratch, n);
            }
        }
}

// Any other shape, 8u: a histogram of the window slides along the row, a column out and a column
// in per pixel, and the median moves from where it was.
template <class T, int N, class Rows> void medianHistogram(const Rows& rows, T* out, int width, const MedianWindow<T>& w)
{
    const int m = (w.kw * w.kh) >> 1;
    for (int c = 0; c < N; ++c) {
        uint32_t hist[256] = {};
        for (int i = 0; i < w.kh; ++i) {
            decltype(rows(0)) r = rows(i) + c;
            for (int k = 0; k < w.kw; ++k) ++hist[r[k * N]];
        }
        int median = 0, below = 0;  // samples below the median
        auto settle = [&] {
            while (below > m) below -= static_cast<int>(hist[--median]);
            while (below + static_cast<int>(hist[median]) <= m) below += static_cast<int>(hist[median++]);
        };
        settle();
        out[c] = static_cast<T>(median);
        for (int x = 1; x < width; ++x) {
            for (int i = 0; i < w.kh; ++i) {
                decltype(rows(0)) r = rows(i) + c;
                const int gone = r[(x - 1) * N], come = r[(x + w.kw - 1) * N];
                --hist[gone];
                ++hist[come];
                below += (come < median) - (gone < median);
            }
            settle();
            out[x * N + c] = static_cast<T>(median);
        }
    }
}

template <class T, class L, class Kernel, class Rows>
void medianOutRow(const Kernel& kernel, const Rows& rows, T* out, int width, const MedianWindow<T>& w)
{
    layoutRow<T, L>([&](const auto& r, T* o, int n) { kernel(r, o, n, w); }, rows, out, width);
}

// Calls run(kernel) with the row kernel of the mask's shape for samples T, N to a pixel.
template <class T, int N, class Run> void withMedianKernel(Shape shape, const Run& run)
{
    auto bind = [&](auto kernel) { run(kernel); };
    switch (shape) {
    case Shape::Column3: bind([](const auto& r, T* o, int w, const MedianWindow<T>& c) { medianColumn3<T, N>(r, o, w, c); }); break;
    case Shape::Column5: bind([](const auto& r, T* o, int w, const MedianWindow<T>& c) { medianColumn5<T, N>(r, o, w, c); }); break;
    case Shape::Row3: bind([](const auto& r, T* o, int w, const MedianWindow<T>& c) { medianRow3<T, N>(r, o, w, c); }); break;
    case Shape::Row5: bind([](const auto& r, T* o, int w, const MedianWindow<T>& c) { medianRow5<T, N>(r, o, w, c); }); break;
    case Shape::Square3: bind([](const auto& r, T* o, int w, const MedianWindow<T>& c) { medianSquare3<T, N>(r, o, w, c); }); break;
    case Shape::Square5: bind([](const auto& r, T* o, int w, const MedianWindow<T>& c) { medianSquare5<T, N>(r, o, w, c); }); break;
    default:
        if constexpr (std::is_same_v<T, Pxl8u>)
            bind([](const auto& r, T* o, int w, const MedianWindow<T>& c) { medianHistogram<T, N>(r, o, w, c); });
        else
            bind([](const auto& r, T* o, int w, const MedianWindow<T>& c) { medianAny<T, N>(r, o, w, c); });
        break;
    }
}

// Tall 8u medians out of place, in time that does not grow with the mask: the image runs in bands
// of columns, and each column of a band keeps the histogram of its kh samples (256 fine bins and 16
// coarse ones of 16 values each), updated by one sample out and one in per row. Along a row the
// window's coarse histogram gains a column and loses one per pixel; the coarse bin of the median
// follows from it, and the fine bins of that one coarse bin only are brought up to the window,
// from where they were last used when that is near, else summed afresh. Returns false when the
// buffer holds too few columns for that to pay.
template <class L>
bool medianInBands(const RingSource<Pxl8u>& source, Pxl8u* dst, int dstStep, Pxl8u* memory, int64_t room)
{
    constexpr int N = L::mem, P = L::proc;
    using Count = Loose<uint16_t>;
    const int W = source.roi.width, kw = source.kw, kh = source.kh, m = (kw * kh) >> 1;
    const int64_t perColumn = int64_t{kh} * N + int64_t{P} * (256 + 16) * 2;
    const int columns = static_cast<int>(std::min<int64_t>(room / perColumn, W + kw - 1));
    if (columns < 2 * kw || int64_t{kw} * kh > 65535) return false;
    Count* fine = reinterpret_cast<Count*>(memory);                         // [column][channel][256]
    Count* coarse = fine + std::ptrdiff_t{columns} * P * 256;               // [column][channel][16]
    auto* ring = reinterpret_cast<Loose<Pxl8u>*>(coarse + std::ptrdiff_t{columns} * P * 16);  // kh rows of `columns` pixels
    for (int x0 = 0; x0 < W; x0 += columns - (kw - 1)) {
        const int width = std::min(columns - (kw - 1), W - x0), span = width + kw - 1;
        std::memset(fine, 0, sizeof(uint16_t) * 256 * P * static_cast<std::size_t>(span));
        std::memset(coarse, 0, sizeof(uint16_t) * 16 * P * static_cast<std::size_t>(span));
        auto count = [&](const Loose<Pxl8u>* row, int step) {
            for (int p = 0; p < span; ++p)
                for (int c = 0; c < P; ++c) {
                    const int v = row[p * N + c];
                    Count* f = fine + (std::ptrdiff_t{p} * P + c) * 256;
                    Count* g = coarse + (std::ptrdiff_t{p} * P + c) * 16;
                    f[v] = static_cast<uint16_t>(f[v] + step);
                    g[v >> 4] = static_cast<uint16_t>(g[v >> 4] + step);
                }
        };
        auto enter = [&](const Loose<Pxl8u>* row) { count(row, 1); };
        auto leave = [&](const Loose<Pxl8u>* row) { count(row, -1); };
        slideRows<Pxl8u, N>(source, x0, width, ring, enter, leave, [&](int y, const auto&) {
            Pxl8u* out = rowAt(dst, dstStep, y) + std::ptrdiff_t{N} * x0;
            for (int c = 0; c < P; ++c) {
                auto fineOf = [&](int p, int s) -> const Count* { return fine + (std::ptrdiff_t{p} * P + c) * 256 + 16 * s; };
                auto coarseOf = [&](int p) -> const Count* { return coarse + (std::ptrdiff_t{p} * P + c) * 16; };
                alignas(32) uint16_t window[16] = {};
                alignas(32) uint16_t segment[16][16];
                int current[16];  // the pixel each coarse bin's fine bins were brought to, or -1
                std::fill_n(current, 16, -1);
                for (int k = 0; k < kw; ++k)
                    for (int t = 0; t < 16; ++t) window[t] = static_cast<uint16_t>(window[t] + coarseOf(k)[t]);
                // The coarse bin of the median, and the samples in the bins below it: found once,
                // then moved as the window slides (rarely by more than a bin).
                int s = 0, below = 0;
                for (int x = 0; x < width; ++x) {
                    if (x > 0) {
                        const Count *in = coarseOf(x + kw - 1), *gone = coarseOf(x - 1);
                        int change = 0;
                        for (int t = 0; t < 16; ++t) {
                            const int d = in[t] - gone[t];
                            window[t] = static_cast<uint16_t>(window[t] + d);
                            change += t < s ? d : 0;
                        }
                        below += change;
                    }
                    while (below > m) below -= window[--s];
                    while (below + window[s] <= m) below += window[s++];
                    uint16_t* f = segment[s];
                    if (current[s] < 0 || x - current[s] >= kw) {
                        std::fill_n(f, 16, uint16_t{0});
                        for (int k = 0; k < kw; ++k) {
                            const Count* add = fineOf(x + k, s);
                            for (int v = 0; v < 16; ++v) f[v] = static_cast<uint16_t>(f[v] + add[v]);
                        }
                    } else {
                        for (int t = current[s] + 1; t <= x; ++t) {
                            const Count *in = fineOf(t + kw - 1, s), *gone = fineOf(t - 1, s);
                            for (int v = 0; v < 16; ++v) f[v] = static_cast<uint16_t>(f[v] + in[v] - gone[v]);
                        }
                    }
                    current[s] = x;
                    int v = 0, under = below;
                    while (under + f[v] <= m) under += f[v++];
                    out[x * N + c] = static_cast<Pxl8u>(16 * s + v);
                }
            }
        });
    }
    return true;
}

// The sizes of the work buffer, in bytes.
int64_t medianBufferBytes(PxliSize roi, PxliSize mask, int sampleBytes, int channels)
{
    const int64_t W = roi.width, H = roi.height, kw = mask.width, kh = mask.height, b = sampleBytes;
    const bool network = shapeOf(mask) != Shape::Any;
    if (channels == 1) {
        const bool noScratch = kw < 6 && kh < 6 && (kw == 1 || kh == 1 || kw == kh);
        const int64_t scratch = noScratch ? 0 : roundUp32(kw * kh * 4);
        if (W < kw || H < kh || (W == kw && H == kh)) return scratch + roundUp32((W + kw - 1) * (H + kh - 1) * b);
        const int64_t stripes = kh * 2 * roundUp32(W * b);
        const int64_t parking = 2 * roundUp32(W * (kh >> 1) * b) + 2 * roundUp32(H * (kw >> 1) * b);
        const int64_t strip = roundUp32(std::max((W + kw - 1) * (kh + (kh >> 1)) * b, (kw + (kw >> 1)) * (H + kh - 1) * b));
        return scratch + stripes + parking + strip;
    }
    const int64_t n = kw < W && kh < H ? std::max((W + kw - 1) * ((kh >> 1) + kh - 1), (kw + (kw >> 1) - 1) * (H + kh - 1))
                                       : (W + kw - 1) * (H + kh - 1);
    return roundUp32(channels * n * b) + (b == 2 && !network ? kw * kh * 8 : 0);
}

}  // namespace

PxlStatus filterMedianBorderGetBufferSize(PxliSize roi, PxliSize mask, PxlDataType dataType, int numChannels, int* pBufferSize)
{
    // Checks: the result pointer, the region, the mask, then the type for one channel, or the
    // channels and then the type for more.
    if (!pBufferSize) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (badMedianMask(mask)) return pxlStatusBadMaskSize;
    if (numChannels == 1) {
        if (!knownDataType(dataType)) return pxlStatusBadDataType;
    } else {
        if (numChannels != 3 && numChannels != 4) return pxlStatusBadChannelCount;
        if (!knownDataType(dataType) || dataType == pxlDt32f) return pxlStatusBadDataType;
    }
    const int64_t bytes = medianBufferBytes(roi, mask, dataTypeBytes(dataType), numChannels);
    if (bytes > INT32_MAX) {
        *pBufferSize = 0;
        return pxlStatusSizeOverflow;
    }
    *pBufferSize = static_cast<int>(bytes);
    return pxlStatusOk;
}

template <class T, class L>
PxlStatus filterMedianBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, PxliSize mask, PxliBorderMode border,
                             const T* pBorderValue, Pxl8u* pBuffer)
{
    // Checks: pointers; the region; steps that are not whole samples; the mask; the border word
    // (replicated or constant kinds, and the constant's value).
    if (!pSrc || !pDst || !pBuffer) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep % static_cast<int>(sizeof(T)) != 0 || dstStep % static_cast<int>(sizeof(T)) != 0) return pxlStatusMisalignedStep;
    if (badMedianMask(mask)) return pxlStatusBadMaskSize;
    if (checkBorderWord(border, kNoMirrorBorderKinds) != pxlStatusOk) return pxlStatusBadBorder;
    if ((border & 15) == pxlBorderConstant && !pBorderValue) return pxlStatusNullPointer;

    constexpr int N = L::mem;
    const int W = roi.width, H = roi.height, kw = mask.width, kh = mask.height;
    const Shape shape = shapeOf(mask);
    if (shape == Shape::Copy) {
        if (pSrc != pDst)
            for (int y = 0; y < H; ++y) krnCopyPixels<T, L>(rowAt(pSrc, srcStep, y), rowAt(pDst, dstStep, y), W);
        return pxlStatusOk;
    }
    // Nothing overhangs across a mask one wide (or high): those sides count as in memory.
    if (kw == 1) border |= pxlBorderMemLeft | pxlBorderMemRight;
    if (kh == 1) border |= pxlBorderMemTop | pxlBorderMemBottom;
    // The constant as whole pixels (AC4: three samples given, the fourth never written).
    const BorderPixel<T> border4(pBorderValue, L::proc);
    const T* value = border4.v;

    // The work buffer, at whatever address it starts: a ring of the current windows' rows,
    // extended, so that each output row is made from it (in place, after the image rows under it
    // have been copied), and at its end one window's samples for the selection.
    const int64_t total = medianBufferBytes(roi, mask, static_cast<int>(sizeof(T)), N);
    const int64_t scratchBytes = shape == Shape::Any && !std::is_same_v<T, Pxl8u> ? int64_t{kw} * kh * static_cast<int64_t>(sizeof(T)) : 0;
    const int64_t room = total - scratchBytes;
    Loose<T>* ring = reinterpret_cast<Loose<T>*>(pBuffer);
    const MedianWindow<T> w{kw, kh, reinterpret_cast<Loose<T>*>(pBuffer + room)};
    const int ax = kw >> 1, span = W + kw - 1, kind = border & 15, flags = border & pxlBorderMemAll;
    const RingSource<T> source{pSrc, srcStep, roi, kw, kh, kind, flags, value};

    if constexpr (std::is_same_v<T, Pxl8u>) {
        // Below 13 rows the histogram sliding along each row (two samples a row per pixel) costs
        // less than the bands.
        if (shape == Shape::Any && pSrc != pDst && kh >= 13 && medianInBands<L>(source, pDst, dstStep, pBuffer, room)) return pxlStatusOk;
    }
    withMedianKernel<T, N>(shape, [&](const auto& kernel) {
        if (int64_t{kh} * span * N * static_cast<int64_t>(sizeof(T)) <= room) {
            slideRows<T, N>(source, ring, [&](int y, const auto& rows) { medianOutRow<T, L>(kernel, rows, rowAt(pDst, dstStep, y), W, w); });
            return;
        }
        // One row high, with no room for a whole row: each row in stretches, the last kw - 1
        // extended pixels of a stretch kept for the next (in place, the image under them is
        // already written).
        const int capacity = static_cast<int>(room / (N * static_cast<int64_t>(sizeof(T))));
        for (int y = 0; y < H; ++y) {
            const T* row = rowAt(pSrc, srcStep, y);
            int filled = 0;  // extended pixels in the ring, from pixel x0 - ax on
            for (int x0 = 0; x0 < W;) {
                const int len = std::min(capacity - (kw - 1), W - x0);
                extendRow<T, N>(row, source.left(), source.right(), x0 - ax + filled, len + kw - 1 - filled, kind, value,
                                ring + std::ptrdiff_t{N} * filled);
                medianOutRow<T, L>(kernel, [&](int) -> const Loose<T>* { return ring; }, rowAt(pDst, dstStep, y) + std::ptrdiff_t{N} * x0, len, w);
                std::memmove(ring, ring + std::ptrdiff_t{N} * len, sizeof(T) * N * static_cast<std::size_t>(kw - 1));
                filled = kw - 1;
                x0 += len;
            }
        }
    });
    return pxlStatusOk;
}

template <class T>
PxlStatus filterMedianBorderC1(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, PxliSize mask, PxliBorderMode border,
                               T value, Pxl8u* pBuffer)
{
    return filterMedianBorder<T, C1>(pSrc, srcStep, pDst, dstStep, roi, mask, border, &value, pBuffer);
}

// The float medians whose caller places the window: the source pointer moves to the window of the
// first output pixel, and the rows come straight from the source.
PxlStatus filterMedianGetBufferSize(PxliSize roi, PxliSize mask, int numChannels, int* pBufferSize, int sampleBytes)
{
    // Checks: the result pointer, the region, the mask, the channels.
    if (!pBufferSize) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (badMedianMask(mask)) return pxlStatusBadMaskSize;
    if (numChannels != 1 && numChannels != 3 && numChannels != 4) return pxlStatusBadChannelCount;
    const int64_t kw = mask.width, kh = mask.height;
    const int64_t bytes = sampleBytes == 8 ? (kw * 17 * kh * 8 + 144) & ~int64_t{15} : kw * kh * 4;
    if (bytes > INT32_MAX) return pxlStatusSizeOverflow;
    *pBufferSize = static_cast<int>(bytes);
    return pxlStatusOk;
}
PxlStatus filterMedianGetBufferSize32f(PxliSize roi, PxliSize mask, int numChannels, int* pBufferSize)
{
    return filterMedianGetBufferSize(roi, mask, numChannels, pBufferSize, 4);
}
PxlStatus filterMedianGetBufferSize64f(PxliSize roi, PxliSize mask, int numChannels, int* pBufferSize)
{
    return filterMedianGetBufferSize(roi, mask, numChannels, pBufferSize, 8);
}

template <class T, class L>
PxlStatus filterMedianFloat(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, PxliSize mask, PxliPoint anchor, Pxl8u* pBuffer)
{
    constexpr int N = L::mem;
    // Checks: pointers; the region; steps; the mask; the anchor; the source step against the
    // windows' width.
    if (!pSrc || !pDst || !pBuffer) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (badMedianMask(mask)) return pxlStatusBadMaskSize;
    if (anchor.x < 0 || anchor.x >= mask.width || anchor.y < 0 || anchor.y >= mask.height) return pxlStatusBadAnchor;
    if (srcStep < (int64_t{roi.width} + mask.width - 1) * N * static_cast<int64_t>(sizeof(T))) return pxlStatusBadStep;

    const Shape shape = shapeOf(mask);
    if (shape == Shape::Copy) {
        for (int y = 0; y < roi.height; ++y) krnCopyPixels<T, L>(rowAt(pSrc, srcStep, y), rowAt(pDst, dstStep, y), roi.width);
        return pxlStatusOk;
    }
    const T* win = rowAt(pSrc, srcStep, -anchor.y) - std::ptrdiff_t{N} * anchor.x;
    const MedianWindow<T> w{mask.width, mask.height, reinterpret_cast<Loose<T>*>(pBuffer)};
    withMedianKernel<T, N>(shape, [&](const auto& kernel) {
        for (int y = 0; y < roi.height; ++y)
            medianOutRow<T, L>(kernel, [&](int i) { return rowAt(win, srcStep, y + i); }, rowAt(pDst, dstStep, y), roi.width, w);
    });
    return pxlStatusOk;
}

}  // namespace pxl::filt

#include "inst/filtering/median.inc"
