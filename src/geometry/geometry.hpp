// Declarations of the geometry families' implementations, for the entry table.
#pragma once

#include "frame/image.hpp"

namespace pxl::geom {

// Resize: plans, queries and the runs of each method. Wide: the 64f forms (double tables);
// L: the forms whose records come from the Inits that take a type code.
template <bool Wide>
PxlStatus resizeGetSize(PxliSize srcSize, PxliSize dstSize, int interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize);
PxlStatus resizeGetSizeL(PxliSize srcSize, PxliSize dstSize, PxlDataType dataType, int interpolation, int antialiasing, int* pSpecSize,
                         int* pInitBufSize);
template <int Interpolation, bool Wide> PxlStatus resizeInit(PxliSize srcSize, PxliSize dstSize, PxliResizeSpec* pSpec);
template <int Interpolation> PxlStatus resizeInitL(PxliSize srcSize, PxliSize dstSize, PxlDataType dataType, PxliResizeSpec* pSpec);
PxlStatus resizeCubicInit(PxliSize srcSize, PxliSize dstSize, Pxl32f valueB, Pxl32f valueC, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
PxlStatus resizeCubicInitL(PxliSize srcSize, PxliSize dstSize, PxlDataType dataType, Pxl32f valueB, Pxl32f valueC, PxliResizeSpec* pSpec,
                           Pxl8u* pInitBuf);
PxlStatus resizeLanczosInit(PxliSize srcSize, PxliSize dstSize, Pxl32u numLobes, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
PxlStatus resizeLanczosInitL(PxliSize srcSize, PxliSize dstSize, PxlDataType dataType, Pxl32u numLobes, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
template <bool Wide, bool L> PxlStatus resizeGetBorderSize(const PxliResizeSpec* pSpec, PxliBorderWidths* pBorderSize);
template <bool Wide, bool L> PxlStatus resizeGetBufferSize(const PxliResizeSpec* pSpec, PxliSize dstSize, int numChannels, int* pBufSize);
template <bool Wide, bool L> PxlStatus resizeGetSrcOffset(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliPoint* pSrcOffset);
template <bool Wide, bool L>
PxlStatus resizeGetSrcRoi(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliSize dstRoiSize, PxliPoint* pSrcOffset, PxliSize* pSrcRoiSize);
template <class T, int C, bool L>
PxlStatus resizeNearest(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec,
                        Pxl8u* pBuffer);
template <class T, int C, bool L>
PxlStatus resizeLinear(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border,
                       const T* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
// Cubic and Lanczos: the runs of the records with tap tables, Interpolation naming the method.
template <class T, int C, bool L, int Interpolation>
PxlStatus resizeTapped(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border,
                       const T* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);

}  // namespace pxl::geom
