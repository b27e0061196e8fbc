#include "pxlcore.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {
constexpr std::size_t kBlockAlignment = 64;

// A block from malloc with room for the alignment and for the address malloc gave, which is kept
// just below the aligned start, where pxlFree finds it. (An aligned allocation from the C library
// costs several times a plain one.)
void* alignedBlock(int32_t length)
{
    if (length < 1) return nullptr;
    constexpr std::size_t extra = kBlockAlignment + sizeof(void*);
    auto* raw = static_cast<char*>(std::malloc(static_cast<std::size_t>(length) + extra));
    if (!raw) return nullptr;
    const auto start = (reinterpret_cast<std::uintptr_t>(raw) + sizeof(void*) + kBlockAlignment - 1) & ~(kBlockAlignment - 1);
    char* p = raw + (start - reinterpret_cast<std::uintptr_t>(raw));
    std::memcpy(p - sizeof(void*), &raw, sizeof raw);
    return p;
}

void freeBlock(void* p)
{
    if (!p) return;
    void* raw;
    std::memcpy(&raw, static_cast<char*>(p) - sizeof(void*), sizeof raw);
    std::free(raw);
}
}  // namespace

extern "C" {
__attribute__((visibility("default"))) void* pxlMalloc(int32_t length) { return alignedBlock(length); }
__attribute__((visibility("default"))) void* pxlMalloc_L(int32_t length) { return alignedBlock(length); }
__attribute__((visibility("default"))) void pxlFree(void* ptr) { freeBlock(ptr); }
}
