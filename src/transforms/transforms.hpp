// Declarations of the transform families' implementations, for the entry table.
#pragma once

#include "frame/image.hpp"

namespace pxl::xform {

// The 8x8 DCT: forward and inverse, whole and reduced, integer and float, and zigzag.
PxlStatus dctFwd16s(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus dctFwd16sI(Pxl16s* pSrcDst);
PxlStatus dctFwd16sR(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst);
PxlStatus dctFwd8u16sR(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst);
PxlStatus dctFwdLS8u16sR(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, Pxl16s addVal);
PxlStatus dctInv16s(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus dctInv16sI(Pxl16s* pSrcDst);
PxlStatus dctInvA10(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus dctInvA10I(Pxl16s* pSrcDst);
PxlStatus dctInv2x2(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus dctInv2x2I(Pxl16s* pSrcDst);
PxlStatus dctInv4x4(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus dctInv4x4I(Pxl16s* pSrcDst);
PxlStatus dctInv16sR(const Pxl16s* pSrc, Pxl16s* pDst, int dstStep);
PxlStatus dctInv16s8uR(const Pxl16s* pSrc, Pxl8u* pDst, int dstStep);
PxlStatus dctInvLSClip16s8uR(const Pxl16s* pSrc, Pxl8u* pDst, int dstStep, Pxl16s addVal, Pxl8u clipMin, Pxl8u clipMax);
template <int N> PxlStatus dctToSmall(const Pxl16s* pSrc, Pxl16s* pDst);
template <int N> PxlStatus dctToSmallI(Pxl16s* pSrcDst);
template <bool Forward> PxlStatus dct32f(const Pxl32f* pSrc, Pxl32f* pDst);
template <bool Forward> PxlStatus dct32fI(Pxl32f* pSrcDst);
PxlStatus zigzagFwd(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus zigzagInv(const Pxl16s* pSrc, Pxl16s* pDst);

}  // namespace pxl::xform
