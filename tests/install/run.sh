#!/usr/bin/env bash
# Installs a build into an empty prefix, and builds and runs programs there that know nothing else.
# Usage: run.sh <build folder> <source folder> <cxx flags>
set -euo pipefail
build=$1 source=$2 flags=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/prefix" >/dev/null
cmake -S "$source/tests/install" -B "$work/build" -DCMAKE_PREFIX_PATH="$work/prefix" -DREADME="$source/README.md" \
    -DCMAKE_CXX_FLAGS="$flags" >/dev/null
cmake --build "$work/build"
"$work/build/batch"
"$work/build/lender"
# The window stays open until somebody closes it: it only has to come up and live.
cd "$work" && { QT_QPA_PLATFORM=offscreen timeout 3 "$work/build/host" || [ $? -eq 124 ]; }
