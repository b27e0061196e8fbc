// Medians without border handling (the caller's buffer holds the pixels around the region): the
// cross and vector (colour) medians, the weighted-centre 3x3 median, the median of three planes and
// the float medians of any odd mask, each against a model written from its rule.
#include "pxltest.hpp"

#include <cstdlib>
#include <string>
#include <vector>

namespace {

using pxltest::Fault;
using pxltest::GuardedBuffer;
using pxltest::GuardedImage;
using pxltest::Rng;

// N is 1, 3, or 4 for AC4.
template <class T, int N>
PxlStatus callCross(const T* s, int ss, T* d, int ds, PxliSize roi, PxlMaskCode m)
{
#define PXL_CROSS(t)                                                                          \
    if constexpr (N == 1) return pxliFilterMedianCross_##t##_C1R(s, ss, d, ds, roi, m);      \
    else if constexpr (N == 3) return pxliFilterMedianCross_##t##_C3R(s, ss, d, ds, roi, m); \
    else return pxliFilterMedianCross_##t##_AC4R(s, ss, d, ds, roi, m);
    if constexpr (std::is_same_v<T, Pxl8u>) { PXL_CROSS(8u) }
    else if constexpr (std::is_same_v<T, Pxl16u>) { PXL_CROSS(16u) }
    else { PXL_CROSS(16s) }
#undef PXL_CROSS
}

// N is 3, or 4 for AC4.
template <class T, int N>
PxlStatus callColor(const T* s, int ss, T* d, int ds, PxliSize roi, PxlMaskCode m)
{
#define PXL_COLOR(t)                                                                     \
    if constexpr (N == 3) return pxliFilterMedianColor_##t##_C3R(s, ss, d, ds, roi, m); \
    else return pxliFilterMedianColor_##t##_AC4R(s, ss, d, ds, roi, m);
    if constexpr (std::is_same_v<T, Pxl8u>) { PXL_COLOR(8u) }
    else if constexpr (std::is_same_v<T, Pxl16s>) { PXL_COLOR(16s) }
    else { PXL_COLOR(32f) }
#undef PXL_COLOR
}

template <class T, int N>
PxlStatus callFloatMedian(const T* s, int ss, T* d, int ds, PxliSize roi, PxliSize mask, PxliPoint anchor, Pxl8u* buf)
{
    if constexpr (std::is_same_v<T, Pxl64f>) return pxliFilterMedian_64f_C1R(s, ss, d, ds, roi, mask, anchor, buf);
    else if constexpr (N == 3) return pxliFilterMedian_32f_C3R(s, ss, d, ds, roi, mask, anchor, buf);
    else return pxliFilterMedian_32f_C4R(s, ss, d, ds, roi, mask, anchor, buf);
}

template <class T> PxlStatus floatMedianSize(PxliSize roi, PxliSize mask, int channels, int* size)
{
    if constexpr (std::is_same_v<T, Pxl64f>) return pxliFilterMedianGetBufferSize_64f(roi, mask, channels, size);
    else return pxliFilterMedianGetBufferSize_32f(roi, mask, channels, size);
}

// The work buffer: one 32f sample per mask position; for 64f, 17 doubles per position and 144
// bytes, rounded down to a multiple of 16.
template <class T> int floatMedianBytes(PxliSize m)
{
    return std::is_same_v<T, Pxl64f> ? (m.width * 17 * m.height * 8 + 144) & ~15 : m.width * m.height * 4;
}

PxliSize pickRoi(Rng& rng)
{
    static const PxliSize fixed[] = {{1, 1}, {1, 6}, {9, 1}, {7, 5}, {67, 3}, {2, 2}};
    if (rng.chance(0.5)) return fixed[rng.uniformInt(0, 5)];
    return {rng.uniformInt(1, 70), rng.uniformInt(1, 6)};
}

// mode 0: samples over the whole type with its extremes (finite); 1: five values only, so that many
// are equal (-2..2 wraps to the top of unsigned types; zeros of floats take either sign); 2, floats
// only: clusters of large values with halves, whose sums round, so that their order shows.
template <class T> void fillSource(GuardedImage<T>& img, Rng& rng, int mode)
{
    for (int y = 0; y < img.height(); ++y)
        for (int i = 0; i < img.samplesPerRow(); ++i) {
            T v = rng.sample<T>(0.3, false);
            if (mode == 1) {
                v = static_cast<T>(rng.uniformInt(-2, 2));
                if constexpr (std::is_floating_point_v<T>)
                    if (v == 0 && rng.chance(0.5)) v = -v;
            } else if constexpr (std::is_floating_point_v<T>) {
                if (mode == 2) v = static_cast<T>(rng.uniformInt(0, 3) * (1 << 21) + rng.uniformInt(0, 7) + 0.5 * rng.uniformInt(0, 1));
            }
            img.row(y)[i] = v;
        }
}

template <class T> T med3(T a, T b, T c) { return std::max(std::min(a, b), std::min(std::max(a, b), c)); }

// The region equals want(x, y, channel) by == (a median of -0 may come back as +0); guards stand.
template <class T, class F> ::testing::AssertionResult equalEach(const GuardedImage<T>& got, F want)
{
    if (!got.guardsIntact()) return ::testing::AssertionFailure() << "written outside the region";
    for (int y = 0; y < got.height(); ++y)
        for (int x = 0; x < got.width(); ++x)
            for (int c = 0; c < got.channels(); ++c)
                if (const T w = want(x, y, c); !(got.at(x, y, c) == w))
                    return ::testing::AssertionFailure() << "pixel (" << x << ", " << y << ") channel " << c << ": got "
                                                         << got.at(x, y, c) << ", want " << w;
    return ::testing::AssertionSuccess();
}

// The cross median of channel c around (cx, cy).
template <class T> T crossMedian(const GuardedImage<T>& src, int cx, int cy, int c, PxlMaskCode mask)
{
    auto at = [&](int dx, int dy) { return src.at(cx + dx, cy + dy, c); };
    if (mask == pxlMask3x3) {
        T v[5] = {at(0, 0), at(-1, 0), at(1, 0), at(0, -1), at(0, 1)};
        std::sort(v, v + 5);
        return v[2];
    }
    T s[9] = {at(-2, 0), at(-1, 0), at(0, 0), at(1, 0), at(2, 0), at(0, -2), at(0, -1), at(0, 1), at(0, 2)};
    for (int t = 0; t < 9; t += 3) std::sort(s + t, s + t + 3);
    return med3(std::max({s[0], s[3], s[6]}), med3(s[1], s[4], s[7]), std::min({s[2], s[5], s[8]}));
}

template <class T, int N> void crossCases(uint64_t seed)
{
    constexpr int P = N == 4 ? 3 : N;  // filtered channels
    Rng rng(seed);
    for (int n = 0; n < 40; ++n) {
        const PxliSize roi = pickRoi(rng);
        const PxlMaskCode mask = n % 2 ? pxlMask5x5 : pxlMask3x3;
        GuardedImage<T> src(roi.width + 4, roi.height + 4, N), dst(roi.width, roi.height, N);
        fillSource(src, rng, n % 3 == 2);
        dst.fillRandom(rng);
        const GuardedImage<T> before = dst;
        ASSERT_EQ((callCross<T, N>(&src.at(2, 2), src.step(), dst.data(), dst.step(), roi, mask)), pxlStatusOk);
        EXPECT_TRUE(pxltest::matchesEach(dst, [&](int x, int y, int c) {
            return c < P ? crossMedian(src, x + 2, y + 2, c, mask) : before.at(x, y, c);
        })) << pxltest::token<T>() << " " << N << " samples, mask " << mask << ", roi " << roi.width << "x" << roi.height;
    }
}

TEST(FilterMedianCross, EveryTypeAndLayout)
{
    crossCases<Pxl8u, 1>(1); crossCases<Pxl8u, 3>(2); crossCases<Pxl8u, 4>(3);
    crossCases<Pxl16u, 1>(4); crossCases<Pxl16u, 3>(5); crossCases<Pxl16u, 4>(6);
    crossCases<Pxl16s, 1>(7); crossCases<Pxl16s, 3>(8); crossCases<Pxl16s, 4>(9);
}

template <class T> struct CodeArgs { const T* src; int srcStep; T* dst; int dstStep; PxliSize roi; PxlMaskCode mask; };

// The checks shared by the cross and colour medians, in order: pointers, size, steps, mask code.
template <class T, int N, bool Color> void codeCheckOrder()
{
    using A = CodeArgs<T>;
    const PxliSize roi{7, 5};
    GuardedImage<T> src(roi.width + 4, roi.height + 4, N), dst(roi.width, roi.height, N);
    auto call = [](const A& a) -> PxlStatus {
        if constexpr (Color) return callColor<T, N>(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.mask);
        else return callCross<T, N>(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.mask);
    };
    const A valid{&src.at(2, 2), src.step(), dst.data(), dst.step(), roi, pxlMask5x5};
    pxltest::expectCheckOrder<A>(valid,
                                 {{"null source", pxlStatusNullPointer, [](A& a) { a.src = nullptr; }},
                                  {"null destination", pxlStatusNullPointer, [](A& a) { a.dst = nullptr; }},
                                  {"width 0", pxlStatusBadSize, [](A& a) { a.roi.width = 0; }},
                                  {"height -1", pxlStatusBadSize, [](A& a) { a.roi.height = -1; }},
                                  {"source step 0", pxlStatusBadStep, [](A& a) { a.srcStep = 0; }},
                                  {"destination step -8", pxlStatusBadStep, [](A& a) { a.dstStep = -8; }},
                                  {"mask 35", pxlStatusBadMaskSize, [](A& a) { a.mask = 35; }}},
                                 call, {&dst});
    for (const PxlMaskCode m : {0, 3, 5, 34, 53}) {
        pxltest::Watch w({&dst});
        A a = valid;
        a.mask = m;
        EXPECT_EQ(call(a), pxlStatusBadMaskSize) << "mask " << m;
        EXPECT_TRUE(w.unchanged()) << "mask " << m;
    }
}

TEST(FilterMedianCross, CheckOrder)
{
    codeCheckOrder<Pxl8u, 1, false>();
    codeCheckOrder<Pxl16s, 4, false>();
}

// The row-major index of the window pixel around (cx, cy) with the smallest summed distance: for
// 32f each distance adds its channels in order, and each score runs column by column from the
// left, each column top to bottom; the first strictly smallest wins.
template <class T> int colorWinner(const GuardedImage<T>& src, int cx, int cy, int r)
{
    using Score = std::conditional_t<std::is_floating_point_v<T>, float, int64_t>;
    const int k = 2 * r + 1;
    auto px = [&](int idx) { return &src.at(cx + idx % k - r, cy + idx / k - r); };
    auto dist = [](const T* a, const T* b) -> Score {
        if constexpr (std::is_floating_point_v<T>) {
            const float d = std::fabs(a[0] - b[0]) + std::fabs(a[1] - b[1]);
            return d + std::fabs(a[2] - b[2]);
        } else {
            int32_t d = 0;
            for (int c = 0; c < 3; ++c) d += std::abs(int32_t{a[c]} - int32_t{b[c]});
            return d;
        }
    };
    int best = 0;
    Score bestScore = 0;
    for (int i = 0; i < k * k; ++i) {
        Score s = 0;
        for (int col = 0; col < k; ++col)
            for (int row = 0; row < k; ++row) s += dist(px(i), px(row * k + col));
        if (i == 0 || s < bestScore) {
            best = i;
            bestScore = s;
        }
    }
    return best;
}

template <class T, int N> void colorCases(uint64_t seed)
{
    Rng rng(seed);
    for (int n = 0; n < 30; ++n) {
        const PxliSize roi = pickRoi(rng);
        const int r = n % 2 ? 2 : 1, k = 2 * r + 1;
        GuardedImage<T> src(roi.width + 4, roi.height + 4, N), dst(roi.width, roi.height, N);
        fillSource(src, rng, n % 3);
        dst.fillRandom(rng);
        const GuardedImage<T> before = dst;
        ASSERT_EQ((callColor<T, N>(&src.at(2, 2), src.step(), dst.data(), dst.step(), roi, r == 2 ? pxlMask5x5 : pxlMask3x3)),
                  pxlStatusOk);
        std::vector<int> winner;
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width; ++x) winner.push_back(colorWinner(src, x + 2, y + 2, r));
        EXPECT_TRUE(pxltest::matchesEach(dst, [&](int x, int y, int c) {
            const int i = winner[static_cast<std::size_t>(y * roi.width + x)];
            return c < 3 ? src.at(x + 2 + i % k - r, y + 2 + i / k - r, c) : before.at(x, y, c);
        })) << pxltest::token<T>() << " " << N << " samples, mask " << k << ", roi " << roi.width << "x" << roi.height
            << ", data mode " << n % 3;
    }
}

