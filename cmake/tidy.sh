#!/usr/bin/env bash
# tidy.sh BUILD: clang-tidy over our own sources, with the compile commands of a configured build folder.
set -euo pipefail
cartella=$1
git ls-files 'src/*.cpp' 'plugins/*.cpp' 'installer/*.cpp' |
    xargs -P "$(nproc)" -n 4 clang-tidy --quiet --warnings-as-errors='*' -p "$cartella" 2> >(grep -v 'warnings generated' >&2)
