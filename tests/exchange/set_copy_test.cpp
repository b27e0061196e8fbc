// Set, copy, copy-managed and dup against reference models written from the rules, over random
// samples with each type's extremes, on odd, single-row, single-column and gap-free regions.
#include "exchange_api.hpp"
#include "pxltest.hpp"

#include <array>

using namespace pxltest;

namespace {

struct Shape {
    int w, h;
    bool contiguous;
};
const Shape kShapes[] = {{1, 1, false}, {1, 7, false}, {9, 1, false}, {13, 5, false}, {67, 3, false},
                         {64, 4, true}, {3, 5, true},  {1, 1, true},  {1100, 2, false}, {700, 3, true}};

template <class T> GuardedImage<T> image(const Shape& s, int channels, Rng& rng)
{
    GuardedImage<T> img = s.contiguous ? GuardedImage<T>::contiguous(s.w, s.h, channels) : GuardedImage<T>(s.w, s.h, channels);
    img.fillRandom(rng);
    return img;
}

GuardedImage<Pxl8u> randomMask(const Shape& s, Rng& rng)
{
    GuardedImage<Pxl8u> m(s.w, s.h);
    for (int y = 0; y < s.h; ++y)
        for (int x = 0; x < s.w; ++x) m.at(x, y) = rng.chance(0.5) ? 0 : static_cast<Pxl8u>(rng.uniformInt(1, 255));
    return m;
}

// Pointers are checked before sizes: each null pointer and each bad size, alone and two at once.
struct PtrSizeArgs {
    std::array<bool, 5> null{};
    PxliSize roi;
};
template <class Call>
void expectPointersThenSize(int pointers, PxliSize roi, const GuardedBuffer& watched, Call call)
{
    std::vector<Fault<PtrSizeArgs>> faults;
    for (int i = 0; i < pointers; ++i)
        faults.push_back({"pointer " + std::to_string(i) + " null", pxlStatusNullPointer,
                          [i](PtrSizeArgs& a) { a.null[static_cast<std::size_t>(i)] = true; }});
    faults.push_back({"width 0", pxlStatusBadSize, [](PtrSizeArgs& a) { a.roi.width = 0; }});
    faults.push_back({"height -1", pxlStatusBadSize, [](PtrSizeArgs& a) { a.roi.height = -1; }});
    faults.push_back({"width INT_MIN", pxlStatusBadSize, [](PtrSizeArgs& a) { a.roi.width = INT32_MIN; }});
    PtrSizeArgs valid;
    valid.roi = roi;
    expectCheckOrder(valid, faults, call, {&watched});
}
template <class P> P* orNull(bool null, P* p) { return null ? nullptr : p; }

}  // namespace

template <class T> class SetCopy : public ::testing::Test {};
using SampleTypes = ::testing::Types<Pxl8u, Pxl16u, Pxl16s, Pxl32s, Pxl32f>;
TYPED_TEST_SUITE(SetCopy, SampleTypes);

TYPED_TEST(SetCopy, SetWritesTheValueAndNothingElse)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    Rng rng(11);
    for (const Shape& s : kShapes) {
        SCOPED_TRACE(::testing::Message() << s.w << "x" << s.h << (s.contiguous ? " contiguous" : ""));
        const T v[4] = {rng.sample<T>(), rng.sample<T>(), rng.sample<T>(), rng.sample<T>()};
        const T same[4] = {v[0], v[0], v[0], v[0]};  // a pixel of equal bytes takes the byte-fill path
        for (const T* val : {v, same}) {
            auto c1 = image<T>(s, 1, rng);
            ASSERT_EQ(A::setC1(val[0], c1.data(), c1.step(), c1.size()), pxlStatusOk);
            EXPECT_TRUE(matchesEach(c1, [&](int, int, int) { return val[0]; }));
            for (int n : {3, 4}) {
                auto img = image<T>(s, n, rng);
                const auto before = img;
                ASSERT_EQ((n == 3 ? A::setC3 : A::setC4)(val, img.data(), img.step(), img.size()), pxlStatusOk);
                EXPECT_TRUE(matchesEach(img, [&](int, int, int c) { return val[c]; }));
            }
            auto ac4 = image<T>(s, 4, rng);
            const auto before = ac4;
            ASSERT_EQ(A::setAC4(val, ac4.data(), ac4.step(), ac4.size()), pxlStatusOk);
            EXPECT_TRUE(matchesEach(ac4, [&](int x, int y, int c) { return c == 3 ? before.at(x, y, 3) : val[c]; }));
        }
        // One channel of three or four; pDst points at that channel of the first pixel.
        for (int n : {3, 4}) {
            const int ch = n - 1;
            auto img = image<T>(s, n, rng);
            const auto before = img;
            ASSERT_EQ((n == 3 ? A::setC3C : A::setC4C)(v[1], img.data() + ch, img.step(), img.size()), pxlStatusOk);
            EXPECT_TRUE(matchesEach(img, [&](int x, int y, int c) { return c == ch ? v[1] : before.at(x, y, c); }));
        }
    }
}

