/* pxlipx: noise and synthetic images. */
#ifndef PXLIPX_SYNTHETIC_H
#define PXLIPX_SYNTHETIC_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* AddRandUniform adds uniform noise between low and high; AddRandGauss adds noise of the given
 * mean and standard deviation. Both draw from one generator whose state is the 32-bit word at
 * pSeed, which the call moves on: the same seed gives the same noise. Integer results saturate.
 * ImageJaehne writes concentric rings whose frequency rises from 0 at the centre to the sampling
 * limit at the nearer edge; ImageRamp writes offset + slope * t with t the column (axis 0), the
 * row (axis 1) or their product (axis 2), rounded and saturated. AC4 forms leave the fourth
 * sample. */
PxlStatus pxliAddRandUniform_8u_C1IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl8u low, Pxl8u high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_8u_C1IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_8u_C1R(Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_8u_C1R(Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_8u_C3IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl8u low, Pxl8u high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_8u_C3IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_8u_C3R(Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_8u_C3R(Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_8u_C4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl8u low, Pxl8u high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_8u_C4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_8u_C4R(Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_8u_C4R(Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_8u_AC4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl8u low, Pxl8u high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_8u_AC4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_8u_AC4R(Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_8u_AC4R(Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_16u_C1IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16u low, Pxl16u high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_16u_C1IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_16u_C1R(Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_16u_C1R(Pxl16u* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_16u_C3IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16u low, Pxl16u high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_16u_C3IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_16u_C3R(Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_16u_C3R(Pxl16u* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_16u_C4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16u low, Pxl16u high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_16u_C4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_16u_C4R(Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_16u_C4R(Pxl16u* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_16u_AC4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16u low, Pxl16u high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_16u_AC4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_16u_AC4R(Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_16u_AC4R(Pxl16u* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_16s_C1IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16s low, Pxl16s high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_16s_C1IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_16s_C1R(Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_16s_C1R(Pxl16s* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_16s_C3IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16s low, Pxl16s high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_16s_C3IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_16s_C3R(Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_16s_C3R(Pxl16s* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_16s_C4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16s low, Pxl16s high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_16s_C4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_16s_C4R(Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_16s_C4R(Pxl16s* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_16s_AC4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16s low, Pxl16s high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_16s_AC4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_16s_AC4R(Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_16s_AC4R(Pxl16s* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_32f_C1IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f low, Pxl32f high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_32f_C1IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_32f_C1R(Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_32f_C1R(Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_32f_C3IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f low, Pxl32f high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_32f_C3IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_32f_C3R(Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_32f_C3R(Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_32f_C4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f low, Pxl32f high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_32f_C4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_32f_C4R(Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_32f_C4R(Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);
PxlStatus pxliAddRandUniform_32f_AC4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f low, Pxl32f high, Pxl32u* pSeed);
PxlStatus pxliAddRandGauss_32f_AC4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f mean, Pxl32f stdDev, Pxl32u* pSeed);
PxlStatus pxliImageJaehne_32f_AC4R(Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliImageRamp_32f_AC4R(Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f offset, Pxl32f slope, PxlAxis axis);

#ifdef __cplusplus
}
#endif

#endif
