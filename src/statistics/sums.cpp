// Sums, means, norms and dot products of a region: one 64-bit float per channel.
//
// The width and order of each running sum is part of the result. Integer samples are summed
// exactly (8u sums in 32-bit integers per row, which wrap as such, and the row totals go to a
// double per row; wider sums in 64-bit integers per row), so their order is free and they run in
// vector lanes. 32f samples are summed in extended precision in two interleaved partial sums,
// even pixels in one and odd pixels in the other, kept over the whole region and added only at
// the very end: that order is the rule, so those loops stay scalar, except for regions whose
// samples make every partial sum exact, which are summed exactly in vector lanes instead.
#include "statistics/statistics.hpp"

#include "exchange/rounding.hpp"
#include "frame/bind.hpp"
#include "statistics/fold.hpp"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>

namespace pxl::stat {

namespace {

template <class T> constexpr bool kFloat = std::is_same_v<T, Pxl32f>;

// Per-row folds of an integer term into 64-bit lanes, each row's channel totals then added to a
// double: exact while a row's total fits 53 bits, which every image's does.
template <class L, class A, int W, class RowTerm, class Op>
void integerRows(PxliSize roi, A init, Op op, RowTerm rowTerm, double* out, bool maxOfRows)
{
    const int n = roi.width * L::mem;
    for (int y = 0; y < roi.height; ++y) {
        A chan[4] = {init, init, init, init};
        foldRow<L::mem, W>(n, init, chan, rowTerm(y), op);
        for (int c = 0; c < L::proc; ++c) {
            const double v = static_cast<double>(chan[c]);
            out[c] = maxOfRows ? (v > out[c] ? v : out[c]) : out[c] + v;
        }
    }
}

// Two interleaved partial sums in extended precision per channel over the whole region, added
// and rounded to double at the end.
template <class L, class RowTerm>
void extendedRows(PxliSize roi, RowTerm rowTerm, double* out)
{
    long double s0[4] = {}, s1[4] = {};
    for (int y = 0; y < roi.height; ++y) {
        const auto term = rowTerm(y);
        int x = 0;
        for (; x + 2 <= roi.width; x += 2)
            for (int c = 0; c < L::proc; ++c) {
                s0[c] += term(x * L::mem + c);
                s1[c] += term((x + 1) * L::mem + c);
            }
        if (x < roi.width)
            for (int c = 0; c < L::proc; ++c) s0[c] += term(x * L::mem + c);
    }
    for (int c = 0; c < L::proc; ++c) out[c] = static_cast<double>(s0[c] + s1[c]);
}

// ---- Exact float sums ---------------------------------------------------------------------------
// The extended-precision partial sums round nothing when every sample is a whole number of one
// unit 2^u and the magnitudes add up to less than 2^(u + 64): each partial sum is then a whole
// number of units below 2^64, which the 64-bit significand holds. The result is then the exact
// sum, rounded once to double, in whatever order it was formed. A region that meets a stricter
// form of that bound is summed in 64-bit integer lanes of units, in vector code, and gives the
// same bits; any other region takes the extended-precision loop.
enum class Term { Plain, Magnitude, Square };

#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpsabi"
#endif
typedef uint32_t VU32 __attribute__((vector_size(64)));
typedef int32_t VI32 __attribute__((vector_size(64)));
typedef float VF32 __attribute__((vector_size(64)));
typedef float VF8 __attribute__((vector_size(32)));
typedef double VD8 __attribute__((vector_size(64)));
typedef int64_t VI64 __attribute__((vector_size(64)));

// Over the samples: the largest exponent field (255 for infinity and NaN), and the smallest unit
// exponent field (the exponent of a sample's lowest set bit, biased by 277 so that 1.0 gives
// 277), zeros passed over.
constexpr uint32_t kNoUnit = 1u << 20;
struct UnitSpan {
    uint32_t top = 0, low = kNoUnit;
};
inline void spanFold(const VU32& b, VU32& top, VU32& low)
{
    const VU32 a = b & 0x7FFFFFFFu, e = a >> 23;
    top = e > top ? e : top;
    const VU32 m = (a & 0x7FFFFFu) | (VU32(e != 0u) & 0x800000u);
    const VU32 lowBit = m & (VU32{} - m);
    const VF32 f = __builtin_convertvector(VI32(lowBit), VF32);
    VU32 fb;
    std::memcpy(&fb, &f, sizeof fb);
    const VU32 key = (e > 1u ? e : VU32{} + 1u) + (fb >> 23);
    const VU32 k = a == 0u ? VU32{} + kNoUnit : key;
    low = k < low ? k : low;
}
inline UnitSpan unitSpanOf(const float* r, int n)
{
    constexpr int W = 16;
    VU32 top = {}, low = VU32{} + kNoUnit;
    int i = 0;
    for (; i + W <= n; i += W) {
        VU32 b;
        std::memcpy(&b, r + i, sizeof b);
        spanFold(b, top, low);
    }
    if (i < n) {  // the rest in lanes of their own, the others zero, which is passed over
        VU32 b = {};
        std::memcpy(&b, r + i, static_cast<std::size_t>(n - i) * 4);
        spanFold(b, top, low);
    }
    UnitSpan span;
    for (int k = 0; k < W; ++k) span.top = std::max(span.top, top[k]), span.low = std::min(span.low, low[k]);
    return span;
}

// A row's terms, as whole numbers of units (scale = 2^-u, or 2^-2u for squares), into chan.
template <Term K> inline void toUnits(VD8& v, double scale)
{
    if constexpr (K == Term::Magnitude) v = v < 0 ? -v : v;
    if constexpr (K == Term::Square) v = v * v;
    v = v * scale;
}
template <Term K, int M> inline void unitSums(const float* r, int n, double scale, int64_t* chan)
{
    constexpr int W = 8;
    constexpr double magic = 6755399441055744.0;  // 1.5 * 2^52: a whole number below 2^51 added lands in the low bits
    const VD8 vmagic = VD8{} + magic;
    VI64 magicBits;
    std::memcpy(&magicBits, &vmagic, sizeof magicBits);
    VI64 acc[M] = {};
    int i = 0;
    for (; i + M * W <= n; i += M * W)
        for (int j = 0; j < M; ++j) {
            VF8 raw;
            std::memcpy(&raw, r + i + j * W, sizeof raw);
            VD8 v = __builtin_convertvector(raw, VD8);
            toUnits<K>(v, scale);
            v += vmagic;
            VI64 bits;
            std::memcpy(&bits, &v, sizeof bits);
            acc[j] += bits - magicBits;
        }
    for (int j = 0; j < M; ++j)
        for (int k = 0; k < W; ++k) chan[(j * W + k) % M] += acc[j][k];
    for (; i < n; ++i) {
        VD8 v = VD8{} + double(r[i]);
        toUnits<K>(v, scale);
        chan[i % M] += static_cast<int64_t>(v[0]);
    }
}
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic pop
#endif

// The exact per-channel sums of the terms when the region allows them; false otherwise. One pass:
// each row's span is taken while the row is at hand, and when a row brings a smaller unit the
// totals so far are restated in it, which the bound on the whole region keeps within 62 bits.
template <class L, Term K> bool exactFloatSums(const float* p, int step, PxliSize roi, double* out)
{
    constexpr int power = K == Term::Square ? 2 : 1;
    const int n = roi.width * L::mem;
    const int countBits = static_cast<int>(std::ceil(std::log2(static_cast<double>(n) * roi.height)));
    UnitSpan span;
    int64_t chan[4] = {};
    for (int y = 0; y < roi.height; ++y) {
        const float* r = rowAt(p, step, y);
        const UnitSpan row = unitSpanOf(r, n);
        const uint32_t top = std::max(span.top, row.top), low = std::min(span.low, row.low);
        if (top >= 255) return false;  // infinity or NaN
        if (low == kNoUnit) continue;  // zeros so far
        // The largest term is below 2^bits units: the conversion holds below 2^51, and the lanes
        // and totals stay below 2^62.
        const int bits = power * (static_cast<int>(std::max(top, 1u)) - 126 - (static_cast<int>(low) - 277));
        if (bits > 51 || bits + countBits > 62) return false;
        if (span.low != kNoUnit && low < span.low)
            for (int c = 0; c < L::proc; ++c) chan[c] *= int64_t{1} << (power * static_cast<int>(span.low - low));
        span = {top, low};
        unitSums<K, L::mem>(r, n, std::ldexp(1.0, power * (277 - static_cast<int>(low))), chan);
    }
    const int unitExp = span.low == kNoUnit ? 0 : power * (static_cast<int>(span.low) - 277);
    for (int c = 0; c < L::proc; ++c) out[c] = static_cast<double>(std::ldexp(static_cast<long double>(chan[c]), unitExp));
    return true;
}

template <class T, class L> void channelSums(const T* p, int step, PxliSize roi, double* out)
{
    if constexpr (kFloat<T>) {
        const NearestRounding nearest;
        if (exactFloatSums<L, Term::Plain>(p, step, roi, out)) return;
        extendedRows<L>(roi, [&](int y) {
            const T* r = rowAt(p, step, y);
            return [r](int i) { return static_cast<long double>(r[i]); };
        }, out);
    } else if constexpr (sizeof(T) == 1) {
        // A row's sum in 32 bits, as a 32-bit total would keep it: below 16843009 pixels no row's
        // sum reaches 2^32, and the whole region is summed at once.
        const int n = roi.width * L::mem;
        if (roi.width < 16843009) {
            uint64_t chan[4] = {};
            sumBytes<L::mem>(p, step, roi.height, n, chan);
            for (int c = 0; c < L::proc; ++c) out[c] = static_cast<double>(chan[c]);
        } else {
            for (int y = 0; y < roi.height; ++y) {
                uint64_t chan[4] = {};
                sumBytes<L::mem>(rowAt(p, step, y), step, 1, n, chan);
                for (int c = 0; c < L::proc; ++c) out[c] += static_cast<double>(static_cast<uint32_t>(chan[c]));
            }
        }
    } else {
        using A = std::conditional_t<std::is_signed_v<T>, int64_t, uint64_t>;
        integerRows<L, A, kLanes<T>>(roi, A{0}, AddOp{}, [&](int y) {
            const T* r = rowAt(p, step, y);
            return [r](int i) { return static_cast<A>(r[i]); };
        }, out, false);
    }
}

template <class T, class L>
PxlStatus sumChecked(const T* pSrc, int srcStep, PxliSize roi, const void* pResult, double* out)
{
    // Pointers, size, step (8u leaves the step unchecked).
    if (!pSrc || !pResult) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (sizeof(T) != 1 && srcStep < 1) return pxlStatusBadStep;
    channelSums<T, L>(pSrc, srcStep, roi, out);
    return pxlStatusOk;
}

// ---- Norms -----------------------------------------------------------------------------------

// The integer term of a norm: |v| for Inf and L1, v squared for L2.
template <Norm K> inline uint64_t integerTerm(int64_t v)
{
    const uint64_t a = static_cast<uint64_t>(v < 0 ? -v : v);
    return K == Norm::L2 ? a * a : a;
}
template <Norm K> inline long double extendedTerm(long double v)
{
    return K == Norm::L2 ? v * v : std::fabs(v);
}

// The norm sums of a (b == nullptr) or of a - b, per channel.
template <class T, class L, Norm K>
void normSums(const T* a, int as, const T* b, int bs, PxliSize roi, double* out)
{
    if constexpr (kFloat<T>) {
        if (K == Norm::Inf && !b) {
            // The largest magnitude, from the smallest and the largest sample and 0: the same in
            // any order, and NaN, never smaller or larger than anything, is passed over.
            const int n = roi.width * L::mem;
            float m[4] = {};
            for (int y = 0; y < roi.height; ++y) {
                const T* r = rowAt(a, as, y);
                float lo[4] = {}, hi[4] = {};
                foldSamples<Fold::Min, L::mem>(r, as, 1, n, 0.0f, lo);
                foldSamples<Fold::Max, L::mem>(r, as, 1, n, 0.0f, hi);
                for (int c = 0; c < L::proc; ++c) m[c] = std::max({m[c], -lo[c], hi[c]});
            }
            for (int c = 0; c < L::proc; ++c) out[c] = m[c];
            return;
        }
        const NearestRounding nearest;
        if constexpr (K == Norm::Inf) {
            long double m[4] = {};
            for (int y = 0; y < roi.height; ++y) {
                const T* ra = rowAt(a, as, y);
                const T* rb = rowAt(b, bs, y);
                for (int x = 0; x < roi.width; ++x)
                    for (int c = 0; c < L::proc; ++c) {
                        const long double v = std::fabs(static_cast<long double>(ra[x * L::mem + c]) - rb[x * L::mem + c]);
                        if (v > m[c]) m[c] = v;
                    }
            }
            for (int c = 0; c < L::proc; ++c) out[c] = static_cast<double>(m[c]);
        } else if (b) {
            extendedRows<L>(roi, [&](int y) {
                const T* ra = rowAt(a, as, y);
                const T* rb = rowAt(b, bs, y);
                return [ra, rb](int i) { return extendedTerm<K>(static_cast<long double>(ra[i]) - rb[i]); };
            }, out);
        } else {
            if (exactFloatSums<L, K == Norm::L2 ? Term::Square : Term::Magnitude>(a, as, roi, out)) return;
            extendedRows<L>(roi, [&](int y) {
                const T* r = rowAt(a, as, y);
                return [r](int i) { return extendedTerm<K>(static_cast<long double>(r[i])); };
            }, out);
        }
    } else {
        const bool isMax = K == Norm::Inf;
        const auto op = [](uint64_t s, uint64_t v) { return K == Norm::Inf ? MaxOp{}(s, v) : s + v; };
        if (b) {
            integerRows<L, uint64_t, kLanes<T>>(roi, uint64_t{0}, op, [&](int y) {
                const T* ra = rowAt(a, as, y);
                const T* rb = rowAt(b, bs, y);
                return [ra, rb](int i) { return integerTerm<K>(int64_t{ra[i]} - int64_t{rb[i]}); };
            }, out, isMax);
        } else {
            integerRows<L, uint64_t, kLanes<T>>(roi, uint64_t{0}, op, [&](int y) {
                const T* r = rowAt(a, as, y);
                return [r](int i) { return integerTerm<K>(int64_t{r[i]}); };
            }, out, isMax);
        }
    }
}

template <Norm K> inline double rootIfL2(double s) { return K == Norm::L2 ? std::sqrt(s) : s; }

// The quiet NaN with the sign bit set: a ratio of two zero norms.
inline double zeroByZero()
{
    constexpr uint64_t bits = 0xFFF8000000000000ull;
    double d;
    std::memcpy(&d, &bits, sizeof d);
    return d;
}

}  // namespace

template <class T, class L> PxlStatus sum(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pSum)
{
    double s[4] = {};
    const PxlStatus status = sumChecked<T, L>(pSrc, srcStep, roi, pSum, s);
    if (status == pxlStatusOk)
        for (int c = 0; c < L::proc; ++c) pSum[c] = s[c];
    return status;
}
template <class T, class L> PxlStatus sumHint(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pSum, PxlHint)
{
    return sum<T, L>(pSrc, srcStep, roi, pSum);
}

template <class T, class L> PxlStatus mean(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pMean)
{
    double s[4] = {};
    const PxlStatus status = sumChecked<T, L>(pSrc, srcStep, roi, pMean, s);
    if (status == pxlStatusOk) {
        const double count = static_cast<double>(roi.width) * roi.height;
        for (int c = 0; c < L::proc; ++c) pMean[c] = s[c] / count;
    }
    return status;
}
template <class T, class L> PxlStatus meanHint(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pMean, PxlHint)
{
    return mean<T, L>(pSrc, srcStep, roi, pMean);
}

template <class T, class L, Norm K> PxlStatus norm(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pValue)
{
    // Pointers, size, step.
    if (!pSrc || !pValue) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep < 1) return pxlStatusBadStep;
    double s[4] = {};
    normSums<T, L, K>(pSrc, srcStep, nullptr, 0, roi, s);
    for (int c = 0; c < L::proc; ++c) pValue[c] = rootIfL2<K>(s[c]);
    return pxlStatusOk;
}
template <class T, class L, Norm K>
PxlStatus normHint(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pValue, PxlHint)
{
    return norm<T, L, K>(pSrc, srcStep, roi, pValue);
}

