/* pxlipx: neighbourhood filters with border handling. */
#ifndef PXLIPX_FILTERING_H
#define PXLIPX_FILTERING_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The general filter: a caller's rectangular kernel of 16s taps (with a divisor) or 32f taps,
 * correlated with the region: dst(x, y) = sum over rows r and columns k of tap[r][k] times
 * src(x + k - ax, y + r - ay), with the anchor fixed at ax = (kw - 1) / 2, ay = (kh - 1) / 2.
 * Pixels outside the image come from the border word: replicated, mirrored or constant (one
 * sample per channel at pBorderValue), except on the sides whose memory flag says the caller's
 * buffer holds them. Only the image's rim is copied into the work buffer; the interior is read
 * in place.
 *
 * Order of calls: pxliFilterBorderGetSize gives the record and work-buffer sizes; Init fills the
 * record (any address: it is used from the next 64-byte boundary); SetMode optionally adds an
 * offset; then any number of filter calls, each with its own work buffer of the queried size.
 *
 * Integer taps with 8u data: products and sum in 32-bit integers, the offset added, the sum divided
 * by the divisor and rounded by the record's rounding code (0 toward zero, 1 to nearest with ties
 * to even, 2 to nearest with ties upward), saturated. With 16s data the sum is 64-bit and has no
 * offset. 32f taps: the sum runs in extended precision; integer data is rounded as above and
 * saturated, 32f data is stored as it is (NaN and infinities pass through). 16s taps are answered
 * as 32f taps (the divisor folded into them) for 16u data, and for 16s data with 3 or 4 channels
 * or a kernel 1 wide, 1 high or (one channel) under 3 wide. Rounding code 2 rounds negative 16s
 * results to nearest with ties upward as well. Adding pxlFilterModeHint to the rounding code
 * changes no result. */
PxlStatus pxliFilterBorderGetSize(PxliSize kernelSize, PxliSize roiSize, PxlDataType dataType, PxlDataType kernelType, int numChannels, int* pSpecSize, int* pBufferSize);
PxlStatus pxliFilterBorderInit_16s(const Pxl16s* pKernel, PxliSize kernelSize, int divisor, PxlDataType dataType, int numChannels, PxlFilterRound roundMode, PxliFilterBorderSpec* pSpec);
PxlStatus pxliFilterBorderInit_32f(const Pxl32f* pKernel, PxliSize kernelSize, PxlDataType dataType, int numChannels, PxlFilterRound roundMode, PxliFilterBorderSpec* pSpec);
/* An offset added to each integer-tap sum before the division (scaled by the divisor's class as
 * the record keeps it); hint 2 sets the rounding hint bit. Refused for records of 16s data with
 * 16s taps and for 32f taps of 16s or 32f data when the offset is not 0. */
PxlStatus pxliFilterBorderSetMode(PxlHint hint, int offset, PxliFilterBorderSpec* pSpec);
PxlStatus pxliFilterBorder_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl8u* pBorderValue, const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliFilterBorder_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl8u pBorderValue[3], const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliFilterBorder_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl8u pBorderValue[4], const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliFilterBorder_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl16u* pBorderValue, const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliFilterBorder_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl16u pBorderValue[3], const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliFilterBorder_16u_C4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl16u pBorderValue[4], const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliFilterBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl16s* pBorderValue, const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliFilterBorder_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl16s pBorderValue[3], const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliFilterBorder_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl16s pBorderValue[4], const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliFilterBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl32f* pBorderValue, const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliFilterBorder_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl32f pBorderValue[3], const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);
PxlStatus pxliFilterBorder_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxliBorderMode border, const Pxl32f pBorderValue[4], const PxliFilterBorderSpec* pSpec, Pxl8u* pBuffer);

/* The box filter: each pixel replaced by the mean of the maskSize neighbourhood around it (anchor
 * at ((kw - 1) / 2, (kh - 1) / 2)), rounded half up (16s: halves away from zero), with borders as
 * for the general filter (one sample per channel at pBorderValue for the constant kind). pSrc equal
 * to pDst filters in place (the image's step is dstStep), with the same result. AC4 forms leave the
 * fourth sample as it was. The sums run in 32f as the column sums plus the difference of the
 * incoming and outgoing rows, and along each row; they are exact below 2^24. The work buffer holds
 * the image's rim and a few rows, never the image, unless the mask is not smaller than the region.
 */
