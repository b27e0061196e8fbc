// Declarations of the arithmetic families' implementations, for the entry table.
#pragma once

#include "frame/image.hpp"

namespace pxl::arith {

struct AddOp;
struct SubOp;
struct MulOp;
struct AndOp;
struct OrOp;
struct XorOp;

// Add and subtract: T is the sample type, Op AddOp or SubOp, L the layout.
template <class T, class Op, class L>
PxlStatus binarySfs(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi, int f);
template <class T, class Op, class L>
PxlStatus binarySfsInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi, int f);
template <class Op, class L>
PxlStatus binaryFloat(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl32f* pDst, int dstStep, PxliSize roi);
template <class Op, class L>
PxlStatus binaryFloatInPlace(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi);
template <class T, class Op>
PxlStatus constantValueSfs(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, PxliSize roi, int f);
template <class T, class Op> PxlStatus constantValueSfsInPlace(T value, T* pSrcDst, int srcDstStep, PxliSize roi, int f);
template <class T, class Op, class L>
PxlStatus constantArraySfs(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, PxliSize roi, int f);
template <class T, class Op, class L>
PxlStatus constantArraySfsInPlace(const T* value, T* pSrcDst, int srcDstStep, PxliSize roi, int f);
template <class Op>
PxlStatus constantValueFloat(const Pxl32f* pSrc, int srcStep, Pxl32f value, Pxl32f* pDst, int dstStep, PxliSize roi);
template <class Op> PxlStatus constantValueFloatInPlace(Pxl32f value, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi);
template <class Op, class L>
PxlStatus constantArrayFloat(const Pxl32f* pSrc, int srcStep, const Pxl32f* value, Pxl32f* pDst, int dstStep, PxliSize roi);
template <class Op, class L>
PxlStatus constantArrayFloatInPlace(const Pxl32f* value, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi);

// Division, fractional products and products with double constants.
template <class T, class L>
PxlStatus divide(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi, int f);
template <class T, class L>
PxlStatus divideInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi, int f);
template <class L>
PxlStatus divideFloat(const Pxl32f* pSrc1, int src1Step, const Pxl32f* pSrc2, int src2Step, Pxl32f* pDst, int dstStep, PxliSize roi);
template <class L>
PxlStatus divideFloatInPlace(const Pxl32f* pSrc, int srcStep, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi);
template <class T, class L>
PxlStatus divideRound(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi,
                      PxlRoundMode code, int f);
template <class T, class L>
PxlStatus divideRoundInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi, PxlRoundMode code, int f);
template <class T>
PxlStatus divideConstantValue(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, PxliSize roi, int f);
template <class T> PxlStatus divideConstantValueInPlace(T value, T* pSrcDst, int srcDstStep, PxliSize roi, int f);
template <class T, class L>
PxlStatus divideConstantArray(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, PxliSize roi, int f);
template <class T, class L>
PxlStatus divideConstantArrayInPlace(const T* value, T* pSrcDst, int srcDstStep, PxliSize roi, int f);
PxlStatus divideConstantFloat(const Pxl32f* pSrc, int srcStep, Pxl32f value, Pxl32f* pDst, int dstStep, PxliSize roi);
PxlStatus divideConstantFloatInPlace(Pxl32f value, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi);
template <class L>
PxlStatus divideConstantArrayFloat(const Pxl32f* pSrc, int srcStep, const Pxl32f* value, Pxl32f* pDst, int dstStep, PxliSize roi);
template <class L>
PxlStatus divideConstantArrayFloatInPlace(const Pxl32f* value, Pxl32f* pSrcDst, int srcDstStep, PxliSize roi);
template <class T, class L>
PxlStatus mulScale(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi);
template <class T, class L> PxlStatus mulScaleInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi);
template <class T, class L>
PxlStatus mulCScaleArray(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, PxliSize roi);
template <class T, class L> PxlStatus mulCScaleArrayInPlace(const T* value, T* pSrcDst, int srcDstStep, PxliSize roi);
template <class T> PxlStatus mulCScaleValue(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, PxliSize roi);
template <class T> PxlStatus mulCScaleValueInPlace(T value, T* pSrcDst, int srcDstStep, PxliSize roi);
template <class T, class L>
PxlStatus mulC64f(const T* pSrc, int srcStep, const Pxl64f* value, T* pDst, int dstStep, PxliSize roi, PxlHint hint, PxlRoundMode code);
template <class T, class L>
PxlStatus mulC64fInPlace(T* pSrcDst, int srcDstStep, const Pxl64f* value, PxliSize roi, PxlHint hint, PxlRoundMode code);

// Logic and shifts.
template <class T, class Op, class L>
PxlStatus logicImages(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi);
template <class T, class Op, class L>
PxlStatus logicImagesInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi);
template <class T, class Op, class L>
PxlStatus logicConstant(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, PxliSize roi);
template <class T, class Op> PxlStatus logicValue(const T* pSrc, int srcStep, T value, T* pDst, int dstStep, PxliSize roi);
template <class T, class Op> PxlStatus logicValueInPlace(T value, T* pSrcDst, int srcDstStep, PxliSize roi);
template <class T, class Op, class L> PxlStatus logicArrayInPlace(const T* value, T* pSrcDst, int srcDstStep, PxliSize roi);
template <class L> PxlStatus notImage(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi);
template <class L> PxlStatus notImageInPlace(Pxl8u* pSrcDst, int srcDstStep, PxliSize roi);
template <class T, class L, bool Left>
PxlStatus shiftArray(const T* pSrc, int srcStep, const Pxl32u* count, T* pDst, int dstStep, PxliSize roi);
template <class T, bool Left> PxlStatus shiftValue(const T* pSrc, int srcStep, Pxl32u count, T* pDst, int dstStep, PxliSize roi);
template <class T, bool Left> PxlStatus shiftValueInPlace(Pxl32u count, T* pSrcDst, int srcDstStep, PxliSize roi);
template <class T, class L, bool Left> PxlStatus shiftArrayInPlace(const Pxl32u* count, T* pSrcDst, int srcDstStep, PxliSize roi);

}  // namespace pxl::arith
