// Declarations of the statistics families' implementations, for the entry table.
#pragma once

#include "frame/image.hpp"

namespace pxl::stat {

// Sums and norms. Kind picks the norm; Rel divides by the second image's norm.
enum class Norm { Inf, L1, L2 };

template <class T, class L> PxlStatus sum(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pSum);
template <class T, class L> PxlStatus sumHint(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pSum, PxlHint hint);
template <class T, class L> PxlStatus mean(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pMean);
template <class T, class L> PxlStatus meanHint(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pMean, PxlHint hint);
template <class T, class L, Norm K> PxlStatus norm(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pValue);
template <class T, class L, Norm K>
PxlStatus normHint(const T* pSrc, int srcStep, PxliSize roi, Pxl64f* pValue, PxlHint hint);
template <class T, class L, Norm K, bool Rel>
PxlStatus normPair(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PxliSize roi, Pxl64f* pValue);
template <class T, class L, Norm K, bool Rel>
PxlStatus normPairHint(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PxliSize roi, Pxl64f* pValue, PxlHint hint);
template <class T, class L>
PxlStatus dotProd(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, PxliSize roi, Pxl64f* pDp);
template <class T> PxlStatus dotProdCol(const T* const* ppSrcList, const T* pCoefficients, int listLength, T* pDst, int length);

// Extrema.
template <class T, class L> PxlStatus min(const T* pSrc, int srcStep, PxliSize roi, T* pMin);
template <class T, class L> PxlStatus max(const T* pSrc, int srcStep, PxliSize roi, T* pMax);
template <class T, class L> PxlStatus minMax(const T* pSrc, int srcStep, PxliSize roi, T* pMin, T* pMax);
template <class T, class L> PxlStatus minIndx(const T* pSrc, int srcStep, PxliSize roi, T* pMin, int* pIndexX, int* pIndexY);
template <class T, class L> PxlStatus maxIndx(const T* pSrc, int srcStep, PxliSize roi, T* pMax, int* pIndexX, int* pIndexY);
template <class T, class L, bool Max>
PxlStatus every(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi);
template <class T, class L, bool Max>
PxlStatus everyInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi);
template <class T>
PxlStatus blockMinMax(const T* pSrc, int srcStep, PxliSize srcSize, T* pDstMin, int dstMinStep, T* pDstMax, int dstMaxStep,
                      PxliSize blockSize, T* pDstGlobalMin, T* pDstGlobalMax);

// Histograms, counting, Otsu.
PxlStatus histogramGetBufferSize(PxlDataType dataType, PxliSize roi, const int* nLevels, int numChannels, int uniform,
                                 int* pSpecSize, int* pBufferSize);
PxlStatus histogramInit(PxlDataType dataType, const Pxl32f* const* pLevels, const int* nLevels, int numChannels,
                        PxliHistogramSpec* pSpec);
PxlStatus histogramUniformInit(PxlDataType dataType, const Pxl32f* lowerLevel, const Pxl32f* upperLevel, const int* nLevels,
                               int numChannels, PxliHistogramSpec* pSpec);
PxlStatus histogramGetLevels(const PxliHistogramSpec* pSpec, Pxl32f* const* ppLevels);
template <class T, int N>
PxlStatus histogram(const T* pSrc, int srcStep, PxliSize roi, Pxl32s* const* pHist, const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
template <class T>
PxlStatus histogramC1(const T* pSrc, int srcStep, PxliSize roi, Pxl32s* pHist, const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
template <class T, class L>
PxlStatus countInRange(const T* pSrc, int srcStep, PxliSize roi, int* pCounts, const T* lowerBound, const T* upperBound);
template <class T>
PxlStatus countInRangeC1(const T* pSrc, int srcStep, PxliSize roi, int* pCounts, T lowerBound, T upperBound);
PxlStatus otsuThreshold(const Pxl8u* pSrc, int srcStep, PxliSize roi, Pxl8u* pThreshold);

}  // namespace pxl::stat
