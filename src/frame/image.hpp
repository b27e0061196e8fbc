// What every family needs to walk a region: row addresses, the bits of a sample, layouts.
#pragma once

#include "pxlipx.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace pxl {

// Row y of an image: base plus y times the step in bytes. The only place that does step
// arithmetic, so zero and negative steps work wherever a family does not check them.
template <class T>
inline T* rowAt(T* base, int step, int y)
{
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(base) + static_cast<std::ptrdiff_t>(y) * step);
}

// The unsigned type of a sample's width: families that only move samples work on their bits,
// so that 16s and 16u, or 32s and 32f, share one body.
template <std::size_t Bytes> struct BitsOfSize;
template <> struct BitsOfSize<1> { using type = uint8_t; };
template <> struct BitsOfSize<2> { using type = uint16_t; };
template <> struct BitsOfSize<4> { using type = uint32_t; };
template <> struct BitsOfSize<8> { using type = uint64_t; };
template <class T> using Bits = typename BitsOfSize<sizeof(T)>::type;

template <class T> inline Bits<T> toBits(T v) { return std::bit_cast<Bits<T>>(v); }
template <class T> inline Bits<T>* asBits(T* p) { return reinterpret_cast<Bits<T>*>(p); }
template <class T> inline const Bits<T>* asBits(const T* p) { return reinterpret_cast<const Bits<T>*>(p); }

// Layouts: samples per pixel in memory, and how many of them a family processes.
template <int Mem, int Proc> struct Layout {
    static constexpr int mem = Mem;
    static constexpr int proc = Proc;
    static constexpr bool hasAlpha = Mem != Proc;
};
using C1 = Layout<1, 1>;
using C3 = Layout<3, 3>;
using C4 = Layout<4, 4>;
using AC4 = Layout<4, 3>;

// A record in a caller's buffer starts at the buffer's first 64-byte boundary (its size queries
// count the 64 bytes this may take).
template <class R, class P> R* alignedRecord(P* p)
{
    return reinterpret_cast<R*>((reinterpret_cast<uintptr_t>(p) + 63) & ~uintptr_t{63});
}

inline bool badSize(PxliSize roi) { return roi.width < 1 || roi.height < 1; }

// The run-time sample types that the families taking a type code accept, and their widths.
inline bool knownDataType(PxlDataType t) { return t == pxlDt8u || t == pxlDt16u || t == pxlDt16s || t == pxlDt32f; }
inline int dataTypeBytes(PxlDataType t) { return t == pxlDt8u ? 1 : t == pxlDt32f ? 4 : 2; }

// A region whose rows follow each other with no gap in every image it touches is one long row.
// `rowBytes` is each image's row length; steps that match it let the caller walk a single row.
inline PxliSize mergedRows(PxliSize roi, bool contiguous)
{
    if (contiguous && static_cast<int64_t>(roi.width) * roi.height <= INT32_MAX) return {roi.width * roi.height, 1};
    return roi;
}

}  // namespace pxl
