// Transpose, mirror and channel swaps against reference models written from the rules: random
// samples, sizes around the tile sides, in-place and same-image paths, and every check order.
#include "exchange_api.hpp"
#include "pxltest.hpp"

#include <array>

using namespace pxltest;

namespace {

// Sizes on both sides of the tile sides (32 in place, 64 out of place).
const std::pair<int, int> kSizes[] = {{1, 1}, {1, 9}, {9, 1}, {7, 5}, {31, 33}, {64, 64}, {65, 130}, {150, 67}};
const int kSquares[] = {1, 2, 31, 32, 33, 64, 97};

template <class T> class Rearrange : public ::testing::Test {};
using SampleTypes = ::testing::Types<Pxl8u, Pxl16u, Pxl16s, Pxl32s, Pxl32f>;
TYPED_TEST_SUITE(Rearrange, SampleTypes);

template <class T> using Plain = PxlStatus (*)(const T*, int, T*, int, PxliSize);
template <class T> using InPlace = PxlStatus (*)(T*, int, PxliSize);

}  // namespace

TYPED_TEST(Rearrange, TransposeMovesEveryPixelAcrossTheDiagonal)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    Rng rng(21);
    const std::pair<int, Plain<T>> forms[] = {{1, A::transposeC1}, {3, A::transposeC3}, {4, A::transposeC4}};
    const std::pair<int, InPlace<T>> inPlace[] = {{1, A::transposeC1I}, {3, A::transposeC3I}, {4, A::transposeC4I}};
    for (auto [n, fn] : forms)
        for (const auto& sz : kSizes) {
        const int w = sz.first, h = sz.second;
            SCOPED_TRACE(::testing::Message() << n << " channels, " << w << "x" << h);
            const auto src = randomImage<T>(w, h, n, rng);
            auto dst = randomImage<T>(h, w, n, rng);
            ASSERT_EQ(fn(src.data(), src.step(), dst.data(), dst.step(), src.size()), pxlStatusOk);
            EXPECT_TRUE(matchesEach(dst, [&](int x, int y, int c) { return src.at(y, x, c); }));
        }
    for (auto [n, fn] : inPlace)
        for (int s : kSquares) {
            SCOPED_TRACE(::testing::Message() << n << " channels, in place " << s << "x" << s);
            auto img = randomImage<T>(s, s, n, rng);
            const auto src = img;
            ASSERT_EQ(fn(img.data(), img.step(), img.size()), pxlStatusOk);
            EXPECT_TRUE(matchesEach(img, [&](int x, int y, int c) { return src.at(y, x, c); }));
            // The same image through the two-image form takes the in-place path.
            ASSERT_EQ(forms[n == 1 ? 0 : n - 2].second(img.data(), img.step(), img.data(), img.step(), img.size()), pxlStatusOk);
            EXPECT_TRUE(matchesEach(img, [&](int x, int y, int c) { return src.at(x, y, c); }));
        }
}

TYPED_TEST(Rearrange, TransposeChecks)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    GuardedImage<T> img(6, 4), dst(4, 6);
    Watch w({&img, &dst});
    // The same image with a non-square region is a bad size, before any other check.
    EXPECT_EQ(A::transposeC1(img.data(), img.step(), img.data(), img.step(), {6, 4}), pxlStatusBadSize);
    EXPECT_EQ(A::transposeC1I(img.data(), img.step(), {6, 4}), pxlStatusBadSize);
    EXPECT_EQ(A::transposeC3I(nullptr, img.step(), {6, 4}), pxlStatusNullPointer);
    EXPECT_EQ(A::transposeC1(nullptr, img.step(), dst.data(), dst.step(), {0, 4}), pxlStatusNullPointer);
    EXPECT_EQ(A::transposeC1(img.data(), img.step(), nullptr, dst.step(), {6, -4}), pxlStatusNullPointer);
    EXPECT_EQ(A::transposeC4(img.data(), img.step(), dst.data(), dst.step(), {0, 4}), pxlStatusBadSize);
    EXPECT_TRUE(w.unchanged());
}

