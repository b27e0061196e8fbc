// Resize of a frame (1920x1080 unless --size says otherwise) to half and to twice its size, 8u C3,
// linear and nearest, one call on the whole image, against OpenCV's resize with INTER_LINEAR and
// INTER_NEAREST, and a memcpy of the bytes read and written.
#include "bench.hpp"

#include <vector>

#ifdef PXL_BENCH_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using pxlbench::H;
using pxlbench::W;

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
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, 3), d(dw, dh, 3);
        cv::Mat ma = a.mat(pxlbench::k8uC3);
        cv::Mat md(dh, dw, CV_8UC3, d.data, static_cast<std::size_t>(d.step));
        for (auto _ : s) {
            cv::resize(ma, md, cv::Size(dw, dh), 0, 0, linear ? cv::INTER_LINEAR : cv::INTER_NEAREST);
            benchmark::ClobberMemory();
        }
    });
#endif
}

void geometryBenchmarks()
{
    for (int interpolation : {pxlInterpLinear, pxlInterpNearest}) {
        resize(interpolation, 1, 2);
        resize(interpolation, 2, 1);
    }
}

const pxlbench::Registrar registrar(geometryBenchmarks);

}  // namespace
