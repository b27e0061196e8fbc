// Convert, Scale and ScaleC against reference models written from the rules in long double and
// 64-bit integers: every pair and form, random samples with each type's extremes, exact ties for
// every rounding code, NaN and infinities, the worked examples, gap-free against padded images,
// and the order of checks.
#include "pxltest.hpp"

#include <cfenv>
#include <cfloat>
#include <climits>

using namespace pxltest;

namespace {

// Rounds v (finite) to an integer by code, by floor and fraction: 0 toward zero, 1 nearest with
// ties to even, any other code nearest with ties away from zero.
long double roundRef(long double v, int code)
{
    if (code == 0) return std::trunc(v);
    const long double fl = std::floor(v), fr = v - fl;
    if (fr > 0.5L) return fl + 1;
    if (fr < 0.5L) return fl;
    if (code == 1) return std::fmod(fl, 2.0L) == 0 ? fl : fl + 1;
    return v > 0 ? fl + 1 : fl;
}

// A value to the integer type D: NaN 0, saturated, rounded by code.
template <class D> D toIntRef(long double v, int code)
{
    using L = std::numeric_limits<D>;
    if (std::isnan(v)) return 0;
    if (v >= static_cast<long double>(L::max())) return L::max();
    if (v <= static_cast<long double>(L::min())) return L::min();
    const long double r = roundRef(v, code);
    return static_cast<D>(std::clamp<long double>(r, L::min(), L::max()));
}

template <class T> bool same(T a, T b)
{
    if constexpr (std::is_floating_point_v<T>) return (std::isnan(a) && std::isnan(b)) || sameBits(a, b);
    else return a == b;
}

// Runs fn over random source samples (with extremes and, for float sources, exact ties) on padded
// and gap-free images, and compares every destination sample with ref; AC4 keeps alpha.
template <class S, class D, class Call, class Ref>
void expectConversion(const char* name, int channels, int processed, Call call, Ref ref, Rng& rng)
{
    for (bool contiguous : {false, true})
        for (auto [w, h] : {std::pair{1, 1}, {7, 3}, {33, 2}, {16, 4}}) {
            GuardedImage<S> src = contiguous ? GuardedImage<S>::contiguous(w, h, channels) : GuardedImage<S>(w, h, channels);
            GuardedImage<D> dst = contiguous ? GuardedImage<D>::contiguous(w, h, channels) : GuardedImage<D>(w, h, channels);
            src.fillRandom(rng, 0.3);
            if constexpr (std::is_floating_point_v<S>) {
                for (int i = 0; i < 6; ++i)  // ties and near-ties
                    src.at(rng.uniformInt(0, w - 1), rng.uniformInt(0, h - 1), 0) =
                        static_cast<S>(rng.uniformInt(-300, 300) + 0.5 * rng.uniformInt(0, 1));
            }
            dst.fillRandom(rng);
            const auto before = dst;
            ASSERT_EQ(call(src.data(), src.step(), dst.data(), dst.step(), PxliSize{w, h}), pxlStatusOk) << name;
            ASSERT_TRUE(dst.guardsIntact()) << name;
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    for (int c = 0; c < channels; ++c) {
                        const D want = c < processed ? ref(src.at(x, y, c)) : before.at(x, y, c);
                        ASSERT_TRUE(same(dst.at(x, y, c), want))
                            << name << " " << w << "x" << h << (contiguous ? " contiguous" : "") << " at " << x << "," << y << "," << c
                            << ": source " << +src.at(x, y, c) << " gave " << +dst.at(x, y, c) << ", want " << +want;
                    }
        }
}

// The four layouts of one plain pair.
template <class S, class D, class F1, class F3, class F4, class FA, class Ref>
void expectLayouts(const char* name, F1 c1, F3 c3, F4 c4, FA ac4, Ref ref, Rng& rng)
{
    expectConversion<S, D>(name, 1, 1, c1, ref, rng);
    expectConversion<S, D>(name, 3, 3, c3, ref, rng);
    expectConversion<S, D>(name, 4, 4, c4, ref, rng);
    expectConversion<S, D>(name, 4, 3, ac4, ref, rng);
}

// Integer to integer or float: the value kept where the target holds it, else saturated.
template <class S, class D> D keepRef(S x)
{
    if constexpr (std::is_floating_point_v<D>) return static_cast<D>(static_cast<long double>(x));
    else return static_cast<D>(std::clamp<int64_t>(x, std::numeric_limits<D>::min(), std::numeric_limits<D>::max()));
}

}  // namespace

