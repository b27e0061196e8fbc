// Multiply and divide. Mul and MulC are the scaled engine with the product; Div, DivC and
// Div_Round round each exact quotient once (in double, or in float rows where float is exact);
// MulScale treats samples as fractions of full scale; MulC64f multiplies by double constants.
#include "arithmetic/binary.hpp"
#include "arithmetic/quotient.hpp"
#include "exchange/rounding.hpp"
#include "frame/bind.hpp"

#include <bit>
#include <cmath>

namespace pxl::arith {

// ---- Mul ---------------------------------------------------------------------------------------
// The exact product fits the wide type: 65025 for 8u, 4294836225 unsigned for 16u, 2^30 for 16s.
// Left shifts saturate the product to 16 bits first; 16u needs 64 bits for the rounding term from
// f = 17 to 32.
struct MulOp {
    static constexpr bool kSaturatingRows = false, kAdds = false;
    static constexpr Narrow8u kNarrow8u = Narrow8u::Mul;
    template <class W> static W apply(W first, W second) { return first * second; }
    template <class T> static constexpr int bits = sizeof(T) == 1 ? 16 : std::is_signed_v<T> ? 30 : 32;
    template <class T> static constexpr int upLimit = sizeof(T) == 1 ? 7 : std::is_signed_v<T> ? 14 : 15;
    template <class T> static constexpr int wideAbove = std::is_same_v<T, Pxl16u> ? 16 : 64;
    // 16u decides its shortcuts before the pointer checks, so Set or Copy reports a null pointer.
    template <class T> static constexpr bool kShortcutFirst = std::is_same_v<T, Pxl16u>;
    // Times zero is zero at any scale; times one with no scale is a copy. Not for floats, where
    // NaN times zero is NaN.
    template <class T> static Shortcut constantShortcut(T v, int f)
    {
        if constexpr (std::is_integral_v<T>) {
            if (v == 0) return Shortcut::SetZero;
            if (v == 1 && f == 0) return Shortcut::Copy;
        }
        return Shortcut::None;
    }
};

namespace {

// ---- Quotients -------------------------------------------------------------------------------------
// Rounding of a quotient by the division codes: 0 toward zero, 1 nearest with ties to even,
// anything else (only 2 reaches here) half up, each exact by floor and fraction.
template <int Code> inline double roundQuotient(double q)
{
    if constexpr (Code == 0) return std::trunc(q);
    if constexpr (Code == 1) return roundIntegral<kNearestEven>(q);
    const double t = std::floor(q);
    return q - t >= 0.5 ? t + 1 : t;
}

// b / a scaled by 2^-f, for a divisor a of an integer type: a zero divisor gives the end of the
// range that b's sign points to (0 for b = 0) and raises the flag. Beyond |f| = 40 every quotient
// of 16-bit samples is 0 or saturated, so the multiplier stays exact.
template <class T, int Code> struct IntegerQuotient {
    double m;
    explicit IntegerQuotient(int f) : m(std::ldexp(1.0, -std::clamp(f, -40, 40))) {}
    T operator()(T a, T b, bool& zero) const
    {
        using L = std::numeric_limits<T>;
        if (a == 0) {
            zero = true;
            return b > 0 ? L::max() : b < 0 ? L::min() : T(0);
        }
        double q = roundQuotient<Code>(double(b) * m / double(a));
        q = q < double(L::min()) ? double(L::min()) : q > double(L::max()) ? double(L::max()) : q;
        return static_cast<T>(q);
    }
};

// 16u division in fixed point with 16 fraction bits: the quotient truncated to 1/65536, then
// rounded by adding 32767, and 2 more where its integer part is odd. This is the required rule,
// not exact rounding: an odd integer part with a fraction of 32767/65536 rounds up.
struct FixedQuotient16u {
    int f;
    Pxl16u operator()(Pxl16u a, Pxl16u b, bool& zero) const
    {
        if (a == 0) {
            zero = true;
            return b ? 65535 : 0;
        }
        if (f > 16) return 0;
        if (f < -31) return b ? 65535 : 0;
        uint64_t q;
        if (f >= 0) {
            q = (uint64_t{b} << 16) / (uint64_t{a} << f);
        } else {
            const uint64_t w = uint64_t{b} << -f;
            if (w == 0) return 0;
            q = (w << 16) / a;
        }
        const uint64_t r = (q + ((q & 65536) >> 15) + 32767) >> 16;
        return static_cast<Pxl16u>(r > 65535 ? 65535 : r);
    }
};

// 32f: the quotient rounded once; a zero divisor (NaN is not zero) gives +-infinity by the sign
// of b, or the NaN 0xFFC00000 for b zero or NaN, and raises the flag. Adding +0 turns a -0
// divisor into +0 (under the nearest mode held for the call), so b / 0 is already infinity of
// b's sign; only a NaN quotient of a zero divisor needs replacing, which rows do in a second
// pass when they met a zero.
inline Pxl32f rawQuotient(Pxl32f a, Pxl32f b) { return b / (a + 0.0f); }
inline Pxl32f zeroDivisorNaN(Pxl32f a, Pxl32f q)
{
    return ((a == 0.0f) & (q != q)) ? std::bit_cast<Pxl32f>(0xFFC00000u) : q;
}

struct FloatQuotient {
    Pxl32f operator()(Pxl32f a, Pxl32f b, bool& zero) const
    {
        zero |= a == 0.0f;
        return zeroDivisorNaN(a, rawQuotient(a, b));
    }
};

// The quotient rule of each type for Div and DivC (ties to even), and for Div_Round (by code).
template <class T, class Body> void withQuotient(int f, int code, bool rounding, Body&& body)
{
    if constexpr (std::is_floating_point_v<T>) {
        body(FloatQuotient{});
    } else if constexpr (std::is_same_v<T, Pxl16u>) {
        if (!rounding) return body(FixedQuotient16u{f});
        withRoundCode(code, [&](auto c) { body(IntegerQuotient<T, decltype(c)::value>(f)); });
    } else {
        if (!rounding) return body(IntegerQuotient<T, 1>(f));
        withRoundCode(code, [&](auto c) { body(IntegerQuotient<T, decltype(c)::value>(f)); });
    }
}

inline PxlStatus divStatus(bool zero) { return zero ? pxlStatusWarnDivideByZero : pxlStatusOk; }

// The checks of the division forms: 8u, 16s and 32f check pointers, sizes and steps (AC4 the
// steps first), 16u pointers and sizes only; Div_Round always pointers, sizes, steps.
template <class T, class L> constexpr bool kStepsFirst = L::hasAlpha && !std::is_same_v<T, Pxl16u>;
template <class T> constexpr bool kChecksSteps = !std::is_same_v<T, Pxl16u>;

template <class T, class L, bool Rounding>
PxlStatus checkDivision(const T* a, int as, const T* b, int bs, const T* d, int ds, PxliSize roi)
{
    const bool badStep = as < 1 || bs < 1 || ds < 1;
    if constexpr (!Rounding && kStepsFirst<T, L>) {
        if (badStep) return pxlStatusBadStep;
    }
    if (!a || !b || !d) return pxlStatusNullPointer;
    if (roi.height < 1 || roi.width < 1) return pxlStatusBadSize;
    if constexpr (Rounding || (kChecksSteps<T> && !kStepsFirst<T, L>)) {
        if (badStep) return pxlStatusBadStep;
    }
    return pxlStatusOk;
}

}  // namespace

// ---- Div, Div_Round ------------------------------------------------------------------------------

namespace {
// Div's rows for the forms without alpha, where whole vectors of quotients are worth it: 32f
// and 8u everywhere, 16s for f >= 0 (where float quotients are exact).
template <class T>
constexpr bool kQuotientRows = std::is_same_v<T, Pxl32f> || std::is_same_v<T, Pxl8u> || std::is_same_v<T, Pxl16s>;

// The rows of one call, with the factors made once; each row returns whether a divisor was zero.
template <class T> class QuotientRows {
public:
    explicit QuotientRows(int f) : scale_(f), tail_(f) {}
    bool operator()(const T* a, const T* b, T* d, int n) const
    {
        if constexpr (std::is_same_v<T, Pxl32f>) {
            int zeros = 0;
            for (int i = 0; i < n; ++i) {
                d[i] = rawQuotient(a[i], b[i]);
                zeros |= a[i] == 0.0f;
            }
            if (zeros == 0) return false;
            for (int i = 0; i < n; ++i) d[i] = zeroDivisorNaN(a[i], d[i]);
            return true;
        } else {
            bool zero = false;
            int i = krnQuotientRow(a, b, d, n, scale_, zero);
            for (; i < n; ++i) d[i] = tail_(a[i], b[i], zero);
            return zero;
        }
    }

private:
    QuotientScale scale_;
    IntegerQuotient<T, 1> tail_;
};
}  // namespace

template <class T, class L>
PxlStatus divide(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi, int f)
{
    if (const PxlStatus st = checkDivision<T, L, false>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi); st != pxlStatusOk)
        return st;
    const NearestRounding nearest;
    bool zero = false;
    if constexpr (kQuotientRows<T> && !L::hasAlpha) {
        if (!std::is_same_v<T, Pxl16s> || f >= 0) {
            const QuotientRows<T> rows(f);
            for (int y = 0; y < roi.height; ++y)
                zero |= rows(rowAt(pSrc1, src1Step, y), rowAt(pSrc2, src2Step, y), rowAt(pDst, dstStep, y), roi.width * L::mem);
            return divStatus(zero);
        }
    }
    withQuotient<T>(f, 1, false, [&](auto quotient) {
        pairRows<T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, [&](T a, T b) { return quotient(a, b, zero); });
    });
    return divStatus(zero);
}