TYPED_TEST(Rearrange, MirrorAboutEachAxisInAndOutOfPlace)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    Rng rng(22);
    using MFn = PxlStatus (*)(const T*, int, T*, int, PxliSize, PxlAxis);
    using MIFn = PxlStatus (*)(T*, int, PxliSize, PxlAxis);
    struct Form { int n, written; MFn fn; MIFn inPlace; };
    for (const Form& f : {Form{1, 1, A::mirrorC1, A::mirrorC1I}, Form{3, 3, A::mirrorC3, A::mirrorC3I},
                          Form{4, 4, A::mirrorC4, A::mirrorC4I}, Form{4, 3, A::mirrorAC4, A::mirrorAC4I}})
        for (const auto& sz : kSizes)
            for (PxlAxis axis : {pxlAxisHorizontal, pxlAxisVertical, pxlAxisBoth}) {
                const int w = sz.first, h = sz.second;
                SCOPED_TRACE(::testing::Message() << f.n << " channels, " << w << "x" << h << ", axis " << axis);
                const auto src = randomImage<T>(w, h, f.n, rng);
                auto dst = randomImage<T>(w, h, f.n, rng);
                const auto before = dst;
                auto want = [&](const GuardedImage<T>& old) {
                    return [&, axis](int x, int y, int c) {
                        const int sx = axis == pxlAxisHorizontal ? x : w - 1 - x;
                        const int sy = axis == pxlAxisVertical ? y : h - 1 - y;
                        return c < f.written ? src.at(sx, sy, c) : old.at(x, y, c);
                    };
                };
                ASSERT_EQ(f.fn(src.data(), src.step(), dst.data(), dst.step(), dst.size(), axis), pxlStatusOk);
                EXPECT_TRUE(matchesEach(dst, want(before)));
                // In place, and the same image through the two-image form, give the same image.
                auto img = src;
                ASSERT_EQ(f.inPlace(img.data(), img.step(), img.size(), axis), pxlStatusOk);
                EXPECT_TRUE(matchesEach(img, want(src)));
                img = src;
                ASSERT_EQ(f.fn(img.data(), img.step(), img.data(), img.step(), img.size(), axis), pxlStatusOk);
                EXPECT_TRUE(matchesEach(img, want(src)));
            }
}

TYPED_TEST(Rearrange, MirrorAcrossTheDiagonals)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    Rng rng(23);
    for (const auto& sz : kSizes) {
        const int w = sz.first, h = sz.second;
        // The size is the destination's; the source has w rows of h columns.
        const auto src = randomImage<T>(h, w, 1, rng);
        auto dst = randomImage<T>(w, h, 1, rng);
        ASSERT_EQ(A::mirrorC1(src.data(), src.step(), dst.data(), dst.step(), {w, h}, pxlAxisDiagonal), pxlStatusOk);
        EXPECT_TRUE(matchesEach(dst, [&](int x, int y, int) { return src.at(y, x); }));
        ASSERT_EQ(A::mirrorC1(src.data(), src.step(), dst.data(), dst.step(), {w, h}, pxlAxisAntiDiagonal), pxlStatusOk);
        EXPECT_TRUE(matchesEach(dst, [&](int x, int y, int) { return src.at(h - 1 - y, w - 1 - x); }));
    }
}

TYPED_TEST(Rearrange, MirrorChecks)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    GuardedImage<T> src(8, 8, 4), dst(8, 8, 4);
    Watch w({&src, &dst});
    // Axes 0 to 2: pointers, sizes, then the axis.
    EXPECT_EQ(A::mirrorC1(nullptr, 8, dst.data(), dst.step(), {0, 8}, 9), pxlStatusNullPointer);
    EXPECT_EQ(A::mirrorC3(src.data(), src.step(), dst.data(), dst.step(), {8, 0}, 9), pxlStatusBadSize);
    for (PxlAxis bad : {-1, 5, INT32_MIN}) EXPECT_EQ(A::mirrorC4(src.data(), src.step(), dst.data(), dst.step(), {8, 8}, bad), pxlStatusBadAxis);
    EXPECT_EQ(A::mirrorC3(src.data(), src.step(), dst.data(), dst.step(), {8, 8}, pxlAxisDiagonal), pxlStatusBadAxis);
    EXPECT_EQ(A::mirrorAC4(src.data(), src.step(), dst.data(), dst.step(), {8, 8}, pxlAxisAntiDiagonal), pxlStatusBadAxis);
    EXPECT_EQ(A::mirrorC1I(src.data(), src.step(), {8, 8}, pxlAxisDiagonal), pxlStatusBadAxis);
    EXPECT_EQ(A::mirrorAC4I(nullptr, src.step(), {8, -1}, 7), pxlStatusNullPointer);
    EXPECT_EQ(A::mirrorC4I(src.data(), src.step(), {8, -1}, 7), pxlStatusBadSize);
    // Axes 3 and 4: pointers, steps below 1, sizes, then overlapping images.
    EXPECT_EQ(A::mirrorC1(src.data(), 0, nullptr, dst.step(), {0, 8}, pxlAxisDiagonal), pxlStatusNullPointer);
    EXPECT_EQ(A::mirrorC1(src.data(), 0, dst.data(), dst.step(), {0, 8}, pxlAxisDiagonal), pxlStatusBadStep);
    EXPECT_EQ(A::mirrorC1(src.data(), src.step(), dst.data(), -8, {8, 8}, pxlAxisAntiDiagonal), pxlStatusBadStep);
    EXPECT_EQ(A::mirrorC1(src.data(), src.step(), dst.data(), dst.step(), {8, 0}, pxlAxisDiagonal), pxlStatusBadSize);
    EXPECT_EQ(A::mirrorC1(src.data(), src.step(), src.data(), src.step(), {8, 8}, pxlAxisDiagonal), pxlStatusUnsupportedMode);
    EXPECT_EQ(A::mirrorC1(src.data(), src.step(), src.row(7) + 5, src.step(), {8, 8}, pxlAxisAntiDiagonal),
              pxlStatusUnsupportedMode);
    EXPECT_TRUE(w.unchanged());
    // Height 1 about the horizontal axis is a copy of the row.
    GuardedImage<T> a(9, 1), b(9, 1);
    Rng rng(24);
    a.fillRandom(rng);
    ASSERT_EQ(A::mirrorC1(a.data(), a.step(), b.data(), b.step(), {9, 1}, pxlAxisHorizontal), pxlStatusOk);
    EXPECT_TRUE(regionsEqual(b, a));
}

