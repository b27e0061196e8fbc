// The compare-exchange networks of the median filters, and the small medians built from them.
//
// A network is a fixed list of operations on a few values: an exchange leaves the smaller of two
// entries in the first and the larger in the second; a half exchange keeps only one of the two.
// Applied to whole rows at once, sample by sample, the compiler turns each into vector minimum and
// maximum instructions. The tables come from tools/median_networks.py: an odd-even merge sort of
// the next power of two, the missing inputs taken as larger than every sample, and every operation
// that cannot reach the wanted entry dropped. The 5x5 one first sorts the rows of the five sorted
// columns, which leaves thirteen candidates for the middle of 25, and takes their middle.
//
// A pair that is unordered (a NaN) is never exchanged, so the networks of float data keep one
// fixed outcome for NaN on every processor.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>

namespace pxl::filt {

enum CompareKind : uint8_t { Ex, Lo, Hi };
struct CompareOp {
    CompareKind kind;
    uint8_t a, b;
};

// The smaller and the larger of a pair as an exchange leaves them: b only when b < a.
template <class T> inline T lowerOf(T a, T b) { return b < a ? b : a; }
template <class T> inline T upperOf(T a, T b) { return b < a ? a : b; }

template <CompareOp Op, class T> [[gnu::always_inline]] inline void applyOp(T* v)
{
    if constexpr (Op.kind == Ex) {
        const T lo = lowerOf(v[Op.a], v[Op.b]), hi = upperOf(v[Op.a], v[Op.b]);
        v[Op.a] = lo;
        v[Op.b] = hi;
    } else if constexpr (Op.kind == Lo) {
        v[Op.a] = lowerOf(v[Op.a], v[Op.b]);
    } else {
        v[Op.b] = upperOf(v[Op.a], v[Op.b]);
    }
}

// Every operation of Net on v, unrolled into the caller's loop, so that v stays in registers.
template <const auto& Net, class T, std::size_t... I> [[gnu::always_inline]] inline void applyEach(T* v, std::index_sequence<I...>)
{
    (applyOp<Net[I]>(v), ...);
}
template <const auto& Net, class T> [[gnu::always_inline]] inline void applyNetwork(T* v)
{
    applyEach<Net>(v, std::make_index_sequence<std::size(Net)>{});
}

// The median of five, left in entry 2.
inline constexpr CompareOp kMedianOf5[] = {
    {Ex, 0, 1}, {Ex, 2, 3}, {Ex, 0, 2}, {Lo, 1, 3}, {Ex, 1, 2}, {Hi, 0, 4}, {Lo, 2, 4}, {Hi, 1, 2}
};
// Five sorted in place, smallest first.
inline constexpr CompareOp kSortOf5[] = {
    {Ex, 0, 1}, {Ex, 2, 3}, {Ex, 0, 2}, {Ex, 1, 3}, {Ex, 1, 2}, {Ex, 0, 4}, {Ex, 2, 4}, {Ex, 1, 2}, {Ex, 3, 4}
};
// Three sorted in place, smallest first.
inline constexpr CompareOp kSortOf3[] = {
    {Ex, 0, 1}, {Ex, 0, 2}, {Ex, 1, 2}
};
// The median of 25 whose five columns of five (entries 5c to 5c + 4) are each sorted, left in entry 12.
inline constexpr CompareOp kMedianOf25SortedColumns[] = {
    {Ex, 0, 5}, {Ex, 10, 15}, {Ex, 0, 10}, {Ex, 5, 15}, {Hi, 5, 10}, {Hi, 0, 20}, {Hi, 10, 20}, {Ex, 15, 20},
    {Ex, 1, 6}, {Ex, 11, 16}, {Ex, 1, 11}, {Ex, 6, 16}, {Ex, 6, 11}, {Hi, 1, 21}, {Ex, 11, 21}, {Hi, 6, 11},
    {Ex, 16, 21}, {Ex, 2, 7}, {Ex, 12, 17}, {Ex, 2, 12}, {Ex, 7, 17}, {Ex, 7, 12}, {Hi, 2, 22}, {Ex, 12, 22},
    {Ex, 7, 12}, {Lo, 17, 22}, {Ex, 3, 8}, {Ex, 13, 18}, {Ex, 3, 13}, {Lo, 8, 18}, {Ex, 8, 13}, {Ex, 3, 23},
    {Lo, 13, 23}, {Ex, 8, 13}, {Ex, 4, 9}, {Ex, 14, 19}, {Ex, 4, 14}, {Lo, 9, 19}, {Ex, 9, 14}, {Ex, 4, 24},
    {Lo, 14, 24}, {Lo, 9, 14}, {Ex, 15, 20}, {Ex, 11, 16}, {Ex, 15, 11}, {Ex, 20, 16}, {Ex, 20, 11}, {Ex, 21, 7},
    {Ex, 12, 17}, {Ex, 21, 12}, {Ex, 7, 17}, {Ex, 7, 12}, {Ex, 15, 21}, {Ex, 11, 12}, {Ex, 11, 21}, {Ex, 20, 7},
    {Lo, 16, 17}, {Ex, 16, 7}, {Ex, 20, 11}, {Ex, 16, 21}, {Ex, 7, 12}, {Ex, 3, 8}, {Ex, 13, 4}, {Ex, 3, 13},
    {Ex, 8, 4}, {Ex, 8, 13}, {Ex, 3, 9}, {Ex, 13, 9}, {Ex, 8, 13}, {Ex, 4, 9}, {Hi, 15, 3}, {Lo, 21, 9}, {Hi, 21, 3},
    {Hi, 11, 13}, {Lo, 12, 13}, {Lo, 12, 3}, {Hi, 20, 8}, {Lo, 7, 8}, {Lo, 16, 4}, {Hi, 16, 7}, {Hi, 7, 12}
};

// Eight sorted in place, smallest first.
inline constexpr CompareOp kSortOf8[] = {
    {Ex, 0, 1}, {Ex, 2, 3}, {Ex, 0, 2}, {Ex, 1, 3}, {Ex, 1, 2}, {Ex, 4, 5}, {Ex, 6, 7}, {Ex, 4, 6}, {Ex, 5, 7},
    {Ex, 5, 6}, {Ex, 0, 4}, {Ex, 2, 6}, {Ex, 2, 4}, {Ex, 1, 5}, {Ex, 3, 7}, {Ex, 3, 5}, {Ex, 1, 2}, {Ex, 3, 4},
    {Ex, 5, 6}
};

// The median of three in window order: the smaller and larger of the first two, then the third
// held between them.
template <class T> inline T medianOf3(T a, T b, T c)
{
    return lowerOf(upperOf(lowerOf(a, b), c), upperOf(a, b));
}

}  // namespace pxl::filt
