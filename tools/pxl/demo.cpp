#include "demo.hpp"

#include "png.hpp"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>

namespace demo {

Image::Image(int w, int h, int c) : width(w), height(h), channels(c)
{
    data = c == 1 ? pxliMalloc_8u_C1(w, h, &step) : c == 3 ? pxliMalloc_8u_C3(w, h, &step) : pxliMalloc_8u_C4(w, h, &step);
}
Image::~Image() { pxliFree(data); }

void Context::save(const std::string& name, const Image& img)
{
    const std::string path = outDir + "/" + name + ".png";
    if (writePng(path, img.data, img.step, img.width, img.height, img.channels)) files.push_back(path);
    else std::fprintf(stderr, "pxl: cannot write %s\n", path.c_str());
}

void Context::time(const std::string& op, const std::string& size, double pixels, const std::function<void()>& fn)
{
    using clock = std::chrono::steady_clock;
    fn();  // warm the caches and the pages
    long calls = 1;
    double best = 1e30;
    for (int run = 0; run < 5; ++run) {
        for (;;) {
            const auto t0 = clock::now();
            for (long i = 0; i < calls; ++i) fn();
            const double ns = std::chrono::duration<double, std::nano>(clock::now() - t0).count();
            if (ns > 2e7 || calls > (1L << 30)) { best = std::min(best, ns / static_cast<double>(calls)); break; }
            calls *= 2;
        }
    }
    rows.push_back({op, size, best, pixels > 0 ? pixels / best * 1e3 : 0.0});
}

namespace {

// The built-in image, made by the library: Jaehne rings in red, a horizontal ramp in green and a
// vertical ramp in blue, interleaved from three planes; the gray image is the rings alone.
void synthesise(const Image& rgb, const Image& gray)
{
    const PxliSize roi = rgb.size();
    Image red(roi.width, roi.height, 1), green(roi.width, roi.height, 1), blue(roi.width, roi.height, 1);
    pxliImageJaehne_8u_C1R(red.data, red.step, roi);
    pxliImageRamp_8u_C1R(green.data, green.step, roi, 0.0f, 255.0f / static_cast<float>(roi.width - 1), 0);
    pxliImageRamp_8u_C1R(blue.data, blue.step, roi, 0.0f, 255.0f / static_cast<float>(roi.height - 1), 1);
    const Pxl8u* planes[3] = {red.data, green.data, blue.data};
    pxliCopy_8u_P3C3R(planes, red.step, rgb.data, rgb.step, roi);
    pxliCopy_8u_C1R(red.data, red.step, gray.data, gray.step, roi);
}

void frameDemo(Context& ctx)
{
    ctx.save("source_rgb", ctx.rgb);
    ctx.save("source_gray", ctx.gray);
    ctx.time("pxliGetLibVersion", "-", 0, [] {
        const PxlVersionRecord* volatile v = pxliGetLibVersion();
        (void)v;
    });
    ctx.time("pxliMalloc_8u_C3 + pxliFree", "1920x1080", 0, [] {
        int32_t step;
        Pxl8u* volatile p = pxliMalloc_8u_C3(1920, 1080, &step);
        pxliFree(p);
    });
}

// Set, copy and rearrange: mirrored, transposed, channels swapped, a channel extracted, and a
// disc painted through a mask.
void exchangeDemo(Context& ctx)
{
    const Image& src = ctx.rgb;
    const PxliSize roi = src.size();
    Image out(src.width, src.height, 3), tr(src.height, src.width, 3), one(src.width, src.height, 1);
    Image mask(src.width, src.height, 1);

    pxliMirror_8u_C3R(src.data, src.step, out.data, out.step, roi, pxlAxisBoth);
    ctx.save("mirror_both", out);
    pxliTranspose_8u_C3R(src.data, src.step, tr.data, tr.step, roi);
    ctx.save("transpose", tr);
    static const int bgr[3] = {2, 1, 0};
    pxliSwapChannels_8u_C3R(src.data, src.step, out.data, out.step, roi, bgr);
    ctx.save("swap_channels_2_1_0", out);
    pxliCopy_8u_C3C1R(src.data + 1, src.step, one.data, one.step, roi);
    ctx.save("copy_green_channel", one);

    for (int y = 0; y < mask.height; ++y)
        for (int x = 0; x < mask.width; ++x) {
            const int dx = x - mask.width / 2, dy = y - mask.height / 2;
            mask.data[y * mask.step + x] = dx * dx + dy * dy < (mask.height / 3) * (mask.height / 3) ? 255 : 0;
        }
    static const Pxl8u gold[3] = {230, 180, 40};
    pxliCopy_8u_C3R(src.data, src.step, out.data, out.step, roi);
    pxliSet_8u_C3MR(gold, out.data, out.step, roi, mask.data, mask.step);
    ctx.save("set_through_mask", out);

    const std::string size = std::to_string(src.width) + "x" + std::to_string(src.height);
    const double px = static_cast<double>(src.width) * src.height;
    ctx.time("pxliCopy_8u_C3R", size, px, [&] { pxliCopy_8u_C3R(src.data, src.step, out.data, out.step, roi); });
    ctx.time("pxliSet_8u_C3R", size, px, [&] { pxliSet_8u_C3R(gold, out.data, out.step, roi); });
    ctx.time("pxliMirror_8u_C3R (both axes)", size, px,
             [&] { pxliMirror_8u_C3R(src.data, src.step, out.data, out.step, roi, pxlAxisBoth); });
    ctx.time("pxliTranspose_8u_C3R", size, px, [&] { pxliTranspose_8u_C3R(src.data, src.step, tr.data, tr.step, roi); });
    ctx.time("pxliSwapChannels_8u_C3R", size, px,
             [&] { pxliSwapChannels_8u_C3R(src.data, src.step, out.data, out.step, roi, bgr); });
}

// Add and subtract: the image blended with its mirror image (the sum halved by the scale
// factor), their saturated difference, and the image brightened by a constant.
void arithmeticDemo(Context& ctx)
{
    const Image& src = ctx.rgb;
    const PxliSize roi = src.size();
    Image mirrored(src.width, src.height, 3), out(src.width, src.height, 3);
    pxliMirror_8u_C3R(src.data, src.step, mirrored.data, mirrored.step, roi, pxlAxisVertical);
    pxliAdd_8u_C3RSfs(src.data, src.step, mirrored.data, mirrored.step, out.data, out.step, roi, 1);
    ctx.save("add_mirror_halved", out);
    pxliSub_8u_C3RSfs(mirrored.data, mirrored.step, src.data, src.step, out.data, out.step, roi, 0);
    ctx.save("sub_mirror", out);
    static const Pxl8u lift[3] = {60, 60, 60};
    pxliAddC_8u_C3RSfs(src.data, src.step, lift, out.data, out.step, roi, 0);
    ctx.save("addc_brighter", out);

    const std::string size = std::to_string(src.width) + "x" + std::to_string(src.height);
    const double px = static_cast<double>(src.width) * src.height;
    ctx.time("pxliAdd_8u_C3RSfs (f=0)", size, px,
             [&] { pxliAdd_8u_C3RSfs(src.data, src.step, mirrored.data, mirrored.step, out.data, out.step, roi, 0); });
    ctx.time("pxliAdd_8u_C3RSfs (f=1)", size, px,
             [&] { pxliAdd_8u_C3RSfs(src.data, src.step, mirrored.data, mirrored.step, out.data, out.step, roi, 1); });
    ctx.time("pxliAddC_8u_C3RSfs (f=0)", size, px, [&] { pxliAddC_8u_C3RSfs(src.data, src.step, lift, out.data, out.step, roi, 0); });
}

// Conversions: the gray image to floats and back through a gamma-like rescale with ScaleC, and
// Scale from 32f onto 0..255 of a narrower range, which saturates the ends.
void convertDemo(Context& ctx)
{
    const Image& gray = ctx.gray;
    const PxliSize roi = gray.size();
    int32_t fstep = 0;
    Pxl32f* f = pxliMalloc_32f_C1(roi.width, roi.height, &fstep);
    Image out(roi.width, roi.height, 1);
    pxliConvert_8u32f_C1R(gray.data, gray.step, f, fstep, roi);
    pxliScale_32f8u_C1R(f, fstep, out.data, out.step, roi, 64.0f, 192.0f);
    ctx.save("scale_32f8u_contrast", out);
    pxliScaleC_8u_C1R(gray.data, gray.step, -1.0, 255.0, out.data, out.step, roi, 0);
    ctx.save("scalec_negative", out);

    const std::string size = std::to_string(roi.width) + "x" + std::to_string(roi.height);
    const double px = static_cast<double>(roi.width) * roi.height;
    ctx.time("pxliConvert_8u32f_C1R", size, px, [&] { pxliConvert_8u32f_C1R(gray.data, gray.step, f, fstep, roi); });
    ctx.time("pxliConvert_32f8u_C1R (nearest)", size, px,
             [&] { pxliConvert_32f8u_C1R(f, fstep, out.data, out.step, roi, pxlRoundNearestEven); });
    ctx.time("pxliScaleC_8u_C1R", size, px, [&] { pxliScaleC_8u_C1R(gray.data, gray.step, -1.0, 255.0, out.data, out.step, roi, 0); });
    pxliFree(f);
}

// Multiply and divide: the image times its mirror as fractions of full scale, the image divided
// by its mirror (scaled up by 2^5), and brightened by a double constant.
void mulDivDemo(Context& ctx)
{
    const Image& src = ctx.rgb;
    const PxliSize roi = src.size();
    Image mirrored(src.width, src.height, 3), out(src.width, src.height, 3);
    pxliMirror_8u_C3R(src.data, src.step, mirrored.data, mirrored.step, roi, pxlAxisVertical);
    pxliMulScale_8u_C3R(src.data, src.step, mirrored.data, mirrored.step, out.data, out.step, roi);
    ctx.save("mulscale_mirror", out);
    pxliDiv_8u_C3RSfs(mirrored.data, mirrored.step, src.data, src.step, out.data, out.step, roi, -5);
    ctx.save("div_by_mirror", out);
    static const Pxl64f gain[3] = {1.3, 0.9, 0.6};
    pxliMulC64f_8u_C3R(src.data, src.step, gain, out.data, out.step, roi, 0, pxlRoundNearestEven);
    ctx.save("mulc64f_warm", out);

    const std::string size = std::to_string(src.width) + "x" + std::to_string(src.height);
    const double px = static_cast<double>(src.width) * src.height;
    ctx.time("pxliMul_8u_C3RSfs (f=8)", size, px,
             [&] { pxliMul_8u_C3RSfs(src.data, src.step, mirrored.data, mirrored.step, out.data, out.step, roi, 8); });
    ctx.time("pxliDiv_8u_C3RSfs (f=-5)", size, px,
             [&] { pxliDiv_8u_C3RSfs(mirrored.data, mirrored.step, src.data, src.step, out.data, out.step, roi, -5); });
}

// Thresholds and comparisons: the gray image clipped above 128, with darks set to 0 and brights to 255, and
// the mask of where the image is brighter than its mirror image.
void thresholdDemo(Context& ctx)
{
    const Image& gray = ctx.gray;
    const PxliSize roi = gray.size();
    Image out(gray.width, gray.height, 1), mirrored(gray.width, gray.height, 1);
    pxliThreshold_GT_8u_C1R(gray.data, gray.step, out.data, out.step, roi, 128);
    ctx.save("threshold_gt_128", out);
    pxliThreshold_LTValGTVal_8u_C1R(gray.data, gray.step, out.data, out.step, roi, 85, 0, 170, 255);
    ctx.save("threshold_dark_to_0_bright_to_255", out);
    pxliMirror_8u_C1R(gray.data, gray.step, mirrored.data, mirrored.step, roi, pxlAxisVertical);
    pxliCompare_8u_C1R(gray.data, gray.step, mirrored.data, mirrored.step, out.data, out.step, roi, pxlCmpGreater);
    ctx.save("compare_greater_than_mirror", out);

    const std::string size = std::to_string(roi.width) + "x" + std::to_string(roi.height);
    const double px = static_cast<double>(roi.width) * roi.height;
    ctx.time("pxliThreshold_GT_8u_C1R", size, px, [&] { pxliThreshold_GT_8u_C1R(gray.data, gray.step, out.data, out.step, roi, 128); });
    ctx.time("pxliCompare_8u_C1R", size, px, [&] {
        pxliCompare_8u_C1R(gray.data, gray.step, mirrored.data, mirrored.step, out.data, out.step, roi, pxlCmpGreater);
    });
}

// Borders: the image framed by 96 pixels made by reflection, by its edge pixels and by a constant.
void borderDemo(Context& ctx)
{
    const Image& src = ctx.rgb;
    constexpr int b = 96;
    const PxliSize dst{src.width + 2 * b, src.height + 2 * b};
    Image out(dst.width, dst.height, 3);
    pxliCopyMirrorBorder_8u_C3R(src.data, src.step, src.size(), out.data, out.step, dst, b, b);
    ctx.save("border_mirror", out);
    pxliCopyReplicateBorder_8u_C3R(src.data, src.step, src.size(), out.data, out.step, dst, b, b);
    ctx.save("border_replicate", out);
    static const Pxl8u navy[3] = {20, 30, 90};
    pxliCopyConstBorder_8u_C3R(src.data, src.step, src.size(), out.data, out.step, dst, b, b, navy);
    ctx.save("border_constant", out);

    const std::string size = std::to_string(src.width) + "x" + std::to_string(src.height) + "+96";
    const double px = static_cast<double>(dst.width) * dst.height;
    ctx.time("pxliCopyMirrorBorder_8u_C3R", size, px,
             [&] { pxliCopyMirrorBorder_8u_C3R(src.data, src.step, src.size(), out.data, out.step, dst, b, b); });
    ctx.time("pxliCopyReplicateBorder_8u_C3R", size, px,
             [&] { pxliCopyReplicateBorder_8u_C3R(src.data, src.step, src.size(), out.data, out.step, dst, b, b); });
}

// Noise and logic: Gaussian and uniform noise on the image, the image XOR its mirror image, and
// the top three bits of each sample.
void noiseLogicDemo(Context& ctx)
{
    const Image& src = ctx.rgb;
    const PxliSize roi = src.size();
    Image out(src.width, src.height, 3), mirrored(src.width, src.height, 3);
    Pxl32u seed = 1;
    pxliCopy_8u_C3R(src.data, src.step, out.data, out.step, roi);
    pxliAddRandGauss_8u_C3IR(out.data, out.step, roi, 0.0f, 24.0f, &seed);
    ctx.save("noise_gauss_sd24", out);
    pxliCopy_8u_C3R(src.data, src.step, out.data, out.step, roi);
    pxliAddRandUniform_8u_C3IR(out.data, out.step, roi, 0, 64, &seed);
    ctx.save("noise_uniform_0_64", out);
    pxliMirror_8u_C3R(src.data, src.step, mirrored.data, mirrored.step, roi, pxlAxisVertical);
    pxliXor_8u_C3R(src.data, src.step, mirrored.data, mirrored.step, out.data, out.step, roi);
    ctx.save("xor_mirror", out);
    static const Pxl8u topBits[3] = {0xE0, 0xE0, 0xE0};
    pxliAndC_8u_C3R(src.data, src.step, topBits, out.data, out.step, roi);
    ctx.save("andc_top_three_bits", out);

    const std::string size = std::to_string(src.width) + "x" + std::to_string(src.height);
    const double px = static_cast<double>(src.width) * src.height;
    ctx.time("pxliXor_8u_C3R", size, px,
             [&] { pxliXor_8u_C3R(src.data, src.step, mirrored.data, mirrored.step, out.data, out.step, roi); });
    ctx.time("pxliAddRandUniform_8u_C3IR", size, px, [&] { pxliAddRandUniform_8u_C3IR(out.data, out.step, roi, 0, 4, &seed); });
    ctx.time("pxliImageJaehne_8u_C1R", size, px, [&] { pxliImageJaehne_8u_C1R(out.data, out.step, roi); });
}

// Statistics: the histogram of each channel of the colour image drawn as bars, the gray image
// split at its Otsu threshold, and the channel means and extremes in the notes.
void statisticsDemo(Context& ctx)
{
    const Image& src = ctx.rgb;
    const Image& gray = ctx.gray;
    const PxliSize roi = src.size();
    const int levels[3] = {257, 257, 257};
    const float lo[3] = {0, 0, 0}, hi[3] = {256, 256, 256};
    int specSize = 0, bufferSize = 0;
    pxliHistogramGetBufferSize(pxlDt8u, roi, levels, 3, 1, &specSize, &bufferSize);
    int32_t unusedStep = 0;
    auto* spec = reinterpret_cast<PxliHistogramSpec*>(pxliMalloc_8u_C1(specSize, 1, &unusedStep));
    Pxl8u* buffer = pxliMalloc_8u_C1(bufferSize, 1, &unusedStep);
    Pxl32s counts[3][256];
    Pxl32s* const hist[3] = {counts[0], counts[1], counts[2]};
    pxliHistogramUniformInit(pxlDt8u, lo, hi, levels, 3, spec);
    pxliHistogram_8u_C3R(src.data, src.step, roi, hist, spec, buffer);

    // One panel per channel, two pixels a bin, bars scaled to the channel's fullest bin.
    constexpr int panel = 120;
    Image plot(512, 3 * panel, 3);
    static const Pxl8u paper[3] = {250, 250, 245};
    pxliSet_8u_C3R(paper, plot.data, plot.step, plot.size());
    for (int c = 0; c < 3; ++c) {
        const Pxl32s top = std::max(1, *std::max_element(counts[c], counts[c] + 256));
        for (int v = 0; v < 256; ++v) {
            const int bar = static_cast<int>(static_cast<double>(counts[c][v]) * (panel - 8) / top + 0.5);
            for (int y = 0; y < bar; ++y)
                for (int x = 2 * v; x < 2 * v + 2; ++x) {
                    Pxl8u* px = plot.data + static_cast<std::ptrdiff_t>((c + 1) * panel - 1 - y) * plot.step + 3 * x;
                    px[0] = px[1] = px[2] = 40;
                    px[c] = 220;
                }
        }
    }
    ctx.save("histogram_rgb", plot);

    Pxl8u threshold = 0;
    pxliComputeThreshold_Otsu_8u_C1R(gray.data, gray.step, gray.size(), &threshold);
    Image split(gray.width, gray.height, 1);
    pxliCompareC_8u_C1R(gray.data, gray.step, threshold, split.data, split.step, gray.size(), pxlCmpGreater);
    ctx.save("otsu_split", split);

    Pxl64f mean[3];
    Pxl8u minimum[3], maximum[3];
    pxliMean_8u_C3R(src.data, src.step, roi, mean);
    pxliMinMax_8u_C3R(src.data, src.step, roi, minimum, maximum);
    char note[160];
    std::snprintf(note, sizeof note, "Otsu threshold of the gray image: %d; channel means %.2f %.2f %.2f, ranges %d-%d %d-%d %d-%d",
                  threshold, mean[0], mean[1], mean[2], minimum[0], maximum[0], minimum[1], maximum[1], minimum[2], maximum[2]);
    ctx.notes.push_back(note);

    const std::string size = std::to_string(src.width) + "x" + std::to_string(src.height);
    const double px = static_cast<double>(src.width) * src.height;
    ctx.time("pxliHistogram_8u_C3R (256 bins)", size, px, [&] { pxliHistogram_8u_C3R(src.data, src.step, roi, hist, spec, buffer); });
    ctx.time("pxliComputeThreshold_Otsu_8u_C1R", size, px,
             [&] { pxliComputeThreshold_Otsu_8u_C1R(gray.data, gray.step, gray.size(), &threshold); });
    ctx.time("pxliMean_8u_C3R", size, px, [&] { pxliMean_8u_C3R(src.data, src.step, roi, mean); });
    ctx.time("pxliMinMax_8u_C3R", size, px, [&] { pxliMinMax_8u_C3R(src.data, src.step, roi, minimum, maximum); });
    pxliFree(buffer);
    pxliFree(spec);
}

// Runs fn once, saves the image it made, and times it on the image's size.
template <class F> void makeSaveTime(Context& ctx, const std::string& file, const Image& made, const std::string& label, F fn)
{
    fn();
    ctx.save(file, made);
    ctx.time(label, std::to_string(made.width) + "x" + std::to_string(made.height), static_cast<double>(made.width) * made.height, fn);
}

// The general filter: the colour image sharpened (integer taps) and the gray image embossed
// (the difference across the diagonal around mid-gray), both with replicated borders; the box
// filter's mean of the colour image; the Laplace of the gray image.
void filterDemo(Context& ctx)
{
    const Image& src = ctx.rgb;
    const PxliSize roi = src.size(), kernel{3, 3};
    auto make = [&](PxlDataType taps, int channels, std::vector<unsigned char>& spec, std::vector<unsigned char>& buffer) {
        int specSize = 0, bufferSize = 0;
        pxliFilterBorderGetSize(kernel, roi, pxlDt8u, taps, channels, &specSize, &bufferSize);
        spec.resize(static_cast<std::size_t>(specSize));
        buffer.resize(static_cast<std::size_t>(bufferSize));
        return reinterpret_cast<PxliFilterBorderSpec*>(spec.data());
    };
    std::vector<unsigned char> sharpSpec, sharpBuffer, embossSpec, embossBuffer;
    PxliFilterBorderSpec* sharp = make(pxlDt16s, 3, sharpSpec, sharpBuffer);
    const Pxl16s sharpen[9] = {0, -1, 0, -1, 5, -1, 0, -1, 0};
    pxliFilterBorderInit_16s(sharpen, kernel, 1, pxlDt8u, 3, pxlRoundNearestEven, sharp);
    Image sharpened(src.width, src.height, 3);
    pxliFilterBorder_8u_C3R(src.data, src.step, sharpened.data, sharpened.step, roi, pxlBorderReplicate, nullptr, sharp,
                            sharpBuffer.data());
    ctx.save("filter_sharpen", sharpened);

    // Emboss: the difference across the diagonal, lifted to mid-gray by the offset of an integer
    // kernel whose divisor is 1.
    PxliFilterBorderSpec* emboss = make(pxlDt16s, 1, embossSpec, embossBuffer);
    const Pxl16s diagonal[9] = {-1, -1, 0, -1, 0, 1, 0, 1, 1};
    pxliFilterBorderInit_16s(diagonal, kernel, 1, pxlDt8u, 1, pxlRoundNearestEven, emboss);
    pxliFilterBorderSetMode(0, 128, emboss);
    Image embossed(ctx.gray.width, ctx.gray.height, 1);
    pxliFilterBorder_8u_C1R(ctx.gray.data, ctx.gray.step, embossed.data, embossed.step, roi, pxlBorderReplicate, nullptr, emboss,
                            embossBuffer.data());
    ctx.save("filter_emboss", embossed);

    // The box filter: a 15x15 mean of the colour image, mirrored at the borders.
    int boxSize = 0;
    const PxliSize boxMask{15, 15};
    pxliFilterBoxBorderGetBufferSize(roi, boxMask, pxlDt8u, 3, &boxSize);
    std::vector<Pxl8u> boxBuffer(static_cast<std::size_t>(boxSize));
    Image blurred(src.width, src.height, 3);
    makeSaveTime(ctx, "filter_box15", blurred, "pxliFilterBoxBorder_8u_C3R (15x15)", [&] {
        pxliFilterBoxBorder_8u_C3R(src.data, src.step, blurred.data, blurred.step, roi, boxMask, pxlBorderMirror, nullptr,
                                   boxBuffer.data());
    });

    // The 3x3 Laplace of the gray image: an edge map, saturated at 0 and 255.
    int laplaceSize = 0;
    pxliFilterLaplaceBorderGetBufferSize(roi, pxlMask3x3, pxlDt8u, pxlDt8u, 1, &laplaceSize);
    std::vector<Pxl8u> laplaceBuffer(static_cast<std::size_t>(laplaceSize));
    Image edges(ctx.gray.width, ctx.gray.height, 1);
    makeSaveTime(ctx, "filter_laplace", edges, "pxliFilterLaplaceBorder_8u_C1R (3x3)", [&] {
        pxliFilterLaplaceBorder_8u_C1R(ctx.gray.data, ctx.gray.step, edges.data, edges.step, roi, pxlMask3x3, pxlBorderReplicate, 0,
                                       laplaceBuffer.data());
    });

    const std::string size = std::to_string(src.width) + "x" + std::to_string(src.height);
    const double px = static_cast<double>(src.width) * src.height;
    ctx.time("pxliFilterBorder_8u_C3R (3x3 sharpen)", size, px, [&] {
        pxliFilterBorder_8u_C3R(src.data, src.step, sharpened.data, sharpened.step, roi, pxlBorderReplicate, nullptr, sharp,
                                sharpBuffer.data());
    });
    ctx.time("pxliFilterBorder_8u_C1R (3x3 emboss)", size, px, [&] {
        pxliFilterBorder_8u_C1R(ctx.gray.data, ctx.gray.step, embossed.data, embossed.step, roi, pxlBorderReplicate, nullptr, emboss,
                                embossBuffer.data());
    });
}

// The median: salt-and-pepper noise on the gray image (one pixel in sixteen turned black or white,
// where uniform noise from the noise family lands in the lowest or highest 16th), removed by a
// 3x3 median; a 5x5 median of the colour image.
void medianDemo(Context& ctx)
{
    const Image& gray = ctx.gray;
    const PxliSize roi = gray.size();
    Image noise(gray.width, gray.height, 1), noisy(gray.width, gray.height, 1), cleaned(gray.width, gray.height, 1);
    pxliSet_8u_C1R(0, noise.data, noise.step, roi);
    Pxl32u seed = 7;
    pxliAddRandUniform_8u_C1IR(noise.data, noise.step, roi, 0, 255, &seed);
    for (int y = 0; y < gray.height; ++y)
        for (int x = 0; x < gray.width; ++x) {
            const Pxl8u n = noise.data[y * noise.step + x], g = gray.data[y * gray.step + x];
            noisy.data[y * noisy.step + x] = n < 8 ? 0 : n > 247 ? 255 : g;
        }
    ctx.save("median_noisy", noisy);
    int size = 0;
    pxliFilterMedianBorderGetBufferSize(roi, {3, 3}, pxlDt8u, 1, &size);
    std::vector<Pxl8u> buffer(static_cast<std::size_t>(size));
    makeSaveTime(ctx, "median3_cleaned", cleaned, "pxliFilterMedianBorder_8u_C1R (3x3)", [&] {
        pxliFilterMedianBorder_8u_C1R(noisy.data, noisy.step, cleaned.data, cleaned.step, roi, {3, 3}, pxlBorderReplicate, 0,
                                      buffer.data());
    });

    const Image& src = ctx.rgb;
    int colourSize = 0;
    pxliFilterMedianBorderGetBufferSize(roi, {5, 5}, pxlDt8u, 3, &colourSize);
    std::vector<Pxl8u> colourBuffer(static_cast<std::size_t>(colourSize));
    Image median5(src.width, src.height, 3);
    makeSaveTime(ctx, "median5_colour", median5, "pxliFilterMedianBorder_8u_C3R (5x5)", [&] {
        pxliFilterMedianBorder_8u_C3R(src.data, src.step, median5.data, median5.step, roi, {5, 5}, pxlBorderReplicate, nullptr,
                                      colourBuffer.data());
    });
}

// Gradients: the Sobel gradient of the colour image, the strongest channel's at each pixel, as its
// magnitude (a quarter of it, saturated) and its direction (the angle from -pi to pi over 0 to
// 255, where the gradient is not faint); the Sobel magnitude of the gray image.
void gradientDemo(Context& ctx)
{
    const Image& src = ctx.rgb;
    const PxliSize roi = src.size();
    const int w = src.width, h = src.height;
    int size = 0;
    pxliGradientVectorGetBufferSize(roi, pxlMask3x3, pxlDt8u, 3, &size);
    std::vector<Pxl8u> buffer(static_cast<std::size_t>(size));
    std::vector<Pxl16s> mag(static_cast<std::size_t>(w) * h);
    std::vector<Pxl32f> angle(static_cast<std::size_t>(w) * h);
    const int magStep = w * 2, angleStep = w * 4;
    auto gradient = [&] {
        pxliGradientVectorSobel_8u16s_C3C1R(src.data, src.step, nullptr, 0, nullptr, 0, mag.data(), magStep, angle.data(), angleStep, roi,
                                            pxlMask3x3, 4, pxlBorderReplicate, nullptr, buffer.data());
    };
    gradient();
    Image strength(w, h, 1), direction(w, h, 1);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const int m = mag[static_cast<std::size_t>(y) * w + x];
            const float a = angle[static_cast<std::size_t>(y) * w + x];
            strength.data[y * strength.step + x] = static_cast<Pxl8u>(std::min(m / 4, 255));
            direction.data[y * direction.step + x] = m < 32 ? 0 : static_cast<Pxl8u>((a + 3.14159265f) * (255.0f / 6.2831853f));
        }
    ctx.save("gradient_magnitude", strength);
    ctx.save("gradient_direction", direction);
    ctx.time("pxliGradientVectorSobel_8u16s_C3C1R (3x3)", std::to_string(w) + "x" + std::to_string(h), static_cast<double>(w) * h,
             gradient);

