/* pxlipx: feature extraction. */
#ifndef PXLIPX_FEATURES_H
#define PXLIPX_FEATURES_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Gradient vectors: any of four planes of a region, each written only when its pointer is not
 * null: the horizontal gradient gx, the vertical gradient gy, the magnitude (normType 2:
 * |gx| + |gy|; 4: sqrt(gx^2 + gy^2)) and the angle atan2(gy, gx) in radians, in (-pi, pi], always
 * 32f (zeros count as positive, so a zero gradient has the angle 0).
 * Operators (maskId pxlMask3x3, or pxlMask5x5 for Sobel and Prewitt), as applied at the pixel:
 *   Sobel 3x3: gx = left column minus right, weighted 1 2 1 down; gy = row below minus row above,
 *   weighted 1 2 1 across. Prewitt 3x3: the same with equal weights. Scharr 3x3: weights 3 10 3.
 *   Sobel 5x5: the binomial 1 4 6 4 1 across the derivative's direction times 1 2 0 -2 -1 along it
 *   (gx, from the left) or -1 -2 0 2 1 (gy, from the top). Prewitt 5x5: a plane fitted by least
 *   squares, equal weights across times 2 1 0 -1 -2 along (gx) or -2 -1 0 1 2 (gy).
 * 8u16s: gx and gy are the exact sums, the magnitude is rounded to nearest and saturated.
 * 16s32f, 16u32f: exact integer sums stored as float, magnitude and angle in float. 32f: float
 * sums of the non-zero products in row-major order. The C3C1R forms take three-channel pixels and
 * keep at each pixel the gradient of the channel whose gradient is longest (the first of equals).
 * Borders: replicated, mirrored or constant (C1R: the value; C3C1R: three values, null meaning
 * zeros), with the memory flags. Checks, in order: the border word; the source (null, a step
 * below 1, a step that is not whole samples); the buffer; the steps of the planes asked for, in
 * the order gx, gy, magnitude (then the norm: pxlStatusBadArgument), angle; the region; the mask.
 * With no plane asked for, nothing is written. The size query takes the source type (8u, 16u,
 * 16s, 32f) and 1 or 3 channels. */
PxlStatus pxliGradientVectorGetBufferSize(PxliSize roiSize, PxlMaskCode maskId, PxlDataType dataType, int numChannels, int* pBufferSize);
PxlStatus pxliGradientVectorSobel_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pGx, int gxStep, Pxl16s* pGy, int gyStep, Pxl16s* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorSobel_8u16s_C3C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pGx, int gxStep, Pxl16s* pGy, int gyStep, Pxl16s* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliGradientVectorSobel_16s32f_C1R(const Pxl16s* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorSobel_16s32f_C3C1R(const Pxl16s* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliGradientVectorSobel_16u32f_C1R(const Pxl16u* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl16u borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorSobel_16u32f_C3C1R(const Pxl16u* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl16u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliGradientVectorSobel_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorSobel_32f_C3C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl32f pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliGradientVectorPrewitt_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pGx, int gxStep, Pxl16s* pGy, int gyStep, Pxl16s* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorPrewitt_8u16s_C3C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pGx, int gxStep, Pxl16s* pGy, int gyStep, Pxl16s* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliGradientVectorPrewitt_16s32f_C1R(const Pxl16s* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorPrewitt_16s32f_C3C1R(const Pxl16s* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliGradientVectorPrewitt_16u32f_C1R(const Pxl16u* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl16u borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorPrewitt_16u32f_C3C1R(const Pxl16u* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl16u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliGradientVectorPrewitt_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorPrewitt_32f_C3C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl32f pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliGradientVectorScharr_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pGx, int gxStep, Pxl16s* pGy, int gyStep, Pxl16s* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorScharr_8u16s_C3C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pGx, int gxStep, Pxl16s* pGy, int gyStep, Pxl16s* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliGradientVectorScharr_16s32f_C1R(const Pxl16s* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorScharr_16s32f_C3C1R(const Pxl16s* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliGradientVectorScharr_16u32f_C1R(const Pxl16u* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl16u borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorScharr_16u32f_C3C1R(const Pxl16u* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl16u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliGradientVectorScharr_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliGradientVectorScharr_32f_C3C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pGx, int gxStep, Pxl32f* pGy, int gyStep, Pxl32f* pMag, int magStep, Pxl32f* pAngle, int angleStep, PxliSize dstRoiSize, PxlMaskCode maskId, int normType, PxliBorderMode borderType, const Pxl32f pBorderValue[3], Pxl8u* pBuffer);

#ifdef __cplusplus
}
#endif

#endif
