// Histograms, counting in a range and the Otsu threshold against reference models written from
// the rules: levels computed from their definition (uniform steps in float, integer levels
// truncated and custom ones raised to the next integer), each sample placed by comparing it with
// the levels, the Otsu criterion evaluated in extended precision; random images with each type's
// extremes, records at odd addresses and exact-size work buffers inside guard bands, and the
// orders of checks.
#include "pxltest.hpp"

#include <array>

using namespace pxltest;

namespace {

template <class T> PxlStatus histogramCall(int n, const T* s, int ss, PxliSize r, Pxl32s* const* h, const PxliHistogramSpec* sp, Pxl8u* b);
#define PXLT_HIST(T, t)                                                                                                        \
    template <>                                                                                                                \
    PxlStatus histogramCall<T>(int n, const T* s, int ss, PxliSize r, Pxl32s* const* h, const PxliHistogramSpec* sp, Pxl8u* b) \
    {                                                                                                                          \
        return n == 1 ? pxliHistogram_##t##_C1R(s, ss, r, h ? h[0] : nullptr, sp, b)                                          \
                      : n == 3 ? pxliHistogram_##t##_C3R(s, ss, r, h, sp, b) : pxliHistogram_##t##_C4R(s, ss, r, h, sp, b); \
    }
PXLT_HIST(Pxl8u, 8u)
PXLT_HIST(Pxl16u, 16u)
PXLT_HIST(Pxl16s, 16s)
PXLT_HIST(Pxl32f, 32f)

// The levels a record holds, from the rules: floats as given for 32f data; integers otherwise.
int64_t truncated(float v)
{
    if (!(v > -2147483648.0f)) return INT32_MIN;
    if (v >= 2147483648.0f) return INT32_MAX;
    return static_cast<int64_t>(v);
}
template <class T> std::vector<double> uniformLevels(float lo, float hi, int n)
{
    const float step = (hi - lo) / static_cast<float>(n - 1);
    std::vector<double> lv(n);
    for (int i = 0; i < n; ++i) {
        const float v = i == 0 ? lo : i == n - 1 ? hi : static_cast<float>(i) * step + lo;
        lv[i] = std::is_same_v<T, Pxl32f> ? double(v) : double(truncated(v));
    }
    return lv;
}
template <class T> std::vector<double> customLevels(const std::vector<float>& given)
{
    std::vector<double> lv;
    for (float v : given) {
        int64_t k = truncated(v);
        if (double(k) < v && k < INT32_MAX) ++k;
        lv.push_back(std::is_same_v<T, Pxl32f> ? double(v) : double(k));
    }
    return lv;
}
// Bin i holds level[i] <= s < level[i + 1]; NaN is in none.
template <class T> std::vector<Pxl32s> referenceBins(const GuardedImage<T>& img, int c, const std::vector<double>& lv)
{
    std::vector<Pxl32s> bins(lv.size() - 1, 0);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const double s = img.at(x, y, c);
            for (std::size_t i = 0; i + 1 < lv.size(); ++i)
                if (lv[i] <= s && s < lv[i + 1]) ++bins[i];
        }
    return bins;
}

// A record in a guarded buffer at an odd address, and the exact work buffer the type asks for.
struct Record {
    GuardedBuffer spec, work;
    PxliHistogramSpec* record() { return reinterpret_cast<PxliHistogramSpec*>(spec.base()); }
    Pxl8u* buffer() { return work.rowBytes() ? work.base() : nullptr; }
};
Record makeRecord(PxlDataType type, PxliSize roi, const std::vector<int>& nLevels)
{
    int specSize = -1, bufferSize = -1;
    EXPECT_EQ(pxliHistogramGetBufferSize(type, roi, nLevels.data(), static_cast<int>(nLevels.size()), 1, &specSize, &bufferSize),
              pxlStatusOk);
    return Record{GuardedBuffer(specSize, 1, 0, 64, 3), GuardedBuffer(bufferSize, 1, 0, 64, 0)};
}

