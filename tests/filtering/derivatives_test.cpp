// Derivative filters against their kernels over the extended image (every border kind and flag),
// flat images giving zero and ramps their slope; sizes, statuses and their order.
#include "extension_model.hpp"
#include "pxltest.hpp"

#include <algorithm>
#include <vector>

namespace {

using pxltest::GuardedBuffer;
using pxltest::GuardedImage;
using pxltest::Rng;

enum Kind { SobelVert, SobelHoriz, ScharrVert, ScharrHoriz, PrewittVert, PrewittHoriz, RobertsDown, RobertsUp, VertSecond, HorizSecond, NegVert };

// The kernel of each kind as applied at the pixel, rows from the top.
std::vector<std::vector<int>> kernelOf(Kind k, int side)
{
    if (side == 3) {
        switch (k) {
        case SobelVert: return {{1, 0, -1}, {2, 0, -2}, {1, 0, -1}};
        case SobelHoriz: return {{-1, -2, -1}, {0, 0, 0}, {1, 2, 1}};
        case ScharrVert: return {{-3, 0, 3}, {-10, 0, 10}, {-3, 0, 3}};
        case ScharrHoriz: return {{-3, -10, -3}, {0, 0, 0}, {3, 10, 3}};
        case PrewittVert: return {{1, 0, -1}, {1, 0, -1}, {1, 0, -1}};
        case PrewittHoriz: return {{-1, -1, -1}, {0, 0, 0}, {1, 1, 1}};
        case RobertsDown: return {{-1, 0, 0}, {0, 1, 0}, {0, 0, 0}};
        case RobertsUp: return {{0, 0, -1}, {0, 1, 0}, {0, 0, 0}};
        case VertSecond: return {{1, -2, 1}, {2, -4, 2}, {1, -2, 1}};
        case HorizSecond: return {{1, 2, 1}, {-2, -4, -2}, {1, 2, 1}};
        case NegVert: return {{-1, 0, 1}, {-2, 0, 2}, {-1, 0, 1}};
        }
    }
    const int b[5] = {1, 4, 6, 4, 1}, falling[5] = {1, 2, 0, -2, -1}, rising[5] = {-1, -2, 0, 2, 1}, second[5] = {1, 0, -2, 0, 1};
    std::vector<std::vector<int>> w(5, std::vector<int>(5));
    for (int i = 0; i < 5; ++i)
        for (int q = 0; q < 5; ++q)
            w[i][q] = k == SobelVert ? b[i] * falling[q] : k == SobelHoriz ? rising[i] * b[q] : k == VertSecond ? b[i] * second[q]
                    : k == HorizSecond ? second[i] * b[q] : b[i] * rising[q];
    return w;
}

template <class S, class D> PxlStatus size(Kind k, PxliSize roi, PxlMaskCode m, int* bytes)
{
    const PxlDataType s = pxltest::typeCode<S>(), d = pxltest::typeCode<D>();
    switch (k) {
    case SobelVert: return pxliFilterSobelVertBorderGetBufferSize(roi, m, s, d, 1, bytes);
    case SobelHoriz: return pxliFilterSobelHorizBorderGetBufferSize(roi, m, s, d, 1, bytes);
    case ScharrVert: return pxliFilterScharrVertMaskBorderGetBufferSize(roi, m, s, d, 1, bytes);
    case ScharrHoriz: return pxliFilterScharrHorizMaskBorderGetBufferSize(roi, m, s, d, 1, bytes);
    case PrewittVert: return pxliFilterPrewittVertBorderGetBufferSize(roi, m, s, d, 1, bytes);
    case PrewittHoriz: return pxliFilterPrewittHorizBorderGetBufferSize(roi, m, s, d, 1, bytes);
    case RobertsDown: return pxliFilterRobertsDownBorderGetBufferSize(roi, m, s, d, 1, bytes);
    case RobertsUp: return pxliFilterRobertsUpBorderGetBufferSize(roi, m, s, d, 1, bytes);
    case VertSecond: return pxliFilterSobelVertSecondBorderGetBufferSize(roi, m, s, d, 1, bytes);
    case HorizSecond: return pxliFilterSobelHorizSecondBorderGetBufferSize(roi, m, s, d, 1, bytes);
    default: return pxliFilterSobelNegVertBorderGetBufferSize(roi, m, s, d, 1, bytes);
    }
}

template <class S, class D>
PxlStatus call(Kind k, const S* s, int ss, D* d, int ds, PxliSize roi, PxlMaskCode m, int border, S v, Pxl8u* buf)
{
#define PXL_KIND(kind, f)                                                                                                  \
    case kind:                                                                                                             \
        if constexpr (std::is_same_v<S, Pxl8u>) return pxliFilter##f##Border_8u16s_C1R(s, ss, d, ds, roi, m, border, v, buf); \
        else if constexpr (std::is_same_v<S, Pxl32f>) return pxliFilter##f##Border_32f_C1R(s, ss, d, ds, roi, m, border, v, buf); \
        else break;
#define PXL_KIND16(kind, f)                                                                                              \
    case kind:                                                                                                           \
        if constexpr (std::is_same_v<S, Pxl16s>) return pxliFilter##f##Border_16s_C1R(s, ss, d, ds, roi, m, border, v, buf); \
        break;
    switch (k) {
        PXL_KIND(VertSecond, SobelVertSecond)
        PXL_KIND(HorizSecond, SobelHorizSecond)
        PXL_KIND(NegVert, SobelNegVert)
    default: break;
    }
    if constexpr (!std::is_same_v<S, Pxl16s>) {
        switch (k) {
            PXL_KIND(SobelVert, SobelVert)
            PXL_KIND(SobelHoriz, SobelHoriz)
            PXL_KIND(ScharrVert, ScharrVertMask)
            PXL_KIND(ScharrHoriz, ScharrHorizMask)
            PXL_KIND(PrewittVert, PrewittVert)
            PXL_KIND(PrewittHoriz, PrewittHoriz)
            PXL_KIND(RobertsDown, RobertsDown)
            PXL_KIND(RobertsUp, RobertsUp)
        default: break;
        }
    } else {
        switch (k) {
            PXL_KIND16(SobelVert, SobelVert)
            PXL_KIND16(SobelHoriz, SobelHoriz)
            PXL_KIND16(ScharrVert, ScharrVertMask)
            PXL_KIND16(ScharrHoriz, ScharrHorizMask)
            PXL_KIND16(PrewittVert, PrewittVert)
            PXL_KIND16(PrewittHoriz, PrewittHoriz)
            PXL_KIND16(RobertsDown, RobertsDown)
            PXL_KIND16(RobertsUp, RobertsUp)
        default: break;
        }
    }
#undef PXL_KIND
#undef PXL_KIND16
    ADD_FAILURE() << "no such form";
    return pxlStatusBadArgument;
}

bool fiveAllowed(Kind k) { return k == SobelVert || k == SobelHoriz || k >= VertSecond; }

// The kernel over the extended image: integers exactly (16s saturated), 32f as the products of the
// non-zero weights added in row-major order.
template <class S, class D> D expected(const filtmodel::Extension<S>& ext, const std::vector<std::vector<int>>& w, int x, int y)
{
    const int side = static_cast<int>(w.size()), h = side / 2;
    if constexpr (std::is_floating_point_v<S>) {
        float sum = 0;
        bool first = true;
        for (int i = 0; i < side; ++i)
            for (int q = 0; q < side; ++q)
                if (w[i][q] != 0) {
                    const float term = static_cast<float>(w[i][q]) * ext(x + q - h, y + i - h, 0);
                    sum = first ? term : sum + term;
                    first = false;
                }
        return sum;
    } else {
        int64_t sum = 0;
        for (int i = 0; i < side; ++i)
            for (int q = 0; q < side; ++q) sum += int64_t{w[i][q]} * ext(x + q - h, y + i - h, 0);
        return static_cast<D>(std::clamp<int64_t>(sum, INT16_MIN, INT16_MAX));
    }
}

template <class S, class D> void cases(std::initializer_list<Kind> kinds, int count, uint64_t seed)
{
    Rng rng(seed);
    const PxliSize rois[] = {{1, 1}, {2, 3}, {5, 1}, {1, 6}, {4, 4}, {9, 7}, {23, 11}, {300, 4}, {40, 20}};
    constexpr int margin = 2;
    for (const Kind k : kinds)
        for (int n = 0; n < count; ++n) {
            const int side = fiveAllowed(k) && rng.chance(0.5) ? 5 : 3;
            const PxliSize roi = rois[rng.uniformInt(0, 8)];
            const int kinds3[] = {pxlBorderReplicate, pxlBorderMirror, pxlBorderConstant};
            const int border = kinds3[rng.uniformInt(0, 2)] | rng.uniformInt(0, 15) << 4;
            const bool small = rng.chance(0.3);  // flat stretches and exact float sums
            GuardedImage<S> img(roi.width + 2 * margin, roi.height + 2 * margin, 1);
            for (int y = 0; y < img.height(); ++y)
                for (int x = 0; x < img.width(); ++x) img.at(x, y) = small ? static_cast<S>(rng.uniformInt(0, 2)) : rng.sample<S>(0.2, false);
            const S value = rng.sample<S>(0.5, false);
            const PxlMaskCode m = side == 3 ? pxlMask3x3 : pxlMask5x5;
            int bytes = 0;
            ASSERT_EQ((size<S, D>(k, roi, m, &bytes)), pxlStatusOk);
            GuardedBuffer work(bytes, 1, 0, 64, 1);
            GuardedImage<D> dst(roi.width, roi.height, 1);
            ASSERT_EQ((call<S, D>(k, &img.at(margin, margin), img.step(), dst.data(), dst.step(), roi, m, border, value, work.base())),
                      pxlStatusOk);
            ASSERT_TRUE(work.guardsIntact());
            const filtmodel::Extension<S> ext{img, margin, roi, side, side, border, &value};
            const auto w = kernelOf(k, side);
            EXPECT_TRUE(pxltest::matchesEach(dst, [&](int x, int y, int) { return expected<S, D>(ext, w, x, y); }))
                << "kind " << k << " " << pxltest::token<S>() << " " << side << "x" << side << " roi " << roi.width << "x" << roi.height
                << " border " << border;
        }
}

TEST(FilterDerivatives, KernelsOverTheExtendedImage)
{
    const std::initializer_list<Kind> all = {SobelVert,    SobelHoriz,  ScharrVert,  ScharrHoriz, PrewittVert, PrewittHoriz,
                                             RobertsDown,  RobertsUp,   VertSecond,  HorizSecond, NegVert};
    cases<Pxl8u, Pxl16s>(all, 25, 1);
    cases<Pxl32f, Pxl32f>(all, 25, 2);
    cases<Pxl16s, Pxl16s>({SobelVert, SobelHoriz, ScharrVert, ScharrHoriz, PrewittVert, PrewittHoriz, RobertsDown, RobertsUp}, 25, 3);
}

TEST(FilterDerivatives, FlatAndRamp)
{
    // A flat image gives 0 everywhere; the ramp src(x, y) = 3y gives the horizontal Sobel 8 * 3
    // away from the rows whose windows reach past the replicated top and bottom.
    const PxliSize roi{12, 9};
    GuardedImage<Pxl8u> flat(roi.width, roi.height, 1), ramp(roi.width, roi.height, 1);
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x) {
            flat.at(x, y) = 77;
            ramp.at(x, y) = static_cast<Pxl8u>(3 * y);
        }
    int bytes = 0;
    ASSERT_EQ(pxliFilterSobelHorizBorderGetBufferSize(roi, pxlMask3x3, pxlDt8u, pxlDt16s, 1, &bytes), pxlStatusOk);
    std::vector<Pxl8u> work(static_cast<std::size_t>(bytes));
    GuardedImage<Pxl16s> dst(roi.width, roi.height, 1);
    for (Kind k : {SobelVert, ScharrHoriz, RobertsUp, VertSecond}) {
        ASSERT_EQ((call<Pxl8u, Pxl16s>(k, flat.data(), flat.step(), dst.data(), dst.step(), roi, pxlMask3x3, pxlBorderReplicate, 0,
                                       work.data())),
                  pxlStatusOk);
        EXPECT_TRUE(pxltest::matchesEach(dst, [](int, int, int) { return Pxl16s{0}; })) << "kind " << k;
    }
    ASSERT_EQ(pxliFilterSobelHorizBorder_8u16s_C1R(ramp.data(), ramp.step(), dst.data(), dst.step(), roi, pxlMask3x3, pxlBorderReplicate,
                                                    0, work.data()),
              pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(dst, [&](int, int y, int) { return Pxl16s(y == 0 || y == roi.height - 1 ? 12 : 24); }));
}

