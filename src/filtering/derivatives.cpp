// Derivative filters with fixed kernels (Sobel, Scharr, Prewitt, Roberts), single channel, with
// borders: one driver over the ring of extended rows and one row kernel per kernel table. The
// tables are the weights of the window as applied at the pixel, rows from the top; integer
// results are exact, 32f adds the products of the non-zero weights in the window's row-major order.
#include "filtering/filtering.hpp"
#include "filtering/ring.hpp"
#include "filtering/rows.hpp"

#include "exchange/border.hpp"
#include "frame/bind.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace pxl::filt {

namespace {

struct Weights {
    int side;
    int w[5][5];
};

// The 5x5 kernels are the binomial 1 4 6 4 1 across the derivative's direction, and along it
// 1 2 0 -2 -1 (first derivative) or 1 0 -2 0 1 (second).
constexpr Weights outer(const int (&rows)[5], const int (&cols)[5])
{
    Weights k{5, {}};
    for (int i = 0; i < 5; ++i)
        for (int q = 0; q < 5; ++q) k.w[i][q] = rows[i] * cols[q];
    return k;
}
constexpr int kBinomial[5] = {1, 4, 6, 4, 1}, kFalling[5] = {1, 2, 0, -2, -1}, kRising[5] = {-1, -2, 0, 2, 1}, kSecond[5] = {1, 0, -2, 0, 1};

// Selector order: Sobel vertical, Sobel horizontal, Scharr vertical, Scharr horizontal, Prewitt
// vertical, Prewitt horizontal, Roberts down, Roberts up, Sobel vertical second, Sobel horizontal
// second, Sobel negative vertical; each 3x3, and the 5x5 Sobel forms.
constexpr Weights k3x3[11] = {
    {3, {{1, 0, -1}, {2, 0, -2}, {1, 0, -1}}},     // left column minus right, 1 2 1 down
    {3, {{-1, -2, -1}, {0, 0, 0}, {1, 2, 1}}},     // row below minus row above
    {3, {{-3, 0, 3}, {-10, 0, 10}, {-3, 0, 3}}},   // right minus left, 3 10 3 down
    {3, {{-3, -10, -3}, {0, 0, 0}, {3, 10, 3}}},   // below minus above, 3 10 3 across
    {3, {{1, 0, -1}, {1, 0, -1}, {1, 0, -1}}},     // left minus right
    {3, {{-1, -1, -1}, {0, 0, 0}, {1, 1, 1}}},     // below minus above
    {3, {{-1, 0, 0}, {0, 1, 0}, {0, 0, 0}}},       // the pixel minus the one up and left
    {3, {{0, 0, -1}, {0, 1, 0}, {0, 0, 0}}},       // the pixel minus the one up and right
    {3, {{1, -2, 1}, {2, -4, 2}, {1, -2, 1}}},     // left + right - 2 centre of the smoothed columns
    {3, {{1, 2, 1}, {-2, -4, -2}, {1, 2, 1}}},     // the same down the smoothed rows
    {3, {{-1, 0, 1}, {-2, 0, 2}, {-1, 0, 1}}},     // right column minus left
};
constexpr Weights k5x5[11] = {outer(kBinomial, kFalling), outer(kRising, kBinomial), {}, {}, {}, {}, {}, {},
                              outer(kBinomial, kSecond), outer(kSecond, kBinomial), outer(kBinomial, kRising)};

template <Weights K, class S, class D, class Rows> void derivativeRow(const Rows& rows, D* out, int width)
{
    using A = FixedSum<S>;
    decltype(rows(0)) r[5];
    for (int i = 0; i < K.side; ++i) r[i] = rows(i);
    for (int x = 0; x < width; ++x) {
        A sum{};
        bool first = true;
        for (int i = 0; i < K.side; ++i)
            for (int q = 0; q < K.side; ++q)
                if (K.w[i][q] != 0) {
                    const A term = static_cast<A>(static_cast<A>(K.w[i][q]) * static_cast<A>(r[i][x + q]));
                    sum = first ? term : static_cast<A>(sum + term);
                    first = false;
                }
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

}  // namespace pxl::filt

#include "inst/filtering/derivatives.inc"