template <class T, class L, Norm K, bool Rel>
PxlStatus normPair(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PxliSize roi, Pxl64f* pValue)
{
    // Pointers, size, steps.
    if (!pSrc1 || !pSrc2 || !pValue) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (src1Step < 1 || src2Step < 1) return pxlStatusBadStep;
    double num[4] = {};
    normSums<T, L, K>(pSrc1, src1Step, pSrc2, src2Step, roi, num);
    if constexpr (!Rel) {
        for (int c = 0; c < L::proc; ++c) pValue[c] = rootIfL2<K>(num[c]);
        return pxlStatusOk;
    } else {
        double den[4] = {};
        normSums<T, L, K>(pSrc2, src2Step, nullptr, 0, roi, den);
        // A denominator counts when above zero; for 32f, above the smallest normal double.
        const double floor = kFloat<T> ? DBL_MIN : 0.0;
        PxlStatus status = pxlStatusOk;
        for (int c = 0; c < L::proc; ++c) {
            if (den[c] > floor) {
                pValue[c] = rootIfL2<K>(num[c] / den[c]);
            } else {
                pValue[c] = num[c] > floor ? std::numeric_limits<double>::infinity() : zeroByZero();
                status = pxlStatusWarnDivideByZero;
            }
        }
        return status;
    }
}
template <class T, class L, Norm K, bool Rel>
PxlStatus normPairHint(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PxliSize roi, Pxl64f* pValue, PxlHint)
{
    return normPair<T, L, K, Rel>(pSrc1, src1Step, pSrc2, src2Step, roi, pValue);
}

