#!/usr/bin/env bash
# bench/confronti.sh [OPTIONS]: the store, the canvas and the catalogue against what they are measured against; options
# are those of Google Benchmark, such as --benchmark_filter=REGEX. Builds what it measures in build/.
set -euo pipefail
cd "$(dirname "$0")/.."
. cmake/pacchetti.sh
installa_mancanti "${PACCHETTI_BASE[@]}" libbenchmark-dev
cmake --preset release >/dev/null
cmake --build --preset release --target zuvora-bench zuvora-bench-etichette
build/bin/zuvora-bench "$@"
exec build/bin/zuvora-bench-etichette "$@"
