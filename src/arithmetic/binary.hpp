// The engine of the scaled arithmetic families: image with image and image with constant, every
// layout, in place or not, for 8u, 16u and 16s with the scale factor and for 32f without. An
// operation is a small type:
//   apply(first, second)        the exact result in the wide type (Add: first + second);
//   bits<T>, upLimit<T>         where the all-zero and the sign-saturating branches of the scale
//                               rule begin; wideAbove<T> where the rounding term needs 64 bits;
//   constantShortcut<T>(v, f)   what a one-channel constant form can do without a loop, and
//   kShortcutFirst<T>           whether that is decided before the pointer checks;
//   kSaturatingRows, kAdds      whether f = 0 is the processor's saturating add or subtract.
#pragma once

#include "arithmetic/arithmetic.hpp"
#include "arithmetic/rows.hpp"
#include "arithmetic/saturating.hpp"
#include "arithmetic/scale.hpp"
#include "exchange/exchange.hpp"

#include <algorithm>

namespace pxl::arith {

enum class Shortcut { None, Copy, SetZero, SetMax };

namespace {

template <class T> using Wide = std::conditional_t<std::is_floating_point_v<T>, T, SfsWide<T>>;

// Runs body(finish) where finish turns an exact result into the stored sample: the scaled and
// saturated value for integers, the value itself for floats. Returns false for the all-zero plan,
// which the caller serves through Set.
template <class T, class Op, class Body> bool withFinish(int f, Body&& body)
{
    if constexpr (std::is_floating_point_v<T>) {
        body([](T v) { return v; });
        return true;
    } else {
        const ScalePlan plan = planScale(f, Op::template bits<T>, Op::template upLimit<T>, Op::template wideAbove<T>);
        if (plan.kind == ScaleKind::Zero) return false;
        withSfsFinish<T, Wide<T>>(plan, body);
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

// The row loops of the two shapes, with the operation and the scale rule inlined.
template <class T, class Op, class L, class Finish>
void binaryRows(const T* a, int as, const T* b, int bs, T* d, int ds, PxliSize roi, Finish finish)
{
    using W = Wide<T>;
    pairRows<T, L>(a, as, b, bs, d, ds, roi, [finish](T x, T y) { return finish(Op::apply(W(x), W(y))); });
}

template <class T, class Op, class L, class Finish>
void constantRowsOf(const T* s, int ss, const T* value, T* d, int ds, PxliSize roi, Finish finish)
{
    using W = Wide<T>;
    W v[4] = {};
    for (int c = 0; c < L::proc; ++c) v[c] = W(value[c]);
    constantRows<T, W, L>(s, ss, v, d, ds, roi, [finish](W vc, T x) { return finish(Op::apply(vc, W(x))); });
}

inline bool widthTimesFits(int width, int n) { return width <= INT32_MAX / n; }

// A one-channel constant form whose result needs no loop: a copy, or a fill with 0 or the maximum.
template <class T>
PxlStatus takeShortcut(Shortcut cut, const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi)
{
    if (cut == Shortcut::SetZero) return exch::setValue<T, 1>(T(0), pDst, dstStep, roi);
    if (cut == Shortcut::SetMax) return exch::setValue<T, 1>(std::numeric_limits<T>::max(), pDst, dstStep, roi);
    return exch::copy<Bits<T>, C1>(asBits(pSrc), srcStep, asBits(pDst), dstStep, roi);
}

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
    if constexpr (std::is_integral_v<T> && !L::hasAlpha && Op::kSaturatingRows) {
        if (f == 0) {
            for (int y = 0; y < roi.height; ++y)
                krnSaturatingRow<T, Op::kAdds>(rowAt(pSrc1, src1Step, y), rowAt(pSrc2, src2Step, y), rowAt(pDst, dstStep, y),
                                               roi.width * L::mem);
            return pxlStatusOk;
        }
    }
    if constexpr (std::is_same_v<T, Pxl8u> && !L::hasAlpha && requires { Op::kNarrow8u; }) {
        if (f >= 1 && f <= kNarrowMaxShift<Op::kNarrow8u>) {
            for (int y = 0; y < roi.height; ++y)
                krnScaledDownRow8u<Op::kNarrow8u>(rowAt(pSrc1, src1Step, y), rowAt(pSrc2, src2Step, y), rowAt(pDst, dstStep, y),
                                                  roi.width * L::mem, f);
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
    if constexpr (std::is_same_v<L, C1> && Op::template kShortcutFirst<T>) {
        if (value) {
            if (const Shortcut cut = Op::template constantShortcut<T>(value[0], f); cut != Shortcut::None)
                return takeShortcut(cut, pSrc, srcStep, pDst, dstStep, roi);
        }
    }
    if (!value || !pSrc || !pDst) return pxlStatusNullPointer;
    if (roi.height < 1 || roi.width < 1) return pxlStatusBadSize;
    if constexpr (L::mem > 1 && !L::hasAlpha) {
        // Equal values for every channel: the one-channel loop on rows N times as wide.
        if (std::all_of(value, value + L::mem, [&](T v) { return v == value[0]; }) && widthTimesFits(roi.width, L::mem))
            return constant<T, Op, C1>(pSrc, srcStep, value, pDst, dstStep, {roi.width * L::mem, roi.height}, f);
    }
    if constexpr (std::is_same_v<L, C1>) {
        if (const Shortcut cut = Op::template constantShortcut<T>(value[0], f); cut != Shortcut::None) return takeShortcut(cut, pSrc, srcStep, pDst, dstStep, roi);
    }
    const bool computed = withFinish<T, Op>(f, [&](auto finish) {
        constantRowsOf<T, Op, L>(pSrc, srcStep, value, pDst, dstStep, roi, finish);
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
