// A 16-pixel border around a frame (1920x1080 unless --size says otherwise), replicated, mirrored and constant, against OpenCV's
// copyMakeBorder and a memcpy of the bytes read and written.
#include "bench.hpp"

namespace {

using pxlbench::H;
using pxlbench::W;
constexpr int B = 16;
constexpr Pxl8u kValue3[3] = {7, 7, 7};

enum class Kind { Constant, Replicate, Mirror };

template <class Ours>
void border(const std::string& name, int channels, [[maybe_unused]] pxlbench::MatType peerType, [[maybe_unused]] Kind kind,
            Ours ours)
{
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, channels), d(W + 2 * B, H + 2 * B, channels);
        for (auto _ : s) {
            benchmark::DoNotOptimize(ours(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step));
            benchmark::ClobberMemory();
        }
    });
    pxlbench::addMemcpy(name, static_cast<std::size_t>(W) * H * channels, static_cast<std::size_t>(W + 2 * B) * (H + 2 * B) * channels);
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, channels), d(W + 2 * B, H + 2 * B, channels);
        cv::Mat ma = a.mat(peerType), md = d.mat(peerType);
        for (auto _ : s) {
            cv::copyMakeBorder(ma, md, B, B, B, B, kind == Kind::Constant ? cv::BORDER_CONSTANT : kind == Kind::Replicate ? cv::BORDER_REPLICATE : cv::BORDER_REFLECT_101, cv::Scalar(7, 7, 7));
            benchmark::ClobberMemory();
        }
    });
#endif
}

void borderBenchmarks()
{
    const std::string sz = pxlbench::sizeTag() + "+16";
    const PxliSize src{W, H}, dst{W + 2 * B, H + 2 * B};
    border("Border replicate 8u C1" + sz, 1, pxlbench::k8uC1, Kind::Replicate,
           [=](auto s, int ss, auto d, int ds) { return pxliCopyReplicateBorder_8u_C1R(s, ss, src, d, ds, dst, B, B); });
    border("Border replicate 8u C3" + sz, 3, pxlbench::k8uC3, Kind::Replicate,
           [=](auto s, int ss, auto d, int ds) { return pxliCopyReplicateBorder_8u_C3R(s, ss, src, d, ds, dst, B, B); });
    // The mirror leaves the edge pixel out, as the peer's BORDER_REFLECT_101 does.
    border("Border mirror 8u C1" + sz, 1, pxlbench::k8uC1, Kind::Mirror,
           [=](auto s, int ss, auto d, int ds) { return pxliCopyMirrorBorder_8u_C1R(s, ss, src, d, ds, dst, B, B); });
    border("Border mirror 8u C3" + sz, 3, pxlbench::k8uC3, Kind::Mirror,
           [=](auto s, int ss, auto d, int ds) { return pxliCopyMirrorBorder_8u_C3R(s, ss, src, d, ds, dst, B, B); });
    border("Border constant 8u C1" + sz, 1, pxlbench::k8uC1, Kind::Constant,
           [=](auto s, int ss, auto d, int ds) { return pxliCopyConstBorder_8u_C1R(s, ss, src, d, ds, dst, B, B, 7); });
    border("Border constant 8u C3" + sz, 3, pxlbench::k8uC3, Kind::Constant,
           [=](auto s, int ss, auto d, int ds) { return pxliCopyConstBorder_8u_C3R(s, ss, src, d, ds, dst, B, B, kValue3); });
}

const pxlbench::Registrar registrar(borderBenchmarks);

}  // namespace