// Counts img into bins of the record and compares with the reference for the expected levels,
// both the counts and the levels the record gives back.
template <class T>
void expectCounts(const GuardedImage<T>& img, Record& s, const std::vector<std::vector<double>>& levels, const std::string& what)
{
    const int n = img.channels();
    std::vector<GuardedImage<Pxl32s>> hist;
    std::vector<GuardedImage<Pxl32f>> got;
    for (int c = 0; c < n; ++c) {
        hist.emplace_back(static_cast<int>(levels[c].size()) - 1, 1);
        hist.back().fill(-7);
        got.emplace_back(static_cast<int>(levels[c].size()), 1);
    }
    Pxl32s* h[4];
    Pxl32f* g[4];
    for (int c = 0; c < n; ++c) h[c] = hist[c].data(), g[c] = got[c].data();
    ASSERT_EQ(histogramCall<T>(n, img.data(), img.step(), img.size(), h, s.record(), s.buffer()), pxlStatusOk) << what;
    ASSERT_EQ(pxliHistogramGetLevels(s.record(), g), pxlStatusOk) << what;
    EXPECT_TRUE(s.work.guardsIntact() && s.spec.guardsIntact()) << what;
    for (int c = 0; c < n; ++c) {
        const auto want = referenceBins(img, c, levels[c]);
        EXPECT_TRUE(matchesEach(hist[c], [&](int x, int, int) { return want[x]; })) << what << ", channel " << c;
        EXPECT_TRUE(matchesEach(got[c], [&](int x, int, int) { return static_cast<float>(levels[c][x]); }))
            << what << ", levels of channel " << c;
    }
}

template <class T> class Histograms : public ::testing::Test {};
using HistogramTypes = ::testing::Types<Pxl8u, Pxl16u, Pxl16s, Pxl32f>;
TYPED_TEST_SUITE(Histograms, HistogramTypes);

TYPED_TEST(Histograms, UniformAndCustomLevelsMatchTheModel)
{
    using T = TypeParam;
    constexpr PxlDataType type = pxltest::typeCode<T>();
    constexpr bool isFloat = std::is_same_v<T, Pxl32f>;
    Rng rng;
    const double lowest = isFloat ? -1e4 : double(std::numeric_limits<T>::lowest());
    const double highest = isFloat ? 1e4 : double(std::numeric_limits<T>::max());
    for (int n : {1, 3, 4})
        for (int round = 0; round < 6; ++round) {
            auto img = randomImage<T>(rng.uniformInt(1, 70), rng.uniformInt(1, 9), n, rng);
            // Some samples well inside the levels, so that every bin has its share.
            for (int y = 0; y < img.height(); ++y)
                for (int i = 0; i < img.samplesPerRow(); ++i)
                    if (rng.chance(0.5)) img.row(y)[i] = static_cast<T>(rng.uniformInt(int(std::max(lowest, -40000.0)), int(std::min(highest, 70000.0))) / (isFloat ? 7.0 : 1.0));
            // Level counts on either side of the float search's switch, and ranges past the type's.
            std::vector<int> counts(n);
            std::array<float, 4> lo{}, hi{};
            std::vector<std::vector<double>> uni(n), cus(n);
            std::vector<std::vector<float>> given(n);
            for (int c = 0; c < n; ++c) {
                counts[c] = std::array{2, 5, 30, 31, 257}[static_cast<std::size_t>(rng.uniformInt(0, 4))];
                const int span = int(std::min(highest - lowest, 40000.0));
                lo[c] = static_cast<float>(rng.uniformInt(-1, 1) == 0 ? lowest : lowest - 10 + rng.uniformInt(0, span / 2));
                hi[c] = static_cast<float>(rng.chance(0.5) ? highest + 1 : lo[c] + float(counts[c]) * rng.uniformInt(1, 300));
                uni[c] = uniformLevels<T>(lo[c], hi[c], counts[c]);
                float v = lo[c];
                for (int i = 0; i < counts[c]; ++i) {
                    given[c].push_back(v);
                    v += static_cast<float>(rng.uniformInt(1, 4000)) / 8.0f;
                }
                cus[c] = customLevels<T>(given[c]);
            }
            const std::string what = std::string(token<T>()) + " with " + std::to_string(n) + " channels, round " + std::to_string(round);
            Record s = makeRecord(type, img.size(), counts);
            const PxlStatus st = pxliHistogramUniformInit(type, lo.data(), hi.data(), counts.data(), n, s.record());
            bool fine = true;
            for (int c = 0; c < n; ++c) fine = fine && (hi[c] - lo[c]) / static_cast<float>(counts[c] - 1) >= 1.0f;
            EXPECT_EQ(st, isFloat || fine ? pxlStatusOk : pxlStatusWarnNoOperation) << what;
            expectCounts(img, s, uni, what + ", uniform");
            const Pxl32f* tables[4];
            for (int c = 0; c < n; ++c) tables[c] = given[c].data();
            ASSERT_EQ(pxliHistogramInit(type, tables, counts.data(), n, s.record()), pxlStatusOk) << what;
            expectCounts(img, s, cus, what + ", custom");
        }
}

