// The 8x8 DCT over every block of a frame (1920x1080 unless --size says otherwise: 32,400 blocks),
// one call per block, for each form; the forward 16s and 32f forms against OpenCV's dct called on
// each 8x8 block of a float image. Divide the time by the block count for the time per block.
#include "bench.hpp"

#include <vector>

#ifdef PXL_BENCH_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using pxlbench::H;
using pxlbench::W;

int blocks() { return (W / 8) * (H / 8); }

// Coefficient blocks with a natural spread: those of the frame's pattern.
std::vector<Pxl16s> coefficientBlocks()
{
    pxlbench::Image a(W, H, 1);
    std::vector<Pxl16s> c(static_cast<std::size_t>(blocks()) * 64);
    int k = 0;
    for (int by = 0; by + 8 <= H; by += 8)
        for (int bx = 0; bx + 8 <= W; bx += 8, ++k)
            pxliDCT8x8FwdLS_8u16s_C1R(a.as<Pxl8u>() + static_cast<std::ptrdiff_t>(by) * a.step + bx, a.step, &c[64 * static_cast<std::size_t>(k)], -128);
    return c;
}

// One form over every block: `call(block index, image offset of the block)`.
template <class Call> void addForm(const std::string& form, Call call)
{
    const std::string name = "DCT8x8" + form + " " + std::to_string(blocks()) + " blocks" + pxlbench::sizeTag();
    pxlbench::add(name, "pxl", [call](benchmark::State& s) {
        for (auto _ : s) {
            int k = 0;
            for (int by = 0; by + 8 <= H; by += 8)
                for (int bx = 0; bx + 8 <= W; bx += 8, ++k) benchmark::DoNotOptimize(call(k, by, bx));
            benchmark::ClobberMemory();
        }
    });
}

void addPeer(const std::string& form)
{
#ifdef PXL_BENCH_OPENCV
    const std::string name = "DCT8x8" + form + " " + std::to_string(blocks()) + " blocks" + pxlbench::sizeTag();
    pxlbench::add(name, "peer", [](benchmark::State& s) {
        pxlbench::Image a(W, H, 4);
        cv::Mat img = a.mat(pxlbench::k32fC1), out(H, W, CV_32F);
        for (auto _ : s) {
            for (int by = 0; by + 8 <= H; by += 8)
                for (int bx = 0; bx + 8 <= W; bx += 8) {
                    cv::Mat dst = out(cv::Rect(bx, by, 8, 8));
                    cv::dct(img(cv::Rect(bx, by, 8, 8)), dst);
                }
            benchmark::ClobberMemory();
        }
    });
#else
    (void)form;
#endif
}

void transformBenchmarks()
{
    static pxlbench::Image pixels(W, H, 1), image16(W, H, 2), image32(W, H, 4);
    static std::vector<Pxl16s> coef = coefficientBlocks(), out(coef.size());
    static std::vector<Pxl32f> coef32(coef.begin(), coef.end()), out32(coef.size());
    auto block = [](std::vector<Pxl16s>& v, int k) { return &v[64 * static_cast<std::size_t>(k)]; };
    auto at8 = [](int by, int bx) { return pixels.as<Pxl8u>() + static_cast<std::ptrdiff_t>(by) * pixels.step + bx; };
    auto at16 = [](int by, int bx) { return reinterpret_cast<Pxl16s*>(image16.as<Pxl8u>() + static_cast<std::ptrdiff_t>(by) * image16.step) + bx; };

    addForm("Fwd_16s_C1", [=](int k, int, int) { return pxliDCT8x8Fwd_16s_C1(block(coef, k), block(out, k)); });
    addPeer("Fwd_16s_C1");
    addForm("Fwd_16s_C1R", [=](int k, int by, int bx) { return pxliDCT8x8Fwd_16s_C1R(at16(by, bx), image16.step, block(out, k)); });
    addForm("Fwd_8u16s_C1R", [=](int k, int by, int bx) { return pxliDCT8x8Fwd_8u16s_C1R(at8(by, bx), pixels.step, block(out, k)); });
    addForm("FwdLS_8u16s_C1R", [=](int k, int by, int bx) { return pxliDCT8x8FwdLS_8u16s_C1R(at8(by, bx), pixels.step, block(out, k), -128); });
    addForm("Fwd_32f_C1", [=](int k, int, int) { return pxliDCT8x8Fwd_32f_C1(&coef32[64 * static_cast<std::size_t>(k)], &out32[64 * static_cast<std::size_t>(k)]); });
    addPeer("Fwd_32f_C1");
    addForm("Inv_16s_C1", [=](int k, int, int) { return pxliDCT8x8Inv_16s_C1(block(coef, k), block(out, k)); });
    addForm("Inv_A10_16s_C1", [=](int k, int, int) { return pxliDCT8x8Inv_A10_16s_C1(block(coef, k), block(out, k)); });
    addForm("Inv_2x2_16s_C1", [=](int k, int, int) { return pxliDCT8x8Inv_2x2_16s_C1(block(coef, k), block(out, k)); });
    addForm("Inv_4x4_16s_C1", [=](int k, int, int) { return pxliDCT8x8Inv_4x4_16s_C1(block(coef, k), block(out, k)); });
    addForm("Inv_16s8u_C1R", [=](int k, int by, int bx) { return pxliDCT8x8Inv_16s8u_C1R(block(coef, k), at8(by, bx), pixels.step); });
    addForm("InvLSClip_16s8u_C1R",
            [=](int k, int by, int bx) { return pxliDCT8x8InvLSClip_16s8u_C1R(block(coef, k), at8(by, bx), pixels.step, 128, 0, 255); });
    addForm("Inv_32f_C1", [=](int k, int, int) { return pxliDCT8x8Inv_32f_C1(&coef32[64 * static_cast<std::size_t>(k)], &out32[64 * static_cast<std::size_t>(k)]); });
    addForm("To2x2Inv_16s_C1", [=](int k, int, int) { return pxliDCT8x8To2x2Inv_16s_C1(block(coef, k), block(out, k)); });
    addForm("To4x4Inv_16s_C1", [=](int k, int, int) { return pxliDCT8x8To4x4Inv_16s_C1(block(coef, k), block(out, k)); });
    addForm("ZigzagFwd", [=](int k, int, int) { return pxliZigzagFwd8x8_16s_C1(block(coef, k), block(out, k)); });
}

const pxlbench::Registrar registrar(transformBenchmarks);

}  // namespace
