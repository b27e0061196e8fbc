// Row walks shared by the sample-by-sample families. Each calls a function per processed sample:
// whole rows for C1, C3 and C4 (the channels need no telling apart), the first three samples of
// each pixel for AC4, whose fourth sample is never written.
#pragma once

#include "frame/image.hpp"

namespace pxl {

// d = fn(first, second) for every processed sample.
template <class T, class L, class Fn>
void pairRows(const T* a, int as, const T* b, int bs, T* d, int ds, PxliSize roi, Fn fn)
{
    for (int y = 0; y < roi.height; ++y) {
        const T* ra = rowAt(a, as, y);
        const T* rb = rowAt(b, bs, y);
        T* rd = rowAt(d, ds, y);
        if constexpr (L::hasAlpha) {
            for (int x = 0; x < roi.width; ++x)
                for (int c = 0; c < 3; ++c) rd[4 * x + c] = fn(ra[4 * x + c], rb[4 * x + c]);
        } else {
            const int n = roi.width * L::mem;
            for (int i = 0; i < n; ++i) rd[i] = fn(ra[i], rb[i]);
        }
    }
}

// d = fn(value of the sample's channel, sample) for every processed sample.
template <class T, class V, class L, class Fn>
void constantRows(const T* s, int ss, const V* value, T* d, int ds, PxliSize roi, Fn fn)
{
    V v[4] = {};
    for (int c = 0; c < L::proc; ++c) v[c] = value[c];
    for (int y = 0; y < roi.height; ++y) {
        const T* rs = rowAt(s, ss, y);
        T* rd = rowAt(d, ds, y);
        if constexpr (L::mem == 1) {
            const V v0 = v[0];
            for (int i = 0; i < roi.width; ++i) rd[i] = fn(v0, rs[i]);
        } else {
            for (int x = 0; x < roi.width; ++x)
                for (int c = 0; c < L::proc; ++c) rd[L::mem * x + c] = fn(v[c], rs[L::mem * x + c]);
        }
    }
}

}  // namespace pxl