TEST(FilterMedianColor, EveryTypeAndLayout)
{
    colorCases<Pxl8u, 3>(11); colorCases<Pxl8u, 4>(12);
    colorCases<Pxl16s, 3>(13); colorCases<Pxl16s, 4>(14);
    colorCases<Pxl32f, 3>(15); colorCases<Pxl32f, 4>(16);
}

// Nine equal pixels give that pixel. Then a tie: four pixels (2, 0) and four (0, 0) score 19 each,
// the odd one (1, 10) at the top left 88; the first of the tied in row-major order is the (2, 0) at
// (1, 0), while column-major order would pick the (0, 0) at (0, 1), and the last the (0, 0) at (2, 2).
template <class T, int N> void colorExact()
{
    GuardedImage<T> src(3, 3, N), dst(1, 1, N);
    auto put = [&](int x, int y, int a, int b) {
        src.at(x, y, 0) = static_cast<T>(a);
        src.at(x, y, 1) = static_cast<T>(b);
        src.at(x, y, 2) = static_cast<T>(3);
        if constexpr (N == 4) src.at(x, y, 3) = static_cast<T>(9);
    };
    auto run = [&](const T (&want)[3], const char* what) {
        dst.fill(static_cast<T>(5));
        ASSERT_EQ((callColor<T, N>(&src.at(1, 1), src.step(), dst.data(), dst.step(), {1, 1}, pxlMask3x3)), pxlStatusOk);
        EXPECT_TRUE(pxltest::matchesEach(dst, [&](int, int, int c) { return c < 3 ? want[c] : static_cast<T>(5); }))
            << pxltest::token<T>() << " " << N << " samples: " << what;
    };
    for (int i = 0; i < 9; ++i) put(i % 3, i / 3, 7, 100);
    run({7, 100, 3}, "nine equal pixels");
    const int layout[9] = {1, 2, 0, 0, 2, 2, 2, 0, 0};  // 1 marks the odd pixel
    for (int i = 0; i < 9; ++i) put(i % 3, i / 3, layout[i], layout[i] == 1 ? 10 : 0);
    run({2, 0, 3}, "a tie");
}

