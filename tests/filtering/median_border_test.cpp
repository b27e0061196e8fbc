// The median filter with borders against the middle of each extended window, sorted; for float
// windows of the shapes without a network, the partial bubble selection as its rule states it (a
// NaN stays where a pass finds it). In place against not, guard bands round image and buffer.
#include "extension_model.hpp"
#include "pxltest.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using pxltest::GuardedBuffer;
using pxltest::GuardedImage;
using pxltest::Rng;

constexpr int kMargin = 9;  // the largest overhang of the masks below

template <class T, int N, bool Alpha>
PxlStatus callMedian(const T* s, int ss, T* d, int ds, PxliSize roi, PxliSize mask, int border, const T* v, Pxl8u* buf)
{
#define PXL_MEDIAN(t, ct)                                                                                                \
    if constexpr (std::is_same_v<T, ct>) {                                                                               \
        if constexpr (Alpha) return pxliFilterMedianBorder_##t##_AC4R(s, ss, d, ds, roi, mask, border, v, buf);          \
        else if constexpr (N == 1) return pxliFilterMedianBorder_##t##_C1R(s, ss, d, ds, roi, mask, border, v[0], buf); \
        else if constexpr (N == 3) return pxliFilterMedianBorder_##t##_C3R(s, ss, d, ds, roi, mask, border, v, buf);     \
        else return pxliFilterMedianBorder_##t##_C4R(s, ss, d, ds, roi, mask, border, v, buf);                          \
    }
    PXL_MEDIAN(8u, Pxl8u)
    PXL_MEDIAN(16u, Pxl16u)
    PXL_MEDIAN(16s, Pxl16s)
    if constexpr (std::is_same_v<T, Pxl32f>) return pxliFilterMedianBorder_32f_C1R(s, ss, d, ds, roi, mask, border, v[0], buf);
#undef PXL_MEDIAN
}

bool hasNetwork(PxliSize m)
{
    const int kw = m.width, kh = m.height;
    return (kw == 1 && kh <= 5) || (kh == 1 && kw <= 5) || (kw == kh && kw <= 5);
}

// Float results agree when they are equal numbers (either zero) or both NaN.
template <class T> bool same(T a, T b)
{
    if constexpr (std::is_floating_point_v<T>) return a == b || (std::isnan(a) && std::isnan(b));
    else return a == b;
}

// The window's samples row by row; its middle.
template <class T> T middle(std::vector<T> s, bool bubble)
{
    const int n = static_cast<int>(s.size()), m = n / 2;
    if (!bubble) {
        std::sort(s.begin(), s.end());
        return s[m];
    }
    for (int pass = 0; pass < n - m; ++pass)
        for (int i = 0; i + 1 < n - pass; ++i)
            if (s[i] < s[i + 1]) std::swap(s[i], s[i + 1]);
    return s[m];
}

