// Image memory. This program stands in for the core allocator (the library's calls to pxlMalloc,
// pxlMalloc_L and pxlFree resolve to the definitions below), so every test sees exactly what was
// asked of the allocator, and can make it fail. The stand-ins pass ordinary requests on to the
// real core library.
#include "pxltest.hpp"
#include "pxlcore.h"

#include <dlfcn.h>

#include <climits>

namespace {
struct AllocatorLog {
    int plainCalls = 0, wideCalls = 0, freeCalls = 0;
    int64_t lastLength = -1;
    void* lastFreed = nullptr;
    bool outOfMemory = false;  // answer null, as an allocator with no memory would
};
AllocatorLog g_log;

// A request this large is recorded and answered with a marker, never allocated.
constexpr int32_t kHuge = 1 << 28;
alignas(64) char g_marker[64];

template <class F> F realCore(const char* name) { return reinterpret_cast<F>(dlsym(RTLD_NEXT, name)); }

void* standIn(int32_t length, const char* realName)
{
    g_log.lastLength = length;
    if (g_log.outOfMemory) return nullptr;
    if (length >= kHuge) return g_marker;
    return realCore<void* (*)(int32_t)>(realName)(length);
}
}  // namespace

extern "C" {
void* pxlMalloc(int32_t length) { ++g_log.plainCalls; return standIn(length, "pxlMalloc"); }
void* pxlMalloc_L(int32_t length) { ++g_log.wideCalls; return standIn(length, "pxlMalloc_L"); }
void pxlFree(void* p)
{
    ++g_log.freeCalls;
    g_log.lastFreed = p;
    realCore<void (*)(void*)>("pxlFree")(p);
}
}

using Alloc = void* (*)(int32_t, int32_t, int32_t*);

struct Form {
    const char* name;
    Alloc fn;
    int bytesPerPixel;
    bool wide;
};

