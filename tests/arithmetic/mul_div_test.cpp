// Mul, MulC, Div, DivC, Div_Round, MulScale, MulCScale and MulC64f against reference models
// written from the rules: exact products and exact rational quotients (128-bit), every scale
// factor from -40 to 40 and the extremes, zero divisors, every rounding code, the worked
// examples, and the orders of checks.
#include "pxltest.hpp"

#include <cfenv>
#include <climits>

using namespace pxltest;

namespace {

__extension__ typedef __int128 Int128;
__extension__ typedef unsigned __int128 UInt128;

const int kLayouts[4][2] = {{1, 1}, {3, 3}, {4, 4}, {4, 3}};  // samples in memory, processed

std::vector<int> scaleFactors()
{
    std::vector<int> fs;
    for (int f = -40; f <= 40; ++f) fs.push_back(f);
    fs.push_back(INT_MIN);
    fs.push_back(INT_MAX);
    return fs;
}

const uint32_t kDivideByZeroNaN = 0xFFC00000u;

// Runs call on random images (first, second, destination) and compares every processed sample
// with want(first, second, channel); other samples must keep their values.
template <class T, class Call, class Want>
::testing::AssertionResult checkBinary(int layout, bool inPlace, Call call, Want want, Rng& rng, PxlStatus expected = pxlStatusOk)
{
    const int mem = kLayouts[layout][0], proc = kLayouts[layout][1];
    // Rows long enough for every vector width of the row kernels and their tails.
    const int w = rng.chance(0.5) ? rng.uniformInt(1, 9) : rng.uniformInt(10, 45), h = rng.uniformInt(1, 3);
    auto first = randomImage<T>(w, h, mem, rng, 0.3);
    const auto second = randomImage<T>(w, h, mem, rng, 0.3);
    if (rng.chance(0.3)) first.at(0, 0, 0) = T(0);  // a zero divisor now and then
    auto out = inPlace ? second : randomImage<T>(w, h, mem, rng, 0.3);
    const auto before = out;
    const PxlStatus st = call(first, second, out, PxliSize{w, h});
    bool zero = false;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < proc; ++c) zero |= first.at(x, y, c) == T(0);
    if (expected == pxlStatusWarnDivideByZero && !zero) expected = pxlStatusOk;
    if (st != expected) return ::testing::AssertionFailure() << "status " << st << ", want " << expected;
    if (!out.guardsIntact()) return ::testing::AssertionFailure() << "written outside the region";
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < mem; ++c) {
                const T got = out.at(x, y, c);
                const T ref = c < proc ? want(first.at(x, y, c), second.at(x, y, c), c) : before.at(x, y, c);
                // NaNs carried from the operands may differ in payload; the NaN of a zero divisor may not.
                if (!(sameBits(got, ref) || (std::is_floating_point_v<T> && got != got && ref != ref && std::bit_cast<uint32_t>(static_cast<float>(ref)) != kDivideByZeroNaN)))
                    return ::testing::AssertionFailure() << "at " << x << "," << y << "," << c << ": " << +first.at(x, y, c) << " and "
                                                         << +second.at(x, y, c) << " gave " << +got << ", want " << +ref;
            }
    return ::testing::AssertionSuccess();
}

// b * 2^-f / a, exactly, rounded by code (0 toward zero, 1 nearest even, 2 half up) and
// saturated; a zero divisor gives the end of the range b's sign points to.
template <class T> T quotientReference(int64_t a, int64_t b, int f, int code)
{
    using L = std::numeric_limits<T>;
    if (a == 0) return b > 0 ? L::max() : b < 0 ? L::min() : T(0);
    if (f > 40) return 0;
    if (f < -40) return b == 0 ? T(0) : (b > 0) == (a > 0) ? L::max() : L::min();
    Int128 num = b, den = a;
    if (f < 0) num <<= -f;
    else den <<= f;
    if (den < 0) { num = -num; den = -den; }
    Int128 q = num / den, rem = num % den;
    if (rem < 0) { q -= 1; rem += den; }  // floor, 0 <= rem < den
    Int128 r;
    if (code == 0) r = (q < 0 && rem != 0) ? q + 1 : q;
    else if (code == 1) r = (2 * rem > den || (2 * rem == den && (q & 1))) ? q + 1 : q;
    else r = 2 * rem >= den ? q + 1 : q;
    return static_cast<T>(r < L::min() ? L::min() : r > L::max() ? L::max() : r);
}

