// Resize with nearest and linear interpolation: every type, layout and form against a model of the
// positions and kernels; tiles, one after another or at once, against one call; the sizes of the
// plan, cut regions and the order of checks.
#include "pxltest.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using pxltest::GuardedBuffer;
using pxltest::GuardedImage;
using pxltest::Rng;

enum Method { Nearest, Linear };

constexpr int kReplicate = pxlBorderReplicate, kTop = pxlBorderMemTop, kBottom = pxlBorderMemBottom, kLeft = pxlBorderMemLeft,
              kRight = pxlBorderMemRight, kAll = pxlBorderMemAll;

// The entries of one sample type; the runs by layout C1, C3, C4.
template <class T> struct Api {
    using Lin = PxlStatus (*)(const T*, int, T*, int, PxliPoint, PxliSize, PxliBorderMode, const T*, const PxliResizeSpec*, Pxl8u*);
    using LinL = PxlStatus (*)(const T*, int, T*, int, PxliPointL, PxliSizeL, PxliBorderMode, const T*, const PxliResizeSpec*, Pxl8u*);
    using Near = PxlStatus (*)(const T*, int, T*, int, PxliPoint, PxliSize, const PxliResizeSpec*, Pxl8u*);
    using NearL = PxlStatus (*)(const T*, int, T*, int, PxliPointL, PxliSizeL, const PxliResizeSpec*, Pxl8u*);
    Lin linear[3];
    LinL linearL[3];
    Near nearest[3];
    NearL nearestL[3];
    PxlStatus (*nearestInit)(PxliSize, PxliSize, PxliResizeSpec*);
    PxlStatus (*linearInit)(PxliSize, PxliSize, PxliResizeSpec*);
    PxlStatus (*getSize)(PxliSize, PxliSize, int, int, int*, int*);
    PxlStatus (*bufferSize)(const PxliResizeSpec*, PxliSize, int, int*);
    PxlStatus (*srcOffset)(const PxliResizeSpec*, PxliPoint, PxliPoint*);
    PxlStatus (*srcRoi)(const PxliResizeSpec*, PxliPoint, PxliSize, PxliPoint*, PxliSize*);
};

