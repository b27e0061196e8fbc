/* The public header compiled as strict C99, and the library called from C. */
#include "pxlipx.h"

#include <stdio.h>
#include <string.h>

/* The ABI: 32-bit statuses and coded words, fixed-width samples, records of 32-bit fields. */
typedef char abi_status[sizeof(PxlStatus) == 4 ? 1 : -1];
typedef char abi_border[sizeof(PxliBorderMode) == 4 ? 1 : -1];
typedef char abi_size[sizeof(PxliSize) == 8 && sizeof(PxliSizeL) == 8 ? 1 : -1];
typedef char abi_rect[sizeof(PxliRect) == 16 && sizeof(PxliRectL) == 16 ? 1 : -1];
typedef char abi_complex[sizeof(Pxl32fc) == 8 && sizeof(Pxl32sc) == 8 ? 1 : -1];
typedef char abi_samples[sizeof(Pxl16s) == 2 && sizeof(Pxl32f) == 4 && sizeof(Pxl64f) == 8 ? 1 : -1];

static int failures = 0;
#define CHECK(cond) do { if (!(cond)) { printf("failed: %s (line %d)\n", #cond, __LINE__); ++failures; } } while (0)

int main(void)
{
    const PxlVersionRecord* v = pxliGetLibVersion();
    int32_t step = -1;
    Pxl32fc* img;
    int i;

    CHECK(v != NULL && v == pxliGetLibVersion());
    CHECK(v->versionMajor == 2017 && v->buildNumber == 55431);
    CHECK(strcmp(v->versionText, "2017.0.3 (r55431)") == 0);
    CHECK(memcmp(v->targetCode, "px\0\0", 4) == 0);

    img = pxliMalloc_32fc_C4(3, 2, &step);
    CHECK(img != NULL && step == 128);
    if (img) {
        for (i = 0; i < 12; ++i) { img[i].re = (Pxl32f)i; img[i].im = -(Pxl32f)i; }
        pxliFree(img);
    }
    CHECK(pxliMalloc_8u_C1(-1, 1, &step) == NULL && step == 0);
    CHECK(pxlStatusBadSize == -6 && pxlStatusUnsupportedMode == -9999 && pxlStatusWarnHintIgnored == 52);
    CHECK(pxlBorderMemAll == (pxlBorderMemTop | pxlBorderMemBottom | pxlBorderMemLeft | pxlBorderMemRight));

    printf("%d passed, %d failed\n", failures ? 0 : 1, failures ? 1 : 0);
    return failures != 0;
}
