// Neighbourhood filters on a frame (1920x1080 unless --size says otherwise): 3x3 and 5x5 binomial
// kernels on 8u (16s taps with a divisor) and on 32f, replicated borders, against OpenCV's filter2D
// with the same kernel and border; box filters of 8u and 32f, C1 and C3, against OpenCV's blur;
// medians of 8u against OpenCV's medianBlur; the 3x3 Laplace against filter2D;
// the 3x3 Sobel against OpenCV's Sobel; the Sobel gradient's magnitude and its four planes against
// two OpenCV Sobels and the magnitude or cartToPolar; and a memcpy of the bytes read and written.
#include "bench.hpp"

#include <vector>

#ifdef PXL_BENCH_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using pxlbench::H;
using pxlbench::W;

// The binomial kernel of side n (3 or 5) and the sum of its taps.
std::vector<int> binomial(int n, int& total)
{
    const std::vector<int> row = n == 3 ? std::vector<int>{1, 2, 1} : std::vector<int>{1, 4, 6, 4, 1};
    std::vector<int> k;
    total = 0;
    for (int a : row)
        for (int b : row) {
            k.push_back(a * b);
            total += a * b;
        }
    return k;
}

template <class T> void filter(int side, [[maybe_unused]] pxlbench::MatType peerType)
{
    const std::string name = "FilterBorder " + std::to_string(side) + "x" + std::to_string(side) + " " +
                             (std::is_same_v<T, Pxl8u> ? "8u" : "32f") + " C1" + pxlbench::sizeTag();
    int total = 0;
    const std::vector<int> taps = binomial(side, total);
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, sizeof(T)), d(W, H, sizeof(T));
        pxlbench::pixelValues<T>(a);
        const PxliSize roi{W, H}, kernel{side, side};
        constexpr bool is8u = std::is_same_v<T, Pxl8u>;
        int specSize = 0, bufferSize = 0;
        pxliFilterBorderGetSize(kernel, roi, is8u ? pxlDt8u : pxlDt32f, is8u ? pxlDt16s : pxlDt32f, 1, &specSize, &bufferSize);
        std::vector<unsigned char> spec(static_cast<std::size_t>(specSize)), buffer(static_cast<std::size_t>(bufferSize));
        auto* record = reinterpret_cast<PxliFilterBorderSpec*>(spec.data());
        if constexpr (is8u) {
            const std::vector<Pxl16s> k(taps.begin(), taps.end());
            pxliFilterBorderInit_16s(k.data(), kernel, total, pxlDt8u, 1, pxlRoundNearestEven, record);
        } else {
            std::vector<Pxl32f> k;
            for (int t : taps) k.push_back(static_cast<float>(t) / static_cast<float>(total));
            pxliFilterBorderInit_32f(k.data(), kernel, pxlDt32f, 1, 0, record);
        }
        for (auto _ : s) {
            if constexpr (is8u)
                benchmark::DoNotOptimize(pxliFilterBorder_8u_C1R(a.as<T>(), a.step, d.as<T>(), d.step, roi, pxlBorderReplicate, nullptr,
                                                                 record, buffer.data()));
            else
                benchmark::DoNotOptimize(pxliFilterBorder_32f_C1R(a.as<T>(), a.step, d.as<T>(), d.step, roi, pxlBorderReplicate, nullptr,
                                                                  record, buffer.data()));
            benchmark::ClobberMemory();
        }
    });
    const std::size_t bytes = static_cast<std::size_t>(W) * H * sizeof(T);
    pxlbench::addMemcpy(name, bytes, bytes);
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, sizeof(T)), d(W, H, sizeof(T));
        pxlbench::pixelValues<T>(a);
        cv::Mat ma = a.mat(peerType), md = d.mat(peerType);
        cv::Mat k(side, side, CV_32F);
        for (int i = 0; i < side * side; ++i) k.at<float>(i / side, i % side) = static_cast<float>(taps[i]) / static_cast<float>(total);
        for (auto _ : s) {
            cv::filter2D(ma, md, -1, k, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE);
            benchmark::ClobberMemory();
        }
    });
#endif
}

