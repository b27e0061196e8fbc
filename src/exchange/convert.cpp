// Conversion between sample types: Convert keeps the number (saturating, and rounding by a code
// where the target is an integer and the source is not), Scale keeps the place in the range, and
// ScaleC applies a multiplier and an offset. Every form is one row loop over a per-sample function
// chosen once per call.
#include "exchange/exchange.hpp"
#include "arithmetic/scale.hpp"
#include "exchange/rounding.hpp"
#include "frame/bind.hpp"
#include "frame/simd.hpp"

#include <algorithm>
#include <cfenv>
#include <cfloat>
#include <cstring>

namespace pxl::exch {

namespace {

template <class T> constexpr bool kFloat = std::is_floating_point_v<T>;

// An integer (or a float, for float targets) to D, saturating to D's range.
template <class D, class S> inline D saturateTo(S x)
{
    if constexpr (kFloat<D>) {
        return static_cast<D>(x);
    } else {
        return saturate<D>(int64_t{x});
    }
}

// An exact integer x scaled by 2^-f, rounded by the code and saturated to D. For f > 0 the
// quotient is floor(x / 2^f) with remainder rem in [0, 2^f): toward zero corrects a negative
// quotient with a remainder, nearest-even rounds up above the half and at the half when odd,
// nearest-away at the half when x is positive.
template <class D, int Code> inline D scaleInteger(int64_t x, int f)
{
    using L = std::numeric_limits<D>;
    if (f == 0) return saturateTo<D>(x);
    if (f < 0) {
        // Every target of these forms is at most 32s, which 1 * 2^31 already exceeds; below that
        // the product of a 32-bit x fits 64 bits.
        if (f <= -31) return x > 0 ? L::max() : x < 0 ? L::min() : D(0);
        return saturateTo<D>(x * (int64_t{1} << -f));
    }
    if (f >= 40) return D(0);  // |x| < 2^32, so |x / 2^f| < 2^-8 rounds to 0 by every code
    const int64_t unit = int64_t{1} << f, half = unit >> 1;
    int64_t q = x >> f;
    const int64_t rem = x - q * unit;
    if constexpr (Code == kTowardZero) q += x < 0 && rem != 0;
    else if constexpr (Code == kNearestEven) q += rem > half || (rem == half && (q & 1));
    else q += rem > half || (rem == half && x >= 0);
    return saturateTo<D>(q);
}

// The power of two that multiplies a float source: 2^-f, held within a range beyond which every
// result is already 0 or saturated (and -f cannot overflow).
inline int scaleExponent(int f) { return f >= 4000 ? -4000 : f <= -4000 ? 4000 : -f; }

// The rows of a region through fn, sample by sample: whole rows for C1 (and for C3, C4 flattened
// into it), the first three samples of each pixel for AC4. Gap-free images run as one row.
// A whole-row kernel, where one is given, replaces the per-sample loop with the same results.
template <class S, class D, class L, class Fn, class RowFn>
void convertRows(const S* src, int srcStep, D* dst, int dstStep, PxliSize roi, Fn fn, RowFn rowFn)
{
    if constexpr (L::hasAlpha) {
        (void)rowFn;
        for (int y = 0; y < roi.height; ++y) {
            const S* s = rowAt(src, srcStep, y);
            D* d = rowAt(dst, dstStep, y);
            for (int x = 0; x < roi.width; ++x)
                for (int c = 0; c < 3; ++c) d[4 * x + c] = fn(s[4 * x + c]);
        }
    } else {
        const auto n0 = static_cast<std::size_t>(roi.width) * L::mem;
        const PxliSize r = mergedRows({static_cast<int>(n0), roi.height},
                                      static_cast<std::size_t>(srcStep) == n0 * sizeof(S) &&
                                          static_cast<std::size_t>(dstStep) == n0 * sizeof(D));
        for (int y = 0; y < r.height; ++y) {
            const S* s = rowAt(src, srcStep, y);
            D* d = rowAt(dst, dstStep, y);
            const int n = r.width;
            if constexpr (std::is_same_v<RowFn, std::nullptr_t>) {
                for (int i = 0; i < n; ++i) d[i] = fn(s[i]);
            } else {
                rowFn(s, d, n);
            }
        }
    }
}

// Pointers, sizes, then (where the form checks them) steps below 1; C3 and C4 forms first test
// the width, then run as C1 on rows three or four times as wide.
template <class S, class D, class L, bool CheckSteps, class Fn, class RowFn = std::nullptr_t>
PxlStatus checkedConvert(const S* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi, Fn fn, RowFn rowFn = nullptr)
{
    if constexpr (L::mem > 1 && !L::hasAlpha) {
        if (roi.width < 1) return pxlStatusBadSize;
        if (roi.width > INT32_MAX / L::mem) return pxlStatusBadSize;
    }
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (CheckSteps && (srcStep < 1 || dstStep < 1)) return pxlStatusBadStep;
    convertRows<S, D, L>(pSrc, srcStep, pDst, dstStep, roi, fn, rowFn);
    return pxlStatusOk;
}

}  // namespace

// ---- Convert -------------------------------------------------------------------------------------

template <class S, class D, class L>
PxlStatus convert(const S* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi)
{
    return checkedConvert<S, D, L, true>(pSrc, srcStep, pDst, dstStep, roi,
                                                      [](S x) { return saturateTo<D>(x); });
}

template <class S, class D, class L>
PxlStatus convertRound(const S* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi, PxlRoundMode code)
{
    PxlStatus st = pxlStatusOk;
    withRoundCode(code, [&](auto c) {
        constexpr int Code = decltype(c)::value;
        st = checkedConvert<S, D, L, true>(pSrc, srcStep, pDst, dstStep, roi, [](S x) { return roundToInt<D, Code>(x); },
                                           [](const S* s, D* d, int n) { krnRoundRow<D, Code>(s, d, n); });
    });
    return st;
}

// The source scaled by 2^-f, then rounded by the code and saturated. A float source is scaled in
// double, which holds x * 2^-f exactly; an integer source is scaled exactly in 64-bit integers.
// The 32s-source forms do not check steps.
template <class S, class D>
PxlStatus convertSfs(const S* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi, PxlRoundMode code, int f)
{
    constexpr bool steps = !std::is_same_v<S, Pxl32s>;
    PxlStatus st = pxlStatusOk;
    withRoundCode(code, [&](auto c) {
        constexpr int Code = decltype(c)::value;
        if constexpr (kFloat<S>) {
            const int e = scaleExponent(f);
            st = checkedConvert<S, D, C1, steps>(pSrc, srcStep, pDst, dstStep, roi,
                                                 [e](S x) { return roundToInt<D, Code>(std::ldexp(double(x), e)); });
        } else {
            st = checkedConvert<S, D, C1, steps>(pSrc, srcStep, pDst, dstStep, roi,
                                                 [f](S x) { return scaleInteger<D, Code>(x, f); });
        }
    });
    return st;
}

// 32f to 32u over the same memory: each sample is read as float and written back as unsigned.
PxlStatus convert32f32uInPlace(Pxl32f* pSrcDst, int step, PxliSize roi, PxlRoundMode code, int f)
{
    if (!pSrcDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (step < 1) return pxlStatusBadStep;
    const int e = scaleExponent(f);
    withRoundCode(code, [&](auto c) {
        for (int y = 0; y < roi.height; ++y) {
            auto* row = reinterpret_cast<Pxl32u*>(rowAt(pSrcDst, step, y));
            for (int x = 0; x < roi.width; ++x)
                row[x] = roundToInt<Pxl32u, decltype(c)::value>(std::ldexp(double(std::bit_cast<Pxl32f>(row[x])), e));
        }
    });
    return pxlStatusOk;
}

// ---- Scale -------------------------------------------------------------------------------------

namespace {
// The nearest integer to t by truncation, lowered to even where t is an odd integer itself.
inline int32_t truncLowerOddTie(double t)
{
    int32_t n = static_cast<int32_t>(t);
    if ((n & 1) && double(n) == t) --n;
    return n;
}
}  // namespace

// 8u onto the whole range of 16u, 16s or 32s: 0 to the minimum, 255 to the maximum, evenly.
template <class D, class L>
PxlStatus scaleFrom8u(const Pxl8u* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi)
{
    return checkedConvert<Pxl8u, D, L, true>(pSrc, srcStep, pDst, dstStep, roi, [](Pxl8u x) {
        if constexpr (std::is_same_v<D, Pxl16u>) return static_cast<D>(x * 257);
        else if constexpr (std::is_same_v<D, Pxl16s>) return static_cast<D>(x * 257 - 32768);
        else return x == 0 ? D(INT32_MIN) : static_cast<D>((int32_t(x) - 128) * 16843009 + 8421504);
    });
}

template <class L>
PxlStatus scale8u32f(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roi, Pxl32f vMin, Pxl32f vMax)
{
    if (!(vMax > vMin)) return pxlStatusBadScaleRange;
    const Pxl32f q = (vMax - vMin) / 255.0f;
    return checkedConvert<Pxl8u, Pxl32f, L, true>(pSrc, srcStep, pDst, dstStep, roi,
                                                                [vMin, q](Pxl8u x) { return vMin + Pxl32f(x) * q; });
}

// 16s, 16u or 32s onto 0..255. The fast form (any hint but 2) works on the bits; the accurate
// form rounds (x - min) * 255 / range to nearest.
template <class S, class L>
PxlStatus scaleTo8u(const S* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi, PxlHint hint)
{
    if (hint == 2) {
        return checkedConvert<S, Pxl8u, L, true>(pSrc, srcStep, pDst, dstStep, roi, [](S x) {
            double t;
            if constexpr (std::is_same_v<S, Pxl16s>) t = double(x) * 0.0038910505827516317 + 128.001953125;
            else if constexpr (std::is_same_v<S, Pxl16u>) t = double(x) / 257.0 + 0.5;
            else t = (double(x) + 2147483648.0) / 16843009.0 + 0.5;
            return static_cast<Pxl8u>(truncLowerOddTie(t));
        });
    }
    return checkedConvert<S, Pxl8u, L, true>(pSrc, srcStep, pDst, dstStep, roi, [](S x) {
        if constexpr (std::is_same_v<S, Pxl16s>) {
            const int32_t v = x;
            return static_cast<Pxl8u>(((v - int32_t(uint32_t(v) >> 8)) >> 8) - 128);
        } else if constexpr (std::is_same_v<S, Pxl16u>) {
            const int32_t v = x;
            return static_cast<Pxl8u>((v - (v >> 8)) >> 8);
        } else {
            return static_cast<Pxl8u>((uint32_t(x) ^ 0x80000000u) >> 24);
        }
    });
}

// vMin..vMax onto 0..255: at or above vMax 255, at or below vMin 0, NaN 0, in between
// x * factor + term + 0.5 truncated with exact ties lowered to even.
template <class L>
PxlStatus scale32f8u(const Pxl32f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi, Pxl32f vMin, Pxl32f vMax)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (!(vMax > vMin)) return pxlStatusBadScaleRange;
    const Pxl32f factor = 255.0f / (vMax - vMin);
    const double bias = double(-vMin * factor) + 0.5;
    return checkedConvert<Pxl32f, Pxl8u, L, true>(pSrc, srcStep, pDst, dstStep, roi, [=](Pxl32f x) {
        if (x >= vMax) return Pxl8u(255);
        if (x <= vMin || x != x) return Pxl8u(0);
        return static_cast<Pxl8u>(truncLowerOddTie(double(x) * double(factor) + bias));
    });
}

// ---- ScaleC ------------------------------------------------------------------------------------
// saturate(x * mVal + aVal) in double: integer targets clamp in floating point and round to
// nearest with ties to even (NaN gives 0); 32f targets clamp to the finite float range.

namespace {
// With the mode at nearest, adding and taking away 1.5 * 2^52 rounds any |v| < 2^51 to the
// nearest integer with ties to even, in two plain operations.
inline double nearestEven(double v)
{
    constexpr double kShift = 6755399441055744.0;
    return (v + kShift) - kShift;
}

template <class D> inline D scaleCValue(double v)
{
    if constexpr (std::is_same_v<D, Pxl64f>) {
        return v;
    } else if constexpr (std::is_same_v<D, Pxl32f>) {
        return static_cast<Pxl32f>(v > FLT_MAX ? FLT_MAX : v < -FLT_MAX ? -FLT_MAX : v);
    } else {
        using L = std::numeric_limits<D>;
        v = v == v ? v : 0.0;
        v = v > double(L::min()) ? v : double(L::min());
        v = v < double(L::max()) ? v : double(L::max());
        using I = std::conditional_t<(sizeof(D) < 4), int32_t, int64_t>;
        return static_cast<D>(static_cast<I>(nearestEven(v)));
    }
}

constexpr double kUnitTolerance = 2.220446049250313e-16;

#if defined(__AVX512F__) && defined(__AVX512VL__) && defined(__AVX512DQ__)
// Eight samples of S as doubles (exact for every S).
template <class S> inline __m512d loadAsDouble(const S* p)
{
    if constexpr (std::is_same_v<S, Pxl64f>) return _mm512_loadu_pd(p);
    else if constexpr (std::is_same_v<S, Pxl32f>) return _mm512_cvtps_pd(_mm256_loadu_ps(p));
    else if constexpr (std::is_same_v<S, Pxl32s>) return _mm512_cvtepi32_pd(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)));
    else {
        const __m128i raw = sizeof(S) == 1 ? _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))
                                           : _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        __m256i w;
        if constexpr (std::is_same_v<S, Pxl8u>) w = _mm256_cvtepu8_epi32(raw);
        else if constexpr (std::is_same_v<S, Pxl8s>) w = _mm256_cvtepi8_epi32(raw);
        else if constexpr (std::is_same_v<S, Pxl16u>) w = _mm256_cvtepu16_epi32(raw);
        else w = _mm256_cvtepi16_epi32(raw);
        return _mm512_cvtepi32_pd(w);
    }
}

