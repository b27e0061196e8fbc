// Thresholds and comparisons. A threshold replaces the samples strictly above (GT) or below (LT)
// a limit; every form is one select per sample, so NaN (which compares false) is never replaced.
// A comparison writes 255 where a relation holds in every processed channel of a pixel.
#include "exchange/exchange.hpp"
#include "frame/bind.hpp"

#include <cmath>

namespace pxl::exch {

namespace {

// ---- Threshold ---------------------------------------------------------------------------------

enum class Side { Above, Below, Both };

// The per-channel limits of one call: thresholds and replacement values, for the lower (LT) and
// the upper (GT) side.
template <class T> struct Limits {
    T lowT[4], lowV[4], highT[4], highV[4];
};

template <class T, Side S> inline T thresholdSample(T x, T lowT, T lowV, T highT, T highV)
{
    if constexpr (S == Side::Above) return x > highT ? highV : x;
    else if constexpr (S == Side::Below) return x < lowT ? lowV : x;
    else return x > highT ? highV : (x < lowT ? lowV : x);
}

template <class T, class L, Side S>
void thresholdRows(const T* src, int srcStep, T* dst, int dstStep, PxliSize roi, const Limits<T>& k)
{
    for (int y = 0; y < roi.height; ++y) {
        const T* s = rowAt(src, srcStep, y);
        T* d = rowAt(dst, dstStep, y);
        if constexpr (L::mem == 1) {
            const T lowT = k.lowT[0], lowV = k.lowV[0], highT = k.highT[0], highV = k.highV[0];
            for (int x = 0; x < roi.width; ++x) d[x] = thresholdSample<T, S>(s[x], lowT, lowV, highT, highV);
        } else {
            for (int x = 0; x < roi.width; ++x)
                for (int c = 0; c < L::proc; ++c)
                    d[L::mem * x + c] = thresholdSample<T, S>(s[L::mem * x + c], k.lowT[c], k.lowV[c], k.highT[c], k.highV[c]);
        }
    }
}

// Pointers (images, then the arrays), sizes, steps below 1.
template <class T, class L, Side S>
PxlStatus runThreshold(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* t1, const T* v1,
                       const T* t2 = nullptr, const T* v2 = nullptr)
{
    if (!pSrc || !pDst || !t1 || !v1) return pxlStatusNullPointer;
    if constexpr (S == Side::Both) {
        if (!t2 || !v2) return pxlStatusNullPointer;
    }
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    Limits<T> k{};
    for (int c = 0; c < L::proc; ++c) {
        if constexpr (S == Side::Both) {
            if (t2[c] < t1[c]) return pxlStatusBadThresholds;  // upper below lower; equal is allowed
            k.lowT[c] = t1[c], k.lowV[c] = v1[c], k.highT[c] = t2[c], k.highV[c] = v2[c];
        } else if constexpr (S == Side::Above) {
            k.highT[c] = t1[c], k.highV[c] = v1[c];
        } else {
            k.lowT[c] = t1[c], k.lowV[c] = v1[c];
        }
    }
    thresholdRows<T, L, S>(pSrc, srcStep, pDst, dstStep, roi, k);
    return pxlStatusOk;
}

// The comparison of Threshold and Threshold_Val picks the side; any other code is refused first.
template <class T, class L>
PxlStatus runThresholdCmp(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* t, const T* v, PxlCmpOp cmp)
{
    if (cmp == pxlCmpGreater) return runThreshold<T, L, Side::Above>(pSrc, srcStep, pDst, dstStep, roi, t, v);
    if (cmp == pxlCmpLess) return runThreshold<T, L, Side::Below>(pSrc, srcStep, pDst, dstStep, roi, t, v);
    return pxlStatusUnsupportedMode;
}

}  // namespace

// Threshold and Threshold_Val (the former with the threshold as the value).
template <class T>
PxlStatus thresholdValue(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, T threshold, PxlCmpOp cmp)
{
    return runThresholdCmp<T, C1>(pSrc, srcStep, pDst, dstStep, roi, &threshold, &threshold, cmp);
}
template <class T> PxlStatus thresholdValueInPlace(T* p, int step, PxliSize roi, T threshold, PxlCmpOp cmp)
{
    return runThresholdCmp<T, C1>(p, step, p, step, roi, &threshold, &threshold, cmp);
}
template <class T, class L>
PxlStatus thresholdArray(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* threshold, PxlCmpOp cmp)
{
    return runThresholdCmp<T, L>(pSrc, srcStep, pDst, dstStep, roi, threshold, threshold, cmp);
}
template <class T, class L> PxlStatus thresholdArrayInPlace(T* p, int step, PxliSize roi, const T* threshold, PxlCmpOp cmp)
{
    return runThresholdCmp<T, L>(p, step, p, step, roi, threshold, threshold, cmp);
}
template <class T>
PxlStatus thresholdValValue(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, T threshold, T value, PxlCmpOp cmp)
{
    return runThresholdCmp<T, C1>(pSrc, srcStep, pDst, dstStep, roi, &threshold, &value, cmp);
}
template <class T> PxlStatus thresholdValValueInPlace(T* p, int step, PxliSize roi, T threshold, T value, PxlCmpOp cmp)
{
    return runThresholdCmp<T, C1>(p, step, p, step, roi, &threshold, &value, cmp);
}
template <class T, class L>
PxlStatus thresholdValArray(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* threshold, const T* value,
                            PxlCmpOp cmp)
{
    return runThresholdCmp<T, L>(pSrc, srcStep, pDst, dstStep, roi, threshold, value, cmp);
}
template <class T, class L>
PxlStatus thresholdValArrayInPlace(T* p, int step, PxliSize roi, const T* threshold, const T* value, PxlCmpOp cmp)
{
    return runThresholdCmp<T, L>(p, step, p, step, roi, threshold, value, cmp);
}

// GT and LT (the threshold as the value), GTVal and LTVal: Above is true for GT.
template <class T, bool Above>
PxlStatus thresholdSideValue(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, T threshold)
{
    return runThreshold<T, C1, Above ? Side::Above : Side::Below>(pSrc, srcStep, pDst, dstStep, roi, &threshold, &threshold);
}
template <class T, bool Above> PxlStatus thresholdSideValueInPlace(T* p, int step, PxliSize roi, T threshold)
{
    return runThreshold<T, C1, Above ? Side::Above : Side::Below>(p, step, p, step, roi, &threshold, &threshold);
}
template <class T, class L, bool Above>
PxlStatus thresholdSideArray(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* threshold)
{
    return runThreshold<T, L, Above ? Side::Above : Side::Below>(pSrc, srcStep, pDst, dstStep, roi, threshold, threshold);
}
template <class T, class L, bool Above> PxlStatus thresholdSideArrayInPlace(T* p, int step, PxliSize roi, const T* threshold)
{
    return runThreshold<T, L, Above ? Side::Above : Side::Below>(p, step, p, step, roi, threshold, threshold);
}
template <class T, bool Above>
PxlStatus thresholdSideValValue(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, T threshold, T value)
{
    return runThreshold<T, C1, Above ? Side::Above : Side::Below>(pSrc, srcStep, pDst, dstStep, roi, &threshold, &value);
}
template <class T, bool Above> PxlStatus thresholdSideValValueInPlace(T* p, int step, PxliSize roi, T threshold, T value)
{
    return runThreshold<T, C1, Above ? Side::Above : Side::Below>(p, step, p, step, roi, &threshold, &value);
}
template <class T, class L, bool Above>
PxlStatus thresholdSideValArray(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* threshold, const T* value)
{
    return runThreshold<T, L, Above ? Side::Above : Side::Below>(pSrc, srcStep, pDst, dstStep, roi, threshold, value);
}
template <class T, class L, bool Above>
PxlStatus thresholdSideValArrayInPlace(T* p, int step, PxliSize roi, const T* threshold, const T* value)
{
    return runThreshold<T, L, Above ? Side::Above : Side::Below>(p, step, p, step, roi, threshold, value);
}

// LTValGTVal: below the lower threshold the lower value, above the upper the upper value.
template <class T>
PxlStatus thresholdBothValue(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, T lowT, T lowV, T highT, T highV)
{
    return runThreshold<T, C1, Side::Both>(pSrc, srcStep, pDst, dstStep, roi, &lowT, &lowV, &highT, &highV);
}
template <class T> PxlStatus thresholdBothValueInPlace(T* p, int step, PxliSize roi, T lowT, T lowV, T highT, T highV)
{
    return runThreshold<T, C1, Side::Both>(p, step, p, step, roi, &lowT, &lowV, &highT, &highV);
}
template <class T, class L>
PxlStatus thresholdBothArray(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* lowT, const T* lowV,
                             const T* highT, const T* highV)
{
    return runThreshold<T, L, Side::Both>(pSrc, srcStep, pDst, dstStep, roi, lowT, lowV, highT, highV);
}
template <class T, class L>
PxlStatus thresholdBothArrayInPlace(T* p, int step, PxliSize roi, const T* lowT, const T* lowV, const T* highT, const T* highV)
{
    return runThreshold<T, L, Side::Both>(p, step, p, step, roi, lowT, lowV, highT, highV);
}

// ---- Compare -----------------------------------------------------------------------------------

namespace {

template <int Code, class T> inline bool relation(T a, T b)
{
    if constexpr (Code == pxlCmpLess) return a < b;
    else if constexpr (Code == pxlCmpLessEq) return a <= b;
    else if constexpr (Code == pxlCmpEq) return a == b;
    else if constexpr (Code == pxlCmpGreaterEq) return a >= b;
    else return a > b;
}

// 255 where holds(x, c) is true for every processed channel c of the pixel, else 0.
template <class T, class L, class Holds>
void maskRows(const T* src, int srcStep, Pxl8u* dst, int dstStep, PxliSize roi, Holds holds, const T* second, int secondStep)
{
    for (int y = 0; y < roi.height; ++y) {
        const T* s = rowAt(src, srcStep, y);
        const T* t = second ? rowAt(second, secondStep, y) : nullptr;
        Pxl8u* d = rowAt(dst, dstStep, y);
        for (int x = 0; x < roi.width; ++x) {
            bool all = true;
            for (int c = 0; c < L::proc; ++c) all = all & holds(s[L::mem * x + c], t ? t[L::mem * x + c] : T(0), c);
            d[x] = all ? 255 : 0;
        }
    }
}

template <class Body> inline bool withCmp(PxlCmpOp cmp, Body&& body)
{
    switch (cmp) {
    case pxlCmpLess: body(std::integral_constant<int, pxlCmpLess>{}); return true;
    case pxlCmpLessEq: body(std::integral_constant<int, pxlCmpLessEq>{}); return true;
    case pxlCmpEq: body(std::integral_constant<int, pxlCmpEq>{}); return true;
    case pxlCmpGreaterEq: body(std::integral_constant<int, pxlCmpGreaterEq>{}); return true;
    case pxlCmpGreater: body(std::integral_constant<int, pxlCmpGreater>{}); return true;
    default: return false;
    }
}

}  // namespace

// Pointers, steps, sizes; an unknown code then ends the call with nothing written.
template <class T, class L>
PxlStatus compare(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roi, PxlCmpOp cmp)
{
    if (!pSrc1 || !pSrc2 || !pDst) return pxlStatusNullPointer;
    if (src1Step < 1 || src2Step < 1 || dstStep < 1) return pxlStatusBadStep;
    if (badSize(roi)) return pxlStatusBadSize;
    withCmp(cmp, [&](auto code) {
        constexpr int Code = decltype(code)::value;
        if constexpr (L::mem == 1) {
            for (int y = 0; y < roi.height; ++y) {
                const T* a = rowAt(pSrc1, src1Step, y);
                const T* b = rowAt(pSrc2, src2Step, y);
                Pxl8u* d = rowAt(pDst, dstStep, y);
                for (int x = 0; x < roi.width; ++x) d[x] = relation<Code>(a[x], b[x]) ? 255 : 0;
            }
        } else {
            maskRows<T, L>(pSrc1, src1Step, pDst, dstStep, roi, [](T a, T b, int) { return relation<Code>(a, b); }, pSrc2, src2Step);
        }
    });
    return pxlStatusOk;
}

template <class T, class L>
PxlStatus compareArray(const T* pSrc, int srcStep, const T* value, Pxl8u* pDst, int dstStep, PxliSize roi, PxlCmpOp cmp)
{
    if (!pSrc || !value || !pDst) return pxlStatusNullPointer;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (badSize(roi)) return pxlStatusBadSize;
    T v[4] = {};
    for (int c = 0; c < L::proc; ++c) v[c] = value[c];
    withCmp(cmp, [&](auto code) {
        constexpr int Code = decltype(code)::value;
        if constexpr (L::mem == 1) {
            const T v0 = v[0];
            for (int y = 0; y < roi.height; ++y) {
                const T* a = rowAt(pSrc, srcStep, y);
                Pxl8u* d = rowAt(pDst, dstStep, y);
                for (int x = 0; x < roi.width; ++x) d[x] = relation<Code>(a[x], v0) ? 255 : 0;
            }
        } else {
            maskRows<T, L>(pSrc, srcStep, pDst, dstStep, roi, [&v](T a, T, int c) { return relation<Code>(a, v[c]); }, nullptr, 0);
        }
    });
    return pxlStatusOk;
}

template <class T>
PxlStatus compareValue(const T* pSrc, int srcStep, T value, Pxl8u* pDst, int dstStep, PxliSize roi, PxlCmpOp cmp)
{
    return compareArray<T, C1>(pSrc, srcStep, &value, pDst, dstStep, roi, cmp);
}

// |first - second| <= eps, the difference taken in double (wider than the samples, so it is
// exact). Pointers, steps, sizes, then a negative eps. A NaN eps holds nowhere.
template <class L>
PxlStatus compareEqualEps(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl8u* pDst, int dstStep,
                          PxliSize roi, Pxl32f eps)
{
    if (!pSrc1 || !pSrc2 || !pDst) return pxlStatusNullPointer;
    if (src1Step < 1 || src2Step < 1 || dstStep < 1) return pxlStatusBadStep;
    if (badSize(roi)) return pxlStatusBadSize;
    if (eps < 0.0f) return pxlStatusBadEps;
    const double e = eps;
    maskRows<Pxl32f, L>(pSrc1, src1Step, pDst, dstStep, roi, [e](Pxl32f a, Pxl32f b, int) { return std::fabs(double(a) - double(b)) <= e; },
                        pSrc2, src2Step);
    return pxlStatusOk;
}

template <class L>
PxlStatus compareEqualEpsArray(const Pxl32f* pSrc, int srcStep, const Pxl32f* value, Pxl8u* pDst, int dstStep, PxliSize roi, Pxl32f eps)
{
    if (!pSrc || !value || !pDst) return pxlStatusNullPointer;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (badSize(roi)) return pxlStatusBadSize;
    if (eps < 0.0f) return pxlStatusBadEps;
    const double e = eps;
    double v[4] = {};
    for (int c = 0; c < L::proc; ++c) v[c] = value[c];
    maskRows<Pxl32f, L>(pSrc, srcStep, pDst, dstStep, roi, [e, &v](Pxl32f a, Pxl32f, int c) { return std::fabs(double(a) - v[c]) <= e; },
                        nullptr, 0);
    return pxlStatusOk;
}

PxlStatus compareEqualEpsValue(const Pxl32f* pSrc, int srcStep, Pxl32f value, Pxl8u* pDst, int dstStep, PxliSize roi, Pxl32f eps)
{
    return compareEqualEpsArray<C1>(pSrc, srcStep, &value, pDst, dstStep, roi, eps);
}

}  // namespace pxl::exch

#include "inst/exchange/threshold.inc"