// The box filter of side n on 8u or 32f, replicated borders, against OpenCV's blur.
template <class T> void box(int side, int channels, [[maybe_unused]] pxlbench::MatType peerType)
{
    constexpr bool is8u = std::is_same_v<T, Pxl8u>;
    const std::string name = "FilterBoxBorder " + std::to_string(side) + "x" + std::to_string(side) + (is8u ? " 8u C" : " 32f C") +
                             std::to_string(channels) + pxlbench::sizeTag();
    const int pixelBytes = channels * static_cast<int>(sizeof(T));
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, pixelBytes), d(W, H, pixelBytes);
        pxlbench::pixelValues<T>(a);
        const PxliSize roi{W, H}, mask{side, side};
        int size = 0;
        pxliFilterBoxBorderGetBufferSize(roi, mask, is8u ? pxlDt8u : pxlDt32f, channels, &size);
        std::vector<Pxl8u> buffer(static_cast<std::size_t>(size));
        auto run = [&] {
            if constexpr (is8u)
                return channels == 1 ? pxliFilterBoxBorder_8u_C1R(a.as<T>(), a.step, d.as<T>(), d.step, roi, mask, pxlBorderReplicate, nullptr,
                                                                  buffer.data())
                                     : pxliFilterBoxBorder_8u_C3R(a.as<T>(), a.step, d.as<T>(), d.step, roi, mask, pxlBorderReplicate, nullptr,
                                                                  buffer.data());
            else
                return channels == 1 ? pxliFilterBoxBorder_32f_C1R(a.as<T>(), a.step, d.as<T>(), d.step, roi, mask, pxlBorderReplicate,
                                                                   nullptr, buffer.data())
                                     : pxliFilterBoxBorder_32f_C3R(a.as<T>(), a.step, d.as<T>(), d.step, roi, mask, pxlBorderReplicate,
                                                                   nullptr, buffer.data());
        };
        for (auto _ : s) {
            benchmark::DoNotOptimize(run());
            benchmark::ClobberMemory();
        }
    });
    const std::size_t bytes = static_cast<std::size_t>(W) * H * pixelBytes;
    pxlbench::addMemcpy(name, bytes, bytes);
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, pixelBytes), d(W, H, pixelBytes);
        pxlbench::pixelValues<T>(a);
        cv::Mat ma = a.mat(peerType), md = d.mat(peerType);
        for (auto _ : s) {
            cv::blur(ma, md, cv::Size(side, side), cv::Point(-1, -1), cv::BORDER_REPLICATE);
            benchmark::ClobberMemory();
        }
    });
#endif
}

// A filter of one 8u channel into samples of outBytes: pxl (size() bytes of work buffer, then
// run(source, destination, buffer) per call), memcpy of the bytes read and written, and the peer.
#ifdef PXL_BENCH_OPENCV
#define PXL_PEER(call) [=](const cv::Mat& src, cv::Mat& dst) { call; }
#else
#define PXL_PEER(call) 0
#endif
template <class Size, class Run, class Peer>
void oneChannel(const std::string& name, int outBytes, Size size, Run run, [[maybe_unused]] Peer peer)
{
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, 1), d(W, H, outBytes);
        pxlbench::pixelValues<Pxl8u>(a);
        std::vector<Pxl8u> buffer(static_cast<std::size_t>(size()));
        for (auto _ : s) {
            benchmark::DoNotOptimize(run(a, d, buffer.data()));
            benchmark::ClobberMemory();
        }
    });
    const std::size_t bytes = static_cast<std::size_t>(W) * H;
    pxlbench::addMemcpy(name, bytes, bytes * static_cast<std::size_t>(outBytes));
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, 1), d(W, H, outBytes);
        pxlbench::pixelValues<Pxl8u>(a);
        cv::Mat ma = a.mat(pxlbench::k8uC1), md(H, W, outBytes == 1 ? CV_8U : CV_16S, d.data, static_cast<std::size_t>(d.step));
        for (auto _ : s) {
            peer(ma, md);
            benchmark::ClobberMemory();
        }
    });
#endif
}

