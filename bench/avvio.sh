#!/usr/bin/env bash
# bench/avvio.sh [RUNS]: the start of the program against an empty dialog, offscreen and, where Xvfb is there, under X.
# Builds what it measures in build/, as ./avvia does.
set -euo pipefail
cd "$(dirname "$0")/.."
corse=${1:-21}
cmake --preset release >/dev/null
cmake --build --preset release --target zuvora zuvora-installa zuvora-avvio-vuoto zuvora-avvio-pannello zuvora-bench-avvio
cartella=$(mktemp -d)
trap 'rm -rf "$cartella"' EXIT
build/bin/zuvora-installa crea "$cartella/installazione" >/dev/null
echo "== offscreen"
QT_QPA_PLATFORM=offscreen build/bin/zuvora-bench-avvio "$cartella/installazione" "$corse" 2>/dev/null
if command -v xvfb-run >/dev/null; then
    echo "== Xvfb"
    QT_QPA_PLATFORM=xcb xvfb-run -a build/bin/zuvora-bench-avvio "$cartella/installazione" "$corse" 2>/dev/null
fi