template <class T, class L>
PxlStatus divideInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi, int f)
{
    return divide<T, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, f);
}

template <class L>
PxlStatus divideFloat(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl32f* pDst, int dstStep, PxliSize roi)
{
    return divide<Pxl32f, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, 0);
}

template <class L>
PxlStatus divideFloatInPlace(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi)
{
    return divide<Pxl32f, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, 0);
}

template <class T, class L>
PxlStatus divideRound(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi,
                      PxlRoundMode code, int f)
{
    if (const PxlStatus st = checkDivision<T, L, true>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi); st != pxlStatusOk)
        return st;
    if (code < 0 || code > 2) return pxlStatusBadRoundMode;
    bool zero = false;
    withQuotient<T>(f, code, true, [&](auto quotient) {
        pairRows<T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, [&](T a, T b) { return quotient(a, b, zero); });
    });
    return divStatus(zero);
}

template <class T, class L>
PxlStatus divideRoundInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi, PxlRoundMode code, int f)
{
    return divideRound<T, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, code, f);
}

// ---- DivC ----------------------------------------------------------------------------------------
// Pointers (values, source, destination), sizes, steps (not for 16u), then a zero constant in any
// channel, before anything is written. Integer forms give Div's quotient for that divisor; 32f
// multiplies by the reciprocal rounded to float, as a multiplication by a constant does.