// The 16u division rule as written: a quotient with 16 fraction bits, rounded by adding 32767
// and 2 more for an odd integer part.
Pxl16u fixedQuotientReference(int64_t a, int64_t b, int f)
{
    if (a == 0) return b ? 65535 : 0;
    if (f > 16) return 0;
    if (f < -31) return b ? 65535 : 0;
    const UInt128 q = f >= 0 ? ((UInt128)b * 65536) / ((UInt128)a << f)
                                       : ((UInt128)b << (16 - f)) / (UInt128)a;
    const UInt128 odd = (q >> 16) & 1;
    const UInt128 r = (q + 32767 + 2 * odd) >> 16;
    return static_cast<Pxl16u>(r > 65535 ? 65535 : r);
}

}  // namespace

// ---- Mul and MulC ----------------------------------------------------------------------------

template <class T> struct MulForms;
#define PXLT_MUL_FORMS(T, t)                                                                                     \
    template <> struct MulForms<T> {                                                                             \
        static PxlStatus bin(int L, bool ip, bool wide, const GuardedImage<T>& a, const GuardedImage<T>& b, GuardedImage<T>& d, PxliSize r, int f) \
        {                                                                                                        \
            const PxliSizeL rl{r.width, r.height};                                                               \
            switch (L * 4 + ip * 2 + wide) {                                                                     \
            case 0: return pxliMul_##t##_C1RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r, f); \
            case 1: return pxliMul_##t##_C1RSfs_L(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), rl, f); \
            case 2: return pxliMul_##t##_C1IRSfs(a.data(), a.step(), d.data(), d.step(), r, f);                \
            case 3: return pxliMul_##t##_C1IRSfs_L(a.data(), a.step(), d.data(), d.step(), rl, f);             \
            case 4: return pxliMul_##t##_C3RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r, f); \
            case 5: return pxliMul_##t##_C3RSfs_L(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), rl, f); \
            case 6: return pxliMul_##t##_C3IRSfs(a.data(), a.step(), d.data(), d.step(), r, f);                \
            case 7: return pxliMul_##t##_C3IRSfs_L(a.data(), a.step(), d.data(), d.step(), rl, f);             \
            case 8: return pxliMul_##t##_C4RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r, f); \
            case 9: return pxliMul_##t##_C4RSfs_L(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), rl, f); \
            case 10: return pxliMul_##t##_C4IRSfs(a.data(), a.step(), d.data(), d.step(), r, f);               \
            case 11: return pxliMul_##t##_C4IRSfs_L(a.data(), a.step(), d.data(), d.step(), rl, f);            \
            case 12: return pxliMul_##t##_AC4RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r, f); \
            case 13: return pxliMul_##t##_AC4RSfs_L(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), rl, f); \
            case 14: return pxliMul_##t##_AC4IRSfs(a.data(), a.step(), d.data(), d.step(), r, f);              \
            default: return pxliMul_##t##_AC4IRSfs_L(a.data(), a.step(), d.data(), d.step(), rl, f);           \
            }                                                                                                    \
        }                                                                                                        \
        static PxlStatus con(int L, bool ip, const T* v, const GuardedImage<T>& s, GuardedImage<T>& d, PxliSize r, int f) \
        {                                                                                                        \
            switch (L * 2 + ip) {                                                                                \
            case 0: return pxliMulC_##t##_C1RSfs(s.data(), s.step(), v[0], d.data(), d.step(), r, f);          \
            case 1: return pxliMulC_##t##_C1IRSfs(v[0], d.data(), d.step(), r, f);                              \
            case 2: return pxliMulC_##t##_C3RSfs(s.data(), s.step(), v, d.data(), d.step(), r, f);             \
            case 3: return pxliMulC_##t##_C3IRSfs(v, d.data(), d.step(), r, f);                                 \
            case 4: return pxliMulC_##t##_C4RSfs(s.data(), s.step(), v, d.data(), d.step(), r, f);             \
            case 5: return pxliMulC_##t##_C4IRSfs(v, d.data(), d.step(), r, f);                                 \
            case 6: return pxliMulC_##t##_AC4RSfs(s.data(), s.step(), v, d.data(), d.step(), r, f);            \
            default: return pxliMulC_##t##_AC4IRSfs(v, d.data(), d.step(), r, f);                              \
            }                                                                                                    \
        }                                                                                                        \
    };
PXLT_MUL_FORMS(Pxl8u, 8u)
PXLT_MUL_FORMS(Pxl16u, 16u)
PXLT_MUL_FORMS(Pxl16s, 16s)

template <class T> class MulInt : public ::testing::Test {};
using IntTypes = ::testing::Types<Pxl8u, Pxl16u, Pxl16s>;
TYPED_TEST_SUITE(MulInt, IntTypes);

