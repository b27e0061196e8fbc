// The general filter with borders against a model written from its rules: the image extended by
// the border kind (reading the caller's memory on flagged sides), correlated with the kernel in the
// caller's order, and finished by the divisor's class and the rounding code; sums of float taps in
// extended precision.
#include "extension_model.hpp"
#include "pxltest.hpp"

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

namespace {

using pxltest::GuardedBuffer;
using pxltest::GuardedImage;
using pxltest::Rng;

constexpr int kMargin = 8;  // readable source pixels around every region

template <class T, int N> PxlStatus callFilter(const T* s, int ss, T* d, int ds, PxliSize roi, PxliBorderMode b, const T* v,
                                               const PxliFilterBorderSpec* spec, Pxl8u* buf)
{
#define PXL_FILTER(t, ct)                                                                                \
    if constexpr (std::is_same_v<T, ct>) {                                                               \
        if constexpr (N == 1) return pxliFilterBorder_##t##_C1R(s, ss, d, ds, roi, b, v, spec, buf);     \
        else if constexpr (N == 3) return pxliFilterBorder_##t##_C3R(s, ss, d, ds, roi, b, v, spec, buf); \
        else return pxliFilterBorder_##t##_C4R(s, ss, d, ds, roi, b, v, spec, buf);                      \
    }
    PXL_FILTER(8u, Pxl8u)
    PXL_FILTER(16u, Pxl16u)
    PXL_FILTER(16s, Pxl16s)
    PXL_FILTER(32f, Pxl32f)
#undef PXL_FILTER
}

// A record in a buffer of exactly the queried size, placed off any 64-byte boundary.
struct Spec {
    std::vector<uint8_t> bytes;
    PxliFilterBorderSpec* get() { return reinterpret_cast<PxliFilterBorderSpec*>(bytes.data() + 5); }
    explicit Spec(int size) : bytes(static_cast<std::size_t>(size) + 5) {}
};

// What the model needs to know of a filter: the taps in the caller's order, and either the
// integer form (divisor, offset as the record scales it) or float taps.
struct Kernel {
    int kw, kh;
    bool integer;
    std::vector<int> itaps;
    std::vector<float> ftaps;
    int divisor = 1, mode = 0;
    float offset = 0;  // as the record keeps it
};

// The integer finishing rules, written from their statement by division and floor.
int64_t finishInteger(int64_t v, const Kernel& k, int64_t lo, int64_t hi)
{
    const int64_t d = k.divisor;
    const bool pow2 = d > 1 && (d & (d - 1)) == 0;
    int64_t q = v;
    if (d != 1) {
        if (pow2) {
            const auto floorDiv = [](int64_t a, int64_t b) { return a >= 0 ? a / b : -((-a + b - 1) / b); };
            const int64_t f = floorDiv(v, d), rem = v - f * d;
            if (k.mode == 0) q = v / d;
            else if (k.mode == 1) q = f + (2 * rem > d || (2 * rem == d && (f & 1)));
            else q = floorDiv(v + d / 2, d);
        } else {
            const double x = static_cast<double>(v) / static_cast<double>(d);
            if (k.mode == 0) q = v / d;
            else if (x >= static_cast<double>(hi)) q = hi;
            else if (x <= static_cast<double>(lo)) q = lo;
            else if (k.mode == 1) q = static_cast<int64_t>(std::nearbyint(x));
            else q = static_cast<int64_t>(std::floor(x + 0.5));
        }
    }
    return std::clamp(q, lo, hi);
}

template <class T> T finishFloat(long double v, int mode)
{
    if constexpr (std::is_same_v<T, Pxl32f>) {
        return static_cast<float>(v);
    } else {
        const long double lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
        if (v != v) return 0;
        if (v >= hi) return static_cast<T>(hi);
        if (v <= lo) return static_cast<T>(lo);
        if (mode == 0) return static_cast<T>(std::trunc(v));
        if (mode == 1) return static_cast<T>(std::nearbyint(v));
        return static_cast<T>(std::floor(v + 0.5L));
    }
}

// The model of one call: src at (kMargin, kMargin) of a larger image.
template <class T, int N>
GuardedImage<T> model(const GuardedImage<T>& img, PxliSize roi, const Kernel& k, int border, const T* value)
{
    const int W = roi.width, H = roi.height, ax = (k.kw - 1) / 2, ay = (k.kh - 1) / 2;
    const filtmodel::Extension<T> sample{img, kMargin, roi, k.kw, k.kh, border, value};
    GuardedImage<T> want(W, H, N);
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x)
            for (int c = 0; c < N; ++c) {
                if (k.integer) {
                    if constexpr (std::is_same_v<T, Pxl8u>) {
                        uint32_t s = 0;
                        for (int r = 0; r < k.kh; ++r)
                            for (int q = 0; q < k.kw; ++q)
                                s += static_cast<uint32_t>(k.itaps[r * k.kw + q] * int{sample(x + q - ax, y + r - ay, c)});
                        const long double v = static_cast<long double>(static_cast<int32_t>(s)) + k.offset;
                        const long double t = std::trunc(v);
                        const int64_t vi = t > INT32_MAX ? INT32_MAX : t < INT32_MIN ? INT32_MIN : static_cast<int64_t>(t);
                        want.at(x, y, c) = static_cast<T>(finishInteger(vi, k, 0, 255));
                    } else {
                        int64_t s = 0;
                        for (int r = 0; r < k.kh; ++r)
                            for (int q = 0; q < k.kw; ++q) s += int64_t{k.itaps[r * k.kw + q]} * sample(x + q - ax, y + r - ay, c);
                        want.at(x, y, c) = static_cast<T>(finishInteger(s, k, -32768, 32767));
                    }
                } else {
                    long double s = 0;
                    for (int r = 0; r < k.kh; ++r)
                        for (int q = 0; q < k.kw; ++q)
                            s += static_cast<long double>(k.ftaps[r * k.kw + q]) *
                                 static_cast<long double>(sample(x + q - ax, y + r - ay, c));
                    if (!std::is_same_v<T, Pxl32f>) s += k.offset;
                    want.at(x, y, c) = finishFloat<T>(s, k.mode);
                }
            }
    return want;
}