TYPED_TEST(Histograms, CheckOrders)
{
    using T = TypeParam;
    constexpr PxlDataType type = pxltest::typeCode<T>();
    constexpr bool isFloat = std::is_same_v<T, Pxl32f>;
    GuardedImage<T> img(5, 3, 3);
    const std::vector<int> counts{4, 4, 4};
    const float lo[3] = {0, 0, 0}, hi[3] = {9, 9, 9};
    Record s = makeRecord(type, img.size(), counts);
    ASSERT_EQ(pxliHistogramUniformInit(type, lo, hi, counts.data(), 3, s.record()), pxlStatusOk);
    GuardedImage<Pxl32s> h0(3, 1), h1(3, 1), h2(3, 1);
    struct Args {
        const T* src;
        int step;
        PxliSize roi;
        Pxl32s* hist[3];
        const PxliHistogramSpec* spec;
        Pxl8u* buffer;
    };
    const Args valid{img.data(), img.step(), img.size(), {h0.data(), h1.data(), h2.data()}, s.record(), s.buffer()};
    // A record of another type or channel count, and one whose Init failed.
    Record other = makeRecord(isFloat ? pxlDt8u : pxlDt32f, img.size(), counts);
    ASSERT_EQ(pxliHistogramUniformInit(isFloat ? pxlDt8u : pxlDt32f, lo, hi, counts.data(), 3, other.record()), pxlStatusOk);
    Record failed = makeRecord(type, img.size(), counts);
    ASSERT_EQ(pxliHistogramUniformInit(type, lo, hi, counts.data(), 3, failed.record()), pxlStatusOk);
    ASSERT_EQ(pxliHistogramUniformInit(type, hi, lo, counts.data(), 3, failed.record()), pxlStatusBadLimits);
    using F = Fault<Args>;
    std::vector<F> faults{
        {"null source", pxlStatusNullPointer, [](Args& a) { a.src = nullptr; }},
        {"null channel table", pxlStatusNullPointer, [](Args& a) { a.hist[1] = nullptr; }},
        {"null record", pxlStatusNullPointer, [](Args& a) { a.spec = nullptr; }},
        {"width 0", pxlStatusBadSize, [](Args& a) { a.roi.width = 0; }},
        {"step below the row", pxlStatusBadStep, [&](Args& a) { a.step = 5 * 3 * int(sizeof(T)) - 1; }},
        {"record of a failed Init", pxlStatusBadArgument, [&](Args& a) { a.spec = failed.record(); }},
    };
    if (!isFloat) faults.insert(faults.begin() + 3, F{"null buffer", pxlStatusNullPointer, [](Args& a) { a.buffer = nullptr; }});
    const auto call = [](const Args& a) { return histogramCall<T>(3, a.src, a.step, a.roi, a.hist, a.spec, a.buffer); };
    expectCheckOrder<Args>(valid, faults, call, {&h0, &h1, &h2});
    Args wrong = valid;
    wrong.spec = other.record();
    EXPECT_EQ(call(wrong), pxlStatusBadArgument);
    Pxl32f l0[4], l1[4], l2[4];
    Pxl32f* levels[3] = {l0, l1, l2};
    EXPECT_EQ(pxliHistogramGetLevels(failed.record(), levels), pxlStatusBadArgument);
    EXPECT_EQ(pxliHistogramGetLevels(nullptr, levels), pxlStatusNullPointer);
    EXPECT_EQ(pxliHistogramGetLevels(s.record(), nullptr), pxlStatusNullPointer);
    if (isFloat) {
        Args noBuffer = valid;
        noBuffer.buffer = nullptr;
        EXPECT_EQ(call(noBuffer), pxlStatusOk);
    }
}