// Eight values of x * m + a stored as D by scaleCValue's rule: floats clamped to the finite
// range with NaN kept; integers clamped, NaN zeroed by the conversion's mask, rounded to nearest
// with ties to even in the conversion itself, and narrowed with nothing left to saturate.
template <class D> inline void storeScaled(D* p, __m512d v)
{
    if constexpr (std::is_same_v<D, Pxl64f>) {
        _mm512_storeu_pd(p, v);
    } else if constexpr (std::is_same_v<D, Pxl32f>) {
        // min and max return their second operand where either is NaN, so NaN passes through.
        v = _mm512_max_pd(_mm512_set1_pd(-FLT_MAX), _mm512_min_pd(_mm512_set1_pd(FLT_MAX), v));
        _mm256_storeu_ps(p, _mm512_cvt_roundpd_ps(v, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC));
    } else {
        using L = std::numeric_limits<D>;
        const __mmask8 ordered = _mm512_cmp_pd_mask(v, v, _CMP_ORD_Q);
        v = _mm512_min_pd(_mm512_max_pd(v, _mm512_set1_pd(double(L::min()))), _mm512_set1_pd(double(L::max())));
        const __m256i k = _mm512_maskz_cvt_roundpd_epi32(ordered, v, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
        if constexpr (sizeof(D) == 1) _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm256_cvtepi32_epi8(k));
        else if constexpr (sizeof(D) == 2) _mm_storeu_si128(reinterpret_cast<__m128i*>(p), _mm256_cvtepi32_epi16(k));
        else _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), k);
    }
}
#elif defined(__AVX2__)
// Four samples of S as doubles (exact for every S).
template <class S> inline __m256d loadAsDouble(const S* p)
{
    if constexpr (std::is_same_v<S, Pxl64f>) return _mm256_loadu_pd(p);
    else if constexpr (std::is_same_v<S, Pxl32f>) return _mm256_cvtps_pd(_mm_loadu_ps(p));
    else if constexpr (std::is_same_v<S, Pxl32s>) return _mm256_cvtepi32_pd(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)));
    else {
        int32_t four32;
        int64_t four64;
        __m128i raw;
        if constexpr (sizeof(S) == 1) {
            std::memcpy(&four32, p, 4);
            raw = _mm_cvtsi32_si128(four32);
        } else {
            std::memcpy(&four64, p, 8);
            raw = _mm_cvtsi64_si128(four64);
        }
        __m128i w;
        if constexpr (std::is_same_v<S, Pxl8u>) w = _mm_cvtepu8_epi32(raw);
        else if constexpr (std::is_same_v<S, Pxl8s>) w = _mm_cvtepi8_epi32(raw);
        else if constexpr (std::is_same_v<S, Pxl16u>) w = _mm_cvtepu16_epi32(raw);
        else w = _mm_cvtepi16_epi32(raw);
        return _mm256_cvtepi32_pd(w);
    }
}

