// The resize plan and the kernels that run it. A plan is a record in the caller's buffer with the
// source position of every destination row and column (and their fractions or taps) for the whole image;
// a tile only rebases them to its own source origin, so that any partition of the destination
// gives the bits of one call.
#pragma once

#include "frame/image.hpp"

#include <algorithm>
#include <limits>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#if defined(__SSE2__)
#include <emmintrin.h>
#include <xmmintrin.h>
#endif

namespace pxl::geom {

inline constexpr uint32_t kResizeIdentity = 0x4B617389u, kResizeIdentityL = 0x4B61738Cu;

// One axis of the plan. Tables are offsets from the record's start (0: none), so that the record
// has the same size on every build.
struct ResizeAxis {
    int32_t srcLen, dstLen;
    int32_t srcReduced, dstReduced;  // the two lengths over their greatest common divisor
    uint32_t indexTable;             // int32 per destination position: floor of its source position
    uint32_t coefTable;              // float per position (linear: the fraction), unless 64f
    uint32_t coefTable64;            // double per position, for 64f
    uint32_t altCoefTable, altTable2;
    int32_t leadCount;   // positions at the start whose taps reach before the source
    int32_t trailCount;  // positions at the end whose taps reach past it
};

struct ResizeRecord {
    uint32_t identity;
    int32_t workType;  // 19 when the tables are double (64f samples), else 13
    int32_t interpolation;
    int32_t lobesX, lobesY;  // half the taps along each axis
    int32_t antialiasing;
    int32_t borderLeft, borderTop, borderRight, borderBottom;
    ResizeAxis axisY, axisX;
};
static_assert(sizeof(ResizeRecord) == 128);

template <class T> const T* tableOf(const ResizeRecord& r, uint32_t offset)
{
    return reinterpret_cast<const T*>(reinterpret_cast<const char*>(&r) + offset);
}

inline double ratioOf(const ResizeAxis& a) { return static_cast<double>(a.srcReduced) / static_cast<double>(a.dstReduced); }

// A sample from an interpolated value: integers rounded to nearest with ties to even (adding and
// taking away 1.5 * 2^23 leaves the integer part, for every value these types reach), then
// saturated; floating types as they are. Finite: the value is known to be finite and well inside
// the range of int32 (as every linear blend of samples is), which lets the limits be integer.
template <class T, bool Finite = true, class F> inline T storeSample(F v)
{
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(v);
    } else if constexpr (Finite) {
        const int32_t i = static_cast<int32_t>((v + F(0x1.8p23f)) - F(0x1.8p23f));
        return static_cast<T>(std::clamp<int32_t>(i, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
    } else {
        // Limited while still floating, so that any value converts: an infinity takes the limit
        // on its side and a NaN (from taps made of a NaN parameter) the least sample.
        constexpr F lo = static_cast<F>(std::numeric_limits<T>::min()), hi = static_cast<F>(std::numeric_limits<T>::max());
        F r = (v + F(0x1.8p23f)) - F(0x1.8p23f);
        r = r > lo ? r : lo;
        r = r < hi ? r : hi;
        return static_cast<T>(static_cast<int32_t>(r));
    }
}

// The exact difference of two samples in the interpolation's type.
template <class F, class T> inline F difference(T hi, T lo)
{
    if constexpr (std::is_floating_point_v<T>) return static_cast<F>(hi - lo);
    else return static_cast<F>(int32_t{hi} - int32_t{lo});
}

// One source row interpolated along the row: for pixel k, each channel's sample at xs[k] and the
// same channel of the next pixel, C samples on, weighted by fs[k].
template <class T, int C, class F>
void linearRow(const T* __restrict row, const int32_t* __restrict xs, const F* __restrict fs, int n, F* __restrict out)
{
    for (int k = 0; k < n; ++k)
        for (int c = 0; c < C; ++c) {
            const T p0 = row[xs[k] + c], p1 = row[xs[k] + C + c];
            out[k * C + c] = difference<F>(p1, p0) * fs[k] + static_cast<F>(p0);
        }
}

// The same over a row of floats that may be read up to four samples past the last tap: four
// lanes at a time, one pixel per step for three and four channels (a three-channel step also
// writes the next pixel's first sample, which the next step writes again), four pixels for one
// channel. The same operations in the same order as linearRow, so the same bits. Returns the
// pixels done; the rest are left to linearRow.
template <int C> int linearRowPadded(const float* __restrict row, const int32_t* __restrict xs, const float* __restrict fs, int n, float* __restrict out)
{
#if defined(__SSE2__)
    int k = 0;
    if constexpr (C == 1) {
        for (; k + 4 <= n; k += 4) {
            const __m128d q0 = _mm_loadl_pd(_mm_setzero_pd(), reinterpret_cast<const double*>(row + xs[k]));
            const __m128d q1 = _mm_loadh_pd(q0, reinterpret_cast<const double*>(row + xs[k + 1]));
            const __m128d q2 = _mm_loadl_pd(_mm_setzero_pd(), reinterpret_cast<const double*>(row + xs[k + 2]));
            const __m128d q3 = _mm_loadh_pd(q2, reinterpret_cast<const double*>(row + xs[k + 3]));
            const __m128 a = _mm_castpd_ps(q1), b = _mm_castpd_ps(q3);
            const __m128 p0 = _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)), p1 = _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1));
            _mm_storeu_ps(out + k, _mm_add_ps(_mm_mul_ps(_mm_sub_ps(p1, p0), _mm_loadu_ps(fs + k)), p0));
        }
    } else {
        const int end = C == 4 ? n : n - 1;  // a three-channel step writes one sample past its pixel
        for (; k < end; ++k) {
            const __m128 p0 = _mm_loadu_ps(row + xs[k]), p1 = _mm_loadu_ps(row + xs[k] + C);
            _mm_storeu_ps(out + k * C, _mm_add_ps(_mm_mul_ps(_mm_sub_ps(p1, p0), _mm_set1_ps(fs[k])), p0));
        }
    }
    return k;