PxlStatus pxliFilterBoxBorderGetBufferSize(PxliSize roiSize, PxliSize maskSize, PxlDataType dataType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterBoxBorder_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl8u* pBorderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl8u pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16u* pBorderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_16u_C4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16u pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_16u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16s* pBorderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16s pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl32f* pBorderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl32f pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl32f pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterBoxBorder_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl32f pBorderValue[3], Pxl8u* pBuffer);

/* The 64f box mean with no border: dst(x, y) = the mean of the maskSize window starting anchor.x
 * left and anchor.y above the pixel (the caller's buffer holds those pixels). The sums run as
 * running sums: along each source row (the first kw - 1 samples in order, then plus the incoming
 * and minus the outgoing sample), then down the rows the same way, scaled by 1 / (kw * kh). */
PxlStatus pxliFilterBox_64f_C1R(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliSize dstRoiSize, PxliSize maskSize, PxliPoint anchor);

/* Running sums of a window of maskSize samples along each row (Row) or down each column (Column),
 * the window starting anchor samples before each output sample (the caller's buffer holds those
 * around the region), into 32f. The first window of a row or column is summed in 32f in order;
 * each next one adds the difference of the incoming and outgoing samples, taken in integers.
 * Checks: null pointers, maskSize below 1 (pxlStatusBadMaskSize), anchor outside 0..maskSize-1
 * (pxlStatusBadAnchor); an empty region does nothing. */
