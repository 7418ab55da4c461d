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
[ ! -x "$work/build/listener" ] || "$work/build/listener"
export QT_QPA_PLATFORM=offscreen
timeout 60 "$work/build/host" --unattended | grep -x "Encounter 1, due 11/15/2026, pulse 72"
# This window stays open until somebody closes it: it only has to come up and live.
cd "$work" && { timeout 3 "$work/build/shown" || [ $? -eq 124 ]; }

echo "With pkg-config"
PKG_CONFIG_PATH=$(dirname "$(find "$work/prefix" -name korvane-core.pc)")
export PKG_CONFIG_PATH
pkg-config --exists --print-errors korvane-controls korvane-qtsql
"${CXX:-c++}" -std=c++20 $flags "$source/tests/install/batch.cpp" $(pkg-config --cflags --libs korvane-core) -o "$work/pkg"
libraries=$(pkg-config --variable=libdir korvane-core)
LD_LIBRARY_PATH=$libraries "$work/pkg"
"${CXX:-c++}" -std=c++20 $flags "$source/tests/install/host.cpp" $(pkg-config --cflags --libs korvane-controls) -o "$work/pkghost"
LD_LIBRARY_PATH=$libraries timeout 60 "$work/pkghost" --unattended | grep -x "Encounter 1, due 11/15/2026, pulse 72"

"$work/prefix/bin/korvane-clinic" --version
"$work/prefix/bin/korvane-clinic" --language de --help | grep Textgröße
[ -f "$work/prefix/share/korvane/translations/korvane_de.ts" ]
