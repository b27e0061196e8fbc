// Transpose, mirror and channel swaps: samples change places, never values, so each body works on
// the bits of the sample and a pixel of N samples moves as one unit.
#include "exchange/exchange.hpp"
#include "exchange/kernels.hpp"
#include "frame/bind.hpp"
#include "frame/simd.hpp"

#include <utility>

#if defined(__SSSE3__)
#include <tmmintrin.h>
#endif
#if defined(__AVX2__) || defined(__AVX512F__)
#include <immintrin.h>
#endif
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace pxl::exch {

namespace {

template <class S, int N> struct Pixel { S s[N]; };
template <class S, int N> using Px = std::conditional_t<N == 1, S, Pixel<S, N>>;

// Moves or swaps the processed samples of one pixel; a four-sample pixel with alpha keeps the
// destination's fourth sample.
template <class S, class L> inline void movePixel(S* d, const S* s)
{
    for (int c = 0; c < L::proc; ++c) d[c] = s[c];
}
template <class S, class L> inline void swapPixel(S* a, S* b)
{
    for (int c = 0; c < L::proc; ++c) std::swap(a[c], b[c]);
}

#if defined(__SSE2__)
// B by B blocks of one-, two- and four-byte samples transposed in registers: rows are loaded,
// interleaved pairwise at widening lane sizes, and stored as columns.
template <class P> inline constexpr int kBlock = sizeof(P) == 1 || sizeof(P) == 2 ? 8 : sizeof(P) == 4 ? 4 : 0;

template <class P>
inline void transposeBlock(const P* const* s, int x, P* const* d, int y)
{
    if constexpr (sizeof(P) == 1) {
        __m128i r[8];
        for (int i = 0; i < 8; ++i) r[i] = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(s[i] + x));
        const __m128i b0 = _mm_unpacklo_epi8(r[0], r[1]), b1 = _mm_unpacklo_epi8(r[2], r[3]);
        const __m128i b2 = _mm_unpacklo_epi8(r[4], r[5]), b3 = _mm_unpacklo_epi8(r[6], r[7]);
        const __m128i c0 = _mm_unpacklo_epi16(b0, b1), c1 = _mm_unpackhi_epi16(b0, b1);
        const __m128i c2 = _mm_unpacklo_epi16(b2, b3), c3 = _mm_unpackhi_epi16(b2, b3);
        const __m128i e[4] = {_mm_unpacklo_epi32(c0, c2), _mm_unpackhi_epi32(c0, c2), _mm_unpacklo_epi32(c1, c3),
                              _mm_unpackhi_epi32(c1, c3)};
        for (int i = 0; i < 4; ++i) {
            _mm_storel_epi64(reinterpret_cast<__m128i*>(d[2 * i] + y), e[i]);
            _mm_storel_epi64(reinterpret_cast<__m128i*>(d[2 * i + 1] + y), _mm_unpackhi_epi64(e[i], e[i]));
        }
    } else if constexpr (sizeof(P) == 2) {
        __m128i r[8];
        for (int i = 0; i < 8; ++i) r[i] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s[i] + x));
        const __m128i b0 = _mm_unpacklo_epi16(r[0], r[1]), b1 = _mm_unpackhi_epi16(r[0], r[1]);
        const __m128i b2 = _mm_unpacklo_epi16(r[2], r[3]), b3 = _mm_unpackhi_epi16(r[2], r[3]);
        const __m128i b4 = _mm_unpacklo_epi16(r[4], r[5]), b5 = _mm_unpackhi_epi16(r[4], r[5]);
        const __m128i b6 = _mm_unpacklo_epi16(r[6], r[7]), b7 = _mm_unpackhi_epi16(r[6], r[7]);
        const __m128i c0 = _mm_unpacklo_epi32(b0, b2), c1 = _mm_unpackhi_epi32(b0, b2);
        const __m128i c2 = _mm_unpacklo_epi32(b1, b3), c3 = _mm_unpackhi_epi32(b1, b3);
        const __m128i c4 = _mm_unpacklo_epi32(b4, b6), c5 = _mm_unpackhi_epi32(b4, b6);
        const __m128i c6 = _mm_unpacklo_epi32(b5, b7), c7 = _mm_unpackhi_epi32(b5, b7);
        const __m128i e[8] = {_mm_unpacklo_epi64(c0, c4), _mm_unpackhi_epi64(c0, c4), _mm_unpacklo_epi64(c1, c5),
                              _mm_unpackhi_epi64(c1, c5), _mm_unpacklo_epi64(c2, c6), _mm_unpackhi_epi64(c2, c6),
                              _mm_unpacklo_epi64(c3, c7), _mm_unpackhi_epi64(c3, c7)};
        for (int i = 0; i < 8; ++i) _mm_storeu_si128(reinterpret_cast<__m128i*>(d[i] + y), e[i]);
    } else {
        __m128i r[4];
        for (int i = 0; i < 4; ++i) r[i] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s[i] + x));
        const __m128i b0 = _mm_unpacklo_epi32(r[0], r[1]), b1 = _mm_unpackhi_epi32(r[0], r[1]);
        const __m128i b2 = _mm_unpacklo_epi32(r[2], r[3]), b3 = _mm_unpackhi_epi32(r[2], r[3]);
        const __m128i e[4] = {_mm_unpacklo_epi64(b0, b2), _mm_unpackhi_epi64(b0, b2), _mm_unpacklo_epi64(b1, b3),
                              _mm_unpackhi_epi64(b1, b3)};
        for (int i = 0; i < 4; ++i) _mm_storeu_si128(reinterpret_cast<__m128i*>(d[i] + y), e[i]);
    }
}
#else
template <class P> inline constexpr int kBlock = 0;
#endif

