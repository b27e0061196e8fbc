/* pxlipx: geometry. */
#ifndef PXLIPX_GEOMETRY_H
#define PXLIPX_GEOMETRY_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Resize: a plan made once for a source and destination size, in a caller's buffer, then run on
 * the whole destination or on any partition of it into tiles, which give the same bits.
 *
 * 1. pxliResizeGetSize_<t> (or _L with the sample type) gives the record's size and that of a
 *    temporary buffer some methods need while they make it.
 * 2. A method's Init makes the record. It holds offsets to its own tables: use it where it was made.
 * 3. pxliResizeGetBorderSize tells how far the kernel reaches beyond a source position (linear 1,
 *    nearest 0); pxliResizeGetBufferSize the work buffer of a tile of at most dstSize.
 * 4. For a tile at dstOffset, pxliResizeGetSrcOffset (or GetSrcRoi) tells where its source starts
 *    (and how far it runs); the run takes pSrc advanced to that pixel, pDst at the tile.
 * 5. The runs only read the record: tiles may run at once, each with its own work buffer.
 *
 * Positions: destination index i maps to the source position (i + 0.5) * src / dst - 0.5, in
 * double precision; linear takes the two samples at floor(pos) and the next, weighted by the
 * fraction (float, or double for 64f). Each source row needed is interpolated along the row once,
 * into float; the two rows are blended down; integers are stored rounded to nearest, ties to
 * even, and saturated. Nearest takes the source pixel truncate((i + 0.5) * src / dst - 1e-10),
 * so that a centre on a boundary goes to the lower pixel.
 * Borders (linear): replicate (kind 1), where the tile touches the image's edge, with the flags
 * pxlBorderMemTop/Bottom/Left/Right for the sides whose source the caller has in memory (a tile's
 * inner edges, for the same bits as one call); 0xF0 means every side is in memory. pBorderValue
 * is not read.
 * Statuses: pxlStatusWarnZeroSize (+1) for a zero side, nothing done; pxlStatusWarnNoOperation
 * (+48) when dstSize runs past the record's destination: the region that fits is written. */
typedef struct PxliResizeSpec PxliResizeSpec;
typedef struct PxliBorderWidths { int32_t left; int32_t top; int32_t right; int32_t bottom; } PxliBorderWidths;

/* Record and Init buffer sizes for a method (pxlInterpNearest, ...Linear, ...Cubic, ...Super,
 * ...Lanczos), with antialiasing or not. */
PxlStatus pxliResizeGetSize_8u(PxliSize srcSize, PxliSize dstSize, int interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize);
PxlStatus pxliResizeGetSize_16u(PxliSize srcSize, PxliSize dstSize, int interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize);
PxlStatus pxliResizeGetSize_16s(PxliSize srcSize, PxliSize dstSize, int interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize);
PxlStatus pxliResizeGetSize_32f(PxliSize srcSize, PxliSize dstSize, int interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize);
PxlStatus pxliResizeGetSize_64f(PxliSize srcSize, PxliSize dstSize, int interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize);
PxlStatus pxliResizeGetSize_L(PxliSizeL srcSize, PxliSizeL dstSize, PxlDataType dataType, int interpolation, int antialiasing, PxlSizeL* pSpecSize, PxlSizeL* pInitBufSize);

