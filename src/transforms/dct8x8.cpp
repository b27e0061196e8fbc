// The 8x8 DCT of block codecs: fixed-point passes whose constants and points of rounding make
// each integer form an exact function of its input, reduced inverses, float forms and zigzag.
// All integer arithmetic is 32-bit and wraps; a pass result is stored to 16 bits by dropping the
// upper bits, and read back as signed.
#include "transforms/transforms.hpp"

#include "frame/bind.hpp"

#include <cstdint>
#include <cstring>

namespace pxl::xform {

namespace {

// 32-bit arithmetic that wraps, and the store to 16 bits that keeps the low bits.
inline int32_t mul(int32_t a, int32_t b) { return static_cast<int32_t>(static_cast<uint32_t>(a) * static_cast<uint32_t>(b)); }
inline int32_t add(int32_t a, int32_t b) { return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b)); }
inline int32_t sub(int32_t a, int32_t b) { return static_cast<int32_t>(static_cast<uint32_t>(a) - static_cast<uint32_t>(b)); }
inline int32_t shl(int32_t a, int n) { return static_cast<int32_t>(static_cast<uint32_t>(a) << n); }
inline Pxl16s low16(int32_t v) { return static_cast<Pxl16s>(static_cast<uint16_t>(static_cast<uint32_t>(v))); }

// A pass over 8 values at p[0], p[stride], ..., in place.
struct Pass {
    int32_t r;
    int s;
};
constexpr Pass kFirst{2048, 12}, kSecond{1048576, 21};

// One forward pass; `rows` selects the first pass's outputs 0 and 4 (scaled by 8) or the
// second's (rounded down by 64).
void forwardPass(Pxl16s* p, int stride, bool rows)
{
    int32_t x[8];
    for (int i = 0; i < 8; ++i) x[i] = p[i * stride];
    const Pass ps = rows ? kFirst : kSecond;
    const int32_t a = add(mul(sub(x[0], x[7]), 46341), 2048) >> 12, b = add(mul(sub(x[3], x[4]), 46341), 2048) >> 12;
    const int32_t c = mul(sub(x[1], x[6]), 8), d = mul(sub(x[2], x[5]), 8);
    const int32_t s07 = add(x[0], x[7]), s16 = add(x[1], x[6]), s25 = add(x[2], x[5]), s34 = add(x[3], x[4]);
    const int32_t e0 = add(s07, s34), e1 = sub(s07, s34), e2 = add(s16, s25), e3 = sub(s16, s25);
    const int32_t t = mul(add(e1, e3), 17734);
    const int32_t pp = add(c, d), q = sub(c, d);
    const int32_t u0 = add(a, pp), u1 = sub(a, pp), u2 = add(b, q), u3 = sub(b, q);
    const int32_t r0 = mul(add(u0, u2), 799), r1 = mul(add(u1, u3), 3406);
    auto out = [&](int32_t v) { return low16(add(v, ps.r) >> ps.s); };
    p[1 * stride] = out(add(r0, mul(3218, u0)));
    p[7 * stride] = out(sub(r0, mul(4816, u2)));
    p[3 * stride] = out(sub(r1, mul(5681, u3)));
    p[5 * stride] = out(sub(r1, mul(1130, u1)));
    p[2 * stride] = out(add(mul(25080, e1), t));
    p[6 * stride] = out(sub(t, mul(60547, e3)));
    if (rows) {
        p[0] = low16(mul(add(e0, e2), 8));
        p[4 * stride] = low16(mul(sub(e0, e2), 8));
    } else {
        p[0] = low16(add(add(e0, e2), 32) >> 6);
        p[4 * stride] = low16(add(sub(e0, e2), 32) >> 6);
    }
}

// The forward transform of the block already in dst: rows, then columns.
void forward(Pxl16s* dst)
{
    for (int i = 0; i < 8; ++i) forwardPass(dst + 8 * i, 1, true);
    for (int j = 0; j < 8; ++j) forwardPass(dst + j, 8, false);
}