// Wide: tall masks on regions wide enough that 8u runs in bands of column histograms.
template <class T, int N, bool Alpha> void medianCases(int cases, uint64_t seed, bool wide = false)
{
    constexpr int P = Alpha ? 3 : N;
    Rng rng(seed);
    const std::vector<PxliSize> masks =
        wide ? std::vector<PxliSize>{{13, 13}, {1, 15}, {3, 13}, {7, 17}}
             : std::vector<PxliSize>{{1, 1}, {1, 3}, {3, 1}, {1, 5}, {5, 1}, {3, 3}, {5, 5}, {3, 5}, {5, 3}, {7, 7}, {1, 7}, {9, 1}, {7, 3}, {11, 11}};
    const std::vector<PxliSize> rois =
        wide ? std::vector<PxliSize>{{400, 20}, {N == 1 ? 300 : 900, 18}}
             : std::vector<PxliSize>{{1, 1}, {2, 3}, {5, 1}, {1, 6}, {4, 4}, {9, 7}, {23, 11}, {300 / N, 4}, {40, 20}, {3, 3}, {5, 5}, {7, 9}};
    for (int n = 0; n < cases; ++n) {
        const PxliSize mask = masks[rng.uniformInt(0, static_cast<int>(masks.size()) - 1)];
        const PxliSize roi = rois[rng.uniformInt(0, static_cast<int>(rois.size()) - 1)];
        const int border = (rng.chance(0.5) ? pxlBorderReplicate : pxlBorderConstant) | rng.uniformInt(0, 15) << 4;
        // Many equal samples now and then, where networks most often slip.
        const bool few = rng.chance(0.3), nan = std::is_floating_point_v<T> && !hasNetwork(mask) && rng.chance(0.5);
        auto sample = [&] { return few ? static_cast<T>(rng.uniformInt(0, 3)) : rng.sample<T>(0.3, nan); };
        auto want = [&](const filtmodel::Extension<T>& ext, int x, int y, int c) {
            std::vector<T> s;
            for (int i = 0; i < mask.height; ++i)
                for (int k = 0; k < mask.width; ++k) s.push_back(ext(x + k - mask.width / 2, y + i - mask.height / 2, c));
            return middle(s, std::is_floating_point_v<T> && !hasNetwork(mask));
        };
        filtmodel::borderCase<T, N, P>(rng, kMargin, roi, mask, border, pxliFilterMedianBorderGetBufferSize, sample, callMedian<T, N, Alpha>,
                                       want, same<T>);
    }
}

TEST(FilterMedianBorder, MediansOfEveryTypeAndLayout)
{
    medianCases<Pxl8u, 1, false>(300, 1);
    medianCases<Pxl8u, 3, false>(100, 2);
    medianCases<Pxl8u, 4, true>(80, 3);
    medianCases<Pxl16u, 1, false>(150, 4);
    medianCases<Pxl16u, 4, false>(60, 5);
    medianCases<Pxl16s, 1, false>(150, 6);
    medianCases<Pxl16s, 3, false>(60, 7);
    medianCases<Pxl16s, 4, true>(60, 8);
    medianCases<Pxl32f, 1, false>(300, 9);
}

TEST(FilterMedianBorder, WideMasksOfWideRegions)
{
    medianCases<Pxl8u, 1, false>(12, 10, true);
    medianCases<Pxl8u, 3, false>(6, 11, true);
    medianCases<Pxl8u, 4, true>(4, 12, true);
    medianCases<Pxl16u, 1, false>(4, 13, true);
}

// Sizes worked by hand.
TEST(FilterMedianBorder, BufferSizes)
{
    int size = -1;
    // 3x3 on 10x8 8u: no scratch; stripes 3 * 2 * 32, parking 2 * 32 + 2 * 32, strip 12 * 4 = 48 -> 64.
    ASSERT_EQ(pxliFilterMedianBorderGetBufferSize({10, 8}, {3, 3}, pxlDt8u, 1, &size), pxlStatusOk);
    EXPECT_EQ(size, 192 + 128 + 64);
    // 3x5 pays for the selection scratch: 3 * 5 * 4 = 60 -> 64; stripes 5 * 2 * 32; parking 2 * 32
    // (10 * 2) + 2 * 32 (8 * 1); strip max(12 * 7, 4 * 12) = 84 -> 96.
    ASSERT_EQ(pxliFilterMedianBorderGetBufferSize({10, 8}, {3, 5}, pxlDt8u, 1, &size), pxlStatusOk);
    EXPECT_EQ(size, 64 + 320 + 128 + 96);
    // The mask as large as the region: the extended image, 5 * 5 * 4 = 100 -> 128.
    ASSERT_EQ(pxliFilterMedianBorderGetBufferSize({3, 3}, {3, 3}, pxlDt32f, 1, &size), pxlStatusOk);
    EXPECT_EQ(size, 128);
    // Three channels of 16s, 7x7 on 20x10: n = max(26 * 9, 9 * 16) = 234; 3 * 234 * 2 = 1404 -> 1408,
    // plus 7 * 7 * 8 for the selection.
    ASSERT_EQ(pxliFilterMedianBorderGetBufferSize({20, 10}, {7, 7}, pxlDt16s, 3, &size), pxlStatusOk);
    EXPECT_EQ(size, 1408 + 392);
    EXPECT_EQ(pxliFilterMedianBorderGetBufferSize({40000, 40000}, {40001, 40001}, pxlDt8u, 1, &size), pxlStatusSizeOverflow);
    EXPECT_EQ(size, 0);

    EXPECT_EQ(pxliFilterMedianBorderGetBufferSize({0, 4}, {2, 2}, 2, 2, nullptr), pxlStatusNullPointer);
    EXPECT_EQ(pxliFilterMedianBorderGetBufferSize({0, 4}, {2, 2}, 2, 2, &size), pxlStatusBadSize);
    EXPECT_EQ(pxliFilterMedianBorderGetBufferSize({4, 4}, {3, 2}, 2, 2, &size), pxlStatusBadMaskSize);
    EXPECT_EQ(pxliFilterMedianBorderGetBufferSize({4, 4}, {3, 3}, 2, 1, &size), pxlStatusBadDataType);
    EXPECT_EQ(pxliFilterMedianBorderGetBufferSize({4, 4}, {3, 3}, 2, 2, &size), pxlStatusBadChannelCount);
    EXPECT_EQ(pxliFilterMedianBorderGetBufferSize({4, 4}, {3, 3}, pxlDt32f, 3, &size), pxlStatusBadDataType);
}