TYPED_TEST(SetCopy, MaskedSetWritesOnlyWhereTheMaskIsSet)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    Rng rng(12);
    for (const Shape& s : kShapes) {
        const T v[4] = {rng.sample<T>(), rng.sample<T>(), rng.sample<T>(), rng.sample<T>()};
        const auto mask = randomMask(s, rng);
        struct Form { int channels, written; PxlStatus (*fn)(const T*, T*, int, PxliSize, const Pxl8u*, int); };
        for (const Form& f : {Form{3, 3, A::setC3M}, Form{4, 4, A::setC4M}, Form{4, 3, A::setAC4M}}) {
            auto img = image<T>(s, f.channels, rng);
            const auto before = img;
            ASSERT_EQ(f.fn(v, img.data(), img.step(), img.size(), mask.data(), mask.step()), pxlStatusOk);
            EXPECT_TRUE(matchesEach(img, [&](int x, int y, int c) {
                return mask.at(x, y) && c < f.written ? v[c] : before.at(x, y, c);
            })) << f.channels << " channels, " << f.written << " written";
        }
        auto c1 = image<T>(s, 1, rng);
        const auto before = c1;
        ASSERT_EQ(A::setC1M(v[2], c1.data(), c1.step(), c1.size(), mask.data(), mask.step()), pxlStatusOk);
        EXPECT_TRUE(matchesEach(c1, [&](int x, int y, int) { return mask.at(x, y) ? v[2] : before.at(x, y); }));
    }
    // An all-zero mask changes nothing.
    GuardedImage<T> img(5, 4);
    GuardedImage<Pxl8u> zero(5, 4);
    img.fillRandom(rng);
    zero.fill(0);
    Watch w({&img});
    EXPECT_EQ(A::setC1M(T(1), img.data(), img.step(), img.size(), zero.data(), zero.step()), pxlStatusOk);
    EXPECT_TRUE(w.unchanged());
}

TYPED_TEST(SetCopy, CopyOfEveryLayoutAndMask)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    Rng rng(13);
    using Fn = PxlStatus (*)(const T*, int, T*, int, PxliSize);
    using MFn = PxlStatus (*)(const T*, int, T*, int, PxliSize, const Pxl8u*, int);
    struct Form { int channels, copied; Fn plain; MFn masked; };
    for (const Shape& s : kShapes) {
        SCOPED_TRACE(::testing::Message() << s.w << "x" << s.h << (s.contiguous ? " contiguous" : ""));
        const auto mask = randomMask(s, rng);
        for (const Form& f : {Form{1, 1, A::copyC1, A::copyC1M}, Form{3, 3, A::copyC3, A::copyC3M},
                              Form{4, 4, A::copyC4, A::copyC4M}, Form{4, 3, A::copyAC4, A::copyAC4M}}) {
            SCOPED_TRACE(::testing::Message() << f.channels << " channels, " << f.copied << " copied");
            const auto src = image<T>(s, f.channels, rng);
            auto dst = image<T>(s, f.channels, rng);
            const auto before = dst;
            ASSERT_EQ(f.plain(src.data(), src.step(), dst.data(), dst.step(), dst.size()), pxlStatusOk);
            EXPECT_TRUE(matchesEach(dst, [&](int x, int y, int c) { return c < f.copied ? src.at(x, y, c) : before.at(x, y, c); }));
            auto mdst = before;
            ASSERT_EQ(f.masked(src.data(), src.step(), mdst.data(), mdst.step(), mdst.size(), mask.data(), mask.step()), pxlStatusOk);
            EXPECT_TRUE(matchesEach(mdst, [&](int x, int y, int c) {
                return mask.at(x, y) && c < f.copied ? src.at(x, y, c) : before.at(x, y, c);
            }));
        }
    }
}