// The outputs of an inverse pass from its even sums m0..m3 and odd terms P, Q, H, J.
void inverseOutputs(Pxl16s* p, int stride, Pass ps, int32_t m0, int32_t m1, int32_t m2, int32_t m3, int32_t P, int32_t Q, int32_t H, int32_t J)
{
    auto out = [&](int32_t v) { return low16(add(v, ps.r) >> ps.s); };
    p[0] = out(add(m0, P)), p[7 * stride] = out(sub(m0, P));
    p[1 * stride] = out(add(m2, H)), p[6 * stride] = out(sub(m2, H));
    p[2 * stride] = out(add(m3, J)), p[5 * stride] = out(sub(m3, J));
    p[3 * stride] = out(add(m1, Q)), p[4 * stride] = out(sub(m1, Q));
}

// One full inverse pass over p[0], p[stride], ... into q[0], q[stride], ... (which may be p).
void inversePass(const Pxl16s* p, Pxl16s* q, int stride, Pass ps)
{
    int32_t c[8];
    for (int i = 0; i < 8; ++i) c[i] = p[i * stride];
    const int32_t s53 = add(c[5], c[3]), s17 = add(c[1], c[7]);
    const int32_t A = add(mul(-9041, c[5]), mul(27246, s53));
    const int32_t B = sub(mul(27246, s53), mul(45451, c[3]));
    const int32_t C = add(mul(25746, c[1]), mul(6393, s17));
    const int32_t D = sub(mul(6393, s17), mul(38531, c[7]));
    const int32_t E = sub(C, A), G = sub(D, B);
    const int32_t P = mul(add(add(A, C), 2048) >> 12, 5793), Q = mul(add(add(B, D), 2048) >> 12, 5793);
    const int32_t H = add(E, G), J = sub(E, G);
    const int32_t f0 = shl(c[0], 15), f4 = shl(c[4], 15);
    const int32_t s26 = add(c[2], c[6]);
    const int32_t K = add(mul(25080, c[2]), mul(17734, s26)), L = sub(mul(17734, s26), mul(60547, c[6]));
    const int32_t sum = add(f0, f4), dif = sub(f0, f4);
    inverseOutputs(q, stride, ps, add(sum, K), sub(sum, K), add(dif, L), sub(dif, L), P, Q, H, J);
}

// The inverse of a block with only its top left 2x2 (or 4x4) coefficients, over two (or four) inputs.
void inversePass2(const Pxl16s* p, Pxl16s* q, int stride, Pass ps)
{
    const int32_t c1 = p[stride], f = shl(p[0], 15);
    const int32_t P = mul(add(mul(32138, c1), 2048) >> 12, 5793), Q = mul(add(mul(6393, c1), 2048) >> 12, 5793);
    inverseOutputs(q, stride, ps, f, f, f, f, P, Q, mul(38531, c1), mul(25745, c1));
}
void inversePass4(const Pxl16s* p, Pxl16s* q, int stride, Pass ps)
{
    const int32_t c1 = p[stride], c2 = p[2 * stride], c3 = p[3 * stride], f = shl(p[0], 15);
    const int32_t E = sub(mul(32138, c1), mul(27246, c3)), G = add(mul(6393, c1), mul(18205, c3));
    const int32_t P = mul(add(add(mul(32138, c1), mul(27246, c3)), 2048) >> 12, 5793);
    const int32_t Q = mul(add(sub(mul(6393, c1), mul(18205, c3)), 2048) >> 12, 5793);
    inverseOutputs(q, stride, ps, add(f, mul(42813, c2)), sub(f, mul(42813, c2)), add(f, mul(17734, c2)), sub(f, mul(17734, c2)), P, Q, add(E, G),
                   sub(E, G));
}

using PassFn = void (*)(const Pxl16s*, Pxl16s*, int, Pass);

// An inverse from `in` into the contiguous block `out` (which may be `in`): the pass down the
// first `columns` columns, then along every row.
void inverse(const Pxl16s* in, Pxl16s* out, int columns, PassFn pass, Pass first, Pass second)
{
    for (int j = 0; j < columns; ++j) pass(in + j, out + j, 8, first);
    for (int i = 0; i < 8; ++i) pass(out + 8 * i, out + 8 * i, 1, second);
}
void fullInverse(const Pxl16s* in, Pxl16s* out) { inverse(in, out, 8, inversePass, kFirst, kSecond); }

