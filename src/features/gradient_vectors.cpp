// Gradient vectors: any of the horizontal and vertical gradient, its magnitude and its angle, by
// the Sobel, Prewitt or Scharr operator, on the gradient driver that the Sobel magnitude filter
// uses too. The three-channel forms keep at each pixel the gradient of the channel whose gradient
// is longest.
#include "features/features.hpp"
#include "filtering/gradient.hpp"

#include "exchange/border.hpp"
#include "frame/bind.hpp"

#include <cstdint>

namespace pxl::feat {

using filt::GradientKernels;
using filt::Operator;

PxlStatus gradientVectorGetBufferSize(PxliSize roi, PxlMaskCode mask, PxlDataType dataType, int numChannels, int* pBufferSize)
{
    // Checks: the result pointer; the region; the mask; the source type; the channels.
    if (!pBufferSize) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (mask != pxlMask3x3 && mask != pxlMask5x5) return pxlStatusBadMaskSize;
    if (dataType != pxlDt8u && dataType != pxlDt16u && dataType != pxlDt16s && dataType != pxlDt32f) return pxlStatusBadDataType;
    if (numChannels != 1 && numChannels != 3) return pxlStatusBadChannelCount;
    const int64_t bytes = filt::gradientBufferBytes(roi, mask == pxlMask5x5, dataTypeBytes(dataType), numChannels);
    if (bytes > INT32_MAX) return pxlStatusSizeOverflow;
    *pBufferSize = static_cast<int>(bytes);
    return pxlStatusOk;
}

// A plane's step: below 1, or not whole samples.
template <class T> PxlStatus planeStep(const T* plane, int step)
{
    if (!plane) return pxlStatusOk;
    if (step < 1) return pxlStatusBadStep;
    return step % static_cast<int>(sizeof(T)) != 0 ? pxlStatusMisalignedStep : pxlStatusOk;
}

template <Operator Op, class S, class D, int N>
PxlStatus gradientVector(const S* pSrc, int srcStep, D* pGx, int gxStep, D* pGy, int gyStep, D* pMag, int magStep, Pxl32f* pAngle,
                         int angleStep, PxliSize roi, PxlMaskCode mask, int normType, PxliBorderMode border, const S* pBorderValue,
                         Pxl8u* pBuffer)
{
    // Checks, in order:
    //   the border word (replicate, mirror, constant; 240);
    //   the source: null, a step below 1, a step that is not whole samples;
    //   the work buffer;
    //   each plane asked for, gx, gy, magnitude, angle: its step; for the magnitude, the norm;
    //   the region;
    //   the mask (3x3, and 5x5 for Sobel and Prewitt).
    if (checkBorderWord(border, kFilterBorderKinds) != pxlStatusOk) return pxlStatusBadBorder;
    if (!pSrc) return pxlStatusNullPointer;
    if (srcStep < 1) return pxlStatusBadStep;
    if (srcStep % static_cast<int>(sizeof(S)) != 0) return pxlStatusMisalignedStep;
    if (!pBuffer) return pxlStatusNullPointer;
    for (const PxlStatus s : {planeStep(pGx, gxStep), planeStep(pGy, gyStep), planeStep(pMag, magStep)})
        if (s != pxlStatusOk) return s;
    if (pMag && normType != 2 && normType != 4) return pxlStatusBadArgument;
    if (const PxlStatus s = planeStep(pAngle, angleStep); s != pxlStatusOk) return s;
    if (badSize(roi)) return pxlStatusBadSize;
    const bool five = mask == pxlMask5x5 && Op != Operator::Scharr;
    if (mask != pxlMask3x3 && !five) return pxlStatusBadMaskSize;
    if (!pGx && !pGy && !pMag && !pAngle) return pxlStatusOk;

    const filt::GradientPlanes<D> planes{pGx, gxStep, pGy, gyStep, pMag, magStep, pAngle, angleStep, normType};
    const filt::BorderPixel<S> value(pBorderValue, N);
    const filt::RingSource<S> source{pSrc, srcStep, roi, five ? 5 : 3, five ? 5 : 3, border & 15, border & pxlBorderMemAll, value.v};
    auto* ring = reinterpret_cast<filt::Loose<S>*>(pBuffer);
    if constexpr (Op != Operator::Scharr)
        if (five) {
            filt::gradientImage<GradientKernels<Op, true>, S, N>(source, ring, planes);
            return pxlStatusOk;
        }
    filt::gradientImage<GradientKernels<Op, false>, S, N>(source, ring, planes);
    return pxlStatusOk;
}

// The one-channel forms take the border value by value.
template <Operator Op, class S, class D>
PxlStatus gradientVectorC1(const S* pSrc, int srcStep, D* pGx, int gxStep, D* pGy, int gyStep, D* pMag, int magStep, Pxl32f* pAngle,
                           int angleStep, PxliSize roi, PxlMaskCode mask, int normType, PxliBorderMode border, S borderValue,
                           Pxl8u* pBuffer)
{
    return gradientVector<Op, S, D, 1>(pSrc, srcStep, pGx, gxStep, pGy, gyStep, pMag, magStep, pAngle, angleStep, roi, mask, normType,
                                       border, &borderValue, pBuffer);
}

}  // namespace pxl::feat

#include "inst/features/gradient_vectors.inc"
