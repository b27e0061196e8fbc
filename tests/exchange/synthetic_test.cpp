// Noise and synthetic images: the generator against its rule computed step by step with explicit
// lags, seeds that carry over, Gaussian mean and variance within statistical bounds, and the
// defining properties of the Jaehne rings and the ramps.
#include "pxltest.hpp"

#include <cmath>

using namespace pxltest;

namespace {

// The generator from its statement, with every lagged value kept: s[k + 3] is s(k), s[0..2] are
// s(-3), s(-2), s(-1).
std::vector<int32_t> generatorReference(uint32_t seed, int count, uint32_t* lastS)
{
    std::vector<uint32_t> s = {0, seed * 69069u + 1013904243u, seed};
    s[0] = s[1] * 69069u + 1013904243u;
    uint32_t c = 0xFFFFFFFFu, g = 1131199209u;
    std::vector<int32_t> r;
    for (int n = 0; n < count; ++n) {
        uint32_t t = s[s.size() - 2] - s[s.size() - 3] + c;
        if (static_cast<int32_t>(t) < 0) {
            c = 0xFFFFFFFFu;
            t -= 18;
        } else {
            c = 0;
        }
        s.push_back(t);
        g = g * 69069u + 1013904243u;
        r.push_back(static_cast<int32_t>(t + g));
    }
    *lastS = s.back();
    return r;
}

template <class T> T uniformReference(T x, int32_t r, T low, T high)
{
    const double a = (double(high) - double(low)) * 2.3283064365387e-10, b = (double(high) + double(low)) * 0.5;
    const double v = double(r) * a + b;
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(double(x) + v);
    } else {
        const double sum = double(x) + std::trunc(v);
        return static_cast<T>(std::clamp(sum, double(std::numeric_limits<T>::min()), double(std::numeric_limits<T>::max())));
    }
}

}  // namespace

TEST(Noise, UniformFollowsTheGeneratorSampleBySample)
{
    Rng rng(101);
    for (uint32_t seed : {0u, 1u, 12345u, 0xFFFFFFFFu}) {
        GuardedImage<Pxl8u> img(37, 5);
        img.fillRandom(rng);
        const auto before = img;
        uint32_t last = 0;
        const auto r = generatorReference(seed, 37 * 5, &last);
        Pxl32u s = seed;
        ASSERT_EQ(pxliAddRandUniform_8u_C1IR(img.data(), img.step(), img.size(), 10, 200, &s), pxlStatusOk);
        EXPECT_EQ(s, last) << "the seed carries the last lagged value";
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 37; ++x)
                ASSERT_EQ(img.at(x, y), uniformReference<Pxl8u>(before.at(x, y), r[static_cast<std::size_t>(y * 37 + x)], 10, 200)) << x << "," << y;
        EXPECT_TRUE(img.guardsIntact());
    }
    // The first outputs by hand from the rule, seed 1: s(-1) = 1, s(-2) = 1082973312,
    // s(-3) = 1082973312 * 69069 + 1013904243 (mod 2^32); t = s(-2) - s(-3) - 1.
    uint32_t last;
    const auto r = generatorReference(1, 1, &last);
    const uint32_t s2 = 69069u + 1013904243u, s3 = s2 * 69069u + 1013904243u;
    uint32_t t = s2 - s3 - 1;
    if (static_cast<int32_t>(t) < 0) t -= 18;
    EXPECT_EQ(r[0], static_cast<int32_t>(t + (1131199209u * 69069u + 1013904243u)));
}

