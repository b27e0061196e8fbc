// Threshold (GT: x above t becomes t) and compare (less) on a frame (1920x1080 unless --size says otherwise), against OpenCV's
// threshold with THRESH_TRUNC and compare with CMP_LT, and a memcpy of the bytes moved.
#include "bench.hpp"

#ifdef PXL_BENCH_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using pxlbench::H;
using pxlbench::W;

template <class T, class Ours>
void threshold(const std::string& name, [[maybe_unused]] pxlbench::MatType peerType, Ours ours)
{
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, sizeof(T)), d(W, H, sizeof(T));
        pxlbench::pixelValues<T>(a);
        for (auto _ : s) {
            benchmark::DoNotOptimize(ours(a.as<T>(), a.step, d.as<T>(), d.step, PxliSize{W, H}));
            benchmark::ClobberMemory();
        }
    });
    pxlbench::addMemcpy(name, static_cast<std::size_t>(W) * H * sizeof(T), static_cast<std::size_t>(W) * H * sizeof(T));
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, sizeof(T)), d(W, H, sizeof(T));
        pxlbench::pixelValues<T>(a);
        cv::Mat ma = a.mat(peerType), md = d.mat(peerType);
        for (auto _ : s) {
            cv::threshold(ma, md, 100, 255, cv::THRESH_TRUNC);
            benchmark::ClobberMemory();
        }
    });
#endif
}

template <class T, class Ours>
void compare(const std::string& name, [[maybe_unused]] pxlbench::MatType peerType, Ours ours)
{
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, sizeof(T)), b(W, H, sizeof(T)), d(W, H, 1);
        pxlbench::pixelValues<T>(a);
        pxlbench::pixelValues<T>(b);
        for (auto _ : s) {
            benchmark::DoNotOptimize(ours(a.as<T>(), a.step, b.as<T>(), b.step, d.as<Pxl8u>(), d.step, PxliSize{W, H}));
            benchmark::ClobberMemory();
        }
    });
    pxlbench::addMemcpy(name, 2 * static_cast<std::size_t>(W) * H * sizeof(T), static_cast<std::size_t>(W) * H);
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, sizeof(T)), b(W, H, sizeof(T)), d(W, H, 1);
        pxlbench::pixelValues<T>(a);
        pxlbench::pixelValues<T>(b);
        cv::Mat ma = a.mat(peerType), mb = b.mat(peerType), md = d.mat(pxlbench::k8uC1);
        for (auto _ : s) {
            cv::compare(ma, mb, md, cv::CMP_LT);
            benchmark::ClobberMemory();
        }
    });
#endif
}

void thresholdBenchmarks()
{
    const std::string sz = pxlbench::sizeTag();
    threshold<Pxl8u>("Threshold GT 8u C1" + sz, pxlbench::k8uC1,
                     [](auto s, int ss, auto d, int ds, PxliSize r) { return pxliThreshold_GT_8u_C1R(s, ss, d, ds, r, 100); });
    threshold<Pxl32f>("Threshold GT 32f C1" + sz, pxlbench::k32fC1,
                      [](auto s, int ss, auto d, int ds, PxliSize r) { return pxliThreshold_GT_32f_C1R(s, ss, d, ds, r, 100.0f); });
    compare<Pxl8u>("Compare less 8u C1" + sz, pxlbench::k8uC1, [](auto a, int as, auto b, int bs, auto d, int ds, PxliSize r) {
        return pxliCompare_8u_C1R(a, as, b, bs, d, ds, r, pxlCmpLess);
    });
    compare<Pxl32f>("Compare less 32f C1" + sz, pxlbench::k32fC1, [](auto a, int as, auto b, int bs, auto d, int ds, PxliSize r) {
        return pxliCompare_32f_C1R(a, as, b, bs, d, ds, r, pxlCmpLess);
    });
}

const pxlbench::Registrar registrar(thresholdBenchmarks);

}  // namespace