TEST(FilterDerivatives, SizesAndChecks)
{
    int bytes = -1;
    // max(10, 8) + 2 = 12, three rows: 36 -> 64, plus 32; 5x5 of 32f: 14 * 7 * 4 = 392 -> 416 + 32.
    ASSERT_EQ(pxliFilterSobelVertBorderGetBufferSize({10, 8}, pxlMask3x3, pxlDt8u, pxlDt16s, 1, &bytes), pxlStatusOk);
    EXPECT_EQ(bytes, 96);
    ASSERT_EQ(pxliFilterPrewittVertBorderGetBufferSize({10, 8}, pxlMask5x5, pxlDt32f, pxlDt32f, 1, &bytes), pxlStatusOk);
    EXPECT_EQ(bytes, 448);
    EXPECT_EQ(pxliFilterSobelVertBorderGetBufferSize({10, 8}, pxlMask3x3, pxlDt8u, pxlDt8u, 1, &bytes), pxlStatusBadDataType);
    EXPECT_EQ(pxliFilterSobelVertBorderGetBufferSize({10, 8}, pxlMask3x3, pxlDt8u, pxlDt16s, 3, &bytes), pxlStatusBadChannelCount);
    EXPECT_EQ(pxliFilterSobelVertBorderGetBufferSize({10, 8}, 34, 0, 0, 3, &bytes), pxlStatusBadMaskSize);
    EXPECT_EQ(pxliFilterSobelVertBorderGetBufferSize({10, 0}, 34, 0, 0, 3, &bytes), pxlStatusBadSize);
    EXPECT_EQ(pxliFilterSobelVertBorderGetBufferSize({10, 0}, 34, 0, 0, 3, nullptr), pxlStatusNullPointer);

    const PxliSize roi{9, 7};
    GuardedImage<Pxl8u> src(roi.width, roi.height, 1);
    GuardedImage<Pxl16s> dst(roi.width, roi.height, 1);
    ASSERT_EQ(pxliFilterScharrVertMaskBorderGetBufferSize(roi, pxlMask5x5, pxlDt8u, pxlDt16s, 1, &bytes), pxlStatusOk);
    GuardedBuffer work(bytes, 1, 0, 64, 0);
    struct Args {
        const Pxl8u* src;
        Pxl16s* dst;
        int dstStep;
        PxliSize roi;
        PxlMaskCode mask;
        int border;
        Pxl8u* buffer;
    };
    pxltest::expectCheckOrder<Args>(
        {src.data(), dst.data(), dst.step(), roi, pxlMask3x3, pxlBorderMirror, work.base()},
        {{"null buffer", pxlStatusNullPointer, [](Args& a) { a.buffer = nullptr; }},
         {"height 0", pxlStatusBadSize, [](Args& a) { a.roi.height = 0; }},
         {"odd destination step", pxlStatusMisalignedStep, [](Args& a) { a.dstStep -= 1; }},
         {"Scharr 5x5", pxlStatusBadMaskSize, [](Args& a) { a.mask = pxlMask5x5; }},
         {"word with kind 2", pxlStatusBadBorder, [](Args& a) { a.border = 2; }}},
        [&](const Args& a) {
            return pxliFilterScharrVertMaskBorder_8u16s_C1R(a.src, src.step(), a.dst, a.dstStep, a.roi, a.mask, a.border, 0, a.buffer);
        },
        {&dst, &work});
}