// Four values stored as D by scaleCValue's rule; the conversions round by the nearest mode the
// call holds. Integers: NaN zeroed, clamped, converted, and packed with nothing to saturate.
template <class D> inline void storeScaled(D* p, __m256d v)
{
    if constexpr (std::is_same_v<D, Pxl64f>) {
        _mm256_storeu_pd(p, v);
    } else if constexpr (std::is_same_v<D, Pxl32f>) {
        v = _mm256_max_pd(_mm256_set1_pd(-FLT_MAX), _mm256_min_pd(_mm256_set1_pd(FLT_MAX), v));
        _mm_storeu_ps(p, _mm256_cvtpd_ps(v));
    } else {
        using L = std::numeric_limits<D>;
        v = _mm256_and_pd(v, _mm256_cmp_pd(v, v, _CMP_ORD_Q));
        v = _mm256_min_pd(_mm256_max_pd(v, _mm256_set1_pd(double(L::min()))), _mm256_set1_pd(double(L::max())));
        const __m128i k = _mm256_cvtpd_epi32(v);
        if constexpr (sizeof(D) == 4) {
            _mm_storeu_si128(reinterpret_cast<__m128i*>(p), k);
        } else {
            const __m128i w = std::is_same_v<D, Pxl16u> ? _mm_packus_epi32(k, k) : _mm_packs_epi32(k, k);
            if constexpr (sizeof(D) == 2) {
                _mm_storel_epi64(reinterpret_cast<__m128i*>(p), w);
            } else {
                const int32_t bytes = _mm_cvtsi128_si32(std::is_same_v<D, Pxl8u> ? _mm_packus_epi16(w, w) : _mm_packs_epi16(w, w));
                std::memcpy(p, &bytes, 4);
            }
        }
    }
}
#endif