#else
    (void)row, (void)xs, (void)fs, (void)n, (void)out;
    return 0;
#endif
}

// Two interpolated rows blended down by wy and stored.
template <class T, class F> void linearColumn(const F* __restrict lo, const F* __restrict hi, F wy, int n, T* __restrict out)
{
    for (int i = 0; i < n; ++i) out[i] = storeSample<T>((hi[i] - lo[i]) * wy + lo[i]);
}

// The frame of the interior kernels (every tap inside the source memory), for kernels of N taps
// per axis, tap k reading the pixel k - (N / 2 - 1) from its position's index. Columns go in bands:
// a band's source samples are first converted to float (or copied) into a padded span on the
// stack, which the row pass may read eight samples past the band's last tap, and the band ends
// where the span would overflow; a reduction by so large a factor that a band would hold only a
// few pixels reads the samples where they lie, and so do doubles. Each source row a band needs is
// interpolated along the row once, into a ring of N rows (ring[k] holding source row
// y - (N / 2 - 1) + k for the current y), and reused by every destination row that needs it.
//   band(j0, n): called as each band of n pixels from j0 starts;
//   rowPass(row, padded, bandX, j0, n, out): one row through the row taps; bandX[j] is the band's
//     pixel j's first tap in samples from `row`, which is the span when `padded`;
//   column(i, j0, n, ring): destination row i of the band from the ring.
template <class T, int C, class F, int N, int Band, class BandStart, class RowPass, class Column>
void bandedInterior(const T* src, int srcStep, int w, int h, const int32_t* y, const int32_t* x, F* const* ringRows, BandStart band,
                    RowPass rowPass, Column column)
{
    constexpr bool kSpan = std::is_same_v<F, float>;
    constexpr int kFirst = 1 - N / 2, kSpanLen = kSpan ? 4096 : 1, kPad = 8, kFewest = 16;
    int32_t bandX[Band];
    float span[kSpanLen + kPad] = {};
    F* ring[N];
    for (int j0 = 0; j0 < w;) {
        // The band [j0, j1): as many pixels as the span holds, at most Band.
        int j1 = std::min(j0 + Band, w);
        const int first = x[j0] + kFirst * C;
        if constexpr (kSpan) j1 = static_cast<int>(std::upper_bound(x + j0, x + j1, first + kSpanLen - (kFirst + N) * C) - x);
        const bool spanned = kSpan && j1 - j0 >= std::min(kFewest, w - j0);
        if (!spanned) j1 = std::min(j0 + Band, w);
        const int n = j1 - j0, last = x[j1 - 1] + (kFirst + N) * C;  // the band's source samples [first, last)
        const int base = spanned ? first : 0;
        for (int k = 0; k < n; ++k) bandX[k] = x[j0 + k] + kFirst * C - base;
        band(j0, n);
        auto interpolate = [&](int row, F* out) {
            const T* r = rowAt(src, srcStep, row);
            if constexpr (kSpan) {
                if (spanned) {
                    for (int k = 0; k < last - first; ++k) span[k] = static_cast<float>(r[first + k]);
                    return rowPass(static_cast<const float*>(span), true, bandX, j0, n, out);
                }
            }
            rowPass(r, false, bandX, j0, n, out);
        };
        std::copy(ringRows, ringRows + N, ring);
        auto fill = [&](int yi, int from) {
            for (int k = from; k < N; ++k) interpolate(yi + kFirst + k, ring[k]);
        };
        int cur = y[0];
        fill(cur, 0);
        for (int i = 0; i < h; ++i) {
            if (y[i] > cur) {
                // The rows still needed move to the front; only the new ones are interpolated.
                const int d = y[i] - cur;
                cur = y[i];
                if (d >= N) {
                    fill(cur, 0);
                } else {
                    std::rotate(ring, ring + d, ring + N);
                    fill(cur, N - d);
                }
            }
            column(i, j0, n, ring);
        }
        j0 = j1;
    }
}

