// Laplace, high-pass and sharpening against their kernels: integer sums exact and saturated,
// sharpening to nearest with ties to even; 32f in the documented order of additions.
#include "extension_model.hpp"
#include "pxltest.hpp"

#include <cmath>
#include <limits>

namespace {

using pxltest::Rng;

constexpr int kMargin = 3;
enum Group { Laplace, Hipass, Sharpen };

PxlMaskCode codeOf(PxliSize mask) { return mask.width == 3 ? pxlMask3x3 : pxlMask5x5; }

template <Group G, class T, int N, bool Alpha> struct Fixed {
    static PxlStatus call(const T* s, int ss, T* d, int ds, PxliSize roi, PxliSize mask, int border, const T* v, Pxl8u* buf)
    {
        const PxlMaskCode m = codeOf(mask);
#define PXL_FIXED(f, t, ct)                                                                                 \
    if constexpr (std::is_same_v<T, ct>) {                                                                  \
        if constexpr (Alpha) return pxliFilter##f##Border_##t##_AC4R(s, ss, d, ds, roi, m, border, v, buf); \
        else if constexpr (N == 1) return pxliFilter##f##Border_##t##_C1R(s, ss, d, ds, roi, m, border, v[0], buf); \
        else if constexpr (N == 3) return pxliFilter##f##Border_##t##_C3R(s, ss, d, ds, roi, m, border, v, buf); \
        else return pxliFilter##f##Border_##t##_C4R(s, ss, d, ds, roi, m, border, v, buf);               \
    }
#define PXL_FAMILY(f) PXL_FIXED(f, 8u, Pxl8u) PXL_FIXED(f, 16s, Pxl16s) PXL_FIXED(f, 32f, Pxl32f)
        if constexpr (G == Laplace) { PXL_FAMILY(Laplace) }
        else if constexpr (G == Hipass) { PXL_FAMILY(Hipass) }
        else { PXL_FAMILY(Sharpen) }
#undef PXL_FAMILY
#undef PXL_FIXED
    }
    static PxlStatus query(PxliSize roi, PxliSize mask, PxlDataType type, int channels, int* size)
    {
        if constexpr (G == Sharpen) return pxliFilterSharpenBorderGetBufferSize(roi, codeOf(mask), type, type, channels, size);
        else if constexpr (G == Hipass) return pxliFilterHipassBorderGetBufferSize(roi, codeOf(mask), type, type, channels, size);
        else return pxliFilterLaplaceBorderGetBufferSize(roi, codeOf(mask), type, type, channels, size);
    }
};

// The weight of window sample (i, k) of a k-square mask, and the centre's extra weight.
int weight(Group g, int side, int i, int k)
{
    static const int laplace5[5][5] = {{-1, -3, -4, -3, -1}, {-3, 0, 6, 0, -3}, {-4, 6, 20, 6, -4}, {-3, 0, 6, 0, -3}, {-1, -3, -4, -3, -1}};
    if (g == Laplace && side == 5) return laplace5[i][k];
    const bool centre = i == side / 2 && k == side / 2;
    return centre ? (g == Sharpen ? 16 : side * side - 1) : -1;
}

template <Group G, class T, class E> T expected(const E& ext, PxliSize mask, int x, int y, int c)
{
    const int side = mask.width, h = side / 2;
    auto at = [&](int i, int k) { return ext(x + k - h, y + i - h, c); };
    if constexpr (std::is_floating_point_v<T>) {
        // Rows from the left, then from the top.
        const float centre = at(h, h);
        float total = 0;
        for (int i = 0; i < side; ++i) {
            float row = 0;
            for (int k = 0; k < side; ++k) {
                if (G == Laplace && side == 5) {
                    const float p = static_cast<float>(weight(G, 5, i, k)) * at(i, k);
                    if (weight(G, 5, i, k) != 0) row = k == 0 ? p : row + p;
                } else {
                    row = k == 0 ? at(i, 0) : row + at(i, k);
                }
            }
            total = i == 0 ? row : total + row;
        }
        if (G == Laplace && side == 5) return total;
        if (G == Sharpen) return (17.0f * centre - total) * 0.125f;
        return static_cast<float>(side * side) * centre - total;
    } else {
        int64_t t = 0;
        for (int i = 0; i < side; ++i)
            for (int k = 0; k < side; ++k) t += int64_t{weight(G, side, i, k)} * at(i, k);
        const double v = G == Sharpen ? std::nearbyint(static_cast<double>(t) / 8.0) : static_cast<double>(t);
        return static_cast<T>(std::clamp(v, double{std::numeric_limits<T>::lowest()}, double{std::numeric_limits<T>::max()}));
    }
}

template <Group G, class T, int N, bool Alpha> void cases(int count, uint64_t seed)
{
    constexpr int P = Alpha ? 3 : N;
    Rng rng(seed);
    const PxliSize rois[] = {{1, 1}, {2, 3}, {5, 1}, {1, 6}, {4, 4}, {9, 7}, {23, 11}, {300 / N, 4}, {40, 20}, {5, 5}};
    for (int n = 0; n < count; ++n) {
        const PxliSize mask = G == Sharpen || rng.chance(0.5) ? PxliSize{3, 3} : PxliSize{5, 5};
        const PxliSize roi = rois[rng.uniformInt(0, 9)];
        const int border = (rng.chance(0.5) ? pxlBorderReplicate : pxlBorderConstant) | rng.uniformInt(0, 15) << 4;
        // Small values now and then, so that float sums are exact and integer results unsaturated.
        const bool small = rng.chance(0.4);
        auto sample = [&] { return small ? static_cast<T>(rng.uniformInt(0, 40)) : rng.sample<T>(0.2, false); };
        auto want = [&](const filtmodel::Extension<T>& ext, int x, int y, int c) { return expected<G, T>(ext, mask, x, y, c); };
        filtmodel::borderCase<T, N, P>(rng, kMargin, roi, mask, border, Fixed<G, T, N, Alpha>::query, sample,
                                       Fixed<G, T, N, Alpha>::call, want, pxltest::sameBits<T>);
    }
}

TEST(FilterLaplaceHipassSharpen, KernelsOfEveryTypeAndLayout)
{
    cases<Laplace, Pxl8u, 1, false>(120, 1);
    cases<Laplace, Pxl16s, 3, false>(50, 2);
    cases<Laplace, Pxl32f, 4, true>(50, 3);
    cases<Hipass, Pxl8u, 4, true>(50, 4);
    cases<Hipass, Pxl16s, 1, false>(80, 5);
    cases<Hipass, Pxl32f, 1, false>(80, 6);
    cases<Sharpen, Pxl8u, 3, false>(60, 7);
    cases<Sharpen, Pxl16s, 4, false>(50, 8);
    cases<Sharpen, Pxl32f, 1, false>(80, 9);
}

TEST(FilterLaplaceHipassSharpen, SizesAndChecks)
{
    int size = -1;
    // max(10, 8) + 2 = 12 pixels of 3 rows: 36 -> 64, plus 32; 16s with 3 channels, 5x5: 14 * 7 * 2 * 3 = 588 -> 608 + 32.
    ASSERT_EQ(pxliFilterLaplaceBorderGetBufferSize({10, 8}, pxlMask3x3, pxlDt8u, pxlDt8u, 1, &size), pxlStatusOk);
    EXPECT_EQ(size, 64 + 32);
    ASSERT_EQ(pxliFilterHipassBorderGetBufferSize({10, 8}, pxlMask5x5, pxlDt16s, pxlDt16s, 3, &size), pxlStatusOk);
    EXPECT_EQ(size, 608 + 32);
    EXPECT_EQ(pxliFilterSharpenBorderGetBufferSize({10, 8}, pxlMask5x5, pxlDt8u, pxlDt8u, 1, &size), pxlStatusBadMaskSize);
    EXPECT_EQ(pxliFilterLaplaceBorderGetBufferSize({10, 8}, pxlMask3x3, pxlDt8u, pxlDt16s, 1, &size), pxlStatusBadDataType);
    EXPECT_EQ(pxliFilterLaplaceBorderGetBufferSize({10, 8}, pxlMask3x3, pxlDt16u, pxlDt16u, 1, &size), pxlStatusBadDataType);
    EXPECT_EQ(pxliFilterLaplaceBorderGetBufferSize({10, 8}, pxlMask3x3, pxlDt8u, pxlDt8u, 2, &size), pxlStatusBadChannelCount);
    EXPECT_EQ(pxliFilterLaplaceBorderGetBufferSize({0, 8}, 34, 0, 0, 2, &size), pxlStatusBadSize);
    EXPECT_EQ(pxliFilterLaplaceBorderGetBufferSize({10, 8}, 34, 0, 0, 2, &size), pxlStatusBadMaskSize);
    EXPECT_EQ(pxliFilterLaplaceBorderGetBufferSize({10, 8}, 34, 0, 0, 2, nullptr), pxlStatusNullPointer);

    const PxliSize roi{9, 7};
    filtmodel::BorderCall call(roi, {3, 3}, [](PxliSize r, PxliSize, PxlDataType t, int c, int* s) {
        return pxliFilterLaplaceBorderGetBufferSize(r, pxlMask5x5, t, t, c, s);
    });
    using Args = filtmodel::BorderCall::Args;
    pxltest::expectCheckOrder<Args>(
        call.valid,
        {{"null buffer", pxlStatusNullPointer, [](Args& a) { a.buffer = nullptr; }},
         {"height 0", pxlStatusBadSize, [](Args& a) { a.roi.height = 0; }},
         {"mask 3x5", pxlStatusBadMaskSize, [](Args& a) { a.mask.height = 5; }},
         {"mirrored", pxlStatusBadBorder, [](Args& a) { a.border = pxlBorderMirror; }},
         {"null value", pxlStatusNullPointer, [](Args& a) { a.value = nullptr; }}},
        [](const Args& a) {
            const PxlMaskCode m = a.mask.width == a.mask.height ? codeOf(a.mask) : 35;
            return pxliFilterLaplaceBorder_8u_C3R(a.src, a.srcStep, a.dst, a.dstStep, a.roi, m, a.border, a.value, a.buffer);
        },
        {&call.dst, &call.work});
}

}  // namespace
