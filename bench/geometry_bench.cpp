// Resize of a frame (1920x1080 unless --size says otherwise), one call on the whole image: 8u C3 to
// half and to twice its size, linear and nearest, against OpenCV's resize with INTER_LINEAR and
// INTER_NEAREST and a memcpy of the bytes read and written; 8u C1 cubic and Lanczos to two thirds.
#include "bench.hpp"

#include <vector>

#ifdef PXL_BENCH_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using pxlbench::H;
using pxlbench::W;

// OpenCV's resize of the W x H 8u image of `channels` to dw x dh with `interpolation`.
enum CvMethod { kCvNearest, kCvLinear, kCvCubic, kCvLanczos };
void addPeer(const std::string& name, int channels, int dw, int dh, CvMethod method)
{
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        static const int codes[] = {cv::INTER_NEAREST, cv::INTER_LINEAR, cv::INTER_CUBIC, cv::INTER_LANCZOS4};
        pxlbench::Image a(W, H, channels), d(dw, dh, channels);
        cv::Mat ma = a.mat(channels == 1 ? pxlbench::k8uC1 : pxlbench::k8uC3);
        cv::Mat md(dh, dw, CV_8UC(channels), d.data, static_cast<std::size_t>(d.step));
        for (auto _ : s) {
            cv::resize(ma, md, cv::Size(dw, dh), 0, 0, codes[method]);
            benchmark::ClobberMemory();
        }
    });
#else
    (void)name, (void)channels, (void)dw, (void)dh, (void)method;
#endif
}

void resize(int interpolation, int num, int den)
{
    const int dw = W * num / den, dh = H * num / den;
    const bool linear = interpolation == pxlInterpLinear;
    const std::string name = std::string(linear ? "ResizeLinear" : "ResizeNearest") + " 8u C3 to " + std::to_string(dw) + "x" +
                             std::to_string(dh) + pxlbench::sizeTag();
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, 3), d(dw, dh, 3);
        const PxliSize src{W, H}, dst{dw, dh};
        int specSize = 0, initSize = 0, bufferSize = 0;
        pxliResizeGetSize_8u(src, dst, interpolation, 0, &specSize, &initSize);
        std::vector<unsigned char> spec(static_cast<std::size_t>(specSize));
        auto* record = reinterpret_cast<PxliResizeSpec*>(spec.data());
        if (linear) pxliResizeLinearInit_8u(src, dst, record);
        else pxliResizeNearestInit_8u(src, dst, record);
        pxliResizeGetBufferSize_8u(record, dst, 3, &bufferSize);
        std::vector<Pxl8u> buffer(static_cast<std::size_t>(bufferSize));
        for (auto _ : s) {
            if (linear)
                benchmark::DoNotOptimize(pxliResizeLinear_8u_C3R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, {0, 0}, dst, pxlBorderReplicate,
                                                                 nullptr, record, buffer.data()));
            else
                benchmark::DoNotOptimize(pxliResizeNearest_8u_C3R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, {0, 0}, dst, record,
                                                                  buffer.data()));
            benchmark::ClobberMemory();
        }
    });
    const std::size_t out = static_cast<std::size_t>(dw) * dh * 3;
    pxlbench::addMemcpy(name, linear ? static_cast<std::size_t>(W) * H * 3 : out, out);
    addPeer(name, 3, dw, dh, linear ? kCvLinear : kCvNearest);
}

// Cubic (B = 0, C = 0.5) and 3-lobe Lanczos, 8u C1, to two thirds of the size, against
// INTER_CUBIC and INTER_LANCZOS4.
void resizeTapped(bool lanczos)
{
    const int dw = W * 2 / 3, dh = H * 2 / 3;
    const std::string name = std::string(lanczos ? "ResizeLanczos3" : "ResizeCubic") + " 8u C1 to " + std::to_string(dw) + "x" +
                             std::to_string(dh) + pxlbench::sizeTag();
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, 1), d(dw, dh, 1);
        const PxliSize src{W, H}, dst{dw, dh};
        int specSize = 0, initSize = 0, bufferSize = 0;
        pxliResizeGetSize_8u(src, dst, lanczos ? pxlInterpLanczos : pxlInterpCubic, 0, &specSize, &initSize);
        std::vector<unsigned char> spec(static_cast<std::size_t>(specSize)), init(static_cast<std::size_t>(initSize));
        auto* record = reinterpret_cast<PxliResizeSpec*>(spec.data());
        if (lanczos) pxliResizeLanczosInit_8u(src, dst, 3, record, init.data());
        else pxliResizeCubicInit_8u(src, dst, 0.0f, 0.5f, record, init.data());
        pxliResizeGetBufferSize_8u(record, dst, 1, &bufferSize);
        std::vector<Pxl8u> buffer(static_cast<std::size_t>(bufferSize));
        for (auto _ : s) {
            if (lanczos)
                benchmark::DoNotOptimize(pxliResizeLanczos_8u_C1R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, {0, 0}, dst, pxlBorderReplicate,
                                                                  nullptr, record, buffer.data()));
            else
                benchmark::DoNotOptimize(pxliResizeCubic_8u_C1R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, {0, 0}, dst, pxlBorderReplicate,
                                                                nullptr, record, buffer.data()));
            benchmark::ClobberMemory();
        }
    });
    addPeer(name, 1, dw, dh, lanczos ? kCvLanczos : kCvCubic);
}

void geometryBenchmarks()
{
    resizeTapped(false);
    resizeTapped(true);
    for (int interpolation : {pxlInterpLinear, pxlInterpNearest}) {
        resize(interpolation, 1, 2);
        resize(interpolation, 2, 1);
    }
}

const pxlbench::Registrar registrar(geometryBenchmarks);

}  // namespace
