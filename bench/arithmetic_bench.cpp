// Add and subtract on a frame (1920x1080 unless --size says otherwise), scale factor 0, against OpenCV's saturating add and
// subtract and a memcpy of the bytes the op reads and writes.
#include "bench.hpp"

namespace {

using pxlbench::H;
using pxlbench::W;

enum class Peer { Add, Sub, Mul, Div, And, Or, Xor };

template <class T, class Ours>
void op(const std::string& name, int channels, [[maybe_unused]] pxlbench::MatType peerType, Peer peer, Ours ours)
{
    const int pb = channels * static_cast<int>(sizeof(T));
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, pb), b(W, H, pb), d(W, H, pb);
        if constexpr (std::is_same_v<T, Pxl32f>) { a.fillFloats(0.5f, 300.0f); b.fillFloats(-1.0f, 1.0f); }
        for (auto _ : s) {
            benchmark::DoNotOptimize(ours(a.as<T>(), a.step, b.as<T>(), b.step, d.as<T>(), d.step, PxliSize{W, H}));
            benchmark::ClobberMemory();
        }
    });
    const std::size_t bytes = static_cast<std::size_t>(W) * H * static_cast<std::size_t>(pb);
    pxlbench::addMemcpy(name, 2 * bytes, bytes);
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, pb), b(W, H, pb), d(W, H, pb);
        if constexpr (std::is_same_v<T, Pxl32f>) { a.fillFloats(0.5f, 300.0f); b.fillFloats(-1.0f, 1.0f); }
        cv::Mat ma = a.mat(peerType), mb = b.mat(peerType), md = d.mat(peerType);
        for (auto _ : s) {
            switch (peer) {
            case Peer::Add: cv::add(ma, mb, md); break;
            case Peer::Sub: cv::subtract(mb, ma, md); break;
            case Peer::Mul: cv::multiply(ma, mb, md); break;
            case Peer::Div: cv::divide(mb, ma, md); break;
            case Peer::And: cv::bitwise_and(ma, mb, md); break;
            case Peer::Or: cv::bitwise_or(ma, mb, md); break;
            case Peer::Xor: cv::bitwise_xor(ma, mb, md); break;
            }
            benchmark::ClobberMemory();
        }
    });
#else
    (void)peer;
#endif
}