TEST(Histogram, BufferSizesAndCheckOrder)
{
    const int one[1] = {5}, three[3] = {2, 10, 300}, four[4] = {2, 2, 2, 1000};
    struct Case {
        PxlDataType type;
        int bytesPerChannel;
    };
    for (const Case k : {Case{pxlDt8u, 1024}, Case{pxlDt16u, 262144}, Case{pxlDt16s, 262144}, Case{pxlDt32f, 0}}) {
        int spec = 0, buffer = 0;
        ASSERT_EQ(pxliHistogramGetBufferSize(k.type, {3, 2}, one, 1, 1, &spec, &buffer), pxlStatusOk);
        EXPECT_EQ(spec, 64 + 4 * 5);
        EXPECT_EQ(buffer, k.bytesPerChannel);
        ASSERT_EQ(pxliHistogramGetBufferSize(k.type, {3, 2}, three, 3, 0, &spec, &buffer), pxlStatusOk);
        EXPECT_EQ(spec, 64 + 4 * 312);
        EXPECT_EQ(buffer, 3 * k.bytesPerChannel);
        ASSERT_EQ(pxliHistogramGetBufferSize(k.type, {3, 2}, four, 4, 1, &spec, &buffer), pxlStatusOk);
        EXPECT_EQ(spec, 64 + 4 * 1006);
        EXPECT_EQ(buffer, 4 * k.bytesPerChannel);
    }
    GuardedImage<int> out(2, 1);
    struct Args {
        PxlDataType type;
        PxliSize roi;
        const int* levels;
        int channels;
        int* spec;
        int* buffer;
    };
    const int bad[3] = {3, 1, 3};
    const Args valid{pxlDt16s, {4, 4}, three, 3, &out.data()[0], &out.data()[1]};
    expectCheckOrder<Args>(valid,
                           {{"null levels", pxlStatusNullPointer, [](Args& a) { a.levels = nullptr; }},
                            {"null size", pxlStatusNullPointer, [](Args& a) { a.buffer = nullptr; }},
                            {"height 0", pxlStatusBadSize, [](Args& a) { a.roi.height = 0; }},
                            {"2 channels", pxlStatusBadChannelCount, [](Args& a) { a.channels = 2; }},
                            {"1 level", pxlStatusBadHistogramLevels, [&](Args& a) { a.levels = bad; }},
                            {"type 2", pxlStatusBadDataType, [](Args& a) { a.type = PxlDataType(2); }}},
                           [](const Args& a) { return pxliHistogramGetBufferSize(a.type, a.roi, a.levels, a.channels, 0, a.spec, a.buffer); },
                           {&out});
}