template <class T, class L>
PxlStatus divideConstant(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, PxliSize roi, int f)
{
    if (!value || !pSrc || !pDst) return pxlStatusNullPointer;
    if (roi.height < 1 || roi.width < 1) return pxlStatusBadSize;
    if constexpr (kChecksSteps<T>) {
        if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    }
    for (int c = 0; c < L::proc; ++c)
        if (value[c] == T(0)) return pxlStatusDivideByZero;
    if constexpr (std::is_floating_point_v<T>) {
        Pxl32f r[4] = {};
        for (int c = 0; c < L::proc; ++c) r[c] = 1.0f / value[c];
        constantRows<T, Pxl32f, L>(pSrc, srcStep, r, pDst, dstStep, roi, [](Pxl32f rc, Pxl32f x) { return x * rc; });
    } else {
        bool zero = false;
        withQuotient<T>(f, 1, false, [&](auto quotient) {
            constantRows<T, T, L>(pSrc, srcStep, value, pDst, dstStep, roi, [&](T v, T x) { return quotient(v, x, zero); });
        });
    }
    return pxlStatusOk;
}

template <class T>
PxlStatus divideConstantValue(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, PxliSize roi, int f)
{
    return divideConstant<T, C1>(pSrc, srcStep, &value, pDst, dstStep, roi, f);
}
template <class T> PxlStatus divideConstantValueInPlace(T value, T* pSrcDst, int srcDstStep, PxliSize roi, int f)
{
    return divideConstant<T, C1>(pSrcDst, srcDstStep, &value, pSrcDst, srcDstStep, roi, f);
}
template <class T, class L>
PxlStatus divideConstantArray(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, PxliSize roi, int f)
{
    return divideConstant<T, L>(pSrc, srcStep, value, pDst, dstStep, roi, f);
}
template <class T, class L>
PxlStatus divideConstantArrayInPlace(const T* value, T* pSrcDst, int srcDstStep, PxliSize roi, int f)
{
    return divideConstant<T, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi, f);
}
PxlStatus divideConstantFloat(const Pxl32f* pSrc, int srcStep, Pxl32f value, Pxl32f* pDst, int dstStep, PxliSize roi)
{
    return divideConstant<Pxl32f, C1>(pSrc, srcStep, &value, pDst, dstStep, roi, 0);
}
PxlStatus divideConstantFloatInPlace(Pxl32f value, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi)
{
    return divideConstant<Pxl32f, C1>(pSrcDst, srcDstStep, &value, pSrcDst, srcDstStep, roi, 0);
}
template <class L>
PxlStatus divideConstantArrayFloat(const Pxl32f* pSrc, int srcStep, const Pxl32f* value, Pxl32f* pDst, int dstStep, PxliSize roi)
{
    return divideConstant<Pxl32f, L>(pSrc, srcStep, value, pDst, dstStep, roi, 0);
}
template <class L>
PxlStatus divideConstantArrayFloatInPlace(const Pxl32f* value, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi)
{
    return divideConstant<Pxl32f, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi, 0);
}