TYPED_TEST(MulInt, ProductsFollowTheScaleRuleAtEveryScaleFactor)
{
    using T = TypeParam;
    Rng rng(61);
    for (int f : scaleFactors())
        for (int L = 0; L < 4; ++L)
            for (bool ip : {false, true}) {
                for (bool wide : {false, true})
                    ASSERT_TRUE(checkBinary<T>(
                        L, ip, [&](const auto& a, const auto& b, auto& d, PxliSize r) { return MulForms<T>::bin(L, ip, wide, a, b, d, r, f); },
                        [f](T a, T b, int) { return sfsReference<T>(int64_t{a} * b, f); }, rng))
                        << "f=" << f << " layout " << L << (ip ? " in place" : "") << (wide ? " _L" : "");
                T v[4];
                for (T& x : v) x = rng.sample<T>(0.3);
                if (rng.chance(0.3)) v[0] = v[1] = v[2] = v[3] = T(rng.uniformInt(0, 1));  // the zero and one shortcuts
                ASSERT_TRUE(checkBinary<T>(
                    L, ip, [&](const auto&, const auto& b, auto& d, PxliSize r) { return MulForms<T>::con(L, ip, v, b, d, r, f); },
                    [&](T, T b, int c) { return sfsReference<T>(int64_t{b} * v[c], f); }, rng))
                    << "MulC f=" << f << " layout " << L << (ip ? " in place" : "") << " value " << +v[0];
            }
}

TEST(Mul, WorkedExamples)
{
    auto mul8 = [](Pxl8u a, Pxl8u b, int f) {
        Pxl8u d = 7;
        EXPECT_EQ(pxliMul_8u_C1RSfs(&a, 1, &b, 1, &d, 1, {1, 1}, f), pxlStatusOk);
        return int{d};
    };
    EXPECT_EQ(mul8(255, 255, 0), 255);
    EXPECT_EQ(mul8(255, 255, 16), 1);
    EXPECT_EQ(mul8(255, 255, 17), 0);
    auto mul16s = [](Pxl16s a, Pxl16s b, int f) {
        Pxl16s d = 7;
        EXPECT_EQ(pxliMul_16s_C1RSfs(&a, 2, &b, 2, &d, 2, {1, 1}, f), pxlStatusOk);
        return int{d};
    };
    EXPECT_EQ(mul16s(-32768, -32768, 0), 32767);
    EXPECT_EQ(mul16s(-32768, -32768, 30), 1);
    EXPECT_EQ(mul16s(-32768, -32768, 31), 0);
    // 16u: its shortcuts come before the pointer checks, so a null source with value 0 fills.
    Pxl16u d16[3] = {9, 9, 9};
    EXPECT_EQ(pxliMulC_16u_C1RSfs(nullptr, 6, 0, d16, 6, {3, 1}, 5), pxlStatusOk);
    EXPECT_EQ(d16[2], 0);
    EXPECT_EQ(pxliMulC_16u_C1RSfs(nullptr, 6, 1, d16, 6, {3, 1}, 0), pxlStatusNullPointer);  // the copy checks
    EXPECT_EQ(pxliMulC_8u_C1RSfs(nullptr, 6, 0, reinterpret_cast<Pxl8u*>(d16), 6, {3, 1}, 5), pxlStatusNullPointer);
    const float nan = std::numeric_limits<float>::quiet_NaN();
    float r = 1;
    EXPECT_EQ(pxliMulC_32f_C1R(&nan, 4, 0.0f, &r, 4, {1, 1}), pxlStatusOk);  // NaN times zero stays NaN
    EXPECT_TRUE(std::isnan(r));
}

// ---- Division ----------------------------------------------------------------------------------