// The passes of the block-reducing inverses: eight inputs (without c4) to four outputs, and five
// (c0, c1, c3, c5, c7) to two.
void toFourPass(const Pxl16s* p, int stride, Pass ps, int32_t* o)
{
    int32_t c[8];
    for (int i = 0; i < 8; ++i) c[i] = i == 4 ? 0 : p[i * stride];
    const int32_t a = sub(sub(add(mul(41991, c[1]), mul(14745, c[3])), mul(9852, c[5])), mul(8352, c[7]));
    const int32_t b = sub(add(sub(mul(17393, c[1]), mul(35598, c[3])), mul(23786, c[5])), mul(3460, c[7]));
    const int32_t e = sub(mul(30274, c[2]), mul(12540, c[6]));
    const int32_t f = shl(c[0], 15), pp = add(f, e), q = sub(f, e);
    o[0] = add(add(pp, a), ps.r) >> ps.s;
    o[3] = add(sub(pp, a), ps.r) >> ps.s;
    o[1] = add(add(q, b), ps.r) >> ps.s;
    o[2] = add(sub(q, b), ps.r) >> ps.s;
}
void toTwoPass(const Pxl16s* p, int stride, Pass ps, int32_t* o)
{
    const int32_t a = sub(add(sub(mul(59384, p[stride]), mul(20853, p[3 * stride])), mul(13932, p[5 * stride])), mul(11812, p[7 * stride]));
    const int32_t f = shl(p[0], 16);
    o[0] = add(add(f, a), ps.r) >> ps.s;
    o[1] = add(sub(f, a), ps.r) >> ps.s;
}

// n x n samples from 64 coefficients: the pass down the columns it reads, the results kept as 16
// bits, then along each of the n rows; written contiguously at the start of dst.
template <int n>
void toSmall(const Pxl16s* src, Pxl16s* dst, void (*pass)(const Pxl16s*, int, Pass, int32_t*), Pass first, Pass second)
{
    Pxl16s rows[n][8] = {};
    for (int j = 0; j < 8; ++j) {
        if (j == 4 || (n == 2 && (j == 2 || j == 6))) continue;  // columns whose samples cancel
        int32_t o[n];
        pass(src + j, 8, first, o);
        for (int i = 0; i < n; ++i) rows[i][j] = low16(o[i]);
    }
    Pxl16s out[n * n];
    for (int i = 0; i < n; ++i) {
        int32_t o[n];
        pass(rows[i], 1, second, o);
        for (int k = 0; k < n; ++k) out[n * i + k] = low16(o[k]);
    }
    std::memcpy(dst, out, sizeof(out));
}

// The float transform, orthonormal, one dimension at a time over 8 values at stride.
constexpr float kC1 = 0.98078528f, kC2 = 0.92387953f, kC3 = 0.83146961f, kC5 = 0.55557023f, kC6 = 0.38268343f, kC7 = 0.19509032f;
constexpr float kS0 = 0.35355339f;  // 1 / sqrt(8)

void forwardFloat(float* p, int stride)
{
    float x[8];
    for (int i = 0; i < 8; ++i) x[i] = p[i * stride];
    const float a0 = x[0] + x[7], a1 = x[1] + x[6], a2 = x[2] + x[5], a3 = x[3] + x[4];
    const float b0 = x[0] - x[7], b1 = x[1] - x[6], b2 = x[2] - x[5], b3 = x[3] - x[4];
    p[0] = kS0 * ((a0 + a3) + (a1 + a2));
    p[4 * stride] = kS0 * ((a0 + a3) - (a1 + a2));
    p[2 * stride] = 0.5f * (kC2 * (a0 - a3) + kC6 * (a1 - a2));
    p[6 * stride] = 0.5f * (kC6 * (a0 - a3) - kC2 * (a1 - a2));
    p[1 * stride] = 0.5f * (kC1 * b0 + kC3 * b1 + kC5 * b2 + kC7 * b3);
    p[3 * stride] = 0.5f * (kC3 * b0 - kC7 * b1 - kC1 * b2 - kC5 * b3);
    p[5 * stride] = 0.5f * (kC5 * b0 - kC1 * b1 + kC7 * b2 + kC3 * b3);
    p[7 * stride] = 0.5f * (kC7 * b0 - kC5 * b1 + kC3 * b2 - kC1 * b3);
}