// Pixels of 3, 6 or 12 bytes as one move of 4, 8 or 16.
template <class P> inline constexpr int kWideMove = sizeof(P) == 3 ? 4 : sizeof(P) == 6 ? 8 : sizeof(P) == 12 ? 16 : 0;
template <class P> inline void moveWide(P* d, const P* s)
{
    unsigned char word[kWideMove<P>];
    std::memcpy(word, s, sizeof word);
    std::memcpy(d, word, sizeof word);
}

// Destination row x, column y gets source row y, column x, for a source of w columns and h rows;
// with Anti, destination row w-1-x, column h-1-y. Square tiles of up to 64 walk down the source,
// then across; each source column of a tile becomes a destination row. Inside a tile, whole
// register blocks go through transposeBlock and the rest sample by sample.
template <class P, bool Anti>
void transposeTiles(const P* src, int srcStep, P* dst, int dstStep, int w, int h)
{
    constexpr int kTile = 64;
    const int t = std::min({w, h, kTile});
    const P* srcRows[kTile];
    P* dstRows[kTile];
    for (int x0 = 0; x0 < w; x0 += t) {
        const int x1 = std::min(w, x0 + t);
        for (int x = x0; x < x1; ++x) dstRows[x - x0] = rowAt(dst, dstStep, Anti ? w - 1 - x : x);
        for (int y0 = 0; y0 < h; y0 += t) {
            const int y1 = std::min(h, y0 + t);
            for (int y = y0; y < y1; ++y) srcRows[y - y0] = rowAt(src, srcStep, y);
            int bx = 0, by = 0;  // the part of the tile done in register blocks
            if constexpr (kBlock<P> > 0 && !Anti) {
                constexpr int B = kBlock<P>;
                bx = (x1 - x0) / B * B;
                by = (y1 - y0) / B * B;
                for (int x = 0; x < bx; x += B)
                    for (int y = 0; y < by; y += B) transposeBlock<P>(srcRows + y, x0 + x, dstRows + x, y0 + y);
            }
            for (int x = x0; x < x1; ++x) {
                P* d = dstRows[x - x0];
                int y = y0 + (x - x0 < bx ? by : 0);
                if constexpr (!Anti && kWideMove<P> > 0) {
                    // Three-sample pixels move as one wider word whose extra bytes land on the
                    // next pixel of the row, written right after; the last column and row, whose
                    // extra bytes would leave the images, move exactly.
                    if (x < w - 1)
                        for (const int yEnd = std::min(y1, h - 1); y < yEnd; ++y) moveWide(&d[y], &srcRows[y - y0][x]);
                }
                for (; y < y1; ++y) {
                    if constexpr (Anti) d[h - 1 - y] = srcRows[y - y0][x];
                    else d[y] = srcRows[y - y0][x];
                }
            }
        }
    }
}

