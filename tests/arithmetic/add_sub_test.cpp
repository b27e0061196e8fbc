// Add, Sub, AddC and SubC against a reference model of the scale rule written in exact 64-bit
// arithmetic: every type, layout, in-place and wide form, every scale factor from -40 to 40 and the
// two extremes, on random samples with each type's extremes; an exhaustive 8u sweep; the worked
// examples; NaN and infinities for 32f; and the order of checks.
#include "pxltest.hpp"

#include <array>
#include <climits>

using namespace pxltest;

namespace {

template <class T> T scaleReference(int64_t s, int f) { return sfsReference<T>(s, f); }

enum Op { kAdd, kSub, kAddC, kSubC };
const char* const kOpName[] = {"Add", "Sub", "AddC", "SubC"};

// The exact result: Add first + second, Sub second - first; the constant forms source op value.
int64_t exact(Op op, int64_t first, int64_t second) { return op == kAdd || op == kAddC ? first + second : second - first; }

struct Layout {
    const char* name;
    int mem, proc;
};
const Layout kLayouts[] = {{"C1", 1, 1}, {"C3", 3, 3}, {"C4", 4, 4}, {"AC4", 4, 3}};

// Every form of one type, through one signature per shape.
template <class T> struct AddSubApi {
    using Bin = PxlStatus (*)(const T*, int, const T*, int, T*, int, PxliSize, int);
    using BinI = PxlStatus (*)(const T*, int, T*, int, PxliSize, int);
    using Val = PxlStatus (*)(const T*, int, T, T*, int, PxliSize, int);
    using ValI = PxlStatus (*)(T, T*, int, PxliSize, int);
    using Arr = PxlStatus (*)(const T*, int, const T*, T*, int, PxliSize, int);
    using ArrI = PxlStatus (*)(const T*, T*, int, PxliSize, int);
    Bin bin[2][4][2];  // [Add, Sub][layout][wide]
    BinI binI[2][4][2];
    Val val[2][2];  // [AddC, SubC][wide]
    ValI valI[2][2];
    Arr arr[2][3][2];  // [AddC, SubC][C3, C4, AC4][wide]
    ArrI arrI[2][3][2];
};

// The _L forms take a PxliSizeL; these adapters let one table hold both.
constexpr PxliSizeL wideOf(PxliSize r) { return {r.width, r.height}; }
#define PXLTEST_BIN(op, t, L)                                                                                        \
    {pxli##op##_##t##_##L##RSfs, [](const auto* a, int as, const auto* b, int bs, auto* d, int ds, PxliSize r, int f) { \
          return pxli##op##_##t##_##L##RSfs_L(a, as, b, bs, d, ds, wideOf(r), f);                                     \
      }}
#define PXLTEST_BINI(op, t, L)                                                                                       \
    {pxli##op##_##t##_##L##IRSfs, [](const auto* a, int as, auto* d, int ds, PxliSize r, int f) {                    \
          return pxli##op##_##t##_##L##IRSfs_L(a, as, d, ds, wideOf(r), f);                                           \
      }}
#define PXLTEST_LAYOUTS(M, op, t) {M(op, t, C1), M(op, t, C3), M(op, t, C4), M(op, t, AC4)}
#define PXLTEST_ARR(op, t, L)                                                                                        \
    {pxli##op##_##t##_##L##RSfs, [](const auto* a, int as, const auto* v, auto* d, int ds, PxliSize r, int f) {       \
          return pxli##op##_##t##_##L##RSfs_L(a, as, v, d, ds, wideOf(r), f);                                         \
      }}
#define PXLTEST_ARRI(op, t, L)                                                                                       \
    {pxli##op##_##t##_##L##IRSfs, [](const auto* v, auto* d, int ds, PxliSize r, int f) {                            \
          return pxli##op##_##t##_##L##IRSfs_L(v, d, ds, wideOf(r), f);                                               \
      }}
#define PXLTEST_VAL(op, t)                                                                                           \
    {pxli##op##_##t##_C1RSfs, [](const auto* a, int as, auto v, auto* d, int ds, PxliSize r, int f) {                 \
         return pxli##op##_##t##_C1RSfs_L(a, as, v, d, ds, wideOf(r), f);                                            \
     }}
#define PXLTEST_VALI(op, t)                                                                                          \
    {pxli##op##_##t##_C1IRSfs, [](auto v, auto* d, int ds, PxliSize r, int f) {                                       \
         return pxli##op##_##t##_C1IRSfs_L(v, d, ds, wideOf(r), f);                                                  \
     }}
