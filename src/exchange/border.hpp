// The border word of every neighbourhood filter and geometric operation, and its one validator.
#pragma once

#include "pxlipx.h"

#include <cstdint>
#include <initializer_list>

namespace pxl {

// The kinds a family accepts, as a set of bits: bit k for kind k.
using BorderKinds = uint32_t;
constexpr BorderKinds borderKinds(std::initializer_list<int> kinds)
{
    BorderKinds set = 0;
    for (int k : kinds) set |= BorderKinds{1} << k;
    return set;
}
inline constexpr BorderKinds kFilterBorderKinds = borderKinds({pxlBorderReplicate, pxlBorderMirror, pxlBorderConstant});
inline constexpr BorderKinds kNoMirrorBorderKinds = borderKinds({pxlBorderReplicate, pxlBorderConstant});
inline constexpr BorderKinds kResizeBorderKinds = borderKinds({pxlBorderReplicate});
inline constexpr BorderKinds kWarpBorderKinds = borderKinds({pxlBorderReplicate, pxlBorderConstant, pxlBorderTransparent});

// A word above 255 is refused before anything else of it is looked at; exactly 240 (every side in
// memory, nothing to make) is accepted; otherwise the kind in the low four bits must be one the
// family accepts, with any of the four side flags beside it.
[[nodiscard]] constexpr PxlStatus checkBorderWord(PxliBorderMode word, BorderKinds accepted)
{
    const auto w = static_cast<uint32_t>(word);
    if (w > 255) return pxlStatusBadBorder;
    if (w == pxlBorderMemAll) return pxlStatusOk;
    return (accepted >> (w & 15u)) & 1u ? pxlStatusOk : pxlStatusBadBorder;
}

// The source index of position i of a border for an extent of n by each rule.
constexpr int replicateIndex(int i, int n) { return i < 0 ? 0 : i >= n ? n - 1 : i; }
constexpr int mirrorIndex(int i, int n)
{
    if (n == 1) return 0;
    const int period = 2 * n - 2;
    const int r = ((i % period) + period) % period;
    return r < n ? r : period - r;
}
constexpr int wrapIndex(int i, int n) { return ((i % n) + n) % n; }

namespace exch {

// The frame of frameRoi around a source region of srcRoi placed `top` rows and `left` pixels in,
// made by a filter's border kind (pxlBorderReplicate, pxlBorderMirror, or pxlBorderConstant with
// one sample per channel at `value`) by the same code as the exported border copies, so that the
// filters that extend strips of their images agree with those copies pixel for pixel. S is the
// unsigned type of the sample's width; L is C1, C3 or C4.
template <class S, class L>
void extendBorder(const S* src, int srcStep, PxliSize srcRoi, S* frame, int frameStep, PxliSize frameRoi, int top, int left,
                  int kind, const S* value);

}  // namespace exch

}  // namespace pxl