TYPED_TEST(Rearrange, SwapChannelsFollowsTheOrder)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    Rng rng(25);
    using SFn = PxlStatus (*)(const T*, int, T*, int, PxliSize, const int*);
    // Source and destination channels, how many are written, and the largest index.
    struct Form { const char* name; SFn fn; int srcN, dstN, count, maxIndex; };
    for (const Form& f : {Form{"C3R", A::swapC3, 3, 3, 3, 2}, Form{"C4R", A::swapC4, 4, 4, 4, 3},
                          Form{"AC4R", A::swapAC4, 4, 4, 3, 2}, Form{"C4C3R", A::swapC4C3, 4, 3, 3, 3}})
        for (auto [w, h] : kSizes)
            for (int trial = 0; trial < 3; ++trial) {
                int order[4];
                for (int& o : order) o = rng.uniformInt(0, f.maxIndex);
                SCOPED_TRACE(::testing::Message() << f.name << " " << w << "x" << h << " order " << order[0] << order[1] << order[2] << order[3]);
                const auto src = randomImage<T>(w, h, f.srcN, rng);
                auto dst = randomImage<T>(w, h, f.dstN, rng);
                const auto before = dst;
                ASSERT_EQ(f.fn(src.data(), src.step(), dst.data(), dst.step(), dst.size(), order), pxlStatusOk);
                EXPECT_TRUE(matchesEach(dst, [&](int x, int y, int c) { return c < f.count ? src.at(x, y, order[c]) : before.at(x, y, c); }));
            }
    // Three into four: below 3 a source channel, 3 the value, above 3 the channel stays.
    const T val = rng.sample<T>();
    for (std::array<int, 4> order : {std::array<int, 4>{4, 0, 1, 2}, {0, 1, 2, 3}, {2, 3, 7, 0}, {3, 3, 1, 1}}) {
        const auto src = randomImage<T>(37, 5, 3, rng);
        auto dst = randomImage<T>(37, 5, 4, rng);
        const auto before = dst;
        ASSERT_EQ(A::swapC3C4(src.data(), src.step(), dst.data(), dst.step(), dst.size(), order.data(), val), pxlStatusOk);
        EXPECT_TRUE(matchesEach(dst, [&](int x, int y, int c) {
            const int o = order[static_cast<std::size_t>(c)];
            return o < 3 ? src.at(x, y, o) : o == 3 ? val : before.at(x, y, c);
        }));
    }
}

TEST(SwapChannels, InPlaceAndTheSameImageGiveTheOutOfPlaceResult)
{
    Rng rng(26);
    for (int n : {3, 4}) {
        const int order[4] = {2, 0, 2, n == 4 ? 3 : 0};
        auto img = randomImage<Pxl8u>(45, 6, n, rng);
        const auto src = img;
        auto ref = randomImage<Pxl8u>(45, 6, n, rng);
        ASSERT_EQ((n == 3 ? pxliSwapChannels_8u_C3R : pxliSwapChannels_8u_C4R)(src.data(), src.step(), ref.data(), ref.step(), ref.size(), order),
                  pxlStatusOk);
        ASSERT_EQ((n == 3 ? pxliSwapChannels_8u_C3IR : pxliSwapChannels_8u_C4IR)(img.data(), img.step(), img.size(), order), pxlStatusOk);
        EXPECT_TRUE(regionsEqual(img, ref));
        img = src;
        ASSERT_EQ((n == 3 ? pxliSwapChannels_8u_C3R : pxliSwapChannels_8u_C4R)(img.data(), img.step(), img.data(), img.step(), img.size(), order),
                  pxlStatusOk);
        EXPECT_TRUE(regionsEqual(img, ref));
    }
    // The documented examples: 3, 2, 1, 0 reverses a pixel's channels.
    GuardedImage<Pxl8u> px(1, 1, 4), out(1, 1, 4);
    for (int c = 0; c < 4; ++c) px.at(0, 0, c) = static_cast<Pxl8u>(10 + c);
    const int reverse[4] = {3, 2, 1, 0};
    ASSERT_EQ(pxliSwapChannels_8u_C4R(px.data(), px.step(), out.data(), out.step(), {1, 1}, reverse), pxlStatusOk);
    EXPECT_EQ(out.at(0, 0, 0), 13);
    EXPECT_EQ(out.at(0, 0, 3), 10);
}

