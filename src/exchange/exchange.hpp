// Declarations of the exchange families' implementations, for the entry table.
#pragma once

#include "frame/image.hpp"

namespace pxl::exch {

// Set and copy (S is the unsigned type of the sample's width; T the sample type itself).
template <class T, int Stride> PxlStatus setValue(T value, T* pDst, int dstStep, PxliSize roi);
template <class S, class L> PxlStatus setPixels(const S* value, S* pDst, int dstStep, PxliSize roi);
template <class T>
PxlStatus setValueMasked(T value, T* pDst, int dstStep, PxliSize roi, const Pxl8u* pMask, int maskStep);
template <class S, class L>
PxlStatus setPixelsMasked(const S* value, S* pDst, int dstStep, PxliSize roi, const Pxl8u* pMask, int maskStep);

template <class S, class L> PxlStatus copy(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi);
template <class S, class L>
PxlStatus copyMasked(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi, const Pxl8u* pMask, int maskStep);
template <class S, int SrcStride, int DstStride, int Count>
PxlStatus copyStrided(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi);
template <class S, int N> PxlStatus toPlanes(const S* pSrc, int srcStep, S* const* pDst, int dstStep, PxliSize roi);
template <class S, int N> PxlStatus fromPlanes(const S* const* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi);
template <class S, class L> PxlStatus copyWide(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSizeL roi);
template <class S> PxlStatus copyWideAC4(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSizeL roi);
PxlStatus copyManaged(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi, int flags);
template <int N> PxlStatus dup(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi);

// Transpose, mirror, channel swaps.
template <class S, int N> PxlStatus transpose(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi);
template <class S, int N> PxlStatus transposeInPlace(S* pSrcDst, int step, PxliSize roi);
template <class S, class L>
PxlStatus mirror(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi, PxlAxis flip);
template <class S, class L> PxlStatus mirrorInPlace(S* pSrcDst, int step, PxliSize roi, PxlAxis flip);
template <class S, int SrcN, int DstN, int Count, int MaxIndex, bool ArrayFirst>
PxlStatus swapChannels(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi, const int* order);
template <class S, int N> PxlStatus swapChannelsInPlace(S* pSrcDst, int step, PxliSize roi, const int* order);
template <class T>
PxlStatus swapChannelsC3C4(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const int* order, T val);

// Conversions between sample types.
template <class S, class D, class L> PxlStatus convert(const S* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi);
template <class S, class D, class L>
PxlStatus convertRound(const S* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi, PxlRoundMode code);
template <class S, class D>
PxlStatus convertSfs(const S* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi, PxlRoundMode code, int f);
PxlStatus convert32f32uInPlace(Pxl32f* pSrcDst, int step, PxliSize roi, PxlRoundMode code, int f);
template <class D, class L> PxlStatus scaleFrom8u(const Pxl8u* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi);
template <class L>
PxlStatus scale8u32f(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roi, Pxl32f vMin, Pxl32f vMax);
template <class S, class L>
PxlStatus scaleTo8u(const S* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi, PxlHint hint);
template <class L>
PxlStatus scale32f8u(const Pxl32f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi, Pxl32f vMin, Pxl32f vMax);
template <class S, class D>
PxlStatus scaleC(const S* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, D* pDst, int dstStep, PxliSize roi, PxlHint hint);
template <class T>
PxlStatus scaleCInPlace(Pxl64f mVal, Pxl64f aVal, T* pSrcDst, int step, PxliSize roi, PxlHint hint);

// Thresholds: Above is the GT side; the Both forms take lower then upper thresholds and values.
template <class T> PxlStatus thresholdValue(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, T threshold, PxlCmpOp cmp);
template <class T> PxlStatus thresholdValueInPlace(T* p, int step, PxliSize roi, T threshold, PxlCmpOp cmp);
template <class T, class L>
PxlStatus thresholdArray(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* threshold, PxlCmpOp cmp);
template <class T, class L> PxlStatus thresholdArrayInPlace(T* p, int step, PxliSize roi, const T* threshold, PxlCmpOp cmp);
template <class T>
PxlStatus thresholdValValue(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, T threshold, T value, PxlCmpOp cmp);
template <class T> PxlStatus thresholdValValueInPlace(T* p, int step, PxliSize roi, T threshold, T value, PxlCmpOp cmp);
template <class T, class L>
PxlStatus thresholdValArray(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* threshold, const T* value,
                            PxlCmpOp cmp);
template <class T, class L>
PxlStatus thresholdValArrayInPlace(T* p, int step, PxliSize roi, const T* threshold, const T* value, PxlCmpOp cmp);
template <class T, bool Above>
PxlStatus thresholdSideValue(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, T threshold);
template <class T, bool Above> PxlStatus thresholdSideValueInPlace(T* p, int step, PxliSize roi, T threshold);
template <class T, class L, bool Above>
PxlStatus thresholdSideArray(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* threshold);
template <class T, class L, bool Above> PxlStatus thresholdSideArrayInPlace(T* p, int step, PxliSize roi, const T* threshold);
template <class T, bool Above>
PxlStatus thresholdSideValValue(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, T threshold, T value);
template <class T, bool Above> PxlStatus thresholdSideValValueInPlace(T* p, int step, PxliSize roi, T threshold, T value);
template <class T, class L, bool Above>
PxlStatus thresholdSideValArray(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* threshold, const T* value);
template <class T, class L, bool Above>
PxlStatus thresholdSideValArrayInPlace(T* p, int step, PxliSize roi, const T* threshold, const T* value);
template <class T>
PxlStatus thresholdBothValue(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, T lowT, T lowV, T highT, T highV);
template <class T> PxlStatus thresholdBothValueInPlace(T* p, int step, PxliSize roi, T lowT, T lowV, T highT, T highV);
template <class T, class L>
PxlStatus thresholdBothArray(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const T* lowT, const T* lowV,
                             const T* highT, const T* highV);
template <class T, class L>
PxlStatus thresholdBothArrayInPlace(T* p, int step, PxliSize roi, const T* lowT, const T* lowV, const T* highT, const T* highV);

// Comparisons into one 8u channel.
template <class T, class L>
PxlStatus compare(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roi, PxlCmpOp cmp);
template <class T, class L>
PxlStatus compareArray(const T* pSrc, int srcStep, const T* value, Pxl8u* pDst, int dstStep, PxliSize roi, PxlCmpOp cmp);
template <class T> PxlStatus compareValue(const T* pSrc, int srcStep, T value, Pxl8u* pDst, int dstStep, PxliSize roi, PxlCmpOp cmp);
template <class L>
PxlStatus compareEqualEps(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl8u* pDst, int dstStep,
                          PxliSize roi, Pxl32f eps);
template <class L>
PxlStatus compareEqualEpsArray(const Pxl32f* pSrc, int srcStep, const Pxl32f* value, Pxl8u* pDst, int dstStep, PxliSize roi, Pxl32f eps);
PxlStatus compareEqualEpsValue(const Pxl32f* pSrc, int srcStep, Pxl32f value, Pxl8u* pDst, int dstStep, PxliSize roi, Pxl32f eps);

// Border extension; Rule is 0 constant, 1 replicate, 2 mirror, 3 wrap, and Sz PxliSize or PxliSizeL.
template <class S, class L, int Rule, class Sz>
PxlStatus copyBorder(const S* pSrc, int srcStep, Sz srcRoi, S* pDst, int dstStep, Sz dstRoi, int top, int left);
template <class S, class L, int Rule, class Sz>
PxlStatus copyBorderInPlace(S* p, int step, Sz srcRoi, Sz dstRoi, int top, int left);
template <class T, class Sz>
PxlStatus copyConstBorderValue(const T* pSrc, int srcStep, Sz srcRoi, T* pDst, int dstStep, Sz dstRoi, int top, int left, T value);
template <class T, class Sz>
PxlStatus copyConstBorderValueInPlace(T* p, int step, Sz srcRoi, Sz dstRoi, int top, int left, T value);
template <class S, class L, class Sz>
PxlStatus copyConstBorderArray(const S* pSrc, int srcStep, Sz srcRoi, S* pDst, int dstStep, Sz dstRoi, int top, int left, const S* value);
template <class S, class L, class Sz>
PxlStatus copyConstBorderArrayInPlace(S* p, int step, Sz srcRoi, Sz dstRoi, int top, int left, const S* value);

// Noise and synthetic images.
template <class T, class L> PxlStatus addRandUniform(T* pSrcDst, int step, PxliSize roi, T low, T high, Pxl32u* pSeed);
template <class T, class L> PxlStatus addRandGauss(T* pSrcDst, int step, PxliSize roi, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
template <class T, class L> PxlStatus imageJaehne(T* pDst, int step, PxliSize roi);
template <class T, class L> PxlStatus imageRamp(T* pDst, int step, PxliSize roi, Pxl32f offset, Pxl32f slope, PxlAxis axis);

}  // namespace pxl::exch