/* Inits: nearest (source sides of at least 1), linear (at least 2). */
PxlStatus pxliResizeNearestInit_8u(PxliSize srcSize, PxliSize dstSize, PxliResizeSpec* pSpec);
PxlStatus pxliResizeNearestInit_16u(PxliSize srcSize, PxliSize dstSize, PxliResizeSpec* pSpec);
PxlStatus pxliResizeNearestInit_16s(PxliSize srcSize, PxliSize dstSize, PxliResizeSpec* pSpec);
PxlStatus pxliResizeNearestInit_32f(PxliSize srcSize, PxliSize dstSize, PxliResizeSpec* pSpec);
PxlStatus pxliResizeNearestInit_L(PxliSizeL srcSize, PxliSizeL dstSize, PxlDataType dataType, PxliResizeSpec* pSpec);
PxlStatus pxliResizeLinearInit_8u(PxliSize srcSize, PxliSize dstSize, PxliResizeSpec* pSpec);
PxlStatus pxliResizeLinearInit_16u(PxliSize srcSize, PxliSize dstSize, PxliResizeSpec* pSpec);
PxlStatus pxliResizeLinearInit_16s(PxliSize srcSize, PxliSize dstSize, PxliResizeSpec* pSpec);
PxlStatus pxliResizeLinearInit_32f(PxliSize srcSize, PxliSize dstSize, PxliResizeSpec* pSpec);
PxlStatus pxliResizeLinearInit_64f(PxliSize srcSize, PxliSize dstSize, PxliResizeSpec* pSpec);
PxlStatus pxliResizeLinearInit_L(PxliSizeL srcSize, PxliSizeL dstSize, PxlDataType dataType, PxliResizeSpec* pSpec);

/* Inits with tap tables: cubic with its parameters B and C (source sides of at least 4), and
 * Lanczos with 2 or 3 lobes (source sides of at least twice the lobes). Both need the Init
 * buffer that GetSize gives the size of. */
