// Extrema against a model of the scan: rows top to bottom, each row's extreme from its first
// sample replaced only by strictly smaller (larger) ones, then compared strictly with the running
// extreme; random samples with extremes, images of few values (ties), NaN first, alone and at the
// start of rows for 32f, zeros of both signs; elementwise and block extrema; orders of checks.
#include "pxltest.hpp"

#include <array>

using namespace pxltest;

namespace {

// Layouts: 1, 3, 4 and 5 for AC4.
int memOf(int L) { return L == 5 ? 4 : L; }
int procOf(int L) { return L == 5 ? 3 : L; }

template <class T> struct Api;
#define PXLT_LAYOUT4(L, f, ...)                                                                                 \
    ((L) == 1 ? f##_C1R(__VA_ARGS__) : (L) == 3 ? f##_C3R(__VA_ARGS__) : (L) == 4 ? f##_C4R(__VA_ARGS__) \
                                                                                  : f##_AC4R(__VA_ARGS__))
#define PXLT_EVERY_IR(L, f, ...)                                                                                 \
    ((L) == 1 ? f##_C1IR(__VA_ARGS__) : (L) == 3 ? f##_C3IR(__VA_ARGS__) : (L) == 4 ? f##_C4IR(__VA_ARGS__) \
                                                                                    : f##_AC4IR(__VA_ARGS__))
#define PXLT_EXTREMA_API(T, t)                                                                                               \
    template <> struct Api<T> {                                                                                              \
        static PxlStatus min(int L, const T* s, int ss, PxliSize r, T* v) { return PXLT_LAYOUT4(L, pxliMin_##t, s, ss, r, v); } \
        static PxlStatus max(int L, const T* s, int ss, PxliSize r, T* v) { return PXLT_LAYOUT4(L, pxliMax_##t, s, ss, r, v); } \
        static PxlStatus minMax(int L, const T* s, int ss, PxliSize r, T* lo, T* hi)                                         \
        {                                                                                                                    \
            return PXLT_LAYOUT4(L, pxliMinMax_##t, s, ss, r, lo, hi);                                                        \
        }                                                                                                                    \
        static PxlStatus indx(bool mx, int L, const T* s, int ss, PxliSize r, T* v, int* ix, int* iy)                        \
        {                                                                                                                    \
            return mx ? PXLT_LAYOUT4(L, pxliMaxIndx_##t, s, ss, r, v, ix, iy) : PXLT_LAYOUT4(L, pxliMinIndx_##t, s, ss, r, v, ix, iy); \
        }                                                                                                                    \
        static PxlStatus everyIR(bool mx, int L, const T* s, int ss, T* d, int ds, PxliSize r)                               \
        {                                                                                                                    \
            return mx ? PXLT_EVERY_IR(L, pxliMaxEvery_##t, s, ss, d, ds, r) : PXLT_EVERY_IR(L, pxliMinEvery_##t, s, ss, d, ds, r); \
        }                                                                                                                    \
        static PxlStatus block(const T* s, int ss, PxliSize r, T* lo, int los, T* hi, int his, PxliSize b, T* glo, T* ghi)  \
        {                                                                                                                    \
            return pxliBlockMinMax_##t##_C1R(s, ss, r, lo, los, hi, his, b, glo, ghi);                                       \
        }                                                                                                                    \
    };
PXLT_EXTREMA_API(Pxl8u, 8u)
PXLT_EXTREMA_API(Pxl16u, 16u)
PXLT_EXTREMA_API(Pxl16s, 16s)
PXLT_EXTREMA_API(Pxl32f, 32f)

template <class T> PxlStatus every3(bool mx, const T* a, int as, const T* b, int bs, T* d, int ds, PxliSize r)
{
    if constexpr (std::is_same_v<T, Pxl8u>) return mx ? pxliMaxEvery_8u_C1R(a, as, b, bs, d, ds, r) : pxliMinEvery_8u_C1R(a, as, b, bs, d, ds, r);
    if constexpr (std::is_same_v<T, Pxl16u>) return mx ? pxliMaxEvery_16u_C1R(a, as, b, bs, d, ds, r) : pxliMinEvery_16u_C1R(a, as, b, bs, d, ds, r);
    if constexpr (std::is_same_v<T, Pxl32f>) return mx ? pxliMaxEvery_32f_C1R(a, as, b, bs, d, ds, r) : pxliMinEvery_32f_C1R(a, as, b, bs, d, ds, r);
    return pxlStatusOk;  // 16s has no three-image form
}

template <class T> bool better(bool mx, T v, T best) { return mx ? v > best : v < best; }

// The scan, for one channel.
template <class T> struct Found {
    T value;
    int x, y;
};
template <class T> Found<T> scanModel(bool mx, const GuardedImage<T>& img, int c)
{
    Found<T> best{};
    for (int y = 0; y < img.height(); ++y) {
        Found<T> row{img.at(0, y, c), 0, y};
        for (int x = 1; x < img.width(); ++x)
            if (better(mx, img.at(x, y, c), row.value)) row = {img.at(x, y, c), x, y};
        if (y == 0 || better(mx, row.value, best.value)) best = row;
    }
    return best;
}

// Random samples, or with `few` set, samples from a handful of values so that ties abound.
template <class T> GuardedImage<T> testImage(int w, int h, int mem, Rng& rng, bool few)
{
    auto img = randomImage<T>(w, h, mem, rng, 0.2);
    if (few) {
        const T pool[3] = {rng.sample<T>(0.3), rng.sample<T>(0.3), T(0)};
        for (int y = 0; y < h; ++y)
            for (int i = 0; i < w * mem; ++i) img.row(y)[i] = pool[rng.uniformInt(0, 2)];
        if (std::is_floating_point_v<T> && rng.chance(0.5)) img.at(rng.uniformInt(0, w - 1), rng.uniformInt(0, h - 1), 0) = -T(0);
    }
    return img;
}

template <class T> class Extrema : public ::testing::Test {};
using SampleTypes = ::testing::Types<Pxl8u, Pxl16u, Pxl16s, Pxl32f>;
TYPED_TEST_SUITE(Extrema, SampleTypes);

TYPED_TEST(Extrema, ValuesAndFirstPositions)
{
    using T = TypeParam;
    Rng rng(21);
    for (int L : {1, 3, 4, 5})
        for (int trial = 0; trial < 60; ++trial) {
            const int w = trial % 3 ? rng.uniformInt(1, 40) : rng.uniformInt(60, 260), h = rng.uniformInt(1, 5);
            const int m = memOf(L), p = procOf(L);
            auto img = testImage<T>(w, h, m, rng, trial % 2);
            if (std::is_floating_point_v<T> && trial % 5 == 0) img.at(0, rng.uniformInt(0, h - 1), rng.uniformInt(0, p - 1)) = NAN;
            const PxliSize r{w, h};
            T lo[4], hi[4], v[4];
            int ix[4], iy[4];
            ASSERT_EQ(Api<T>::minMax(L, img.data(), img.step(), r, lo, hi), pxlStatusOk);
            for (bool mx : {false, true}) {
                ASSERT_EQ(mx ? Api<T>::max(L, img.data(), img.step(), r, v) : Api<T>::min(L, img.data(), img.step(), r, v), pxlStatusOk);
                for (int c = 0; c < p; ++c) {
                    const auto want = scanModel(mx, img, c);
                    ASSERT_TRUE(sameBits(v[c], want.value)) << "layout " << L << " channel " << c << (mx ? " max" : " min");
                    ASSERT_TRUE(sameBits(mx ? hi[c] : lo[c], want.value)) << "minmax layout " << L << " channel " << c;
                }
                ASSERT_EQ(Api<T>::indx(mx, L, img.data(), img.step(), r, v, ix, iy), pxlStatusOk);
                for (int c = 0; c < p; ++c) {
                    const auto want = scanModel(mx, img, c);
                    ASSERT_TRUE(sameBits(v[c], want.value) && ix[c] == want.x && iy[c] == want.y)
                        << "indexed layout " << L << " channel " << c << (mx ? " max" : " min") << ": (" << ix[c] << ", " << iy[c]
                        << ") want (" << want.x << ", " << want.y << ")";
                }
            }
        }
}

TEST(Extrema, NaNAndZeros)
{
    Pxl32f v;
    int x, y;
    // A NaN in the first pixel stays, at (0, 0).
    GuardedImage<Pxl32f> img(3, 3);
    img.fill(5);
    img.at(0, 0) = NAN;
    img.at(2, 2) = -1;
    ASSERT_EQ(pxliMinIndx_32f_C1R(img.data(), img.step(), {3, 3}, &v, &x, &y), pxlStatusOk);
    EXPECT_TRUE(v != v && x == 0 && y == 0);
    // A row that begins with NaN is passed over whole, even where it holds the true minimum.
    img.at(0, 0) = 5;
    img.at(0, 2) = NAN;
    ASSERT_EQ(pxliMinIndx_32f_C1R(img.data(), img.step(), {3, 3}, &v, &x, &y), pxlStatusOk);
    EXPECT_TRUE(v == 5 && x == 0 && y == 0);
    // NaN inside a row is passed over.
    img.at(0, 2) = 4;
    img.at(1, 2) = NAN;
    ASSERT_EQ(pxliMinIndx_32f_C1R(img.data(), img.step(), {3, 3}, &v, &x, &y), pxlStatusOk);
    EXPECT_TRUE(v == -1 && x == 2 && y == 2);
    // The first of two zeros gives the sign, in rows long enough for the vector lanes.
    GuardedImage<Pxl32f> zeros(70, 1);
    zeros.fill(3);
    zeros.at(40, 0) = -0.0f;
    zeros.at(65, 0) = 0.0f;
    ASSERT_EQ(pxliMin_32f_C1R(zeros.data(), zeros.step(), {70, 1}, &v), pxlStatusOk);
    EXPECT_TRUE(sameBits(v, -0.0f));
    zeros.at(10, 0) = 0.0f;
    ASSERT_EQ(pxliMin_32f_C1R(zeros.data(), zeros.step(), {70, 1}, &v), pxlStatusOk);
    EXPECT_TRUE(sameBits(v, 0.0f));
}

TEST(Extrema, StepsAreNotChecked)
{
    // A step of 0 reads the first row again; a negative one walks up.
    GuardedImage<Pxl16s> img(4, 3);
    for (int i = 0; i < 12; ++i) img.at(i % 4, i / 4) = Pxl16s(100 - i);
    Pxl16s v;
    int x, y;
    ASSERT_EQ(pxliMinIndx_16s_C1R(img.data(), 0, {4, 3}, &v, &x, &y), pxlStatusOk);
    EXPECT_TRUE(v == 97 && x == 3 && y == 0);
    ASSERT_EQ(pxliMaxIndx_16s_C1R(img.row(2), -img.step(), {4, 3}, &v, &x, &y), pxlStatusOk);
    EXPECT_TRUE(v == 100 && x == 0 && y == 2);
}

TYPED_TEST(Extrema, Elementwise)
{
    using T = TypeParam;
    Rng rng(4);
    for (int L : {1, 3, 4, 5})
        for (bool mx : {false, true})
            for (int trial = 0; trial < 12; ++trial) {
                const int w = rng.uniformInt(1, 80), h = rng.uniformInt(1, 3), m = memOf(L);
                auto a = testImage<T>(w, h, m, rng, trial % 2), b = testImage<T>(w, h, m, rng, trial % 2);
                auto d = b;
                auto want = [&](int x, int y, int c) {
                    if (c >= procOf(L)) return b.at(x, y, c);
                    return better(mx, a.at(x, y, c), b.at(x, y, c)) ? a.at(x, y, c) : b.at(x, y, c);
                };
                ASSERT_EQ(Api<T>::everyIR(mx, L, a.data(), a.step(), d.data(), d.step(), {w, h}), pxlStatusOk);
                ASSERT_TRUE(matchesEach(d, want)) << "layout " << L;
                if (L == 1 && !std::is_same_v<T, Pxl16s>) {
                    GuardedImage<T> out(w, h);
                    ASSERT_EQ(every3<T>(mx, a.data(), a.step(), b.data(), b.step(), out.data(), out.step(), {w, h}), pxlStatusOk);
                    ASSERT_TRUE(matchesEach(out, want));
                }
            }
}

TYPED_TEST(Extrema, Blocks)
{
    using T = TypeParam;
    Rng rng(9);
    for (int trial = 0; trial < 40; ++trial) {
        const int w = rng.uniformInt(1, 30), h = rng.uniformInt(1, 12);
        const PxliSize blk{rng.uniformInt(1, w + 3), rng.uniformInt(1, h + 3)};
        const int bw = (w + blk.width - 1) / blk.width, bh = (h + blk.height - 1) / blk.height;
        auto src = testImage<T>(w, h, 1, rng, trial % 2);
        GuardedImage<T> lo(bw, bh), hi(bw, bh), glo(1, 1), ghi(1, 1);
        const bool noLo = trial % 5 == 1, noGlobal = trial % 7 == 3;
        ASSERT_EQ(Api<T>::block(src.data(), src.step(), {w, h}, noLo ? nullptr : lo.data(), lo.step(), hi.data(), hi.step(), blk,
                                noGlobal ? nullptr : glo.data(), noGlobal ? nullptr : ghi.data()),
                  pxlStatusOk);
        Found<T> g[2] = {};
        for (int by = 0; by < bh; ++by)
            for (int bx = 0; bx < bw; ++bx)
                for (bool mx : {false, true}) {
                    T e = src.at(bx * blk.width, by * blk.height);
                    for (int y = by * blk.height; y < std::min(h, (by + 1) * blk.height); ++y)
                        for (int x = bx * blk.width; x < std::min(w, (bx + 1) * blk.width); ++x)
                            if (better(mx, src.at(x, y), e)) e = src.at(x, y);
                    if ((by == 0 && bx == 0) || better(mx, e, g[mx].value)) g[mx].value = e;
                    if (mx || !noLo) {
                        ASSERT_TRUE(sameBits((mx ? hi : lo).at(bx, by), e)) << "block " << bx << "," << by;
                    }
                }
        ASSERT_TRUE(lo.guardsIntact() && hi.guardsIntact() && glo.guardsIntact() && ghi.guardsIntact());
        if (!noGlobal) {
            ASSERT_TRUE(sameBits(glo.at(0, 0), g[0].value) && sameBits(ghi.at(0, 0), g[1].value));
        }
    }
}

// ---- Orders of checks --------------------------------------------------------------------------

struct Args {
    const Pxl8u* s;
    int ss;
    Pxl8u* d;
    int ds;
    PxliSize roi;
    Pxl8u* v;
    int* ix;
    PxliSize blk;
    Pxl8u* lo;
    Pxl8u* hi;
};

TEST(Extrema, CheckOrders)
{
    GuardedImage<Pxl8u> src(6, 4), dst(6, 4), out(8, 1), blocks(6, 4);
    GuardedImage<int> idx(8, 1);
    const Args valid{src.data(), src.step(), dst.data(), dst.step(), {6, 4}, out.data(), idx.data(), {2, 2}, blocks.data(), blocks.row(2)};
    using F = Fault<Args>;
    const F nullS{"null source", pxlStatusNullPointer, [](Args& x) { x.s = nullptr; }};
    const F nullV{"null value", pxlStatusNullPointer, [](Args& x) { x.v = nullptr; }};
    const F nullI{"null index", pxlStatusNullPointer, [](Args& x) { x.ix = nullptr; }};
    const F nullD{"null destination", pxlStatusNullPointer, [](Args& x) { x.d = nullptr; }};
    const F width{"width 0", pxlStatusBadSize, [](Args& x) { x.roi.width = 0; }};
    const F height{"height -3", pxlStatusBadSize, [](Args& x) { x.roi.height = -3; }};
    const F step{"step 0", pxlStatusBadStep, [](Args& x) { x.ss = 0; }};
    const F dstep{"destination step -1", pxlStatusBadStep, [](Args& x) { x.ds = -1; }};
    expectCheckOrder<Args>(valid, {nullS, nullV, nullI, width, height},
                           [](const Args& x) { return pxliMinIndx_8u_C3R(x.s, x.ss, x.roi, x.v, x.ix, x.ix + 3); }, {&out, &idx});
    expectCheckOrder<Args>(valid, {nullS, nullV, height},
                           [](const Args& x) { return pxliMinMax_8u_AC4R(x.s, x.ss, x.roi, x.v, x.v + 4); }, {&out});
    expectCheckOrder<Args>(valid, {nullS, nullD, width, step, dstep},
                           [](const Args& x) { return pxliMaxEvery_8u_C1IR(x.s, x.ss, x.d, x.ds, x.roi); }, {&dst});
    const F nullLo{"no block outputs", pxlStatusNullPointer, [](Args& x) { x.lo = nullptr, x.hi = nullptr; }};
    const F block{"block height 0", pxlStatusBadSize, [](Args& x) { x.blk.height = 0; }};
    const F narrow{"step below the row", pxlStatusBadStep, [](Args& x) { x.ss = 5; }};
    expectCheckOrder<Args>(valid, {nullS, nullLo, width, block, narrow},
                           [](const Args& x) {
                               return pxliBlockMinMax_8u_C1R(x.s, x.ss, x.roi, x.lo, 6, x.hi, 6, x.blk, x.v, x.v + 1);
                           },
                           {&blocks, &out});
}

}  // namespace