#define PXLTEST_CLAYOUTS(M, op, t) {M(op, t, C3), M(op, t, C4), M(op, t, AC4)}
#define PXLTEST_API(T, t)                                                                                    \
    template <> const AddSubApi<T> api<T> = {                                                                \
        {PXLTEST_LAYOUTS(PXLTEST_BIN, Add, t), PXLTEST_LAYOUTS(PXLTEST_BIN, Sub, t)},                        \
        {PXLTEST_LAYOUTS(PXLTEST_BINI, Add, t), PXLTEST_LAYOUTS(PXLTEST_BINI, Sub, t)},                      \
        {PXLTEST_VAL(AddC, t), PXLTEST_VAL(SubC, t)},                                                          \
        {PXLTEST_VALI(AddC, t), PXLTEST_VALI(SubC, t)},                                                        \
        {PXLTEST_CLAYOUTS(PXLTEST_ARR, AddC, t), PXLTEST_CLAYOUTS(PXLTEST_ARR, SubC, t)},                    \
        {PXLTEST_CLAYOUTS(PXLTEST_ARRI, AddC, t), PXLTEST_CLAYOUTS(PXLTEST_ARRI, SubC, t)},                  \
    };
template <class T> extern const AddSubApi<T> api;
PXLTEST_API(Pxl8u, 8u)
PXLTEST_API(Pxl16u, 16u)
PXLTEST_API(Pxl16s, 16s)

// Runs one form on fresh random images and compares every sample with the reference.
template <class T>
::testing::AssertionResult checkForm(Op op, int layout, bool inPlace, bool wide, int f, int w, int h, Rng& rng)
{
    const AddSubApi<T>& a = api<T>;
    const Layout& L = kLayouts[layout];
    const auto first = randomImage<T>(w, h, L.mem, rng, 0.3);
    const auto second = randomImage<T>(w, h, L.mem, rng, 0.3);
    auto dst = randomImage<T>(w, h, L.mem, rng, 0.3);
    T value[4];
    for (T& v : value) v = rng.sample<T>(0.3);
    if (rng.chance(0.25)) value[1] = value[2] = value[3] = value[0];  // the equal-channels path
    if (rng.chance(0.1)) value[0] = value[1] = value[2] = value[3] = T(0);
    const int wi = wide ? 1 : 0;
    auto out = inPlace ? second : dst;
    const auto before = out;
    PxlStatus st;
    if (op == kAdd || op == kSub) {
        st = inPlace ? a.binI[op][layout][wi](first.data(), first.step(), out.data(), out.step(), {w, h}, f)
                     : a.bin[op][layout][wi](first.data(), first.step(), second.data(), second.step(), out.data(), out.step(), {w, h}, f);
    } else if (layout == 0) {
        st = inPlace ? a.valI[op - 2][wi](value[0], out.data(), out.step(), {w, h}, f)
                     : a.val[op - 2][wi](second.data(), second.step(), value[0], out.data(), out.step(), {w, h}, f);
    } else {
        st = inPlace ? a.arrI[op - 2][layout - 1][wi](value, out.data(), out.step(), {w, h}, f)
                     : a.arr[op - 2][layout - 1][wi](second.data(), second.step(), value, out.data(), out.step(), {w, h}, f);
    }
    auto fail = [&]() {
        return ::testing::AssertionFailure() << "pxli" << kOpName[op] << "_" << token<T>() << "_" << L.name << (inPlace ? "IRSfs" : "RSfs")
                                             << (wide ? "_L" : "") << " f=" << f << " " << w << "x" << h << ": ";
    };
    if (st != pxlStatusOk) return fail() << "status " << st;
    if (!out.guardsIntact()) return fail() << "written outside the region";
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < L.mem; ++c) {
                const T got = out.at(x, y, c);
                T want = before.at(x, y, c);
                if (c < L.proc) {
                    const int64_t s = op == kAdd || op == kSub ? exact(op, first.at(x, y, c), second.at(x, y, c))
                                                               : exact(op, value[c], second.at(x, y, c));
                    want = scaleReference<T>(s, f);
                }
                if (got != want)
                    return fail() << "pixel (" << x << ", " << y << ") channel " << c << ": got " << +got << ", want " << +want;
            }
    return ::testing::AssertionSuccess();
}