// Whether any corner of region b lies within a row of region a (rows of `cols` elements).
struct Span {
    uintptr_t base;
    int step, rows, cols;
    std::size_t elem;
};
bool cornerInRows(const Span& a, const Span& b)
{
    const uintptr_t lastCol = static_cast<uintptr_t>(b.cols - 1) * b.elem;
    const uintptr_t lastRow = b.base + static_cast<uintptr_t>(static_cast<std::ptrdiff_t>(b.rows - 1) * b.step);
    const uintptr_t corners[4] = {b.base, b.base + lastCol, lastRow, lastRow + lastCol};
    for (int r = 0; r < a.rows; ++r) {
        const uintptr_t lo = a.base + static_cast<uintptr_t>(static_cast<std::ptrdiff_t>(r) * a.step);
        const uintptr_t hi = lo + static_cast<uintptr_t>(a.cols) * a.elem;
        for (uintptr_t c : corners)
            if (c >= lo && c < hi) return true;
    }
    return false;
}

}  // namespace

// ---- Transpose ---------------------------------------------------------------------------------

template <class S, int N>
PxlStatus transposeInPlace(S* pSrcDst, int step, PxliSize roi)
{
    if (!pSrcDst) return pxlStatusNullPointer;
    if (badSize(roi) || roi.width != roi.height) return pxlStatusBadSize;
    using P = Px<S, N>;
    P* a = reinterpret_cast<P*>(pSrcDst);
    const int n = roi.width, t = std::min(n, 32);
    // A tile on the diagonal swaps its upper part with its lower; a tile above it swaps with its
    // mirror tile below.
    for (int by = 0; by < n; by += t) {
        const int y1 = std::min(n, by + t);
        for (int bx = by; bx < n; bx += t) {
            const int x1 = std::min(n, bx + t);
            for (int y = by; y < y1; ++y) {
                P* row = rowAt(a, step, y);
                for (int x = bx == by ? y + 1 : bx; x < x1; ++x) std::swap(row[x], rowAt(a, step, x)[y]);
            }
        }
    }
    return pxlStatusOk;
}

template <class S, int N>
PxlStatus transpose(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi)
{
    if (pSrc == pDst && srcStep == dstStep) return transposeInPlace<S, N>(pDst, dstStep, roi);
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    using P = Px<S, N>;
    transposeTiles<P, false>(reinterpret_cast<const P*>(pSrc), srcStep, reinterpret_cast<P*>(pDst), dstStep,
                             roi.width, roi.height);
    return pxlStatusOk;
}

// ---- Mirror ------------------------------------------------------------------------------------