#define PXL_FORMS(name, t) \
    {name##_##t##_C1R, name##_##t##_C3R, name##_##t##_C4R}, {name##_##t##_C1R_L, name##_##t##_C3R_L, name##_##t##_C4R_L}
#define PXL_COMMON(t) \
    pxliResizeLinearInit_##t, pxliResizeGetSize_##t, pxliResizeGetBufferSize_##t, pxliResizeGetSrcOffset_##t, pxliResizeGetSrcRoi_##t
#define PXL_API(T, t)                                                                                                           \
    template <> const Api<T>& api<T>()                                                                                          \
    {                                                                                                                           \
        static const Api<T> table{PXL_FORMS(pxliResizeLinear, t), PXL_FORMS(pxliResizeNearest, t), pxliResizeNearestInit_##t, \
                                  PXL_COMMON(t)};                                                                               \
        return table;                                                                                                           \
    }
template <class T> const Api<T>& api();
PXL_API(Pxl8u, 8u)
PXL_API(Pxl16u, 16u)
PXL_API(Pxl16s, 16s)
PXL_API(Pxl32f, 32f)
template <> const Api<Pxl64f>& api<Pxl64f>()
{
    static const Api<Pxl64f> table{PXL_FORMS(pxliResizeLinear, 64f), {}, {}, nullptr, PXL_COMMON(64f)};
    return table;
}
#undef PXL_API
#undef PXL_COMMON
#undef PXL_FORMS

template <class T> constexpr PxlDataType dataType()
{
    return std::is_same_v<T, Pxl64f> ? static_cast<PxlDataType>(pxlDt64f) : pxltest::typeCode<T>();
}

template <class T> int recordBytes(Method m, bool wide, PxliSize s, PxliSize d)
{
    const int interp = m == Nearest ? pxlInterpNearest : pxlInterpLinear;
    int bytes = 0, init = 0;
    const PxlStatus st = wide ? pxliResizeGetSize_L({s.width, s.height}, {d.width, d.height}, dataType<T>(), interp, 0, &bytes, &init)
                              : api<T>().getSize(s, d, interp, 0, &bytes, &init);
    EXPECT_EQ(st, pxlStatusOk) << "record size";
    return st == pxlStatusOk ? bytes : 0;
}

// A record made by the method's Init at an odd address, with guards around exactly the size that
// GetSize asked for. It holds its own tables, so it is never copied or moved.
template <class T> struct Plan {
    Plan(Method kind, bool wideForm, PxliSize s, PxliSize d)
        : method(kind), wide(wideForm), rec(recordBytes<T>(kind, wideForm, s, d), 1, 0, 64, 1)
    {
        if (rec.rowBytes() == 0) return;
        const PxliSizeL sL{s.width, s.height}, dL{d.width, d.height};
        PxlStatus st;
        if (method == Nearest)
            st = wide ? pxliResizeNearestInit_L(sL, dL, dataType<T>(), spec()) : api<T>().nearestInit(s, d, spec());
        else
            st = wide ? pxliResizeLinearInit_L(sL, dL, dataType<T>(), spec()) : api<T>().linearInit(s, d, spec());
        EXPECT_EQ(st, pxlStatusOk) << "Init";
        EXPECT_TRUE(rec.guardsIntact()) << "the Init wrote past the size GetSize gave";
        ok = st == pxlStatusOk && rec.guardsIntact();
    }
    Plan(const Plan&) = delete;
    Plan& operator=(const Plan&) = delete;
    PxliResizeSpec* spec() { return reinterpret_cast<PxliResizeSpec*>(rec.base()); }

    Method method;
    bool wide, ok = false;
    GuardedBuffer rec;
};

// One run through the entry of the method, layout and form.
template <class T>
PxlStatus run(Method m, bool wide, int ch, const T* src, int srcStep, T* dst, int dstStep, PxliPoint off, PxliSize size, int border,
              const PxliResizeSpec* spec, Pxl8u* buffer)
{
    const Api<T>& fns = api<T>();
    const int k = ch == 1 ? 0 : ch == 3 ? 1 : 2;
    const T value{};
    const PxliPointL offL{off.x, off.y};
    const PxliSizeL sizeL{size.width, size.height};
    if (m == Nearest)
        return wide ? fns.nearestL[k](src, srcStep, dst, dstStep, offL, sizeL, spec, buffer)
                    : fns.nearest[k](src, srcStep, dst, dstStep, off, size, spec, buffer);
    return wide ? fns.linearL[k](src, srcStep, dst, dstStep, offL, sizeL, border, &value, spec, buffer)
                : fns.linear[k](src, srcStep, dst, dstStep, off, size, border, &value, spec, buffer);
}

template <class T> PxlStatus queryBuffer(bool wide, const PxliResizeSpec* spec, PxliSize size, int ch, int* bytes)
{
    return wide ? pxliResizeGetBufferSize_L(spec, {size.width, size.height}, ch, bytes) : api<T>().bufferSize(spec, size, ch, bytes);
}

// One call on the whole destination, with a work buffer of exactly the size asked for.
template <class T> PxlStatus runWhole(Plan<T>& plan, const T* src, int srcStep, GuardedImage<T>& dst, int border = kReplicate)
{
    int bytes = 0;
    EXPECT_EQ(queryBuffer<T>(plan.wide, plan.spec(), dst.size(), dst.channels(), &bytes), pxlStatusOk);
    GuardedBuffer work(bytes, 1, 0, 64, 1);
    const PxlStatus st = run<T>(plan.method, plan.wide, dst.channels(), src, srcStep, dst.data(), dst.step(), {0, 0}, dst.size(), border,
                                plan.spec(), work.base());
    EXPECT_TRUE(work.guardsIntact()) << "written past the work buffer";
    return st;
}

// GetSrcOffset and GetSrcRoi of a tile, in either form.
template <class T>
void querySource(bool wide, const PxliResizeSpec* spec, PxliPoint off, PxliSize size, PxliPoint* at, PxliPoint* roiAt, PxliSize* roi)
{
    if (!wide) {
        EXPECT_EQ(api<T>().srcOffset(spec, off, at), pxlStatusOk);
        EXPECT_EQ(api<T>().srcRoi(spec, off, size, roiAt, roi), pxlStatusOk);
        return;
    }
    PxliPointL atL{-9, -9}, roiAtL{-9, -9};
    PxliSizeL roiL{-9, -9};
    EXPECT_EQ(pxliResizeGetSrcOffset_L(spec, {off.x, off.y}, &atL), pxlStatusOk);
    EXPECT_EQ(pxliResizeGetSrcRoi_L(spec, {off.x, off.y}, {size.width, size.height}, &roiAtL, &roiL), pxlStatusOk);
    *at = {atL.x, atL.y};
    *roiAt = {roiAtL.x, roiAtL.y};
    *roi = {roiL.width, roiL.height};
}

// ---------------------------------------------------------------------------------------------
// The positions along one axis.
struct Axis {
    double ratio;              // the lengths over their common divisor, as a double
    std::vector<int> index;    // nearest: the source pixel; linear: the first tap, floor(pos)
    std::vector<double> frac;  // linear: pos - floor(pos)
};

Axis axisOf(Method m, int srcLen, int dstLen)
{
    const int g = std::gcd(srcLen, dstLen);
    Axis a{static_cast<double>(srcLen / g) / static_cast<double>(dstLen / g), {}, {}};
    const double r = static_cast<double>(srcLen) / dstLen;
    for (int i = 0; i < dstLen; ++i) {
        if (m == Nearest) {
            a.index.push_back(static_cast<int>((i + 0.5) * r - 1e-10));  // a centre on a boundary goes to the lower pixel
        } else {
            const double pos = (i + 0.5) * a.ratio - 0.5, first = std::floor(pos);
            a.index.push_back(static_cast<int>(first));
            a.frac.push_back(pos - first);
        }
    }
    return a;
}

// Where the source of a tile at o starts, and how far it runs for a tile of len (cut to the image).
int srcStart(const Axis& a, int o) { return static_cast<int>(std::floor(a.ratio * o)); }
int srcLength(const Axis& a, int srcLen, int o, int len)
{
    const int dstLen = static_cast<int>(a.index.size()), end = std::min(o + len, dstLen);
    return end == dstLen ? srcLen - srcStart(a, o) : a.index[end - 1] - srcStart(a, o) + 1;
}

template <class T> using Work = std::conditional_t<std::is_same_v<T, Pxl64f>, double, float>;

// The difference of two taps: exact in integers, then converted; floats subtract as they are.
template <class T> Work<T> tapDifference(T p1, T p0)
{
    if constexpr (std::is_integral_v<T>) return static_cast<float>(int{p1} - int{p0});
    else return p1 - p0;
}

// Integers round to nearest with ties to even, then saturate; floats are kept as they are.
template <class T> T store(Work<T> v)
{
    if constexpr (std::is_integral_v<T>) {
        const auto r = static_cast<int32_t>(std::nearbyint(v));
        return static_cast<T>(std::clamp<int32_t>(r, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
    } else {
        return static_cast<T>(v);
    }
}

// One linear call on the whole image; `pad` holds the source inside a ring of one pixel. With
// replicated borders (strips) the rows before the first source centre and past the last take one
// row interpolated along x, with no vertical blend, and in the other rows the columns before the
// first centre and past the last blend the edge samples of two rows directly. Everywhere else, and
// everywhere when every side lies in memory (the taps then read the ring), two rows interpolated
// along x are blended.
template <class T> class LinearModel {
public:
    using W = Work<T>;
    LinearModel(const GuardedImage<T>& pad, PxliSize src, PxliSize dst, bool strips)
        : pad_(pad), w_(src.width), h_(src.height), ax_(axisOf(Linear, src.width, dst.width)), ay_(axisOf(Linear, src.height, dst.height)),
          strips_(strips) {}

    T operator()(int x, int y, int c) const
    {
        const int sy = ay_.index[y];
        const W fy = static_cast<W>(ay_.frac[y]);
        if (strips_) {
            if (sy < 0 || sy >= h_ - 1) return store<T>(row(std::clamp(sy, 0, h_ - 1), x, c));
            const int sx = ax_.index[x];
            if (sx < 0 || sx >= w_ - 1) {
                const int edge = sx < 0 ? 0 : w_ - 1;
                return blend(static_cast<W>(at(edge, sy, c)), static_cast<W>(at(edge, sy + 1, c)), fy);
            }
        }
        return blend(row(sy, x, c), row(sy + 1, x, c), fy);
    }

private:
    T at(int sx, int sy, int c) const { return pad_.at(sx + 1, sy + 1, c); }
    W row(int sy, int x, int c) const
    {
        int x0 = ax_.index[x], x1 = x0 + 1;
        if (strips_) {
            x0 = std::clamp(x0, 0, w_ - 1);
            x1 = std::clamp(x1, 0, w_ - 1);
        }
        const T p0 = at(x0, sy, c), p1 = at(x1, sy, c);
        return tapDifference<T>(p1, p0) * static_cast<W>(ax_.frac[x]) + static_cast<W>(p0);
    }
    static T blend(W lo, W hi, W fy) { return store<T>((hi - lo) * fy + lo); }

    const GuardedImage<T>& pad_;
    int w_, h_;
    Axis ax_, ay_;
    bool strips_;
};

// Every sample equals the model's bit for bit, except that any NaN matches any NaN.
template <class T, class F> ::testing::AssertionResult matches(const GuardedImage<T>& got, const F& want)
{
    if (!got.guardsIntact()) return ::testing::AssertionFailure() << "written outside the destination";
    for (int y = 0; y < got.height(); ++y)
        for (int x = 0; x < got.width(); ++x)
            for (int c = 0; c < got.channels(); ++c) {
                const T w = want(x, y, c), g = got.at(x, y, c);
                bool same = pxltest::sameBits(g, w);
                if constexpr (std::is_floating_point_v<T>) same = same || (std::isnan(g) && std::isnan(w));
                if (!same)
                    return ::testing::AssertionFailure() << "pixel (" << x << ", " << y << ") channel " << c << ": got " << +g << ", want " << +w;
            }
    return ::testing::AssertionSuccess();
}

// Finite floats with no negative zero and no magnitude past 1e30, for which the edge strips and the
// interior kernel reading replicated memory give the same bits.
template <class T> T tame(T v)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(v)) return T(1);
        if (v == 0) return T(0);
        if (std::fabs(v) > T(1e30)) return std::copysign(T(1e30), v);
    }
    return v;
}

