// Medians over fixed windows with no border (the caller's buffer holds the pixels around the
// region): the cross, the vector median of colour pixels, the 3x3 median with a weighted centre,
// and the median of three planes.
#include "filtering/filtering.hpp"
#include "filtering/median_networks.hpp"

#include "frame/bind.hpp"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace pxl::filt {

namespace {

bool badMaskCode(PxlMaskCode mask) { return mask != pxlMask3x3 && mask != pxlMask5x5; }

// Calls f(j) for every filtered sample j of a row of `width` pixels of layout L.
template <class L, class F> inline void forSamples(int width, F f)
{
    constexpr int N = L::mem, P = L::proc;
    if constexpr (N == P) {
        for (int j = 0; j < width * N; ++j) f(j);
    } else {
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < P; ++c) f(x * N + c);
    }
}

// The city-block distance of two pixels over three channels: 32-bit integers, or float added in
// channel order.
template <class T> inline auto distance(const T* a, const T* b)
{
    if constexpr (std::is_floating_point_v<T>) {
        return (std::fabs(a[0] - b[0]) + std::fabs(a[1] - b[1])) + std::fabs(a[2] - b[2]);
    } else {
        auto d = [](int32_t u, int32_t v) { return u > v ? u - v : v - u; };
        return d(a[0], b[0]) + d(a[1], b[1]) + d(a[2], b[2]);
    }
}

// The vector median with a window K pixels square. The distances between the window's columns
// are kept in blocks by column (a ring of K columns): moving one pixel right computes only the
// blocks of the entering column.
template <class T, class L, int K> void colourMedian(const T* src, int srcStep, T* dst, int dstStep, PxliSize roi)
{
    constexpr int N = L::mem, R = K / 2;
    using D = decltype(distance<T>(nullptr, nullptr));
    for (int y = 0; y < roi.height; ++y) {
        const T* rows[K];
        for (int r = 0; r < K; ++r) rows[r] = rowAt(src, srcStep, y - R + r);
        T* out = rowAt(dst, dstStep, y);
        D block[K][K][K][K];  // [column slot a][column slot b][row in a][row in b]
        auto pixel = [&](int r, int column) { return rows[r] + std::ptrdiff_t{N} * column; };
        auto enter = [&](int column, int first) {
            // The blocks of `column` with the window's columns from `first` on (itself included).
            const int s = ((column % K) + K) % K;
            for (int c = first; c <= column; ++c) {
                const int t = ((c % K) + K) % K;
                for (int ra = 0; ra < K; ++ra)
                    for (int rb = 0; rb < K; ++rb) {
                        const D d = distance(pixel(ra, column), pixel(rb, c));
                        block[s][t][ra][rb] = d;
                        block[t][s][rb][ra] = d;
                    }
            }
        };
        for (int c = -R; c < R; ++c) enter(c, -R);
        for (int x = 0; x < roi.width; ++x) {
            enter(x + R, x - R);
            // Scores by the window's columns from the left, each from the top; the first smallest
            // in row-major order wins.
            int best = 0;
            D bestScore{};
            for (int r = 0; r < K; ++r)
                for (int c = 0; c < K; ++c) {
                    const int s = (((x - R + c) % K) + K) % K;
                    D score{};
                    for (int c2 = 0; c2 < K; ++c2) {
                        const int t = (((x - R + c2) % K) + K) % K;
                        for (int r2 = 0; r2 < K; ++r2) score += block[s][t][r][r2];
                    }
                    if ((r == 0 && c == 0) || score < bestScore) {
                        bestScore = score;
                        best = r * K + c;
                    }
                }
            const T* p = pixel(best / K, x - R + best % K);
            for (int ch = 0; ch < 3; ++ch) out[x * N + ch] = p[ch];
        }
    }
}

}  // namespace