TYPED_TEST(SetCopy, CopyBetweenLayoutsAndChannels)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    Rng rng(14);
    using Fn = PxlStatus (*)(const T*, int, T*, int, PxliSize);
    // Source and destination channel counts, the channel the source and destination pointers are
    // advanced to, and how many samples of each pixel move.
    struct Form { const char* name; Fn fn; int srcN, dstN, srcCh, dstCh, count; };
    const Form forms[] = {
        {"C3CR", A::copyC3C, 3, 3, 2, 2, 1},   {"C4CR", A::copyC4C, 4, 4, 1, 1, 1},
        {"C3C1R", A::copyC3C1, 3, 1, 1, 0, 1}, {"C4C1R", A::copyC4C1, 4, 1, 3, 0, 1},
        {"C1C3R", A::copyC1C3, 1, 3, 0, 2, 1}, {"C1C4R", A::copyC1C4, 1, 4, 0, 3, 1},
        {"C3AC4R", A::copyC3AC4, 3, 4, 0, 0, 3}, {"AC4C3R", A::copyAC4C3, 4, 3, 0, 0, 3},
    };
    for (const Shape& s : kShapes)
        for (const Form& f : forms) {
            SCOPED_TRACE(::testing::Message() << f.name << " " << s.w << "x" << s.h);
            const auto src = image<T>(s, f.srcN, rng);
            auto dst = image<T>(s, f.dstN, rng);
            const auto before = dst;
            ASSERT_EQ(f.fn(src.data() + f.srcCh, src.step(), dst.data() + f.dstCh, dst.step(), dst.size()), pxlStatusOk);
            EXPECT_TRUE(matchesEach(dst, [&](int x, int y, int c) {
                const int k = c - f.dstCh;
                return k >= 0 && k < f.count ? src.at(x, y, f.srcCh + k) : before.at(x, y, c);
            }));
        }
}

TYPED_TEST(SetCopy, PlanesToAndFromInterleaved)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    Rng rng(15);
    for (const Shape& s : kShapes)
        for (int n : {3, 4}) {
            SCOPED_TRACE(::testing::Message() << n << " planes, " << s.w << "x" << s.h);
            const auto src = image<T>(s, n, rng);
            std::vector<GuardedImage<T>> planes;
            // All planes share one step, so they are made alike.
            for (int c = 0; c < n; ++c) planes.push_back(image<T>(s, 1, rng));
            T* dst[4] = {};
            for (int c = 0; c < n; ++c) dst[c] = planes[static_cast<std::size_t>(c)].data();
            ASSERT_EQ((n == 3 ? A::copyC3P3 : A::copyC4P4)(src.data(), src.step(), dst, planes[0].step(), src.size()), pxlStatusOk);
            for (int c = 0; c < n; ++c)
                EXPECT_TRUE(matchesEach(planes[static_cast<std::size_t>(c)], [&](int x, int y, int) { return src.at(x, y, c); }));
            auto back = image<T>(s, n, rng);
            const T* from[4] = {dst[0], dst[1], dst[2], dst[3]};
            ASSERT_EQ((n == 3 ? A::copyP3C3 : A::copyP4C4)(from, planes[0].step(), back.data(), back.step(), back.size()), pxlStatusOk);
            EXPECT_TRUE(matchesEach(back, [&](int x, int y, int c) { return src.at(x, y, c); }));
        }
}

