#include "pxltest.hpp"

#include <cstring>
#include <thread>

// Runs first in this program: the record is there before any other call.
TEST(Version, RecordBeforeAnyOtherCall)
{
    const PxlVersionRecord* v = pxliGetLibVersion();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v->versionMajor, 2017);
    EXPECT_EQ(v->versionMinor, 0);
    EXPECT_EQ(v->versionUpdate, 3);
    EXPECT_EQ(v->buildNumber, 55431);
    EXPECT_EQ(std::memcmp(v->targetCode, "px\0\0", 4), 0);
    EXPECT_STREQ(v->libraryName, "pxlIP PX (px)");
    EXPECT_STREQ(v->versionText, "2017.0.3 (r55431)");
    EXPECT_STREQ(v->buildDate, "Apr 12 2017");
}

TEST(Version, SamePointerFromEveryThread)
{
    const PxlVersionRecord* first = pxliGetLibVersion();
    std::vector<std::thread> threads;
    std::vector<const PxlVersionRecord*> got(8, nullptr);
    for (int t = 0; t < 8; ++t)
        threads.emplace_back([&got, t] {
            for (int i = 0; i < 1000; ++i) got[static_cast<std::size_t>(t)] = pxliGetLibVersion();
        });
    for (auto& th : threads) th.join();
    for (const auto* p : got) EXPECT_EQ(p, first);
    EXPECT_EQ(pxliGetLibVersion(), first);
}
