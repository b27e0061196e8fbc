// Benchmarks: each op is timed as ours, the peer's (OpenCV on one thread) and, for memory-bound
// ops, a memcpy that reads and writes as many bytes in total; the report prints the ratios.
#pragma once

#include "pxlipx.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <functional>
#include <string>
#include <type_traits>

#ifdef PXL_BENCH_OPENCV
#include <opencv2/core.hpp>
#endif

namespace pxlbench {

// How the peer is to see an image: sample depth and channel count. Plain numbers, so that the
// benchmarks compile without the peer; only the peer's code turns them into its type codes.
enum class Depth { u8, u16, s16, s32, f32 };
struct MatType {
    Depth depth;
    int channels;
};
constexpr MatType k8uC1{Depth::u8, 1}, k8uC3{Depth::u8, 3}, k8uC4{Depth::u8, 4};
constexpr MatType k16uC1{Depth::u16, 1}, k16sC1{Depth::s16, 1}, k16sC3{Depth::s16, 3};
constexpr MatType k32sC1{Depth::s32, 1}, k32fC1{Depth::f32, 1}, k32fC3{Depth::f32, 3}, k32fC4{Depth::f32, 4};
#ifdef PXL_BENCH_OPENCV
int cvType(MatType t);
#endif

// Registers one timing of an op; `who` is "pxl" or "peer". Ops are named "<what>/<size>".
void add(const std::string& op, const char* who, std::function<void(benchmark::State&)> body);
// Registers the memcpy baseline of an op that reads `readBytes` and writes `writeBytes` in all.
void addMemcpy(const std::string& op, std::size_t readBytes, std::size_t writeBytes);

// An image in library memory of `width` pixels of `pixelBytes` bytes, filled with a pattern.
struct Image {
    Image(int width, int height, int pixelBytes);
    ~Image();
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;
    template <class T> T* as() const { return static_cast<T*>(data); }
    void* data;
    int32_t step;
    int width, height, pixelBytes;
    // Samples of 32f images as real pixel values (lo to hi with fractions) rather than bit
    // patterns, which would be denormals and NaNs half the time.
    void fillFloats(float lo, float hi);
    std::size_t bytes() const { return static_cast<std::size_t>(width) * pixelBytes * height; }
#ifdef PXL_BENCH_OPENCV
    cv::Mat mat(MatType t) const { return cv::Mat(height, width, cvType(t), data, static_cast<std::size_t>(step)); }
#endif
};

// 32f images as pixel values from 0 to 255 with fractions; other types keep their bytes.
template <class T> void pixelValues(Image& img)
{
    if constexpr (std::is_same_v<T, Pxl32f>) img.fillFloats(0.0f, 255.0f);
}

// The frame every op runs on: 1920x1080 unless the command line says `--size=WxH`. It is read
// when the ops register, after the command line, and sizeTag() ("/1920x1080") ends their names.
extern int W, H;
std::string sizeTag();

// Each family's benchmarks give their registering function to one of these at start-up; main
// calls them once the size is known.
struct Registrar {
    explicit Registrar(void (*fn)());
};

}  // namespace pxlbench
