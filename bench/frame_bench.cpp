// The frame: the cost of a call through a stub, and of image memory.
#include "bench.hpp"

namespace {

void frameBenchmarks()
{
    pxlbench::add("GetLibVersion (a call through the table)/-", "pxl", [](benchmark::State& s) {
        for (auto _ : s) benchmark::DoNotOptimize(pxliGetLibVersion());
    });
    pxlbench::add("Malloc+Free 8u C3/1920x1080", "pxl", [](benchmark::State& s) {
        int32_t step;
        for (auto _ : s) {
            Pxl8u* p = pxliMalloc_8u_C3(1920, 1080, &step);
            benchmark::DoNotOptimize(p);
            pxliFree(p);
        }
    });
#ifdef PXL_BENCH_OPENCV
    pxlbench::add("Malloc+Free 8u C3/1920x1080", "peer", [](benchmark::State& s) {
        for (auto _ : s) {
            cv::Mat m(1080, 1920, pxlbench::cvType(pxlbench::k8uC3));
            benchmark::DoNotOptimize(m.data);
        }
    });
#endif
}

const pxlbench::Registrar registrar(frameBenchmarks);

}  // namespace