// ---- Dot products ----------------------------------------------------------------------------

template <class T, class L>
PxlStatus dotProd(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PxliSize roi, Pxl64f* pDp)
{
    // Pointers; a size below 1 or a step of 0.
    if (!pSrc1 || !pSrc2 || !pDp) return pxlStatusNullPointer;
    if (badSize(roi) || src1Step == 0 || src2Step == 0) return pxlStatusBadSize;
    double total[4] = {};
    if constexpr (sizeof(T) <= 2) {
        // Integer products added one by one to a double are exact while every running value
        // stays within 2^53; then the exact sum in 64-bit integers is the same number, and its
        // order is free.
        constexpr double maxProduct = double(std::numeric_limits<T>::min()) * std::numeric_limits<T>::min() >
                                              double(std::numeric_limits<T>::max()) * std::numeric_limits<T>::max()
                                          ? double(std::numeric_limits<T>::min()) * std::numeric_limits<T>::min()
                                          : double(std::numeric_limits<T>::max()) * std::numeric_limits<T>::max();
        if (double(roi.width) * roi.height * maxProduct <= 9007199254740992.0) {
            const int n = roi.width * L::mem;
            int64_t chan[4] = {};
            for (int y = 0; y < roi.height; ++y) {
                const T* a = rowAt(pSrc1, src1Step, y);
                const T* b = rowAt(pSrc2, src2Step, y);
                foldRow<L::mem, kLanes<T>>(n, int64_t{0}, chan, [a, b](int i) { return int64_t{a[i]} * b[i]; }, AddOp{});
            }
            for (int c = 0; c < L::proc; ++c) pDp[c] = static_cast<double>(chan[c]);
            return pxlStatusOk;
        }
    }
    const NearestRounding nearest;
    for (int y = 0; y < roi.height; ++y) {
        const T* a = rowAt(pSrc1, src1Step, y);
        const T* b = rowAt(pSrc2, src2Step, y);
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < L::proc; ++c) total[c] += static_cast<double>(a[x * L::mem + c]) * static_cast<double>(b[x * L::mem + c]);
    }
    for (int c = 0; c < L::proc; ++c) pDp[c] = total[c];
    return pxlStatusOk;
}

template <class T> PxlStatus dotProdCol(const T* const* ppSrcList, const T* pCoefficients, int listLength, T* pDst, int length)
{
    // Lists and result; lengths; list entries.
    if (!ppSrcList || !pCoefficients || !pDst) return pxlStatusNullPointer;
    if (length < 1 || listLength < 1) return pxlStatusBadSize;
    for (int i = 0; i < listLength; ++i)
        if (!ppSrcList[i]) return pxlStatusNullPointer;
    const NearestRounding nearest;
    const T c0 = pCoefficients[0];
    const T* s0 = ppSrcList[0];
    if (c0 == T(1)) std::memmove(pDst, s0, sizeof(T) * static_cast<std::size_t>(length));
    else
        for (int j = 0; j < length; ++j) pDst[j] = c0 * s0[j];
    for (int i = 1; i < listLength; ++i) {
        const T ci = pCoefficients[i];
        const T* si = ppSrcList[i];
        for (int j = 0; j < length; ++j) pDst[j] = pDst[j] + ci * si[j];
    }
    return pxlStatusOk;
}

}  // namespace pxl::stat

#include "inst/statistics/sums.inc"
