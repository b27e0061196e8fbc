// Border extension against the index rules (clamp, fold, modulo, constant) over random sizes,
// borders wider than the image, one- and two-pixel images, in place against out of place, AC4
// alpha, the orders of checks; and the border-word validator over every word from 0 to 300.
#include "exchange/border.hpp"
#include "pxltest.hpp"

#include <array>

using namespace pxltest;

namespace {

enum Rule { kConstant, kReplicate, kMirror, kWrap };

// The rules as stated: the source index of position i for an extent n.
int foldRef(int i, int n)
{
    if (n == 1) return 0;
    const int p = 2 * n - 2;
    int r = i % p;
    if (r < 0) r += p;
    return r < n ? r : p - r;
}
int sourceRef(Rule rule, int i, int n)
{
    if (rule == kReplicate) return std::clamp(i, 0, n - 1);
    if (rule == kMirror) return foldRef(i, n);
    int r = i % n;
    return r < 0 ? r + n : r;
}

struct Shape {
    int w, h, top, left, dw, dh;
};

Shape randomShape(Rng& rng)
{
    Shape s;
    s.w = rng.chance(0.2) ? rng.uniformInt(1, 2) : rng.uniformInt(1, 9);
    s.h = rng.chance(0.2) ? rng.uniformInt(1, 2) : rng.uniformInt(1, 6);
    s.top = rng.uniformInt(0, 12);
    s.left = rng.uniformInt(0, 12);  // often wider than the image
    s.dw = s.w + s.left + rng.uniformInt(0, 12);
    s.dh = s.h + s.top + rng.uniformInt(0, 12);
    if (rng.chance(0.2)) {
        // Wide sides: runs long enough for the vector bodies, and on a narrow image more runs
        // than one pass over the rows takes.
        s.w = rng.chance(0.5) ? rng.uniformInt(1, 3) : rng.uniformInt(17, 80);
        s.left = rng.uniformInt(60, 200);
        s.dw = s.w + s.left + rng.uniformInt(60, 200);
    }
    return s;
}

// One form of one type and layout, reached through a small closure so that one test body serves
// every member: out of place (R) and in place (IR), plain and _L.
template <class T> struct BorderCall {
    std::function<PxlStatus(const T*, int, PxliSize, T*, int, PxliSize, int, int, const T*)> out;
    std::function<PxlStatus(T*, int, PxliSize, PxliSize, int, int, const T*)> in;  // may be empty
};

template <class T>
void expectBorder(Rule rule, int mem, int proc, const BorderCall<T>& call, Rng& rng, const char* name)
{
    for (int trial = 0; trial < 25; ++trial) {
        const Shape s = randomShape(rng);
        GuardedImage<T> src(s.w, s.h, mem), dst(s.dw, s.dh, mem);
        src.fillRandom(rng);
        dst.fillRandom(rng);
        T value[4];
        for (T& v : value) v = rng.sample<T>();
        const auto before = dst;
        auto want = [&](int x, int y, int c) -> T {
            if (c >= proc) return before.at(x, y, c);
            const int sy = y - s.top, sx = x - s.left;
            if (rule == kConstant) return sy >= 0 && sy < s.h && sx >= 0 && sx < s.w ? src.at(sx, sy, c) : value[c];
            return src.at(sourceRef(rule, sx, s.w), sourceRef(rule, sy, s.h), c);
        };
        auto matches = [&](const GuardedImage<T>& img) -> ::testing::AssertionResult {
            if (!img.guardsIntact()) return ::testing::AssertionFailure() << "written outside";
            for (int y = 0; y < s.dh; ++y)
                for (int x = 0; x < s.dw; ++x)
                    for (int c = 0; c < mem; ++c)
                        if (!sameBits(img.at(x, y, c), want(x, y, c)))
                            return ::testing::AssertionFailure() << "at " << x << "," << y << "," << c << " got " << +img.at(x, y, c)
                                                                 << " want " << +want(x, y, c);
            return ::testing::AssertionSuccess();
        };
        const PxliSize sr{s.w, s.h}, dr{s.dw, s.dh};
        ASSERT_EQ(call.out(src.data(), src.step(), sr, dst.data(), dst.step(), dr, s.top, s.left, value), pxlStatusOk) << name;
        ASSERT_TRUE(matches(dst)) << name << " " << s.w << "x" << s.h << " in " << s.dw << "x" << s.dh << " at " << s.left << "," << s.top;
        if (call.in) {
            // In place: the source already sits inside the frame.
            GuardedImage<T> img = before;
            for (int y = 0; y < s.h; ++y)
                for (int x = 0; x < s.w; ++x)
                    for (int c = 0; c < mem; ++c) img.at(x + s.left, y + s.top, c) = src.at(x, y, c);
            ASSERT_EQ(call.in(&img.at(s.left, s.top), img.step(), sr, dr, s.top, s.left, value), pxlStatusOk) << name << " in place";
            auto wantIn = [&](int x, int y, int c) -> T {
                const bool interior = y >= s.top && y < s.top + s.h && x >= s.left && x < s.left + s.w;
                return interior ? src.at(x - s.left, y - s.top, c) : want(x, y, c);
            };
            for (int y = 0; y < s.dh; ++y)
                for (int x = 0; x < s.dw; ++x)
                    for (int c = 0; c < mem; ++c)
                        ASSERT_TRUE(sameBits(img.at(x, y, c), wantIn(x, y, c))) << name << " in place at " << x << "," << y << "," << c;
            ASSERT_TRUE(img.guardsIntact());
        }
    }
}

}  // namespace