// Medians of side n, replicated borders, against OpenCV's medianBlur (which replicates too); the
// 3x3 Laplace (9c - S) against filter2D with that kernel; the 3x3 horizontal Sobel (8u to 16s)
// against OpenCV's Sobel (dy = 1).
void fixedKernels()
{
    const PxliSize roi{W, H};
    for (int side : {3, 5, 7, 15}) {
        const PxliSize mask{side, side};
        oneChannel(
            "FilterMedianBorder " + std::to_string(side) + "x" + std::to_string(side) + " 8u C1" + pxlbench::sizeTag(), 1,
            [=] {
                int size = 0;
                pxliFilterMedianBorderGetBufferSize(roi, mask, pxlDt8u, 1, &size);
                return size;
            },
            [=](const pxlbench::Image& a, pxlbench::Image& d, Pxl8u* buffer) {
                return pxliFilterMedianBorder_8u_C1R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, roi, mask, pxlBorderReplicate, 0, buffer);
            },
            PXL_PEER(cv::medianBlur(src, dst, side)));
    }
    oneChannel(
        "FilterLaplaceBorder 3x3 8u C1" + pxlbench::sizeTag(), 1,
        [=] {
            int size = 0;
            pxliFilterLaplaceBorderGetBufferSize(roi, pxlMask3x3, pxlDt8u, pxlDt8u, 1, &size);
            return size;
        },
        [=](const pxlbench::Image& a, pxlbench::Image& d, Pxl8u* buffer) {
            return pxliFilterLaplaceBorder_8u_C1R(a.as<Pxl8u>(), a.step, d.as<Pxl8u>(), d.step, roi, pxlMask3x3, pxlBorderReplicate, 0, buffer);
        },
        PXL_PEER({
            cv::Mat k(3, 3, CV_32F, cv::Scalar(-1.0f));
            k.at<float>(1, 1) = 8.0f;
            cv::filter2D(src, dst, -1, k, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE);
        }));
    oneChannel(
        "FilterSobelHorizBorder 3x3 8u16s C1" + pxlbench::sizeTag(), 2,
        [=] {
            int size = 0;
            pxliFilterSobelHorizBorderGetBufferSize(roi, pxlMask3x3, pxlDt8u, pxlDt16s, 1, &size);
            return size;
        },
        [=](const pxlbench::Image& a, pxlbench::Image& d, Pxl8u* buffer) {
            return pxliFilterSobelHorizBorder_8u16s_C1R(a.as<Pxl8u>(), a.step, d.as<Pxl16s>(), d.step, roi, pxlMask3x3, pxlBorderReplicate, 0,
                                                        buffer);
        },
        PXL_PEER(cv::Sobel(src, dst, CV_16S, 0, 1, 3, 1, 0, cv::BORDER_REPLICATE)));
    oneChannel(
        "FilterSobel 3x3 8u16s C1 L1" + pxlbench::sizeTag(), 2,
        [=] {
            int size = 0;
            pxliFilterSobelGetBufferSize(roi, pxlMask3x3, pxlDt8u, pxlDt16s, 1, &size);
            return size;
        },
        [=](const pxlbench::Image& a, pxlbench::Image& d, Pxl8u* buffer) {
            return pxliFilterSobel_8u16s_C1R(a.as<Pxl8u>(), a.step, d.as<Pxl16s>(), d.step, roi, pxlMask3x3, 2, pxlBorderReplicate, 0, buffer);
        },
        PXL_PEER({
            static cv::Mat gx;
            static cv::Mat gy;
            cv::Sobel(src, gx, CV_16S, 1, 0, 3, 1, 0, cv::BORDER_REPLICATE);
            cv::Sobel(src, gy, CV_16S, 0, 1, 3, 1, 0, cv::BORDER_REPLICATE);
            dst = cv::abs(gx) + cv::abs(gy);
        }));
}

// The 3x3 Sobel gradient of 32f: its Euclidean magnitude alone, or all four planes, against two
// OpenCV Sobels and the magnitude or cartToPolar.
void sobel32f(bool allPlanes)
{
    const std::string name = std::string(allPlanes ? "GradientVectorSobel 3x3 32f C1 4 planes" : "FilterSobel 3x3 32f C1 L2") +
                             pxlbench::sizeTag();
    const int planes = allPlanes ? 4 : 1;
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, 4), gx(W, H, 4), gy(W, H, 4), mag(W, H, 4), angle(W, H, 4);
        pxlbench::pixelValues<Pxl32f>(a);
        const PxliSize roi{W, H};
        int size = 0;
        if (allPlanes) pxliGradientVectorGetBufferSize(roi, pxlMask3x3, pxlDt32f, 1, &size);
        else pxliFilterSobelGetBufferSize(roi, pxlMask3x3, pxlDt32f, pxlDt32f, 1, &size);
        std::vector<Pxl8u> buffer(static_cast<std::size_t>(size));
        for (auto _ : s) {
            if (allPlanes)
                benchmark::DoNotOptimize(pxliGradientVectorSobel_32f_C1R(a.as<Pxl32f>(), a.step, gx.as<Pxl32f>(), gx.step, gy.as<Pxl32f>(),
                                                                         gy.step, mag.as<Pxl32f>(), mag.step, angle.as<Pxl32f>(), angle.step,
                                                                         roi, pxlMask3x3, 4, pxlBorderReplicate, 0, buffer.data()));
            else
                benchmark::DoNotOptimize(pxliFilterSobel_32f_C1R(a.as<Pxl32f>(), a.step, mag.as<Pxl32f>(), mag.step, roi, pxlMask3x3, 4,
                                                                 pxlBorderReplicate, 0, buffer.data()));
            benchmark::ClobberMemory();
        }
    });
    const std::size_t bytes = static_cast<std::size_t>(W) * H * 4;
    pxlbench::addMemcpy(name, bytes, bytes * static_cast<std::size_t>(planes));
