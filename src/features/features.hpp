// Declarations of the feature families' implementations, for the entry table.
#pragma once

#include "frame/image.hpp"

namespace pxl::filt {
enum class Operator { Sobel, Prewitt, Scharr };
}

namespace pxl::feat {

// Gradient vectors.
PxlStatus gradientVectorGetBufferSize(PxliSize roiSize, PxlMaskCode maskId, PxlDataType dataType, int numChannels, int* pBufferSize);
template <filt::Operator Op, class S, class D, int N>
PxlStatus gradientVector(const S* pSrc, int srcStep, D* pGx, int gxStep, D* pGy, int gyStep, D* pMag, int magStep, Pxl32f* pAngle,
                         int angleStep, PxliSize roi, PxlMaskCode mask, int normType, PxliBorderMode border, const S* pBorderValue,
                         Pxl8u* pBuffer);
template <filt::Operator Op, class S, class D>
PxlStatus gradientVectorC1(const S* pSrc, int srcStep, D* pGx, int gxStep, D* pGy, int gyStep, D* pMag, int magStep, Pxl32f* pAngle,
                           int angleStep, PxliSize roi, PxlMaskCode mask, int normType, PxliBorderMode border, S borderValue,
                           Pxl8u* pBuffer);

}  // namespace pxl::feat