// Random source samples: integer data over the whole type with its extremes; float data mostly
// pixel values with fractions, some of them exactly on rounding ties and a few extremes.
template <class T> void fillSource(GuardedImage<T>& img, Rng& rng, bool wild)
{
    for (int y = 0; y < img.height(); ++y)
        for (int i = 0; i < img.samplesPerRow(); ++i) {
            T& v = img.row(y)[i];
            if constexpr (std::is_same_v<T, Pxl32f>) {
                if (wild && rng.chance(0.05)) v = rng.sample<T>(1.0);
                else if (rng.chance(0.3)) v = static_cast<float>(rng.uniformInt(-8, 300)) + 0.5f;
                else v = static_cast<float>(rng.uniformInt(-1000, 1000000)) / 4096.0f;
            } else {
                v = rng.sample<T>(0.2);
            }
        }
}

constexpr int kKinds[3] = {pxlBorderReplicate, pxlBorderMirror, pxlBorderConstant};

template <class T, int N> void runModelCases(int cases, uint64_t seed)
{
    Rng rng(seed);
    const PxliSize kernels[] = {{1, 1}, {1, 3}, {3, 1}, {2, 2}, {2, 3}, {3, 2}, {3, 3}, {4, 5}, {5, 5}, {7, 3}, {1, 7}, {6, 1}};
    const PxliSize rois[] = {{1, 1}, {2, 2}, {1, 5}, {5, 1}, {3, 4}, {6, 6}, {17, 9}, {300 / N, 5}, {40, 3}};
    for (int n = 0; n < cases; ++n) {
        const PxliSize kern = kernels[rng.uniformInt(0, 11)], roi = rois[rng.uniformInt(0, 8)];
        const int kind = kKinds[rng.uniformInt(0, 2)];
        const int flags = rng.uniformInt(0, 15) << 4;
        const int border = rng.chance(0.05) ? 0xF0 : kind | flags;
        Kernel k{kern.width, kern.height, false, {}, {}};
        const bool intTaps = rng.chance(0.5);
        k.mode = rng.uniformInt(0, 2);
        const PxlDataType dt = pxltest::typeCode<T>();
        int specSize = 0, bufSize = 0;
        ASSERT_EQ(pxliFilterBorderGetSize(kern, roi, dt, intTaps ? pxlDt16s : pxlDt32f, N, &specSize, &bufSize), pxlStatusOk);
        Spec spec(specSize);
        const int count = kern.width * kern.height;
        int offset = 0;
        if (intTaps && dt != pxlDt32f) {
            static const int divisors[] = {1, 1, 2, 4, 16, 3, 9, -2, 7, 1024};
            k.divisor = divisors[rng.uniformInt(0, 9)];
            // Wide taps, and narrow ones whose sums of 8u samples fit 16 bits, signed or not.
            const int range = rng.chance(0.2) ? 32767 : rng.chance(0.5) ? 20 : 7;
            const bool positive = rng.chance(0.3);
            for (int i = 0; i < count; ++i) k.itaps.push_back(rng.uniformInt(positive ? 0 : -range, range));
            if (rng.chance(0.1)) k.itaps[0] = -32768;
            std::vector<Pxl16s> taps(k.itaps.begin(), k.itaps.end());
            ASSERT_GE(pxliFilterBorderInit_16s(taps.data(), kern, k.divisor, dt, N, k.mode, spec.get()), pxlStatusOk);
            const bool folded = dt == pxlDt16u || (dt == pxlDt16s && (N > 1 || kern.width < 3 || kern.height == 1));
            k.integer = !folded;
            if (folded) {
                const float inv = 1.0f / static_cast<float>(k.divisor);
                for (int t : k.itaps) k.ftaps.push_back(static_cast<float>(t) * inv);
            }
            if (dt == pxlDt8u && rng.chance(0.4)) {
                offset = rng.uniformInt(-300, 300);
                ASSERT_EQ(pxliFilterBorderSetMode(rng.uniformInt(0, 2), offset, spec.get()), pxlStatusOk);
                const bool pow2 = k.divisor > 1 && (k.divisor & (k.divisor - 1)) == 0;
                const float scale = k.divisor == 1 ? 1.0f : pow2 ? std::ldexp(1.0f, -std::countr_zero(unsigned(k.divisor)))
                                                                 : static_cast<float>(k.divisor);
                k.offset = static_cast<float>(offset) * scale;
            }
        } else {
            for (int i = 0; i < count; ++i) {
                const int shape = rng.uniformInt(0, 3);
                k.ftaps.push_back(shape == 0   ? static_cast<float>(rng.uniformInt(-8, 8)) / 4.0f
                                  : shape == 1 ? 1.0f / static_cast<float>(count)
                                               : static_cast<float>(rng.uniformInt(-1 << 20, 1 << 20)) / 1048576.0f * 3.0f);
            }
            ASSERT_GE(pxliFilterBorderInit_32f(k.ftaps.data(), kern, dt, N, k.mode, spec.get()), pxlStatusOk);
        }
        GuardedImage<T> img(roi.width + 2 * kMargin, roi.height + 2 * kMargin, N);
        fillSource(img, rng, n % 4 == 0);
        T value[4];
        for (T& v : value) v = rng.sample<T>(0.3, false);
        GuardedImage<T> dst(roi.width, roi.height, N);
        GuardedBuffer work(bufSize, 1, 0, 64, 3);
        const T* src = &img.at(kMargin, kMargin);
        const PxlStatus st = callFilter<T, N>(src, img.step(), dst.data(), dst.step(), roi, border, value, spec.get(), work.base());
        ASSERT_EQ(st, pxlStatusOk);
        const GuardedImage<T> want = model<T, N>(img, roi, k, border, value);
        ASSERT_TRUE(work.guardsIntact()) << "work buffer overrun";
        ASSERT_TRUE(dst.guardsIntact());
        ASSERT_TRUE(pxltest::regionsEqual(dst, want))
            << pxltest::token<T>() << " C" << N << " kernel " << kern.width << "x" << kern.height << " roi " << roi.width << "x"
            << roi.height << " border " << border << (k.integer ? " integer" : " float") << " divisor " << k.divisor << " mode "
            << k.mode << " offset " << offset << " case " << n;
    }
}

