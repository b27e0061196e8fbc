// Noise and synthetic images. The noise generator is a lagged subtract-with-borrow sequence
// seeded from the caller's word, added to a congruential sequence that starts afresh on every
// call; the caller's word carries the lagged sequence from one call to the next.
#include "exchange/exchange.hpp"
#include "exchange/rounding.hpp"
#include "frame/bind.hpp"

#include <cmath>
#include <numbers>

namespace pxl::exch {

class NoiseGenerator {
public:
    explicit NoiseGenerator(uint32_t seed)
        : s1_(seed), s2_(seed * kMul + kAdd), s3_(s2_ * kMul + kAdd), g_(kCongruentialStart) {}

    // The next output, as a signed 32-bit integer; all arithmetic wraps in 32 bits.
    int32_t next()
    {
        uint32_t t = s2_ - s3_ + carry_;
        if (static_cast<int32_t>(t) < 0) {
            carry_ = 0xFFFFFFFFu;
            t -= 18;
        } else {
            carry_ = 0;
        }
        s3_ = s2_;
        s2_ = s1_;
        s1_ = t;
        g_ = g_ * kMul + kAdd;
        return static_cast<int32_t>(t + g_);
    }
    // The word a following call starts from: the last value of the lagged sequence.
    uint32_t seed() const { return s1_; }

private:
    static constexpr uint32_t kMul = 69069, kAdd = 1013904243, kCongruentialStart = 1131199209;
    uint32_t s1_, s2_, s3_, g_;  // s(n-1), s(n-2), s(n-3), g(n-1)
    uint32_t carry_ = 0xFFFFFFFFu;
};

namespace {

// Every processed sample of the region in row order, channels in order; AC4 skips the fourth.
template <class T, class L, class Fn> void forEachSample(T* p, int step, PxliSize roi, Fn fn)
{
    for (int y = 0; y < roi.height; ++y) {
        T* row = rowAt(p, step, y);
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < L::proc; ++c) fn(row[L::mem * x + c], x, y);
    }
}

// The sample plus an amount of noise: integers add the amount truncated toward zero and
// saturate, floats add it rounded to float.
template <class T> inline T addNoise(T x, double amount)
{
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(double(x) + amount);
    } else {
        using Lim = std::numeric_limits<T>;
        const double v = double(x) + std::trunc(amount);
        return static_cast<T>(v < double(Lim::min()) ? double(Lim::min()) : v > double(Lim::max()) ? double(Lim::max()) : v);
    }
}

// The checks of every form: pointers, sizes, a step below 1.
inline PxlStatus checkImage(bool nullPointer, PxliSize roi, int step)
{
    if (nullPointer) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (step < 1) return pxlStatusBadStep;
    return pxlStatusOk;
}

// A sample of the image's type from a double: integers round to nearest (ties to even) and
// saturate; floats are rounded once.
template <class T> inline T storeValue(double v)
{
    if constexpr (std::is_floating_point_v<T>) return static_cast<T>(v);
    else return roundToInt<T, kNearestEven>(v);
}

}  // namespace

// Uniform noise: r * (high - low) / 2^32 + (high + low) / 2, truncated toward zero, added and
// saturated. Checks: image and seed pointers, sizes, a step below 1; low and high are not compared.
template <class T, class L>
PxlStatus addRandUniform(T* pSrcDst, int step, PxliSize roi, T low, T high, Pxl32u* pSeed)
{
    if (const PxlStatus st = checkImage(!pSrcDst || !pSeed, roi, step); st != pxlStatusOk) return st;
    NoiseGenerator gen(*pSeed);
    const double a = (double(high) - double(low)) * 2.3283064365387e-10, b = (double(high) + double(low)) * 0.5;
    forEachSample<T, L>(pSrcDst, step, roi, [&](T& x, int, int) { x = addNoise<T>(x, double(gen.next()) * a + b); });
    *pSeed = gen.seed();
    return pxlStatusOk;
}

// Gaussian noise: the sum of twelve outputs of the same generator, each a uniform number in
// (-1/2, 1/2), has mean 0 and variance 1 (Irwin-Hall), with tails held within 6 deviations; it
// needs no mathematics library, so the noise is the same on every machine.
template <class T, class L>
PxlStatus addRandGauss(T* pSrcDst, int step, PxliSize roi, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed)
{
    if (const PxlStatus st = checkImage(!pSrcDst || !pSeed, roi, step); st != pxlStatusOk) return st;
    NoiseGenerator gen(*pSeed);
    constexpr double kUnit = 1.0 / 4294967296.0;
    forEachSample<T, L>(pSrcDst, step, roi, [&](T& x, int, int) {
        double z = 0;
        for (int k = 0; k < 12; ++k) z += (double(gen.next()) + 0.5) * kUnit;
        x = addNoise<T>(x, double(mean) + double(stdDev) * z);
    });
    *pSeed = gen.seed();
    return pxlStatusOk;
}

// Concentric rings about the centre whose local frequency rises linearly with the distance d:
// j = sin(pi * d^2 / (2 R)), R half the larger side, reaches the sampling limit (half a cycle per
// pixel) at d = R. Stored as 0..255, 0..65535, -32767..32767, or -1..1 by type.
template <class T, class L> PxlStatus imageJaehne(T* pDst, int step, PxliSize roi)
{
    if (const PxlStatus st = checkImage(!pDst, roi, step); st != pxlStatusOk) return st;
    const double cx = (roi.width - 1) * 0.5, cy = (roi.height - 1) * 0.5;
    const double r = std::max(roi.width, roi.height) * 0.5;
    forEachSample<T, L>(pDst, step, roi, [&](T& v, int x, int y) {
        const double dx = x - cx, dy = y - cy;
        const double j = std::sin(std::numbers::pi * (dx * dx + dy * dy) / (2.0 * r));
        if constexpr (std::is_same_v<T, Pxl8u>) v = storeValue<T>((j + 1.0) * 127.5);
        else if constexpr (std::is_same_v<T, Pxl16u>) v = storeValue<T>((j + 1.0) * 32767.5);
        else if constexpr (std::is_same_v<T, Pxl16s>) v = storeValue<T>(j * 32767.0);
        else v = storeValue<T>(j);
    });
    return pxlStatusOk;
}

// offset + slope * t, t the column (axis 0), the row (axis 1) or their product (axis 2), in
// double, then rounded and saturated; the axis picks the loop once. Checks: pointer, sizes, step,
// axis.
template <class T, class L> PxlStatus imageRamp(T* pDst, int step, PxliSize roi, Pxl32f offset, Pxl32f slope, PxlAxis axis)
{
    if (const PxlStatus st = checkImage(!pDst, roi, step); st != pxlStatusOk) return st;
    if (axis < 0 || axis > 2) return pxlStatusBadAxis;
    const double o = offset, k = slope;
    auto ramp = [&](auto position) {
        forEachSample<T, L>(pDst, step, roi, [&](T& v, int x, int y) { v = storeValue<T>(o + k * position(x, y)); });
    };
    if (axis == 0) ramp([](int x, int) { return double(x); });
    else if (axis == 1) ramp([](int, int y) { return double(y); });
    else ramp([](int x, int y) { return double(x) * double(y); });
    return pxlStatusOk;
}

}  // namespace pxl::exch

#include "inst/exchange/synthetic.inc"
