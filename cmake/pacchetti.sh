# The Debian packages that the two commands need, and how they get onto the machine. Sourced, not run.

PACCHETTI_BASE=(g++ cmake ninja-build pkg-config qt6-base-dev libqt6opengl6-dev qt6-webengine-dev libqt6webenginecore6-bin qt6-multimedia-dev libespeak-ng-dev libzint-dev libcups2-dev libarchive-dev mdbtools-dev cmark-gfm espeak-ng-data libsqlite3-dev libfontconfig-dev libgl-dev
    qt6-image-formats-plugins qt6-translations-l10n fonts-wine fonts-liberation2 fonts-urw-base35)
PACCHETTI_PROVE=(libgtest-dev libgmock-dev libbenchmark-dev zbar-tools dmtx-utils cups)
PACCHETTI_CONTROLLI=(clang-format clang-tidy)
PACCHETTI_PACCHETTO=(dpkg-dev lintian)
PACCHETTI_SCHERMO=(xvfb xauth xdotool imagemagick)

# Says in one sentence why the command can't go on, and ends it.
rinuncia() {
    echo "$1" >&2
    exit 1
}

# The proxy of the environment, which sudo would take away, as arguments of env.
ambiente_apt() {
    local nome
    # In one language, so that a held lock can be told from its words.
    printf '%s\n' DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
    for nome in http_proxy https_proxy no_proxy HTTP_PROXY HTTPS_PROXY NO_PROXY; do
        [ -z "${!nome:-}" ] || echo "$nome=${!nome}"
    done
}

# apt-get with its progress shown. While another program installs, waits for it, at most ten minutes.
apt_paziente() {
    local ambiente uscita volte
    mapfile -t ambiente < <(ambiente_apt)
    uscita=$(mktemp)
    for volte in $(seq 120); do
        if "${prima[@]}" env "${ambiente[@]}" apt-get -o DPkg::Lock::Timeout=600 "$@" 2> >(tee "$uscita" >&2); then
            rm -f "$uscita"
            return 0
        fi
        sleep 0.2 # for tee
        grep -qE 'Could not get lock|Unable to lock' "$uscita" || break
        [ "$volte" -gt 1 ] || echo "Un altro programma sta installando pacchetti: aspetto che finisca."
        sleep 5
    done
    rm -f "$uscita"
    return 1
}

# Installs what is missing; does nothing, and asks for nothing, when all is there.
installa_mancanti() {
    local mancanti=() prima=() pacchetto
    for pacchetto in "$@"; do
        dpkg-query -W -f='${Status}' "$pacchetto" 2>/dev/null | grep -q '^install ok installed$' || mancanti+=("$pacchetto")
    done
    [ ${#mancanti[@]} -eq 0 ] && return
    echo "Installo: ${mancanti[*]}"
    if [ "$(id -u)" -ne 0 ]; then
        prima=(sudo)
        local a_mano="far eseguire da un amministratore: apt-get install ${mancanti[*]}"
        command -v sudo >/dev/null || rinuncia "Mancano dei pacchetti e sudo non c'è: $a_mano"
        sudo -v || rinuncia "Mancano dei pacchetti e sudo non è concesso a $(id -un): $a_mano"
    fi
    # A list that can't be refreshed may still do; the installation tells.
    apt_paziente update || true
    apt_paziente install -y "${mancanti[@]}" ||
        rinuncia "Pacchetti non installati: verificare la rete, il proxy e lo spazio su disco, poi riprovare."
}

# Puts the programs just built into an installation that exists already; its data stay as they are.
aggiorna_programma() {
    local da=$1 in=$2 file
    for file in zuvora zuvora-installa zuvora-biglietto; do
        cmp -s "$da/$file" "$in/$file" || install -m 755 "$da/$file" "$in/$file"
    done
    for file in "$da"/libzuvora-*.so; do
        [ -e "$file" ] || continue
        cmp -s "$file" "$in/${file##*/}" || install -m 755 "$file" "$in/${file##*/}"
    done
}
