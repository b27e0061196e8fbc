// Every build of the kernels gives the bits of the first x86-64's: the same calls, on the same
// random images (with each type's extremes), run under each level this processor has and are
// compared with level 0 byte for byte. Widths from 1 to 67 reach the vector bodies of every width
// and their tails. The family tests also run whole under each level; this test compares the
// levels with each other directly, on the ops whose fast paths differ most between levels.
#include "pxltest.hpp"

extern "C" int pxlTestHoldLevel(int level);

namespace {

using pxltest::GuardedImage;
using pxltest::Rng;

// One op: fills its inputs from the seed, calls the library, returns the output region's bytes.
using Op = std::function<std::vector<uint8_t>(int w, int h, uint64_t seed)>;

template <class T> std::vector<uint8_t> regionBytes(const GuardedImage<T>& img)
{
    std::vector<uint8_t> out;
    for (int y = 0; y < img.height(); ++y) {
        const auto* p = reinterpret_cast<const uint8_t*>(img.row(y));
        out.insert(out.end(), p, p + img.rowBytes());
    }
    out.push_back(img.guardsIntact() ? 1 : 0);
    return out;
}

// d = f(a) for a source of type S with `cs` channels and a destination of type D with `cd`.
template <class S, class D, class F> Op unary(int cs, int cd, F f, bool finite = false)
{
    return [=](int w, int h, uint64_t seed) {
        Rng rng(seed);
        GuardedImage<S> a(w, h, cs);
        a.fillRandom(rng, 0.125, !finite);
        GuardedImage<D> d(w, h, cd);
        f(a.data(), a.step(), d.data(), d.step(), PxliSize{w, h});
        return regionBytes(d);
    };
}

// d = f(a, b), every image of type T with `c` channels.
template <class T, class F> Op binary(int c, F f)
{
    return [=](int w, int h, uint64_t seed) {
        Rng rng(seed);
        GuardedImage<T> a(w, h, c), b(w, h, c), d(w, h, c);
        a.fillRandom(rng);
        b.fillRandom(rng);
        f(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), PxliSize{w, h});
        return regionBytes(d);
    };
}