// A source inside a ring of one pixel of unrelated samples.
template <class T> GuardedImage<T> sourceWithRing(Rng& rng, PxliSize src, int ch, bool tamed)
{
    GuardedImage<T> img(src.width + 2, src.height + 2, ch);
    img.fillRandom(rng, 0.2, !tamed);
    if (tamed)
        for (int y = 0; y < img.height(); ++y)
            for (int i = 0; i < img.samplesPerRow(); ++i) img.row(y)[i] = tame(img.row(y)[i]);
    return img;
}

// The ring becomes a copy of the nearest edge pixel.
template <class T> void replicateRing(GuardedImage<T>& img)
{
    const int w = img.width() - 2, h = img.height() - 2;
    for (int y = 0; y < h + 2; ++y)
        for (int x = 0; x < w + 2; ++x)
            for (int c = 0; c < img.channels(); ++c) img.at(x, y, c) = img.at(std::clamp(x, 1, w), std::clamp(y, 1, h), c);
}

// Random sizes: sides often of 1 or 2 pixels; destinations often equal, a multiple or half of the source.
int sourceSide(Rng& rng, int least, int most) { return rng.chance(0.25) ? rng.uniformInt(least, 2) : rng.uniformInt(least, most); }
int destinationSide(Rng& rng, int s, int most)
{
    const int pick = rng.uniformInt(0, 5), times = rng.uniformInt(2, 3), few = rng.uniformInt(1, 2), any = rng.uniformInt(1, most);
    const int sides[] = {s, std::min(s * times, 64), std::max(1, s / 2), few, any};
    return sides[std::min(pick, 4)];
}
std::pair<PxliSize, PxliSize> randomSizes(Rng& rng, Method m)
{
    const int least = m == Nearest ? 1 : 2, sw = sourceSide(rng, least, 40), sh = sourceSide(rng, least, 30);
    if (rng.chance(0.2)) {  // halved exactly on both axes
        const int hw = std::max(1, sw / 2), hh = std::max(1, sh / 2);
        return {{2 * hw, 2 * hh}, {hw, hh}};
    }
    const int dw = destinationSide(rng, sw, 40), dh = destinationSide(rng, sh, 30);
    return {{sw, sh}, {dw, dh}};
}

// One plan run over a source in a ring of unrelated samples, against the model: nearest, or
// linear with the edge clamped and then with every side in memory.
template <class T> void modelCase(Rng& rng, Method m, int ch, bool wide, PxliSize src, PxliSize dst)
{
    SCOPED_TRACE(::testing::Message() << pxltest::token<T>() << " C" << ch << (m == Nearest ? " nearest" : " linear") << (wide ? " _L" : "")
                                      << " from " << src.width << "x" << src.height << " to " << dst.width << "x" << dst.height);
    Plan<T> plan(m, wide, src, dst);
    ASSERT_TRUE(plan.ok);
    // The ring holds unrelated samples: a replicated border never reads it.
    GuardedImage<T> pad = sourceWithRing<T>(rng, src, ch, false);
    GuardedImage<T> got(dst.width, dst.height, ch);
    const pxltest::Watch keep({&plan.rec, &pad});
    ASSERT_EQ(runWhole<T>(plan, &pad.at(1, 1), pad.step(), got), pxlStatusOk);
    EXPECT_TRUE(keep.unchanged()) << "the record or the source was written";
    if (m == Nearest) {
        const Axis ax = axisOf(m, src.width, dst.width), ay = axisOf(m, src.height, dst.height);
        EXPECT_TRUE(pxltest::matchesEach(got, [&](int x, int y, int c) { return pad.at(ax.index[x] + 1, ay.index[y] + 1, c); }));
        return;
    }
    EXPECT_TRUE(matches(got, LinearModel<T>(pad, src, dst, true)));
    // Every side in memory: the taps past the edge read the ring, now a replica of the edge.
    replicateRing(pad);
    const int border = kAll | (rng.chance(0.5) ? kReplicate : 0);
    ASSERT_EQ(runWhole<T>(plan, &pad.at(1, 1), pad.step(), got, border), pxlStatusOk);
    EXPECT_TRUE(matches(got, LinearModel<T>(pad, src, dst, false))) << "border " << border;
}

template <class T> void modelCases(uint64_t seed, int count)
{
    Rng rng(seed);
    for (const Method m : {Nearest, Linear}) {
        if (m == Nearest && std::is_same_v<T, Pxl64f>) continue;
        for (const int ch : {1, 3, 4})
            for (int n = 0; n < count; ++n) {
                const auto sizes = randomSizes(rng, m);
                modelCase<T>(rng, m, ch, n % 2 == 1, sizes.first, sizes.second);
            }
    }
}

// Rows long enough to be taken in several bands: enlarged, reduced by factors that cut the
// bands short, reduced so far that the samples are read where they lie, and halved.
template <class T> void wideCases(uint64_t seed)
{
    Rng rng(seed);
    const std::pair<PxliSize, PxliSize> sizes[] = {{{700, 3}, {1500, 4}}, {{3001, 3}, {601, 2}}, {{5000, 2}, {19, 1}}, {{1200, 6}, {600, 3}},
                                                   {{2050, 4}, {1025, 2}}};
    for (const int ch : {1, 3, 4})
        for (const auto& s : sizes) modelCase<T>(rng, Linear, ch, rng.chance(0.5), s.first, s.second);
}

TEST(Resize, EveryTypeAndLayoutAgainstTheModel)
{
    modelCases<Pxl8u>(1, 8);
    modelCases<Pxl16u>(2, 8);
    modelCases<Pxl16s>(3, 8);
    modelCases<Pxl32f>(4, 8);
    modelCases<Pxl64f>(5, 8);
}

TEST(Resize, WideRowsAgainstTheModel)
{
    wideCases<Pxl8u>(6);
    wideCases<Pxl16u>(7);
    wideCases<Pxl16s>(8);
    wideCases<Pxl32f>(9);
    wideCases<Pxl64f>(10);
}

