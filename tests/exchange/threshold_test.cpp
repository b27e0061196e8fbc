// Thresholds and comparisons against reference models written from the rules, over random
// samples with each type's extremes and values equal to the thresholds, every layout in and out
// of place, NaN for 32f, and the orders of checks.
#include "pxltest.hpp"

#include <array>

using namespace pxltest;

namespace {

// Puts some samples exactly on the thresholds, where the strict comparisons matter.
template <class T> void seedEqualities(GuardedImage<T>& img, const T* t, int channels, Rng& rng)
{
    for (int i = 0; i < 6; ++i) {
        const int c = rng.uniformInt(0, channels - 1);
        img.at(rng.uniformInt(0, img.width() - 1), rng.uniformInt(0, img.height() - 1), c) = t[c];
    }
}

struct LayoutInfo {
    const char* name;
    int mem, proc;
};
const LayoutInfo kC1{"C1", 1, 1}, kC3{"C3", 3, 3}, kC4{"C4", 4, 4}, kAC4{"AC4", 4, 3};

// Runs a threshold form out of place or in place on a random image and compares every sample
// with want(x, channel); the fourth sample of AC4 must stay.
template <class T, class Call, class Want>
::testing::AssertionResult checkThreshold(const LayoutInfo& L, bool inPlace, const T* thresholds, Call call, Want want, Rng& rng)
{
    const int w = rng.uniformInt(1, 11), h = rng.uniformInt(1, 3);
    auto src = randomImage<T>(w, h, L.mem, rng, 0.3);
    seedEqualities(src, thresholds, L.proc, rng);
    auto dst = inPlace ? src : randomImage<T>(w, h, L.mem, rng, 0.3);
    const auto before = dst;
    const PxlStatus st = inPlace ? call(dst.data(), dst.step(), dst.data(), dst.step(), PxliSize{w, h}, true)
                                 : call(src.data(), src.step(), dst.data(), dst.step(), PxliSize{w, h}, false);
    if (st != pxlStatusOk) return ::testing::AssertionFailure() << L.name << " status " << st;
    if (!dst.guardsIntact()) return ::testing::AssertionFailure() << L.name << " wrote outside the region";
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < L.mem; ++c) {
                const T got = dst.at(x, y, c), ref = c < L.proc ? want(src.at(x, y, c), c) : before.at(x, y, c);
                if (!sameBits(got, ref) && !(got != got && ref != ref))
                    return ::testing::AssertionFailure() << L.name << (inPlace ? " in place" : "") << " at " << x << "," << y << "," << c
                                                         << ": " << +src.at(x, y, c) << " gave " << +got << ", want " << +ref;
            }
    return ::testing::AssertionSuccess();
}

template <class T> class Threshold : public ::testing::Test {};
using SampleTypes = ::testing::Types<Pxl8u, Pxl16u, Pxl16s, Pxl32f>;
TYPED_TEST_SUITE(Threshold, SampleTypes);

