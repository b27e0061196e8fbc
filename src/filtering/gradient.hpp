// The fixed derivative kernels and the gradient driver that the derivative filters, the gradient
// magnitude filter and the gradient vectors share. A kernel is its weights as applied at the
// pixel, rows from the top; integer sums are exact, float sums add the products of the non-zero
// weights in the window's row-major order.
#pragma once

#include "features/features.hpp"
#include "filtering/ring.hpp"
#include "filtering/rows.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <type_traits>

namespace pxl::filt {

struct Weights {
    int side;
    int w[5][5];
};

constexpr Weights outer(const int (&rows)[5], const int (&cols)[5])
{
    Weights k{5, {}};
    for (int i = 0; i < 5; ++i)
        for (int q = 0; q < 5; ++q) k.w[i][q] = rows[i] * cols[q];
    return k;
}
constexpr Weights negated(Weights k)
{
    for (auto& row : k.w)
        for (int& v : row) v = -v;
    return k;
}

// The 5x5 Sobel kernels are the binomial 1 4 6 4 1 across the derivative's direction, and along it
// 1 2 0 -2 -1 (first derivative) or 1 0 -2 0 1 (second). The 5x5 Prewitt kernels are a plane
// fitted by least squares, as the 3x3 ones are: equal weights across, -2 -1 0 1 2 along.
inline constexpr int kBinomial[5] = {1, 4, 6, 4, 1}, kFalling[5] = {1, 2, 0, -2, -1}, kRising[5] = {-1, -2, 0, 2, 1},
                     kSecond[5] = {1, 0, -2, 0, 1}, kEven[5] = {1, 1, 1, 1, 1}, kSlopeDown[5] = {2, 1, 0, -1, -2},
                     kSlopeUp[5] = {-2, -1, 0, 1, 2};

// Selector order: Sobel vertical, Sobel horizontal, Scharr vertical, Scharr horizontal, Prewitt
// vertical, Prewitt horizontal, Roberts down, Roberts up, Sobel vertical second, Sobel horizontal
// second, Sobel negative vertical; each 3x3, and the 5x5 Sobel and Prewitt forms.
inline constexpr Weights k3x3[11] = {
    {3, {{1, 0, -1}, {2, 0, -2}, {1, 0, -1}}},    // left column minus right, 1 2 1 down
    {3, {{-1, -2, -1}, {0, 0, 0}, {1, 2, 1}}},    // row below minus row above
    {3, {{-3, 0, 3}, {-10, 0, 10}, {-3, 0, 3}}},  // right minus left, 3 10 3 down
    {3, {{-3, -10, -3}, {0, 0, 0}, {3, 10, 3}}},  // below minus above, 3 10 3 across
    {3, {{1, 0, -1}, {1, 0, -1}, {1, 0, -1}}},    // left minus right
    {3, {{-1, -1, -1}, {0, 0, 0}, {1, 1, 1}}},    // below minus above
    {3, {{-1, 0, 0}, {0, 1, 0}, {0, 0, 0}}},      // the pixel minus the one up and left
    {3, {{0, 0, -1}, {0, 1, 0}, {0, 0, 0}}},      // the pixel minus the one up and right
    {3, {{1, -2, 1}, {2, -4, 2}, {1, -2, 1}}},    // left + right - 2 centre of the smoothed columns
    {3, {{1, 2, 1}, {-2, -4, -2}, {1, 2, 1}}},    // the same down the smoothed rows
    {3, {{-1, 0, 1}, {-2, 0, 2}, {-1, 0, 1}}},    // right column minus left
};
inline constexpr Weights k5x5[11] = {outer(kBinomial, kFalling), outer(kRising, kBinomial), {}, {},
                                     outer(kEven, kSlopeDown), outer(kSlopeUp, kEven), {}, {},
                                     outer(kBinomial, kSecond), outer(kSecond, kBinomial), outer(kBinomial, kRising)};

// The weighted sum of the window whose top-left sample is r[i][at], pixels N samples apart. The
// rows keep their declared type (S is named, not deduced, which would drop the alignment of 1).
template <Weights K, int N, class A, class S> inline A windowSum(const Loose<S>* const* r, int at)
{
    A sum{};
    bool first = true;
    for (int i = 0; i < K.side; ++i)
        for (int q = 0; q < K.side; ++q)
            if (K.w[i][q] != 0) {
                const A term = static_cast<A>(static_cast<A>(K.w[i][q]) * static_cast<A>(r[i][at + q * N]));
                sum = first ? term : static_cast<A>(sum + term);
                first = false;
            }
    return sum;
}

// The gradient operators (Sobel, Prewitt, Scharr): horizontal and vertical kernels of one sign for all, the horizontal
// component being the left side minus the right and the vertical one the row below minus the row
// above.
template <Operator Op, bool Five> struct GradientKernels;
template <bool Five> struct GradientKernels<Operator::Sobel, Five> {
    static constexpr Weights x = Five ? k5x5[0] : k3x3[0], y = Five ? k5x5[1] : k3x3[1];
};
template <bool Five> struct GradientKernels<Operator::Prewitt, Five> {
    static constexpr Weights x = Five ? k5x5[4] : k3x3[4], y = Five ? k5x5[5] : k3x3[5];
};
template <> struct GradientKernels<Operator::Scharr, false> {
    static constexpr Weights x = negated(k3x3[2]), y = k3x3[3];
};

// The planes of a gradient, each of which may be null; the angle is always 32f.
template <class D> struct GradientPlanes {
    D* gx;
    int gxStep;
    D* gy;
    int gyStep;
    D* mag;
    int magStep;
    Pxl32f* angle;
    int angleStep;
    int norm;  // 2: |gx| + |gy|; 4: the Euclidean length
};

// atan2(y, x) in (-pi, pi], from operations that every vector width rounds alike: the smaller
// magnitude over the larger brought to [0, tan(pi/8)] about pi/4, an odd polynomial there, then
// the octant restored. Zeros count as positive, so a zero vector has the angle 0.
inline float angleOf(float y, float x)
{
    constexpr float kQuarter = 0.785398163397448f, kHalf = 1.57079632679490f, kPi = 3.14159265358979f;
    const float ax = std::fabs(x), ay = std::fabs(y);
    const float hi = ax > ay ? ax : ay, lo = ax > ay ? ay : ax;
    float t = hi > 0.0f ? lo / hi : 0.0f;
    t = t != t ? 1.0f : t;  // both infinite
    const bool far = t > 0.414213562373095f;
    t = far ? (t - 1.0f) / (t + 1.0f) : t;
    const float z = t * t;
    float a = (((8.05374449538e-2f * z - 1.38776856032e-1f) * z + 1.99777106478e-1f) * z - 3.33329491539e-1f) * z * t + t;
    a = far ? kQuarter + a : a;
    a = ay > ax ? kHalf - a : a;
    a = x < 0.0f ? kPi - a : a;
    a = y < 0.0f ? -a : a;
    return x != x || y != y ? x + y : a;
}

// The integer square root rounded to nearest of n >= 0, from the float root and one correction
// each way: round(sqrt(n)) = r exactly when r * r - r < n <= r * r + r.
inline int32_t roundedRoot(int32_t n)
{
    int32_t r = static_cast<int32_t>(std::sqrt(static_cast<float>(n)) + 0.5f);
    r += r * r + r < n ? 1 : 0;
    r -= r > 0 && r * r - r >= n ? 1 : 0;
    return r;
}

// The square of a gradient's length, exactly where the components are integers, to choose among
// channels.
template <class A> inline auto energy(A gx, A gy)
{
    if constexpr (std::is_same_v<A, int16_t>) return int32_t{gx} * gx + int32_t{gy} * gy;
    else return static_cast<double>(gx) * gx + static_cast<double>(gy) * gy;
}

// The planes of a region of N-channel pixels (N = 1, or 3 keeping at each pixel the channel of the
// longest gradient, the first of equals) from a ring of its extended rows, a stretch of each row
// at a time: the gradient in exact sums (16s from 8u, 32-bit from 16-bit, float from 32f), then
// each plane asked for.
template <class K, class S, int N, class D> void gradientImage(const RingSource<S>& source, Loose<S>* ring, const GradientPlanes<D>& p)
{
    using A = FixedSum<S>;
    constexpr Weights X = K::x, Y = K::y;
    constexpr int kStretch = 256;
    const int width = source.roi.width;
    slideRows<S, N>(source, ring, [&](int y, const auto& rows) {
        decltype(rows(0)) r[5];
        for (int i = 0; i < X.side; ++i) r[i] = rows(i);
        // Every sample's sums first, along the interleaved row as one long contiguous row; then,
        // with three channels, the longest of each pixel's three.
        A sx[kStretch * N], sy[kStretch * N], cx[N == 1 ? 1 : kStretch], cy[N == 1 ? 1 : kStretch];
        for (int x0 = 0; x0 < width; x0 += kStretch) {
            const int len = std::min(kStretch, width - x0);
            for (int i = 0; i < len * N; ++i) {
                sx[i] = windowSum<X, N, A, S>(r, x0 * N + i);
                sy[i] = windowSum<Y, N, A, S>(r, x0 * N + i);
            }
            const A* gx = sx;
            const A* gy = sy;
            if constexpr (N > 1) {
                for (int x = 0; x < len; ++x) {
                    A bx = sx[x * N], by = sy[x * N];
                    for (int c = 1; c < N; ++c) {
                        const bool longer = energy(sx[x * N + c], sy[x * N + c]) > energy(bx, by);
                        bx = longer ? sx[x * N + c] : bx;
                        by = longer ? sy[x * N + c] : by;
                    }
                    cx[x] = bx;
                    cy[x] = by;
                }
                gx = cx;
                gy = cy;
            }
            if (p.gx) std::copy_n(gx, len, rowAt(p.gx, p.gxStep, y) + x0);
            if (p.gy) std::copy_n(gy, len, rowAt(p.gy, p.gyStep, y) + x0);
            if (p.mag) {
                D* out = rowAt(p.mag, p.magStep, y) + x0;
                if constexpr (std::is_same_v<D, int16_t>) {
                    // Exact integers, saturated.
                    if (p.norm == 2)
                        for (int x = 0; x < len; ++x) out[x] = static_cast<D>(std::min(std::abs(int32_t{gx[x]}) + std::abs(int32_t{gy[x]}), 32767));
                    else
                        for (int x = 0; x < len; ++x) out[x] = static_cast<D>(std::min(roundedRoot(energy(gx[x], gy[x])), 32767));
                } else if (p.norm == 2) {
                    for (int x = 0; x < len; ++x) out[x] = std::fabs(static_cast<float>(gx[x])) + std::fabs(static_cast<float>(gy[x]));
                } else {
                    for (int x = 0; x < len; ++x) {
                        const float fx = static_cast<float>(gx[x]), fy = static_cast<float>(gy[x]);
                        out[x] = std::sqrt(fx * fx + fy * fy);
                    }
                }
            }
            if (p.angle) {
                Pxl32f* out = rowAt(p.angle, p.angleStep, y) + x0;
                for (int x = 0; x < len; ++x) out[x] = angleOf(static_cast<float>(gy[x]), static_cast<float>(gx[x]));
            }
        }
    });
}

// The work buffer of the gradient driver: the rows of a block of the region's shorter side (at
// most 4 rows for 3x3 and 8 for 5x5) with the mask's overhang, over the longer side, and two
// rows of the intermediate type (16s from 8u, 4 bytes otherwise).
inline int64_t gradientBufferBytes(PxliSize roi, bool fiveByFive, int sampleBytes, int channels)
{
    const int64_t m = fiveByFive ? 5 : 3, longer = std::max(roi.width, roi.height);
    const int64_t block = std::min<int64_t>(std::min(roi.width, roi.height), fiveByFive ? 8 : 4);
    return channels * (longer + m - 1) * (m + block - 1) * sampleBytes + 2 * longer * (sampleBytes == 1 ? 2 : 4);
}

}  // namespace pxl::filt
