// Test support shared by every family's tests: images with guard bands, seeded random fills that
// mix in each type's extremes, and helpers for "nothing written on failure" and the order of checks.
#pragma once

#include "pxlipx.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

namespace pxltest {

// ---------------------------------------------------------------------------------------------
// Sample types by token, for typed tests and messages.
template <class T> constexpr const char* token();
template <> constexpr const char* token<Pxl8u>() { return "8u"; }
template <> constexpr const char* token<Pxl8s>() { return "8s"; }
template <> constexpr const char* token<Pxl16u>() { return "16u"; }
template <> constexpr const char* token<Pxl16s>() { return "16s"; }
template <> constexpr const char* token<Pxl32u>() { return "32u"; }
template <> constexpr const char* token<Pxl32s>() { return "32s"; }
template <> constexpr const char* token<Pxl32f>() { return "32f"; }
template <> constexpr const char* token<Pxl64f>() { return "64f"; }

// The run-time type code of the types that take one (8u, 16u, 16s, 32f).
template <class T> constexpr PxlDataType typeCode()
{
    if constexpr (std::is_same_v<T, Pxl8u>) return pxlDt8u;
    else if constexpr (std::is_same_v<T, Pxl16u>) return pxlDt16u;
    else if constexpr (std::is_same_v<T, Pxl16s>) return pxlDt16s;
    else return pxlDt32f;
}

// The values each type's kernels most often get wrong.
template <class T> std::vector<T> extremes()
{
    using L = std::numeric_limits<T>;
    if constexpr (std::is_floating_point_v<T>) {
        return {T(0), -T(0), T(1), T(-1), T(0.5), T(-0.5), T(1.5), T(2.5), L::max(), L::lowest(), L::min(),
                L::denorm_min(), -L::denorm_min(), L::infinity(), -L::infinity(), L::quiet_NaN()};
    } else if constexpr (std::is_signed_v<T>) {
        return {L::min(), T(L::min() + 1), T(-1), T(0), T(1), T(L::max() - 1), L::max()};
    } else {
        return {T(0), T(1), T(2), T(L::max() - 1), L::max()};
    }
}

// A seeded generator: every failure can be replayed from the seed that the test prints.
class Rng {
public:
    explicit Rng(uint64_t seed = 0x5EED'0001) : gen_(seed) {}

    uint64_t bits() { return gen_(); }
    int uniformInt(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(gen_); }
    bool chance(double p) { return std::uniform_real_distribution<double>(0, 1)(gen_) < p; }

    // A value spread over the whole type: for floats, signs and exponents across the range.
    template <class T> T any()
    {
        if constexpr (std::is_floating_point_v<T>) {
            const int e = uniformInt(-30, 30);
            const double m = std::uniform_real_distribution<double>(-2, 2)(gen_);
            return static_cast<T>(std::ldexp(m, e));
        } else {
            return static_cast<T>(gen_());
        }
    }

    // Mostly any<T>(), with one sample in extremeShare drawn from extremes<T>().
    template <class T> T sample(double extremeShare = 0.125, bool allowNonFinite = true)
    {
        if (chance(extremeShare)) {
            const auto ex = extremes<T>();
            for (;;) {
                const T v = ex[static_cast<std::size_t>(uniformInt(0, static_cast<int>(ex.size()) - 1))];
                if constexpr (std::is_floating_point_v<T>) {
                    if (!allowNonFinite && !std::isfinite(v)) continue;
                }
                return v;
            }
        }
        return any<T>();
    }

private:
    std::mt19937_64 gen_;
};

// ---------------------------------------------------------------------------------------------
// An image region inside a larger buffer: a guard band of sentinel bytes above, below, left and
// right of every row, and in the step padding. guardsIntact() says whether anything outside the
// region was written.
class GuardedBuffer {
public:
    GuardedBuffer(int rowBytes, int height, int padBytes, int guardBytes, int misalign);

    uint8_t* base() { return buf_.data() + origin_; }
    const uint8_t* base() const { return buf_.data() + origin_; }
    int step() const { return step_; }
    int rowBytes() const { return rowBytes_; }
    int height() const { return height_; }

    bool guardsIntact() const;
    // Every byte of the buffer, region and guards: two snapshots equal means nothing was written.
    const std::vector<uint8_t>& bytes() const { return buf_; }

private:
    static uint8_t sentinel(std::size_t i) { return static_cast<uint8_t>((i * 0x9E3779B1u) >> 24); }
    std::vector<uint8_t> buf_;  // over-allocated so that the region can start on a 64-byte boundary
    int rowBytes_, height_, step_;
    std::size_t origin_;
};

template <class T>
class GuardedImage : public GuardedBuffer {
public:
    // width in pixels of `channels` samples; padBytes of step padding after each row.
    GuardedImage(int width, int height, int channels = 1, int padBytes = 24, int misalignBytes = 0, int guardBytes = 64)
        : GuardedBuffer(width * channels * static_cast<int>(sizeof(T)), height, padBytes, guardBytes, misalignBytes),
          width_(width), channels_(channels) {}

    // Rows that follow each other with no gap (the step is the row's length); guard rows remain
    // above and below.
    static GuardedImage contiguous(int width, int height, int channels = 1)
    {
        return GuardedImage(width, height, channels, 0, 0, 0);
    }

    T* data() { return reinterpret_cast<T*>(base()); }
    const T* data() const { return reinterpret_cast<const T*>(base()); }
    PxliSize size() const { return {width_, height()}; }
    int width() const { return width_; }
    int channels() const { return channels_; }
    int samplesPerRow() const { return width_ * channels_; }