TEST(Noise, EveryTypeAndLayoutFollowsTheSameGenerator)
{
    Rng rng(102);
    auto check = [&](auto tag, int mem, int proc, auto fn, auto low, auto high) {
        using T = decltype(tag);
        GuardedImage<T> img(9, 4, mem);
        img.fillRandom(rng, 0.2, false);
        const auto before = img;
        uint32_t last;
        const auto r = generatorReference(777, 9 * 4 * proc, &last);
        Pxl32u s = 777;
        ASSERT_EQ(fn(img.data(), img.step(), img.size(), low, high, &s), pxlStatusOk);
        EXPECT_EQ(s, last);
        std::size_t k = 0;
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 9; ++x)
                for (int c = 0; c < mem; ++c) {
                    const T want = c < proc ? uniformReference<T>(before.at(x, y, c), r[k++], low, high) : before.at(x, y, c);
                    ASSERT_TRUE(sameBits(img.at(x, y, c), want)) << mem << "," << proc << " at " << x << "," << y << "," << c;
                }
    };
    check(Pxl8u{}, 3, 3, pxliAddRandUniform_8u_C3IR, Pxl8u(0), Pxl8u(255));
    check(Pxl8u{}, 4, 3, pxliAddRandUniform_8u_AC4IR, Pxl8u(5), Pxl8u(9));
    check(Pxl16u{}, 1, 1, pxliAddRandUniform_16u_C1IR, Pxl16u(0), Pxl16u(60000));
    check(Pxl16s{}, 4, 4, pxliAddRandUniform_16s_C4IR, Pxl16s(-1000), Pxl16s(3000));
    check(Pxl32f{}, 1, 1, pxliAddRandUniform_32f_C1IR, -0.5f, 0.5f);
    check(Pxl32f{}, 4, 3, pxliAddRandUniform_32f_AC4IR, 0.0f, 10.0f);
}

TEST(Noise, ZeroRangeLeavesTheImageButMovesTheSeed)
{
    GuardedImage<Pxl8u> img(16, 3);
    Rng rng(103);
    img.fillRandom(rng);
    Watch w({&img});
    Pxl32u s = 42;
    ASSERT_EQ(pxliAddRandUniform_8u_C1IR(img.data(), img.step(), img.size(), 0, 0, &s), pxlStatusOk);
    EXPECT_TRUE(w.unchanged());
    EXPECT_NE(s, 42u);
    // The same seed gives the same noise; the moved seed gives other noise.
    GuardedImage<Pxl8u> a(16, 3), b(16, 3), c(16, 3);
    a.fill(100), b.fill(100), c.fill(100);
    Pxl32u sa = 9, sb = 9;
    ASSERT_EQ(pxliAddRandUniform_8u_C1IR(a.data(), a.step(), a.size(), 0, 50, &sa), pxlStatusOk);
    ASSERT_EQ(pxliAddRandUniform_8u_C1IR(b.data(), b.step(), b.size(), 0, 50, &sb), pxlStatusOk);
    EXPECT_TRUE(regionsEqual(a, b));
    ASSERT_EQ(pxliAddRandUniform_8u_C1IR(c.data(), c.step(), c.size(), 0, 50, &sa), pxlStatusOk);
    EXPECT_FALSE(regionsEqual(c, a));
    // Checks: pointers (image, seed), sizes, step.
    EXPECT_EQ(pxliAddRandUniform_8u_C1IR(img.data(), 0, {0, 1}, 0, 1, nullptr), pxlStatusNullPointer);
    EXPECT_EQ(pxliAddRandUniform_8u_C1IR(img.data(), 0, {0, 1}, 0, 1, &s), pxlStatusBadSize);
    EXPECT_EQ(pxliAddRandUniform_8u_C1IR(img.data(), 0, {1, 1}, 0, 1, &s), pxlStatusBadStep);
}

TEST(Noise, GaussianMeanAndVarianceWithinBounds)
{
    constexpr int W = 512, H = 512;
    for (auto [mean, sd] : {std::pair{0.0f, 1.0f}, {3.0f, 0.25f}}) {
        GuardedImage<Pxl32f> img(W, H);
        img.fill(0.0f);
        Pxl32u seed = 2024;
        ASSERT_EQ(pxliAddRandGauss_32f_C1IR(img.data(), img.step(), img.size(), mean, sd, &seed), pxlStatusOk);
        double sum = 0, sq = 0, beyond2 = 0;
        for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x) {
                const double v = img.at(x, y);
                sum += v;
                sq += v * v;
                beyond2 += std::fabs(v - mean) > 2 * sd;
            }
        const double n = double(W) * H, m = sum / n, var = sq / n - m * m;
        // Standard error of the mean sd/512; of the variance about sd^2 * sqrt(2/n).
        EXPECT_NEAR(m, mean, 5 * sd / 512.0);
        EXPECT_NEAR(var, double(sd) * sd, 5 * double(sd) * sd * std::sqrt(2.0 / n));
        EXPECT_NEAR(beyond2 / n, 0.0455, 0.004);  // a normal law puts 4.55% beyond two deviations
    }
    // Integer images saturate.
    GuardedImage<Pxl8u> img(64, 64);
    img.fill(250);
    Pxl32u seed = 5;
    ASSERT_EQ(pxliAddRandGauss_8u_C3IR(img.data(), img.step(), {21, 64}, 20.0f, 1.0f, &seed), pxlStatusOk);
    EXPECT_EQ(img.at(0, 0), 255);
}