TEST(FilterMedianBorder, CheckOrderAndCopies)
{
    const PxliSize roi{9, 7}, mask{3, 3};
    filtmodel::BorderCall call(roi, mask, pxliFilterMedianBorderGetBufferSize);
    using Args = filtmodel::BorderCall::Args;
    auto median = [](const Args& a) {
        return pxliFilterMedianBorder_8u_C3R(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.mask, a.border, a.value, a.buffer);
    };
    pxltest::expectCheckOrder<Args>(call.valid,
                                    {{"null buffer", pxlStatusNullPointer, [](Args& a) { a.buffer = nullptr; }},
                                     {"width 0", pxlStatusBadSize, [](Args& a) { a.roi.width = 0; }},
                                     {"mask 3x4", pxlStatusBadMaskSize, [](Args& a) { a.mask.height = 4; }},
                                     {"mirrored", pxlStatusBadBorder, [](Args& a) { a.border = pxlBorderMirror; }},
                                     {"null value", pxlStatusNullPointer, [](Args& a) { a.value = nullptr; }}},
                                    median, {&call.dst, &call.work});

    // A 1x1 mask copies; in place it touches nothing at all.
    pxltest::Rng rng(3);
    call.src.fillRandom(rng);
    Args copy = call.valid;
    copy.mask = {1, 1};
    ASSERT_EQ(median(copy), pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(call.dst, [&](int x, int y, int c) { return call.src.at(x, y, c); }));
    const pxltest::Watch watch({&call.dst, &call.work});
    copy.src = copy.dst;
    copy.srcStep = copy.dstStep;
    ASSERT_EQ(median(copy), pxlStatusOk);
    EXPECT_TRUE(watch.unchanged());

    // Steps of 16-bit rows that are not whole samples, after the region and before the mask.
    GuardedImage<Pxl16u> img(roi.width, roi.height, 1);
    const int step = img.step();
    Pxl8u* buffer = call.work.base();
    EXPECT_EQ(pxliFilterMedianBorder_16u_C1R(img.data(), step + 1, img.data(), step, roi, {3, 4}, 1, 0, buffer), pxlStatusMisalignedStep);
    EXPECT_EQ(pxliFilterMedianBorder_16u_C1R(img.data(), step, img.data(), step - 1, roi, mask, 1, 0, buffer), pxlStatusMisalignedStep);
    EXPECT_EQ(pxliFilterMedianBorder_16u_C1R(img.data(), step + 1, img.data(), step, {0, 7}, mask, 1, 0, buffer), pxlStatusBadSize);
}

}  // namespace