    T* row(int y) { return reinterpret_cast<T*>(base() + static_cast<std::ptrdiff_t>(y) * step()); }
    const T* row(int y) const { return reinterpret_cast<const T*>(base() + static_cast<std::ptrdiff_t>(y) * step()); }
    T& at(int x, int y, int c = 0) { return row(y)[x * channels_ + c]; }
    const T& at(int x, int y, int c = 0) const { return row(y)[x * channels_ + c]; }

    void fill(T v)
    {
        for (int y = 0; y < height(); ++y)
            for (int i = 0; i < samplesPerRow(); ++i) row(y)[i] = v;
    }
    void fillRandom(Rng& rng, double extremeShare = 0.125, bool allowNonFinite = true)
    {
        for (int y = 0; y < height(); ++y)
            for (int i = 0; i < samplesPerRow(); ++i) row(y)[i] = rng.sample<T>(extremeShare, allowNonFinite);
    }

private:
    int width_, channels_;
};

// The scale-factor rule, from its statement: an exact result s scaled by 2^-f, rounded to
// nearest with ties to even, then saturated to T; any f.
template <class T> T sfsReference(int64_t s, int f)
{
    int64_t r;
    if (f >= 0) {
        if (f >= 62) {
            r = 0;  // |s| < 2^40 in every family
        } else {
            const int64_t unit = int64_t{1} << f;
            int64_t q = s >= 0 ? s / unit : -((-s + unit - 1) / unit);  // floor
            const int64_t rem = s - q * unit;                              // 0 <= rem < unit
            if (2 * rem > unit || (2 * rem == unit && (q & 1))) ++q;
            r = q;
        }
    } else {
        r = f <= -24 ? (s > 0 ? INT64_MAX / 2 : s < 0 ? INT64_MIN / 2 : 0) : s * (int64_t{1} << -f);
    }
    return static_cast<T>(std::clamp<int64_t>(r, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

// A guarded image of random samples, extremeShare of them drawn from the type's extremes.
template <class T> class GuardedImage;
template <class T> GuardedImage<T> randomImage(int w, int h, int channels, Rng& rng, double extremeShare = 0.125);

// Two samples are the same bit for bit (so NaN equals the same NaN, and 0 differs from -0).
template <class T> bool sameBits(T a, T b) { return std::memcmp(&a, &b, sizeof(T)) == 0; }

// Compares the region of two images sample by sample; reports the first few differences.
template <class T>
::testing::AssertionResult regionsEqual(const GuardedImage<T>& got, const GuardedImage<T>& want)
{
    int bad = 0;
    ::testing::AssertionResult r = ::testing::AssertionFailure();
    for (int y = 0; y < want.height(); ++y)
        for (int i = 0; i < want.samplesPerRow(); ++i)
            if (!sameBits(got.row(y)[i], want.row(y)[i]) && bad++ < 5)
                r << "at sample " << i << " of row " << y << ": got " << +got.row(y)[i] << ", want "
                  << +want.row(y)[i] << "\n";
    if (bad == 0) return ::testing::AssertionSuccess();
    return r << bad << " samples differ";
}

template <class T> GuardedImage<T> randomImage(int w, int h, int channels, Rng& rng, double extremeShare)
{
    GuardedImage<T> img(w, h, channels);
    img.fillRandom(rng, extremeShare);
    return img;
}

// Every sample of the region equals want(x, y, channel) bit for bit, and the guards stand.
template <class T, class F>
::testing::AssertionResult matchesEach(const GuardedImage<T>& got, F want)
{
    if (!got.guardsIntact()) return ::testing::AssertionFailure() << "written outside the region";
    for (int y = 0; y < got.height(); ++y)
        for (int x = 0; x < got.width(); ++x)
            for (int c = 0; c < got.channels(); ++c)
                if (!sameBits(got.at(x, y, c), static_cast<T>(want(x, y, c))))
                    return ::testing::AssertionFailure() << "pixel (" << x << ", " << y << ") channel " << c << ": got "
                                                         << +got.at(x, y, c) << ", want " << +want(x, y, c);
    return ::testing::AssertionSuccess();
}

// ---------------------------------------------------------------------------------------------
// Watches buffers across a call: unchanged() is true when not one byte of them (region or guard)
// was written.
class Watch {
public:
    Watch(std::initializer_list<const GuardedBuffer*> buffers);
    ::testing::AssertionResult unchanged() const;

private:
    std::vector<const GuardedBuffer*> buffers_;
    std::vector<std::vector<uint8_t>> before_;
};

// The order of checks. `valid` holds arguments that pass every check; each fault breaks one check
// and names the status that check returns, in the family's order of checks. Every fault alone, and
// every pair of faults at once, must return the earlier fault's status with nothing written.
template <class Args>
struct Fault {
    std::string what;
    PxlStatus status;
    std::function<void(Args&)> apply;
};

template <class Args, class Call>
void expectCheckOrder(const Args& valid, const std::vector<Fault<Args>>& faults, Call call,
                      std::initializer_list<const GuardedBuffer*> watched)
{
    auto run = [&](const Args& args, PxlStatus want, const std::string& what) {
        Watch w(watched);
        EXPECT_EQ(call(args), want) << what;
        EXPECT_TRUE(w.unchanged()) << what;
    };
    for (std::size_t i = 0; i < faults.size(); ++i) {
        Args one = valid;
        faults[i].apply(one);
        run(one, faults[i].status, faults[i].what);
        for (std::size_t j = i + 1; j < faults.size(); ++j) {
            Args two = valid;
            faults[j].apply(two);
            faults[i].apply(two);
            run(two, faults[i].status, faults[i].what + " with " + faults[j].what);
        }
    }
}

}  // namespace pxltest
