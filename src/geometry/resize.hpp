// The resize plan and the kernels that run it. A plan is a record in the caller's buffer with the
// source position of every destination row and column (and their fractions) for the whole image;
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
// saturated; floating types as they are.
template <class T, class F> inline T storeSample(F v)
{
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(v);
    } else {
        const int32_t i = static_cast<int32_t>((v + 0x1.8p23f) - 0x1.8p23f);
        return static_cast<T>(std::clamp<int32_t>(i, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
    }
}

// The exact difference of two samples in the interpolation's type.
template <class F, class T> inline F difference(T hi, T lo)
{
    if constexpr (std::is_floating_point_v<T>) return static_cast<F>(hi - lo);
    else return static_cast<F>(int32_t{hi} - int32_t{lo});
}

// One source row interpolated along the row, sample by sample: the sample at xs[k] and the same
// channel of the next pixel, C samples on, weighted by fs[k]. Integer rows read as the floating
// type (converted exactly, so their difference is the exact integer difference) let the loads be
// vector gathers.
template <class T, int C, class F>
void linearRow(const T* __restrict row, const int32_t* __restrict xs, const F* __restrict fs, int n, F* __restrict out)
{
    for (int k = 0; k < n; ++k) {
        const T p0 = row[xs[k]], p1 = row[xs[k] + C];
        out[k] = difference<F>(p1, p0) * fs[k] + static_cast<F>(p0);
    }
}

// Two interpolated rows blended down by wy and stored.
template <class T, class F> void linearColumn(const F* __restrict lo, const F* __restrict hi, F wy, int n, T* __restrict out)
{
    for (int i = 0; i < n; ++i) out[i] = storeSample<T>((hi[i] - lo[i]) * wy + lo[i]);
}

// The interior of a tile: every tap inside the source memory. Each source row is interpolated
// along the row once, into the two-row ring, and reused by every destination row that needs it.
// Columns go in bands whose taps are spelled out per sample on the stack, relative to the band's
// first source sample; integer rows are first converted to float over the band's source span
// where it is short enough (a reduction by a large factor reads the samples where they lie).
template <class T, int C, class F>
void linearInterior(const T* src, int srcStep, T* dst, int dstStep, int w, int h, const int32_t* y, const int32_t* x, const F* fy,
                    const F* fx, F* ringA, F* ringB)
{
    constexpr bool kConvert = !std::is_same_v<T, F>;
    constexpr int kBandSamples = 1536, kBand = kBandSamples / C, kSpan = kConvert ? 4096 : 1;
    int32_t bandX[kBandSamples];
    F bandF[kBandSamples];
    F span[kSpan];
    for (int j0 = 0; j0 < w; j0 += kBand) {
        const int n = std::min(kBand, w - j0) * C;
        const int first = x[j0], last = x[j0 + n / C - 1] + 2 * C;  // the band's source samples [first, last)
        const bool converted = kConvert && last - first <= kSpan;
        const int base = converted ? first : 0;
        for (int k = 0; k < n; ++k) {
            bandX[k] = x[j0 + k / C] + k % C - base;
            bandF[k] = fx[j0 + k / C];
        }
        auto interpolate = [&](int row, F* out) {
            const T* r = rowAt(src, srcStep, row);
            if constexpr (kConvert) {
                if (converted) {
                    for (int k = 0; k < last - first; ++k) span[k] = static_cast<F>(r[first + k]);
                    linearRow<F, C>(span, bandX, bandF, n, out);
                } else {
                    linearRow<T, C>(r, bandX, bandF, n, out);
                }
            } else {
                linearRow<T, C>(r, bandX, bandF, n, out);
            }
        };
        int cur = y[0] - 1;
        F* lo = ringA;
        F* hi = ringB;
        interpolate(y[0], hi);
        for (int i = 0; i < h; ++i) {
            const int yi = y[i];
            if (cur < yi) {
                // The newest row (hi) becomes lo when the next row follows it; otherwise both are new.
                std::swap(lo, hi);
                interpolate(yi + 1, hi);
                if (cur + 1 < yi) interpolate(yi, lo);
                cur = yi;
            }
            linearColumn(lo, hi, fy[i], n, rowAt(dst, dstStep, i) + j0 * C);
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
        for (int j = 0; j < w; ++j)
            for (int c = 0; c < C; ++c) out[j * C + c] = r[x[j] + c];
    }
}

}  // namespace pxl::geom
