// The outside of a filter's region, from the rules of the border word: the caller's memory on the
// flagged sides (as far as the mask reaches), and beyond that the kind: the nearest edge pixel
// repeated, a reflection about the edge pixel, or the constant value.
#pragma once

#include "pxltest.hpp"

#include <string>

namespace filtmodel {

// The samples of a region at (margin, margin) of `img`, extended for a mask of kw by kh with its
// anchor at ((kw - 1) / 2, (kh - 1) / 2).
template <class T> struct Extension {
    const pxltest::GuardedImage<T>& img;
    int margin;
    PxliSize roi;
    int kw, kh, border;
    const T* value;

    T operator()(int x, int y, int c) const
    {
        const int ax = (kw - 1) / 2, ay = (kh - 1) / 2, kind = border & 15;
        const int x0 = border & 0x40 ? -ax : 0, x1 = border & 0x80 ? roi.width + kw - 1 - ax : roi.width;
        const int y0 = border & 0x10 ? -ay : 0, y1 = border & 0x20 ? roi.height + kh - 1 - ay : roi.height;
        const int fx = fold(x, x0, x1, kind), fy = fold(y, y0, y1, kind);
        if (fx == kOutside || fy == kOutside) return value[c];
        return img.at(margin + fx, margin + fy, c);
    }

private:
    static constexpr int kOutside = -(1 << 30);
    // Index i brought into [lo, hi) by the kind, or kOutside for the constant.
    static int fold(int i, int lo, int hi, int kind)
    {
        if (i >= lo && i < hi) return i;
        if (kind == pxlBorderConstant) return kOutside;
        const int n = hi - lo;
        int r = i - lo;
        if (kind == pxlBorderReplicate) return r < 0 ? lo : hi - 1;
        if (n == 1) return lo;
        const int p = 2 * n - 2;
        r = ((r % p) + p) % p;
        return lo + (r < n ? r : p - r);
    }
};

// The size query of a filter with borders.
using SizeQuery = PxlStatus (*)(PxliSize, PxliSize, PxlDataType, int, int*);

// One random case of a filter with borders, N samples a pixel of which the first P are filtered:
// the region lies `margin` pixels into a source of sample() values, the constant is random, and the
// work buffer has exactly the size query(roi, mask, type, N, &size) gives (at an odd address). Each output sample must be
// same() as want(extension, x, y, c), the rest of each pixel as it was; then the same call in
// place, on a copy of the source, must give the same region and leave the rest alone.
template <class T, int N, int P, class Query, class Sample, class Call, class Want, class Same>
void borderCase(pxltest::Rng& rng, int margin, PxliSize roi, PxliSize mask, int border, Query query, Sample sample, Call call, Want want,
                Same same)
{
    pxltest::GuardedImage<T> img(roi.width + 2 * margin, roi.height + 2 * margin, N);
    for (int y = 0; y < img.height(); ++y)
        for (int i = 0; i < img.samplesPerRow(); ++i) img.row(y)[i] = sample();
    T value[4];
    for (T& v : value) v = rng.sample<T>(0.5, false);
    int size = 0;
    ASSERT_EQ(query(roi, mask, pxltest::typeCode<T>(), N, &size), pxlStatusOk);
    pxltest::GuardedBuffer work(size, 1, 0, 64, 1);
    pxltest::GuardedImage<T> dst(roi.width, roi.height, N);
    dst.fillRandom(rng);
    const pxltest::GuardedImage<T> before = dst;
    ASSERT_EQ(call(&img.at(margin, margin), img.step(), dst.data(), dst.step(), roi, mask, border, value, work.base()), pxlStatusOk);
    const Extension<T> ext{img, margin, roi, mask.width, mask.height, border, value};
    const std::string what = std::string(pxltest::token<T>()) + (P < N ? " AC4" : " C" + std::to_string(N)) + " mask " +
                             std::to_string(mask.width) + "x" + std::to_string(mask.height) + " roi " + std::to_string(roi.width) + "x" +
                             std::to_string(roi.height) + " border " + std::to_string(border);
    ASSERT_TRUE(work.guardsIntact()) << what << ": work buffer overrun";
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < N; ++c) {
                const T got = dst.at(x, y, c), expect = c < P ? want(ext, x, y, c) : before.at(x, y, c);
                ASSERT_TRUE(same(got, expect)) << what << " at (" << x << ", " << y << ") channel " << c << ": got " << +got << ", want "
                                               << +expect;
            }
    ASSERT_TRUE(dst.guardsIntact()) << what;

    pxltest::GuardedImage<T> copy = img;
    for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x)
            for (int c = P; c < N; ++c) copy.at(margin + x, margin + y, c) = before.at(x, y, c);
    pxltest::GuardedBuffer work2(size, 1, 0, 64, 2);
    T* region = &copy.at(margin, margin);
    ASSERT_EQ(call(region, copy.step(), region, copy.step(), roi, mask, border, value, work2.base()), pxlStatusOk);
    ASSERT_TRUE(work2.guardsIntact()) << what << ": work buffer overrun in place";
    for (int y = 0; y < copy.height(); ++y)
        for (int x = 0; x < copy.width(); ++x) {
            const bool inside = x >= margin && x < margin + roi.width && y >= margin && y < margin + roi.height;
            for (int c = 0; c < N; ++c) {
                const T got = copy.at(x, y, c), expect = inside ? dst.at(x - margin, y - margin, c) : img.at(x, y, c);
                ASSERT_TRUE(pxltest::sameBits(got, expect))
                    << what << " in place at (" << x - margin << ", " << y - margin << ") channel " << c << ": got " << +got << ", want "
                    << +expect;
            }
        }
}

// A three-channel 8u call of a filter with borders, ready for the order of its checks: images, a
// work buffer of the size its query gives, and arguments that pass every check (constant kind).
struct BorderCall {
    struct Args {
        const Pxl8u* src;
        int srcStep;
        Pxl8u* dst;
        int dstStep;
        PxliSize roi, mask;
        int border;
        const Pxl8u* value;
        Pxl8u* buffer;
    };
    pxltest::GuardedImage<Pxl8u> src, dst;
    pxltest::GuardedBuffer work;
    Pxl8u value[3] = {1, 2, 3};
    Args valid;
    BorderCall(PxliSize roi, PxliSize mask, SizeQuery query)
        : src(roi.width, roi.height, 3), dst(roi.width, roi.height, 3), work(bufferSize(roi, mask, query), 1, 0, 64, 0),
          valid{src.data(), src.step(), dst.data(), dst.step(), roi, mask, pxlBorderConstant, value, work.base()}
    {
    }
    static int bufferSize(PxliSize roi, PxliSize mask, SizeQuery query)
    {
        int size = 0;
        EXPECT_EQ(query(roi, mask, pxlDt8u, 3, &size), pxlStatusOk);
        return size;
    }
};

}  // namespace filtmodel