PxlStatus pxliResizeCubicInit_8u(PxliSize srcSize, PxliSize dstSize, Pxl32f valueB, Pxl32f valueC, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
PxlStatus pxliResizeCubicInit_16u(PxliSize srcSize, PxliSize dstSize, Pxl32f valueB, Pxl32f valueC, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
PxlStatus pxliResizeCubicInit_16s(PxliSize srcSize, PxliSize dstSize, Pxl32f valueB, Pxl32f valueC, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
PxlStatus pxliResizeCubicInit_32f(PxliSize srcSize, PxliSize dstSize, Pxl32f valueB, Pxl32f valueC, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
PxlStatus pxliResizeCubicInit_L(PxliSizeL srcSize, PxliSizeL dstSize, PxlDataType dataType, Pxl32f valueB, Pxl32f valueC, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
PxlStatus pxliResizeLanczosInit_8u(PxliSize srcSize, PxliSize dstSize, Pxl32u numLobes, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
PxlStatus pxliResizeLanczosInit_16u(PxliSize srcSize, PxliSize dstSize, Pxl32u numLobes, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
PxlStatus pxliResizeLanczosInit_16s(PxliSize srcSize, PxliSize dstSize, Pxl32u numLobes, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
PxlStatus pxliResizeLanczosInit_32f(PxliSize srcSize, PxliSize dstSize, Pxl32u numLobes, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);
PxlStatus pxliResizeLanczosInit_L(PxliSizeL srcSize, PxliSizeL dstSize, PxlDataType dataType, Pxl32u numLobes, PxliResizeSpec* pSpec, Pxl8u* pInitBuf);

/* What a record needs: border widths, the work buffer of a tile, the source of a tile. */
PxlStatus pxliResizeGetBorderSize_8u(const PxliResizeSpec* pSpec, PxliBorderWidths* pBorderSize);
PxlStatus pxliResizeGetBorderSize_16u(const PxliResizeSpec* pSpec, PxliBorderWidths* pBorderSize);
PxlStatus pxliResizeGetBorderSize_16s(const PxliResizeSpec* pSpec, PxliBorderWidths* pBorderSize);
PxlStatus pxliResizeGetBorderSize_32f(const PxliResizeSpec* pSpec, PxliBorderWidths* pBorderSize);
PxlStatus pxliResizeGetBorderSize_64f(const PxliResizeSpec* pSpec, PxliBorderWidths* pBorderSize);
PxlStatus pxliResizeGetBorderSize_L(const PxliResizeSpec* pSpec, PxliBorderWidths* pBorderSize);
PxlStatus pxliResizeGetBufferSize_8u(const PxliResizeSpec* pSpec, PxliSize dstSize, int numChannels, int* pBufSize);
PxlStatus pxliResizeGetBufferSize_16u(const PxliResizeSpec* pSpec, PxliSize dstSize, int numChannels, int* pBufSize);
PxlStatus pxliResizeGetBufferSize_16s(const PxliResizeSpec* pSpec, PxliSize dstSize, int numChannels, int* pBufSize);
PxlStatus pxliResizeGetBufferSize_32f(const PxliResizeSpec* pSpec, PxliSize dstSize, int numChannels, int* pBufSize);
PxlStatus pxliResizeGetBufferSize_64f(const PxliResizeSpec* pSpec, PxliSize dstSize, int numChannels, int* pBufSize);
PxlStatus pxliResizeGetBufferSize_L(const PxliResizeSpec* pSpec, PxliSizeL dstSize, int numChannels, PxlSizeL* pBufSize);
PxlStatus pxliResizeGetSrcOffset_8u(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliPoint* pSrcOffset);
PxlStatus pxliResizeGetSrcOffset_16u(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliPoint* pSrcOffset);
PxlStatus pxliResizeGetSrcOffset_16s(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliPoint* pSrcOffset);
PxlStatus pxliResizeGetSrcOffset_32f(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliPoint* pSrcOffset);
PxlStatus pxliResizeGetSrcOffset_64f(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliPoint* pSrcOffset);
PxlStatus pxliResizeGetSrcOffset_L(const PxliResizeSpec* pSpec, PxliPointL dstOffset, PxliPointL* pSrcOffset);
PxlStatus pxliResizeGetSrcRoi_8u(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliSize dstRoiSize, PxliPoint* pSrcOffset, PxliSize* pSrcRoiSize);
PxlStatus pxliResizeGetSrcRoi_16u(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliSize dstRoiSize, PxliPoint* pSrcOffset, PxliSize* pSrcRoiSize);
PxlStatus pxliResizeGetSrcRoi_16s(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliSize dstRoiSize, PxliPoint* pSrcOffset, PxliSize* pSrcRoiSize);
PxlStatus pxliResizeGetSrcRoi_32f(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliSize dstRoiSize, PxliPoint* pSrcOffset, PxliSize* pSrcRoiSize);
PxlStatus pxliResizeGetSrcRoi_64f(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliSize dstRoiSize, PxliPoint* pSrcOffset, PxliSize* pSrcRoiSize);
PxlStatus pxliResizeGetSrcRoi_L(const PxliResizeSpec* pSpec, PxliPointL dstOffset, PxliSizeL dstRoiSize, PxliPointL* pSrcOffset, PxliSizeL* pSrcRoiSize);

/* Runs of a tile. */
PxlStatus pxliResizeNearest_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_8u_C1R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_8u_C3R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_8u_C4R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16u_C1R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16u_C3R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16u_C4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16u_C4R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16s_C1R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16s_C3R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_16s_C4R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_32f_C1R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_32f_C3R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeNearest_32f_C4R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_8u_C1R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_8u_C3R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_8u_C4R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16u_C1R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16u_C3R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16u_C4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16u_C4R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16s_C1R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16s_C3R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_16s_C4R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_32f_C1R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_32f_C3R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_32f_C4R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_64f_C1R(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl64f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_64f_C1R_L(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl64f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_64f_C3R(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl64f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_64f_C3R_L(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl64f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_64f_C4R(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl64f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLinear_64f_C4R_L(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl64f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);

/* Cubic and Lanczos runs: as the linear ones, with the record of their own Init. */
PxlStatus pxliResizeCubic_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_8u_C1R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_8u_C3R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_8u_C4R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16u_C1R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16u_C3R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16u_C4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16u_C4R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16s_C1R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16s_C3R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_16s_C4R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_32f_C1R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_32f_C3R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeCubic_32f_C4R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_8u_C1R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_8u_C3R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_8u_C4R_L(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16u_C1R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16u_C3R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16u_C4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16u_C4R_L(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16s_C1R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16s_C3R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_16s_C4R_L(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_32f_C1R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_32f_C3R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliResizeLanczos_32f_C4R_L(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliPointL dstOffset, PxliSizeL dstSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliResizeSpec* pSpec, Pxl8u* pBuffer);

#ifdef __cplusplus
}
#endif

#endif
