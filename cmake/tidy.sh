#!/usr/bin/env bash
# tidy.sh BUILD: clang-tidy over our own sources, with the compile commands of a configured build folder.
set -euo pipefail
cartella=$1
# clang can't read the compiler's precompiled headers; without them it also finds includes that a file forgot.
mkdir -p "$cartella/tidy"
sed -E 's/ -Winvalid-pch -include [^ ]*cmake_pch\.hxx//' "$cartella/compile_commands.json" >"$cartella/tidy/compile_commands.json"
git ls-files 'src/*.cpp' 'plugins/*.cpp' 'installer/*.cpp' |
    xargs -P "$(nproc)" -n 4 clang-tidy --quiet --warnings-as-errors='*' -p "$cartella/tidy" 2> >(grep -v 'warnings generated' >&2)
