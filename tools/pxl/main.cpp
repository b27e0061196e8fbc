// pxl: what the library is (pxl info) and what it does (pxl demo).
#include "demo.hpp"
#include "families.h"
#include "pxlipx.h"

#include <cstdio>
#include <cstring>
#include <string>

namespace {

int usage()
{
    std::fprintf(stderr,
                 "usage: pxl info          the version record and the entry points by family\n"
                 "       pxl demo [DIR]    images of what each family does, into DIR (default out/), and timings\n");
    return 2;
}

int info()
{
    const PxlVersionRecord* v = pxliGetLibVersion();
    std::printf("library       %s\n", v->libraryName);
    std::printf("version       %s (%d.%d.%d, build %d)\n", v->versionText, v->versionMajor, v->versionMinor,
                v->versionUpdate, v->buildNumber);
    std::printf("target        %.4s\n", v->targetCode);
    std::printf("build date    %s\n", v->buildDate);
    std::printf("entry points  %d, with %d distinct implementations\n\n", PXL_ENTRY_COUNT, PXL_TARGET_COUNT);
    std::printf("%-32s %s\n", "family", "entry points");
    for (const auto& f : kPxlFamilies) std::printf("%-32s %d\n", f.family, f.count);
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) return usage();
    const std::string cmd = argv[1];
    if (cmd == "info" && argc == 2) return info();
    if (cmd == "demo" && argc <= 3) return demo::run(argc == 3 ? argv[2] : "out");
    return usage();
}