TEST(Histogram, InitCheckOrders)
{
    // Statuses only: a failed Init clears the record's identity, so something is written.
    alignas(4) unsigned char record[128];
    auto* spec = reinterpret_cast<PxliHistogramSpec*>(record);
    const float lo[3] = {0, 0, 0}, hi[3] = {10, 10, 10}, inverted[3] = {0, 10, 0};
    const int counts[3] = {3, 3, 3}, few[3] = {3, 3, 1};
    const float t0[3] = {1, 2, 3}, t1[3] = {1, 1, 3};
    const Pxl32f* tables[3] = {t0, t0, t0};
    const Pxl32f* flat[3] = {t0, t0, t1};
    const Pxl32f* missing[3] = {t0, nullptr, t0};
    struct Args {
        PxlDataType type;
        const float* lo;
        const float* hi;
        const Pxl32f* const* tables;
        const int* counts;
        int channels;
        PxliHistogramSpec* spec;
    };
    const Args valid{pxlDt16u, lo, hi, tables, counts, 3, spec};
    auto expectOrder = [&](const std::vector<Fault<Args>>& faults, auto call) {
        for (std::size_t i = 0; i < faults.size(); ++i)
            for (std::size_t j = i; j < faults.size(); ++j) {
                Args a = valid;
                faults[j].apply(a);
                faults[i].apply(a);
                EXPECT_EQ(call(a), faults[i].status) << faults[i].what << " with " << faults[j].what;
            }
    };
    using F = Fault<Args>;
    const F type{"type 4", pxlStatusBadDataType, [](Args& a) { a.type = PxlDataType(4); }};
    const F nullSpec{"null record", pxlStatusNullPointer, [](Args& a) { a.spec = nullptr; }};
    const F nullCounts{"null counts", pxlStatusNullPointer, [](Args& a) { a.counts = nullptr; }};
    const F channels{"5 channels", pxlStatusBadChannelCount, [](Args& a) { a.channels = 5; }};
    const F levels{"1 level", pxlStatusBadHistogramLevels, [&](Args& a) { a.counts = few; }};
    expectOrder({type, {"null lower", pxlStatusNullPointer, [](Args& a) { a.lo = nullptr; }}, nullSpec, nullCounts, channels, levels,
                 {"upper not above lower", pxlStatusBadLimits, [&](Args& a) { a.hi = inverted; }}},
                [](const Args& a) { return pxliHistogramUniformInit(a.type, a.lo, a.hi, a.counts, a.channels, a.spec); });
    expectOrder({type, {"null tables", pxlStatusNullPointer, [](Args& a) { a.tables = nullptr; }}, nullSpec, channels,
                 {"null channel table", pxlStatusNullPointer, [&](Args& a) { a.tables = missing; }}, levels,
                 {"levels not rising", pxlStatusBadLimits, [&](Args& a) { a.tables = flat; }}},
                [](const Args& a) { return pxliHistogramInit(a.type, a.tables, a.counts, a.channels, a.spec); });
}

TEST(Histogram, ExactCases)
{
    // Levels from -10 to 300 over 8u: each sample in its proper bin, the top level in none.
    GuardedImage<Pxl8u> img(256, 1);
    for (int x = 0; x < 256; ++x) img.at(x, 0) = Pxl8u(x);
    const std::vector<float> given{-10.0f, 0.5f, 1.0f, 100.0f, 255.0f, 300.0f};
    Record s = makeRecord(pxlDt8u, img.size(), {6});
    const Pxl32f* table = given.data();
    const int n = 6;
    ASSERT_EQ(pxliHistogramInit(pxlDt8u, &table, &n, 1, s.record()), pxlStatusOk);
    Pxl32s hist[5];
    ASSERT_EQ(pxliHistogram_8u_C1R(img.data(), img.step(), img.size(), hist, s.record(), s.buffer()), pxlStatusOk);
    // The integer levels are -10, 1, 1, 100, 255, 300: 0.5 moves up to 1, leaving an empty bin.
    EXPECT_EQ(std::vector<Pxl32s>(hist, hist + 5), (std::vector<Pxl32s>{1, 0, 99, 155, 1}));

    // A 32f sample on the top level is in no bin; one on a level is in the bin above it.
    const float lo = 0, hi = 4;
    const int five = 5;
    Record f = makeRecord(pxlDt32f, {4, 1}, {5});
    ASSERT_EQ(pxliHistogramUniformInit(pxlDt32f, &lo, &hi, &five, 1, f.record()), pxlStatusOk);
    const float samples[4] = {4.0f, 1.0f, std::nanf(""), -0.0f};
    Pxl32s bins[4];
    ASSERT_EQ(pxliHistogram_32f_C1R(samples, 16, {4, 1}, bins, f.record(), nullptr), pxlStatusOk);
    EXPECT_EQ(std::vector<Pxl32s>(bins, bins + 4), (std::vector<Pxl32s>{1, 1, 0, 0}));

    // A step below 1 warns and still leaves a working record: levels 0, 0, 1, 1, 2 over 8u.
    const float top = 2;
    Record w = makeRecord(pxlDt8u, {4, 1}, {5});
    ASSERT_EQ(pxliHistogramUniformInit(pxlDt8u, &lo, &top, &five, 1, w.record()), pxlStatusWarnNoOperation);
    const Pxl8u bytes[4] = {0, 1, 1, 2};
    ASSERT_EQ(pxliHistogram_8u_C1R(bytes, 4, {4, 1}, bins, w.record(), w.buffer()), pxlStatusOk);
    EXPECT_EQ(std::vector<Pxl32s>(bins, bins + 4), (std::vector<Pxl32s>{0, 1, 0, 2}));
}