template <class T> struct ThresholdApi;
#define PXLT_THRESHOLD_API(T, t)                                                                                                \
    template <> struct ThresholdApi<T> {                                                                                        \
        static PxlStatus thr(int L, const T* s, int ss, T* d, int ds, PxliSize r, bool ip, const T* th, PxlCmpOp cmp)            \
        {                                                                                                                       \
            if (L == 0) return ip ? pxliThreshold_##t##_C1IR(d, ds, r, th[0], cmp) : pxliThreshold_##t##_C1R(s, ss, d, ds, r, th[0], cmp); \
            if (L == 1) return ip ? pxliThreshold_##t##_C3IR(d, ds, r, th, cmp) : pxliThreshold_##t##_C3R(s, ss, d, ds, r, th, cmp); \
            return ip ? pxliThreshold_##t##_AC4IR(d, ds, r, th, cmp) : pxliThreshold_##t##_AC4R(s, ss, d, ds, r, th, cmp);        \
        }                                                                                                                       \
        static PxlStatus side(bool gt, int L, const T* s, int ss, T* d, int ds, PxliSize r, bool ip, const T* th)                \
        {                                                                                                                       \
            if (gt) {                                                                                                           \
                if (L == 0) return ip ? pxliThreshold_GT_##t##_C1IR(d, ds, r, th[0]) : pxliThreshold_GT_##t##_C1R(s, ss, d, ds, r, th[0]); \
                if (L == 1) return ip ? pxliThreshold_GT_##t##_C3IR(d, ds, r, th) : pxliThreshold_GT_##t##_C3R(s, ss, d, ds, r, th); \
                return ip ? pxliThreshold_GT_##t##_AC4IR(d, ds, r, th) : pxliThreshold_GT_##t##_AC4R(s, ss, d, ds, r, th);       \
            }                                                                                                                   \
            if (L == 0) return ip ? pxliThreshold_LT_##t##_C1IR(d, ds, r, th[0]) : pxliThreshold_LT_##t##_C1R(s, ss, d, ds, r, th[0]); \
            if (L == 1) return ip ? pxliThreshold_LT_##t##_C3IR(d, ds, r, th) : pxliThreshold_LT_##t##_C3R(s, ss, d, ds, r, th);  \
            return ip ? pxliThreshold_LT_##t##_AC4IR(d, ds, r, th) : pxliThreshold_LT_##t##_AC4R(s, ss, d, ds, r, th);           \
        }                                                                                                                       \
        static PxlStatus val(int L, const T* s, int ss, T* d, int ds, PxliSize r, bool ip, const T* th, const T* va, PxlCmpOp cmp) \
        {                                                                                                                       \
            if (L == 0) return ip ? pxliThreshold_Val_##t##_C1IR(d, ds, r, th[0], va[0], cmp) : pxliThreshold_Val_##t##_C1R(s, ss, d, ds, r, th[0], va[0], cmp); \
            if (L == 1) return ip ? pxliThreshold_Val_##t##_C3IR(d, ds, r, th, va, cmp) : pxliThreshold_Val_##t##_C3R(s, ss, d, ds, r, th, va, cmp); \
            return ip ? pxliThreshold_Val_##t##_AC4IR(d, ds, r, th, va, cmp) : pxliThreshold_Val_##t##_AC4R(s, ss, d, ds, r, th, va, cmp); \
        }                                                                                                                       \
        static PxlStatus sideVal(bool gt, int L, const T* s, int ss, T* d, int ds, PxliSize r, bool ip, const T* th, const T* va) \
        {                                                                                                                       \
            if (gt) {                                                                                                           \
                if (L == 0) return ip ? pxliThreshold_GTVal_##t##_C1IR(d, ds, r, th[0], va[0]) : pxliThreshold_GTVal_##t##_C1R(s, ss, d, ds, r, th[0], va[0]); \
                if (L == 1) return ip ? pxliThreshold_GTVal_##t##_C3IR(d, ds, r, th, va) : pxliThreshold_GTVal_##t##_C3R(s, ss, d, ds, r, th, va); \
                if (L == 2) return ip ? pxliThreshold_GTVal_##t##_C4IR(d, ds, r, th, va) : pxliThreshold_GTVal_##t##_C4R(s, ss, d, ds, r, th, va); \
                return ip ? pxliThreshold_GTVal_##t##_AC4IR(d, ds, r, th, va) : pxliThreshold_GTVal_##t##_AC4R(s, ss, d, ds, r, th, va); \
            }                                                                                                                   \
            if (L == 0) return ip ? pxliThreshold_LTVal_##t##_C1IR(d, ds, r, th[0], va[0]) : pxliThreshold_LTVal_##t##_C1R(s, ss, d, ds, r, th[0], va[0]); \
            if (L == 1) return ip ? pxliThreshold_LTVal_##t##_C3IR(d, ds, r, th, va) : pxliThreshold_LTVal_##t##_C3R(s, ss, d, ds, r, th, va); \
            if (L == 2) return ip ? pxliThreshold_LTVal_##t##_C4IR(d, ds, r, th, va) : pxliThreshold_LTVal_##t##_C4R(s, ss, d, ds, r, th, va); \
            return ip ? pxliThreshold_LTVal_##t##_AC4IR(d, ds, r, th, va) : pxliThreshold_LTVal_##t##_AC4R(s, ss, d, ds, r, th, va); \
        }                                                                                                                       \
        static PxlStatus both(int L, const T* s, int ss, T* d, int ds, PxliSize r, bool ip, const T* lt, const T* lv, const T* gt, const T* gv) \
        {                                                                                                                       \
            if (L == 0) return ip ? pxliThreshold_LTValGTVal_##t##_C1IR(d, ds, r, lt[0], lv[0], gt[0], gv[0]) : pxliThreshold_LTValGTVal_##t##_C1R(s, ss, d, ds, r, lt[0], lv[0], gt[0], gv[0]); \
            if (L == 1) return ip ? pxliThreshold_LTValGTVal_##t##_C3IR(d, ds, r, lt, lv, gt, gv) : pxliThreshold_LTValGTVal_##t##_C3R(s, ss, d, ds, r, lt, lv, gt, gv); \
            return ip ? pxliThreshold_LTValGTVal_##t##_AC4IR(d, ds, r, lt, lv, gt, gv) : pxliThreshold_LTValGTVal_##t##_AC4R(s, ss, d, ds, r, lt, lv, gt, gv); \
        }                                                                                                                       \
    };
