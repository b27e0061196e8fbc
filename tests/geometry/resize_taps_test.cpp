// Resize with cubic and Lanczos taps: every type and layout against a model in double built from
// the kernels' formulas; the edge strips against the interior kernel reading a replicated ring;
// tiles against one call; record, Init and work buffers within their sizes; statuses.
#include "pxltest.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <type_traits>
#include <vector>

namespace {

using pxltest::GuardedBuffer;
using pxltest::GuardedImage;
using pxltest::Rng;

constexpr int kRing = 3;  // pixels of ring around a source: the widest kernel reaches three past the edge

// A method: cubic with (b, c), or Lanczos with its lobes.
struct Method {
    bool lanczos;
    float b, c;
    int lobes;
    int taps() const { return lanczos ? 2 * lobes : 4; }
};

template <class T> struct Api {
    using Run = PxlStatus (*)(const T*, int, T*, int, PxliPoint, PxliSize, PxliBorderMode, const T*, const PxliResizeSpec*, Pxl8u*);
    using RunL = PxlStatus (*)(const T*, int, T*, int, PxliPointL, PxliSizeL, PxliBorderMode, const T*, const PxliResizeSpec*, Pxl8u*);
    Run cubic[3], lanczos[3];
    RunL cubicL[3], lanczosL[3];
    PxlStatus (*cubicInit)(PxliSize, PxliSize, Pxl32f, Pxl32f, PxliResizeSpec*, Pxl8u*);
    PxlStatus (*lanczosInit)(PxliSize, PxliSize, Pxl32u, PxliResizeSpec*, Pxl8u*);
    PxlStatus (*getSize)(PxliSize, PxliSize, int, int, int*, int*);
    PxlStatus (*bufferSize)(const PxliResizeSpec*, PxliSize, int, int*);
    PxlStatus (*srcOffset)(const PxliResizeSpec*, PxliPoint, PxliPoint*);
};
#define PXL_RUNS(name, t) {name##_##t##_C1R, name##_##t##_C3R, name##_##t##_C4R}
#define PXL_RUNS_L(name, t) {name##_##t##_C1R_L, name##_##t##_C3R_L, name##_##t##_C4R_L}
#define PXL_API(T, t)                                                                                                                  \
    template <> const Api<T>& api<T>()                                                                                                 \
    {                                                                                                                                  \
        static const Api<T> table{PXL_RUNS(pxliResizeCubic, t),     PXL_RUNS(pxliResizeLanczos, t),  PXL_RUNS_L(pxliResizeCubic, t), \
                                  PXL_RUNS_L(pxliResizeLanczos, t), pxliResizeCubicInit_##t,         pxliResizeLanczosInit_##t,      \
                                  pxliResizeGetSize_##t,            pxliResizeGetBufferSize_##t,     pxliResizeGetSrcOffset_##t};    \
        return table;                                                                                                                  \
    }
template <class T> const Api<T>& api();
PXL_API(Pxl8u, 8u)
PXL_API(Pxl16u, 16u)
PXL_API(Pxl16s, 16s)
PXL_API(Pxl32f, 32f)
#undef PXL_API
#undef PXL_RUNS
#undef PXL_RUNS_L

// A record made at an odd address inside guards of exactly GetSize's size, with an Init buffer
// likewise guarded.
template <class T> struct Plan {
    Plan(const Method& m, bool typed, PxliSize s, PxliSize d) : method(m), wide(typed)
    {
        int bytes = 0, init = 0;
        const int interp = m.lanczos ? pxlInterpLanczos : pxlInterpCubic;
        EXPECT_EQ(api<T>().getSize(s, d, interp, 0, &bytes, &init), pxlStatusOk);
        rec = std::make_unique<GuardedBuffer>(bytes, 1, 0, 64, 1);
        GuardedBuffer initBuf(init, 1, 0, 64, 3);
        const PxliSizeL sL{s.width, s.height}, dL{d.width, d.height};
        PxlStatus st;
        if (m.lanczos)
            st = wide ? pxliResizeLanczosInit_L(sL, dL, pxltest::typeCode<T>(), m.lobes, spec(), initBuf.base())
                      : api<T>().lanczosInit(s, d, m.lobes, spec(), initBuf.base());
        else
            st = wide ? pxliResizeCubicInit_L(sL, dL, pxltest::typeCode<T>(), m.b, m.c, spec(), initBuf.base())
                      : api<T>().cubicInit(s, d, m.b, m.c, spec(), initBuf.base());
        EXPECT_EQ(st, pxlStatusOk) << "Init";
        EXPECT_TRUE(rec->guardsIntact() && initBuf.guardsIntact()) << "the Init wrote past the sizes GetSize gave";
        ok = st == pxlStatusOk && rec->guardsIntact() && initBuf.guardsIntact();
    }
    PxliResizeSpec* spec() { return reinterpret_cast<PxliResizeSpec*>(rec->base()); }
    Method method;
    bool wide, ok = false;
    std::unique_ptr<GuardedBuffer> rec;
};

template <class T>
PxlStatus run(const Plan<T>& plan, int ch, const T* src, int srcStep, T* dst, int dstStep, PxliPoint off, PxliSize size, int border,
              Pxl8u* buffer)
{
    const Api<T>& f = api<T>();
    const int k = ch == 1 ? 0 : ch == 3 ? 1 : 2;
    const T value{};
    const auto* spec = reinterpret_cast<const PxliResizeSpec*>(plan.rec->base());
    if (plan.wide)
        return (plan.method.lanczos ? f.lanczosL : f.cubicL)[k](src, srcStep, dst, dstStep, {off.x, off.y}, {size.width, size.height}, border,
                                                                &value, spec, buffer);
    return (plan.method.lanczos ? f.lanczos : f.cubic)[k](src, srcStep, dst, dstStep, off, size, border, &value, spec, buffer);
}

template <class T> int bufferBytes(Plan<T>& plan, PxliSize size, int ch)
{
    int bytes = 0;
    const PxlStatus st = plan.wide ? pxliResizeGetBufferSize_L(plan.spec(), {size.width, size.height}, ch, &bytes)
                                   : api<T>().bufferSize(plan.spec(), size, ch, &bytes);
    EXPECT_EQ(st, pxlStatusOk);
    return bytes;
}

// One call over the whole destination, with a work buffer of exactly the asked size.
template <class T> PxlStatus runWhole(Plan<T>& plan, const GuardedImage<T>& pad, GuardedImage<T>& dst, int border)
{
    GuardedBuffer work(bufferBytes(plan, dst.size(), dst.channels()), 1, 0, 64, 1);
    const PxlStatus st = run<T>(plan, dst.channels(), &pad.at(kRing, kRing), pad.step(), dst.data(), dst.step(), {0, 0}, dst.size(), border,
                                work.base());
    EXPECT_TRUE(work.guardsIntact()) << "written past the work buffer";
    return st;
}

// ---------------------------------------------------------------------------------------------
// The model, in double, from the kernels' formulas.
double cubicKernel(double t, double b, double c)
{
    t = std::fabs(t);
    if (t < 1) return ((12 - 9 * b - 6 * c) * t * t * t + (-18 + 12 * b + 6 * c) * t * t + (6 - 2 * b)) / 6;
    if (t < 2) return ((-b - 6 * c) * t * t * t + (6 * b + 30 * c) * t * t + (-12 * b - 48 * c) * t + (8 * b + 24 * c)) / 6;
    return 0;
}
double sinc(double x) { return x == 0 ? 1 : std::sin(M_PI * x) / (M_PI * x); }
// The Lanczos kernel as sampled at steps of 1/200 (two lobes) or 1/100 (three), interpolated linearly.
double lanczosKernel(double a, int lobes)
{
    if (a <= -lobes || a >= lobes) return 0;
    const double steps = lobes == 2 ? 200 : 100, u = std::fabs(a) * steps, n = std::floor(u);
    auto at = [&](double k) { return k > lobes * steps ? 0.0 : sinc(k / steps) * sinc(k / steps / lobes); };
    return at(n) + (at(n + 1) - at(n)) * (u - n);
}

struct Axis {
    std::vector<int> first;              // the source index of each position's first tap
    std::vector<std::vector<double>> w;  // its taps
};
Axis axisOf(const Method& m, int src, int dst)
{
    const int g = std::gcd(src, dst), n = m.taps(), lobes = n / 2;
    const double ratio = static_cast<double>(src / g) / (dst / g);
    Axis a;
    for (int i = 0; i < dst; ++i) {
        const double pos = (i + 0.5) * ratio - 0.5, f = pos - std::floor(pos);
        a.first.push_back(static_cast<int>(std::floor(pos)) - (lobes - 1));
        std::vector<double> w(n);
        double sum = 0;
        for (int k = 0; k < n; ++k) {
            const double t = (1 - lobes) - f + k;
            w[k] = m.lanczos ? lanczosKernel(t, lobes) : cubicKernel(t, m.b, m.c);
            sum += w[k];
        }
        if (m.lanczos)
            for (double& v : w) v /= sum;
        a.w.push_back(w);
    }
    return a;
}

// The model's value at (x, y, c), taps limited to the image.
template <class T> double modelAt(const GuardedImage<T>& pad, PxliSize src, const Axis& ax, const Axis& ay, int x, int y, int c)
{
    double v = 0;
    for (std::size_t i = 0; i < ay.w[y].size(); ++i) {
        const int sy = std::clamp(ay.first[y] + static_cast<int>(i), 0, src.height - 1);
        double h = 0;
        for (std::size_t j = 0; j < ax.w[x].size(); ++j) {
            const int sx = std::clamp(ax.first[x] + static_cast<int>(j), 0, src.width - 1);
            h += ax.w[x][j] * static_cast<double>(pad.at(sx + kRing, sy + kRing, c));
        }
        v += ay.w[y][i] * h;
    }
    return v;
}

// A source inside a ring of unrelated samples: integers over their whole range with extremes,
// floats within +-1000.
template <class T> GuardedImage<T> sourceWithRing(Rng& rng, PxliSize src, int ch)
{
    GuardedImage<T> img(src.width + 2 * kRing, src.height + 2 * kRing, ch);
    img.fillRandom(rng, 0.2);
    if constexpr (std::is_floating_point_v<T>)
        for (int y = 0; y < img.height(); ++y)
            for (int i = 0; i < img.samplesPerRow(); ++i) img.row(y)[i] = static_cast<T>(rng.uniformInt(-1000000, 1000000) / 1000.0);
    return img;
}
template <class T> void replicateRing(GuardedImage<T>& img)
{
    const int w = img.width() - 2 * kRing, h = img.height() - 2 * kRing;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            for (int c = 0; c < img.channels(); ++c)
                img.at(x, y, c) = img.at(std::clamp(x, kRing, kRing + w - 1), std::clamp(y, kRing, kRing + h - 1), c);
}

Method randomMethod(Rng& rng)
{
    static const float pairs[][2] = {{0, 0.5f}, {1.0f / 3, 1.0f / 3}, {1, 0}, {0.5f, 0.3f}, {0.25f, 0.75f}};
    if (rng.chance(0.4)) return {true, 0, 0, rng.uniformInt(2, 3)};
    const auto& p = pairs[rng.uniformInt(0, 4)];
    return {false, p[0], p[1], 2};
}

PxliSize randomSource(Rng& rng, const Method& m)
{
    const int least = m.lanczos ? 2 * m.lobes : 4;
    return {rng.uniformInt(least, least + 30), rng.uniformInt(least, least + 20)};
}
PxliSize randomDestination(Rng& rng, PxliSize s)
{
    auto side = [&](int n) {
        const int pick = rng.uniformInt(0, 3);
        return pick == 0 ? n : pick == 1 ? std::max(1, n / 2) : pick == 2 ? 2 * n : rng.uniformInt(1, 50);
    };
    return {side(s.width), side(s.height)};
}

std::string describe(const Method& m)
{
    return m.lanczos ? "lanczos " + std::to_string(m.lobes) : "cubic " + std::to_string(m.b) + ", " + std::to_string(m.c);
}

// Integers within 1 of the model limited to their range; floats (within +-1000) within 0.2.
template <class T>
::testing::AssertionResult nearModel(const GuardedImage<T>& got, const GuardedImage<T>& pad, PxliSize src, const Axis& ax, const Axis& ay)
{
    const double slack = std::is_floating_point_v<T> ? 0.2 : 1;
    for (int y = 0; y < got.height(); ++y)
        for (int x = 0; x < got.width(); ++x)
            for (int c = 0; c < got.channels(); ++c) {
                double want = modelAt(pad, src, ax, ay, x, y, c);
                if constexpr (std::is_integral_v<T>) want = std::clamp<double>(want, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
                if (!(std::fabs(got.at(x, y, c) - want) <= slack))
                    return ::testing::AssertionFailure() << "pixel (" << x << ", " << y << ") channel " << c << ": got " << +got.at(x, y, c)
                                                         << ", want " << want;
            }
    return ::testing::AssertionSuccess();
}

// One plan against the model, and the clamped run equal bit for bit to a run whose sides all lie
// in memory over a replicated ring.
template <class T> void modelCase(Rng& rng, const Method& m, int ch, bool wide, PxliSize src, PxliSize dst)
{
    SCOPED_TRACE(::testing::Message() << pxltest::token<T>() << " C" << ch << " " << describe(m) << (wide ? " _L" : "") << " from "
                                      << src.width << "x" << src.height << " to " << dst.width << "x" << dst.height);
    Plan<T> plan(m, wide, src, dst);
    ASSERT_TRUE(plan.ok);
    GuardedImage<T> pad = sourceWithRing<T>(rng, src, ch);
    GuardedImage<T> got(dst.width, dst.height, ch), inMemory(dst.width, dst.height, ch);
    const pxltest::Watch keep({plan.rec.get(), &pad});
    ASSERT_EQ(runWhole<T>(plan, pad, got, pxlBorderReplicate), pxlStatusOk);
    EXPECT_TRUE(keep.unchanged()) << "the record or the source was written";
    EXPECT_TRUE(got.guardsIntact());
    const Axis ax = axisOf(m, src.width, dst.width), ay = axisOf(m, src.height, dst.height);
    EXPECT_TRUE(nearModel(got, pad, src, ax, ay));
    replicateRing(pad);
    ASSERT_EQ(runWhole<T>(plan, pad, inMemory, pxlBorderMemAll), pxlStatusOk);
    EXPECT_TRUE(pxltest::regionsEqual(inMemory, got)) << "all sides in memory against clamped taps";
}

template <class T> void modelCases(uint64_t seed, int count)
{
    Rng rng(seed);
    for (const int ch : {1, 3, 4}) {
        // The smallest sources each kernel takes, enlarged on one axis and reduced on the other.
        modelCase<T>(rng, {false, 0, 0.5f, 2}, ch, false, {4, 4}, {9, 2});
        modelCase<T>(rng, {true, 0, 0, 2}, ch, true, {4, 4}, {2, 7});
        modelCase<T>(rng, {true, 0, 0, 3}, ch, false, {6, 6}, {13, 3});
        for (int n = 0; n < count; ++n) {
            const Method m = randomMethod(rng);
            const PxliSize src = randomSource(rng, m);
            modelCase<T>(rng, m, ch, rng.chance(0.5), src, randomDestination(rng, src));
        }
    }
}

// Rows long enough to be taken in several bands: enlarged, reduced by factors that cut the bands
// short, and reduced so far that the samples are read where they lie.
template <class T> void wideCases(uint64_t seed)
{
    Rng rng(seed);
    const PxliSize sizes[][2] = {{{700, 6}, {1500, 7}}, {{3001, 6}, {601, 4}}, {{5000, 6}, {19, 3}}};
    for (const int ch : {1, 3, 4})
        for (const auto& s : sizes) modelCase<T>(rng, randomMethod(rng), ch, false, s[0], s[1]);
}

TEST(ResizeTaps, EveryTypeAndLayoutAgainstTheModel)
{
    modelCases<Pxl8u>(21, 10);
    modelCases<Pxl16u>(22, 6);
    modelCases<Pxl16s>(23, 6);
    modelCases<Pxl32f>(24, 8);
}

TEST(ResizeTaps, WideRowsAgainstTheModel)
{
    wideCases<Pxl8u>(25);
    wideCases<Pxl16s>(26);
    wideCases<Pxl32f>(27);
}

// A grid of tiles, each with its own work buffer, its source from GetSrcOffset and the memory
// flags on its inner sides, gives the bits of one call.
template <class T> void tileCases(uint64_t seed, int count)
{
    Rng rng(seed);
    for (int n = 0; n < count; ++n) {
        const Method m = randomMethod(rng);
        const int ch = (n % 3 == 0) ? 1 : n % 3 == 1 ? 3 : 4;
        const PxliSize src = randomSource(rng, m), dst = randomDestination(rng, src);
        SCOPED_TRACE(::testing::Message() << pxltest::token<T>() << " C" << ch << " " << describe(m) << " from " << src.width << "x"
                                          << src.height << " to " << dst.width << "x" << dst.height);
        Plan<T> plan(m, false, src, dst);
        ASSERT_TRUE(plan.ok);
        GuardedImage<T> pad = sourceWithRing<T>(rng, src, ch);
        replicateRing(pad);
        GuardedImage<T> whole(dst.width, dst.height, ch), tiled(dst.width, dst.height, ch);
        ASSERT_EQ(runWhole<T>(plan, pad, whole, pxlBorderReplicate), pxlStatusOk);
        auto cuts = [&](int len) {
            std::vector<int> c{0, len};
            for (int k = rng.uniformInt(0, std::min(len - 1, 3)); k > 0; --k) c.push_back(rng.uniformInt(1, len - 1));
            std::sort(c.begin(), c.end());
            c.erase(std::unique(c.begin(), c.end()), c.end());
            return c;
        };
        const std::vector<int> xs = cuts(dst.width), ys = cuts(dst.height);
        for (std::size_t r = 0; r + 1 < ys.size(); ++r)
            for (std::size_t q = 0; q + 1 < xs.size(); ++q) {
                const PxliPoint off{xs[q], ys[r]};
                const PxliSize size{xs[q + 1] - off.x, ys[r + 1] - off.y};
                const int border = pxlBorderReplicate | (off.y > 0 ? pxlBorderMemTop : 0) | (ys[r + 1] < dst.height ? pxlBorderMemBottom : 0) |
                                   (off.x > 0 ? pxlBorderMemLeft : 0) | (xs[q + 1] < dst.width ? pxlBorderMemRight : 0);
                PxliPoint at{};
                ASSERT_EQ(api<T>().srcOffset(plan.spec(), off, &at), pxlStatusOk);
                GuardedBuffer work(bufferBytes(plan, size, ch), 1, 0, 64, 1);
                EXPECT_EQ(run<T>(plan, ch, &pad.at(at.x + kRing, at.y + kRing), pad.step(), &tiled.at(off.x, off.y), tiled.step(), off, size,
                                 border, work.base()),
                          pxlStatusOk);
                EXPECT_TRUE(work.guardsIntact());
            }
        EXPECT_TRUE(tiled.guardsIntact());
        EXPECT_TRUE(pxltest::regionsEqual(tiled, whole));
    }
}

TEST(ResizeTaps, TilesGiveTheBitsOfOneCall)
{
    tileCases<Pxl8u>(31, 12);
    tileCases<Pxl16s>(32, 6);
    tileCases<Pxl32f>(33, 9);
}

// Equal sizes: the (0, 0.5) cubic copies the image exactly; the (1, 0) cubic, which does not
// interpolate, keeps a flat image flat but blurs an edge.
TEST(ResizeTaps, ExactCases)
{
    Rng rng(41);
    const PxliSize s{9, 7};
    GuardedImage<Pxl8u> pad = sourceWithRing<Pxl8u>(rng, s, 3), got(s.width, s.height, 3);
    Plan<Pxl8u> copy({false, 0, 0.5f, 2}, false, s, s);
    ASSERT_EQ(runWhole<Pxl8u>(copy, pad, got, pxlBorderReplicate), pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(got, [&](int x, int y, int c) { return pad.at(x + kRing, y + kRing, c); }));

    Plan<Pxl8u> blur({false, 1, 0, 2}, false, s, s);
    pad.fill(200);
    ASSERT_EQ(runWhole<Pxl8u>(blur, pad, got, pxlBorderReplicate), pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(got, [](int, int, int) { return Pxl8u{200}; }));
    for (int y = 0; y < pad.height(); ++y)
        for (int x = 0; x < pad.width(); ++x)
            for (int c = 0; c < 3; ++c) pad.at(x, y, c) = x < kRing + 4 ? 0 : 240;
    ASSERT_EQ(runWhole<Pxl8u>(blur, pad, got, pxlBorderReplicate), pxlStatusOk);
    EXPECT_EQ(got.at(3, 0, 0), 40);   // 240 / 6
    EXPECT_EQ(got.at(4, 0, 1), 200);  // 240 * 5 / 6

    // A NaN parameter makes NaN taps: floats come out NaN, integers the least sample.
    const float nan = std::numeric_limits<float>::quiet_NaN();
    Plan<Pxl8u> bad({false, nan, 0.5f, 2}, false, s, {5, 4});
    Plan<Pxl32f> fbad({false, nan, 0.5f, 2}, false, s, {5, 4});
    GuardedImage<Pxl8u> small(5, 4, 3);
    GuardedImage<Pxl32f> fsmall(5, 4, 3), fsrc = sourceWithRing<Pxl32f>(rng, s, 3);
    pad.fill(77);
    ASSERT_EQ(runWhole<Pxl8u>(bad, pad, small, pxlBorderReplicate), pxlStatusOk);
    ASSERT_EQ(runWhole<Pxl32f>(fbad, fsrc, fsmall, pxlBorderReplicate), pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(small, [](int, int, int) { return Pxl8u{0}; }));
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_TRUE(std::isnan(fsmall.at(x, y, 1))) << x << ", " << y;

    // Lanczos overshoots a step; integers are limited, floats are not.
    GuardedImage<Pxl32f> fpad(14 + 2 * kRing, 6 + 2 * kRing), fgot(28, 6);
    GuardedImage<Pxl8u> bpad(14 + 2 * kRing, 6 + 2 * kRing), bgot(28, 6);
    for (int y = 0; y < fpad.height(); ++y)
        for (int x = 0; x < fpad.width(); ++x) {
            fpad.at(x, y) = x < kRing + 7 ? 0.0f : 255.0f;
            bpad.at(x, y) = x < kRing + 7 ? 0 : 255;
        }
    Plan<Pxl32f> fl({true, 0, 0, 3}, false, {14, 6}, {28, 6});
    Plan<Pxl8u> bl({true, 0, 0, 3}, false, {14, 6}, {28, 6});
    ASSERT_EQ(runWhole<Pxl32f>(fl, fpad, fgot, pxlBorderReplicate), pxlStatusOk);
    ASSERT_EQ(runWhole<Pxl8u>(bl, bpad, bgot, pxlBorderReplicate), pxlStatusOk);
    float most = 0, least = 0;
    for (int x = 0; x < 28; ++x) {
        most = std::max(most, fgot.at(x, 2));
        least = std::min(least, fgot.at(x, 2));
        EXPECT_EQ(bgot.at(x, 2), static_cast<Pxl8u>(std::clamp(std::nearbyint(fgot.at(x, 2)), 0.0f, 255.0f))) << "column " << x;
    }
    EXPECT_GT(most, 255.5f);
    EXPECT_LT(least, -0.5f);
}

TEST(ResizeTaps, InitsAndOrderOfChecks)
{
    const PxliSize s{10, 8}, d{5, 4};
    int bytes = 0, init = 0;
    ASSERT_EQ(pxliResizeGetSize_8u(s, d, pxlInterpLanczos, 0, &bytes, &init), pxlStatusOk);
    GuardedBuffer rec(bytes, 1, 0, 64, 1), ib(init, 1, 0, 64, 1);
    auto* spec = reinterpret_cast<PxliResizeSpec*>(rec.base());
    {
        // The typed form refuses a lobe count before it writes; so does any Init a null pointer.
        const pxltest::Watch w({&rec, &ib});
        EXPECT_EQ(pxliResizeLanczosInit_L({10, 8}, {5, 4}, pxlDt8u, 4, spec, ib.base()), pxlStatusUnsupportedMode);
        EXPECT_EQ(pxliResizeLanczosInit_L({5, 8}, {5, 4}, pxlDt8u, 3, spec, ib.base()), pxlStatusBadSize);
        EXPECT_EQ(pxliResizeLanczosInit_L({10, 8}, {5, 4}, pxlDt64f, 4, spec, ib.base()), pxlStatusBadDataType);
        EXPECT_EQ(pxliResizeCubicInit_8u(s, d, 0, 0.5f, spec, nullptr), pxlStatusNullPointer);
        EXPECT_EQ(pxliResizeCubicInit_8u(s, {0, -1}, 0, 0.5f, spec, ib.base()), pxlStatusWarnZeroSize);
        EXPECT_EQ(pxliResizeCubicInit_8u({3, 8}, d, 0, 0.5f, spec, ib.base()), pxlStatusBadSize);
        EXPECT_EQ(pxliResizeCubicInit_L({10, 8}, {5, 4}, pxlDt64f, 0, 0.5f, spec, ib.base()), pxlStatusBadDataType);
        EXPECT_TRUE(w.unchanged());
    }
    EXPECT_EQ(pxliResizeLanczosInit_8u(s, d, 4, spec, ib.base()), pxlStatusUnsupportedMode);
    EXPECT_EQ(pxliResizeLanczosInit_8u({5, 8}, d, 3, spec, ib.base()), pxlStatusBadSize);
    EXPECT_TRUE(rec.guardsIntact() && ib.guardsIntact());

    // A run on a record of another method, or of a refused lobe count.
    GuardedImage<Pxl8u> src(16, 14), dst(5, 4);
    int work = 0;
    GuardedBuffer wb(4096, 1, 0, 64, 1);
    ASSERT_EQ(pxliResizeCubicInit_8u(s, d, 0, 0.5f, spec, ib.base()), pxlStatusOk);
    // The tile's two tables and four rows of floats, each on 32 bytes, and 64 for alignment.
    EXPECT_EQ(pxliResizeGetBufferSize_8u(spec, d, 3, &work), pxlStatusOk);
    EXPECT_EQ(work, 32 + 32 + 4 * 64 + 64);
    ASSERT_EQ(pxliResizeGetBufferSize_8u(spec, d, 1, &work), pxlStatusOk);
    EXPECT_EQ(work, 32 + 32 + 4 * 32 + 64);
    const Pxl8u* in = &src.at(3, 3);
    {
        const pxltest::Watch w({&dst, &rec});
        EXPECT_EQ(pxliResizeLanczos_8u_C1R(in, src.step(), dst.data(), dst.step(), {0, 0}, d, pxlBorderReplicate, nullptr, spec, wb.base()),
                  pxlStatusBadContext);
        EXPECT_EQ(pxliResizeCubic_8u_C1R_L(in, src.step(), dst.data(), dst.step(), {0, 0}, {5, 4}, pxlBorderReplicate, nullptr, spec, wb.base()),
                  pxlStatusBadContext);
        EXPECT_EQ(pxliResizeCubic_8u_C1R(in, src.step(), dst.data(), dst.step(), {0, 0}, d, pxlBorderConstant, nullptr, nullptr, wb.base()),
                  pxlStatusBadBorder);
        EXPECT_EQ(pxliResizeCubic_8u_C1R(in, src.step(), dst.data(), dst.step(), {0, 0}, {0, 4}, pxlBorderReplicate, nullptr, nullptr, wb.base()),
                  pxlStatusNullPointer);
        EXPECT_EQ(pxliResizeCubic_8u_C1R(in, src.step(), dst.data(), dst.step(), {5, 0}, d, pxlBorderReplicate, nullptr, spec, wb.base()),
                  pxlStatusOutOfRange);
        EXPECT_EQ(pxliResizeCubic_16u_C1R(reinterpret_cast<const Pxl16u*>(in), 3, reinterpret_cast<Pxl16u*>(dst.data()), dst.step(), {0, 0}, d,
                                          pxlBorderReplicate, nullptr, spec, wb.base()),
                  pxlStatusBadStep);
        EXPECT_TRUE(w.unchanged());
    }
    ASSERT_EQ(pxliResizeLanczosInit_8u(s, d, 3, spec, ib.base()), pxlStatusOk);
    EXPECT_EQ(pxliResizeGetBufferSize_8u(spec, d, 1, &work), pxlStatusOk);
    EXPECT_EQ(work, 32 + 32 + 6 * 32 + 64);
    ASSERT_EQ(pxliResizeLanczosInit_8u(s, d, 4, spec, ib.base()), pxlStatusUnsupportedMode);
    EXPECT_EQ(pxliResizeLanczos_8u_C1R(in, src.step(), dst.data(), dst.step(), {0, 0}, d, pxlBorderReplicate, nullptr, spec, wb.base()),
              pxlStatusUnsupportedMode);
}

}  // namespace