    int sobelSize = 0;
    pxliFilterSobelGetBufferSize(roi, pxlMask3x3, pxlDt8u, pxlDt16s, 1, &sobelSize);
    std::vector<Pxl8u> sobelBuffer(static_cast<std::size_t>(sobelSize));
    ctx.time("pxliFilterSobel_8u16s_C1R (3x3, |gx| + |gy|)", std::to_string(w) + "x" + std::to_string(h), static_cast<double>(w) * h, [&] {
        pxliFilterSobel_8u16s_C1R(ctx.gray.data, ctx.gray.step, mag.data(), magStep, roi, pxlMask3x3, 2, pxlBorderReplicate, 0,
                                  sobelBuffer.data());
    });
}

// Resize: the colour image reduced to half its size, and a 128x96 crop of its middle enlarged four
// times, linear and nearest.
void resizeDemo(Context& ctx)
{
    const Image& src = ctx.rgb;
    auto resize = [&](const Pxl8u* from, PxliSize fromSize, const Image& to, int interpolation, const std::string& file, const std::string& label) {
        const PxliSize toSize = to.size();
        int specSize = 0, initSize = 0, bufferSize = 0;
        pxliResizeGetSize_8u(fromSize, toSize, interpolation, 0, &specSize, &initSize);
        std::vector<unsigned char> spec(static_cast<std::size_t>(specSize)), init(static_cast<std::size_t>(initSize));
        auto* record = reinterpret_cast<PxliResizeSpec*>(spec.data());
        if (interpolation == pxlInterpLinear) pxliResizeLinearInit_8u(fromSize, toSize, record);
        else if (interpolation == pxlInterpCubic) pxliResizeCubicInit_8u(fromSize, toSize, 0.0f, 0.5f, record, init.data());
        else if (interpolation == pxlInterpLanczos) pxliResizeLanczosInit_8u(fromSize, toSize, 3, record, init.data());
        else pxliResizeNearestInit_8u(fromSize, toSize, record);
        pxliResizeGetBufferSize_8u(record, toSize, 3, &bufferSize);
        std::vector<Pxl8u> buffer(static_cast<std::size_t>(bufferSize));
        makeSaveTime(ctx, file, to, label, [&] {
            const PxliPoint at{0, 0};
            if (interpolation == pxlInterpLinear)
                pxliResizeLinear_8u_C3R(from, src.step, to.data, to.step, at, toSize, pxlBorderReplicate, nullptr, record, buffer.data());
            else if (interpolation == pxlInterpCubic)
                pxliResizeCubic_8u_C3R(from, src.step, to.data, to.step, at, toSize, pxlBorderReplicate, nullptr, record, buffer.data());
            else if (interpolation == pxlInterpLanczos)
                pxliResizeLanczos_8u_C3R(from, src.step, to.data, to.step, at, toSize, pxlBorderReplicate, nullptr, record, buffer.data());
            else
                pxliResizeNearest_8u_C3R(from, src.step, to.data, to.step, at, toSize, record, buffer.data());
        });
    };
    Image half(src.width / 2, src.height / 2, 3);
    resize(src.data, src.size(), half, pxlInterpLinear, "resize_half", "pxliResizeLinear_8u_C3R (to half)");
    const PxliSize crop{128, 96};
    const Pxl8u* middle = src.data + (src.height - crop.height) / 2 * src.step + (src.width - crop.width) / 2 * 3;
    Image linear(crop.width * 4, crop.height * 4, 3), nearest(crop.width * 4, crop.height * 4, 3);
    resize(middle, crop, linear, pxlInterpLinear, "resize_x4_linear", "pxliResizeLinear_8u_C3R (x4)");
    resize(middle, crop, nearest, pxlInterpNearest, "resize_x4_nearest", "pxliResizeNearest_8u_C3R (x4)");
    // The same reduction to a third by each method, to compare side by side.
    const struct {
        int interpolation;
        const char* name;
    } methods[] = {{pxlInterpNearest, "Nearest"}, {pxlInterpLinear, "Linear"}, {pxlInterpCubic, "Cubic"}, {pxlInterpLanczos, "Lanczos"}};
    for (const auto& m : methods) {
        Image third(src.width / 3, src.height / 3, 3);
        std::string file = std::string("resize_third_") + m.name;
        for (char& ch : file) ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
        resize(src.data, src.size(), third, m.interpolation, file, std::string("pxliResize") + m.name + "_8u_C3R (to a third)");
    }
}

// The 8x8 DCT as a block codec uses it: each block of the gray image level-shifted and
// transformed, every coefficient with u + v above 3 dropped (keeping 10 of 64), and the inverse
// shifted back and limited to 0..255.
void dctDemo(Context& ctx)
{
    const Image& src = ctx.gray;
    Image coarse(src.width, src.height, 1);
    makeSaveTime(ctx, "dct_low_frequencies", coarse, "pxliDCT8x8FwdLS + InvLSClip (per frame)", [&] {
        Pxl16s block[64];
        for (int by = 0; by + 8 <= src.height; by += 8)
            for (int bx = 0; bx + 8 <= src.width; bx += 8) {
                pxliDCT8x8FwdLS_8u16s_C1R(src.data + by * src.step + bx, src.step, block, -128);
                for (int k = 0; k < 64; ++k)
                    if (k / 8 + k % 8 > 3) block[k] = 0;
                pxliDCT8x8InvLSClip_16s8u_C1R(block, coarse.data + by * coarse.step + bx, coarse.step, 128, 0, 255);
            }
    });
}

}  // namespace