PXLT_THRESHOLD_API(Pxl8u, 8u)
PXLT_THRESHOLD_API(Pxl16u, 16u)
PXLT_THRESHOLD_API(Pxl16s, 16s)
PXLT_THRESHOLD_API(Pxl32f, 32f)

}  // namespace

TYPED_TEST(Threshold, EveryFormReplacesOnlyStrictlyBeyondTheLimit)
{
    using T = TypeParam;
    using A = ThresholdApi<T>;
    Rng rng(71);
    const LayoutInfo layouts3[3] = {kC1, kC3, kAC4};
    const LayoutInfo layouts4[4] = {kC1, kC3, kC4, kAC4};
    for (int trial = 0; trial < 30; ++trial)
        for (bool ip : {false, true}) {
            T t[4], v[4], t2[4], v2[4];
            for (int c = 0; c < 4; ++c) {
                t[c] = rng.sample<T>(0.2), v[c] = rng.sample<T>(0.2), t2[c] = rng.sample<T>(0.2), v2[c] = rng.sample<T>(0.2);
                if (t2[c] < t[c]) std::swap(t[c], t2[c]);
                if (!(t2[c] >= t[c])) t2[c] = t[c];  // NaN thresholds: make the pair ordered
            }
            for (int li = 0; li < 3; ++li) {
                const LayoutInfo& L = layouts3[li];
                for (PxlCmpOp cmp : {pxlCmpLess, pxlCmpGreater}) {
                    const bool gt = cmp == pxlCmpGreater;
                    auto sideRef = [&](const T* lim, const T* val) {
                        return [=](T x, int c) { return gt ? (x > lim[c] ? val[c] : x) : (x < lim[c] ? val[c] : x); };
                    };
                    ASSERT_TRUE(checkThreshold<T>(L, ip, t, [&](auto... a) { return A::thr(li, a..., t, cmp); }, sideRef(t, t), rng));
                    ASSERT_TRUE(checkThreshold<T>(L, ip, t, [&](auto... a) { return A::side(gt, li, a..., t); }, sideRef(t, t), rng));
                    ASSERT_TRUE(checkThreshold<T>(L, ip, t, [&](auto... a) { return A::val(li, a..., t, v, cmp); }, sideRef(t, v), rng));
                }
                ASSERT_TRUE(checkThreshold<T>(L, ip, t, [&](auto... a) { return A::both(li, a..., t, v, t2, v2); },
                                              [&](T x, int c) { return x > t2[c] ? v2[c] : x < t[c] ? v[c] : x; }, rng));
            }
            for (int li = 0; li < 4; ++li)
                for (bool gt : {false, true})
                    ASSERT_TRUE(checkThreshold<T>(layouts4[li], ip, t, [&](auto... a) { return A::sideVal(gt, li, a..., t, v); },
                                                  [&](T x, int c) { return gt ? (x > t[c] ? v[c] : x) : (x < t[c] ? v[c] : x); }, rng));
        }
}

