#!/usr/bin/env bash
# tidy.sh BUILD: clang-tidy over our own sources, with the compile commands of a configured build folder. Of a folder
# that builds in unities it reads those, in a quarter of the time; of any other each source by itself, which also finds
# includes that a file forgot.
set -euo pipefail
cartella=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
mkdir -p "$cartella/tidy"
# clang can't read the compiler's precompiled headers, and doesn't know all of its warnings.
sed -E 's/ -Winvalid-pch -include [^ ]*cmake_pch\.hxx//; s/ -Werror / /; s/ -Wno-subobject-linkage//' "$cartella/compile_commands.json" >"$cartella/tidy/compile_commands.json"
# What the build makes by itself is none of ours, but for the unities.
grep -oE '"file": "[^"]*/(src|plugins|installer)/[^"]*"' "$cartella/compile_commands.json" | cut -d'"' -f4 |
    grep -E "^$PWD/(src|plugins|installer)/|^$cartella/(src|plugins|installer)/.*/unity_[0-9]+_cxx\.cxx$" | sort -u |
    # Including sources is what a unity is for.
    xargs -P "$(nproc)" -n 1 clang-tidy --quiet --warnings-as-errors='*' --checks=-bugprone-suspicious-include -p "$cartella/tidy" \
        2> >(grep -v 'warnings generated' >&2)