std::vector<int> scaleFactors()
{
    std::vector<int> fs;
    for (int f = -40; f <= 40; ++f) fs.push_back(f);
    fs.push_back(INT_MIN);
    fs.push_back(INT_MAX);
    return fs;
}

template <class T> class AddSubInt : public ::testing::Test {};
using IntTypes = ::testing::Types<Pxl8u, Pxl16u, Pxl16s>;
TYPED_TEST_SUITE(AddSubInt, IntTypes);

}  // namespace

TYPED_TEST(AddSubInt, EveryFormFollowsTheScaleRuleAtEveryScaleFactor)
{
    Rng rng(41);
    for (int f : scaleFactors())
        for (Op op : {kAdd, kSub, kAddC, kSubC})
            for (int layout = 0; layout < 4; ++layout)
                for (bool inPlace : {false, true})
                    for (bool wide : {false, true}) {
                        const int w = rng.uniformInt(1, 9), h = rng.uniformInt(1, 3);
                        ASSERT_TRUE(checkForm<TypeParam>(op, layout, inPlace, wide, f, w, h, rng));
                    }
}

TEST(AddSub8u, EveryPairOfSamplesAtTheScaleFactorsThatMatter)
{
    GuardedImage<Pxl8u> a(256, 256), b(256, 256), d(256, 256);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x) {
            a.at(x, y) = static_cast<Pxl8u>(x);
            b.at(x, y) = static_cast<Pxl8u>(y);
        }
    for (int f = -9; f <= 11; ++f)
        for (Op op : {kAdd, kSub}) {
            ASSERT_EQ(api<Pxl8u>.bin[op][0][0](a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), {256, 256}, f), pxlStatusOk);
            for (int y = 0; y < 256; ++y)
                for (int x = 0; x < 256; ++x)
                    ASSERT_EQ(d.at(x, y), scaleReference<Pxl8u>(exact(op, x, y), f)) << kOpName[op] << " " << x << ", " << y << " f=" << f;
        }
}

TEST(AddSub, WorkedExamples)
{
    auto add8 = [](Pxl8u a, Pxl8u b, int f) {
        Pxl8u d = 77;
        EXPECT_EQ(pxliAdd_8u_C1RSfs(&a, 1, &b, 1, &d, 1, {1, 1}, f), pxlStatusOk);
        return int{d};
    };
    auto sub8 = [](Pxl8u first, Pxl8u second, int f) {
        Pxl8u d = 77;
        EXPECT_EQ(pxliSub_8u_C1RSfs(&first, 1, &second, 1, &d, 1, {1, 1}, f), pxlStatusOk);
        return int{d};
    };
    EXPECT_EQ(add8(255, 255, 0), 255);
    EXPECT_EQ(add8(255, 255, 1), 255);
    EXPECT_EQ(add8(255, 255, 9), 1);
    EXPECT_EQ(add8(255, 255, 10), 0);
    EXPECT_EQ(add8(1, 2, 1), 2);
    EXPECT_EQ(add8(1, 0, 1), 0);
    EXPECT_EQ(add8(2, 1, -7), 255);
    EXPECT_EQ(add8(2, 1, -8), 255);
    EXPECT_EQ(add8(0, 0, -8), 0);
    for (int f : {INT_MIN, -8, 0, 3, INT_MAX}) {
        EXPECT_EQ(sub8(3, 5, f), scaleReference<Pxl8u>(2, f));
        EXPECT_EQ(sub8(5, 3, f), 0);
    }
    EXPECT_EQ(sub8(3, 5, 0), 2);
    EXPECT_EQ(sub8(0, 255, 8), 1);
    EXPECT_EQ(sub8(0, 255, 9), 0);
    auto add16s = [](Pxl16s a, Pxl16s b, int f) {
        Pxl16s d = 77;
        EXPECT_EQ(pxliAdd_16s_C1RSfs(&a, 2, &b, 2, &d, 2, {1, 1}, f), pxlStatusOk);
        return int{d};
    };
    EXPECT_EQ(add16s(-32768, -32768, 0), -32768);
    EXPECT_EQ(add16s(-32768, -32768, 1), -32768);
    EXPECT_EQ(add16s(-32768, -32768, 16), -1);
    EXPECT_EQ(add16s(-32768, -32768, 17), 0);
    auto sub16u = [](Pxl16u first, Pxl16u second, int f) {
        Pxl16u d = 77;
        EXPECT_EQ(pxliSub_16u_C1RSfs(&first, 2, &second, 2, &d, 2, {1, 1}, f), pxlStatusOk);
        return int{d};
    };
    EXPECT_EQ(sub16u(0, 65535, 16), 1);
    EXPECT_EQ(sub16u(0, 65535, 17), 0);
    // Ties go to even: 1, 3, 5 halved are 0, 2, 2.
    for (auto [s, want] : {std::pair{1, 0}, {3, 2}, {5, 2}}) EXPECT_EQ(add8(static_cast<Pxl8u>(s), 0, 1), want);
}