const std::vector<Entry>& entries()
{
    static const std::vector<Entry> all = {
        {"frame", frameDemo},
        {"exchange", exchangeDemo},
        {"arithmetic", arithmeticDemo},
        {"convert", convertDemo},
        {"muldiv", mulDivDemo},
        {"threshold", thresholdDemo},
        {"border", borderDemo},
        {"noise and logic", noiseLogicDemo},
        {"statistics", statisticsDemo},
        {"filters", filterDemo},
        {"median", medianDemo},
        {"gradients", gradientDemo},
        {"resize", resizeDemo},
        {"dct", dctDemo},
    };
    return all;
}

int run(const std::string& outDir)
{
    std::error_code ec;
    std::filesystem::create_directories(outDir, ec);
    if (ec) {
        std::fprintf(stderr, "pxl: cannot create %s\n", outDir.c_str());
        return 1;
    }
    const Image rgb(512, 384, 3), gray(512, 384, 1);
    if (!rgb.data || !gray.data) return 1;
    synthesise(rgb, gray);
    Context ctx{outDir, rgb, gray, {}, {}, {}};
    for (const Entry& e : entries()) e.run(ctx);

    std::printf("Wrote %zu images into %s/:\n", ctx.files.size(), outDir.c_str());
    for (const auto& f : ctx.files) std::printf("  %s\n", f.c_str());
    for (const auto& n : ctx.notes) std::printf("%s\n", n.c_str());
    std::printf("\n%-44s %-12s %14s %12s\n", "operation", "size", "ns per call", "Mpix/s");
    for (const auto& r : ctx.rows) {
        if (r.mpixPerSec > 0) std::printf("%-44s %-12s %14.1f %12.1f\n", r.op.c_str(), r.size.c_str(), r.nsPerCall, r.mpixPerSec);
        else std::printf("%-44s %-12s %14.1f %12s\n", r.op.c_str(), r.size.c_str(), r.nsPerCall, "-");
    }
    return ctx.files.size() >= 2 ? 0 : 1;
}

}  // namespace demo
