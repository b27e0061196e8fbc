// Add and subtract, image with image and image with constant, for 8u, 16u and 16s with the scale
// factor and for 32f with plain IEEE arithmetic: the two operations of the shared engine.
#include "arithmetic/binary.hpp"
#include "frame/bind.hpp"

namespace pxl::arith {

// Add is first + second, Sub is second - first. The bits of the largest |s| place the all-zero
// branch. An unsigned 16u difference is clamped at 0 before it is scaled, which the rule would
// give anyway.
struct AddSubCommon {
    template <class T> static constexpr int upLimit = sizeof(T) == 1 ? 7 : 15;
    template <class T> static constexpr int wideAbove = 64;
    template <class T> static constexpr bool kShortcutFirst = false;
    static constexpr bool kSaturatingRows = true;
};

struct AddOp : AddSubCommon {
    static constexpr bool kAdds = true;
    static constexpr Narrow8u kNarrow8u = Narrow8u::Add;
    template <class W> static W apply(W first, W second) { return first + second; }
    template <class T> static constexpr int bits = sizeof(T) == 1 ? 9 : std::is_signed_v<T> ? 16 : 17;
    // Adding zero with no scale is a copy; adding a non-zero value at the saturating end of the
    // scale fills an unsigned type's maximum. Floats have neither: -0 + 0 is +0, and arithmetic
    // quiets a signalling NaN.
    template <class T> static Shortcut constantShortcut(T v, int f)
    {
        if constexpr (std::is_integral_v<T>) {
            if (v == 0 && f == 0) return Shortcut::Copy;
            if (std::is_unsigned_v<T> && v != 0 && f < -upLimit<T>) return Shortcut::SetMax;
        }
        return Shortcut::None;
    }
};

struct SubOp : AddSubCommon {
    static constexpr bool kAdds = false;
    static constexpr Narrow8u kNarrow8u = Narrow8u::Sub;
    template <class W> static W apply(W first, W second)
    {
        if constexpr (std::is_unsigned_v<W>) return second > first ? second - first : W(0);
        else return second - first;
    }
    template <class T> static constexpr int bits = sizeof(T) == 1 ? 8 : 16;
    template <class T> static Shortcut constantShortcut(T v, int f)
    {
        if constexpr (std::is_integral_v<T>) {
            if (v == 0 && f == 0) return Shortcut::Copy;
        }
        return Shortcut::None;
    }
};

}  // namespace pxl::arith

#include "inst/arithmetic/add_sub.inc"