// Cut points of a side: 0, up to three inner points, the length.
std::vector<int> cuts(Rng& rng, int len)
{
    std::vector<int> c{0, len};
    const int inner = rng.uniformInt(0, std::min(len - 1, 3));
    for (int k = 0; k < inner; ++k) c.push_back(rng.uniformInt(1, len - 1));
    std::sort(c.begin(), c.end());
    c.erase(std::unique(c.begin(), c.end()), c.end());
    return c;
}

// A grid of tiles, each with the source from GetSrcOffset, its own work buffer of the size of its
// tile and the in-memory flags on its inner sides, gives the bits of one call. The ring replicates
// the edge, since a tile's inner side may reach one pixel past the image.
template <class T> void tileCases(uint64_t seed, int count)
{
    Rng rng(seed);
    for (int n = 0; n < count; ++n) {
        const Method m = (std::is_same_v<T, Pxl64f> || n % 4 != 3) ? Linear : Nearest;
        const int layouts[] = {1, 3, 4}, ch = layouts[n % 3];
        const bool wide = n % 2 == 1, together = rng.chance(0.5);
        const auto sizes = randomSizes(rng, m);
        const PxliSize src = sizes.first, dst = sizes.second;
        SCOPED_TRACE(::testing::Message() << pxltest::token<T>() << " C" << ch << (m == Nearest ? " nearest" : " linear") << (wide ? " _L" : "")
                                          << " from " << src.width << "x" << src.height << " to " << dst.width << "x" << dst.height
                                          << (together ? ", threads" : ""));
        Plan<T> plan(m, wide, src, dst);
        ASSERT_TRUE(plan.ok);
        GuardedImage<T> pad = sourceWithRing<T>(rng, src, ch, true);
        replicateRing(pad);
        GuardedImage<T> whole(dst.width, dst.height, ch), tiled(dst.width, dst.height, ch);
        const pxltest::Watch keep({&plan.rec, &pad});
        ASSERT_EQ(runWhole<T>(plan, &pad.at(1, 1), pad.step(), whole), pxlStatusOk);

        const Axis ax = axisOf(m, src.width, dst.width), ay = axisOf(m, src.height, dst.height);
        const std::vector<int> xs = cuts(rng, dst.width), ys = cuts(rng, dst.height);
        struct Tile { PxliPoint off; PxliSize size; int border; const T* from; T* to; };
        std::vector<Tile> tiles;
        std::vector<GuardedBuffer> works;
        works.reserve(xs.size() * ys.size());
        for (std::size_t r = 0; r + 1 < ys.size(); ++r)
            for (std::size_t q = 0; q + 1 < xs.size(); ++q) {
                const PxliPoint off{xs[q], ys[r]};
                PxliSize size{xs[q + 1] - off.x, ys[r + 1] - off.y};
                const int border = kReplicate | (off.y > 0 ? kTop : 0) | (off.y + size.height < dst.height ? kBottom : 0) |
                                   (off.x > 0 ? kLeft : 0) | (off.x + size.width < dst.width ? kRight : 0);
                // A tile on the right or bottom edge may run past the image by its offset alone.
                if (off.x + size.width == dst.width && rng.chance(0.3)) size.width = dst.width;
                if (off.y + size.height == dst.height && rng.chance(0.3)) size.height = dst.height;
                PxliPoint at{-9, -9}, roiAt{-9, -9};
                PxliSize roi{-9, -9};
                querySource<T>(wide, plan.spec(), off, size, &at, &roiAt, &roi);
                ASSERT_TRUE(at.x == srcStart(ax, off.x) && at.y == srcStart(ay, off.y) && roiAt.x == at.x && roiAt.y == at.y)
                    << "tile at " << off.x << ", " << off.y << ": source at " << at.x << ", " << at.y << " and " << roiAt.x << ", " << roiAt.y;
                EXPECT_TRUE(roi.width == srcLength(ax, src.width, off.x, size.width) && roi.height == srcLength(ay, src.height, off.y, size.height))
                    << "tile at " << off.x << ", " << off.y << " of " << size.width << "x" << size.height << ": source " << roi.width << "x"
                    << roi.height;
                int bytes = 0;
                ASSERT_EQ(queryBuffer<T>(wide, plan.spec(), size, ch, &bytes), pxlStatusOk);
                works.emplace_back(bytes, 1, 0, 64, 1);
                tiles.push_back({off, size, border, &pad.at(at.x + 1, at.y + 1), &tiled.at(off.x, off.y)});
            }
        std::vector<PxlStatus> status(tiles.size(), -1);
        const auto runTile = [&](std::size_t t) {
            status[t] = run<T>(m, wide, ch, tiles[t].from, pad.step(), tiles[t].to, tiled.step(), tiles[t].off, tiles[t].size, tiles[t].border,
                               plan.spec(), works[t].base());
        };
        std::vector<std::thread> threads;
        for (std::size_t t = 0; t < tiles.size(); ++t) {
            if (together) threads.emplace_back(runTile, t);
            else runTile(t);
        }
        for (auto& th : threads) th.join();
        for (std::size_t t = 0; t < tiles.size(); ++t) {
            EXPECT_EQ(status[t], pxlStatusOk) << "tile at " << tiles[t].off.x << ", " << tiles[t].off.y;
            EXPECT_TRUE(works[t].guardsIntact()) << "tile at " << tiles[t].off.x << ", " << tiles[t].off.y;
        }
        EXPECT_TRUE(keep.unchanged()) << "the record or the source was written";
        EXPECT_TRUE(tiled.guardsIntact());
        EXPECT_TRUE(pxltest::regionsEqual(tiled, whole));
    }
}

TEST(Resize, TilesGiveTheBitsOfOneCall)
{
    tileCases<Pxl8u>(11, 12);
    tileCases<Pxl16u>(12, 8);
    tileCases<Pxl16s>(13, 8);
    tileCases<Pxl32f>(14, 12);
    tileCases<Pxl64f>(15, 8);
}

// Equal sizes give the source back, with either method.
template <class T> void sameSize(int ch, uint64_t seed)
{
    Rng rng(seed);
    const PxliSize s{9, 7};
    GuardedImage<T> src(s.width, s.height, ch), dst(s.width, s.height, ch);
    src.fillRandom(rng, 0.3, false);
    for (int y = 0; y < s.height; ++y)
        for (int i = 0; i < src.samplesPerRow(); ++i) src.row(y)[i] = tame(src.row(y)[i]);
    for (const Method m : {Nearest, Linear}) {
        Plan<T> plan(m, false, s, s);
        ASSERT_TRUE(plan.ok);
        ASSERT_EQ(runWhole<T>(plan, src.data(), src.step(), dst), pxlStatusOk);
        EXPECT_TRUE(pxltest::regionsEqual(dst, src)) << pxltest::token<T>() << " method " << m;
    }
}

