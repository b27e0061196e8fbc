/* pxlipx: conversion between sample types. */
#ifndef PXLIPX_CONVERT_H
#define PXLIPX_CONVERT_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Convert keeps the number: integer targets saturate; float sources are rounded by roundMode
 * (pxlRoundTowardZero, pxlRoundNearestEven, any other value nearest with ties away from zero) and
 * NaN gives 0. The Sfs forms first scale the source by 2^-scaleFactor. C1Rs forms are the plain
 * conversions of pairs that also have scaled forms. */
PxlStatus pxliConvert_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u16s_C3R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u16s_C4R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u16s_AC4R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u16u_C1R(const Pxl8u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u16u_C3R(const Pxl8u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u16u_C4R(const Pxl8u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u16u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u32f_C1R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u32f_C3R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u32f_C4R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u32f_AC4R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u32s_C1R(const Pxl8u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u32s_C3R(const Pxl8u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u32s_C4R(const Pxl8u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u32s_AC4R(const Pxl8u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s32f_C1R(const Pxl8s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s32f_C3R(const Pxl8s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s32f_C4R(const Pxl8s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s32f_AC4R(const Pxl8s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s32s_C1R(const Pxl8s* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s32s_C3R(const Pxl8s* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s32s_C4R(const Pxl8s* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s32s_AC4R(const Pxl8s* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s8u_C1R(const Pxl16s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s8u_C3R(const Pxl16s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s8u_C4R(const Pxl16s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s8u_AC4R(const Pxl16s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s32f_C1R(const Pxl16s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s32f_C3R(const Pxl16s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s32f_C4R(const Pxl16s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s32f_AC4R(const Pxl16s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s32s_C1R(const Pxl16s* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s32s_C3R(const Pxl16s* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s32s_C4R(const Pxl16s* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s32s_AC4R(const Pxl16s* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u8u_C1R(const Pxl16u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u8u_C3R(const Pxl16u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u8u_C4R(const Pxl16u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u8u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u32f_C1R(const Pxl16u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u32f_C3R(const Pxl16u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u32f_C4R(const Pxl16u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u32f_AC4R(const Pxl16u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u32s_C1R(const Pxl16u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u32s_C3R(const Pxl16u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u32s_C4R(const Pxl16u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u32s_AC4R(const Pxl16u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32s8s_C1R(const Pxl32s* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32s8s_C3R(const Pxl32s* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32s8s_C4R(const Pxl32s* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32s8s_AC4R(const Pxl32s* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32s8u_C1R(const Pxl32s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32s8u_C3R(const Pxl32s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32s8u_C4R(const Pxl32s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32s8u_AC4R(const Pxl32s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32f8s_C1R(const Pxl32f* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8s_C3R(const Pxl32f* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8s_C4R(const Pxl32f* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8s_AC4R(const Pxl32f* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8u_C1R(const Pxl32f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8u_C3R(const Pxl32f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8u_C4R(const Pxl32f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8u_AC4R(const Pxl32f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16s_C1R(const Pxl32f* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16s_C3R(const Pxl32f* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16s_C4R(const Pxl32f* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16s_AC4R(const Pxl32f* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16u_C1R(const Pxl32f* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16u_C3R(const Pxl32f* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16u_C4R(const Pxl32f* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16u_AC4R(const Pxl32f* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode);
PxlStatus pxliConvert_8s16s_C1R(const Pxl8s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s64f_C1R(const Pxl8s* pSrc, int srcStep, Pxl64f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16u32u_C1R(const Pxl16u* pSrc, int srcStep, Pxl32u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32s32f_C1R(const Pxl32s* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32u32f_C1R(const Pxl32u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s8u_C1Rs(const Pxl8s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s16u_C1Rs(const Pxl8s* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8s32u_C1Rs(const Pxl8s* pSrc, int srcStep, Pxl32u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s16u_C1Rs(const Pxl16s* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_16s32u_C1Rs(const Pxl16s* pSrc, int srcStep, Pxl32u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_32s32u_C1Rs(const Pxl32s* pSrc, int srcStep, Pxl32u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliConvert_8u8s_C1RSfs(const Pxl8u* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_16s8s_C1RSfs(const Pxl16s* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_16u8s_C1RSfs(const Pxl16u* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_16u16s_C1RSfs(const Pxl16u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32f8s_C1RSfs(const Pxl32f* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32f8u_C1RSfs(const Pxl32f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32f16s_C1RSfs(const Pxl32f* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32f16u_C1RSfs(const Pxl32f* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32f32s_C1RSfs(const Pxl32f* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32f32u_C1RSfs(const Pxl32f* pSrc, int srcStep, Pxl32u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32s16s_C1RSfs(const Pxl32s* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32s16u_C1RSfs(const Pxl32s* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32u8s_C1RSfs(const Pxl32u* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32u8u_C1RSfs(const Pxl32u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32u16s_C1RSfs(const Pxl32u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32u16u_C1RSfs(const Pxl32u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32u32s_C1RSfs(const Pxl32u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_64f8s_C1RSfs(const Pxl64f* pSrc, int srcStep, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_64f8u_C1RSfs(const Pxl64f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_64f16s_C1RSfs(const Pxl64f* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_64f16u_C1RSfs(const Pxl64f* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliConvert_32f32u_C1IRSfs(Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, PxlRoundMode roundMode, int scaleFactor);

/* Scale maps the whole range of the source onto the whole range of the target. 8u32f maps 0..255
 * onto vMin..vMax, 32f8u maps vMin..vMax onto 0..255 (vMax must be above vMin). For 16s8u, 16u8u
 * and 32s8u a hint of 2 asks for the accurate form (nearest), any other for the fast one. */
PxlStatus pxliScale_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u16s_C3R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u16s_C4R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u16s_AC4R(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u16u_C1R(const Pxl8u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u16u_C3R(const Pxl8u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u16u_C4R(const Pxl8u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u16u_AC4R(const Pxl8u* pSrc, int srcStep, Pxl16u* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u32s_C1R(const Pxl8u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u32s_C3R(const Pxl8u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u32s_C4R(const Pxl8u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u32s_AC4R(const Pxl8u* pSrc, int srcStep, Pxl32s* pDst, int dstStep, PxliSize roiSize);
PxlStatus pxliScale_8u32f_C1R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f vMin, Pxl32f vMax);
PxlStatus pxliScale_8u32f_C3R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f vMin, Pxl32f vMax);
PxlStatus pxliScale_8u32f_C4R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f vMin, Pxl32f vMax);
PxlStatus pxliScale_8u32f_AC4R(const Pxl8u* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roiSize, Pxl32f vMin, Pxl32f vMax);
PxlStatus pxliScale_16s8u_C1R(const Pxl16s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_16s8u_C3R(const Pxl16s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_16s8u_C4R(const Pxl16s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_16s8u_AC4R(const Pxl16s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_16u8u_C1R(const Pxl16u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_16u8u_C3R(const Pxl16u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_16u8u_C4R(const Pxl16u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_16u8u_AC4R(const Pxl16u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_32s8u_C1R(const Pxl32s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_32s8u_C3R(const Pxl32s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_32s8u_C4R(const Pxl32s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_32s8u_AC4R(const Pxl32s* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScale_32f8u_C1R(const Pxl32f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f vMin, Pxl32f vMax);
PxlStatus pxliScale_32f8u_C3R(const Pxl32f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f vMin, Pxl32f vMax);
PxlStatus pxliScale_32f8u_C4R(const Pxl32f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f vMin, Pxl32f vMax);
PxlStatus pxliScale_32f8u_AC4R(const Pxl32f* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roiSize, Pxl32f vMin, Pxl32f vMax);

/* ScaleC stores saturate(x * mVal + aVal), computed in double and rounded to nearest with ties to
 * even for integer targets. The hint is accepted; every hint gives the same result. */
PxlStatus pxliScaleC_8u_C1R(const Pxl8u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8u_C1IR(Pxl64f mVal, Pxl64f aVal, Pxl8u* pSrcDst, int srcDstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8u8s_C1R(const Pxl8u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8u16u_C1R(const Pxl8u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8u16s_C1R(const Pxl8u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8u32s_C1R(const Pxl8u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8u32f_C1R(const Pxl8u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8u64f_C1R(const Pxl8u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl64f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8s8u_C1R(const Pxl8s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8s_C1R(const Pxl8s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8s_C1IR(Pxl64f mVal, Pxl64f aVal, Pxl8s* pSrcDst, int srcDstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8s16u_C1R(const Pxl8s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8s16s_C1R(const Pxl8s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8s32s_C1R(const Pxl8s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8s32f_C1R(const Pxl8s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_8s64f_C1R(const Pxl8s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl64f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16u8u_C1R(const Pxl16u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16u8s_C1R(const Pxl16u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16u_C1R(const Pxl16u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16u_C1IR(Pxl64f mVal, Pxl64f aVal, Pxl16u* pSrcDst, int srcDstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16u16s_C1R(const Pxl16u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16u32s_C1R(const Pxl16u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16u32f_C1R(const Pxl16u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16u64f_C1R(const Pxl16u* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl64f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16s8u_C1R(const Pxl16s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16s8s_C1R(const Pxl16s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16s16u_C1R(const Pxl16s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16s_C1R(const Pxl16s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16s_C1IR(Pxl64f mVal, Pxl64f aVal, Pxl16s* pSrcDst, int srcDstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16s32s_C1R(const Pxl16s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16s32f_C1R(const Pxl16s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_16s64f_C1R(const Pxl16s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl64f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32s8u_C1R(const Pxl32s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32s8s_C1R(const Pxl32s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32s16u_C1R(const Pxl32s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32s16s_C1R(const Pxl32s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32s_C1R(const Pxl32s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32s_C1IR(Pxl64f mVal, Pxl64f aVal, Pxl32s* pSrcDst, int srcDstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32s32f_C1R(const Pxl32s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32s64f_C1R(const Pxl32s* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl64f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32f8u_C1R(const Pxl32f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32f8s_C1R(const Pxl32f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32f16u_C1R(const Pxl32f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32f16s_C1R(const Pxl32f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32f32s_C1R(const Pxl32f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32f_C1R(const Pxl32f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32f_C1IR(Pxl64f mVal, Pxl64f aVal, Pxl32f* pSrcDst, int srcDstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_32f64f_C1R(const Pxl32f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl64f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_64f8u_C1R(const Pxl64f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_64f8s_C1R(const Pxl64f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl8s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_64f16u_C1R(const Pxl64f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16u* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_64f16s_C1R(const Pxl64f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl16s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_64f32s_C1R(const Pxl64f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32s* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_64f32f_C1R(const Pxl64f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl32f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_64f_C1R(const Pxl64f* pSrc, int srcStep, Pxl64f mVal, Pxl64f aVal, Pxl64f* pDst, int dstStep, PxliSize roiSize, PxlHint hint);
PxlStatus pxliScaleC_64f_C1IR(Pxl64f mVal, Pxl64f aVal, Pxl64f* pSrcDst, int srcDstStep, PxliSize roiSize, PxlHint hint);

#ifdef __cplusplus
}
#endif

#endif
