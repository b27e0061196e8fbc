// Image memory: a step rounded up to 64 bytes, a total checked for overflow, then the core
// allocator. Each failure before the step is computed writes step 0; later failures leave the
// computed step in place, so a caller can see how far the request got.
#include "frame/bind.hpp"
#include "frame/frame.hpp"
#include "pxlcore.h"

#include <cstdint>

namespace pxl::frame {

namespace {
constexpr int64_t kRowAlign = 64;
constexpr int64_t kPlainLimit = 0x7FFFFFFF;

constexpr int64_t roundUpToRow(int64_t bytes) { return (bytes + (kRowAlign - 1)) & ~(kRowAlign - 1); }
}  // namespace

template <int B>
void* allocImage(int32_t width, int32_t height, int32_t* pStep)
{
    if (!pStep) return nullptr;
    if (width < 1 || height < 1) { *pStep = 0; return nullptr; }
    const int64_t rowBytes = int64_t{width} * B;
    if (rowBytes > kPlainLimit) { *pStep = 0; return nullptr; }
    const int64_t rounded = roundUpToRow(rowBytes);
    if (rounded < rowBytes) { *pStep = 0; return nullptr; }
    // A row of 0x7FFFFFC1 bytes or more rounds to 0x80000000, which is negative as a 32-bit step;
    // the total below then is negative, so it fails the unsigned comparison.
    const auto step = static_cast<int32_t>(static_cast<uint32_t>(rounded));
    *pStep = step;
    const int64_t total = int64_t{height} * step;
    if (static_cast<uint64_t>(total) > static_cast<uint64_t>(kPlainLimit)) return nullptr;
    return pxlMalloc(static_cast<int32_t>(total));
}

// The wide form checks against the 64-bit range only. Its step and byte count are 32-bit on every
// build, so a row or total beyond 32 bits keeps only its low 32 bits: the block may then be
// smaller than width and height imply, exactly as the 32-bit wide interface defines it.
template <int B>
void* allocImageWide(int32_t width, int32_t height, int32_t* pStep)
{
    if (!pStep) return nullptr;
    if (width < 1 || height < 1) { *pStep = 0; return nullptr; }
    const int64_t rowBytes = int64_t{width} * B;  // below 2^36: no 64-bit overflow
    const int64_t rounded = roundUpToRow(rowBytes);
    if (rounded < rowBytes) { *pStep = 0; return nullptr; }
    *pStep = static_cast<int32_t>(static_cast<uint32_t>(rounded));
    int64_t total = 0;
    if (__builtin_mul_overflow(rounded, int64_t{height}, &total)) return nullptr;
    return pxlMalloc_L(static_cast<int32_t>(static_cast<uint32_t>(total)));
}

void freeImage(void* ptr) { pxlFree(ptr); }

}  // namespace pxl::frame

#include "inst/frame/memory.inc"