// The linear interior: two taps along each axis, weighted by the fractions.
template <class T, int C, class F>
void linearInterior(const T* src, int srcStep, T* dst, int dstStep, int w, int h, const int32_t* y, const int32_t* x, const F* fy,
                    const F* fx, F* const* ring)
{
    auto rowPass = [fx](const auto* row, bool padded, const int32_t* bandX, int j0, int n, F* out) {
        using R = std::remove_cv_t<std::remove_pointer_t<decltype(row)>>;
        const F* bandF = fx + j0;
        int done = 0;
        if constexpr (std::is_same_v<R, float> && std::is_same_v<F, float>)
            if (padded) done = linearRowPadded<C>(row, bandX, bandF, n, out);
        linearRow<R, C>(row, bandX + done, bandF + done, n - done, out + done * C);
    };
    auto column = [&](int i, int j0, int n, F* const* rows) { linearColumn(rows[0], rows[1], fy[i], n * C, rowAt(dst, dstStep, i) + j0 * C); };
    bandedInterior<T, C, F, 2, 1536 / C>(src, srcStep, w, h, y, x, ring, [](int, int) {}, rowPass, column);
}

// Whether an interior runs at exactly half the source's size on both axes: every destination
// pixel then sits halfway between two source pixels, two on from the last, on both axes.
template <int C, class F> bool halves(int w, int h, const int32_t* y, const int32_t* x, const F* fy, const F* fx)
{
    for (int j = 0; j < w; ++j)
        if (fx[j] != F(0.5) || (j > 0 && x[j] != x[j - 1] + 2 * C)) return false;
    for (int i = 0; i < h; ++i)
        if (fy[i] != F(0.5) || (i > 0 && y[i] != y[i - 1] + 2)) return false;
    return true;
}

