// The general filter with borders: its record, the size query, Init and SetMode, and the row
// kernels that the strip pipeline runs.
//
// Integer taps are exact integer sums. Float taps are defined by a sum held in extended precision;
// the kernels sum in double instead, which is as fast as the peers' float sums, and prove each
// result against the extended one: either the taps and the data leave nothing to round (every
// partial sum is a multiple of the taps' finest bit and below 2^53 of them, so both sums are exact),
// or the result is finished from both ends of an interval that holds the extended sum, and agrees.
// The rare pixels where the two ends differ are summed again in extended precision.
#include "filtering/filtering.hpp"
#include "filtering/rows.hpp"
#include "filtering/strips.hpp"

#include "exchange/border.hpp"
#include "exchange/rounding.hpp"
#include "frame/bind.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <bit>
#include <limits>
#include <type_traits>

namespace pxl::filt {

namespace {

// Kernel form and data type of a record.
enum Form { k8uInt = 0, k16sInt = 1, k8uFloat = 3, k16sFloat = 4, k16uFloat = 5, k32fFloat = 6 };
enum DivisorClass { kUnit = 0, kPowerOfTwo = 1, kOther = 2 };

// The record's head; the tables follow it at the offsets it holds (from the record's start).
struct Record {
    int32_t form, kernelWidth, kernelHeight, reserved;
    int32_t divisorClass, shift, half;
    float invDivisor, offsetScale;
    int32_t divisor;
    double divisorF64;
    int32_t shiftMask;
    float divisorF32;
    int32_t roundMode, offsetInt;
    float offsetF32;
    int32_t hint;
    uint32_t kernelInt, kernelF32, kernelPairs, kernelWide;
    int32_t pairsUsable, numChannels;
};
constexpr int kHeadBytes = 128;
static_assert(sizeof(Record) <= kHeadBytes && offsetof(Record, divisorF64) % 8 == 0);

constexpr int64_t round64(int64_t n) { return (n + 63) & ~int64_t{63}; }

template <class P> Record* recordAt(P* p)
{
    return alignedRecord<Record>(p);
}
template <class T> T* tableOf(const Record* r, uint32_t offset)
{
    return reinterpret_cast<T*>(reinterpret_cast<char*>(const_cast<Record*>(r)) + offset);
}

int64_t recordBytes(int kw, int kh, int tapBytes)
{
    return round64(int64_t{kw} * kh * tapBytes) + round64(int64_t{(kw + 1) & ~1} * 16 * kh) + kHeadBytes + 63;
}

// The rounding word: a code 0 to 2, with the hint bit (or its short form 16) beside it.
bool badRoundWord(int word)
{
    const int code = word & ~(pxlFilterModeHint | 16);
    return code < 0 || code > 2 || (word & pxlFilterModeHint && word & 16);
}
bool hintGiven(int word) { return (word & (pxlFilterModeHint | 16)) != 0; }

// 16s taps are answered as 32f taps where no integer row kernel serves the data and shape.
bool tapsAsFloat(PxlDataType dataType, int channels, int kw, int kh)
{
    return dataType == pxlDt16u ||
           (dataType == pxlDt16s && (channels == 3 || channels == 4 || kw == 1 || kh == 1 || (channels == 1 && kw < 3)));
}

// Scratch of the integer row kernels tuned by layout, as the size query reports it.
int64_t scratchBytes(PxlDataType dataType, PxlDataType kernelType, int channels, int64_t kw, int64_t kh, int64_t W)
{
    int64_t t = 0;
    if (kernelType == pxlDt16s && dataType == pxlDt8u && channels == 3) {
        t = kw == 1 ? (kh * 80 + ((W + 3) & ~3) * 8) * 3
            : kh == 1 ? ((W * 3 + 3 + kw * 4) & ~3) * 4
                      : ((kw * 4 * kh + 3 + W * 3) & ~3) * 4;
    } else if (kernelType == pxlDt16s && dataType == pxlDt8u && channels == 4) {
        t = kw == 1 ? (kh * 80 + ((W + 3) & ~3) * 8) * 4 : kh == 1 ? (kw + W) * 16 : (kw * kh + W) * 16;
    } else if (kernelType == pxlDt16s && dataType == pxlDt16s) {
        if (channels == 1) t = ((kw * 4 * kh + 3 + W) & ~3) * 4;
        else if (channels == 3) t = ((kw * 4 * kh + 31 + W * 3) & ~3) * 4;
        else if (channels == 4) t = (kw * kh + W) * 16 + 112;
    }
    return t ? (t + 191) & ~int64_t{63} : 0;
}

// The head common to both Inits: the kernel, the divisor's class and the rounding word.
void setHead(Record* r, int form, PxliSize kernel, int divisor, int channels, int roundWord)
{
    *r = Record{};
    r->form = form;
    r->kernelWidth = kernel.width;
    r->kernelHeight = kernel.height;
    r->numChannels = channels;
    r->roundMode = roundWord;
    r->divisor = divisor;
    r->divisorF32 = static_cast<float>(divisor);
    if (divisor == 1) {
        r->divisorClass = kUnit;
        r->invDivisor = r->offsetScale = 1.0f;
        r->divisorF64 = 1.0;
    } else if (divisor > 1 && (divisor & (divisor - 1)) == 0) {
        r->divisorClass = kPowerOfTwo;
        r->shift = std::countr_zero(static_cast<uint32_t>(divisor));
        r->half = 1 << (r->shift - 1);
        r->shiftMask = divisor - 1;
        r->invDivisor = r->offsetScale = std::ldexp(1.0f, -r->shift);
        r->divisorF64 = std::ldexp(1.0, -r->shift);
    } else {
        r->divisorClass = kOther;
        r->invDivisor = 1.0f / static_cast<float>(divisor);
        r->offsetScale = static_cast<float>(divisor);
        r->divisorF64 = divisor;
    }
}

// The float record of `dataType`: tap(i) gives the caller's taps in order, which are stored
// reversed, and for integer data also each repeated four times for wide registers.
template <class Tap> void fillFloatRecord(Record* r, PxliSize kernel, PxlDataType dataType, Tap tap)
{
    const int n = kernel.width * kernel.height;
    r->form = dataType == pxlDt8u ? k8uFloat : dataType == pxlDt16s ? k16sFloat : dataType == pxlDt16u ? k16uFloat : k32fFloat;
    r->roundMode &= 3;
    r->kernelF32 = kHeadBytes;
    float* taps = tableOf<float>(r, r->kernelF32);
    for (int i = 0; i < n; ++i) taps[n - 1 - i] = tap(i);
    if (dataType != pxlDt32f) {
        r->kernelWide = static_cast<uint32_t>(kHeadBytes + round64(int64_t{n} * 4));
        const float scale = dataType == pxlDt16s ? 1.0f / 65536.0f : 1.0f;
        float* wide = tableOf<float>(r, r->kernelWide);
        for (int i = 0; i < n; ++i) std::fill_n(wide + 4 * i, 4, taps[i] * scale);
    }
}

// ---------------------------------------------------------------------------------------------
// Row kernels. Each writes `height` rows of `width` pixels; `win` is the top-left sample of the
// first pixel's window. The samples of a row are one array: a tap k columns along is k * N
// samples along, so one body serves every layout and the channels never mix.

constexpr int kChunk = 256;  // output samples per pass, whose sums stay in the first-level cache

// The sum of a product that is exact in double (a float tap times a float or 16-bit sample) and
// a double: fusing them rounds once, as the separate product and sum do.
inline double mulAdd(double t, double x, double a)
{
#ifdef __FMA__
    return __builtin_fma(t, x, a);
#else
    return a + t * x;
#endif
}

// A sum plus a tap times a sample. Integer taps and samples both fit 16 bits (8u and 16s data),
// and their product is widened to the sum's type, wrapping where that type is narrower.
template <class A, class Tp, class S> inline A addProduct(A a, Tp t, S x)
{
    if constexpr (std::is_same_v<A, double>) return mulAdd(t, static_cast<double>(x), a);
    else return static_cast<A>(a + static_cast<A>(int32_t{static_cast<int16_t>(t)} * int32_t{static_cast<int16_t>(x)}));
}

// acc[j] += the products of one kernel row (taps t in the caller's order) along the samples s.
template <int KW, int N, class A, class S, class Tp>
inline void addRowFixed(A* acc, const S* s, const Tp* t, int len)
{
    for (int j = 0; j < len; ++j) {
        A a = acc[j];
        for (int k = 0; k < KW; ++k) a = addProduct(a, t[k], s[j + k * N]);
        acc[j] = a;
    }
}
template <int N, class A, class S, class Tp> inline void addRow(A* acc, const S* s, const Tp* t, int kw, int len)
{
    if (!withFixedWidth<5>(kw, [&](auto width) { addRowFixed<decltype(width)::value, N>(acc, s, t, len); }))
        for (int k = 0; k < kw; ++k) addRowFixed<1, N>(acc, s + k * N, t + k, len);
}

// The sums of a chunk of output samples: acc[j] += every tap times its sample, for the len samples
// from j0 of output row y. The record's table `rev` holds the taps reversed; Tp is the type they
// are summed as, A that of the sums.
template <class A, class Tp, int N, class Tab, class S> auto tapSums(const Record& r, const Tab* rev, const S* win, int winStep)
{
    return [&r, rev, win, winStep](A* acc, int y, int j0, int len) {
        const int kw = r.kernelWidth, kh = r.kernelHeight, n = kw * kh;
        Tp t[64];
        for (int i = 0; i < kh; ++i) {
            const S* s = rowAt(win, winStep, y + i) + j0;
            for (int k0 = 0; k0 < kw; k0 += 64) {
                const int c = std::min(64, kw - k0);
                for (int k = 0; k < c; ++k) t[k] = static_cast<Tp>(rev[n - 1 - (i * kw + k0 + k)]);
                addRow<N>(acc, s + k0 * N, t, c, len);
            }
        }
    };
}

// Walks the output in chunks of samples: sum(acc, y, j0, len) fills acc, then
// finish(acc, out, y, j0, len) stores them.
template <class A, class D, class Sum, class Finish> void chunked(D* out, int outStep, int samples, int height, Sum sum, Finish finish)
{
    alignas(64) A acc[kChunk];
    for (int y = 0; y < height; ++y) {
        D* o = rowAt(out, outStep, y);
        for (int j0 = 0; j0 < samples; j0 += kChunk) {
            const int len = std::min(kChunk, samples - j0);
            std::fill_n(acc, len, A{});
            sum(acc, y, j0, len);
            finish(acc, o + j0, y, j0, len);
        }
    }
}

// The sums of a square mask of side K with its taps in registers: acc[j] = the sum over the window
// of sample j, row[r] being the window's r-th row. Taps in the caller's order.
template <int K, int N, class A, class Tp, class S>
inline void squareSums(A* acc, const Tp* taps, const S* const* row, int len)
{
    Tp t[K * K];
    for (int i = 0; i < K * K; ++i) t[i] = taps[i];
    const S* w[K];
    for (int i = 0; i < K; ++i) w[i] = row[i];
    for (int j = 0; j < len; ++j) {
        A a = 0;
        for (int i = 0; i < K; ++i)
            for (int k = 0; k < K; ++k) a = addProduct(a, t[i * K + k], w[i][j + k * N]);
        acc[j] = a;
    }
}

// The magnitudes of float samples on their bits, whose integer order is the order of the values
// with infinity and then NaN above every finite one; as a double, infinite for those two.
inline uint32_t magnitudeBits(float v) { return std::bit_cast<uint32_t>(v) & 0x7FFFFFFFu; }
inline uint32_t largestMagnitudeBits(const float* s, int n, uint32_t m)
{
    for (int j = 0; j < n; ++j) m = std::max(m, magnitudeBits(s[j]));
    return m;
}
inline double magnitudeOf(uint32_t bits)
{
    return bits >= 0x7F800000u ? std::numeric_limits<double>::infinity() : static_cast<double>(std::bit_cast<float>(bits));
}

// A square mask of side K over samples converted to double once each: the walk goes down one
// chunk of columns at a time, keeping the window's rows in a ring. finish(acc, out, y, j0, len,
// magnitude) stores each chunk of sums; magnitude is the largest among the window's samples (for
// float data; 0 otherwise).
template <int K, int N, class T, class Finish>
void squareRing(const double* taps, const T* win, int winStep, T* out, int outStep, int samples, int height, Finish finish)
{
    constexpr int kSpan = kChunk + (K - 1) * N;
    alignas(64) double ring[K][kSpan];
    alignas(64) double acc[kChunk];
    uint32_t mag[K] = {};
    for (int j0 = 0; j0 < samples; j0 += kChunk) {
        const int len = std::min(kChunk, samples - j0), span = len + (K - 1) * N;
        auto load = [&](int y) {
            const T* s = rowAt(win, winStep, y) + j0;
            double* d = ring[y % K];
            for (int j = 0; j < span; ++j) d[j] = static_cast<double>(s[j]);
            if constexpr (std::is_same_v<T, Pxl32f>) mag[y % K] = largestMagnitudeBits(s, span, 0);
        };
        for (int y = 0; y < K - 1; ++y) load(y);
        for (int y = 0; y < height; ++y) {
            load(y + K - 1);
            const double* rows[K];
            uint32_t m = 0;
            for (int i = 0; i < K; ++i) {
                rows[i] = ring[(y + i) % K];
                m = std::max(m, mag[(y + i) % K]);
            }
            squareSums<K, N>(acc, taps, rows, len);
            finish(acc, rowAt(out, outStep, y) + j0, y, j0, len, magnitudeOf(m));
        }
    }
}

// ---- Integer taps.

// Rounding to nearest with ties upward (the third rounding code), exactly: the difference of a
// value and its truncation is exact.
template <class F> inline F roundTiesUp(F v)
{
    const F t = std::trunc(v), f = v - t;
    return f >= F(0.5) ? t + 1 : f < F(-0.5) ? t - 1 : t;
}

// A real result as D: 32f data stores it; integer data is saturated to D and rounded by the code
// (2: to nearest with ties upward). NaN gives 0.
template <class D, int Code, class F> inline D finishReal(F v)
{
    if constexpr (std::is_same_v<D, Pxl32f>) {
        return static_cast<float>(v);
    } else {
        constexpr F lo = std::numeric_limits<D>::lowest(), hi = std::numeric_limits<D>::max();
        v = v == v ? v : F(0);
        if (v >= hi) return static_cast<D>(hi);
        if (v <= lo) return static_cast<D>(lo);
        F q;
        if constexpr (Code == kNearestEven || Code == kTowardZero) q = roundIntegral<Code>(v);
        else q = roundTiesUp(v);
        return static_cast<D>(static_cast<int32_t>(q));
    }
}

// The record's divisor, copied out of it so that the finishing loops hold it in registers.
struct Divisor {
    int shift;
    int64_t mask, half;
    double f64;
    explicit Divisor(const Record& r) : shift(r.shift), mask(r.shiftMask), half(r.half), f64(r.divisorF64) {}
};

// The integer result of a sum v by the divisor's class and the rounding code, saturated to D.
// V is the sum's type (32 or 64 bits); no step leaves it.
template <class D, int Class, int Code, class V> inline D finishInt(V v, Divisor r)
{
    constexpr V lo = std::numeric_limits<D>::lowest(), hi = std::numeric_limits<D>::max();
    V q;
    if constexpr (Class == kUnit) {
        q = v;
    } else if constexpr (Class == kPowerOfTwo) {
        const int s = r.shift;
        const V mask = static_cast<V>(r.mask), half = static_cast<V>(r.half);
        if constexpr (Code == kTowardZero) q = (v < 0 ? v + mask : v) >> s;
        else if constexpr (Code == kNearestEven) q = (v >> s) + ((((v >> s) & 1) + (v & mask) - 1 + half) >> s);
        else q = (v >> s) + (((v & mask) + half) >> s);
    } else {
        // The quotient of integers below 2^51 never rounds across an integer or a half, so its
        // double is as good as the exact one for every code.
        return finishReal<D, Code>(static_cast<double>(v) / r.f64);
    }
    return static_cast<D>(q < lo ? lo : q > hi ? hi : q);
}

// Calls body(finish) with the finishing of the record's class and code, chosen once per call.
template <class D, class Body> void withIntFinish(const Record& r, Body body)
{
    const int code = r.roundMode & 3;
    const Divisor d(r);
    auto pick = [&](auto cls) {
        constexpr int C = decltype(cls)::value;
        if (code == kTowardZero) body([d](auto v) { return finishInt<D, C, kTowardZero>(v, d); });
        else if (code == kNearestEven) body([d](auto v) { return finishInt<D, C, kNearestEven>(v, d); });
        else body([d](auto v) { return finishInt<D, C, kNearestAway>(v, d); });
    };
    if (r.divisorClass == kUnit) pick(std::integral_constant<int, kUnit>{});
    else if (r.divisorClass == kPowerOfTwo) pick(std::integral_constant<int, kPowerOfTwo>{});
    else pick(std::integral_constant<int, kOther>{});
}

// The offset of an 8u record added to a 32-bit sum and truncated toward zero, as the extended sum
// of the two does it: the offset's integral part is added exactly, and its fraction (a multiple of
// 2^-30 at the finest) moves the result one step toward zero where its sign differs from the sum's.
struct Offset {
    int64_t whole;
    int step;  // the fraction's sign
    explicit Offset(float f)
    {
        const double o = f, t = std::trunc(o);
        whole = static_cast<int64_t>(std::clamp(t, -0x1p40, 0x1p40));
        step = o > t ? 1 : o < t ? -1 : 0;
    }
    int64_t operator()(int32_t sum) const
    {
        const int64_t m = sum + whole;
        const int64_t v = m + (m < 0 && step > 0) - (m > 0 && step < 0);
        return std::clamp<int64_t>(v, INT32_MIN, INT32_MAX);
    }
};

// 8u data, 16s taps: products and sum in 32-bit integers (wrapping as such a sum does).
// Square masks of side 3 and 5 hold their taps in registers; where no partial sum can leave 16
// bits, the sums run in 16-bit lanes, twice as many to a register.
template <int K, int N, class Finish>
bool square8uInt(const Record& r, const Pxl8u* win, int winStep, Pxl8u* out, int outStep, int width, int height, Finish finish)
{
    if (r.kernelWidth != K || r.kernelHeight != K) return false;
    const Pxl16s* rev = tableOf<const Pxl16s>(&r, r.kernelInt);
    int32_t taps[K * K];
    int positive = 0, negative = 0;
    for (int i = 0; i < K * K; ++i) {
        taps[i] = rev[K * K - 1 - i];
        (taps[i] > 0 ? positive : negative) += std::abs(taps[i]);
    }
    auto walk = [&](auto zero) {
        using A = decltype(zero);
        chunked<A>(out, outStep, width * N, height,
                   [&](A* acc, int y, int j0, int len) {
                       const Pxl8u* rows[K];
                       for (int i = 0; i < K; ++i) rows[i] = rowAt(win, winStep, y + i) + j0;
                       squareSums<K, N>(acc, taps, rows, len);
                   },
                   [&](const A* acc, Pxl8u* o, int, int, int len) {
                       // The 32-bit sums wrap as the sum of the rule does; the 16-bit ones are exact.
                       for (int j = 0; j < len; ++j) o[j] = finish(static_cast<int32_t>(acc[j]));
                   });
    };
    if (negative == 0 && positive * 255 <= 65535) walk(uint16_t{});
    else if ((positive + negative) * 255 <= 32767) walk(int16_t{});
    else walk(uint32_t{});
    return true;
}

template <int N> void rows8uInt(const Record& r, const Pxl8u* win, int winStep, Pxl8u* out, int outStep, int width, int height)
{
    const auto sum = tapSums<uint32_t, int32_t, N>(r, tableOf<const Pxl16s>(&r, r.kernelInt), win, winStep);
    withIntFinish<Pxl8u>(r, [&](auto finish) {
        if (r.offsetF32 == 0.0f) {
            if (square8uInt<3, N>(r, win, winStep, out, outStep, width, height, finish) ||
                square8uInt<5, N>(r, win, winStep, out, outStep, width, height, finish))
                return;
            chunked<uint32_t>(out, outStep, width * N, height, sum, [&](const uint32_t* acc, Pxl8u* o, int, int, int len) {
                for (int j = 0; j < len; ++j) o[j] = finish(static_cast<int32_t>(acc[j]));
            });
        } else {
            const Offset offset(r.offsetF32);
            chunked<uint32_t>(out, outStep, width * N, height, sum, [&](const uint32_t* acc, Pxl8u* o, int, int, int len) {
                for (int j = 0; j < len; ++j) o[j] = finish(offset(static_cast<int32_t>(acc[j])));
            });
        }
    });
}

// 16s data, 16s taps: each product in 32 bits, the sum in 64.
template <int N> void rows16sInt(const Record& r, const Pxl16s* win, int winStep, Pxl16s* out, int outStep, int width, int height)
{
    const auto sum = tapSums<int64_t, int32_t, N>(r, tableOf<const Pxl16s>(&r, r.kernelInt), win, winStep);
    withIntFinish<Pxl16s>(r, [&](auto finish) {
        chunked<int64_t>(out, outStep, width * N, height, sum, [&](const int64_t* acc, Pxl16s* o, int, int, int len) {
            for (int j = 0; j < len; ++j) o[j] = finish(acc[j]);
        });
    });
}

// ---- Float taps.

// A sample as a word whose bits differ wherever two samples' bits do.
template <class T> inline uint32_t wordOf(T v)
{
    if constexpr (std::is_same_v<T, Pxl32f>) return std::bit_cast<uint32_t>(v);
    else return static_cast<uint32_t>(v);
}

// Whether, for integer data, double sums of these taps and offset are exact: every product and the
// offset are multiples of the finest bit among them, and no partial sum reaches 2^53 of that bit.
template <class T> bool exactInDouble(const float* taps, int n, float offset, double tapMagnitude)
{
    int finest = std::numeric_limits<int>::max();
    auto note = [&](float v) {
        if (v == 0.0f) return;
        int e;
        const double m = std::frexp(static_cast<double>(v), &e);
        const auto sig = static_cast<uint32_t>(std::fabs(std::ldexp(m, 24)));
        finest = std::min(finest, e - 24 + std::countr_zero(sig));
    };
    for (int i = 0; i < n; ++i) {
        if (!std::isfinite(taps[i])) return false;
        note(taps[i]);
    }
    if (!std::isfinite(offset)) return false;
    note(offset);
    if (finest == std::numeric_limits<int>::max()) return true;
    return tapMagnitude * largestMagnitude<T>() + std::fabs(static_cast<double>(offset)) < std::ldexp(1.0, 53 + finest);
}

// Float taps over any data: see the head of this file.
template <class T, int N>
void rowsFloat(const Record& r, const T* win, int winStep, T* out, int outStep, int width, int height)
{
    const int kw = r.kernelWidth, kh = r.kernelHeight, n = kw * kh;
    const float* rev = tableOf<const float>(&r, r.kernelF32);
    constexpr bool floatData = std::is_same_v<T, Pxl32f>;
    const double offset = floatData ? 0.0 : static_cast<double>(r.offsetF32);
    double tapMagnitude = 0;
    for (int i = 0; i < n; ++i) tapMagnitude += std::fabs(static_cast<double>(rev[i]));
    const bool exact = !floatData && exactInDouble<T>(rev, n, r.offsetF32, tapMagnitude);
    // Both sums lie within (n + 1) * 2^-53 of the sum of magnitudes from the exact one; twice that
    // also covers adding the bound itself.
    const double relative = (n + 3) * 0x1p-52;

    const auto sums = tapSums<double, double, N>(r, rev, win, winStep);
    // For float data, the largest magnitude among the samples of the chunk's windows.
    double chunkMagnitude = 0;
    auto sum = [&](double* acc, int y, int j0, int len) {
        sums(acc, y, j0, len);
        if constexpr (floatData) {
            uint32_t m = 0;
            for (int i = 0; i < kh; ++i) m = largestMagnitudeBits(rowAt(win, winStep, y + i) + j0, len + (kw - 1) * N, m);
            chunkMagnitude = magnitudeOf(m);
        }
    };
    // The extended sum of one sample's window, in the caller's order of taps, from +0.
    auto extended = [&](int y, int j) {
        long double s = 0;
        for (int i = 0; i < kh; ++i) {
            const T* row = rowAt(win, winStep, y + i) + j;
            for (int k = 0; k < kw; ++k)
                s += static_cast<long double>(rev[n - 1 - (i * kw + k)]) * static_cast<long double>(row[k * N]);
        }
        return floatData ? s : s + static_cast<long double>(offset);
    };
    const double fixedBound = floatData ? 0.0 : relative * (tapMagnitude * largestMagnitude<T>() + std::fabs(offset));
    constexpr double kInfinity = std::numeric_limits<double>::infinity();

    const NearestRounding nearest;
    withRoundCode(r.roundMode & 3, [&](auto code) {
        constexpr int Code = decltype(code)::value;
        // Stores a chunk of sums, each proved against the extended one or summed again so.
        auto finish = [&](const double* acc, T* o, int y, int j0, int len, double magnitude) {
            if (exact) {
                for (int j = 0; j < len; ++j) o[j] = finishReal<T, Code>(acc[j] + offset);
                return;
            }
            const double bound = floatData ? relative * tapMagnitude * magnitude : fixedBound;
            uint32_t differ = 0;
            for (int j = 0; j < len; ++j) {
                const double v = acc[j] + offset;
                const T a = finishReal<T, Code>(v - bound), b = finishReal<T, Code>(v + bound);
                o[j] = a;
                differ |= wordOf(a) ^ wordOf(b);
            }
            const bool unbounded = !(bound < kInfinity);
            if (differ || unbounded)
                for (int j = 0; j < len; ++j) {
                    const double v = acc[j] + offset;
                    if (unbounded || wordOf(finishReal<T, Code>(v - bound)) != wordOf(finishReal<T, Code>(v + bound)))
                        o[j] = finishReal<T, Code>(extended(y, j0 + j));
                }
        };
        if (kw == kh && (kw == 3 || kw == 5)) {
            double taps[25];
            for (int i = 0; i < n; ++i) taps[i] = rev[n - 1 - i];
            if (kw == 3) squareRing<3, N>(taps, win, winStep, out, outStep, width * N, height, finish);
            else squareRing<5, N>(taps, win, winStep, out, outStep, width * N, height, finish);
            return;
        }
        chunked<double>(out, outStep, width * N, height, sum, [&](const double* acc, T* o, int y, int j0, int len) {
            finish(acc, o, y, j0, len, chunkMagnitude);
        });
    });
}

// The row kernel that the record's form selects for data T, run over the region.
template <class T, class L>
void filterWithRecord(const Record& r, const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, PxliBorderMode border,
                      const T* pBorderValue, Pxl8u* pBuffer)
{
    constexpr int N = L::mem;
    auto run = [&](auto rows) {
        Pxl8u* strips = reinterpret_cast<Pxl8u*>((reinterpret_cast<uintptr_t>(pBuffer) + 31) & ~uintptr_t{31});
        filterStrips<T, L>(pSrc, srcStep, pDst, dstStep, roi, centredWindow({r.kernelWidth, r.kernelHeight}), border, pBorderValue,
                           strips, strips, [&](const T* win, int winStep, T* out, int outStep, int width, int height) {
                               rows(r, win, winStep, out, outStep, width, height);
                           });
    };
    if constexpr (std::is_same_v<T, Pxl8u>) {
        if (r.form == k8uInt) return run(rows8uInt<N>);
    } else if constexpr (std::is_same_v<T, Pxl16s>) {
        if (r.form == k16sInt) return run(rows16sInt<N>);
    }
    run(rowsFloat<T, N>);
}

}  // namespace

// ---------------------------------------------------------------------------------------------

PxlStatus filterBorderGetSize(PxliSize kernelSize, PxliSize roiSize, PxlDataType dataType, PxlDataType kernelType, int numChannels,
                              int* pSpecSize, int* pBufferSize)
{
    // Checks: sizes, types, channels, result pointers, a buffer beyond 32 bits.
    if (badSize(kernelSize) || badSize(roiSize)) return pxlStatusBadSize;
    if (!knownDataType(dataType) || (kernelType != pxlDt16s && kernelType != pxlDt32f)) return pxlStatusBadDataType;
    if (numChannels < 1 || numChannels > 4) return pxlStatusBadChannel;
    if (!pSpecSize || !pBufferSize) return pxlStatusNullPointer;
    const int kw = kernelSize.width, kh = kernelSize.height;
    const bool floatTaps = kernelType == pxlDt32f || tapsAsFloat(dataType, numChannels, kw, kh);
    const int64_t spec = recordBytes(kw, kh, floatTaps ? 4 : 2);
    const int64_t buffer = stripBytes(kernelSize, roiSize, numChannels, dataTypeBytes(dataType)) + 63 +
                           scratchBytes(dataType, kernelType, numChannels, kw, kh, roiSize.width);
    if (buffer > INT32_MAX || spec > INT32_MAX) {
        *pBufferSize = 0;
        return pxlStatusSizeOverflow;
    }
    *pSpecSize = static_cast<int>(spec);
    *pBufferSize = static_cast<int>(buffer);
    return pxlStatusOk;
}

PxlStatus filterBorderInit16s(const Pxl16s* pKernel, PxliSize kernelSize, int divisor, PxlDataType dataType, int numChannels,
                              PxlFilterRound roundMode, PxliFilterBorderSpec* pSpec)
{
    // Checks: pointers, kernel size, data type, channels, rounding word, divisor.
    if (!pKernel || !pSpec) return pxlStatusNullPointer;
    if (badSize(kernelSize)) return pxlStatusBadSize;
    if (dataType != pxlDt8u && dataType != pxlDt16u && dataType != pxlDt16s) return pxlStatusBadDataType;
    if (numChannels < 1 || numChannels > 4) return pxlStatusBadChannel;
    if (badRoundWord(roundMode)) return pxlStatusBadRoundMode;
    if (divisor == 0) return pxlStatusZeroDivisor;

    const int kw = kernelSize.width, kh = kernelSize.height, n = kw * kh;
    const bool warn = hintGiven(roundMode) && !(dataType == pxlDt8u || (dataType == pxlDt16s && numChannels == 1));
    Record* r = recordAt(pSpec);
    setHead(r, dataType == pxlDt8u ? k8uInt : k16sInt, kernelSize, divisor, numChannels, roundMode);
    if (tapsAsFloat(dataType, numChannels, kw, kh)) {
        // The divisor goes into the taps.
        const float inv = 1.0f / static_cast<float>(divisor);
        fillFloatRecord(r, kernelSize, dataType, [&](int i) { return static_cast<float>(pKernel[i]) * inv; });
    } else {
        r->kernelInt = kHeadBytes;
        r->kernelF32 = kHeadBytes;  // no float table: a call whose data does not suit the form reads these bytes
        r->kernelPairs = static_cast<uint32_t>(kHeadBytes + round64(int64_t{n} * 2));
        Pxl16s* taps = tableOf<Pxl16s>(r, r->kernelInt);
        for (int i = 0; i < n; ++i) taps[n - 1 - i] = pKernel[i];
        // Each row's taps in pairs, the pair repeated across a 256-bit register.
        Pxl16s* pairs = tableOf<Pxl16s>(r, r->kernelPairs);
        bool usable = true;
        for (int i = 0; i < kh; ++i)
            for (int k = 0; k < kw; k += 2, pairs += 16) {
                const Pxl16s a = taps[i * kw + k], b = k + 1 < kw ? taps[i * kw + k + 1] : Pxl16s{0};
                usable = usable && a >= -32767 && a <= 32766 && b != 32767 && b != -32768;
                for (int c = 0; c < 16; c += 2) {
                    pairs[c] = a;
                    pairs[c + 1] = b;
                }
            }
        r->pairsUsable = usable;
    }
    return warn ? pxlStatusWarnHintIgnored : pxlStatusOk;
}

PxlStatus filterBorderInit32f(const Pxl32f* pKernel, PxliSize kernelSize, PxlDataType dataType, int numChannels,
                              PxlFilterRound roundMode, PxliFilterBorderSpec* pSpec)
{
    // Checks: pointers, kernel size, data type, channels, rounding word.
    if (!pKernel || !pSpec) return pxlStatusNullPointer;
    if (badSize(kernelSize)) return pxlStatusBadSize;
    if (!knownDataType(dataType)) return pxlStatusBadDataType;
    if (numChannels < 1 || numChannels > 4) return pxlStatusBadChannel;
    if (badRoundWord(roundMode)) return pxlStatusBadRoundMode;

    const int n = kernelSize.width * kernelSize.height;
    Record* r = recordAt(pSpec);
    const float* inTable = tableOf<const float>(r, kHeadBytes);
    if (pKernel == inTable) {
        // The taps already lie where the record keeps them: reverse them where they are.
        std::reverse(tableOf<float>(r, kHeadBytes), tableOf<float>(r, kHeadBytes) + n);
        setHead(r, 0, kernelSize, 1, numChannels, roundMode);
        fillFloatRecord(r, kernelSize, dataType, [&](int i) { return inTable[n - 1 - i]; });
    } else {
        setHead(r, 0, kernelSize, 1, numChannels, roundMode);
        fillFloatRecord(r, kernelSize, dataType, [&](int i) { return pKernel[i]; });
    }
    return hintGiven(roundMode) ? pxlStatusWarnHintIgnored : pxlStatusOk;
}

PxlStatus filterBorderSetMode(PxlHint hint, int offset, PxliFilterBorderSpec* pSpec)
{
    // Checks: the record; an offset that the record's form cannot take.
    if (!pSpec) return pxlStatusNullPointer;
    Record* r = recordAt(pSpec);
    if (offset != 0 && (r->form == k16sInt || r->form == k16sFloat || r->form == k32fFloat)) return pxlStatusUnsupportedMode;
    if (hint == 2) {
        if (r->form == k8uInt || (r->form == k16sInt && r->numChannels == 1)) r->roundMode |= pxlFilterModeHint;
    } else {
        r->roundMode &= 3;
    }
    r->offsetInt = offset;
    r->hint = hint;
    // The integer forms' offset is kept scaled as the divisor's class scales: in the power-of-two
    // class by 2^-shift, before the sum is shifted down by as much again.
    if (r->form < k8uFloat) r->offsetF32 = static_cast<float>(offset) * r->offsetScale;
    return pxlStatusOk;
}

template <class T, class L>
PxlStatus filterBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, PxliBorderMode border, const T* pBorderValue,
                       const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer)
{
    // Checks: pointers; the constant kind's value (its kind field, whatever the rest of the word);
    // sizes; steps; the border word.
    if (!pSrc || !pDst || !pSpec || !pBuffer) return pxlStatusNullPointer;
    if ((border & 15) == pxlBorderConstant && !pBorderValue) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep < 1 || dstStep < int64_t{roi.width} * L::mem * static_cast<int>(sizeof(T))) return pxlStatusBadStep;
    if (checkBorderWord(border, kFilterBorderKinds) != pxlStatusOk) return pxlStatusBadBorder;

    filterWithRecord<T, L>(*recordAt(pSpec), pSrc, srcStep, pDst, dstStep, roi, border, pBorderValue, pBuffer);
    return pxlStatusOk;
}