// Steps, sizes and orders: most forms check the images, a zero step, the size, then the order;
// 8u C3R, C4C3R and C3C4R take the order with the images and the size before the steps.
TYPED_TEST(Rearrange, SwapChannelsChecks)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    GuardedImage<T> src(5, 5, 4), dst(5, 5, 4);
    struct Args {
        const T* src;
        int srcStep;
        T* dst;
        int dstStep;
        PxliSize roi;
        const int* order;
    };
    static const int good[4] = {0, 1, 2, 0}, bad[4] = {0, -1, 2, 0}, high[4] = {0, 1, 3, 0};
    const Args valid{src.data(), src.step(), dst.data(), dst.step(), src.size(), good};
    const Fault<Args> nullSrc{"null source", pxlStatusNullPointer, [](Args& a) { a.src = nullptr; }};
    const Fault<Args> nullDst{"null destination", pxlStatusNullPointer, [](Args& a) { a.dst = nullptr; }};
    const Fault<Args> nullOrder{"null order", pxlStatusNullPointer, [](Args& a) { a.order = nullptr; }};
    const Fault<Args> zeroStep{"zero step", pxlStatusBadStep, [](Args& a) { a.dstStep = 0; }};
    const Fault<Args> zeroSize{"zero width", pxlStatusBadSize, [](Args& a) { a.roi.width = 0; }};
    const Fault<Args> badIndex{"negative index", pxlStatusBadChannelOrder, [](Args& a) { a.order = bad; }};
    const Fault<Args> highIndex{"index 3", pxlStatusBadChannelOrder, [](Args& a) { a.order = high; }};
    auto call = [](auto fn) { return [fn](const Args& a) { return fn(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.order); }; };
    const std::vector<Fault<Args>> late = {nullSrc, nullDst, zeroStep, zeroSize, nullOrder, badIndex};
    const std::vector<Fault<Args>> early = {nullSrc, nullDst, nullOrder, zeroSize, zeroStep, badIndex};
    expectCheckOrder(valid, std::is_same_v<T, Pxl8u> ? early : late, call(A::swapC3), {&dst});
    expectCheckOrder(valid, {nullSrc, nullDst, zeroStep, zeroSize, nullOrder, highIndex}, call(A::swapAC4), {&dst});
    expectCheckOrder(valid, late, call(A::swapC4), {&dst});
    expectCheckOrder(valid, early, call(A::swapC4C3), {&dst});
    // C3C4R tests its indices as signed: negative fails, anything above 3 is allowed.
    expectCheckOrder(valid, early, [](const Args& a) { return A::swapC3C4(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.order, T(0)); }, {&dst});
    // Only a zero step is refused: a negative step runs upwards.
    Rng rng(27);
    src.fillRandom(rng);
    auto out = GuardedImage<T>(5, 5, 4);
    ASSERT_EQ(A::swapC4(src.row(4), -src.step(), out.data(), out.step(), out.size(), good), pxlStatusOk);
    EXPECT_TRUE(matchesEach(out, [&](int x, int y, int c) { return src.at(x, 4 - y, good[c]); }));
}

TEST(SwapChannels, InPlaceChecks)
{
    GuardedImage<Pxl8u> img(5, 5, 4);
    struct Args { Pxl8u* p; int step; PxliSize roi; const int* order; };
    static const int good[4] = {0, 1, 2, 3}, bad[4] = {0, 1, 2, 4};
    expectCheckOrder(Args{img.data(), img.step(), img.size(), good},
                     {{"null image", pxlStatusNullPointer, [](Args& a) { a.p = nullptr; }},
                      {"zero step", pxlStatusBadStep, [](Args& a) { a.step = 0; }},
                      {"zero height", pxlStatusBadSize, [](Args& a) { a.roi.height = 0; }},
                      {"null order", pxlStatusNullPointer, [](Args& a) { a.order = nullptr; }},
                      {"index 4", pxlStatusBadChannelOrder, [](Args& a) { a.order = bad; }}},
                     [](const Args& a) { return pxliSwapChannels_8u_C4IR(a.p, a.step, a.roi, a.order); }, {&img});
}
