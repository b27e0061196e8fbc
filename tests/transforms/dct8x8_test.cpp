// The 8x8 DCT family against the orthonormal DCT in long double: forward and inverse, whole and
// reduced, integer and float, the level shifts and limits; zigzag as a permutation; statuses.
#include "pxltest.hpp"

#include <array>
#include <cmath>
#include <cstring>

namespace {

using pxltest::GuardedImage;
using pxltest::Rng;
using Block = std::array<Pxl16s, 64>;
using Real = std::array<long double, 64>;

// The orthonormal 8x8 DCT-II and its inverse.
long double basis(int k, int n)
{
    const long double s = k == 0 ? std::sqrt(1.0L / 8) : std::sqrt(2.0L / 8);
    return s * std::cos((2 * n + 1) * k * 3.14159265358979323846264338327950288L / 16);
}
template <class In> Real dct(const In& x)
{
    Real y{};
    for (int u = 0; u < 8; ++u)
        for (int v = 0; v < 8; ++v)
            for (int i = 0; i < 8; ++i)
                for (int j = 0; j < 8; ++j) y[8 * u + v] += basis(u, i) * basis(v, j) * static_cast<long double>(x[8 * i + j]);
    return y;
}
template <class In> Real idct(const In& c)
{
    Real x{};
    for (int i = 0; i < 8; ++i)
        for (int j = 0; j < 8; ++j)
            for (int u = 0; u < 8; ++u)
                for (int v = 0; v < 8; ++v) x[8 * i + j] += basis(u, i) * basis(v, j) * static_cast<long double>(c[8 * u + v]);
    return x;
}

// Pixels of a level-shifted 8-bit image, with the extremes -128 and 127 often.
Block pixels(Rng& rng)
{
    Block b{};
    for (auto& v : b) v = static_cast<Pxl16s>(rng.chance(0.2) ? (rng.chance(0.5) ? -128 : 127) : rng.uniformInt(-128, 127));
    return b;
}
// Coefficients of such pixels, rounded, with the high frequencies often dropped.
Block coefficients(Rng& rng)
{
    const Real c = dct(pixels(rng));
    const int keep = rng.uniformInt(1, 8);
    Block b{};
    for (int u = 0; u < 8; ++u)
        for (int v = 0; v < 8; ++v) b[8 * u + v] = u < keep && v < keep ? static_cast<Pxl16s>(std::lround(static_cast<double>(c[8 * u + v]))) : 0;
    return b;
}

template <class Got> ::testing::AssertionResult near(const Got& got, const Real& want, long double slack, int n = 64)
{
    for (int k = 0; k < n; ++k)
        if (!(std::fabs(static_cast<long double>(got[k]) - want[k]) <= slack))
            return ::testing::AssertionFailure() << "at " << k << ": got " << +got[k] << ", want " << static_cast<double>(want[k]);
    return ::testing::AssertionSuccess();
}

// The passes written out from their rules in 64-bit arithmetic, each result cut to 16 bits with
// wrapping, and the transforms built from them, for bit-exact comparison.
using I64 = long long;
I64 wrap32(I64 v) { return static_cast<int32_t>(static_cast<uint32_t>(static_cast<unsigned long long>(v))); }
Pxl16s cut(I64 v) { return static_cast<Pxl16s>(static_cast<uint16_t>(static_cast<unsigned long long>(v))); }
I64 sh(I64 v, int s) { return wrap32(v) >> s; }  // the arithmetic shift of the 32-bit value

void modelForwardPass(const I64* x, Pxl16s* y, bool first)
{
    const I64 R = first ? 2048 : 1048576;
    const int S = first ? 12 : 21;
    const I64 a = sh((x[0] - x[7]) * 46341 + 2048, 12), b = sh((x[3] - x[4]) * 46341 + 2048, 12);
    const I64 c = (x[1] - x[6]) * 8, d = (x[2] - x[5]) * 8;
    const I64 e0 = x[0] + x[7] + x[3] + x[4], e1 = x[0] + x[7] - x[3] - x[4], e2 = x[1] + x[6] + x[2] + x[5], e3 = x[1] + x[6] - x[2] - x[5];
    const I64 t = (e1 + e3) * 17734, u0 = a + c + d, u1 = a - c - d, u2 = b + c - d, u3 = b - c + d;
    const I64 r0 = (u0 + u2) * 799, r1 = (u1 + u3) * 3406;
    y[1] = cut(sh(r0 + 3218 * u0 + R, S));
    y[7] = cut(sh(r0 - 4816 * u2 + R, S));
    y[3] = cut(sh(r1 - 5681 * u3 + R, S));
    y[5] = cut(sh(r1 - 1130 * u1 + R, S));
    y[2] = cut(sh(25080 * e1 + t + R, S));
    y[6] = cut(sh(t - 60547 * e3 + R, S));
    y[0] = first ? cut((e0 + e2) * 8) : cut(sh(e0 + e2 + 32, 6));
    y[4] = first ? cut((e0 - e2) * 8) : cut(sh(e0 - e2 + 32, 6));
}
void modelOutputs(Pxl16s* o, I64 R, int S, I64 m0, I64 m1, I64 m2, I64 m3, I64 P, I64 Q, I64 H, I64 J)
{
    const I64 v[8] = {m0 + P, m2 + H, m3 + J, m1 + Q, m1 - Q, m3 - J, m2 - H, m0 - P};
    for (int k = 0; k < 8; ++k) o[k] = cut(sh(v[k] + R, S));
}
// kind 8: the whole pass; 2 and 4: the passes of the reduced inverses.
void modelInversePass(const I64* c, Pxl16s* o, I64 R, int S, int kind)
{
    if (kind == 2) {
        const I64 f = c[0] * 32768, P = sh(32138 * c[1] + 2048, 12) * 5793, Q = sh(6393 * c[1] + 2048, 12) * 5793;
        return modelOutputs(o, R, S, f, f, f, f, P, Q, 38531 * c[1], 25745 * c[1]);
    }
    if (kind == 4) {
        const I64 f = c[0] * 32768, E = 32138 * c[1] - 27246 * c[3], G = 6393 * c[1] + 18205 * c[3];
        const I64 P = sh(32138 * c[1] + 27246 * c[3] + 2048, 12) * 5793, Q = sh(6393 * c[1] - 18205 * c[3] + 2048, 12) * 5793;
        return modelOutputs(o, R, S, f + 42813 * c[2], f - 42813 * c[2], f + 17734 * c[2], f - 17734 * c[2], P, Q, E + G, E - G);
    }
    const I64 A = -9041 * c[5] + 27246 * (c[5] + c[3]), B = 27246 * (c[5] + c[3]) - 45451 * c[3];
    const I64 C = 25746 * c[1] + 6393 * (c[1] + c[7]), D = 6393 * (c[1] + c[7]) - 38531 * c[7];
    const I64 P = sh(A + C + 2048, 12) * 5793, Q = sh(B + D + 2048, 12) * 5793, H = (C - A) + (D - B), J = (C - A) - (D - B);
    const I64 f0 = c[0] * 32768, f4 = c[4] * 32768;
    const I64 K = 25080 * c[2] + 17734 * (c[2] + c[6]), L = 17734 * (c[2] + c[6]) - 60547 * c[6];
    modelOutputs(o, R, S, f0 + f4 + K, f0 + f4 - K, f0 - f4 + L, f0 - f4 - L, P, Q, H, J);
}

Block modelForward(const Block& x)
{
    Block y{};
    for (int i = 0; i < 8; ++i) {
        I64 v[8];
        for (int j = 0; j < 8; ++j) v[j] = x[8 * i + j];
        modelForwardPass(v, &y[8 * i], true);
    }
    for (int j = 0; j < 8; ++j) {
        I64 v[8];
        Pxl16s o[8];
        for (int i = 0; i < 8; ++i) v[i] = y[8 * i + j];
        modelForwardPass(v, o, false);
        for (int i = 0; i < 8; ++i) y[8 * i + j] = o[i];
    }
    return y;
}
Block modelInverse(const Block& c, int kind, I64 r1, int s1, I64 r2, int s2)
{
    Block x{};
    for (int j = 0; j < (kind == 8 ? 8 : kind); ++j) {
        I64 v[8];
        Pxl16s o[8];
        for (int i = 0; i < 8; ++i) v[i] = c[8 * i + j];
        modelInversePass(v, o, r1, s1, kind);
        for (int i = 0; i < 8; ++i) x[8 * i + j] = o[i];
    }
    for (int i = 0; i < 8; ++i) {
        I64 v[8];
        for (int j = 0; j < 8; ++j) v[j] = x[8 * i + j];
        modelInversePass(v, &x[8 * i], r2, s2, kind);
    }
    return x;
}
// The 4x4 and 2x2 images: the pass over each column read, cut to 16 bits, then over each row.
std::array<Pxl16s, 16> modelSmall(const Block& c, int side)
{
    auto pass = [&](const I64* v, I64 R, int S, I64* o) {
        if (side == 4) {
            const I64 a = 41991 * v[1] + 14745 * v[3] - 9852 * v[5] - 8352 * v[7];
            const I64 b = 17393 * v[1] - 35598 * v[3] + 23786 * v[5] - 3460 * v[7];
            const I64 e = 30274 * v[2] - 12540 * v[6], f = v[0] * 32768;
            o[0] = sh(f + e + a + R, S), o[3] = sh(f + e - a + R, S), o[1] = sh(f - e + b + R, S), o[2] = sh(f - e - b + R, S);
        } else {
            const I64 a = 59384 * v[1] - 20853 * v[3] + 13932 * v[5] - 11812 * v[7], f = v[0] * 65536;
            o[0] = sh(f + a + R, S), o[1] = sh(f - a + R, S);
        }
    };
    const I64 r1 = side == 4 ? 2048 : 4096, r2 = side == 4 ? 1048576 : 2097152;
    const int s1 = side == 4 ? 12 : 13, s2 = side == 4 ? 21 : 22;
    Pxl16s rows[4][8] = {};
    for (int j = 0; j < 8; ++j) {
        I64 v[8], o[4];
        for (int i = 0; i < 8; ++i) v[i] = c[8 * i + j];
        pass(v, r1, s1, o);
        for (int i = 0; i < side; ++i) rows[i][j] = cut(o[i]);
    }
    std::array<Pxl16s, 16> out{};
    for (int i = 0; i < side; ++i) {
        I64 v[8], o[4];
        for (int j = 0; j < 8; ++j) v[j] = rows[i][j];
        pass(v, r2, s2, o);
        for (int k = 0; k < side; ++k) out[side * i + k] = cut(o[k]);
    }
    return out;
}

// Any 16-bit samples, often extreme, so that sums wrap.
Block anyBlock(Rng& rng)
{
    Block b{};
    for (auto& v : b) v = rng.sample<Pxl16s>(0.2);
    return b;
}

// Every integer form equals the passes of its rule, bit for bit, on blocks of any values.
TEST(Dct8x8, IntegerFormsAreTheirPasses)
{
    Rng rng(6);
    for (int n = 0; n < 2000; ++n) {
        const Block x = n % 2 ? anyBlock(rng) : pixels(rng), c = n % 2 ? anyBlock(rng) : coefficients(rng);
        Block got{};
        ASSERT_EQ(pxliDCT8x8Fwd_16s_C1(x.data(), got.data()), pxlStatusOk);
        EXPECT_EQ(got, modelForward(x)) << "forward, block " << n;
        ASSERT_EQ(pxliDCT8x8Inv_16s_C1(c.data(), got.data()), pxlStatusOk);
        EXPECT_EQ(got, modelInverse(c, 8, 2048, 12, 1048576, 21)) << "inverse, block " << n;
        ASSERT_EQ(pxliDCT8x8Inv_A10_16s_C1(c.data(), got.data()), pxlStatusOk);
        EXPECT_EQ(got, modelInverse(c, 8, 4096, 13, 524288, 20)) << "A10, block " << n;
        ASSERT_EQ(pxliDCT8x8Inv_2x2_16s_C1(c.data(), got.data()), pxlStatusOk);
        EXPECT_EQ(got, modelInverse(c, 2, 2048, 12, 1048576, 21)) << "2x2, block " << n;
        ASSERT_EQ(pxliDCT8x8Inv_4x4_16s_C1(c.data(), got.data()), pxlStatusOk);
        EXPECT_EQ(got, modelInverse(c, 4, 2048, 12, 1048576, 21)) << "4x4, block " << n;
        for (const int side : {2, 4}) {
            Block small = c;
            ASSERT_EQ((side == 2 ? pxliDCT8x8To2x2Inv_16s_C1I : pxliDCT8x8To4x4Inv_16s_C1I)(small.data()), pxlStatusOk);
            const auto want = modelSmall(c, side);
            for (int k = 0; k < side * side; ++k) EXPECT_EQ(small[k], want[k]) << side << "x" << side << " block " << n << " at " << k;
        }
    }
}

TEST(Dct8x8, ForwardAgainstTheModel)
{
    Rng rng(1);
    for (int n = 0; n < 300; ++n) {
        const Block x = pixels(rng);
        Block y{}, inPlace = x, fromRegion{};
        ASSERT_EQ(pxliDCT8x8Fwd_16s_C1(x.data(), y.data()), pxlStatusOk);
        EXPECT_TRUE(near(y, dct(x), 1.0L)) << "block " << n;
        ASSERT_EQ(pxliDCT8x8Fwd_16s_C1I(inPlace.data()), pxlStatusOk);
        EXPECT_EQ(inPlace, y);
        // The same block from an image region, and as 8-bit pixels with and without a level shift.
        GuardedImage<Pxl16s> img(8, 8);
        GuardedImage<Pxl8u> px(8, 8);
        for (int k = 0; k < 64; ++k) {
            img.at(k % 8, k / 8) = x[k];
            px.at(k % 8, k / 8) = static_cast<Pxl8u>(x[k] + 128);
        }
        ASSERT_EQ(pxliDCT8x8Fwd_16s_C1R(img.data(), img.step(), fromRegion.data()), pxlStatusOk);
        EXPECT_EQ(fromRegion, y);
        ASSERT_EQ(pxliDCT8x8FwdLS_8u16s_C1R(px.data(), px.step(), fromRegion.data(), -128), pxlStatusOk);
        EXPECT_EQ(fromRegion, y);
        Block shifted{}, unsigned8{};
        for (int k = 0; k < 64; ++k) shifted[k] = static_cast<Pxl16s>(x[k] + 128);
        ASSERT_EQ(pxliDCT8x8Fwd_16s_C1(shifted.data(), y.data()), pxlStatusOk);
        ASSERT_EQ(pxliDCT8x8Fwd_8u16s_C1R(px.data(), px.step(), unsigned8.data()), pxlStatusOk);
        EXPECT_EQ(unsigned8, y);
    }
}

TEST(Dct8x8, InversesAgainstTheModel)
{
    Rng rng(2);
    for (int n = 0; n < 300; ++n) {
        const Block c = coefficients(rng);
        const Real want = idct(c);
        Block x{}, inPlace = c;
        ASSERT_EQ(pxliDCT8x8Inv_16s_C1(c.data(), x.data()), pxlStatusOk);
        EXPECT_TRUE(near(x, want, 1.0L)) << "block " << n;
        ASSERT_EQ(pxliDCT8x8Inv_16s_C1I(inPlace.data()), pxlStatusOk);
        EXPECT_EQ(inPlace, x);
        Block a10{};
        ASSERT_EQ(pxliDCT8x8Inv_A10_16s_C1(c.data(), a10.data()), pxlStatusOk);
        EXPECT_TRUE(near(a10, want, 1.0L)) << "block " << n;

        // Into image regions: as they are, limited to 8 bits, and level-shifted and clipped.
        GuardedImage<Pxl16s> img(8, 8);
        GuardedImage<Pxl8u> px(8, 8);
        ASSERT_EQ(pxliDCT8x8Inv_16s_C1R(c.data(), img.data(), img.step()), pxlStatusOk);
        EXPECT_TRUE(pxltest::matchesEach(img, [&](int i, int j, int) { return x[8 * j + i]; }));
        ASSERT_EQ(pxliDCT8x8Inv_16s8u_C1R(c.data(), px.data(), px.step()), pxlStatusOk);
        EXPECT_TRUE(pxltest::matchesEach(px, [&](int i, int j, int) { return static_cast<Pxl8u>(std::clamp<int>(x[8 * j + i], 0, 255)); }));
        const Pxl16s addVal = static_cast<Pxl16s>(rng.uniformInt(-300, 300));
        const Pxl8u lo = static_cast<Pxl8u>(rng.uniformInt(0, 255)), hi = static_cast<Pxl8u>(rng.uniformInt(0, 255));
        ASSERT_EQ(pxliDCT8x8InvLSClip_16s8u_C1R(c.data(), px.data(), px.step(), addVal, lo, hi), pxlStatusOk);
        EXPECT_TRUE(pxltest::matchesEach(px, [&](int i, int j, int) {
            const int s = x[8 * j + i] + addVal;
            return static_cast<Pxl8u>(s < lo ? lo : s >= hi ? hi : s);
        })) << "addVal " << addVal << ", limits " << +lo << " and " << +hi;
    }
}

// The reduced inverses give the whole inverse of blocks whose other coefficients are zero, within
// a unit, and never read those coefficients.
TEST(Dct8x8, ReducedInverses)
{
    Rng rng(3);
    for (int n = 0; n < 200; ++n) {
        for (const int side : {2, 4}) {
            Block c = coefficients(rng), garbage{};
            for (int k = 0; k < 64; ++k)
                if (k / 8 >= side || k % 8 >= side) c[k] = 0, garbage[k] = static_cast<Pxl16s>(rng.uniformInt(-32768, 32767));
                else garbage[k] = c[k];
            Block got{}, inPlace = garbage;
            const auto fn = side == 2 ? pxliDCT8x8Inv_2x2_16s_C1 : pxliDCT8x8Inv_4x4_16s_C1;
            const auto fnI = side == 2 ? pxliDCT8x8Inv_2x2_16s_C1I : pxliDCT8x8Inv_4x4_16s_C1I;
            ASSERT_EQ(fn(garbage.data(), got.data()), pxlStatusOk);
            EXPECT_TRUE(near(got, idct(c), 1.0L)) << side << "x" << side << " block " << n;
            ASSERT_EQ(fnI(inPlace.data()), pxlStatusOk);
            EXPECT_EQ(inPlace, got);
        }
    }
}

// The 2x2 and 4x4 images are the means of 4x4 and 2x2 pixels of the inverse; the rows and columns
// whose contributions cancel are not read, and the in-place forms keep the rest of the block.
TEST(Dct8x8, SmallImages)
{
    Rng rng(4);
    for (int n = 0; n < 200; ++n) {
        for (const int side : {2, 4}) {
            Block c = coefficients(rng);
            const int cell = 8 / side;
            auto unread = [&](int k) {
                auto skip = [&](int i) { return side == 4 ? i == 4 : (i == 2 || i == 4 || i == 6); };
                return skip(k / 8) || skip(k % 8);
            };
            Block garbage = c, clean = c;
            for (int k = 0; k < 64; ++k)
                if (unread(k)) garbage[k] = static_cast<Pxl16s>(rng.uniformInt(-32768, 32767)), clean[k] = 0;
            const Real x = idct(clean);
            Real mean{};
            for (int i = 0; i < side; ++i)
                for (int j = 0; j < side; ++j) {
                    for (int a = 0; a < cell; ++a)
                        for (int b = 0; b < cell; ++b) mean[side * i + j] += x[8 * (cell * i + a) + cell * j + b];
                    mean[side * i + j] /= cell * cell;
                }
            Block got{}, inPlace = garbage;
            const auto fn = side == 2 ? pxliDCT8x8To2x2Inv_16s_C1 : pxliDCT8x8To4x4Inv_16s_C1;
            const auto fnI = side == 2 ? pxliDCT8x8To2x2Inv_16s_C1I : pxliDCT8x8To4x4Inv_16s_C1I;
            ASSERT_EQ(fn(garbage.data(), got.data()), pxlStatusOk);
            EXPECT_TRUE(near(got, mean, 1.0L, side * side)) << side << "x" << side << " block " << n;
            ASSERT_EQ(fnI(inPlace.data()), pxlStatusOk);
            for (int k = 0; k < 64; ++k) EXPECT_EQ(inPlace[k], k < side * side ? got[k] : garbage[k]) << k;
        }
    }
}

TEST(Dct8x8, FloatForms)
{
    Rng rng(5);
    for (int n = 0; n < 100; ++n) {
        std::array<Pxl32f, 64> x{}, y{}, back{};
        for (auto& v : x) v = static_cast<Pxl32f>(rng.uniformInt(-100000, 100000)) / 64;
        ASSERT_EQ(pxliDCT8x8Fwd_32f_C1(x.data(), y.data()), pxlStatusOk);
        EXPECT_TRUE(near(y, dct(x), 2e-3L));
        ASSERT_EQ(pxliDCT8x8Inv_32f_C1(y.data(), back.data()), pxlStatusOk);
        EXPECT_TRUE(near(back, idct(y), 2e-3L));
        std::array<Pxl32f, 64> inPlace = x;
        ASSERT_EQ(pxliDCT8x8Fwd_32f_C1I(inPlace.data()), pxlStatusOk);
        EXPECT_EQ(std::memcmp(inPlace.data(), y.data(), sizeof(y)), 0);
        ASSERT_EQ(pxliDCT8x8Inv_32f_C1I(inPlace.data()), pxlStatusOk);
        EXPECT_EQ(std::memcmp(inPlace.data(), back.data(), sizeof(y)), 0);
    }
}

TEST(Dct8x8, ExactCases)
{
    // Each basis function alone, both signs, through the whole inverse and back.
    for (int k = 0; k < 64; ++k)
        for (const int v : {300, -300}) {
            Block c{}, x{}, y{};
            c[static_cast<std::size_t>(k)] = static_cast<Pxl16s>(v);
            ASSERT_EQ(pxliDCT8x8Inv_16s_C1(c.data(), x.data()), pxlStatusOk);
            EXPECT_TRUE(near(x, idct(c), 1.0L)) << "coefficient " << k << " of " << v;
            ASSERT_EQ(pxliDCT8x8Fwd_16s_C1(x.data(), y.data()), pxlStatusOk);
            EXPECT_TRUE(near(y, dct(x), 1.0L)) << "coefficient " << k << " of " << v;
        }
    // A flat block gives 8 v at (0,0) and nothing else while its row sums (64 v after the first
    // pass) stay in 16 bits; zeros stay zeros both ways.
    for (const int v : {0, 1, -7, 255, -256, 511, -512}) {
        Block x{}, y{};
        x.fill(static_cast<Pxl16s>(v));
        ASSERT_EQ(pxliDCT8x8Fwd_16s_C1(x.data(), y.data()), pxlStatusOk);
        for (int k = 0; k < 64; ++k) EXPECT_EQ(y[k], k == 0 ? 8 * v : 0) << "v " << v << " at " << k;
    }
    Block zero{}, out{};
    out.fill(5);
    ASSERT_EQ(pxliDCT8x8Inv_16s_C1(zero.data(), out.data()), pxlStatusOk);
    EXPECT_EQ(out, zero);
    // Level shift on zero coefficients; a negative reconstruction stored as 0; the 2x2 image of a
    // lone c(0,0) of 64.
    GuardedImage<Pxl8u> px(8, 8);
    ASSERT_EQ(pxliDCT8x8InvLSClip_16s8u_C1R(zero.data(), px.data(), px.step(), 128, 0, 255), pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(px, [](int, int, int) { return Pxl8u{128}; }));
    Block dark{};
    dark[0] = -80;
    ASSERT_EQ(pxliDCT8x8Inv_16s8u_C1R(dark.data(), px.data(), px.step()), pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(px, [](int, int, int) { return Pxl8u{0}; }));
    Block lone{}, small{};
    lone[0] = 64;
    ASSERT_EQ(pxliDCT8x8To2x2Inv_16s_C1(lone.data(), small.data()), pxlStatusOk);
    for (int k = 0; k < 4; ++k) EXPECT_EQ(small[k], 8);
    // Wrapping, not saturation: the row sums of a flat block of 600, 38400, are -27136 in 16 bits,
    // and the column pass gives (8 x -27136 + 32) >> 6.
    Block big{}, y{};
    big.fill(600);
    ASSERT_EQ(pxliDCT8x8Fwd_16s_C1(big.data(), y.data()), pxlStatusOk);
    EXPECT_EQ(y[0], -3392);
}

TEST(Dct8x8, Zigzag)
{
    Block natural{}, scan{}, back{};
    for (int k = 0; k < 64; ++k) natural[k] = static_cast<Pxl16s>(k);
    ASSERT_EQ(pxliZigzagFwd8x8_16s_C1(natural.data(), scan.data()), pxlStatusOk);
    const Pxl16s first[] = {0, 1, 8, 16, 9, 2, 3, 10}, last[] = {47, 55, 62, 63};
    for (int k = 0; k < 8; ++k) EXPECT_EQ(scan[k], first[k]);
    for (int k = 0; k < 4; ++k) EXPECT_EQ(scan[60 + k], last[k]);
    // A permutation whose every step moves to a neighbour along a diagonal or an edge.
    std::array<bool, 64> seen{};
    for (int k = 0; k < 64; ++k) {
        seen[static_cast<std::size_t>(scan[k])] = true;
        if (k > 0) {
            const int dr = std::abs(scan[k] / 8 - scan[k - 1] / 8), dc = std::abs(scan[k] % 8 - scan[k - 1] % 8);
            EXPECT_TRUE(dr <= 1 && dc <= 1) << k;
        }
    }
    EXPECT_TRUE(std::all_of(seen.begin(), seen.end(), [](bool b) { return b; }));
    ASSERT_EQ(pxliZigzagInv8x8_16s_C1(scan.data(), back.data()), pxlStatusOk);
    EXPECT_EQ(back, natural);
    ASSERT_EQ(pxliZigzagInv8x8_16s_C1(natural.data(), back.data()), pxlStatusOk);
    const Pxl16s inverseFirst[] = {0, 1, 5, 6, 14, 15, 27, 28};
    for (int k = 0; k < 8; ++k) EXPECT_EQ(back[k], inverseFirst[k]);
}

TEST(Dct8x8, Statuses)
{
    Block b{};
    b.fill(3);
    const Block keep = b;
    Pxl8u px[64] = {};
    EXPECT_EQ(pxliDCT8x8Fwd_16s_C1(nullptr, b.data()), pxlStatusNullPointer);
    EXPECT_EQ(pxliDCT8x8Fwd_16s_C1I(nullptr), pxlStatusNullPointer);
    EXPECT_EQ(pxliDCT8x8Fwd_16s_C1R(b.data(), 0, nullptr), pxlStatusNullPointer);
    EXPECT_EQ(pxliDCT8x8Fwd_16s_C1R(keep.data(), 0, b.data()), pxlStatusBadStep);
    EXPECT_EQ(pxliDCT8x8Fwd_8u16s_C1R(px, -8, b.data()), pxlStatusBadStep);
    EXPECT_EQ(pxliDCT8x8FwdLS_8u16s_C1R(px, 0, b.data(), -128), pxlStatusBadStep);
    EXPECT_EQ(pxliDCT8x8Inv_16s_C1R(keep.data(), b.data(), 0), pxlStatusBadStep);
    EXPECT_EQ(pxliDCT8x8Inv_16s8u_C1R(keep.data(), nullptr, 0), pxlStatusNullPointer);
    EXPECT_EQ(pxliDCT8x8InvLSClip_16s8u_C1R(keep.data(), px, 0, 128, 0, 255), pxlStatusBadStep);
    EXPECT_EQ(pxliDCT8x8Inv_A10_16s_C1(nullptr, b.data()), pxlStatusNullPointer);
    EXPECT_EQ(pxliDCT8x8To4x4Inv_16s_C1I(nullptr), pxlStatusNullPointer);
    EXPECT_EQ(pxliDCT8x8Inv_32f_C1(nullptr, nullptr), pxlStatusNullPointer);
    EXPECT_EQ(pxliZigzagFwd8x8_16s_C1(keep.data(), nullptr), pxlStatusNullPointer);
    EXPECT_EQ(b, keep);
    for (const Pxl8u v : px) EXPECT_EQ(v, 0);
}

}  // namespace
