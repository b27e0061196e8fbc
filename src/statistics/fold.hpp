// Per-channel folds of a row, shared by the reductions: sums, norms, extrema.
#pragma once

#include "frame/image.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace pxl::stat {

// Folds term(i) of the n samples of a row, interleaved M to a pixel, into chan[i % M] with op.
// The samples go round K = M * W lanes, so that the inner loop is a block of fixed length that
// the compiler turns into vector code, and the lanes are folded into the channels at the end.
// Only for folds whose result does not depend on the order: integer sums and extrema, float
// extrema of values that are never NaN.
template <int M, int W, class A, class Term, class Op>
inline void foldRow(int n, A init, A* chan, Term term, Op op)
{
    constexpr int K = M * W;
    A acc[K];
    for (int k = 0; k < K; ++k) acc[k] = init;
    int i = 0;
    for (; i + K <= n; i += K)
        for (int k = 0; k < K; ++k) acc[k] = op(acc[k], term(i + k));
    for (int k = 0; k < K; ++k) chan[k % M] = op(chan[k % M], acc[k]);
    for (; i < n; ++i) chan[i % M] = op(chan[i % M], term(i));
}

struct AddOp {
    template <class A> A operator()(A a, A v) const { return a + v; }
};
// The larger; the running value stays where the new one is not strictly larger (or is NaN).
struct MaxOp {
    template <class A> A operator()(A a, A v) const { return v > a ? v : a; }
};
struct MinOp {
    template <class A> A operator()(A a, A v) const { return v < a ? v : a; }
};

// Lanes per channel for samples of T: about 512 bits of 32-bit accumulators.
template <class T> constexpr int kLanes = sizeof(T) == 1 ? 32 : 16;

// The samples themselves folded into their channels: sums, minima or maxima. Written with the
// compiler's vector types, 64 bytes of accumulators per channel, which every level splits into
// the registers it has; the accumulators live in registers, where an array of scalar lanes of
// floats would not be vectorised at all. The same conditions as foldRow's hold for the order.
enum class Fold { Add, Min, Max };

#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpsabi"
#endif
// The rows (n samples each) share the lanes, which are folded into the channels once.
template <Fold F, int M, class T, class A>
inline void foldSamples(const T* p, int step, int rows, int n, A init, A* chan)
{
    constexpr int W = 64 / static_cast<int>(sizeof(A));
    typedef A VA __attribute__((vector_size(W * sizeof(A))));
    typedef T VT __attribute__((vector_size(W * sizeof(T))));
    using Op = std::conditional_t<F == Fold::Add, AddOp, std::conditional_t<F == Fold::Min, MinOp, MaxOp>>;
    VA acc[M];
    for (int j = 0; j < M; ++j) acc[j] = VA{} + init;
    for (int y = 0; y < rows; ++y) {
        const T* r = rowAt(p, step, y);
        int i = 0;
        for (; i + M * W <= n; i += M * W)
            for (int j = 0; j < M; ++j) {
                VT raw;
                std::memcpy(&raw, r + i + j * W, sizeof raw);
                const VA v = __builtin_convertvector(raw, VA);
                if constexpr (F == Fold::Add) acc[j] += v;
                else if constexpr (F == Fold::Min) acc[j] = v < acc[j] ? v : acc[j];
                else acc[j] = v > acc[j] ? v : acc[j];
            }
        for (; i < n; ++i) chan[i % M] = Op{}(chan[i % M], static_cast<A>(r[i]));
    }
    for (int j = 0; j < M; ++j)
        for (int k = 0; k < W; ++k) chan[(j * W + k) % M] = Op{}(chan[(j * W + k) % M], static_cast<A>(acc[j][k]));
}
// The bytes of a region's rows added into their channels. Each 64-byte block is read as
// 16-bit words whose low and high bytes go to two sets of 16-bit sums, which cannot overflow
// within 256 blocks; those are then widened to 32-bit sums by the same split. Plain masks,
// shifts and additions, which every level has, where widening conversions are not always well
// compiled.
template <int M>
inline void sumBytes(const uint8_t* p, int step, int rows, int n, uint64_t* chan)
{
    typedef uint16_t V16 __attribute__((vector_size(64)));
    typedef uint32_t V32 __attribute__((vector_size(64)));
    constexpr int B = 64, Block = M * B;
    constexpr bool little = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__;
    // The byte offset within a 32-bit lane of each set: words low then high, bytes low then
    // high, in memory order on a little-endian processor.
    constexpr int offset[4] = {little ? 0 : 3, little ? 2 : 1, little ? 1 : 2, little ? 3 : 0};
    // acc[j][o]: 32-bit lane q holds the bytes at j * B + 4 * q + offset(o) of every block. The
    // rows share the lanes, which are folded into the channels once, at the end, or before their
    // 32 bits could overflow.
    V32 acc[M][4] = {};
    V16 lo[M] = {}, hi[M] = {};
    int pending = 0, widened = 0;
    const auto reduce = [&] {
        if constexpr (B % M == 0) {  // one channel per set: sum the lanes
            for (int o = 0; o < 4; ++o) {
                V32 s = acc[0][o];
                for (int j = 1; j < M; ++j) s += acc[j][o];
                uint64_t t = 0;
                for (int q = 0; q < B / 4; ++q) t += s[q];
                chan[offset[o] % M] += t;
            }
        } else {
            for (int j = 0; j < M; ++j)
                for (int o = 0; o < 4; ++o)
                    for (int q = 0; q < B / 4; ++q) chan[(j * B + 4 * q + offset[o]) % M] += acc[j][o][q];
        }
        for (int j = 0; j < M; ++j)
            for (int o = 0; o < 4; ++o) acc[j][o] = V32{};
    };
    const auto widen = [&] {
        for (int j = 0; j < M; ++j) {
            V32 l, h;
            std::memcpy(&l, &lo[j], B);
            std::memcpy(&h, &hi[j], B);
            acc[j][0] += l & 0xFFFF;
            acc[j][1] += l >> 16;
            acc[j][2] += h & 0xFFFF;
            acc[j][3] += h >> 16;
            lo[j] = hi[j] = V16{};
        }
        pending = 0;
        if (++widened == 65536) {  // each widening adds below 2^16 to a lane
            reduce();
            widened = 0;
        }
    };
    for (int y = 0; y < rows; ++y) {
        const uint8_t* r = rowAt(p, step, y);
        int i = 0;
        for (; i + Block <= n; i += Block) {
            for (int j = 0; j < M; ++j) {
                V16 raw;
                std::memcpy(&raw, r + i + j * B, B);
                lo[j] += raw & 0xFF;
                hi[j] += raw >> 8;
            }
            if (++pending == 256) widen();  // 256 bytes of 255 still fit 16 bits
        }
        for (; i < n; ++i) chan[i % M] += r[i];
    }
    widen();
    reduce();
}
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic pop
#endif

}  // namespace pxl::stat