void inverseFloat(float* p, int stride)
{
    float X[8];
    for (int i = 0; i < 8; ++i) X[i] = p[i * stride];
    const float z = kS0 * X[0], f = kS0 * X[4], g = 0.5f * (kC2 * X[2] + kC6 * X[6]), h = 0.5f * (kC6 * X[2] - kC2 * X[6]);
    const float e[4] = {(z + f) + g, (z - f) + h, (z - f) - h, (z + f) - g};
    const float o[4] = {0.5f * (kC1 * X[1] + kC3 * X[3] + kC5 * X[5] + kC7 * X[7]), 0.5f * (kC3 * X[1] - kC7 * X[3] - kC1 * X[5] - kC5 * X[7]),
                        0.5f * (kC5 * X[1] - kC1 * X[3] + kC7 * X[5] + kC3 * X[7]), 0.5f * (kC7 * X[1] - kC5 * X[3] + kC3 * X[5] - kC1 * X[7])};
    for (int n = 0; n < 4; ++n) {
        p[n * stride] = e[n] + o[n];
        p[(7 - n) * stride] = e[n] - o[n];
    }
}

// The zigzag scan: position k of the scan reads the natural position kZigzag[k].
constexpr int8_t kZigzag[64] = {0,  1,  8,  16, 9,  2,  3,  10, 17, 24, 32, 25, 18, 11, 4,  5,  12, 19, 26, 33, 40, 48,
                                41, 34, 27, 20, 13, 6,  7,  14, 21, 28, 35, 42, 49, 56, 57, 50, 43, 36, 29, 22, 15, 23,
                                30, 37, 44, 51, 58, 59, 52, 45, 38, 31, 39, 46, 53, 60, 61, 54, 47, 55, 62, 63};

}  // namespace

// Checks: pointers, then (forms with a step) the step.
PxlStatus dctFwd16s(const Pxl16s* pSrc, Pxl16s* pDst)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (pSrc != pDst) std::memmove(pDst, pSrc, 64 * sizeof(Pxl16s));
    forward(pDst);
    return pxlStatusOk;
}
PxlStatus dctFwd16sI(Pxl16s* pSrcDst) { return dctFwd16s(pSrcDst, pSrcDst); }

// The forward transform of a region's 8x8 samples, each first made a 16-bit value by `in`.
template <class T, class In> PxlStatus forwardRegion(const T* pSrc, int srcStep, Pxl16s* pDst, In in)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (srcStep < 1) return pxlStatusBadStep;
    Pxl16s block[64];
    for (int i = 0; i < 8; ++i) {
        const T* row = rowAt(pSrc, srcStep, i);
        for (int j = 0; j < 8; ++j) block[8 * i + j] = in(row[j]);
    }
    std::memcpy(pDst, block, sizeof(block));
    forward(pDst);
    return pxlStatusOk;
}
PxlStatus dctFwd16sR(const Pxl16s* pSrc, int srcStep, Pxl16s* pDst)
{
    return forwardRegion(pSrc, srcStep, pDst, [](Pxl16s v) { return v; });
}
PxlStatus dctFwd8u16sR(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst)
{
    return forwardRegion(pSrc, srcStep, pDst, [](Pxl8u v) { return static_cast<Pxl16s>(v); });
}
PxlStatus dctFwdLS8u16sR(const Pxl8u* pSrc, int srcStep, Pxl16s* pDst, Pxl16s addVal)
{
    return forwardRegion(pSrc, srcStep, pDst, [addVal](Pxl8u v) { return low16(add(v, addVal)); });
}

// Inverses between contiguous blocks, in place or not: whole, with one more bit of range between
// the passes, and of blocks with only their top left 2x2 or 4x4 coefficients.
PxlStatus inverseBlock(const Pxl16s* pSrc, Pxl16s* pDst, int columns, PassFn pass, Pass first, Pass second)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    inverse(pSrc, pDst, columns, pass, first, second);
    return pxlStatusOk;
}
PxlStatus dctInv16s(const Pxl16s* pSrc, Pxl16s* pDst) { return inverseBlock(pSrc, pDst, 8, inversePass, kFirst, kSecond); }
PxlStatus dctInv16sI(Pxl16s* pSrcDst) { return dctInv16s(pSrcDst, pSrcDst); }
PxlStatus dctInvA10(const Pxl16s* pSrc, Pxl16s* pDst) { return inverseBlock(pSrc, pDst, 8, inversePass, {4096, 13}, {524288, 20}); }
PxlStatus dctInvA10I(Pxl16s* pSrcDst) { return dctInvA10(pSrcDst, pSrcDst); }
PxlStatus dctInv2x2(const Pxl16s* pSrc, Pxl16s* pDst) { return inverseBlock(pSrc, pDst, 2, inversePass2, kFirst, kSecond); }
PxlStatus dctInv2x2I(Pxl16s* pSrcDst) { return dctInv2x2(pSrcDst, pSrcDst); }
PxlStatus dctInv4x4(const Pxl16s* pSrc, Pxl16s* pDst) { return inverseBlock(pSrc, pDst, 4, inversePass4, kFirst, kSecond); }
PxlStatus dctInv4x4I(Pxl16s* pSrcDst) { return dctInv4x4(pSrcDst, pSrcDst); }

