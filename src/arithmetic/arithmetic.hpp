// Declarations of the arithmetic families' implementations, for the entry table.
#pragma once

#include "frame/image.hpp"

namespace pxl::arith {

struct AddOp;
struct SubOp;

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

}  // namespace pxl::arith
