// Logic and shifts against reference models: every type and layout, in place and not, constants
// per channel, every count from 0 to 40, and the order of checks.
#include "pxltest.hpp"

using namespace pxltest;

namespace {

const int kLayouts[4][2] = {{1, 1}, {3, 3}, {4, 4}, {4, 3}};

template <class T, class Call, class Want>
::testing::AssertionResult checkForm(int layout, bool inPlace, Call call, Want want, Rng& rng)
{
    const int mem = kLayouts[layout][0], proc = kLayouts[layout][1];
    const int w = rng.uniformInt(1, 11), h = rng.uniformInt(1, 3);
    GuardedImage<T> a(w, h, mem), b(w, h, mem), d(w, h, mem);
    a.fillRandom(rng);
    b.fillRandom(rng);
    d.fillRandom(rng);
    auto out = inPlace ? b : d;
    const auto before = out;
    const PxlStatus st = call(a, b, out, PxliSize{w, h});
    if (st != pxlStatusOk) return ::testing::AssertionFailure() << "status " << st;
    if (!out.guardsIntact()) return ::testing::AssertionFailure() << "written outside";
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < mem; ++c) {
                const T ref = c < proc ? want(a.at(x, y, c), b.at(x, y, c), c) : before.at(x, y, c);
                if (out.at(x, y, c) != ref)
                    return ::testing::AssertionFailure() << "layout " << layout << " at " << x << "," << y << "," << c << ": " << +a.at(x, y, c)
                                                         << ", " << +b.at(x, y, c) << " gave " << +out.at(x, y, c) << ", want " << +ref;
            }
    return ::testing::AssertionSuccess();
}

