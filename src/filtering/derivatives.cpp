// Derivative filters with fixed kernels (Sobel, Scharr, Prewitt, Roberts), single channel, with
// borders: one driver over the ring of extended rows and one row kernel per kernel table; and the
// Sobel gradient's magnitude on the gradient driver.
#include "filtering/filtering.hpp"
#include "filtering/gradient.hpp"

#include "exchange/border.hpp"
#include "frame/bind.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace pxl::filt {

namespace {

template <Weights K, class S, class D, class Rows> void derivativeRow(const Rows& rows, D* out, int width)
{
    using A = FixedSum<S>;
    decltype(rows(0)) r[5];
    for (int i = 0; i < K.side; ++i) r[i] = rows(i);
    for (int x = 0; x < width; ++x) {
        const A sum = windowSum<K, 1, A, S>(r, x);
        if constexpr (std::is_same_v<S, Pxl16s>) out[x] = static_cast<D>(std::clamp<A>(sum, INT16_MIN, INT16_MAX));
        else out[x] = static_cast<D>(sum);
    }
}

template <int Kind> bool allowedMask(PxlMaskCode mask)
{
    // Sobel forms (selectors 0, 1, 8, 9, 10) take 5x5 as well.
    constexpr bool five = Kind == 0 || Kind == 1 || Kind >= 8;
    return mask == pxlMask3x3 || (five && mask == pxlMask5x5);
}

}  // namespace

PxlStatus derivativeGetBufferSize(PxliSize roi, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize)
{
    // Checks: the result pointer; the region; the mask; the pair of types; the channels.
    if (!pBufferSize) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (mask != pxlMask3x3 && mask != pxlMask5x5) return pxlStatusBadMaskSize;
    const bool pair = (srcType == pxlDt8u && dstType == pxlDt16s) || (srcType == pxlDt16s && dstType == pxlDt16s) ||
                      (srcType == pxlDt32f && dstType == pxlDt32f);
    if (!pair) return pxlStatusBadDataType;
    if (numChannels != 1) return pxlStatusBadChannelCount;
    const int64_t bytes = fixedKernelBufferBytes(roi, mask == pxlMask5x5, dataTypeBytes(srcType), 1);
    if (bytes > INT32_MAX) return pxlStatusSizeOverflow;
    *pBufferSize = static_cast<int>(bytes);
    return pxlStatusOk;
}

template <int Kind, class S, class D>
PxlStatus derivativeBorder(const S* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi, PxlMaskCode mask, PxliBorderMode border,
                           S borderValue, Pxl8u* pBuffer)
{
    // Checks: pointers; the region; steps that are not whole samples; the mask; the border word.
    if (!pSrc || !pDst || !pBuffer) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep % static_cast<int>(sizeof(S)) != 0 || dstStep % static_cast<int>(sizeof(D)) != 0) return pxlStatusMisalignedStep;
    if (!allowedMask<Kind>(mask)) return pxlStatusBadMaskSize;
    if (checkBorderWord(border, kFilterBorderKinds) != pxlStatusOk) return pxlStatusBadBorder;

    const int k = mask == pxlMask3x3 ? 3 : 5;
    const RingSource<S> source{pSrc, srcStep, roi, k, k, border & 15, border & pxlBorderMemAll, &borderValue};
    auto run = [&](auto kernel) {
        slideRows<S, 1>(source, reinterpret_cast<Loose<S>*>(pBuffer), [&](int y, const auto& rows) { kernel(rows, rowAt(pDst, dstStep, y), roi.width); });
    };
    if (k == 3) run([](const auto& rows, D* out, int width) { derivativeRow<k3x3[Kind], S, D>(rows, out, width); });
    else if constexpr (Kind == 0 || Kind == 1 || Kind >= 8)
        run([](const auto& rows, D* out, int width) { derivativeRow<k5x5[Kind], S, D>(rows, out, width); });
    return pxlStatusOk;
}


PxlStatus filterSobelGetBufferSize(PxliSize roi, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels, int* pBufferSize)
{
    // Checks: the result pointer; the region; the mask; the pair of types; the channels.
    if (!pBufferSize) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (mask != pxlMask3x3 && mask != pxlMask5x5) return pxlStatusBadMaskSize;
    const bool pair = (srcType == pxlDt8u && dstType == pxlDt16s) || (srcType == pxlDt16s && dstType == pxlDt32f) ||
                      (srcType == pxlDt16u && dstType == pxlDt32f) || (srcType == pxlDt32f && dstType == pxlDt32f);
    if (!pair) return pxlStatusBadDataType;
    if (numChannels != 1) return pxlStatusBadChannelCount;
    const int64_t bytes = gradientBufferBytes(roi, mask == pxlMask5x5, dataTypeBytes(srcType), 1);
    if (bytes > INT32_MAX) return pxlStatusSizeOverflow;
    *pBufferSize = static_cast<int>(bytes);
    return pxlStatusOk;
}

template <class S, class D>
PxlStatus filterSobel(const S* pSrc, int srcStep, D* pDst, int dstStep, PxliSize roi, PxlMaskCode mask, int normType,
                      PxliBorderMode border, S borderValue, Pxl8u* pBuffer)
{
    // Checks: pointers; the region; steps that are not whole samples; the mask; the norm; the
    // border word (no mirror).
    if (!pSrc || !pDst || !pBuffer) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep % static_cast<int>(sizeof(S)) != 0 || dstStep % static_cast<int>(sizeof(D)) != 0) return pxlStatusMisalignedStep;
    if (mask != pxlMask3x3 && mask != pxlMask5x5) return pxlStatusBadMaskSize;
    if (normType != 2 && normType != 4) return pxlStatusBadArgument;
    if (checkBorderWord(border, kNoMirrorBorderKinds) != pxlStatusOk) return pxlStatusBadBorder;

    const GradientPlanes<D> planes{nullptr, 0, nullptr, 0, pDst, dstStep, nullptr, 0, normType};
    const int k = mask == pxlMask3x3 ? 3 : 5;
    const RingSource<S> source{pSrc, srcStep, roi, k, k, border & 15, border & pxlBorderMemAll, &borderValue};
    auto* ring = reinterpret_cast<Loose<S>*>(pBuffer);
    if (k == 3) gradientImage<GradientKernels<Operator::Sobel, false>, S, 1>(source, ring, planes);
    else gradientImage<GradientKernels<Operator::Sobel, true>, S, 1>(source, ring, planes);
    return pxlStatusOk;
}

}  // namespace pxl::filt

#include "inst/filtering/derivatives.inc"