template <class T, class L>
PxlStatus filterMedianCross(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, PxlMaskCode mask)
{
    constexpr int N = L::mem;
    // Checks: pointers; the region; steps; the mask code.
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (badMaskCode(mask)) return pxlStatusBadMaskSize;

    for (int y = 0; y < roi.height; ++y) {
        const T *row = rowAt(pSrc, srcStep, y), *up1 = rowAt(pSrc, srcStep, y - 1), *down1 = rowAt(pSrc, srcStep, y + 1);
        T* out = rowAt(pDst, dstStep, y);
        if (mask == pxlMask3x3) {
            forSamples<L>(roi.width, [&](int j) {
                T v[5] = {up1[j], row[j - N], row[j], row[j + N], down1[j]};
                applyNetwork<kMedianOf5>(v);
                out[j] = v[2];
            });
        } else {
            // The row from two left to two right, then the column two above to two below, as
            // three triples; each sorted, then the median of their extremes and middles.
            const T *up2 = rowAt(pSrc, srcStep, y - 2), *down2 = rowAt(pSrc, srcStep, y + 2);
            forSamples<L>(roi.width, [&](int j) {
                T a[3] = {row[j - 2 * N], row[j - N], row[j]}, b[3] = {row[j + N], row[j + 2 * N], up2[j]},
                  c[3] = {up1[j], down1[j], down2[j]};
                applyNetwork<kSortOf3>(a);
                applyNetwork<kSortOf3>(b);
                applyNetwork<kSortOf3>(c);
                const T top = upperOf(upperOf(a[0], b[0]), c[0]), bottom = lowerOf(lowerOf(a[2], b[2]), c[2]);
                out[j] = medianOf3(top, medianOf3(a[1], b[1], c[1]), bottom);
            });
        }
    }
    return pxlStatusOk;
}

template <class T, class L>
PxlStatus filterMedianColor(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, PxlMaskCode mask)
{
    // Checks: pointers; the region; steps; the mask code.
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (badMaskCode(mask)) return pxlStatusBadMaskSize;
    if (mask == pxlMask3x3) colourMedian<T, L, 3>(pSrc, srcStep, pDst, dstStep, roi);
    else colourMedian<T, L, 5>(pSrc, srcStep, pDst, dstStep, roi);
    return pxlStatusOk;
}

// The 3x3 median with the centre counted w times: with the eight neighbours sorted and a of them
// below the centre, rank k = (8 + w) / 2 of the nine-plus lies below the centre's copies (the
// neighbour of rank k), among them (the centre), or above (the neighbour of rank k - w).
PxlStatus filterMedianWeightedCenter3x3(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi, int weight)
{
    // Checks: pointers; the region; steps; the weight.
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (weight < 1) return pxlStatusBadCenterWeight;

    const PxlStatus status = weight % 2 == 0 ? pxlStatusWarnEvenWeight : pxlStatusOk;
    const int w = weight % 2 == 0 ? weight - 1 : weight;
    if (w >= 9) {
        // The centre's copies then hold the middle whatever the neighbours are.
        for (int y = 0; y < roi.height; ++y) {
            const Pxl8u* s = rowAt(pSrc, srcStep, y);
            Pxl8u* d = rowAt(pDst, dstStep, y);
            for (int x = 0; x < roi.width; ++x) d[x] = s[x];
        }
        return status;
    }
    const int k = (8 + w) >> 1;
    for (int y = 0; y < roi.height; ++y) {
        const Pxl8u *a = rowAt(pSrc, srcStep, y - 1), *b = rowAt(pSrc, srcStep, y), *c = rowAt(pSrc, srcStep, y + 1);
        Pxl8u* out = rowAt(pDst, dstStep, y);
        for (int x = 0; x < roi.width; ++x) {
            Pxl8u n[8] = {a[x - 1], a[x], a[x + 1], b[x - 1], b[x + 1], c[x - 1], c[x], c[x + 1]};
            const Pxl8u centre = b[x];
            int below = 0;
            for (int i = 0; i < 8; ++i) below += n[i] < centre;
            applyNetwork<kSortOf8>(n);
            out[x] = k < below ? n[k] : k < below + w ? centre : n[k - w];
        }
    }
    return status;
}

PxlStatus median8uP3C1(const Pxl8u* const ppSrc[3], int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi)
{
    // Checks: the plane array and the destination; the region; each plane.
    if (!ppSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (!ppSrc[0] || !ppSrc[1] || !ppSrc[2]) return pxlStatusNullPointer;
    for (int y = 0; y < roi.height; ++y) {
        const Pxl8u *a = rowAt(ppSrc[0], srcStep, y), *b = rowAt(ppSrc[1], srcStep, y), *c = rowAt(ppSrc[2], srcStep, y);
        Pxl8u* out = rowAt(pDst, dstStep, y);
        for (int x = 0; x < roi.width; ++x) out[x] = medianOf3(a[x], b[x], c[x]);
    }
    return pxlStatusOk;
}

}  // namespace pxl::filt

#include "inst/filtering/median_windows.inc"
