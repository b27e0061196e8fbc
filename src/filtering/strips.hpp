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

// Runs `rows(window, windowStep, out, outStep, width, height)` over the whole region, on the source
// where the windows lie in memory and on strips of the work buffer elsewhere. S is the source
// sample type, L its layout (C1, C3 or C4), `value` one sample per channel for the constant kind.
// The border word has been checked.
template <class S, class L, class D, class Rows>
void filterStrips(const S* src, int srcStep, D* dst, int dstStep, PxliSize roi, Window w, PxliBorderMode border, const S* value,
                  Pxl8u* buffer, const Rows& rows)
{
    using B = Bits<S>;
    constexpr int N = L::mem;
    constexpr int kTop = pxlBorderMemTop, kBottom = pxlBorderMemBottom, kLeft = pxlBorderMemLeft, kRight = pxlBorderMemRight;
    const int W = roi.width, H = roi.height, kind = border & 15;
    const bool inStrips = w.width < W && w.height < H;
    auto at = [](auto* base, int step, int x, int y) { return rowAt(base, step, y) + std::ptrdiff_t{N} * x; };

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
        rows(at(src, srcStep, -w.left, -w.top), srcStep, dst, dstStep, W, H);
        return;
    }

    // Copies the source rectangle at (x, y) of sw by sh pixels into a frame of fw by fh pixels at
    // the strip area, `top` rows and `left` pixels in, and makes the rest of the frame.
    const auto strip = reinterpret_cast<B*>((reinterpret_cast<uintptr_t>(buffer) + 31) & ~uintptr_t{31});
    auto extend = [&](int x, int y, int sw, int sh, int fw, int fh, int top, int left) {
        const int step = fw * N * static_cast<int>(sizeof(S));
        exch::extendBorder<B, L>(asBits(at(src, srcStep, x, y)), srcStep, {sw, sh}, strip, step, {fw, fh}, top, left, kind,
                                 value ? asBits(value) : nullptr);
        return step;
    };
    const S* frame = reinterpret_cast<const S*>(strip);
    // Columns of source memory on each side, where the flags say the caller's buffer holds them.
    const int x0 = f & kLeft ? -w.left : 0, x1 = f & kRight ? W + w.right : W;

    if (!inStrips) {
        const int y0 = f & kTop ? -w.top : 0, y1 = f & kBottom ? H + w.bottom : H;
        const int step = extend(x0, y0, x1 - x0, y1 - y0, W + w.width - 1, H + w.height - 1, f & kTop ? 0 : w.top,
                                f & kLeft ? 0 : w.left);
        rows(frame, step, dst, dstStep, W, H);
        return;
    }

    int top = 0, bottom = H;  // output rows left for the side strips and the interior
    if (!(f & kTop)) {
        const int step = extend(x0, 0, x1 - x0, w.height - 1, W + w.width - 1, w.height - 1 + w.top, w.top, f & kLeft ? 0 : w.left);
        rows(frame, step, dst, dstStep, W, w.top);
        top = w.top;
    }
    if (!(f & kBottom)) {
        const int real = ry + w.top;  // source rows of the strip: those of its windows inside the image
        const int step = extend(x0, H - real, x1 - x0, real, W + w.width - 1, real + w.bottom, 0, f & kLeft ? 0 : w.left);
        rows(frame, step, at(dst, dstStep, 0, H - ry), dstStep, W, ry);
        bottom = H - ry;
    }
    const int h = bottom - top;
    if (h <= 0) return;
    int left = 0, right = W;
    if (!(f & kLeft)) {
        const int step = extend(0, top - w.top, w.width - 1, h + w.height - 1, w.width - 1 + w.left, h + w.height - 1, 0, w.left);
        rows(frame, step, at(dst, dstStep, 0, top), dstStep, w.left, h);
        left = w.left;
    }
    if (!(f & kRight)) {
        const int real = rx + w.left;
        const int step = extend(W - real, top - w.top, real, h + w.height - 1, real + w.right, h + w.height - 1, 0, 0);
        rows(frame, step, at(dst, dstStep, W - rx, top), dstStep, rx, h);
        right = W - rx;
    }
    if (right > left) rows(at(src, srcStep, left - w.left, top - w.top), srcStep, at(dst, dstStep, left, top), dstStep, right - left, h);
}

}  // namespace pxl::filt
