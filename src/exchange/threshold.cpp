// Thresholds and comparisons. A threshold replaces the samples strictly above (GT) or below (LT)
// a limit; every form is one select per sample, so NaN (which compares false) is never replaced.
// A comparison writes 255 where a relation holds in every processed channel of a pixel.
#include "arithmetic/rows.hpp"
#include "exchange/exchange.hpp"
#include "frame/bind.hpp"

#include <cmath>

namespace pxl::exch {

namespace {

// ---- Threshold ---------------------------------------------------------------------------------

enum class Side { Above, Below, Both };

// One channel's limits: threshold and replacement value for the lower (LT) and the upper (GT)
// side.
template <class T> struct Limit {
    T lowT, lowV, highT, highV;
};

template <class T, Side S> inline T thresholdSample(const Limit<T>& k, T x)
{
    if constexpr (S == Side::Above) return x > k.highT ? k.highV : x;
    else if constexpr (S == Side::Below) return x < k.lowT ? k.lowV : x;
    else return x > k.highT ? k.highV : (x < k.lowT ? k.lowV : x);
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
    Limit<T> k[4] = {};
    for (int c = 0; c < L::proc; ++c) {
        if constexpr (S == Side::Both) {
            if (t2[c] < t1[c]) return pxlStatusBadThresholds;  // upper below lower; equal is allowed
            k[c] = {t1[c], v1[c], t2[c], v2[c]};
        } else if constexpr (S == Side::Above) {
            k[c].highT = t1[c], k[c].highV = v1[c];
        } else {
            k[c].lowT = t1[c], k[c].lowV = v1[c];
        }
    }
    constantRows<T, Limit<T>, L>(pSrc, srcStep, k, pDst, dstStep, roi, [](Limit<T> kc, T x) { return thresholdSample<T, S>(kc, x); });
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

// 255 where holds(first, second) is true for every processed channel of the pixel, else 0.
template <class T, class L, class Holds>
void maskPairRows(const T* a, int as, const T* b, int bs, Pxl8u* d, int ds, PxliSize roi, Holds holds)
{
    for (int y = 0; y < roi.height; ++y) {
        const T* ra = rowAt(a, as, y);
        const T* rb = rowAt(b, bs, y);
        Pxl8u* rd = rowAt(d, ds, y);
        for (int x = 0; x < roi.width; ++x) {
            bool all = true;
            for (int c = 0; c < L::proc; ++c) all = all & holds(ra[L::mem * x + c], rb[L::mem * x + c]);
            rd[x] = all ? 255 : 0;
        }
    }
}

// 255 where holds(sample, value of its channel) is true for every processed channel, else 0.
template <class T, class V, class L, class Holds>
void maskConstantRows(const T* s, int ss, const V* value, Pxl8u* d, int ds, PxliSize roi, Holds holds)
{
    V v[4] = {};
    for (int c = 0; c < L::proc; ++c) v[c] = value[c];
    for (int y = 0; y < roi.height; ++y) {
        const T* rs = rowAt(s, ss, y);
        Pxl8u* rd = rowAt(d, ds, y);
        for (int x = 0; x < roi.width; ++x) {
            bool all = true;
            for (int c = 0; c < L::proc; ++c) all = all & holds(rs[L::mem * x + c], v[c]);
            rd[x] = all ? 255 : 0;
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
        maskPairRows<T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi,
                           [](T a, T b) { return relation<decltype(code)::value>(a, b); });
    });
    return pxlStatusOk;
}

template <class T, class L>
PxlStatus compareArray(const T* pSrc, int srcStep, const T* value, Pxl8u* pDst, int dstStep, PxliSize roi, PxlCmpOp cmp)
{
    if (!pSrc || !value || !pDst) return pxlStatusNullPointer;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (badSize(roi)) return pxlStatusBadSize;
    withCmp(cmp, [&](auto code) {
        maskConstantRows<T, T, L>(pSrc, srcStep, value, pDst, dstStep, roi,
                                  [](T a, T v) { return relation<decltype(code)::value>(a, v); });
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
    maskPairRows<Pxl32f, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi,
                            [e](Pxl32f a, Pxl32f b) { return std::fabs(double(a) - double(b)) <= e; });
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
    maskConstantRows<Pxl32f, Pxl32f, L>(pSrc, srcStep, value, pDst, dstStep, roi,
                                        [e](Pxl32f a, Pxl32f v) { return std::fabs(double(a) - double(v)) <= e; });
    return pxlStatusOk;
}

PxlStatus compareEqualEpsValue(const Pxl32f* pSrc, int srcStep, Pxl32f value, Pxl8u* pDst, int dstStep, PxliSize roi, Pxl32f eps)
{
    return compareEqualEpsArray<C1>(pSrc, srcStep, &value, pDst, dstStep, roi, eps);
}

}  // namespace pxl::exch

#include "inst/exchange/threshold.inc"