// Halving integer samples: with weights of one half, every product and sum of the interpolation
// is exact in float, so the result is the mean of the 2x2 block, rounded to nearest with ties to
// even, and integer sums give it directly. The means of every pair of neighbouring pixels are
// made along the whole row, contiguously, and then every other pixel's is kept (three channels
// copy four samples, the fourth being overwritten by the next pixel).
template <class T, int C> void halveInterior(const T* src, int srcStep, T* dst, int dstStep, int w, int h, const int32_t* y, const int32_t* x)
{
    using Sum = std::conditional_t<sizeof(T) == 1, uint16_t, int32_t>;
    constexpr int kChunk = 2048 / C, kCopy = C == 1 ? 1 : 4;  // destination pixels per pass; samples copied per pixel
    T means[2 * kChunk * C + 1];
    for (int i = 0; i < h; ++i) {
        const T* r0 = rowAt(src, srcStep, y[i]) + x[0];
        const T* r1 = rowAt(src, srcStep, y[i] + 1) + x[0];
        T* out = rowAt(dst, dstStep, i);
        for (int j0 = 0; j0 < w; j0 += kChunk) {
            const int n = std::min(kChunk, w - j0), from = 2 * C * j0;
            for (int k = 0; k < 2 * C * n - C; ++k) {
                const Sum v = static_cast<Sum>(Sum(r0[from + k]) + Sum(r0[from + k + C]) + Sum(r1[from + k]) + Sum(r1[from + k + C]));
                means[k] = static_cast<T>((v + 1 + ((v >> 2) & 1)) >> 2);
            }
            T* o = out + C * j0;
            const int whole = C == 3 ? n - 1 : n;
            for (int j = 0; j < whole; ++j) std::memcpy(o + C * j, means + 2 * C * j, sizeof(T) * kCopy);
            if (whole < n) std::memcpy(o + C * whole, means + 2 * C * whole, sizeof(T) * C);
        }
    }
}

// The strips of a tile whose taps reach past the image's edge, clamped to the image: `top` rows
// reading the first source row only, `bottom` rows the last; between them `left` columns reading
// the first source column and `right` columns the last. (lo, hi) bound the image's columns and
// rows relative to the tile's source origin; x is in samples.
struct Strips {
    int top, bottom, left, right;
    int xLo, xHi, yLo, yHi;
};
template <class T, int C, class F>
void linearBorder(const T* src, int srcStep, T* dst, int dstStep, int w, int h, const int32_t* y, const int32_t* x, const F* fy,
                  const F* fx, const Strips& s)
{
    auto clampedRow = [&](int i, int row) {
        const T* r = rowAt(src, srcStep, row);
        T* out = rowAt(dst, dstStep, i);
        for (int j = 0; j < w; ++j) {
            int a = x[j], b = x[j] + C;
            if (s.left && x[j] < s.xLo * C) a = b = s.xLo * C;
            else if (s.right && x[j] > (s.xHi - 1) * C) a = b = s.xHi * C;
            for (int c = 0; c < C; ++c) out[j * C + c] = storeSample<T>(difference<F>(r[b + c], r[a + c]) * fx[j] + static_cast<F>(r[a + c]));
        }
    };
    auto clampedColumns = [&](int i, int j0, int j1, int column) {
        const T* r0 = rowAt(src, srcStep, y[i]) + column * C;
        const T* r1 = rowAt(src, srcStep, y[i] + 1) + column * C;
        T* out = rowAt(dst, dstStep, i);
        for (int j = j0; j < j1; ++j)
            for (int c = 0; c < C; ++c) out[j * C + c] = storeSample<T>(difference<F>(r1[c], r0[c]) * fy[i] + static_cast<F>(r0[c]));
    };
    for (int i = 0; i < s.top; ++i) clampedRow(i, s.yLo);
    for (int i = s.top; i < h - s.bottom; ++i) {
        clampedColumns(i, 0, s.left, s.xLo);
        clampedColumns(i, w - s.right, w, s.xHi);
    }
    for (int i = h - s.bottom; i < h; ++i) clampedRow(i, s.yHi);
}

// Kernels of N taps (N / 2 lobes): tap k of a position weighs the pixel k - (N / 2 - 1) from its
// index. A row sums its products from the last tap down to the first, a column from the first
// source row to the last; both the interior and the border kernels go through these two, so that
// a clamped tap gives exactly what a replicated border gives.
template <int N, class At> inline float rowSum(const float* c, At at)
{
    float acc = c[N - 1] * at(N - 1);
    for (int k = N - 2; k >= 0; --k) acc = acc + c[k] * at(k);
    return acc;
}
template <int N, class At> inline float columnSum(const float* c, At at)
{
    float acc = c[0] * at(0);
    for (int k = 1; k < N; ++k) acc = acc + c[k] * at(k);
    return acc;
}

