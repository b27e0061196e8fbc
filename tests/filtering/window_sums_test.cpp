// Window sums along rows and columns: exact integer sums wherever they stay below 2^24, and the
// carried 32f sum (first window in order, then plus incoming minus outgoing) beyond.
#include "pxltest.hpp"

#include <cstdint>

namespace {

using pxltest::GuardedImage;
using pxltest::Rng;

constexpr int kMargin = 12;

template <class S, int N, bool Row>
PxlStatus callSum(const S* s, int ss, Pxl32f* d, int ds, PxliSize roi, int mask, int anchor)
{
#define PXL_SUM(t, ct)                                                                                           \
    if constexpr (std::is_same_v<S, ct>) {                                                                       \
        if constexpr (Row && N == 1) return pxliSumWindowRow_##t##32f_C1R(s, ss, d, ds, roi, mask, anchor);      \
        else if constexpr (Row && N == 3) return pxliSumWindowRow_##t##32f_C3R(s, ss, d, ds, roi, mask, anchor); \
        else if constexpr (Row) return pxliSumWindowRow_##t##32f_C4R(s, ss, d, ds, roi, mask, anchor);           \
        else if constexpr (N == 1) return pxliSumWindowColumn_##t##32f_C1R(s, ss, d, ds, roi, mask, anchor);     \
        else if constexpr (N == 3) return pxliSumWindowColumn_##t##32f_C3R(s, ss, d, ds, roi, mask, anchor);     \
        else return pxliSumWindowColumn_##t##32f_C4R(s, ss, d, ds, roi, mask, anchor);                           \
    }
    PXL_SUM(8u, Pxl8u)
    PXL_SUM(16u, Pxl16u)
    PXL_SUM(16s, Pxl16s)
#undef PXL_SUM
}

// Random regions, masks and anchors: every sum is an integer below 2^24, so each output is the
// exact sum of its window.
template <class S, int N, bool Row> void exactSums(uint64_t seed)
{
    Rng rng(seed);
    for (int n = 0; n < 60; ++n) {
        const PxliSize roi{rng.uniformInt(1, 40), rng.uniformInt(1, 6)};
        const int mask = rng.uniformInt(1, kMargin), anchor = rng.uniformInt(0, mask - 1);
        GuardedImage<S> src(roi.width + 2 * kMargin, roi.height + 2 * kMargin, N);
        src.fillRandom(rng, 0.3);
        GuardedImage<Pxl32f> dst(roi.width, roi.height, N);
        ASSERT_EQ((callSum<S, N, Row>(&src.at(kMargin, kMargin), src.step(), dst.data(), dst.step(), roi, mask, anchor)), pxlStatusOk);
        EXPECT_TRUE(pxltest::matchesEach(dst, [&](int x, int y, int c) {
            int64_t s = 0;
            for (int i = 0; i < mask; ++i) {
                const int px = Row ? x - anchor + i : x, py = Row ? y : y - anchor + i;
                s += src.at(kMargin + px, kMargin + py, c);
            }
            return static_cast<float>(s);
        })) << pxltest::token<S>() << " C" << N << (Row ? " row" : " column") << " mask " << mask << " anchor " << anchor;
    }
}

TEST(SumWindow, ExactSumsOfEveryTypeAndLayout)
{
    exactSums<Pxl8u, 1, true>(1);
    exactSums<Pxl8u, 3, true>(2);
    exactSums<Pxl16u, 4, true>(3);
    exactSums<Pxl16s, 1, true>(4);
    exactSums<Pxl16s, 3, true>(5);
    exactSums<Pxl16u, 1, true>(6);
    exactSums<Pxl8u, 4, false>(7);
    exactSums<Pxl16u, 3, false>(8);
    exactSums<Pxl16s, 4, false>(9);
    exactSums<Pxl16s, 1, false>(10);
    exactSums<Pxl8u, 1, false>(11);
    exactSums<Pxl16u, 1, false>(12);
}

// Beyond 2^24 the carried sum rounds: 65535 over a window of 600 samples, with the odd sample
// changed, is not the exact sum but the first window's 32f sum plus each exact difference.
TEST(SumWindow, CarriedSumBeyondTwoToThe24)
{
    const int mask = 600, width = 40;
    GuardedImage<Pxl16u> src(width + mask, 1, 1);
    Rng rng(3);
    for (int x = 0; x < width + mask; ++x) src.at(x, 0) = static_cast<Pxl16u>(rng.chance(0.5) ? 65535 : rng.uniformInt(0, 65535));
    GuardedImage<Pxl32f> dst(width, 1, 1);
    ASSERT_EQ(pxliSumWindowRow_16u32f_C1R(&src.at(0, 0), src.step(), dst.data(), dst.step(), {width, 1}, mask, 0), pxlStatusOk);
    float carried = 0;
    for (int i = 0; i < mask; ++i) carried += static_cast<float>(src.at(i, 0));
    bool rounded = false;
    for (int x = 0; x < width; ++x) {
        EXPECT_EQ(dst.at(x, 0), carried) << "x " << x;
        int64_t exact = 0;
        for (int i = 0; i < mask; ++i) exact += src.at(x + i, 0);
        rounded |= static_cast<double>(carried) != static_cast<double>(exact);
        carried += static_cast<float>(int32_t{src.at(x + mask, 0)} - int32_t{src.at(x, 0)});
    }
    EXPECT_TRUE(rounded) << "the data should reach past 2^24";
}

TEST(SumWindow, Checks)
{
    GuardedImage<Pxl8u> src(8, 8, 1);
    GuardedImage<Pxl32f> dst(4, 4, 1);
    const Pxl8u* s = &src.at(2, 2);
    EXPECT_EQ(pxliSumWindowRow_8u32f_C1R(nullptr, 8, dst.data(), dst.step(), {4, 4}, 0, 5), pxlStatusNullPointer);
    EXPECT_EQ(pxliSumWindowColumn_8u32f_C1R(s, src.step(), nullptr, dst.step(), {4, 4}, 0, 5), pxlStatusNullPointer);
    EXPECT_EQ(pxliSumWindowRow_8u32f_C1R(s, src.step(), dst.data(), dst.step(), {4, 4}, 0, 5), pxlStatusBadMaskSize);
    EXPECT_EQ(pxliSumWindowRow_8u32f_C1R(s, src.step(), dst.data(), dst.step(), {4, 4}, 3, 3), pxlStatusBadAnchor);
    EXPECT_EQ(pxliSumWindowColumn_16s32f_C3R(nullptr, 0, nullptr, 0, {4, 4}, 3, -1), pxlStatusNullPointer);
    pxltest::Watch w({&dst});
    EXPECT_EQ(pxliSumWindowColumn_8u32f_C1R(s, src.step(), dst.data(), dst.step(), {4, 4}, 3, -1), pxlStatusBadAnchor);
    EXPECT_EQ(pxliSumWindowRow_8u32f_C1R(s, src.step(), dst.data(), dst.step(), {0, 4}, 3, 1), pxlStatusOk);
    EXPECT_EQ(pxliSumWindowColumn_8u32f_C1R(s, src.step(), dst.data(), dst.step(), {4, -1}, 3, 1), pxlStatusOk);
    EXPECT_TRUE(w.unchanged());
}

}  // namespace