template <class T> struct LogicApi;
#define PXLT_LOGIC_OP(op, t)                                                                                                      \
    static PxlStatus op##Images(int L, bool ip, const GuardedImage<T>& a, const GuardedImage<T>& b, GuardedImage<T>& d, PxliSize r) \
    {                                                                                                                             \
        static const decltype(&pxli##op##_##t##_C1R) out[4] = {pxli##op##_##t##_C1R, pxli##op##_##t##_C3R, pxli##op##_##t##_C4R, pxli##op##_##t##_AC4R}; \
        static const decltype(&pxli##op##_##t##_C1IR) in[4] = {pxli##op##_##t##_C1IR, pxli##op##_##t##_C3IR, pxli##op##_##t##_C4IR, pxli##op##_##t##_AC4IR}; \
        return ip ? in[L](a.data(), a.step(), d.data(), d.step(), r) : out[L](a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), r); \
    }                                                                                                                             \
    static PxlStatus op##Constant(int L, bool ip, const T* v, const GuardedImage<T>& s, GuardedImage<T>& d, PxliSize r)            \
    {                                                                                                                             \
        if (L == 0) return ip ? pxli##op##C_##t##_C1IR(v[0], d.data(), d.step(), r) : pxli##op##C_##t##_C1R(s.data(), s.step(), v[0], d.data(), d.step(), r); \
        static const decltype(&pxli##op##C_##t##_C3R) out[3] = {pxli##op##C_##t##_C3R, pxli##op##C_##t##_C4R, pxli##op##C_##t##_AC4R}; \
        static const decltype(&pxli##op##C_##t##_C3IR) in[3] = {pxli##op##C_##t##_C3IR, pxli##op##C_##t##_C4IR, pxli##op##C_##t##_AC4IR}; \
        return ip ? in[L - 1](v, d.data(), d.step(), r) : out[L - 1](s.data(), s.step(), v, d.data(), d.step(), r);             \
    }
#define PXLT_LOGIC_API(T_, t)                                                                                                     \
    template <> struct LogicApi<T_> {                                                                                             \
        using T = T_;                                                                                                             \
        PXLT_LOGIC_OP(And, t) PXLT_LOGIC_OP(Or, t) PXLT_LOGIC_OP(Xor, t)                                                          \
    };
PXLT_LOGIC_API(Pxl8u, 8u)
PXLT_LOGIC_API(Pxl16u, 16u)
PXLT_LOGIC_API(Pxl32s, 32s)

template <class T> class Logic : public ::testing::Test {};
using LogicTypes = ::testing::Types<Pxl8u, Pxl16u, Pxl32s>;
TYPED_TEST_SUITE(Logic, LogicTypes);

}  // namespace

TYPED_TEST(Logic, BitwiseOfImagesAndConstants)
{
    using T = TypeParam;
    using A = LogicApi<T>;
    Rng rng(91);
    for (int trial = 0; trial < 10; ++trial)
        for (int L = 0; L < 4; ++L)
            for (bool ip : {false, true}) {
                T v[4];
                for (T& x : v) x = rng.sample<T>();
                auto bin = [&](auto fn) { return [&, fn](const auto& a, const auto& b, auto& d, PxliSize r) { return fn(L, ip, a, b, d, r); }; };
                auto con = [&](auto fn) { return [&, fn](const auto&, const auto& b, auto& d, PxliSize r) { return fn(L, ip, v, b, d, r); }; };
                ASSERT_TRUE(checkForm<T>(L, ip, bin(A::AndImages), [](T a, T b, int) { return T(a & b); }, rng));
                ASSERT_TRUE(checkForm<T>(L, ip, bin(A::OrImages), [](T a, T b, int) { return T(a | b); }, rng));
                ASSERT_TRUE(checkForm<T>(L, ip, bin(A::XorImages), [](T a, T b, int) { return T(a ^ b); }, rng));
                ASSERT_TRUE(checkForm<T>(L, ip, con(A::AndConstant), [&](T, T b, int c) { return T(b & v[c]); }, rng));
                ASSERT_TRUE(checkForm<T>(L, ip, con(A::OrConstant), [&](T, T b, int c) { return T(b | v[c]); }, rng));
                ASSERT_TRUE(checkForm<T>(L, ip, con(A::XorConstant), [&](T, T b, int c) { return T(b ^ v[c]); }, rng));
            }
}

namespace {
const decltype(&pxliNot_8u_C1R) kNotOut[4] = {pxliNot_8u_C1R, pxliNot_8u_C3R, pxliNot_8u_C4R, pxliNot_8u_AC4R};
const decltype(&pxliNot_8u_C1IR) kNotIn[4] = {pxliNot_8u_C1IR, pxliNot_8u_C3IR, pxliNot_8u_C4IR, pxliNot_8u_AC4IR};
}  // namespace

TEST(Logic, Not)
{
    Rng rng(92);
    for (int L = 0; L < 4; ++L)
        for (bool ip : {false, true})
            ASSERT_TRUE(checkForm<Pxl8u>(L, ip, [&](const auto&, const auto& b, auto& d, PxliSize r) {
                return ip ? kNotIn[L](d.data(), d.step(), r) : kNotOut[L](b.data(), b.step(), d.data(), d.step(), r);
            }, [](Pxl8u, Pxl8u b, int) { return Pxl8u(~b); }, rng));
}

namespace {
// A shift by count, written from the rule: past the width everything is shifted out, leaving 0,
// or the sign for arithmetic right shifts of signed types.
template <class T> T shiftRef(T x, uint32_t count, bool left)
{
    const int64_t v = x;
    if (left) return count >= 8 * sizeof(T) ? T(0) : static_cast<T>(static_cast<uint64_t>(v) << count);
    if (std::is_signed_v<T>) return count >= 8 * sizeof(T) ? T(v < 0 ? -1 : 0) : static_cast<T>(v >> count);
    return count >= 8 * sizeof(T) ? T(0) : static_cast<T>(static_cast<uint64_t>(v) >> count);
}

template <class T> struct ShiftApi;
#define PXLT_SHIFT_DIR(op, t)                                                                                                     \
    static PxlStatus op(int L, bool ip, const Pxl32u* n, const GuardedImage<T>& s, GuardedImage<T>& d, PxliSize r)                \
    {                                                                                                                             \
        if (L == 0) return ip ? pxli##op##_##t##_C1IR(n[0], d.data(), d.step(), r) : pxli##op##_##t##_C1R(s.data(), s.step(), n[0], d.data(), d.step(), r); \
        static const decltype(&pxli##op##_##t##_C3R) out[3] = {pxli##op##_##t##_C3R, pxli##op##_##t##_C4R, pxli##op##_##t##_AC4R}; \
        static const decltype(&pxli##op##_##t##_C3IR) in[3] = {pxli##op##_##t##_C3IR, pxli##op##_##t##_C4IR, pxli##op##_##t##_AC4IR}; \
        return ip ? in[L - 1](n, d.data(), d.step(), r) : out[L - 1](s.data(), s.step(), n, d.data(), d.step(), r);             \
    }
template <> struct ShiftApi<Pxl8u> { using T = Pxl8u; static constexpr bool kLeft = true; PXLT_SHIFT_DIR(LShiftC, 8u) PXLT_SHIFT_DIR(RShiftC, 8u) };
template <> struct ShiftApi<Pxl16u> { using T = Pxl16u; static constexpr bool kLeft = true; PXLT_SHIFT_DIR(LShiftC, 16u) PXLT_SHIFT_DIR(RShiftC, 16u) };
template <> struct ShiftApi<Pxl32s> { using T = Pxl32s; static constexpr bool kLeft = true; PXLT_SHIFT_DIR(LShiftC, 32s) PXLT_SHIFT_DIR(RShiftC, 32s) };
template <> struct ShiftApi<Pxl16s> { using T = Pxl16s; static constexpr bool kLeft = false; PXLT_SHIFT_DIR(RShiftC, 16s) };

template <class T> class Shift : public ::testing::Test {};
using ShiftTypes = ::testing::Types<Pxl8u, Pxl16u, Pxl16s, Pxl32s>;
TYPED_TEST_SUITE(Shift, ShiftTypes);
}  // namespace

TYPED_TEST(Shift, EveryCountFromZeroToForty)
{
    using T = TypeParam;
    using A = ShiftApi<T>;
    Rng rng(93);
    for (uint32_t count = 0; count <= 40; ++count)
        for (int L = 0; L < 4; ++L)
            for (bool ip : {false, true}) {
                Pxl32u n[4] = {count, count, count, count};
                if (L > 0 && rng.chance(0.5)) n[1] = static_cast<Pxl32u>(rng.uniformInt(0, 40));  // per channel
                auto call = [&](auto fn) { return [&, fn](const auto&, const auto& b, auto& d, PxliSize r) { return fn(L, ip, n, b, d, r); }; };
                if constexpr (A::kLeft) {
                    ASSERT_TRUE(checkForm<T>(L, ip, call(A::LShiftC), [&](T, T b, int c) { return shiftRef<T>(b, n[c], true); }, rng)) << "count " << count;
                }
                ASSERT_TRUE(checkForm<T>(L, ip, call(A::RShiftC), [&](T, T b, int c) { return shiftRef<T>(b, n[c], false); }, rng)) << "count " << count;
            }
    Pxl16s x[2] = {-5, 5}, y[2];
    ASSERT_EQ(pxliRShiftC_16s_C1R(x, 4, 40, y, 4, {2, 1}), pxlStatusOk);
    EXPECT_EQ(y[0], -1);
    EXPECT_EQ(y[1], 0);
}

TEST(Logic, OrderOfChecks)
{
    GuardedImage<Pxl8u> a(4, 3), d(4, 3);
    struct A { const Pxl8u* a; Pxl8u* d; int step; PxliSize roi; };
    const std::vector<Fault<A>> faults = {{"null source", pxlStatusNullPointer, [](A& x) { x.a = nullptr; }},
                                          {"null destination", pxlStatusNullPointer, [](A& x) { x.d = nullptr; }},
                                          {"step 0", pxlStatusBadStep, [](A& x) { x.step = 0; }},
                                          {"width 0", pxlStatusBadSize, [](A& x) { x.roi.width = 0; }}};
    const A valid{a.data(), d.data(), a.step(), {4, 3}};
    expectCheckOrder(valid, faults, [&](const A& x) { return pxliXor_8u_C1R(x.a, x.step, a.data(), a.step(), x.d, d.step(), x.roi); }, {&d});
    expectCheckOrder(valid, faults, [&](const A& x) { return pxliLShiftC_8u_C1R(x.a, x.step, 9, x.d, d.step(), x.roi); }, {&d});
    expectCheckOrder(valid, faults, [&](const A& x) { return pxliNot_8u_C1R(x.a, x.step, x.d, d.step(), x.roi); }, {&d});
}