// One source row through the row taps, into floats: x[j] is the sample of pixel j's first tap.
template <class T, int C, int N> void tapRow(const T* __restrict row, const int32_t* __restrict x, const float* __restrict cx, int w, float* __restrict out)
{
    for (int j = 0; j < w; ++j) {
        const T* p = row + x[j];
        for (int c = 0; c < C; ++c) out[j * C + c] = rowSum<N>(cx + N * j, [&](int k) { return static_cast<float>(p[k * C + c]); });
    }
}

// The same over a span of floats that may be read eight samples past the last tap, a vector at a
// time, with the operations of rowSum in its order. Three and four channels take one pixel per
// step, its taps broadcast (a three-channel step writes one sample into the next pixel, which the
// next step writes again); one channel takes four pixels per step, their samples transposed so
// that each vector holds one tap of four pixels, with the taps given transposed likewise (tap k
// of the band's pixel j at cxT[k * stride + j]). Returns the pixels done.
template <int C, int N>
int tapRowPadded(const float* __restrict span, const int32_t* __restrict x, const float* __restrict cx, const float* __restrict cxT, int stride,
                 int w, float* __restrict out)
{
#if defined(__SSE2__)
    int j = 0;
    if constexpr (C == 1) {
        for (; j + 4 <= w; j += 4) {
            __m128 p[8];
            for (int half = 0; half < (N + 3) / 4; ++half) {
                __m128 r0 = _mm_loadu_ps(span + x[j] + 4 * half), r1 = _mm_loadu_ps(span + x[j + 1] + 4 * half);
                __m128 r2 = _mm_loadu_ps(span + x[j + 2] + 4 * half), r3 = _mm_loadu_ps(span + x[j + 3] + 4 * half);
                _MM_TRANSPOSE4_PS(r0, r1, r2, r3);
                p[4 * half] = r0, p[4 * half + 1] = r1, p[4 * half + 2] = r2, p[4 * half + 3] = r3;
            }
            __m128 acc = _mm_mul_ps(_mm_loadu_ps(cxT + (N - 1) * stride + j), p[N - 1]);
            for (int k = N - 2; k >= 0; --k) acc = _mm_add_ps(acc, _mm_mul_ps(_mm_loadu_ps(cxT + k * stride + j), p[k]));
            _mm_storeu_ps(out + j, acc);
        }
    } else {
        const int end = C == 4 ? w : w - 1;
        for (; j < end; ++j) {
            const float* q = span + x[j];
            const float* c = cx + N * j;
            __m128 acc = _mm_mul_ps(_mm_set1_ps(c[N - 1]), _mm_loadu_ps(q + (N - 1) * C));
            for (int k = N - 2; k >= 0; --k) acc = _mm_add_ps(acc, _mm_mul_ps(_mm_set1_ps(c[k]), _mm_loadu_ps(q + k * C)));
            _mm_storeu_ps(out + j * C, acc);
        }
    }
    return j;
#else
    (void)span, (void)x, (void)cx, (void)cxT, (void)stride, (void)w, (void)out;
    return 0;
#endif
}

// N interpolated rows weighed by a row's taps, from the first to the last, and stored.
template <class T, int N> void tapColumn(float* const* ring, const float* taps, int n, T* __restrict out)
{
    const float* r[N];
    float c[N];
    for (int k = 0; k < N; ++k) r[k] = ring[k], c[k] = taps[k];
    for (int s = 0; s < n; ++s) out[s] = storeSample<T, false>(columnSum<N>(c, [&](int k) { return r[k][s]; }));
}