TEST(FilterMedianColor, ExactCases)
{
    colorExact<Pxl8u, 3>();
    colorExact<Pxl16s, 4>();
    colorExact<Pxl32f, 3>();
    colorExact<Pxl32f, 4>();
}

TEST(FilterMedianColor, CheckOrder)
{
    codeCheckOrder<Pxl8u, 3, true>();
    codeCheckOrder<Pxl32f, 4, true>();
}

// Weights 1 to 13 and a large one: the value of rank (8 + w) / 2 of the window with the centre
// counted w times, w the weight made odd; from w = 9 on, the centre itself.
TEST(FilterMedianWeightedCenter, EveryWeight)
{
    Rng rng(21);
    for (const int weight : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 1000}) {
        const int w = weight % 2 ? weight : weight - 1;
        for (int n = 0; n < 8; ++n) {
            const PxliSize roi = pickRoi(rng);
            GuardedImage<Pxl8u> src(roi.width + 2, roi.height + 2, 1), dst(roi.width, roi.height, 1);
            fillSource(src, rng, n % 2);
            dst.fillRandom(rng);
            const PxlStatus want = weight % 2 ? pxlStatusOk : pxlStatusWarnEvenWeight;
            ASSERT_EQ(pxliFilterMedianWeightedCenter3x3_8u_C1R(&src.at(1, 1), src.step(), dst.data(), dst.step(), roi, weight), want)
                << "weight " << weight;
            EXPECT_TRUE(pxltest::matchesEach(dst, [&](int x, int y, int) {
                const Pxl8u centre = src.at(x + 1, y + 1);
                if (w >= 9) return centre;
                std::vector<Pxl8u> v(static_cast<std::size_t>(w - 1), centre);
                for (int dy = 0; dy < 3; ++dy)
                    for (int dx = 0; dx < 3; ++dx) v.push_back(src.at(x + dx, y + dy));
                std::nth_element(v.begin(), v.begin() + (8 + w) / 2, v.end());
                return v[static_cast<std::size_t>((8 + w) / 2)];
            })) << "weight " << weight << ", roi " << roi.width << "x" << roi.height;
        }
    }
}