TEST(AddSub, ShortcutsLeaveWhatTheyMust)
{
    Rng rng(42);
    // Adding zero with no scale in place leaves the image as it was.
    GuardedImage<Pxl8u> img(13, 4);
    img.fillRandom(rng);
    Watch w({&img});
    EXPECT_EQ(pxliAddC_8u_C1RSfs(img.data(), img.step(), 0, img.data(), img.step(), img.size(), 0), pxlStatusOk);
    EXPECT_EQ(pxliAddC_8u_C1IRSfs(0, img.data(), img.step(), img.size(), 0), pxlStatusOk);
    EXPECT_TRUE(w.unchanged());
    // The all-zero shortcut of AC4 leaves alpha.
    GuardedImage<Pxl8u> a(9, 3, 4), b(9, 3, 4), d(9, 3, 4);
    a.fillRandom(rng);
    b.fillRandom(rng);
    d.fillRandom(rng);
    const auto before = d;
    ASSERT_EQ(pxliAdd_8u_AC4RSfs(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), d.size(), 10), pxlStatusOk);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 9; ++x)
            for (int c = 0; c < 4; ++c) EXPECT_EQ(d.at(x, y, c), c == 3 ? before.at(x, y, 3) : 0);
    EXPECT_TRUE(d.guardsIntact());
}

// ---- 32f -------------------------------------------------------------------------------------

namespace {
using FBin = PxlStatus (*)(const Pxl32f*, int, const Pxl32f*, int, Pxl32f*, int, PxliSize);
using FBinI = PxlStatus (*)(const Pxl32f*, int, Pxl32f*, int, PxliSize);
using FArr = PxlStatus (*)(const Pxl32f*, int, const Pxl32f*, Pxl32f*, int, PxliSize);
using FArrI = PxlStatus (*)(const Pxl32f*, Pxl32f*, int, PxliSize);
#define PXLTEST_F4(op, suffix) {pxli##op##_32f_C1##suffix, pxli##op##_32f_C3##suffix, pxli##op##_32f_C4##suffix, pxli##op##_32f_AC4##suffix}
const FBin kFBin[2][4] = {PXLTEST_F4(Add, R), PXLTEST_F4(Sub, R)};
using FBinL = PxlStatus (*)(const Pxl32f*, int, const Pxl32f*, int, Pxl32f*, int, PxliSizeL);
const FBinL kFBinL[2][4] = {PXLTEST_F4(Add, R_L), PXLTEST_F4(Sub, R_L)};
const FBinI kFBinI[2][4] = {PXLTEST_F4(Add, IR), PXLTEST_F4(Sub, IR)};
const FArr kFArr[2][3] = {{pxliAddC_32f_C3R, pxliAddC_32f_C4R, pxliAddC_32f_AC4R}, {pxliSubC_32f_C3R, pxliSubC_32f_C4R, pxliSubC_32f_AC4R}};
const FArrI kFArrI[2][3] = {{pxliAddC_32f_C3IR, pxliAddC_32f_C4IR, pxliAddC_32f_AC4IR},
                            {pxliSubC_32f_C3IR, pxliSubC_32f_C4IR, pxliSubC_32f_AC4IR}};

// IEEE binary32: the sum or difference of two floats, rounded once (exact in double first).
float floatReference(Op op, float first, float second)
{
    return op == kAdd || op == kAddC ? static_cast<float>(double{first} + double{second})
                                     : static_cast<float>(double{second} - double{first});
}
bool sameFloat(float a, float b) { return (std::isnan(a) && std::isnan(b)) || sameBits(a, b); }
}  // namespace

