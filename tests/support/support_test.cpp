// The test support must catch what it is there to catch: a write outside the region, a write on a
// failing call, and a check order that differs from the one declared.
#include "pxltest.hpp"

#include <gtest/gtest-spi.h>

#include <algorithm>
#include <set>

using namespace pxltest;

TEST(GuardedImage, RegionIsAlignedAndAddressedByStep)
{
    GuardedImage<Pxl16s> img(7, 5, 3);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(img.data()) % 64, 0u);
    EXPECT_GE(img.step(), 7 * 3 * 2);
    img.at(6, 4, 2) = 123;
    EXPECT_EQ(reinterpret_cast<const Pxl16s*>(reinterpret_cast<const uint8_t*>(img.data()) + 4 * img.step())[20], 123);
    EXPECT_TRUE(img.guardsIntact());
}

TEST(GuardedImage, EveryByteJustOutsideTheRegionIsGuarded)
{
    GuardedImage<Pxl8u> img(5, 3, 1, 8);
    img.fill(0);  // writes the region only
    ASSERT_TRUE(img.guardsIntact());
    const std::ptrdiff_t s = img.step();
    uint8_t* b = img.data();
    for (std::ptrdiff_t off : {std::ptrdiff_t{-1}, std::ptrdiff_t{5}, -s, 3 * s, 2 * s + 5, s - 1, -s - 1}) {
        const uint8_t keep = b[off];
        b[off] = static_cast<uint8_t>(~keep);
        EXPECT_FALSE(img.guardsIntact()) << "offset " << off;
        b[off] = keep;
    }
    EXPECT_TRUE(img.guardsIntact());
}

TEST(Watch, SeesAnyWriteIncludingTheRegion)
{
    GuardedImage<Pxl32f> a(4, 4), b(4, 4);
    Watch w({&a, &b});
    EXPECT_TRUE(w.unchanged());
    b.at(3, 3) = 1.0f;
    EXPECT_FALSE(w.unchanged());
}

TEST(Rng, SamplesIncludeEveryExtremeAndReplayFromTheSeed)
{
    for (bool finite : {true, false}) {
        Rng rng(7), again(7);
        std::set<uint32_t> seen;
        for (int i = 0; i < 20000; ++i) {
            const float v = rng.sample<Pxl32f>(0.5, !finite);
            ASSERT_TRUE(sameBits(v, again.sample<Pxl32f>(0.5, !finite)));
            if (finite) {
                ASSERT_TRUE(std::isfinite(v));
            }
            uint32_t u;
            std::memcpy(&u, &v, 4);
            seen.insert(u);
        }
        for (float e : extremes<Pxl32f>()) {
            uint32_t u;
            std::memcpy(&u, &e, 4);
            EXPECT_EQ(seen.count(u) != 0, finite ? std::isfinite(e) : true) << e;
        }
    }
    Rng rng(9);
    std::set<int> s16;
    for (int i = 0; i < 4000; ++i) s16.insert(rng.sample<Pxl16s>());
    EXPECT_TRUE(s16.count(-32768) && s16.count(32767) && s16.count(0) && s16.count(-1));
}

// A toy function with a declared order: null pointer, then size, then step.
namespace {
struct ToyArgs {
    Pxl8u* dst;
    int step;
    PxliSize roi;
};
PxlStatus toy(const ToyArgs& a, bool sizeFirst)
{
    if (sizeFirst && (a.roi.width < 1 || a.roi.height < 1)) return pxlStatusBadSize;
    if (!a.dst) return pxlStatusNullPointer;
    if (a.roi.width < 1 || a.roi.height < 1) return pxlStatusBadSize;
    if (a.step < 1) return pxlStatusBadStep;
    a.dst[0] = 1;
    return pxlStatusOk;
}
}  // namespace

TEST(CheckOrder, PassesTheDeclaredOrderAndCatchesAnother)
{
    GuardedImage<Pxl8u> img(3, 3);
    const ToyArgs valid{img.data(), img.step(), img.size()};
    const std::vector<Fault<ToyArgs>> faults = {
        {"null", pxlStatusNullPointer, [](ToyArgs& a) { a.dst = nullptr; }},
        {"width 0", pxlStatusBadSize, [](ToyArgs& a) { a.roi.width = 0; }},
        {"step 0", pxlStatusBadStep, [](ToyArgs& a) { a.step = 0; }},
    };
    expectCheckOrder(valid, faults, [](const ToyArgs& a) { return toy(a, false); }, {&img});
    EXPECT_NONFATAL_FAILURE(
        expectCheckOrder(valid, faults, [](const ToyArgs& a) { return toy(a, true); }, {&img}), "null with width 0");
}
