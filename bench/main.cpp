#include "bench.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <vector>

namespace pxlbench {

namespace {
struct Buffer {
    explicit Buffer(std::size_t n) : p(static_cast<char*>(std::aligned_alloc(64, (n + 63) / 64 * 64))) { std::memset(p, 1, n); }
    ~Buffer() { std::free(p); }
    char* p;
};
}  // namespace

#ifdef PXL_BENCH_OPENCV
int cvType(MatType t)
{
    int depth = CV_8U;
    switch (t.depth) {
    case Depth::u8: depth = CV_8U; break;
    case Depth::u16: depth = CV_16U; break;
    case Depth::s16: depth = CV_16S; break;
    case Depth::s32: depth = CV_32S; break;
    case Depth::f32: depth = CV_32F; break;
    }
    return CV_MAKETYPE(depth, t.channels);
}
#endif

int W = 1920, H = 1080;
std::string sizeTag()
{
    char tag[32];
    std::snprintf(tag, sizeof tag, "/%dx%d", W, H);
    return tag;
}

namespace {
std::vector<void (*)()>& registering()
{
    static std::vector<void (*)()> fns;
    return fns;
}
}  // namespace
Registrar::Registrar(void (*fn)()) { registering().push_back(fn); }

Image::Image(int w, int h, int pb) : width(w), height(h), pixelBytes(pb)
{
    data = pxliMalloc_8u_C1(w * pb, h, &step);
    auto* p = static_cast<unsigned char*>(data);
    for (std::size_t i = 0; i < static_cast<std::size_t>(step) * static_cast<std::size_t>(h); ++i)
        p[i] = static_cast<unsigned char>(i * 7 + (i >> 9));
}
Image::~Image() { pxliFree(data); }

void Image::fillFloats(float lo, float hi)
{
    const int n = width * pixelBytes / 4;
    for (int y = 0; y < height; ++y) {
        auto* row = reinterpret_cast<float*>(static_cast<char*>(data) + static_cast<std::ptrdiff_t>(y) * step);
        for (int i = 0; i < n; ++i) row[i] = lo + (hi - lo) * static_cast<float>((i * 37 + y * 101) % 1024) / 1024.0f;
    }
}

void add(const std::string& op, const char* who, std::function<void(benchmark::State&)> body)
{
    benchmark::RegisterBenchmark((op + "/" + who).c_str(), [body](benchmark::State& s) { body(s); })
        ->Unit(benchmark::kMicrosecond)->UseRealTime();
}

void addMemcpy(const std::string& op, std::size_t readBytes, std::size_t writeBytes)
{
    const std::size_t n = (readBytes + writeBytes) / 2;
    add(op, "memcpy", [n](benchmark::State& s) {
        Buffer src(n), dst(n);
        for (auto _ : s) {
            benchmark::DoNotOptimize(src.p);
            std::memcpy(dst.p, src.p, n);
            benchmark::DoNotOptimize(dst.p);
            benchmark::ClobberMemory();
        }
    });
}

namespace {
// Prints the usual console lines, then one table of ratios by op.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& r : runs) {
            if (r.run_type != Run::RT_Iteration || r.error_occurred) continue;
            const std::string name = r.run_name.function_name;
            const auto cut = name.rfind('/');
            if (cut == std::string::npos) continue;
            // The fastest repetition: on a shared machine the noise only ever adds time.
            double& t = times_[name.substr(0, cut)][name.substr(cut + 1)];
            t = t > 0 ? std::min(t, r.GetAdjustedRealTime()) : r.GetAdjustedRealTime();
        }
    }
    void Finalize() override
    {
        ConsoleReporter::Finalize();
        std::printf("\n%-40s %12s %12s %12s %10s %10s\n", "op (us per call)", "pxl", "opencv", "memcpy", "pxl/cv", "pxl/memcpy");
        double logSum = 0;
        int compared = 0;
        for (const auto& entry : times_) {
            const std::string& op = entry.first;
            const auto& t = entry.second;
            auto get = [&t](const char* who) { auto i = t.find(who); return i == t.end() ? -1.0 : i->second; };
            const double ours = get("pxl"), peer = get("peer"), mem = get("memcpy");
            auto cell = [](double v) { char b[32]; if (v < 0) std::snprintf(b, sizeof b, "-"); else std::snprintf(b, sizeof b, "%.4g", v); return std::string(b); };
            auto ratio = [](double a, double b) { char buf[32]; if (a < 0 || b <= 0) std::snprintf(buf, sizeof buf, "-"); else std::snprintf(buf, sizeof buf, "%.2f", a / b); return std::string(buf); };
            std::printf("%-40s %12s %12s %12s %10s %10s\n", op.c_str(), cell(ours).c_str(), cell(peer).c_str(),
                        cell(mem).c_str(), ratio(ours, peer).c_str(), ratio(ours, mem).c_str());
            if (ours > 0 && peer > 0) {
                logSum += std::log(ours / peer);
                ++compared;
            }
        }
        if (compared > 0)
            std::printf("%-40s %12s %12s %12s %10.2f\n", "geometric mean", "", "", "", std::exp(logSum / compared));
    }

private:
    std::map<std::string, std::map<std::string, double>> times_;
};
}  // namespace

}  // namespace pxlbench

int main(int argc, char** argv)
{
#ifdef PXL_BENCH_OPENCV
    cv::setNumThreads(1);  // the peer on one thread, as we are
#endif
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], "--size=", 7) != 0) continue;
        if (std::sscanf(argv[i] + 7, "%dx%d", &pxlbench::W, &pxlbench::H) != 2 || pxlbench::W < 1 || pxlbench::H < 1) {
            std::fprintf(stderr, "--size takes WIDTHxHEIGHT\n");
            return 2;
        }
        for (int k = i; k < argc - 1; ++k) argv[k] = argv[k + 1];
        --argc;
        --i;
    }
    for (auto fn : pxlbench::registering()) fn();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    pxlbench::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
