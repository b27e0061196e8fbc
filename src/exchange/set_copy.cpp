// Set and copy: fill a region, copy it whole or masked, one channel at a time, between interleaved
// layouts and to and from planes. Only bits move, so every body works on the unsigned type of the
// sample's width and one body serves 16s and 16u, and 32s and 32f. A form that takes the value by
// value has an entry per type, since a float arrives in another register than an integer.
#include "exchange/exchange.hpp"
#include "exchange/kernels.hpp"
#include "frame/bind.hpp"

namespace pxl::exch {

namespace {
template <class S, class L> constexpr std::size_t kPixelBytes = sizeof(S) * L::mem;

inline std::size_t bytesOf(int count, std::size_t unit) { return static_cast<std::size_t>(count) * unit; }

// A region filled with one pixel; gap-free rows are filled as one.
template <class S, class L>
void fillRegion(const S* pixel, S* dst, int dstStep, PxliSize roi)
{
    const PxliSize r = mergedRows(roi, static_cast<std::size_t>(dstStep) == bytesOf(roi.width, kPixelBytes<S, L>));
    krnFillPixels<S, L>(pixel, dst, dstStep, r.width, r.height);
}

template <class S, class L>
void fillMasked(const S* pixel, S* dst, int dstStep, PxliSize roi, const Pxl8u* mask, int maskStep)
{
    for (int y = 0; y < roi.height; ++y) {
        S* d = rowAt(dst, dstStep, y);
        const Pxl8u* m = rowAt(mask, maskStep, y);
        for (int x = 0; x < roi.width; ++x)
            if (m[x])
                for (int c = 0; c < L::proc; ++c) d[L::mem * x + c] = pixel[c];
    }
}
}  // namespace

// ---- Set -------------------------------------------------------------------------------------

template <class T, int Stride>
PxlStatus setValue(T value, T* pDst, int dstStep, PxliSize roi)
{
    if (!pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    const Bits<T> v = toBits(value);
    if constexpr (Stride == 1) {
        fillRegion<Bits<T>, C1>(&v, asBits(pDst), dstStep, roi);
    } else {
        // One channel of an interleaved image; pDst points at that channel of the first pixel.
        for (int y = 0; y < roi.height; ++y) {
            Bits<T>* d = rowAt(asBits(pDst), dstStep, y);
            for (int x = 0; x < roi.width; ++x) d[Stride * x] = v;
        }
    }
    return pxlStatusOk;
}

template <class S, class L>
PxlStatus setPixels(const S* value, S* pDst, int dstStep, PxliSize roi)
{
    if (!value || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    S pixel[L::mem] = {};
    for (int c = 0; c < L::proc; ++c) pixel[c] = value[c];
    fillRegion<S, L>(pixel, pDst, dstStep, roi);
    return pxlStatusOk;
}

template <class T>
PxlStatus setValueMasked(T value, T* pDst, int dstStep, PxliSize roi, const Pxl8u* pMask, int maskStep)
{
    if (!pDst || !pMask) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    const Bits<T> v = toBits(value);
    fillMasked<Bits<T>, C1>(&v, asBits(pDst), dstStep, roi, pMask, maskStep);
    return pxlStatusOk;
}

template <class S, class L>
PxlStatus setPixelsMasked(const S* value, S* pDst, int dstStep, PxliSize roi, const Pxl8u* pMask, int maskStep)
{
    if (!value || !pDst || !pMask) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    fillMasked<S, L>(value, pDst, dstStep, roi, pMask, maskStep);
    return pxlStatusOk;
}

// ---- Copy ------------------------------------------------------------------------------------

namespace {
// A region copied; gap-free rows move as one.
template <class S, class L>
void copyRegion(const S* src, int srcStep, S* dst, int dstStep, PxliSize roi)
{
    const std::size_t rowBytes = bytesOf(roi.width, kPixelBytes<S, L>);
    const PxliSize r = mergedRows(roi, static_cast<std::size_t>(srcStep) == rowBytes &&
                                           static_cast<std::size_t>(dstStep) == rowBytes);
    for (int y = 0; y < r.height; ++y) krnCopyPixels<S, L>(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), r.width);
}
}  // namespace

template <class S, class L>
PxlStatus copy(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (pSrc == pDst && srcStep == dstStep) return pxlStatusOk;  // an image onto itself
    copyRegion<S, L>(pSrc, srcStep, pDst, dstStep, roi);
    return pxlStatusOk;
}

template <class S, class L>
PxlStatus copyMasked(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi, const Pxl8u* pMask, int maskStep)
{
    if (!pSrc || !pDst || !pMask) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    for (int y = 0; y < roi.height; ++y) {
        const S* s = rowAt(pSrc, srcStep, y);
        S* d = rowAt(pDst, dstStep, y);
        const Pxl8u* m = rowAt(pMask, maskStep, y);
        for (int x = 0; x < roi.width; ++x)
            if (m[x])
                for (int c = 0; c < L::proc; ++c) d[L::mem * x + c] = s[L::mem * x + c];
    }
    return pxlStatusOk;
}

// Count samples of each pixel from a layout of SrcStride samples to one of DstStride: one channel
// (C3CR, C3C1R, C1C3R, ...) or the three colours (C3AC4R, AC4C3R).
template <class S, int SrcStride, int DstStride, int Count>
PxlStatus copyStrided(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    for (int y = 0; y < roi.height; ++y) {
        const S* s = rowAt(pSrc, srcStep, y);
        S* d = rowAt(pDst, dstStep, y);
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < Count; ++c) d[DstStride * x + c] = s[SrcStride * x + c];
    }
    return pxlStatusOk;
}

template <class S, int N>
PxlStatus toPlanes(const S* pSrc, int srcStep, S* const* pDst, int dstStep, PxliSize roi)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    for (int c = 0; c < N; ++c)
        if (!pDst[c]) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    const PxliSize r = mergedRows(roi, static_cast<std::size_t>(srcStep) == bytesOf(roi.width, N * sizeof(S)) &&
                                           static_cast<std::size_t>(dstStep) == bytesOf(roi.width, sizeof(S)));
    S* planes[N];
    for (int y = 0; y < r.height; ++y) {
        const S* s = rowAt(pSrc, srcStep, y);
        for (int c = 0; c < N; ++c) planes[c] = rowAt(pDst[c], dstStep, y);
        for (int x = 0; x < r.width; ++x)
            for (int c = 0; c < N; ++c) planes[c][x] = s[N * x + c];
    }
    return pxlStatusOk;
}

