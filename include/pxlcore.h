/* pxlcore: the allocator under pxlipx's image memory. Blocks start on a multiple of 64 bytes. */
#ifndef PXLCORE_H
#define PXLCORE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A block of length bytes, or null when length is not positive or there is no memory. */
void* pxlMalloc(int32_t length);
/* The same, for the wide image forms; the count is 32-bit on every build. */
void* pxlMalloc_L(int32_t length);
/* Gives back a block of either; null is accepted and ignored. */
void pxlFree(void* ptr);

#ifdef __cplusplus
}
#endif

#endif