PxlStatus pxliSumWindowRow_8u32f_C1R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowRow_8u32f_C3R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowRow_8u32f_C4R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16u32f_C1R(const Pxl16u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16u32f_C3R(const Pxl16u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16u32f_C4R(const Pxl16u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16s32f_C1R(const Pxl16s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16s32f_C3R(const Pxl16s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16s32f_C4R(const Pxl16s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_8u32f_C1R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_8u32f_C3R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_8u32f_C4R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16u32f_C1R(const Pxl16u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16u32f_C3R(const Pxl16u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16u32f_C4R(const Pxl16u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16s32f_C1R(const Pxl16s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16s32f_C3R(const Pxl16s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16s32f_C4R(const Pxl16s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, int maskSize, int anchor);

/* The older 64f filter without border handling: dst(x, y) = sum of kernel[r][k] times
 * src(x + k - anchor.x, y + r - anchor.y), summed row by row in 64f; the caller's buffer holds the
 * source pixels around the region. The work buffer is not used (its size query reports 0). */
PxlStatus pxliFilterGetBufSize_64f_C1R(PxliSize kernelSize, int roiWidth, int* pBufferSize);
PxlStatus pxliFilter_64f_C1R(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliSize dstRoiSize, const Pxl64f* pKernel, PxliSize kernelSize, PxliPoint anchor, Pxl8u* pBuffer);

/* Median filters over odd masks, with borders as for the box filter but of the replicated and
 * constant kinds only (a mirrored word gives pxlStatusBadBorder). The single-channel forms take
 * the constant as a sample, the others one sample per channel (three for AC4, whose fourth
 * sample is left as it was). pSrc equal to pDst filters in place, with the same result. The
 * result is the middle value of the window's samples in order; with 32f samples the sorting
 * networks of the common shapes (1x3, 3x1, 1x5, 5x1, 3x3, 5x5) and the partial bubble selection of
 * every other shape decide where a NaN goes: an unordered pair is never exchanged. */
PxlStatus pxliFilterMedianBorderGetBufferSize(PxliSize roiSize, PxliSize maskSize, PxlDataType dataType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterMedianBorder_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl8u pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, Pxl16u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_16u_C4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16u pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_16u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16s pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterMedianBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxliSize maskSize, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);

/* Float medians without borders: the window of output pixel (x, y) starts anchor.x columns left and
 * anchor.y rows above it, and the caller's buffer holds those pixels around the region; each
 * channel alone, the fourth of C4 as well. The work buffer is needed by masks other than 1x1,
 * 3x1, 5x1, 1x3, 1x5, 3x3 and 5x5. */
PxlStatus pxliFilterMedianGetBufferSize_32f(PxliSize roiSize, PxliSize maskSize, int numChannels, int* pBufferSize);
PxlStatus pxliFilterMedianGetBufferSize_64f(PxliSize roiSize, PxliSize maskSize, int numChannels, int* pBufferSize);
PxlStatus pxliFilterMedian_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize dstRoiSize, PxliSize maskSize, PxliPoint anchor, Pxl8u* pBuffer);
PxlStatus pxliFilterMedian_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize dstRoiSize, PxliSize maskSize, PxliPoint anchor, Pxl8u* pBuffer);
PxlStatus pxliFilterMedian_64f_C1R(const Pxl64f* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliSize dstRoiSize, PxliSize maskSize, PxliPoint anchor, Pxl8u* pBuffer);

/* The cross median, each channel alone, no border (the pixels around the region must exist):
 * pxlMask3x3 takes the median of the centre and its four neighbours; pxlMask5x5 the nine samples
 * of the centre row and column, in this order: the row from two left to two right, then the column
 * two above, one above, one below, two below; taken as three triples of consecutive samples, each
 * sorted, the result is the median of the largest of the three smallest, the median of the three
 * middles and the smallest of the three largest. AC4 leaves the fourth sample as it was. */
PxlStatus pxliFilterMedianCross_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianCross_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianCross_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianCross_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianCross_16u_C3R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianCross_16u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianCross_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianCross_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianCross_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);

/* The vector median of a 3x3 (pxlMask3x3) or 5x5 (pxlMask5x5) window, no border: the window pixel
 * whose summed city-block distances to all the window's pixels (over three channels; 32-bit
 * integers, or 32f summed column by column from the left, each column top to bottom) is smallest,
 * the first in row-major order among equals; its three channels are written together. AC4 leaves
 * the fourth sample as it was. */
PxlStatus pxliFilterMedianColor_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianColor_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianColor_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianColor_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianColor_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);
PxlStatus pxliFilterMedianColor_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize dstRoiSize, PxlMaskCode mask);

/* The 3x3 median whose centre counts `weight` times, no border: the value of rank (8 + weight) / 2
 * from the smallest (counting from 0) of the window with the centre repeated. An even weight acts
 * as the odd one below it and the call returns pxlStatusWarnEvenWeight; a weight of 9 or more
 * copies the region; a weight below 1 is pxlStatusBadCenterWeight. */
PxlStatus pxliFilterMedianWeightedCenter3x3_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize dstRoiSize, int weight);

/* The median of three planes, pixel by pixel. */
PxlStatus pxliMedian_8u_P3C1R(const Pxl8u* const ppSrc[3], int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);

/* Fixed kernels that weigh the centre c against the sum S of the window (anchor at the centre),
 * with replicated or constant borders as for the median (one sample per channel at pBorderValue,
 * by value for C1; AC4 leaves the fourth sample as it was):
 *   Laplace 3x3 and high-pass 3x3: 9c - S;  high-pass 5x5: 25c - S;
 *   Laplace 5x5: rows weighted -1 -3 -4 -3 -1 / -3 0 6 0 -3 / -4 6 20 6 -4 / -3 0 6 0 -3 / -1 -3 -4 -3 -1;
 *   sharpen 3x3: (17c - S) / 8, to nearest with ties to even.
 * 8u and 16s are summed exactly and saturated; 32f sums each window row from the left (a weight of
 * 0 adds nothing), then the rows from the top, and finishes as 9.0f * c - S, 25.0f * c - S or
 * (17.0f * c - S) * 0.125f. pSrc equal to pDst filters in place. The size query takes the mask
 * code, the source and destination types (the same: 8u, 16s or 32f) and the channels (1, 3, 4). */
PxlStatus pxliFilterLaplaceBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterHipassBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterSharpenBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterLaplaceBorder_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterLaplaceBorder_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterLaplaceBorder_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl8u pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterLaplaceBorder_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterLaplaceBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterLaplaceBorder_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterLaplaceBorder_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl16s pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterLaplaceBorder_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterLaplaceBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterLaplaceBorder_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl32f pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterLaplaceBorder_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl32f pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterLaplaceBorder_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl32f pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl8u pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl16s pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl32f pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl32f pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterHipassBorder_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl32f pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_8u_C3R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_8u_C4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl8u pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_8u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl8u pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_16s_C3R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_16s_C4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl16s pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_16s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl16s pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_32f_C3R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl32f pBorderValue[3], Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_32f_C4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl32f pBorderValue[4], Pxl8u* pBuffer);
PxlStatus pxliFilterSharpenBorder_32f_AC4R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, const Pxl32f pBorderValue[3], Pxl8u* pBuffer);

/* Derivative filters, single channel, with replicated, mirrored or constant borders (the constant
 * by value) and the memory flags; masks pxlMask3x3, and for the Sobel forms pxlMask5x5. The
 * kernels as applied at (x, y), rows from y - 1 down, columns from x - 1 right:
 *   SobelVert: left column minus right, weighted 1 2 1 down;   SobelNegVert: right minus left;
 *   SobelHoriz: row below minus row above, weighted 1 2 1 across;
 *   ScharrVertMask: right column minus left, weighted 3 10 3;  ScharrHorizMask: below minus above, 3 10 3;
 *   PrewittVert: left column minus right;  PrewittHoriz: row below minus row above;
 *   RobertsDown: src(x, y) - src(x - 1, y - 1);  RobertsUp: src(x, y) - src(x + 1, y - 1);
 *   SobelVertSecond: left + right - 2 centre of the columns smoothed 1 2 1; SobelHorizSecond: the same down rows.
 * The 5x5 Sobel kernels are the binomial 1 4 6 4 1 across the derivative's direction times, along
 * it, 1 2 0 -2 -1 (vertical: left minus right), -1 -2 0 2 1 (horizontal and negative vertical) or
 * 1 0 -2 0 1 (second derivatives). 8u16s reads 8u and writes the exact 16s result; 16s saturates;
 * 32f adds the products of the non-zero weights in row-major order. Checks: null pointers, the
 * region, steps that are not whole samples (pxlStatusMisalignedStep), the mask, the border word.
 * The size query takes the mask code, the pair of types (8u and 16s, 16s and 16s, 32f and 32f)
 * and one channel. */
PxlStatus pxliFilterSobelVertBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterSobelVertBorder_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobelVertBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobelVertBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobelHorizBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterSobelHorizBorder_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobelHorizBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobelHorizBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterScharrVertMaskBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterScharrVertMaskBorder_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterScharrVertMaskBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterScharrVertMaskBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterScharrHorizMaskBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterScharrHorizMaskBorder_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterScharrHorizMaskBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterScharrHorizMaskBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterPrewittVertBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterPrewittVertBorder_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterPrewittVertBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterPrewittVertBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterPrewittHorizBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterPrewittHorizBorder_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterPrewittHorizBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterPrewittHorizBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterRobertsDownBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterRobertsDownBorder_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterRobertsDownBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterRobertsDownBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterRobertsUpBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterRobertsUpBorder_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterRobertsUpBorder_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterRobertsUpBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobelVertSecondBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterSobelVertSecondBorder_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobelVertSecondBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobelHorizSecondBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterSobelHorizSecondBorder_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobelHorizSecondBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobelNegVertBorderGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterSobelNegVertBorder_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobelNegVertBorder_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);

/* The Sobel gradient's magnitude, single channel: normType 2 gives |gx| + |gy|, 4 the Euclidean
 * length sqrt(gx^2 + gy^2), with gx and gy the SobelVert and SobelHoriz results above (3x3 or
 * 5x5). 8u16s forms the exact integer gradient and writes the magnitude rounded to nearest and
 * saturated; 16s32f and 16u32f form it in exact integers and take the magnitude in float; 32f
 * works in float. Borders: replicated or constant (by value), with the memory flags. Checks: null
 * pointers, the region, steps that are not whole samples, the mask, the norm
 * (pxlStatusBadArgument), the border word. The size query takes the pairs 8u and 16s, 16s and
 * 32f, 16u and 32f, 32f and 32f, and one channel; it is the gradient vectors' size. */
PxlStatus pxliFilterSobelGetBufferSize(PxliSize roiSize, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize);
PxlStatus pxliFilterSobel_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, int normType, PxliBorderMode border, Pxl8u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobel_16s32f_C1R(const Pxl16s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, int normType, PxliBorderMode border, Pxl16s borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobel_16u32f_C1R(const Pxl16u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, int normType, PxliBorderMode border, Pxl16u borderValue, Pxl8u* pBuffer);
PxlStatus pxliFilterSobel_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlMaskCode mask, int normType, PxliBorderMode border, Pxl32f borderValue, Pxl8u* pBuffer);

#ifdef __cplusplus
}
#endif

#endif
