// What the filters share beside their pipelines: a width made a constant of the code, the largest
// magnitude of an integer sample type, the sums of fixed kernels, the border constant as a pixel,
// the work buffer of the fixed 3x3 and 5x5 kernels.
#pragma once

#include "frame/image.hpp"

#include <algorithm>
#include <cstdint>
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

// The exact sums of fixed integer kernels: 16-bit from 8u (every sum of the small kernels fits),
// 32-bit from 16-bit samples, float from 32f.
template <class T>
using FixedSum = std::conditional_t<std::is_same_v<T, uint8_t>, int16_t, std::conditional_t<std::is_floating_point_v<T>, float, int32_t>>;

// The border constant as a whole pixel of up to four samples: the `count` given (three for AC4,
// whose fourth is never written), none where there is no value.
template <class T> struct BorderPixel {
    T v[4] = {};
    BorderPixel(const T* value, int count)
    {
        if (value) std::copy_n(value, count, v);
    }
};

// The work buffer of the fixed 3x3 and 5x5 kernels: the larger side plus the overhang, by the
// mask's rows plus two (3x3: 3; 5x5: 7), for each sample, rounded up to 32 bytes, and 32 more.
inline int64_t fixedKernelBufferBytes(PxliSize roi, bool fiveByFive, int sampleBytes, int channels)
{
    const int64_t side = std::max(roi.width, roi.height);
    const int64_t n = (fiveByFive ? (side + 4) * 7 : (side + 2) * 3) * sampleBytes * channels;
    return ((n + 31) & ~int64_t{31}) + 32;
}

}  // namespace pxl::filt
