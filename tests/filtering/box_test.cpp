// The box filter against the mean of its rule: for integers the exact sum of the extended
// neighbourhood, times 1 / (kw * kh) in float, rounded half up (16s: halves away from zero); for
// 32f the running sums of the rule, piece by piece; in place against not.
#include "extension_model.hpp"
#include "pxltest.hpp"

#include <vector>

namespace {

using pxltest::GuardedBuffer;
using pxltest::GuardedImage;
using pxltest::Rng;

constexpr int kMargin = 10;

template <class T, int N, bool Alpha>
PxlStatus callBox(const T* s, int ss, T* d, int ds, PxliSize roi, PxliSize mask, int border, const T* v, Pxl8u* buf)
{
#define PXL_BOX(t, ct)                                                                                            \
    if constexpr (std::is_same_v<T, ct>) {                                                                        \
        if constexpr (Alpha) return pxliFilterBoxBorder_##t##_AC4R(s, ss, d, ds, roi, mask, border, v, buf);      \
        else if constexpr (N == 1) return pxliFilterBoxBorder_##t##_C1R(s, ss, d, ds, roi, mask, border, v, buf); \
        else if constexpr (N == 3) return pxliFilterBoxBorder_##t##_C3R(s, ss, d, ds, roi, mask, border, v, buf); \
        else return pxliFilterBoxBorder_##t##_C4R(s, ss, d, ds, roi, mask, border, v, buf);                       \
    }
    PXL_BOX(8u, Pxl8u)
    PXL_BOX(16u, Pxl16u)
    PXL_BOX(16s, Pxl16s)
    PXL_BOX(32f, Pxl32f)
#undef PXL_BOX
}

// The mean of an exact sum by the rule.
template <class T> T mean(int64_t sum, PxliSize mask)
{
    const float inv = 1.0f / static_cast<float>(mask.width * mask.height), v = inv * static_cast<float>(sum);
    return static_cast<T>(static_cast<int32_t>(sum >= 0 ? v + 0.5f : v - 0.5f));
}

// The output rectangles whose running sums start afresh: the centre, whose windows lie in the
// image, and the top and bottom strips (whole width) and left and right strips around it, or the
// whole region when the mask is not smaller than it. A mirrored mask 2 wide (high) leaves 2
// columns (rows) to an unflagged right (bottom) strip.
struct Rect {
    int x, y, w, h;
};
std::vector<Rect> floatPieces(PxliSize roi, PxliSize mask, int border)
{
    const int W = roi.width, H = roi.height, kw = mask.width, kh = mask.height, ax = (kw - 1) / 2, ay = (kh - 1) / 2;
    if (!(W > kw && H > kh)) return {{0, 0, W, H}};
    const bool mirror = (border & 15) == pxlBorderMirror;
    const int rx = mirror && kw == 2 && !(border & pxlBorderMemRight) ? 2 : kw - 1 - ax;
    const int ry = mirror && kh == 2 && !(border & pxlBorderMemBottom) ? 2 : kh - 1 - ay;
    const int cw = W - ax - rx, ch = H - ay - ry;
    return {{ax, ay, cw, ch}, {0, 0, W, ay}, {0, H - ry, W, ry}, {0, ay, ax, ch}, {W - rx, ay, rx, ch}};
}

// The 32f mean of output sample (x, y, c): in the piece that holds it, row sums run along each
// window row from the piece's first window (the first kw - 1 samples in order, then plus the
// incoming sample, minus the outgoing), and the vertical sum runs down them the same way.
template <class T, class E> T floatMean(const E& ext, PxliSize roi, PxliSize mask, int border, int x, int y, int c)
{
    const int kw = mask.width, kh = mask.height;
    if (kw == 1 && kh == 1) return ext(x, y, c);
    Rect p{};
    for (const Rect& r : floatPieces(roi, mask, border))
        if (x >= r.x && x < r.x + r.w && y >= r.y && y < r.y + r.h) p = r;
    const int ox = p.x - (kw - 1) / 2, oy = p.y - (kh - 1) / 2, i = x - p.x, j = y - p.y;
    auto rowSum = [&](int r) {
        float s = 0;
        for (int k = 0; k < kw - 1; ++k) s += ext(ox + k, oy + r, c);
        for (int t = 0;; ++t) {
            s += ext(ox + t + kw - 1, oy + r, c);
            if (t == i) return s;
            s -= ext(ox + t, oy + r, c);
        }
    };
    const float inv = 1.0f / (static_cast<float>(kh) * static_cast<float>(kw));
    if (kh == 1) return inv * rowSum(j);
    float v = 0;
    for (int q = 0; q < kh - 1; ++q) v += rowSum(q);
    for (int t = 0;; ++t) {
        v += rowSum(t + kh - 1);
        if (t == j) return inv * v;
        v -= rowSum(t);
    }
}

// Random regions, masks, kinds and flags, out of place and in place; N samples to a pixel, the
// last left alone where Alpha.
template <class T, int N, bool Alpha> void boxCases(int cases, uint64_t seed, int largestSample)
{
    static_assert(!Alpha || N == 4, "AC4 pixels have four samples");
    constexpr int P = Alpha ? 3 : N;
    Rng rng(seed);
    const PxliSize masks[] = {{1, 1}, {1, 3}, {3, 1}, {2, 2}, {2, 3}, {3, 3}, {5, 5}, {4, 7}, {9, 2}, {15, 15}, {17, 17}};
    const PxliSize rois[] = {{1, 1}, {2, 3}, {5, 1}, {4, 4}, {9, 7}, {23, 11}, {300 / N, 4}, {40, 20}};
    const int kinds[] = {pxlBorderReplicate, pxlBorderMirror, pxlBorderConstant};
    for (int n = 0; n < cases; ++n) {
        const PxliSize mask = masks[rng.uniformInt(0, 10)], roi = rois[rng.uniformInt(0, 7)];
        const int border = rng.chance(0.05) ? 0xF0 : kinds[rng.uniformInt(0, 2)] | rng.uniformInt(0, 15) << 4;
        if (mask.width > 2 * kMargin || mask.height > 2 * kMargin) continue;
        const int ax = (mask.width - 1) / 2, ay = (mask.height - 1) / 2;
        auto want = [&](const filtmodel::Extension<T>& ext, int x, int y, int c) {
            if constexpr (std::is_floating_point_v<T>) return floatMean<T>(ext, roi, mask, border, x, y, c);
            int64_t s = 0;
            for (int i = 0; i < mask.height; ++i)
                for (int k = 0; k < mask.width; ++k) s += ext(x + k - ax, y + i - ay, c);
            return mean<T>(s, mask);
        };
        auto sample = [&] { return largestSample ? static_cast<T>(rng.uniformInt(0, largestSample)) : rng.sample<T>(0.3, false); };
        filtmodel::borderCase<T, N, P>(rng, kMargin, roi, mask, border, pxliFilterBoxBorderGetBufferSize, sample, callBox<T, N, Alpha>,
                                       want, pxltest::sameBits<T>);
    }
}

TEST(FilterBoxBorder, MeansOfEveryTypeAndLayout)
{
    boxCases<Pxl8u, 1, false>(300, 1, 0);
    boxCases<Pxl8u, 3, false>(120, 2, 0);
    boxCases<Pxl8u, 4, false>(80, 3, 0);
    boxCases<Pxl8u, 4, true>(80, 4, 0);
    boxCases<Pxl16u, 1, false>(150, 5, 0);
    boxCases<Pxl16u, 4, true>(80, 6, 0);
    boxCases<Pxl16s, 1, false>(200, 7, 0);
    boxCases<Pxl16s, 4, false>(80, 8, 0);
    boxCases<Pxl32f, 1, false>(300, 13, 0);
    boxCases<Pxl32f, 3, false>(100, 14, 0);
    boxCases<Pxl32f, 4, false>(60, 15, 0);
    boxCases<Pxl32f, 4, true>(60, 16, 0);
}

// Masks whose sums of the type's largest samples could pass 2^24 take the rule's order of 32f
// sums; with samples that keep every sum small, they must still give the exact means.
TEST(FilterBoxBorder, LargeMasksOfSixteenBitSamples)
{
    boxCases<Pxl16u, 1, false>(150, 9, 1000);
    boxCases<Pxl16s, 3, false>(80, 10, 300);
}

TEST(FilterBoxBorder, ExactCases)
{
    // 16s means of -0.5 round away from zero, 8u means of 0.5 up.
    GuardedImage<Pxl16s> s16(2, 1, 1), d16(2, 1, 1);
    s16.at(0, 0) = 0;
    s16.at(1, 0) = -1;
    int size = 0;
    ASSERT_EQ(pxliFilterBoxBorderGetBufferSize({2, 1}, {2, 1}, pxlDt16s, 1, &size), pxlStatusOk);
    std::vector<Pxl8u> work(static_cast<std::size_t>(size));
    ASSERT_EQ(pxliFilterBoxBorder_16s_C1R(s16.data(), s16.step(), d16.data(), d16.step(), {2, 1}, {2, 1}, pxlBorderReplicate, nullptr,
                                          work.data()),
              pxlStatusOk);
    EXPECT_EQ(d16.at(0, 0), -1);
    EXPECT_EQ(d16.at(1, 0), -1);
    GuardedImage<Pxl8u> s8(2, 1, 1), d8(2, 1, 1);
    s8.at(0, 0) = 0;
    s8.at(1, 0) = 1;
    ASSERT_EQ(pxliFilterBoxBorderGetBufferSize({2, 1}, {2, 1}, pxlDt8u, 1, &size), pxlStatusOk);
    work.resize(static_cast<std::size_t>(size));
    ASSERT_EQ(pxliFilterBoxBorder_8u_C1R(s8.data(), s8.step(), d8.data(), d8.step(), {2, 1}, {2, 1}, pxlBorderReplicate, nullptr,
                                         work.data()),
              pxlStatusOk);
    EXPECT_EQ(d8.at(0, 0), 1);
    EXPECT_EQ(d8.at(1, 0), 1);
}

// Sizes from the rule, worked by hand.
TEST(FilterBoxBorder, BufferSizes)
{
    int size = -1;
    // 3x3 on 10x8 8u C1: A = 12 * 3, B = 10 * 3, S = 132; strips 528, columns 64, slots 10 * 2 + 64, words 8.
    ASSERT_EQ(pxliFilterBoxBorderGetBufferSize({10, 8}, {3, 3}, pxlDt8u, 1, &size), pxlStatusOk);
    EXPECT_EQ(size, 528 + 64 + 84 + 8);
    // 2x2 on 3x4 16s C3: A = 4 * 2 = 8, A2 = 8 + 3, B = 5 * 2 = 10, B2 = 10 + 4; S = 43; strips 516,
    // columns 8 * 16, and the mask reaches past the centre, so the slots hold the extended region:
    // 4 * 5 * 3 * 2 = 120 (not 3 * 3 * 2 + 64).
    ASSERT_EQ(pxliFilterBoxBorderGetBufferSize({3, 4}, {2, 2}, pxlDt16s, 3, &size), pxlStatusOk);
    EXPECT_EQ(size, 516 + 128 + 120 + 4);
    EXPECT_EQ(pxliFilterBoxBorderGetBufferSize({40000, 40000}, {40000, 40000}, pxlDt32f, 4, &size), pxlStatusSizeOverflow);

    EXPECT_EQ(pxliFilterBoxBorderGetBufferSize({0, 4}, {0, 2}, 2, 2, nullptr), pxlStatusNullPointer);
    EXPECT_EQ(pxliFilterBoxBorderGetBufferSize({0, 4}, {0, 2}, 2, 2, &size), pxlStatusBadSize);
    EXPECT_EQ(pxliFilterBoxBorderGetBufferSize({4, 4}, {0, 2}, 2, 2, &size), pxlStatusBadMaskSize);
    EXPECT_EQ(pxliFilterBoxBorderGetBufferSize({4, 4}, {2, 2}, 2, 2, &size), pxlStatusBadDataType);
    EXPECT_EQ(pxliFilterBoxBorderGetBufferSize({4, 4}, {2, 2}, pxlDt8u, 2, &size), pxlStatusBadChannelCount);
}

TEST(FilterBoxBorder, CheckOrder)
{
    const PxliSize roi{9, 7}, mask{3, 3};
    filtmodel::BorderCall call(roi, mask, pxliFilterBoxBorderGetBufferSize);
    using Args = filtmodel::BorderCall::Args;
    pxltest::expectCheckOrder<Args>(
        call.valid,
        {{"null buffer", pxlStatusNullPointer, [](Args& a) { a.buffer = nullptr; }},
         {"source step 0", pxlStatusBadStep, [](Args& a) { a.srcStep = 0; }},
         {"destination step 0", pxlStatusBadStep, [](Args& a) { a.dstStep = 0; }},
         {"height 0", pxlStatusBadSize, [](Args& a) { a.roi.height = 0; }},
         {"mask width 0", pxlStatusBadMaskSize, [](Args& a) { a.mask.width = 0; }},
         {"word 256 + 6", pxlStatusBadBorder, [](Args& a) { a.border = 256 + 6; }},
         {"null value", pxlStatusNullPointer, [](Args& a) { a.value = nullptr; }}},
        [](const Args& a) {
            return pxliFilterBoxBorder_8u_C3R(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.mask, a.border, a.value, a.buffer);
        },
        {&call.dst, &call.work});
    const Args& a = call.valid;
    EXPECT_EQ(pxliFilterBoxBorder_8u_C3R(a.src, a.srcStep, a.dst, a.dstStep, roi, mask, 2, nullptr, a.buffer), pxlStatusBadBorder);
    EXPECT_EQ(pxliFilterBoxBorder_8u_C3R(a.src, a.srcStep, a.dst, a.dstStep, roi, mask, 0xF6, nullptr, a.buffer), pxlStatusNullPointer);
}

// The 64f mean: exact for integer samples; for any samples, the running sums of the rule.
TEST(FilterBox64f, MeansAndOrder)
{
    Rng rng(12);
    for (int n = 0; n < 80; ++n) {
        const PxliSize mask{rng.uniformInt(1, 7), rng.uniformInt(1, 7)}, roi{rng.uniformInt(1, 40), rng.uniformInt(1, 9)};
        const PxliPoint anchor{rng.uniformInt(0, mask.width - 1), rng.uniformInt(0, mask.height - 1)};
        const bool integers = n % 2 == 0;
        GuardedImage<Pxl64f> src(roi.width + mask.width - 1, roi.height + mask.height - 1, 1), dst(roi.width, roi.height, 1);
        for (int y = 0; y < src.height(); ++y)
            for (int x = 0; x < src.width(); ++x)
                src.at(x, y) = integers ? rng.uniformInt(-1000, 1000) : rng.any<double>();
        ASSERT_EQ(pxliFilterBox_64f_C1R(&src.at(anchor.x, anchor.y), src.step(), dst.data(), dst.step(), roi, mask, anchor), pxlStatusOk);
        const double inv = 1.0 / (static_cast<double>(mask.width) * mask.height);
        // h(r, x): the running sum along source row r; the vertical sums run the same way.
        auto h = [&](int r, int x) {
            double s = 0;
            for (int k = 0; k < mask.width - 1; ++k) s += src.at(k, r);
            for (int i = 0;; ++i) {
                s += src.at(i + mask.width - 1, r);
                if (i == x) return s;
                s -= src.at(i, r);
            }
        };
        EXPECT_TRUE(pxltest::matchesEach(dst, [&](int x, int y, int) {
            if (integers) {
                int64_t s = 0;
                for (int i = 0; i < mask.height; ++i)
                    for (int k = 0; k < mask.width; ++k) s += static_cast<int64_t>(src.at(x + k, y + i));
                return inv * static_cast<double>(s);
            }
            if (mask.height == 1) return inv * h(y, x);
            double v = 0;
            for (int i = 0; i < mask.height - 1; ++i) v += h(i, x);
            for (int r = 0;; ++r) {
                v += h(r + mask.height - 1, x);
                if (r == y) return inv * v;
                v -= h(r, x);
            }
        })) << "mask " << mask.width << "x" << mask.height << " roi " << roi.width << "x" << roi.height;
    }
    GuardedImage<Pxl64f> src(8, 8, 1), dst(4, 4, 1);
    EXPECT_EQ(pxliFilterBox_64f_C1R(nullptr, src.step(), dst.data(), dst.step(), {4, 4}, {0, 3}, {0, 0}), pxlStatusNullPointer);
    EXPECT_EQ(pxliFilterBox_64f_C1R(src.data(), src.step(), dst.data(), dst.step(), {4, 4}, {0, 3}, {0, 0}), pxlStatusBadSize);
    EXPECT_EQ(pxliFilterBox_64f_C1R(src.data(), 32, dst.data(), dst.step(), {4, 4}, {2, 3}, {0, 0}), pxlStatusBadStep);
    EXPECT_EQ(pxliFilterBox_64f_C1R(src.data(), src.step(), dst.data(), 24, {4, 4}, {2, 3}, {0, 0}), pxlStatusBadStep);
}

}  // namespace
