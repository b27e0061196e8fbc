// Around kernels written with 512-bit intrinsics: GCC's intrinsics pass an undefined vector for
// the lanes that no mask keeps, and after inlining GCC warns that it may be used uninitialised.
#pragma once

#if defined(__GNUC__) && !defined(__clang__)
#define PXL_AVX512_KERNEL_BEGIN _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Wmaybe-uninitialized\"")
#define PXL_AVX512_KERNEL_END _Pragma("GCC diagnostic pop")
#else
#define PXL_AVX512_KERNEL_BEGIN
#define PXL_AVX512_KERNEL_END
#endif
