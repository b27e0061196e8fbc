/* pxlipx: set, copy and rearrange. */
#ifndef PXLIPX_EXCHANGE_H
#define PXLIPX_EXCHANGE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Mirror axis codes. */
typedef int32_t PxlAxis;
enum PxlAxisValue {
    pxlAxisHorizontal   = 0, /* the top row goes to the bottom */
    pxlAxisVertical     = 1, /* the left column goes to the right */
    pxlAxisBoth         = 2,
    pxlAxisDiagonal     = 3, /* transpose across the main diagonal (C1R forms) */
    pxlAxisAntiDiagonal = 4  /* transpose across the anti-diagonal (C1R forms) */
};

/* Set: every sample of the region gets the value; C3CR/C4CR fill the one channel pDst points at;
 * the masked forms write pixels whose mask byte is non-zero; AC4 leaves the fourth sample alone.
 * Copy: the plain, masked, one-channel, layout-changing and planar copies.
 * Steps are not checked; pointers, then sizes, are. */
#define PXLI_SET_COPY_DECL(T, t) \
    PxlStatus pxliSet_##t##_C1R(T value, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliSet_##t##_C3CR(T value, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliSet_##t##_C4CR(T value, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliSet_##t##_C3R(const T value[3], T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliSet_##t##_C4R(const T value[4], T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliSet_##t##_AC4R(const T value[3], T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliSet_##t##_C1MR(T value, T* pDst, int dstStep, PxliSize roiSize, const Pxl8u* pMask, int maskStep); \
    PxlStatus pxliSet_##t##_C3MR(const T value[3], T* pDst, int dstStep, PxliSize roiSize, const Pxl8u* pMask, int maskStep); \
    PxlStatus pxliSet_##t##_C4MR(const T value[4], T* pDst, int dstStep, PxliSize roiSize, const Pxl8u* pMask, int maskStep); \
    PxlStatus pxliSet_##t##_AC4MR(const T value[3], T* pDst, int dstStep, PxliSize roiSize, const Pxl8u* pMask, int maskStep); \
    PxlStatus pxliCopy_##t##_C1R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_C3R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_C4R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_AC4R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_C1MR(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, const Pxl8u* pMask, int maskStep); \
    PxlStatus pxliCopy_##t##_C3MR(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, const Pxl8u* pMask, int maskStep); \
    PxlStatus pxliCopy_##t##_C4MR(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, const Pxl8u* pMask, int maskStep); \
    PxlStatus pxliCopy_##t##_AC4MR(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, const Pxl8u* pMask, int maskStep); \
    PxlStatus pxliCopy_##t##_C3CR(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_C4CR(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_C3C1R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_C4C1R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_C1C3R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_C1C4R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_C3AC4R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_AC4C3R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_C3P3R(const T* pSrc, int srcStep, T* const pDst[3], int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_C4P4R(const T* pSrc, int srcStep, T* const pDst[4], int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_P3C3R(const T* const pSrc[3], int srcStep, T* pDst, int dstStep, PxliSize roiSize); \
    PxlStatus pxliCopy_##t##_P4C4R(const T* const pSrc[4], int srcStep, T* pDst, int dstStep, PxliSize roiSize);
PXLI_SET_COPY_DECL(Pxl8u, 8u)
PXLI_SET_COPY_DECL(Pxl16u, 16u)
PXLI_SET_COPY_DECL(Pxl16s, 16s)
PXLI_SET_COPY_DECL(Pxl32s, 32s)
PXLI_SET_COPY_DECL(Pxl32f, 32f)
#undef PXLI_SET_COPY_DECL

/* Wide copies: the same arguments; rows move in slices of at most 2^30 bytes. */
#define PXLI_COPY_L_DECL(T, t) \
    PxlStatus pxliCopy_##t##_C1R_L(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSizeL roiSize); \
    PxlStatus pxliCopy_##t##_C3R_L(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSizeL roiSize); \
    PxlStatus pxliCopy_##t##_C4R_L(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSizeL roiSize); \
    PxlStatus pxliCopy_##t##_AC4R_L(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSizeL roiSize);
