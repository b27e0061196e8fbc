/* pxlipx: statistics of a region. */
#ifndef PXLIPX_STATISTICS_H
#define PXLIPX_STATISTICS_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Sum and mean: one 64-bit float per channel. 8u sums each row in 32-bit integers; 16-bit samples
 * sum in 32-bit integers over blocks of at most 65536 samples; 32f sums in extended precision in
 * two interleaved partial sums over the whole region, rounded to 64f once at the end. The mean is
 * the sum divided by width times height, written only when the sum succeeds. The hint of the 32f
 * forms is accepted and not read. Checks: null pointers, sizes below 1, steps below 1 (the 8u
 * forms do not check the step). */
PxlStatus pxliSum_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pSum);
PxlStatus pxliSum_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pSum[3]);
PxlStatus pxliSum_8u_C4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pSum[4]);
PxlStatus pxliSum_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pSum);
PxlStatus pxliSum_16u_C3R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pSum[3]);
PxlStatus pxliSum_16u_C4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pSum[4]);
PxlStatus pxliSum_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pSum);
PxlStatus pxliSum_16s_C3R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f pSum[3]);
PxlStatus pxliSum_16s_C4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f pSum[4]);
PxlStatus pxliSum_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pSum, PxlHint hint);
PxlStatus pxliSum_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f pSum[3], PxlHint hint);
PxlStatus pxliSum_32f_C4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f pSum[4], PxlHint hint);
PxlStatus pxliMean_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pMean);
PxlStatus pxliMean_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pMean[3]);
PxlStatus pxliMean_8u_C4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pMean[4]);
PxlStatus pxliMean_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pMean);
PxlStatus pxliMean_16u_C3R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pMean[3]);
PxlStatus pxliMean_16u_C4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pMean[4]);
PxlStatus pxliMean_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pMean);
PxlStatus pxliMean_16s_C3R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f pMean[3]);
PxlStatus pxliMean_16s_C4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f pMean[4]);
PxlStatus pxliMean_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pMean, PxlHint hint);
PxlStatus pxliMean_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f pMean[3], PxlHint hint);
PxlStatus pxliMean_32f_C4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f pMean[4], PxlHint hint);

/* Norms: Inf is the largest absolute value (NaN samples are passed over), L1 the sum of absolute
 * values, L2 the square root of the sum of squares; NormDiff takes them of pSrc1 - pSrc2, and
 * NormRel divides the norm of the difference by the norm of pSrc2 (for L2 before the root). A
 * denominator that is not above 0 (32f: not above the smallest normal double) gives +infinity
 * where the numerator is, NaN where it is not, and the warning pxlStatusWarnDivideByZero. Integer
 * samples are summed exactly; 32f in extended precision. The hint is accepted and not read.
 * Checks: null pointers, sizes below 1, steps below 1. */