template <class S, class L>
PxlStatus mirrorInPlace(S* p, int step, PxliSize roi, PxlAxis flip)
{
    if (!p) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (flip < pxlAxisHorizontal || flip > pxlAxisBoth) return pxlStatusBadAxis;
    const int w = roi.width, h = roi.height, m = L::mem;
    if (flip == pxlAxisHorizontal) {
        for (int y = 0; y < h / 2; ++y) {
            S* a = rowAt(p, step, y);
            S* b = rowAt(p, step, h - 1 - y);
            for (int x = 0; x < w; ++x) swapPixel<S, L>(a + m * x, b + m * x);
        }
    } else if (flip == pxlAxisVertical) {
        for (int y = 0; y < h; ++y) {
            S* a = rowAt(p, step, y);
            for (int x = 0; x < w / 2; ++x) swapPixel<S, L>(a + m * x, a + m * (w - 1 - x));
        }
    } else {
        for (int y = 0; y < h / 2; ++y) {
            S* a = rowAt(p, step, y);
            S* b = rowAt(p, step, h - 1 - y);
            for (int x = 0; x < w; ++x) swapPixel<S, L>(a + m * x, b + m * (w - 1 - x));
        }
        if (h % 2) {
            S* a = rowAt(p, step, h / 2);
            for (int x = 0; x < w / 2; ++x) swapPixel<S, L>(a + m * x, a + m * (w - 1 - x));
        }
    }
    return pxlStatusOk;
}

// Axes 3 and 4 of the one-channel forms: the size is the destination's, so the source is read as
// width rows of height columns. The images must not overlap.
template <class S>
PxlStatus mirrorDiagonal(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi, PxlAxis flip)
{
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (srcStep < 1 || dstStep < 1) return pxlStatusBadStep;
    if (badSize(roi)) return pxlStatusBadSize;
    const Span src{reinterpret_cast<uintptr_t>(pSrc), srcStep, roi.width, roi.height, sizeof(S)};
    const Span dst{reinterpret_cast<uintptr_t>(pDst), dstStep, roi.height, roi.width, sizeof(S)};
    if (cornerInRows(src, dst) || cornerInRows(dst, src)) return pxlStatusUnsupportedMode;
    if (flip == pxlAxisDiagonal) transposeTiles<S, false>(pSrc, srcStep, pDst, dstStep, roi.height, roi.width);
    else transposeTiles<S, true>(pSrc, srcStep, pDst, dstStep, roi.height, roi.width);
    return pxlStatusOk;
}

template <class S, class L>
PxlStatus mirror(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi, PxlAxis flip)
{
    const bool diagonal = flip == pxlAxisDiagonal || flip == pxlAxisAntiDiagonal;
    if (!diagonal && pSrc == pDst && srcStep == dstStep) return mirrorInPlace<S, L>(pDst, dstStep, roi, flip);
    if constexpr (std::is_same_v<L, C1>) {
        if (diagonal) return mirrorDiagonal<S>(pSrc, srcStep, pDst, dstStep, roi, flip);
    }
    if (!pSrc || !pDst) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (flip < pxlAxisHorizontal || flip > pxlAxisBoth) return pxlStatusBadAxis;
    const int w = roi.width, h = roi.height;
    for (int y = 0; y < h; ++y) {
        const S* s = rowAt(pSrc, srcStep, y);
        S* d = rowAt(pDst, dstStep, flip == pxlAxisVertical ? y : h - 1 - y);
        if (flip == pxlAxisHorizontal) {
            krnCopyPixels<S, L>(s, d, w);
        } else {
            krnReversePixels<S, L>(s, d, w);
        }
    }
    return pxlStatusOk;
}

// ---- SwapChannels ------------------------------------------------------------------------------

