#include "pxlcore.h"

#include <cstdlib>

namespace {
constexpr std::size_t kBlockAlignment = 64;

void* alignedBlock(int32_t length)
{
    if (length < 1) return nullptr;
    void* p = nullptr;
    if (posix_memalign(&p, kBlockAlignment, static_cast<std::size_t>(length)) != 0) return nullptr;
    return p;
}
}  // namespace

extern "C" {
__attribute__((visibility("default"))) void* pxlMalloc(int32_t length) { return alignedBlock(length); }
__attribute__((visibility("default"))) void* pxlMalloc_L(int32_t length) { return alignedBlock(length); }
__attribute__((visibility("default"))) void pxlFree(void* ptr) { std::free(ptr); }
}