template <class T> struct DivForms;
#define PXLT_DIV_FORMS(T, t)                                                                                     \
    template <> struct DivForms<T> {                                                                             \
        static PxlStatus bin(int L, bool ip, const GuardedImage<T>& a, const GuardedImage<T>& b, GuardedImage<T>& d, PxliSize r, int f) \
        {                                                                                                        \
            switch (L * 2 + ip) {                                                                                \
            case 0: return pxliDiv_##t##_C1RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r, f); \
            case 1: return pxliDiv_##t##_C1IRSfs_L(a.data(), a.step(), d.data(), d.step(), {r.width, r.height}, f); \
            case 2: return pxliDiv_##t##_C3RSfs_L(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), {r.width, r.height}, f); \
            case 3: return pxliDiv_##t##_C3IRSfs(a.data(), a.step(), d.data(), d.step(), r, f);                \
            case 4: return pxliDiv_##t##_C4RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r, f); \
            case 5: return pxliDiv_##t##_C4IRSfs(a.data(), a.step(), d.data(), d.step(), r, f);                \
            case 6: return pxliDiv_##t##_AC4RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r, f); \
            default: return pxliDiv_##t##_AC4IRSfs(a.data(), a.step(), d.data(), d.step(), r, f);              \
            }                                                                                                    \
        }                                                                                                        \
        static PxlStatus round(int L, bool ip, const GuardedImage<T>& a, const GuardedImage<T>& b, GuardedImage<T>& d, PxliSize r, int code, int f) \
        {                                                                                                        \
            switch (L * 2 + ip) {                                                                                \
            case 0: return pxliDiv_Round_##t##_C1RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r, code, f); \
            case 1: return pxliDiv_Round_##t##_C1IRSfs(a.data(), a.step(), d.data(), d.step(), r, code, f);    \
            case 2: return pxliDiv_Round_##t##_C3RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r, code, f); \
            case 3: return pxliDiv_Round_##t##_C3IRSfs(a.data(), a.step(), d.data(), d.step(), r, code, f);    \
            case 4: return pxliDiv_Round_##t##_C4RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r, code, f); \
            case 5: return pxliDiv_Round_##t##_C4IRSfs(a.data(), a.step(), d.data(), d.step(), r, code, f);    \
            case 6: return pxliDiv_Round_##t##_AC4RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r, code, f); \
            default: return pxliDiv_Round_##t##_AC4IRSfs(a.data(), a.step(), d.data(), d.step(), r, code, f);  \
            }                                                                                                    \
        }                                                                                                        \
        static PxlStatus con(int L, bool ip, const T* v, const GuardedImage<T>& s, GuardedImage<T>& d, PxliSize r, int f) \
        {                                                                                                        \
            switch (L * 2 + ip) {                                                                                \
            case 0: return pxliDivC_##t##_C1RSfs(s.data(), s.step(), v[0], d.data(), d.step(), r, f);          \
            case 1: return pxliDivC_##t##_C1IRSfs(v[0], d.data(), d.step(), r, f);                              \
            case 2: return pxliDivC_##t##_C3RSfs(s.data(), s.step(), v, d.data(), d.step(), r, f);             \
            case 3: return pxliDivC_##t##_C3IRSfs(v, d.data(), d.step(), r, f);                                 \
            case 4: return pxliDivC_##t##_C4RSfs(s.data(), s.step(), v, d.data(), d.step(), r, f);             \
            case 5: return pxliDivC_##t##_C4IRSfs(v, d.data(), d.step(), r, f);                                 \
            case 6: return pxliDivC_##t##_AC4RSfs(s.data(), s.step(), v, d.data(), d.step(), r, f);            \
            default: return pxliDivC_##t##_AC4IRSfs_L(v, d.data(), d.step(), {r.width, r.height}, f);           \
            }                                                                                                    \
        }                                                                                                        \
    };
PXLT_DIV_FORMS(Pxl8u, 8u)
PXLT_DIV_FORMS(Pxl16u, 16u)
PXLT_DIV_FORMS(Pxl16s, 16s)

template <class T> class DivInt : public ::testing::Test {};
TYPED_TEST_SUITE(DivInt, IntTypes);

TYPED_TEST(DivInt, QuotientsAreExactAndZeroDivisorsWarn)
{
    using T = TypeParam;
    Rng rng(62);
    auto divRef = [](T a, T b, int f) {
        if constexpr (std::is_same_v<T, Pxl16u>) return fixedQuotientReference(a, b, f);
        else return quotientReference<T>(a, b, f, 1);
    };
    for (int f : scaleFactors())
        for (int L = 0; L < 4; ++L)
            for (bool ip : {false, true}) {
                ASSERT_TRUE(checkBinary<T>(
                    L, ip, [&](const auto& a, const auto& b, auto& d, PxliSize r) { return DivForms<T>::bin(L, ip, a, b, d, r, f); },
                    [&](T a, T b, int) { return divRef(a, b, f); }, rng, pxlStatusWarnDivideByZero))
                    << "Div f=" << f << " layout " << L << (ip ? " in place" : "");
                for (int code : {0, 1, 2})
                    ASSERT_TRUE(checkBinary<T>(
                        L, ip, [&](const auto& a, const auto& b, auto& d, PxliSize r) { return DivForms<T>::round(L, ip, a, b, d, r, code, f); },
                        [&](T a, T b, int) { return quotientReference<T>(a, b, f, code); }, rng, pxlStatusWarnDivideByZero))
                        << "Div_Round code " << code << " f=" << f << " layout " << L;
                T v[4];
                for (T& x : v) x = rng.sample<T>(0.2);
                for (T& x : v) x = x == T(0) ? T(1) : x;
                ASSERT_TRUE(checkBinary<T>(
                    L, ip, [&](const auto&, const auto& b, auto& d, PxliSize r) { return DivForms<T>::con(L, ip, v, b, d, r, f); },
                    [&](T, T b, int c) { return divRef(v[c], b, f); }, rng))
                    << "DivC f=" << f << " layout " << L;
            }
}

