/* pxlipx: the version record and image memory. */
#ifndef PXLIPX_FRAME_H
#define PXLIPX_FRAME_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The library's constant version record; the same pointer on every call, never null. */
const PxlVersionRecord* pxliGetLibVersion(void);

/* Image memory. Each call allocates height rows whose step (written to *pStep) is the row size
 * rounded up to a multiple of 64 bytes, and returns the first sample, or null. The plain forms
 * refuse an image of more than 2147483647 bytes; the _L forms check against the 64-bit range. */
#define PXLI_MALLOC_DECL(type, layout) \
    type* pxliMalloc_##layout(int32_t width, int32_t height, int32_t* pStep); \
    type* pxliMalloc_##layout##_L(int32_t width, int32_t height, int32_t* pStep);
#define PXLI_MALLOC_DECL_LAYOUTS(type, token) \
    PXLI_MALLOC_DECL(type, token##_C1) PXLI_MALLOC_DECL(type, token##_C2) PXLI_MALLOC_DECL(type, token##_C3) \
    PXLI_MALLOC_DECL(type, token##_C4) PXLI_MALLOC_DECL(type, token##_AC4)
PXLI_MALLOC_DECL_LAYOUTS(Pxl8u, 8u)
PXLI_MALLOC_DECL_LAYOUTS(Pxl16u, 16u)
PXLI_MALLOC_DECL_LAYOUTS(Pxl16s, 16s)
PXLI_MALLOC_DECL_LAYOUTS(Pxl32s, 32s)
PXLI_MALLOC_DECL_LAYOUTS(Pxl32f, 32f)
PXLI_MALLOC_DECL_LAYOUTS(Pxl32sc, 32sc)
PXLI_MALLOC_DECL_LAYOUTS(Pxl32fc, 32fc)
#undef PXLI_MALLOC_DECL_LAYOUTS
#undef PXLI_MALLOC_DECL

/* Gives back memory from any pxliMalloc form. */
void pxliFree(void* ptr);

#ifdef __cplusplus
}
#endif

#endif
