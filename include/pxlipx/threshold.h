/* pxlipx: thresholds and comparisons. */
#ifndef PXLIPX_THRESHOLD_H
#define PXLIPX_THRESHOLD_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Threshold: GT replaces samples above the threshold, LT samples below it, by the threshold
 * itself, or by the value in the Val forms; cmp is pxlCmpLess (LT) or pxlCmpGreater (GT).
 * LTValGTVal does both. A sample equal to a threshold is never replaced, and nor is NaN.
 * C3 and AC4 take three thresholds and values, C4 four; AC4 leaves the fourth sample. */
PxlStatus pxliThreshold_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl8u threshold, PxlCmpOp cmp);
PxlStatus pxliThreshold_8u_C1IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl8u threshold, PxlCmpOp cmp);
PxlStatus pxliThreshold_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_8u_C3IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_8u_AC4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_GT_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl8u threshold);
PxlStatus pxliThreshold_GT_8u_C1IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl8u threshold);
PxlStatus pxliThreshold_GT_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3]);
PxlStatus pxliThreshold_GT_8u_C3IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3]);
PxlStatus pxliThreshold_GT_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3]);
PxlStatus pxliThreshold_GT_8u_AC4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3]);
PxlStatus pxliThreshold_LT_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl8u threshold);
PxlStatus pxliThreshold_LT_8u_C1IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl8u threshold);
PxlStatus pxliThreshold_LT_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3]);
PxlStatus pxliThreshold_LT_8u_C3IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3]);
PxlStatus pxliThreshold_LT_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3]);
PxlStatus pxliThreshold_LT_8u_AC4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3]);
PxlStatus pxliThreshold_Val_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl8u threshold, Pxl8u value, PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_8u_C1IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl8u threshold, Pxl8u value, PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_8u_C3IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_8u_AC4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_GTVal_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl8u threshold, Pxl8u value);
PxlStatus pxliThreshold_GTVal_8u_C1IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl8u threshold, Pxl8u value);
PxlStatus pxliThreshold_GTVal_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3]);
PxlStatus pxliThreshold_GTVal_8u_C3IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3]);
PxlStatus pxliThreshold_GTVal_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3]);
PxlStatus pxliThreshold_GTVal_8u_AC4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3]);
PxlStatus pxliThreshold_GTVal_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[4], const Pxl8u value[4]);
PxlStatus pxliThreshold_GTVal_8u_C4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[4], const Pxl8u value[4]);
PxlStatus pxliThreshold_LTVal_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl8u threshold, Pxl8u value);
PxlStatus pxliThreshold_LTVal_8u_C1IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl8u threshold, Pxl8u value);
PxlStatus pxliThreshold_LTVal_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3]);
PxlStatus pxliThreshold_LTVal_8u_C3IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3]);
PxlStatus pxliThreshold_LTVal_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3]);
PxlStatus pxliThreshold_LTVal_8u_AC4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[3], const Pxl8u value[3]);
PxlStatus pxliThreshold_LTVal_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u threshold[4], const Pxl8u value[4]);
PxlStatus pxliThreshold_LTVal_8u_C4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u threshold[4], const Pxl8u value[4]);
PxlStatus pxliThreshold_LTValGTVal_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl8u thresholdLT, Pxl8u valueLT, Pxl8u thresholdGT, Pxl8u valueGT);
PxlStatus pxliThreshold_LTValGTVal_8u_C1IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl8u thresholdLT, Pxl8u valueLT, Pxl8u thresholdGT, Pxl8u valueGT);
PxlStatus pxliThreshold_LTValGTVal_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u thresholdLT[3], const Pxl8u valueLT[3], const Pxl8u thresholdGT[3], const Pxl8u valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_8u_C3IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u thresholdLT[3], const Pxl8u valueLT[3], const Pxl8u thresholdGT[3], const Pxl8u valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, const Pxl8u thresholdLT[3], const Pxl8u valueLT[3], const Pxl8u thresholdGT[3], const Pxl8u valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_8u_AC4IR(Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl8u thresholdLT[3], const Pxl8u valueLT[3], const Pxl8u thresholdGT[3], const Pxl8u valueGT[3]);
PxlStatus pxliThreshold_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, Pxl16u threshold, PxlCmpOp cmp);
PxlStatus pxliThreshold_16u_C1IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16u threshold, PxlCmpOp cmp);
PxlStatus pxliThreshold_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_16u_C3IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_16u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_16u_AC4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_GT_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, Pxl16u threshold);
PxlStatus pxliThreshold_GT_16u_C1IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16u threshold);
PxlStatus pxliThreshold_GT_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3]);
PxlStatus pxliThreshold_GT_16u_C3IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3]);
PxlStatus pxliThreshold_GT_16u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3]);
PxlStatus pxliThreshold_GT_16u_AC4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3]);
PxlStatus pxliThreshold_LT_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, Pxl16u threshold);
PxlStatus pxliThreshold_LT_16u_C1IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16u threshold);
PxlStatus pxliThreshold_LT_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3]);
PxlStatus pxliThreshold_LT_16u_C3IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3]);
PxlStatus pxliThreshold_LT_16u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3]);
PxlStatus pxliThreshold_LT_16u_AC4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3]);
PxlStatus pxliThreshold_Val_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, Pxl16u threshold, Pxl16u value, PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_16u_C1IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16u threshold, Pxl16u value, PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_16u_C3IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_16u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_16u_AC4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_GTVal_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, Pxl16u threshold, Pxl16u value);
PxlStatus pxliThreshold_GTVal_16u_C1IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16u threshold, Pxl16u value);
PxlStatus pxliThreshold_GTVal_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3]);
PxlStatus pxliThreshold_GTVal_16u_C3IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3]);
PxlStatus pxliThreshold_GTVal_16u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3]);
PxlStatus pxliThreshold_GTVal_16u_AC4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3]);
PxlStatus pxliThreshold_GTVal_16u_C4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[4], const Pxl16u value[4]);
PxlStatus pxliThreshold_GTVal_16u_C4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[4], const Pxl16u value[4]);
PxlStatus pxliThreshold_LTVal_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, Pxl16u threshold, Pxl16u value);
PxlStatus pxliThreshold_LTVal_16u_C1IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16u threshold, Pxl16u value);
PxlStatus pxliThreshold_LTVal_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3]);
PxlStatus pxliThreshold_LTVal_16u_C3IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3]);
PxlStatus pxliThreshold_LTVal_16u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3]);
PxlStatus pxliThreshold_LTVal_16u_AC4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[3], const Pxl16u value[3]);
PxlStatus pxliThreshold_LTVal_16u_C4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u threshold[4], const Pxl16u value[4]);
PxlStatus pxliThreshold_LTVal_16u_C4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u threshold[4], const Pxl16u value[4]);
PxlStatus pxliThreshold_LTValGTVal_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, Pxl16u thresholdLT, Pxl16u valueLT, Pxl16u thresholdGT, Pxl16u valueGT);
PxlStatus pxliThreshold_LTValGTVal_16u_C1IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16u thresholdLT, Pxl16u valueLT, Pxl16u thresholdGT, Pxl16u valueGT);
PxlStatus pxliThreshold_LTValGTVal_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u thresholdLT[3], const Pxl16u valueLT[3], const Pxl16u thresholdGT[3], const Pxl16u valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16u_C3IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u thresholdLT[3], const Pxl16u valueLT[3], const Pxl16u thresholdGT[3], const Pxl16u valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, const Pxl16u thresholdLT[3], const Pxl16u valueLT[3], const Pxl16u thresholdGT[3], const Pxl16u valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16u_AC4IR(Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16u thresholdLT[3], const Pxl16u valueLT[3], const Pxl16u thresholdGT[3], const Pxl16u valueGT[3]);
PxlStatus pxliThreshold_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, Pxl16s threshold, PxlCmpOp cmp);
PxlStatus pxliThreshold_16s_C1IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16s threshold, PxlCmpOp cmp);
PxlStatus pxliThreshold_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_16s_C3IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_16s_AC4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_GT_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, Pxl16s threshold);
PxlStatus pxliThreshold_GT_16s_C1IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16s threshold);
PxlStatus pxliThreshold_GT_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3]);
PxlStatus pxliThreshold_GT_16s_C3IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3]);
PxlStatus pxliThreshold_GT_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3]);
PxlStatus pxliThreshold_GT_16s_AC4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3]);
PxlStatus pxliThreshold_LT_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, Pxl16s threshold);
PxlStatus pxliThreshold_LT_16s_C1IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16s threshold);
PxlStatus pxliThreshold_LT_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3]);
PxlStatus pxliThreshold_LT_16s_C3IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3]);
PxlStatus pxliThreshold_LT_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3]);
PxlStatus pxliThreshold_LT_16s_AC4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3]);
PxlStatus pxliThreshold_Val_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, Pxl16s threshold, Pxl16s value, PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_16s_C1IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16s threshold, Pxl16s value, PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_16s_C3IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_16s_AC4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_GTVal_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, Pxl16s threshold, Pxl16s value);
PxlStatus pxliThreshold_GTVal_16s_C1IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16s threshold, Pxl16s value);
PxlStatus pxliThreshold_GTVal_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3]);
PxlStatus pxliThreshold_GTVal_16s_C3IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3]);
PxlStatus pxliThreshold_GTVal_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3]);
PxlStatus pxliThreshold_GTVal_16s_AC4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3]);
PxlStatus pxliThreshold_GTVal_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[4], const Pxl16s value[4]);
PxlStatus pxliThreshold_GTVal_16s_C4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[4], const Pxl16s value[4]);
PxlStatus pxliThreshold_LTVal_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, Pxl16s threshold, Pxl16s value);
PxlStatus pxliThreshold_LTVal_16s_C1IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16s threshold, Pxl16s value);
PxlStatus pxliThreshold_LTVal_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3]);
PxlStatus pxliThreshold_LTVal_16s_C3IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3]);
PxlStatus pxliThreshold_LTVal_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3]);
PxlStatus pxliThreshold_LTVal_16s_AC4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[3], const Pxl16s value[3]);
PxlStatus pxliThreshold_LTVal_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s threshold[4], const Pxl16s value[4]);
PxlStatus pxliThreshold_LTVal_16s_C4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s threshold[4], const Pxl16s value[4]);
PxlStatus pxliThreshold_LTValGTVal_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, Pxl16s thresholdLT, Pxl16s valueLT, Pxl16s thresholdGT, Pxl16s valueGT);
PxlStatus pxliThreshold_LTValGTVal_16s_C1IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl16s thresholdLT, Pxl16s valueLT, Pxl16s thresholdGT, Pxl16s valueGT);
PxlStatus pxliThreshold_LTValGTVal_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s thresholdLT[3], const Pxl16s valueLT[3], const Pxl16s thresholdGT[3], const Pxl16s valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16s_C3IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s thresholdLT[3], const Pxl16s valueLT[3], const Pxl16s thresholdGT[3], const Pxl16s valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, const Pxl16s thresholdLT[3], const Pxl16s valueLT[3], const Pxl16s thresholdGT[3], const Pxl16s valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16s_AC4IR(Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl16s thresholdLT[3], const Pxl16s valueLT[3], const Pxl16s thresholdGT[3], const Pxl16s valueGT[3]);
PxlStatus pxliThreshold_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f threshold, PxlCmpOp cmp);
PxlStatus pxliThreshold_32f_C1IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f threshold, PxlCmpOp cmp);
PxlStatus pxliThreshold_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_32f_C3IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_32f_AC4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_GT_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f threshold);
PxlStatus pxliThreshold_GT_32f_C1IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f threshold);
PxlStatus pxliThreshold_GT_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3]);
PxlStatus pxliThreshold_GT_32f_C3IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3]);
PxlStatus pxliThreshold_GT_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3]);
PxlStatus pxliThreshold_GT_32f_AC4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3]);
PxlStatus pxliThreshold_LT_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f threshold);
PxlStatus pxliThreshold_LT_32f_C1IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f threshold);
PxlStatus pxliThreshold_LT_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3]);
PxlStatus pxliThreshold_LT_32f_C3IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3]);
PxlStatus pxliThreshold_LT_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3]);
PxlStatus pxliThreshold_LT_32f_AC4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3]);
PxlStatus pxliThreshold_Val_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f threshold, Pxl32f value, PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_32f_C1IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f threshold, Pxl32f value, PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_32f_C3IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_Val_32f_AC4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3], PxlCmpOp cmp);
PxlStatus pxliThreshold_GTVal_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f threshold, Pxl32f value);
PxlStatus pxliThreshold_GTVal_32f_C1IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f threshold, Pxl32f value);
PxlStatus pxliThreshold_GTVal_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3]);
PxlStatus pxliThreshold_GTVal_32f_C3IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3]);
PxlStatus pxliThreshold_GTVal_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3]);
PxlStatus pxliThreshold_GTVal_32f_AC4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3]);
PxlStatus pxliThreshold_GTVal_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[4], const Pxl32f value[4]);
PxlStatus pxliThreshold_GTVal_32f_C4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[4], const Pxl32f value[4]);
PxlStatus pxliThreshold_LTVal_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f threshold, Pxl32f value);
PxlStatus pxliThreshold_LTVal_32f_C1IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f threshold, Pxl32f value);
PxlStatus pxliThreshold_LTVal_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3]);
PxlStatus pxliThreshold_LTVal_32f_C3IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3]);
PxlStatus pxliThreshold_LTVal_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3]);
PxlStatus pxliThreshold_LTVal_32f_AC4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[3], const Pxl32f value[3]);
PxlStatus pxliThreshold_LTVal_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f threshold[4], const Pxl32f value[4]);
PxlStatus pxliThreshold_LTVal_32f_C4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f threshold[4], const Pxl32f value[4]);
PxlStatus pxliThreshold_LTValGTVal_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f thresholdLT, Pxl32f valueLT, Pxl32f thresholdGT, Pxl32f valueGT);
PxlStatus pxliThreshold_LTValGTVal_32f_C1IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, Pxl32f thresholdLT, Pxl32f valueLT, Pxl32f thresholdGT, Pxl32f valueGT);
PxlStatus pxliThreshold_LTValGTVal_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f thresholdLT[3], const Pxl32f valueLT[3], const Pxl32f thresholdGT[3], const Pxl32f valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_32f_C3IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f thresholdLT[3], const Pxl32f valueLT[3], const Pxl32f thresholdGT[3], const Pxl32f valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, const Pxl32f thresholdLT[3], const Pxl32f valueLT[3], const Pxl32f thresholdGT[3], const Pxl32f valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_32f_AC4IR(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, const Pxl32f thresholdLT[3], const Pxl32f valueLT[3], const Pxl32f thresholdGT[3], const Pxl32f valueGT[3]);