namespace {
// Destination channel c of each pixel gets source channel order[c], for c below Count; the
// destination's other channels stay. All the pixel's samples are read before any is written, so
// source and destination may be one image.
template <class S, int SrcN, int DstN, int Count>
inline void swapPixels(const S* s, S* d, int from, int to, const int* o)
{
    for (int x = from; x < to; ++x) {
        S t[Count];
        for (int c = 0; c < Count; ++c) t[c] = s[SrcN * x + o[c]];
        for (int c = 0; c < Count; ++c) d[DstN * x + c] = t[c];
    }
}

#if defined(__AVX512F__) && defined(__AVX512BW__)
// Three-channel pixels of 2- or 4-byte samples, three 64-byte vectors (32 or 16 pixels) at a
// time: output vector k takes its samples from input vectors k and k+1 with one two-source
// permute (k - 1 and k for the last); the middle one's first and last samples, which lie one
// vector further, are put in with a second, masked permute. Returns the pixels done.
template <class S>
int swapRowC3Wide(const S* s, S* d, int width, const int* o)
{
    constexpr int lanes = 64 / static_cast<int>(sizeof(S)), block = lanes;  // pixels per block of three vectors
    using Index = std::conditional_t<sizeof(S) == 4, int32_t, int16_t>;
    alignas(64) Index idx[3][lanes], far[lanes];
    uint64_t farMask = 0;
    for (int k = 0; k < 3; ++k)
        for (int j = 0; j < lanes; ++j) {
            const int m = k * lanes + j, t = 3 * (m / 3) + o[m % 3];
            const int base = k == 2 ? lanes : 0;  // vectors k, k+1 (k - 1, k for the last)
            idx[k][j] = static_cast<Index>(t - base < 2 * lanes ? t - base : 0);
            if (k == 1) {
                far[j] = static_cast<Index>(t >= 2 * lanes ? t - 2 * lanes : 0);
                if (t >= 2 * lanes) farMask |= uint64_t{1} << j;
            }
        }
    const __m512i i0 = _mm512_load_si512(idx[0]), i1 = _mm512_load_si512(idx[1]), i2 = _mm512_load_si512(idx[2]);
    const __m512i iFar = _mm512_load_si512(far);
    int x = 0;
    for (; x + block <= width; x += block) {
        const S* p = s + 3 * static_cast<std::ptrdiff_t>(x);
        const __m512i a = _mm512_loadu_si512(p), b = _mm512_loadu_si512(p + lanes), c = _mm512_loadu_si512(p + 2 * lanes);
        __m512i r0, r1, r2;
        if constexpr (sizeof(S) == 4) {
            r0 = _mm512_permutex2var_epi32(a, i0, b);
            r1 = _mm512_mask_permutexvar_epi32(_mm512_permutex2var_epi32(a, i1, b), static_cast<__mmask16>(farMask), iFar, c);
            r2 = _mm512_permutex2var_epi32(b, i2, c);
        } else {
            r0 = _mm512_permutex2var_epi16(a, i0, b);
            r1 = _mm512_mask_permutexvar_epi16(_mm512_permutex2var_epi16(a, i1, b), static_cast<__mmask32>(farMask), iFar, c);
            r2 = _mm512_permutex2var_epi16(b, i2, c);
        }
        S* q = d + 3 * static_cast<std::ptrdiff_t>(x);
        _mm512_storeu_si512(q, r0);
        _mm512_storeu_si512(q + lanes, r1);
        _mm512_storeu_si512(q + 2 * lanes, r2);
    }
    return x;
}
#endif

template <class S, int SrcN, int DstN, int Count>
void swapRows(const S* src, int srcStep, S* dst, int dstStep, PxliSize roi, const int* order)
{
    int o[Count];
    for (int c = 0; c < Count; ++c) o[c] = order[c];
#if defined(__AVX512F__) && defined(__AVX512BW__)
    if constexpr (SrcN == 3 && DstN == 3 && Count == 3 && sizeof(S) >= 2) {
        for (int y = 0; y < roi.height; ++y) {
            const S* s = rowAt(src, srcStep, y);
            S* d = rowAt(dst, dstStep, y);
            swapPixels<S, 3, 3, 3>(s, d, swapRowC3Wide<S>(s, d, roi.width, o), roi.width, o);
        }
        return;
    }
#endif
#if defined(__SSSE3__)
    // As many whole pixels as one 16-byte window holds on both sides move with one byte shuffle.
    // The window's tail beyond those pixels is the next pixels' bytes: where the layouts match it
    // is shuffled onto itself, so an in-place call rewrites it unchanged; otherwise the next
    // window overwrites it. Channels the order leaves alone (the alpha of AC4) take the
    // destination's bytes: from the source itself in place, else blended from the destination.
    constexpr int ps = SrcN * static_cast<int>(sizeof(S)), pd = DstN * static_cast<int>(sizeof(S));
    constexpr int g = std::min(16 / ps, 16 / pd);
    const bool inPlace = static_cast<const void*>(src) == static_cast<const void*>(dst);
    alignas(16) uint8_t shuffle[16], keep[16];
    for (int j = 0; j < 16; ++j) {
        const int p = j / pd, c = j % pd / static_cast<int>(sizeof(S)), b = j % static_cast<int>(sizeof(S));
        const bool written = p < g && c < Count, kept = p < g && c >= Count;
        shuffle[j] = written ? static_cast<uint8_t>(p * ps + o[c] * static_cast<int>(sizeof(S)) + b)
                   : ps == pd && (inPlace || !kept) ? static_cast<uint8_t>(j) : 0x80;
        keep[j] = kept && !inPlace ? 0xFF : 0x00;
    }
    const __m128i mask = _mm_load_si128(reinterpret_cast<const __m128i*>(shuffle));
    const __m128i keepMask = _mm_load_si128(reinterpret_cast<const __m128i*>(keep));
    // Groups whose windows lie inside the row on both sides.
    const int lastFit = std::min(roi.width * ps - 16 < 0 ? -1 : (roi.width * ps - 16) / (g * ps),
                                 roi.width * pd - 16 < 0 ? -1 : (roi.width * pd - 16) / (g * pd));
    const int vecPixels = (lastFit + 1) * g;
    auto rows = [&](auto blend) {
        for (int y = 0; y < roi.height; ++y) {
            const S* s = rowAt(src, srcStep, y);
            S* d = rowAt(dst, dstStep, y);
            const auto* sb = reinterpret_cast<const uint8_t*>(s);
            auto* db = reinterpret_cast<uint8_t*>(d);
            int x = 0;
            // Pixels that tile a 16-byte window on both sides: the same shuffle in every 16-byte
            // lane of a wider vector.
            if constexpr (ps == pd && 16 % ps == 0) {
#if defined(__AVX512BW__)
                PXL_AVX512_KERNEL_BEGIN
                const __m512i mask4 = _mm512_broadcast_i32x4(mask), keep4 = _mm512_broadcast_i32x4(keepMask);
                for (; x + 64 / ps <= roi.width; x += 64 / ps) {
                    __m512i out = _mm512_shuffle_epi8(_mm512_loadu_si512(sb + x * ps), mask4);
                    if constexpr (decltype(blend)::value) out = _mm512_or_si512(out, _mm512_and_si512(_mm512_loadu_si512(db + x * pd), keep4));
                    _mm512_storeu_si512(db + x * pd, out);
                }
                PXL_AVX512_KERNEL_END
#elif defined(__AVX2__)
                const __m256i mask2 = _mm256_broadcastsi128_si256(mask), keep2 = _mm256_broadcastsi128_si256(keepMask);
                for (; x + 32 / ps <= roi.width; x += 32 / ps) {
                    __m256i out = _mm256_shuffle_epi8(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(sb + x * ps)), mask2);
                    if constexpr (decltype(blend)::value)
                        out = _mm256_or_si256(out, _mm256_and_si256(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(db + x * pd)), keep2));
                    _mm256_storeu_si256(reinterpret_cast<__m256i*>(db + x * pd), out);
                }
#endif
            }
            for (; x < vecPixels; x += g) {
                __m128i out = _mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(sb + x * ps)), mask);
                if constexpr (decltype(blend)::value)
                    out = _mm_or_si128(out, _mm_and_si128(_mm_loadu_si128(reinterpret_cast<const __m128i*>(db + x * pd)), keepMask));
                _mm_storeu_si128(reinterpret_cast<__m128i*>(db + x * pd), out);
            }
            swapPixels<S, SrcN, DstN, Count>(s, d, x, roi.width, o);
        }
    };
    // Only AC4 keeps channels, and its windows hold whole pixels, so a blend never reads bytes
    // that the previous window has just stored.
    if (Count < DstN && !inPlace) rows(std::true_type{});
    else rows(std::false_type{});
