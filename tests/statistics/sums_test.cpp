// Sums, means, norms and dot products against reference models written from the rules: sums in
// the stated widths and orders (8u rows in 32 bits, 32f in two interleaved extended partial sums
// over the region), norms of one image, of a difference and relative to a second image with the
// zero-denominator results, dot products added one by one in double; random samples with each
// type's extremes (NaN and infinities for 32f), and the orders of checks.
#include "pxltest.hpp"

#include <array>

using namespace pxltest;

namespace {

enum Kind { kInf, kL1, kL2 };

// ---- Entry points by type, layout (1, 3, 4; 5 is AC4) and kind ------------------------------

template <class T> struct Api;
#define PXLT_LAYOUT(L, f, ...) \
    ((L) == 1 ? f##_C1R(__VA_ARGS__) : (L) == 3 ? f##_C3R(__VA_ARGS__) : f##_C4R(__VA_ARGS__))
#define PXLT_KIND(K, f, t, ...)                                                                         \
    ((K) == kInf ? PXLT_LAYOUT(L, f##_Inf_##t, __VA_ARGS__) : (K) == kL1 ? PXLT_LAYOUT(L, f##_L1_##t, __VA_ARGS__ HINT) \
                                                                     : PXLT_LAYOUT(L, f##_L2_##t, __VA_ARGS__ HINT))
#define PXLT_SUMS_API(T, t)                                                                                                     \
    template <> struct Api<T> {                                                                                                 \
        static PxlStatus sum(int L, const T* s, int ss, PxliSize r, double* v) { return PXLT_LAYOUT(L, pxliSum_##t, s, ss, r, v HINT); } \
        static PxlStatus mean(int L, const T* s, int ss, PxliSize r, double* v) { return PXLT_LAYOUT(L, pxliMean_##t, s, ss, r, v HINT); } \
        static PxlStatus norm(int K, int L, const T* s, int ss, PxliSize r, double* v) { return PXLT_KIND(K, pxliNorm, t, s, ss, r, v); } \
        static PxlStatus diff(int K, int L, const T* a, int as, const T* b, int bs, PxliSize r, double* v)                     \
        {                                                                                                                       \
            return PXLT_KIND(K, pxliNormDiff, t, a, as, b, bs, r, v);                                                           \
        }                                                                                                                       \
        static PxlStatus rel(int K, int L, const T* a, int as, const T* b, int bs, PxliSize r, double* v)                      \
        {                                                                                                                       \
            return PXLT_KIND(K, pxliNormRel, t, a, as, b, bs, r, v);                                                            \
        }                                                                                                                       \
    };
#define HINT
PXLT_SUMS_API(Pxl8u, 8u)
PXLT_SUMS_API(Pxl16u, 16u)
PXLT_SUMS_API(Pxl16s, 16s)
#undef HINT
#define HINT , 0x5A5A
PXLT_SUMS_API(Pxl32f, 32f)
#undef HINT

template <class T> PxlStatus dotProd(int L, const T* a, int as, const T* b, int bs, PxliSize r, double* v);
#define PXLT_DOT(T, t)                                                                                          \
    template <> PxlStatus dotProd<T>(int L, const T* a, int as, const T* b, int bs, PxliSize r, double* v)      \
    {                                                                                                           \
        return L == 5 ? pxliDotProd_##t##64f_AC4R(a, as, b, bs, r, v) : PXLT_LAYOUT(L, pxliDotProd_##t##64f, a, as, b, bs, r, v); \
    }
PXLT_DOT(Pxl8u, 8u)
PXLT_DOT(Pxl16u, 16u)
PXLT_DOT(Pxl16s, 16s)
PXLT_DOT(Pxl32u, 32u)
PXLT_DOT(Pxl32s, 32s)
PXLT_DOT(Pxl32f, 32f)

int memOf(int L) { return L == 5 ? 4 : L; }
int procOf(int L) { return L == 5 ? 3 : L; }

// ---- Reference models --------------------------------------------------------------------------

template <class T> std::array<double, 4> refSum(const GuardedImage<T>& img)
{
    std::array<double, 4> out{};
    const int C = img.channels();
    if constexpr (std::is_same_v<T, Pxl32f>) {
        // Even pixels to one extended sum, odd pixels to the other, over the whole region.
        long double part[2][4] = {};
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                for (int c = 0; c < C; ++c) part[x % 2][c] += img.at(x, y, c);
        for (int c = 0; c < C; ++c) out[c] = static_cast<double>(part[0][c] + part[1][c]);
    } else {
        for (int y = 0; y < img.height(); ++y)
            for (int c = 0; c < C; ++c) {
                int64_t row = 0;
                for (int x = 0; x < img.width(); ++x) row += img.at(x, y, c);
                // 8u rows are summed in 32 bits.
                out[c] += sizeof(T) == 1 ? static_cast<double>(static_cast<uint32_t>(row)) : static_cast<double>(row);
            }
    }
    return out;
}

// The norm of a (b == nullptr) or of a - b per channel, before any root.
template <class T> std::array<double, 4> refNormSum(int K, const GuardedImage<T>& a, const GuardedImage<T>* b)
{
    std::array<double, 4> out{};
    const int C = a.channels();
    if constexpr (std::is_same_v<T, Pxl32f>) {
        long double part[2][4] = {}, top[4] = {};
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x)
                for (int c = 0; c < C; ++c) {
                    const long double v = b ? static_cast<long double>(a.at(x, y, c)) - b->at(x, y, c) : a.at(x, y, c);
                    if (K == kInf) top[c] = std::fabs(v) > top[c] ? std::fabs(v) : top[c];
                    else part[x % 2][c] += K == kL1 ? std::fabs(v) : v * v;
                }
        for (int c = 0; c < C; ++c) out[c] = static_cast<double>(K == kInf ? top[c] : part[0][c] + part[1][c]);
    } else {
        for (int c = 0; c < C; ++c) {
            uint64_t s = 0;
            for (int y = 0; y < a.height(); ++y)
                for (int x = 0; x < a.width(); ++x) {
                    const int64_t v = int64_t{a.at(x, y, c)} - (b ? int64_t{b->at(x, y, c)} : 0);
                    const uint64_t m = static_cast<uint64_t>(v < 0 ? -v : v);
                    s = K == kInf ? std::max(s, m) : s + (K == kL1 ? m : m * m);
                }
            out[c] = static_cast<double>(s);
        }
    }
    return out;
}

double root(int K, double s) { return K == kL2 ? std::sqrt(s) : s; }

const double kNegativeNaN = [] {
    const uint64_t bits = 0xFFF8000000000000ull;
    double d;
    std::memcpy(&d, &bits, 8);
    return d;
}();

template <class T> class Sums : public ::testing::Test {};
using SampleTypes = ::testing::Types<Pxl8u, Pxl16u, Pxl16s, Pxl32f>;
TYPED_TEST_SUITE(Sums, SampleTypes);

bool sameResult(double got, double want) { return sameBits(got, want) || (got != got && want != want); }

// ---- Tests ---------------------------------------------------------------------------------------

TYPED_TEST(Sums, SumMeanAndNormsMatchTheModels)
{
    using T = TypeParam;
    Rng rng(11);
    for (int L : {1, 3, 4})
        for (int trial = 0; trial < 40; ++trial) {
            const int w = trial < 20 ? rng.uniformInt(1, 70) : rng.uniformInt(100, 300), h = rng.uniformInt(1, 4);
            const PxliSize r{w, h};
            auto a = randomImage<T>(w, h, L, rng, 0.2);
            auto b = randomImage<T>(w, h, L, rng, 0.2);
            if (trial % 4 == 0)  // equal samples make zero differences
                for (int y = 0; y < h; ++y)
                    for (int i = 0; i < w * L; i += 2) b.row(y)[i] = a.row(y)[i];
            double got[4];
            const auto s = refSum(a);
            ASSERT_EQ(Api<T>::sum(L, a.data(), a.step(), r, got), pxlStatusOk);
            for (int c = 0; c < L; ++c) ASSERT_TRUE(sameResult(got[c], s[c])) << "sum C" << L << " ch " << c << " w " << w;
            ASSERT_EQ(Api<T>::mean(L, a.data(), a.step(), r, got), pxlStatusOk);
            for (int c = 0; c < L; ++c) ASSERT_TRUE(sameResult(got[c], s[c] / (double(w) * h))) << "mean C" << L;
            for (int K : {kInf, kL1, kL2}) {
                const auto n = refNormSum<T>(K, a, nullptr), d = refNormSum<T>(K, a, &b), nb = refNormSum<T>(K, b, nullptr);
                ASSERT_EQ(Api<T>::norm(K, L, a.data(), a.step(), r, got), pxlStatusOk);
                for (int c = 0; c < L; ++c) ASSERT_TRUE(sameResult(got[c], root(K, n[c]))) << "norm " << K << " C" << L << " ch " << c;
                ASSERT_EQ(Api<T>::diff(K, L, a.data(), a.step(), b.data(), b.step(), r, got), pxlStatusOk);
                for (int c = 0; c < L; ++c) ASSERT_TRUE(sameResult(got[c], root(K, d[c]))) << "diff " << K << " C" << L;
                const double floor = std::is_same_v<T, Pxl32f> ? DBL_MIN : 0.0;
                bool warn = false;
                double want[4];
                for (int c = 0; c < L; ++c) {
                    if (nb[c] > floor) {
                        want[c] = root(K, d[c] / nb[c]);
                    } else {
                        want[c] = d[c] > floor ? INFINITY : kNegativeNaN;
                        warn = true;
                    }
                }
                ASSERT_EQ(Api<T>::rel(K, L, a.data(), a.step(), b.data(), b.step(), r, got), warn ? pxlStatusWarnDivideByZero : pxlStatusOk);
                for (int c = 0; c < L; ++c) ASSERT_TRUE(sameBits(got[c], want[c])) << "rel " << K << " C" << L << ": " << got[c] << " " << want[c];
            }
            ASSERT_TRUE(a.guardsIntact() && b.guardsIntact());
        }
}

TYPED_TEST(Sums, ZeroDenominatorsAndEqualImages)
{
    using T = TypeParam;
    GuardedImage<T> a(5, 3), zero(5, 3);
    a.fill(T(3));
    zero.fill(T(0));
    double v;
    for (int K : {kInf, kL1, kL2}) {
        ASSERT_EQ(Api<T>::rel(K, 1, a.data(), a.step(), a.data(), a.step(), {5, 3}, &v), pxlStatusOk);
        EXPECT_TRUE(sameBits(v, 0.0));
        ASSERT_EQ(Api<T>::rel(K, 1, a.data(), a.step(), zero.data(), zero.step(), {5, 3}, &v), pxlStatusWarnDivideByZero);
        EXPECT_EQ(v, INFINITY);
        ASSERT_EQ(Api<T>::rel(K, 1, zero.data(), zero.step(), zero.data(), zero.step(), {5, 3}, &v), pxlStatusWarnDivideByZero);
        EXPECT_TRUE(sameBits(v, kNegativeNaN));
    }
}

TEST(Sums, FloatEdges)
{
    // NaN samples are passed over by the largest magnitude.
    GuardedImage<Pxl32f> nan(4, 2);
    nan.fill(NAN);
    double v = -1;
    ASSERT_EQ(pxliNorm_Inf_32f_C1R(nan.data(), nan.step(), {4, 2}, &v), pxlStatusOk);
    EXPECT_TRUE(sameBits(v, 0.0));
    // Partial sums in extended precision: 2^60 + 1 - 2^60 keeps the one that a double would lose;
    // the interleaving puts 1 and -2^60 in different partial sums.
    GuardedImage<Pxl32f> ext(4, 1);
    ext.at(0, 0) = 0x1p60f, ext.at(1, 0) = 1, ext.at(2, 0) = -0x1p60f, ext.at(3, 0) = 0x1p-3f;
    ASSERT_EQ(pxliSum_32f_C1R(ext.data(), ext.step(), {4, 1}, &v, 0), pxlStatusOk);
    EXPECT_EQ(v, 1.125);
    // The smallest float's square is a denominator still: squares are taken in extended precision.
    GuardedImage<Pxl32f> tiny(1, 1), zero(1, 1);
    tiny.fill(0x1p-149f);
    zero.fill(0);
    ASSERT_EQ(pxliNormRel_L2_32f_C1R(zero.data(), zero.step(), tiny.data(), tiny.step(), {1, 1}, &v, 0), pxlStatusOk);
    EXPECT_EQ(v, 1.0);
    ASSERT_EQ(pxliNormDiff_L2_32f_C1R(tiny.data(), tiny.step(), zero.data(), zero.step(), {1, 1}, &v, 0), pxlStatusOk);
    EXPECT_EQ(v, 0x1p-149);
}

TEST(Sums, FloatsOfFewBitsMatchTheModels)
{
    // Samples that are whole numbers of one unit 2^u over a limited span of bits, as most images
    // hold: their extended-precision sums round nothing, and the sums come out the same however
    // they are formed. Spans from a few bits to past the 64-bit significand, units from the
    // smallest float up, so that both sides of every bound are crossed.
    Rng rng(21);
    for (int trial = 0; trial < 120; ++trial) {
        const int L = std::array{1, 3, 4}[static_cast<std::size_t>(trial % 3)];
        const int w = rng.uniformInt(1, 300), h = rng.uniformInt(1, 4);
        const int span = rng.uniformInt(1, 64), unit = rng.uniformInt(-149, 100 - std::min(span, 60));
        GuardedImage<Pxl32f> img(w, h, L);
        for (int y = 0; y < h; ++y)
            for (int i = 0; i < w * L; ++i) {
                const int bits = rng.uniformInt(1, std::min(span, 24));
                const double k = static_cast<double>(rng.bits() & ((uint64_t{1} << bits) - 1));
                const double v = std::ldexp(k, unit + rng.uniformInt(0, span - bits));
                img.row(y)[i] = static_cast<float>(rng.chance(0.3) ? -v : rng.chance(0.05) ? -0.0 : v);
            }
        const PxliSize r{w, h};
        double got[4];
        const auto s = refSum(img);
        ASSERT_EQ(Api<Pxl32f>::sum(L, img.data(), img.step(), r, got), pxlStatusOk);
        for (int c = 0; c < L; ++c) EXPECT_TRUE(sameBits(got[c], s[c])) << "sum, trial " << trial << " channel " << c;
        for (int K : {kL1, kL2}) {
            const auto n = refNormSum<Pxl32f>(K, img, nullptr);
            ASSERT_EQ(Api<Pxl32f>::norm(K, L, img.data(), img.step(), r, got), pxlStatusOk);
            for (int c = 0; c < L; ++c) EXPECT_TRUE(sameBits(got[c], root(K, n[c]))) << "norm " << K << ", trial " << trial;
        }
    }
    // Many samples of 51 bits and one of a single unit: their sum passes 2^63 units, which no
    // 64-bit lane holds.
    GuardedImage<Pxl32f> big(8192, 1);
    big.fill(0x1.fffffep50f);
    big.at(77, 0) = 1;
    double v;
    ASSERT_EQ(pxliSum_32f_C1R(big.data(), big.step(), big.size(), &v, 0), pxlStatusOk);
    EXPECT_TRUE(sameBits(v, refSum(big)[0]));
}

TEST(Sums, IntegerWidths)
{
    // A row past 32768 pixels in the 8u L2 norm, and a row whose 8u sum passes 32 bits and wraps.
    GuardedImage<Pxl8u> wide(32769, 2, 1, 0, 0, 0);
    wide.fill(255);
    double v;
    ASSERT_EQ(pxliNorm_L2_8u_C1R(wide.data(), wide.step(), {32769, 2}, &v), pxlStatusOk);
    EXPECT_EQ(v, std::sqrt(255.0 * 255.0 * 32769 * 2));
    const int n = 16843010;  // 255 * n = 2^32 + 254
    std::vector<Pxl8u> row(n, 255);
    ASSERT_EQ(pxliSum_8u_C1R(row.data(), n, {n, 1}, &v), pxlStatusOk);
    EXPECT_EQ(v, 254.0);
    // Random rows long enough for the byte sums' 16-bit partial sums to be carried over.
    Rng rng;
    for (int L : {1, 3, 4}) {
        auto img = randomImage<Pxl8u>(17000 + L, 2, L, rng);
        double got[4], want[4] = {};
        for (int y = 0; y < 2; ++y)
            for (int i = 0; i < img.samplesPerRow(); ++i) want[i % L] += img.row(y)[i];
        ASSERT_EQ(Api<Pxl8u>::sum(L, img.data(), img.step(), {17000 + L, 2}, got), pxlStatusOk);
        for (int c = 0; c < L; ++c) EXPECT_EQ(got[c], want[c]) << "layout " << L << " channel " << c;
    }
    // 16-bit sums past 65536 samples stay exact.
    std::vector<Pxl16s> low(70000, -32768);
    ASSERT_EQ(pxliSum_16s_C1R(low.data(), 140000, {70000, 1}, &v), pxlStatusOk);
    EXPECT_EQ(v, -32768.0 * 70000);
}

TEST(Sums, StepsWhereNoneIsChecked)
{
    // 8u sums read rows at any step, a step of 0 reading the first row again.
    GuardedImage<Pxl8u> img(6, 1);
    for (int x = 0; x < 6; ++x) img.at(x, 0) = Pxl8u(x + 1);
    double v;
    ASSERT_EQ(pxliSum_8u_C1R(img.data(), 0, {6, 5}, &v), pxlStatusOk);
    EXPECT_EQ(v, 21.0 * 5);
    ASSERT_EQ(pxliMean_8u_C1R(img.data(), -7, {6, 1}, &v), pxlStatusOk);
    EXPECT_EQ(v, 3.5);
    // Dot products walk negative steps.
    GuardedImage<Pxl16s> a(3, 2), b(3, 2);
    for (int i = 0; i < 6; ++i) a.at(i % 3, i / 3) = Pxl16s(i + 1), b.at(i % 3, i / 3) = Pxl16s(2 * i - 3);
    double up, down;
    ASSERT_EQ(pxliDotProd_16s64f_C1R(a.data(), a.step(), b.data(), b.step(), {3, 2}, &down), pxlStatusOk);
    ASSERT_EQ(pxliDotProd_16s64f_C1R(a.row(1), -a.step(), b.row(1), -b.step(), {3, 2}, &up), pxlStatusOk);
    EXPECT_EQ(up, down);
    EXPECT_EQ(down, 1 * -3 + 2 * -1 + 3 * 1 + 4 * 3 + 5 * 5 + 6 * 7);
}

template <class T> class DotProducts : public ::testing::Test {};
using DotTypes = ::testing::Types<Pxl8u, Pxl16u, Pxl16s, Pxl32u, Pxl32s, Pxl32f>;
TYPED_TEST_SUITE(DotProducts, DotTypes);

TYPED_TEST(DotProducts, AddOneByOneInDouble)
{
    using T = TypeParam;
    Rng rng(5);
    for (int L : {1, 3, 4, 5})
        for (int trial = 0; trial < 25; ++trial) {
            const int w = rng.uniformInt(1, 90), h = rng.uniformInt(1, 4), m = memOf(L);
            auto a = randomImage<T>(w, h, m, rng, 0.3), b = randomImage<T>(w, h, m, rng, 0.3);
            double want[4] = {}, got[4];
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    for (int c = 0; c < procOf(L); ++c) want[c] += double(a.at(x, y, c)) * double(b.at(x, y, c));
            ASSERT_EQ(dotProd<T>(L, a.data(), a.step(), b.data(), b.step(), {w, h}, got), pxlStatusOk);
            for (int c = 0; c < procOf(L); ++c) ASSERT_TRUE(sameResult(got[c], want[c])) << "layout " << L << " channel " << c;
        }
}

TEST(DotProducts, ColumnsOfVectors)
{
    Rng rng(8);
    for (int trial = 0; trial < 20; ++trial) {
        const int n = rng.uniformInt(1, 40), k = rng.uniformInt(1, 5);
        std::vector<std::vector<float>> vf(k, std::vector<float>(n));
        std::vector<std::vector<double>> vd(k, std::vector<double>(n));
        std::vector<const float*> pf;
        std::vector<const double*> pd;
        std::vector<float> cf(k);
        std::vector<double> cd(k);
        for (int i = 0; i < k; ++i) {
            cf[i] = i == 0 && trial % 2 ? 1.0f : rng.sample<float>(0.1, false);
            cd[i] = cf[i];
            for (int j = 0; j < n; ++j) vd[i][j] = vf[i][j] = rng.sample<float>(0.2);
            pf.push_back(vf[i].data());
            pd.push_back(vd[i].data());
        }
        std::vector<float> gf(n + 1, 7.0f), wf(n);
        std::vector<double> gd(n + 1, 7.0), wd(n);
        for (int j = 0; j < n; ++j) {
            wf[j] = cf[0] == 1.0f ? vf[0][j] : cf[0] * vf[0][j];
            wd[j] = cd[0] == 1.0 ? vd[0][j] : cd[0] * vd[0][j];
            for (int i = 1; i < k; ++i) wf[j] = wf[j] + cf[i] * vf[i][j], wd[j] = wd[j] + cd[i] * vd[i][j];
        }
        ASSERT_EQ(pxliDotProdCol_32f_L2(pf.data(), cf.data(), k, gf.data(), n), pxlStatusOk);
        ASSERT_EQ(pxliDotProdCol_64f_L2(pd.data(), cd.data(), k, gd.data(), n), pxlStatusOk);
        for (int j = 0; j < n; ++j) ASSERT_TRUE(sameResult(gf[j], wf[j]) && sameResult(gd[j], wd[j])) << j;
        EXPECT_EQ(gf[n], 7.0f);
        EXPECT_EQ(gd[n], 7.0);
    }
}

// ---- Orders of checks ----------------------------------------------------------------------------

struct Args {
    const Pxl16u* a;
    int as;
    const Pxl16u* b;
    int bs;
    PxliSize roi;
    double* out;
};

TEST(Sums, CheckOrders)
{
    GuardedImage<Pxl16u> a(4, 3), b(4, 3), out(4, 1);
    auto* res = reinterpret_cast<double*>(out.data());
    const Args valid{a.data(), a.step(), b.data(), b.step(), {4, 3}, res};
    using F = Fault<Args>;
    const F nullA{"null source", pxlStatusNullPointer, [](Args& x) { x.a = nullptr; }};
    const F nullB{"null second", pxlStatusNullPointer, [](Args& x) { x.b = nullptr; }};
    const F nullOut{"null result", pxlStatusNullPointer, [](Args& x) { x.out = nullptr; }};
    const F width{"width 0", pxlStatusBadSize, [](Args& x) { x.roi.width = 0; }};
    const F height{"height -1", pxlStatusBadSize, [](Args& x) { x.roi.height = -1; }};
    const F step{"step 0", pxlStatusBadStep, [](Args& x) { x.as = 0; }};
    const F step2{"second step -2", pxlStatusBadStep, [](Args& x) { x.bs = -2; }};
    expectCheckOrder<Args>(valid, {nullA, nullOut, width, height, step},
                           [](const Args& x) { return pxliSum_16u_C3R(x.a, x.as, x.roi, x.out); }, {&out});
    expectCheckOrder<Args>(valid, {nullA, nullOut, width, step},
                           [](const Args& x) { return pxliMean_16u_C1R(x.a, x.as, x.roi, x.out); }, {&out});
    expectCheckOrder<Args>(valid, {nullA, nullOut, height, step},
                           [](const Args& x) { return pxliNorm_L1_16u_C4R(x.a, x.as, x.roi, x.out); }, {&out});
    expectCheckOrder<Args>(valid, {nullA, nullB, nullOut, width, step, step2},
                           [](const Args& x) { return pxliNormDiff_L2_16u_C1R(x.a, x.as, x.b, x.bs, x.roi, x.out); }, {&out});
    expectCheckOrder<Args>(valid, {nullA, nullB, nullOut, height, step, step2},
                           [](const Args& x) { return pxliNormRel_Inf_16u_C3R(x.a, x.as, x.b, x.bs, x.roi, x.out); }, {&out});
    // Dot products: a step of 0 is a bad size; other steps are not checked.
    const F zeroStep{"step 0", pxlStatusBadSize, [](Args& x) { x.bs = 0; }};
    expectCheckOrder<Args>(valid, {nullA, nullB, nullOut, width, zeroStep},
                           [](const Args& x) { return pxliDotProd_16u64f_C1R(x.a, x.as, x.b, x.bs, x.roi, x.out); }, {&out});
    EXPECT_EQ(pxliDotProd_16u64f_C1R(a.row(2), -a.step(), b.data(), 2, {1, 3}, res), pxlStatusOk);
    // 8u sums have no step check.
    GuardedImage<Pxl8u> img(4, 3);
    EXPECT_EQ(pxliSum_8u_C1R(img.data(), -5, {4, 1}, res), pxlStatusOk);
    // Column products: lists and result, lengths, list entries.
    float v[3] = {1, 2, 3}, c[2] = {1, 1}, d[3];
    const float* list[2] = {v, nullptr};
    EXPECT_EQ(pxliDotProdCol_32f_L2(nullptr, c, 2, d, 3), pxlStatusNullPointer);
    EXPECT_EQ(pxliDotProdCol_32f_L2(list, c, 0, nullptr, 3), pxlStatusNullPointer);
    EXPECT_EQ(pxliDotProdCol_32f_L2(list, c, 2, d, 0), pxlStatusBadSize);
    EXPECT_EQ(pxliDotProdCol_32f_L2(list, c, 0, d, 3), pxlStatusBadSize);
    EXPECT_EQ(pxliDotProdCol_32f_L2(list, c, 2, d, 3), pxlStatusNullPointer);
}

}  // namespace