std::vector<std::pair<const char*, Op>> ops()
{
    using U8 = Pxl8u;
    using S16 = Pxl16s;
    using F32 = Pxl32f;
    std::vector<std::pair<const char*, Op>> v;
    for (int f : {-2, 0, 1, 3}) {
        v.emplace_back("Add 8u C1 Sfs", binary<U8>(1, [f](auto... a) { pxliAdd_8u_C1RSfs(a..., f); }));
        v.emplace_back("Add 16s C3 Sfs", binary<S16>(3, [f](auto... a) { pxliAdd_16s_C3RSfs(a..., f); }));
        v.emplace_back("Sub 16u C1 Sfs", binary<Pxl16u>(1, [f](auto... a) { pxliSub_16u_C1RSfs(a..., f); }));
        v.emplace_back("Mul 8u C1 Sfs", binary<U8>(1, [f](auto... a) { pxliMul_8u_C1RSfs(a..., f); }));
        v.emplace_back("Mul 16s C1 Sfs", binary<S16>(1, [f](auto... a) { pxliMul_16s_C1RSfs(a..., f); }));
        v.emplace_back("Div 8u C1 Sfs", binary<U8>(1, [f](auto... a) { pxliDiv_8u_C1RSfs(a..., f); }));
        v.emplace_back("Div 16s C1 Sfs", binary<S16>(1, [f](auto... a) { pxliDiv_16s_C1RSfs(a..., f); }));
    }
    v.emplace_back("Add 32f C1", binary<F32>(1, [](auto... a) { pxliAdd_32f_C1R(a...); }));
    v.emplace_back("Mul 32f C1", binary<F32>(1, [](auto... a) { pxliMul_32f_C1R(a...); }));
    v.emplace_back("Div 32f C1", binary<F32>(1, [](auto... a) { pxliDiv_32f_C1R(a...); }));
    v.emplace_back("Compare less 8u", [](int w, int h, uint64_t seed) {
        Rng rng(seed);
        GuardedImage<U8> a(w, h), b(w, h), d(w, h);
        a.fillRandom(rng);
        b.fillRandom(rng);
        pxliCompare_8u_C1R(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), {w, h}, pxlCmpLess);
        return regionBytes(d);
    });
    v.emplace_back("Compare less 32f", [](int w, int h, uint64_t seed) {
        Rng rng(seed);
        GuardedImage<F32> a(w, h), b(w, h);
        GuardedImage<U8> d(w, h);
        a.fillRandom(rng);
        b.fillRandom(rng);
        pxliCompare_32f_C1R(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), {w, h}, pxlCmpLess);
        return regionBytes(d);
    });
    for (PxlRoundMode r : {pxlRoundTowardZero, pxlRoundNearestEven, pxlRoundNearestAway}) {
        v.emplace_back("Convert 32f8u", unary<F32, U8>(1, 1, [r](auto... a) { pxliConvert_32f8u_C1R(a..., r); }));
        v.emplace_back("Convert 32f16s", unary<F32, S16>(1, 1, [r](auto... a) { pxliConvert_32f16s_C1R(a..., r); }));
        v.emplace_back("Convert 32f16u Sfs", unary<F32, Pxl16u>(1, 1, [r](auto... a) { pxliConvert_32f16u_C1RSfs(a..., r, 3); }));
    }
    v.emplace_back("Convert 8u32f C3", unary<U8, F32>(3, 3, [](auto... a) { pxliConvert_8u32f_C3R(a...); }));
    v.emplace_back("Scale 16u8u accurate", unary<Pxl16u, U8>(1, 1, [](auto... a) { pxliScale_16u8u_C1R(a..., 2 /* accurate */); }));
    v.emplace_back("Scale 32f8u", unary<F32, U8>(1, 1, [](auto... a) { pxliScale_32f8u_C1R(a..., -100.0f, 3000.0f); }, true));
    v.emplace_back("ScaleC 32f8u", unary<F32, U8>(1, 1, [](const F32* s, int ss, U8* d, int ds, PxliSize r) {
        pxliScaleC_32f8u_C1R(s, ss, 0.37, 11.5, d, ds, r, 0);
    }));
    v.emplace_back("ScaleC 16s32s", unary<S16, Pxl32s>(1, 1, [](const S16* s, int ss, Pxl32s* d, int ds, PxliSize r) {
        pxliScaleC_16s32s_C1R(s, ss, -70000.25, 0.5, d, ds, r, 0);
    }));
    v.emplace_back("ScaleC 64f8s", unary<Pxl64f, Pxl8s>(1, 1, [](const Pxl64f* s, int ss, Pxl8s* d, int ds, PxliSize r) {
        pxliScaleC_64f8s_C1R(s, ss, 1e-3, -0.5, d, ds, r, 0);
    }));
    v.emplace_back("ScaleC 32s32f", unary<Pxl32s, F32>(1, 1, [](const Pxl32s* s, int ss, F32* d, int ds, PxliSize r) {
        pxliScaleC_32s32f_C1R(s, ss, 1e30, 1.0, d, ds, r, 0);
    }));
    v.emplace_back("Threshold GT 8u", unary<U8, U8>(1, 1, [](auto... a) { pxliThreshold_GT_8u_C1R(a..., 100); }));
    v.emplace_back("Threshold GT 32f", unary<F32, F32>(1, 1, [](auto... a) { pxliThreshold_GT_32f_C1R(a..., 0.25f); }));
    v.emplace_back("Mirror 8u C1 both", unary<U8, U8>(1, 1, [](auto... a) { pxliMirror_8u_C1R(a..., pxlAxisBoth); }));
    v.emplace_back("Mirror 8u C3 vertical", unary<U8, U8>(3, 3, [](auto... a) { pxliMirror_8u_C3R(a..., pxlAxisVertical); }));
    v.emplace_back("SwapChannels 8u C3", unary<U8, U8>(3, 3, [](const U8* s, int ss, U8* d, int ds, PxliSize r) {
        static const int order[3] = {2, 0, 1};
        pxliSwapChannels_8u_C3R(s, ss, d, ds, r, order);
    }));
    v.emplace_back("SwapChannels 32f C3", unary<F32, F32>(3, 3, [](const F32* s, int ss, F32* d, int ds, PxliSize r) {
        static const int order[3] = {1, 2, 0};
        pxliSwapChannels_32f_C3R(s, ss, d, ds, r, order);
    }));
    v.emplace_back("SwapChannels 16u C3", unary<Pxl16u, Pxl16u>(3, 3, [](const Pxl16u* s, int ss, Pxl16u* d, int ds, PxliSize r) {
        static const int order[3] = {2, 2, 0};
        pxliSwapChannels_16u_C3R(s, ss, d, ds, r, order);
    }));
    v.emplace_back("Transpose 8u C1", [](int w, int h, uint64_t seed) {
        Rng rng(seed);
        GuardedImage<U8> a(w, h), d(h, w);
        a.fillRandom(rng);
        pxliTranspose_8u_C1R(a.data(), a.step(), d.data(), d.step(), {w, h});
        return regionBytes(d);
    });
    v.emplace_back("CopyMirrorBorder 8u C3", [](int w, int h, uint64_t seed) {
        Rng rng(seed);
        GuardedImage<U8> a(w + 4, h + 4, 3), d(w + 9, h + 7, 3);
        a.fillRandom(rng);
        pxliCopyMirrorBorder_8u_C3R(a.data(), a.step(), {w + 4, h + 4}, d.data(), d.step(), {w + 9, h + 7}, 2, 3);
        return regionBytes(d);
    });
    return v;
}

TEST(Levels, EveryLevelGivesTheBitsOfTheFirst)
{
    int available = 0;
    while (available < 3 && pxlTestHoldLevel(available + 1)) ++available;
    if (available == 0) GTEST_SKIP() << "this processor has only the first level";
    const int widths[] = {1, 2, 3, 7, 8, 15, 16, 17, 31, 32, 33, 63, 64, 67};
    for (const auto& [name, op] : ops()) {
        SCOPED_TRACE(name);
        for (int w : widths) {
            const uint64_t seed = 0xC0FFEE + static_cast<uint64_t>(w);
            ASSERT_TRUE(pxlTestHoldLevel(0));
            const auto want = op(w, 5, seed);
            ASSERT_EQ(want.back(), 1) << "written outside the region";
            for (int level = 1; level <= available; ++level) {
                ASSERT_TRUE(pxlTestHoldLevel(level));
                EXPECT_EQ(op(w, 5, seed), want) << "level " << level << ", width " << w;
            }
        }
    }
    pxlTestHoldLevel(available);
}

}  // namespace