TEST(Threshold, WorkedExamplesAndChecks)
{
    Pxl8u x = 100, d = 0;
    ASSERT_EQ(pxliThreshold_GTVal_8u_C1R(&x, 1, &d, 1, {1, 1}, 100, 7), pxlStatusOk);
    EXPECT_EQ(d, 100);  // equal to the threshold: kept
    // An unsupported comparison before anything else, even with a null image.
    EXPECT_EQ(pxliThreshold_8u_C1R(nullptr, 0, nullptr, 0, {0, 0}, 5, pxlCmpEq), pxlStatusUnsupportedMode);
    EXPECT_EQ(pxliThreshold_Val_16s_C1IR(nullptr, 0, {0, 0}, 5, 1, 7), pxlStatusUnsupportedMode);
    // LTValGTVal: an upper threshold below the lower one, after the other checks.
    EXPECT_EQ(pxliThreshold_LTValGTVal_8u_C1R(&x, 1, &d, 1, {1, 1}, 10, 0, 5, 255), pxlStatusBadThresholds);
    EXPECT_EQ(pxliThreshold_LTValGTVal_8u_C1R(&x, 0, &d, 1, {1, 1}, 10, 0, 5, 255), pxlStatusBadStep);
    const Pxl8u row[3] = {49, 50, 51};
    Pxl8u out[3];
    ASSERT_EQ(pxliThreshold_LTValGTVal_8u_C1R(row, 3, out, 3, {3, 1}, 50, 0, 50, 255), pxlStatusOk);
    EXPECT_EQ(out[0], 0);
    EXPECT_EQ(out[1], 50);
    EXPECT_EQ(out[2], 255);
    // Pointers, sizes, steps.
    GuardedImage<Pxl16u> img(4, 4);
    struct A { Pxl16u* p; int step; PxliSize roi; };
    expectCheckOrder(A{img.data(), img.step(), img.size()},
                     {{"null image", pxlStatusNullPointer, [](A& a) { a.p = nullptr; }},
                      {"width 0", pxlStatusBadSize, [](A& a) { a.roi.width = 0; }},
                      {"step 0", pxlStatusBadStep, [](A& a) { a.step = 0; }}},
                     [](const A& a) { return pxliThreshold_GT_16u_C1IR(a.p, a.step, a.roi, 9); }, {&img});
    const Pxl16u t3[3] = {1, 2, 3};
    EXPECT_EQ(pxliThreshold_LTVal_16u_C3R(img.data(), img.step(), img.data(), img.step(), {1, 1}, t3, nullptr), pxlStatusNullPointer);
    // NaN samples are never replaced, and a NaN threshold replaces nothing.
    const float nan = std::numeric_limits<float>::quiet_NaN();
    float f[2] = {nan, 5.0f}, g[2];
    ASSERT_EQ(pxliThreshold_GTVal_32f_C1R(f, 8, g, 8, {2, 1}, 1.0f, 0.0f), pxlStatusOk);
    EXPECT_TRUE(std::isnan(g[0]));
    EXPECT_EQ(g[1], 0.0f);
    ASSERT_EQ(pxliThreshold_LTVal_32f_C1R(f, 8, g, 8, {2, 1}, nan, 0.0f), pxlStatusOk);
    EXPECT_EQ(g[1], 5.0f);
}

// ---- Compare -----------------------------------------------------------------------------------