#define FORM(T, L, B)                                                                                 \
    Form{"pxliMalloc_" #T "_" #L, reinterpret_cast<Alloc>(&pxliMalloc_##T##_##L), B, false},         \
        Form{"pxliMalloc_" #T "_" #L "_L", reinterpret_cast<Alloc>(&pxliMalloc_##T##_##L##_L), B, true}
#define FORMS(T, S) FORM(T, C1, S), FORM(T, C2, 2 * S), FORM(T, C3, 3 * S), FORM(T, C4, 4 * S), FORM(T, AC4, 4 * S)

const std::vector<Form> kForms = {FORMS(8u, 1),  FORMS(16u, 2), FORMS(16s, 2), FORMS(32s, 4),
                                  FORMS(32f, 4), FORMS(32sc, 8), FORMS(32fc, 8)};

class Memory : public ::testing::Test {
protected:
    void SetUp() override { g_log = {}; }
};

TEST_F(Memory, EveryFormGivesAlignedRowsOfTheRoundedStep)
{
    ASSERT_EQ(kForms.size(), 70u);
    for (const Form& f : kForms) {
        for (int w : {1, 2, 7, 21, 22, 63, 64, 65, 333}) {
            for (int h : {1, 2, 5}) {
                SCOPED_TRACE(std::string(f.name) + " " + std::to_string(w) + "x" + std::to_string(h));
                g_log = {};
                int32_t step = -1;
                auto* p = static_cast<uint8_t*>(f.fn(w, h, &step));
                ASSERT_NE(p, nullptr);
                const int64_t rowBytes = int64_t{w} * f.bytesPerPixel;
                EXPECT_EQ(step, (rowBytes + 63) / 64 * 64);
                EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u);
                EXPECT_EQ(f.wide ? g_log.wideCalls : g_log.plainCalls, 1);
                EXPECT_EQ(f.wide ? g_log.plainCalls : g_log.wideCalls, 0);
                EXPECT_EQ(g_log.lastLength, int64_t{h} * step);
                // Every row, the last one's tail included, is inside the block (the sanitizer build
                // faults otherwise).
                std::memset(p, 0x5A, static_cast<std::size_t>(h) * static_cast<std::size_t>(step));
                pxliFree(p);
                EXPECT_EQ(g_log.freeCalls, 1);
                EXPECT_EQ(g_log.lastFreed, p);
            }
        }
    }
}

TEST_F(Memory, StepsOfTheWorkedExamples)
{
    struct Case { Alloc fn; int w; int32_t step; };
    const Case cases[] = {
        {reinterpret_cast<Alloc>(&pxliMalloc_8u_C1), 1, 64},    {reinterpret_cast<Alloc>(&pxliMalloc_8u_C1), 64, 64},
        {reinterpret_cast<Alloc>(&pxliMalloc_8u_C1), 65, 128},  {reinterpret_cast<Alloc>(&pxliMalloc_32fc_C4), 3, 128},
        {reinterpret_cast<Alloc>(&pxliMalloc_8u_C3), 21, 64},   {reinterpret_cast<Alloc>(&pxliMalloc_8u_C3), 22, 128},
        {reinterpret_cast<Alloc>(&pxliMalloc_16u_AC4), 8, 64},  {reinterpret_cast<Alloc>(&pxliMalloc_16u_AC4), 9, 128},
    };
    for (const Case& c : cases) {
        int32_t step = 0;
        void* p = c.fn(c.w, 1, &step);
        ASSERT_NE(p, nullptr);
        EXPECT_EQ(step, c.step) << "width " << c.w;
        pxliFree(p);
    }
}

// Each row of the failure table, for the plain and the wide forms.
TEST_F(Memory, FailuresBeforeTheStepWriteZeroAndNeverAskTheAllocator)
{
    for (const Form& f : kForms) {
        SCOPED_TRACE(f.name);
        g_log = {};
        EXPECT_EQ(f.fn(10, 10, nullptr), nullptr);  // nothing to report through
        for (auto [w, h] : {std::pair{0, 1}, {1, 0}, {-1, 5}, {5, -1}, {INT_MIN, 1}, {1, INT_MIN}, {0, 0}}) {
            int32_t step = 12345;
            EXPECT_EQ(f.fn(w, h, &step), nullptr);
            EXPECT_EQ(step, 0) << w << "x" << h;
        }
        EXPECT_EQ(g_log.plainCalls + g_log.wideCalls, 0);
    }
}

TEST_F(Memory, PlainFormsRefuseARowOrImageOverTwoGigabytes)
{
    int32_t step = 99;
    // A row of 0x7FFFFFFF bytes rounds up to 0x80000000: step written, total out of range.
    for (int h : {1, 2}) {
        EXPECT_EQ(pxliMalloc_8u_C1(INT_MAX, h, &step), nullptr);
        EXPECT_EQ(static_cast<uint32_t>(step), 0x80000000u);
    }
    // A row above 0x7FFFFFFF bytes: step 0.
    step = 99;
    EXPECT_EQ(pxliMalloc_8u_C4(0x20000000, 1, &step), nullptr);
    EXPECT_EQ(step, 0);
    step = 99;
    EXPECT_EQ(pxliMalloc_32fc_C4(0x04000000, 1, &step), nullptr);  // 0x80000000 bytes exactly
    EXPECT_EQ(step, 0);
    EXPECT_EQ(g_log.plainCalls, 0);
    // The total: 1024 x 2097152 is 0x80000000 and refused with the step in place; one row less
    // goes to the allocator, and what it answers is returned.
    EXPECT_EQ(pxliMalloc_8u_C1(1024, 2097152, &step), nullptr);
    EXPECT_EQ(step, 1024);
    EXPECT_EQ(g_log.plainCalls, 0);
    EXPECT_EQ(pxliMalloc_8u_C1(1024, 2097151, &step), static_cast<void*>(g_marker));
    EXPECT_EQ(step, 1024);
    EXPECT_EQ(g_log.plainCalls, 1);
    EXPECT_EQ(g_log.lastLength, 0x7FFFFC00);
}

TEST_F(Memory, WideFormsKeepTheLowThirtyTwoBits)
{
    int32_t step = 99;
    // No 2 GiB limit: the total 0x80000000 goes to the allocator as its low 32 bits, a count the
    // core refuses.
    EXPECT_EQ(pxliMalloc_8u_C1_L(1024, 2097152, &step), nullptr);
    EXPECT_EQ(step, 1024);
    EXPECT_EQ(g_log.wideCalls, 1);
    EXPECT_EQ(g_log.lastLength, INT32_MIN);
    // A row of 0x100000040 bytes keeps a step of 64, and a block of 64 bytes is what is asked for.
    void* p = pxliMalloc_32fc_C4_L(0x08000001, 1, &step);
    EXPECT_EQ(step, 64);
    EXPECT_EQ(g_log.lastLength, 64);
    ASSERT_NE(p, nullptr);
    std::memset(p, 0, 64);
    pxliFree(p);
    EXPECT_EQ(g_log.plainCalls, 0);
}

TEST_F(Memory, NoMemoryGivesNullWithTheStepInPlace)
{
    g_log.outOfMemory = true;
    for (const Form& f : kForms) {
        int32_t step = 0;
        EXPECT_EQ(f.fn(100, 100, &step), nullptr) << f.name;
        EXPECT_EQ(step, (100 * f.bytesPerPixel + 63) / 64 * 64) << f.name;
    }
}

TEST_F(Memory, FreeForwardsEvenNull)
{
    pxliFree(nullptr);
    EXPECT_EQ(g_log.freeCalls, 1);
    EXPECT_EQ(g_log.lastFreed, nullptr);
}

TEST(Core, BlocksAreAlignedAndNonPositiveLengthsRefused)
{
    auto real = realCore<void* (*)(int32_t)>("pxlMalloc");
    auto realWide = realCore<void* (*)(int32_t)>("pxlMalloc_L");
    auto realFree = realCore<void (*)(void*)>("pxlFree");
    ASSERT_TRUE(real && realWide && realFree);
    for (auto fn : {real, realWide}) {
        EXPECT_EQ(fn(0), nullptr);
        EXPECT_EQ(fn(-1), nullptr);
        EXPECT_EQ(fn(INT32_MIN), nullptr);
        for (int32_t n : {1, 63, 64, 1000, 1 << 20}) {
            void* p = fn(n);
            ASSERT_NE(p, nullptr);
            EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u);
            std::memset(p, 1, static_cast<std::size_t>(n));
            realFree(p);
        }
    }
    realFree(nullptr);
}