#else
    for (int y = 0; y < roi.height; ++y)
        swapPixels<S, SrcN, DstN, Count>(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), 0, roi.width, o);
#endif
}

template <int Count, int MaxIndex> bool badOrder(const int* order)
{
    for (int c = 0; c < Count; ++c)
        if (static_cast<unsigned>(order[c]) > static_cast<unsigned>(MaxIndex)) return true;
    return false;
}
}  // namespace

// Most forms check the images, the steps (only a zero step is refused), the size, and then the
// order array; 8u C3R and C4C3R take the array with the pointers and the size before the steps.
template <class S, int SrcN, int DstN, int Count, int MaxIndex, bool ArrayFirst>
PxlStatus swapChannels(const S* pSrc, int srcStep, S* pDst, int dstStep, PxliSize roi, const int* order)
{
    if constexpr (ArrayFirst) {
        if (!pSrc || !pDst || !order) return pxlStatusNullPointer;
        if (badSize(roi)) return pxlStatusBadSize;
        if (srcStep == 0 || dstStep == 0) return pxlStatusBadStep;
    } else {
        if (!pSrc || !pDst) return pxlStatusNullPointer;
        if (srcStep == 0 || dstStep == 0) return pxlStatusBadStep;
        if (badSize(roi)) return pxlStatusBadSize;
        if (!order) return pxlStatusNullPointer;
    }
    if (badOrder<Count, MaxIndex>(order)) return pxlStatusBadChannelOrder;
    swapRows<S, SrcN, DstN, Count>(pSrc, srcStep, pDst, dstStep, roi, order);
    return pxlStatusOk;
}

