// Set, copy, transpose, mirror and channel swaps on a frame (1920x1080 unless --size says otherwise).
#include "bench.hpp"

#ifdef PXL_BENCH_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using pxlbench::H;
using pxlbench::W;

#ifdef PXL_BENCH_OPENCV
pxlbench::MatType peerType(int depthBytes, int channels) { return {depthBytes == 1 ? pxlbench::Depth::u8 : pxlbench::Depth::f32, channels}; }
#endif

template <class T>
void setAndCopy(const char* t, int n)
{
    const int pb = n * static_cast<int>(sizeof(T));
    const std::string set = std::string("Set ") + t + " C" + std::to_string(n) + pxlbench::sizeTag();
    const std::string copy = std::string("Copy ") + t + " C" + std::to_string(n) + pxlbench::sizeTag();
    pxlbench::add(set, "pxl", [n, pb](benchmark::State& s) {
        pxlbench::Image d(W, H, pb);
        const T v[4] = {T(1), T(2), T(3), T(4)};
        for (auto _ : s) {
            PxlStatus st;
            if constexpr (sizeof(T) == 1) {
                st = n == 1 ? pxliSet_8u_C1R(v[0], d.as<T>(), d.step, {W, H})
                   : n == 3 ? pxliSet_8u_C3R(v, d.as<T>(), d.step, {W, H}) : pxliSet_8u_C4R(v, d.as<T>(), d.step, {W, H});
            } else {
                st = n == 1 ? pxliSet_32f_C1R(v[0], d.as<T>(), d.step, {W, H})
                   : n == 3 ? pxliSet_32f_C3R(v, d.as<T>(), d.step, {W, H}) : pxliSet_32f_C4R(v, d.as<T>(), d.step, {W, H});
            }
            benchmark::DoNotOptimize(st);
            benchmark::ClobberMemory();
        }
    });
    pxlbench::add(copy, "pxl", [n, pb](benchmark::State& s) {
        pxlbench::Image a(W, H, pb), d(W, H, pb);
        for (auto _ : s) {
            PxlStatus st;
            if constexpr (sizeof(T) == 1) {
                st = n == 1 ? pxliCopy_8u_C1R(a.as<T>(), a.step, d.as<T>(), d.step, {W, H})
                   : n == 3 ? pxliCopy_8u_C3R(a.as<T>(), a.step, d.as<T>(), d.step, {W, H})
                            : pxliCopy_8u_C4R(a.as<T>(), a.step, d.as<T>(), d.step, {W, H});
            } else {
                st = n == 1 ? pxliCopy_32f_C1R(a.as<T>(), a.step, d.as<T>(), d.step, {W, H})
                   : n == 3 ? pxliCopy_32f_C3R(a.as<T>(), a.step, d.as<T>(), d.step, {W, H})
                            : pxliCopy_32f_C4R(a.as<T>(), a.step, d.as<T>(), d.step, {W, H});
            }
            benchmark::DoNotOptimize(st);
            benchmark::ClobberMemory();
        }
    });
    const std::size_t bytes = static_cast<std::size_t>(W) * H * static_cast<std::size_t>(pb);
    pxlbench::addMemcpy(set, 0, bytes);
    pxlbench::addMemcpy(copy, bytes, bytes);
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(set, "peer", [n, pb](benchmark::State& s) {
        pxlbench::Image d(W, H, pb);
        cv::Mat m = d.mat(peerType(static_cast<int>(sizeof(T)), n));
        for (auto _ : s) {
            m.setTo(cv::Scalar(1, 2, 3, 4));
            benchmark::ClobberMemory();
        }
    });
    pxlbench::add(copy, "peer", [n, pb](benchmark::State& s) {
        pxlbench::Image a(W, H, pb), d(W, H, pb);
        cv::Mat ma = a.mat(peerType(static_cast<int>(sizeof(T)), n)), md = d.mat(peerType(static_cast<int>(sizeof(T)), n));
        for (auto _ : s) {
            ma.copyTo(md);
            benchmark::ClobberMemory();
        }
    });
#endif
}

// An op of ours and the peer's on the same pair of images.
template <class Ours, class Peer>
void pair(const std::string& op, int srcW, int srcH, int dstW, int dstH, int pb, pxlbench::MatType cvT, Ours ours, Peer peer)
{
    pxlbench::add(op, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(srcW, srcH, pb), d(dstW, dstH, pb);
        for (auto _ : s) {
            benchmark::DoNotOptimize(ours(a, d));
            benchmark::ClobberMemory();
        }
    });
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(op, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(srcW, srcH, pb), d(dstW, dstH, pb);
        cv::Mat ma = a.mat(cvT), md = d.mat(cvT);
        for (auto _ : s) {
            peer(ma, md);
            benchmark::ClobberMemory();
        }
    });
