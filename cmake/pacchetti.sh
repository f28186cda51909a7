# The Debian packages that the two commands need, and how they get onto the machine. Sourced, not run.

PACCHETTI_BASE=(g++ cmake ninja-build pkg-config qt6-base-dev libqt6opengl6-dev qt6-webengine-dev libqt6webenginecore6-bin qt6-multimedia-dev libespeak-ng-dev espeak-ng-data libsqlite3-dev libgl-dev
    qt6-image-formats-plugins qt6-translations-l10n fonts-wine fonts-liberation2 fonts-urw-base35)
PACCHETTI_PROVE=(libgtest-dev libgmock-dev libbenchmark-dev)
PACCHETTI_CONTROLLI=(clang-format clang-tidy)
PACCHETTI_SCHERMO=(xvfb xauth xdotool imagemagick)

# Installs what is missing; does nothing, and asks for nothing, when all is there.
installa_mancanti() {
    local mancanti=() pacchetto
    for pacchetto in "$@"; do
        dpkg-query -W -f='${Status}' "$pacchetto" 2>/dev/null | grep -q '^install ok installed$' || mancanti+=("$pacchetto")
    done
    [ ${#mancanti[@]} -eq 0 ] && return
    local prima=()
    [ "$(id -u)" -eq 0 ] || prima=(sudo)
    echo "Installo: ${mancanti[*]}"
    "${prima[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q >/dev/null
    "${prima[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q "${mancanti[@]}" >/dev/null
}

# Puts the programs just built into an installation that exists already; its data stay as they are.
aggiorna_programma() {
    local da=$1 in=$2 file
    for file in zuvora zuvora-installa; do
        cmp -s "$da/$file" "$in/$file" || install -m 755 "$da/$file" "$in/$file"
    done
    for file in "$da"/libzuvora-*.so; do
        [ -e "$file" ] || continue
        cmp -s "$file" "$in/${file##*/}" || install -m 755 "$file" "$in/${file##*/}"
    done
}