namespace {
template <class T> bool holds(int code, T a, T b)
{
    switch (code) {
    case 0: return a < b;
    case 1: return a <= b;
    case 2: return a == b;
    case 3: return a >= b;
    default: return a > b;
    }
}

template <class T> class Compare : public ::testing::Test {};
TYPED_TEST_SUITE(Compare, SampleTypes);

template <class T> struct CompareApi;
#define PXLT_COMPARE_API(T, t)                                                                                                  \
    template <> struct CompareApi<T> {                                                                                          \
        static constexpr decltype(&pxliCompare_##t##_C1R) images[4] = {pxliCompare_##t##_C1R, pxliCompare_##t##_C3R,             \
                                                                         pxliCompare_##t##_C4R, pxliCompare_##t##_AC4R};         \
        static PxlStatus constant(int L, const T* s, int ss, const T* v, Pxl8u* d, int ds, PxliSize r, PxlCmpOp cmp)              \
        {                                                                                                                       \
            if (L == 0) return pxliCompareC_##t##_C1R(s, ss, v[0], d, ds, r, cmp);                                               \
            if (L == 1) return pxliCompareC_##t##_C3R(s, ss, v, d, ds, r, cmp);                                                  \
            if (L == 2) return pxliCompareC_##t##_C4R(s, ss, v, d, ds, r, cmp);                                                  \
            return pxliCompareC_##t##_AC4R(s, ss, v, d, ds, r, cmp);                                                             \
        }                                                                                                                       \
    };
PXLT_COMPARE_API(Pxl8u, 8u)
PXLT_COMPARE_API(Pxl16u, 16u)
PXLT_COMPARE_API(Pxl16s, 16s)
PXLT_COMPARE_API(Pxl32f, 32f)
}  // namespace

TYPED_TEST(Compare, MaskIs255WhereTheRelationHoldsInEveryChannel)
{
    using T = TypeParam;
    using A = CompareApi<T>;
    Rng rng(72);
    const LayoutInfo layouts[4] = {kC1, kC3, kC4, kAC4};
    for (int trial = 0; trial < 20; ++trial)
        for (int li = 0; li < 4; ++li)
            for (int code = 0; code <= 4; ++code) {
                const LayoutInfo& L = layouts[li];
                const int w = rng.uniformInt(1, 13), h = rng.uniformInt(1, 3);
                auto a = randomImage<T>(w, h, L.mem, rng, 0.3);
                auto b = randomImage<T>(w, h, L.mem, rng, 0.3);
                for (int i = 0; i < 8; ++i) {  // equal samples, and pixels equal in every channel
                    const int x = rng.uniformInt(0, w - 1), y = rng.uniformInt(0, h - 1);
                    for (int c = 0; c < L.mem; ++c)
                        if (i % 2 || c == 0) b.at(x, y, c) = a.at(x, y, c);
                }
                T v[4];
                for (T& x : v) x = rng.sample<T>(0.3);
                GuardedImage<Pxl8u> m(w, h), mc(w, h);
                ASSERT_EQ(A::images[li](a.data(), a.step(), b.data(), b.step(), m.data(), m.step(), {w, h}, code), pxlStatusOk);
                ASSERT_EQ(A::constant(li, a.data(), a.step(), v, mc.data(), mc.step(), {w, h}, code), pxlStatusOk);
                ASSERT_TRUE(m.guardsIntact() && mc.guardsIntact());
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x) {
                        bool all = true, allC = true;
                        for (int c = 0; c < L.proc; ++c) {
                            all = all && holds(code, a.at(x, y, c), b.at(x, y, c));
                            allC = allC && holds(code, a.at(x, y, c), v[c]);
                        }
                        ASSERT_EQ(m.at(x, y), all ? 255 : 0) << L.name << " code " << code << " at " << x << "," << y;
                        ASSERT_EQ(mc.at(x, y), allC ? 255 : 0) << L.name << " code " << code << " at " << x << "," << y;
                    }
            }
}

TEST(Compare, UnknownCodesWriteNothingAndChecksComeFirst)
{
    GuardedImage<Pxl8u> a(5, 3, 3), m(5, 3);
    Rng rng(73);
    a.fillRandom(rng);
    Watch w({&m});
    for (PxlCmpOp code : {5, -1, 100}) EXPECT_EQ(pxliCompare_8u_C3R(a.data(), a.step(), a.data(), a.step(), m.data(), m.step(), {5, 3}, code), pxlStatusOk);
    EXPECT_TRUE(w.unchanged());
    EXPECT_EQ(pxliCompare_8u_C1R(a.data(), 0, a.data(), a.step(), m.data(), m.step(), {5, 3}, 5), pxlStatusBadStep);
    struct A { const Pxl8u* s; Pxl8u* d; int step; PxliSize roi; };
    expectCheckOrder(A{a.data(), m.data(), m.step(), {5, 3}},
                     {{"null source", pxlStatusNullPointer, [](A& x) { x.s = nullptr; }},
                      {"null mask", pxlStatusNullPointer, [](A& x) { x.d = nullptr; }},
                      {"step 0", pxlStatusBadStep, [](A& x) { x.step = 0; }},
                      {"width 0", pxlStatusBadSize, [](A& x) { x.roi.width = 0; }}},
                     [&](const A& x) { return pxliCompareC_8u_C1R(x.s, a.step(), 7, x.d, x.step, x.roi, pxlCmpEq); }, {&m});
    // NaN compares false under every code.
    const float f[2] = {std::numeric_limits<float>::quiet_NaN(), 1.0f};
    Pxl8u r[2];
    for (int code = 0; code <= 4; ++code) {
        ASSERT_EQ(pxliCompare_32f_C1R(f, 8, f, 8, r, 2, {2, 1}, code), pxlStatusOk);
        EXPECT_EQ(r[0], 0);
        EXPECT_EQ(r[1], code == 1 || code == 2 || code == 3 ? 255 : 0);
    }
}