// A row of ScaleC: eight samples at a time in 512-bit vectors, or four in 256-bit ones, where the
// processor has them (the same double arithmetic, so the same bits), then one by one.
template <class S, class D>
inline void scaleCRow(const S* s, D* d, int n, double m, double a)
{
    int i = 0;
#if defined(__AVX512F__) && defined(__AVX512VL__) && defined(__AVX512DQ__)
    PXL_AVX512_KERNEL_BEGIN
    const __m512d vm = _mm512_set1_pd(m), va = _mm512_set1_pd(a);
    for (; i + 8 <= n; i += 8)
        storeScaled<D>(d + i, _mm512_add_round_pd(_mm512_mul_round_pd(loadAsDouble<S>(s + i), vm, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC),
                                                  va, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC));
    PXL_AVX512_KERNEL_END
#elif defined(__AVX2__)
    const __m256d vm = _mm256_set1_pd(m), va = _mm256_set1_pd(a);
    for (; i + 4 <= n; i += 4) storeScaled<D>(d + i, _mm256_add_pd(_mm256_mul_pd(loadAsDouble<S>(s + i), vm), va));
#endif
    for (; i < n; ++i) d[i] = scaleCValue<D>(double(s[i]) * m + a);
}
}  // namespace

template <class S, class D>
PxlStatus scaleC(const S* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, D* pDst, int dstStep, PxliSize roi, PxlHint)
{
    if constexpr (std::is_same_v<S, D>) {
        // Multiplying by one and adding nothing is a copy, which makes its own checks.
        if (std::fabs(mVal - 1.0) <= kUnitTolerance && std::fabs(aVal) < kUnitTolerance) {
            const PxliSize bytes{roi.width < 1 || roi.width > INT32_MAX / int(sizeof(S)) ? std::min(roi.width, 0) : roi.width * int(sizeof(S)),
                                 roi.height};
            return copy<uint8_t, C1>(reinterpret_cast<const uint8_t*>(pSrc), srcStep, reinterpret_cast<uint8_t*>(pDst), dstStep, bytes);
        }
    }
    const NearestRounding nearest;
    return checkedConvert<S, D, C1, true>(
        pSrc, srcStep, pDst, dstStep, roi, [mVal, aVal](S x) { return scaleCValue<D>(double(x) * mVal + aVal); },
        [mVal, aVal](const S* s, D* d, int n) { scaleCRow<S, D>(s, d, n, mVal, aVal); });
}

template <class T>
PxlStatus scaleCInPlace(Pxl64f mVal, Pxl64f aVal, T* pSrcDst, int step, PxliSize roi, PxlHint hint)
{
    return scaleC<T, T>(pSrcDst, step, mVal, aVal, pSrcDst, step, roi, hint);
}

}  // namespace pxl::exch

#include "inst/exchange/convert.inc"