TEST(Resize, ExactCases)
{
    // 2x2 to 4x4: the first column and row lie before the first centre (pos -0.25) and the last past
    // the last, and replicate the edge; the halves between round to even.
    const Pxl8u want[16] = {10, 20, 40, 50, 30, 48, 82, 100, 70, 102, 168, 200, 90, 130, 210, 250};
    GuardedImage<Pxl8u> quad(2, 2), dst(4, 4);
    const Pxl8u corners[4] = {10, 50, 90, 250};
    for (int i = 0; i < 4; ++i) quad.at(i % 2, i / 2) = corners[i];
    for (const bool wide : {false, true}) {
        Plan<Pxl8u> plan(Linear, wide, {2, 2}, {4, 4});
        ASSERT_TRUE(plan.ok);
        int bytes = 0;
        ASSERT_EQ(queryBuffer<Pxl8u>(wide, plan.spec(), {4, 4}, 1, &bytes), pxlStatusOk);
        GuardedBuffer work(bytes, 1, 0, 64, 1);
        // The border value is never read: null will do.
        ASSERT_EQ(wide ? pxliResizeLinear_8u_C1R_L(quad.data(), quad.step(), dst.data(), dst.step(), {0, 0}, {4, 4}, kReplicate, nullptr,
                                                   plan.spec(), work.base())
                       : pxliResizeLinear_8u_C1R(quad.data(), quad.step(), dst.data(), dst.step(), {0, 0}, {4, 4}, kReplicate, nullptr,
                                                 plan.spec(), work.base()),
                  pxlStatusOk);
        EXPECT_TRUE(pxltest::matchesEach(dst, [&](int x, int y, int) { return want[y * 4 + x]; })) << (wide ? "_L" : "");
    }
    // One column from two: the mean, ties to even (1.5 and 2.5 both give 2).
    Plan<Pxl8u> half(Linear, false, {2, 2}, {1, 2});
    ASSERT_TRUE(half.ok);
    GuardedImage<Pxl8u> two(2, 2), mean(1, 2);
    for (int i = 0; i < 4; ++i) two.at(i % 2, i / 2) = static_cast<Pxl8u>(1 + i % 2 + i / 2);
    ASSERT_EQ(runWhole<Pxl8u>(half, two.data(), two.step(), mean), pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(mean, [](int, int, int) { return Pxl8u{2}; }));
    // Nearest: 3 columns to 2 take columns 0 and 2; 2 rows to 4 take rows 0, 0, 1, 1.
    Plan<Pxl16s> pick(Nearest, false, {3, 2}, {2, 4});
    ASSERT_TRUE(pick.ok);
    GuardedImage<Pxl16s> from(3, 2), to(2, 4);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) from.at(x, y) = static_cast<Pxl16s>(10 * y + x);
    ASSERT_EQ(runWhole<Pxl16s>(pick, from.data(), from.step(), to), pxlStatusOk);
    const int rows[4] = {0, 0, 1, 1}, cols[2] = {0, 2};
    EXPECT_TRUE(pxltest::matchesEach(to, [&](int x, int y, int) { return static_cast<Pxl16s>(10 * rows[y] + cols[x]); }));
    sameSize<Pxl8u>(3, 21);
    sameSize<Pxl16s>(4, 22);
    sameSize<Pxl32f>(1, 23);
}

TEST(Resize, CutToTheDestination)
{
    // A size past the record's destination writes the part that fits and warns; a tile that runs
    // past it by its offset alone is cut quietly.
    const PxliSize s{6, 5}, d{9, 7}, over{12, 7};
    Rng rng(31);
    GuardedImage<Pxl8u> pad = sourceWithRing<Pxl8u>(rng, s, 3, false);
    replicateRing(pad);
    Plan<Pxl8u> plan(Linear, false, s, d);
    ASSERT_TRUE(plan.ok);
    int bytes = 0, exact = 0;
    EXPECT_EQ(pxliResizeGetBufferSize_8u(plan.spec(), over, 3, &bytes), pxlStatusWarnNoOperation);
    ASSERT_EQ(pxliResizeGetBufferSize_8u(plan.spec(), d, 3, &exact), pxlStatusOk);
    EXPECT_EQ(bytes, exact);
    GuardedBuffer work(exact, 1, 0, 64, 1);
    GuardedImage<Pxl8u> whole(d.width, d.height, 3), cut(d.width, d.height, 3), corner(d.width, d.height, 3);
    ASSERT_EQ(runWhole<Pxl8u>(plan, &pad.at(1, 1), pad.step(), whole), pxlStatusOk);
    EXPECT_EQ(pxliResizeLinear_8u_C3R(&pad.at(1, 1), pad.step(), cut.data(), cut.step(), {0, 0}, over, kReplicate, nullptr, plan.spec(), work.base()),
              pxlStatusWarnNoOperation);
    EXPECT_TRUE(cut.guardsIntact());
    EXPECT_TRUE(pxltest::regionsEqual(cut, whole));
    PxliPoint at{-9, -9};
    PxliSize roi{-9, -9};
    EXPECT_EQ(pxliResizeGetSrcRoi_8u(plan.spec(), {0, 0}, over, &at, &roi), pxlStatusWarnNoOperation);
    EXPECT_TRUE(at.x == 0 && at.y == 0 && roi.width == 6 && roi.height == 5) << roi.width << "x" << roi.height;
    // The tile at (4, 3) given the whole size is cut to 5 x 4; its source starts at (2, 2), 4 x 3.
    EXPECT_EQ(pxliResizeGetSrcRoi_8u(plan.spec(), {4, 3}, d, &at, &roi), pxlStatusOk);
    EXPECT_TRUE(at.x == 2 && at.y == 2 && roi.width == 4 && roi.height == 3) << at.x << ", " << at.y << " " << roi.width << "x" << roi.height;
    corner.fill(7);
    EXPECT_EQ(pxliResizeLinear_8u_C3R(&pad.at(3, 3), pad.step(), &corner.at(4, 3), corner.step(), {4, 3}, d, kReplicate | kTop | kLeft, nullptr,
                                      plan.spec(), work.base()),
              pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(corner, [&](int x, int y, int c) { return x >= 4 && y >= 3 ? whole.at(x, y, c) : Pxl8u{7}; }));

    Plan<Pxl16u> nearest(Nearest, true, s, d);
    ASSERT_TRUE(nearest.ok);
    GuardedImage<Pxl16u> src16(s.width, s.height), got16(d.width, d.height);
    src16.fillRandom(rng);
    PxlSizeL bytesL = 0;
    EXPECT_EQ(pxliResizeGetBufferSize_L(nearest.spec(), {9, 10}, 1, &bytesL), pxlStatusWarnNoOperation);
    GuardedBuffer workL(bytesL, 1, 0, 64, 1);
    EXPECT_EQ(pxliResizeNearest_16u_C1R_L(src16.data(), src16.step(), got16.data(), got16.step(), {0, 0}, {9, 10}, nearest.spec(), workL.base()),
              pxlStatusWarnNoOperation);
    const Axis ax = axisOf(Nearest, s.width, d.width), ay = axisOf(Nearest, s.height, d.height);
    EXPECT_TRUE(pxltest::matchesEach(got16, [&](int x, int y, int) { return src16.at(ax.index[x], ay.index[y]); }));
}