TEST(AddSub32f, EveryFormIsRoundedOnceIncludingNaNAndInfinity)
{
    Rng rng(43);
    for (int trial = 0; trial < 40; ++trial)
        for (Op op : {kAdd, kSub, kAddC, kSubC})
            for (int layout = 0; layout < 4; ++layout)
                for (int form = 0; form < 3; ++form) {  // out of place, in place, wide
                    const Layout& L = kLayouts[layout];
                    const int w = rng.uniformInt(1, 9), h = rng.uniformInt(1, 3);
                    const auto first = randomImage<Pxl32f>(w, h, L.mem, rng, 0.3);
                    const auto second = randomImage<Pxl32f>(w, h, L.mem, rng, 0.3);
                    auto out = form == 1 ? second : randomImage<Pxl32f>(w, h, L.mem, rng, 0.3);
                    const auto before = out;
                    float value[4];
                    for (float& v : value) v = rng.sample<Pxl32f>(0.3);
                    const bool binary = op == kAdd || op == kSub;
                    const int k = binary ? op : op - 2;
                    PxlStatus st;
                    if (binary) {
                        st = form == 1 ? kFBinI[k][layout](first.data(), first.step(), out.data(), out.step(), {w, h})
                           : form == 2 ? kFBinL[k][layout](first.data(), first.step(), second.data(), second.step(), out.data(),
                                                           out.step(), PxliSizeL{w, h})
                                       : kFBin[k][layout](first.data(), first.step(), second.data(), second.step(), out.data(),
                                                          out.step(), {w, h});
                    } else if (layout == 0) {
                        auto val = op == kAddC ? pxliAddC_32f_C1R : pxliSubC_32f_C1R;
                        auto valI = op == kAddC ? pxliAddC_32f_C1IR : pxliSubC_32f_C1IR;
                        st = form == 1 ? valI(value[0], out.data(), out.step(), {w, h})
                                       : val(second.data(), second.step(), value[0], out.data(), out.step(), {w, h});
                    } else {
                        st = form == 1 ? kFArrI[k][layout - 1](value, out.data(), out.step(), {w, h})
                                       : kFArr[k][layout - 1](second.data(), second.step(), value, out.data(), out.step(), {w, h});
                    }
                    ASSERT_EQ(st, pxlStatusOk);
                    ASSERT_TRUE(out.guardsIntact());
                    for (int y = 0; y < h; ++y)
                        for (int x = 0; x < w; ++x)
                            for (int c = 0; c < L.mem; ++c) {
                                float want = before.at(x, y, c);
                                if (c < L.proc)
                                    want = binary ? floatReference(op, first.at(x, y, c), second.at(x, y, c))
                                                  : floatReference(op, value[c], second.at(x, y, c));
                                ASSERT_TRUE(sameFloat(out.at(x, y, c), want))
                                    << kOpName[op] << " " << L.name << " form " << form << " at " << x << "," << y << "," << c
                                    << ": got " << out.at(x, y, c) << " want " << want;
                            }
                }
    const float inf = std::numeric_limits<float>::infinity();
    float d = 0;
    ASSERT_EQ(pxliSub_32f_C1R(&inf, 4, &inf, 4, &d, 4, {1, 1}), pxlStatusOk);
    EXPECT_TRUE(std::isnan(d));
    // -0 + 0 is +0: adding zero is arithmetic, not a copy.
    const float negZero = -0.0f;
    ASSERT_EQ(pxliAddC_32f_C1R(&negZero, 4, 0.0f, &d, 4, {1, 1}), pxlStatusOk);
    EXPECT_TRUE(sameBits(d, 0.0f));
}

// ---- Order of checks ---------------------------------------------------------------------------

namespace {
struct BinArgs {
    const Pxl8u* a;
    const Pxl8u* b;
    Pxl8u* d;
    PxliSize roi;
};
const Fault<BinArgs> kNullA{"null first source", pxlStatusNullPointer, [](BinArgs& x) { x.a = nullptr; }};
const Fault<BinArgs> kNullB{"null second source", pxlStatusNullPointer, [](BinArgs& x) { x.b = nullptr; }};
const Fault<BinArgs> kNullD{"null destination", pxlStatusNullPointer, [](BinArgs& x) { x.d = nullptr; }};
const Fault<BinArgs> kWidth0{"width 0", pxlStatusBadSize, [](BinArgs& x) { x.roi.width = 0; }};
const Fault<BinArgs> kWidthNeg{"width -3", pxlStatusBadSize, [](BinArgs& x) { x.roi.width = -3; }};
const Fault<BinArgs> kHeight0{"height 0", pxlStatusBadSize, [](BinArgs& x) { x.roi.height = 0; }};
}  // namespace