#define PXLT_PLAIN4(S, D, s, d) \
    expectLayouts<S, D>("Convert_" #s #d, pxliConvert_##s##d##_C1R, pxliConvert_##s##d##_C3R, pxliConvert_##s##d##_C4R, \
                        pxliConvert_##s##d##_AC4R, keepRef<S, D>, rng)
#define PXLT_PLAIN1(S, D, s, d, form) expectConversion<S, D>("Convert_" #s #d, 1, 1, pxliConvert_##s##d##_##form, keepRef<S, D>, rng)

TEST(Convert, IntegerPairsKeepOrSaturate)
{
    Rng rng(51);
    PXLT_PLAIN4(Pxl8u, Pxl16s, 8u, 16s);
    PXLT_PLAIN4(Pxl8u, Pxl16u, 8u, 16u);
    PXLT_PLAIN4(Pxl8u, Pxl32f, 8u, 32f);
    PXLT_PLAIN4(Pxl8u, Pxl32s, 8u, 32s);
    PXLT_PLAIN4(Pxl8s, Pxl32f, 8s, 32f);
    PXLT_PLAIN4(Pxl8s, Pxl32s, 8s, 32s);
    PXLT_PLAIN4(Pxl16s, Pxl8u, 16s, 8u);
    PXLT_PLAIN4(Pxl16s, Pxl32f, 16s, 32f);
    PXLT_PLAIN4(Pxl16s, Pxl32s, 16s, 32s);
    PXLT_PLAIN4(Pxl16u, Pxl8u, 16u, 8u);
    PXLT_PLAIN4(Pxl16u, Pxl32f, 16u, 32f);
    PXLT_PLAIN4(Pxl16u, Pxl32s, 16u, 32s);
    PXLT_PLAIN4(Pxl32s, Pxl8s, 32s, 8s);
    PXLT_PLAIN4(Pxl32s, Pxl8u, 32s, 8u);
    PXLT_PLAIN1(Pxl8s, Pxl16s, 8s, 16s, C1R);
    PXLT_PLAIN1(Pxl8s, Pxl64f, 8s, 64f, C1R);
    PXLT_PLAIN1(Pxl16u, Pxl32u, 16u, 32u, C1R);
    PXLT_PLAIN1(Pxl32s, Pxl32f, 32s, 32f, C1R);
    PXLT_PLAIN1(Pxl32u, Pxl32f, 32u, 32f, C1R);
    PXLT_PLAIN1(Pxl8s, Pxl8u, 8s, 8u, C1Rs);
    PXLT_PLAIN1(Pxl8s, Pxl16u, 8s, 16u, C1Rs);
    PXLT_PLAIN1(Pxl8s, Pxl32u, 8s, 32u, C1Rs);
    PXLT_PLAIN1(Pxl16s, Pxl16u, 16s, 16u, C1Rs);
    PXLT_PLAIN1(Pxl16s, Pxl32u, 16s, 32u, C1Rs);
    PXLT_PLAIN1(Pxl32s, Pxl32u, 32s, 32u, C1Rs);
}

#define PXLT_ROUND4(D, d)                                                                                           \
    for (int code : {0, 1, 2, 7, -1})                                                                               \
        expectLayouts<Pxl32f, D>(                                                                                   \
            "Convert_32f" #d,                                                                                       \
            [code](auto... a) { return pxliConvert_32f##d##_C1R(a..., code); },                                      \
            [code](auto... a) { return pxliConvert_32f##d##_C3R(a..., code); },                                      \
            [code](auto... a) { return pxliConvert_32f##d##_C4R(a..., code); },                                      \
            [code](auto... a) { return pxliConvert_32f##d##_AC4R(a..., code); },                                     \
            [code](Pxl32f x) { return toIntRef<D>(x, code); }, rng)

TEST(Convert, FloatToIntegerRoundsByCodeAndSaturates)
{
    Rng rng(52);
    PXLT_ROUND4(Pxl8u, 8u);
    PXLT_ROUND4(Pxl8s, 8s);
    PXLT_ROUND4(Pxl16u, 16u);
    PXLT_ROUND4(Pxl16s, 16s);
    // The worked examples.
    auto one = [](Pxl32f x, int code) {
        Pxl8u d = 99;
        EXPECT_EQ(pxliConvert_32f8u_C1R(&x, 4, &d, 1, {1, 1}, code), pxlStatusOk);
        return int{d};
    };
    EXPECT_EQ(one(2.5f, 0), 2);
    EXPECT_EQ(one(2.5f, 1), 2);
    EXPECT_EQ(one(2.5f, 2), 3);
    EXPECT_EQ(one(3.5f, 1), 4);
    EXPECT_EQ(one(2.5f, 7), 3);
    EXPECT_EQ(one(std::numeric_limits<float>::quiet_NaN(), 1), 0);
    EXPECT_EQ(one(0.49999997f, 2), 0);  // the sum with 0.5 would round up in float
    EXPECT_EQ(one(1e30f, 0), 255);
    EXPECT_EQ(one(-std::numeric_limits<float>::infinity(), 1), 0);
    Pxl16s in[2] = {-1, 300};
    Pxl8u out[2];
    ASSERT_EQ(pxliConvert_16s8u_C1R(in, 4, out, 2, {2, 1}), pxlStatusOk);
    EXPECT_EQ(out[0], 0);
    EXPECT_EQ(out[1], 255);
}

// The scaled forms: source times 2^-f, rounded by code, saturated.
#define PXLT_SFS(S, D, s, d)                                                                                        \
    for (int f : {-40, -33, -32, -9, -1, 0, 1, 2, 7, 15, 16, 31, 33, 45, INT_MIN, INT_MAX})                         \
        for (int code : {0, 1, 2})                                                                                  \
            expectConversion<S, D>(                                                                                 \
                "Convert_" #s #d "_C1RSfs", 1, 1,                                                                   \
                [code, f](auto... a) { return pxliConvert_##s##d##_C1RSfs(a..., code, f); },                         \
                [code, f](S x) {                                                                                    \
                    const long double lx = static_cast<long double>(x);                                             \
                    const long double v = f <= -20000 ? (lx > 0 ? 1e4000L : lx < 0 ? -1e4000L : 0.0L)               \
                                        : f >= 20000 ? (std::isinf(lx) ? lx : 0.0L) : std::ldexp(lx, -f);           \
                    return toIntRef<D>(std::isnan(lx) ? lx : v, code);                                              \
                },                                                                                                  \
                rng)

TEST(Convert, ScaledFormsScaleRoundAndSaturate)
{
    Rng rng(53);
    PXLT_SFS(Pxl8u, Pxl8s, 8u, 8s);
    PXLT_SFS(Pxl16s, Pxl8s, 16s, 8s);
    PXLT_SFS(Pxl16u, Pxl8s, 16u, 8s);
    PXLT_SFS(Pxl16u, Pxl16s, 16u, 16s);
    PXLT_SFS(Pxl32f, Pxl8s, 32f, 8s);
    PXLT_SFS(Pxl32f, Pxl8u, 32f, 8u);
    PXLT_SFS(Pxl32f, Pxl16s, 32f, 16s);
    PXLT_SFS(Pxl32f, Pxl16u, 32f, 16u);
    PXLT_SFS(Pxl32f, Pxl32s, 32f, 32s);
    PXLT_SFS(Pxl32f, Pxl32u, 32f, 32u);
    PXLT_SFS(Pxl32s, Pxl16s, 32s, 16s);
    PXLT_SFS(Pxl32s, Pxl16u, 32s, 16u);
    PXLT_SFS(Pxl32u, Pxl8s, 32u, 8s);
    PXLT_SFS(Pxl32u, Pxl8u, 32u, 8u);
    PXLT_SFS(Pxl32u, Pxl16s, 32u, 16s);
    PXLT_SFS(Pxl32u, Pxl16u, 32u, 16u);
    PXLT_SFS(Pxl32u, Pxl32s, 32u, 32s);
    PXLT_SFS(Pxl64f, Pxl8s, 64f, 8s);
    PXLT_SFS(Pxl64f, Pxl8u, 64f, 8u);
    PXLT_SFS(Pxl64f, Pxl16s, 64f, 16s);
    PXLT_SFS(Pxl64f, Pxl16u, 64f, 16u);
    // In place, 32f read and 32u written over it, against the out-of-place form.
    for (int f : {-3, 0, 5})
        for (int code : {0, 1, 2}) {
            GuardedImage<Pxl32f> img(9, 3), src(9, 3);
            GuardedImage<Pxl32u> ref(9, 3);
            img.fillRandom(rng, 0.3);
            src = img;
            ASSERT_EQ(pxliConvert_32f32u_C1RSfs(src.data(), src.step(), ref.data(), ref.step(), {9, 3}, code, f), pxlStatusOk);
            ASSERT_EQ(pxliConvert_32f32u_C1IRSfs(img.data(), img.step(), {9, 3}, code, f), pxlStatusOk);
            for (int y = 0; y < 3; ++y)
                for (int x = 0; x < 9; ++x) EXPECT_EQ(std::bit_cast<Pxl32u>(img.at(x, y)), ref.at(x, y));
        }
}

TEST(Scale, From8uSpreadsOverTheWholeRange)
{
    Rng rng(54);
    expectLayouts<Pxl8u, Pxl16u>("Scale_8u16u", pxliScale_8u16u_C1R, pxliScale_8u16u_C3R, pxliScale_8u16u_C4R, pxliScale_8u16u_AC4R,
                                 [](Pxl8u x) { return static_cast<Pxl16u>(x * 65535 / 255); }, rng);
    expectLayouts<Pxl8u, Pxl16s>("Scale_8u16s", pxliScale_8u16s_C1R, pxliScale_8u16s_C3R, pxliScale_8u16s_C4R, pxliScale_8u16s_AC4R,
                                 [](Pxl8u x) { return static_cast<Pxl16s>(x * 65535 / 255 - 32768); }, rng);
    // 0 to the minimum and 255 to the maximum of 32s, evenly: steps of (2^32 - 1) / 255.
    expectLayouts<Pxl8u, Pxl32s>("Scale_8u32s", pxliScale_8u32s_C1R, pxliScale_8u32s_C3R, pxliScale_8u32s_C4R, pxliScale_8u32s_AC4R,
                                 [](Pxl8u x) { return static_cast<Pxl32s>(INT32_MIN + int64_t{x} * (4294967295LL / 255)); }, rng);
    for (const auto& range : {std::pair{0.0f, 1.0f}, {-3.5f, 7.25f}, {-1e6f, 1e6f}}) {
        const float lo = range.first, hi = range.second;
        const float q = (hi - lo) / 255.0f;
        expectLayouts<Pxl8u, Pxl32f>(
            "Scale_8u32f", [lo, hi](auto... a) { return pxliScale_8u32f_C1R(a..., lo, hi); },
            [lo, hi](auto... a) { return pxliScale_8u32f_C3R(a..., lo, hi); }, [lo, hi](auto... a) { return pxliScale_8u32f_C4R(a..., lo, hi); },
            [lo, hi](auto... a) { return pxliScale_8u32f_AC4R(a..., lo, hi); }, [lo, q](Pxl8u x) { return lo + static_cast<float>(x) * q; },
            rng);
    }
    Pxl8u ends[2] = {0, 255};
    Pxl16s s16[2];
    ASSERT_EQ(pxliScale_8u16s_C1R(ends, 2, s16, 4, {2, 1}), pxlStatusOk);
    EXPECT_EQ(s16[0], -32768);
    EXPECT_EQ(s16[1], 32767);
    Pxl32s s32[2];
    ASSERT_EQ(pxliScale_8u32s_C1R(ends, 2, s32, 8, {2, 1}), pxlStatusOk);
    EXPECT_EQ(s32[0], INT32_MIN);
    EXPECT_EQ(s32[1], INT32_MAX);
}

namespace {
// Every value of a 16-bit source through both forms: the accurate one is the nearest integer to
// (x - min) * 255 / range; the fast one is monotonic, meets it at the ends and is never more
// than one away.
template <class S, class Fn> void expectTo8u(Fn fn, int64_t lo, int64_t range, const std::vector<S>& xs)
{
    std::vector<Pxl8u> fast(xs.size()), accurate(xs.size());
    const int n = static_cast<int>(xs.size());
    ASSERT_EQ(fn(xs.data(), n * static_cast<int>(sizeof(S)), fast.data(), n, PxliSize{n, 1}, 0), pxlStatusOk);
    ASSERT_EQ(fn(xs.data(), n * static_cast<int>(sizeof(S)), accurate.data(), n, PxliSize{n, 1}, 2), pxlStatusOk);
    for (int i = 0; i < n; ++i) {
        const int64_t num = (int64_t{xs[static_cast<std::size_t>(i)]} - lo) * 255;
        const int64_t nearest = (2 * num + range) / (2 * range);
        ASSERT_EQ(accurate[static_cast<std::size_t>(i)], nearest) << +xs[static_cast<std::size_t>(i)];
        ASSERT_LE(std::abs(int{fast[static_cast<std::size_t>(i)]} - int{accurate[static_cast<std::size_t>(i)]}), 1) << +xs[static_cast<std::size_t>(i)];
        if (i > 0) {
            ASSERT_GE(fast[static_cast<std::size_t>(i)], fast[static_cast<std::size_t>(i) - 1]) << +xs[static_cast<std::size_t>(i)];
        }
    }
    EXPECT_EQ(fast.front(), 0);
    EXPECT_EQ(fast.back(), 255);
}
}  // namespace

TEST(Scale, To8uFastAndAccurate)
{
    std::vector<Pxl16s> s16;
    for (int v = -32768; v <= 32767; ++v) s16.push_back(static_cast<Pxl16s>(v));
    expectTo8u<Pxl16s>(pxliScale_16s8u_C1R, -32768, 65535, s16);
    std::vector<Pxl16u> u16;
    for (int v = 0; v <= 65535; ++v) u16.push_back(static_cast<Pxl16u>(v));
    expectTo8u<Pxl16u>(pxliScale_16u8u_C1R, 0, 65535, u16);
    std::vector<Pxl32s> s32;
    Rng rng(55);
    for (int i = 0; i < 20000; ++i) s32.push_back(static_cast<Pxl32s>(rng.bits()));
    for (int64_t k = 0; k <= 255; ++k)  // each step of the mapping and its neighbours
        for (int64_t d : {-1, 0, 1}) s32.push_back(static_cast<Pxl32s>(std::clamp<int64_t>(k * 16843009 - 2147483648LL + d, INT32_MIN, INT32_MAX)));
    s32.push_back(INT32_MIN);
    s32.push_back(INT32_MAX);
    std::sort(s32.begin(), s32.end());
    expectTo8u<Pxl32s>(pxliScale_32s8u_C1R, INT32_MIN, 4294967295LL, s32);
    // The other layouts give the one-channel result per sample; AC4 keeps alpha.
    expectLayouts<Pxl16s, Pxl8u>(
        "Scale_16s8u", [](auto... a) { return pxliScale_16s8u_C1R(a..., 2); }, [](auto... a) { return pxliScale_16s8u_C3R(a..., 2); },
        [](auto... a) { return pxliScale_16s8u_C4R(a..., 2); }, [](auto... a) { return pxliScale_16s8u_AC4R(a..., 2); },
        [](Pxl16s x) { return static_cast<Pxl8u>((2 * (int64_t{x} + 32768) * 255 + 65535) / (2 * 65535)); }, rng);
}

TEST(Scale, From32fClampsAndRoundsTiesToEven)
{
    Rng rng(56);
    for (const auto& range : {std::pair{0.0f, 255.0f}, {-1.0f, 1.0f}, {10.0f, 20.5f}}) {
        const float lo = range.first, hi = range.second;
        const float factor = 255.0f / (hi - lo);
        const float term = -lo * factor;
        auto ref = [=](Pxl32f x) -> Pxl8u {
            if (x >= hi) return 255;
            if (x <= lo || std::isnan(x)) return 0;
            const long double v = static_cast<long double>(x) * factor + (static_cast<long double>(term) + 0.5L);
            long double n = std::floor(v);
            if (n == v && std::fmod(n, 2.0L) != 0) n -= 1;  // an exact tie goes to even
            return static_cast<Pxl8u>(n);
        };
        expectLayouts<Pxl32f, Pxl8u>(
            "Scale_32f8u", [=](auto... a) { return pxliScale_32f8u_C1R(a..., lo, hi); }, [=](auto... a) { return pxliScale_32f8u_C3R(a..., lo, hi); },
            [=](auto... a) { return pxliScale_32f8u_C4R(a..., lo, hi); }, [=](auto... a) { return pxliScale_32f8u_AC4R(a..., lo, hi); }, ref, rng);
    }
    // With 0..255 the mapping is the identity with ties to even.
    const Pxl32f xs[4] = {0.5f, 1.5f, 2.5f, 254.5f};
    Pxl8u d[4];
    ASSERT_EQ(pxliScale_32f8u_C1R(xs, 16, d, 4, {4, 1}, 0.0f, 255.0f), pxlStatusOk);
    EXPECT_EQ(d[0], 0);
    EXPECT_EQ(d[1], 2);
    EXPECT_EQ(d[2], 2);
    EXPECT_EQ(d[3], 254);
}

namespace {
// Multiplying by one and adding nothing within the type is a copy: the bits stay, -0 included.
template <class D> D scaleCRef(long double x, double m, double a, bool sameType)
{
    if (sameType && m == 1.0 && a == 0.0) return static_cast<D>(x);
    const double v = static_cast<double>(x) * m + a;  // two roundings in double, as the rule computes
    if constexpr (std::is_same_v<D, Pxl64f>) return v;
    else if constexpr (std::is_same_v<D, Pxl32f>) return static_cast<Pxl32f>(std::clamp<double>(v, -FLT_MAX, FLT_MAX));
    else return toIntRef<D>(v, 1);
}
}  // namespace

#define PXLT_SCALEC(S, D, s, d)                                                                                     \
    for (auto [m, a] : {std::pair{1.0, 0.0}, {0.5, 0.25}, {-3.0, 1e3}, {1e-3, -7.5}, {2.0, 0.5}})                  \
        expectConversion<S, D>(                                                                                     \
            "ScaleC_" #s #d, 1, 1, [m = m, a = a](const S* x, int xs, D* y, int ys, PxliSize r) {                  \
                return pxliScaleC_##s##d##_C1R(x, xs, m, a, y, ys, r, 0);                                           \
            },                                                                                                      \
            [m = m, a = a](S x) { return scaleCRef<D>(static_cast<long double>(x), m, a, std::is_same_v<S, D>); }, rng)
TEST(ScaleC, EveryPairMultipliesAddsSaturatesAndRounds)
{
    Rng rng(57);
    PXLT_SCALEC(Pxl8u, Pxl8s, 8u, 8s); PXLT_SCALEC(Pxl8u, Pxl16u, 8u, 16u); PXLT_SCALEC(Pxl8u, Pxl16s, 8u, 16s);
    PXLT_SCALEC(Pxl8u, Pxl32s, 8u, 32s); PXLT_SCALEC(Pxl8u, Pxl32f, 8u, 32f); PXLT_SCALEC(Pxl8u, Pxl64f, 8u, 64f);
    PXLT_SCALEC(Pxl8s, Pxl8u, 8s, 8u); PXLT_SCALEC(Pxl8s, Pxl16u, 8s, 16u); PXLT_SCALEC(Pxl8s, Pxl16s, 8s, 16s);
    PXLT_SCALEC(Pxl8s, Pxl32s, 8s, 32s); PXLT_SCALEC(Pxl8s, Pxl32f, 8s, 32f); PXLT_SCALEC(Pxl8s, Pxl64f, 8s, 64f);
    PXLT_SCALEC(Pxl16u, Pxl8u, 16u, 8u); PXLT_SCALEC(Pxl16u, Pxl8s, 16u, 8s); PXLT_SCALEC(Pxl16u, Pxl16s, 16u, 16s);
    PXLT_SCALEC(Pxl16u, Pxl32s, 16u, 32s); PXLT_SCALEC(Pxl16u, Pxl32f, 16u, 32f); PXLT_SCALEC(Pxl16u, Pxl64f, 16u, 64f);
    PXLT_SCALEC(Pxl16s, Pxl8u, 16s, 8u); PXLT_SCALEC(Pxl16s, Pxl8s, 16s, 8s); PXLT_SCALEC(Pxl16s, Pxl16u, 16s, 16u);
    PXLT_SCALEC(Pxl16s, Pxl32s, 16s, 32s); PXLT_SCALEC(Pxl16s, Pxl32f, 16s, 32f); PXLT_SCALEC(Pxl16s, Pxl64f, 16s, 64f);
    PXLT_SCALEC(Pxl32s, Pxl8u, 32s, 8u); PXLT_SCALEC(Pxl32s, Pxl8s, 32s, 8s); PXLT_SCALEC(Pxl32s, Pxl16u, 32s, 16u);
    PXLT_SCALEC(Pxl32s, Pxl16s, 32s, 16s); PXLT_SCALEC(Pxl32s, Pxl32f, 32s, 32f); PXLT_SCALEC(Pxl32s, Pxl64f, 32s, 64f);
    PXLT_SCALEC(Pxl32f, Pxl8u, 32f, 8u); PXLT_SCALEC(Pxl32f, Pxl8s, 32f, 8s); PXLT_SCALEC(Pxl32f, Pxl16u, 32f, 16u);
    PXLT_SCALEC(Pxl32f, Pxl16s, 32f, 16s); PXLT_SCALEC(Pxl32f, Pxl32s, 32f, 32s); PXLT_SCALEC(Pxl32f, Pxl64f, 32f, 64f);
    PXLT_SCALEC(Pxl64f, Pxl8u, 64f, 8u); PXLT_SCALEC(Pxl64f, Pxl8s, 64f, 8s); PXLT_SCALEC(Pxl64f, Pxl16u, 64f, 16u);
    PXLT_SCALEC(Pxl64f, Pxl16s, 64f, 16s); PXLT_SCALEC(Pxl64f, Pxl32s, 64f, 32s); PXLT_SCALEC(Pxl64f, Pxl32f, 64f, 32f);
    // Same type, out of place and in place.
    PXLT_SCALEC(Pxl8u, Pxl8u, 8u, ); PXLT_SCALEC(Pxl8s, Pxl8s, 8s, ); PXLT_SCALEC(Pxl16u, Pxl16u, 16u, );
    PXLT_SCALEC(Pxl16s, Pxl16s, 16s, ); PXLT_SCALEC(Pxl32s, Pxl32s, 32s, ); PXLT_SCALEC(Pxl32f, Pxl32f, 32f, );
    PXLT_SCALEC(Pxl64f, Pxl64f, 64f, );
    GuardedImage<Pxl16s> img(11, 3), ref(11, 3);
    img.fillRandom(rng);
    ASSERT_EQ(pxliScaleC_16s_C1R(img.data(), img.step(), -0.75, 3.0, ref.data(), ref.step(), {11, 3}, 0), pxlStatusOk);
    ASSERT_EQ(pxliScaleC_16s_C1IR(-0.75, 3.0, img.data(), img.step(), {11, 3}, 2), pxlStatusOk);
    EXPECT_TRUE(regionsEqual(img, ref));
}

TEST(Convert, OrderOfChecks)
{
    GuardedImage<Pxl8u> s8(6, 4, 4);
    GuardedImage<Pxl32f> f32(6, 4, 4);
    GuardedImage<Pxl16s> s16(6, 4, 4);
    struct A { const Pxl8u* s; Pxl32f* d; int srcStep; PxliSize roi; };
    const A valid{s8.data(), f32.data(), s8.step(), {6, 4}};
    const Fault<A> nullSrc{"null source", pxlStatusNullPointer, [](A& a) { a.s = nullptr; }};
    const Fault<A> nullDst{"null destination", pxlStatusNullPointer, [](A& a) { a.d = nullptr; }};
    const Fault<A> height0{"height 0", pxlStatusBadSize, [](A& a) { a.roi.height = 0; }};
    const Fault<A> width0{"width 0", pxlStatusBadSize, [](A& a) { a.roi.width = 0; }};
    const Fault<A> step0{"step 0", pxlStatusBadStep, [](A& a) { a.srcStep = 0; }};
    // C1 and AC4: pointers, sizes, steps; C3 and C4: the width first.
    expectCheckOrder(valid, {nullSrc, nullDst, height0, step0},
                     [&](const A& a) { return pxliConvert_8u32f_C1R(a.s, a.srcStep, a.d, f32.step(), a.roi); }, {&f32});
    expectCheckOrder(valid, {nullSrc, nullDst, width0, step0},
                     [&](const A& a) { return pxliConvert_8u32f_AC4R(a.s, a.srcStep, a.d, f32.step(), a.roi); }, {&f32});
    expectCheckOrder(valid, {width0, nullSrc, nullDst, height0, step0},
                     [&](const A& a) { return pxliConvert_8u32f_C3R(a.s, a.srcStep, a.d, f32.step(), a.roi); }, {&f32});
    // Scale 8u32f: the range before anything else; 32f8u: the range after the steps.
    Pxl8u d8[4];
    EXPECT_EQ(pxliScale_32f8u_C1R(f32.data(), 0, d8, 4, {1, 1}, 1.0f, 1.0f), pxlStatusBadStep);
    EXPECT_EQ(pxliScale_32f8u_C1R(f32.data(), 4, d8, 4, {1, 1}, 1.0f, 1.0f), pxlStatusBadScaleRange);
    EXPECT_EQ(pxliScale_8u32f_C1R(nullptr, 0, nullptr, 0, {0, 0}, 2.0f, 1.0f), pxlStatusBadScaleRange);
    // The 32s-source scaled forms do not check steps: a zero step reads one row for all.
    Pxl32s row[3] = {5, -70000, 9};
    Pxl16s out[6];
    ASSERT_EQ(pxliConvert_32s16s_C1RSfs(row, 0, out, 6, {3, 2}, 1, 1), pxlStatusOk);
    EXPECT_EQ(out[3], 2);
    EXPECT_EQ(out[4], -32768);
    EXPECT_EQ(pxliConvert_16u16s_C1RSfs(nullptr, 0, out, 6, {3, 2}, 1, 1), pxlStatusNullPointer);
    EXPECT_EQ(pxliConvert_16s8s_C1RSfs(s16.data(), 0, reinterpret_cast<Pxl8s*>(d8), 4, {1, 1}, 1, 1), pxlStatusBadStep);
    // ScaleC: the copy shortcut makes the copy's checks (no steps); others check steps.
    EXPECT_EQ(pxliScaleC_8u_C1R(s8.data(), 0, 1.0, 0.0, s8.data() + 64, 0, {4, 1}, 0), pxlStatusOk);
    EXPECT_EQ(pxliScaleC_8u_C1R(s8.data(), 0, 2.0, 0.0, s8.data() + 64, 0, {4, 1}, 0), pxlStatusBadStep);
    EXPECT_EQ(pxliScaleC_8u16s_C1R(nullptr, 4, 1.0, 0.0, s16.data(), s16.step(), {0, 1}, 0), pxlStatusNullPointer);
}

// The caller's rounding mode neither changes a result nor is changed by the call.
TEST(Convert, ResultsDoNotDependOnTheCallersRoundingMode)
{
    Rng rng(58);
    GuardedImage<Pxl32f> src(67, 5);
    src.fillRandom(rng, 0.3);
    for (int i = 0; i < 40; ++i) src.at(i, 0) = static_cast<float>(i - 20) * 0.5f;  // ties
    auto run = [&](std::vector<Pxl8u>& a, std::vector<Pxl16s>& b, std::vector<Pxl8u>& c, std::vector<Pxl32s>& e) {
        a.assign(67 * 5, 0);
        b.assign(67 * 5, 0);
        c.assign(67 * 5, 0);
        e.assign(67 * 5, 0);
        for (int code : {0, 1, 2}) {
            ASSERT_EQ(pxliConvert_32f8u_C1R(src.data(), src.step(), a.data(), 67, {67, 5}, code), pxlStatusOk);
            ASSERT_EQ(pxliConvert_32f16s_C1RSfs(src.data(), src.step(), b.data(), 134, {67, 5}, code, -2), pxlStatusOk);
        }
        ASSERT_EQ(pxliScaleC_32f8u_C1R(src.data(), src.step(), 0.5, 100.25, c.data(), 67, {67, 5}, 0), pxlStatusOk);
        ASSERT_EQ(pxliScaleC_32f32s_C1R(src.data(), src.step(), 3.0, 0.5, e.data(), 268, {67, 5}, 0), pxlStatusOk);
    };
    std::vector<Pxl8u> a0, c0, a1, c1;
    std::vector<Pxl16s> b0, b1;
    std::vector<Pxl32s> e0, e1;
    run(a0, b0, c0, e0);
    for (int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        ASSERT_EQ(std::fesetround(mode), 0);
        run(a1, b1, c1, e1);
        EXPECT_EQ(std::fegetround(), mode);
        std::fesetround(FE_TONEAREST);
        EXPECT_EQ(a1, a0);
        EXPECT_EQ(b1, b0);
        EXPECT_EQ(c1, c0);
        EXPECT_EQ(e1, e0);
    }
}