/* Compare: 255 where first cmp second (or source cmp value) holds in every processed channel,
 * else 0, into one 8u channel. An unknown cmp returns pxlStatusOk with nothing written. NaN
 * compares false. CompareEqualEps: 255 where |first - second| <= eps in every channel. */
PxlStatus pxliCompare_8u_C1R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u value, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_8u_C3R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_8u_C3R(const Pxl8u* pSrc, int srcStep, const Pxl8u value[3], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_8u_C4R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_8u_C4R(const Pxl8u* pSrc, int srcStep, const Pxl8u value[4], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_8u_AC4R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_8u_AC4R(const Pxl8u* pSrc, int srcStep, const Pxl8u value[3], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_16u_C1R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u value, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_16u_C3R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_16u_C3R(const Pxl16u* pSrc, int srcStep, const Pxl16u value[3], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_16u_C4R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_16u_C4R(const Pxl16u* pSrc, int srcStep, const Pxl16u value[4], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_16u_AC4R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_16u_AC4R(const Pxl16u* pSrc, int srcStep, const Pxl16u value[3], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_16s_C1R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s value, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_16s_C3R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_16s_C3R(const Pxl16s* pSrc, int srcStep, const Pxl16s value[3], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_16s_C4R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_16s_C4R(const Pxl16s* pSrc, int srcStep, const Pxl16s value[4], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_16s_AC4R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_16s_AC4R(const Pxl16s* pSrc, int srcStep, const Pxl16s value[3], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_32f_C1R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f value, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_32f_C3R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_32f_C3R(const Pxl32f* pSrc, int srcStep, const Pxl32f value[3], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_32f_C4R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_32f_C4R(const Pxl32f* pSrc, int srcStep, const Pxl32f value[4], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompare_32f_AC4R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareC_32f_AC4R(const Pxl32f* pSrc, int srcStep, const Pxl32f value[3], Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlCmpOp cmp);
PxlStatus pxliCompareEqualEps_32f_C1R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f eps);
PxlStatus pxliCompareEqualEpsC_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f value, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f eps);
PxlStatus pxliCompareEqualEps_32f_C3R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f eps);
PxlStatus pxliCompareEqualEpsC_32f_C3R(const Pxl32f* pSrc, int srcStep, const Pxl32f value[3], Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f eps);
PxlStatus pxliCompareEqualEps_32f_C4R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f eps);
PxlStatus pxliCompareEqualEpsC_32f_C4R(const Pxl32f* pSrc, int srcStep, const Pxl32f value[4], Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f eps);
PxlStatus pxliCompareEqualEps_32f_AC4R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f eps);
PxlStatus pxliCompareEqualEpsC_32f_AC4R(const Pxl32f* pSrc, int srcStep, const Pxl32f value[3], Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f eps);

#ifdef __cplusplus
}
#endif

#endif