// The Sobel magnitude filter is the magnitude plane of the Sobel gradient vectors (tested against
// their model) on the same image, border and norm.
template <class S, class D, class Filter, class Vector> void sobelMagnitudeCases(Filter filter, Vector vector, int count, uint64_t seed)
{
    Rng rng(seed);
    const PxliSize rois[] = {{1, 1}, {3, 2}, {1, 7}, {6, 5}, {19, 9}, {280, 3}, {33, 17}};
    constexpr int margin = 2;
    for (int n = 0; n < count; ++n) {
        const PxliSize roi = rois[rng.uniformInt(0, 6)];
        const PxlMaskCode mask = rng.chance(0.5) ? pxlMask3x3 : pxlMask5x5;
        const int border = (rng.chance(0.5) ? pxlBorderReplicate : pxlBorderConstant) | rng.uniformInt(0, 15) << 4;
        const int norm = rng.chance(0.5) ? 2 : 4;
        GuardedImage<S> img = pxltest::randomImage<S>(roi.width + 2 * margin, roi.height + 2 * margin, 1, rng, 0.2);
        const S value = rng.sample<S>(0.5, false);
        int bytes = 0, vectorBytes = 0;
        ASSERT_EQ(pxliFilterSobelGetBufferSize(roi, mask, pxltest::typeCode<S>(), pxltest::typeCode<D>(), 1, &bytes), pxlStatusOk);
        ASSERT_EQ(pxliGradientVectorGetBufferSize(roi, mask, pxltest::typeCode<S>(), 1, &vectorBytes), pxlStatusOk);
        GuardedBuffer work(bytes, 1, 0, 64, 1), vectorWork(vectorBytes, 1, 0, 64, 0);
        GuardedImage<D> got(roi.width, roi.height), want(roi.width, roi.height);
        const S* src = &img.at(margin, margin);
        ASSERT_EQ(filter(src, img.step(), got.data(), got.step(), roi, mask, norm, border, value, work.base()), pxlStatusOk);
        ASSERT_EQ(vector(src, img.step(), nullptr, 0, nullptr, 0, want.data(), want.step(), nullptr, 0, roi, mask, norm, border, value,
                         vectorWork.base()),
                  pxlStatusOk);
        ASSERT_TRUE(work.guardsIntact() && got.guardsIntact());
        EXPECT_TRUE(pxltest::regionsEqual(got, want)) << pxltest::token<S>() << " mask " << mask << " roi " << roi.width << "x"
                                                      << roi.height << " border " << border << " norm " << norm;
    }
}