// Each layout of a type: `single` cases of C1, `multi` of C3 and of C4.
template <class T> void everyLayout(int single, int multi, uint64_t seed)
{
    runModelCases<T, 1>(single, seed);
    runModelCases<T, 3>(multi, seed + 1);
    runModelCases<T, 4>(multi, seed + 2);
}

TEST(FilterBorder, MatchesTheModel8u) { everyLayout<Pxl8u>(400, 150, 11); }
TEST(FilterBorder, MatchesTheModel16u) { everyLayout<Pxl16u>(200, 100, 21); }
TEST(FilterBorder, MatchesTheModel16s) { everyLayout<Pxl16s>(300, 100, 31); }
TEST(FilterBorder, MatchesTheModel32f) { everyLayout<Pxl32f>(300, 100, 41); }

// Where the double sums cannot decide: exact ties of the rounding and of float results, zero sums
// from cancelling taps over flat and over large values.
TEST(FilterBorder, TiesAndCancellationsMatchTheExtendedSum)
{
    const PxliSize roi{64, 6}, kern{3, 3};
    int specSize = 0, bufSize = 0;
    ASSERT_EQ(pxliFilterBorderGetSize(kern, roi, pxlDt32f, pxlDt32f, 1, &specSize, &bufSize), pxlStatusOk);
    Spec spec(specSize);
    std::vector<uint8_t> work(static_cast<std::size_t>(bufSize));
    // A Laplacian over values whose products span more than 64 bits: 1 + 2^-40 - 1 and the like.
    const float lap[9] = {0, 1, 0, 1, -4, 1, 0, 1, 0};
    ASSERT_EQ(pxliFilterBorderInit_32f(lap, kern, pxlDt32f, 1, 0, spec.get()), pxlStatusOk);
    GuardedImage<Pxl32f> img(roi.width + 2 * kMargin, roi.height + 2 * kMargin, 1);
    Rng rng(7);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const int pick = rng.uniformInt(0, 3);
            img.at(x, y) = pick == 0 ? 1.0f : pick == 1 ? 0x1p-40f : pick == 2 ? 0x1p30f : 3.0f;
        }
    GuardedImage<Pxl32f> dst(roi.width, roi.height, 1);
    ASSERT_EQ(pxliFilterBorder_32f_C1R(&img.at(kMargin, kMargin), img.step(), dst.data(), dst.step(), roi, pxlBorderReplicate,
                                       nullptr, spec.get(), work.data()),
              pxlStatusOk);
    Kernel k{3, 3, false, {}, std::vector<float>(lap, lap + 9)};
    EXPECT_TRUE(pxltest::regionsEqual(dst, model<Pxl32f, 1>(img, roi, k, pxlBorderReplicate, nullptr)));

    // 8u data with quarter taps: every sum is a multiple of 1/4, so every tie of both codes occurs.
    const float quarter[9] = {0.25f, 0.5f, 0.25f, 0, 0.25f, 0, 0.25f, 0.5f, 0.75f};
    ASSERT_EQ(pxliFilterBorderGetSize(kern, roi, pxlDt8u, pxlDt32f, 1, &specSize, &bufSize), pxlStatusOk);
    for (int mode = 0; mode < 3; ++mode) {
        Spec s8(specSize);
        std::vector<uint8_t> w8(static_cast<std::size_t>(bufSize));
        ASSERT_EQ(pxliFilterBorderInit_32f(quarter, kern, pxlDt8u, 1, mode, s8.get()), pxlStatusOk);
        GuardedImage<Pxl8u> src(roi.width + 2 * kMargin, roi.height + 2 * kMargin, 1);
        src.fillRandom(rng, 0.3);
        GuardedImage<Pxl8u> out(roi.width, roi.height, 1);
        ASSERT_EQ(pxliFilterBorder_8u_C1R(&src.at(kMargin, kMargin), src.step(), out.data(), out.step(), roi, pxlBorderMirror,
                                          nullptr, s8.get(), w8.data()),
                  pxlStatusOk);
        Kernel k8{3, 3, false, {}, std::vector<float>(quarter, quarter + 9)};
        k8.mode = mode;
        EXPECT_TRUE(pxltest::regionsEqual(out, model<Pxl8u, 1>(src, roi, k8, pxlBorderMirror, nullptr))) << "mode " << mode;
    }
}