TEST(FilterMedianWeightedCenter, CheckOrder)
{
    const PxliSize roi{6, 4};
    GuardedImage<Pxl8u> src(roi.width + 2, roi.height + 2, 1), dst(roi.width, roi.height, 1);
    struct Args { const Pxl8u* src; int srcStep; Pxl8u* dst; int dstStep; PxliSize roi; int weight; };
    auto call = [](const Args& a) {
        return pxliFilterMedianWeightedCenter3x3_8u_C1R(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.weight);
    };
    const Args valid{&src.at(1, 1), src.step(), dst.data(), dst.step(), roi, 3};
    pxltest::expectCheckOrder<Args>(valid,
                                    {{"null source", pxlStatusNullPointer, [](Args& a) { a.src = nullptr; }},
                                     {"null destination", pxlStatusNullPointer, [](Args& a) { a.dst = nullptr; }},
                                     {"width 0", pxlStatusBadSize, [](Args& a) { a.roi.width = 0; }},
                                     {"height -1", pxlStatusBadSize, [](Args& a) { a.roi.height = -1; }},
                                     {"source step 0", pxlStatusBadStep, [](Args& a) { a.srcStep = 0; }},
                                     {"destination step 0", pxlStatusBadStep, [](Args& a) { a.dstStep = 0; }},
                                     {"weight 0", pxlStatusBadCenterWeight, [](Args& a) { a.weight = 0; }}},
                                    call, {&dst});
    pxltest::Watch w({&dst});
    Args a = valid;
    a.weight = -5;
    EXPECT_EQ(call(a), pxlStatusBadCenterWeight);
    EXPECT_TRUE(w.unchanged());
}

