// Add and subtract, image with image and image with constant, for 8u, 16u and 16s with the scale
// factor and for 32f with plain IEEE arithmetic. One body per form serves all four operations:
// the operation is a small type (first + second, or second - first) and the scale rule a
// function object chosen once per call.
#include "arithmetic/arithmetic.hpp"
#include "arithmetic/saturating.hpp"
#include "arithmetic/scale.hpp"
#include "exchange/exchange.hpp"
#include "frame/bind.hpp"

namespace pxl::arith {

// The two operations, as first op second: Add is first + second, Sub is second - first. The
// bits of the largest |s| place the all-zero shortcut. An unsigned 16u difference is clamped at
// 0 before it is scaled, which the rule would give anyway.
struct AddOp {
    template <class W> static W apply(W first, W second) { return first + second; }
    template <class T> static constexpr int bits = sizeof(T) == 1 ? 9 : std::is_signed_v<T> ? 16 : 17;
};
struct SubOp {
    template <class W> static W apply(W first, W second)
    {
        if constexpr (std::is_unsigned_v<W>) return second > first ? second - first : W(0);
        else return second - first;
    }
    template <class T> static constexpr int bits = sizeof(T) == 1 ? 8 : 16;
};

namespace {

template <class T> using Wide = std::conditional_t<std::is_floating_point_v<T>, T, SfsWide<T>>;

// Largest left shift that still matters: beyond it every non-zero result saturates.
template <class T> constexpr int kUpLimit = sizeof(T) == 1 ? 7 : 15;

// Runs body(finish) where finish turns an exact result into the stored sample: the scaled and
// saturated value for integers, the value itself for floats. Returns false for the all-zero plan,
// which the caller serves through Set.
template <class T, class Op, class Body> bool withFinish(int f, Body&& body)
{
    if constexpr (std::is_floating_point_v<T>) {
        body([](T v) { return v; });
        return true;
    } else {
        const ScalePlan plan = planScale(f, Op::template bits<T>, kUpLimit<T>);
        if (plan.kind == ScaleKind::Zero) return false;
        withScaler<Wide<T>>(plan, [&](auto scale) { body([scale](Wide<T> s) { return saturate<T>(scale(s)); }); });
        return true;
    }
}

// All processed samples of the region set to zero, alpha left alone.
template <class T, class L> PxlStatus setZero(T* d, int ds, PxliSize roi)
{
    const Bits<T> zero[4] = {};
    if constexpr (L::hasAlpha) return exch::setPixels<Bits<T>, AC4>(zero, asBits(d), ds, roi);
    else return exch::setValue<T, 1>(T(0), d, ds, {roi.width * L::mem, roi.height});
}

// The row loops: one channel (or a flattened row) with a constant per sample, and whole pixels.
template <class T, class Op, class L, class Finish>
void binaryRows(const T* a, int as, const T* b, int bs, T* d, int ds, PxliSize roi, Finish finish)
{
    using W = Wide<T>;
    for (int y = 0; y < roi.height; ++y) {
        const T* ra = rowAt(a, as, y);
        const T* rb = rowAt(b, bs, y);
        T* rd = rowAt(d, ds, y);
        if constexpr (L::hasAlpha) {
            for (int x = 0; x < roi.width; ++x)
                for (int c = 0; c < 3; ++c) rd[4 * x + c] = finish(Op::apply(W(ra[4 * x + c]), W(rb[4 * x + c])));
        } else {
            const int n = roi.width * L::mem;
            for (int i = 0; i < n; ++i) rd[i] = finish(Op::apply(W(ra[i]), W(rb[i])));
        }
    }
}

template <class T, class Op, class L, class Finish>
void constantRows(const T* s, int ss, const T* value, T* d, int ds, PxliSize roi, Finish finish)
{
    using W = Wide<T>;
    W v[L::mem] = {};
    for (int c = 0; c < L::proc; ++c) v[c] = W(value[c]);
    for (int y = 0; y < roi.height; ++y) {
        const T* rs = rowAt(s, ss, y);
        T* rd = rowAt(d, ds, y);
        if constexpr (L::mem == 1) {
            for (int i = 0; i < roi.width; ++i) rd[i] = finish(Op::apply(v[0], W(rs[i])));
        } else {
            for (int x = 0; x < roi.width; ++x)
                for (int c = 0; c < L::proc; ++c) rd[L::mem * x + c] = finish(Op::apply(v[c], W(rs[L::mem * x + c])));
        }
    }
}

bool widthTimesFits(int width, int n) { return width <= INT32_MAX / n; }

}  // namespace

// ---- Image with image --------------------------------------------------------------------------
// C1 and AC4: pointers, then height and width. The scale plan is made once; the all-zero plan
// goes through Set.
template <class T, class Op, class L>
PxlStatus binary(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi, int f)
{
    if (!pSrc1 || !pSrc2 || !pDst) return pxlStatusNullPointer;
    if (roi.height < 1 || roi.width < 1) return pxlStatusBadSize;
    if constexpr (!L::hasAlpha) {
        // Rows that follow each other with no gap in all three images are one long row.
        const std::size_t rowBytes = static_cast<std::size_t>(roi.width) * L::mem * sizeof(T);
        const auto gapFree = [rowBytes](int step) { return static_cast<std::size_t>(step) == rowBytes; };
        roi = mergedRows(roi, gapFree(src1Step) && gapFree(src2Step) && gapFree(dstStep));
    }
    if constexpr (std::is_integral_v<T> && !L::hasAlpha) {
        if (f == 0) {
            for (int y = 0; y < roi.height; ++y)
                krnSaturatingRow<T, std::is_same_v<Op, AddOp>>(rowAt(pSrc1, src1Step, y), rowAt(pSrc2, src2Step, y),
                                                              rowAt(pDst, dstStep, y), roi.width * L::mem);
            return pxlStatusOk;
        }
    }
    const bool computed = withFinish<T, Op>(f, [&](auto finish) {
        binaryRows<T, Op, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, finish);
    });
    return computed ? pxlStatusOk : setZero<T, L>(pDst, dstStep, roi);
}

