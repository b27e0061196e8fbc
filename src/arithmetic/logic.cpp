// Bitwise logic and shifts. Every form is one operation per sample with no scale and no
// saturation; the checks are pointers, steps below 1, sizes.
#include "arithmetic/binary.hpp"
#include "frame/bind.hpp"

#include <cstdint>
#include <type_traits>

namespace pxl::arith {

// The operations, as first op second (for the constant forms: sample op value).
struct AndOp {
    template <class T> static T apply(T a, T b) { return static_cast<T>(a & b); }
};
struct OrOp {
    template <class T> static T apply(T a, T b) { return static_cast<T>(a | b); }
};
struct XorOp {
    template <class T> static T apply(T a, T b) { return static_cast<T>(a ^ b); }
};

namespace {

// A count at or beyond the width shifts every bit out: 0 to the left and for unsigned right
// shifts, the sign for signed right shifts; so the count is held at the width's last bit with the
// result fixed by a mask where that matters. No count is negative: it is unsigned.
template <class T, bool Left> inline T shiftSample(T x, uint32_t count)
{
    constexpr uint32_t bits = 8 * sizeof(T);
    if constexpr (Left) {
        return count >= bits ? T(0) : static_cast<T>(static_cast<std::make_unsigned_t<T>>(x) << count);
    } else if constexpr (std::is_signed_v<T>) {
        return static_cast<T>(x >> (count >= bits ? bits - 1 : count));
    } else {
        return count >= bits ? T(0) : static_cast<T>(x >> count);
    }
}

inline bool checksFail(PxlStatus& st, bool nullPointer, bool badStep, PxliSize roi)
{
    st = nullPointer ? pxlStatusNullPointer : badStep ? pxlStatusBadStep : badSize(roi) ? pxlStatusBadSize : pxlStatusOk;
    return st != pxlStatusOk;
}

}  // namespace

// ---- Image with image ----------------------------------------------------------------------------
template <class T, class Op, class L>
PxlStatus logicImages(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi)
{
    PxlStatus st;
    if (checksFail(st, !pSrc1 || !pSrc2 || !pDst, src1Step < 1 || src2Step < 1 || dstStep < 1, roi)) return st;
    pairRows<T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, [](T a, T b) { return Op::apply(a, b); });
    return pxlStatusOk;
}
template <class T, class Op, class L>
PxlStatus logicImagesInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi)
{
    return logicImages<T, Op, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi);
}

// ---- Image with constant -------------------------------------------------------------------------
template <class T, class Op, class L>
PxlStatus logicConstant(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, PxliSize roi)
{
    PxlStatus st;
    if (checksFail(st, !pSrc || !value || !pDst, srcStep < 1 || dstStep < 1, roi)) return st;
    constantRows<T, T, L>(pSrc, srcStep, value, pDst, dstStep, roi, [](T v, T x) { return Op::apply(x, v); });
    return pxlStatusOk;
}
template <class T, class Op> PxlStatus logicValue(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, PxliSize roi)
{
    return logicConstant<T, Op, C1>(pSrc, srcStep, &value, pDst, dstStep, roi);
}
template <class T, class Op> PxlStatus logicValueInPlace(T value, T* pSrcDst, int srcDstStep, PxliSize roi)
{
    return logicConstant<T, Op, C1>(pSrcDst, srcDstStep, &value, pSrcDst, srcDstStep, roi);
}
template <class T, class Op, class L> PxlStatus logicArrayInPlace(const T* value, T* pSrcDst, int srcDstStep, PxliSize roi)
{
    return logicConstant<T, Op, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi);
}

// ---- Not -----------------------------------------------------------------------------------------
template <class L> PxlStatus notImage(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi)
{
    PxlStatus st;
    if (checksFail(st, !pSrc || !pDst, srcStep < 1 || dstStep < 1, roi)) return st;
    const Pxl8u none[4] = {};
    constantRows<Pxl8u, Pxl8u, L>(pSrc, srcStep, none, pDst, dstStep, roi, [](Pxl8u, Pxl8u x) { return static_cast<Pxl8u>(~x); });
    return pxlStatusOk;
}
template <class L> PxlStatus notImageInPlace(Pxl8u* pSrcDst, int srcDstStep, PxliSize roi)
{
    return notImage<L>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi);
}

// ---- Shifts --------------------------------------------------------------------------------------
// The count limit is looked at after the checks; a one-channel count at or beyond the width of a
// left or unsigned right shift is a fill with zero.
template <class T, class L, bool Left>
PxlStatus shiftArray(const T* pSrc, int srcStep, const Pxl32u* count, T* pDst, int dstStep, PxliSize roi)
{
    PxlStatus st;
    if (checksFail(st, !pSrc || !count || !pDst, srcStep < 1 || dstStep < 1, roi)) return st;
    uint32_t n[4] = {};
    for (int c = 0; c < L::proc; ++c) n[c] = count[c];
    if constexpr (L::mem == 1) {
        if (n[0] == 0) return takeShortcut(Shortcut::Copy, pSrc, srcStep, pDst, dstStep, roi);
        if ((Left || std::is_unsigned_v<T>) && n[0] >= 8 * sizeof(T))
            return takeShortcut(Shortcut::SetZero, pSrc, srcStep, pDst, dstStep, roi);
    }
    constantRows<T, uint32_t, L>(pSrc, srcStep, n, pDst, dstStep, roi, [](uint32_t k, T x) { return shiftSample<T, Left>(x, k); });
    return pxlStatusOk;
}
template <class T, bool Left> PxlStatus shiftValue(const T* pSrc, int srcStep, Pxl32u count, T* pDst, int dstStep, PxliSize roi)
{
    return shiftArray<T, C1, Left>(pSrc, srcStep, &count, pDst, dstStep, roi);
}
template <class T, bool Left> PxlStatus shiftValueInPlace(Pxl32u count, T* pSrcDst, int srcDstStep, PxliSize roi)
{
    return shiftArray<T, C1, Left>(pSrcDst, srcDstStep, &count, pSrcDst, srcDstStep, roi);
}
template <class T, class L, bool Left> PxlStatus shiftArrayInPlace(const Pxl32u* count, T* pSrcDst, int srcDstStep, PxliSize roi)
{
    return shiftArray<T, L, Left>(pSrcDst, srcDstStep, count, pSrcDst, srcDstStep, roi);
}

}  // namespace pxl::arith

#include "inst/arithmetic/logic.inc"