TEST(FilterDerivatives, SobelMagnitude)
{
    sobelMagnitudeCases<Pxl8u, Pxl16s>(pxliFilterSobel_8u16s_C1R, pxliGradientVectorSobel_8u16s_C1R, 30, 11);
    sobelMagnitudeCases<Pxl16s, Pxl32f>(pxliFilterSobel_16s32f_C1R, pxliGradientVectorSobel_16s32f_C1R, 20, 12);
    sobelMagnitudeCases<Pxl16u, Pxl32f>(pxliFilterSobel_16u32f_C1R, pxliGradientVectorSobel_16u32f_C1R, 20, 13);
    sobelMagnitudeCases<Pxl32f, Pxl32f>(pxliFilterSobel_32f_C1R, pxliGradientVectorSobel_32f_C1R, 30, 14);

    int bytes = -1;
    // 16u, 5x5, 10 by 8: (10 + 4) * (5 + 8 - 1) * 2 + 2 * 10 * 4 = 416.
    ASSERT_EQ(pxliFilterSobelGetBufferSize({10, 8}, pxlMask5x5, pxlDt16u, pxlDt32f, 1, &bytes), pxlStatusOk);
    EXPECT_EQ(bytes, 416);
    EXPECT_EQ(pxliFilterSobelGetBufferSize({10, 8}, pxlMask3x3, pxlDt16u, pxlDt16s, 1, &bytes), pxlStatusBadDataType);
    EXPECT_EQ(pxliFilterSobelGetBufferSize({10, 8}, pxlMask3x3, pxlDt8u, pxlDt16s, 3, &bytes), pxlStatusBadChannelCount);

    const PxliSize roi{9, 7};
    GuardedImage<Pxl16s> src(roi.width, roi.height, 1);
    GuardedImage<Pxl32f> dst(roi.width, roi.height, 1);
    ASSERT_EQ(pxliFilterSobelGetBufferSize(roi, pxlMask5x5, pxlDt16s, pxlDt32f, 1, &bytes), pxlStatusOk);
    GuardedBuffer work(bytes, 1, 0, 64, 0);
    struct Args {
        const Pxl16s* src;
        int srcStep;
        Pxl32f* dst;
        PxliSize roi;
        PxlMaskCode mask;
        int norm, border;
        Pxl8u* buffer;
    };
    pxltest::expectCheckOrder<Args>(
        {src.data(), src.step(), dst.data(), roi, pxlMask5x5, 2, pxlBorderConstant, work.base()},
        {{"null destination", pxlStatusNullPointer, [](Args& a) { a.dst = nullptr; }},
         {"null buffer", pxlStatusNullPointer, [](Args& a) { a.buffer = nullptr; }},
         {"width 0", pxlStatusBadSize, [](Args& a) { a.roi.width = 0; }},
         {"odd source step", pxlStatusMisalignedStep, [](Args& a) { a.srcStep -= 1; }},
         {"mask 34", pxlStatusBadMaskSize, [](Args& a) { a.mask = 34; }},
         {"norm 3", pxlStatusBadArgument, [](Args& a) { a.norm = 3; }},
         {"mirror", pxlStatusBadBorder, [](Args& a) { a.border = pxlBorderMirror; }}},
        [&](const Args& a) { return pxliFilterSobel_16s32f_C1R(a.src, a.srcStep, a.dst, dst.step(), a.roi, a.mask, a.norm, a.border, 0, a.buffer); },
        {&dst, &work});
}

}  // namespace