// Sizes from the rules, worked by hand.
TEST(FilterBorder, SizesAreExact)
{
    struct Case {
        PxliSize kernel, roi;
        PxlDataType data, taps;
        int channels, spec, buffer;
    };
    const Case cases[] = {
        {{3, 3}, {8, 8}, pxlDt8u, pxlDt16s, 1, 447, 127},          // strips of 10 x 3, no scratch
        {{1, 5}, {10, 20}, pxlDt8u, pxlDt16s, 3, 447, 1951},       // one column wide: the scratch of 8u C3
        {{5, 5}, {16, 16}, pxlDt16s, pxlDt16s, 3, 831, 1663},      // 16s taps of 16s C3 held as 32f taps
        {{5, 5}, {16, 16}, pxlDt16s, pxlDt16s, 1, 767, 991},       // 16s C1 keeps its 16s taps
        {{5, 5}, {3, 3}, pxlDt32f, pxlDt32f, 1, 831, 319},         // the mask covers the region: one buffer
        {{2, 2}, {4, 4}, pxlDt8u, pxlDt32f, 1, 319, 127},          // a 2-wide mask leaves room for 2 columns
    };
    for (const Case& c : cases) {
        int spec = -1, buffer = -1;
        ASSERT_EQ(pxliFilterBorderGetSize(c.kernel, c.roi, c.data, c.taps, c.channels, &spec, &buffer), pxlStatusOk);
        EXPECT_EQ(spec, c.spec) << c.kernel.width << "x" << c.kernel.height << " data " << c.data << " C" << c.channels;
        EXPECT_EQ(buffer, c.buffer) << c.kernel.width << "x" << c.kernel.height << " data " << c.data << " C" << c.channels;
    }
    int spec = 1, buffer = 1;
    EXPECT_EQ(pxliFilterBorderGetSize({40000, 3}, {30000, 30000}, pxlDt8u, pxlDt16s, 4, &spec, &buffer), pxlStatusSizeOverflow);
    EXPECT_EQ(buffer, 0);
}