TYPED_TEST(SetCopy, StepsAreNotCheckedZeroAndNegativeWork)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    Rng rng(16);
    GuardedImage<T> src(11, 6, 3), dst(11, 6, 3);
    src.fillRandom(rng);
    dst.fillRandom(rng);
    // A zero source step reads the first row again for every row.
    ASSERT_EQ(A::copyC3(src.data(), 0, dst.data(), dst.step(), dst.size()), pxlStatusOk);
    EXPECT_TRUE(matchesEach(dst, [&](int x, int, int c) { return src.at(x, 0, c); }));
    // A negative destination step from the last row writes the rows upwards.
    ASSERT_EQ(A::copyC3(src.data(), src.step(), dst.row(5), -dst.step(), dst.size()), pxlStatusOk);
    EXPECT_TRUE(matchesEach(dst, [&](int x, int y, int c) { return src.at(x, 5 - y, c); }));
    const T v[3] = {T(1), T(2), T(3)};
    GuardedImage<T> one(11, 1, 3);
    ASSERT_EQ(A::setC3(v, one.data(), 0, {11, 6}), pxlStatusOk);
    EXPECT_TRUE(matchesEach(one, [&](int, int, int c) { return v[c]; }));
}

TYPED_TEST(SetCopy, PointersThenSizes)
{
    using T = TypeParam;
    using A = ExchangeApi<T>;
    GuardedImage<T> src(6, 4, 4), dst(6, 4, 4), p0(6, 4), p1(6, 4), p2(6, 4), p3(6, 4);
    GuardedImage<Pxl8u> mask(6, 4);
    const T v[4] = {};
    const PxliSize roi = dst.size();
    auto check = [&](int pointers, auto call) { expectPointersThenSize(pointers, roi, dst, call); };
    check(1, [&](const PtrSizeArgs& a) { return A::setC1(T(1), orNull(a.null[0], dst.data()), dst.step(), a.roi); });
    check(1, [&](const PtrSizeArgs& a) { return A::setC3C(T(1), orNull(a.null[0], dst.data()), dst.step(), a.roi); });
    check(2, [&](const PtrSizeArgs& a) { return A::setC4(orNull(a.null[0], v), orNull(a.null[1], dst.data()), dst.step(), a.roi); });
    check(2, [&](const PtrSizeArgs& a) { return A::setAC4(orNull(a.null[0], v), orNull(a.null[1], dst.data()), dst.step(), a.roi); });
    check(2, [&](const PtrSizeArgs& a) {
        return A::setC1M(T(1), orNull(a.null[0], dst.data()), dst.step(), a.roi, orNull(a.null[1], mask.data()), 6);
    });
    check(3, [&](const PtrSizeArgs& a) {
        return A::setAC4M(orNull(a.null[0], v), orNull(a.null[1], dst.data()), dst.step(), a.roi, orNull(a.null[2], mask.data()), 6);
    });
    check(2, [&](const PtrSizeArgs& a) { return A::copyC4(orNull(a.null[0], src.data()), src.step(), orNull(a.null[1], dst.data()), dst.step(), a.roi); });
    check(2, [&](const PtrSizeArgs& a) { return A::copyAC4(orNull(a.null[0], src.data()), src.step(), orNull(a.null[1], dst.data()), dst.step(), a.roi); });
    check(2, [&](const PtrSizeArgs& a) { return A::copyC4C1(orNull(a.null[0], src.data()), src.step(), orNull(a.null[1], dst.data()), dst.step(), a.roi); });
    check(3, [&](const PtrSizeArgs& a) {
        return A::copyC3M(orNull(a.null[0], src.data()), src.step(), orNull(a.null[1], dst.data()), dst.step(), a.roi,
                          orNull(a.null[2], mask.data()), 6);
    });
    // The plane forms check the array and then each plane pointer, all before the size.
    check(5, [&](const PtrSizeArgs& a) {
        T* planes[4] = {orNull(a.null[1], p0.data()), orNull(a.null[2], p1.data()), orNull(a.null[3], p2.data()),
                        orNull(a.null[4], p3.data())};
        return A::copyC4P4(src.data(), src.step(), a.null[0] ? nullptr : planes, p0.step(), a.roi);
    });
    check(4, [&](const PtrSizeArgs& a) {
        const T* planes[3] = {orNull(a.null[1], p0.data()), orNull(a.null[2], p1.data()), orNull(a.null[3], p2.data())};
        return A::copyP3C3(a.null[0] ? nullptr : planes, p0.step(), dst.data(), dst.step(), a.roi);
    });
}

