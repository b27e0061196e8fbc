// Extrema of a region, elementwise extrema of two images, and block extrema.
//
// Rows are scanned top to bottom and pixels left to right; a sample replaces the current extreme
// only when strictly smaller (larger), so the position kept is the first occurrence. Each row's
// extreme is taken first, starting at the row's first sample, and then compared with the running
// extreme. For 32f that order matters: NaN never wins a comparison, so a NaN inside a row is
// passed over, a row that begins with NaN keeps NaN and loses every comparison, and a NaN in the
// region's first pixel stays as the result. Within a row the vector lanes start from an identity
// (infinity, or the type's bound) that every sample but NaN beats, which gives the same value;
// only the sign of a zero depends on which zero came first, so a zero result is taken from the
// row's first zero.
#include "statistics/statistics.hpp"

#include "arithmetic/rows.hpp"
#include "frame/bind.hpp"
#include "statistics/fold.hpp"

#include <algorithm>
#include <limits>

namespace pxl::stat {

namespace {

template <class T> constexpr bool kFloat = std::is_same_v<T, Pxl32f>;

template <class T, bool Max> struct Order {
    static bool better(T v, T best) { return Max ? v > best : v < best; }
    // What every sample but NaN beats or equals.
    static T identity()
    {
        using Lim = std::numeric_limits<T>;
        if constexpr (kFloat<T>) return Max ? -Lim::infinity() : Lim::infinity();
        else return Max ? Lim::lowest() : Lim::max();
    }
    // Nothing can beat this value.
    static T bound() { return Max ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest(); }
};

// The pixel of a row where channel c first equals v; 0 where v is NaN (a row that began with NaN).
template <class T, class L> int firstIndex(const T* r, int width, int c, T v)
{
    if (v != v) return 0;
    for (int x = 0; x < width; ++x)
        if (r[x * L::mem + c] == v) return x;
    return 0;
}

// A row's extreme per channel, from the row's first sample.
template <class T, class L, bool Max> void rowExtreme(const T* r, int width, T* v)
{
    using O = Order<T, Max>;
    for (int c = 0; c < L::mem; ++c) v[c] = r[c];
    foldSamples<Max ? Fold::Max : Fold::Min, L::mem>(r, 0, 1, width * L::mem, O::identity(), v);
    if constexpr (kFloat<T>) {
        for (int c = 0; c < L::proc; ++c)
            if (v[c] == 0) v[c] = r[firstIndex<T, L>(r, width, c, v[c]) * L::mem + c];
    }
}

// An integer extreme of the whole region, whose rows share the lanes: the order of comparisons
// changes nothing there.
template <class T, class L, bool Max> void regionExtreme(const T* p, int step, PxliSize roi, T* v)
{
    for (int c = 0; c < L::mem; ++c) v[c] = p[c];
    foldSamples<Max ? Fold::Max : Fold::Min, L::mem>(p, step, roi.height, roi.width * L::mem, Order<T, Max>::identity(), v);
}

// The running extreme of each channel, with its position where Indexed.
template <class T, class L, bool Max, bool Indexed> struct Extreme {
    using O = Order<T, Max>;
    T best[4] = {};
    int ix[4] = {}, iy[4] = {};

    void row(const T* r, int width, int y)
    {
        T v[4];
        rowExtreme<T, L, Max>(r, width, v);
        for (int c = 0; c < L::proc; ++c)
            if (y == 0 || O::better(v[c], best[c])) {
                best[c] = v[c];
                if constexpr (Indexed) {
                    ix[c] = firstIndex<T, L>(r, width, c, v[c]);
                    iy[c] = y;
                }
            }
    }
    // Whether no later sample can replace any channel's extreme (never for floats, where that
    // would change nothing but would cost a test).
    bool settled() const
    {
        if constexpr (kFloat<T>) return false;
        for (int c = 0; c < L::proc; ++c)
            if (best[c] != O::bound()) return false;
        return true;
    }
};

template <class T, class L, class... E> void scanRows(const T* p, int step, PxliSize roi, E&... e)
{
    for (int y = 0; y < roi.height; ++y) {
        const T* r = rowAt(p, step, y);
        (e.row(r, roi.width, y), ...);
        if ((e.settled() && ...)) break;
    }
}

template <class T, class L, bool Max>
PxlStatus extremeValue(const T* pSrc, int srcStep, PxliSize roi, T* pValue)
{
    // Pointers, size; no step is checked.
    if (!pSrc || !pValue) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if constexpr (!kFloat<T>) {
        T v[4];
        regionExtreme<T, L, Max>(pSrc, srcStep, roi, v);
        std::copy_n(v, L::proc, pValue);
    } else {
        Extreme<T, L, Max, false> e;
        scanRows<T, L>(pSrc, srcStep, roi, e);
        std::copy_n(e.best, L::proc, pValue);
    }
    return pxlStatusOk;
}

template <class T, class L, bool Max>
PxlStatus extremeIndex(const T* pSrc, int srcStep, PxliSize roi, T* pValue, int* pIndexX, int* pIndexY)
{
    // Pointers, size; no step is checked.
    if (!pSrc || !pValue || !pIndexX || !pIndexY) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    Extreme<T, L, Max, true> e;
    scanRows<T, L>(pSrc, srcStep, roi, e);
    std::copy_n(e.best, L::proc, pValue);
    std::copy_n(e.ix, L::proc, pIndexX);
    std::copy_n(e.iy, L::proc, pIndexY);
    return pxlStatusOk;
}

}  // namespace

template <class T, class L> PxlStatus min(const T* pSrc, int srcStep, PxliSize roi, T* pMin)
{
    return extremeValue<T, L, false>(pSrc, srcStep, roi, pMin);
}
template <class T, class L> PxlStatus max(const T* pSrc, int srcStep, PxliSize roi, T* pMax)
{
    return extremeValue<T, L, true>(pSrc, srcStep, roi, pMax);
}
template <class T, class L> PxlStatus minIndx(const T* pSrc, int srcStep, PxliSize roi, T* pMin, int* pIndexX, int* pIndexY)
{
    return extremeIndex<T, L, false>(pSrc, srcStep, roi, pMin, pIndexX, pIndexY);
}
template <class T, class L> PxlStatus maxIndx(const T* pSrc, int srcStep, PxliSize roi, T* pMax, int* pIndexX, int* pIndexY)
{
    return extremeIndex<T, L, true>(pSrc, srcStep, roi, pMax, pIndexX, pIndexY);
}

template <class T, class L> PxlStatus minMax(const T* pSrc, int srcStep, PxliSize roi, T* pMin, T* pMax)
{
    // Pointers, size; no step is checked.
    if (!pSrc || !pMin || !pMax) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if constexpr (!kFloat<T>) {
        T lo[4], hi[4];
        regionExtreme<T, L, false>(pSrc, srcStep, roi, lo);
        regionExtreme<T, L, true>(pSrc, srcStep, roi, hi);
        std::copy_n(lo, L::proc, pMin);
        std::copy_n(hi, L::proc, pMax);
    } else {
        Extreme<T, L, false, false> lo;
        Extreme<T, L, true, false> hi;
        scanRows<T, L>(pSrc, srcStep, roi, lo, hi);
        std::copy_n(lo.best, L::proc, pMin);
        std::copy_n(hi.best, L::proc, pMax);
    }
    return pxlStatusOk;
}

// ---- Elementwise -----------------------------------------------------------------------------

template <class T, class L, bool Max>
PxlStatus every(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, PxliSize roi)
{
    // Pointers, size, steps.
    if (!pSrc1 || !pSrc2 || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (src1Step < 1 || src2Step < 1 || dstStep < 1) return pxlStatusBadStep;
    // The first source's sample where strictly better, the second's otherwise.
    pairRows<T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi,
                   [](T a, T b) { return Order<T, Max>::better(a, b) ? a : b; });
    return pxlStatusOk;
}
template <class T, class L, bool Max>
PxlStatus everyInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, PxliSize roi)
{
    return every<T, L, Max>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi);
}