template <class S, int N>
PxlStatus swapChannelsInPlace(S* p, int step, PxliSize roi, const int* order)
{
    if (!p) return pxlStatusNullPointer;
    if (step == 0) return pxlStatusBadStep;
    if (badSize(roi)) return pxlStatusBadSize;
    if (!order) return pxlStatusNullPointer;
    if (badOrder<N, N - 1>(order)) return pxlStatusBadChannelOrder;
    swapRows<S, N, N, N>(p, step, p, step, roi, order);
    return pxlStatusOk;
}

// Three channels into four: an index below 3 reads that source channel, 3 writes `val`, and an
// index above 3 leaves the destination channel as it was. Each destination channel is one pass
// over the row with its source fixed, so no test remains inside the loops.
template <class T>
PxlStatus swapChannelsC3C4(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliSize roi, const int* order, T val)
{
    if (!pSrc || !pDst || !order) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep == 0 || dstStep == 0) return pxlStatusBadStep;
    for (int c = 0; c < 4; ++c)
        if (order[c] < 0) return pxlStatusBadChannelOrder;
    const Bits<T> v = toBits(val);
    int o[4];
    for (int c = 0; c < 4; ++c) o[c] = order[c];
    for (int y = 0; y < roi.height; ++y) {
        const Bits<T>* s = rowAt(asBits(pSrc), srcStep, y);
        Bits<T>* d = rowAt(asBits(pDst), dstStep, y);
        for (int c = 0; c < 4; ++c) {
            if (o[c] < 3) {
                const Bits<T>* sc = s + o[c];
                for (int x = 0; x < roi.width; ++x) d[4 * x + c] = sc[3 * x];
            } else if (o[c] == 3) {
                for (int x = 0; x < roi.width; ++x) d[4 * x + c] = v;
            }
        }
    }
    return pxlStatusOk;
}

}  // namespace pxl::exch

#include "inst/exchange/rearrange.inc"