PxlStatus pxliNorm_Inf_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNorm_Inf_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNorm_Inf_8u_C4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNorm_Inf_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNorm_Inf_16u_C3R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNorm_Inf_16u_C4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNorm_Inf_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNorm_Inf_16s_C3R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNorm_Inf_16s_C4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNorm_Inf_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNorm_Inf_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNorm_Inf_32f_C4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNorm_L1_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNorm_L1_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNorm_L1_8u_C4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNorm_L1_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNorm_L1_16u_C3R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNorm_L1_16u_C4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNorm_L1_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNorm_L1_16s_C3R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNorm_L1_16s_C4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNorm_L1_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue, PxlHint hint);
PxlStatus pxliNorm_L1_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3], PxlHint hint);
PxlStatus pxliNorm_L1_32f_C4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4], PxlHint hint);
PxlStatus pxliNorm_L2_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNorm_L2_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNorm_L2_8u_C4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNorm_L2_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNorm_L2_16u_C3R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNorm_L2_16u_C4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNorm_L2_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNorm_L2_16s_C3R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNorm_L2_16s_C4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNorm_L2_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f* pValue, PxlHint hint);
PxlStatus pxliNorm_L2_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[3], PxlHint hint);
PxlStatus pxliNorm_L2_32f_C4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl64f pValue[4], PxlHint hint);
PxlStatus pxliNormDiff_Inf_8u_C1R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormDiff_Inf_8u_C3R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormDiff_Inf_8u_C4R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormDiff_Inf_16u_C1R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormDiff_Inf_16u_C3R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormDiff_Inf_16u_C4R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormDiff_Inf_16s_C1R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormDiff_Inf_16s_C3R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormDiff_Inf_16s_C4R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormDiff_Inf_32f_C1R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormDiff_Inf_32f_C3R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormDiff_Inf_32f_C4R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormDiff_L1_8u_C1R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormDiff_L1_8u_C3R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormDiff_L1_8u_C4R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormDiff_L1_16u_C1R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormDiff_L1_16u_C3R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormDiff_L1_16u_C4R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormDiff_L1_16s_C1R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormDiff_L1_16s_C3R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormDiff_L1_16s_C4R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormDiff_L1_32f_C1R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue, PxlHint hint);
PxlStatus pxliNormDiff_L1_32f_C3R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3], PxlHint hint);
PxlStatus pxliNormDiff_L1_32f_C4R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4], PxlHint hint);
PxlStatus pxliNormDiff_L2_8u_C1R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormDiff_L2_8u_C3R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormDiff_L2_8u_C4R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormDiff_L2_16u_C1R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormDiff_L2_16u_C3R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormDiff_L2_16u_C4R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormDiff_L2_16s_C1R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormDiff_L2_16s_C3R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormDiff_L2_16s_C4R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormDiff_L2_32f_C1R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue, PxlHint hint);
PxlStatus pxliNormDiff_L2_32f_C3R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3], PxlHint hint);
PxlStatus pxliNormDiff_L2_32f_C4R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4], PxlHint hint);
PxlStatus pxliNormRel_Inf_8u_C1R(const Pxl8u* pSrc, int srcStep, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormRel_Inf_8u_C3R(const Pxl8u* pSrc, int srcStep, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormRel_Inf_8u_C4R(const Pxl8u* pSrc, int srcStep, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormRel_Inf_16u_C1R(const Pxl16u* pSrc, int srcStep, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormRel_Inf_16u_C3R(const Pxl16u* pSrc, int srcStep, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormRel_Inf_16u_C4R(const Pxl16u* pSrc, int srcStep, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormRel_Inf_16s_C1R(const Pxl16s* pSrc, int srcStep, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormRel_Inf_16s_C3R(const Pxl16s* pSrc, int srcStep, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormRel_Inf_16s_C4R(const Pxl16s* pSrc, int srcStep, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormRel_Inf_32f_C1R(const Pxl32f* pSrc, int srcStep, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormRel_Inf_32f_C3R(const Pxl32f* pSrc, int srcStep, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormRel_Inf_32f_C4R(const Pxl32f* pSrc, int srcStep, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormRel_L1_8u_C1R(const Pxl8u* pSrc, int srcStep, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormRel_L1_8u_C3R(const Pxl8u* pSrc, int srcStep, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormRel_L1_8u_C4R(const Pxl8u* pSrc, int srcStep, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormRel_L1_16u_C1R(const Pxl16u* pSrc, int srcStep, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormRel_L1_16u_C3R(const Pxl16u* pSrc, int srcStep, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormRel_L1_16u_C4R(const Pxl16u* pSrc, int srcStep, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormRel_L1_16s_C1R(const Pxl16s* pSrc, int srcStep, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormRel_L1_16s_C3R(const Pxl16s* pSrc, int srcStep, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormRel_L1_16s_C4R(const Pxl16s* pSrc, int srcStep, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormRel_L1_32f_C1R(const Pxl32f* pSrc, int srcStep, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue, PxlHint hint);
PxlStatus pxliNormRel_L1_32f_C3R(const Pxl32f* pSrc, int srcStep, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3], PxlHint hint);
PxlStatus pxliNormRel_L1_32f_C4R(const Pxl32f* pSrc, int srcStep, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4], PxlHint hint);
PxlStatus pxliNormRel_L2_8u_C1R(const Pxl8u* pSrc, int srcStep, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormRel_L2_8u_C3R(const Pxl8u* pSrc, int srcStep, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormRel_L2_8u_C4R(const Pxl8u* pSrc, int srcStep, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormRel_L2_16u_C1R(const Pxl16u* pSrc, int srcStep, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormRel_L2_16u_C3R(const Pxl16u* pSrc, int srcStep, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormRel_L2_16u_C4R(const Pxl16u* pSrc, int srcStep, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormRel_L2_16s_C1R(const Pxl16s* pSrc, int srcStep, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue);
PxlStatus pxliNormRel_L2_16s_C3R(const Pxl16s* pSrc, int srcStep, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3]);
PxlStatus pxliNormRel_L2_16s_C4R(const Pxl16s* pSrc, int srcStep, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4]);
PxlStatus pxliNormRel_L2_32f_C1R(const Pxl32f* pSrc, int srcStep, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pValue, PxlHint hint);
PxlStatus pxliNormRel_L2_32f_C3R(const Pxl32f* pSrc, int srcStep, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[3], PxlHint hint);
PxlStatus pxliNormRel_L2_32f_C4R(const Pxl32f* pSrc, int srcStep, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pValue[4], PxlHint hint);

/* Dot products: the products added to a 64-bit float total one by one, row by row, pixel by
 * pixel, one total per channel (three for AC4). Checks: null pointers; a size below 1 or a step
 * of 0 is pxlStatusBadSize; steps are not otherwise checked.
 * DotProdCol: pDst[j] = sum over i of pCoefficients[i] * ppSrcList[i][j], accumulated list entry
 * by list entry in the sample type. Checks: null lists or result; length or listLength below 1;
 * a null list entry. */
PxlStatus pxliDotProd_8u64f_C1R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pDp);
PxlStatus pxliDotProd_8u64f_C3R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProd_8u64f_C4R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[4]);
PxlStatus pxliDotProd_8u64f_AC4R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProd_16u64f_C1R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pDp);
PxlStatus pxliDotProd_16u64f_C3R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProd_16u64f_C4R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[4]);
PxlStatus pxliDotProd_16u64f_AC4R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProd_16s64f_C1R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pDp);
PxlStatus pxliDotProd_16s64f_C3R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProd_16s64f_C4R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[4]);
PxlStatus pxliDotProd_16s64f_AC4R(const Pxl16s* pSrc1, int src1Step, const Pxl16s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProd_32u64f_C1R(const Pxl32u* pSrc1, int src1Step, const Pxl32u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pDp);
PxlStatus pxliDotProd_32u64f_C3R(const Pxl32u* pSrc1, int src1Step, const Pxl32u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProd_32u64f_C4R(const Pxl32u* pSrc1, int src1Step, const Pxl32u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[4]);
PxlStatus pxliDotProd_32u64f_AC4R(const Pxl32u* pSrc1, int src1Step, const Pxl32u* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProd_32s64f_C1R(const Pxl32s* pSrc1, int src1Step, const Pxl32s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pDp);
PxlStatus pxliDotProd_32s64f_C3R(const Pxl32s* pSrc1, int src1Step, const Pxl32s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProd_32s64f_C4R(const Pxl32s* pSrc1, int src1Step, const Pxl32s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[4]);
PxlStatus pxliDotProd_32s64f_AC4R(const Pxl32s* pSrc1, int src1Step, const Pxl32s* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProd_32f64f_C1R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f* pDp);
PxlStatus pxliDotProd_32f64f_C3R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProd_32f64f_C4R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[4]);
PxlStatus pxliDotProd_32f64f_AC4R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, PxliSize roiSize, Pxl64f pDp[3]);
PxlStatus pxliDotProdCol_32f_L2(const Pxl32f* const* ppSrcList, const Pxl32f* pCoefficients, int listLength, Pxl32f* pDst, int length);
PxlStatus pxliDotProdCol_64f_L2(const Pxl64f* const* ppSrcList, const Pxl64f* pCoefficients, int listLength, Pxl64f* pDst, int length);

/* Extrema of a region, one per channel (three for AC4), scanning rows top to bottom and pixels
 * left to right: a sample replaces the current extreme only when strictly smaller (larger), so
 * the indices are those of the first occurrence. For 32f each row's extreme starts at the row's
 * first sample; NaN never wins a comparison, so a NaN in the first pixel stays as the result and
 * a row that begins with NaN is passed over. Checks: null pointers, sizes below 1; steps are not
 * checked. */
PxlStatus pxliMin_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u* pMin);
PxlStatus pxliMin_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMin[3]);
PxlStatus pxliMin_8u_C4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMin[4]);
PxlStatus pxliMin_8u_AC4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMin[3]);
PxlStatus pxliMin_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u* pMin);
PxlStatus pxliMin_16u_C3R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMin[3]);
PxlStatus pxliMin_16u_C4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMin[4]);
PxlStatus pxliMin_16u_AC4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMin[3]);
PxlStatus pxliMin_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s* pMin);
PxlStatus pxliMin_16s_C3R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMin[3]);
PxlStatus pxliMin_16s_C4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMin[4]);
PxlStatus pxliMin_16s_AC4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMin[3]);
PxlStatus pxliMin_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f* pMin);
PxlStatus pxliMin_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMin[3]);
PxlStatus pxliMin_32f_C4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMin[4]);
PxlStatus pxliMin_32f_AC4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMin[3]);
PxlStatus pxliMax_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u* pMax);
PxlStatus pxliMax_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMax[3]);
PxlStatus pxliMax_8u_C4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMax[4]);
PxlStatus pxliMax_8u_AC4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMax[3]);
PxlStatus pxliMax_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u* pMax);
PxlStatus pxliMax_16u_C3R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMax[3]);
PxlStatus pxliMax_16u_C4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMax[4]);
PxlStatus pxliMax_16u_AC4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMax[3]);
PxlStatus pxliMax_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s* pMax);
PxlStatus pxliMax_16s_C3R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMax[3]);
PxlStatus pxliMax_16s_C4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMax[4]);
PxlStatus pxliMax_16s_AC4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMax[3]);
PxlStatus pxliMax_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f* pMax);
PxlStatus pxliMax_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMax[3]);
PxlStatus pxliMax_32f_C4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMax[4]);
PxlStatus pxliMax_32f_AC4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMax[3]);
PxlStatus pxliMinMax_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u* pMin, Pxl8u* pMax);
PxlStatus pxliMinMax_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMin[3], Pxl8u pMax[3]);
PxlStatus pxliMinMax_8u_C4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMin[4], Pxl8u pMax[4]);
PxlStatus pxliMinMax_8u_AC4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMin[3], Pxl8u pMax[3]);
PxlStatus pxliMinMax_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u* pMin, Pxl16u* pMax);
PxlStatus pxliMinMax_16u_C3R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMin[3], Pxl16u pMax[3]);
PxlStatus pxliMinMax_16u_C4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMin[4], Pxl16u pMax[4]);
PxlStatus pxliMinMax_16u_AC4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMin[3], Pxl16u pMax[3]);
PxlStatus pxliMinMax_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s* pMin, Pxl16s* pMax);
PxlStatus pxliMinMax_16s_C3R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMin[3], Pxl16s pMax[3]);
PxlStatus pxliMinMax_16s_C4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMin[4], Pxl16s pMax[4]);
PxlStatus pxliMinMax_16s_AC4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMin[3], Pxl16s pMax[3]);
PxlStatus pxliMinMax_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f* pMin, Pxl32f* pMax);
PxlStatus pxliMinMax_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMin[3], Pxl32f pMax[3]);
PxlStatus pxliMinMax_32f_C4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMin[4], Pxl32f pMax[4]);
PxlStatus pxliMinMax_32f_AC4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMin[3], Pxl32f pMax[3]);
PxlStatus pxliMinIndx_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u* pMin, int* pIndexX, int* pIndexY);
PxlStatus pxliMinIndx_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMin[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMinIndx_8u_C4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMin[4], int pIndexX[4], int pIndexY[4]);
PxlStatus pxliMinIndx_8u_AC4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMin[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMinIndx_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u* pMin, int* pIndexX, int* pIndexY);
PxlStatus pxliMinIndx_16u_C3R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMin[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMinIndx_16u_C4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMin[4], int pIndexX[4], int pIndexY[4]);
PxlStatus pxliMinIndx_16u_AC4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMin[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMinIndx_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s* pMin, int* pIndexX, int* pIndexY);
PxlStatus pxliMinIndx_16s_C3R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMin[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMinIndx_16s_C4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMin[4], int pIndexX[4], int pIndexY[4]);
PxlStatus pxliMinIndx_16s_AC4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMin[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMinIndx_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f* pMin, int* pIndexX, int* pIndexY);
PxlStatus pxliMinIndx_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMin[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMinIndx_32f_C4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMin[4], int pIndexX[4], int pIndexY[4]);
PxlStatus pxliMinIndx_32f_AC4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMin[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMaxIndx_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u* pMax, int* pIndexX, int* pIndexY);
PxlStatus pxliMaxIndx_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMax[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMaxIndx_8u_C4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMax[4], int pIndexX[4], int pIndexY[4]);
PxlStatus pxliMaxIndx_8u_AC4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u pMax[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMaxIndx_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u* pMax, int* pIndexX, int* pIndexY);
PxlStatus pxliMaxIndx_16u_C3R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMax[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMaxIndx_16u_C4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMax[4], int pIndexX[4], int pIndexY[4]);
PxlStatus pxliMaxIndx_16u_AC4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl16u pMax[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMaxIndx_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s* pMax, int* pIndexX, int* pIndexY);
PxlStatus pxliMaxIndx_16s_C3R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMax[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMaxIndx_16s_C4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMax[4], int pIndexX[4], int pIndexY[4]);
PxlStatus pxliMaxIndx_16s_AC4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl16s pMax[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMaxIndx_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f* pMax, int* pIndexX, int* pIndexY);
PxlStatus pxliMaxIndx_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMax[3], int pIndexX[3], int pIndexY[3]);
PxlStatus pxliMaxIndx_32f_C4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMax[4], int pIndexX[4], int pIndexY[4]);
PxlStatus pxliMaxIndx_32f_AC4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32f pMax[3], int pIndexX[3], int pIndexY[3]);