// ---- Blocks ----------------------------------------------------------------------------------

template <class T>
PxlStatus blockMinMax(const T* pSrc, int srcStep, PxliSize srcSize, T* pDstMin, int dstMinStep, T* pDstMax, int dstMaxStep,
                      PxliSize blockSize, T* pDstGlobalMin, T* pDstGlobalMax)
{
    // Source; both block outputs; sizes of source and block; source step below a row.
    if (!pSrc) return pxlStatusNullPointer;
    if (!pDstMin && !pDstMax) return pxlStatusNullPointer;
    if (badSize(srcSize) || badSize(blockSize)) return pxlStatusBadSize;
    if (srcStep < static_cast<int64_t>(srcSize.width) * static_cast<int64_t>(sizeof(T))) return pxlStatusBadStep;
    T globalMin{}, globalMax{};
    for (int y0 = 0, by = 0; y0 < srcSize.height; y0 += blockSize.height, ++by) {
        const int y1 = static_cast<int>(std::min<int64_t>(int64_t{y0} + blockSize.height, srcSize.height));
        for (int x0 = 0, bx = 0; x0 < srcSize.width; x0 += blockSize.width, ++bx) {
            const int x1 = static_cast<int>(std::min<int64_t>(int64_t{x0} + blockSize.width, srcSize.width));
            // From the block's first sample, replaced only by strictly smaller (larger) ones.
            T lo = rowAt(pSrc, srcStep, y0)[x0], hi = lo;
            for (int y = y0; y < y1; ++y) {
                const T* r = rowAt(pSrc, srcStep, y);
                for (int x = x0; x < x1; ++x) {
                    lo = r[x] < lo ? r[x] : lo;
                    hi = r[x] > hi ? r[x] : hi;
                }
            }
            if (pDstMin) rowAt(pDstMin, dstMinStep, by)[bx] = lo;
            if (pDstMax) rowAt(pDstMax, dstMaxStep, by)[bx] = hi;
            const bool first = by == 0 && bx == 0;
            if (first || lo < globalMin) globalMin = lo;
            if (first || hi > globalMax) globalMax = hi;
            if (x1 == srcSize.width) break;
        }
        if (y1 == srcSize.height) break;
    }
    if (pDstGlobalMin) *pDstGlobalMin = globalMin;
    if (pDstGlobalMax) *pDstGlobalMax = globalMax;
    return pxlStatusOk;
}

}  // namespace pxl::stat

#include "inst/statistics/extrema.inc"
