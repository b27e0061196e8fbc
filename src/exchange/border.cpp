// Border extension: a source region copied into a larger frame, with the frame made by one rule.
// Each interior row gets its left and right parts from its own source row, then each border row
// above and below is a copy of the complete row its rule points at (or the constant), so the
// in-place forms, whose source is the frame's interior, read every pixel before it is changed.
#include "exchange/border.hpp"
#include "exchange/exchange.hpp"
#include "exchange/kernels.hpp"
#include "frame/bind.hpp"

#include <algorithm>
#include <cstddef>

namespace pxl::exch {

namespace {

enum class Rule { Constant, Replicate, Mirror, Wrap };

template <Rule R> inline int sourceIndex(int i, int n)
{
    if constexpr (R == Rule::Replicate) return replicateIndex(i, n);
    else if constexpr (R == Rule::Mirror) return mirrorIndex(i, n);
    else return wrapIndex(i, n);
}

struct Geometry {
    PxliSize src, dst;
    int top, left;
};

// Columns of the frame's interior rows made by a rule that points at other pixels of the same
// row. Where those pixels come from is the same in every row, so it is worked out once per call,
// as runs of columns whose sources follow each other forwards or backwards (a mirrored side
// narrower than the image is one backward run); each row then copies or reverses whole runs.
// One set holds up to kRuns runs from column x0 on; `end` is where they stop.
template <class S, class L, Rule R>
struct SideRuns {
    static constexpr int kRuns = 64;
    struct Run {
        int column, first, length;  // `first` is the source of `column`, the run's first column
        bool backward;
    };
    Run runs[kRuns];
    int count = 0, end;