#define PXLT_OUT(fn, SZ) [](auto s, int ss, PxliSize sr, auto d, int ds, PxliSize dr, int t, int l, auto) { return fn(s, ss, SZ{sr.width, sr.height}, d, ds, SZ{dr.width, dr.height}, t, l); }
#define PXLT_IN(fn, SZ) [](auto p, int st, PxliSize sr, PxliSize dr, int t, int l, auto) { return fn(p, st, SZ{sr.width, sr.height}, SZ{dr.width, dr.height}, t, l); }
#define PXLT_COUT1(fn, SZ) [](auto s, int ss, PxliSize sr, auto d, int ds, PxliSize dr, int t, int l, auto v) { return fn(s, ss, SZ{sr.width, sr.height}, d, ds, SZ{dr.width, dr.height}, t, l, v[0]); }
#define PXLT_CIN1(fn, SZ) [](auto p, int st, PxliSize sr, PxliSize dr, int t, int l, auto v) { return fn(p, st, SZ{sr.width, sr.height}, SZ{dr.width, dr.height}, t, l, v[0]); }
#define PXLT_COUTN(fn, SZ) [](auto s, int ss, PxliSize sr, auto d, int ds, PxliSize dr, int t, int l, auto v) { return fn(s, ss, SZ{sr.width, sr.height}, d, ds, SZ{dr.width, dr.height}, t, l, v); }
#define PXLT_CINN(fn, SZ) [](auto p, int st, PxliSize sr, PxliSize dr, int t, int l, auto v) { return fn(p, st, SZ{sr.width, sr.height}, SZ{dr.width, dr.height}, t, l, v); }