TEST(MedianOfPlanes, PixelByPixel)
{
    Rng rng(31);
    for (int n = 0; n < 30; ++n) {
        const PxliSize roi = pickRoi(rng);
        GuardedImage<Pxl8u> p0(roi.width, roi.height, 1), p1(roi.width, roi.height, 1), p2(roi.width, roi.height, 1),
            dst(roi.width, roi.height, 1);
        for (GuardedImage<Pxl8u>* p : {&p0, &p1, &p2}) fillSource(*p, rng, n % 2);
        dst.fillRandom(rng);
        const Pxl8u* const planes[3] = {p0.data(), p1.data(), p2.data()};
        ASSERT_EQ(pxliMedian_8u_P3C1R(planes, p0.step(), dst.data(), dst.step(), roi), pxlStatusOk);
        EXPECT_TRUE(pxltest::matchesEach(dst, [&](int x, int y, int) { return med3(p0.at(x, y), p1.at(x, y), p2.at(x, y)); }))
            << "roi " << roi.width << "x" << roi.height;
    }
}

TEST(MedianOfPlanes, CheckOrder)
{
    const PxliSize roi{5, 3};
    GuardedImage<Pxl8u> p0(roi.width, roi.height, 1), p1(roi.width, roi.height, 1), p2(roi.width, roi.height, 1),
        dst(roi.width, roi.height, 1);
    struct Args { const Pxl8u* planes[3]; bool nullArray; int srcStep; Pxl8u* dst; int dstStep; PxliSize roi; };
    const Args valid{{p0.data(), p1.data(), p2.data()}, false, p0.step(), dst.data(), dst.step(), roi};
    pxltest::expectCheckOrder<Args>(
        valid,
        {{"null plane array", pxlStatusNullPointer, [](Args& a) { a.nullArray = true; }},
         {"null destination", pxlStatusNullPointer, [](Args& a) { a.dst = nullptr; }},
         {"width 0", pxlStatusBadSize, [](Args& a) { a.roi.width = 0; }},
         {"height -2", pxlStatusBadSize, [](Args& a) { a.roi.height = -2; }},
         {"null plane 0", pxlStatusNullPointer, [](Args& a) { a.planes[0] = nullptr; }},
         {"null plane 1", pxlStatusNullPointer, [](Args& a) { a.planes[1] = nullptr; }},
         {"null plane 2", pxlStatusNullPointer, [](Args& a) { a.planes[2] = nullptr; }}},
        [](const Args& a) { return pxliMedian_8u_P3C1R(a.nullArray ? nullptr : a.planes, a.srcStep, a.dst, a.dstStep, a.roi); },
        {&dst});
}

