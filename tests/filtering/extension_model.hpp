// The outside of a filter's region, from the rules of the border word: the caller's memory on the
// flagged sides (as far as the mask reaches), and beyond that the kind: the nearest edge pixel
// repeated, a reflection about the edge pixel, or the constant value.
#pragma once

#include "pxltest.hpp"

namespace filtmodel {

// The samples of a region at (margin, margin) of `img`, extended for a mask of kw by kh with its
// anchor at ((kw - 1) / 2, (kh - 1) / 2).
template <class T> struct Extension {
    const pxltest::GuardedImage<T>& img;
    int margin;
    PxliSize roi;
    int kw, kh, border;
    const T* value;

    T operator()(int x, int y, int c) const
    {
        const int ax = (kw - 1) / 2, ay = (kh - 1) / 2, kind = border & 15;
        const int x0 = border & 0x40 ? -ax : 0, x1 = border & 0x80 ? roi.width + kw - 1 - ax : roi.width;
        const int y0 = border & 0x10 ? -ay : 0, y1 = border & 0x20 ? roi.height + kh - 1 - ay : roi.height;
        const int fx = fold(x, x0, x1, kind), fy = fold(y, y0, y1, kind);
        if (fx == kOutside || fy == kOutside) return value[c];
        return img.at(margin + fx, margin + fy, c);
    }

private:
    static constexpr int kOutside = -(1 << 30);
    // Index i brought into [lo, hi) by the kind, or kOutside for the constant.
    static int fold(int i, int lo, int hi, int kind)
    {
        if (i >= lo && i < hi) return i;
        if (kind == pxlBorderConstant) return kOutside;
        const int n = hi - lo;
        int r = i - lo;
        if (kind == pxlBorderReplicate) return r < 0 ? lo : hi - 1;
        if (n == 1) return lo;
        const int p = 2 * n - 2;
        r = ((r % p) + p) % p;
        return lo + (r < n ? r : p - r);
    }
};

}  // namespace filtmodel