TEST(Div, WorkedExamples)
{
    auto div8 = [](Pxl8u divisor, Pxl8u dividend, int f, PxlStatus want) {
        Pxl8u d = 7;
        EXPECT_EQ(pxliDiv_8u_C1RSfs(&divisor, 1, &dividend, 1, &d, 1, {1, 1}, f), want);
        return int{d};
    };
    EXPECT_EQ(div8(0, 0, 0, pxlStatusWarnDivideByZero), 0);
    EXPECT_EQ(div8(0, 5, 0, pxlStatusWarnDivideByZero), 255);
    EXPECT_EQ(div8(2, 1, 0, pxlStatusOk), 0);  // a half goes to even
    EXPECT_EQ(div8(2, 3, 0, pxlStatusOk), 2);
    Pxl16s a = 0, b = -1, d = 7;
    EXPECT_EQ(pxliDiv_16s_C1RSfs(&a, 2, &b, 2, &d, 2, {1, 1}, 0), pxlStatusWarnDivideByZero);
    EXPECT_EQ(d, -32768);
    a = -1;
    b = -32768;
    EXPECT_EQ(pxliDiv_16s_C1RSfs(&a, 2, &b, 2, &d, 2, {1, 1}, 0), pxlStatusOk);
    EXPECT_EQ(d, 32767);  // saturates
    float fz = 0.0f, fd = 0;
    EXPECT_EQ(pxliDiv_32f_C1R(&fz, 4, &fz, 4, &fd, 4, {1, 1}), pxlStatusWarnDivideByZero);
    EXPECT_EQ(std::bit_cast<uint32_t>(fd), kDivideByZeroNaN);
    // A zero constant is refused before anything is written.
    GuardedImage<Pxl8u> img(5, 2);
    Watch w({&img});
    EXPECT_EQ(pxliDivC_8u_C1RSfs(img.data(), img.step(), 0, img.data(), img.step(), img.size(), 0), pxlStatusDivideByZero);
    const Pxl8u v3[3] = {1, 0, 2};
    GuardedImage<Pxl8u> img3(5, 2, 3);
    Watch w3({&img3});
    EXPECT_EQ(pxliDivC_8u_C3IRSfs(v3, img3.data(), img3.step(), img3.size(), 0), pxlStatusDivideByZero);
    EXPECT_TRUE(w.unchanged());
    EXPECT_TRUE(w3.unchanged());
    Pxl8u one = 1;
    EXPECT_EQ(pxliDiv_Round_8u_C1RSfs(&one, 1, &one, 1, &one, 1, {1, 1}, 3, 0), pxlStatusBadRoundMode);
}

// The quotient rows convert under the nearest mode and take -0 divisors as +0: a caller's other
// rounding mode changes no result and is in force again afterwards.
TEST(Div, ResultsDoNotDependOnTheCallersRoundingMode)
{
    Rng rng(64);
    auto check = [&](auto sample, auto call) {
        using T = decltype(sample);
        const auto a = randomImage<T>(37, 3, 1, rng, 0.3), b = randomImage<T>(37, 3, 1, rng, 0.3);
        const auto start = randomImage<T>(37, 3, 1, rng);
        auto want = start;
        ASSERT_GE(call(a, b, want), pxlStatusOk);
        for (int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
            auto got = start;
            ASSERT_EQ(std::fesetround(mode), 0);
            const PxlStatus st = call(a, b, got);
            const int after = std::fegetround();
            std::fesetround(FE_TONEAREST);
            EXPECT_EQ(after, mode);
            ASSERT_GE(st, pxlStatusOk);
            EXPECT_TRUE(regionsEqual(got, want)) << "mode " << mode << " " << sizeof(T);
        }
    };
    for (int f : {-3, 0, 1}) {
        check(Pxl8u{}, [&](const auto& a, const auto& b, auto& d) { return pxliDiv_8u_C1RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), a.size(), f); });
        check(Pxl16s{}, [&](const auto& a, const auto& b, auto& d) { return pxliDiv_16s_C1RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), a.size(), f); });
    }
    check(Pxl32f{}, [&](const auto& a, const auto& b, auto& d) { return pxliDiv_32f_C1R(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), a.size()); });
    check(Pxl32f{}, [&](const auto& a, const auto& b, auto& d) { return pxliDiv_32f_AC4R(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), {9, 3}); });
}

