// Declarations of the filtering families' implementations, for the entry table.
#pragma once

#include "frame/image.hpp"

namespace pxl::filt {

// The general filter with borders.
PxlStatus filterBorderGetSize(PxliSize kernelSize, PxliSize roiSize, PxlDataType dataType, PxlDataType kernelType, int numChannels,
                              int* pSpecSize, int* pBufferSize);
PxlStatus filterBorderInit16s(const Pxl16s* pKernel, PxliSize kernelSize, int divisor, PxlDataType dataType, int numChannels,
                              PxlFilterRound roundMode, PxliFilterBorderSpec* pSpec);
PxlStatus filterBorderInit32f(const Pxl32f* pKernel, PxliSize kernelSize, PxlDataType dataType, int numChannels,
                              PxlFilterRound roundMode, PxliFilterBorderSpec* pSpec);
PxlStatus filterBorderSetMode(PxlHint hint, int offset, PxliFilterBorderSpec* pSpec);
template <class T, class L>
PxlStatus filterBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border,
                       const T* pBorderValue, const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus filterGetBufSize64f(PxliSize kernelSize, int roiWidth, int* pBufferSize);
PxlStatus filter64f(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliSize dstRoiSize, const Pxl64f* pKernel,
                    PxliSize kernelSize, PxliPoint anchor, Pxl8u* pBuffer);

// The box filter.
PxlStatus filterBoxBorderGetBufferSize(PxliSize roiSize, PxliSize maskSize, PxlDataType dataType, int numChannels, int* pBufferSize);
template <class T, class L>
PxlStatus filterBoxBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border,
                          const T* pBorderValue, Pxl8u* pBuffer);
PxlStatus filterBox64f(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliSize dstRoiSize, PxliSize maskSize, PxliPoint anchor);

// The median filters.
PxlStatus filterMedianBorderGetBufferSize(PxliSize roiSize, PxliSize maskSize, PxlDataType dataType, int numChannels, int* pBufferSize);
template <class T, class L>
PxlStatus filterMedianBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize,
                             PxliBorderMode border, const T* pBorderValue, Pxl8u* pBuffer);
template <class T>
PxlStatus filterMedianBorderC1(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize,
                               PxliBorderMode border, T value, Pxl8u* pBuffer);
PxlStatus filterMedianGetBufferSize32f(PxliSize roiSize, PxliSize maskSize, int numChannels, int* pBufferSize);
PxlStatus filterMedianGetBufferSize64f(PxliSize roiSize, PxliSize maskSize, int numChannels, int* pBufferSize);
template <class T, class L>
PxlStatus filterMedianFloat(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize dstRoiSize, PxliSize maskSize, PxliPoint anchor,
                            Pxl8u* pBuffer);

template <class T, class L>
PxlStatus filterMedianCross(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
template <class T, class L>
PxlStatus filterMedianColor(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus filterMedianWeightedCenter3x3(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize dstRoiSize, int weight);
PxlStatus median8uP3C1(const Pxl8u* const ppSrc[3], int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);

// Laplace (group 0), high-pass (1) and sharpening (2).
PxlStatus filterLaplaceBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels,
                                           int* pBufferSize);
PxlStatus filterSharpenBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels,
                                           int* pBufferSize);
template <int Group, class T, class L>
PxlStatus fixedFilterBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border,
                            const T* pBorderValue, Pxl8u* pBuffer);
template <int Group, class T>
PxlStatus fixedFilterBorderC1(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border,
                              T value, Pxl8u* pBuffer);

// Derivative filters with fixed kernels, by selector.
PxlStatus derivativeGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels,
                                  int* pBufferSize);
template <int Kind, class S, class D>
PxlStatus derivativeBorder(const S* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border,
                           S borderValue, Pxl8u* pBuffer);
PxlStatus filterSobelGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels,
                                   int* pBufferSize);
template <class S, class D>
PxlStatus filterSobel(const S* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi, PxlMaskCode mask, int normType,
                      PxliBorderMode border, S borderValue, Pxl8u* pBuffer);

// Running window sums along rows and columns.
template <class S, class L>
PxlStatus sumWindowRow(const S* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roi, int maskSize, int anchor);
template <class S, class L>
PxlStatus sumWindowColumn(const S* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roi, int maskSize, int anchor);

}  // namespace pxl::filt
