// Gradient vectors against the operators' kernels over the extended image: every operator, size,
// type, border kind and flag, one and three channels, any subset of the planes; flat images and
// ramps; sizes, statuses and their order. The Sobel magnitude filter against the same model.
#include "../filtering/extension_model.hpp"
#include "pxltest.hpp"

#include <cmath>
#include <vector>

namespace {

using pxltest::GuardedBuffer;
using pxltest::GuardedImage;
using pxltest::Rng;

enum Op { Sobel, Prewitt, Scharr };

// The operator's kernels as applied at the pixel, rows from the top: gx is the left side minus
// the right, gy the bottom minus the top.
struct Kernels {
    std::vector<std::vector<int>> x, y;
};
Kernels kernelsOf(Op op, int side)
{
    if (side == 3) {
        const int a = op == Scharr ? 3 : 1, b = op == Sobel ? 2 : op == Scharr ? 10 : 1;
        return {{{a, 0, -a}, {b, 0, -b}, {a, 0, -a}}, {{-a, -b, -a}, {0, 0, 0}, {a, b, a}}};
    }
    const int binomial[5] = {1, 4, 6, 4, 1}, down[5] = {1, 2, 0, -2, -1}, plane[5] = {2, 1, 0, -1, -2};
    Kernels k{std::vector<std::vector<int>>(5, std::vector<int>(5)), std::vector<std::vector<int>>(5, std::vector<int>(5))};
    for (int i = 0; i < 5; ++i)
        for (int q = 0; q < 5; ++q) {
            k.x[i][q] = op == Sobel ? binomial[i] * down[q] : plane[q];
            k.y[i][q] = op == Sobel ? -down[i] * binomial[q] : -plane[i];
        }
    return k;
}

// One channel's kernel sum: integers exactly, 32f as the products of the non-zero weights added in
// row-major order.
template <class S> double kernelSum(const filtmodel::Extension<S>& ext, const std::vector<std::vector<int>>& w, int x, int y, int c)
{
    const int side = static_cast<int>(w.size()), h = side / 2;
    float fsum = 0;
    int64_t isum = 0;
    bool first = true;
    for (int i = 0; i < side; ++i)
        for (int q = 0; q < side; ++q)
            if (w[i][q] != 0) {
                const S v = ext(x + q - h, y + i - h, c);
                isum += int64_t{w[i][q]} * static_cast<int64_t>(std::is_floating_point_v<S> ? 0 : v);
                const float term = static_cast<float>(w[i][q]) * static_cast<float>(v);
                fsum = first ? term : fsum + term;
                first = false;
            }
    return std::is_floating_point_v<S> ? fsum : static_cast<double>(isum);
}

// The gradient at a pixel: of the one channel, or of the channel with the largest squared length
// (the first of equals). Integer sums are exact in a double.
template <class S> std::pair<double, double> gradientAt(const filtmodel::Extension<S>& ext, const Kernels& k, int n, int x, int y)
{
    double gx = 0, gy = 0, best = -1;
    for (int c = 0; c < n; ++c) {
        const double cx = kernelSum(ext, k.x, x, y, c), cy = kernelSum(ext, k.y, x, y, c), e = cx * cx + cy * cy;
        if (c == 0 || e > best) gx = cx, gy = cy, best = e;
    }
    return {gx, gy};
}

template <class D> D magnitudeOf(double gx, double gy, int norm)
{
    if constexpr (std::is_same_v<D, Pxl16s>) {
        const double m = norm == 2 ? std::fabs(gx) + std::fabs(gy) : std::round(std::sqrt(gx * gx + gy * gy));
        return static_cast<D>(std::min(m, 32767.0));
    } else {
        const float fx = static_cast<float>(gx), fy = static_cast<float>(gy);
        return norm == 2 ? std::fabs(fx) + std::fabs(fy) : std::sqrt(fx * fx + fy * fy);
    }
}

// Bit for bit, any NaN matching any NaN.
template <class T> bool same(T a, T b)
{
    if constexpr (std::is_floating_point_v<T>)
        if (std::isnan(a) && std::isnan(b)) return true;
    return pxltest::sameBits(a, b);
}

// The angle within a few float steps of atan2, zeros taken as positive.
bool closeAngle(float got, double gy, double gx)
{
    if (std::isnan(gx) || std::isnan(gy)) return std::isnan(got);
    const double want = std::atan2(gy == 0 ? 0.0 : static_cast<double>(static_cast<float>(gy)), gx == 0 ? 0.0 : static_cast<double>(static_cast<float>(gx)));
    return std::fabs(got - want) <= 1e-6 && std::fabs(got) <= static_cast<float>(M_PI);
}

template <class S, class D> struct Forms {
    using One = PxlStatus (*)(const S*, int, D*, int, D*, int, D*, int, Pxl32f*, int, PxliSize, PxlMaskCode, int, PxliBorderMode, S, Pxl8u*);
    using Three = PxlStatus (*)(const S*, int, D*, int, D*, int, D*, int, Pxl32f*, int, PxliSize, PxlMaskCode, int, PxliBorderMode,
                                const S*, Pxl8u*);
    One c1[3];
    Three c3[3];
};
#define PXL_FORMS(t)                                                                                                    \
    {{pxliGradientVectorSobel_##t##_C1R, pxliGradientVectorPrewitt_##t##_C1R, pxliGradientVectorScharr_##t##_C1R},      \
     {pxliGradientVectorSobel_##t##_C3C1R, pxliGradientVectorPrewitt_##t##_C3C1R, pxliGradientVectorScharr_##t##_C3C1R}}
const Forms<Pxl8u, Pxl16s> k8u16s = PXL_FORMS(8u16s);
const Forms<Pxl16s, Pxl32f> k16s32f = PXL_FORMS(16s32f);
const Forms<Pxl16u, Pxl32f> k16u32f = PXL_FORMS(16u32f);
const Forms<Pxl32f, Pxl32f> k32f = PXL_FORMS(32f);
#undef PXL_FORMS

template <class S, class D> void cases(const Forms<S, D>& forms, int count, uint64_t seed)
{
    Rng rng(seed);
    const PxliSize rois[] = {{1, 1}, {2, 3}, {5, 1}, {1, 6}, {4, 4}, {9, 7}, {23, 11}, {300, 5}, {7, 40}, {40, 20}};
    const int kinds[] = {pxlBorderReplicate, pxlBorderMirror, pxlBorderConstant};
    constexpr int margin = 2;
    for (int n = 0; n < count; ++n) {
        const Op op = static_cast<Op>(n % 3);
        const int channels = n / 3 % 2 ? 3 : 1;
        const int side = op != Scharr && rng.chance(0.5) ? 5 : 3;
        const PxliSize roi = rois[rng.uniformInt(0, 9)];
        const int border = kinds[rng.uniformInt(0, 2)] | rng.uniformInt(0, 15) << 4, norm = rng.chance(0.5) ? 2 : 4;
        const int planes = rng.uniformInt(1, 15);
        const bool small = rng.chance(0.3);  // flat stretches, ties between channels, exact float sums
        GuardedImage<S> img(roi.width + 2 * margin, roi.height + 2 * margin, channels);
        for (int y = 0; y < img.height(); ++y)
            for (int i = 0; i < img.samplesPerRow(); ++i)
                img.row(y)[i] = small ? static_cast<S>(rng.uniformInt(0, 2)) : rng.sample<S>(0.2, false);
        S value[3];
        for (S& v : value) v = rng.sample<S>(0.5, false);
        const PxlMaskCode mask = side == 3 ? pxlMask3x3 : pxlMask5x5;
        int bytes = 0;
        ASSERT_EQ(pxliGradientVectorGetBufferSize(roi, mask, pxltest::typeCode<S>(), channels, &bytes), pxlStatusOk);
        GuardedBuffer work(bytes, 1, 0, 64, 1);
        GuardedImage<D> gx(roi.width, roi.height), gy(roi.width, roi.height), mag(roi.width, roi.height);
        GuardedImage<Pxl32f> angle(roi.width, roi.height);
        for (auto* p : {&gx, &gy, &mag}) p->fillRandom(rng);
        angle.fillRandom(rng);
        const GuardedImage<D> gx0 = gx, gy0 = gy, mag0 = mag;
        const GuardedImage<Pxl32f> angle0 = angle;
        D* pgx = planes & 1 ? gx.data() : nullptr;
        D* pgy = planes & 2 ? gy.data() : nullptr;
        D* pmag = planes & 4 ? mag.data() : nullptr;
        Pxl32f* pangle = planes & 8 ? angle.data() : nullptr;
        const S* src = &img.at(margin, margin);
        const PxlStatus status =
            channels == 1 ? forms.c1[op](src, img.step(), pgx, gx.step(), pgy, gy.step(), pmag, mag.step(), pangle, angle.step(), roi, mask,
                                         norm, border, value[0], work.base())
                          : forms.c3[op](src, img.step(), pgx, gx.step(), pgy, gy.step(), pmag, mag.step(), pangle, angle.step(), roi, mask,
                                         norm, border, value, work.base());
        const std::string what = std::string("op ") + std::to_string(op) + " " + pxltest::token<S>() + " C" + std::to_string(channels) +
                                 " " + std::to_string(side) + "x" + std::to_string(side) + " roi " + std::to_string(roi.width) + "x" +
                                 std::to_string(roi.height) + " border " + std::to_string(border) + " norm " + std::to_string(norm) +
                                 " planes " + std::to_string(planes);
        ASSERT_EQ(status, pxlStatusOk) << what;
        ASSERT_TRUE(work.guardsIntact()) << what << ": work buffer overrun";
        for (const GuardedBuffer* p : {static_cast<const GuardedBuffer*>(&gx), static_cast<const GuardedBuffer*>(&gy),
                                       static_cast<const GuardedBuffer*>(&mag), static_cast<const GuardedBuffer*>(&angle)})
            ASSERT_TRUE(p->guardsIntact()) << what;
        const filtmodel::Extension<S> ext{img, margin, roi, side, side, border, value};
        const Kernels k = kernelsOf(op, side);
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width; ++x) {
                const auto [wx, wy] = gradientAt(ext, k, channels, x, y);
                const std::string at = what + " at (" + std::to_string(x) + ", " + std::to_string(y) + ")";
                const D ex = pgx ? static_cast<D>(wx) : gx0.at(x, y), ey = pgy ? static_cast<D>(wy) : gy0.at(x, y);
                ASSERT_TRUE(same(gx.at(x, y), ex)) << at << " gx: got " << +gx.at(x, y) << ", want " << +ex;
                ASSERT_TRUE(same(gy.at(x, y), ey)) << at << " gy: got " << +gy.at(x, y) << ", want " << +ey;
                const D em = pmag ? magnitudeOf<D>(wx, wy, norm) : mag0.at(x, y);
                ASSERT_TRUE(same(mag.at(x, y), em)) << at << " magnitude: got " << +mag.at(x, y) << ", want " << +em;
                if (pangle) ASSERT_TRUE(closeAngle(angle.at(x, y), wy, wx)) << at << " angle " << angle.at(x, y) << " of " << wy << ", " << wx;
                else ASSERT_TRUE(pxltest::sameBits(angle.at(x, y), angle0.at(x, y))) << at << " angle written";
            }
    }
}

TEST(GradientVector, PlanesOverTheExtendedImage)
{
    cases(k8u16s, 120, 1);
    cases(k16s32f, 60, 2);
    cases(k16u32f, 60, 3);
    cases(k32f, 120, 4);
}

TEST(GradientVector, FlatAndRamps)
{
    // A flat image: every plane 0, the angle +0. The ramp 3x falls from left to right by the
    // operator's sign (gx = -8 * 3 with Sobel), so its angle is pi; the ramp 3y rises downwards,
    // pi / 2; both away from the edges, where the replicated border flattens the slope.
    const PxliSize roi{12, 9};
    GuardedImage<Pxl8u> flat(roi.width, roi.height, 3), rampX(roi.width, roi.height, 1), rampY(roi.width, roi.height, 1);
    flat.fill(77);
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x) {
            rampX.at(x, y) = static_cast<Pxl8u>(3 * x);
            rampY.at(x, y) = static_cast<Pxl8u>(3 * y);
        }
    int bytes = 0;
    ASSERT_EQ(pxliGradientVectorGetBufferSize(roi, pxlMask5x5, pxlDt8u, 3, &bytes), pxlStatusOk);
    std::vector<Pxl8u> work(static_cast<std::size_t>(bytes));
    GuardedImage<Pxl16s> gx(roi.width, roi.height), gy(roi.width, roi.height), mag(roi.width, roi.height);
    GuardedImage<Pxl32f> angle(roi.width, roi.height);
    const Pxl8u value[3] = {0, 0, 0};
    for (int op = 0; op < 3; ++op) {
        angle.fill(-1);
        ASSERT_EQ(k8u16s.c3[op](flat.data(), flat.step(), gx.data(), gx.step(), gy.data(), gy.step(), mag.data(), mag.step(), angle.data(),
                                angle.step(), roi, op == Scharr ? pxlMask3x3 : pxlMask5x5, 4, pxlBorderReplicate, value, work.data()),
                  pxlStatusOk);
        for (auto* p : {&gx, &gy, &mag}) EXPECT_TRUE(pxltest::matchesEach(*p, [](int, int, int) { return Pxl16s{0}; })) << "op " << op;
        EXPECT_TRUE(pxltest::matchesEach(angle, [](int, int, int) { return 0.0f; })) << "op " << op;
    }
    ASSERT_EQ(pxliGradientVectorSobel_8u16s_C1R(rampX.data(), rampX.step(), gx.data(), gx.step(), nullptr, 0, mag.data(), mag.step(),
                                                angle.data(), angle.step(), roi, pxlMask3x3, 2, pxlBorderReplicate, 0, work.data()),
              pxlStatusOk);
    const auto inner = [&](int x) { return x > 0 && x < roi.width - 1; };
    EXPECT_TRUE(pxltest::matchesEach(gx, [&](int x, int, int) { return Pxl16s(inner(x) ? -24 : -12); }));
    EXPECT_TRUE(pxltest::matchesEach(mag, [&](int x, int, int) { return Pxl16s(inner(x) ? 24 : 12); }));
    EXPECT_TRUE(pxltest::matchesEach(angle, [](int, int, int) { return 3.14159265358979f; }));
    ASSERT_EQ(pxliGradientVectorSobel_8u16s_C1R(rampY.data(), rampY.step(), nullptr, 0, gy.data(), gy.step(), nullptr, 0, angle.data(),
                                                angle.step(), roi, pxlMask3x3, 2, pxlBorderReplicate, 0, work.data()),
              pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(gy, [&](int, int y, int) { return Pxl16s(y > 0 && y < roi.height - 1 ? 24 : 12); }));
    EXPECT_TRUE(pxltest::matchesEach(angle, [](int, int, int) { return 1.57079632679490f; }));
}

TEST(GradientVector, SizesAndChecks)
{
    int bytes = -1;
    // 3x3, 10 by 8: 1 * (10 + 2) * (3 + 4 - 1) * 1 + 2 * 10 * 2 = 112; 5x5 32f three channels,
    // 10 by 3: 3 * 14 * (5 + 3 - 1) * 4 + 2 * 10 * 4 = 1256.
    ASSERT_EQ(pxliGradientVectorGetBufferSize({10, 8}, pxlMask3x3, pxlDt8u, 1, &bytes), pxlStatusOk);
    EXPECT_EQ(bytes, 112);
    ASSERT_EQ(pxliGradientVectorGetBufferSize({3, 10}, pxlMask5x5, pxlDt32f, 3, &bytes), pxlStatusOk);
    EXPECT_EQ(bytes, 1256);
    EXPECT_EQ(pxliGradientVectorGetBufferSize({10, 8}, pxlMask3x3, pxlDt8u, 2, &bytes), pxlStatusBadChannelCount);
    EXPECT_EQ(pxliGradientVectorGetBufferSize({10, 8}, pxlMask3x3, pxlDt64f, 2, &bytes), pxlStatusBadDataType);
    EXPECT_EQ(pxliGradientVectorGetBufferSize({10, 8}, 34, pxlDt64f, 2, &bytes), pxlStatusBadMaskSize);
    EXPECT_EQ(pxliGradientVectorGetBufferSize({0, 8}, 34, pxlDt64f, 2, &bytes), pxlStatusBadSize);
    EXPECT_EQ(pxliGradientVectorGetBufferSize({0, 8}, 34, pxlDt64f, 2, nullptr), pxlStatusNullPointer);

    const PxliSize roi{9, 7};
    GuardedImage<Pxl16s> src(roi.width, roi.height, 3);
    GuardedImage<Pxl32f> gx(roi.width, roi.height), gy(roi.width, roi.height), mag(roi.width, roi.height), angle(roi.width, roi.height);
    ASSERT_EQ(pxliGradientVectorGetBufferSize(roi, pxlMask5x5, pxlDt16s, 3, &bytes), pxlStatusOk);
    GuardedBuffer work(bytes, 1, 0, 64, 0);
    const Pxl16s value[3] = {1, 2, 3};
    struct Args {
        const Pxl16s* src;
        int srcStep;
        int steps[4];
        PxliSize roi;
        PxlMaskCode mask;
        int norm, border;
        Pxl8u* buffer;
    };
    const Args valid{src.data(), src.step(), {gx.step(), gy.step(), mag.step(), angle.step()}, roi, pxlMask5x5, 4, pxlBorderConstant,
                     work.base()};
    auto call = [&](const Args& a) {
        return pxliGradientVectorSobel_16s32f_C3C1R(a.src, a.srcStep, gx.data(), a.steps[0], gy.data(), a.steps[1], mag.data(), a.steps[2],
                                                    angle.data(), a.steps[3], a.roi, a.mask, a.norm, a.border, value, a.buffer);
    };
    std::vector<pxltest::Fault<Args>> faults = {
        {"word above 255", pxlStatusBadBorder, [](Args& a) { a.border = 0x101; }},
        {"word with kind 2", pxlStatusBadBorder, [](Args& a) { a.border = 0x12; }},
        {"null source", pxlStatusNullPointer, [](Args& a) { a.src = nullptr; }},
        {"source step 0", pxlStatusBadStep, [](Args& a) { a.srcStep = 0; }},
        {"odd source step", pxlStatusMisalignedStep, [](Args& a) { a.srcStep -= 1; }},
        {"null buffer", pxlStatusNullPointer, [](Args& a) { a.buffer = nullptr; }},
    };
    const char* names[4] = {"gx", "gy", "magnitude", "angle"};
    for (int p = 0; p < 4; ++p) {
        faults.push_back({std::string(names[p]) + " step -4", pxlStatusBadStep, [p](Args& a) { a.steps[p] = -4; }});
        faults.push_back({std::string(names[p]) + " step 2 short", pxlStatusMisalignedStep, [p](Args& a) { a.steps[p] -= 2; }});
        if (p == 2) faults.push_back({"norm 3", pxlStatusBadArgument, [](Args& a) { a.norm = 3; }});
    }
    faults.push_back({"height 0", pxlStatusBadSize, [](Args& a) { a.roi.height = 0; }});
    faults.push_back({"mask 34", pxlStatusBadMaskSize, [](Args& a) { a.mask = 34; }});
    pxltest::expectCheckOrder<Args>(valid, faults, call, {&gx, &gy, &mag, &angle, &work});

    // Scharr has no 5x5; the norm of an absent magnitude and the steps of absent planes are not
    // looked at; with no plane at all, the call still checks and writes nothing.
    pxltest::Watch none({&gx, &gy, &mag, &angle, &work});
    EXPECT_EQ(pxliGradientVectorScharr_16s32f_C3C1R(src.data(), src.step(), gx.data(), gx.step(), nullptr, 0, nullptr, 0, nullptr, 0, roi,
                                                    pxlMask5x5, 4, pxlBorderReplicate, value, work.base()),
              pxlStatusBadMaskSize);
    EXPECT_EQ(pxliGradientVectorSobel_16s32f_C3C1R(src.data(), src.step(), nullptr, -1, nullptr, 3, nullptr, 0, nullptr, 0, roi, pxlMask3x3,
                                                   3, pxlBorderReplicate, nullptr, work.base()),
              pxlStatusOk);
    EXPECT_EQ(pxliGradientVectorSobel_16s32f_C3C1R(src.data(), src.step(), nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0, {0, 1},
                                                   pxlMask3x3, 4, pxlBorderReplicate, nullptr, work.base()),
              pxlStatusBadSize);
    EXPECT_TRUE(none.unchanged());
    EXPECT_EQ(pxliGradientVectorSobel_16s32f_C3C1R(src.data(), src.step(), gx.data(), gx.step(), nullptr, 0, nullptr, 0, nullptr, 0, roi,
                                                   pxlMask3x3, 3, pxlBorderConstant, nullptr, work.base()),
              pxlStatusOk);
}

}  // namespace