TEST(Div32f, QuotientsZeroDivisorsAndTheReciprocalOfDivC)
{
    Rng rng(63);
    const float inf = std::numeric_limits<float>::infinity();
    for (int L = 0; L < 4; ++L)
        for (bool ip : {false, true})
            for (int trial = 0; trial < 20; ++trial) {
                auto call = [&](const GuardedImage<Pxl32f>& a, const GuardedImage<Pxl32f>& b, GuardedImage<Pxl32f>& d, PxliSize r) {
                    static const decltype(&pxliDiv_32f_C1R) plain[4] = {pxliDiv_32f_C1R, pxliDiv_32f_C3R, pxliDiv_32f_C4R, pxliDiv_32f_AC4R};
                    static const decltype(&pxliDiv_32f_C1IR) inPlace[4] = {pxliDiv_32f_C1IR, pxliDiv_32f_C3IR, pxliDiv_32f_C4IR, pxliDiv_32f_AC4IR};
                    return ip ? inPlace[L](a.data(), a.step(), d.data(), d.step(), r)
                              : plain[L](a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r);
                };
                ASSERT_TRUE(checkBinary<Pxl32f>(L, ip, call, [&](float a, float b, int) {
                    if (a == 0.0f) return b > 0 ? inf : b < 0 ? -inf : std::bit_cast<float>(kDivideByZeroNaN);
                    return static_cast<float>(double(b) / double(a));
                }, rng, pxlStatusWarnDivideByZero));
            }
    // DivC multiplies by the reciprocal rounded to float.
    GuardedImage<Pxl32f> s(13, 2), d(13, 2);
    s.fillRandom(rng);
    const float v = 3.0f;
    ASSERT_EQ(pxliDivC_32f_C1R(s.data(), s.step(), v, d.data(), d.step(), s.size()), pxlStatusOk);
    const float r = 1.0f / v;
    for (int x = 0; x < 13; ++x) EXPECT_TRUE(sameBits(d.at(x, 1), s.at(x, 1) * r) || std::isnan(d.at(x, 1)));
}

// ---- MulScale, MulC64f -------------------------------------------------------------------------

TEST(MulScale, ProductsAsFractionsOfFullScale)
{
    // Every 8u pair: within one of the exact p / 255, full scale times x is x, zero is zero.
    GuardedImage<Pxl8u> a(256, 256), b(256, 256), d(256, 256);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x) {
            a.at(x, y) = static_cast<Pxl8u>(x);
            b.at(x, y) = static_cast<Pxl8u>(y);
        }
    ASSERT_EQ(pxliMulScale_8u_C1R(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), {256, 256}), pxlStatusOk);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x) {
            ASSERT_LE(std::abs(d.at(x, y) - x * y / 255.0), 1.0) << x << " " << y;
            if (x == 255) {
                ASSERT_EQ(d.at(x, y), y);
            }
            if (x == 0) {
                ASSERT_EQ(d.at(x, y), 0);
            }
            ASSERT_EQ(d.at(x, y), d.at(y, x));
        }
    EXPECT_EQ(d.at(128, 128), 64);
    Rng rng(64);
    for (int i = 0; i < 2000; ++i) {
        const Pxl16u p = rng.sample<Pxl16u>(), q = rng.sample<Pxl16u>(), full = 65535;
        Pxl16u r = 0;
        ASSERT_EQ(pxliMulScale_16u_C1R(&p, 2, &q, 2, &r, 2, {1, 1}), pxlStatusOk);
        ASSERT_LE(std::abs(r - double(p) * q / 65535.0), 1.0);
        ASSERT_EQ(pxliMulCScale_16u_C1R(&p, 2, full, &r, 2, {1, 1}), pxlStatusOk);
        ASSERT_EQ(r, p);
    }
    // Other layouts against the one-channel form; AC4 keeps alpha.
    for (int L = 1; L < 4; ++L) {
        auto ref = [](Pxl8u x, Pxl8u y) {
            Pxl8u r = 0;
            pxliMulScale_8u_C1R(&x, 1, &y, 1, &r, 1, {1, 1});
            return r;
        };
        ASSERT_TRUE(checkBinary<Pxl8u>(L, false, [&](const auto& p, const auto& q, auto& o, PxliSize r) {
            static const decltype(&pxliMulScale_8u_C3R) fn[3] = {pxliMulScale_8u_C3R, pxliMulScale_8u_C4R, pxliMulScale_8u_AC4R};
            return fn[L - 1](p.data(), p.step(), q.data(), q.step(), o.data(), o.step(), r);
        }, [&](Pxl8u x, Pxl8u y, int) { return ref(x, y); }, rng));
        const Pxl8u v[4] = {3, 200, 255, 77};
        ASSERT_TRUE(checkBinary<Pxl8u>(L, true, [&](const auto&, const auto&, auto& o, PxliSize r) {
            static const decltype(&pxliMulCScale_8u_C3IR) fn[3] = {pxliMulCScale_8u_C3IR, pxliMulCScale_8u_C4IR, pxliMulCScale_8u_AC4IR};
            return fn[L - 1](v, o.data(), o.step(), r);
        }, [&](Pxl8u, Pxl8u y, int c) { return ref(y, v[c]); }, rng));
    }
}