/* Elementwise minimum and maximum of two images: the in-place forms write into pSrcDst, the C1R
 * forms into pDst. The result is the first source's sample where it is strictly smaller (larger)
 * than the second's, the second's otherwise (so a NaN in the first source never wins). AC4 leaves
 * the fourth sample of pSrcDst. Checks: null pointers, sizes below 1, steps below 1. */
PxlStatus pxliMinEvery_8u_C1R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_8u_C1IR(const Pxl8u* pSrc, int srcStep, Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_8u_C3IR(const Pxl8u* pSrc, int srcStep, Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_8u_C4IR(const Pxl8u* pSrc, int srcStep, Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_8u_AC4IR(const Pxl8u* pSrc, int srcStep, Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_16u_C1R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_16u_C1IR(const Pxl16u* pSrc, int srcStep, Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_16u_C3IR(const Pxl16u* pSrc, int srcStep, Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_16u_C4IR(const Pxl16u* pSrc, int srcStep, Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_16u_AC4IR(const Pxl16u* pSrc, int srcStep, Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_16s_C1IR(const Pxl16s* pSrc, int srcStep, Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_16s_C3IR(const Pxl16s* pSrc, int srcStep, Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_16s_C4IR(const Pxl16s* pSrc, int srcStep, Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_16s_AC4IR(const Pxl16s* pSrc, int srcStep, Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_32f_C1R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_32f_C1IR(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_32f_C3IR(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_32f_C4IR(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMinEvery_32f_AC4IR(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_8u_C1R(const Pxl8u* pSrc1, int src1Step, const Pxl8u* pSrc2, int src2Step, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_8u_C1IR(const Pxl8u* pSrc, int srcStep, Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_8u_C3IR(const Pxl8u* pSrc, int srcStep, Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_8u_C4IR(const Pxl8u* pSrc, int srcStep, Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_8u_AC4IR(const Pxl8u* pSrc, int srcStep, Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_16u_C1R(const Pxl16u* pSrc1, int src1Step, const Pxl16u* pSrc2, int src2Step, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_16u_C1IR(const Pxl16u* pSrc, int srcStep, Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_16u_C3IR(const Pxl16u* pSrc, int srcStep, Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_16u_C4IR(const Pxl16u* pSrc, int srcStep, Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_16u_AC4IR(const Pxl16u* pSrc, int srcStep, Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_16s_C1IR(const Pxl16s* pSrc, int srcStep, Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_16s_C3IR(const Pxl16s* pSrc, int srcStep, Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_16s_C4IR(const Pxl16s* pSrc, int srcStep, Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_16s_AC4IR(const Pxl16s* pSrc, int srcStep, Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_32f_C1R(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_32f_C1IR(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_32f_C3IR(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_32f_C4IR(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize);
PxlStatus pxliMaxEvery_32f_AC4IR(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize);

/* Block extrema: the source is cut from the top-left into blocks of blockSize (the last row and
 * column of blocks may be partial); block (i, j) puts its minimum and maximum at pixel (i, j) of
 * pDstMin and pDstMax. Either block output may be null, but not both; a global extreme is written
 * where its pointer is not null. Checks: null source, both block outputs null, source or block
 * sides below 1, a source step below the row's width in bytes. */
PxlStatus pxliBlockMinMax_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize srcSize, Pxl8u* pDstMin, int dstMinStep, Pxl8u* pDstMax, int dstMaxStep, PxliSize blockSize, Pxl8u* pDstGlobalMin, Pxl8u* pDstGlobalMax);
PxlStatus pxliBlockMinMax_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize srcSize, Pxl16u* pDstMin, int dstMinStep, Pxl16u* pDstMax, int dstMaxStep, PxliSize blockSize, Pxl16u* pDstGlobalMin, Pxl16u* pDstGlobalMax);
PxlStatus pxliBlockMinMax_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize srcSize, Pxl16s* pDstMin, int dstMinStep, Pxl16s* pDstMax, int dstMaxStep, PxliSize blockSize, Pxl16s* pDstGlobalMin, Pxl16s* pDstGlobalMax);
PxlStatus pxliBlockMinMax_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize srcSize, Pxl32f* pDstMin, int dstMinStep, Pxl32f* pDstMax, int dstMaxStep, PxliSize blockSize, Pxl32f* pDstGlobalMin, Pxl32f* pDstGlobalMax);

/* Histograms. The record lies in the caller's buffer of *pSpecSize bytes, at the pointer given;
 * integer sample forms need a work buffer of *pBufferSize bytes (32f needs none and may pass
 * null). Channel c has nLevels[c] levels and nLevels[c] - 1 bins; bin i counts the samples s with
 * level[i] <= s < level[i + 1]. Integer forms take their levels as integers: the uniform levels
 * truncated toward zero (warning pxlStatusWarnNoOperation when a step is below 1, the record
 * still complete), the given levels raised to the next integer. Levels may reach beyond the
 * sample type's range. A failed Init leaves a record that every later call refuses with
 * pxlStatusBadArgument. */
PxlStatus pxliHistogramGetBufferSize(PxlDataType dataType, PxliSize roiSize, const int* nLevels, int numChannels, int uniform, int* pSpecSize, int* pBufferSize);
PxlStatus pxliHistogramInit(PxlDataType dataType, const Pxl32f* const* pLevels, const int* nLevels, int numChannels, PxliHistogramSpec* pSpec);
PxlStatus pxliHistogramUniformInit(PxlDataType dataType, const Pxl32f* lowerLevel, const Pxl32f* upperLevel, const int* nLevels, int numChannels, PxliHistogramSpec* pSpec);
PxlStatus pxliHistogramGetLevels(const PxliHistogramSpec* pSpec, Pxl32f* const* ppLevels);
PxlStatus pxliHistogram_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl32s* pHist, const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliHistogram_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl32s* const pHist[3], const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliHistogram_8u_C4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl32s* const pHist[4], const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliHistogram_16u_C1R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl32s* pHist, const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliHistogram_16u_C3R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl32s* const pHist[3], const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliHistogram_16u_C4R(const Pxl16u* pSrc, int srcStep, PxliSize roiSize, Pxl32s* const pHist[4], const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliHistogram_16s_C1R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl32s* pHist, const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliHistogram_16s_C3R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl32s* const pHist[3], const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliHistogram_16s_C4R(const Pxl16s* pSrc, int srcStep, PxliSize roiSize, Pxl32s* const pHist[4], const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliHistogram_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32s* pHist, const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliHistogram_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32s* const pHist[3], const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliHistogram_32f_C4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, Pxl32s* const pHist[4], const PxliHistogramSpec* pSpec, Pxl8u* pBuffer);

/* Counting: the samples with lowerBound <= s <= upperBound, per channel. Checks: null pointers,
 * steps below 1, sizes below 1, an upper bound below the lower. */
PxlStatus pxliCountInRange_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, int* pCounts, Pxl8u lowerBound, Pxl8u upperBound);
PxlStatus pxliCountInRange_8u_C3R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, int pCounts[3], const Pxl8u lowerBound[3], const Pxl8u upperBound[3]);
PxlStatus pxliCountInRange_8u_AC4R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, int pCounts[3], const Pxl8u lowerBound[3], const Pxl8u upperBound[3]);
PxlStatus pxliCountInRange_32f_C1R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, int* pCounts, Pxl32f lowerBound, Pxl32f upperBound);
PxlStatus pxliCountInRange_32f_C3R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, int pCounts[3], const Pxl32f lowerBound[3], const Pxl32f upperBound[3]);
PxlStatus pxliCountInRange_32f_AC4R(const Pxl32f* pSrc, int srcStep, PxliSize roiSize, int pCounts[3], const Pxl32f lowerBound[3], const Pxl32f upperBound[3]);

/* The Otsu threshold of an 8u image: the level that maximises the between-class variance, with
 * ties to the lowest; an image of one value gives 0. Checks: null pointers, sizes below 1, a step
 * below the width. */
PxlStatus pxliComputeThreshold_Otsu_8u_C1R(const Pxl8u* pSrc, int srcStep, PxliSize roiSize, Pxl8u* pThreshold);

#ifdef __cplusplus
}
#endif

#endif
