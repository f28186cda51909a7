#!/usr/bin/env bash
# muri.sh BUILD: proves that the walls between the rooms hold. For each folder of src/ it takes the compile command of
# one of its sources and asks the preprocessor for every header of every folder: one that is found and that the table
# below doesn't grant is an open wall.
set -euo pipefail
build=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."

# What a folder may see besides itself. A new one says it here.
logica="shell/logic shell/store shell/immagini shell/disegni"
declare -A vede=(
    [shell/store]=""
    [shell/disegni]=""
    [shell/immagini]="shell/logic shell/store"
    [shell/logic]="shell/store"
    [shell/host]="$logica"
    [pannello/logic]="$logica"
    [pannello/forms]="$logica shell/host pannello/logic"
    [designer/logic]="$logica"
    [designer/forms]="$logica shell/host designer/logic"
    [library/logic]="$logica designer/logic"
    [library/forms]="$logica shell/host library/logic designer/logic designer/forms"
    [content/logic]="$logica"
    [content/forms]="$logica shell/host content/logic"
    [calling/logic]="$logica"
    [calling/forms]="$logica shell/host calling/logic"
    [kiosk/logic]="$logica"
    [kiosk/forms]="$logica shell/host kiosk/logic library/logic library/forms designer/logic designer/forms"
)
# Only these may see widgets.
finestre='^(shell/host|[a-z]+/forms)$'

domande=$(mktemp)
trap 'rm -f "$domande"' EXIT
find src -mindepth 3 -name '*.h' | sed 's|^src/||' | sort |
    awk '{ printf "#if __has_include(\"%s\")\nTROVA %s\n#endif\n", $0, $0 }' >"$domande"
for widget in QWidget QApplication QDialog; do
    printf '#if __has_include(<%s>)\nTROVA widgets/%s\n#endif\n' "$widget" "$widget" >>"$domande"
done

aperti=0
guasto() {
    echo "$1" >&2
    aperti=1
}

# controlla FOLDER SEES WINDOWS: the rooms that the sources of FOLDER find are all among SEES; widgets only with WINDOWS=1.
controlla() {
    local comando radici trovati trovato stanza
    comando=$(grep -F "\"command\"" "$build/compile_commands.json" | grep -F -- "-c $PWD/$1/" | head -n 1 || true)
    radici=$(grep -oE -- '(-I ?|-isystem )[^ "]+' <<<"$comando" || true)
    # shellcheck disable=SC2086 # one word an option
    trovati=$(c++ -x c++ -std=c++20 -E -P $radici "$domande" | awk '$1 == "TROVA" { print $2 }')
    grep -q "^${2%% *}/" <<<"$trovati" || guasto "$1: non trova nemmeno le intestazioni di ${2%% *}, il controllo non vale"
    for trovato in $trovati; do
        stanza=${trovato%/*}
        if [ "$stanza" = widgets ]; then
            [ "$3" = 1 ] || guasto "muro aperto: $1 vede <${trovato#*/}>"
        elif [[ " $2 " != *" $stanza "* ]]; then
            guasto "muro aperto: $1 vede $trovato"
        fi
    done
}

for cartella in $(find src -mindepth 2 -maxdepth 2 -type d | sed 's|^src/||' | sort); do
    if [ -z "${vede[$cartella]+c}" ]; then
        guasto "src/$cartella manca nella tabella di cmake/muri.sh"
        continue
    fi
    finestra=0
    [[ $cartella =~ $finestre ]] && finestra=1
    controlla "src/$cartella" "$cartella ${vede[$cartella]}" "$finestra"
done

# Beside the program: the installer, which knows the version's and the display's rules too, and the components.
controlla installer "$logica pannello/logic" 0
controlla plugins/etichette/logic "$logica" 0
for componente in etichette/designer film voce web; do
    controlla "plugins/$componente" "$logica shell/host" 1
done

# Ways around the include roots.
if vie=$(grep -rnE '#include *["<](\.\.|/|src/)' src plugins installer); then
    guasto "$vie"
fi
if vie=$(find src -path '*/logic/*' -o -path src/shell/store/\* -o -path src/shell/immagini/\* -o -path src/shell/disegni/\* |
    xargs grep -nE '#include *<QtWidgets' /dev/null); then
    guasto "$vie"
fi
exit $aperti