template <class S, int N>
PxlStatus fromPlanes(const S* const* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    for (int c = 0; c < N; ++c)
        if (!pSrc[c]) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    const PxliSize r = mergedRows(roi, static_cast<std::size_t>(srcStep) == bytesOf(roi.width, sizeof(S)) &&
                                           static_cast<std::size_t>(dstStep) == bytesOf(roi.width, N * sizeof(S)));
    const S* planes[N];
    for (int y = 0; y < r.height; ++y) {
        S* d = rowAt(pDst, dstStep, y);
        for (int c = 0; c < N; ++c) planes[c] = rowAt(pSrc[c], srcStep, y);
        for (int x = 0; x < r.width; ++x)
            for (int c = 0; c < N; ++c) d[N * x + c] = planes[c][x];
    }
    return pxlStatusOk;
}

// ---- Wide copies -------------------------------------------------------------------------------
// A row may hold more than 2^31 bytes (a 16-byte pixel times a 31-bit width): it moves in slices
// of at most 2^30 bytes.
namespace {
constexpr int64_t kSliceBytes = int64_t{1} << 30;
}

template <class S, class L>
PxlStatus copyWide(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSizeL roi)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (roi.width < 1 || roi.height < 1) return pxlStatusBadSize;
    const int64_t rowBytes = int64_t{roi.width} * static_cast<int64_t>(kPixelBytes<S, L>);
    for (int y = 0; y < roi.height; ++y) {
        const char* s = reinterpret_cast<const char*>(rowAt(pSrc, srcStep, y));
        char* d = reinterpret_cast<char*>(rowAt(pDst, dstStep, y));
        for (int64_t off = 0; off < rowBytes; off += kSliceBytes)
            krnCopyBytes(s + off, d + off, static_cast<std::size_t>(std::min(kSliceBytes, rowBytes - off)));
    }
    return pxlStatusOk;
}

template <class S>
PxlStatus copyWideAC4(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSizeL roi)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (roi.width < 1 || roi.height < 1) return pxlStatusBadSize;
    constexpr int kSlicePixels = static_cast<int>(kSliceBytes / static_cast<int64_t>(kPixelBytes<S, AC4>));
    for (int y = 0; y < roi.height; ++y) {
        const S* s = rowAt(pSrc, srcStep, y);
        S* d = rowAt(pDst, dstStep, y);
        for (int x = 0; x < roi.width; x += kSlicePixels)
            krnCopyPixels<S, AC4>(s + std::ptrdiff_t{4} * x, d + std::ptrdiff_t{4} * x, std::min(kSlicePixels, roi.width - x));
    }
    return pxlStatusOk;
}

// ---- CopyManaged, Dup --------------------------------------------------------------------------

PxlStatus copyManaged(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi, int /*flags*/)
{
    return copy<Pxl8u, C1>(pSrc, srcStep, pDst, dstStep, roi);
}

template <int N>
PxlStatus dup(const Pxl8u* pSrc, int srcStep, Pxl8u* pDst, int dstStep, PxliSize roi)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    for (int y = 0; y < roi.height; ++y) {
        const Pxl8u* s = rowAt(pSrc, srcStep, y);
        Pxl8u* d = rowAt(pDst, dstStep, y);
        for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < N; ++c) d[N * x + c] = s[x];
    }
    return pxlStatusOk;
}

}  // namespace pxl::exch

#include "inst/exchange/set_copy.inc"
