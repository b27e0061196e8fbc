/* Allocates an image, fills a gradient, and reports the library's version. */
#include <pxlipx.h>
#include <stdio.h>

int main(void)
{
    const PxlVersionRecord* v = pxliGetLibVersion();
    int32_t step = 0;
    int x, y;
    Pxl8u* img = pxliMalloc_8u_C1(320, 240, &step);
    if (!img) return 1;
    for (y = 0; y < 240; ++y)
        for (x = 0; x < 320; ++x) img[y * step + x] = (Pxl8u)(x + y);
    printf("%s %s: a 320x240 image with a step of %d bytes\n", v->libraryName, v->versionText, (int)step);
    pxliFree(img);
    return 0;
}