#else
    (void)cvT;
    (void)peer;
#endif
}

#ifdef PXL_BENCH_OPENCV
#define PEER(body) [](cv::Mat& a, cv::Mat& d) { body; }
#else
#define PEER(body) [](auto&, auto&) {}
#endif

void exchangeBenchmarks()
{
    setAndCopy<Pxl8u>("8u", 1);
    setAndCopy<Pxl8u>("8u", 3);
    setAndCopy<Pxl8u>("8u", 4);
    setAndCopy<Pxl32f>("32f", 1);
    setAndCopy<Pxl32f>("32f", 3);
    setAndCopy<Pxl32f>("32f", 4);
    using I = pxlbench::Image;
    pair("Transpose 8u C1" + pxlbench::sizeTag(), W, H, H, W, 1, pxlbench::k8uC1,
         [](I& a, I& d) { return pxliTranspose_8u_C1R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, {W, H}); },
         PEER(cv::transpose(a, d)));
    pair("Transpose 8u C3" + pxlbench::sizeTag(), W, H, H, W, 3, pxlbench::k8uC3,
         [](I& a, I& d) { return pxliTranspose_8u_C3R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, {W, H}); },
         PEER(cv::transpose(a, d)));
    pair("Transpose 32f C1" + pxlbench::sizeTag(), W, H, H, W, 4, pxlbench::k32fC1,
         [](I& a, I& d) { return pxliTranspose_32f_C1R(a.as<Pxl32f>(), a.step, d.as<Pxl32f>(), d.step, {W, H}); },
         PEER(cv::transpose(a, d)));
    pair("Mirror 8u C1 rows" + pxlbench::sizeTag(), W, H, W, H, 1, pxlbench::k8uC1,
         [](I& a, I& d) { return pxliMirror_8u_C1R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, {W, H}, pxlAxisHorizontal); },
         PEER(cv::flip(a, d, 0)));
    pair("Mirror 8u C1 columns" + pxlbench::sizeTag(), W, H, W, H, 1, pxlbench::k8uC1,
         [](I& a, I& d) { return pxliMirror_8u_C1R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, {W, H}, pxlAxisVertical); },
         PEER(cv::flip(a, d, 1)));
    pair("Mirror 8u C3 both" + pxlbench::sizeTag(), W, H, W, H, 3, pxlbench::k8uC3,
         [](I& a, I& d) { return pxliMirror_8u_C3R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, {W, H}, pxlAxisBoth); },
         PEER(cv::flip(a, d, -1)));
    pair("Mirror 32f C1 columns" + pxlbench::sizeTag(), W, H, W, H, 4, pxlbench::k32fC1,
         [](I& a, I& d) { return pxliMirror_32f_C1R(a.as<Pxl32f>(), a.step, d.as<Pxl32f>(), d.step, {W, H}, pxlAxisVertical); },
         PEER(cv::flip(a, d, 1)));
    pair("SwapChannels 8u C3 2,1,0" + pxlbench::sizeTag(), W, H, W, H, 3, pxlbench::k8uC3,
         [](I& a, I& d) {
             static const int order[3] = {2, 1, 0};
             return pxliSwapChannels_8u_C3R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, {W, H}, order);
         },
         PEER(cv::cvtColor(a, d, cv::COLOR_BGR2RGB)));
    pair("SwapChannels 8u C4 2,1,0,3" + pxlbench::sizeTag(), W, H, W, H, 4, pxlbench::k8uC4,
         [](I& a, I& d) {
             static const int order[4] = {2, 1, 0, 3};
             return pxliSwapChannels_8u_C4R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, {W, H}, order);
         },
         PEER(cv::cvtColor(a, d, cv::COLOR_BGRA2RGBA)));
    pair("SwapChannels 32f C3 2,1,0" + pxlbench::sizeTag(), W, H, W, H, 12, pxlbench::k32fC3,
         [](I& a, I& d) {
             static const int order[3] = {2, 1, 0};
             return pxliSwapChannels_32f_C3R(a.as<Pxl32f>(), a.step, d.as<Pxl32f>(), d.step, {W, H}, order);
         },
         PEER(cv::cvtColor(a, d, cv::COLOR_BGR2RGB)));
}

const pxlbench::Registrar registrar(exchangeBenchmarks);

}  // namespace
