// Conversions on a frame (1920x1080 unless --size says otherwise) against OpenCV's convertTo (which rounds to nearest even, as
// our code 1 does) and a memcpy of the bytes read and written.
#include "bench.hpp"

namespace {

using pxlbench::H;
using pxlbench::W;

// The peer's convertTo with a scale and a shift (1 and 0 for the plain conversions).
template <class S, class D, class Ours>
void pair(const std::string& name, [[maybe_unused]] pxlbench::MatType cvSrc, [[maybe_unused]] pxlbench::MatType cvDst, Ours ours,
          [[maybe_unused]] double alpha = 1.0, [[maybe_unused]] double beta = 0.0)
{
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, sizeof(S)), d(W, H, sizeof(D));
        if constexpr (std::is_same_v<S, Pxl32f>) a.fillFloats(-50.0f, 300.0f);
        for (auto _ : s) {
            benchmark::DoNotOptimize(ours(a.as<S>(), a.step, d.as<D>(), d.step, PxliSize{W, H}));
            benchmark::ClobberMemory();
        }
    });
    pxlbench::addMemcpy(name, static_cast<std::size_t>(W) * H * sizeof(S), static_cast<std::size_t>(W) * H * sizeof(D));
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, sizeof(S)), d(W, H, sizeof(D));
        if constexpr (std::is_same_v<S, Pxl32f>) a.fillFloats(-50.0f, 300.0f);
        cv::Mat ma = a.mat(cvSrc), md = d.mat(cvDst);
        for (auto _ : s) {
            ma.convertTo(md, pxlbench::cvType(cvDst), alpha, beta);
            benchmark::ClobberMemory();
        }
    });
#endif
}

void convertBenchmarks()
{
    const std::string sz = pxlbench::sizeTag();
    pair<Pxl8u, Pxl32f>("Convert 8u32f C1" + sz, pxlbench::k8uC1, pxlbench::k32fC1,
                        [](auto... a) { return pxliConvert_8u32f_C1R(a...); });
    pair<Pxl32f, Pxl8u>("ScaleC 32f8u C1" + sz, pxlbench::k32fC1, pxlbench::k8uC1,
                        [](const Pxl32f* s, int ss, Pxl8u* d, int ds, PxliSize r) { return pxliScaleC_32f8u_C1R(s, ss, 0.75, 3.5, d, ds, r, 0); },
                        0.75, 3.5);
    pair<Pxl8u, Pxl32f>("ScaleC 8u32f C1" + sz, pxlbench::k8uC1, pxlbench::k32fC1,
                        [](const Pxl8u* s, int ss, Pxl32f* d, int ds, PxliSize r) { return pxliScaleC_8u32f_C1R(s, ss, 0.75, 3.5, d, ds, r, 0); },
                        0.75, 3.5);
    pair<Pxl16s, Pxl32f>("Convert 16s32f C1" + sz, pxlbench::k16sC1, pxlbench::k32fC1,
                         [](auto... a) { return pxliConvert_16s32f_C1R(a...); });
    pair<Pxl32f, Pxl8u>("Convert 32f8u C1 nearest" + sz, pxlbench::k32fC1, pxlbench::k8uC1,
                        [](auto... a) { return pxliConvert_32f8u_C1R(a..., pxlRoundNearestEven); });
    pair<Pxl32f, Pxl16s>("Convert 32f16s C1 nearest" + sz, pxlbench::k32fC1, pxlbench::k16sC1,
                         [](auto... a) { return pxliConvert_32f16s_C1R(a..., pxlRoundNearestEven); });
}

const pxlbench::Registrar registrar(convertBenchmarks);

}  // namespace