TEST(FilterBorder, CheckOrders)
{
    const PxliSize roi{9, 7}, kern{3, 3};
    int specSize = 0, bufSize = 0;
    ASSERT_EQ(pxliFilterBorderGetSize(kern, roi, pxlDt16u, pxlDt32f, 3, &specSize, &bufSize), pxlStatusOk);
    Spec spec(specSize);
    const float taps[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
    ASSERT_EQ(pxliFilterBorderInit_32f(taps, kern, pxlDt16u, 3, 1, spec.get()), pxlStatusOk);
    GuardedImage<Pxl16u> src(roi.width, roi.height, 3), dst(roi.width, roi.height, 3);
    GuardedBuffer work(bufSize, 1, 0, 64, 0);
    const Pxl16u value[3] = {1, 2, 3};
    struct Args {
        const Pxl16u* src;
        int srcStep;
        Pxl16u* dst;
        int dstStep;
        PxliSize roi;
        int border;
        const Pxl16u* value;
        const PxliFilterBorderSpec* spec;
        Pxl8u* buffer;
    };
    const Args valid{src.data(), src.step(), dst.data(), dst.step(), roi, pxlBorderConstant, value, spec.get(), work.base()};
    pxltest::expectCheckOrder<Args>(
        valid,
        {{"null source", pxlStatusNullPointer, [](Args& a) { a.src = nullptr; }},
         {"null buffer", pxlStatusNullPointer, [](Args& a) { a.buffer = nullptr; }},
         {"null value of a word above 255", pxlStatusNullPointer, [](Args& a) { a.value = nullptr, a.border = 256 + 6; }},
         {"width 0", pxlStatusBadSize, [](Args& a) { a.roi.width = 0; }},
         {"source step 0", pxlStatusBadStep, [](Args& a) { a.srcStep = 0; }},
         {"destination step short of a row", pxlStatusBadStep, [](Args& a) { a.dstStep = 9 * 6 - 2; }},
         {"word 2", pxlStatusBadBorder, [](Args& a) { a.border = 2; }},
         {"word 16", pxlStatusBadBorder, [](Args& a) { a.border = 16; }}},
        [](const Args& a) {
            return pxliFilterBorder_16u_C3R(a.src, a.srcStep, a.dst, a.dstStep, a.roi, a.border, a.value, a.spec, a.buffer);
        },
        {&dst, &work});
    // The value is read only for the constant kind; 246 still needs it.
    EXPECT_EQ(pxliFilterBorder_16u_C3R(src.data(), src.step(), dst.data(), dst.step(), roi, pxlBorderMirror | 0x30, nullptr, spec.get(),
                                       work.base()),
              pxlStatusOk);
    EXPECT_EQ(pxliFilterBorder_16u_C3R(src.data(), src.step(), dst.data(), dst.step(), roi, 246, nullptr, spec.get(), work.base()),
              pxlStatusNullPointer);

    int s = 0, b = 0;
    EXPECT_EQ(pxliFilterBorderGetSize({0, 3}, roi, 99, 99, 9, nullptr, nullptr), pxlStatusBadSize);
    EXPECT_EQ(pxliFilterBorderGetSize(kern, roi, 99, pxlDt16s, 9, nullptr, nullptr), pxlStatusBadDataType);
    EXPECT_EQ(pxliFilterBorderGetSize(kern, roi, pxlDt8u, pxlDt8u, 9, nullptr, nullptr), pxlStatusBadDataType);
    EXPECT_EQ(pxliFilterBorderGetSize(kern, roi, pxlDt8u, pxlDt16s, 5, nullptr, nullptr), pxlStatusBadChannel);
    EXPECT_EQ(pxliFilterBorderGetSize(kern, roi, pxlDt8u, pxlDt16s, 2, &s, nullptr), pxlStatusNullPointer);

    const Pxl16s it[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
    Spec rec(1024);
    EXPECT_EQ(pxliFilterBorderInit_16s(nullptr, {0, 0}, 0, 99, 9, 7, rec.get()), pxlStatusNullPointer);
    EXPECT_EQ(pxliFilterBorderInit_16s(it, {0, 3}, 0, 99, 9, 7, rec.get()), pxlStatusBadSize);
    EXPECT_EQ(pxliFilterBorderInit_16s(it, kern, 0, pxlDt32f, 9, 7, rec.get()), pxlStatusBadDataType);
    EXPECT_EQ(pxliFilterBorderInit_16s(it, kern, 0, pxlDt8u, 0, 7, rec.get()), pxlStatusBadChannel);
    EXPECT_EQ(pxliFilterBorderInit_16s(it, kern, 0, pxlDt8u, 1, 3, rec.get()), pxlStatusBadRoundMode);
    EXPECT_EQ(pxliFilterBorderInit_16s(it, kern, 0, pxlDt8u, 1, 0x10003, rec.get()), pxlStatusBadRoundMode);
    EXPECT_EQ(pxliFilterBorderInit_16s(it, kern, 0, pxlDt8u, 1, 2, rec.get()), pxlStatusZeroDivisor);
    EXPECT_EQ(pxliFilterBorderInit_32f(taps, kern, pxlDt16s, 1, 19, rec.get()), pxlStatusBadRoundMode);
    EXPECT_EQ(pxliFilterBorderInit_32f(taps, kern, 2, 1, 19, rec.get()), pxlStatusBadDataType);
    (void)b;
}

// The hint bit warns where no integer kernel takes it; SetMode refuses offsets that the form
// cannot take and leaves the record as it was.
TEST(FilterBorder, HintsAndOffsets)
{
    const PxliSize kern{3, 3}, roi{12, 5};
    const Pxl16s it[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
    const float ft[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
    Spec rec(2048);
    EXPECT_EQ(pxliFilterBorderInit_16s(it, kern, 16, pxlDt8u, 3, 1 | pxlFilterModeHint, rec.get()), pxlStatusOk);
    EXPECT_EQ(pxliFilterBorderInit_16s(it, kern, 16, pxlDt16s, 1, 17, rec.get()), pxlStatusOk);
    EXPECT_EQ(pxliFilterBorderInit_16s(it, kern, 16, pxlDt16u, 1, 1 | pxlFilterModeHint, rec.get()), pxlStatusWarnHintIgnored);
    EXPECT_EQ(pxliFilterBorderInit_16s(it, kern, 16, pxlDt16s, 3, 1 | pxlFilterModeHint, rec.get()), pxlStatusWarnHintIgnored);
    EXPECT_EQ(pxliFilterBorderInit_32f(ft, kern, pxlDt8u, 1, 2 | pxlFilterModeHint, rec.get()), pxlStatusWarnHintIgnored);

    // 16s data with 16s taps, and 32f taps of 16s and 32f data, take no offset.
    const struct {
        bool integer;
        PxlDataType data;
        PxlStatus status;
    } forms[] = {{true, pxlDt16s, pxlStatusUnsupportedMode}, {false, pxlDt16s, pxlStatusUnsupportedMode},
                 {false, pxlDt32f, pxlStatusUnsupportedMode}, {true, pxlDt8u, pxlStatusOk},
                 {false, pxlDt8u, pxlStatusOk},               {true, pxlDt16u, pxlStatusOk}};
    for (const auto& f : forms) {
        if (f.integer) ASSERT_GE(pxliFilterBorderInit_16s(it, kern, 3, f.data, 1, 0, rec.get()), 0);
        else ASSERT_GE(pxliFilterBorderInit_32f(ft, kern, f.data, 1, 0, rec.get()), 0);
        EXPECT_EQ(pxliFilterBorderSetMode(0, 0, rec.get()), pxlStatusOk);
        const std::vector<uint8_t> before = rec.bytes;
        EXPECT_EQ(pxliFilterBorderSetMode(1, 7, rec.get()), f.status) << "data " << f.data;
        if (f.status != pxlStatusOk) {
            EXPECT_TRUE(before == rec.bytes);
        }
    }

    // An offset on float taps of 8u data is kept but not added; on integer taps it is added before
    // the division, so with divisor 3 an offset of 30 adds 30 / 3 * 3 = 30 to the sum.
    int specSize = 0, bufSize = 0;
    ASSERT_EQ(pxliFilterBorderGetSize(kern, roi, pxlDt8u, pxlDt16s, 1, &specSize, &bufSize), pxlStatusOk);
    std::vector<uint8_t> work(static_cast<std::size_t>(bufSize));
    GuardedImage<Pxl8u> src(roi.width, roi.height, 1), a(roi.width, roi.height, 1), b(roi.width, roi.height, 1);
    src.fill(20);
    const Pxl16s box[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    ASSERT_EQ(pxliFilterBorderInit_16s(box, kern, 9, pxlDt8u, 1, 1, rec.get()), pxlStatusOk);
    ASSERT_EQ(pxliFilterBorderSetMode(0, 30, rec.get()), pxlStatusOk);
    ASSERT_EQ(pxliFilterBorder_8u_C1R(src.data(), src.step(), a.data(), a.step(), roi, pxlBorderReplicate, nullptr, rec.get(), work.data()),
              pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(a, [](int, int, int) { return 50; }));
    const float fbox[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    ASSERT_EQ(pxliFilterBorderInit_32f(fbox, kern, pxlDt8u, 1, 1, rec.get()), pxlStatusOk);
    ASSERT_EQ(pxliFilterBorderSetMode(0, 30, rec.get()), pxlStatusOk);
    ASSERT_EQ(pxliFilterBorder_8u_C1R(src.data(), src.step(), b.data(), b.step(), roi, pxlBorderReplicate, nullptr, rec.get(), work.data()),
              pxlStatusOk);
    EXPECT_TRUE(pxltest::matchesEach(b, [](int, int, int) { return 180; }));
}

// The older 64f filter: the caller's pixels around the region, the anchor anywhere.
TEST(Filter64f, MatchesTheModel)
{
    Rng rng(5);
    for (int n = 0; n < 60; ++n) {
        const PxliSize kern{rng.uniformInt(1, 6), rng.uniformInt(1, 6)}, roi{rng.uniformInt(1, 300), rng.uniformInt(1, 5)};
        const PxliPoint anchor{rng.uniformInt(0, kern.width - 1), rng.uniformInt(0, kern.height - 1)};
        GuardedImage<Pxl64f> src(roi.width + kern.width - 1, roi.height + kern.height - 1, 1), dst(roi.width, roi.height, 1);
        for (int y = 0; y < src.height(); ++y)
            for (int x = 0; x < src.width(); ++x) src.at(x, y) = rng.any<double>();
        std::vector<double> k(static_cast<std::size_t>(kern.width * kern.height));
        for (double& t : k) t = rng.any<double>();
        int size = -1;
        ASSERT_EQ(pxliFilterGetBufSize_64f_C1R(kern, roi.width, &size), pxlStatusOk);
        EXPECT_EQ(size, 0);
        ASSERT_EQ(pxliFilter_64f_C1R(&src.at(anchor.x, anchor.y), src.step(), dst.data(), dst.step(), roi, k.data(), kern, anchor, nullptr),
                  pxlStatusOk);
        EXPECT_TRUE(pxltest::matchesEach(dst, [&](int x, int y, int) {
            double s = 0;
            for (int r = 0; r < kern.height; ++r)
                for (int q = 0; q < kern.width; ++q) s += k[r * kern.width + q] * src.at(x + q, y + r);
            return s;
        }));
    }
    GuardedImage<Pxl64f> src(8, 8, 1), dst(4, 4, 1);
    const double k[4] = {1, 2, 3, 4};
    EXPECT_EQ(pxliFilter_64f_C1R(src.data(), src.step(), dst.data(), dst.step(), {4, 4}, nullptr, {2, 2}, {0, 0}, nullptr), pxlStatusNullPointer);
    EXPECT_EQ(pxliFilter_64f_C1R(src.data(), src.step(), dst.data(), dst.step(), {4, 0}, k, {2, 2}, {0, 0}, nullptr), pxlStatusBadSize);
    EXPECT_EQ(pxliFilter_64f_C1R(src.data(), 32, dst.data(), dst.step(), {4, 4}, k, {2, 2}, {0, 0}, nullptr), pxlStatusBadStep);
    int size = 0;
    EXPECT_EQ(pxliFilterGetBufSize_64f_C1R({2, 2}, 0, &size), pxlStatusBadSize);
    EXPECT_EQ(pxliFilterGetBufSize_64f_C1R({2, 2}, 4, nullptr), pxlStatusNullPointer);
}

}  // namespace
