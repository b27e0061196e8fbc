// The exchange functions of one sample type, so that one typed test serves every type.
#pragma once

#include "pxlipx.h"

namespace pxltest {

template <class T> struct ExchangeApi;

#define PXLTEST_EXCHANGE_API(T, t)                                                                 \
    template <> struct ExchangeApi<T> {                                                            \
        static constexpr auto setC1 = pxliSet_##t##_C1R, setC3C = pxliSet_##t##_C3CR,              \
                              setC4C = pxliSet_##t##_C4CR;                                         \
        static constexpr auto setC3 = pxliSet_##t##_C3R, setC4 = pxliSet_##t##_C4R,                \
                              setAC4 = pxliSet_##t##_AC4R;                                         \
        static constexpr auto setC1M = pxliSet_##t##_C1MR;                                         \
        static constexpr auto setC3M = pxliSet_##t##_C3MR, setC4M = pxliSet_##t##_C4MR,            \
                              setAC4M = pxliSet_##t##_AC4MR;                                       \
        static constexpr auto copyC1 = pxliCopy_##t##_C1R, copyC3 = pxliCopy_##t##_C3R,            \
                              copyC4 = pxliCopy_##t##_C4R, copyAC4 = pxliCopy_##t##_AC4R;          \
        static constexpr auto copyC1M = pxliCopy_##t##_C1MR, copyC3M = pxliCopy_##t##_C3MR,        \
                              copyC4M = pxliCopy_##t##_C4MR, copyAC4M = pxliCopy_##t##_AC4MR;      \
        static constexpr auto copyC3C = pxliCopy_##t##_C3CR, copyC4C = pxliCopy_##t##_C4CR,        \
                              copyC3C1 = pxliCopy_##t##_C3C1R, copyC4C1 = pxliCopy_##t##_C4C1R,    \
                              copyC1C3 = pxliCopy_##t##_C1C3R, copyC1C4 = pxliCopy_##t##_C1C4R,    \
                              copyC3AC4 = pxliCopy_##t##_C3AC4R, copyAC4C3 = pxliCopy_##t##_AC4C3R; \
        static constexpr auto copyC3P3 = pxliCopy_##t##_C3P3R, copyC4P4 = pxliCopy_##t##_C4P4R;    \
        static constexpr auto copyP3C3 = pxliCopy_##t##_P3C3R, copyP4C4 = pxliCopy_##t##_P4C4R;    \
        static constexpr auto transposeC1 = pxliTranspose_##t##_C1R,                               \
                              transposeC3 = pxliTranspose_##t##_C3R,                               \
                              transposeC4 = pxliTranspose_##t##_C4R;                               \
        static constexpr auto transposeC1I = pxliTranspose_##t##_C1IR,                             \
                              transposeC3I = pxliTranspose_##t##_C3IR,                             \
                              transposeC4I = pxliTranspose_##t##_C4IR;                             \
        static constexpr auto mirrorC1 = pxliMirror_##t##_C1R, mirrorC3 = pxliMirror_##t##_C3R,    \
                              mirrorC4 = pxliMirror_##t##_C4R, mirrorAC4 = pxliMirror_##t##_AC4R;  \
        static constexpr auto mirrorC1I = pxliMirror_##t##_C1IR, mirrorC3I = pxliMirror_##t##_C3IR, \
                              mirrorC4I = pxliMirror_##t##_C4IR,                                   \
                              mirrorAC4I = pxliMirror_##t##_AC4IR;                                 \
        static constexpr auto swapC3 = pxliSwapChannels_##t##_C3R,                                 \
                              swapC4 = pxliSwapChannels_##t##_C4R,                                 \
                              swapAC4 = pxliSwapChannels_##t##_AC4R,                               \
                              swapC4C3 = pxliSwapChannels_##t##_C4C3R;                             \
        static constexpr auto swapC3C4 = pxliSwapChannels_##t##_C3C4R;                             \
    };
PXLTEST_EXCHANGE_API(Pxl8u, 8u)
PXLTEST_EXCHANGE_API(Pxl16u, 16u)
PXLTEST_EXCHANGE_API(Pxl16s, 16s)
PXLTEST_EXCHANGE_API(Pxl32s, 32s)
PXLTEST_EXCHANGE_API(Pxl32f, 32f)
#undef PXLTEST_EXCHANGE_API

}  // namespace pxltest