// Every mask shape with random anchors; the source holds exactly the windows, and at times its
// rows follow each other with no gap, so that the step is the least one allowed.
template <class T, int N> void floatMedianCases(uint64_t seed)
{
    static const PxliSize masks[] = {{1, 1}, {3, 1}, {5, 1}, {1, 3}, {1, 5}, {3, 3}, {5, 5}, {3, 5}, {7, 3}, {7, 7}, {1, 7}, {9, 1}};
    Rng rng(seed);
    for (int n = 0; n < 72; ++n) {
        const PxliSize mask = masks[n % 12], roi = pickRoi(rng);
        const PxliPoint anchor{rng.uniformInt(0, mask.width - 1), rng.uniformInt(0, mask.height - 1)};
        const std::string what = std::string(pxltest::token<T>()) + " " + std::to_string(N) + " samples, mask " +
                                 std::to_string(mask.width) + "x" + std::to_string(mask.height) + ", anchor " +
                                 std::to_string(anchor.x) + "," + std::to_string(anchor.y) + ", roi " +
                                 std::to_string(roi.width) + "x" + std::to_string(roi.height);
        int size = -1;
        ASSERT_EQ(floatMedianSize<T>(roi, mask, N, &size), pxlStatusOk) << what;
        ASSERT_EQ(size, floatMedianBytes<T>(mask)) << what;
        GuardedBuffer work(size, 1, 0, 64, 0);
        const int sw = roi.width + mask.width - 1, sh = roi.height + mask.height - 1;
        GuardedImage<T> src = rng.chance(0.3) ? GuardedImage<T>::contiguous(sw, sh, N) : GuardedImage<T>(sw, sh, N);
        fillSource(src, rng, rng.uniformInt(0, 2));
        GuardedImage<T> dst(roi.width, roi.height, N);
        dst.fillRandom(rng);
        ASSERT_EQ((callFloatMedian<T, N>(&src.at(anchor.x, anchor.y), src.step(), dst.data(), dst.step(), roi, mask, anchor,
                                         work.base())),
                  pxlStatusOk)
            << what;
        EXPECT_TRUE(work.guardsIntact()) << what << ": work buffer overrun";
        EXPECT_TRUE(equalEach(dst, [&](int x, int y, int c) {
            std::vector<T> v;
            for (int i = 0; i < mask.height; ++i)
                for (int k = 0; k < mask.width; ++k) v.push_back(src.at(x + k, y + i, c));
            std::nth_element(v.begin(), v.begin() + static_cast<std::ptrdiff_t>(v.size() / 2), v.end());
            return v[v.size() / 2];
        })) << what;
    }
}

TEST(FilterMedianFloat, EveryMaskAndAnchor)
{
    floatMedianCases<Pxl32f, 3>(41);
    floatMedianCases<Pxl32f, 4>(42);
    floatMedianCases<Pxl64f, 1>(43);
}

