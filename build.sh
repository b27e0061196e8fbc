#!/usr/bin/env bash
# The project's commands, each from a fresh clone:
#   ./build.sh demo    build in Release and run `pxl demo` (images and timings into out/)
#   ./build.sh test    build and run every test: Release with g++ and AddressSanitizer +
#                      UndefinedBehaviorSanitizer, each running the family tests under every
#                      processor level this machine has, and clang++ pinned to this machine's
#                      processor
#   ./build.sh bench   build the default Release and run the benchmarks against OpenCV and
#                      memcpy (extra arguments go to Google Benchmark, e.g. --benchmark_filter=Add)
# Each installs the Debian packages it needs when they are missing.
set -euo pipefail
cd "$(dirname "$0")"

need() {
    local missing=() p
    for p in "$@"; do dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "ok installed" || missing+=("$p"); done
    if ((${#missing[@]})); then
        local sudo=""
        [ "$(id -u)" = 0 ] || sudo=sudo
        echo "Installing ${missing[*]}"
        $sudo apt-get update -qq
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}" >/dev/null
    fi
}

jobs=$(nproc 2>/dev/null || echo 2)
base=(cmake ninja-build g++ python3 pkg-config libpng-dev)

# configure DIR [cmake options...], then build it
build() {
    local dir=$1; shift
    cmake -S . -B "$dir" -G Ninja "$@" >/dev/null
    cmake --build "$dir" -j "$jobs"
}

case "${1:-}" in
demo)
    need "${base[@]}"
    build build/release -DCMAKE_BUILD_TYPE=Release -DPXL_BUILD_TESTS=OFF -DPXL_BUILD_BENCH=OFF
    build/release/tools/pxl demo out
    ;;
test)
    need "${base[@]}" clang libgtest-dev libgmock-dev libbenchmark-dev
    # name, then the options of each configuration
    # The first builds the benchmarks with the peer hidden, so that they compile without it; the
    # last keeps the builds pinned to one level working.
    configs=(
        "gcc-release|-DCMAKE_BUILD_TYPE=Release -DPXL_WERROR=ON -DCMAKE_DISABLE_FIND_PACKAGE_OpenCV=ON"
        "gcc-sanitize|-DCMAKE_BUILD_TYPE=RelWithDebInfo -DPXL_SANITIZE=ON -DPXL_BUILD_BENCH=OFF"
        "clang-native|-DCMAKE_BUILD_TYPE=Release -DPXL_WERROR=ON -DPXL_BUILD_BENCH=OFF -DPXL_TARGET_CPU=native -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++"
    )
    for c in "${configs[@]}"; do
        name=${c%%|*}
        read -r -a opts <<<"${c#*|}"
        echo "=== $name"
        build "build/test-$name" "${opts[@]}"
        (cd "build/test-$name" && ctest -j "$jobs" --output-on-failure)
    done
    ;;
bench)
    need "${base[@]}" libbenchmark-dev libopencv-dev
    # The default build, as users get it: every level's kernels, the best picked at each call.
    build build/bench -DCMAKE_BUILD_TYPE=Release -DPXL_BUILD_TESTS=OFF -DPXL_BUILD_BENCH=ON -DPXL_TARGET_CPU=auto
    shift
    for size in 1920x1080 768x432; do
        build/bench/bench/pxl_bench --size=$size --benchmark_min_time=0.05 --benchmark_repetitions=12 \
            --benchmark_enable_random_interleaving=true "$@"
    done
    ;;
*)
    sed -n '2,9p' "$0" | sed 's/^# \{0,1\}//'
    exit 2
    ;;
esac
