// A 16-pixel border around a 1920x1080 frame, replicated and constant, against OpenCV's
// copyMakeBorder and a memcpy of the bytes read and written.
#include "bench.hpp"

namespace {

constexpr int W = 1920, H = 1080, B = 16;
constexpr Pxl8u kValue3[3] = {7, 7, 7};

template <class Ours>
void border(const std::string& name, int channels, [[maybe_unused]] int cvType, [[maybe_unused]] int cvBorder, Ours ours)
{
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, channels), d(W + 2 * B, H + 2 * B, channels);
        for (auto _ : s) {
            benchmark::DoNotOptimize(ours(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step));
            benchmark::ClobberMemory();
        }
    });
    pxlbench::addMemcpy(name, std::size_t{W} * H * channels, std::size_t{W + 2 * B} * (H + 2 * B) * channels);
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, channels), d(W + 2 * B, H + 2 * B, channels);
        cv::Mat ma = a.mat(cvType), md = d.mat(cvType);
        for (auto _ : s) {
            cv::copyMakeBorder(ma, md, B, B, B, B, cvBorder, cv::Scalar(7, 7, 7));
            benchmark::ClobberMemory();
        }
    });
#endif
}

#ifndef PXL_BENCH_OPENCV
#define CV_8UC1 0
#define CV_8UC3 0
namespace cv { enum { BORDER_REPLICATE, BORDER_CONSTANT }; }
#endif

void borderBenchmarks()
{
    const std::string sz = "/1920x1080+16";
    const PxliSize src{W, H}, dst{W + 2 * B, H + 2 * B};
    border("Border replicate 8u C1" + sz, 1, CV_8UC1, cv::BORDER_REPLICATE,
           [=](auto s, int ss, auto d, int ds) { return pxliCopyReplicateBorder_8u_C1R(s, ss, src, d, ds, dst, B, B); });
    border("Border replicate 8u C3" + sz, 3, CV_8UC3, cv::BORDER_REPLICATE,
           [=](auto s, int ss, auto d, int ds) { return pxliCopyReplicateBorder_8u_C3R(s, ss, src, d, ds, dst, B, B); });
    border("Border constant 8u C1" + sz, 1, CV_8UC1, cv::BORDER_CONSTANT,
           [=](auto s, int ss, auto d, int ds) { return pxliCopyConstBorder_8u_C1R(s, ss, src, d, ds, dst, B, B, 7); });
    border("Border constant 8u C3" + sz, 3, CV_8UC3, cv::BORDER_CONSTANT,
           [=](auto s, int ss, auto d, int ds) { return pxliCopyConstBorder_8u_C3R(s, ss, src, d, ds, dst, B, B, kValue3); });
}

const pxlbench::Registrar registrar(borderBenchmarks);

}  // namespace
