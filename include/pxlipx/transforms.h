/* pxlipx: transforms. */
#ifndef PXLIPX_TRANSFORMS_H
#define PXLIPX_TRANSFORMS_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The 8x8 DCT of block codecs (the orthonormal DCT-II; coefficient (0,0) is the block's sum over
 * 8). A block is 64 samples row by row, contiguous except on the image side of the R forms, whose
 * step is in bytes. The integer forms are exact functions of their input: fixed-point passes in
 * 32-bit arithmetic that wraps, each result kept as its low 16 bits, with no saturation (rows then
 * columns forward; columns then rows inverse). I forms work in place.
 * Fwd_8u16s reads unsigned pixels; FwdLS adds addVal (-128 centres 8-bit samples) first, wrapping.
 * Inv_16s8u limits to 0..255; InvLSClip adds addVal and limits: below clipMin gives clipMin,
 * otherwise at or above clipMax gives clipMax (so clipMin above clipMax gives clipMax for all
 * sums not below clipMin). Inv_A10 keeps one more bit of range between the passes.
 * Inv_2x2 and Inv_4x4 read only the top left 2x2 or 4x4 coefficients (their constants differ by
 * one from the whole inverse's). To2x2Inv and To4x4Inv give the 2x2 or 4x4 image of 64
 * coefficients (means of 4x4 or 2x2 pixels), written row by row at the start of the destination;
 * their I forms leave the rest of the block as it was. The float forms are accurate to single
 * precision.
 * Checks: pointers (pxlStatusNullPointer), then a step below 1 (pxlStatusBadStep). */
PxlStatus pxliDCT8x8Fwd_16s_C1(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus pxliDCT8x8Fwd_16s_C1I(Pxl16s* pSrcDst);
PxlStatus pxliDCT8x8Fwd_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst);
PxlStatus pxliDCT8x8Fwd_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst);
PxlStatus pxliDCT8x8FwdLS_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, Pxl16s addVal);
PxlStatus pxliDCT8x8Fwd_32f_C1(const Pxl32f* pSrc, Pxl32f* pDst);
PxlStatus pxliDCT8x8Fwd_32f_C1I(Pxl32f* pSrcDst);
PxlStatus pxliDCT8x8Inv_16s_C1(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus pxliDCT8x8Inv_16s_C1I(Pxl16s* pSrcDst);
PxlStatus pxliDCT8x8Inv_16s_C1R(const Pxl16s* pSrc, Pxl16s* pDst, int dstStep);
PxlStatus pxliDCT8x8Inv_16s8u_C1R(const Pxl16s* pSrc, Pxl8u* pDst, int dstStep);
PxlStatus pxliDCT8x8InvLSClip_16s8u_C1R(const Pxl16s* pSrc, Pxl8u* pDst, int dstStep, Pxl16s addVal, Pxl8u clipMin, Pxl8u clipMax);
PxlStatus pxliDCT8x8Inv_A10_16s_C1(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus pxliDCT8x8Inv_A10_16s_C1I(Pxl16s* pSrcDst);
PxlStatus pxliDCT8x8Inv_2x2_16s_C1(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus pxliDCT8x8Inv_2x2_16s_C1I(Pxl16s* pSrcDst);
PxlStatus pxliDCT8x8Inv_4x4_16s_C1(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus pxliDCT8x8Inv_4x4_16s_C1I(Pxl16s* pSrcDst);
PxlStatus pxliDCT8x8Inv_32f_C1(const Pxl32f* pSrc, Pxl32f* pDst);
PxlStatus pxliDCT8x8Inv_32f_C1I(Pxl32f* pSrcDst);
PxlStatus pxliDCT8x8To2x2Inv_16s_C1(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus pxliDCT8x8To2x2Inv_16s_C1I(Pxl16s* pSrcDst);
PxlStatus pxliDCT8x8To4x4Inv_16s_C1(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus pxliDCT8x8To4x4Inv_16s_C1I(Pxl16s* pSrcDst);

/* Zigzag order (the usual scan of block codecs, 0, 1, 8, 16, 9, 2, ... 62, 63): Fwd gives
 * dst[k] = src[scan[k]], Inv puts it back. Source and destination must not overlap. */
PxlStatus pxliZigzagFwd8x8_16s_C1(const Pxl16s* pSrc, Pxl16s* pDst);
PxlStatus pxliZigzagInv8x8_16s_C1(const Pxl16s* pSrc, Pxl16s* pDst);

#ifdef __cplusplus
}
#endif

#endif
