// The tests' main. `--level=N` holds the library to the kernels of level N (0 is the first
// x86-64): a level that this processor lacks is reported as skipped (exit 77).
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#ifdef PXL_TEST_LEVELS
extern "C" int pxlTestHoldLevel(int level);
#endif

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], "--level=", 8) != 0) continue;
        const int level = std::atoi(argv[i] + 8);
#ifdef PXL_TEST_LEVELS
        if (!pxlTestHoldLevel(level)) {
            std::printf("level %d: this processor does not have it; skipped\n", level);
            return 77;
        }
        std::printf("kernels of level %d\n", level);
#else
        std::printf("one build of the kernels: --level=%d ignored\n", level);
#endif
    }
    return RUN_ALL_TESTS();
}
