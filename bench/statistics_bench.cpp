// Reductions over a frame (1920x1080 unless --size says otherwise): sum, mean, min-max, the L2
// norm, a 256-bin histogram and the Otsu threshold, against OpenCV's sum, mean, minMaxLoc, norm,
// calcHist and threshold with THRESH_OTSU (which also writes the thresholded image), and a
// memcpy of the bytes read.
#include "bench.hpp"

#include <vector>

#ifdef PXL_BENCH_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using pxlbench::H;
using pxlbench::W;

// One reduction of a single image: ours(src, step, size) and the peer's peer(mat).
template <class T, class Ours, class Peer>
void reduction(const std::string& name, [[maybe_unused]] pxlbench::MatType peerType, Ours ours, [[maybe_unused]] Peer peer)
{
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, sizeof(T));
        pxlbench::pixelValues<T>(a);
        for (auto _ : s) {
            benchmark::DoNotOptimize(ours(a.as<T>(), a.step, PxliSize{W, H}));
            benchmark::ClobberMemory();
        }
    });
    pxlbench::addMemcpy(name, static_cast<std::size_t>(W) * H * sizeof(T), 0);
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, sizeof(T));
        pxlbench::pixelValues<T>(a);
        cv::Mat ma = a.mat(peerType);
        for (auto _ : s) {
            peer(ma);
            benchmark::ClobberMemory();
        }
    });
#endif
}

#ifdef PXL_BENCH_OPENCV
#define PXL_PEER(...) [](const cv::Mat& m) { __VA_ARGS__; }
#else
#define PXL_PEER(...) 0
#endif

void statisticsBenchmarks()
{
    const std::string sz = pxlbench::sizeTag();
    reduction<Pxl8u>("Sum 8u C1" + sz, pxlbench::k8uC1, [](auto s, int ss, PxliSize r) {
        double v;
        return pxliSum_8u_C1R(s, ss, r, &v);
    }, PXL_PEER(benchmark::DoNotOptimize(cv::sum(m))));
    reduction<Pxl32f>("Mean 32f C1" + sz, pxlbench::k32fC1, [](auto s, int ss, PxliSize r) {
        double v;
        return pxliMean_32f_C1R(s, ss, r, &v, 0);
    }, PXL_PEER(benchmark::DoNotOptimize(cv::mean(m))));
    reduction<Pxl32f>("MinMax 32f C1" + sz, pxlbench::k32fC1, [](auto s, int ss, PxliSize r) {
        float lo, hi;
        return pxliMinMax_32f_C1R(s, ss, r, &lo, &hi);
    }, PXL_PEER(double lo; double hi; cv::minMaxLoc(m, &lo, &hi); benchmark::DoNotOptimize(lo + hi)));
    reduction<Pxl32f>("Norm L2 32f C1" + sz, pxlbench::k32fC1, [](auto s, int ss, PxliSize r) {
        double v;
        return pxliNorm_L2_32f_C1R(s, ss, r, &v, 0);
    }, PXL_PEER(benchmark::DoNotOptimize(cv::norm(m, cv::NORM_L2))));
    reduction<Pxl8u>("Histogram 256 8u C1" + sz, pxlbench::k8uC1, [](auto s, int ss, PxliSize r) {
        // The record is made once per call, as a caller with a fresh image would.
        alignas(64) static thread_local unsigned char spec[64 + 4 * 257], buffer[1024];
        static thread_local Pxl32s hist[256];
        const int levels = 257;
        const float lo = 0, hi = 256;
        pxliHistogramUniformInit(pxlDt8u, &lo, &hi, &levels, 1, reinterpret_cast<PxliHistogramSpec*>(spec));
        return pxliHistogram_8u_C1R(s, ss, r, hist, reinterpret_cast<PxliHistogramSpec*>(spec), buffer);
    }, PXL_PEER(cv::Mat hist; const int bins = 256; const float range[] = {0, 256}; const float* ranges[] = {range};
                const int channel = 0; cv::calcHist(&m, 1, &channel, cv::Mat(), hist, 1, &bins, ranges);
                benchmark::DoNotOptimize(hist.data)));
    reduction<Pxl8u>("Otsu threshold 8u C1" + sz, pxlbench::k8uC1, [](auto s, int ss, PxliSize r) {
        Pxl8u t;
        return pxliComputeThreshold_Otsu_8u_C1R(s, ss, r, &t);
    }, PXL_PEER(cv::Mat out; benchmark::DoNotOptimize(cv::threshold(m, out, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU))));
}

const pxlbench::Registrar registrar(statisticsBenchmarks);

}  // namespace