namespace {
// x times the double constant, clamped to T, rounded by code (0 toward zero, 1 nearest even, any
// other half up).
template <class T> T mulC64fReference(T x, double c, int code)
{
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(double(x) * c);
    } else {
        using L = std::numeric_limits<T>;
        long double v = static_cast<long double>(double(x) * c);
        if (std::isnan(v)) return 0;
        v = std::clamp<long double>(v, L::min(), L::max());
        const long double fl = std::floor(v), fr = v - fl;
        long double r;
        if (code == 0) r = std::trunc(v);
        else if (code == 1) r = fr > 0.5L ? fl + 1 : fr < 0.5L ? fl : (std::fmod(fl, 2.0L) == 0 ? fl : fl + 1);
        else r = fr >= 0.5L ? fl + 1 : fl;
        return static_cast<T>(r);
    }
}

template <class T, class Fn, class FnI> void expectMulC64f(Fn out, FnI in, int n, Rng& rng)
{
    for (int code : {0, 1, 2, 9})
        for (int trial = 0; trial < 10; ++trial) {
            double c[4];
            for (double& x : c) x = rng.chance(0.2) ? 0.5 * rng.uniformInt(-6, 6) : std::ldexp(rng.uniformInt(-1000, 1000), rng.uniformInt(-12, 2));
            // Rows long enough for every vector width of the row kernels and their tails.
    const int w = rng.chance(0.5) ? rng.uniformInt(1, 9) : rng.uniformInt(10, 45), h = rng.uniformInt(1, 3);
            auto src = randomImage<T>(w, h, n, rng, 0.2);
            if constexpr (std::is_floating_point_v<T>) {
                (void)0;
            } else {
                for (int i = 0; i < 3; ++i) src.at(rng.uniformInt(0, w - 1), 0, 0) = static_cast<T>(rng.uniformInt(0, 9));
            }
            auto dst = randomImage<T>(w, h, n, rng, 0.3);
            ASSERT_EQ(out(src.data(), src.step(), c, dst.data(), dst.step(), PxliSize{w, h}, 0, code), pxlStatusOk);
            auto img = src;
            ASSERT_EQ(in(img.data(), img.step(), c, PxliSize{w, h}, 2, code), pxlStatusOk);
            ASSERT_TRUE(dst.guardsIntact());
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    for (int ch = 0; ch < n; ++ch) {
                        const T want = mulC64fReference<T>(src.at(x, y, ch), c[ch], code);
                        ASSERT_TRUE(sameBits(dst.at(x, y, ch), want) || (want != want && dst.at(x, y, ch) != dst.at(x, y, ch)))
                            << +src.at(x, y, ch) << " * " << c[ch] << " code " << code << " gave " << +dst.at(x, y, ch) << " want " << +want;
                        ASSERT_TRUE(sameBits(img.at(x, y, ch), dst.at(x, y, ch)) || img.at(x, y, ch) != img.at(x, y, ch));
                    }
        }
}
}  // namespace

TEST(MulC64f, ProductsClampedAndRoundedByCode)
{
    Rng rng(65);
    expectMulC64f<Pxl8u>(pxliMulC64f_8u_C1R, pxliMulC64f_8u_C1IR, 1, rng);
    expectMulC64f<Pxl8u>(pxliMulC64f_8u_C3R, pxliMulC64f_8u_C3IR, 3, rng);
    expectMulC64f<Pxl16u>(pxliMulC64f_16u_C4R, pxliMulC64f_16u_C4IR, 4, rng);
    expectMulC64f<Pxl16u>(pxliMulC64f_16u_C1R, pxliMulC64f_16u_C1IR, 1, rng);
    expectMulC64f<Pxl16s>(pxliMulC64f_16s_C1R, pxliMulC64f_16s_C1IR, 1, rng);
    expectMulC64f<Pxl16s>(pxliMulC64f_16s_C3R, pxliMulC64f_16s_C3IR, 3, rng);
    expectMulC64f<Pxl32f>(pxliMulC64f_32f_C1R, pxliMulC64f_32f_C1IR, 1, rng);
    expectMulC64f<Pxl32f>(pxliMulC64f_32f_C4R, pxliMulC64f_32f_C4IR, 4, rng);
    auto one = [](Pxl8u x, double c, int code) {
        Pxl8u d = 0;
        EXPECT_EQ(pxliMulC64f_8u_C1R(&x, 1, &c, &d, 1, {1, 1}, 0, code), pxlStatusOk);
        return int{d};
    };
    EXPECT_EQ(one(1, 2.5, 1), 2);
    EXPECT_EQ(one(1, 2.5, 2), 3);
    EXPECT_EQ(one(1, 2.5, 0), 2);
    EXPECT_EQ(one(1, 300.0, 1), 255);
    EXPECT_EQ(one(7, -2.0, 1), 0);
}

