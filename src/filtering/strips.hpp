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

// The pieces of a region in the order they run: the whole region on the source when every side
// lies in memory; one frame of the extended region when the mask is not smaller than it; else
// the top and bottom strips (whole width), the left and right strips of the rows between, and
// the rest on the source.
struct Plan {
    Piece pieces[5];
    int count = 0;
    bool whole = false;  // one frame of the whole extended region
};

inline Plan planPieces(PxliSize roi, Window w, PxliBorderMode border)
{
    constexpr int kTop = pxlBorderMemTop, kBottom = pxlBorderMemBottom, kLeft = pxlBorderMemLeft, kRight = pxlBorderMemRight;
    const int W = roi.width, H = roi.height, kind = border & 15;
    const bool inStrips = w.width < W && w.height < H;
    Plan plan;
    auto add = [&plan](Piece p) { plan.pieces[plan.count++] = p; };

    // Output columns done by the right strip, rows by the bottom one.
    int rx = w.right, ry = w.bottom;
    if (inStrips && kind == pxlBorderMirror) {
        if (w.width == 2) rx = 2;
        if (w.height == 2) ry = 2;
    }
    int f = border & pxlBorderMemAll;
    if (w.left == 0) f |= kLeft | (rx == 0 ? kRight : 0);
    if (w.top == 0) f |= kTop | (ry == 0 ? kBottom : 0);
    if (f == pxlBorderMemAll) {
        add({0, 0, W, H, false, 0, 0, 0, 0, 0, 0, 0, 0});
        return plan;
    }
    // Columns of source memory on each side, where the flags say the caller's buffer holds them.
    const int x0 = f & kLeft ? -w.left : 0, x1 = f & kRight ? W + w.right : W, left = f & kLeft ? 0 : w.left;
    const int fw = W + w.width - 1;
    if (!inStrips) {
        const int y0 = f & kTop ? -w.top : 0, y1 = f & kBottom ? H + w.bottom : H;
        add({0, 0, W, H, true, x0, y0, x1 - x0, y1 - y0, fw, H + w.height - 1, f & kTop ? 0 : w.top, left});
        plan.whole = true;
        return plan;
    }
    int top = 0, bottom = H;  // output rows left for the side strips and the rest
    if (!(f & kTop)) {
        add({0, 0, W, w.top, true, x0, 0, x1 - x0, w.height - 1, fw, w.height - 1 + w.top, w.top, left});
        top = w.top;
    }
    if (!(f & kBottom)) {
        const int real = ry + w.top;  // source rows of the strip: those of its windows inside the image
        add({0, H - ry, W, ry, true, x0, H - real, x1 - x0, real, fw, real + w.bottom, 0, left});
        bottom = H - ry;
    }
    const int h = bottom - top;
    if (h <= 0) return plan;
    int first = 0, last = W;
    if (!(f & kLeft)) {
        add({0, top, w.left, h, true, 0, top - w.top, w.width - 1, h + w.height - 1, w.width - 1 + w.left, h + w.height - 1, 0, w.left});
        first = w.left;
    }
    if (!(f & kRight)) {
        const int real = rx + w.left;
        add({W - rx, top, rx, h, true, W - real, top - w.top, real, h + w.height - 1, real + w.right, h + w.height - 1, 0, 0});
        last = W - rx;
    }
    if (last > first) add({first, top, last - first, h, false, 0, 0, 0, 0, 0, 0, 0, 0});
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
    static int64_t frameBytes(const Piece& p) { return ((int64_t{p.fw} * p.fh * N * static_cast<int>(sizeof(S))) + 7) & ~int64_t{7}; }
};

// Runs `rows(window, windowStep, out, outStep, width, height)` over the whole region, on the source
// where the windows lie in memory and on frames elsewhere: strips at `strips` (one at a time), the
// whole extended region at `whole`. S is the source sample type, L its layout (C1, C3 or C4),
// `value` one sample per channel for the constant kind. The border word has been checked.
template <class S, class L, class D, class Rows>
void filterStrips(const S* src, int srcStep, D* dst, int dstStep, PxliSize roi, Window w, PxliBorderMode border, const S* value,
                  Pxl8u* strips, Pxl8u* whole, const Rows& rows)
{
    using Io = PieceIo<S, L>;
    const Plan plan = planPieces(roi, w, border);
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
                         const Rows& rows, const InPlace& inPlace)
{
    using Io = PieceIo<S, L>;
    const Plan plan = planPieces(roi, w, border);
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