// ---------------------------------------------------------------------------------------------
// The older 64f filter: the caller's buffer holds the pixels around the region.

PxlStatus filterGetBufSize64f(PxliSize kernelSize, int roiWidth, int* pBufferSize)
{
    if (!pBufferSize) return pxlStatusNullPointer;
    if (badSize(kernelSize) || roiWidth < 1) return pxlStatusBadSize;
    *pBufferSize = 0;
    return pxlStatusOk;
}

PxlStatus filter64f(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliSize roi, const Pxl64f* pKernel, PxliSize kernelSize,
                    PxliPoint anchor, Pxl8u*)
{
    // Checks: pointers, sizes, steps.
    if (!pSrc || !pDst || !pKernel) return pxlStatusNullPointer;
    if (badSize(roi) || badSize(kernelSize)) return pxlStatusBadSize;
    const int kw = kernelSize.width, kh = kernelSize.height;
    if (srcStep < (int64_t{roi.width} + kw - 1) * 8 || dstStep < int64_t{roi.width} * 8) return pxlStatusBadStep;

    const Pxl64f* win = rowAt(pSrc, srcStep, -anchor.y) - anchor.x;
    // Each pixel's products are added in the kernel's order, a row of taps at a time.
    for (int y = 0; y < roi.height; ++y) {
        Pxl64f* o = rowAt(pDst, dstStep, y);
        for (int j0 = 0; j0 < roi.width; j0 += kChunk) {
            const int len = std::min(kChunk, roi.width - j0);
            alignas(64) double acc[kChunk] = {};
            for (int i = 0; i < kh; ++i) {
                const Pxl64f* s = rowAt(win, srcStep, y + i) + j0;
                const Pxl64f* t = pKernel + std::ptrdiff_t{i} * kw;
                for (int k = 0; k < kw; ++k)
                    for (int j = 0; j < len; ++j) acc[j] += t[k] * s[j + k];
            }
            std::copy_n(acc, len, o + j0);
        }
    }
    return pxlStatusOk;
}

}  // namespace pxl::filt

#include "inst/filtering/filter_border.inc"