// The inverse into an image region, each 16-bit result stored by `out`.
template <class T, class Out> PxlStatus inverseRegion(const Pxl16s* pSrc, T* pDst, int dstStep, Out out)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (dstStep < 1) return pxlStatusBadStep;
    Pxl16s block[64];
    fullInverse(pSrc, block);
    for (int i = 0; i < 8; ++i) {
        T* row = rowAt(pDst, dstStep, i);
        for (int j = 0; j < 8; ++j) row[j] = out(block[8 * i + j]);
    }
    return pxlStatusOk;
}
PxlStatus dctInv16sR(const Pxl16s* pSrc, Pxl16s* pDst, int dstStep)
{
    return inverseRegion(pSrc, pDst, dstStep, [](Pxl16s v) { return v; });
}
PxlStatus dctInv16s8uR(const Pxl16s* pSrc, Pxl8u* pDst, int dstStep)
{
    return inverseRegion(pSrc, pDst, dstStep, [](Pxl16s v) { return static_cast<Pxl8u>(v >= 255 ? 255 : v < 0 ? 0 : v); });
}
// The lower limit is tested first: with clipMin above clipMax, a sum below clipMin gives clipMin
// and any other clipMax.
PxlStatus dctInvLSClip16s8uR(const Pxl16s* pSrc, Pxl8u* pDst, int dstStep, Pxl16s addVal, Pxl8u clipMin, Pxl8u clipMax)
{
    return inverseRegion(pSrc, pDst, dstStep, [=](Pxl16s v) {
        const int32_t sum = int32_t{v} + addVal;
        return static_cast<Pxl8u>(sum < clipMin ? clipMin : sum >= clipMax ? clipMax : sum);
    });
}

template <int N> PxlStatus dctToSmall(const Pxl16s* pSrc, Pxl16s* pDst)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if constexpr (N == 4) toSmall<4>(pSrc, pDst, toFourPass, {2048, 12}, {1048576, 21});
    else toSmall<2>(pSrc, pDst, toTwoPass, {4096, 13}, {2097152, 22});
    return pxlStatusOk;
}
template <int N> PxlStatus dctToSmallI(Pxl16s* pSrcDst) { return dctToSmall<N>(pSrcDst, pSrcDst); }

template <bool Forward> PxlStatus dct32f(const Pxl32f* pSrc, Pxl32f* pDst)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (pSrc != pDst) std::memmove(pDst, pSrc, 64 * sizeof(Pxl32f));
    for (int i = 0; i < 8; ++i) Forward ? forwardFloat(pDst + 8 * i, 1) : inverseFloat(pDst + 8 * i, 1);
    for (int j = 0; j < 8; ++j) Forward ? forwardFloat(pDst + j, 8) : inverseFloat(pDst + j, 8);
    return pxlStatusOk;
}
template <bool Forward> PxlStatus dct32fI(Pxl32f* pSrcDst) { return dct32f<Forward>(pSrcDst, pSrcDst); }

// Zigzag: forward reads the natural position of each scan position; inverse writes it back.
PxlStatus zigzagFwd(const Pxl16s* pSrc, Pxl16s* pDst)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    for (int k = 0; k < 64; ++k) pDst[k] = pSrc[kZigzag[k]];
    return pxlStatusOk;
}
PxlStatus zigzagInv(const Pxl16s* pSrc, Pxl16s* pDst)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    for (int k = 0; k < 64; ++k) pDst[kZigzag[k]] = pSrc[k];
    return pxlStatusOk;
}

}  // namespace pxl::xform

#include "inst/transforms/dct8x8.inc"