// ---- Counting in a range -----------------------------------------------------------------------

template <class T> PxlStatus countCall(int L, const T* s, int ss, PxliSize r, int* out, const T* lo, const T* hi);
#define PXLT_COUNT(T, t)                                                                                        \
    template <> PxlStatus countCall<T>(int L, const T* s, int ss, PxliSize r, int* out, const T* lo, const T* hi) \
    {                                                                                                           \
        return L == 1 ? pxliCountInRange_##t##_C1R(s, ss, r, out, *lo, *hi)                                     \
                      : L == 3 ? pxliCountInRange_##t##_C3R(s, ss, r, out, lo, hi) : pxliCountInRange_##t##_AC4R(s, ss, r, out, lo, hi); \
    }
PXLT_COUNT(Pxl8u, 8u)
PXLT_COUNT(Pxl32f, 32f)

template <class T> class CountInRange : public ::testing::Test {};
using CountTypes = ::testing::Types<Pxl8u, Pxl32f>;
TYPED_TEST_SUITE(CountInRange, CountTypes);

TYPED_TEST(CountInRange, MatchesTheModelAndChecksInOrder)
{
    using T = TypeParam;
    Rng rng;
    for (int L : {1, 3, 4})
        for (int round = 0; round < 20; ++round) {
            auto img = randomImage<T>(rng.uniformInt(1, 50), rng.uniformInt(1, 6), L, rng, 0.25);
            T lo[3], hi[3];
            for (int c = 0; c < 3; ++c) {
                // Bounds drawn from the image's own samples, so that samples fall on them.
                lo[c] = img.at(rng.uniformInt(0, img.width() - 1), 0, c);
                hi[c] = img.at(rng.uniformInt(0, img.width() - 1), img.height() - 1, c);
                if (!(lo[c] <= hi[c])) std::swap(lo[c], hi[c]);
                if (!(lo[c] <= hi[c])) lo[c] = hi[c] = T(1);  // NaN bounds are not the test here
            }
            int got[3] = {-1, -1, -1};
            ASSERT_EQ(countCall<T>(L, img.data(), img.step(), img.size(), got, lo, hi), pxlStatusOk);
            for (int c = 0; c < (L == 1 ? 1 : 3); ++c) {
                int want = 0;
                for (int y = 0; y < img.height(); ++y)
                    for (int x = 0; x < img.width(); ++x) want += lo[c] <= img.at(x, y, c) && img.at(x, y, c) <= hi[c];
                EXPECT_EQ(got[c], want) << token<T>() << " layout " << L << " channel " << c;
            }
        }
    GuardedImage<T> img(4, 2, 3);
    GuardedImage<int> out(3, 1);
    struct Args {
        const T* src;
        int step;
        PxliSize roi;
        int* out;
        T lo[3], hi[3];
    };
    const Args valid{img.data(), img.step(), img.size(), out.data(), {T(0), T(0), T(0)}, {T(5), T(5), T(5)}};
    expectCheckOrder<Args>(valid,
                           {{"null source", pxlStatusNullPointer, [](Args& a) { a.src = nullptr; }},
                            {"null counts", pxlStatusNullPointer, [](Args& a) { a.out = nullptr; }},
                            {"step 0", pxlStatusBadStep, [](Args& a) { a.step = 0; }},
                            {"width -1", pxlStatusBadSize, [](Args& a) { a.roi.width = -1; }},
                            {"upper below lower", pxlStatusBadLimits, [](Args& a) { a.lo[2] = T(6); }}},
                           [](const Args& a) { return countCall<T>(3, a.src, a.step, a.roi, a.out, a.lo, a.hi); }, {&out});
}