// C3 and C4 are the one-channel form on rows N times as wide. The width is tested before it is
// multiplied (16u tests the height too), so a negative width is a bad size and never wraps.
template <class T, class Op, int N>
PxlStatus binaryWide(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi, int f)
{
    if constexpr (std::is_same_v<T, Pxl16u>) {
        if (roi.width < 1 || roi.height < 1) return pxlStatusBadSize;
    } else {
        if (roi.width < 1) return pxlStatusBadSize;
    }
    if (!widthTimesFits(roi.width, N)) return pxlStatusBadSize;
    return binary<T, Op, C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, {roi.width * N, roi.height}, f);
}

// ---- Image with constant -----------------------------------------------------------------------
// Pointers in the order value array, source, destination; then height and width.
template <class T, class Op, class L>
PxlStatus constant(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, PxliSize roi, int f)
{
    if (!value || !pSrc || !pDst) return pxlStatusNullPointer;
    if (roi.height < 1 || roi.width < 1) return pxlStatusBadSize;
    if constexpr (L::mem > 1 && !L::hasAlpha) {
        // Equal values for every channel: the one-channel loop on rows N times as wide.
        if (std::all_of(value, value + L::mem, [&](T v) { return v == value[0]; }) && widthTimesFits(roi.width, L::mem))
            return constant<T, Op, C1>(pSrc, srcStep, value, pDst, dstStep, {roi.width * L::mem, roi.height}, f);
    }
    if constexpr (std::is_same_v<L, C1> && std::is_same_v<Op, AddOp> && std::is_integral_v<T> && std::is_unsigned_v<T>) {
        // Adding a non-zero value at the saturating end of the scale fills the type's maximum.
        if (f < -(kUpLimit<T>) && value[0] != 0) return exch::setValue<T, 1>(std::numeric_limits<T>::max(), pDst, dstStep, roi);
    }
    if constexpr (std::is_same_v<L, C1> && std::is_integral_v<T>) {
        // Zero with no scale is a copy (and nothing at all in place). Not for floats, where
        // -0 + 0 is +0 and arithmetic quiets a signalling NaN.
        if (value[0] == 0 && f == 0) {
            if (static_cast<const void*>(pSrc) == static_cast<const void*>(pDst) && srcStep == dstStep) return pxlStatusOk;
            return exch::copy<Bits<T>, C1>(asBits(pSrc), srcStep, asBits(pDst), dstStep, roi);
        }
    }
    const bool computed = withFinish<T, Op>(f, [&](auto finish) {
        constantRows<T, Op, L>(pSrc, srcStep, value, pDst, dstStep, roi, finish);
    });
    return computed ? pxlStatusOk : setZero<T, L>(pDst, dstStep, roi);
}