// ---- MulScale, MulCScale -----------------------------------------------------------------------
// a * b as a fraction of full scale: (p + (p >> n) + 1) >> n for the product p of two n-bit
// samples, a fast stand-in for p / max that maps max * x to x and 0 to 0.

namespace {
template <class T> inline T fractionProduct(uint32_t a, uint32_t b)
{
    constexpr int n = 8 * sizeof(T);
    const uint32_t p = a * b;
    return static_cast<T>((p + (p >> n) + 1) >> n);
}
}  // namespace

// C1 and AC4: pointers, a step below 1, sizes; C3 and C4 test the width first.
template <class T, class L>
PxlStatus mulScale(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi)
{
    if constexpr (L::mem > 1 && !L::hasAlpha) {
        if (roi.width < 1 || roi.width > INT32_MAX / L::mem) return pxlStatusBadSize;
    }
    if (!pSrc1 || !pSrc2 || !pDst) return pxlStatusNullPointer;
    if (src1Step < 1 || src2Step < 1 || dstStep < 1) return pxlStatusBadStep;
    if (roi.width < 1 || roi.height < 1) return pxlStatusBadSize;
    pairRows<T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, [](T a, T b) { return fractionProduct<T>(a, b); });
    return pxlStatusOk;
}

template <class T, class L>
PxlStatus mulScaleInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi)
{
    return mulScale<T, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi);
}

// Pointers (values, source, destination), steps, sizes, for every layout.
template <class T, class L>
PxlStatus mulCScaleArray(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, PxliSize roi)
{
    if (!value || !pSrc || !pDst) return pxlStatusNullPointer;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (roi.width < 1 || roi.height < 1) return pxlStatusBadSize;
    constantRows<T, T, L>(pSrc, srcStep, value, pDst, dstStep, roi, [](T v, T x) { return fractionProduct<T>(x, v); });
    return pxlStatusOk;
}
template <class T, class L>
PxlStatus mulCScaleArrayInPlace(const T* value, T* pSrcDst, int srcDstStep, PxliSize roi)
{
    return mulCScaleArray<T, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi);
}
template <class T> PxlStatus mulCScaleValue(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, PxliSize roi)
{
    return mulCScaleArray<T, C1>(pSrc, srcStep, &value, pDst, dstStep, roi);
}
template <class T> PxlStatus mulCScaleValueInPlace(T value, T* pSrcDst, int srcDstStep, PxliSize roi)
{
    return mulCScaleArray<T, C1>(pSrcDst, srcDstStep, &value, pSrcDst, srcDstStep, roi);
}

// ---- MulC64f ---------------------------------------------------------------------------------------
// Each sample times its channel's double constant, clamped to the integer type and rounded by the
// code (0 toward zero, 1 nearest even, any other half up); 32f stores the product rounded once.
// Pointers in the order source, destination, constants; then sizes. The hint is not read.

namespace {
template <class T, int Code> inline T scaledByDouble(double v)
{
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(v);
    } else {
        using L = std::numeric_limits<T>;
        v = v == v ? v : 0.0;
        v = v < double(L::min()) ? double(L::min()) : v > double(L::max()) ? double(L::max()) : v;
        return static_cast<T>(roundQuotient<Code>(v));
    }
}
}  // namespace

template <class T, class L>
PxlStatus mulC64f(const T* pSrc, int srcStep, const Pxl64f* value, T* pDst, int dstStep, PxliSize roi, PxlHint, PxlRoundMode code)
{
    if (!pSrc || !pDst || !value) return pxlStatusNullPointer;
    if (roi.width < 1 || roi.height < 1) return pxlStatusBadSize;
    withRoundCode(code, [&](auto c) {
        constexpr int Code = decltype(c)::value;
        constantRows<T, Pxl64f, L>(pSrc, srcStep, value, pDst, dstStep, roi,
                                     [](Pxl64f v, T x) { return scaledByDouble<T, Code>(double(x) * v); });
    });
    return pxlStatusOk;
}

template <class T, class L>
PxlStatus mulC64fInPlace(T* pSrcDst, int srcDstStep, const Pxl64f* value, PxliSize roi, PxlHint hint, PxlRoundMode code)
{
    return mulC64f<T, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi, hint, code);
}

}  // namespace pxl::arith

#include "inst/arithmetic/mul_div.inc"