TEST(AddSub, OrderOfChecks)
{
    GuardedImage<Pxl8u> a(6, 4, 4), b(6, 4, 4), d(6, 4, 4);
    const BinArgs valid{a.data(), b.data(), d.data(), {6, 4}};
    auto bin8 = [&](auto fn) { return [&, fn](const BinArgs& x) { return fn(x.a, a.step(), x.b, b.step(), x.d, d.step(), x.roi, 0); }; };
    // C1 and AC4: pointers, then sizes.
    expectCheckOrder(valid, {kNullA, kNullB, kNullD, kHeight0, kWidth0}, bin8(pxliAdd_8u_C1RSfs), {&d});
    expectCheckOrder(valid, {kNullA, kNullB, kNullD, kHeight0, kWidth0}, bin8(pxliSub_8u_AC4RSfs), {&d});
    // C3 and C4 test the width before anything else, then the C1 checks.
    expectCheckOrder(valid, {kWidthNeg, kNullA, kNullB, kNullD, kHeight0}, bin8(pxliAdd_8u_C3RSfs), {&d});
    expectCheckOrder(valid, {kWidth0, kNullA, kNullD, kHeight0}, [&](const BinArgs& x) {
        return pxliSub_8u_C4RSfs_L(x.a, a.step(), x.b, b.step(), x.d, d.step(), PxliSizeL{x.roi.width, x.roi.height}, 0);
    }, {&d});
    // 16u C3 and C4 test width and height first.
    GuardedImage<Pxl16u> a16(6, 4, 4), d16(6, 4, 4);
    struct B16 { const Pxl16u* a; Pxl16u* d; PxliSize roi; };
    expectCheckOrder(B16{a16.data(), d16.data(), {6, 4}},
                     {{"width 0", pxlStatusBadSize, [](B16& x) { x.roi.width = 0; }},
                      {"height -1", pxlStatusBadSize, [](B16& x) { x.roi.height = -1; }},
                      {"null source", pxlStatusNullPointer, [](B16& x) { x.a = nullptr; }},
                      {"null destination", pxlStatusNullPointer, [](B16& x) { x.d = nullptr; }}},
                     [&](const B16& x) { return pxliAdd_16u_C3RSfs(x.a, a16.step(), x.a, a16.step(), x.d, d16.step(), x.roi, 3); }, {&d16});
    // The all-zero shortcut keeps the order.
    expectCheckOrder(valid, {kNullA, kNullB, kNullD, kHeight0}, [&](const BinArgs& x) {
        return pxliAdd_8u_C1RSfs(x.a, a.step(), x.b, b.step(), x.d, d.step(), x.roi, INT_MAX);
    }, {&d});
    // Constants: value array, source, destination, then sizes, also on the shortcuts.
    struct CArgs { const Pxl8u* v; const Pxl8u* s; Pxl8u* d; PxliSize roi; };
    static const Pxl8u v3[3] = {1, 2, 3};
    static const Pxl8u zero = 0;
    const std::vector<Fault<CArgs>> cfaults = {{"null value", pxlStatusNullPointer, [](CArgs& x) { x.v = nullptr; }},
                                               {"null source", pxlStatusNullPointer, [](CArgs& x) { x.s = nullptr; }},
                                               {"null destination", pxlStatusNullPointer, [](CArgs& x) { x.d = nullptr; }},
                                               {"height 0", pxlStatusBadSize, [](CArgs& x) { x.roi.height = 0; }},
                                               {"width -1", pxlStatusBadSize, [](CArgs& x) { x.roi.width = -1; }}};
    for (int f : {0, -20, 20})
        expectCheckOrder(CArgs{v3, a.data(), d.data(), {6, 4}}, cfaults,
                         [&](const CArgs& x) { return pxliAddC_8u_C3RSfs(x.s, a.step(), x.v, x.d, d.step(), x.roi, f); }, {&d});
    for (int f : {0, -20, 20})
        expectCheckOrder(CArgs{&zero, a.data(), d.data(), {6, 4}}, {cfaults[1], cfaults[2], cfaults[3], cfaults[4]},
                         [&](const CArgs& x) { return pxliAddC_8u_C1RSfs(x.s, a.step(), *x.v, x.d, d.step(), x.roi, f); }, {&d});
}