// ---- The exported shapes -------------------------------------------------------------------------
// The in-place forms are the two-image forms with the source-destination as second source and
// destination; the one-channel constant forms take the value by value; 32f has no scale factor.

template <class T, class Op, class L>
PxlStatus binaryEntry(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi, int f)
{
    if constexpr (L::hasAlpha || L::mem == 1) return binary<T, Op, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, f);
    else return binaryWide<T, Op, L::mem>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, f);
}

template <class T, class Op, class L>
PxlStatus binarySfs(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi, int f)
{
    return binaryEntry<T, Op, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, f);
}
template <class T, class Op, class L>
PxlStatus binarySfsInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi, int f)
{
    return binaryEntry<T, Op, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, f);
}
template <class Op, class L>
PxlStatus binaryFloat(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl32f* pDst, int dstStep, PxliSize roi)
{
    return binaryEntry<Pxl32f, Op, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, 0);
}
template <class Op, class L>
PxlStatus binaryFloatInPlace(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi)
{
    return binaryEntry<Pxl32f, Op, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, 0);
}

template <class T, class Op>
PxlStatus constantValueSfs(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, PxliSize roi, int f)
{
    return constant<T, Op, C1>(pSrc, srcStep, &value, pDst, dstStep, roi, f);
}
template <class T, class Op>
PxlStatus constantValueSfsInPlace(T value, T* pSrcDst, int srcDstStep, PxliSize roi, int f)
{
    return constant<T, Op, C1>(pSrcDst, srcDstStep, &value, pSrcDst, srcDstStep, roi, f);
}
template <class T, class Op, class L>
PxlStatus constantArraySfs(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, PxliSize roi, int f)
{
    return constant<T, Op, L>(pSrc, srcStep, value, pDst, dstStep, roi, f);
}
template <class T, class Op, class L>
PxlStatus constantArraySfsInPlace(const T* value, T* pSrcDst, int srcDstStep, PxliSize roi, int f)
{
    return constant<T, Op, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi, f);
}
template <class Op>
PxlStatus constantValueFloat(const Pxl32f* pSrc, int srcStep, Pxl32f value, Pxl32f* pDst, int dstStep, PxliSize roi)
{
    return constant<Pxl32f, Op, C1>(pSrc, srcStep, &value, pDst, dstStep, roi, 0);
}
template <class Op>
PxlStatus constantValueFloatInPlace(Pxl32f value, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi)
{
    return constant<Pxl32f, Op, C1>(pSrcDst, srcDstStep, &value, pSrcDst, srcDstStep, roi, 0);
}
template <class Op, class L>
PxlStatus constantArrayFloat(const Pxl32f* pSrc, int srcStep, const Pxl32f* value, Pxl32f* pDst, int dstStep, PxliSize roi)
{
    return constant<Pxl32f, Op, L>(pSrc, srcStep, value, pDst, dstStep, roi, 0);
}
template <class Op, class L>
PxlStatus constantArrayFloatInPlace(const Pxl32f* value, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi)
{
    return constant<Pxl32f, Op, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi, 0);
}

}  // namespace pxl::arith

#include "inst/arithmetic/add_sub.inc"