#define PXLB_SFS(fn) [](auto a, int as, auto b, int bs, auto d, int ds, PxliSize r) { return fn(a, as, b, bs, d, ds, r, 0); }
#define PXLB_F(fn) [](auto a, int as, auto b, int bs, auto d, int ds, PxliSize r) { return fn(a, as, b, bs, d, ds, r); }
void arithmeticBenchmarks()
{
    const std::string sz = pxlbench::sizeTag();
    op<Pxl8u>("Add 8u C1" + sz, 1, pxlbench::k8uC1, Peer::Add, PXLB_SFS(pxliAdd_8u_C1RSfs));
    op<Pxl8u>("Add 8u C3" + sz, 3, pxlbench::k8uC3, Peer::Add, PXLB_SFS(pxliAdd_8u_C3RSfs));
    op<Pxl8u>("Sub 8u C1" + sz, 1, pxlbench::k8uC1, Peer::Sub, PXLB_SFS(pxliSub_8u_C1RSfs));
    // With a scale (no peer has one): the exact rounding costs over the plain saturating sum.
    pxlbench::add("Add 8u C1 f=1" + sz, "pxl", [](benchmark::State& s) {
        pxlbench::Image a(W, H, 1), b(W, H, 1), d(W, H, 1);
        for (auto _ : s) benchmark::DoNotOptimize(pxliAdd_8u_C1RSfs(a.as<Pxl8u>(), a.step, b.as<Pxl8u>(), b.step, d.as<Pxl8u>(), d.step, {W, H}, 1));
    });
    pxlbench::add("Sub 8u C1 f=1" + sz, "pxl", [](benchmark::State& s) {
        pxlbench::Image a(W, H, 1), b(W, H, 1), d(W, H, 1);
        for (auto _ : s) benchmark::DoNotOptimize(pxliSub_8u_C1RSfs(a.as<Pxl8u>(), a.step, b.as<Pxl8u>(), b.step, d.as<Pxl8u>(), d.step, {W, H}, 1));
    });
    pxlbench::add("Mul 8u C1 f=1" + sz, "pxl", [](benchmark::State& s) {
        pxlbench::Image a(W, H, 1), b(W, H, 1), d(W, H, 1);
        for (auto _ : s) benchmark::DoNotOptimize(pxliMul_8u_C1RSfs(a.as<Pxl8u>(), a.step, b.as<Pxl8u>(), b.step, d.as<Pxl8u>(), d.step, {W, H}, 1));
    });
    pxlbench::add("Add 16s C1 f=-3" + sz, "pxl", [](benchmark::State& s) {
        pxlbench::Image a(W, H, 2), b(W, H, 2), d(W, H, 2);
        for (auto _ : s) benchmark::DoNotOptimize(pxliAdd_16s_C1RSfs(a.as<Pxl16s>(), a.step, b.as<Pxl16s>(), b.step, d.as<Pxl16s>(), d.step, {W, H}, -3));
    });
    op<Pxl16s>("Add 16s C1" + sz, 1, pxlbench::k16sC1, Peer::Add, PXLB_SFS(pxliAdd_16s_C1RSfs));
    op<Pxl16s>("Add 16s C3" + sz, 3, pxlbench::k16sC3, Peer::Add, PXLB_SFS(pxliAdd_16s_C3RSfs));
    op<Pxl16s>("Sub 16s C1" + sz, 1, pxlbench::k16sC1, Peer::Sub, PXLB_SFS(pxliSub_16s_C1RSfs));
    op<Pxl32f>("Add 32f C1" + sz, 1, pxlbench::k32fC1, Peer::Add, PXLB_F(pxliAdd_32f_C1R));
    op<Pxl32f>("Add 32f C3" + sz, 3, pxlbench::k32fC3, Peer::Add, PXLB_F(pxliAdd_32f_C3R));
    op<Pxl32f>("Sub 32f C1" + sz, 1, pxlbench::k32fC1, Peer::Sub, PXLB_F(pxliSub_32f_C1R));
    op<Pxl8u>("Mul 8u C1" + sz, 1, pxlbench::k8uC1, Peer::Mul, PXLB_SFS(pxliMul_8u_C1RSfs));
    op<Pxl16s>("Mul 16s C1" + sz, 1, pxlbench::k16sC1, Peer::Mul, PXLB_SFS(pxliMul_16s_C1RSfs));
    op<Pxl32f>("Mul 32f C1" + sz, 1, pxlbench::k32fC1, Peer::Mul, PXLB_F(pxliMul_32f_C1R));
    op<Pxl8u>("Div 8u C1" + sz, 1, pxlbench::k8uC1, Peer::Div, PXLB_SFS(pxliDiv_8u_C1RSfs));
    op<Pxl16s>("Div 16s C1" + sz, 1, pxlbench::k16sC1, Peer::Div, PXLB_SFS(pxliDiv_16s_C1RSfs));
    op<Pxl32f>("Div 32f C1" + sz, 1, pxlbench::k32fC1, Peer::Div, PXLB_F(pxliDiv_32f_C1R));
    op<Pxl8u>("And 8u C1" + sz, 1, pxlbench::k8uC1, Peer::And, PXLB_F(pxliAnd_8u_C1R));
    op<Pxl8u>("Or 8u C3" + sz, 3, pxlbench::k8uC3, Peer::Or, PXLB_F(pxliOr_8u_C3R));
    op<Pxl16u>("Xor 16u C1" + sz, 1, pxlbench::k16uC1, Peer::Xor, PXLB_F(pxliXor_16u_C1R));
    op<Pxl32s>("Xor 32s C1" + sz, 1, pxlbench::k32sC1, Peer::Xor, PXLB_F(pxliXor_32s_C1R));
}

const pxlbench::Registrar registrar(arithmeticBenchmarks);

}  // namespace