TEST(CompareEqualEps, WithinTheToleranceInEveryChannel)
{
    Rng rng(74);
    const LayoutInfo layouts[4] = {kC1, kC3, kC4, kAC4};
    using Fn = PxlStatus (*)(const Pxl32f*, int, const Pxl32f*, int, Pxl8u*, int, PxliSize, Pxl32f);
    const Fn images[4] = {pxliCompareEqualEps_32f_C1R, pxliCompareEqualEps_32f_C3R, pxliCompareEqualEps_32f_C4R, pxliCompareEqualEps_32f_AC4R};
    for (int trial = 0; trial < 40; ++trial)
        for (int li = 0; li < 4; ++li) {
            const LayoutInfo& L = layouts[li];
            const int w = rng.uniformInt(1, 9), h = rng.uniformInt(1, 3);
            auto a = randomImage<Pxl32f>(w, h, L.mem, rng, 0.3);
            auto b = a;
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    for (int c = 0; c < L.mem; ++c)
                        b.at(x, y, c) = rng.chance(0.5) ? a.at(x, y, c) + static_cast<float>(rng.uniformInt(-4, 4)) * 0.25f : rng.sample<Pxl32f>();
            const float eps = trial % 3 == 0 ? 0.0f : 0.5f;
            const float v[4] = {a.at(0, 0, 0), 1.0f, -2.0f, 0.5f};
            GuardedImage<Pxl8u> m(w, h), mc(w, h);
            ASSERT_EQ(images[li](a.data(), a.step(), b.data(), b.step(), m.data(), m.step(), {w, h}, eps), pxlStatusOk);
            PxlStatus st;
            if (li == 0) st = pxliCompareEqualEpsC_32f_C1R(a.data(), a.step(), v[0], mc.data(), mc.step(), {w, h}, eps);
            else if (li == 1) st = pxliCompareEqualEpsC_32f_C3R(a.data(), a.step(), v, mc.data(), mc.step(), {w, h}, eps);
            else if (li == 2) st = pxliCompareEqualEpsC_32f_C4R(a.data(), a.step(), v, mc.data(), mc.step(), {w, h}, eps);
            else st = pxliCompareEqualEpsC_32f_AC4R(a.data(), a.step(), v, mc.data(), mc.step(), {w, h}, eps);
            ASSERT_EQ(st, pxlStatusOk);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) {
                    bool all = true, allC = true;
                    for (int c = 0; c < L.proc; ++c) {
                        const long double d = std::fabs(static_cast<long double>(a.at(x, y, c)) - b.at(x, y, c));
                        const long double dc = std::fabs(static_cast<long double>(a.at(x, y, c)) - v[c]);
                        all = all && d <= eps;
                        allC = allC && dc <= eps;
                    }
                    ASSERT_EQ(m.at(x, y), all ? 255 : 0) << L.name << " eps " << eps;
                    ASSERT_EQ(mc.at(x, y), allC ? 255 : 0) << L.name << " eps " << eps;
                }
        }
    // The difference is not rounded to float first: 2^24 - 0.75 would round to 2^24 - 1 = eps.
    const float big = 16777216.0f, small = 0.75f, one = 1.0f;
    Pxl8u r = 77;
    ASSERT_EQ(pxliCompareEqualEps_32f_C1R(&big, 4, &small, 4, &r, 1, {1, 1}, 16777215.0f), pxlStatusOk);
    EXPECT_EQ(r, 0);
    ASSERT_EQ(pxliCompareEqualEps_32f_C1R(&one, 4, &one, 4, &r, 1, {1, 1}, 0.0f), pxlStatusOk);
    EXPECT_EQ(r, 255);
    EXPECT_EQ(pxliCompareEqualEps_32f_C1R(&one, 4, &one, 4, &r, 1, {1, 1}, -1.0f), pxlStatusBadEps);
    EXPECT_EQ(pxliCompareEqualEps_32f_C1R(&one, 0, &one, 4, &r, 1, {1, 1}, -1.0f), pxlStatusBadStep);
}
