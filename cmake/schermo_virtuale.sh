#!/usr/bin/env bash
# schermo_virtuale.sh PROGRAM PICTURE: starts the program on a virtual display, saves a picture of its first window once
# that is painted, and closes the program. Fails when no window comes.
set -euo pipefail
programma=$1
immagine=$2

numeri=$(mktemp)
Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp 3>"$numeri" >/dev/null 2>&1 &
xvfb=$!
figlio=
fine() {
    [ -z "$figlio" ] || kill "$figlio" 2>/dev/null || true
    kill "$xvfb" 2>/dev/null || true
    rm -f "$numeri"
}
trap fine EXIT
for _ in $(seq 100); do
    [ -s "$numeri" ] && break
    sleep 0.1
done
[ -s "$numeri" ] || { echo "Lo schermo virtuale (Xvfb) non si avvia." >&2; exit 1; }
export DISPLAY=":$(cat "$numeri")"

env -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb "$programma" &
figlio=$!
finestra=
for _ in $(seq 150); do
    kill -0 "$figlio" 2>/dev/null || { echo "Il programma è terminato prima di mostrare una finestra." >&2; exit 1; }
    finestra=$(xdotool search --onlyvisible --name 'Modulo di Impostazione' 2>/dev/null | head -n 1 || true)
    [ -n "$finestra" ] && break
    sleep 0.2
done
[ -n "$finestra" ] || { echo "Nessuna finestra del programma entro 30 secondi." >&2; exit 1; }
sleep 1
import -window "$finestra" "$immagine"
