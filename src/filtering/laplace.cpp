// Laplace, high-pass and sharpening filters: fixed kernels that weigh the centre against the sum
// of the window. Integer samples are summed exactly and saturated; 32f samples in float, in a
// fixed order: each window row from the left, then the rows from the top.
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

enum class Kernel { Laplace3, Laplace5, Hipass5, Sharpen3 };

// The 5x5 Laplace weights, rows from the top.
constexpr int kLaplace5[5][5] = {{-1, -3, -4, -3, -1}, {-3, 0, 6, 0, -3}, {-4, 6, 20, 6, -4}, {-3, 0, 6, 0, -3}, {-1, -3, -4, -3, -1}};

template <class T, class A> inline T saturated(A v)
{
    if constexpr (std::is_floating_point_v<T>) {
        return v;
    } else {
        constexpr A lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
        return static_cast<T>(v < lo ? lo : v > hi ? hi : v);
    }
}

// One output row: rows(i) is the first sample of window row i; N samples a pixel, all filtered.
template <Kernel K, class T, int N, class Rows> void fixedRow(const Rows& rows, T* out, int width)
{
    using A = FixedSum<T>;
    constexpr int k = K == Kernel::Laplace3 || K == Kernel::Sharpen3 ? 3 : 5, half = k / 2;
    decltype(rows(0)) r[k];
    for (int i = 0; i < k; ++i) r[i] = rows(i);
    for (int j = 0; j < width * N; ++j) {
        const A c = static_cast<A>(r[half][j + half * N]);
        // Each row from its first sample, the rows from the first.
        A sum{};
        for (int i = 0; i < k; ++i) {
            A row{};
            for (int q = 0; q < k; ++q) {
                const A v = static_cast<A>(r[i][j + q * N]);
                if constexpr (K == Kernel::Laplace5) {
                    // A weight of 0 adds nothing; every row's first weight is not 0.
                    if (kLaplace5[i][q] != 0) row = q == 0 ? static_cast<A>(kLaplace5[i][q] * v) : static_cast<A>(row + kLaplace5[i][q] * v);
                } else {
                    row = q == 0 ? v : static_cast<A>(row + v);
                }
            }
            sum = i == 0 ? row : static_cast<A>(sum + row);
        }
        if constexpr (K == Kernel::Laplace5) {
            out[j] = saturated<T>(sum);
        } else {
            if constexpr (K == Kernel::Laplace3) {
                out[j] = saturated<T>(static_cast<A>(static_cast<A>(9) * c - sum));
            } else if constexpr (K == Kernel::Hipass5) {
                out[j] = saturated<T>(static_cast<A>(static_cast<A>(25) * c - sum));
            } else if constexpr (std::is_floating_point_v<T>) {
                out[j] = (17.0f * c - sum) * 0.125f;
            } else {
                // t / 8 to nearest, ties to even: add bit 3 of t and 3, shift arithmetically.
                const int32_t t = 17 * int32_t{c} - int32_t{sum};
                out[j] = saturated<T>((t + ((t >> 3) & 1) + 3) >> 3);
            }
        }
    }
}

bool badLaplaceMask(PxlMaskCode mask, bool fiveAllowed) { return mask != pxlMask3x3 && !(fiveAllowed && mask == pxlMask5x5); }

}  // namespace

PxlStatus fixedFilterGetBufferSize(PxliSize roi, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels,
                                   int* pBufferSize, bool fiveAllowed)
{
    // Checks: the result pointer; the region; the mask; the pair of types; the channels.
    if (!pBufferSize) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (badLaplaceMask(mask, fiveAllowed)) return pxlStatusBadMaskSize;
    if (srcType != dstType || (srcType != pxlDt8u && srcType != pxlDt16s && srcType != pxlDt32f)) return pxlStatusBadDataType;
    if (numChannels != 1 && numChannels != 3 && numChannels != 4) return pxlStatusBadChannelCount;
    const int64_t bytes = fixedKernelBufferBytes(roi, mask == pxlMask5x5, dataTypeBytes(srcType), numChannels);
    if (bytes > INT32_MAX) return pxlStatusSizeOverflow;
    *pBufferSize = static_cast<int>(bytes);
    return pxlStatusOk;
}
PxlStatus filterLaplaceBorderGetBufferSize(PxliSize roi, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels,
                                           int* pBufferSize)
{
    return fixedFilterGetBufferSize(roi, mask, srcType, dstType, numChannels, pBufferSize, true);
}
PxlStatus filterSharpenBorderGetBufferSize(PxliSize roi, PxlMaskCode mask, PxlDataType srcType, PxlDataType dstType, int numChannels,
                                           int* pBufferSize)
{
    return fixedFilterGetBufferSize(roi, mask, srcType, dstType, numChannels, pBufferSize, false);
}

// The family's one driver: the rows of each output row's windows, extended by the border rule,
// come from a ring of mask-high rows in the work buffer.
template <int Group, class T, class L>
PxlStatus fixedFilterBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, PxlMaskCode mask, PxliBorderMode border,
                            const T* pBorderValue, Pxl8u* pBuffer)
{
    // Checks: pointers; the region; the mask; the border word (replicated or constant, and the
    // constant's value).
    if (!pSrc || !pDst || !pBuffer) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (badLaplaceMask(mask, Group != 2)) return pxlStatusBadMaskSize;
    if (checkBorderWord(border, kNoMirrorBorderKinds) != pxlStatusOk) return pxlStatusBadBorder;
    if ((border & 15) == pxlBorderConstant && !pBorderValue) return pxlStatusNullPointer;

    constexpr int N = L::mem;
    const int k = mask == pxlMask3x3 ? 3 : 5;
    const BorderPixel<T> value(pBorderValue, L::proc);
    const RingSource<T> source{pSrc, srcStep, roi, k, k, border & 15, border & pxlBorderMemAll, value.v};
    auto run = [&](auto kernel) {
        slideRows<T, N>(source, reinterpret_cast<Loose<T>*>(pBuffer),
                        [&](int y, const auto& rows) { layoutRow<T, L>(kernel, rows, rowAt(pDst, dstStep, y), roi.width); });
    };
    auto with = [&](auto kernel) { run([](const auto& rows, T* out, int width) { fixedRow<decltype(kernel)::value, T, N>(rows, out, width); }); };
    if constexpr (Group == 0) {  // Laplace
        if (k == 3) with(std::integral_constant<Kernel, Kernel::Laplace3>{});
        else with(std::integral_constant<Kernel, Kernel::Laplace5>{});
    } else if constexpr (Group == 1) {  // high-pass: the 3x3 one is the 3x3 Laplace
        if (k == 3) with(std::integral_constant<Kernel, Kernel::Laplace3>{});
        else with(std::integral_constant<Kernel, Kernel::Hipass5>{});
    } else {
        with(std::integral_constant<Kernel, Kernel::Sharpen3>{});
    }
    return pxlStatusOk;
}

template <int Group, class T>
PxlStatus fixedFilterBorderC1(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, PxlMaskCode mask, PxliBorderMode border,
                              T value, Pxl8u* pBuffer)
{
    return fixedFilterBorder<Group, T, C1>(pSrc, srcStep, pDst, dstStep, roi, mask, border, &value, pBuffer);
}

}  // namespace pxl::filt

#include "inst/filtering/laplace.inc"