    SideRuns(const Geometry& g, int x0, int x1) : end(x0)
    {
        const int w = g.src.width;
        for (; end < x1 && count < kRuns; ++count) {
            Run& r = runs[count];
            r = {end, sourceIndex<R>(end - g.left, w), 1, false};
            if (end + 1 < x1 && w > 1) {
                r.backward = sourceIndex<R>(end + 1 - g.left, w) == r.first - 1;
                const int dir = r.backward ? -1 : 1;
                while (end + r.length < x1 && sourceIndex<R>(end + r.length - g.left, w) == r.first + dir * r.length) ++r.length;
            }
            end += r.length;
        }
    }
    // The runs of one row: s is its source row, d its frame row.
    void apply(const S* s, S* d) const
    {
        constexpr int N = L::mem;
        for (int k = 0; k < count; ++k) {
            const Run& r = runs[k];
            if (r.backward)
                krnReversePixels<S, L>(s + std::ptrdiff_t{N} * (r.first - r.length + 1), d + std::ptrdiff_t{N} * r.column, r.length);
            else
                krnCopyPixels<S, L>(s + std::ptrdiff_t{N} * r.first, d + std::ptrdiff_t{N} * r.column, r.length);
        }
    }
};

// Columns x0..x1-1 of every interior row that the first sets of runs did not reach (narrow
// images, whose sides bounce many times): one set of runs after another, each over all rows.
template <class S, class L, Rule R>
void remainingSideColumns(const S* src, int srcStep, S* frame, int dstStep, const Geometry& g, int x0, int x1)
{
    for (int x = x0; x < x1;) {
        const SideRuns<S, L, R> runs(g, x, x1);
        for (int i = 0; i < g.src.height; ++i) runs.apply(rowAt(src, srcStep, i), rowAt(frame, dstStep, g.top + i));
        x = runs.end;
    }
}

// The frame's top-left pixel is `frame`; the source region is `src` (inside the frame when
// inPlace, whose interior is then left alone).
template <class S, class L, Rule R>
void makeFrame(const S* src, int srcStep, S* frame, int dstStep, const Geometry& g, const S* value, bool inPlace)
{
    constexpr int N = L::mem;
    const int W = g.src.width, H = g.src.height, right = g.left + W;
    constexpr bool runs = R == Rule::Mirror || R == Rule::Wrap;
    const SideRuns<S, L, R> leftRuns(g, 0, runs ? g.left : 0), rightRuns(g, right, runs ? g.dst.width : right);
    for (int i = 0; i < H; ++i) {
        const S* s = rowAt(src, srcStep, i);
        S* d = rowAt(frame, dstStep, g.top + i);
        if constexpr (R == Rule::Constant) {
            krnRepeatPixel<S, L>(value, d, g.left);
            krnRepeatPixel<S, L>(value, d + std::ptrdiff_t{N} * right, g.dst.width - right);
        } else if constexpr (R == Rule::Replicate) {
            // The edge pixels themselves, repeated: one fixed source per side.
            krnRepeatPixel<S, L>(s, d, g.left);
            krnRepeatPixel<S, L>(s + std::ptrdiff_t{N} * (W - 1), d + std::ptrdiff_t{N} * right, g.dst.width - right);
        } else {
            leftRuns.apply(s, d);
            rightRuns.apply(s, d);
        }
        if (!inPlace) krnCopyPixels<S, L>(s, d + std::ptrdiff_t{N} * g.left, W);
    }
    if constexpr (runs) {
        remainingSideColumns<S, L, R>(src, srcStep, frame, dstStep, g, leftRuns.end, g.left);
        remainingSideColumns<S, L, R>(src, srcStep, frame, dstStep, g, rightRuns.end, g.dst.width);
    }
    for (int y = 0; y < g.dst.height; ++y) {
        if (y >= g.top && y < g.top + H) continue;
        S* d = rowAt(frame, dstStep, y);
        if constexpr (R == Rule::Constant) krnFillPixels<S, L>(value, d, 0, g.dst.width, 1);
        else krnCopyPixels<S, L>(rowAt(frame, dstStep, g.top + sourceIndex<R>(y - g.top, H)), d, g.dst.width);
    }
}

// Sizes: both regions at least 1, borders not negative, the source inside the destination.
inline bool badGeometry(const Geometry& g)
{
    return g.src.width < 1 || g.src.height < 1 || g.dst.width < 1 || g.dst.height < 1 || g.top < 0 || g.left < 0 ||
           int64_t{g.src.width} + g.left > g.dst.width || int64_t{g.src.height} + g.top > g.dst.height;
}

template <class Sz> inline PxliSize plain(Sz s) { return {s.width, s.height}; }

// The checks and the run of every form. R forms: equal pointers pass to the in-place form first
// (Mirror, Replicate) or after the checks (Wrap); then pointers, steps, sizes, and the value of
// multi-channel constant forms. In-place forms test that value with the image pointer.
template <class S, class L, Rule R, bool InPlace, bool ValueArray>
PxlStatus runBorder(const S* pSrc, int srcStep, S* pDst, int dstStep, Geometry g, const S* value)
{
    if constexpr (!InPlace && (R == Rule::Mirror || R == Rule::Replicate)) {
        if (static_cast<const void*>(pSrc) == static_cast<const void*>(pDst))
            return runBorder<S, L, R, true, ValueArray>(pDst, dstStep, pDst, dstStep, g, value);
    }
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if constexpr (InPlace && ValueArray) {
        if (!value) return pxlStatusNullPointer;
    }
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (badGeometry(g)) return pxlStatusBadSize;
    if constexpr (!InPlace && ValueArray) {
        if (!value) return pxlStatusNullPointer;
    }
    if constexpr (!InPlace && R == Rule::Wrap) {
        if (static_cast<const void*>(pSrc) == static_cast<const void*>(pDst))
            return runBorder<S, L, R, true, ValueArray>(pDst, dstStep, pDst, dstStep, g, value);
    }
    S pixel[4] = {};
    if constexpr (R == Rule::Constant)
        for (int c = 0; c < L::proc; ++c) pixel[c] = value[c];
    if constexpr (InPlace) {
        // The pointer is the source region's top-left pixel; the frame starts above and left of it.
        S* frame = rowAt(pDst, dstStep, -g.top) - std::ptrdiff_t{L::mem} * g.left;
        makeFrame<S, L, R>(pDst, dstStep, frame, dstStep, g, pixel, true);
    } else {
        makeFrame<S, L, R>(pSrc, srcStep, pDst, dstStep, g, pixel, false);
    }
    return pxlStatusOk;
}

}  // namespace

// The exported shapes; Sz is PxliSize or PxliSizeL, which hold the same 32-bit fields here.
template <class S, class L, int Rl, class Sz>
PxlStatus copyBorder(const S* pSrc, int srcStep, Sz srcRoi, S* pDst, int dstStep, Sz dstRoi, int top, int left)
{
    return runBorder<S, L, static_cast<Rule>(Rl), false, false>(pSrc, srcStep, pDst, dstStep, {plain(srcRoi), plain(dstRoi), top, left}, nullptr);
}
template <class S, class L, int Rl, class Sz>
PxlStatus copyBorderInPlace(S* p, int step, Sz srcRoi, Sz dstRoi, int top, int left)
{
    return runBorder<S, L, static_cast<Rule>(Rl), true, false>(p, step, p, step, {plain(srcRoi), plain(dstRoi), top, left}, nullptr);
}
template <class T, class Sz>
PxlStatus copyConstBorderValue(const T* pSrc, int srcStep, Sz srcRoi, T* pDst, int dstStep, Sz dstRoi, int top, int left, T value)
{
    const Bits<T> v = toBits(value);
    return runBorder<Bits<T>, C1, Rule::Constant, false, false>(asBits(pSrc), srcStep, asBits(pDst), dstStep,
                                                                {plain(srcRoi), plain(dstRoi), top, left}, &v);
}
template <class T, class Sz>
PxlStatus copyConstBorderValueInPlace(T* p, int step, Sz srcRoi, Sz dstRoi, int top, int left, T value)
{
    const Bits<T> v = toBits(value);
    return runBorder<Bits<T>, C1, Rule::Constant, true, false>(asBits(p), step, asBits(p), step, {plain(srcRoi), plain(dstRoi), top, left}, &v);
}
template <class S, class L, class Sz>
PxlStatus copyConstBorderArray(const S* pSrc, int srcStep, Sz srcRoi, S* pDst, int dstStep, Sz dstRoi, int top, int left, const S* value)
{
    return runBorder<S, L, Rule::Constant, false, true>(pSrc, srcStep, pDst, dstStep, {plain(srcRoi), plain(dstRoi), top, left}, value);
}
template <class S, class L, class Sz>
PxlStatus copyConstBorderArrayInPlace(S* p, int step, Sz srcRoi, Sz dstRoi, int top, int left, const S* value)
{
    return runBorder<S, L, Rule::Constant, true, true>(p, step, p, step, {plain(srcRoi), plain(dstRoi), top, left}, value);
}

template <class S, class L>
void extendBorder(const S* src, int srcStep, PxliSize srcRoi, S* frame, int frameStep, PxliSize frameRoi, int top, int left,
                  int kind, const S* value)
{
    const Geometry g{srcRoi, frameRoi, top, left};
    if (kind == pxlBorderConstant) makeFrame<S, L, Rule::Constant>(src, srcStep, frame, frameStep, g, value, false);
    else if (kind == pxlBorderMirror) makeFrame<S, L, Rule::Mirror>(src, srcStep, frame, frameStep, g, value, false);
    else makeFrame<S, L, Rule::Replicate>(src, srcStep, frame, frameStep, g, value, false);
}

#define PXL_EXTEND_BORDER(S, L) \
    template void extendBorder<S, L>(const S*, int, PxliSize, S*, int, PxliSize, int, int, int, const S*);
PXL_EXTEND_BORDER(uint8_t, C1)
PXL_EXTEND_BORDER(uint8_t, C3)
PXL_EXTEND_BORDER(uint8_t, C4)
PXL_EXTEND_BORDER(uint16_t, C1)
PXL_EXTEND_BORDER(uint16_t, C3)
PXL_EXTEND_BORDER(uint16_t, C4)
PXL_EXTEND_BORDER(uint32_t, C1)
PXL_EXTEND_BORDER(uint32_t, C3)
PXL_EXTEND_BORDER(uint32_t, C4)
#undef PXL_EXTEND_BORDER

}  // namespace pxl::exch

#include "inst/exchange/border.inc"
