// Picking the build of the kernels for the processor at hand, at every call.
//
// Where the kernels are compiled for several x86-64 levels, each build has its own table of
// implementations, and each exported entry goes through Pick: it asks which level the processor
// offers and calls that build's implementation with the same arguments (a tail call). The
// processor's features were read by the language runtime when the program started; the pick reads
// them, writes nothing, and costs a few instructions. Every level computes the same bits.
#pragma once

#include "table.hpp"

// One table per level, in level order; the build names them (PXL_LEVEL_TABLES).
extern "C" [[gnu::visibility("hidden")]] const pxl::EntryTable PXL_LEVEL_TABLES;

namespace pxl {

// 0: the first x86-64 (SSE2); 1: x86-64-v2 (SSSE3 to SSE4.2, POPCNT); 2: x86-64-v3 (AVX2, FMA,
// BMI1/2); 3: x86-64-v4 (AVX-512 F, BW, DQ, VL). The runtime reports a feature only when the
// operating system also saves its registers.
inline int processorLevel()
{
    if (!(__builtin_cpu_supports("ssse3") && __builtin_cpu_supports("sse4.2") && __builtin_cpu_supports("popcnt")))
        return 0;
    if (!(__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") && __builtin_cpu_supports("bmi") &&
          __builtin_cpu_supports("bmi2")))
        return 1;
    if (!(__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
          __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl")))
        return 2;
    return 3;
}

inline constexpr const EntryTable* kLevelTables[] = {PXL_LEVEL_TABLE_ADDRESSES};
inline constexpr int kTopLevel = static_cast<int>(sizeof(kLevelTables) / sizeof(kLevelTables[0])) - 1;

#ifdef PXL_TEST_LEVELS
// The test build of the library may be held to a lower level, to run every level's kernels.
inline int heldLevel = kTopLevel;
extern "C" [[gnu::visibility("default")]] int pxlTestHoldLevel(int level)
{
    if (level < 0 || level > kTopLevel || level > processorLevel()) return 0;
    heldLevel = level;
    return 1;
}
inline int currentLevel() { return processorLevel() < heldLevel ? processorLevel() : heldLevel; }
#else
inline int currentLevel()
{
    const int level = processorLevel();
    return level < kTopLevel ? level : kTopLevel;
}
#endif

template <auto M> struct Pick;
template <class R, class... A, R (*EntryTable::*M)(A...)> struct Pick<M> {
    static R call(A... args) { return (kLevelTables[currentLevel()]->*M)(args...); }
};

}  // namespace pxl
