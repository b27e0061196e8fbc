// The strip pipeline that every neighbourhood filter runs on.
//
// A filter is a row kernel: given the top-left sample of the first output pixel's window, it
// writes a rectangle of output pixels, reading the window of each. The pipeline calls it on the
// source itself for the interior of the region, and on small copies only near the image's rim,
// where the window reaches outside the image: the top and bottom strips (the whole width, a few
// rows), then the left and right strips of the rows between, each copied into the work buffer with
// its outside made by the border kind. A side whose memory flag is set is read from the caller's
// buffer instead (as is any side the mask does not reach over). When the mask is not smaller than
// the region, the whole region is extended into the buffer once.
#pragma once

#include "exchange/border.hpp"
#include "frame/image.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace pxl::filt {

// Where the window of an output pixel lies: `left` columns before it and `right` after, `top`
// rows above and `bottom` below.
struct Window {
    int width, height, left, top, right, bottom;
};

// The window of a mask with its anchor at its centre, rounded toward the top-left.
inline Window centredWindow(PxliSize mask)
{
    const int ax = (mask.width - 1) >> 1, ay = (mask.height - 1) >> 1;
    return {mask.width, mask.height, ax, ay, mask.width - 1 - ax, mask.height - 1 - ay};
}

// Bytes of strip area a region needs, alignment slack included. A mask 2 wide (or high) may need a
// strip 2 wide on its far side, so that a mirrored border reflects about a real pixel.
inline int64_t stripBytes(PxliSize mask, PxliSize roi, int channels, int sampleBytes)
{
    const int64_t kw = mask.width, kh = mask.height, W = roi.width, H = roi.height;
    const int64_t rx = kw == 2 ? 2 : kw - 1 - ((kw - 1) >> 1), ry = kh == 2 ? 2 : kh - 1 - ((kh - 1) >> 1);
    int64_t n = 0;
    if (kw >= W || kh >= H) {
        n = (W + kw - 1) * (H + kh - 1);
    } else {
        if (ry >= 1) n = (W + kw - 1) * (kh + ry - 1);
        if (rx >= 1 && (H + kh - 1) * (kw + rx - 1) > n) n = (H + kh - 1) * (kw + rx - 1);
    }
    return ((n * sampleBytes * channels + 31) & ~int64_t{31}) + 32;
}

// One piece of a region: the output rectangle at (x, y), and where its windows come from: the
// source itself, or a frame of fw by fh pixels made from the source rectangle at (sx, sy) of sw
// by sh pixels placed `top` rows and `left` pixels in.
struct Piece {
    int x, y, width, height;
    bool framed;
    int sx, sy, sw, sh, fw, fh, top, left;
};

// The pieces of a region: the whole region on the source when every side lies in memory; one
// frame of the extended region when the mask is not smaller than it; else the top and bottom
// strips (whole width), the left and right strips of the rows between, and the centre on the
// source.
struct Plan {
    Piece pieces[5];
    int count = 0;
    bool whole = false;  // one frame of the whole extended region
};

// What becomes of a side whose memory flag is set. Where every pixel's result is its own, the
// side simply joins the centre (fewer, larger pieces). Where results depend on where a piece's
// running sums start, every side is a piece of its own, framed like the others but with the
// caller's pixels on its flagged side (its corners may still need the border kind).
enum class Sides { Merged, Apart };

inline Plan planPieces(PxliSize roi, Window w, PxliBorderMode border, Sides sides = Sides::Merged)
{
    constexpr int kTop = pxlBorderMemTop, kBottom = pxlBorderMemBottom, kLeft = pxlBorderMemLeft, kRight = pxlBorderMemRight;
    const int W = roi.width, H = roi.height, f = border & pxlBorderMemAll;
    const bool inStrips = w.width < W && w.height < H;
    Plan plan;
    auto add = [&plan](Piece p) { plan.pieces[plan.count++] = p; };
    auto onSource = [](int x, int y, int width, int height) { return Piece{x, y, width, height, false, 0, 0, 0, 0, 0, 0, 0, 0}; };
    // The windows of an output rectangle as a frame: the part of it inside the region, or beyond
    // the region on a side whose memory flag is set, is copied; the border kind makes the rest.
    auto framed = [&](int x, int y, int width, int height) {
        const int wx0 = x - w.left, wx1 = x + width + w.right, wy0 = y - w.top, wy1 = y + height + w.bottom;
        const int sx0 = f & kLeft ? wx0 : std::max(wx0, 0), sx1 = f & kRight ? wx1 : std::min(wx1, W);
        const int sy0 = f & kTop ? wy0 : std::max(wy0, 0), sy1 = f & kBottom ? wy1 : std::min(wy1, H);
        return Piece{x, y, width, height, true, sx0, sy0, sx1 - sx0, sy1 - sy0, wx1 - wx0, wy1 - wy0, sy0 - wy0, sx0 - wx0};
    };
    if (!inStrips || (f == pxlBorderMemAll && sides == Sides::Merged)) {
        // The whole region: on the source when its windows lie in memory, else one frame.
        if (f == pxlBorderMemAll) {
            add(onSource(0, 0, W, H));
        } else {
            add(framed(0, 0, W, H));
            plan.whole = true;
        }
        return plan;
    }
    // Output columns done by the right strip, rows by the bottom one: a mask 2 wide (or high)
    // mirrored takes 2, so that the border reflects about a real pixel.
    const bool mirror = (border & 15) == pxlBorderMirror;
    const int rx = mirror && w.width == 2 && !(f & kRight) ? 2 : w.right, ry = mirror && w.height == 2 && !(f & kBottom) ? 2 : w.bottom;
    // A side merged with the centre, or with no output of its own.
    const bool merged = sides == Sides::Merged;
    const bool top = w.top == 0 || (merged && f & kTop), bottom = ry == 0 || (merged && f & kBottom);
    const bool left = w.left == 0 || (merged && f & kLeft), right = rx == 0 || (merged && f & kRight);
    if (!top) add(framed(0, 0, W, w.top));
    if (!bottom) add(framed(0, H - ry, W, ry));
    const int y0 = top ? 0 : w.top, y1 = bottom ? H : H - ry;
    if (y1 <= y0) return plan;
    if (!left) add(framed(0, y0, w.left, y1 - y0));
    if (!right) add(framed(W - rx, y0, rx, y1 - y0));
    const int x0 = left ? 0 : w.left, x1 = right ? W : W - rx;
    if (x1 > x0) add(onSource(x0, y0, x1 - x0, y1 - y0));
    return plan;
}

