/* pxlipx: pixel arithmetic. */
#ifndef PXLIPX_ARITHMETIC_H
#define PXLIPX_ARITHMETIC_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Add and subtract, image with image (Add, Sub) or with a constant (AddC, SubC).
 * Add: first + second. Sub: second - first (in place: pSrcDst - pSrc). AddC: source + value.
 * SubC: source - value. Integer forms scale the exact result s by 2^-scaleFactor, rounding half to
 * even, and saturate to the type; no limit on scaleFactor. 32f forms are plain IEEE arithmetic.
 * Constant forms of C3 and AC4 take three values, C4 four. Steps are not checked.
 * The _L forms take the same arguments and give the same results. */
/* Each form is declared with and without _L; SF is the scale-factor token (Sfs, or nothing for 32f)
 * and SFARG the trailing argument that goes with it. */
#define PXLI_ADDSUB_BINARY(op, T, t, L, SF, SFARG, LL, SZ) \
    PxlStatus pxli##op##_##t##_##L##R##SF##LL(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, SZ roiSize SFARG()); \
    PxlStatus pxli##op##_##t##_##L##IR##SF##LL(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, SZ roiSize SFARG());
#define PXLI_ADDSUB_CONST(op, T, t, SF, SFARG, LL, SZ) \
    PxlStatus pxli##op##_##t##_C1R##SF##LL(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, SZ roiSize SFARG()); \
    PxlStatus pxli##op##_##t##_C1IR##SF##LL(T value, T* pSrcDst, int srcDstStep, SZ roiSize SFARG()); \
    PxlStatus pxli##op##_##t##_C3R##SF##LL(const T* pSrc, int srcStep, const T value[3], T* pDst, int dstStep, SZ roiSize SFARG()); \
    PxlStatus pxli##op##_##t##_C3IR##SF##LL(const T value[3], T* pSrcDst, int srcDstStep, SZ roiSize SFARG()); \
    PxlStatus pxli##op##_##t##_C4R##SF##LL(const T* pSrc, int srcStep, const T value[4], T* pDst, int dstStep, SZ roiSize SFARG()); \
    PxlStatus pxli##op##_##t##_C4IR##SF##LL(const T value[4], T* pSrcDst, int srcDstStep, SZ roiSize SFARG()); \
    PxlStatus pxli##op##_##t##_AC4R##SF##LL(const T* pSrc, int srcStep, const T value[3], T* pDst, int dstStep, SZ roiSize SFARG()); \
    PxlStatus pxli##op##_##t##_AC4IR##SF##LL(const T value[3], T* pSrcDst, int srcDstStep, SZ roiSize SFARG());
#define PXLI_ADDSUB_WIDTHS(op, T, t, SF, SFARG, LL, SZ) \
    PXLI_ADDSUB_BINARY(op, T, t, C1, SF, SFARG, LL, SZ) PXLI_ADDSUB_BINARY(op, T, t, C3, SF, SFARG, LL, SZ) \
    PXLI_ADDSUB_BINARY(op, T, t, C4, SF, SFARG, LL, SZ) PXLI_ADDSUB_BINARY(op, T, t, AC4, SF, SFARG, LL, SZ)
#define PXLI_ADDSUB_ALL(T, t, SF, SFARG, LL, SZ) \
    PXLI_ADDSUB_WIDTHS(Add, T, t, SF, SFARG, LL, SZ) PXLI_ADDSUB_WIDTHS(Sub, T, t, SF, SFARG, LL, SZ) \
    PXLI_ADDSUB_CONST(AddC, T, t, SF, SFARG, LL, SZ) PXLI_ADDSUB_CONST(SubC, T, t, SF, SFARG, LL, SZ)
#define PXLI_SCALE_ARG() , int scaleFactor
#define PXLI_NO_ARG()
#define PXLI_PLAIN
PXLI_ADDSUB_ALL(Pxl8u, 8u, Sfs, PXLI_SCALE_ARG, PXLI_PLAIN, PxliSize)
PXLI_ADDSUB_ALL(Pxl8u, 8u, Sfs, PXLI_SCALE_ARG, _L, PxliSizeL)
PXLI_ADDSUB_ALL(Pxl16u, 16u, Sfs, PXLI_SCALE_ARG, PXLI_PLAIN, PxliSize)
PXLI_ADDSUB_ALL(Pxl16u, 16u, Sfs, PXLI_SCALE_ARG, _L, PxliSizeL)
PXLI_ADDSUB_ALL(Pxl16s, 16s, Sfs, PXLI_SCALE_ARG, PXLI_PLAIN, PxliSize)
PXLI_ADDSUB_ALL(Pxl16s, 16s, Sfs, PXLI_SCALE_ARG, _L, PxliSizeL)
PXLI_ADDSUB_ALL(Pxl32f, 32f, PXLI_PLAIN, PXLI_NO_ARG, PXLI_PLAIN, PxliSize)
PXLI_ADDSUB_ALL(Pxl32f, 32f, PXLI_PLAIN, PXLI_NO_ARG, _L, PxliSizeL)
#undef PXLI_PLAIN
#undef PXLI_NO_ARG
#undef PXLI_SCALE_ARG
#undef PXLI_ADDSUB_ALL
#undef PXLI_ADDSUB_WIDTHS
#undef PXLI_ADDSUB_CONST
#undef PXLI_ADDSUB_BINARY

#ifdef __cplusplus
}
#endif

#endif