TEST(Resize, Sizes)
{
    // Records for 33 x 70 from 100 x 90: A = 64, B = 96. An Init size of -1 is not looked at.
    const PxliSize s{100, 90}, d{33, 70};
    struct Want { int interp, aa; PxlStatus status; int spec, init; };
    const Want wants[] = {{pxlInterpNearest, 0, pxlStatusOk, 896, -1},   {pxlInterpNearest, 1, pxlStatusWarnNoAntialiasing, 896, -1},
                          {pxlInterpLinear, 0, pxlStatusOk, 1536, -1},   {pxlInterpCubic, 0, pxlStatusOk, 3456, 704},
                          {pxlInterpLanczos, 0, pxlStatusOk, 4864, 704}, {pxlInterpSuper, 0, pxlStatusOk, 1636, -1},
                          {pxlInterpLinear, 1, pxlStatusOk, 4448, 1344}, {pxlInterpSuper, 1, pxlStatusWarnNoAntialiasing, 1636, -1}};
    for (const Want& w : wants) {
        int spec = -1, init = -1;
        PxlSizeL specL = -1, initL = -1;
        EXPECT_EQ(pxliResizeGetSize_16s(s, d, w.interp, w.aa, &spec, &init), w.status) << "interpolation " << w.interp << " aa " << w.aa;
        EXPECT_EQ(spec, w.spec) << "interpolation " << w.interp << " aa " << w.aa;
        EXPECT_TRUE(w.init < 0 || init == w.init) << "interpolation " << w.interp << " aa " << w.aa << ": Init size " << init;
        EXPECT_EQ(pxliResizeGetSize_L({100, 90}, {33, 70}, pxlDt8u, w.interp, w.aa, &specL, &initL), w.status) << "interpolation " << w.interp;
        EXPECT_EQ(specL, w.spec) << "interpolation " << w.interp << " aa " << w.aa;
    }
    int spec = -1, init = -1;
    PxlSizeL specL = -1, initL = -1;
    EXPECT_EQ(pxliResizeGetSize_64f(s, d, pxlInterpLinear, 0, &spec, &init), pxlStatusOk);
    EXPECT_EQ(spec, 2112);
    EXPECT_EQ(pxliResizeGetSize_L({100, 90}, {33, 70}, pxlDt64f, pxlInterpLinear, 0, &specL, &initL), pxlStatusOk);
    EXPECT_EQ(specL, 2112);
    EXPECT_EQ(pxliResizeGetSize_64f(s, d, pxlInterpCubic, 0, &spec, &init), pxlStatusUnsupportedMode);
    EXPECT_EQ(pxliResizeGetSize_64f(s, d, pxlInterpLinear, 1, &spec, &init), pxlStatusUnsupportedMode);
    EXPECT_EQ(pxliResizeGetSize_L({100, 90}, {33, 70}, pxlDt64f, pxlInterpCubic, 0, &specL, &initL), pxlStatusBadDataType);
    EXPECT_EQ(pxliResizeGetSize_8u(s, d, 0, 0, &spec, &init), pxlStatusUnsupportedMode);
    // The least source of each method.
    EXPECT_EQ(pxliResizeGetSize_32f({1, 1}, d, pxlInterpNearest, 0, &spec, &init), pxlStatusOk);
    EXPECT_EQ(pxliResizeGetSize_32f({2, 2}, d, pxlInterpLinear, 0, &spec, &init), pxlStatusOk);
    EXPECT_EQ(pxliResizeGetSize_32f({100, 3}, d, pxlInterpCubic, 0, &spec, &init), pxlStatusBadSize);
    EXPECT_EQ(pxliResizeGetSize_32f({3, 90}, d, pxlInterpLanczos, 0, &spec, &init), pxlStatusBadSize);
    EXPECT_EQ(pxliResizeGetSize_32f({100, 69}, d, pxlInterpSuper, 0, &spec, &init), pxlStatusBadSize);

    // Work buffers for 45 x 37 from 10 x 8: Base = 192 + 160, a linear row of 3 channels 544.
    const PxliSize from{10, 8}, to{45, 37};
    Plan<Pxl8u> lin8(Linear, false, from, to);
    Plan<Pxl32f> near32(Nearest, true, from, to);
    Plan<Pxl64f> lin64(Linear, false, from, to);
    ASSERT_TRUE(lin8.ok && near32.ok && lin64.ok);
    int bytes = -1;
    PxlSizeL bytesL = -1;
    EXPECT_EQ(pxliResizeGetBufferSize_8u(lin8.spec(), to, 3, &bytes), pxlStatusOk);
    EXPECT_EQ(bytes, 1504);
    EXPECT_EQ(pxliResizeGetBufferSize_8u(lin8.spec(), {20, 9}, 4, &bytes), pxlStatusOk);
    EXPECT_EQ(bytes, 864);
    EXPECT_EQ(pxliResizeGetBufferSize_8u(lin8.spec(), {50, 10}, 1, &bytes), pxlStatusWarnNoOperation);
    EXPECT_EQ(bytes, 704);  // the size of 45 x 10
    EXPECT_EQ(pxliResizeGetBufferSize_L(near32.spec(), {45, 37}, 3, &bytesL), pxlStatusOk);
    EXPECT_EQ(bytesL, 416);
    EXPECT_EQ(pxliResizeGetBufferSize_64f(lin64.spec(), to, 3, &bytes), pxlStatusOk);
    EXPECT_EQ(bytes, 3648);
    EXPECT_EQ(pxliResizeGetBufferSize_64f(lin64.spec(), {20, 9}, 1, &bytes), pxlStatusOk);
    EXPECT_EQ(bytes, 1088);

    PxliBorderWidths bw{-1, -1, -1, -1};
    EXPECT_EQ(pxliResizeGetBorderSize_8u(lin8.spec(), &bw), pxlStatusOk);
    EXPECT_TRUE(bw.left == 1 && bw.top == 1 && bw.right == 1 && bw.bottom == 1);
    EXPECT_EQ(pxliResizeGetBorderSize_L(near32.spec(), &bw), pxlStatusOk);
    EXPECT_TRUE(bw.left == 0 && bw.top == 0 && bw.right == 0 && bw.bottom == 0);
    EXPECT_EQ(pxliResizeGetBorderSize_64f(lin64.spec(), &bw), pxlStatusOk);
    EXPECT_TRUE(bw.left == 1 && bw.top == 1 && bw.right == 1 && bw.bottom == 1);
    EXPECT_EQ(pxliResizeGetBorderSize_8u(nullptr, &bw), pxlStatusNullPointer);
    EXPECT_EQ(pxliResizeGetBorderSize_8u(near32.spec(), &bw), pxlStatusBadContext);
    EXPECT_EQ(pxliResizeGetBorderSize_64f(lin8.spec(), &bw), pxlStatusBadContext);
}