#define PXLT_REPLICATE_MIRROR(T, t, Fam, rule, L, mem, proc)                                                              \
    expectBorder<T>(rule, mem, proc, {PXLT_OUT(pxliCopy##Fam##Border_##t##_##L##R, PxliSize), PXLT_IN(pxliCopy##Fam##Border_##t##_##L##IR, PxliSize)}, rng, #Fam " " #t " " #L); \
    expectBorder<T>(rule, mem, proc, {PXLT_OUT(pxliCopy##Fam##Border_##t##_##L##R_L, PxliSizeL), PXLT_IN(pxliCopy##Fam##Border_##t##_##L##IR_L, PxliSizeL)}, rng, #Fam " " #t " " #L "_L")
#define PXLT_CONST1(T, t)                                                                                                  \
    expectBorder<T>(kConstant, 1, 1, {PXLT_COUT1(pxliCopyConstBorder_##t##_C1R, PxliSize), nullptr}, rng, "Const " #t " C1"); \
    expectBorder<T>(kConstant, 1, 1, {PXLT_COUT1(pxliCopyConstBorder_##t##_C1R_L, PxliSizeL), PXLT_CIN1(pxliCopyConstBorder_##t##_C1IR_L, PxliSizeL)}, rng, "Const " #t " C1_L")
#define PXLT_CONSTN(T, t, L, mem, proc)                                                                                    \
    expectBorder<T>(kConstant, mem, proc, {PXLT_COUTN(pxliCopyConstBorder_##t##_##L##R, PxliSize), nullptr}, rng, "Const " #t " " #L); \
    expectBorder<T>(kConstant, mem, proc, {PXLT_COUTN(pxliCopyConstBorder_##t##_##L##R_L, PxliSizeL), PXLT_CINN(pxliCopyConstBorder_##t##_##L##IR_L, PxliSizeL)}, rng, "Const " #t " " #L "_L")
#define PXLT_TYPE(T, t)                                                                                                    \
    PXLT_REPLICATE_MIRROR(T, t, Replicate, kReplicate, C1, 1, 1);                                                         \
    PXLT_REPLICATE_MIRROR(T, t, Replicate, kReplicate, C3, 3, 3);                                                         \
    PXLT_REPLICATE_MIRROR(T, t, Replicate, kReplicate, C4, 4, 4);                                                         \
    PXLT_REPLICATE_MIRROR(T, t, Replicate, kReplicate, AC4, 4, 3);                                                        \
    PXLT_REPLICATE_MIRROR(T, t, Mirror, kMirror, C1, 1, 1);                                                               \
    PXLT_REPLICATE_MIRROR(T, t, Mirror, kMirror, C3, 3, 3);                                                               \
    PXLT_REPLICATE_MIRROR(T, t, Mirror, kMirror, C4, 4, 4);                                                               \
    PXLT_CONST1(T, t);                                                                                                    \
    PXLT_CONSTN(T, t, C3, 3, 3);                                                                                          \
    PXLT_CONSTN(T, t, C4, 4, 4);                                                                                          \
    PXLT_CONSTN(T, t, AC4, 4, 3)

TEST(CopyBorder, EveryFamilyFollowsItsIndexRule)
{
    Rng rng(81);
    PXLT_TYPE(Pxl8u, 8u);
    PXLT_TYPE(Pxl16u, 16u);
    PXLT_TYPE(Pxl16s, 16s);
    PXLT_TYPE(Pxl32s, 32s);
    PXLT_TYPE(Pxl32f, 32f);
    PXLT_REPLICATE_MIRROR(Pxl32s, 32s, Wrap, kWrap, C1, 1, 1);
    PXLT_REPLICATE_MIRROR(Pxl32f, 32f, Wrap, kWrap, C1, 1, 1);
}

TEST(CopyBorder, WorkedExamples)
{
    // Mirror, 3 wide with a left border of 5: 1, 0, 1, 2, 1, then 0, 1, 2.
    const Pxl8u row[3] = {10, 11, 12};
    Pxl8u out[8];
    ASSERT_EQ(pxliCopyMirrorBorder_8u_C1R(row, 3, {3, 1}, out, 8, {8, 1}, 0, 5), pxlStatusOk);
    const Pxl8u want[8] = {11, 10, 11, 12, 11, 10, 11, 12};
    for (int i = 0; i < 8; ++i) EXPECT_EQ(out[i], want[i]) << i;
    // Mirror of width 2 alternates; of width 1 repeats.
    const Pxl8u two[2] = {1, 2};
    ASSERT_EQ(pxliCopyMirrorBorder_8u_C1R(two, 2, {2, 1}, out, 8, {8, 1}, 0, 4), pxlStatusOk);
    EXPECT_EQ(out[0], 1);
    EXPECT_EQ(out[1], 2);
    EXPECT_EQ(out[3], 2);
    // Wrap with a border wider than the row gives whole periodic copies.
    const Pxl32s w3[3] = {7, 8, 9};
    Pxl32s wout[10];
    ASSERT_EQ(pxliCopyWrapBorder_32s_C1R(w3, 12, {3, 1}, wout, 40, {10, 1}, 0, 6), pxlStatusOk);
    for (int i = 0; i < 10; ++i) EXPECT_EQ(wout[i], w3[i % 3]) << i;
    // NaN payloads survive as bit patterns.
    const float nan = std::bit_cast<float>(0x7FC01234u);
    float f[4];
    ASSERT_EQ(pxliCopyReplicateBorder_32f_C1R(&nan, 4, {1, 1}, f, 16, {4, 1}, 0, 2), pxlStatusOk);
    for (float x : f) EXPECT_EQ(std::bit_cast<uint32_t>(x), 0x7FC01234u);
}

TEST(CopyBorder, OrderOfChecks)
{
    GuardedImage<Pxl8u> src(4, 3, 3), dst(8, 7, 3);
    struct A { const Pxl8u* s; Pxl8u* d; int srcStep; PxliSize dr; int top; const Pxl8u* v; };
    static const Pxl8u v3[3] = {1, 2, 3};
    const A valid{src.data(), dst.data(), src.step(), {8, 7}, 2, v3};
    const std::vector<Fault<A>> faults = {{"null source", pxlStatusNullPointer, [](A& a) { a.s = nullptr; }},
                                          {"step 0", pxlStatusBadStep, [](A& a) { a.srcStep = 0; }},
                                          {"top -1", pxlStatusBadSize, [](A& a) { a.top = -1; }},
                                          {"frame too small", pxlStatusBadSize, [](A& a) { a.dr.height = 4; }},
                                          {"null value", pxlStatusNullPointer, [](A& a) { a.v = nullptr; }}};
    expectCheckOrder(valid, faults, [&](const A& a) { return pxliCopyConstBorder_8u_C3R(a.s, a.srcStep, {4, 3}, a.d, dst.step(), a.dr, a.top, 1, a.v); }, {&dst});
    // In place: the value pointer is tested with the image pointer.
    Pxl8u* inner = &dst.at(1, 2);
    EXPECT_EQ(pxliCopyConstBorder_8u_C3IR_L(inner, 0, {4, 3}, {8, 7}, 2, 1, nullptr), pxlStatusNullPointer);
    EXPECT_EQ(pxliCopyConstBorder_8u_C3IR_L(inner, 0, {4, 3}, {8, 7}, 2, 1, v3), pxlStatusBadStep);
    // Equal pointers in Replicate R: the in-place form, with the pointer as the source corner.
    GuardedImage<Pxl8u> img(6, 5), ref(6, 5);
    Rng rng(82);
    img.fillRandom(rng);
    ref = img;
    Pxl8u* corner = &img.at(2, 1);
    ASSERT_EQ(pxliCopyReplicateBorder_8u_C1R(corner, 12345, {2, 2}, corner, img.step(), {6, 5}, 1, 2), pxlStatusOk);
    ASSERT_EQ(pxliCopyReplicateBorder_8u_C1IR(&ref.at(2, 1), ref.step(), {2, 2}, {6, 5}, 1, 2), pxlStatusOk);
    EXPECT_TRUE(regionsEqual(img, ref));
}

TEST(BorderWord, EveryWordAgainstEveryKindSet)
{
    const pxl::BorderKinds sets[] = {pxl::kFilterBorderKinds, pxl::kNoMirrorBorderKinds, pxl::kResizeBorderKinds, pxl::kWarpBorderKinds};
    for (pxl::BorderKinds set : sets)
        for (int word = -3; word <= 300; ++word) {
            const auto w = static_cast<uint32_t>(word);
            const bool accepted = w <= 255 && (w == 240 || ((set >> (w & 15)) & 1));
            EXPECT_EQ(pxl::checkBorderWord(word, set), accepted ? pxlStatusOk : pxlStatusBadBorder) << word;
        }
    EXPECT_EQ(pxl::checkBorderWord(240, pxl::kFilterBorderKinds), pxlStatusOk);
    EXPECT_EQ(pxl::checkBorderWord(0, pxl::kFilterBorderKinds), pxlStatusBadBorder);
    EXPECT_EQ(pxl::checkBorderWord(16, pxl::kFilterBorderKinds), pxlStatusBadBorder);
    EXPECT_EQ(pxl::checkBorderWord(256 + 1, pxl::kFilterBorderKinds), pxlStatusBadBorder);
    EXPECT_EQ(pxl::checkBorderWord(22, pxl::kNoMirrorBorderKinds), pxlStatusOk);
    EXPECT_EQ(pxl::checkBorderWord(241, pxl::kResizeBorderKinds), pxlStatusOk);
    for (pxl::BorderKinds set : sets) EXPECT_EQ(pxl::checkBorderWord(2, set), pxlStatusBadBorder);
}