// The interior of N-tap kernels. One channel gives its row pass the band's taps transposed.
template <class T, int C, int N>
void tapsInterior(const T* src, int srcStep, T* dst, int dstStep, int w, int h, const int32_t* y, const int32_t* x, const float* cy,
                  const float* cx, float* const* ring)
{
    constexpr int kBand = C == 1 ? 1024 : 1536 / C;
    float bandT[C == 1 ? N * kBand : 1];
    auto band = [&](int j0, int n) {
        if constexpr (C == 1)
            for (int j = 0; j < n; ++j)
                for (int k = 0; k < N; ++k) bandT[k * n + j] = cx[N * (j0 + j) + k];
    };
    auto rowPass = [&](const auto* row, bool padded, const int32_t* bandX, int j0, int n, float* out) {
        using R = std::remove_cv_t<std::remove_pointer_t<decltype(row)>>;
        const float* bandC = cx + N * j0;
        int done = 0;
        if constexpr (std::is_same_v<R, float>)
            if (padded) done = tapRowPadded<C, N>(row, bandX, bandC, bandT, n, n, out);
        tapRow<R, C, N>(row, bandX + done, bandC + N * done, n - done, out + done * C);
    };
    auto column = [&](int i, int j0, int n, float* const* rows) { tapColumn<T, N>(rows, cy + N * i, n * C, rowAt(dst, dstStep, i) + j0 * C); };
    bandedInterior<T, C, float, N, kBand>(src, srcStep, w, h, y, x, ring, band, rowPass, column);
}

// The strips of a tile whose taps reach past the image, for N-tap kernels: each pixel whole, its
// column taps limited to the image on the sides with a strip, and in the top and bottom strips
// its row taps too.
template <class T, int C, int N>
void tapsBorder(const T* src, int srcStep, T* dst, int dstStep, int w, int h, const int32_t* y, const int32_t* x, const float* cy,
                const float* cx, const Strips& s)
{
    constexpr int kFirst = 1 - N / 2;
    auto pixel = [&](int i, int j, bool rowsLimited) {
        int columns[N];
        for (int k = 0; k < N; ++k) {
            int px = x[j] / C + kFirst + k;
            if (s.left && px < s.xLo) px = s.xLo;
            if (s.right && px > s.xHi) px = s.xHi;
            columns[k] = px * C;
        }
        const T* rows[N];
        for (int k = 0; k < N; ++k) {
            int r = y[i] + kFirst + k;
            if (rowsLimited && s.top && r < s.yLo) r = s.yLo;
            if (rowsLimited && s.bottom && r > s.yHi) r = s.yHi;
            rows[k] = rowAt(src, srcStep, r);
        }
        T* out = rowAt(dst, dstStep, i) + j * C;
        for (int c = 0; c < C; ++c) {
            float sums[N];
            for (int k = 0; k < N; ++k)
                sums[k] = rowSum<N>(cx + N * j, [&](int q) { return static_cast<float>(rows[k][columns[q] + c]); });
            out[c] = storeSample<T, false>(columnSum<N>(cy + N * i, [&](int k) { return sums[k]; }));
        }
    };
    for (int i = 0; i < s.top; ++i)
        for (int j = 0; j < w; ++j) pixel(i, j, true);
    for (int i = s.top; i < h - s.bottom; ++i) {
        for (int j = 0; j < s.left; ++j) pixel(i, j, false);
        for (int j = w - s.right; j < w; ++j) pixel(i, j, false);
    }
    for (int i = h - s.bottom; i < h; ++i)
        for (int j = 0; j < w; ++j) pixel(i, j, true);
}

// Nearest: each destination pixel a copy of the source pixel at (x[j], y[i]), x in samples. A row
// that takes the same source row as the one before is a copy of that destination row.
template <class T, int C> void nearestTile(const T* src, int srcStep, T* dst, int dstStep, int w, int h, const int32_t* y, const int32_t* x)
{
    for (int i = 0; i < h; ++i) {
        T* out = rowAt(dst, dstStep, i);
        if (i > 0 && y[i] == y[i - 1]) {
            std::memmove(out, rowAt(dst, dstStep, i - 1), sizeof(T) * C * static_cast<std::size_t>(w));
            continue;
        }
        const T* r = rowAt(src, srcStep, y[i]);
        int j = 0;
        if constexpr (C == 3) {
            // Four samples a pixel, the fourth overwritten by the next pixel, while the fourth
            // still lies inside the row's taps.
            const int split = static_cast<int>(std::lower_bound(x, x + w, x[w - 1]) - x);
            for (; j < split; ++j) std::memcpy(out + j * C, r + x[j], sizeof(T) * 4);
        }
        for (; j < w; ++j)
            for (int c = 0; c < C; ++c) out[j * C + c] = r[x[j] + c];
    }
}

}  // namespace pxl::geom