// The wide copies of 8u and 32f give the plain copies' result.
template <class T, class Fn, class WideFn>
void expectWideLikePlain(Fn plain, WideFn wide, int channels, Rng& rng)
{
    for (const Shape& s : kShapes) {
        const auto src = image<T>(s, channels, rng);
        auto a = image<T>(s, channels, rng);
        auto b = a;
        ASSERT_EQ(plain(src.data(), src.step(), a.data(), a.step(), a.size()), pxlStatusOk);
        ASSERT_EQ(wide(src.data(), src.step(), b.data(), b.step(), PxliSizeL{s.w, s.h}), pxlStatusOk);
        EXPECT_TRUE(regionsEqual(b, a));
        EXPECT_TRUE(b.guardsIntact());
        EXPECT_EQ(wide(nullptr, src.step(), b.data(), b.step(), PxliSizeL{0, s.h}), pxlStatusNullPointer);
        EXPECT_EQ(wide(src.data(), src.step(), b.data(), b.step(), PxliSizeL{s.w, 0}), pxlStatusBadSize);
    }
}

TEST(WideCopy, GivesThePlainResult)
{
    Rng rng(17);
    expectWideLikePlain<Pxl8u>(pxliCopy_8u_C1R, pxliCopy_8u_C1R_L, 1, rng);
    expectWideLikePlain<Pxl8u>(pxliCopy_8u_C3R, pxliCopy_8u_C3R_L, 3, rng);
    expectWideLikePlain<Pxl8u>(pxliCopy_8u_C4R, pxliCopy_8u_C4R_L, 4, rng);
    expectWideLikePlain<Pxl8u>(pxliCopy_8u_AC4R, pxliCopy_8u_AC4R_L, 4, rng);
    expectWideLikePlain<Pxl32f>(pxliCopy_32f_C1R, pxliCopy_32f_C1R_L, 1, rng);
    expectWideLikePlain<Pxl32f>(pxliCopy_32f_C3R, pxliCopy_32f_C3R_L, 3, rng);
    expectWideLikePlain<Pxl32f>(pxliCopy_32f_C4R, pxliCopy_32f_C4R_L, 4, rng);
    expectWideLikePlain<Pxl32f>(pxliCopy_32f_AC4R, pxliCopy_32f_AC4R_L, 4, rng);
}

TEST(CopyManaged, AnyFlagsGiveThePlainCopy)
{
    Rng rng(18);
    for (int flags : {0, 1, 2, -1, INT32_MAX}) {
        const auto src = image<Pxl8u>({29, 7, false}, 1, rng);
        auto dst = image<Pxl8u>({29, 7, false}, 1, rng);
        ASSERT_EQ(pxliCopyManaged_8u_C1R(src.data(), src.step(), dst.data(), dst.step(), dst.size(), flags), pxlStatusOk);
        EXPECT_TRUE(matchesEach(dst, [&](int x, int y, int) { return src.at(x, y); }));
    }
    GuardedImage<Pxl8u> dst(4, 4);
    expectPointersThenSize(2, dst.size(), dst, [&](const PtrSizeArgs& a) {
        return pxliCopyManaged_8u_C1R(orNull(a.null[0], dst.data()), 4, orNull(a.null[1], dst.data()), dst.step(), a.roi, 0);
    });
}

TEST(Dup, EveryChannelGetsTheSample)
{
    Rng rng(19);
    for (const Shape& s : kShapes)
        for (int n : {3, 4}) {
            const auto src = image<Pxl8u>(s, 1, rng);
            auto dst = image<Pxl8u>(s, n, rng);
            ASSERT_EQ((n == 3 ? pxliDup_8u_C1C3R : pxliDup_8u_C1C4R)(src.data(), src.step(), dst.data(), dst.step(), dst.size()),
                      pxlStatusOk);
            EXPECT_TRUE(matchesEach(dst, [&](int x, int y, int) { return src.at(x, y); }));
        }
    GuardedImage<Pxl8u> src(4, 4), dst(4, 4, 3);
    expectPointersThenSize(2, dst.size(), dst, [&](const PtrSizeArgs& a) {
        return pxliDup_8u_C1C3R(orNull(a.null[0], src.data()), src.step(), orNull(a.null[1], dst.data()), dst.step(), a.roi);
    });
}
