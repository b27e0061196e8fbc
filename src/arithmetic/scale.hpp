// The scale-factor rule of every integer family with a scaleFactor (Sfs):
//
//     result = saturate(round_half_even(s * 2^-f))
//
// for the exact integer result s and any 32-bit f. A positive f divides: adding 2^(f-1) - 1 plus
// bit f of s before the arithmetic shift rounds to nearest with ties to even, exactly, with no
// intermediate rounding (1 -> 0, 3 -> 2, 5 -> 2, -1 -> 0, -3 -> -2 for f = 1). A negative f
// multiplies. Nothing wraps: the result saturates to the destination type.
//
// Each variant is a small function object so that a loop nest is instantiated per variant and the
// inner loop tests nothing. Beyond the range where the exact result can still matter, the result
// no longer depends on the input (all zero) or only on the sign of s.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace pxl {

// The wide type that holds every s (and s shifted by the largest useful left shift) of a
// family on T: signed 32-bit, unsigned for 16u, whose s never goes below 0 once a difference has
// been clamped and whose largest shifted sum exceeds the signed range.
template <class T> using SfsWide = std::conditional_t<std::is_same_v<T, uint16_t>, uint32_t, int32_t>;

template <class T, class W> inline T saturate(W v)
{
    using L = std::numeric_limits<T>;
    if constexpr (std::is_signed_v<W>) return static_cast<T>(std::clamp<W>(v, W(L::min()), W(L::max())));
    else return static_cast<T>(std::min<W>(v, W(L::max())));
}

template <class W> struct NoScale {
    W operator()(W s) const { return s; }
};

// Divides by 2^f (1 <= f <= 30) rounding half to even.
template <class W> struct ScaleDown {
    int f;
    W bias;  // 2^(f-1) - 1
    explicit ScaleDown(int shift) : f(shift), bias(static_cast<W>((W(1) << (shift - 1)) - 1)) {}
    W operator()(W s) const { return static_cast<W>((s + bias + ((s >> f) & 1)) >> f); }
};

// Multiplies by 2^k (k at most 15), for s already saturated to a 16-bit type.
template <class W> struct ScaleUp {
    W factor;
    explicit ScaleUp(int k) : factor(static_cast<W>(W(1) << k)) {}
    W operator()(W s) const { return static_cast<W>(s * factor); }
};

// Past the last useful left shift: any positive s saturates high and any negative s low.
template <class W> struct ScaleSign {
    W operator()(W s) const
    {
        constexpr W big = std::numeric_limits<W>::max();
        if constexpr (std::is_signed_v<W>) return s > 0 ? big : s < 0 ? std::numeric_limits<W>::min() : W(0);
        else return s > 0 ? big : W(0);
    }
};

// Where each variant starts for an operation whose exact results have at most `bits` bits of
// magnitude (9 for an 8u sum, 16 for an 8u product, ...): f above `bits` rounds every s to 0,
// f below -upLimit saturates every non-zero s, and f above `wideAbove` needs 64 bits for the
// rounding term.
enum class ScaleKind { None, Down, DownWide, Up, Sign, Zero };
struct ScalePlan {
    ScaleKind kind;
    int shift;
};
inline ScalePlan planScale(int f, int bits, int upLimit, int wideAbove)
{
    if (f == 0) return {ScaleKind::None, 0};
    if (f > bits) return {ScaleKind::Zero, 0};
    if (f > wideAbove) return {ScaleKind::DownWide, f};
    if (f > 0) return {ScaleKind::Down, f};
    if (f < -upLimit) return {ScaleKind::Sign, 0};
    return {ScaleKind::Up, -f};
}

// Calls body(finish) with the function that turns an exact result s (in W) into a sample of T
// by the plan: scaled, rounded and saturated. A left shift first saturates s to T, which changes
// no result and keeps the shift inside 32 bits. The Zero plan is the caller's.
template <class T, class W, class Body> inline void withSfsFinish(const ScalePlan& plan, Body&& body)
{
    using W64 = std::conditional_t<std::is_signed_v<W>, int64_t, uint64_t>;
    switch (plan.kind) {
    case ScaleKind::None: body([](W s) { return saturate<T>(s); }); break;
    case ScaleKind::Down: body([down = ScaleDown<W>(plan.shift)](W s) { return saturate<T>(down(s)); }); break;
    case ScaleKind::DownWide: body([down = ScaleDown<W64>(plan.shift)](W s) { return saturate<T>(down(W64(s))); }); break;
    case ScaleKind::Up: body([up = ScaleUp<W>(plan.shift)](W s) { return saturate<T>(up(W(saturate<T>(s)))); }); break;
    case ScaleKind::Sign: body([](W s) { return saturate<T>(ScaleSign<W>{}(s)); }); break;
    case ScaleKind::Zero: break;
    }
}

}  // namespace pxl