TEST(Resize, OrderOfChecks)
{
    const PxliSize s{7, 6}, d{11, 5};
    const PxliSizeL sL{7, 6}, dL{11, 5};
    GuardedBuffer out(16, 1, 0, 64, 0);

    struct SizeArgs { PxliSizeL src, dst; PxlDataType type; int interp, aa; PxlSizeL *spec, *init; };
    auto* outL = reinterpret_cast<PxlSizeL*>(out.base());
    pxltest::expectCheckOrder<SizeArgs>(
        {sL, dL, pxlDt16s, pxlInterpLinear, 0, outL, outL + 1},
        {{"null record size", pxlStatusNullPointer, [](SizeArgs& q) { q.spec = nullptr; }},
         {"null Init size", pxlStatusNullPointer, [](SizeArgs& q) { q.init = nullptr; }},
         {"destination width 0", pxlStatusWarnZeroSize, [](SizeArgs& q) { q.dst.width = 0; }},
         {"source height -2", pxlStatusBadSize, [](SizeArgs& q) { q.src.height = -2; }},
         {"interpolation 3", pxlStatusBadInterpolation, [](SizeArgs& q) { q.interp = 3; }},
         {"type 2", pxlStatusBadDataType, [](SizeArgs& q) { q.type = 2; }},
         {"destination height 0x20000000", pxlStatusSizeOverflow, [](SizeArgs& q) { q.dst.height = 0x20000000; }},
         {"source width 1", pxlStatusBadSize, [](SizeArgs& q) { q.src.width = 1; }},
         {"64f with antialiasing", pxlStatusUnsupportedMode, [](SizeArgs& q) { q.type = pxlDt64f; q.aa = 1; }}},
        [](const SizeArgs& q) { return pxliResizeGetSize_L(q.src, q.dst, q.type, q.interp, q.aa, q.spec, q.init); }, {&out});

    // Inits check before they write.
    GuardedBuffer raw(4096, 1, 0, 64, 0);
    auto* rawSpec = reinterpret_cast<PxliResizeSpec*>(raw.base());
    const pxltest::Watch blank({&raw});
    EXPECT_EQ(pxliResizeLinearInit_8u(s, d, nullptr), pxlStatusNullPointer);
    EXPECT_EQ(pxliResizeLinearInit_8u({0, -6}, d, rawSpec), pxlStatusWarnZeroSize);
    EXPECT_EQ(pxliResizeLinearInit_8u({7, -6}, d, rawSpec), pxlStatusBadSize);
    EXPECT_EQ(pxliResizeLinearInit_16s({1, 6}, d, rawSpec), pxlStatusBadSize);
    EXPECT_EQ(pxliResizeNearestInit_L(sL, dL, pxlDt64f, rawSpec), pxlStatusBadDataType);
    EXPECT_EQ(pxliResizeLinearInit_L(sL, {0x20000000, 5}, pxlDt8u, rawSpec), pxlStatusSizeOverflow);
    EXPECT_TRUE(blank.unchanged());

    Plan<Pxl8u> info(Linear, false, s, d), infoL(Linear, true, s, d);
    ASSERT_TRUE(info.ok && infoL.ok);
    const PxliResizeSpec *plain = info.spec(), *wideSpec = infoL.spec();
    struct BufArgs { const PxliResizeSpec* spec; PxliSize size; int ch; int* bytes; };
    pxltest::expectCheckOrder<BufArgs>(
        {plain, d, 3, reinterpret_cast<int*>(out.base())},
        {{"null record", pxlStatusNullPointer, [](BufArgs& q) { q.spec = nullptr; }},
         {"null size", pxlStatusNullPointer, [](BufArgs& q) { q.bytes = nullptr; }},
         {"height 0", pxlStatusWarnZeroSize, [](BufArgs& q) { q.size.height = 0; }},
         {"record of the wide Init", pxlStatusBadContext, [wideSpec](BufArgs& q) { q.spec = wideSpec; }},
         {"2 channels", pxlStatusBadChannelCount, [](BufArgs& q) { q.ch = 2; }},
         {"width -3", pxlStatusBadSize, [](BufArgs& q) { q.size.width = -3; }}},
        [](const BufArgs& q) { return pxliResizeGetBufferSize_8u(q.spec, q.size, q.ch, q.bytes); }, {&out, &info.rec, &infoL.rec});

    struct OffArgs { const PxliResizeSpec* spec; PxliPoint off; PxliPoint* at; };
    pxltest::expectCheckOrder<OffArgs>(
        {plain, {10, 4}, reinterpret_cast<PxliPoint*>(out.base())},
        {{"null record", pxlStatusNullPointer, [](OffArgs& q) { q.spec = nullptr; }},
         {"null offset", pxlStatusNullPointer, [](OffArgs& q) { q.at = nullptr; }},
         {"record of the wide Init", pxlStatusBadContext, [wideSpec](OffArgs& q) { q.spec = wideSpec; }},
         {"y at the height", pxlStatusOutOfRange, [](OffArgs& q) { q.off.y = 5; }}},
        [](const OffArgs& q) { return pxliResizeGetSrcOffset_8u(q.spec, q.off, q.at); }, {&out, &info.rec, &infoL.rec});

    struct RoiArgs { const PxliResizeSpec* spec; PxliPointL off; PxliSizeL roi; PxliPointL* at; PxliSizeL* size; };
    pxltest::expectCheckOrder<RoiArgs>(
        {wideSpec, {3, 1}, {4, 4}, reinterpret_cast<PxliPointL*>(out.base()), reinterpret_cast<PxliSizeL*>(out.base() + 8)},
        {{"null record", pxlStatusNullPointer, [](RoiArgs& q) { q.spec = nullptr; }},
         {"null offset", pxlStatusNullPointer, [](RoiArgs& q) { q.at = nullptr; }},
         {"null size", pxlStatusNullPointer, [](RoiArgs& q) { q.size = nullptr; }},
         {"width 0", pxlStatusBadSize, [](RoiArgs& q) { q.roi.width = 0; }},
         {"record of the plain Init", pxlStatusBadContext, [plain](RoiArgs& q) { q.spec = plain; }},
         {"x -1", pxlStatusOutOfRange, [](RoiArgs& q) { q.off.x = -1; }}},
        [](const RoiArgs& q) { return pxliResizeGetSrcRoi_L(q.spec, q.off, q.roi, q.at, q.size); }, {&out, &info.rec, &infoL.rec});

    // Linear runs.
    Plan<Pxl16u> lin(Linear, false, s, d), linL(Linear, true, s, d), near16(Nearest, false, s, d);
    ASSERT_TRUE(lin.ok && linL.ok && near16.ok);
    GuardedImage<Pxl16u> src16(s.width, s.height, 3), dst16(d.width, d.height, 3);
    int bytes = 0;
    ASSERT_EQ(pxliResizeGetBufferSize_16u(lin.spec(), d, 3, &bytes), pxlStatusOk);
    GuardedBuffer work16(bytes, 1, 0, 64, 1);
    const PxliResizeSpec *linWide = linL.spec(), *nearPlain = near16.spec();
    struct RunArgs { const Pxl16u* src; int srcStep; Pxl16u* dst; PxliPoint off; PxliSize size; int border; const PxliResizeSpec* spec; Pxl8u* buffer; };
    pxltest::expectCheckOrder<RunArgs>(
        {src16.data(), src16.step(), dst16.data(), {0, 0}, d, kReplicate, lin.spec(), work16.base()},
        {{"border 0x10", pxlStatusBadBorder, [](RunArgs& q) { q.border = kTop; }},
         {"border 0x101", pxlStatusBadBorder, [](RunArgs& q) { q.border = 0x101; }},
         {"null source", pxlStatusNullPointer, [](RunArgs& q) { q.src = nullptr; }},
         {"null destination", pxlStatusNullPointer, [](RunArgs& q) { q.dst = nullptr; }},
         {"null record", pxlStatusNullPointer, [](RunArgs& q) { q.spec = nullptr; }},
         {"null buffer", pxlStatusNullPointer, [](RunArgs& q) { q.buffer = nullptr; }},
         {"height 0", pxlStatusWarnZeroSize, [](RunArgs& q) { q.size.height = 0; }},
         {"record of the wide Init", pxlStatusBadContext, [linWide](RunArgs& q) { q.spec = linWide; }},
         {"width -1", pxlStatusBadSize, [](RunArgs& q) { q.size.width = -1; }},
         {"odd source step", pxlStatusBadStep, [](RunArgs& q) { q.srcStep += 1; }},
         {"x at the width", pxlStatusOutOfRange, [](RunArgs& q) { q.off.x = 11; }},
         {"nearest record", pxlStatusBadContext, [nearPlain](RunArgs& q) { q.spec = nearPlain; }}},
        [&dst16](const RunArgs& q) {
            return pxliResizeLinear_16u_C3R(q.src, q.srcStep, q.dst, dst16.step(), q.off, q.size, q.border, nullptr, q.spec, q.buffer);
        },
        {&dst16, &work16, &lin.rec, &linL.rec, &near16.rec});

    // Nearest runs, wide form: no border word.
    Plan<Pxl32f> nearL32(Nearest, true, s, d), near32(Nearest, false, s, d), linL32(Linear, true, s, d), lin32(Linear, false, s, d);
    ASSERT_TRUE(nearL32.ok && near32.ok && linL32.ok && lin32.ok);
    GuardedImage<Pxl32f> src32(s.width, s.height, 4), dst32(d.width, d.height, 4);
    PxlSizeL bytesL = 0;
    ASSERT_EQ(pxliResizeGetBufferSize_L(nearL32.spec(), dL, 4, &bytesL), pxlStatusOk);
    GuardedBuffer work32(bytesL, 1, 0, 64, 1);
    const PxliResizeSpec *nearNarrow = near32.spec(), *linearWide = linL32.spec();
    struct NearArgs { const Pxl32f* src; Pxl32f* dst; int dstStep; PxliPointL off; PxliSizeL size; const PxliResizeSpec* spec; Pxl8u* buffer; };
    pxltest::expectCheckOrder<NearArgs>(
        {src32.data(), dst32.data(), dst32.step(), {0, 0}, dL, nearL32.spec(), work32.base()},
        {{"null source", pxlStatusNullPointer, [](NearArgs& q) { q.src = nullptr; }},
         {"null destination", pxlStatusNullPointer, [](NearArgs& q) { q.dst = nullptr; }},
         {"null record", pxlStatusNullPointer, [](NearArgs& q) { q.spec = nullptr; }},
         {"null buffer", pxlStatusNullPointer, [](NearArgs& q) { q.buffer = nullptr; }},
         {"width 0", pxlStatusWarnZeroSize, [](NearArgs& q) { q.size.width = 0; }},
         {"record of the plain Init", pxlStatusBadContext, [nearNarrow](NearArgs& q) { q.spec = nearNarrow; }},
         {"height -2", pxlStatusBadSize, [](NearArgs& q) { q.size.height = -2; }},
         {"destination step not a multiple of 4", pxlStatusBadStep, [](NearArgs& q) { q.dstStep += 2; }},
         {"y -1", pxlStatusOutOfRange, [](NearArgs& q) { q.off.y = -1; }},
         {"linear record", pxlStatusBadContext, [linearWide](NearArgs& q) { q.spec = linearWide; }}},
        [&src32](const NearArgs& q) { return pxliResizeNearest_32f_C4R_L(q.src, src32.step(), q.dst, q.dstStep, q.off, q.size, q.spec, q.buffer); },
        {&dst32, &work32, &nearL32.rec, &near32.rec, &linL32.rec});

    // Records of 64f samples go only with the 64f entries, and these only with them.
    Plan<Pxl64f> lin64L(Linear, true, s, d);
    ASSERT_TRUE(lin64L.ok);
    GuardedImage<Pxl64f> src64(s.width, s.height), dst64(d.width, d.height);
    GuardedBuffer spare(16384, 1, 0, 64, 0);
    const pxltest::Watch untouched({&dst32, &dst64, &spare, &lin32.rec, &linL32.rec, &lin64L.rec});
    EXPECT_EQ(pxliResizeLinear_64f_C1R(src64.data(), src64.step(), dst64.data(), dst64.step(), {0, 0}, d, kReplicate, nullptr, lin32.spec(),
                                       spare.base()),
              pxlStatusBadContext);
    EXPECT_EQ(pxliResizeLinear_64f_C1R_L(src64.data(), src64.step(), dst64.data(), dst64.step(), {0, 0}, dL, kReplicate, nullptr, linL32.spec(),
                                         spare.base()),
              pxlStatusBadContext);
    EXPECT_EQ(pxliResizeLinear_32f_C1R_L(src32.data(), src32.step(), dst32.data(), dst32.step(), {0, 0}, dL, kReplicate, nullptr, lin64L.spec(),
                                         spare.base()),
              pxlStatusBadContext);
    auto* sparePoint = reinterpret_cast<PxliPoint*>(spare.base());
    auto* spareSize = reinterpret_cast<PxliSize*>(spare.base() + 8);
    EXPECT_EQ(pxliResizeGetBufferSize_64f(lin32.spec(), d, 1, reinterpret_cast<int*>(spare.base())), pxlStatusBadContext);
    EXPECT_EQ(pxliResizeGetSrcOffset_64f(lin32.spec(), {0, 0}, sparePoint), pxlStatusBadContext);
    EXPECT_EQ(pxliResizeGetSrcRoi_64f(lin32.spec(), {0, 0}, d, sparePoint, spareSize), pxlStatusBadContext);
    EXPECT_EQ(pxliResizeGetBorderSize_64f(lin32.spec(), reinterpret_cast<PxliBorderWidths*>(spare.base())), pxlStatusBadContext);
    EXPECT_TRUE(untouched.unchanged());
}

}  // namespace