PXLI_COPY_L_DECL(Pxl8u, 8u)
PXLI_COPY_L_DECL(Pxl32f, 32f)
#undef PXLI_COPY_L_DECL

/* A plain copy; the flags are accepted and not looked at. */
PxlStatus pxliCopyManaged_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, int flags);

/* Every channel of the destination pixel gets the source sample. */
PxlStatus pxliDup_8u_C1C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliDup_8u_C1C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);

/* Transpose: srcRoi is the source's size; the destination has srcRoi.height columns and
 * srcRoi.width rows. The in-place forms need a square region.
 * Mirror: about the axis given (PxlAxis); in place with the IR forms.
 * SwapChannels: destination channel c gets source channel dstOrder[c]. In C3C4R an index of 3
 * writes val and an index above 3 leaves the destination channel as it was. */
#define PXLI_REARRANGE_DECL(T, t) \
    PxlStatus pxliTranspose_##t##_C1R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize srcRoi); \
    PxlStatus pxliTranspose_##t##_C3R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize srcRoi); \
    PxlStatus pxliTranspose_##t##_C4R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize srcRoi); \
    PxlStatus pxliTranspose_##t##_C1IR(T* pSrcDst, int srcDstStep, PxliSize srcDstRoi); \
    PxlStatus pxliTranspose_##t##_C3IR(T* pSrcDst, int srcDstStep, PxliSize srcDstRoi); \
    PxlStatus pxliTranspose_##t##_C4IR(T* pSrcDst, int srcDstStep, PxliSize srcDstRoi); \
    PxlStatus pxliMirror_##t##_C1R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, PxlAxis flip); \
    PxlStatus pxliMirror_##t##_C3R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, PxlAxis flip); \
    PxlStatus pxliMirror_##t##_C4R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, PxlAxis flip); \
    PxlStatus pxliMirror_##t##_AC4R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, PxlAxis flip); \
    PxlStatus pxliMirror_##t##_C1IR(T* pSrcDst, int srcDstStep, PxliSize roiSize, PxlAxis flip); \
    PxlStatus pxliMirror_##t##_C3IR(T* pSrcDst, int srcDstStep, PxliSize roiSize, PxlAxis flip); \
    PxlStatus pxliMirror_##t##_C4IR(T* pSrcDst, int srcDstStep, PxliSize roiSize, PxlAxis flip); \
    PxlStatus pxliMirror_##t##_AC4IR(T* pSrcDst, int srcDstStep, PxliSize roiSize, PxlAxis flip); \
    PxlStatus pxliSwapChannels_##t##_C3R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, const int dstOrder[3]); \
    PxlStatus pxliSwapChannels_##t##_C4R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, const int dstOrder[4]); \
    PxlStatus pxliSwapChannels_##t##_AC4R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, const int dstOrder[3]); \
    PxlStatus pxliSwapChannels_##t##_C4C3R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, const int dstOrder[3]); \
    PxlStatus pxliSwapChannels_##t##_C3C4R(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roiSize, const int dstOrder[4], T val);
PXLI_REARRANGE_DECL(Pxl8u, 8u)
PXLI_REARRANGE_DECL(Pxl16u, 16u)
PXLI_REARRANGE_DECL(Pxl16s, 16s)
PXLI_REARRANGE_DECL(Pxl32s, 32s)
PXLI_REARRANGE_DECL(Pxl32f, 32f)
#undef PXLI_REARRANGE_DECL
PxlStatus pxliSwapChannels_8u_C3IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const int dstOrder[3]);
PxlStatus pxliSwapChannels_8u_C4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const int dstOrder[4]);

#ifdef __cplusplus
}
#endif

#endif
