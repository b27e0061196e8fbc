// Rounding of floating-point values to integers by the library's rounding codes, exactly and
// whatever the caller's floating-point environment: 0 toward zero, 1 to nearest with ties to
// even, any other code to nearest with ties away from zero. Every step is exact (truncation, the
// difference of a value and its truncation, halving an integer), so no rounding mode takes part,
// and every choice is a select between two values, so loops over them vectorise.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace pxl {

enum RoundCode { kTowardZero = 0, kNearestEven = 1, kNearestAway = 2 };

// The integral value nearest to v by the code; v is finite.
template <int Code, class F> inline F roundIntegral(F v)
{
    const F t = std::trunc(v);
    if constexpr (Code == kTowardZero) {
        return t;
    } else {
        const F r = std::fabs(v - t);
        const F one = std::copysign(F(1), v);
        if constexpr (Code == kNearestEven) {
            const F half = t * F(0.5);
            const F towardEven = half != std::trunc(half) ? one : F(0);  // one step where t is odd
            const F step = r > F(0.5) ? one : towardEven;
            return r >= F(0.5) ? t + step : t;
        } else {
            return r >= F(0.5) ? t + one : t;
        }
    }
}

// A float or double to the integer type D: NaN gives 0, values at or beyond D's range give its
// ends, everything else is rounded by the code.
template <class D, int Code, class F> inline D roundToInt(F x)
{
    using L = std::numeric_limits<D>;
    constexpr F lo = F(L::min()), hi = F(L::max());
    x = x == x ? x : F(0);
    x = x > lo ? x : lo;
    x = x < hi ? x : hi;
    const F r = roundIntegral<Code>(x);
    if constexpr (sizeof(D) < 4) {
        return static_cast<D>(static_cast<int32_t>(r));
    } else {
        // hi may have rounded up to 2^31 or 2^32 in float: clamp once more as an integer.
        const int64_t n = static_cast<int64_t>(r);
        return static_cast<D>(n < int64_t(L::min()) ? int64_t(L::min()) : n > int64_t(L::max()) ? int64_t(L::max()) : n);
    }
}

// Calls body(std::integral_constant<int, Code>) for a run-time code; every code other than 0
// and 1 rounds ties away from zero.
template <class Body> inline void withRoundCode(int code, Body&& body)
{
    if (code == kTowardZero) body(std::integral_constant<int, kTowardZero>{});
    else if (code == kNearestEven) body(std::integral_constant<int, kNearestEven>{});
    else body(std::integral_constant<int, kNearestAway>{});
}

}  // namespace pxl