TEST(FilterMedianFloat, BufferSizes)
{
    int size = -1;
    EXPECT_EQ(pxliFilterMedianGetBufferSize_32f({10, 4}, {3, 5}, 3, &size), pxlStatusOk);
    EXPECT_EQ(size, 60);
    EXPECT_EQ(pxliFilterMedianGetBufferSize_32f({1, 1}, {1, 1}, 1, &size), pxlStatusOk);
    EXPECT_EQ(size, 4);
    // 3 * 17 * 3 * 8 + 144 = 1368, 7 * 17 * 7 * 8 + 144 = 6808 and 136 + 144 = 280, down to multiples of 16.
    EXPECT_EQ(pxliFilterMedianGetBufferSize_64f({10, 4}, {3, 3}, 1, &size), pxlStatusOk);
    EXPECT_EQ(size, 1360);
    EXPECT_EQ(pxliFilterMedianGetBufferSize_64f({5, 5}, {7, 7}, 3, &size), pxlStatusOk);
    EXPECT_EQ(size, 6800);
    EXPECT_EQ(pxliFilterMedianGetBufferSize_64f({2, 9}, {1, 1}, 4, &size), pxlStatusOk);
    EXPECT_EQ(size, 272);

    struct Args { PxliSize roi, mask; int channels; int* out; };
    GuardedBuffer out(static_cast<int>(sizeof(int)), 1, 0, 64, 0);
    const Args valid{{6, 3}, {3, 5}, 3, reinterpret_cast<int*>(out.base())};
    const std::vector<Fault<Args>> faults = {
        {"null result", pxlStatusNullPointer, [](Args& a) { a.out = nullptr; }},
        {"width 0", pxlStatusBadSize, [](Args& a) { a.roi.width = 0; }},
        {"height -1", pxlStatusBadSize, [](Args& a) { a.roi.height = -1; }},
        {"mask width 2", pxlStatusBadMaskSize, [](Args& a) { a.mask.width = 2; }},
        {"mask height 0", pxlStatusBadMaskSize, [](Args& a) { a.mask.height = 0; }},
        {"2 channels", pxlStatusBadChannelCount, [](Args& a) { a.channels = 2; }}};
    using Query = PxlStatus (*)(PxliSize, PxliSize, int, int*);
    for (const Query query : {Query{pxliFilterMedianGetBufferSize_32f}, Query{pxliFilterMedianGetBufferSize_64f}}) {
        auto call = [query](const Args& a) { return query(a.roi, a.mask, a.channels, a.out); };
        pxltest::expectCheckOrder<Args>(valid, faults, call, {&out});
        for (const int channels : {0, 5, -1}) {
            pxltest::Watch w({&out});
            Args a = valid;
            a.channels = channels;
            EXPECT_EQ(call(a), pxlStatusBadChannelCount) << channels << " channels";
            EXPECT_TRUE(w.unchanged()) << channels << " channels";
        }
    }
}

// Pointers, size, steps, mask, anchor, then the source step against the row of windows.
template <class T, int N> void floatCheckOrder()
{
    const PxliSize roi{9, 4}, mask{3, 5};
    const PxliPoint anchor{1, 2};
    int size = 0;
    ASSERT_EQ(floatMedianSize<T>(roi, mask, N, &size), pxlStatusOk);
    GuardedImage<T> src(roi.width + 2, roi.height + 4, N), dst(roi.width, roi.height, N);
    GuardedBuffer work(size, 1, 0, 64, 0);
    struct Args { const T* src; int srcStep; T* dst; int dstStep; PxliSize roi, mask; PxliPoint anchor; Pxl8u* buffer; };
    const int shortStep = (roi.width + mask.width - 1) * N * static_cast<int>(sizeof(T)) - 1;
    const Args valid{&src.at(anchor.x, anchor.y), src.step(), dst.data(), dst.step(), roi, mask, anchor, work.base()};
    pxltest::expectCheckOrder<Args>(
        valid,
        {{"null source", pxlStatusNullPointer, [](Args& a) { a.src = nullptr; }},
         {"null destination", pxlStatusNullPointer, [](Args& a) { a.dst = nullptr; }},
         {"null buffer", pxlStatusNullPointer, [](Args& a) { a.buffer = nullptr; }},
         {"width 0", pxlStatusBadSize, [](Args& a) { a.roi.width = 0; }},
         {"height -2", pxlStatusBadSize, [](Args& a) { a.roi.height = -2; }},
         {"source step 0", pxlStatusBadStep, [](Args& a) { a.srcStep = 0; }},
         {"destination step -1", pxlStatusBadStep, [](Args& a) { a.dstStep = -1; }},
         {"mask width 4", pxlStatusBadMaskSize, [](Args& a) { a.mask.width = 4; }},
         {"mask height 0", pxlStatusBadMaskSize, [](Args& a) { a.mask.height = 0; }},
         {"anchor x 3", pxlStatusBadAnchor, [](Args& a) { a.anchor.x = 3; }},
         {"anchor y -1", pxlStatusBadAnchor, [](Args& a) { a.anchor.y = -1; }},
         {"source step a byte short", pxlStatusBadStep, [shortStep](Args& a) { a.srcStep = shortStep; }}},
        [](const Args& a) {
            return callFloatMedian<T, N>(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.mask, a.anchor, a.buffer);
        },
        {&dst, &work});
}

TEST(FilterMedianFloat, CheckOrder)
{
    floatCheckOrder<Pxl32f, 3>();
    floatCheckOrder<Pxl32f, 4>();
    floatCheckOrder<Pxl64f, 1>();
}

}  // namespace
