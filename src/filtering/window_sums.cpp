// Running window sums along one axis into 32f: the window of maskSize samples starts `anchor`
// before each output sample. The first window is summed in 32f from its first sample on; each
// further one is the previous plus the difference of the sample coming in and the one going out,
// taken exactly in integers and converted once, so that sums stay exact up to 2^24.
#include "filtering/filtering.hpp"

#include "frame/bind.hpp"

#include <cstddef>

namespace pxl::filt {

namespace {

// Checks of both axes: pointers, the mask, the anchor inside it. No region check: an empty
// region does nothing.
template <class S> PxlStatus checkWindow(const S* pSrc, const Pxl32f* pDst, int maskSize, int anchor)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (maskSize < 1) return pxlStatusBadMaskSize;
    if (anchor < 0 || anchor >= maskSize) return pxlStatusBadAnchor;
    return pxlStatusOk;
}

}  // namespace

template <class S, class L>
PxlStatus sumWindowRow(const S* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roi, int maskSize, int anchor)
{
    if (const PxlStatus st = checkWindow(pSrc, pDst, maskSize, anchor); st != pxlStatusOk) return st;
    constexpr int N = L::mem;
    for (int y = 0; y < roi.height; ++y) {
        const S* s = rowAt(pSrc, srcStep, y) - std::ptrdiff_t{N} * anchor;
        Pxl32f* d = rowAt(pDst, dstStep, y);
        for (int c = 0; c < N; ++c) {
            float sum = 0;
            for (int i = 0; i < maskSize; ++i) sum += static_cast<float>(s[std::ptrdiff_t{N} * i + c]);
            for (int x = 0; x < roi.width; ++x) {
                d[std::ptrdiff_t{N} * x + c] = sum;
                if (x + 1 < roi.width)
                    sum += static_cast<float>(int32_t{s[std::ptrdiff_t{N} * (x + maskSize) + c]} - int32_t{s[std::ptrdiff_t{N} * x + c]});
            }
        }
    }
    return pxlStatusOk;
}

template <class S, class L>
PxlStatus sumWindowColumn(const S* pSrc, int srcStep, Pxl32f* pDst, int dstStep, PxliSize roi, int maskSize, int anchor)
{
    if (const PxlStatus st = checkWindow(pSrc, pDst, maskSize, anchor); st != pxlStatusOk) return st;
    if (roi.width < 1 || roi.height < 1) return pxlStatusOk;
    const int samples = roi.width * L::mem;
    const S* top = rowAt(pSrc, srcStep, -anchor);
    // Every column at once: the first row down the window, then row by row.
    Pxl32f* d = pDst;
    for (int j = 0; j < samples; ++j) d[j] = 0;
    for (int i = 0; i < maskSize; ++i) {
        const S* s = rowAt(top, srcStep, i);
        for (int j = 0; j < samples; ++j) d[j] += static_cast<float>(s[j]);
    }
    for (int y = 1; y < roi.height; ++y) {
        const S* in = rowAt(top, srcStep, y + maskSize - 1);
        const S* out = rowAt(top, srcStep, y - 1);
        const Pxl32f* prev = rowAt(pDst, dstStep, y - 1);
        Pxl32f* cur = rowAt(pDst, dstStep, y);
        for (int j = 0; j < samples; ++j) cur[j] = prev[j] + static_cast<float>(int32_t{in[j]} - int32_t{out[j]});
    }
    return pxlStatusOk;
}

}  // namespace pxl::filt

#include "inst/filtering/window_sums.inc"