// ---- Otsu ----------------------------------------------------------------------------------------

// The threshold from its definition, in extended precision over a histogram of doubles.
int otsuModel(const GuardedImage<Pxl8u>& img)
{
    double hist[256] = {};
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) hist[img.at(x, y)] += 1;
    const long double eps = 1.1920928955078125e-07L;
    long double total = 0, moment = 0;
    for (int i = 0; i < 256; ++i) total += hist[i], moment += hist[i] * (i + 0.5L);
    const long double inv = total > eps ? 1 / total : 0, mean = moment * inv;
    long double w0 = 0, m0 = 0, best = 0, crit = 0;
    for (int i = 0; i < 256; ++i) {
        w0 += inv * hist[i];
        const long double w1 = 1 - w0;
        if (std::min(w0, w1) < eps || std::max(w0, w1) > 0.9999998807907104L) continue;
        m0 += inv * hist[i] * (i + 0.5L);
        const long double d = w1 * m0 - (mean - m0) * w0, q = d * d / (w1 * w0);
        if (q > crit) crit = q, best = i + 0.5L;
    }
    return static_cast<int>(best);
}

TEST(Otsu, MatchesTheModel)
{
    Rng rng;
    for (int round = 0; round < 40; ++round) {
        GuardedImage<Pxl8u> img(rng.uniformInt(1, 300), rng.uniformInt(1, 40));
        // Two or three populations of random spread, or noise over the whole range.
        const int a = rng.uniformInt(0, 255), b = rng.uniformInt(0, 255), spread = rng.uniformInt(0, 40);
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                img.at(x, y) = round % 4 == 3 ? Pxl8u(rng.uniformInt(0, 255))
                                              : Pxl8u(std::clamp((rng.chance(0.4) ? a : b) + rng.uniformInt(-spread, spread), 0, 255));
        Pxl8u t = 0;
        ASSERT_EQ(pxliComputeThreshold_Otsu_8u_C1R(img.data(), img.step(), img.size(), &t), pxlStatusOk);
        EXPECT_EQ(t, otsuModel(img)) << "round " << round;
    }
    // One value gives 0; two values give a threshold from the lower up to below the upper.
    GuardedImage<Pxl8u> img(10, 10);
    img.fill(200);
    Pxl8u t = 99;
    ASSERT_EQ(pxliComputeThreshold_Otsu_8u_C1R(img.data(), img.step(), img.size(), &t), pxlStatusOk);
    EXPECT_EQ(t, 0);
    for (int x = 0; x < 10; ++x) img.at(x, 3) = 40;
    ASSERT_EQ(pxliComputeThreshold_Otsu_8u_C1R(img.data(), img.step(), img.size(), &t), pxlStatusOk);
    EXPECT_GE(t, 40);
    EXPECT_LT(t, 200);
    EXPECT_EQ(pxliComputeThreshold_Otsu_8u_C1R(nullptr, 0, {0, 1}, nullptr), pxlStatusNullPointer);
    EXPECT_EQ(pxliComputeThreshold_Otsu_8u_C1R(img.data(), 0, {0, 1}, &t), pxlStatusBadSize);
    EXPECT_EQ(pxliComputeThreshold_Otsu_8u_C1R(img.data(), 9, {10, 1}, &t), pxlStatusBadStep);
}

}  // namespace