#ifdef PXL_BENCH_OPENCV
    pxlbench::add(name, "peer", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, 4), gx(W, H, 4), gy(W, H, 4), mag(W, H, 4), angle(W, H, 4);
        pxlbench::pixelValues<Pxl32f>(a);
        cv::Mat ma = a.mat(pxlbench::k32fC1), mx = gx.mat(pxlbench::k32fC1), my = gy.mat(pxlbench::k32fC1);
        cv::Mat mm = mag.mat(pxlbench::k32fC1), mt = angle.mat(pxlbench::k32fC1);
        for (auto _ : s) {
            cv::Sobel(ma, mx, CV_32F, 1, 0, 3, 1, 0, cv::BORDER_REPLICATE);
            cv::Sobel(ma, my, CV_32F, 0, 1, 3, 1, 0, cv::BORDER_REPLICATE);
            if (allPlanes) cv::cartToPolar(mx, my, mm, mt);
            else cv::magnitude(mx, my, mm);
            benchmark::ClobberMemory();
        }
    });
#endif
}

// The magnitude and angle of the 3x3 Sobel gradient of 8u, one channel or the strongest of three;
// the first against two OpenCV Sobels into 32f and cartToPolar (the peer has no three-channel op).
void gradient8u(int channels)
{
    const std::string name = "GradientVectorSobel 3x3 8u16s " + std::string(channels == 1 ? "C1" : "C3C1") + " mag angle" +
                             pxlbench::sizeTag();
    pxlbench::add(name, "pxl", [=](benchmark::State& s) {
        pxlbench::Image a(W, H, channels), mag(W, H, 2), angle(W, H, 4);
        const PxliSize roi{W, H};
        int size = 0;
        pxliGradientVectorGetBufferSize(roi, pxlMask3x3, pxlDt8u, channels, &size);
        std::vector<Pxl8u> buffer(static_cast<std::size_t>(size));
        const Pxl8u* src = a.as<Pxl8u>();
        Pxl16s* m = mag.as<Pxl16s>();
        Pxl32f* t = angle.as<Pxl32f>();
        for (auto _ : s) {
            if (channels == 1)
                benchmark::DoNotOptimize(pxliGradientVectorSobel_8u16s_C1R(src, a.step, nullptr, 0, nullptr, 0, m, mag.step, t, angle.step,
                                                                           roi, pxlMask3x3, 4, pxlBorderReplicate, 0, buffer.data()));
            else
                benchmark::DoNotOptimize(pxliGradientVectorSobel_8u16s_C3C1R(src, a.step, nullptr, 0, nullptr, 0, m, mag.step, t,
                                                                             angle.step, roi, pxlMask3x3, 4, pxlBorderReplicate, nullptr,
                                                                             buffer.data()));
            benchmark::ClobberMemory();
        }
    });
    const std::size_t pixels = static_cast<std::size_t>(W) * H;
    pxlbench::addMemcpy(name, pixels * static_cast<std::size_t>(channels), pixels * 6);
#ifdef PXL_BENCH_OPENCV
    if (channels == 1)
        pxlbench::add(name, "peer", [=](benchmark::State& s) {
            pxlbench::Image a(W, H, 1), gx(W, H, 4), gy(W, H, 4), mag(W, H, 4), angle(W, H, 4);
            cv::Mat ma = a.mat(pxlbench::k8uC1), mx = gx.mat(pxlbench::k32fC1), my = gy.mat(pxlbench::k32fC1);
            cv::Mat mm = mag.mat(pxlbench::k32fC1), mt = angle.mat(pxlbench::k32fC1);
            for (auto _ : s) {
                cv::Sobel(ma, mx, CV_32F, 1, 0, 3, 1, 0, cv::BORDER_REPLICATE);
                cv::Sobel(ma, my, CV_32F, 0, 1, 3, 1, 0, cv::BORDER_REPLICATE);
                cv::cartToPolar(mx, my, mm, mt);
                benchmark::ClobberMemory();
            }
        });
#endif
}

void filterBenchmarks()
{
    for (int side : {3, 5, 15}) {
        box<Pxl8u>(side, 1, pxlbench::k8uC1);
        box<Pxl8u>(side, 3, pxlbench::k8uC3);
        box<Pxl32f>(side, 1, pxlbench::k32fC1);
        box<Pxl32f>(side, 3, pxlbench::k32fC3);
    }
    for (int side : {3, 5}) {
        filter<Pxl8u>(side, pxlbench::k8uC1);
        filter<Pxl32f>(side, pxlbench::k32fC1);
    }
    fixedKernels();
    sobel32f(false);
    sobel32f(true);
    gradient8u(1);
    gradient8u(3);
}

const pxlbench::Registrar registrar(filterBenchmarks);

}  // namespace