TEST(SyntheticImages, JaehneRingsAreSymmetricAndSpanTheRange)
{
    constexpr int W = 97, H = 64;
    GuardedImage<Pxl8u> img(W, H);
    ASSERT_EQ(pxliImageJaehne_8u_C1R(img.data(), img.step(), img.size()), pxlStatusOk);
    int lo = 255, hi = 0;
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            ASSERT_EQ(img.at(x, y), img.at(W - 1 - x, y)) << x << "," << y;
            ASSERT_EQ(img.at(x, y), img.at(x, H - 1 - y)) << x << "," << y;
            lo = std::min<int>(lo, img.at(x, y));
            hi = std::max<int>(hi, img.at(x, y));
        }
    EXPECT_LE(lo, 2);
    EXPECT_GE(hi, 253);
    // The rings get closer with the distance: more zero crossings in the outer half of a row.
    GuardedImage<Pxl32f> f(W, H);
    ASSERT_EQ(pxliImageJaehne_32f_C1R(f.data(), f.step(), f.size()), pxlStatusOk);
    int inner = 0, outer = 0;
    for (int x = W / 2; x + 1 < W; ++x) ((x < W / 2 + W / 4) ? inner : outer) += (f.at(x, H / 2) < 0) != (f.at(x + 1, H / 2) < 0);
    EXPECT_GT(outer, inner);
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) ASSERT_LE(std::fabs(f.at(x, y)), 1.0f);
    // Every channel the same; AC4 keeps alpha.
    GuardedImage<Pxl16s> c(10, 7, 4);
    Rng rng(104);
    c.fillRandom(rng);
    const auto before = c;
    ASSERT_EQ(pxliImageJaehne_16s_AC4R(c.data(), c.step(), c.size()), pxlStatusOk);
    for (int y = 0; y < 7; ++y)
        for (int x = 0; x < 10; ++x) {
            EXPECT_EQ(c.at(x, y, 0), c.at(x, y, 2));
            EXPECT_EQ(c.at(x, y, 3), before.at(x, y, 3));
        }
}

TEST(SyntheticImages, RampsAlongEachAxis)
{
    GuardedImage<Pxl8u> img(300, 5);
    ASSERT_EQ(pxliImageRamp_8u_C1R(img.data(), img.step(), img.size(), 10.0f, 0.5f, 0), pxlStatusOk);
    for (int x = 0; x < 300; ++x) {
        const double v = 10 + 0.5 * x;
        const int want = v >= 255 ? 255 : static_cast<int>(std::nearbyint(v));  // ties to even
        for (int y = 0; y < 5; ++y) ASSERT_EQ(img.at(x, y), want) << x;
    }
    GuardedImage<Pxl32f> f(6, 9, 3);
    ASSERT_EQ(pxliImageRamp_32f_C3R(f.data(), f.step(), f.size(), -1.0f, 0.25f, 1), pxlStatusOk);
    for (int y = 0; y < 9; ++y)
        for (int c = 0; c < 3; ++c) EXPECT_EQ(f.at(5, y, c), -1.0f + 0.25f * y);
    GuardedImage<Pxl16s> p(8, 8);
    ASSERT_EQ(pxliImageRamp_16s_C1R(p.data(), p.step(), p.size(), 0.0f, -1000.0f, 2), pxlStatusOk);
    EXPECT_EQ(p.at(7, 7), -32768);
    EXPECT_EQ(p.at(3, 2), -6000);
    EXPECT_EQ(pxliImageRamp_16s_C1R(p.data(), p.step(), p.size(), 0.0f, 1.0f, 3), pxlStatusBadAxis);
    EXPECT_EQ(pxliImageRamp_16s_C1R(p.data(), 0, p.size(), 0.0f, 1.0f, 3), pxlStatusBadStep);
    EXPECT_EQ(pxliImageJaehne_8u_C1R(nullptr, 0, {0, 0}), pxlStatusNullPointer);
}
