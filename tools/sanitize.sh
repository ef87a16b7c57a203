#!/usr/bin/env bash
# Everything built with clang's AddressSanitizer and UndefinedBehaviorSanitizer, then every
# suite that needs no display server and the window suites offscreen (not those under a real
# X server or compositor, whose own libraries are not ours to judge). The first report ends
# the suite that made it, and fails the run.
#   tools/sanitize.sh [build folder]     (build-asan by default)
set -euo pipefail
cd "$(dirname "$0")/.."
dir=${1:-build-asan}
cmake -S . -B "$dir" -G Ninja -DFROSTEL_SANITIZE=ON -DFROSTEL_BUILD_BENCH=OFF
cmake --build "$dir" -j2
export ASAN_OPTIONS=halt_on_error=1:detect_leaks=1
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
export ASAN_SYMBOLIZER_PATH=/usr/lib/llvm-14/bin/llvm-symbolizer
ctest --test-dir "$dir" --output-on-failure -j2 -E '_openbox$|_x11$|_weston$|^e2e_'
