// What the filters' row kernels share: a width made a constant of the code, and the largest
// magnitude of an integer sample type.
#pragma once

#include <algorithm>
#include <limits>
#include <type_traits>

namespace pxl::filt {

// Calls body(std::integral_constant<int, K>) for the run-time width k when 1 <= k <= Max, so that
// the compiler keeps a window of that width in registers; returns false for any other width.
template <int Max, int K = 1, class Body> inline bool withFixedWidth(int k, Body&& body)
{
    if constexpr (K > Max) {
        return false;
    } else {
        if (k == K) {
            body(std::integral_constant<int, K>{});
            return true;
        }
        return withFixedWidth<Max, K + 1>(k, body);
    }
}

// The largest magnitude of a sample of integer type T (0 for 32f, whose samples have no bound).
template <class T> constexpr double largestMagnitude()
{
    if constexpr (std::is_same_v<T, float>) return 0.0;
    else return std::max(-static_cast<double>(std::numeric_limits<T>::lowest()), static_cast<double>(std::numeric_limits<T>::max()));
}

}  // namespace pxl::filt
