/* Resizes a colour image in tiles on several threads, and checks that the tiles give exactly the
 * image that one call gives.
 *
 * One plan (the record) serves every tile at once: the runs only read it. Each thread has its own
 * work buffer. A tile passes the source pointer advanced to the pixel that pxliResizeGetSrcOffset
 * gives, and marks its inner edges as lying in memory, so that its taps read the real
 * neighbouring pixels there instead of repeating its own edge. */
#include <pxlipx.h>

#include <pthread.h>
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { SRC_W = 640, SRC_H = 480, DST_W = 1001, DST_H = 703, TILES_X = 7, TILES_Y = 5, THREADS = 4 };

typedef struct {
    const Pxl8u* src;
    int srcStep;
    Pxl8u* dst;
    int dstStep;
    const PxliResizeSpec* spec;
    int first; /* this thread takes tiles first, first + THREADS, ... */
    int status;
} Job;

/* The edges of tile k of n along a side of length len: uneven on purpose. */
static int edge(int k, int n, int len) { return (int)((long long)len * k * k / ((long long)n * n)); }

static void* runTiles(void* arg)
{
    Job* job = (Job*)arg;
    int bufferSize = 0, t;
    Pxl8u* buffer;
    const PxliSize largest = {DST_W, DST_H};
    pxliResizeGetBufferSize_8u(job->spec, largest, 3, &bufferSize);
    buffer = (Pxl8u*)malloc((size_t)bufferSize);
    job->status = buffer ? pxlStatusOk : pxlStatusNoBuffer;
    for (t = job->first; buffer && t < TILES_X * TILES_Y && job->status == pxlStatusOk; t += THREADS) {
        const int tx = t % TILES_X, ty = t / TILES_X;
        const int x0 = edge(tx, TILES_X, DST_W), x1 = edge(tx + 1, TILES_X, DST_W);
        const int y0 = edge(ty, TILES_Y, DST_H), y1 = edge(ty + 1, TILES_Y, DST_H);
        PxliPoint offset, srcOffset;
        PxliSize size;
        int border = pxlBorderReplicate;
        if (x1 <= x0 || y1 <= y0) continue;
        offset.x = x0;
        offset.y = y0;
        size.width = x1 - x0;
        size.height = y1 - y0;
        if (tx > 0) border |= pxlBorderMemLeft;
        if (tx < TILES_X - 1) border |= pxlBorderMemRight;
        if (ty > 0) border |= pxlBorderMemTop;
        if (ty < TILES_Y - 1) border |= pxlBorderMemBottom;
        pxliResizeGetSrcOffset_8u(job->spec, offset, &srcOffset);
        job->status = pxliResizeLinear_8u_C3R(job->src + (ptrdiff_t)srcOffset.y * job->srcStep + srcOffset.x * 3, job->srcStep,
                                              job->dst + (ptrdiff_t)y0 * job->dstStep + x0 * 3, job->dstStep, offset, size, border, NULL,
                                              job->spec, buffer);
    }
    free(buffer);
    return NULL;
}

int main(void)
{
    const PxliSize srcSize = {SRC_W, SRC_H}, dstSize = {DST_W, DST_H};
    const PxliPoint origin = {0, 0};
    int srcStep = 0, wholeStep = 0, tiledStep = 0, specSize = 0, initSize = 0, bufferSize = 0, x, y, i, differ = 0;
    Pxl8u* src = pxliMalloc_8u_C3(SRC_W, SRC_H, &srcStep);
    Pxl8u* whole = pxliMalloc_8u_C3(DST_W, DST_H, &wholeStep);
    Pxl8u* tiled = pxliMalloc_8u_C3(DST_W, DST_H, &tiledStep);
    unsigned char* specBytes;
    Pxl8u* buffer;
    PxliResizeSpec* spec;
    pthread_t threads[THREADS];
    Job jobs[THREADS];
    if (!src || !whole || !tiled) return 1;

    /* A colour pattern with sharp edges, so that any wrong tap shows. */
    for (y = 0; y < SRC_H; ++y)
        for (x = 0; x < SRC_W; ++x) {
            Pxl8u* p = src + (ptrdiff_t)y * srcStep + x * 3;
            p[0] = (Pxl8u)(x * 3 + y);
            p[1] = (Pxl8u)((x / 16 + y / 16) % 2 ? 230 : 20);
            p[2] = (Pxl8u)(x * y / 64);
        }

    if (pxliResizeGetSize_8u(srcSize, dstSize, pxlInterpLinear, 0, &specSize, &initSize) != pxlStatusOk) return 1;
    specBytes = (unsigned char*)malloc((size_t)specSize);
    spec = (PxliResizeSpec*)specBytes;
    if (!specBytes || pxliResizeLinearInit_8u(srcSize, dstSize, spec) != pxlStatusOk) return 1;

    /* One call over the whole image. */
    pxliResizeGetBufferSize_8u(spec, dstSize, 3, &bufferSize);
    buffer = (Pxl8u*)malloc((size_t)bufferSize);
    if (!buffer ||
        pxliResizeLinear_8u_C3R(src, srcStep, whole, wholeStep, origin, dstSize, pxlBorderReplicate, NULL, spec, buffer) != pxlStatusOk)
        return 1;
    free(buffer);

    /* The same in tiles, on several threads sharing the plan. */
    for (i = 0; i < THREADS; ++i) {
        Job job = {src, srcStep, tiled, tiledStep, spec, i, 0};
        jobs[i] = job;
        if (pthread_create(&threads[i], NULL, runTiles, &jobs[i]) != 0) return 1;
    }
    for (i = 0; i < THREADS; ++i) {
        pthread_join(threads[i], NULL);
        if (jobs[i].status != pxlStatusOk) {
            printf("a tile failed with status %d\n", jobs[i].status);
            return 1;
        }
    }

    for (y = 0; y < DST_H; ++y)
        differ += memcmp(whole + (ptrdiff_t)y * wholeStep, tiled + (ptrdiff_t)y * tiledStep, DST_W * 3) != 0;
    printf("%dx%d to %dx%d in %d tiles on %d threads: %s\n", SRC_W, SRC_H, DST_W, DST_H, TILES_X * TILES_Y, THREADS,
           differ ? "rows differ from one call" : "the same bits as one call");
    free(specBytes);
    pxliFree(src);
    pxliFree(whole);
    pxliFree(tiled);
    return differ ? 1 : 0;
}
