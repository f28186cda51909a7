#!/usr/bin/env bash
# avvio.sh BUILD [RUNS]: the start of the program against an empty dialog, offscreen and, where Xvfb is there, under X.
set -euo pipefail
build=$(cd "$1" && pwd)
corse=${2:-21}
cartella=$(mktemp -d)
trap 'rm -rf "$cartella"' EXIT
"$build/bin/zuvora-installa" crea "$cartella/installazione" >/dev/null
echo "== offscreen"
QT_QPA_PLATFORM=offscreen "$build/bin/zuvora-bench-avvio" "$cartella/installazione" "$corse" 2>/dev/null
if command -v xvfb-run >/dev/null; then
    echo "== Xvfb"
    QT_QPA_PLATFORM=xcb xvfb-run -a "$build/bin/zuvora-bench-avvio" "$cartella/installazione" "$corse" 2>/dev/null
fi