// ---- Orders of checks ----------------------------------------------------------------------------

TEST(MulDiv, OrdersOfChecks)
{
    GuardedImage<Pxl8u> a(6, 4, 4), b(6, 4, 4), d(6, 4, 4);
    struct A { const Pxl8u* a; Pxl8u* d; int step; PxliSize roi; };
    const A valid{a.data(), d.data(), a.step(), {6, 4}};
    const Fault<A> nullA{"null source", pxlStatusNullPointer, [](A& x) { x.a = nullptr; }};
    const Fault<A> nullD{"null destination", pxlStatusNullPointer, [](A& x) { x.d = nullptr; }};
    const Fault<A> size0{"height 0", pxlStatusBadSize, [](A& x) { x.roi.height = 0; }};
    const Fault<A> width0{"width 0", pxlStatusBadSize, [](A& x) { x.roi.width = 0; }};
    const Fault<A> step0{"step 0", pxlStatusBadStep, [](A& x) { x.step = 0; }};
    auto div = [&](auto fn) { return [&, fn](const A& x) { return fn(x.a, x.step, b.data(), b.step(), x.d, d.step(), x.roi, 0); }; };
    // Div 8u C1/C3/C4: pointers, sizes, steps; AC4: steps first.
    expectCheckOrder(valid, {nullA, nullD, size0, step0}, div(pxliDiv_8u_C1RSfs), {&d});
    expectCheckOrder(valid, {nullA, nullD, width0, step0}, div(pxliDiv_8u_C3RSfs), {&d});
    expectCheckOrder(valid, {step0, nullA, nullD, size0}, div(pxliDiv_8u_AC4RSfs), {&d});
    // Div_Round: pointers, sizes, steps, then the code.
    expectCheckOrder(valid, {nullA, size0, step0, {"code 5", pxlStatusBadRoundMode, [](A&) {}}},
                     [&](const A& x) { return pxliDiv_Round_8u_C1RSfs(x.a, x.step, b.data(), b.step(), x.d, d.step(), x.roi, 5, 0); }, {&d});
    // MulScale C1: pointers, steps, sizes; C3: the width first.
    auto ms = [&](auto fn) { return [&, fn](const A& x) { return fn(x.a, x.step, b.data(), b.step(), x.d, d.step(), x.roi); }; };
    expectCheckOrder(valid, {nullA, nullD, step0, size0}, ms(pxliMulScale_8u_C1R), {&d});
    expectCheckOrder(valid, {width0, nullA, step0}, ms(pxliMulScale_8u_C3R), {&d});
    // MulC64f: source, destination, constants, then sizes.
    static const double k[3] = {1, 2, 3};
    expectCheckOrder(valid, {nullA, nullD, size0},
                     [&](const A& x) { return pxliMulC64f_8u_C3R(x.a, x.step, k, x.d, d.step(), x.roi, 0, 1); }, {&d});
    EXPECT_EQ(pxliMulC64f_8u_C3R(a.data(), a.step(), nullptr, d.data(), d.step(), {0, 0}, 0, 1), pxlStatusNullPointer);
    // DivC 8u: pointers, sizes, steps, then a zero constant; 16u does not check steps.
    expectCheckOrder(valid, {nullA, size0, step0, {"zero constant", pxlStatusDivideByZero, [](A&) {}}},
                     [&](const A& x) { return pxliDivC_8u_C1RSfs(x.a, x.step, 0, x.d, d.step(), x.roi, 0); }, {&d});
    Pxl16u s16[2] = {1, 2}, d16[2];
    EXPECT_EQ(pxliDivC_16u_C1RSfs(s16, 0, 0, d16, 0, {2, 1}, 0), pxlStatusDivideByZero);
    EXPECT_EQ(pxliDiv_16u_C1RSfs(s16, 0, s16, 0, d16, 0, {2, 1}, 0), pxlStatusOk);
}