template <class S, class L> struct PieceIo {
    static constexpr int N = L::mem;
    template <class P> static P* at(P* base, int step, int x, int y) { return rowAt(base, step, y) + std::ptrdiff_t{N} * x; }
    // The frame of a piece at `frame`, made from the source; returns its row step.
    static int extend(const S* src, int srcStep, const Piece& p, Pxl8u* frame, int kind, const S* value)
    {
        using B = Bits<S>;
        const int step = p.fw * N * static_cast<int>(sizeof(S));
        exch::extendBorder<B, L>(asBits(at(src, srcStep, p.sx, p.sy)), srcStep, {p.sw, p.sh}, reinterpret_cast<B*>(frame), step,
                                 {p.fw, p.fh}, p.top, p.left, kind, value ? asBits(value) : nullptr);
        return step;
    }
    // Frames lie end to end: each keeps the alignment of its samples, and the rooms of a work
    // buffer hold all four strips with not a sample to spare.
    static int64_t frameBytes(const Piece& p) { return int64_t{p.fw} * p.fh * N * static_cast<int64_t>(sizeof(S)); }
};

// Bytes of strip area the frames of a region take: the largest frame, as they are made one at a
// time, or all of them when they are all made first (in place); none when the whole extended
// region is the one frame, which has an area of its own.
template <class S, class L> int64_t frameRoom(PxliSize roi, Window w, PxliBorderMode border, Sides sides, bool all)
{
    const Plan plan = planPieces(roi, w, border, sides);
    int64_t room = 0;
    for (int i = 0; i < plan.count && !plan.whole; ++i) {
        const int64_t bytes = plan.pieces[i].framed ? PieceIo<S, L>::frameBytes(plan.pieces[i]) : 0;
        room = all ? room + bytes : std::max(room, bytes);
    }
    return room;
}

// Runs `rows(window, windowStep, out, outStep, width, height)` over the whole region, on the source
// where the windows lie in memory and on frames elsewhere: strips at `strips` (one at a time), the
// whole extended region at `whole`. S is the source sample type, L its layout (C1, C3 or C4),
// `value` one sample per channel for the constant kind. The border word has been checked.
template <class S, class L, class D, class Rows>
void filterStrips(const S* src, int srcStep, D* dst, int dstStep, PxliSize roi, Window w, PxliBorderMode border, const S* value,
                  Pxl8u* strips, Pxl8u* whole, const Rows& rows, Sides sides = Sides::Merged)
{
    using Io = PieceIo<S, L>;
    const Plan plan = planPieces(roi, w, border, sides);
    for (int i = 0; i < plan.count; ++i) {
        const Piece& p = plan.pieces[i];
        D* out = Io::at(dst, dstStep, p.x, p.y);
        if (!p.framed) {
            rows(Io::at(src, srcStep, p.x - w.left, p.y - w.top), srcStep, out, dstStep, p.width, p.height);
        } else {
            Pxl8u* frame = plan.whole ? whole : strips;
            const int step = Io::extend(src, srcStep, p, frame, border & 15, value);
            rows(reinterpret_cast<const S*>(frame), step, out, dstStep, p.width, p.height);
        }
    }
}

// The same in place: every frame is made first, each in a room of its own from `rooms` on (the
// whole extended region at `whole`), before anything is written; then the pieces on the source go
// to `inPlace(window, windowStep, x, y, width, height)`, which must write its output no sooner
// than the image rows it still reads allow; then the framed pieces run.
template <class S, class L, class Rows, class InPlace>
void filterStripsInPlace(S* img, int step, PxliSize roi, Window w, PxliBorderMode border, const S* value, Pxl8u* rooms, Pxl8u* whole,
                         const Rows& rows, const InPlace& inPlace, Sides sides = Sides::Merged)
{
    using Io = PieceIo<S, L>;
    const Plan plan = planPieces(roi, w, border, sides);
    Pxl8u* frames[5];
    int steps[5];
    for (int i = 0; i < plan.count; ++i) {
        const Piece& p = plan.pieces[i];
        if (!p.framed) continue;
        frames[i] = plan.whole ? whole : rooms;
        steps[i] = Io::extend(img, step, p, frames[i], border & 15, value);
        rooms += Io::frameBytes(p);
    }
    for (int i = 0; i < plan.count; ++i) {
        const Piece& p = plan.pieces[i];
        if (!p.framed) inPlace(Io::at(static_cast<const S*>(img), step, p.x - w.left, p.y - w.top), step, p.x, p.y, p.width, p.height);
    }
    for (int i = 0; i < plan.count; ++i) {
        const Piece& p = plan.pieces[i];
        if (p.framed) rows(reinterpret_cast<const S*>(frames[i]), steps[i], Io::at(img, step, p.x, p.y), step, p.width, p.height);
    }
}

}  // namespace pxl::filt
